// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Ending = HttpServer::Response::Ending;

class UnsentTest : public AppModelFixture {
protected:
    const HttpServer::Response noReply{200, "", Ending::CloseWithoutReply};

    QFileInfoList kept() const
    {
        return QDir(fake.files.applicationSupportFolder() + u"/Quillo/Unsent"_s).entryInfoList(QDir::Files);
    }
};

} // namespace

TEST_F(UnsentTest, OnlyWhatAnotherTryMaySendIsKeptAndOnlyWhereThatIsWanted)
{
    start();
    const std::tuple<bool, HttpServer::Response, int> table[]{
        {false, noReply, 0}, {true, noReply, 1}, {true, {503, ""}, 1}, {true, {400, ""}, 0}, {true, transcript, 0}};
    for (const auto &[isWanted, reply, count] : table) {
        model->general().setKeepsUnsent(isWanted);
        transcript = reply;
        dictate();
        EXPECT_EQ(kept().size(), count);
        EXPECT_EQ(model->unsent().count(), count);
        EXPECT_TRUE(fake.files.recordings().isEmpty());
        model->unsent().deleteAll();
        EXPECT_TRUE(kept().isEmpty());
    }
}

TEST_F(UnsentTest, TheyAreSentOnceTheServerAnswersAlsoAfterARestart)
{
    const QString group = model->groups().add(u"Work"_s).id;
    model->groups().setActiveId(group);
    start();
    model->general().setKeepsUnsent(true);
    transcript = noReply;
    dictate();
    dictate();
    EXPECT_EQ(kept().first().permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
    make();
    start();
    const auto sendAgain = [this] {
        const int before = server.count("/v1/transcribe");
        fake.clock.advance(1min);
        EXPECT_TRUE(await([&] { return !model->unsent().isSending(); }));
        return server.count("/v1/transcribe") - before;
    };
    EXPECT_EQ(sendAgain(), 1); // the first fails like before, and the second waits
    EXPECT_EQ(model->unsent().count(), 2);
    transcript = {200, R"({"text":" Late. ","balance":4})"};
    EXPECT_EQ(sendAgain(), 2);
    EXPECT_EQ(model->unsent().count(), 0);
    EXPECT_TRUE(kept().isEmpty());
    ASSERT_EQ(model->store().items().size(), 2);
    EXPECT_EQ(model->store().items().first().text, u"Late."_s);
    EXPECT_EQ(model->store().items().first().categoryId, group);
    EXPECT_EQ(model->balance(), 4);
    EXPECT_EQ(fake.pasted, QStringList());
    EXPECT_EQ(sendAgain(), 0);
}

TEST_F(UnsentTest, FiftyAreKeptForAWeek)
{
    model->general().setKeepsUnsent(true);
    const QString path = fake.files.temporaryFolder() + u"/recording"_s;
    for (int number = 0; number < 51; ++number) {
        fake.clock.set(fake.clock.now() + 1s);
        QFile(path).open(QIODevice::WriteOnly);
        EXPECT_TRUE(model->unsent().keep(path, std::nullopt));
    }
    EXPECT_EQ(kept().size(), 50);
    fake.clock.set(fake.clock.now() + std::chrono::days(7));
    make();
    EXPECT_EQ(model->unsent().count(), 1);
}

TEST_F(UnsentTest, TheEndOfTheProgramKeepsWhatWasHeard)
{
    model->general().setKeepsUnsent(true);
    for (const bool isTranscribing : {false, true}) {
        make();
        start();
        isTranscribing ? speakToSilence() : press();
        model.reset();
        EXPECT_EQ(kept().size(), isTranscribing ? 2 : 1);
        EXPECT_TRUE(fake.files.recordings().isEmpty());
    }
}
