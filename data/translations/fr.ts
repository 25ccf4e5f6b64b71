<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name></name>
    <message id="TRAYICON_NAME">
        <source></source>
        <translation>ZPS G</translation>
    </message>
    <message id="TRAYICON_LAUNCH">
        <source></source>
        <translation>Ouvrir ZPS G</translation>
    </message>
    <message id="TRAYICON_EXIT">
        <source></source>
        <translation>Quitter</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED">
        <source></source>
        <translation>Mesures impossibles à enregistrer</translation>
    </message>
    <message id="TRAYICON_NOT_RECORDED_HINT">
        <source></source>
        <translation>Le disque est plein. Les minutes sont gardées et seront écrites dès qu’il y aura de la place.</translation>
    </message>
    <message id="MAIN_STR_MINIMISE">
        <source></source>
        <translation>Réduire</translation>
    </message>
    <message id="MAIN_STR_CLOSE_TO_TRAY">
        <source></source>
        <translation>Masquer en zone de notification</translation>
    </message>
    <message id="MAIN_STR_OUTPUT_POWER">
        <source></source>
        <translation>Puissance fournie</translation>
    </message>
    <message id="MAIN_STR_INPUT_VOLTAGE">
        <source></source>
        <translation>Entrée secteur</translation>
    </message>
    <message id="MAIN_STR_TEMPERATURE">
        <source></source>
        <translation>Température</translation>
    </message>
    <message id="MAIN_STR_FAN">
        <source></source>
        <translation>Ventilateur</translation>
    </message>
    <message id="MAIN_STR_LOAD">
        <source></source>
        <translation>%1 % de %2 W</translation>
    </message>
    <message id="MAIN_STR_HOT">
        <source></source>
        <translation>Chaud</translation>
    </message>
    <message id="MAIN_STR_FAN_STANDS">
        <source></source>
        <translation>Arrêté</translation>
    </message>
    <message id="MAIN_STR_RAIL_NEAR_LIMIT">
        <source></source>
        <translation>Limite proche</translation>
    </message>
    <message id="MAIN_STR_RAIL_OUT_OF_RANGE">
        <source></source>
        <translation>Hors limites</translation>
    </message>
    <message id="MAIN_STR_POWER_TRACE">
        <source></source>
        <translation>Puissance fournie, 5 dernières min (W)</translation>
    </message>
    <message id="MAIN_STR_TRACE_SUMMARY">
        <source></source>
        <translation>Pic %1 W   ·   Moyenne %2 W</translation>
    </message>
    <message id="MAIN_STR_NO_READINGS">
        <source></source>
        <translation>Aucune mesure ces 5 dernières minutes</translation>
    </message>
    <message id="MAIN_STR_NOW">
        <source></source>
        <translation>maintenant</translation>
    </message>
    <message id="MAIN_STR_MINUTES_AGO">
        <source></source>
        <translation>−%1 min</translation>
    </message>
    <message id="MAIN_STR_LINK_LIVE">
        <source></source>
        <translation>Connectée</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE">
        <source></source>
        <translation>Aucune alimentation trouvée</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_DEVICE_HINT">
        <source></source>
        <translation>Vérifiez son câble USB vers la carte mère. Elle est détectée une fois branchée.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION">
        <source></source>
        <translation>Accès à l’alimentation refusé</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_HINT">
        <source></source>
        <translation>L’alimentation est là, mais votre compte ne peut pas y accéder.</translation>
    </message>
    <message id="MAIN_STR_LINK_NO_PERMISSION_REMEDY">
        <source></source>
        <translation>Votre compte n’y a pas accès. Exécutez ceci une fois dans un terminal :</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT">
        <source></source>
        <translation>L’alimentation ne répond pas</translation>
    </message>
    <message id="MAIN_STR_LINK_SILENT_HINT">
        <source></source>
        <translation>Les valeurs grisées sont les dernières lues. Le programme continue d’essayer.</translation>
    </message>
    <message id="MAIN_STR_COPY">
        <source></source>
        <translation>Copier</translation>
    </message>
    <message id="MAIN_STR_COPIED">
        <source></source>
        <translation>Copié</translation>
    </message>
    <message id="MAIN_STR_DEMO">
        <source></source>
        <translation>Démo – alimentation simulée</translation>
    </message>
    <message id="MAIN_STR_FAN_SILENT">
        <source></source>
        <translation>Silencieux</translation>
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
        <translation>Aperçu</translation>
    </message>
    <message id="NAV_ALARMS">
        <source></source>
        <translation>Alarmes</translation>
    </message>
    <message id="NAV_BADGE">
        <source></source>
        <translation>%1, %2 en cours</translation>
    </message>
    <message id="ALARM_RAIL">
        <source></source>
        <translation>Rail %1 hors limites</translation>
    </message>
    <message id="ALARM_RAIL_ADVICE">
        <source></source>
        <translation>Il doit rester entre %1 V et %2 V ; vérifiez les câbles de l’alimentation et réduisez la charge.</translation>
    </message>
    <message id="ALARM_FAN">
        <source></source>
        <translation>Ventilateur arrêté</translation>
    </message>
    <message id="ALARM_FAN_ADVICE">
        <source></source>
        <translation>Il tourne à %1 rpm ou moins ; vérifiez que rien ne le bloque.</translation>
    </message>
    <message id="ALARM_TEMPERATURE">
        <source></source>
        <translation>Alimentation trop chaude</translation>
    </message>
    <message id="ALARM_TEMPERATURE_ADVICE">
        <source></source>
        <translation>Elle a atteint sa limite de %1 ; vérifiez que son ventilateur peut aspirer et évacuer l’air.</translation>
    </message>
    <message id="ALARM_SINCE">
        <source></source>
        <translation>depuis %1</translation>
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
        <translation>%1 j %2 h</translation>
    </message>
    <message id="ALARM_BANNER_NAME">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="ALARM_MORE">
        <source></source>
        <translation>et %1 de plus</translation>
    </message>
    <message id="ALARM_SHOW_LOG">
        <source></source>
        <translation>Voir les alarmes</translation>
    </message>
    <message id="ALARM_PAGE_TITLE">
        <source></source>
        <translation>Alarmes</translation>
    </message>
    <message id="ALARM_PAGE_RULE">
        <source></source>
        <translation>Une alarme se déclenche quand une mesure est hors limites pendant plus de neuf des soixante dernières secondes.</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE">
        <source></source>
        <translation>Alerte tension</translation>
    </message>
    <message id="ALARM_GROUP_VOLTAGE_HINT">
        <source></source>
        <translation>Quand un rail sort de ses limites de ±6 %.</translation>
    </message>
    <message id="ALARM_GROUP_FAN">
        <source></source>
        <translation>Alerte ventilateur</translation>
    </message>
    <message id="ALARM_GROUP_FAN_HINT">
        <source></source>
        <translation>Quand le ventilateur s’arrête à tort.</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE">
        <source></source>
        <translation>Alerte température</translation>
    </message>
    <message id="ALARM_GROUP_TEMPERATURE_HINT">
        <source></source>
        <translation>Quand l’alimentation atteint %1.</translation>
    </message>
    <message id="ALARM_LOG">
        <source></source>
        <translation>Journal</translation>
    </message>
    <message id="ALARM_LOG_COUNT">
        <source></source>
        <translation>Journal (%1)</translation>
    </message>
    <message id="ALARM_CLEAR_LOG">
        <source></source>
        <translation>Vider</translation>
    </message>
    <message id="ALARM_CLEAR_LOG_HINT">
        <source></source>
        <translation>Effacer du journal les alarmes terminées</translation>
    </message>
    <message id="ALARM_LOG_EMPTY">
        <source></source>
        <translation>Aucune alarme</translation>
    </message>
    <message id="ALARM_LOG_EMPTY_HINT">
        <source></source>
        <translation>Tout ce qui sort de ses limites sera listé ici, avec l’heure et la durée.</translation>
    </message>
    <message id="ALARM_COLUMN_WHAT">
        <source></source>
        <translation>Alarme</translation>
    </message>
    <message id="ALARM_COLUMN_VALUE">
        <source></source>
        <translation>Valeur</translation>
    </message>
    <message id="ALARM_COLUMN_BEGAN">
        <source></source>
        <translation>Début</translation>
    </message>
    <message id="ALARM_COLUMN_ENDED">
        <source></source>
        <translation>Fin</translation>
    </message>
    <message id="ALARM_COLUMN_LASTED">
        <source></source>
        <translation>Durée</translation>
    </message>
    <message id="ALARM_HOLDS">
        <source></source>
        <translation>en cours</translation>
    </message>
    <message id="ALARM_END_UNKNOWN">
        <source></source>
        <translation>Le programme s’est terminé avant l’alarme.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY">
        <source></source>
        <translation>Rendement</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER">
        <source></source>
        <translation>entrée %1 W</translation>
    </message>
    <message id="MAIN_STR_INPUT_POWER_EXPLAINED">
        <source></source>
        <translation>Ce que l’alimentation prélève sur le secteur, calculé d’après la puissance fournie et le rendement.</translation>
    </message>
    <message id="MAIN_STR_TREND">
        <source></source>
        <translation>Puissance fournie et rendement</translation>
    </message>
    <message id="MAIN_STR_TREND_MINUTES">
        <source></source>
        <translation>5 minutes</translation>
    </message>
    <message id="MAIN_STR_TREND_TODAY">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="MAIN_STR_TREND_EFFICIENCY">
        <source></source>
        <translation>Rendement</translation>
    </message>
    <message id="MAIN_STR_DAY">
        <source></source>
        <translation>Puissance fournie ce jour (W)</translation>
    </message>
    <message id="MAIN_STR_DAY_SUMMARY">
        <source></source>
        <translation>Moyenne %1 W   ·   Pic %2 W   ·   %3</translation>
    </message>
    <message id="MAIN_STR_DAY_USAGE">
        <source></source>
        <translation>En marche %1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_DAY_EXPLAINED">
        <source></source>
        <translation>Chaque barre est la moyenne de quatre minutes, et le pic est la barre la plus haute. Toutes les barres sont d’aujourd’hui : les heures avant 06:00 se trouvent à droite, après minuit.</translation>
    </message>
    <message id="MAIN_STR_DAY_EMPTY">
        <source></source>
        <translation>Encore rien aujourd’hui. Une barre s’ajoute toutes les quatre minutes tant que l’alimentation est connectée.</translation>
    </message>
    <message id="MAIN_STR_DAY_BAR">
        <source></source>
        <translation>%1   %2 W</translation>
    </message>
    <message id="MAIN_STR_DAY_NO_BAR">
        <source></source>
        <translation>%1   rien d’enregistré</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_AT">
        <source></source>
        <translation>Rendement à %1 V selon la puissance fournie</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_BEST">
        <source></source>
        <translation>Max. %1 % à %2 W</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_NOTE">
        <source></source>
        <translation>D’après la courbe du modèle ; l’alimentation elle-même ne mesure pas son entrée.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_EXPLAINED">
        <source></source>
        <translation>La courbe reprend les limites de la certification 80 PLUS de ce modèle. L’entrée et les pertes thermiques en sont déduites ; l’alimentation elle-même ne mesure pas son entrée.</translation>
    </message>
    <message id="MAIN_STR_EFFICIENCY_SPOKEN">
        <source></source>
        <translation>%1 à %2 en sortie, %3 côté secteur, %4 de pertes</translation>
    </message>
    <message id="MAIN_STR_NO_CURVE">
        <source></source>
        <translation>Il n’y a pas de courbe de rendement pour ce modèle.</translation>
    </message>
    <message id="MAIN_STR_RATED">
        <source></source>
        <translation>nominal %1 W</translation>
    </message>
    <message id="MAIN_STR_FROM_THE_WALL">
        <source></source>
        <translation>Côté secteur</translation>
    </message>
    <message id="MAIN_STR_HEAT_LOSS">
        <source></source>
        <translation>Pertes</translation>
    </message>
    <message id="NAV_HISTORY">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="HISTORY_PAGE_TITLE">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="HISTORY_BACK">
        <source></source>
        <translation>Reculer</translation>
    </message>
    <message id="HISTORY_FORWARD">
        <source></source>
        <translation>Avancer</translation>
    </message>
    <message id="HISTORY_TODAY">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="HISTORY_SPAN">
        <source></source>
        <translation>Période</translation>
    </message>
    <message id="HISTORY_WEEK">
        <source></source>
        <translation>Semaine</translation>
    </message>
    <message id="HISTORY_MONTH">
        <source></source>
        <translation>Mois</translation>
    </message>
    <message id="HISTORY_YEAR">
        <source></source>
        <translation>Année</translation>
    </message>
    <message id="HISTORY_RANGE">
        <source></source>
        <translation>Plage</translation>
    </message>
    <message id="HISTORY_FROM">
        <source></source>
        <translation>Du</translation>
    </message>
    <message id="HISTORY_TO">
        <source></source>
        <translation>Au</translation>
    </message>
    <message id="HISTORY_FROM_TO">
        <source></source>
        <translation>%1 – %2</translation>
    </message>
    <message id="HISTORY_SUMMARY">
        <source></source>
        <translation>Totaux de la période</translation>
    </message>
    <message id="HISTORY_MEASURE">
        <source></source>
        <translation>Contenu des barres</translation>
    </message>
    <message id="HISTORY_ENERGY">
        <source></source>
        <translation>Énergie</translation>
    </message>
    <message id="HISTORY_MEAN_POWER">
        <source></source>
        <translation>Puissance moy.</translation>
    </message>
    <message id="HISTORY_ENERGY_DAYS">
        <source></source>
        <translation>Énergie par jour (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_DAYS">
        <source></source>
        <translation>Puissance moyenne par jour (W)</translation>
    </message>
    <message id="HISTORY_ENERGY_MONTHS">
        <source></source>
        <translation>Énergie par mois (kWh)</translation>
    </message>
    <message id="HISTORY_POWER_MONTHS">
        <source></source>
        <translation>Puissance moyenne par mois (W)</translation>
    </message>
    <message id="HISTORY_BY_MONTH">
        <source></source>
        <translation>Les jours seraient trop fins : chaque barre est un mois</translation>
    </message>
    <message id="HISTORY_DAYS_EXPLAINED">
        <source></source>
        <translation>Cliquez sur une barre pour voir ses minutes en dessous ; une barre mensuelle ouvre ce mois. Les flèches passent d’une barre à l’autre, Entrée en ouvre une, Page préc. et Page suiv. reculent et avancent.</translation>
    </message>
    <message id="HISTORY_HIGHEST_DAY">
        <source></source>
        <translation>Jour max.</translation>
    </message>
    <message id="HISTORY_LOWEST_DAY">
        <source></source>
        <translation>Jour min.</translation>
    </message>
    <message id="HISTORY_LONG_TERM">
        <source></source>
        <translation>Moyenne totale</translation>
    </message>
    <message id="HISTORY_AT_EFFICIENCY">
        <source></source>
        <translation>à %1 de rendement</translation>
    </message>
    <message id="HISTORY_IN_TIME">
        <source></source>
        <translation>en %1</translation>
    </message>
    <message id="HISTORY_SO_FAR">
        <source></source>
        <translation>%1, jusqu’ici</translation>
    </message>
    <message id="HISTORY_RECORDED">
        <source></source>
        <translation>Enregistré</translation>
    </message>
    <message id="HISTORY_RECORDED_TIME">
        <source></source>
        <translation>enregistré : %1</translation>
    </message>
    <message id="HISTORY_NOTHING_RECORDED">
        <source></source>
        <translation>Rien d’enregistré</translation>
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
        <translation>Minutes de la journée</translation>
    </message>
    <message id="HISTORY_WHOLE_DAY">
        <source></source>
        <translation>Jour entier</translation>
    </message>
    <message id="HISTORY_DAY_EXPLAINED">
        <source></source>
        <translation>Molette pour zoomer, glisser pour déplacer, double-clic pour revoir le jour entier. Touches : + et − zooment, les flèches déplacent la vue, Maj et flèches vont de minute en minute, Début montre le jour entier.</translation>
    </message>
    <message id="HISTORY_CHIPS_HINT">
        <source></source>
        <translation>Une ou deux grandeurs à la fois, chacune avec son propre axe.</translation>
    </message>
    <message id="HISTORY_POWER">
        <source></source>
        <translation>Puissance</translation>
    </message>
    <message id="HISTORY_RAILS">
        <source></source>
        <translation>Rails</translation>
    </message>
    <message id="HISTORY_CURRENTS">
        <source></source>
        <translation>Courants</translation>
    </message>
    <message id="HISTORY_TEMPERATURE">
        <source></source>
        <translation>Température</translation>
    </message>
    <message id="HISTORY_FAN">
        <source></source>
        <translation>Ventilateur</translation>
    </message>
    <message id="HISTORY_EFFICIENCY">
        <source></source>
        <translation>Rendement</translation>
    </message>
    <message id="HISTORY_RAILS_PLOTTED">
        <source></source>
        <translation>Rails selon leur écart par rapport à la tension nominale</translation>
    </message>
    <message id="HISTORY_STATISTICS">
        <source></source>
        <translation>Minimum, moyenne et maximum affichés</translation>
    </message>
    <message id="HISTORY_LEAST">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="HISTORY_MEAN">
        <source></source>
        <translation>moy</translation>
    </message>
    <message id="HISTORY_MOST">
        <source></source>
        <translation>max</translation>
    </message>
    <message id="HISTORY_LOADING">
        <source></source>
        <translation>Chargement…</translation>
    </message>
    <message id="HISTORY_EMPTY">
        <source></source>
        <translation>Encore rien d’enregistré.
Tant que l’alimentation est connectée, chaque minute est enregistrée et la barre du jour apparaît ici en quelques minutes.</translation>
    </message>
    <message id="HISTORY_EMPTY_RANGE">
        <source></source>
        <translation>Rien n’a été enregistré sur cette période.</translation>
    </message>
    <message id="HISTORY_EMPTY_DAY">
        <source></source>
        <translation>Aucune minute enregistrée ce jour-là.</translation>
    </message>
    <message id="HISTORY_NO_DAY">
        <source></source>
        <translation>Les minutes du jour choisi apparaîtront ici.</translation>
    </message>
    <message id="HISTORY_EXPORT">
        <source></source>
        <translation>Exporter</translation>
    </message>
    <message id="HISTORY_EXPORT_WHAT">
        <source></source>
        <translation>Exporter</translation>
    </message>
    <message id="HISTORY_EXPORT_DAYS">
        <source></source>
        <translation>Jours</translation>
    </message>
    <message id="HISTORY_EXPORT_MINUTES">
        <source></source>
        <translation>Minutes</translation>
    </message>
    <message id="HISTORY_EXPORT_FILE">
        <source></source>
        <translation>Parcourir…</translation>
    </message>
    <message id="HISTORY_EXPORT_TITLE">
        <source></source>
        <translation>Exporter l’historique</translation>
    </message>
    <message id="HISTORY_EXPORT_FILTER">
        <source></source>
        <translation>Valeurs séparées par virgules (*.csv)</translation>
    </message>
    <message id="HISTORY_EXPORTING">
        <source></source>
        <translation>Export : %1 %</translation>
    </message>
    <message id="HISTORY_CANCEL">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="HISTORY_CLOSE">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE">
        <source></source>
        <translation>%1 lignes écrites</translation>
    </message>
    <message id="HISTORY_EXPORT_DONE_LOST">
        <source></source>
        <translation>%1 lignes écrites ; %2 enregistrements illisibles</translation>
    </message>
    <message id="HISTORY_EXPORT_CANCELLED">
        <source></source>
        <translation>Export annulé ; aucun fichier écrit</translation>
    </message>
    <message id="HISTORY_EXPORT_FAILED">
        <source></source>
        <translation>Non exporté : %1</translation>
    </message>
    <message id="NAV_LIGHTING">
        <source></source>
        <translation>Éclairage</translation>
    </message>
    <message id="LIGHTING_PAGE_TITLE">
        <source></source>
        <translation>Éclairage</translation>
    </message>
    <message id="LIGHTING_PAGE_HINT">
        <source></source>
        <translation>Changements immédiats sur l’anneau. « Enregistrer » les garde au prochain démarrage.</translation>
    </message>
    <message id="LIGHTING_UNREACHABLE">
        <source></source>
        <translation>L’alimentation n’est pas connectée. Les changements sont gardés et envoyés à son retour.</translation>
    </message>
    <message id="LIGHTING_NONE">
        <source></source>
        <translation>Aucune LED à régler</translation>
    </message>
    <message id="LIGHTING_NONE_HINT">
        <source></source>
        <translation>Aucune alimentation à ventilateur lumineux connectée. Dès qu’il y en a une, les réglages de son anneau sont ici.</translation>
    </message>
    <message id="LIGHTING_SHOWN">
        <source></source>
        <translation>Ce que montre l’anneau</translation>
    </message>
    <message id="LIGHTING_PICTURE">
        <source></source>
        <translation>LED de l’anneau</translation>
    </message>
    <message id="LIGHTING_PICTURE_HINT">
        <source></source>
        <translation>Cliquez sur une LED pour la choisir, avec Maj pour en ajouter ou en retirer une. Glissez pour en choisir plusieurs. Touches : les flèches vont de LED en LED, avec Maj elles en ajoutent, Espace ajoute ou retire, Ctrl+A les choisit toutes, Échap aucune.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_HINT">
        <source></source>
        <translation>Cliquez ou glissez pour choisir des LED. Sans choix : toutes.</translation>
    </message>
    <message id="LIGHTING_CHOOSE_ALL">
        <source></source>
        <translation>Toutes</translation>
    </message>
    <message id="LIGHTING_CHOOSE_NONE">
        <source></source>
        <translation>Aucune</translation>
    </message>
    <message id="LIGHTING_FRONT">
        <source></source>
        <translation>Avant</translation>
    </message>
    <message id="LIGHTING_MIDDLE">
        <source></source>
        <translation>Milieu</translation>
    </message>
    <message id="LIGHTING_RING_FRONT">
        <source></source>
        <translation>Anneau avant</translation>
    </message>
    <message id="LIGHTING_RING_MIDDLE">
        <source></source>
        <translation>Anneau médian</translation>
    </message>
    <message id="LIGHTING_ALL_LIGHTS">
        <source></source>
        <translation>toutes les LED</translation>
    </message>
    <message id="LIGHTING_SOME_LIGHTS">
        <source></source>
        <translation>%1 LED sur %2</translation>
    </message>
    <message id="LIGHTING_THE_RING">
        <source></source>
        <translation>tout l’anneau</translation>
    </message>
    <message id="LIGHTING_COLOUR_OF">
        <source></source>
        <translation>Couleur : %1</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_TEMPERATURE">
        <source></source>
        <translation>La température fixe la couleur</translation>
    </message>
    <message id="LIGHTING_COLOUR_BY_EFFECT">
        <source></source>
        <translation>L’effet apporte ses propres couleurs</translation>
    </message>
    <message id="LIGHTING_SINGLE_RING">
        <source></source>
        <translation>Anneau unicolore</translation>
    </message>
    <message id="LIGHTING_PLUS_RING">
        <source></source>
        <translation>Anneau de 12 LED</translation>
    </message>
    <message id="LIGHTING_DUO_RINGS">
        <source></source>
        <translation>Anneaux avant et médian</translation>
    </message>
    <message id="LIGHTING_LIGHTS">
        <source></source>
        <translation>LED</translation>
    </message>
    <message id="LIGHTING_LIGHTS_HINT">
        <source></source>
        <translation>Allume et éteint les LED ; tous les autres réglages restent inchangés</translation>
    </message>
    <message id="LIGHTING_OFF">
        <source></source>
        <translation>Éteint</translation>
    </message>
    <message id="LIGHTING_DEFAULT">
        <source></source>
        <translation>Par défaut</translation>
    </message>
    <message id="LIGHTING_DEFAULT_HINT">
        <source></source>
        <translation>Remet l’anneau dans son état d’origine</translation>
    </message>
    <message id="LIGHTING_SAVE">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="LIGHTING_SAVE_HINT">
        <source></source>
        <translation>Garde les réglages actuels</translation>
    </message>
    <message id="LIGHTING_MODE">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="LIGHTING_COLOUR">
        <source></source>
        <translation>Couleur</translation>
    </message>
    <message id="LIGHTING_SPEED">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="LIGHTING_COLOUR_EACH">
        <source></source>
        <translation>Couleurs</translation>
    </message>
    <message id="LIGHTING_COLOUR_SINGLE">
        <source></source>
        <translation>Unique</translation>
    </message>
    <message id="LIGHTING_PREVIOUS">
        <source></source>
        <translation>Précédent</translation>
    </message>
    <message id="LIGHTING_NEXT">
        <source></source>
        <translation>Suivant</translation>
    </message>
    <message id="LIGHTING_BACK">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="LIGHTING_WHEEL">
        <source></source>
        <translation>Teinte et saturation</translation>
    </message>
    <message id="LIGHTING_WHEEL_HINT">
        <source></source>
        <translation>Gauche et droite tournent la teinte, haut et bas changent la saturation, avec Maj par petits pas</translation>
    </message>
    <message id="LIGHTING_HEX">
        <source></source>
        <translation>Couleur en #RRGGBB</translation>
    </message>
    <message id="LIGHTING_HEX_FAULT">
        <source></source>
        <translation>Invalide : utilisez #RRGGBB</translation>
    </message>
    <message id="LIGHTING_SWATCHES">
        <source></source>
        <translation>Nuancier</translation>
    </message>
    <message id="LIGHTING_PERCENT">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="LIGHTING_NOTE_LOAD">
        <source></source>
        <translation>L’anneau montre la charge au lieu de l’effet.</translation>
    </message>
    <message id="LIGHTING_NOTE_TEMPERATURE">
        <source></source>
        <translation>L’anneau montre la température au lieu de l’effet.</translation>
    </message>
    <message id="LIGHTING_SOUND_LISTENING">
        <source></source>
        <translation>Les LED suivent ce que joue le PC.</translation>
    </message>
    <message id="LIGHTING_SOUND_NONE">
        <source></source>
        <translation>Aucune sortie audio trouvée. Les LED attendent qu’il y en ait une.</translation>
    </message>
    <message id="LIGHTING_SHOW_ON_RING">
        <source></source>
        <translation>Montrer sur l’anneau</translation>
    </message>
    <message id="LIGHTING_GAUGE_EFFECT">
        <source></source>
        <translation>Effet</translation>
    </message>
    <message id="LIGHTING_GAUGE_LOAD">
        <source></source>
        <translation>Charge</translation>
    </message>
    <message id="LIGHTING_GAUGE_TEMPERATURE">
        <source></source>
        <translation>Température</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE">
        <source></source>
        <translation>Couleurs que chacun peut distinguer</translation>
    </message>
    <message id="LIGHTING_SAFE_PALETTE_HINT">
        <source></source>
        <translation>Jauges et alarmes évitent les paires de couleurs que les daltoniens confondent</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING">
        <source></source>
        <translation>Alarme sur l’anneau</translation>
    </message>
    <message id="LIGHTING_ALARM_ON_RING_HINT">
        <source></source>
        <translation>Tant qu’une alarme est en cours, l’anneau avertit, quel que soit l’effet</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED">
        <source></source>
        <translation>Éteint si verrouillé ou en veille</translation>
    </message>
    <message id="LIGHTING_OFF_WHEN_LOCKED_HINT">
        <source></source>
        <translation>Les LED s’éteignent quand le PC est verrouillé ou en veille, et se rallument ensuite</translation>
    </message>
    <message id="MAIN_12LED_Light_Mode">
        <source></source>
        <translation>Mode LED</translation>
    </message>
    <message id="MAIN_12LED_Color_Mode">
        <source></source>
        <translation>Mode couleur</translation>
    </message>
    <message id="MAIN_12LED_Speed_Mode">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="MAIN_LED_Brightness">
        <source></source>
        <translation>Luminosité</translation>
    </message>
    <message id="MAIN_CIRQ_STATIC">
        <source></source>
        <translation>Statique</translation>
    </message>
    <message id="MAIN_CIRQ_SPECTRUM">
        <source></source>
        <translation>Spectre</translation>
    </message>
    <message id="MAIN_CIRQ_BLINK">
        <source></source>
        <translation>Clignotant</translation>
    </message>
    <message id="MAIN_CIRQ_COLOUR_BLINK">
        <source></source>
        <translation>Clignotant coloré</translation>
    </message>
    <message id="MAIN_12LED_Flow">
        <source></source>
        <translation>Flux</translation>
    </message>
    <message id="MAIN_12LED_RGB_Spectrum">
        <source></source>
        <translation>Spectre RGB</translation>
    </message>
    <message id="MAIN_12LED_Ripple">
        <source></source>
        <translation>Ondes</translation>
    </message>
    <message id="MAIN_12LED_Blink">
        <source></source>
        <translation>Clignotant</translation>
    </message>
    <message id="MAIN_12LED_Pulse">
        <source></source>
        <translation>Pulsation</translation>
    </message>
    <message id="MAIN_12LED_Wave">
        <source></source>
        <translation>Vague</translation>
    </message>
    <message id="MAIN_12LED_Full_Lighted">
        <source></source>
        <translation>Tout allumé</translation>
    </message>
    <message id="MAIN_12LED_Extreme">
        <source></source>
        <translation>Extrême</translation>
    </message>
    <message id="MAIN_12LED_Fast">
        <source></source>
        <translation>Rapide</translation>
    </message>
    <message id="MAIN_12LED_Normal">
        <source></source>
        <translation>Normale</translation>
    </message>
    <message id="MAIN_12LED_Slow">
        <source></source>
        <translation>Lente</translation>
    </message>
    <message id="COLOUR_RED">
        <source></source>
        <translation>Rouge</translation>
    </message>
    <message id="COLOUR_ORANGE">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="COLOUR_YELLOW">
        <source></source>
        <translation>Jaune</translation>
    </message>
    <message id="COLOUR_LIME">
        <source></source>
        <translation>Lime</translation>
    </message>
    <message id="COLOUR_GREEN">
        <source></source>
        <translation>Vert</translation>
    </message>
    <message id="COLOUR_MINT">
        <source></source>
        <translation>Menthe</translation>
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
        <translation>Bleu</translation>
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
        <translation>Blanc</translation>
    </message>
    <message id="DUO_EFFECT_FLOW">
        <source></source>
        <translation>Flux</translation>
    </message>
    <message id="DUO_EFFECT_RGB_SPECTRUM">
        <source></source>
        <translation>Spectre RGB</translation>
    </message>
    <message id="DUO_EFFECT_RIPPLE">
        <source></source>
        <translation>Ondes</translation>
    </message>
    <message id="DUO_EFFECT_BLINK">
        <source></source>
        <translation>Clignotant</translation>
    </message>
    <message id="DUO_EFFECT_PULSE">
        <source></source>
        <translation>Pulsation</translation>
    </message>
    <message id="DUO_EFFECT_WAVE">
        <source></source>
        <translation>Vague</translation>
    </message>
    <message id="DUO_EFFECT_FULL_LIGHTED">
        <source></source>
        <translation>Tout allumé</translation>
    </message>
    <message id="DUO_EFFECT_COPY_COLOR">
        <source></source>
        <translation>Copie couleur</translation>
    </message>
    <message id="DUO_EFFECT_MOVIE">
        <source></source>
        <translation>Film</translation>
    </message>
    <message id="DUO_EFFECT_GAMING">
        <source></source>
        <translation>Jeu</translation>
    </message>
    <message id="DUO_EFFECT_PARTY">
        <source></source>
        <translation>Fête</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_1">
        <source></source>
        <translation>Musique mobile 1</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_2">
        <source></source>
        <translation>Musique mobile 2</translation>
    </message>
    <message id="DUO_EFFECT_MOBILE_MUSIC_3">
        <source></source>
        <translation>Musique mobile 3</translation>
    </message>
    <message id="DUO_EFFECT_THERMAL">
        <source></source>
        <translation>Thermique</translation>
    </message>
    <message id="DUO_EFFECT_CROSS">
        <source></source>
        <translation>Croix</translation>
    </message>
    <message id="DUO_EFFECT_HEARTBEAT">
        <source></source>
        <translation>Battement</translation>
    </message>
    <message id="DUO_EFFECT_SCAN">
        <source></source>
        <translation>Balayage</translation>
    </message>
    <message id="DUO_EFFECT_SWIRL">
        <source></source>
        <translation>Tourbillon</translation>
    </message>
    <message id="DUO_EFFECT_RAINDROP">
        <source></source>
        <translation>Pluie</translation>
    </message>
    <message id="DUO_EFFECT_STACK">
        <source></source>
        <translation>Empilage</translation>
    </message>
    <message id="NAV_FAN">
        <source></source>
        <translation>Ventilateur</translation>
    </message>
    <message id="FAN_PAGE_TITLE">
        <source></source>
        <translation>Ventilateur</translation>
    </message>
    <message id="FAN_UNREACHABLE">
        <source></source>
        <translation>L’alimentation n’est pas connectée. Un mode choisi maintenant est gardé et appliqué à son retour.</translation>
    </message>
    <message id="FAN_SPEED">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="FAN_OF_FULL_SPEED">
        <source></source>
        <translation>%1 % de la vitesse max.</translation>
    </message>
    <message id="FAN_MODE">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="FAN_MODE_CHOSEN">
        <source></source>
        <translation>%1 (choisi)</translation>
    </message>
    <message id="FAN_MODE_BY_CURVE">
        <source></source>
        <translation>réglé par la courbe</translation>
    </message>
    <message id="FAN_CHOOSE_MODE">
        <source></source>
        <translation>Choisir le mode du ventilateur</translation>
    </message>
    <message id="FAN_TARGET_SPEED">
        <source></source>
        <translation>Vitesse cible</translation>
    </message>
    <message id="FAN_TARGET_PERCENT">
        <source></source>
        <translation>Pourcentage de la vitesse max., de 30 à 100</translation>
    </message>
    <message id="FAN_TARGET_SET">
        <source></source>
        <translation>Appliquer</translation>
    </message>
    <message id="FAN_CLOSE">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="FAN_LAST_HOUR">
        <source></source>
        <translation>Dernière heure</translation>
    </message>
    <message id="FAN_HOUR_EMPTY">
        <source></source>
        <translation>Aucune mesure sur la dernière heure.</translation>
    </message>
    <message id="FAN_HOUR_SPOKEN">
        <source></source>
        <translation>Ventilateur de %1 à %2 tr/min, température de %3 à %4</translation>
    </message>
    <message id="FAN_CURVE">
        <source></source>
        <translation>Courbe</translation>
    </message>
    <message id="FAN_CURVE_OFF">
        <source></source>
        <translation>Inactive</translation>
    </message>
    <message id="FAN_CURVE_DRIVING">
        <source></source>
        <translation>Pilote à %1 %</translation>
    </message>
    <message id="FAN_CURVE_TOO_HOT">
        <source></source>
        <translation>▲ En pause : trop chaud</translation>
    </message>
    <message id="FAN_CURVE_NO_READING">
        <source></source>
        <translation>▲ En pause : sans mesure</translation>
    </message>
    <message id="FAN_CURVE_NOT_CONNECTED">
        <source></source>
        <translation>Attend l’alimentation</translation>
    </message>
    <message id="FAN_CURVE_SOURCE">
        <source></source>
        <translation>Source de la courbe</translation>
    </message>
    <message id="FAN_CURVE_LOAD">
        <source></source>
        <translation>Charge</translation>
    </message>
    <message id="FAN_CURVE_ADD">
        <source></source>
        <translation>Ajouter un point (Inser)</translation>
    </message>
    <message id="FAN_CURVE_REMOVE">
        <source></source>
        <translation>Supprimer le point choisi (Suppr)</translation>
    </message>
    <message id="FAN_CURVE_KEYS">
        <source></source>
        <translation>Glissez un point ; double-cliquez pour en ajouter un. Touches : les flèches déplacent le point choisi, Page préc. et Page suiv. changent de point, Inser ajoute, Suppr supprime.</translation>
    </message>
    <message id="FAN_CURVE_POINT">
        <source></source>
        <translation>Point %1 sur %2 : %3</translation>
    </message>
    <message id="FAN_CURVE_HYSTERESIS">
        <source></source>
        <translation>Ralentir après une baisse de</translation>
    </message>
    <message id="FAN_CURVE_SECONDS">
        <source></source>
        <translation>Changer au plus toutes les</translation>
    </message>
    <message id="FAN_CURVE_NOTE">
        <source></source>
        <translation>Retour au mode propre de l’alimentation si le programme se ferme, si la température est illisible ou si elle dépasse %1.</translation>
    </message>
    <message id="FAN_CURVE_UNSUPPORTED">
        <source></source>
        <translation>Cette alimentation gère elle-même son ventilateur ; les modèles à vitesse réglable ont ici une courbe de ventilation.</translation>
    </message>
    <message id="FAN_CURVE_NO_SUPPLY">
        <source></source>
        <translation>Dès qu’une alimentation à vitesse réglable est connectée, sa courbe de ventilation est ici.</translation>
    </message>
    <message id="POWER_SHUTDOWN_TITLE">
        <source></source>
        <translation>Le PC va s’éteindre</translation>
    </message>
    <message id="POWER_RESTART_TITLE">
        <source></source>
        <translation>Le PC va redémarrer</translation>
    </message>
    <message id="POWER_SLEEP_TITLE">
        <source></source>
        <translation>Le PC va se mettre en veille</translation>
    </message>
    <message id="POWER_SHUTDOWN_NOW">
        <source></source>
        <translation>Éteindre maintenant</translation>
    </message>
    <message id="POWER_RESTART_NOW">
        <source></source>
        <translation>Redémarrer maintenant</translation>
    </message>
    <message id="POWER_SLEEP_NOW">
        <source></source>
        <translation>Mettre en veille</translation>
    </message>
    <message id="POWER_WORDS">
        <source></source>
        <translation>Commande reçue à distance. Les programmes seront fermés : enregistrez votre travail, ou annulez.</translation>
    </message>
    <message id="POWER_WORDS_SLEEP">
        <source></source>
        <translation>Commande reçue à distance. Les programmes restent ouverts et reprennent au réveil du PC.</translation>
    </message>
    <message id="POWER_CANCEL">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="POWER_SECONDS_LEFT">
        <source></source>
        <translation>Secondes restantes : %1</translation>
    </message>
    <message id="POWER_SECONDS_UNIT">
        <source></source>
        <translation>s</translation>
    </message>
    <message id="MAIN_STR_TREND_ENERGY">
        <source></source>
        <translation>Énergie</translation>
    </message>
    <message id="MAIN_STR_TREND_PC">
        <source></source>
        <translation>PC</translation>
    </message>
    <message id="MAIN_STR_ENERGY">
        <source></source>
        <translation>Énergie et coût</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TODAY">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="MAIN_STR_ENERGY_MONTH">
        <source></source>
        <translation>Ce mois-ci</translation>
    </message>
    <message id="MAIN_STR_ENERGY_YEAR">
        <source></source>
        <translation>Cette année</translation>
    </message>
    <message id="MAIN_STR_ENERGY_PROJECTED">
        <source></source>
        <translation>Année estimée</translation>
    </message>
    <message id="MAIN_STR_ENERGY_AFTER_A_DAY">
        <source></source>
        <translation>après un jour</translation>
    </message>
    <message id="MAIN_STR_ENERGY_WALL">
        <source></source>
        <translation>%1 côté secteur</translation>
    </message>
    <message id="MAIN_STR_ENERGY_OUTPUT">
        <source></source>
        <translation>%1 en sortie</translation>
    </message>
    <message id="MAIN_STR_ENERGY_NO_EFFICIENCY">
        <source></source>
        <translation>Rendement inconnu : secteur compté égal à la sortie</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TIME">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="MAIN_STR_ENERGY_THIS_RUN">
        <source></source>
        <translation>Cette session</translation>
    </message>
    <message id="MAIN_STR_ENERGY_LAST_RUN">
        <source></source>
        <translation>Session préc.</translation>
    </message>
    <message id="MAIN_STR_ENERGY_TOTAL">
        <source></source>
        <translation>Depuis le début</translation>
    </message>
    <message id="MAIN_STR_ENERGY_SET_RATE">
        <source></source>
        <translation>Définir le tarif…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_RATE">
        <source></source>
        <translation>Tarif…</translation>
    </message>
    <message id="MAIN_STR_ENERGY_EXPLAINED">
        <source></source>
        <translation>Côté secteur : la sortie plus les pertes dans l’alimentation, selon la courbe de rendement de son modèle.</translation>
    </message>
    <message id="MAIN_STR_PC">
        <source></source>
        <translation>Processeur et carte graphique</translation>
    </message>
    <message id="MAIN_STR_PC_PROCESSOR">
        <source></source>
        <translation>Processeur</translation>
    </message>
    <message id="MAIN_STR_PC_GRAPHICS">
        <source></source>
        <translation>Carte graphique</translation>
    </message>
    <message id="MAIN_STR_PC_OFF">
        <source></source>
        <translation>Les capteurs du PC ne sont pas lus</translation>
    </message>
    <message id="MAIN_STR_PC_OFF_HINT">
        <source></source>
        <translation>Température, puissance, tension et courant du processeur et de la carte graphique peuvent s’afficher ici, si ce PC a les capteurs pour cela.</translation>
    </message>
    <message id="MAIN_STR_PC_READ">
        <source></source>
        <translation>Lire les capteurs</translation>
    </message>
    <message id="MAIN_STR_PC_WAITING">
        <source></source>
        <translation>En attente de la première mesure</translation>
    </message>
    <message id="MAIN_STR_PC_NOTHING">
        <source></source>
        <translation>Aucun capteur de ce PC ne répond</translation>
    </message>
    <message id="RATE_STR_FAULT_NUMBER">
        <source></source>
        <translation>Entrez un nombre, p. ex. %1</translation>
    </message>
    <message id="RATE_STR_FAULT_RANGE">
        <source></source>
        <translation>De 0 à %1</translation>
    </message>
    <message id="RATE_STR_FAULT_DECIMALS">
        <source></source>
        <translation>Au plus %1 décimales</translation>
    </message>
    <message id="MAIN_STR_ENERGY_HOURS">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="RATE_STR_TITLE">
        <source></source>
        <translation>Tarif d’électricité</translation>
    </message>
    <message id="RATE_STR_PRICE_OF_KWH">
        <source></source>
        <translation>Prix du kWh</translation>
    </message>
    <message id="RATE_STR_NOT_SET">
        <source></source>
        <translation>non défini</translation>
    </message>
    <message id="RATE_STR_CURRENCY">
        <source></source>
        <translation>Devise</translation>
    </message>
    <message id="RATE_STR_PERIODS">
        <source></source>
        <translation>Autres prix à certains moments</translation>
    </message>
    <message id="RATE_STR_NO_PERIODS">
        <source></source>
        <translation>Le prix vaut à toute heure. Si votre contrat prévoit des heures creuses (nuit, week-end), ajoutez-les ici.</translation>
    </message>
    <message id="RATE_STR_PERIODS_HINT">
        <source></source>
        <translation>La première ligne qui correspond l’emporte. Sinon, le prix ci-dessus s’applique.</translation>
    </message>
    <message id="RATE_STR_ADD">
        <source></source>
        <translation>Ajouter une plage</translation>
    </message>
    <message id="RATE_STR_FULL">
        <source></source>
        <translation>%1 plages au maximum</translation>
    </message>
    <message id="RATE_STR_ROW">
        <source></source>
        <translation>Plage %1</translation>
    </message>
    <message id="RATE_STR_DAYS">
        <source></source>
        <translation>Jours</translation>
    </message>
    <message id="RATE_STR_FROM">
        <source></source>
        <translation>De</translation>
    </message>
    <message id="RATE_STR_TO">
        <source></source>
        <translation>À</translation>
    </message>
    <message id="RATE_STR_PRICE">
        <source></source>
        <translation>Prix</translation>
    </message>
    <message id="RATE_STR_NEXT_DAY">
        <source></source>
        <translation>Se termine le lendemain</translation>
    </message>
    <message id="RATE_STR_UP">
        <source></source>
        <translation>Monter</translation>
    </message>
    <message id="RATE_STR_REMOVE">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="RATE_STR_WEEK">
        <source></source>
        <translation>Prix sur la semaine</translation>
    </message>
    <message id="RATE_STR_CANCEL">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="RATE_STR_SAVE">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="RATE_STR_FAULT_TIME">
        <source></source>
        <translation>Entrez une heure entre %1 et %2</translation>
    </message>
    <message id="RATE_STR_FAULT_DAYS">
        <source></source>
        <translation>Choisissez au moins un jour</translation>
    </message>
    <message id="RATE_STR_FAULT_CURRENCY">
        <source></source>
        <translation>Entrez un code de 3 lettres, p. ex. %1</translation>
    </message>
    <message id="TRAYICON_OUTPUT">
        <source></source>
        <translation>%1 W, charge %2 %</translation>
    </message>
    <message id="TRAYICON_GOES_ON">
        <source></source>
        <translation>ZPS G reste en zone de notification</translation>
    </message>
    <message id="TRAYICON_GOES_ON_HINT">
        <source></source>
        <translation>Un clic sur son icône rouvre la fenêtre. « Quitter » dans son menu ferme le programme.</translation>
    </message>
    <message id="MAIN_STR_DEMO_LOOK">
        <source></source>
        <translation>Essayer avec une alimentation simulée</translation>
    </message>
    <message id="MAIN_STR_DEMO_LEAVE">
        <source></source>
        <translation>Quitter la démo</translation>
    </message>
    <message id="ABOUT_STR_WHAT">
        <source></source>
        <translation>Surveille votre alimentation numérique, garde son historique et règle son ventilateur et ses LED.</translation>
    </message>
    <message id="ABOUT_STR_COPY">
        <source></source>
        <translation>Copier les infos pour un rapport</translation>
    </message>
    <message id="ABOUT_STR_COPY_HINT">
        <source></source>
        <translation>Modèle, puissance nominale, connexion et versions. Sans le numéro de série ni vos dossiers.</translation>
    </message>
    <message id="ABOUT_STR_SUPPLY">
        <source></source>
        <translation>Cette alimentation</translation>
    </message>
    <message id="ABOUT_STR_MODEL">
        <source></source>
        <translation>Modèle</translation>
    </message>
    <message id="ABOUT_STR_RATING">
        <source></source>
        <translation>Puissance nominale</translation>
    </message>
    <message id="ABOUT_STR_SERIAL">
        <source></source>
        <translation>Numéro de série</translation>
    </message>
    <message id="ABOUT_STR_LINK">
        <source></source>
        <translation>Connexion</translation>
    </message>
    <message id="ABOUT_STR_LINK_NONE">
        <source></source>
        <translation>aucune</translation>
    </message>
    <message id="ABOUT_STR_LINK_MAIN">
        <source></source>
        <translation>USB, canal principal</translation>
    </message>
    <message id="ABOUT_STR_LINK_RAW">
        <source></source>
        <translation>USB, canal brut</translation>
    </message>
    <message id="ABOUT_STR_LINK_DEMO">
        <source></source>
        <translation>simulée</translation>
    </message>
    <message id="ABOUT_STR_PROGRAM">
        <source></source>
        <translation>Ce programme</translation>
    </message>
    <message id="ABOUT_STR_DATA">
        <source></source>
        <translation>Dossier de données</translation>
    </message>
    <message id="ABOUT_STR_BUILD">
        <source></source>
        <translation>Build</translation>
    </message>
    <message id="ABOUT_STR_SYSTEM">
        <source></source>
        <translation>Système</translation>
    </message>
    <message id="ABOUT_STR_LICENCE">
        <source></source>
        <translation>Licence</translation>
    </message>
    <message id="ABOUT_STR_LIBRARIES">
        <source></source>
        <translation>Bibliothèques incluses et leurs licences</translation>
    </message>
    <message id="ABOUT_STR_KEYBOARD">
        <source></source>
        <translation>Clavier</translation>
    </message>
    <message id="ABOUT_STR_KEY_PAGES">
        <source></source>
        <translation>Aller à une page</translation>
    </message>
    <message id="ABOUT_STR_KEY_TAB">
        <source></source>
        <translation>Élément suivant ; avec Maj le précédent</translation>
    </message>
    <message id="ABOUT_STR_KEY_ARROWS">
        <source></source>
        <translation>Déplacer ou modifier la sélection</translation>
    </message>
    <message id="ABOUT_STR_KEY_SPACE">
        <source></source>
        <translation>Activer le bouton ou l’interrupteur sélectionné</translation>
    </message>
    <message id="ABOUT_STR_KEY_ESC">
        <source></source>
        <translation>Fermer ce qui s’est ouvert, annuler la sélection</translation>
    </message>
    <message id="NAV_SETTINGS">
        <source></source>
        <translation>Paramètres</translation>
    </message>
    <message id="NAV_ABOUT">
        <source></source>
        <translation>À propos</translation>
    </message>
    <message id="MAIN_STR_CLOSE_MINIMISES">
        <source></source>
        <translation>Réduire (bureau sans zone de notification)</translation>
    </message>
    <message id="SETTING_STR_EXPORTED">
        <source></source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message id="SETTING_STR_NOT_EXPORTED">
        <source></source>
        <translation>Paramètres non enregistrés : %1</translation>
    </message>
    <message id="SETTING_STR_NOT_IMPORTED">
        <source></source>
        <translation>Rien n’a été importé : %1</translation>
    </message>
    <message id="SETTING_STR_NO_SETTINGS_FILE">
        <source></source>
        <translation>fichier de paramètres non valide ou d’une version plus récente</translation>
    </message>
    <message id="SETTING_STR_IMPORTED">
        <source></source>
        <translation>Les paramètres du fichier sont maintenant appliqués.</translation>
    </message>
    <message id="SETTING_STR_NOT_KEPT">
        <source></source>
        <translation>Ces paramètres valent jusqu’à la fermeture du programme : écriture sur le disque impossible.</translation>
    </message>
    <message id="SETTING_STR_RESET_DONE">
        <source></source>
        <translation>Tous les paramètres sont réinitialisés.</translation>
    </message>
    <message id="SETTING_STR_SOCKET_LISTENS">
        <source></source>
        <translation>À l’écoute sur le port %1. Programmes connectés : %2</translation>
    </message>
    <message id="SETTING_STR_PORT_TAKEN">
        <source></source>
        <translation>Port %1 utilisé par un autre programme.</translation>
    </message>
    <message id="SETTING_STR_MQTT_OFF">
        <source></source>
        <translation>Inactif : aucun broker indiqué.</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTED">
        <source></source>
        <translation>Connecté à %1</translation>
    </message>
    <message id="SETTING_STR_MQTT_CONNECTING">
        <source></source>
        <translation>Connexion à %1…</translation>
    </message>
    <message id="SETTING_STR_MQTT_FAILED">
        <source></source>
        <translation>%1 est injoignable (%2). Nouvel essai automatique.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_OFF">
        <source></source>
        <translation>Inactifs</translation>
    </message>
    <message id="SETTING_STR_SENSORS_WAIT">
        <source></source>
        <translation>Lecture…</translation>
    </message>
    <message id="SETTING_STR_RATE_NONE">
        <source></source>
        <translation>Non défini</translation>
    </message>
    <message id="SETTING_STR_RATE_NOW">
        <source></source>
        <translation>%1 le kWh</translation>
    </message>
    <message id="SETTING_STR_RATE_PERIODS">
        <source></source>
        <translation>%1 le kWh actuellement. Plages : %2</translation>
    </message>
    <message id="PC_STR_PROCESSOR_AT">
        <source></source>
        <translation>Processeur %1</translation>
    </message>
    <message id="PC_STR_GRAPHICS_AT">
        <source></source>
        <translation>Carte graphique %1</translation>
    </message>
    <message id="PC_STR_READ">
        <source></source>
        <translation>Lecture chaque seconde</translation>
    </message>
    <message id="PC_STR_INSTALL_HWMON">
        <source></source>
        <translation>Aucun pilote de capteurs n’est chargé. Chargez-le avec « sudo modprobe coretemp » (Intel) ou « sudo modprobe k10temp » (AMD) ; les cartes NVIDIA demandent le pilote NVIDIA.</translation>
    </message>
    <message id="PC_STR_INSTALL_HWINFO">
        <source></source>
        <translation>Installez et lancez HWiNFO, puis activez « Shared Memory Support » dans ses paramètres.</translation>
    </message>
    <message id="SETTING_STR_TITLE">
        <source></source>
        <translation>Paramètres</translation>
    </message>
    <message id="SETTING_STR_SECTIONS">
        <source></source>
        <translation>Sections</translation>
    </message>
    <message id="SETTING_STR_GENERAL">
        <source></source>
        <translation>Général</translation>
    </message>
    <message id="SETTING_STR_ENERGY">
        <source></source>
        <translation>Énergie</translation>
    </message>
    <message id="SETTING_STR_ALARMS">
        <source></source>
        <translation>Alarmes</translation>
    </message>
    <message id="SETTING_STR_REMOTE">
        <source></source>
        <translation>Contrôle distant</translation>
    </message>
    <message id="SETTING_STR_SENSORS">
        <source></source>
        <translation>Capteurs PC</translation>
    </message>
    <message id="SETTING_STR_DATA">
        <source></source>
        <translation>Données</translation>
    </message>
    <message id="SETTING_STR_LOOK">
        <source></source>
        <translation>Langue et affichage</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE">
        <source></source>
        <translation>Langue</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_HINT">
        <source></source>
        <translation>Pour la fenêtre, le menu de l’icône et tous les messages.</translation>
    </message>
    <message id="SETTING_STR_LANGUAGE_SYSTEM">
        <source></source>
        <translation>Comme le système</translation>
    </message>
    <message id="SETTING_STR_UNIT">
        <source></source>
        <translation>Unité de température</translation>
    </message>
    <message id="SETTING_STR_UNIT_HINT">
        <source></source>
        <translation>Pour toutes les températures affichées.</translation>
    </message>
    <message id="SETTING_STR_TEXT">
        <source></source>
        <translation>Taille du texte</translation>
    </message>
    <message id="SETTING_STR_TEXT_HINT">
        <source></source>
        <translation>« Grande » utilise toute la place de la fenêtre.</translation>
    </message>
    <message id="SETTING_STR_TEXT_USUAL">
        <source></source>
        <translation>Normale</translation>
    </message>
    <message id="SETTING_STR_TEXT_LARGE">
        <source></source>
        <translation>Grande</translation>
    </message>
    <message id="SETTING_STR_START">
        <source></source>
        <translation>Démarrage et icône</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART">
        <source></source>
        <translation>Démarrer avec le système</translation>
    </message>
    <message id="SETTING_STR_AUTOSTART_HINT">
        <source></source>
        <translation>Démarre à l’ouverture de session, pour qu’aucune heure ne manque à l’historique.</translation>
    </message>
    <message id="SETTING_STR_HIDDEN">
        <source></source>
        <translation>Démarrer masqué</translation>
    </message>
    <message id="SETTING_STR_HIDDEN_HINT">
        <source></source>
        <translation>Pas de fenêtre au démarrage ; un clic sur l’icône de notification l’affiche.</translation>
    </message>
    <message id="SETTING_STR_TRAY">
        <source></source>
        <translation>Valeur sur l’icône</translation>
    </message>
    <message id="SETTING_STR_TRAY_HINT">
        <source></source>
        <translation>Lisible dans la zone de notification sans ouvrir la fenêtre.</translation>
    </message>
    <message id="SETTING_STR_TRAY_LOAD">
        <source></source>
        <translation>Charge</translation>
    </message>
    <message id="SETTING_STR_TRAY_TEMPERATURE">
        <source></source>
        <translation>Température</translation>
    </message>
    <message id="SETTING_STR_TRAY_NOTHING">
        <source></source>
        <translation>Rien</translation>
    </message>
    <message id="SETTING_STR_NEEDS">
        <source></source>
        <translation>Activez d’abord « %1 ».</translation>
    </message>
    <message id="SETTING_STR_COST">
        <source></source>
        <translation>Coût</translation>
    </message>
    <message id="SETTING_STR_RATE">
        <source></source>
        <translation>Tarif d’électricité</translation>
    </message>
    <message id="SETTING_STR_RATE_HINT">
        <source></source>
        <translation>Ce que vous payez par kilowattheure. Tous les coûts en découlent.</translation>
    </message>
    <message id="SETTING_STR_CHANGE">
        <source></source>
        <translation>Modifier…</translation>
    </message>
    <message id="SETTING_STR_COUNTED">
        <source></source>
        <translation>Comptage de l’énergie</translation>
    </message>
    <message id="SETTING_STR_AT_WALL">
        <source></source>
        <translation>Côté secteur</translation>
    </message>
    <message id="SETTING_STR_AT_WALL_HINT">
        <source></source>
        <translation>Ce que l’alimentation prélève à la prise est compté : sa sortie et ses pertes thermiques. Votre compteur fait de même.</translation>
    </message>
    <message id="SETTING_STR_GAPS">
        <source></source>
        <translation>Lacunes non comptées</translation>
    </message>
    <message id="SETTING_STR_GAPS_HINT">
        <source></source>
        <translation>Tant que le programme est fermé ou l’alimentation non connectée, rien n’est ajouté et rien n’est estimé.</translation>
    </message>
    <message id="SETTING_STR_WARNINGS">
        <source></source>
        <translation>M’avertir</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG">
        <source></source>
        <translation>Journal d’alarmes</translation>
    </message>
    <message id="SETTING_STR_ALARM_LOG_HINT">
        <source></source>
        <translation>Les alarmes en cours, et celles qu’il y a eu avant.</translation>
    </message>
    <message id="SETTING_STR_SOCKET">
        <source></source>
        <translation>Socket de contrôle</translation>
    </message>
    <message id="SETTING_STR_SOCKET_HINT">
        <source></source>
        <translation>Permet aux lecteurs de musique, à la domotique et aux scripts de ce PC de régler les LED.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE">
        <source></source>
        <translation>Autoriser d’autres PC</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_HINT">
        <source></source>
        <translation>Les programmes d’autres ordinateurs peuvent aussi régler les LED.</translation>
    </message>
    <message id="SETTING_STR_ALLOW_REMOTE_WARNING">
        <source></source>
        <translation>Sans mot de passe : toute personne de votre réseau pourra alors les régler.</translation>
    </message>
    <message id="SETTING_STR_MQTT">
        <source></source>
        <translation>MQTT</translation>
    </message>
    <message id="SETTING_STR_MQTT_HINT">
        <source></source>
        <translation>Permet à la domotique de lire l’alimentation et de la piloter, via un broker de votre réseau.</translation>
    </message>
    <message id="SETTING_STR_HOST">
        <source></source>
        <translation>Hôte</translation>
    </message>
    <message id="SETTING_STR_HOST_HINT">
        <source></source>
        <translation>Nom ou adresse du broker. Vide : pas de MQTT.</translation>
    </message>
    <message id="SETTING_STR_HOST_FIRST">
        <source></source>
        <translation>Indiquez un hôte pour régler le reste.</translation>
    </message>
    <message id="SETTING_STR_NEEDS_HOST">
        <source></source>
        <translation>Hôte requis.</translation>
    </message>
    <message id="SETTING_STR_PORT">
        <source></source>
        <translation>Port</translation>
    </message>
    <message id="SETTING_STR_PORT_HINT">
        <source></source>
        <translation>En général 1883, ou 8883 avec un fichier CA.</translation>
    </message>
    <message id="SETTING_STR_USER">
        <source></source>
        <translation>Utilisateur</translation>
    </message>
    <message id="SETTING_STR_USER_HINT">
        <source></source>
        <translation>Vide si le broker n’en demande pas.</translation>
    </message>
    <message id="SETTING_STR_PASSWORD">
        <source></source>
        <translation>Mot de passe</translation>
    </message>
    <message id="SETTING_STR_PASSWORD_HINT">
        <source></source>
        <translation>Sans fichier CA, il circule en clair sur le réseau.</translation>
    </message>
    <message id="SETTING_STR_SHOW">
        <source></source>
        <translation>Afficher</translation>
    </message>
    <message id="SETTING_STR_HIDE">
        <source></source>
        <translation>Masquer</translation>
    </message>
    <message id="SETTING_STR_CA">
        <source></source>
        <translation>Fichier CA</translation>
    </message>
    <message id="SETTING_STR_CA_HINT">
        <source></source>
        <translation>Chiffre la connexion : le certificat de l’autorité qui sert à vérifier le broker (PEM).</translation>
    </message>
    <message id="SETTING_STR_CHOOSE">
        <source></source>
        <translation>Parcourir…</translation>
    </message>
    <message id="SETTING_STR_CA_TITLE">
        <source></source>
        <translation>Choisir le fichier CA</translation>
    </message>
    <message id="SETTING_STR_CA_FILTER">
        <source></source>
        <translation>Certificats (*.pem *.crt *.cer);;Tous les fichiers (*)</translation>
    </message>
    <message id="SETTING_STR_TOPICS">
        <source></source>
        <translation>Topics</translation>
    </message>
    <message id="SETTING_STR_PUBLISH">
        <source></source>
        <translation>Préfixe de publication</translation>
    </message>
    <message id="SETTING_STR_PUBLISH_HINT">
        <source></source>
        <translation>Début du topic où vont les réponses.</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT">
        <source></source>
        <translation>ID de compte</translation>
    </message>
    <message id="SETTING_STR_ACCOUNT_HINT">
        <source></source>
        <translation>Fin du topic où vont les réponses. Peut rester vide.</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE">
        <source></source>
        <translation>Préfixe d’abonnement</translation>
    </message>
    <message id="SETTING_STR_SUBSCRIBE_HINT">
        <source></source>
        <translation>Début du topic d’où viennent les commandes.</translation>
    </message>
    <message id="SETTING_STR_PRODUCT">
        <source></source>
        <translation>ID de produit</translation>
    </message>
    <message id="SETTING_STR_PRODUCT_HINT">
        <source></source>
        <translation>Fin du topic d’où viennent les commandes. Peut rester vide.</translation>
    </message>
    <message id="SETTING_STR_APPLY">
        <source></source>
        <translation>Appliquer</translation>
    </message>
    <message id="SETTING_STR_DISCARD">
        <source></source>
        <translation>Abandonner</translation>
    </message>
    <message id="SETTING_STR_UNSAVED">
        <source></source>
        <translation>Pas encore appliqué</translation>
    </message>
    <message id="SETTING_STR_UNSAVED_ROW">
        <source></source>
        <translation>Pas encore appliqué. Entrée applique, Échap abandonne.</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY">
        <source></source>
        <translation>Découverte Home Assistant</translation>
    </message>
    <message id="SETTING_STR_DISCOVERY_HINT">
        <source></source>
        <translation>L’alimentation apparaît d’elle-même dans Home Assistant.</translation>
    </message>
    <message id="SETTING_STR_FAULT_HOST">
        <source></source>
        <translation>Seulement le nom ou l’adresse, sans espaces ni barres obliques ; le port a son propre champ.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PORT">
        <source></source>
        <translation>Un port est un nombre entier de 1 à %1.</translation>
    </message>
    <message id="SETTING_STR_FAULT_NO_PREFIX">
        <source></source>
        <translation>Ne doit pas être vide.</translation>
    </message>
    <message id="SETTING_STR_FAULT_PREFIX">
        <source></source>
        <translation>Les espaces, # et + sont interdits ici.</translation>
    </message>
    <message id="SETTING_STR_FAULT_SLASH">
        <source></source>
        <translation>Ne doit pas commencer par /.</translation>
    </message>
    <message id="SETTING_STR_FAULT_ID">
        <source></source>
        <translation># et + sont interdits ici.</translation>
    </message>
    <message id="SETTING_STR_FAULT_FILE">
        <source></source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message id="SETTING_STR_FAULT_UNREADABLE">
        <source></source>
        <translation>Ce fichier est illisible.</translation>
    </message>
    <message id="SETTING_STR_METRICS">
        <source></source>
        <translation>Métriques</translation>
    </message>
    <message id="SETTING_STR_METRICS_HINT">
        <source></source>
        <translation>Permet à Prometheus et à d’autres outils de supervision de ce PC de collecter les mesures.</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON">
        <source></source>
        <translation>Exposer les métriques</translation>
    </message>
    <message id="SETTING_STR_METRICS_ON_HINT">
        <source></source>
        <translation>Seuls les programmes de ce PC peuvent les lire.</translation>
    </message>
    <message id="SETTING_STR_METRICS_PORT_HINT">
        <source></source>
        <translation>Choisissez-en un autre si celui-ci est pris.</translation>
    </message>
    <message id="SETTING_STR_POWER">
        <source></source>
        <translation>Marche/arrêt</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER">
        <source></source>
        <translation>Arrêt à distance</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_HINT">
        <source></source>
        <translation>Une commande MQTT peut éteindre ce PC, le redémarrer ou le mettre en veille. Vous avez une minute pour annuler.</translation>
    </message>
    <message id="SETTING_STR_REMOTE_POWER_WARNING">
        <source></source>
        <translation>Quiconque peut publier sur votre broker pourra alors le faire.</translation>
    </message>
    <message id="SETTING_STR_SENSORS_CARD">
        <source></source>
        <translation>Capteurs de ce PC</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS">
        <source></source>
        <translation>Lire les capteurs du PC</translation>
    </message>
    <message id="SETTING_STR_READ_SENSORS_HINT">
        <source></source>
        <translation>Affiche processeur et carte graphique à côté des mesures de l’alimentation.</translation>
    </message>
    <message id="SETTING_STR_PLACE">
        <source></source>
        <translation>Emplacement</translation>
    </message>
    <message id="SETTING_STR_FOLDER">
        <source></source>
        <translation>Dossier de données</translation>
    </message>
    <message id="SETTING_STR_FOLDER_HINT">
        <source></source>
        <translation>Contient les paramètres, l’historique enregistré et le journal d’alarmes.</translation>
    </message>
    <message id="SETTING_STR_OPEN_FOLDER">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="SETTING_STR_FILE">
        <source></source>
        <translation>Tous les paramètres</translation>
    </message>
    <message id="SETTING_STR_EXPORT">
        <source></source>
        <translation>Exporter les paramètres</translation>
    </message>
    <message id="SETTING_STR_EXPORT_HINT">
        <source></source>
        <translation>Dans un fichier : comme sauvegarde ou pour un autre PC.</translation>
    </message>
    <message id="SETTING_STR_EXPORT_BUTTON">
        <source></source>
        <translation>Exporter…</translation>
    </message>
    <message id="SETTING_STR_IMPORT">
        <source></source>
        <translation>Importer les paramètres</translation>
    </message>
    <message id="SETTING_STR_IMPORT_HINT">
        <source></source>
        <translation>Remplace tous les paramètres par ceux d’un tel fichier.</translation>
    </message>
    <message id="SETTING_STR_IMPORT_BUTTON">
        <source></source>
        <translation>Importer…</translation>
    </message>
    <message id="SETTING_STR_FILES">
        <source></source>
        <translation>Paramètres ZPS G</translation>
    </message>
    <message id="SETTING_STR_RESET">
        <source></source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message id="SETTING_STR_RESET_HINT">
        <source></source>
        <translation>Tout redevient comme au premier démarrage. Vos enregistrements sont conservés.</translation>
    </message>
    <message id="SETTING_STR_RESET_BUTTON">
        <source></source>
        <translation>Réinitialiser…</translation>
    </message>
    <message id="SETTING_STR_RESET_ASK">
        <source></source>
        <translation>Tout réinitialiser ?</translation>
    </message>
    <message id="SETTING_STR_RESET_YES">
        <source></source>
        <translation>Réinitialiser</translation>
    </message>
    <message id="SETTING_STR_RESET_NO">
        <source></source>
        <translation>Non</translation>
    </message>
    <message id="FAN_RPM">
        <source></source>
        <translation>tr/min</translation>
    </message>
    <message id="FAN_TARGET_RPM">
        <source></source>
        <translation>tr/min</translation>
    </message>
    <message id="NAV_UPDATE">
        <source></source>
        <translation>%1, nouvelle version disponible</translation>
    </message>
    <message id="TRAYICON_UPDATE">
        <source></source>
        <translation>ZPS G %1 est disponible</translation>
    </message>
    <message id="TRAYICON_UPDATE_HINT">
        <source></source>
        <translation>La page « À propos » présente les nouveautés et mène au téléchargement. Rien n’a été téléchargé.</translation>
    </message>
    <message id="UPDATE_STR_AVAILABLE">
        <source></source>
        <translation>La version %1 est disponible</translation>
    </message>
    <message id="UPDATE_STR_RUNNING">
        <source></source>
        <translation>Vous utilisez la version %1.</translation>
    </message>
    <message id="UPDATE_STR_OPEN">
        <source></source>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
    <message id="UPDATE_STR_OPEN_HINT">
        <source></source>
        <translation>S’ouvre dans le navigateur : %1</translation>
    </message>
    <message id="UPDATE_STR_BAD_ADDRESS">
        <source></source>
        <translation>Indiquez une adresse qui commence par https:// et ne contient pas de nom d’utilisateur.</translation>
    </message>
    <message id="UPDATE_STR_INSECURE">
        <source></source>
        <translation>La connexion à %1 n’est pas sûre : rien n’a été demandé.</translation>
    </message>
    <message id="UPDATE_STR_NO_VERSION">
        <source></source>
        <translation>%1 n’indique pas à cette adresse quelle version est la plus récente.</translation>
    </message>
    <message id="UPDATE_STR_UNREACHABLE">
        <source></source>
        <translation>%1 ne répond pas.</translation>
    </message>
    <message id="UPDATE_STR_ASKING">
        <source></source>
        <translation>Vérification…</translation>
    </message>
    <message id="UPDATE_STR_FOUND">
        <source></source>
        <translation>La version %1 est disponible. La page « À propos » y mène.</translation>
    </message>
    <message id="UPDATE_STR_NEWEST">
        <source></source>
        <translation>Vous avez la version la plus récente, %1.</translation>
    </message>
    <message id="SETTING_STR_UPDATES">
        <source></source>
        <translation>Mises à jour</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS">
        <source></source>
        <translation>Nouvelles versions de ZPS G</translation>
    </message>
    <message id="SETTING_STR_NEW_VERSIONS_HINT">
        <source></source>
        <translation>Elles sont seulement signalées : rien n’est téléchargé ni installé automatiquement.</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON">
        <source></source>
        <translation>Signaler les nouvelles versions</translation>
    </message>
    <message id="SETTING_STR_UPDATES_ON_HINT">
        <source></source>
        <translation>Interroge l’adresse ci-dessous une fois par jour. Seul le numéro de cette version est transmis.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="SETTING_STR_UPDATE_ADDRESS_HINT">
        <source></source>
        <translation>Là où la dernière version est annoncée ; commence par https://. Vide : aucune demande.</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK">
        <source></source>
        <translation>Vérification manuelle</translation>
    </message>
    <message id="SETTING_STR_UPDATE_CHECK_HINT">
        <source></source>
        <translation>Interroge l’adresse une fois, même si l’interrupteur est désactivé.</translation>
    </message>
    <message id="SETTING_STR_CHECK_NOW">
        <source></source>
        <translation>Vérifier</translation>
    </message>
    <message id="SETTING_STR_NEEDS_ADDRESS">
        <source></source>
        <translation>Adresse requise.</translation>
    </message>
</context>
</TS>
