#include "ui/Temperature.h"

#include "ui/Figures.h"

namespace zpsg::ui {
namespace {

constexpr double kFahrenheitPerKelvin = 1.8;
constexpr double kFahrenheitAtZeroCelsius = 32.0;

TemperatureUnit &chosen() {
    static TemperatureUnit unit = TemperatureUnit::Celsius;
    return unit;
}

} // namespace

void setTemperatureUnit(TemperatureUnit unit) { chosen() = unit; }

TemperatureUnit temperatureUnit() { return chosen(); }

double degrees(double celsius) {
    return chosen() == TemperatureUnit::Celsius ? celsius
                                                : celsius * kFahrenheitPerKelvin + kFahrenheitAtZeroCelsius;
}

double celsiusOf(double degrees) {
    return chosen() == TemperatureUnit::Celsius ? degrees
                                                : (degrees - kFahrenheitAtZeroCelsius) / kFahrenheitPerKelvin;
}

double degreesApart(double kelvin) {
    return chosen() == TemperatureUnit::Celsius ? kelvin : kelvin * kFahrenheitPerKelvin;
}

QString degreeUnit() {
    return chosen() == TemperatureUnit::Celsius ? QStringLiteral("\u00B0C") : QStringLiteral("\u00B0F");
}

QString degreesText(double celsius) {
    return formatFigure(degrees(celsius), 0) + QChar(QChar::Nbsp) + degreeUnit();
}

} // namespace zpsg::ui
