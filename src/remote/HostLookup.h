// Looks a host name up without ever holding the event loop, or the end of the program.
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace zpsg::remote {

/// Qt's own asynchronous look-up waits for its threads when the program ends, for as long as a name server
/// that doesn't answer makes them. A look-up of this one is left to itself instead.
class HostLookup : public QObject {
    Q_OBJECT
public:
    /// Addresses as text, best first; none when there are none. Called in a thread of its own, may block, and
    /// must not touch anything that ends with the program.
    using Resolver = std::function<QStringList(const QString &name)>;

    /// Without a resolver, the system's.
    explicit HostLookup(Resolver resolver = {}, QObject *parent = nullptr);
    ~HostLookup() override;

    /// One finished() follows, later. Asking for a name that is still being looked up starts no second
    /// thread.
    void start(const QString &name);

signals:
    void finished(const QStringList &addresses);

private slots:
    void finish(const QString &name, const QStringList &addresses);

private:
    struct Job;
    static QStringList systemResolver(const QString &name);
    void abandon();

    Resolver resolver_;
    QString name_; // being looked up; empty for none
    std::shared_ptr<Job> job_;
};

} // namespace zpsg::remote
