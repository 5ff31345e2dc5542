#include "external/program_request.h"

#include "base/fixed_field.h"
#include "base/platform.h"

namespace vexa {

ProgramRequest::ProgramRequest(std::string_view program, std::string_view arguments, std::string_view directory) {
    setProgram(program);
    setArguments(arguments);
    setDirectory(directory.empty() ? platform::CurrentDirectory() : std::string(directory));
}

void ProgramRequest::setProgram(std::string_view text) {
    program_ = LimitedText(text, kTextLimit);
}

void ProgramRequest::setMenuText(std::string_view text) {
    menuText_ = LimitedText(text, kMenuTextLimit);
}

void ProgramRequest::setArguments(std::string_view text) {
    arguments_ = LimitedText(text, kTextLimit);
}

void ProgramRequest::setDirectory(std::string_view text) {
    directory_ = LimitedText(text, kTextLimit);
}

std::string ProgramRequest::description() const {
    const std::size_t name = program_.rfind('\\');
    return program_.substr(name == std::string::npos ? 0 : name) + " " + arguments_;
}

}  // namespace vexa
