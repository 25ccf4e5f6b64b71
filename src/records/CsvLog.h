// The logs for other programs: one record file or one day file as comma-separated text.
#pragma once

#include <QString>

#include <string_view>

namespace zpsg::records {

/// First lines of the two logs; the columns of a minute's row and of a day's row, in which energy stands
/// before efficiency.
inline constexpr std::string_view kMinuteLogColumns =
    "DataTime,SN,12V_V,12V_I,5V_V,5V_I,3.3V_V,3.3V_I,Watts,Efficiency,KW_H,Cost,FAN Speed,Temp.,"
    "CPU_V,CPU_I,CPU_W,CPU_T,VGA_V,VGA_I,VGA_W,VGA_T";
inline constexpr std::string_view kDayLogColumns =
    "DataTime,SN,12V_V,12V_I,5V_V,5V_I,3.3V_V,3.3V_I,Watts,KW_H,Efficiency,Cost,FAN Speed,Temp.,"
    "CPU_V,CPU_I,CPU_W,CPU_T,VGA_V,VGA_I,VGA_W,VGA_T,count_time";

/// "/zpsapp.csv" and "/zpsappday.csv" below the data directory.
[[nodiscard]] QString minuteLogPath(const QString &dataDir);
[[nodiscard]] QString dayLogPath(const QString &dataDir);

/// Puts the rows of "Rec<number>.ini" ("RecDay<number>.ini") into the log, which is replaced as a whole: the
/// columns, then a line for each row that can be read, each ended by "\n". False when there is no such file,
/// and the log holds the columns alone; false as well when the log can't be written, and it stays as it was.
[[nodiscard]] bool exportMinuteLog(const QString &dataDir, const QString &number);
[[nodiscard]] bool exportDayLog(const QString &dataDir, const QString &number);

} // namespace zpsg::records
