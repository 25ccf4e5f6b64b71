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
</context>
</TS>
