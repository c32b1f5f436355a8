#include "QelSubscriber/SubscriptionManager.h"

#include <QCoreApplication>
#include <QThread>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace {
const QString kKey = QStringLiteral("TEST_KEY");

struct Recorder : Subscriber {
    std::vector<int> codes;
    void OnNotify(int code, const QString&) override { codes.push_back(code); }
};
} // namespace

TEST(SubscriptionManager, PostedNotificationArrivesLaterOnTheUiThreadForTheKeyOnly)
{
    auto& manager = SubscriptionManager::Instance();
    QThread* deliveredOn = nullptr;
    int received = 0;
    const int id = manager.Subscribe(kKey, [&](int code, const QString& key) {
        deliveredOn = QThread::currentThread();
        EXPECT_EQ(key, kKey);
        received += code;
    });
    Recorder other;
    other.Subscribe(QStringLiteral("OTHER"));

    std::unique_ptr<QThread> worker(QThread::create([&] { manager.NotifyPost(7, kKey); }));
    worker->start();
    worker->wait();
    EXPECT_EQ(received, 0) << "a posted notification is never delivered synchronously";
    QTRY_COMPARE(received, 7);
    EXPECT_EQ(deliveredOn, QCoreApplication::instance()->thread());
    EXPECT_TRUE(other.codes.empty());
    EXPECT_TRUE(manager.Unsubscribe(id));
    EXPECT_FALSE(manager.Unsubscribe(id));
}

TEST(SubscriptionManager, EndsWithTheContextOrTheSubscriberAndToleratesUnsubscribingDuringDelivery)
{
    auto& manager = SubscriptionManager::Instance();
    auto context = std::make_unique<QObject>();
    int viaContext = 0;
    manager.Subscribe(kKey, [&](int, const QString&) { ++viaContext; }, context.get());
    auto recorder = std::make_unique<Recorder>();
    EXPECT_TRUE(recorder->Subscribe(kKey));
    EXPECT_FALSE(recorder->Subscribe(kKey));
    EXPECT_EQ(manager.SubscriberCount(kKey), 2);

    // The first handler removes the second before it runs: the second must not be called.
    int second = 0;
    int secondId = 0;
    const int firstId = manager.Subscribe(kKey, [&](int, const QString&) { manager.Unsubscribe(secondId); });
    secondId = manager.Subscribe(kKey, [&](int, const QString&) { ++second; });
    manager.NotifySend(1, kKey);
    EXPECT_EQ(second, 0);
    EXPECT_EQ(viaContext, 1);
    EXPECT_EQ(recorder->codes, std::vector<int>{ 1 });
    manager.Unsubscribe(firstId);

    context.reset();
    recorder.reset();
    EXPECT_EQ(manager.SubscriberCount(kKey), 0);
    manager.NotifySend(2, kKey); // nothing left to call, nothing dangling
    EXPECT_EQ(viaContext, 1);
}
