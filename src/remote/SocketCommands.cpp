#include "remote/SocketCommands.h"

#include "remote/JsonKeys.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace zpsg::remote {
namespace {

constexpr std::array<CommandRow, 5> kSingle{{
    {0, nullptr, nullptr, "socketHelperToMain", Carries::StateQuery},
    {1, "Click Light Button", nullptr, "socketHelperToMain_LightOnClick", Carries::StateQuery},
    {2, nullptr, nullptr, "socketHelperToMain_LightModel", Carries::Data},
    {3, nullptr, nullptr, "socketHelperToMain_RGBA", Carries::Data},
    {4, nullptr, nullptr, "socketHelperToMain_Music", Carries::Data},
}};

// There is no 6: music starts at 7 here, unlike with the Duo set.
constexpr std::array<CommandRow, 9> kPlus{{
    {0, "getResult:", nullptr, "socketHelperToControlPlus", Carries::Nothing},
    {1, nullptr, nullptr, "socketHelperToControlPlus_setupLight", Carries::Data},
    {2, nullptr, nullptr, "socketHelperToControlPlus_setLightOn", Carries::Data},
    {3, nullptr, nullptr, "socketHelperToControlPlus_setDefault", Carries::Data},
    {4, nullptr, nullptr, "socketHelperToControlPlus_setBtnAndColor", Carries::Data},
    {5, nullptr, nullptr, "socketHelperToControlPlus_setBtnAndBright", Carries::Data},
    {7, nullptr, "socketHelperToControlPlus_stopHelloCV", "socketHelperToControlPlus_Music", Carries::Data},
    {8, nullptr, "socketHelperToControlPlus_stopHelloCV", "socketHelperToControlPlus_Fan_Sync",
     Carries::Data},
    {9, nullptr, nullptr, "socketHelperToControlPlus_startHelloCV", Carries::Nothing},
}};

constexpr std::array<CommandRow, 8> kDuo{{
    {0, "getResult:", nullptr, "socketHelperToControl_Duo", Carries::Nothing},
    {1, nullptr, nullptr, "socketHelperToControl_setupLight_Duo", Carries::Data},
    {2, nullptr, nullptr, "socketHelperToControl_setLightOn_Duo", Carries::Data},
    {3, nullptr, nullptr, "socketHelperToControl_setDefault_Duo", Carries::Data},
    {4, nullptr, nullptr, "socketHelperToControl_setBtnAndColor_Duo", Carries::Data},
    {5, nullptr, nullptr, "socketHelperToControl_setBtnAndBright_Duo", Carries::Data},
    {6, nullptr, nullptr, "socketHelperToControl_ModelMusic_Duo", Carries::Data},
    {7, nullptr, nullptr, "socketHelperToControl_ModelSelect_Duo", Carries::Data},
}};

template <typename Table>
const CommandRow *find(const Table &table, int command) {
    const auto *row = std::find_if(table.begin(), table.end(),
                                   [command](const CommandRow &each) { return each.command == command; });
    return row == table.end() ? nullptr : row;
}

} // namespace

std::optional<LightKind> lightKind(int code) {
    return code >= 0 && code <= 2 ? std::optional(static_cast<LightKind>(code)) : std::nullopt;
}

SocketPiece decodePiece(const QByteArray &piece) {
    const auto decoded =
        QByteArray::fromBase64Encoding(piece.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) {
        return {};
    }
    if (decoded.decoded.startsWith("07")) {
        return {SocketPiece::Kind::KeepAlive, 0, {}};
    }
    if (hasRepeatedKey(decoded.decoded)) {
        return {};
    }
    const auto document = QJsonDocument::fromJson(decoded.decoded);
    if (!document.isObject()) {
        return {};
    }
    const QJsonObject object = document.object();
    return {SocketPiece::Kind::Command, object.value(QLatin1String("command")).toInt(),
            object.value(QLatin1String("Data")).toObject().toVariantMap()};
}

const CommandRow *findCommand(LightKind kind, int command) {
    switch (kind) {
    case LightKind::Plus:
        return find(kPlus, command);
    case LightKind::Duo:
        return find(kDuo, command);
    case LightKind::Single:
        break;
    }
    return find(kSingle, command);
}

} // namespace zpsg::remote
