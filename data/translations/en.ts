<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>Open ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>Exit</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>Readings can't be recorded</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>The disk takes no more. The minutes are kept and written as soon as there is room.</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>Minimise</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>Close to the tray</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>Output power</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>Mains input</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>Temperature</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>Fan</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%1 % of %2 W</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>Hot</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>Stopped</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>Near limit</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>Out of range</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>Output power, last 5 minutes (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>Peak %1 W   ·   Average %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>No readings in the last 5 minutes</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>now</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 min</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>Connected</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>No power supply found</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <extracomment>Below MAIN_STR_LINK_NO_DEVICE, beside a button; as short as it can be.</extracomment>
        <translation>Check its USB cable to the mainboard. It is found once plugged in.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>No access to the power supply</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <extracomment>Below MAIN_STR_LINK_NO_PERMISSION, beside a button.</extracomment>
        <translation>The supply is there, but your user account may not open it.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <extracomment>Below MAIN_STR_LINK_NO_PERMISSION, beside a button; a shell command follows on the next line.</extracomment>
        <translation>Your user account may not open it. Run this once in a terminal:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>The supply does not answer</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <extracomment>Below MAIN_STR_LINK_SILENT.</extracomment>
        <translation>Grey values are the last that were read. The program keeps asking.</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>Copy</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>Copied</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>Demo – simulated supply</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>Silent</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>Performance</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>Zero Fan</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>Dashboard</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>Alarms</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1, %2 active</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>%1 rail out of range</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>It must stay above %1 V and below %2 V; check the supply’s cables and reduce the load.</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>Fan has stopped</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>It turns at %1 rpm or less; check that nothing blocks it.</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>Supply is too hot</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>It has reached its limit of %1; check that air can get to its fan and out again.</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>since %1</translation>
    </message>
    <message id="ALARM_LASTED_SECONDS">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="ALARM_LASTED_MINUTES">
        <source></source>
        <translation>%1 min %2 s</translation>
    </message>
    <message id="ALARM_LASTED_HOURS">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="ALARM_LASTED_DAYS">
        <source></source>
        <translation>%1 d %2 h</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>Alarm</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>and %1 more</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>Show alarms</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>Alarms</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>An alarm begins when a reading is out of range in more than nine of the last sixty seconds.</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>Voltage warning</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>When a rail leaves its range of ±6 %.</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>Fan warning</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>When the fan stands still and should not.</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>Temperature warning</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>When the supply reaches %1.</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>Log</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>Log (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>Clear log</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>Forget the alarms that have ended</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>No alarms</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>Everything that leaves its range will be listed here, with its time and how long it lasted.</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>Alarm</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>Value</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>Began</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>Ended</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>Lasted</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>holds</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>The program ended before the alarm did.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>Efficiency</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>%1 W in</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>What the supply takes from the wall, worked out from its output and the efficiency.</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>Output power and efficiency</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 minutes</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>Efficiency</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>Output power today (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>Average %1 W   ·   Peak %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>On for %1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>Each bar is the average of four minutes, and the peak is the highest bar. All bars are of today: the hours before 06:00 stand at the right end, after midnight.</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>Nothing recorded today yet. A bar is added every four minutes while the supply is connected.</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   nothing recorded</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>Efficiency at %1 V by output power</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>Best %1 % at %2 W</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>From the model's curve; the supply itself does not measure its input.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>The curve holds the limits of the 80 PLUS certification that this model has. Input and heat loss are worked out from it; the supply itself does not measure its input.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>%1 at %2 of output, %3 from the wall, %4 of heat</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>There is no efficiency curve for this supply's model.</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>rated %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>From the wall</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>Heat loss</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>Forward</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>Span</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>Week</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>Month</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>Year</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>Range</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>From</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>To</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>Sums of the range</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>What the bars show</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>Energy</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>Mean power</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>Energy by day (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>Mean power by day (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>Energy by month (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>Mean power by month (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>Days would be too thin to see: each bar is a month</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>Click a bar to see its minutes below; a bar of a month opens that month. Arrow keys go from bar to bar, Enter opens one, Page Up and Page Down go back and forward.</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>Highest day</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>Lowest day</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>All-time mean</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>at %1 efficiency</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>in %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1, so far</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>Recorded</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>%1 recorded</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>Nothing recorded</translation>
    </message>
    <message id="HISTORY_MINUTES">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="HISTORY_HOURS">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="HISTORY_HOURS_MINUTES">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="HISTORY_DAY">
        <source></source>
        <translation>Minutes of the day</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>Whole day</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>Turn the wheel to zoom, drag to move, double-click to see the whole day again. Keys: + and − zoom, arrows move, Shift and arrows go from minute to minute, Home shows the whole day.</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>One or two can be shown at a time, each with an axis of its own.</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>Power</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>Rails</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>Currents</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>Temperature</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>Fan</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>Efficiency</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>Rails by how far they are off their nominal voltage</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>Least, mean and greatest value in view</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>mean</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>max</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>Loading …</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>Nothing recorded yet.
While the supply is connected every minute is recorded, and today’s bar appears here within minutes.</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>Nothing was recorded in this range.</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>There are no minutes of this day.</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>The minutes of the chosen day will appear here.</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>Export</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>Export</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>Days</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>Minutes</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>Choose file …</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>Export the history</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>Comma-separated values (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>Exporting, %1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>%1 lines written</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>%1 lines written; %2 rows could not be read</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>Export cancelled; no file was written</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>Not exported: %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>Lighting</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>Lighting</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>Changes show on the ring at once. Save keeps them for the next start.</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>The supply is not connected. Changes are kept and sent when it is back.</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>No lights to set</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>No supply with a lit fan is connected. As soon as one is, the panel of its ring appears here.</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>What the ring shows</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>Lights of the ring</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>Click a light to choose it, with Shift to choose one more or one less. Drag to choose several. Keys: arrows move, with Shift they choose more, Space adds or takes away, Ctrl+A chooses all, Esc none.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>Click or drag to choose lights. None chosen means all.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>All</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>Front</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>Middle</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>Front ring</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>Middle ring</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>all lights</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1 of %2 lights</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>the whole ring</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>Colour of %1</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>The temperature sets the colour</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>The effect brings its own colours</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>Single-colour ring</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>Ring of 12 lights</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>Front and middle ring</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>Lights</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>Switches the lights on and off; everything else stays as it is set</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>Off</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>Default</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>Sets the ring to what it was when it was new</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>Keeps what is set now</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>Color</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>Color</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>Single</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>Previous</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>Hue and saturation</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>Left and right turn the hue, up and down change the saturation, with Shift in small steps</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>Colour as #RRGGBB</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>Not a colour: use #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>Ready colours</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>The ring shows the load instead of the effect.</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>The ring shows the temperature instead of the effect.</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>The lights follow what the PC plays.</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>No sound output was found. The lights rest until there is one.</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>Show on the ring</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>Effect</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>Load</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>Temperature</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>Colours that everybody can tell apart</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>Gauges and alarms avoid pairs of colours that colour-blind people confuse</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>Alarm on the ring</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>While an alarm holds, the ring warns whatever effect is set</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>Off while locked or asleep</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>The lights go out while the PC is locked or asleep, and come back after it</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>Light mode</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>Color mode</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>Brightness</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>Static</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>Spectrum</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>Blink</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>Colour blink</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>Flow</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGB spectrum</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>Ripple</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>Blink</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>Pulse</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>Wave</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>Full lighted</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>Extreme</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>Fast</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>Slow</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>Yellow</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>Lime</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>Green</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>Mint</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>Cyan</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>Azure</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>Blue</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>Violet</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>Magenta</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>Rose</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>White</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>Flow</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>RGB spectrum</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>Ripple</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>Blink</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>Pulse</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>Wave</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>Full lighted</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>Copy colour</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>Movie</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>Gaming</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>Party</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>Mobile music 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>Mobile music 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>Mobile music 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>Thermal</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>Cross</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>Heartbeat</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>Scan</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>Swirl</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>Raindrop</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>Stack</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>Fan</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>Fan</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>The supply is not connected. A mode that is chosen now is kept and set when it is back.</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>%1 % of full speed</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (chosen)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>set by the fan curve</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>Choose the fan's mode</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>Target Fan Speed</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>Percent of the full speed, 30 to 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>Set speed</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>Last hour</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>No readings in the last hour yet.</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>Fan %1 to %2 rpm, temperature %3 to %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>Fan curve</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>Off</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>Driving at %1 %</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ Paused: too hot</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ Paused: no reading</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>Waits for the supply</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>What the curve goes by</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>Load</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>Add a point (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>Remove the selected point (Delete)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>Drag a point; double-click to add one. Keys: arrows move the selected point, Page Up and Page Down select another, Insert adds, Delete removes.</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>Point %1 of %2: %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>Slow down after a fall of</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>Change at most every</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>Back to the supply's own mode when the program ends, the temperature can't be read, or it gets hotter than %1.</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>This supply looks after its fan by itself; models that take a custom speed have a fan curve here.</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>As soon as a supply that takes a custom speed is connected, its fan curve is here.</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>The PC is about to shut down</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>The PC is about to restart</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>The PC is about to sleep</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>Shut down now</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>Restart now</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>Sleep now</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>A remote command asked for it. Programs will be closed: save your work, or cancel.</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>A remote command asked for it. Programs stay open and go on when the PC wakes up.</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>Seconds left: %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>sec</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <extracomment>Segment of the switch at the dashboard's foot, beside "Efficiency": the view of kWh and cost</extracomment>
        <translation>Energy</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <extracomment>Segment of the switch at the dashboard's foot: the PC's own processor and graphics card</extracomment>
        <translation>PC</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <extracomment>Caption of the card of kWh and cost</extracomment>
        <translation>Energy and cost</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <extracomment>Head of a column of cost and kWh</extracomment>
        <translation>Today</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <extracomment>Head of a column of cost and kWh</extracomment>
        <translation>This month</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <extracomment>Head of a column of cost and kWh</extracomment>
        <translation>This year</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <extracomment>Head of a column: cost and kWh of a whole year at the pace so far</extracomment>
        <translation>Projected year</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <extracomment>Below an en dash in the column "Projected year": the figure will be there after one day</extracomment>
        <translation>after one day</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <extracomment>%1 is an amount with its unit, as 4.21 kWh: what was taken from the mains</extracomment>
        <translation>%1 from the wall</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <extracomment>%1 is an amount with its unit, as 3.98 kWh: what the supply gave to the PC</extracomment>
        <translation>%1 output</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <extracomment>At the right of the caption; the kWh taken from the mains are shown as equal to those given to the PC</extracomment>
        <translation>Efficiency not known: the wall counts as the output</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <extracomment>A duration: %1 hours, %2 minutes (0 to 59)</extracomment>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <extracomment>Before time, kWh and cost since the program was started; small, at the card's foot</extracomment>
        <translation>This run</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <extracomment>Before time, kWh and cost of the program's run before this one; small, at the card's foot</extracomment>
        <translation>Last run</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <extracomment>Before time, kWh and cost of all runs; small, at the card's foot</extracomment>
        <translation>Since the first start</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <extracomment>Button: opens the dialog for what a kWh costs</extracomment>
        <translation>Set electricity rate…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <extracomment>The same button once a rate is set</extracomment>
        <translation>Rate…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <extracomment>Tool tip of the card of kWh and cost</extracomment>
        <translation>From the wall: the output and what is lost in the supply, by the efficiency curve of its model.</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <extracomment>Caption of the card of the PC's own sensors</extracomment>
        <translation>Processor and graphics card</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <extracomment>Before the model's name, in the PC view</extracomment>
        <translation>Processor</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <extracomment>Before the model's name, in the PC view</extracomment>
        <translation>Graphics card</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <extracomment>In the PC view, while reading is switched off</extracomment>
        <translation>The PC's own sensors are not read</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <extracomment>Below MAIN_STR_PC_OFF</extracomment>
        <translation>Temperature, power, voltage and current of processor and graphics card can stand here, as far as this PC has sensors for them.</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <extracomment>Button below MAIN_STR_PC_OFF: start reading the PC's own sensors</extracomment>
        <translation>Read them</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <extracomment>In the PC view, just after reading was switched on</extracomment>
        <translation>Waiting for the first reading</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <extracomment>In the PC view; below it stands what to install</extracomment>
        <translation>No sensor of this PC gives anything</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <extracomment>Beside a price that is none; %1 is an example in the user's number format, as 0.305</extracomment>
        <translation>Enter a number, as %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <extracomment>Beside a price out of its range; %1 is the greatest</extracomment>
        <translation>From 0 to %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <extracomment>Beside a price with too many decimal places; %1 is 5</extracomment>
        <translation>At most %1 decimals</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <extracomment>A long duration: %1 hours, 100 or more</extracomment>
        <translation>%1 h</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <extracomment>Title of the dialog</extracomment>
        <translation>Electricity rate</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <extracomment>Before the entry of the price, in the dialog</extracomment>
        <translation>Price of a kWh</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <extracomment>In the empty entry of the price, in grey; short</extracomment>
        <translation>not set</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <extracomment>Tool tip and name of the list of currency codes</extracomment>
        <translation>Currency</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <extracomment>Caption above the list of periods with another price</extracomment>
        <translation>Other prices at certain times</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <extracomment>Below RATE_STR_PERIODS while there are none</extracomment>
        <translation>The price holds at all hours. If your contract has cheaper nights or weekends, add them here.</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <extracomment>Below RATE_STR_PERIODS: the rows of periods are looked at from the top down</extracomment>
        <translation>The first row that matches wins. When none does, the price above holds.</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <extracomment>Button: one more row in the list of periods</extracomment>
        <translation>Add a period</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <extracomment>Tool tip of the button RATE_STR_ADD while it is disabled; %1 is 12</extracomment>
        <translation>No more than %1 periods</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <extracomment>For screen readers: the row of number %1 in the list of periods</extracomment>
        <translation>Period %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <extracomment>Head of a column of seven small buttons, one for each day of the week</extracomment>
        <translation>Days</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <extracomment>Head of a narrow column of times of day: when a period begins</extracomment>
        <translation>From</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <extracomment>Head of a narrow column of times of day: when a period ends</extracomment>
        <translation>To</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <extracomment>Head of a column of prices of a kWh</extracomment>
        <translation>Price</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <extracomment>Tool tip of a small "+1" behind the time at which a period ends</extracomment>
        <translation>Ends on the next day</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <extracomment>Tool tip of a small button with an arrow: the row counts before the one above it then</extracomment>
        <translation>Move up</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <extracomment>Tool tip of a small button with a cross: removes the row</extracomment>
        <translation>Remove</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <extracomment>Caption of a picture of the week, a strip for each day, coloured by price</extracomment>
        <translation>What holds when</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <extracomment>Button of the dialog</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <extracomment>Button of the dialog</extracomment>
        <translation>Save</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <extracomment>Below a row with a time that is none; as 00:00 and 24:00</extracomment>
        <translation>Enter a time from %1 to %2</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <extracomment>Below a row without a day of the week</extracomment>
        <translation>Choose a day at least</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <extracomment>Beside the currency; %1 is a code, as EUR</extracomment>
        <translation>Enter a code of three letters, as %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <extracomment>Tip of the tray icon, one line of several; 127 characters are all that a tip has. %1 is the output power, %2 its share of the rated power.</extracomment>
        <translation>%1 W, load %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <extracomment>Title of a message, once, when the window is closed to the tray for the first time.</extracomment>
        <translation>ZPS G goes on in the tray</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <extracomment>Text of that message. Exit is the menu's entry TRAYICON_EXIT: use the same word.</extracomment>
        <translation>Click its icon to open the window again. Exit in its menu ends the program.</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <extracomment>Button on the dashboard while no supply is found; starts the demo.</extracomment>
        <translation>Look around with a simulated supply</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <extracomment>Button beside MAIN_STR_DEMO.</extracomment>
        <translation>Leave the demo</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <extracomment>Head of the about page, below the name and the version: what the program is.</extracomment>
        <translation>Watches your digital power supply, keeps its history, and sets its fan and its lights.</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <extracomment>Button on the about page: puts model and versions into the clipboard.</extracomment>
        <translation>Copy details for a report</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <extracomment>Tip of that button.</extracomment>
        <translation>Model, rating, connection and versions. The serial number and your folders are left out.</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <extracomment>Caption of a card on the about page.</extracomment>
        <translation>This supply</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <extracomment>Name in a list on the about page; the model of the supply follows.</extracomment>
        <translation>Model</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <extracomment>The same; watts follow.</extracomment>
        <translation>Rated output</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <extracomment>The same.</extracomment>
        <translation>Serial number</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <extracomment>The same; one of the ABOUT_STR_LINK_ texts follows.</extracomment>
        <translation>Connection</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <extracomment>Behind ABOUT_STR_LINK: no supply is connected.</extracomment>
        <translation>none</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <extracomment>Behind ABOUT_STR_LINK: the usual one of the two ways in which supplies talk.</extracomment>
        <translation>USB, main path</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <extracomment>Behind ABOUT_STR_LINK: the other one.</extracomment>
        <translation>USB, raw path</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <extracomment>Behind ABOUT_STR_LINK: the demo's supply.</extracomment>
        <translation>simulated</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <extracomment>Caption of a card on the about page.</extracomment>
        <translation>This program</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <extracomment>Name in a list on the about page; a path follows.</extracomment>
        <translation>Data folder</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <extracomment>The same; the version of Qt follows.</extracomment>
        <translation>Build</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <extracomment>The same; the operating system's name follows.</extracomment>
        <translation>System</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <extracomment>The same; MIT follows.</extracomment>
        <translation>Licence</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <extracomment>Caption above a list of libraries on the about page.</extracomment>
        <translation>Libraries in it, and their licences</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <extracomment>Caption of a card on the about page.</extracomment>
        <translation>Keyboard</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <extracomment>What Ctrl+1 … Ctrl+7 do.</extracomment>
        <translation>Go to a page</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <extracomment>What the Tab key does.</extracomment>
        <translation>Next control; with Shift the one before</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <extracomment>What the arrow keys do: move a point, a slider, a selection.</extracomment>
        <translation>Move or change what is marked</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <extracomment>What the space bar does.</extracomment>
        <translation>Press the marked button, throw the switch</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <extracomment>What the Esc key does.</extracomment>
        <translation>Close what has popped up, choose nothing</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <extracomment>Navigation rail, at most 11 characters</extracomment>
        <translation>Settings</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <extracomment>Navigation rail, at most 11 characters: the page on the program itself</extracomment>
        <translation>About</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <extracomment>Tip of the close button where the desktop has no tray</extracomment>
        <translation>Minimise (this desktop has no tray)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <extracomment>Result of exporting the settings; %1 is a path</extracomment>
        <translation>Saved to %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <extracomment>%1 is the reason</extracomment>
        <translation>The settings were not saved: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <extracomment>Result of importing settings from a file; %1 is the reason, beginning in lower case</extracomment>
        <translation>Nothing was taken over: %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <extracomment>A reason, after a colon</extracomment>
        <translation>this is no file of settings, or one of a newer version</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <extracomment>Result of importing settings</extracomment>
        <translation>The settings of the file hold from now on.</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <extracomment>Result of importing or resetting settings</extracomment>
        <translation>The settings hold until the program ends: they could not be written to the disk.</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <extracomment>Result of resetting the settings</extracomment>
        <translation>All settings are as they were at first.</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <extracomment>State of the control socket</extracomment>
        <translation>Listening on port %1. Programs connected: %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <extracomment>Why nothing listens</extracomment>
        <translation>Port %1 is used by another program.</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <extracomment>State of MQTT</extracomment>
        <translation>Off: no broker is named.</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <extracomment>%1 is a host name</extracomment>
        <translation>Connected to %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <extracomment>%1 is a host name</extracomment>
        <translation>Connecting to %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <extracomment>%1 is a host name, %2 an English error name</extracomment>
        <translation>%1 can't be reached (%2). It is tried again by itself.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <extracomment>The PC's own sensors are not read</extracomment>
        <translation>Off</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <extracomment>The PC's own sensors: no values yet</extracomment>
        <translation>Reading…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <extracomment>The electricity rate</extracomment>
        <translation>Not set</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <extracomment>%1 is money</extracomment>
        <translation>%1 for a kWh</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <extracomment>%1 is money, %2 the number of periods of the week that have a rate of their own</extracomment>
        <translation>%1 for a kWh now. Periods: %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <extracomment>%1 is a temperature</extracomment>
        <translation>Processor %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <extracomment>%1 is a temperature</extracomment>
        <translation>Graphics card %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <extracomment>The PC's own sensors</extracomment>
        <translation>Read once a second</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <extracomment>What to do when no sensor can be read on Linux; keep the commands</extracomment>
        <translation>The system has no sensor driver loaded. Load it with “sudo modprobe coretemp” (Intel) or “sudo modprobe k10temp” (AMD); NVIDIA cards need NVIDIA's driver.</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <extracomment>What to do when no sensor can be read on Windows; keep the names</extracomment>
        <translation>Install and start HWiNFO, and switch on “Shared Memory Support” in its settings.</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <extracomment>title of the settings page</extracomment>
        <translation>Settings</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <extracomment>for screen readers: the list of sections at the left of the settings page</extracomment>
        <translation>Sections</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>General</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>Energy</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>Alarms</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>Remote control</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>PC sensors</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <extracomment>settings page: section in the list at the left, short</extracomment>
        <translation>Data</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <extracomment>title of a card with the rows language, temperature unit, text size</extracomment>
        <translation>Language and display</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Language</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <extracomment>what the language setting is for</extracomment>
        <translation>For the window, the tray menu and all messages.</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <extracomment>first entry of the list of languages</extracomment>
        <translation>Same as the system</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <extracomment>name of a row; choices °C and °F</extracomment>
        <translation>Temperature unit</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <extracomment>what the unit is for</extracomment>
        <translation>Used wherever a temperature is shown.</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Text size</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <extracomment>what the text size is for</extracomment>
        <translation>Large makes use of all the room in the window.</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <extracomment>choice for the text size; short</extracomment>
        <translation>Usual</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <extracomment>choice for the text size; short</extracomment>
        <translation>Large</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <extracomment>title of a card with the rows start with the system, start hidden, on the tray icon</extracomment>
        <translation>Start and tray</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Start with the system</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>Starts when you sign in, so that no hour is missing from the history.</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Start hidden in the tray</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>No window opens when you sign in; a click on the tray icon shows it.</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <extracomment>name of a row: which figure the icon in the tray shows</extracomment>
        <translation>On the tray icon</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <extracomment>what the choice is for</extracomment>
        <translation>The figure you can read without opening the window.</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <extracomment>choice: the tray icon shows the load in percent; short</extracomment>
        <translation>Load</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <extracomment>choice: the tray icon shows the temperature; short</extracomment>
        <translation>Temperature</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <extracomment>choice: the tray icon shows no figure; short</extracomment>
        <translation>Nothing</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <extracomment>why a row is disabled; %1 is the name of another row with a switch</extracomment>
        <translation>Needs “%1” to be on.</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <extracomment>title of a card</extracomment>
        <translation>Cost</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Electricity rate</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <extracomment>what the rate is for; the rate itself stands below</extracomment>
        <translation>What you pay for a kilowatt-hour. All costs follow from it.</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <extracomment>button that opens the rates</extracomment>
        <translation>Change …</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <extracomment>title of a card that only explains</extracomment>
        <translation>How energy is counted</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <extracomment>name of a row without a control</extracomment>
        <translation>At the wall</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <extracomment>explains "At the wall"</extracomment>
        <translation>What the supply draws from the socket counts: its output, and what it loses as heat. Your meter does the same.</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <extracomment>name of a row without a control</extracomment>
        <translation>Gaps never count</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <extracomment>explains "Gaps never count"</extracomment>
        <translation>While the program is closed or the supply is not connected, nothing is added and nothing is guessed.</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <extracomment>title of a card with the three warning switches; each goes on with "When ..."</extracomment>
        <translation>Warn me</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <extracomment>name of a row; its button leads to the alarms page</extracomment>
        <translation>Alarm log</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <extracomment>what is found there</extracomment>
        <translation>Which alarms hold now, and when there were some before.</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <extracomment>title of a card</extracomment>
        <translation>Control socket</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <extracomment>what the control socket is for</extracomment>
        <translation>Lets music players, home automation and scripts on this PC set the lights.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Allow other computers</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>Programs on other computers may set the lights as well.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <extracomment>warning about the switch "Allow other computers"; "them": the lights</extracomment>
        <translation>There is no password: anybody on your network can then set them.</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <extracomment>title of a card</extracomment>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <extracomment>what MQTT is for</extracomment>
        <translation>Lets home automation read the supply and control it, through a broker on your network.</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <extracomment>name of a row: the computer that the MQTT broker runs on</extracomment>
        <translation>Host</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <extracomment>about the entry "Host"</extracomment>
        <translation>Name or address of the broker. Empty: no MQTT.</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <extracomment>below the entry "Host" while it is empty</extracomment>
        <translation>Enter a host to set up the rest.</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <extracomment>why a row is disabled: the entry "Host" is empty</extracomment>
        <translation>Needs a host.</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <extracomment>name of a row: a network port</extracomment>
        <translation>Port</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <extracomment>about the port of the broker</extracomment>
        <translation>Usually 1883, or 8883 with a CA file.</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <extracomment>name of a row: user name at the broker</extracomment>
        <translation>User</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <extracomment>about the user name</extracomment>
        <translation>Empty if the broker asks for none.</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <extracomment>name of a row: password at the broker</extracomment>
        <translation>Password</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <extracomment>about the password</extracomment>
        <translation>Without a CA file it crosses the network unencrypted.</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <extracomment>button beside the password: shows it in clear text</extracomment>
        <translation>Show</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <extracomment>button beside the password: shows it as dots again</extracomment>
        <translation>Hide</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <extracomment>name of a row: the file with the certificate of the authority (CA)</extracomment>
        <translation>CA file</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <extracomment>about the CA file</extracomment>
        <translation>Encrypts the connection: the certificate of the authority that the broker is checked against (PEM).</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <extracomment>button beside the CA file: opens a file dialog</extracomment>
        <translation>Choose …</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <extracomment>title of a file dialog</extracomment>
        <translation>Choose the CA file</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <extracomment>file types of a file dialog; keep what is in brackets, and the ;;</extracomment>
        <translation>Certificates (*.pem *.crt *.cer);;All files (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <extracomment>small caption above the MQTT topic settings</extracomment>
        <translation>Topics</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <extracomment>name of a row: beginning of the MQTT topic that the program writes to</extracomment>
        <translation>Publish prefix</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <extracomment>about the publish prefix</extracomment>
        <translation>Start of the topic that answers go to.</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Account ID</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <extracomment>about the account ID</extracomment>
        <translation>End of the topic that answers go to. May be empty.</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <extracomment>name of a row: beginning of the MQTT topic that the program reads from</extracomment>
        <translation>Subscribe prefix</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <extracomment>about the subscribe prefix</extracomment>
        <translation>Start of the topic that commands come from.</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Product ID</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <extracomment>about the product ID</extracomment>
        <translation>End of the topic that commands come from. May be empty.</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <extracomment>button: the MQTT settings as entered hold from now on</extracomment>
        <translation>Apply</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <extracomment>button: the edits of the MQTT settings are taken back</extracomment>
        <translation>Discard</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <extracomment>beside the buttons Apply and Discard while there are edits; also a tooltip in the list of sections</extracomment>
        <translation>Not applied yet</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <extracomment>below an entry that was edited; Enter and Escape are keys</extracomment>
        <translation>Not applied yet. Enter applies, Escape discards.</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Home Assistant discovery</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>The supply appears in Home Assistant by itself.</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <extracomment>the host that was entered is no host</extracomment>
        <translation>Only the name or address, without blanks and slashes; the port has its own entry.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <extracomment>the port that was entered is none; %1: 65535</extracomment>
        <translation>A port is a whole number from 1 to %1.</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <extracomment>a prefix that was entered is wrong</extracomment>
        <translation>It must not be empty.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <extracomment>a prefix that was entered is wrong</extracomment>
        <translation>Blanks, # and + are not possible here.</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <extracomment>a prefix that was entered is wrong</extracomment>
        <translation>It must not begin with /.</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <extracomment>an account or product ID that was entered is wrong</extracomment>
        <translation># and + are not possible here.</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <extracomment>the CA file that was entered is not there</extracomment>
        <translation>There is no such file.</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <extracomment>the CA file that was entered may not be read</extracomment>
        <translation>This file can’t be read.</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <extracomment>title of a card: figures for monitoring programs</extracomment>
        <translation>Metrics</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <extracomment>what the metrics are for</extracomment>
        <translation>Lets Prometheus and other monitoring programs on this PC collect the readings.</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Offer metrics</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <extracomment>about the switch; "them": the metrics</extracomment>
        <translation>Only programs on this PC can read them.</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <extracomment>about the port of the metrics</extracomment>
        <translation>Choose another one if this one is taken.</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <extracomment>title of a card with the row remote shutdown</extracomment>
        <translation>Power</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Remote shutdown</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>A command over MQTT may shut this PC down, restart it or put it to sleep. You have a minute to cancel.</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <extracomment>warning about the switch "Remote shutdown"</extracomment>
        <translation>Anybody who may send to your broker can then do it.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <extracomment>title of a card</extracomment>
        <translation>Sensors of this PC</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Read the PC’s own sensors</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <extracomment>what the switch does</extracomment>
        <translation>Shows processor and graphics card beside the supply’s readings.</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <extracomment>title of a card with the data folder</extracomment>
        <translation>Where it is kept</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <extracomment>name of a row; the path stands below</extracomment>
        <translation>Data folder</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <extracomment>what is in the data folder</extracomment>
        <translation>Holds the settings, the recorded history and the alarm log.</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <extracomment>button: shows the data folder in the file manager</extracomment>
        <translation>Open folder</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <extracomment>title of a card with export, import and reset</extracomment>
        <translation>All settings</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <extracomment>name of a row and title of a file dialog</extracomment>
        <translation>Export settings</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <extracomment>about the export</extracomment>
        <translation>Into a file: as a backup, or for another PC.</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <extracomment>button: opens a file dialog</extracomment>
        <translation>Export …</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <extracomment>name of a row and title of a file dialog</extracomment>
        <translation>Import settings</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <extracomment>about the import</extracomment>
        <translation>Replaces all settings by those of such a file.</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <extracomment>button: opens a file dialog</extracomment>
        <translation>Import …</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <extracomment>the file type of an export of the settings, in a file dialog</extracomment>
        <translation>ZPS G settings</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <extracomment>name of a row</extracomment>
        <translation>Reset all settings</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <extracomment>what the reset does</extracomment>
        <translation>Everything as it was at the first start. Your records are kept.</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <extracomment>button: asks whether to reset</extracomment>
        <translation>Reset …</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <extracomment>question in place of the button; the answers are "Yes, reset" and "No"</extracomment>
        <translation>Reset all of it?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <extracomment>answer to "Reset all of it?"</extracomment>
        <translation>Yes, reset</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <extracomment>answer to "Reset all of it?"</extracomment>
        <translation>No</translation>
    </message>
    <message id="FAN_RPM">
        <source></source>
        <extracomment>The unit of the fan's speed: revolutions a minute, after or below the figure</extracomment>
        <translation>rpm</translation>
    </message>
    <message id="FAN_TARGET_RPM">
        <source></source>
        <extracomment>The same unit in the pop-up of the custom speed, after a large figure</extracomment>
        <translation>RPM</translation>
    </message>
    <message id="NAV_UPDATE">
        <source></source>
        <extracomment>spoken for a page of the navigation with a dot at its sign; %1 is the page's name</extracomment>
        <translation>%1, a newer version is available</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <extracomment>title of a message of the tray; %1 is a version such as 1.2.0</extracomment>
        <translation>ZPS G %1 is available</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <extracomment>below the title; a click on the message opens the About page</extracomment>
        <translation>The “About” page says what is new and leads to the download. Nothing has been downloaded.</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <extracomment>headline on the About page; %1 is a version such as 1.2.0</extracomment>
        <translation>Version %1 is available</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <extracomment>below that headline</extracomment>
        <translation>You are using version %1.</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <extracomment>a button; opens a web page in the browser</extracomment>
        <translation>Open the download page</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <extracomment>tip of that button; %1 is the address of the page</extracomment>
        <translation>Opens in the browser: %1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <extracomment>below the entry of an address</extracomment>
        <translation>Write an address that begins with https://, without a user name in it.</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <extracomment>how a check for a newer version ended; %1 is a computer's name</extracomment>
        <translation>The connection to %1 is not safe, so nothing was asked.</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <extracomment>how a check for a newer version ended; %1 is a computer's name</extracomment>
        <translation>%1 does not say at this address which version is the newest.</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <extracomment>how a check for a newer version ended; %1 is a computer's name</extracomment>
        <translation>%1 does not answer.</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <extracomment>while a check for a newer version goes on</extracomment>
        <translation>Checking…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <extracomment>how a check for a newer version ended; "About" is the page's name</extracomment>
        <translation>Version %1 is available. The “About” page leads to it.</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <extracomment>how a check for a newer version ended</extracomment>
        <translation>You have the newest version, %1.</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <extracomment>a section of the settings</extracomment>
        <translation>Updates</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <extracomment>title of a card</extracomment>
        <translation>New versions of ZPS G</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <extracomment>below that title</extracomment>
        <translation>You are only told of them: nothing is downloaded or installed by itself.</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <extracomment>name of a row with a switch</extracomment>
        <translation>Tell me about new versions</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <extracomment>about the switch</extracomment>
        <translation>Asks the address below once a day. All it sends is the number of this version.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <extracomment>name of a row with an entry</extracomment>
        <translation>Address</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <extracomment>about the entry</extracomment>
        <translation>Where the newest version is announced; begins with https://. Empty: nothing is asked.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <extracomment>name of a row with the button "Check now"</extracomment>
        <translation>Check by hand</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <extracomment>about that button</extracomment>
        <translation>Asks the address once, also while the switch is off.</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <extracomment>a button: look for a newer version</extracomment>
        <translation>Check now</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <extracomment>why a row is disabled: the entry "Address" is empty</extracomment>
        <translation>Needs an address.</translation>
    </message>
</context>
</TS>
