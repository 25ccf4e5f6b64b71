#include "app/DaySettings.h"

#include "app/Settings.h"

namespace zpsg::app {

power::DayStorage dayStorage(Settings &settings) {
    return {
        [&settings] {
            return power::StoredDay{settings.list(Setting::DayWatts), settings.text(Setting::DayDate)};
        },
        [&settings](const QStringList &watts) {
            settings.write({{Setting::DayWatts, watts}});
        },
        [&settings](const power::StoredDay &day) {
            settings.write({{Setting::DayWatts, day.watts}, {Setting::DayDate, day.date}});
        },
    };
}

} // namespace zpsg::app
