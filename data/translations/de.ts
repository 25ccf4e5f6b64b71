<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>ZPS G öffnen</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>Beenden</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>Aufzeichnung nicht möglich</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>Der Datenträger ist voll. Die Minutenwerte bleiben erhalten und werden geschrieben, sobald Platz ist.</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>Minimieren</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>Im Infobereich ablegen</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>Ausgangsleistung</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>Netzspannung</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>Temperatur</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>Lüfter</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%1 % von %2 W</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>Heiß</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>Steht</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>Nahe am Limit</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>Außer Toleranz</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>Ausgangsleistung, letzte 5 Minuten (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>Spitze %1 W   ·   Mittel %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>Keine Messwerte in den letzten 5 Minuten</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>jetzt</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 min</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>Verbunden</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>Kein Netzteil gefunden</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>Prüfen Sie das USB-Kabel zum Mainboard. Steckt es, wird das Netzteil erkannt.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>Kein Zugriff auf das Netzteil</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>Das Netzteil ist da, aber Ihr Benutzerkonto hat keinen Zugriff.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>Ihr Benutzerkonto hat keinen Zugriff. Führen Sie dies einmal im Terminal aus:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>Das Netzteil antwortet nicht</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>Graue Werte sind die zuletzt gelesenen. Das Programm versucht es weiter.</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>Kopieren</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>Kopiert</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>Demo – simuliertes Netzteil</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>Leise</translation>
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
        <translation>Übersicht</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1, %2 aktiv</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>Schiene %1 außer Toleranz</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>Sie muss über %1 V und unter %2 V bleiben; prüfen Sie die Kabel des Netzteils und verringern Sie die Last.</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>Lüfter steht</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>Er dreht mit %1 rpm oder weniger; prüfen Sie, ob ihn etwas blockiert.</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>Netzteil ist zu heiß</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>Es hat seine Grenze von %1 erreicht; prüfen Sie, ob die Luft zum Lüfter und wieder hinaus gelangt.</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>seit %1</translation>
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
        <translation>und %1 weitere</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>Alarme anzeigen</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>Ein Alarm beginnt, wenn ein Messwert mehr als neun der letzten sechzig Sekunden außerhalb des Sollbereichs lag.</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>Spannungswarnung</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>Wenn eine Schiene über ±6 % abweicht.</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>Lüfterwarnung</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>Wenn der Lüfter steht, obwohl er laufen sollte.</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>Temperaturwarnung</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>Wenn das Netzteil %1 erreicht.</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>Protokoll</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>Protokoll (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>Leeren</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>Beendete Alarme aus dem Protokoll löschen</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>Keine Alarme</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>Alles, was den Sollbereich verlässt, wird hier mit Zeitpunkt und Dauer aufgeführt.</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>Alarm</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>Wert</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>Beginn</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>Ende</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>Dauer</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>aktiv</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>Das Programm endete vor dem Alarm.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>Eingang %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>Was das Netzteil aus dem Netz zieht, berechnet aus Ausgangsleistung und Wirkungsgrad.</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>Ausgangsleistung und Wirkungsgrad</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 Minuten</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>Heute</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>Ausgangsleistung heute (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>Mittel %1 W   ·   Spitze %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>Laufzeit %1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>Jeder Balken ist das Mittel über vier Minuten, die Spitze ist der höchste Balken. Alle Balken sind von heute: Die Stunden vor 06:00 stehen rechts außen, nach Mitternacht.</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>Heute noch nichts aufgezeichnet. Alle vier Minuten kommt ein Balken hinzu, solange das Netzteil verbunden ist.</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   nichts aufgezeichnet</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>Wirkungsgrad bei %1 V nach Ausgangsleistung</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>Max. %1 % bei %2 W</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>Aus der Kurve des Modells; das Netzteil selbst misst seinen Eingang nicht.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>Die Kurve folgt den Grenzwerten der 80-PLUS-Zertifizierung dieses Modells. Eingangsleistung und Abwärme sind daraus berechnet; das Netzteil selbst misst seinen Eingang nicht.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>%1 bei %2 am Ausgang, %3 aus dem Netz, %4 Abwärme</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>Für dieses Netzteilmodell gibt es keine Wirkungsgradkurve.</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>nominal %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>Aus dem Netz</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>Abwärme</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>Verlauf</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>Verlauf</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>Vor</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>Heute</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>Spanne</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>Woche</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>Monat</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>Jahr</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>Zeitraum</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>Von</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>Bis</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>Summen des Zeitraums</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>Was die Balken zeigen</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>Energie</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>Ø-Leistung</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>Energie pro Tag (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>Ø-Leistung pro Tag (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>Energie pro Monat (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>Ø-Leistung pro Monat (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>Tage wären zu schmal: Jeder Balken ist ein Monat</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>Ein Klick auf einen Balken zeigt darunter seine Minutenwerte; ein Monatsbalken öffnet den Monat. Pfeiltasten gehen von Balken zu Balken, Eingabe öffnet einen, Bild auf und Bild ab blättern zurück und vor.</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>Tagesmaximum</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>Tagesminimum</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>Gesamtmittel</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>bei %1 Wirkungsgrad</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>in %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1, bisher</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>Aufgezeichnet</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>%1 aufgezeichnet</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>Nichts aufgezeichnet</translation>
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
        <translation>Minutenwerte des Tages</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>Ganzer Tag</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>Mausrad zoomt, Ziehen verschiebt, Doppelklick zeigt wieder den ganzen Tag. Tasten: + und − zoomen, Pfeile verschieben, Umschalt mit Pfeilen geht von Minute zu Minute, Pos1 zeigt den ganzen Tag.</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>Ein oder zwei Größen gleichzeitig, jede mit eigener Achse.</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>Leistung</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>Schienen</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>Ströme</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>Temperatur</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>Lüfter</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>Wirkungsgrad</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>Schienen nach ihrer Abweichung von der Nennspannung</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>Minimum, Mittel und Maximum im Ausschnitt</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>Ø</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>max</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>Laden …</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>Noch nichts aufgezeichnet.
Solange das Netzteil verbunden ist, wird jede Minute aufgezeichnet; der heutige Balken erscheint hier nach wenigen Minuten.</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>In diesem Zeitraum nichts aufgezeichnet.</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>Keine Minutenwerte für diesen Tag.</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>Hier erscheinen die Minutenwerte des gewählten Tages.</translation>
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
        <translation>Tage</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>Minuten</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>Datei wählen …</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>Verlauf exportieren</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>Export läuft, %1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>%1 Zeilen geschrieben</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>%1 Zeilen geschrieben; %2 Datensätze nicht lesbar</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>Export abgebrochen; keine Datei geschrieben</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>Nicht exportiert: %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>Licht</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>Beleuchtung</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>Änderungen zeigt der Ring sofort. „Speichern“ behält sie für den nächsten Start.</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>Netzteil nicht verbunden. Änderungen werden gemerkt und gesendet, sobald es wieder da ist.</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>Keine LEDs einstellbar</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>Kein Netzteil mit beleuchtetem Lüfter verbunden. Sobald eines da ist, erscheint hier das Bedienfeld seines Rings.</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>Was der Ring zeigt</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>LEDs des Rings</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>Klicken Sie auf eine LED, um sie zu wählen, mit Umschalt eine mehr oder weniger. Ziehen wählt mehrere. Tasten: Pfeile bewegen, mit Umschalt wählen sie weitere, Leertaste nimmt hinzu oder heraus, Strg+A wählt alle, Esc keine.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>LEDs per Klick oder Ziehen wählen. Keine gewählt heißt alle.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>Alle</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>Keine</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>Vorn</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>Mitte</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>Vorderer Ring</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>Mittlerer Ring</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>alle LEDs</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1 von %2 LEDs</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>der ganze Ring</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>Farbe: %1</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>Die Temperatur bestimmt die Farbe</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>Der Effekt bringt eigene Farben mit</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>Einfarbiger Ring</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>Ring mit 12 LEDs</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>Vorderer und mittlerer Ring</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>LEDs</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>Schaltet die LEDs ein und aus; alles andere bleibt wie eingestellt</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>Aus</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>Standard</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>Setzt den Ring auf den Auslieferungszustand</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>Behält die jetzigen Werte</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>Modus</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>Farbe</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>Tempo</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>Farben</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>Einfarbig</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>Vorheriger</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>Nächster</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>Farbton und Sättigung</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>Links und rechts drehen den Farbton, auf und ab ändern die Sättigung, mit Umschalt in kleinen Schritten</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>Farbe als #RRGGBB</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>Keine Farbe: bitte #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>Farbvorlagen</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>Der Ring zeigt die Last statt des Effekts.</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>Der Ring zeigt die Temperatur statt des Effekts.</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>Die LEDs folgen dem, was der PC abspielt.</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>Keine Audioausgabe gefunden. Die LEDs ruhen, bis es eine gibt.</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>Auf dem Ring zeigen</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>Effekt</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>Temperatur</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>Farben, die alle unterscheiden können</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>Anzeigen und Alarme meiden Farbpaare, die bei Farbsehschwäche leicht verwechselt werden</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>Alarm auf dem Ring</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>Solange ein Alarm aktiv ist, warnt der Ring unabhängig vom Effekt</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>Aus bei Sperre und Standby</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>Die LEDs gehen aus, solange der PC gesperrt oder im Standby ist, und danach wieder an</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>LED-Modus</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>Farbmodus</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>Tempo</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>Helligkeit</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>Statisch</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>Spektrum</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>Blinken</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>Farbblinken</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>Fluss</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGB-Spektrum</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>Kräuseln</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>Blinken</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>Puls</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>Welle</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>Volllicht</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>Extrem</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>Schnell</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>Langsam</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>Rot</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>Gelb</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>Limette</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>Grün</translation>
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
        <translation>Azur</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>Blau</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>Violett</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>Magenta</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>Pink</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>Weiß</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>Fluss</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>RGB-Spektrum</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>Kräuseln</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>Blinken</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>Puls</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>Welle</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>Volllicht</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>Farbkopie</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>Film</translation>
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
        <translation>Mobile Musik 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>Mobile Musik 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>Mobile Musik 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>Thermisch</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>Kreuz</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>Herzschlag</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>Scan</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>Wirbel</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>Regen</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>Stapel</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>Lüfter</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>Lüfter</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>Netzteil nicht verbunden. Ein jetzt gewählter Modus wird gemerkt und gesetzt, sobald es wieder da ist.</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>Drehzahl</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>%1 % der Höchstdrehzahl</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>Modus</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (gewählt)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>durch die Lüfterkurve</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>Lüftermodus wählen</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>Solldrehzahl</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>Prozent der Höchstdrehzahl, 30 bis 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>Übernehmen</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>Letzte Stunde</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>Noch keine Messwerte der letzten Stunde.</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>Lüfter %1 bis %2 U/min, Temperatur %3 bis %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>Lüfterkurve</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>Aus</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>Regelt auf %1 %</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ Pausiert: zu heiß</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ Pausiert: kein Messwert</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>Wartet auf das Netzteil</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>Bezugsgröße der Kurve</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>Punkt hinzufügen (Einfg)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>Gewählten Punkt entfernen (Entf)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>Punkt ziehen; Doppelklick fügt einen hinzu. Tasten: Pfeile bewegen den gewählten Punkt, Bild auf und Bild ab wählen einen anderen, Einfg fügt hinzu, Entf entfernt.</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>Punkt %1 von %2: %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>Drosseln nach Abfall um</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>Ändern höchstens alle</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>Zurück zum eigenen Modus des Netzteils, wenn das Programm endet, die Temperatur nicht lesbar ist oder %1 überschreitet.</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>Dieses Netzteil regelt seinen Lüfter selbst; Modelle mit einstellbarer Drehzahl haben hier eine Lüfterkurve.</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>Sobald ein Netzteil mit einstellbarer Drehzahl verbunden ist, steht hier seine Lüfterkurve.</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>Der PC wird gleich heruntergefahren</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>Der PC wird gleich neu gestartet</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>Der PC geht gleich in Standby</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>Jetzt herunterfahren</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>Jetzt in Standby</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>Per Fernbefehl angefordert. Programme werden geschlossen: Speichern Sie Ihre Arbeit oder brechen Sie ab.</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>Per Fernbefehl angefordert. Programme bleiben offen und laufen weiter, wenn der PC aufwacht.</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>Sekunden übrig: %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>Sek.</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>Energie</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>PC</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>Energie und Kosten</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>Heute</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>Dieser Monat</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>Dieses Jahr</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>Jahresprognose</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>nach einem Tag</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>%1 aus dem Netz</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>%1 am Ausgang</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>Wirkungsgrad unbekannt: Netzbezug gleich Ausgang</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>Diese Sitzung</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>Letzte Sitzung</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>Insgesamt</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>Stromtarif angeben …</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>Tarif …</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>Aus dem Netz: der Ausgang plus die Verluste im Netzteil, nach der Wirkungsgradkurve seines Modells.</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>Prozessor und Grafikkarte</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>Prozessor</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>Grafikkarte</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>PC-Sensoren werden nicht ausgelesen</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>Hier können Temperatur, Leistung, Spannung und Strom von Prozessor und Grafikkarte stehen, soweit dieser PC Sensoren dafür hat.</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>Sensoren auslesen</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>Warten auf den ersten Messwert</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>Kein Sensor dieses PCs liefert Werte</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>Zahl eingeben, z. B. %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>Von 0 bis %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>Max. %1 Nachkommastellen</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>Stromtarif</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>Preis pro kWh</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>kein Preis</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>Währung</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>Andere Preise zu bestimmten Zeiten</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>Der Preis gilt rund um die Uhr. Sind in Ihrem Vertrag Nächte oder Wochenenden günstiger, fügen Sie sie hier hinzu.</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>Die erste passende Zeile gilt. Passt keine, gilt der Preis oben.</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>Neues Zeitfenster</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>Höchstens %1 Zeitfenster</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>Zeitfenster %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>Tage</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>Von</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>Bis</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>Preis</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>Endet am nächsten Tag</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>Nach oben</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>Entfernen</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>Was wann gilt</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>Uhrzeit zwischen %1 und %2 eingeben</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>Mindestens einen Tag wählen</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>Drei Buchstaben eingeben, z. B. %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W, Last %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G läuft im Infobereich weiter</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>Ein Klick auf das Symbol öffnet das Fenster wieder. „Beenden“ im Menü beendet das Programm.</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>Mit simuliertem Netzteil ausprobieren</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>Demo beenden</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>Überwacht Ihr digitales Netzteil, führt seinen Verlauf und steuert seinen Lüfter und seine LEDs.</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>Daten für Fehlerbericht kopieren</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>Modell, Nennleistung, Verbindung und Versionen. Seriennummer und Ihre Ordner bleiben außen vor.</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>Dieses Netzteil</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>Modell</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>Nennleistung</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>Seriennummer</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>Verbindung</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>keine</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB, Hauptkanal</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB, Rohkanal</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>simuliert</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>Dieses Programm</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>Datenordner</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>Build</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>System</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>Lizenz</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>Enthaltene Bibliotheken und ihre Lizenzen</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>Tastatur</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>Seite aufrufen</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>Nächstes Element; mit Umschalt das vorige</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>Markiertes bewegen oder ändern</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>Markierte Schaltfläche drücken, Schalter umlegen</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>Geöffnetes schließen, Auswahl aufheben</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>Info</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>Minimieren (Desktop ohne Infobereich)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>Gespeichert unter %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>Einstellungen nicht gespeichert: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>Nichts übernommen: %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>keine Einstellungsdatei oder eine aus einer neueren Version</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>Die Einstellungen aus der Datei gelten ab jetzt.</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>Die Einstellungen gelten nur bis zum Programmende: Schreiben auf den Datenträger nicht möglich.</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>Alle Einstellungen sind zurückgesetzt.</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>Lauscht auf Port %1. Verbundene Programme: %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>Ein anderes Programm belegt Port %1.</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>Aus: kein Broker angegeben.</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>Verbinden mit %1 …</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>%1 ist nicht erreichbar (%2). Neuer Versuch folgt automatisch.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>Aus</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>Auslesen …</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>Nicht angegeben</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>%1 pro kWh</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>Jetzt %1 pro kWh. Zeitfenster: %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>Prozessor %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>Grafikkarte %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>Jede Sekunde ausgelesen</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>Im System ist kein Sensortreiber geladen. Laden Sie ihn mit „sudo modprobe coretemp“ (Intel) oder „sudo modprobe k10temp“ (AMD); NVIDIA-Karten brauchen den Treiber von NVIDIA.</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>HWiNFO installieren, starten und in dessen Einstellungen „Shared Memory Support“ einschalten.</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>Bereiche</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>Allgemein</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>Energie</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>Fernsteuerung</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>PC-Sensoren</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>Daten</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>Sprache und Anzeige</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>Sprache</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>Für das Fenster, das Infobereich-Menü und alle Meldungen.</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>Wie das System</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>Temperatureinheit</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>Für alle angezeigten Temperaturen.</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>Textgröße</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>„Groß“ nutzt den ganzen Platz im Fenster.</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>Groß</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>Start und Infobereich</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>Mit dem System starten</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>Startet bei der Anmeldung, damit im Verlauf keine Stunde fehlt.</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>Im Infobereich starten</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>Bei der Anmeldung öffnet sich kein Fenster; ein Klick auf das Symbol zeigt es.</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>Wert im Infobereich</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>Die Zahl, die Sie ablesen können, ohne das Fenster zu öffnen.</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>Last</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>Temperatur</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>Nichts</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>Erst „%1“ einschalten.</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>Kosten</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>Stromtarif</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>Was Sie pro Kilowattstunde zahlen. Alle Kosten ergeben sich daraus.</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>Ändern …</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>Wie Energie gezählt wird</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>Aus dem Netz</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>Es zählt, was das Netzteil aus der Steckdose zieht: sein Ausgang und seine Abwärme. Ihr Stromzähler macht es genauso.</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>Lücken zählen nie</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>Solange das Programm beendet oder das Netzteil nicht verbunden ist, wird nichts addiert und nichts geschätzt.</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>Mich warnen</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>Alarmprotokoll</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>Welche Alarme aktiv sind und wann es früher welche gab.</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>Steuer-Socket</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>Lässt Musikplayer, Smart Home und Skripte auf diesem PC die LEDs einstellen.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>Andere Computer zulassen</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>Auch Programme auf anderen Computern dürfen die LEDs einstellen.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>Es gibt kein Passwort: Jeder in Ihrem Netzwerk kann sie dann einstellen.</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>Lässt Ihr Smart Home das Netzteil auslesen und steuern, über einen Broker in Ihrem Netzwerk.</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>Host</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>Name oder Adresse des Brokers. Leer: kein MQTT.</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>Host eingeben, um den Rest einzurichten.</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>Host erforderlich.</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>Port</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>Meist 1883, mit CA-Datei 8883.</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>Benutzer</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>Leer, wenn der Broker keinen verlangt.</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>Passwort</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>Ohne CA-Datei geht es unverschlüsselt durchs Netzwerk.</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>Anzeigen</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>Verbergen</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>CA-Datei</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>Verschlüsselt die Verbindung: das Zertifikat der Zertifizierungsstelle, mit dem der Broker geprüft wird (PEM).</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>Wählen …</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>CA-Datei wählen</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>Zertifikate (*.pem *.crt *.cer);;Alle Dateien (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>Topics</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>Publish-Präfix</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>Anfang des Topics, an das Antworten gehen.</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>Konto-ID</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>Ende des Topics, an das Antworten gehen. Darf leer sein.</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>Subscribe-Präfix</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>Anfang des Topics, von dem Befehle kommen.</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>Produkt-ID</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>Ende des Topics, von dem Befehle kommen. Darf leer sein.</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>Übernehmen</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>Verwerfen</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>Noch nicht übernommen</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>Noch nicht übernommen. Eingabe übernimmt, Esc verwirft.</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Home Assistant Discovery</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>Das Netzteil erscheint von selbst in Home Assistant.</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>Nur Name oder Adresse, ohne Leerzeichen und Schrägstriche; der Port hat ein eigenes Feld.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>Ein Port ist eine ganze Zahl von 1 bis %1.</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>Darf nicht leer sein.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>Leerzeichen, # und + sind hier nicht möglich.</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>Darf nicht mit / beginnen.</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation># und + sind hier nicht möglich.</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>Diese Datei ist nicht lesbar.</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>Metriken</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>Lässt Prometheus und andere Monitoring-Programme auf diesem PC die Messwerte abrufen.</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>Metriken anbieten</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>Nur Programme auf diesem PC können sie lesen.</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>Wählen Sie einen anderen, wenn dieser belegt ist.</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>Ein/Aus</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>Fernabschaltung</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>Ein Befehl über MQTT darf diesen PC herunterfahren, neu starten oder in Standby versetzen. Sie haben eine Minute zum Abbrechen.</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>Jeder, der an Ihren Broker senden darf, kann das dann tun.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>Sensoren dieses PCs</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>PC-Sensoren auslesen</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>Zeigt Prozessor und Grafikkarte neben den Messwerten des Netzteils.</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>Speicherort</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>Datenordner</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>Enthält Einstellungen, aufgezeichneten Verlauf und Alarmprotokoll.</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>Ordner öffnen</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>In eine Datei: als Sicherung oder für einen anderen PC.</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>Export …</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>Ersetzt alle Einstellungen durch die einer solchen Datei.</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>Import …</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>Einstellungen von ZPS G</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>Einstellungen zurücksetzen</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>Alles wie beim ersten Start. Ihre Aufzeichnungen bleiben erhalten.</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>Zurücksetzen …</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>Alles zurücksetzen?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>Nein</translation>
    </message>
    <message id="FAN_RPM">
        <source></source>
        <translation>U/min</translation>
    </message>
    <message id="FAN_TARGET_RPM">
        <source></source>
        <translation>U/min</translation>
    </message>
    <message id="NAV_UPDATE">
        <source></source>
        <translation>%1, neue Version verfügbar</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>ZPS G %1 ist verfügbar</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>Die Seite „Info“ zeigt, was neu ist, und führt zum Download. Heruntergeladen wurde nichts.</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>Version %1 ist verfügbar</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>Sie verwenden Version %1.</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>Öffnet im Browser: %1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>Geben Sie eine Adresse ein, die mit https:// beginnt und keinen Benutzernamen enthält.</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>Die Verbindung zu %1 ist nicht sicher, daher wurde nicht nachgefragt.</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1 nennt unter dieser Adresse keine neueste Version.</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 antwortet nicht.</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>Wird geprüft …</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>Version %1 ist verfügbar. Die Seite „Info“ führt dorthin.</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>Sie haben die neueste Version, %1.</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>Updates</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>Neue Versionen von ZPS G</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>Sie erhalten nur einen Hinweis: Von selbst wird nichts heruntergeladen oder installiert.</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>Neue Versionen melden</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>Fragt einmal täglich unter der Adresse nach. Übermittelt wird nur die Nummer dieser Version.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>Dort steht, welche Version die neueste ist; beginnt mit https://. Leer: keine Nachfrage.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>Von Hand prüfen</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>Fragt einmal nach, auch bei ausgeschaltetem Schalter.</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>Adresse erforderlich.</translation>
    </message>
</context>
</TS>
