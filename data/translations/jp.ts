<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>ZPS Gを開く</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>測定値を記録できません</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>ディスクに書き込めません。分単位のデータは保持され、空きができ次第書き込まれます。</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>トレイに格納</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>出力電力</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>入力電圧</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>ファン</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%2 Wの%1 %</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>高温</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>停止</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>限界付近</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>範囲外</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>出力電力、直近5分間 (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>ピーク %1 W   ·   平均 %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>直近5分間の測定値なし</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>現在</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1分</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>接続済み</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>電源ユニット未検出</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>マザーボードへのUSBケーブルを確認してください。接続すると自動的に検出されます。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>電源ユニットにアクセス不可</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>電源ユニットは接続されていますが、このユーザーアカウントには開く権限がありません。</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>このユーザーアカウントには開く権限がありません。ターミナルで次を1回実行してください:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>電源ユニットが応答しません</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>灰色の値は最後に読み取ったものです。読み取りは引き続き試行されます。</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>コピー</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>コピー済み</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>デモ – 仮想電源ユニット</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>静音</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>性能重視</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>ゼロファン</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>概要</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>アラーム</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1、%2件継続中</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>%1の電圧が範囲外</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>%1 Vより高く%2 Vより低く保つ必要があります。電源ユニットのケーブルを確認し、負荷を下げてください。</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>ファンが停止</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>回転数が%1 rpm以下です。回転を妨げるものがないか確認してください。</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>電源ユニットが過熱</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>上限の%1に達しました。ファンの吸気と排気が妨げられていないか確認してください。</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>%1から</translation>
    </message>
    <message id="ALARM_LASTED_SECONDS">
        <source></source>
        <translation>%1秒</translation>
    </message>
    <message id="ALARM_LASTED_MINUTES">
        <source></source>
        <translation>%1分%2秒</translation>
    </message>
    <message id="ALARM_LASTED_HOURS">
        <source></source>
        <translation>%1時間%2分</translation>
    </message>
    <message id="ALARM_LASTED_DAYS">
        <source></source>
        <translation>%1日%2時間</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>アラーム</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>ほか%1件</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>アラームを表示</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>アラーム</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>直近60秒のうち9秒を超えて測定値が範囲外になると、アラームが発生します。</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>電圧警告</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>いずれかの系統が±6 %の範囲を外れたとき。</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>ファン警告</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>回転すべきファンが停止したとき。</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>温度警告</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>電源ユニットが%1に達したとき。</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>ログ</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>ログ (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>ログを消去</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>終了したアラームを消去</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>アラームなし</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>範囲を外れたものは、発生時刻と継続時間とともにここに表示されます。</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>アラーム</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>値</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>継続時間</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>継続中</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>アラームより先にプログラムが終了しました。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>効率</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>入力 %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>電源ユニットがコンセントから取り込む電力です。出力電力と効率から算出しています。</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>出力電力と効率</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5分間</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>効率</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>今日の出力電力 (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>平均 %1 W   ·   ピーク %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>稼働 %1時間%2分</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>バーは4分間の平均値で、ピークは最も高いバーです。バーはすべて今日のもので、06:00より前の時間帯は右端、午前0時のあとに並びます。</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>今日の記録はまだありません。電源ユニットの接続中は、4分ごとにバーが追加されます。</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   記録なし</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>%1 V時の出力電力別効率</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>最高 %1 % (%2 W時)</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>このモデルの効率曲線による値です。電源ユニット自体は入力を測定しません。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>曲線は、このモデルが取得した80 PLUS認証の基準値を満たすものです。入力電力と熱損失はこの曲線から算出しています。電源ユニット自体は入力を測定しません。</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>出力%2で効率%1、入力電力%3、熱損失%4</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>このモデルの電源ユニットには効率曲線がありません。</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>定格 %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>入力電力</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>熱損失</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>履歴</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>履歴</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>前へ</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>次へ</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>表示単位</translation>
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
        <translation>期間</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>期間の集計</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>バーの表示内容</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>電力量</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>平均電力</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>日別電力量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>日別平均電力 (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>月別電力量 (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>月別平均電力 (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>日別では細くなりすぎるため、バーは月単位です</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>バーをクリックすると、その日の分単位データが下に表示されます。月のバーをクリックするとその月が開きます。矢印キーでバーを移動、Enterで開き、Page UpとPage Downで前後の期間に移動します。</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>最大の日</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>最小の日</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>全期間平均</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>効率 %1</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>%1で</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1 (現時点)</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>記録時間</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>%1記録済み</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>記録なし</translation>
    </message>
    <message id="HISTORY_MINUTES">
        <source></source>
        <translation>%1分</translation>
    </message>
    <message id="HISTORY_HOURS">
        <source></source>
        <translation>%1時間</translation>
    </message>
    <message id="HISTORY_HOURS_MINUTES">
        <source></source>
        <translation>%1時間%2分</translation>
    </message>
    <message id="HISTORY_DAY">
        <source></source>
        <translation>1日の分単位データ</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>1日全体</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>ホイールで拡大・縮小、ドラッグで移動、ダブルクリックで1日全体に戻ります。キー: +と−で拡大・縮小、矢印で移動、Shift+矢印で1分ずつ移動、Homeで1日全体を表示。</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>同時に表示できるのは2つまでで、それぞれに専用の軸があります。</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>電力</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>電圧</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>電流</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>ファン</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>効率</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>各系統の公称電圧からのずれ</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>表示範囲の最小値・平均値・最大値</translation>
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
        <translation>読み込み中…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>まだ記録がありません。
電源ユニットの接続中は毎分記録され、今日のバーが数分以内にここに表示されます。</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>この期間の記録はありません。</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>この日の分単位データはありません。</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>選択した日の分単位データがここに表示されます。</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>書き出し</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>書き出し</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>日単位</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>分単位</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>ファイルを選択…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>履歴の書き出し</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>カンマ区切り (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>書き出し中、%1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>%1行を書き込みました</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>%1行を書き込みました。%2件は読み取れませんでした</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>書き出しを中止しました。ファイルは作成されていません</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>書き出し失敗: %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>ライト</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>ライト</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>変更はすぐにリングに反映されます。「保存」を押すと次回起動時にも維持されます。</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>電源ユニットが接続されていません。変更は保持され、再接続時に送信されます。</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>設定できるライトなし</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>LEDファン搭載の電源ユニットが接続されていません。接続すると、リングのパネルがここに表示されます。</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>リングの表示内容</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>リングのLED</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>LEDをクリックして選択、Shift+クリックで1個ずつ追加・解除します。ドラッグで複数選択。キー: 矢印で移動、Shift+矢印で選択を拡大、スペースで追加・解除、Ctrl+Aですべて選択、Escですべて解除。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>クリックやドラッグで選択。未選択ならすべて対象。</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>すべて</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>前面</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>中央</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>前面リング</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>中央リング</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>すべてのLED</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>LED %2個中%1個</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>リング全体</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>%1の色</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>色は温度で決まります</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>この効果は専用の色を使います</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>単色リング</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>12 LEDリング</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>前面・中央リング</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>ライト</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>ライトをオン/オフします。ほかの設定は変わりません</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>既定値</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>リングを工場出荷時の設定に戻します</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>現在の設定を保存します</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>モード</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>カラー</translation>
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
        <translation>単色</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>前へ</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>次へ</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>色相と彩度</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>左右キーで色相、上下キーで彩度を変更、Shift併用で微調整</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>色 (#RRGGBB)</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>無効な色: #RRGGBB形式で入力</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>プリセット色</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>リングは効果の代わりに負荷を表示します。</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>リングは効果の代わりに温度を表示します。</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>ライトはPCの再生音に合わせて変化します。</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>音声出力が見つかりません。見つかるまで休止します。</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>リングに表示</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>効果</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>負荷</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>誰もが見分けやすい配色</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>メーターとアラームに、色覚によって区別しにくい色の組み合わせを使いません</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>リングにアラーム表示</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>アラームの継続中は、設定中の効果にかかわらずリングで警告します</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>ロック・スリープ中は消灯</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>PCのロック中やスリープ中はライトが消え、解除後に再び点灯します</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>発光モード</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>カラーモード</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>明るさ</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>常時点灯</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>スペクトル</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>点滅</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>カラー点滅</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>フロー</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGBスペクトル</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>波紋</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>点滅</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>パルス</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>ウェーブ</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>全点灯</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>超高速</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>高速</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>標準</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>低速</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>赤</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>オレンジ</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>黄</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>ライム</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>緑</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>ミント</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>シアン</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>空色</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>青</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>紫</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>マゼンタ</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>ローズ</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>白</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>フロー</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>RGBスペクトル</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>波紋</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>点滅</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>パルス</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>ウェーブ</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>全点灯</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>カラーコピー</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>映画</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>ゲーム</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>パーティー</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>モバイル音楽1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>モバイル音楽2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>モバイル音楽3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>温度連動</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>クロス</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>鼓動</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>スキャン</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>渦巻き</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>雨滴</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>スタック</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>ファン</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>ファン</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>電源ユニットが接続されていません。選択したモードは保持され、再接続時に設定されます。</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>回転数</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>最大回転数の%1 %</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>モード</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (選択中)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>ファンカーブで設定</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>ファンのモードを選択</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>目標回転数</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>最大回転数に対する百分率、30～100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>回転数を設定</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>直近1時間</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>直近1時間の測定値はまだありません。</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>ファン%1～%2 rpm、温度%3～%4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>ファンカーブ</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>%1 %で制御中</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ 一時停止: 過熱</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ 一時停止: 測定値なし</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>電源ユニット接続待ち</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>カーブの基準</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>負荷</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>点を追加 (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>選択した点を削除 (Delete)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>点をドラッグして移動、ダブルクリックで追加。キー: 矢印で選択した点を移動、Page UpとPage Downで別の点を選択、Insertで追加、Deleteで削除。</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>点 %1/%2: %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>減速に必要な低下幅</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>変更の最短間隔</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>プログラムの終了時、温度を読み取れないとき、または%1を超えたときは、電源ユニット自身のモードに戻ります。</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>この電源ユニットはファンを自動で制御します。回転数の指定に対応したモデルでは、ここにファンカーブが表示されます。</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>回転数の指定に対応した電源ユニットを接続すると、そのファンカーブがここに表示されます。</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>PCはまもなくシャットダウンします</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>PCはまもなく再起動します</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>PCはまもなくスリープします</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>今すぐシャットダウン</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>今すぐ再起動</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>今すぐスリープ</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>リモートコマンドによる要求です。プログラムが閉じられます。作業を保存するか、キャンセルしてください。</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>リモートコマンドによる要求です。プログラムは開いたままで、PCの復帰後に続行されます。</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>残り秒数: %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>電力量</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>PC</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>電力量と電気代</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>今日</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>今月</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>今年</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>年間予測</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>1日経過後</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>入力 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>出力 %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>効率が不明なため、入力=出力として計算</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1時間%2分</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>今回の実行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>前回の実行</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>初回起動から</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>電力単価を設定…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>単価…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>入力は、出力に電源ユニットでの損失を加えたもので、モデルの効率曲線から算出しています。</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>CPUとビデオカード</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>CPU</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>ビデオカード</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>PC自体のセンサーは読み取っていません</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>CPUとビデオカードの温度、電力、電圧、電流を、このPCにセンサーがある範囲でここに表示できます。</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>読み取る</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>最初の測定値を待機中</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>このPCのセンサーから測定値を取得できません</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>数値を入力 (例: %1)</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>0～%1の範囲</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>小数点以下%1桁まで</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1時間</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>電力単価</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>1 kWhの単価</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>未設定</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>通貨</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>時間帯別の単価</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>単価は終日適用されます。夜間や週末が割安な契約の場合は、ここに追加してください。</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>上から順に最初に一致した行が適用されます。一致する行がなければ、上の単価になります。</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>時間帯を追加</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>時間帯は%1件まで</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>時間帯 %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>曜日</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>開始</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>単価</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>翌日に終了</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>上へ移動</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>1週間の単価</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>%1～%2の時刻を入力してください</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>曜日を1つ以上選択してください</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>英字3文字のコードを入力 (例: %1)</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W、負荷 %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS Gはトレイで動作を続けます</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>アイコンをクリックするとウィンドウが再び開きます。メニューの「終了」でプログラムが終了します。</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>仮想電源ユニットで試す</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>デモを終了</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>デジタル電源ユニットを監視し、履歴を記録し、ファンとライトを制御します。</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>報告用の情報をコピー</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>モデル、定格出力、接続、バージョン。シリアル番号とフォルダーは含まれません。</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>この電源ユニット</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>モデル</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>定格出力</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>シリアル番号</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>接続</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB、標準経路</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB、RAW経路</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>仮想</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>このプログラム</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>データフォルダー</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>ビルド</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>システム</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>ライセンス</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>使用ライブラリとライセンス</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>キーボード</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>ページへ移動</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>次の項目へ、Shift併用で前の項目へ</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>選択中の項目を移動・変更</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>選択中のボタンを押す、スイッチを切り替える</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>ポップアップを閉じる、選択をすべて解除</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>情報</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>最小化 (このデスクトップにトレイなし)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>%1に保存しました</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>設定を保存できませんでした: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>設定は読み込まれませんでした: %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>設定ファイルではないか、より新しいバージョンのファイルです</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>ファイルの設定を適用しました。</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>ディスクに書き込めなかったため、設定はプログラムの終了まで有効です。</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>すべての設定を初期状態に戻しました。</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>ポート%1で待ち受け中。接続中のプログラム: %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>ポート%1はほかのプログラムが使用中です。</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>オフ: ブローカー未指定。</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>%1に接続済み</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>%1に接続中…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>%1に接続できません (%2)。自動的に再試行します。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>オフ</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>読み取り中…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>未設定</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>1 kWhあたり%1</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>現在 1 kWhあたり%1。時間帯: %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>CPU %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>ビデオカード %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>1秒ごとに読み取り</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>センサードライバーが読み込まれていません。「sudo modprobe coretemp」(Intel) または「sudo modprobe k10temp」(AMD) で読み込んでください。NVIDIAのカードにはNVIDIAのドライバーが必要です。</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>HWiNFOをインストールして起動し、その設定で「Shared Memory Support」をオンにしてください。</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>セクション</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>全般</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>電力量</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>アラーム</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>リモート操作</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>PCセンサー</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>データ</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>言語と表示</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>言語</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>ウィンドウ、トレイメニュー、すべてのメッセージに使われます。</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>システムと同じ</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>温度の単位</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>温度の表示すべてに使われます。</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>文字サイズ</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>「大」はウィンドウ全体を活用します。</translation>
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
        <translation>起動とトレイ</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>システムと同時に起動</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>サインイン時に起動するため、履歴に抜けができません。</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>トレイに格納して起動</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>サインイン時にウィンドウを開きません。トレイアイコンのクリックで表示されます。</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>トレイアイコンの表示</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>ウィンドウを開かずに確認できる数値です。</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>負荷</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>温度</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>なし</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>「%1」のオンが必要です。</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>電気代</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>電力単価</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>1 kWhの料金です。電気代はすべてこれをもとに計算されます。</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>変更…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>電力量の計算方法</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>コンセント基準</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>電源ユニットがコンセントから取り込む量、つまり出力と熱損失の合計を数えます。電力量計と同じです。</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>空白期間は含めない</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>プログラムの終了中や電源ユニットの未接続中は、加算も推定もしません。</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>警告条件</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>アラームログ</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>継続中のアラームと、これまでのアラームの発生時刻。</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>制御ソケット</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>このPCの音楽プレーヤー、ホームオートメーション、スクリプトからライトを設定できます。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>ほかのPCを許可</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>ほかのPCのプログラムからもライトを設定できます。</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>パスワードがないため、ネットワーク上の誰でもライトを設定できるようになります。</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>ネットワーク上のブローカーを介して、ホームオートメーションから電源ユニットの読み取りと制御ができます。</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>ホスト</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>ブローカーの名前またはアドレス。空欄ならMQTTを使いません。</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>残りの設定にはホストの入力が必要です。</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>ホストが必要です。</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>ポート</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>通常は1883、CAファイル使用時は8883。</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>ユーザー</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>ブローカーが要求しなければ空欄。</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>パスワード</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>CAファイルがないと、暗号化されずに送信されます。</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>表示</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>非表示</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>CAファイル</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>接続を暗号化します。ブローカーの検証に使う認証局の証明書 (PEM) です。</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>選択…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>CAファイルを選択</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>証明書 (*.pem *.crt *.cer);;すべてのファイル (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>トピック</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>発行プレフィックス</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>応答の送信先トピックの先頭部分。</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>アカウントID</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>応答の送信先トピックの末尾部分。空欄も可。</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>購読プレフィックス</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>コマンドの受信元トピックの先頭部分。</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>製品ID</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>コマンドの受信元トピックの末尾部分。空欄も可。</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>適用</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>破棄</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>未適用</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>未適用です。Enterで適用、Escで破棄。</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Home Assistantの自動検出</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>電源ユニットがHome Assistantに自動的に表示されます。</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>空白やスラッシュを含まない名前かアドレスのみ。ポートには専用の欄があります。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>ポートは1～%1の整数です。</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>空欄にはできません。</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>空白、#、+は使えません。</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>先頭に/は使えません。</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation>#と+は使えません。</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>このファイルは存在しません。</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>このファイルは読み取れません。</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>メトリクス</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>このPCのPrometheusなどの監視プログラムが測定値を収集できます。</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>メトリクスを提供</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>このPCのプログラムだけが読み取れます。</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>使用中の場合は、別のポートを指定してください。</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>PCの電源操作</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>リモートシャットダウン</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>MQTTのコマンドで、このPCのシャットダウン、再起動、スリープができます。1分以内ならキャンセルできます。</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>ブローカーに送信できる人なら誰でも実行できるようになります。</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>このPCのセンサー</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>PC自体のセンサーを読み取る</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>電源ユニットの測定値とともに、CPUとビデオカードを表示します。</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>保存場所</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>データフォルダー</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>設定、記録された履歴、アラームログが入っています。</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>フォルダーを開く</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>すべての設定</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>設定の書き出し</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>バックアップや別のPC用にファイルへ保存します。</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>書き出し…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>設定の読み込み</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>書き出したファイルの内容ですべての設定を置き換えます。</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>読み込み…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>ZPS Gの設定</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>すべての設定をリセット</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>すべて初回起動時の状態に戻します。記録は残ります。</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>リセット…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>すべてリセットしますか?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>リセットする</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>いいえ</translation>
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
        <translation>%1、新しいバージョンがあります</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>ZPS G %1が利用できます</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>変更点とダウンロード先は「情報」ページにあります。まだ何もダウンロードしていません。</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>バージョン%1が利用できます</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>現在のバージョンは%1です。</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>ブラウザーで開きます：%1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>https://で始まり、ユーザー名を含まないアドレスを入力してください。</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>%1への接続が安全でないため、問い合わせを中止しました。</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1のこのアドレスには、最新バージョンの情報がありません。</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1から応答がありません。</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>確認中…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>バージョン%1が利用できます。「情報」ページから入手できます。</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>最新バージョン%1をお使いです。</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>アップデート</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>ZPS Gの新しいバージョン</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>お知らせするだけで、自動でダウンロードやインストールを行うことはありません。</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>新しいバージョンを知らせる</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>下のアドレスに1日1回問い合わせます。送信するのはこのバージョン番号だけです。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>アドレス</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>最新バージョンの発表先。https://で始まります。空欄なら問い合わせません。</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>手動で確認</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>スイッチがオフでも、アドレスに1回問い合わせます。</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>今すぐ確認</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>アドレスが必要です。</translation>
    </message>
</context>
</TS>
