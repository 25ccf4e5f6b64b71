#include "curves/CurveTool.h"

#include "curves/CurveSource.h"
#include "power/CurveFile.h"
#include "storage/WholeFile.h"

#include <QDir>
#include <QJsonDocument>

#include <array>

namespace zpsg::curves {
namespace {

/// Larger than any source or curve; a file beyond it was named by mistake.
constexpr qint64 kMostJsonBytes = qint64{1024} * 1024;

constexpr const char *kHelp =
    "usage: zpsg-curve COMMAND ...\n"
    "  make SOURCE.json OUT_DIR          writes a curve file NAME.ini for each curve of a source\n"
    "  decipher FILE.ini [OUT.json]      shows a curve file's numbers, or writes them to a file\n"
    "  encipher FILE.json OUT.ini        makes a curve file of such numbers\n"
    "  --help                            shows this text\n"
    "Exit code: 0 done, 1 failed, 2 wrong use.\n";

bool writeAll(QIODevice &device, const QByteArray &content) {
    return device.write(content) == content.size();
}

std::optional<QJsonObject> readJson(const QString &path, QString &why) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        why = file.errorString();
        return std::nullopt;
    }
    const QByteArray content = file.read(kMostJsonBytes + 1);
    if (content.size() > kMostJsonBytes) {
        why = QStringLiteral("is larger than a curve can be");
        return std::nullopt;
    }
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError) {
        why = QStringLiteral("line %1: %2")
                  .arg(content.left(error.offset).count('\n') + 1)
                  .arg(error.errorString());
        return std::nullopt;
    }
    if (!document.isObject()) {
        why = QStringLiteral("holds no JSON object");
        return std::nullopt;
    }
    return document.object();
}

/// What went wrong with which file; empty when nothing did.
QString problem(const QString &path, const QString &why) {
    return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), why);
}

QString make(const QStringList &paths) {
    QString why;
    const auto document = readJson(paths.at(0), why);
    const auto source = document ? curveSource(*document, why) : std::nullopt;
    if (!source) {
        return problem(paths.at(0), why);
    }
    const QDir folder(paths.at(1));
    if (!folder.mkpath(QStringLiteral("."))) {
        return problem(paths.at(1), QStringLiteral("the folder can't be created"));
    }
    for (auto curve = source->curves.begin(); curve != source->curves.end(); ++curve) {
        const QString path = folder.filePath(curve.key() + QStringLiteral(".ini"));
        if (!power::writeCurveFile(path, curveDocument(*source, curve.value()), why)) {
            return problem(path, why);
        }
    }
    return {};
}

QString decipher(const QStringList &paths, QIODevice &out) {
    QString why;
    const auto document = power::readCurveFile(paths.at(0), why);
    if (!document) {
        return problem(paths.at(0), why);
    }
    const QByteArray text = readableJson(*document);
    if (paths.size() == 1) {
        return writeAll(out, text) ? QString()
                                   : problem(QStringLiteral("standard output"), out.errorString());
    }
    return storage::replaceFile(paths.at(1), text, why) ? QString() : problem(paths.at(1), why);
}

QString encipher(const QStringList &paths) {
    QString why;
    const auto document = readJson(paths.at(0), why);
    if (!document) {
        return problem(paths.at(0), why);
    }
    why = power::curveProblem(*document);
    if (!why.isEmpty()) {
        return problem(paths.at(0), why);
    }
    return power::writeCurveFile(paths.at(1), *document, why) ? QString() : problem(paths.at(1), why);
}

struct Command {
    const char *name;
    int fewest; ///< files to be named
    int most;
};
constexpr std::array kCommands{Command{"make", 2, 2}, Command{"decipher", 1, 2}, Command{"encipher", 2, 2}};

/// What is wrong with the way the program was called; empty when nothing is.
QString misuse(const QStringList &arguments) {
    if (arguments.isEmpty()) {
        return QStringLiteral("no command; --help lists them");
    }
    for (const auto &[name, fewest, most] : kCommands) {
        if (arguments.first() == QLatin1String(name)) {
            const auto files = arguments.size() - 1;
            return files >= fewest && files <= most
                       ? QString()
                       : QStringLiteral("%1: wrong number of files; see --help").arg(arguments.first());
        }
    }
    return QStringLiteral("unknown command \"%1\"; --help lists them").arg(arguments.first());
}

ExitCode fail(QIODevice &err, ExitCode code, QString why) {
    why.replace(QLatin1Char('\n'), QLatin1Char(' '));
    err.write("zpsg-curve: " + why.toLocal8Bit() + "\n");
    return code;
}

} // namespace

ExitCode runTool(const QStringList &arguments, QIODevice &out, QIODevice &err) {
    if (arguments.contains(QStringLiteral("--help"))) {
        return writeAll(out, kHelp) ? Done : Failed;
    }
    const QString wrongUse = misuse(arguments);
    if (!wrongUse.isEmpty()) {
        return fail(err, WrongUse, wrongUse);
    }
    const QString &command = arguments.first();
    const QStringList paths = arguments.mid(1);
    const QString why = command == QLatin1String("make")       ? make(paths)
                        : command == QLatin1String("decipher") ? decipher(paths, out)
                                                               : encipher(paths);
    return why.isEmpty() ? Done : fail(err, Failed, why);
}

} // namespace zpsg::curves
