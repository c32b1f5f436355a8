#include "QelSubscriber/SubscriptionManager.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QObject>
#include <QThread>
#include <algorithm>

namespace {
Q_LOGGING_CATEGORY(lcSubscriber, "qel.subscriber")
}

Subscriber::~Subscriber()
{
    for (int id : std::as_const(m_ids))
        SubscriptionManager::Instance().Unsubscribe(id);
}

bool Subscriber::Subscribe(const QString& key)
{
    if (m_ids.contains(key))
        return false;
    m_ids.insert(key, SubscriptionManager::Instance().Subscribe(key, [this](int code, const QString& k) { OnNotify(code, k); }));
    return true;
}

void Subscriber::Unsubscribe(const QString& key)
{
    const auto it = m_ids.find(key);
    if (it == m_ids.end())
        return;
    SubscriptionManager::Instance().Unsubscribe(it.value());
    m_ids.erase(it);
}

SubscriptionManager& SubscriptionManager::Instance()
{
    static SubscriptionManager manager;
    return manager;
}

int SubscriptionManager::Subscribe(const QString& key, Handler handler, QObject* context)
{
    std::unique_lock lock(m_mutex);
    const int id = m_nextId++;
    m_entries.push_back({ id, key, std::move(handler), QPointer<QObject>(context), context != nullptr });
    lock.unlock();
    if (context)
        QObject::connect(context, &QObject::destroyed, [this, id] { Unsubscribe(id); });
    return id;
}

bool SubscriptionManager::Unsubscribe(int id)
{
    std::unique_lock lock(m_mutex);
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [id](const Entry& e) { return e.id == id; });
    if (it == m_entries.end())
        return false;
    m_entries.erase(it);
    return true;
}

int SubscriptionManager::SubscriberCount(const QString& key) const
{
    std::unique_lock lock(m_mutex);
    return int(std::count_if(m_entries.begin(), m_entries.end(),
                             [&](const Entry& e) { return e.key == key && (!e.hasContext || e.context); }));
}

bool SubscriptionManager::IsLive(int id) const
{
    std::unique_lock lock(m_mutex);
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [id](const Entry& e) { return e.id == id && (!e.hasContext || e.context); });
}

void SubscriptionManager::NotifyPost(int code, const QString& key)
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!app) {
        qCWarning(lcSubscriber) << "notification" << code << key << "dropped: no application object";
        return;
    }
    QMetaObject::invokeMethod(app, [this, code, key] { NotifySend(code, key); }, Qt::QueuedConnection);
}

void SubscriptionManager::NotifySend(int code, const QString& key)
{
    // Copy the handlers first: a handler may subscribe or unsubscribe while it runs.
    std::vector<std::pair<int, Handler>> targets;
    {
        std::unique_lock lock(m_mutex);
        for (const Entry& e : m_entries)
            if (e.key == key && (!e.hasContext || e.context))
                targets.emplace_back(e.id, e.handler);
    }
    for (const auto& [id, handler] : targets) {
        if (IsLive(id) && handler)
            handler(code, key);
    }
}
