// zpsg-socket: talks with the control socket of a running program.
#include "remote/SocketHelper.h"
#include "socket/Conversation.h"
#include "socket/Line.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zpsg-socket"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sends commands to the control socket and prints its greeting "
                       "and what it answers. Without commands they are read from "
                       "standard input, one a line:\n\n") +
        QString::fromUtf8(zpsg::socket::lineHelp()));
    parser.addHelpOption();
    const QCommandLineOption host(QStringLiteral("host"), QStringLiteral("Where the program runs."),
                                  QStringLiteral("name"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Its port."),
                                  QStringLiteral("number"),
                                  QString::number(zpsg::remote::SocketHelper::kPort));
    const QCommandLineOption wait(QStringLiteral("wait"),
                                  QStringLiteral("How long to wait for answers after the last command."),
                                  QStringLiteral("milliseconds"), QStringLiteral("500"));
    parser.addOptions({host, port, wait});
    parser.addPositionalArgument(QStringLiteral("commands"),
                                 QStringLiteral("Each in an argument of its own."),
                                 QStringLiteral("[commands...]"));
    parser.process(application);
    bool isPort = false, isTime = false;
    const quint16 number = parser.value(port).toUShort(&isPort);
    const int patience = parser.value(wait).toInt(&isTime);
    if (!isPort || !isTime || number == 0 || patience < 1) {
        std::fprintf(stderr, "zpsg-socket: --port takes 1 to 65535, --wait a positive number\n");
        return 2;
    }
    zpsg::socket::Conversation conversation(parser.value(host), number, parser.positionalArguments(),
                                            patience);
    return QCoreApplication::exec();
}
