#include "power/ModelTable.h"

#include "power/Logging.h"

#include <span>

namespace zpsg::power {
namespace {

const ModelRow *find(std::span<const ModelRow> rows, const QString &normalised) {
    for (const auto &row : rows) {
        const QLatin1String code(row.code.data(), static_cast<int>(row.code.size()));
        qCDebug(lcPower) << "model" << code;
        qCDebug(lcPower) << "modelName" << normalised;
        if (normalised.contains(code)) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

QString normalisedModel(const QString &modelText) { return QString(modelText).remove(QLatin1Char('-')); }

const ModelRow *findCurveModel(const QString &normalised) { return find(kCurveModels, normalised); }

const ModelRow *findEnhancedModel(const QString &normalised) { return find(kEnhancedModels, normalised); }

} // namespace zpsg::power
