// Temperatures as the user wants to read them. Everything below the pages, and everything that is recorded or
// told to other programs, is in degrees Celsius.
#pragma once

#include <QString>

namespace zpsg::ui {

enum class TemperatureUnit { Celsius, Fahrenheit };

/// For the whole program, as the default locale is. What is on the screen takes it with the next
/// LanguageChange.
void setTemperatureUnit(TemperatureUnit unit);
[[nodiscard]] TemperatureUnit temperatureUnit();

/// A temperature in the chosen unit, and back.
[[nodiscard]] double degrees(double celsius);
[[nodiscard]] double celsiusOf(double degrees);
/// A distance between two temperatures, in the chosen unit.
[[nodiscard]] double degreesApart(double kelvin);
/// "°C" or "°F".
[[nodiscard]] QString degreeUnit();
/// In whole degrees, with a blank that does not break before the unit.
[[nodiscard]] QString degreesText(double celsius);

} // namespace zpsg::ui
