<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>Abrir ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>Salir</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>Las lecturas no se registran</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>El disco no admite más datos. Los minutos se conservan y se escribirán en cuanto haya espacio.</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>Minimizar</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>Cerrar a la bandeja</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>Potencia de salida</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>Entrada de red</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>Temperatura</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>Ventilador</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%1 % de %2 W</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>Caliente</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>Detenido</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>Al límite</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>Fuera de rango</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>Potencia de salida, últimos 5 min (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>Pico %1 W   ·   Media %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>Sin lecturas en los últimos 5 minutos</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>ahora</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 min</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>Conectada</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>Fuente no detectada</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>Compruebe su cable USB a la placa base. Se detecta al conectarlo.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>Sin acceso a la fuente</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>La fuente se detecta, pero su cuenta de usuario no puede abrirla.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>Su cuenta de usuario no puede abrirla. Ejecute esto una vez en un terminal:</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>La fuente no responde</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>Los valores en gris son los últimos leídos. El programa sigue consultando.</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>Copiar</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>Copiado</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>Demo – fuente simulada</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>Silencio</translation>
    </message>
    <message id="MAIN_STR_FAN_PERFORMANCE">
        <source></source>
        <translation>Rendimiento</translation>
    </message>
    <message id="MAIN_STR_ZERO_FAN">
        <source></source>
        <translation>Zero Fan</translation>
    </message>
    <message id="NAV_DASHBOARD">
        <source></source>
        <translation>Panel</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>Alarmas</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1, activas: %2</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>Línea %1 fuera de rango</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>Debe estar por encima de %1 V y por debajo de %2 V; revise los cables de la fuente y reduzca la carga.</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>Ventilador detenido</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>Gira a %1 rpm o menos; compruebe que nada lo bloquee.</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>Fuente muy caliente</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>Ha alcanzado su límite de %1; compruebe que el aire llegue al ventilador y vuelva a salir.</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>desde %1</translation>
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
        <translation>Alarma</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>y %1 más</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>Ver alarmas</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>Alarmas</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>Una alarma comienza cuando una lectura está fuera de rango en más de nueve de los últimos sesenta segundos.</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>Aviso de voltaje</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>Cuando una línea sale de su rango de ±6 %.</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>Aviso de ventilador</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>Cuando el ventilador está detenido y no debería.</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>Aviso de temperatura</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>Cuando la fuente alcanza %1.</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>Registro</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>Registro (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>Vaciar</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>Borrar las alarmas terminadas</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>Sin alarmas</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>Aquí aparecerá todo lo que salga de su rango, con su hora y su duración.</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>Alarma</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>Valor</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>Fin</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>Duración</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>activa</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>El programa terminó antes que la alarma.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>Eficiencia</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>%1 W de red</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>Lo que la fuente toma de la red, calculado a partir de su salida y la eficiencia.</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>Potencia de salida y eficiencia</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 minutos</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>Hoy</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>Eficiencia</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>Potencia de salida hoy (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>Media %1 W   ·   Pico %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>En uso %1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>Cada barra es la media de cuatro minutos y el pico es la barra más alta. Todas son de hoy: las horas anteriores a las 06:00 están en el extremo derecho, tras la medianoche.</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>Aún no hay registros de hoy. Se añade una barra cada cuatro minutos mientras la fuente está conectada.</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   sin registros</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>Eficiencia a %1 V según potencia de salida</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>Máx. %1 % a %2 W</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>Según la curva del modelo; la fuente no mide su entrada.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>La curva recoge los límites de la certificación 80 PLUS de este modelo. La entrada y la pérdida térmica se calculan con ella; la fuente no mide su entrada.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>%1 con %2 de salida, %3 de la red, %4 de calor</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>No hay curva de eficiencia para el modelo de esta fuente.</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>nominal %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>De la red</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>Pérdida térmica</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>Historial</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>Historial</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>Adelante</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>Hoy</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>Periodo</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>Semana</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>Mes</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>Año</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>Rango</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>Desde</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>Hasta</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>Totales del periodo</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>Qué muestran las barras</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>Energía</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>Potencia media</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>Energía por día (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>Potencia media por día (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>Energía por mes (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>Potencia media por mes (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>Los días quedarían muy finos: cada barra es un mes</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>Haga clic en una barra para ver debajo sus minutos; una barra de mes abre ese mes. Las flechas van de barra en barra, Intro abre una, Re Pág y Av Pág retroceden y avanzan.</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>Día más alto</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>Día más bajo</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>Media histórica</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>con %1 de eficiencia</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>en %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1, hasta ahora</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>Registrado</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>%1 registrados</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>Sin registros</translation>
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
        <translation>Minutos del día</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>Todo el día</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>Gire la rueda para ampliar, arrastre para desplazar, haga doble clic para volver a ver todo el día. Teclas: + y − amplían y reducen, las flechas desplazan, Mayús y flechas van minuto a minuto, Inicio muestra todo el día.</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>Se pueden mostrar una o dos a la vez, cada una con su propio eje.</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>Potencia</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>Líneas</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>Corrientes</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>Temperatura</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>Ventilador</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>Eficiencia</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>Desviación de las líneas de su voltaje nominal</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>Mínimo, media y máximo de lo visible</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>mín.</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>media</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>máx.</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>Cargando…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>Aún no hay registros.
Mientras la fuente está conectada se registra cada minuto, y la barra de hoy aparece aquí en pocos minutos.</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>No se registró nada en este periodo.</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>No hay minutos de este día.</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>Aquí aparecerán los minutos del día elegido.</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>Exportar</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>Días</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>Minutos</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>Elegir archivo…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>Exportar el historial</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>Exportando, %1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>Líneas escritas: %1</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>Líneas escritas: %1; filas ilegibles: %2</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>Exportación cancelada; no se creó el archivo</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>No se exportó: %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>Iluminación</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>Iluminación</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>Los cambios se ven ya en el anillo. «Guardar» los conserva para el próximo inicio.</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>La fuente no está conectada. Los cambios se conservan y se envían cuando vuelva.</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>Sin luces que ajustar</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>No hay ninguna fuente con ventilador iluminado. En cuanto se conecte una, aquí aparecerán los ajustes de su anillo.</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>Qué muestra el anillo</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>Luces del anillo</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>Haga clic en una luz para elegirla, con Mayús para añadirla o quitarla. Arrastre para elegir varias. Teclas: las flechas mueven, con Mayús eligen más, Espacio añade o quita, Ctrl+A elige todas, Esc ninguna.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>Haga clic o arrastre para elegir luces. Sin elegir: todas.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>Todas</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>Ninguna</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>Frontal</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>Central</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>Anillo frontal</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>Anillo central</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>todas las luces</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1 de %2 luces</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>todo el anillo</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>Color: %1</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>La temperatura define el color</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>El efecto usa sus propios colores</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>Anillo de un color</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>Anillo de 12 luces</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>Anillos frontal y central</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>Luces</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>Enciende y apaga las luces; todo lo demás queda como está ajustado</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>Apagado</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>Restablecer</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>Devuelve el anillo a sus ajustes de fábrica</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>Guarda los ajustes actuales</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>Color</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>Colores</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>Único</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>Anterior</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>Siguiente</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>Tono y saturación</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>Izquierda y derecha giran el tono, arriba y abajo cambian la saturación, con Mayús en pasos pequeños</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>Color como #RRGGBB</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>No es un color: use #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>Muestras de color</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>El anillo muestra la carga en lugar del efecto.</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>El anillo muestra la temperatura en lugar del efecto.</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>Las luces siguen lo que suena en el PC.</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>No se encontró salida de sonido. Las luces esperan hasta que la haya.</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>Mostrar en el anillo</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>Efecto</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>Carga</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>Temperatura</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>Colores que cualquiera distingue</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>Indicadores y alarmas evitan pares de colores que las personas daltónicas confunden</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>Alarma en el anillo</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>Mientras una alarma está activa, el anillo avisa con cualquier efecto</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>Apagar en bloqueo o suspensión</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>Las luces se apagan mientras el PC está bloqueado o suspendido y vuelven después</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>Modo de luz</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>Modo de color</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>Brillo</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>Estático</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>Espectro</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>Parpadeo</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>Parpadeo de color</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>Flujo</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>Espectro RGB</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>Ondas</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>Parpadeo</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>Pulso</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>Ola</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>Todo encendido</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>Extrema</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>Rápida</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>Lenta</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>Rojo</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>Naranja</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>Amarillo</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>Lima</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>Verde</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>Menta</translation>
    </message>
    <message id="COLOUR_CYAN">
        <source></source>
        <translation>Cian</translation>
    </message>
    <message id="COLOUR_AZURE">
        <source></source>
        <translation>Azur</translation>
    </message>
    <message id="COLOUR_BLUE">
        <source></source>
        <translation>Azul</translation>
    </message>
    <message id="COLOUR_VIOLET">
        <source></source>
        <translation>Violeta</translation>
    </message>
    <message id="COLOUR_MAGENTA">
        <source></source>
        <translation>Magenta</translation>
    </message>
    <message id="COLOUR_ROSE">
        <source></source>
        <translation>Rosa</translation>
    </message>
    <message id="COLOUR_WHITE">
        <source></source>
        <translation>Blanco</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>Flujo</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>Espectro RGB</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>Ondas</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>Parpadeo</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>Pulso</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>Ola</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>Todo encendido</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>Copia de color</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>Cine</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>Juego</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>Fiesta</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>Música móvil 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>Música móvil 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>Música móvil 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>Térmico</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>Cruz</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>Latido</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>Barrido</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>Remolino</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>Gota</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>Apilado</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>Ventilador</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>Ventilador</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>La fuente no está conectada. El modo que se elija ahora se conserva y se aplica cuando vuelva.</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>%1 % del máximo</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (elegido)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>fijado por la curva</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>Elegir modo del ventilador</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>Velocidad objetivo</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>Porcentaje del máximo, de 30 a 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>Aplicar</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>Última hora</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>Aún no hay lecturas en la última hora.</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>Ventilador de %1 a %2 rpm, temperatura de %3 a %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>Curva</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>Inactiva</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>Activa al %1 %</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ Pausa: muy caliente</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ Pausa: sin lectura</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>Espera a la fuente</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>En qué se basa la curva</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>Carga</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>Añadir un punto (Insert)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>Quitar el punto seleccionado (Supr)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>Arrastre un punto; doble clic para añadir otro. Teclas: las flechas mueven el punto seleccionado, Re Pág y Av Pág seleccionan otro, Insert añade, Supr quita.</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>Punto %1 de %2: %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>Reducir tras una bajada de</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>Cambiar como máximo cada</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>Vuelve al modo propio de la fuente al cerrar el programa, si no se puede leer la temperatura o si supera los %1.</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>Esta fuente controla su ventilador por sí sola; los modelos que admiten una velocidad propia tienen aquí una curva.</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>En cuanto se conecte una fuente que admita una velocidad propia, aquí estará su curva.</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>El PC se va a apagar</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>El PC se va a reiniciar</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>El PC se va a suspender</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>Apagar ahora</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>Suspender ahora</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>Lo ha pedido un comando remoto. Se cerrarán los programas: guarde su trabajo o cancele.</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>Lo ha pedido un comando remoto. Los programas quedan abiertos y continúan cuando el PC se reactive.</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>Segundos restantes: %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>seg</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>Energía</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>PC</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>Energía y coste</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>Hoy</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>Este mes</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>Este año</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>Previsión anual</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>tras un día</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>%1 de la red</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>%1 de salida</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>Eficiencia desconocida: la red cuenta como la salida</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>Esta sesión</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>Sesión anterior</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>Desde el primer inicio</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>Fijar tarifa eléctrica…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>Tarifa…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>De la red: la salida y lo que se pierde en la fuente, según la curva de eficiencia de su modelo.</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>Procesador y tarjeta gráfica</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>Procesador</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>Tarjeta gráfica</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>No se leen los sensores del PC</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>Aquí pueden verse la temperatura, la potencia, el voltaje y la corriente del procesador y la tarjeta gráfica, si este PC tiene sensores para ello.</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>Leerlos</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>Esperando la primera lectura</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>Ningún sensor de este PC da lecturas</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>Escriba un número, como %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>De 0 a %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>Máximo %1 decimales</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>Tarifa eléctrica</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>Precio del kWh</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>sin fijar</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>Moneda</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>Otros precios en ciertas horas</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>El precio se aplica a todas horas. Si su contrato tiene noches o fines de semana más baratos, añádalos aquí.</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>Se aplica la primera fila que coincida. Si no hay ninguna, el precio de arriba.</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>Añadir franja</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>Máximo %1 franjas</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>Franja %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>Días</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>Desde</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>Hasta</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>Precio</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>Termina al día siguiente</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>Subir</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>Quitar</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>Precios de la semana</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>Escriba una hora de %1 a %2</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>Elija al menos un día</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>Escriba un código de tres letras, como %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W, carga %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G sigue en la bandeja</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>Haga clic en su icono para volver a abrir la ventana. «Salir», en su menú, cierra el programa.</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>Explorar con una fuente simulada</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>Salir de la demo</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>Vigila su fuente de alimentación digital, guarda su historial y ajusta su ventilador y sus luces.</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>Copiar datos para un informe</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>Modelo, potencia nominal, conexión y versiones. Sin el número de serie ni sus carpetas.</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>Esta fuente</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>Modelo</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>Potencia nominal</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>Número de serie</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>Conexión</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>ninguna</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB, vía principal</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB, vía directa</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>simulada</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>Este programa</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>Carpeta de datos</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>Compilación</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>Sistema</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>Licencia</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>Bibliotecas incluidas y sus licencias</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>Teclado</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>Ir a una página</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>Control siguiente; con Mayús, el anterior</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>Mover o cambiar lo seleccionado</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>Pulsar el botón o interruptor seleccionado</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>Cerrar la ventana emergente, quitar la selección</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>Acerca de</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>Minimizar (este escritorio no tiene bandeja)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>Guardado en %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>No se guardaron los ajustes: %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>No se importó nada: %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>no es un archivo de ajustes o es de una versión más reciente</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>Los ajustes del archivo ya se aplican.</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>Los ajustes valen hasta que termine el programa: no se pudieron escribir en el disco.</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>Todos los ajustes están como al principio.</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>Escucha en el puerto %1. Programas conectados: %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>Otro programa usa el puerto %1.</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>Inactivo: sin bróker indicado.</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>Conectado a %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>Conectando a %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>No se puede acceder a %1 (%2). Se reintenta automáticamente.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>Inactivo</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>Leyendo…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>Sin fijar</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>%1 por kWh</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>%1 por kWh ahora. Franjas: %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>Procesador %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>Tarjeta gráfica %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>Lectura cada segundo</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>El sistema no tiene cargado ningún controlador de sensores. Cárguelo con «sudo modprobe coretemp» (Intel) o «sudo modprobe k10temp» (AMD); las tarjetas NVIDIA necesitan el controlador de NVIDIA.</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>Instale e inicie HWiNFO y active «Shared Memory Support» en sus ajustes.</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>Secciones</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>Energía</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>Alarmas</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>Control remoto</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>Sensores del PC</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>Datos</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>Idioma y apariencia</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>Idioma</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>Para la ventana, el menú de bandeja y todos los mensajes.</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>Igual que el sistema</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>Unidad de temperatura</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>Se usa donde aparezca una temperatura.</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>Tamaño de texto</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>El grande aprovecha todo el espacio de la ventana.</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>Grande</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>Inicio y bandeja</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>Iniciar con el sistema</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>Arranca al iniciar sesión, para que no falte ninguna hora en el historial.</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>Iniciar oculto en la bandeja</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>Al iniciar sesión no se abre la ventana; la muestra un clic en el icono de bandeja.</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>Icono de bandeja</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>El valor que puede leer sin abrir la ventana.</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>Carga</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>Temperatura</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>Nada</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>Requiere activar «%1».</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>Coste</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>Tarifa eléctrica</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>Lo que paga por un kilovatio hora. De ahí salen todos los costes.</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>Cambiar…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>Cómo se cuenta la energía</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>De la red</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>Cuenta lo que la fuente toma del enchufe: su salida y lo que pierde en calor. Su contador hace lo mismo.</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>Los huecos no cuentan</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>Con el programa cerrado o la fuente sin conectar no se añade ni se supone nada.</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>Avisarme</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>Registro de alarmas</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>Qué alarmas están activas ahora y cuáles hubo antes.</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>Socket de control</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>Permite que reproductores de música, domótica y scripts de este PC ajusten las luces.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>Permitir otros equipos</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>Los programas de otros equipos también podrán ajustar las luces.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>No hay contraseña: cualquiera en su red podrá ajustarlas.</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>Permite que la domótica lea la fuente y la controle a través de un bróker en su red.</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>Host</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>Nombre o dirección del bróker. Vacío: sin MQTT.</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>Indique un host para ajustar el resto.</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>Requiere un host.</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>Puerto</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>Suele ser 1883, u 8883 con archivo CA.</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>Usuario</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>Vacío si el bróker no lo pide.</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>Contraseña</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>Sin archivo CA viaja por la red sin cifrar.</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>Mostrar</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>Ocultar</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>Archivo CA</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>Cifra la conexión: el certificado de la autoridad con el que se comprueba el bróker (PEM).</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>Elegir…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>Elegir el archivo CA</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>Certificados (*.pem *.crt *.cer);;Todos los archivos (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>Temas</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>Prefijo de publicación</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>Inicio del tema al que van las respuestas.</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>ID de cuenta</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>Final del tema al que van las respuestas. Puede quedar vacío.</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>Prefijo de suscripción</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>Inicio del tema del que llegan los comandos.</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>ID de producto</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>Final del tema del que llegan los comandos. Puede quedar vacío.</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>Aplicar</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>Descartar</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>Aún sin aplicar</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>Aún sin aplicar. Intro aplica, Esc descarta.</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Detección en Home Assistant</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>La fuente aparece sola en Home Assistant.</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>Solo el nombre o la dirección, sin espacios ni barras; el puerto tiene su propio campo.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>El puerto es un número entero de 1 a %1.</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>No puede estar vacío.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>Aquí no se admiten espacios, # ni +.</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>No puede empezar por /.</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation>Aquí no se admiten # ni +.</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>No se puede leer este archivo.</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>Métricas</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>Permite que Prometheus y otros programas de monitorización de este PC recojan las lecturas.</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>Ofrecer métricas</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>Solo los programas de este PC pueden leerlas.</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>Elija otro si este está ocupado.</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>Alimentación</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>Apagado remoto</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>Un comando por MQTT puede apagar, reiniciar o suspender este PC. Tiene un minuto para cancelar.</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>Cualquiera que pueda enviar a su bróker podrá hacerlo.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>Sensores de este PC</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>Leer los sensores del PC</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>Muestra procesador y tarjeta gráfica junto a las lecturas de la fuente.</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>Dónde se guarda</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>Carpeta de datos</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>Contiene los ajustes, el historial registrado y el registro de alarmas.</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>Abrir carpeta</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>Todos los ajustes</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>Exportar ajustes</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>A un archivo: como copia de seguridad o para otro PC.</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>Exportar…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>Importar ajustes</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>Sustituye todos los ajustes por los de un archivo así.</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>Importar…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>Ajustes de ZPS G</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>Restablecer los ajustes</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>Todo como en el primer inicio. Sus registros se conservan.</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>Restablecer…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>¿Restablecer todo?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>Sí, restablecer</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>No</translation>
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
        <translation>%1, hay una versión nueva</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>ZPS G %1 está disponible</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>La página «Acerca de» indica las novedades y lleva a la descarga. No se ha descargado nada.</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>La versión %1 está disponible</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>Está usando la versión %1.</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>Abrir la página de descarga</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>Se abre en el navegador: %1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>Escriba una dirección que empiece por https:// y no contenga un nombre de usuario.</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>La conexión con %1 no es segura, así que no se ha consultado nada.</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1 no indica en esta dirección cuál es la versión más reciente.</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 no responde.</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>Comprobando…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>La versión %1 está disponible. La página «Acerca de» lleva a ella.</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>Tiene la versión más reciente, la %1.</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>Actualizaciones</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>Nuevas versiones de ZPS G</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>Solo se le avisa: nada se descarga ni se instala por sí solo.</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>Avisar de nuevas versiones</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>Consulta la dirección de abajo una vez al día. Solo envía el número de esta versión.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>Dirección</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>Donde se anuncia la última versión; empieza por https://. Vacío: no se consulta.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>Comprobación manual</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>Consulta la dirección una vez, aunque el interruptor esté apagado.</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>Comprobar</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>Requiere una dirección.</translation>
    </message>
</context>
</TS>
