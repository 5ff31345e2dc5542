// The string table: user-visible texts by number, and the filling of their places.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vexa {

// The text with that number (the rows of strings.def); empty when there is none.
std::string_view LoadText(std::uint16_t number);

// The format with each "%s" or "%d", in turn, replaced by the next argument, as it is. A place without an argument
// stays empty; "%%" and any other character stay as they are.
std::string FillText(std::string_view format, std::initializer_list<std::string_view> arguments);

// LoadText and FillText in one.
std::string FillText(std::uint16_t number, std::initializer_list<std::string_view> arguments);

}  // namespace vexa
