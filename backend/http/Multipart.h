// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The fields of a form by name, as views into its body.
using Form = std::map<std::string, std::string_view, std::less<>>;

/// The fields of a multipart/form-data body. What stands before the first and after the last delimiter means nothing.
/// Nothing is returned for what is no such form, or could be read in two ways: no closing delimiter, a part without a
/// name or with two, two parts of one name, over 16 parts, a header section over 8 KiB.
std::optional<Form> parseForm(std::string_view contentType, std::string_view body);
