// SPDX-License-Identifier: MIT
#include "http/Multipart.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

constexpr std::string_view formType = "multipart/form-data; boundary=b";
constexpr std::string_view disposition = "Content-Disposition: form-data; name=\"file\"; filename=\"a.m4a\"\r\n";

struct Case {
    const char *name;
    std::string contentType;
    std::string body;
    std::optional<std::string> file;
};

std::ostream &operator<<(std::ostream &stream, const Case &value)
{
    return stream << value.name;
}

class MultipartTest : public testing::TestWithParam<Case> {};

std::string part(std::string_view headers, std::string_view content, std::string_view end = "\r\n--b--\r\n")
{
    return "--b\r\n" + std::string(headers) + "\r\n" + std::string(content) + std::string(end);
}

} // namespace

TEST_P(MultipartTest, YieldsTheFieldsOrNothing)
{
    const auto &[name, contentType, body, file] = GetParam();
    const auto form = parseForm(contentType, body);
    ASSERT_EQ(form && form->contains("file"), file.has_value());
    if (file) {
        EXPECT_EQ(form->at("file"), *file);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, MultipartTest,
    testing::Values(
        Case{"as the desktop program sends it", std::string(formType),
             part(std::string(disposition) + "Content-Type: audio/mp4\r\n", std::string("\0\r\n--a\r\n", 8)),
             std::string("\0\r\n--a\r\n", 8)},
        Case{"quoted boundary, other case, no last line end", "Multipart/Form-Data; charset=utf-8; boundary=\"b\"",
             part("content-disposition: form-data; name=file\r\n", "x", "\r\n--b--"), "x"},
        Case{"empty file", std::string(formType), part(disposition, ""), ""},
        Case{"file name in UTF-8", std::string(formType),
             part("Content-Disposition: form-data; name=\"file\"; filename=\"é.m4a\"\r\n", "x"), "x"},
        Case{"another content type", "application/json", part(disposition, "x"), {}},
        Case{"no boundary", "multipart/form-data", part(disposition, "x"), {}},
        Case{"empty boundary", "multipart/form-data; boundary=\"\"", part(disposition, "x"), {}},
        Case{"boundary over 70 characters",
             "multipart/form-data; boundary=" + std::string(71, 'b'),
             "--" + std::string(71, 'b') + "\r\n" + std::string(disposition) + "\r\nx\r\n--" + std::string(71, 'b') +
                 "--",
             {}},
        Case{"empty body", std::string(formType), "", {}},
        Case{"only a delimiter", std::string(formType), "--b\r\n", {}},
        Case{"only the end", std::string(formType), "--b--\r\n", {}},
        Case{"no end", std::string(formType), part(disposition, "x", ""), {}},
        Case{"cut within the end", std::string(formType), part(disposition, "x", "\r\n--b-"), {}},
        Case{"text before", std::string(formType), "x\r\n" + part(disposition, "x"), "x"},
        Case{"text after", std::string(formType), part(disposition, "x") + "x", "x"},
        Case{"padded delimiters", std::string(formType), "\r\n--b \t\r\n" + part(disposition, "x").substr(5), "x"},
        Case{"delimiter within a line", std::string(formType), "x" + part(disposition, "x"), {}},
        Case{"second part", std::string(formType),
             part(disposition, "x", "\r\n") + part("Content-Disposition: form-data; name=\"prompt\"\r\n", "y"), "x"},
        Case{"two files", std::string(formType), part(disposition, "x", "\r\n") + part(disposition, "x"), {}},
        Case{"two names",
             std::string(formType),
             part("Content-Disposition: form-data; name=\"file\"; name=\"x\"\r\n", "x"),
             {}},
        Case{"two dispositions",
             std::string(formType),
             part(std::string(disposition) + std::string(disposition), "x"),
             {}},
        Case{"no disposition", std::string(formType), part("Content-Type: audio/mp4\r\n", "x"), {}},
        Case{"not form-data",
             std::string(formType),
             part("Content-Disposition: attachment; name=\"file\"\r\n", "x"),
             {}},
        Case{"header without a colon", std::string(formType), part(std::string(disposition) + "x\r\n", "x"), {}},
        Case{"endless headers",
             std::string(formType),
             part(std::string(disposition) + "X: " + std::string(9000, 'x') + "\r\n", "x"),
             {}}));
