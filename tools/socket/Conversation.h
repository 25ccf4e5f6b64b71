// One connection to a control socket, and what is said on it.
#pragma once

#include "remote/SocketFraming.h"

#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <QTcpSocket>
#include <QTimer>

namespace zpsg::socket {

/// Sends the lines it is given, or those of standard input, and prints what comes back until nothing has come
/// for a while after the last of them. Ends the application with its exit status.
class Conversation : public QObject {
    Q_OBJECT

public:
    /// `lines` empty: standard input. `patience` in milliseconds, for the connection and for what comes back.
    Conversation(const QString &host, quint16 port, const QStringList &lines, int patience);

private slots:
    void received();
    void failed();
    void inputReady();
    void end() const;

private:
    void take(const QString &line);
    void expectNoMore();
    void print(const QByteArray &piece);

    QTcpSocket socket_;
    QTimer patience_;
    QSocketNotifier input_;
    QByteArray typed_; ///< the line that has no end yet
    QStringList lines_;
    remote::SocketFraming framing_;
    bool greeted_ = false;
    bool ending_ = false; ///< the last line is sent
};

} // namespace zpsg::socket
