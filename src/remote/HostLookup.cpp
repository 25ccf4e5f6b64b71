#include "remote/HostLookup.h"

#include "platform/Network.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

namespace zpsg::remote {

/// Shared with the thread, which may outlive the one who asked.
struct HostLookup::Job {
    std::mutex mutex;
    HostLookup *asker = nullptr; // null once nobody waits any more
};

HostLookup::HostLookup(Resolver resolver, QObject *parent)
    : QObject(parent), resolver_(resolver ? std::move(resolver) : Resolver(systemResolver)) {}

HostLookup::~HostLookup() { abandon(); }

void HostLookup::abandon() {
    if (job_) {
        const std::lock_guard lock(job_->mutex);
        job_->asker = nullptr;
    }
    job_.reset();
    name_.clear();
}

void HostLookup::start(const QString &name) {
    if (job_ && name == name_) {
        return;
    }
    abandon();
    name_ = name;
    job_ = std::make_shared<Job>();
    job_->asker = this;
    std::thread([job = job_, resolver = resolver_, name] {
        const QStringList addresses = resolver(name);
        const std::lock_guard lock(job->mutex);
        if (job->asker != nullptr) {
            QMetaObject::invokeMethod(job->asker, "finish", Qt::QueuedConnection, Q_ARG(QString, name),
                                      Q_ARG(QStringList, addresses));
        }
    }).detach();
}

void HostLookup::finish(const QString &name, const QStringList &addresses) {
    if (name == name_) { // not one that was abandoned after it had queued this
        job_.reset();
        name_.clear();
        emit finished(addresses);
    }
}

QStringList HostLookup::systemResolver(const QString &name) {
    QStringList addresses;
    for (const std::string &address : platform::hostAddresses(name.toStdString())) {
        addresses.append(QString::fromStdString(address));
    }
    // A route for IPv6 that leads nowhere is the commoner fault, and would use up the whole attempt.
    std::stable_partition(addresses.begin(), addresses.end(),
                          [](const QString &address) { return !address.contains(QLatin1Char(':')); });
    return addresses;
}

} // namespace zpsg::remote
