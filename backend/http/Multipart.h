// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

/// The content of a multipart/form-data body that has exactly one part, named "file"; a view into `body`. Anything else
/// is nothing: another or a second part, no closing boundary, a header section over 8 KiB, a preamble or an epilogue.
std::optional<std::string_view> uploadedFile(std::string_view contentType, std::string_view body);
