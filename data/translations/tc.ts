<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>開啟 ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>結束</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>無法記錄讀數</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>磁碟已無法寫入。每分鐘資料會先保留，一有空間便立即寫入。</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>關閉至系統匣</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>輸出功率</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>輸入電壓</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>溫度</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>風扇</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%2 W 的 %1 %</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>高溫</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>停轉</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>接近限值</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>超出範圍</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>輸出功率，最近 5 分鐘 (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>峰值 %1 W   ·   平均 %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>最近 5 分鐘沒有讀數</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>現在</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 分</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>已連接</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>未偵測到電源供應器</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>請檢查其與主機板間的 USB 連接線。插上後會自動偵測。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>無法存取電源供應器</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>電源供應器已連接，但您的使用者帳戶無權開啟。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>您的使用者帳戶無權開啟。請在終端機執行一次此指令：</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>電源供應器沒有回應</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>灰色數值為最後一次的讀數。程式會持續嘗試讀取。</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>複製</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>已複製</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>展示 – 模擬電源供應器</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>靜音</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>效能</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>零轉速</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>儀表板</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>警報</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1，%2 個持續中</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>%1 電壓超出範圍</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>應高於 %1 V 且低於 %2 V；請檢查電源供應器的線材並降低負載。</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>風扇已停轉</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>轉速僅 %1 rpm 或更低；請檢查是否有異物卡住風扇。</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>電源供應器過熱</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>已達上限 %1；請確認風扇的進風與排風順暢。</translation>
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
        <translation>%1 小時 %2 分</translation>
    </message>
    <message id="ALARM_LASTED_DAYS">
        <source></source>
        <translation>%1 天 %2 小時</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>警報</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>還有 %1 個</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>顯示警報</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>警報</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>最近 60 秒內若有超過 9 秒的讀數超出範圍，即觸發警報。</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>電壓警告</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>任一路電壓超出 ±6 % 範圍時。</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>風扇警告</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>風扇不應停轉卻停轉時。</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>溫度警告</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>電源供應器達到 %1 時。</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>記錄</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>記錄 (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>清除記錄</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>清除已結束的警報</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>沒有警報</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>凡超出範圍的項目，都會連同發生時間與持續時間列在這裡。</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>警報</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>數值</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>結束</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>歷時</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>持續中</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>警報結束前，程式已先結束。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>效率</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>輸入 %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>電源供應器從市電取用的功率，由輸出功率與效率推算。</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>輸出功率與效率</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 分鐘</translation>
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
        <translation>今日輸出功率 (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>平均 %1 W   ·   峰值 %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>運作 %1 小時 %2 分</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>每根長條為 4 分鐘的平均值，峰值為最高的長條。所有長條都屬於今天：06:00 前的時段位於右端，排在午夜之後。</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>今天尚無記錄。電源供應器連接時，每 4 分鐘新增一根長條。</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   沒有記錄</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>%1 V 時各輸出功率的效率</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>%2 W 時最佳 %1 %</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>取自此型號的曲線；電源供應器本身不測量輸入。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>曲線符合此型號所獲 80 PLUS 認證的標準。輸入功率與熱損耗由此推算；電源供應器本身不測量輸入。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>輸出 %2 時效率 %1，輸入功率 %3，熱損耗 %4</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>此型號的電源供應器沒有效率曲線。</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>額定 %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>輸入功率</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>熱損耗</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>歷史記錄</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>歷史記錄</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>較早</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>較晚</translation>
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
        <translation>週</translation>
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
        <translation>區間</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>起</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>迄</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>區間統計</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>長條顯示內容</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>用電量</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>平均功率</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>每日用電量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>每日平均功率 (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>每月用電量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>每月平均功率 (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>以日顯示會過細：每根長條代表一個月</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>點選長條，可在下方檢視當日每分鐘資料；點選月份長條則開啟該月。方向鍵可逐根移動，Enter 開啟，Page Up 與 Page Down 切換到較早或較晚的時段。</translation>
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
        <translation>全期平均</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>效率 %1</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>歷時 %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1（至今）</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>已記錄</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>已記錄 %1</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>沒有記錄</translation>
    </message>
    <message id="HISTORY_MINUTES">
        <source></source>
        <translation>%1 分</translation>
    </message>
    <message id="HISTORY_HOURS">
        <source></source>
        <translation>%1 小時</translation>
    </message>
    <message id="HISTORY_HOURS_MINUTES">
        <source></source>
        <translation>%1 小時 %2 分</translation>
    </message>
    <message id="HISTORY_DAY">
        <source></source>
        <translation>當日每分鐘資料</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>全天</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>滾動滾輪縮放，拖曳移動，按兩下恢復全天。按鍵：+ 與 − 縮放，方向鍵移動，Shift 加方向鍵逐分鐘移動，Home 顯示全天。</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>一次可顯示一或兩項，各有自己的座標軸。</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>功率</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>電壓</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>電流</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>溫度</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>風扇</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>效率</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>各路電壓與標稱電壓的偏差</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>顯示範圍內的最小、平均與最大值</translation>
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
        <translation>載入中…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>尚無記錄。
電源供應器連接時，每分鐘都會記錄，今天的長條會在幾分鐘內顯示於此。</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>此區間沒有記錄。</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>這一天沒有每分鐘資料。</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>所選日期的每分鐘資料會顯示在這裡。</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>匯出</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>匯出</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>每日</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>每分鐘</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>選擇檔案…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>匯出歷史記錄</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>逗號分隔值 (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>正在匯出，%1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>已寫入 %1 行</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>已寫入 %1 行；有 %2 筆資料無法讀取</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>已取消匯出；未寫入任何檔案</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>無法匯出：%1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>燈光</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>燈光</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>變更會立即顯示在燈環上。按「儲存」可保留至下次啟動。</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>電源供應器未連接。變更會先保留，重新連接後傳送。</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>沒有可設定的燈光</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>未連接具有發光風扇的電源供應器。連接後，其燈環面板會立即顯示在這裡。</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>燈環顯示內容</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>燈環上的 LED 燈</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>點選 LED 燈即可選取，按住 Shift 可加選或減選一顆。拖曳可選取多顆。按鍵：方向鍵移動，加 Shift 擴大選取，空白鍵加選或減選，Ctrl+A 全選，Esc 全不選。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>點選或拖曳以選取 LED 燈。未選取時套用至全部。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>全選</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>全不選</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>前側</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>中間</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>前側燈環</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>中間燈環</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>全部 LED 燈</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1/%2 顆 LED 燈</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>整個燈環</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>%1的顏色</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>顏色由溫度決定</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>此燈效使用自己的顏色</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>單色燈環</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>12 顆 LED 燈環</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>前側與中間燈環</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>燈光</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>開啟或關閉燈光；其他設定保持不變</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>預設</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>將燈環還原為出廠設定</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>儲存</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>保留目前的設定</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>模式</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>顏色</translation>
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
        <translation>單色</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>上一個</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>下一個</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>返回</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>色相與飽和度</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>左右鍵調整色相，上下鍵調整飽和度，加 Shift 微調</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>#RRGGBB 色碼</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>色碼無效：請用 #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>常用色票</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>燈環目前顯示負載，而非燈效。</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>燈環目前顯示溫度，而非燈效。</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>燈光會隨電腦播放的聲音變化。</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>找不到音訊輸出。有輸出裝置之前，燈光會暫停。</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>在燈環上顯示</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>燈效</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>負載</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>溫度</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>人人都能分辨的配色</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>儀表與警報不使用色盲者容易混淆的顏色組合</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>燈環警報</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>警報持續期間，無論設定何種燈效，燈環都會發出警示</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>鎖定或睡眠時關燈</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>電腦鎖定或睡眠期間燈光熄滅，之後恢復</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>燈光模式</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>顏色模式</translation>
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
        <translation>靜態</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>光譜</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>閃爍</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>彩色閃爍</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>流光</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGB 光譜</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>漣漪</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>閃爍</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>脈衝</translation>
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
        <translation>極速</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>快速</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>標準</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>慢速</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>紅色</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>橙色</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>黃色</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>萊姆綠</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>綠色</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>薄荷綠</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>青色</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>天藍色</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>藍色</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>紫色</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>洋紅色</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>玫瑰紅</translation>
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
        <translation>RGB 光譜</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>漣漪</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>閃爍</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>脈衝</translation>
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
        <translation>複製顏色</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>電影</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>遊戲</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>派對</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>手機音樂 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>手機音樂 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>手機音樂 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>溫控</translation>
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
        <translation>掃描</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>漩渦</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>雨滴</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>堆疊</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>風扇</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>風扇</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>電源供應器未連接。現在選擇的模式會先保留，重新連接後套用。</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>轉速</translation>
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
        <translation>%1（已選）</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>由風扇曲線設定</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>選擇風扇模式</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>目標轉速</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>全速的百分比，30 至 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>設定轉速</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>最近 1 小時</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>最近 1 小時尚無讀數。</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>風扇 %1 至 %2 rpm，溫度 %3 至 %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>風扇曲線</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>以 %1 % 運轉</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ 已暫停：過熱</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ 已暫停：無讀數</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>等待電源供應器連接</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>曲線依據</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>負載</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>新增控制點 (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>移除所選控制點 (Delete)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>拖曳控制點調整；按兩下新增。按鍵：方向鍵移動所選控制點，Page Up 與 Page Down 選取其他控制點，Insert 新增，Delete 移除。</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>控制點 %1/%2：%3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>減速所需降幅</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>最短變更間隔</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>程式結束、無法讀取溫度或溫度超過 %1 時，會恢復為電源供應器自己的模式。</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>此電源供應器會自行控制風扇；支援自訂轉速的型號會在此顯示風扇曲線。</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>連接支援自訂轉速的電源供應器後，其風扇曲線會立即顯示在這裡。</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>電腦即將關機</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>電腦即將重新啟動</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>電腦即將進入睡眠</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>立即關機</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>立即重新啟動</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>立即睡眠</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>此操作由遠端指令發起。程式將會關閉：請儲存您的工作，或取消。</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>此操作由遠端指令發起。程式會保持開啟，電腦喚醒後繼續執行。</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>剩餘秒數：%1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>用電</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>電腦</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>用電量與電費</translation>
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
        <translation>全年預估</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>滿一天後</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>輸入 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>輸出 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>效率未知：輸入以輸出計</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 小時 %2 分</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>本次執行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>上次執行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>自首次啟動以來</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>設定電價…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>電價…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>輸入：輸出加上電源供應器的損耗，依其型號的效率曲線計算。</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>處理器與顯示卡</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>處理器</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>顯示卡</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>未讀取電腦本身的感測器</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>這裡可顯示處理器與顯示卡的溫度、功率、電壓與電流，視此電腦具備的感測器而定。</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>讀取</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>等待首次讀數</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>此電腦的感測器沒有提供讀數</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>請輸入數字，例如 %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>範圍為 0 至 %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>最多 %1 位小數</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 小時</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>電價</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>每 kWh 價格</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>未設定</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>貨幣</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>特定時段的其他價格</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>此價格適用於所有時段。若您的電價方案在夜間或週末較便宜，請在此新增時段。</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>由上而下，採用第一筆符合的時段；皆不符合時，採用上方的價格。</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>新增時段</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>最多 %1 個時段</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>時段 %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>星期</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>起</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>迄</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>價格</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>於隔天結束</translation>
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
        <translation>一週電價</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>儲存</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>請輸入 %1 至 %2 的時間</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>請至少選擇一天</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>請輸入三個字母的代碼，例如 %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W，負載 %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G 仍在系統匣中執行</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>點選其圖示可再次開啟視窗。若要結束程式，請選擇選單中的「結束」。</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>以模擬電源供應器試用</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>離開展示</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>監控您的數位電源供應器、保存歷史記錄，並控制其風扇與燈光。</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>複製回報用資訊</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>型號、額定輸出、連接方式與版本。不包含序號與您的資料夾。</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>此電源供應器</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>型號</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>額定輸出</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>序號</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>連接方式</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>無</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB，主要通道</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB，原始通道</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>模擬</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>本程式</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>資料目錄</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>組建</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>系統</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>授權</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>內含的函式庫及其授權</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>鍵盤</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>前往頁面</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>下一個控制項；加 Shift 為上一個</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>移動或變更所選項目</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>按下所選按鈕、切換開關</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>關閉彈出視窗、全不選</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>關於</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>最小化（此桌面沒有系統匣）</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>已儲存至 %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>設定未儲存：%1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>未匯入任何設定：%1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>這不是設定檔，或來自較新的版本</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>已套用檔案中的設定。</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>設定僅在程式結束前有效：無法寫入磁碟。</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>所有設定已恢復為初始狀態。</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>正在監聽連接埠 %1。已連接的程式：%2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>連接埠 %1 已被其他程式使用。</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>關閉：未指定 Broker。</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>已連接至 %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>正在連接 %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>無法連接 %1（%2）。將自動重試。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>讀取中…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>未設定</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>每 kWh %1</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>目前每 kWh %1。時段：%2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>處理器 %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>顯示卡 %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>每秒讀取一次</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>系統未載入感測器驅動程式。請以「sudo modprobe coretemp」(Intel) 或「sudo modprobe k10temp」(AMD) 載入；NVIDIA 顯示卡需要 NVIDIA 的驅動程式。</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>請安裝並啟動 HWiNFO，並在其設定中開啟「Shared Memory Support」。</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>分類</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>一般</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>用電</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>警報</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>遠端控制</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>電腦感測器</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>資料</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>語言與顯示</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>語言</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>用於視窗、系統匣選單與所有訊息。</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>與系統相同</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>溫度單位</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>用於所有顯示溫度的地方。</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>文字大小</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>「大」會充分利用視窗空間。</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>標準</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>大</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>啟動與系統匣</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>隨系統啟動</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>登入時啟動，歷史記錄不會遺漏任何時段。</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>啟動時隱藏至系統匣</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>登入時不開啟視窗；點選系統匣圖示即可顯示。</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>系統匣圖示顯示</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>不必開啟視窗即可看到的數值。</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>負載</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>溫度</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>無</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>需先開啟「%1」。</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>電費</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>電價</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>每度電 (kWh) 的價格。所有電費皆由此計算。</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>變更…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>用電量計算方式</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>以市電端計</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>計入電源供應器從插座取用的電量：輸出，加上以熱量散失的部分。您的電表也是如此計算。</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>中斷期間不計入</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>程式關閉或電源供應器未連接期間，不累計也不推估。</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>警告條件</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>警報記錄</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>持續中的警報，以及先前警報的時間。</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>控制 Socket</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>讓此電腦上的音樂播放器、智慧家庭與指令碼設定燈光。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>允許其他電腦</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>其他電腦上的程式也可設定燈光。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>沒有密碼保護：網路中的任何人屆時都能設定燈光。</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>讓智慧家庭透過您網路中的 Broker 讀取並控制電源供應器。</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>主機</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>Broker 的名稱或位址。留空則不使用 MQTT。</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>請先輸入主機，再設定其他項目。</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>需要主機。</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>連接埠</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>通常為 1883，使用 CA 檔案時為 8883。</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>使用者</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>若 Broker 不要求則留空。</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>密碼</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>沒有 CA 檔案時，會未經加密在網路上傳送。</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>顯示</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>隱藏</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>CA 檔案</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>將連線加密：用於驗證 Broker 的憑證授權單位憑證 (PEM)。</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>選擇…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>選擇 CA 檔案</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>憑證 (*.pem *.crt *.cer);;所有檔案 (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>主題</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>發布前綴</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>回應所傳往的主題開頭。</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>帳戶 ID</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>回應所傳往的主題結尾。可留空。</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>訂閱前綴</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>指令來源的主題開頭。</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>產品 ID</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>指令來源的主題結尾。可留空。</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>套用</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>捨棄</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>尚未套用</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>尚未套用。按 Enter 套用，按 Esc 捨棄。</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Home Assistant 自動探索</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>電源供應器會自動出現在 Home Assistant 中。</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>只填名稱或位址，不含空格與斜線；連接埠另有欄位。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>連接埠為 1 至 %1 的整數。</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>不可留空。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>此處不可使用空格、# 與 +。</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>開頭不可為 /。</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation>此處不可使用 # 與 +。</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>沒有此檔案。</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>無法讀取此檔案。</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>指標</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>讓此電腦上的 Prometheus 與其他監控程式收集讀數。</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>提供指標</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>只有此電腦上的程式可以讀取。</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>若此連接埠已被使用，請選擇其他連接埠。</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>關機與睡眠</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>遠端關機</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>可透過 MQTT 指令讓此電腦關機、重新啟動或睡眠。您有一分鐘可以取消。</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>任何能傳送至您的 Broker 的人屆時都能執行此操作。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>此電腦的感測器</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>讀取電腦本身的感測器</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>除電源供應器的讀數外，另顯示處理器與顯示卡。</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>儲存位置</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>資料目錄</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>存放設定、歷史記錄與警報記錄。</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>開啟資料夾</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>所有設定</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>匯出設定</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>匯出至檔案：作為備份，或供另一部電腦使用。</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>匯出…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>匯入設定</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>以此類檔案中的設定取代所有設定。</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>匯入…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>ZPS G 設定</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>重設所有設定</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>一切恢復為首次啟動時的狀態。您的記錄會保留。</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>重設…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>重設全部？</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>是，重設</translation>
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
        <translation>ZPS G %1 已推出</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>「關於」頁面列出更新內容與下載位置。尚未下載任何內容。</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>版本 %1 已推出</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>目前使用的是版本 %1。</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>開啟下載頁面</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>在瀏覽器中開啟：%1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>請輸入以 https:// 開頭且不含使用者名稱的位址。</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>與 %1 的連線不安全，因此未進行查詢。</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1 在此位址未提供最新版本的資訊。</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 沒有回應。</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>正在檢查…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>版本 %1 已推出。可從「關於」頁面取得。</translation>
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
        <translation>僅發出通知，不會自動下載或安裝任何內容。</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>有新版本時通知</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>每天向下面的位址查詢一次。僅傳送目前的版本號碼。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>位址</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>發布最新版本資訊的位置，以 https:// 開頭。留空則不查詢。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>手動檢查</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>查詢一次，開關關閉時也可以。</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>立即檢查</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>需要位址。</translation>
    </message>
</context>
</TS>
