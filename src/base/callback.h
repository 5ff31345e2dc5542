// A function that somebody else calls.
#pragma once

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

namespace vexa {

// Holds a function or a lambda that has captured a few references, pointers or numbers; what is referred to must live
// as long as it is called. std::function would own any captures, and so brings code to copy and destroy them with each
// lambda, which was a hundredth of the program.
template <class Signature>
class Callback;

template <class Result, class... Arguments>
class Callback<Result(Arguments...)> {
  public:
    Callback() = default;
    template <class Function>
    requires(!std::is_same_v<Function, Callback> && std::is_invocable_r_v<Result, const Function&, Arguments...>)
        Callback(const Function& function)
        : call_(&Call<Function>) {
        static_assert(std::is_trivially_copyable_v<Function> && sizeof(Function) <= sizeof captured_);
        new (captured_) Function(function);
    }

    explicit operator bool() const { return call_ != nullptr; }
    Result operator()(Arguments... arguments) const { return call_(captured_, std::forward<Arguments>(arguments)...); }

  private:
    template <class Function>
    static Result Call(const std::byte* captured, Arguments... arguments) {
        return (*std::launder(reinterpret_cast<const Function*>(captured)))(std::forward<Arguments>(arguments)...);
    }

    alignas(void*) std::byte captured_[4 * sizeof(void*)];
    Result (*call_)(const std::byte* captured, Arguments... arguments) = nullptr;
};

}  // namespace vexa
