// What the C++ library calls when it fails, in place of its own: those build exceptions with texts, and a handler that
// spells out an uncaught exception's type for a console that no window has. Together they would be a seventh of the
// program. Whoever catches here catches std::bad_alloc or std::exception, and reads no text.
//
// A source of the program itself, not of a library, so that the linker finds these before the C++ library's own.
#include <cstdlib>
#include <exception>
#include <new>

#ifdef __GLIBCXX__

namespace __gnu_cxx {

void __verbose_terminate_handler() {
    std::abort();
}

}  // namespace __gnu_cxx

namespace std {

// More than can be addressed, and more than is there, is the same to those who catch it.
void __throw_bad_alloc() {
    throw bad_alloc();
}
void __throw_bad_array_new_length() {
    throw bad_alloc();
}
void __throw_length_error(const char*) {
    throw bad_alloc();
}

void __throw_bad_exception() {
    throw exception();
}
void __throw_bad_cast() {
    throw exception();
}
void __throw_bad_typeid() {
    throw exception();
}
void __throw_bad_function_call() {
    throw exception();
}
void __throw_logic_error(const char*) {
    throw exception();
}
void __throw_domain_error(const char*) {
    throw exception();
}
void __throw_invalid_argument(const char*) {
    throw exception();
}
void __throw_out_of_range(const char*) {
    throw exception();
}
void __throw_out_of_range_fmt(const char*, ...) {
    throw exception();
}
void __throw_runtime_error(const char*) {
    throw exception();
}
void __throw_range_error(const char*) {
    throw exception();
}
void __throw_overflow_error(const char*) {
    throw exception();
}
void __throw_underflow_error(const char*) {
    throw exception();
}

}  // namespace std

#endif
