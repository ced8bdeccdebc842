// SPDX-License-Identifier: MIT
#include "AppModelFixture.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

class ConsentTest : public AppModelFixture {
protected:
    ConsentTest() { consent.withdraw(); }

    QWindow *window() { return fake.application.front; }
};

} // namespace

TEST_F(ConsentTest, TheFirstStartAsksAndTheAnswerDecidesWhatFollows)
{
    fake.accessibility.trusted = false;
    make();
    start();
    ASSERT_TRUE(disclosure);
    EXPECT_FALSE(disclosure->isReview());
    disclosure->keep(false);
    EXPECT_FALSE(model->hasConsent());
    EXPECT_TRUE(server.requests().isEmpty());

    model->showConsent(false);
    disclosure->agree();
    EXPECT_TRUE(consent.isCurrent());
    EXPECT_TRUE(model->hasConsent());
    EXPECT_EQ(fake.accessibility.prompts, 1);
    EXPECT_TRUE(await([this] { return model->balance() == 10; }));
}

TEST_F(ConsentTest, AReviewShowsTheRecordAndCanWithdrawIt)
{
    start();
    model->showConsent(true);
    EXPECT_TRUE(disclosure->isReview());
    EXPECT_FALSE(disclosure->isGranted()); // nothing on record: it asks
    disclosure->agree();
    EXPECT_EQ(fake.accessibility.prompts, 0);

    model->showConsent(true);
    EXPECT_TRUE(disclosure->isGranted());
    EXPECT_FALSE(disclosure->agreement().isEmpty());
    disclosure->withdraw();
    EXPECT_FALSE(consent.record());
    EXPECT_FALSE(model->hasConsent());
}

TEST_F(ConsentTest, ClosingTheWindowDeclinesAndChangesNothing)
{
    consent.grant();
    make();
    model->showConsent(true);
    window()->close();
    EXPECT_TRUE(model->hasConsent());
    EXPECT_TRUE(consent.isCurrent());
}

TEST_F(ConsentTest, ASecondWindowReplacesTheFirst)
{
    start();
    const QPointer<QWindow> first = window();
    model->showConsent(true);
    EXPECT_FALSE(first && first->isVisible());
    EXPECT_TRUE(disclosure->isReview());
    disclosure->agree();
    EXPECT_TRUE(model->hasConsent());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(first);
    EXPECT_FALSE(disclosure);
}
