#pragma once
// Publish/subscribe of the suite: notifications posted by code and key, from any thread, are
// delivered later on the user-interface thread to every subscriber of the key.

#include "QelSubscriber/QelSubscriberExport.h"
#include <QHash>
#include <mutex>
#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

class QObject;

// Keys shared by the whole suite.
namespace GeneralSubKeys {
inline const QString COLOR_CONTROL = QStringLiteral("COLOR_CONTROL"); // colour mode changed (code 7)
// The open project is replaced or closed: code PROJECT_CLOSING while the old project is still
// current, then PROJECT_CHANGED once the new one (or none) is. Both are sent, not posted.
inline const QString PROJECT = QStringLiteral("PROJECT");
}

// Notification codes carried with a key.
namespace SubscriptionCodes {
constexpr int COLOR_MODE_CHANGED = 7;
constexpr int PROJECT_CLOSING = 8;
constexpr int PROJECT_CHANGED = 9;
}

class SubscriptionManager;

// Base for objects that want to hear of notifications; unsubscribes itself when destroyed.
class QELSUBSCRIBER_EXPORT Subscriber {
public:
    Subscriber() = default;
    Subscriber(const Subscriber&) = delete;
    Subscriber& operator=(const Subscriber&) = delete;
    virtual ~Subscriber();

    // Called on the user-interface thread for each delivered notification of a subscribed key.
    virtual void OnNotify(int code, const QString& key) = 0;

    // Subscribes to `key`; returns false when already subscribed to it.
    bool Subscribe(const QString& key);
    // Stops hearing of `key`.
    void Unsubscribe(const QString& key);

private:
    QHash<QString, int> m_ids;
};

class QELSUBSCRIBER_EXPORT SubscriptionManager {
public:
    using Handler = std::function<void(int code, const QString& key)>;

    // The process's one manager.
    static SubscriptionManager& Instance();

    // Calls `handler` for every notification of `key` until Unsubscribe(id) or until `context`
    // (optional) is destroyed. Returns the subscription's id (> 0).
    int Subscribe(const QString& key, Handler handler, QObject* context = nullptr);
    // Ends a subscription; false when the id is unknown.
    bool Unsubscribe(int id);
    // Number of live subscriptions of `key`.
    int SubscriberCount(const QString& key) const;

    // Posts a notification from any thread; it is delivered later, on the thread of the
    // application object, to the subscribers of `key` at delivery time. Without an application
    // object the notification is dropped.
    void NotifyPost(int code, const QString& key);
    // Delivers at once on the calling thread (user-interface thread only).
    void NotifySend(int code, const QString& key);

private:
    SubscriptionManager() = default;

    struct Entry {
        int id;
        QString key;
        Handler handler;
        QPointer<QObject> context;
        bool hasContext;
    };
    bool IsLive(int id) const;

    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
    int m_nextId = 1;
};
