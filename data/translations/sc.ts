<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>打开 ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>退出</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>无法记录读数</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>磁盘已无法写入。每分钟数据会先保留，一有空间便立即写入。</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>关闭到托盘</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>输出功率</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>输入电压</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>风扇</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%2 W 的 %1 %</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>高温</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>停转</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>接近限值</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>超出范围</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>输出功率，最近 5 分钟 (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>峰值 %1 W   ·   平均 %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>最近 5 分钟没有读数</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>现在</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 分</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>已连接</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>未检测到电源</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>请检查其与主板之间的 USB 连接线。插好后会自动识别。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>无权访问电源</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>电源已连接，但您的用户账户无权打开。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>您的用户账户无权打开。请在终端中运行一次此命令：</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>电源无响应</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>灰色数值为最后一次的读数。程序会继续尝试读取。</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>复制</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>已复制</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>演示 – 模拟电源</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>静音</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>性能</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>零转速</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>仪表盘</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>报警</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1，%2 个持续中</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>%1 电压超出范围</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>应高于 %1 V 且低于 %2 V；请检查电源线材并降低负载。</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>风扇已停转</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>转速仅 %1 rpm 或更低；请检查风扇是否被异物卡住。</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>电源过热</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>已达上限 %1；请确认风扇进风和排风通畅。</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>自 %1 起</translation>
    </message>
    <message id="ALARM_LASTED_SECONDS">
        <source></source>
        <translation>%1 秒</translation>
    </message>
    <message id="ALARM_LASTED_MINUTES">
        <source></source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message id="ALARM_LASTED_HOURS">
        <source></source>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message id="ALARM_LASTED_DAYS">
        <source></source>
        <translation>%1 天 %2 小时</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>报警</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>另有 %1 个</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>查看报警</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>报警</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>最近 60 秒内若有超过 9 秒的读数超出范围，即触发报警。</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>电压警告</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>任一路电压超出 ±6 % 范围时。</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>风扇警告</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>风扇不应停转却停转时。</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>温度警告</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>电源达到 %1 时。</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>记录</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>记录 (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>清除记录</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>清除已结束的报警</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>没有报警</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>凡超出范围的项目，都会连同发生时间和持续时间列在这里。</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>报警</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>数值</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>开始</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>结束</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>时长</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>持续中</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>报警结束前，程序已先退出。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>效率</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>输入 %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>电源从市电取用的功率，由输出功率和效率推算得出。</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>输出功率和效率</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 分钟</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>效率</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>今日输出功率 (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>平均 %1 W   ·   峰值 %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>运行 %1 小时 %2 分</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>每根柱形为 4 分钟的平均值，峰值为最高的柱形。所有柱形都属于今天：06:00 前的时段位于右端，排在午夜之后。</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>今天尚无记录。电源连接期间，每 4 分钟新增一根柱形。</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   没有记录</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>%1 V 时各输出功率的效率</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>%2 W 时最佳 %1 %</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>取自该型号的曲线；电源本身不测量输入。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>曲线符合该型号所获 80 PLUS 认证的标准。输入功率和热损耗由此推算得出；电源本身不测量输入。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>输出 %2 时效率 %1，输入功率 %3，热损耗 %4</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>此型号的电源没有效率曲线。</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>额定 %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>输入功率</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>热损耗</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>历史记录</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>历史记录</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>更早</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>更晚</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>跨度</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>周</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>月</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>年</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>区间</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>从</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>到</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>区间统计</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>柱形显示内容</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>用电量</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>平均功率</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>每日用电量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>每日平均功率 (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>每月用电量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>每月平均功率 (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>按日显示会过细：每根柱形代表一个月</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>点击柱形，可在下方查看当日每分钟数据；点击月份柱形则打开该月。方向键可逐根移动，Enter 打开，Page Up 和 Page Down 切换到更早或更晚的时段。</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>最高日</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>最低日</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>总体平均</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>效率 %1</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>历时 %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1（至今）</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>已记录</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>已记录 %1</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>没有记录</translation>
    </message>
    <message id="HISTORY_MINUTES">
        <source></source>
        <translation>%1 分</translation>
    </message>
    <message id="HISTORY_HOURS">
        <source></source>
        <translation>%1 小时</translation>
    </message>
    <message id="HISTORY_HOURS_MINUTES">
        <source></source>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message id="HISTORY_DAY">
        <source></source>
        <translation>当日每分钟数据</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>全天</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>滚动滚轮缩放，拖动平移，双击恢复全天。按键：+ 和 − 缩放，方向键平移，Shift 加方向键逐分钟移动，Home 显示全天。</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>一次可显示一项或两项，各有自己的坐标轴。</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>功率</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>电压</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>电流</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>风扇</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>效率</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>各路电压与标称电压的偏差</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>显示范围内的最小、平均和最大值</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>最小</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>平均</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>最大</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>正在加载…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>尚无记录。
电源连接期间，每分钟都会记录，今天的柱形会在几分钟内显示在这里。</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>此区间没有记录。</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>这一天没有每分钟数据。</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>所选日期的每分钟数据会显示在这里。</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>导出</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>导出</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>每日</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>每分钟</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>选择文件…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>导出历史记录</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>正在导出，%1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>已写入 %1 行</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>已写入 %1 行；有 %2 条数据无法读取</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>已取消导出；未写入任何文件</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>未能导出：%1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>灯光</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>灯光</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>更改会立即显示在灯环上。点击“保存”可保留到下次启动。</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>电源未连接。更改会先保留，重新连接后发送。</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>没有可设置的灯光</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>未连接带有发光风扇的电源。连接后，其灯环面板会立即显示在这里。</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>灯环显示内容</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>灯环上的灯珠</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>点击灯珠即可选中，按住 Shift 可加选或减选一颗。拖动可选择多颗。按键：方向键移动，加 Shift 扩大选择，空格键加选或减选，Ctrl+A 全选，Esc 全不选。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>点击或拖动以选择灯珠。未选择时应用于全部。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>全选</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>全不选</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>前侧</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>中间</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>前侧灯环</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>中间灯环</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>全部灯珠</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1/%2 颗灯珠</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>整个灯环</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>%1的颜色</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>颜色由温度决定</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>此灯效使用自带颜色</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>单色灯环</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>12 颗灯珠的灯环</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>前侧和中间灯环</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>灯光</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>开启或关闭灯光；其他设置保持不变</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>默认</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>将灯环恢复为出厂设置</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>保留当前设置</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>模式</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>颜色</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>多色</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>单色</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>上一个</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>下一个</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>返回</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>色相和饱和度</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>左右键调整色相，上下键调整饱和度，加 Shift 微调</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>#RRGGBB 颜色值</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>颜色值无效：请用 #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>预设颜色</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>灯环当前显示负载，而非灯效。</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>灯环当前显示温度，而非灯效。</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>灯光会随电脑播放的声音变化。</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>未找到音频输出。有输出设备之前，灯光会暂停。</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>在灯环上显示</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>灯效</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>负载</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>人人都能分辨的配色</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>仪表和报警不使用色盲人士易混淆的颜色组合</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>灯环报警</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>报警持续期间，无论设置何种灯效，灯环都会发出警示</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>锁定或睡眠时关灯</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>电脑锁定或睡眠期间灯光熄灭，之后恢复</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>灯光模式</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>颜色模式</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>亮度</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>静态</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>光谱</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>闪烁</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>彩色闪烁</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>流光</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGB 光谱</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>涟漪</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>闪烁</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>脉冲</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>波浪</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>全亮</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>极速</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>快速</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>标准</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>慢速</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>红色</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>橙色</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>黄色</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>青柠色</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>绿色</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>薄荷绿</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>青色</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>天蓝色</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>蓝色</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>紫色</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>品红色</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>玫红色</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>白色</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>流光</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>RGB 光谱</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>涟漪</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>闪烁</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>脉冲</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>波浪</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>全亮</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>复制颜色</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>电影</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>游戏</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>派对</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>手机音乐 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>手机音乐 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>手机音乐 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>温控</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>十字</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>心跳</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>扫描</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>漩涡</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>雨滴</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>堆叠</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>风扇</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>风扇</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>电源未连接。现在选择的模式会先保留，重新连接后应用。</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>转速</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>全速的 %1 %</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>模式</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1（已选）</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>由风扇曲线设定</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>选择风扇模式</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>目标转速</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>全速的百分比，30 至 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>设置转速</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>最近 1 小时</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>最近 1 小时尚无读数。</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>风扇 %1 至 %2 rpm，温度 %3 至 %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>风扇曲线</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>以 %1 % 运转</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ 已暂停：过热</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ 已暂停：无读数</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>等待电源连接</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>曲线依据</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>负载</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>添加控制点 (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>移除所选控制点 (Delete)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>拖动控制点调整；双击添加。按键：方向键移动所选控制点，Page Up 和 Page Down 选择其他控制点，Insert 添加，Delete 移除。</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>控制点 %1/%2：%3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>减速所需降幅</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>最短调整间隔</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>程序退出、无法读取温度或温度超过 %1 时，会恢复为电源自身的模式。</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>此电源会自行控制风扇；支持自定义转速的型号会在此显示风扇曲线。</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>连接支持自定义转速的电源后，其风扇曲线会立即显示在这里。</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>电脑即将关机</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>电脑即将重启</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>电脑即将进入睡眠</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>立即关机</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>立即重启</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>立即睡眠</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>此操作由远程命令发起。程序将被关闭：请保存您的工作，或取消。</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>此操作由远程命令发起。程序会保持打开，电脑唤醒后继续运行。</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>剩余秒数：%1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>用电</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>电脑</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>用电量和电费</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>今天</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>本月</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>今年</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>全年预估</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>满一天后</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>输入 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>输出 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>效率未知：输入按输出计</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>本次运行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>上次运行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>自首次启动以来</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>设置电价…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>电价…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>输入：输出加上电源的损耗，按其型号的效率曲线计算。</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>处理器和显卡</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>处理器</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>显卡</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>未读取电脑自身的传感器</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>这里可显示处理器和显卡的温度、功率、电压和电流，具体取决于此电脑配备的传感器。</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>读取</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>等待首次读数</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>此电脑的传感器未提供读数</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>请输入数字，例如 %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>范围为 0 至 %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>最多 %1 位小数</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 小时</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>电价</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>每 kWh 价格</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>未设置</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>货币</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>特定时段的其他价格</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>此价格适用于所有时段。如果您的电价方案在夜间或周末更便宜，请在此添加时段。</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>自上而下，采用第一条符合的时段；均不符合时，采用上方的价格。</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>添加时段</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>最多 %1 个时段</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>时段 %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>星期</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>从</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>到</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>价格</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>于次日结束</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>上移</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>移除</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>一周电价</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>请输入 %1 至 %2 的时间</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>请至少选择一天</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>请输入三个字母的代码，例如 %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W，负载 %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G 仍在托盘中运行</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>点击其图标可再次打开窗口。如需退出程序，请选择菜单中的“退出”。</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>使用模拟电源体验</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>退出演示</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>监控您的数字电源、保存历史记录，并控制其风扇和灯光。</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>复制反馈用信息</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>型号、额定输出、连接方式和版本。不包含序列号和您的文件夹。</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>此电源</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>型号</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>额定输出</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>序列号</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>连接方式</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB，主通道</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB，原始通道</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>模拟</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>本程序</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>数据文件夹</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>构建</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>系统</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>许可证</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>所含的库及其许可证</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>键盘</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>转到页面</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>下一个控件；加 Shift 为上一个</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>移动或更改所选项目</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>按下所选按钮、切换开关</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>关闭弹出窗口、全不选</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>关于</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>最小化（此桌面没有托盘）</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>已保存到 %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>设置未保存：%1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>未导入任何设置：%1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>这不是设置文件，或来自更新的版本</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>已应用文件中的设置。</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>设置仅在程序退出前有效：无法写入磁盘。</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>所有设置已恢复为初始状态。</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>正在监听端口 %1。已连接的程序：%2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>端口 %1 已被其他程序占用。</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>关闭：未指定服务器。</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>已连接到 %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>正在连接 %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>无法连接 %1（%2）。将自动重试。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>正在读取…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>未设置</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>每 kWh %1</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>当前每 kWh %1。时段：%2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>处理器 %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>显卡 %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>每秒读取一次</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>系统未加载传感器驱动程序。请用“sudo modprobe coretemp”(Intel) 或“sudo modprobe k10temp”(AMD) 加载；NVIDIA 显卡需要 NVIDIA 的驱动程序。</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>请安装并启动 HWiNFO，并在其设置中开启“Shared Memory Support”。</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>设置</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>分类</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>常规</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>用电</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>报警</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>远程控制</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>电脑传感器</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>数据</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>语言和显示</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>语言</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>用于窗口、托盘菜单和所有消息。</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>与系统相同</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>温度单位</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>用于所有显示温度的地方。</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>文字大小</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>“大”会充分利用窗口空间。</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>标准</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>大</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>启动和托盘</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>随系统启动</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>登录时启动，历史记录不会遗漏任何时段。</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>启动时隐藏到托盘</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>登录时不打开窗口；点击托盘图标即可显示。</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>托盘图标显示</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>无需打开窗口即可看到的数值。</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>负载</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>无</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>需先开启“%1”。</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>电费</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>电价</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>每度电 (kWh) 的价格。所有电费均由此计算。</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>更改…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>用电量计算方式</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>按市电端计</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>计入电源从插座取用的电量：输出，加上以热量散失的部分。您的电表也是这样计算的。</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>中断期间不计入</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>程序关闭或电源未连接期间，不累计也不推算。</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>警告条件</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>报警记录</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>持续中的报警，以及此前报警的时间。</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>控制套接字</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>让此电脑上的音乐播放器、智能家居和脚本设置灯光。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>允许其他电脑</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>其他电脑上的程序也可设置灯光。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>没有密码保护：届时网络中的任何人都能设置灯光。</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>让智能家居通过您网络中的 MQTT 服务器读取并控制电源。</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>主机</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>服务器的名称或地址。留空则不使用 MQTT。</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>请先输入主机，再设置其他项目。</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>需要主机。</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>端口</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>通常为 1883，使用 CA 文件时为 8883。</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>用户</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>如果服务器不要求则留空。</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>密码</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>没有 CA 文件时，会在网络上未加密传输。</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>显示</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>隐藏</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>CA 文件</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>将连接加密：用于验证服务器的证书颁发机构证书 (PEM)。</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>选择…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>选择 CA 文件</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>证书 (*.pem *.crt *.cer);;所有文件 (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>主题</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>发布前缀</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>应答所发往的主题开头。</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>账户 ID</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>应答所发往的主题结尾。可留空。</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>订阅前缀</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>命令来源的主题开头。</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>产品 ID</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>命令来源的主题结尾。可留空。</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>应用</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>放弃</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>尚未应用</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>尚未应用。按 Enter 应用，按 Esc 放弃。</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Home Assistant 自动发现</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>电源会自动出现在 Home Assistant 中。</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>只填名称或地址，不含空格和斜杠；端口另有输入栏。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>端口为 1 至 %1 的整数。</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>不能留空。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>此处不能使用空格、# 和 +。</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>开头不能为 /。</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation>此处不能使用 # 和 +。</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>没有此文件。</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>无法读取此文件。</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>指标</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>让此电脑上的 Prometheus 和其他监控程序收集读数。</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>提供指标</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>只有此电脑上的程序可以读取。</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>如果此端口已被占用，请选择其他端口。</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>关机和睡眠</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>远程关机</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>可通过 MQTT 命令让此电脑关机、重启或睡眠。您有一分钟可以取消。</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>届时任何能向您的服务器发送的人都能执行此操作。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>此电脑的传感器</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>读取电脑自身的传感器</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>除电源的读数外，另显示处理器和显卡。</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>保存位置</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>数据文件夹</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>存放设置、历史记录和报警记录。</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>打开文件夹</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>所有设置</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>导出设置</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>导出到文件：作为备份，或供另一台电脑使用。</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>导出…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>导入设置</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>用此类文件中的设置替换所有设置。</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>导入…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>ZPS G 设置</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>重置所有设置</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>一切恢复为首次启动时的状态。您的记录会保留。</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>重置…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>重置全部？</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>是，重置</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>否</translation>
    </message>
    <message id="FAN_RPM">
        <source></source>
        <translation>rpm</translation>
    </message>
    <message id="FAN_TARGET_RPM">
        <source></source>
        <translation>RPM</translation>
    </message>
    <message id="NAV_UPDATE">
        <source></source>
        <translation>%1，有新版本</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>ZPS G %1 已发布</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>“关于”页面列出更新内容和下载位置。尚未下载任何内容。</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>版本 %1 已发布</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>当前使用的是版本 %1。</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>打开下载页面</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>在浏览器中打开：%1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>请输入以 https:// 开头且不含用户名的地址。</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>与 %1 的连接不安全，因此未进行查询。</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1 在此地址未提供最新版本的信息。</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 没有响应。</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>正在检查…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>版本 %1 已发布。可从“关于”页面获取。</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>您使用的已是最新版本 %1。</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>更新</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>ZPS G 的新版本</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>仅发出通知，不会自动下载或安装任何内容。</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>有新版本时通知</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>每天向下面的地址查询一次。仅发送当前的版本号。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>地址</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>发布最新版本信息的位置，以 https:// 开头。留空则不查询。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>手动检查</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>查询一次，开关关闭时也可以。</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>立即检查</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>需要地址。</translation>
    </message>
</context>
</TS>
