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
        <translation>Check the cable from the supply to the USB header on the mainboard. It is found by itself once it is plugged in.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>No access to the power supply</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>The supply is connected, but your user account may not open its device node (hidraw).</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>The supply is connected, but your user account may not open its device node (hidraw). Run this command once in a terminal:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>The supply does not answer</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>Values in grey are the last that were read. The program keeps asking.</translation>
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
        <translation>It has reached its limit of %1 °C; check that air can get to its fan and out again.</translation>
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
        <translation>When the supply reaches 60 °C.</translation>
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
        <translation>Fan %1 to %2 rpm, temperature %3 to %4 °C</translation>
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
        <translation>Back to the supply's own mode when the program ends, the temperature can't be read, or it gets hotter than 60 °C.</translation>
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
</context>
</TS>
