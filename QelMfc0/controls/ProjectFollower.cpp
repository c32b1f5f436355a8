#include "QelMfc0/controls/ProjectFollower.h"

#include <QelSubscriber/SubscriptionManager.h>

#include <QLoggingCategory>
#include <QObject>

#include <exception>

namespace {
Q_LOGGING_CATEGORY(lcFollower, "qel.project")
} // namespace

void ProjectFollower::Follow(QObject* owner, std::function<void()> closing,
                             std::function<void()> changed)
{
    if (!owner)
        return;
    auto handler = [closing = std::move(closing), changed = std::move(changed)](int code, const QString&) {
        try {
            if (code == SubscriptionCodes::PROJECT_CLOSING && closing)
                closing();
            else if (code == SubscriptionCodes::PROJECT_CHANGED && changed)
                changed();
        } catch (const std::exception& error) {
            qCWarning(lcFollower) << "following the project switch failed:" << error.what();
        } catch (...) {
            qCWarning(lcFollower) << "following the project switch failed";
        }
    };
    SubscriptionManager::Instance().Subscribe(GeneralSubKeys::PROJECT, std::move(handler), owner);
}
