// The control socket: other programs on this machine ask for the lighting's state and change it.
#pragma once

#include "remote/SocketCommands.h"

#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <QVariantMap>

#include <chrono>
#include <memory>
#include <vector>

class QTcpSocket;

namespace zpsg::remote {

/// What a client may cost; whoever goes beyond is disconnected.
struct SocketLimits {
    int clients = 16;
    int pieceBytes = 65'536;      ///< without a separator
    qint64 unsentBytes = 262'144; ///< waiting for a client that does not read
    /// When all places are taken, a client that said nothing understandable for so long gives way to a new
    /// one.
    std::chrono::milliseconds patience{30'000};
};

/// Listens for as long as it lives. All in the thread it was made in; nothing in it waits. Signals are raised
/// one command after the other, in the order a client sent them. An outgoing message that is sent while a
/// command's signal is handled goes to the client that sent the command; any other goes to the client that
/// connected last, and to nobody once that has left.
class SocketHelper : public QObject {
    Q_OBJECT

public:
    static constexpr quint16 kPort = 5488;

    /// Without success, e.g. because the port is taken, there is a debug line and no client ever. 0: any
    /// port.
    explicit SocketHelper(quint16 port = kPort, const SocketLimits &limits = {}, QObject *parent = nullptr);
    ~SocketHelper() override;

    /// 0 when it does not listen.
    [[nodiscard]] quint16 port() const { return server_.serverPort(); }
    /// Whether clients on other machines are let in from now on. They are not unless this is called; those
    /// that are there have to go when they are not any more.
    void setAllowRemote(bool allow);
    /// Stands at the end of the greeting when the supply has more than a single-colour ring. Plain text
    /// without the separator '&'.
    void setLightingState(const QString &text) { lightingState_ = text; }
    [[nodiscard]] int clientCount() const { return static_cast<int>(clients_.size()); }

signals:
    // No command raises socketHelperSendData or the two "_Single_Duo".
    void socketHelperSendData(const QByteArray &data);
    void socketHelperToMain(const QByteArray &query);
    void socketHelperToMain_RGBA(const QVariantMap &data);
    void socketHelperToMain_Music(const QVariantMap &data);
    void socketHelperToMain_LightOnClick(const QByteArray &query);
    void socketHelperToMain_LightModel(const QVariantMap &data);
    void socketHelperToControlPlus_setupLight(const QVariantMap &data);
    void socketHelperToControlPlus();
    void socketHelperToControlPlus_setLightOn(const QVariantMap &data);
    void socketHelperToControlPlus_setDefault(const QVariantMap &data);
    void socketHelperToControlPlus_setBtnAndColor(const QVariantMap &data);
    void socketHelperToControlPlus_setBtnAndBright(const QVariantMap &data);
    void socketHelperToControlPlus_Music(const QVariantMap &data);
    void socketHelperToControlPlus_Fan_Sync(const QVariantMap &data);
    void socketHelperToControlPlus_startHelloCV();
    void socketHelperToControlPlus_stopHelloCV();
    void socketHelperToControl_Duo();
    void socketHelperToControl_setupLight_Duo(const QVariantMap &data);
    void socketHelperToControl_setLightOn_Duo(const QVariantMap &data);
    void socketHelperToControl_setDefault_Duo(const QVariantMap &data);
    void socketHelperToControl_setBtnAndColor_Duo(const QVariantMap &data);
    void socketHelperToControl_setBtnAndBright_Duo(const QVariantMap &data);
    void socketHelperToControl_setBtnAndColor_Single_Duo(const QVariantMap &data);
    void socketHelperToControl_setBtnAndBright_Single_Duo(const QVariantMap &data);
    void socketHelperToControl_ModelSelect_Duo(const QVariantMap &data);
    void socketHelperToControl_ModelMusic_Duo(const QVariantMap &data);

public slots:
    void newConnection();
    /// Of the socket that raised the signal; gives it up.
    void disconnected();
    void readyRead();
    /// Sends the single-colour ring's state: seven fields with single blanks between them, the first of which
    /// is left out. Anything shorter is not sent.
    void initMsgFromMain(const QByteArray &state);
    /// Sends the 12-LED ring's JSON text.
    void messageFrom_controlPlus(const QString &text);
    /// 0: no supply is there, 1: one is. Anything else changes nothing, here and below.
    void init_RGB_State_FromMain(int present);
    /// 0: single-colour ring, 1: 12-LED ring.
    void init_RGB_State_FromMain_12LED(int kind);
    /// Both of the above; `kind` is a series code from 0 to 2.
    void messageFromMainGetRGB_State(bool present, int kind);
    /// Sends the Duo set's JSON text.
    void init_Duo(const QString &text);

private slots:
    void readOn();

private:
    struct Client;
    using ClientPointer = std::shared_ptr<Client>;

    [[nodiscard]] QByteArray greeting() const;
    [[nodiscard]] ClientPointer find(const QObject *socket) const;
    bool makeRoom();
    void welcome(QTcpSocket *socket);
    void forget(const ClientPointer &client);
    void drain(const ClientPointer &client);
    bool feed(Client &client);
    void handle(const ClientPointer &client, const QByteArray &piece);
    void raise(const CommandRow &row, const QVariantMap &data);
    void sendText(const QString &text);
    void send(const QByteArray &bytes);
    void write(Client &client, const QByteArray &bytes) const;

    SocketLimits limits_;
    QTcpServer server_{this}; ///< owns the clients' sockets
    QTimer readOn_{this};     ///< a timer, not a posted event: the window's events get their turn before it
    std::vector<ClientPointer> clients_;
    std::weak_ptr<Client> newest_;
    ClientPointer asking_; ///< whose command is handled now
    QString lightingState_;
    LightKind kind_ = LightKind::Single;
    bool present_ = false;
    bool allowRemote_ = false;
};

} // namespace zpsg::remote
