// The load of a believable day in front of a PC: idle, work, play, standby.
#pragma once

namespace zpsg::simulator {

/// The load in watts at this second of the day (0 to 86399, wrapped), for a supply of `ratedWatts`. A pure
/// function: the same second of the same day of the year gives the same load, so that sums over a recorded
/// day can be checked by an independent program. Between about 3 and 75 % of the rating.
double scriptedLoad(double secondOfDay, double ratedWatts, unsigned dayOfYear = 1);

/// The word for what the PC does then: "standby", "idle", "work" or "game".
const char *scriptedActivity(double secondOfDay);

} // namespace zpsg::simulator
