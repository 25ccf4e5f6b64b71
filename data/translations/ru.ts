<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>Открыть ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>Выход</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>Показания не записываются</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>Диск больше не принимает данные. Минуты хранятся и будут записаны, как только появится место.</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>Свернуть</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>Закрыть в трей</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>Выходная мощность</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>Напряжение сети</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>Температура</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>Вентилятор</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%1 % от %2 W</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>Перегрев</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>Остановлен</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>У предела</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>Вне допуска</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>Выходная мощность за 5 минут (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>Пик %1 W   ·   Среднее %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>Нет показаний за последние 5 минут</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>сейчас</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 мин</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>Подключён</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>Блок питания не найден</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>Нужно проверить кабель USB к материнской плате. Подключённый блок найдётся сам.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>Нет доступа к блоку питания</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>Блок питания найден, но у учётной записи нет права его открыть.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>У учётной записи нет права его открыть. Один раз выполнить в терминале:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>Блок питания не отвечает</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>Серым показаны последние полученные значения. Программа продолжает опрос.</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>Копировать</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>Скопировано</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>Демо — имитация блока питания</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>Тихий</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>Интенсивный</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>Zero Fan</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>Обзор</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>Тревоги</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1, активных: %2</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>Линия %1 вне допуска</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>Напряжение должно быть выше %1 V и ниже %2 V; нужно проверить кабели блока и снизить нагрузку.</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>Вентилятор остановлен</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>Не более %1 об/мин; нужно проверить, не мешает ли что-то вращению.</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>Блок питания перегрет</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>Достигнут предел в %1; нужно проверить, свободно ли воздух проходит через вентилятор и наружу.</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>с %1</translation>
    </message>
    <message id="ALARM_LASTED_SECONDS">
        <source></source>
        <translation>%1 с</translation>
    </message>
    <message id="ALARM_LASTED_MINUTES">
        <source></source>
        <translation>%1 мин %2 с</translation>
    </message>
    <message id="ALARM_LASTED_HOURS">
        <source></source>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message id="ALARM_LASTED_DAYS">
        <source></source>
        <translation>%1 д %2 ч</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>Тревога</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>и ещё %1</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>К тревогам</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>Тревоги</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>Тревога начинается, когда показание вне допуска более девяти из последних шестидесяти секунд.</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>Контроль напряжения</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>Когда линия выходит за допуск ±6 %.</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>Контроль вентилятора</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>Когда вентилятор стоит, хотя не должен.</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>Контроль температуры</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>Когда блок нагревается до %1.</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>Журнал</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>Журнал (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>Очистить</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>Удалить завершившиеся тревоги</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>Тревог нет</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>Здесь появится всё, что выйдет за допуск, с указанием времени и длительности.</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>Тревога</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>Значение</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>Начало</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>Конец</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>Длилась</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>активна</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>Программа завершилась раньше, чем тревога.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>КПД</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>вход %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>Сколько блок питания берёт из сети; вычислено по выходной мощности и КПД.</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>Выходная мощность и КПД</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 минут</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>Сегодня</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>КПД</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>Выходная мощность сегодня (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>Среднее %1 W   ·   Пик %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>Работа: %1 ч %2 мин</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>Каждый столбец — среднее за четыре минуты, пик — самый высокий столбец. Все столбцы за сегодня: часы до 06:00 стоят у правого края, после полуночи.</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>Сегодня ещё ничего не записано. Пока блок питания подключён, столбец добавляется каждые четыре минуты.</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   нет записей</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>КПД при %1 V по выходной мощности</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>Макс. %1 % при %2 W</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>По кривой модели; сам блок питания не измеряет свой вход.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>Кривая построена по порогам сертификата 80 PLUS этой модели. Вход и теплопотери вычислены по ней; сам блок питания не измеряет свой вход.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>%1 при %2 на выходе, %3 из сети, %4 тепла</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>Для модели этого блока питания нет кривой КПД.</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>номинал %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>Из сети</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>Теплопотери</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>История</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>История</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>Назад</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>Вперёд</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>Сегодня</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>Интервал</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>Неделя</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>Месяц</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>Год</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>Период</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>С</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>По</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>Итоги за период</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>Что показывают столбцы</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>Энергия</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>Ср. мощность</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>Энергия по дням (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>Средняя мощность по дням (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>Энергия по месяцам (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>Средняя мощность по месяцам (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>Дни были бы слишком узкими: каждый столбец — месяц</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>Щелчок по столбцу показывает ниже его минуты; столбец месяца открывает этот месяц. Стрелки ведут от столбца к столбцу, Enter открывает, Page Up и Page Down листают назад и вперёд.</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>Макс. за день</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>Мин. за день</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>Общее среднее</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>при КПД %1</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>за %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1 (на данный момент)</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>Записано</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>%1 записи</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>Нет записей</translation>
    </message>
    <message id="HISTORY_MINUTES">
        <source></source>
        <translation>%1 мин</translation>
    </message>
    <message id="HISTORY_HOURS">
        <source></source>
        <translation>%1 ч</translation>
    </message>
    <message id="HISTORY_HOURS_MINUTES">
        <source></source>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message id="HISTORY_DAY">
        <source></source>
        <translation>Минуты дня</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>Весь день</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>Колесо меняет масштаб, перетаскивание сдвигает, двойной щелчок снова показывает весь день. Клавиши: + и − меняют масштаб, стрелки сдвигают, Shift и стрелки ведут от минуты к минуте, Home показывает весь день.</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>Одновременно можно показать одну или две величины, у каждой своя ось.</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>Мощность</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>Линии</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>Токи</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>Температура</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>Вентилятор</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>КПД</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>Отклонение линий от номинального напряжения</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>Минимум, среднее и максимум видимой части</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>мин.</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>сред.</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>макс.</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>Загрузка…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>Записей пока нет.
Когда блок питания подключён, записывается каждая минута; столбец за сегодня появится здесь через несколько минут.</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>За этот период ничего не записано.</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>За этот день нет поминутных записей.</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>Здесь появятся минуты выбранного дня.</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>Экспорт</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>Экспорт</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>Дни</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>Минуты</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>Выбрать файл…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>Экспорт истории</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>Значения через запятую (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>Экспорт, %1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>Записано строк: %1</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>Записано строк: %1; не удалось прочитать: %2</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>Экспорт отменён; файл не записан</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>Не экспортировано: %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>Подсветка</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>Подсветка</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>Изменения сразу видны на кольце. «Сохранить» запоминает их для следующего запуска.</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>Блок питания не подключён. Изменения запомнятся и отправятся после подключения.</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>Подсветки нет</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>Не подключён блок питания с подсветкой вентилятора. Как только он появится, здесь будет панель его кольца.</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>Что показывает кольцо</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>Светодиоды кольца</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>Щелчок выбирает светодиод, с Shift добавляет или убирает его. Перетаскивание выбирает несколько. Клавиши: стрелки ведут по кольцу, с Shift расширяют выбор, Пробел добавляет или убирает, Ctrl+A выбирает все, Esc снимает выбор.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>Щелчок или перетаскивание выбирает светодиоды. Без выбора — все.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>Все</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>Снять</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>Переднее</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>Среднее</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>Переднее кольцо</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>Среднее кольцо</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>все светодиоды</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1 из %2 светодиодов</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>всё кольцо</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>Цвет: %1</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>Цвет задаёт температура</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>У эффекта свои цвета</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>Одноцветное кольцо</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>Кольцо из 12 светодиодов</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>Переднее и среднее кольцо</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>Подсветка</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>Включает и выключает подсветку; остальные настройки не меняются</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>Выкл.</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>Сбросить</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>Возвращает кольцо к заводским настройкам</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>Сохранить</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>Запоминает текущие настройки</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>Режим</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>Цвет</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>Скорость</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>Цвета</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>Единый</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>Предыдущий</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>Следующий</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>Назад</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>Оттенок и насыщенность</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>Влево и вправо меняют оттенок, вверх и вниз — насыщенность, с Shift — мелкими шагами</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>Цвет в виде #RRGGBB</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>Это не цвет: нужно #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>Готовые цвета</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>Кольцо показывает нагрузку вместо эффекта.</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>Кольцо показывает температуру вместо эффекта.</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>Подсветка следует за звуком ПК.</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>Звуковой выход не найден. Подсветка ждёт его появления.</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>Показать на кольце</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>Эффект</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>Нагрузка</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>Температура</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>Цвета, которые различит каждый</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>Индикаторы и тревоги обходятся без пар цветов, которые путают при дальтонизме</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>Тревога на кольце</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>Пока тревога активна, кольцо предупреждает о ней при любом эффекте</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>Гасить при блокировке и во сне</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>Подсветка гаснет, пока ПК заблокирован или спит, и затем включается снова</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>Режим подсветки</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>Режим цвета</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>Скорость</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>Яркость</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>Статика</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>Спектр</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>Мигание</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>Цветное мигание</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>Поток</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>RGB-спектр</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>Рябь</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>Мигание</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>Пульс</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>Волна</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>Полный свет</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>Предельная</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>Высокая</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>Обычная</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>Низкая</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>Красный</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>Оранжевый</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>Жёлтый</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>Лайм</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>Зелёный</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>Мятный</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>Голубой</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>Лазурный</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>Синий</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>Фиолетовый</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>Пурпурный</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>Розовый</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>Белый</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>Поток</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>RGB-спектр</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>Рябь</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>Мигание</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>Пульс</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>Волна</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>Полный свет</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>Копия цвета</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>Кино</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>Игра</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>Вечеринка</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>Музыка 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>Музыка 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>Музыка 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>Термо</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>Крест</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>Сердцебиение</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>Скан</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>Вихрь</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>Капли</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>Стопка</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>Вентилятор</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>Вентилятор</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>Блок питания не подключён. Выбранный сейчас режим запомнится и включится после подключения.</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>Скорость</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>%1 % от максимума</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>Режим</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (выбран)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>задаёт кривая</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>Выбрать режим вентилятора</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>Целевая скорость</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>Процент от максимума, от 30 до 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>Применить</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>Последний час</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>За последний час показаний ещё нет.</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>Вентилятор от %1 до %2 об/мин, температура от %3 до %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>Кривая</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>Выкл.</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>Работает: %1 %</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ Пауза: перегрев</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ Пауза: нет показаний</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>Ждёт блок питания</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>Чему следует кривая</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>Нагрузка</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>Добавить точку (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>Удалить выбранную точку (Delete)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>Точку можно перетащить; двойной щелчок добавляет новую. Клавиши: стрелки двигают выбранную точку, Page Up и Page Down выбирают другую, Insert добавляет, Delete удаляет.</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>Точка %1 из %2: %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>Замедлять при спаде на</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>Менять не чаще чем раз в</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>Возврат к режиму самого блока питания, когда программа завершается, температура не читается или превышает %1.</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>Этот блок питания управляет вентилятором сам; у моделей с настройкой скорости здесь кривая вентилятора.</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>Когда подключится блок питания с настройкой скорости, здесь появится кривая его вентилятора.</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>ПК сейчас выключится</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>ПК сейчас перезагрузится</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>ПК сейчас перейдёт в режим сна</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>Выключить</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>Перезагрузить</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>В режим сна</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>Запрошено удалённой командой. Программы будут закрыты: нужно сохранить работу или нажать «Отмена».</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>Запрошено удалённой командой. Программы не закроются и продолжат работу, когда ПК проснётся.</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>Осталось секунд: %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>сек</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>Энергия</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>ПК</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>Энергия и стоимость</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>Сегодня</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>Этот месяц</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>Этот год</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>Прогноз на год</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>через сутки</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>%1 из сети</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>%1 на выходе</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>КПД неизвестен: вход считается равным выходу</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>Этот сеанс</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>Прошлый сеанс</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>С первого запуска</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>Задать тариф…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>Тариф…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>Из сети: выход и потери в блоке питания, по кривой КПД его модели.</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>Процессор и видеокарта</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>Процессор</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>Видеокарта</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>Датчики ПК не опрашиваются</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>Здесь могут быть температура, мощность, напряжение и ток процессора и видеокарты, если в этом ПК есть такие датчики.</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>Опрашивать</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>Ожидание первых показаний</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>Датчики этого ПК ничего не сообщают</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>Нужно число, например %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>От 0 до %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>Десятичных знаков: до %1</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 ч</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>Тариф на электроэнергию</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>Цена за kWh</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>не задана</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>Валюта</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>Другие цены в отдельные часы</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>Цена действует круглосуточно. Если по договору ночи или выходные дешевле, их можно добавить здесь.</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>Действует первая подходящая строка. Если такой нет — цена выше.</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>Добавить период</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>Максимум периодов: %1</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>Период %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>Дни</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>С</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>До</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>Цена</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>Конец на следующий день</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>Выше</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>Удалить</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>Когда какая цена</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>Сохранить</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>Нужно время от %1 до %2</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>Нужен хотя бы один день</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>Нужен код из трёх букв, например %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W, нагрузка %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G продолжает работу в трее</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>Щелчок по значку снова откроет окно. «Выход» в его меню завершает программу.</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>Попробовать с имитацией блока питания</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>Выйти из демо</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>Следит за цифровым блоком питания, ведёт его историю, управляет его вентилятором и подсветкой.</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>Копировать сведения для отчёта</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>Модель, номинал, подключение и версии. Без серийного номера и путей к папкам.</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>Блок питания</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>Модель</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>Номинал</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>Серийный номер</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>Подключение</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>нет</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB, основной канал</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB, прямой канал</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>имитация</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>Программа</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>Папка данных</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>Сборка</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>Система</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>Лицензия</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>Встроенные библиотеки и их лицензии</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>Клавиатура</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>Открыть страницу</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>Следующий элемент; с Shift — предыдущий</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>Двигать или менять выбранное</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>Нажать выбранную кнопку или переключатель</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>Закрыть всплывающее окно, снять выбор</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>Настройки</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>О программе</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>Свернуть (на этом рабочем столе нет трея)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>Сохранено: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>Настройки не сохранены: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>Ничего не импортировано: %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>это не файл настроек или файл более новой версии</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>Настройки из файла теперь действуют.</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>Настройки действуют до завершения программы: записать их на диск не удалось.</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>Все настройки вернулись к исходным.</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>Прослушивается порт %1. Подключено программ: %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>Порт %1 занят другой программой.</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>Выкл.: брокер не указан.</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>Подключено к %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>Подключение к %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>Нет связи с %1 (%2). Попытки повторяются автоматически.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>Выкл.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>Опрос…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>Не задан</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>%1 за kWh</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>%1 за kWh сейчас. Периодов: %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>Процессор %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>Видеокарта %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>Опрос раз в секунду</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>В системе не загружен драйвер датчиков. Загрузить его можно командой «sudo modprobe coretemp» (Intel) или «sudo modprobe k10temp» (AMD); картам NVIDIA нужен драйвер NVIDIA.</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>Нужно установить и запустить HWiNFO и включить в его настройках «Shared Memory Support».</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>Настройки</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>Разделы</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>Общие</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>Энергия</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>Тревоги</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>Удалённый доступ</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>Датчики ПК</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>Данные</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>Язык и отображение</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>Язык</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>Для окна, меню в трее и всех сообщений.</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>Как в системе</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>Единица температуры</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>Используется везде, где показана температура.</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>Размер текста</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>Крупный занимает всё свободное место в окне.</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>Обычный</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>Крупный</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>Запуск и трей</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>Запускать с системой</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>Запуск при входе в систему, чтобы в истории не пропал ни один час.</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>Запускать свёрнутой в трей</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>При входе в систему окно не открывается; его покажет щелчок по значку в трее.</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>На значке в трее</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>Значение, которое видно, не открывая окна.</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>Нагрузка</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>Температура</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>Ничего</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>Нужно включить «%1».</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>Стоимость</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>Тариф на электроэнергию</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>Цена киловатт-часа. По ней считается вся стоимость.</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>Изменить…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>Как считается энергия</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>Из сети</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>Считается то, что блок питания берёт из розетки: выход и потери на тепло. Так же считает и электросчётчик.</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>Пропуски не считаются</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>Пока программа закрыта или блок питания не подключён, ничего не добавляется и не домысливается.</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>Предупреждать</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>Журнал тревог</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>Какие тревоги активны сейчас и какие были раньше.</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>Сокет управления</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>Позволяет плеерам, умному дому и скриптам на этом ПК управлять подсветкой.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>Доступ с других ПК</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>Программы на других ПК тоже смогут управлять подсветкой.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>Пароля нет: управлять подсветкой сможет любой в локальной сети.</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>Позволяет умному дому читать показания блока питания и управлять им через брокер в локальной сети.</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>Хост</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>Имя или адрес брокера. Пусто: без MQTT.</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>Для остального нужно указать хост.</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>Нужен хост.</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>Порт</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>Обычно 1883, с файлом ЦС — 8883.</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>Пользователь</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>Пусто, если брокер его не требует.</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>Пароль</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>Без файла ЦС идёт по сети в незашифрованном виде.</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>Показать</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>Скрыть</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>Файл ЦС</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>Шифрует соединение: сертификат центра сертификации, по которому проверяется брокер (PEM).</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>Выбрать…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>Выбрать файл ЦС</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>Сертификаты (*.pem *.crt *.cer);;Все файлы (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>Топики</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>Префикс публикации</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>Начало топика, в который идут ответы.</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>ID аккаунта</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>Конец топика, в который идут ответы. Можно не указывать.</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>Префикс подписки</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>Начало топика, из которого приходят команды.</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>ID продукта</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>Конец топика, из которого приходят команды. Можно не указывать.</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>Применить</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>Отменить</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>Ещё не применено</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>Ещё не применено. Enter применяет, Esc отменяет.</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Обнаружение в Home Assistant</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>Блок питания сам появляется в Home Assistant.</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>Только имя или адрес, без пробелов и косых черт; порт указывается отдельно.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>Порт — целое число от 1 до %1.</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>Не может быть пустым.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>Пробелы, # и + здесь недопустимы.</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>Не может начинаться с /.</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation># и + здесь недопустимы.</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>Такого файла нет.</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>Этот файл нельзя прочитать.</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>Метрики</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>Позволяет Prometheus и другим программам мониторинга на этом ПК собирать показания.</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>Отдавать метрики</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>Читать их могут только программы на этом ПК.</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>Если этот занят, нужно выбрать другой.</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>Питание</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>Удалённое выключение</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>Команда по MQTT может выключить ПК, перезагрузить его или перевести в режим сна. На отмену есть минута.</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>Это сможет сделать любой с правом отправки в брокер.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>Датчики этого ПК</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>Опрашивать датчики ПК</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>Показывает процессор и видеокарту рядом с показаниями блока питания.</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>Место хранения</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>Папка данных</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>Здесь настройки, записанная история и журнал тревог.</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>Открыть папку</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>Все настройки</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>Экспорт настроек</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>В файл: как резервная копия или для другого ПК.</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>Экспорт…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>Импорт настроек</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>Заменяет все настройки взятыми из такого файла.</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>Импорт…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>Настройки ZPS G</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>Сброс всех настроек</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>Всё станет как при первом запуске. Записи сохранятся.</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>Сбросить…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>Сбросить всё?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>Да, сбросить</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="FAN_RPM">
        <source></source>
        <translation>об/мин</translation>
    </message>
    <message id="FAN_TARGET_RPM">
        <source></source>
        <translation>об/мин</translation>
    </message>
    <message id="NAV_UPDATE">
        <source></source>
        <translation>%1, доступна новая версия</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>Доступна версия ZPS G %1</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>На странице «О программе» указано, что нового и где её скачать. Ничего не загружено.</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>Доступна версия %1</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>Сейчас используется версия %1.</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>Открыть страницу загрузки</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>Откроется в браузере: %1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>Введите адрес, который начинается с https:// и не содержит имени пользователя.</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>Соединение с %1 небезопасно, поэтому запрос не отправлен.</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>По этому адресу %1 не сообщает, какая версия самая новая.</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 не отвечает.</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>Проверка…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>Доступна версия %1. Перейти к ней можно со страницы «О программе».</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>У вас самая новая версия, %1.</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>Обновления</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>Новые версии ZPS G</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>Программа только сообщает о них: сама она ничего не загружает и не устанавливает.</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>Сообщать о новых версиях</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>Раз в день обращается по адресу ниже. Передаётся только номер этой версии.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>Адрес</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>Где объявляется новейшая версия; начинается с https://. Пусто: без запросов.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>Проверка вручную</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>Один запрос по адресу, даже если переключатель выключен.</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>Проверить</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>Нужен адрес.</translation>
    </message>
</context>
</TS>
