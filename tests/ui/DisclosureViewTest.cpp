// SPDX-License-Identifier: MIT
#include "ui/consent/DisclosureView.h"

#include "FakePlatform.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DisclosureViewTest, NamesTheServerThatRecordingsGoTo)
{
    struct Row {
        QString address;
        QString server;
        bool isHere;
    };
    for (const Row &row :
         {Row{u"https://api.quillo.example/v0"_s, u"api.quillo.example"_s, false},
          Row{u"http://127.0.0.1:8791"_s, u"127.0.0.1"_s, true}, Row{u"http://localhost:8791/"_s, u"localhost"_s, true},
          Row{u"http://[::1]:8791"_s, u"::1"_s, true}, Row{u"http://192.168.1.5:8791"_s, u"192.168.1.5"_s, false},
          Row{u""_s, u""_s, false}}) {
        FakePlatform fake;
        fake.preferences.setString(u"apiURL"_s, row.address);
        AIConsent consent(fake.preferences, fake.clock);
        const DisclosureView view(false, consent, fake.preferences, fake.packagedInfo, [](bool) {});
        EXPECT_EQ(view.property("server"), row.server);
        EXPECT_EQ(view.isServerHere(), row.isHere) << row.address.toStdString();
    }
}
