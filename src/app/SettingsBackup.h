// All settings as one file: to take along to another PC, or to go back to.
#pragma once

#include "app/Settings.h"

#include <QByteArray>
#include <QMap>

#include <optional>

namespace zpsg::app {

/// Whether it is the user's choice, to be taken along and reset. What is not: what was counted and recorded,
/// where the records stand, and what is secret.
[[nodiscard]] bool isPreference(Setting id);

/// The preferences as a JSON document: "format", "version", and "settings" by their keys in the files.
[[nodiscard]] QByteArray exportSettings(const Settings &settings);

/// What such a document says, by setting. Keys that this version does not know are passed over; values
/// outside their range are mended as they are written. Nothing when it is no such document, or of a later
/// version than this program understands.
[[nodiscard]] std::optional<QMap<Setting, QVariant>> readSettings(const QByteArray &document);

/// The preferences as they are at first.
[[nodiscard]] QMap<Setting, QVariant> defaultSettings();

} // namespace zpsg::app
