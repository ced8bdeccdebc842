// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ResourceInfo.h"

#include "support/Printing.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ResourceInfoTest, OnlyStringsOfAnObjectAreValues)
{
    const struct {
        QByteArray json;
        std::optional<QString> value;
    } cases[] = {
        {R"({"QuilloAPIURL": "Grüße"})", u"Grüße"_s},
        {R"({"QuilloAPIURL": 1})", std::nullopt},
        {R"({"QuilloAPIURL": "a")", std::nullopt},
    };
    const QTemporaryDir folder;
    for (const auto &[json, value] : cases) {
        QFile file(folder.filePath(u"Info.json"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        file.close();
        EXPECT_EQ(ResourceInfo(folder.path()).string(u"QuilloAPIURL"_s), value) << json.constData();
    }
    EXPECT_EQ(ResourceInfo(folder.filePath(u"missing"_s)).string(u"QuilloAPIURL"_s), std::nullopt);
}
