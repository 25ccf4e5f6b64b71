; What the setup says beyond its pages' own texts. In each: English, German, French, Spanish, Russian, Japanese, and
; Chinese, simplified and traditional.

!macro Text KEY EN DE FR ES RU JA SC TC
    LangString ${KEY} ${LANG_ENGLISH} "${EN}"
    LangString ${KEY} ${LANG_GERMAN} "${DE}"
    LangString ${KEY} ${LANG_FRENCH} "${FR}"
    LangString ${KEY} ${LANG_SPANISH} "${ES}"
    LangString ${KEY} ${LANG_RUSSIAN} "${RU}"
    LangString ${KEY} ${LANG_JAPANESE} "${JA}"
    LangString ${KEY} ${LANG_SIMPCHINESE} "${SC}"
    LangString ${KEY} ${LANG_TRADCHINESE} "${TC}"
!macroend
!define Text "!insertmacro Text"

${Text} TextVersion \
    "Version ${VERSION}" \
    "Version ${VERSION}" \
    "Version ${VERSION}" \
    "Versión ${VERSION}" \
    "Версия ${VERSION}" \
    "バージョン ${VERSION}" \
    "版本 ${VERSION}" \
    "版本 ${VERSION}"

${Text} TextChoiceTitle \
    "Install ${NAME}" \
    "${NAME} installieren" \
    "Installer ${NAME}" \
    "Instalar ${NAME}" \
    "Установка ${NAME}" \
    "${NAME} のインストール" \
    "安装 ${NAME}" \
    "安裝 ${NAME}"

${Text} TextForMe \
    "Only for &me" \
    "Nur für &mich" \
    "Pour &moi seulement" \
    "Solo para &mí" \
    "Только для &меня" \
    "自分のみ(&M)" \
    "仅为我(&M)" \
    "僅為我(&M)"

${Text} TextForMeNote \
    "Needs no administrator rights." \
    "Braucht keine Administratorrechte." \
    "Ne demande pas de droits d’administrateur." \
    "No necesita permisos de administrador." \
    "Права администратора не нужны." \
    "管理者権限は必要ありません。" \
    "不需要管理员权限。" \
    "不需要系統管理員權限。"

${Text} TextForAll \
    "For &everyone who uses this PC" \
    "Für &alle, die diesen PC benutzen" \
    "Pour &tous les utilisateurs de ce PC" \
    "Para &todos los usuarios de este PC" \
    "Для &всех пользователей этого компьютера" \
    "この PC を使う全員(&A)" \
    "为使用此电脑的所有人(&A)" \
    "為使用此電腦的所有人(&A)"

${Text} TextForAllNote \
    "Windows asks for administrator rights." \
    "Windows fragt nach Administratorrechten." \
    "Windows demande les droits d’administrateur." \
    "Windows pide permisos de administrador." \
    "Windows запросит права администратора." \
    "Windows が管理者権限を求めます。" \
    "Windows 会请求管理员权限。" \
    "Windows 會要求系統管理員權限。"

${Text} TextAutostart \
    "&Start ${NAME} when I sign in to Windows" \
    "${NAME} &starten, wenn ich mich bei Windows anmelde" \
    "&Démarrer ${NAME} quand j’ouvre ma session Windows" \
    "&Iniciar ${NAME} cuando inicio sesión en Windows" \
    "&Запускать ${NAME} при входе в Windows" \
    "Windows へのサインイン時に ${NAME} を起動する(&S)" \
    "登录 Windows 时启动 ${NAME}(&S)" \
    "登入 Windows 時啟動 ${NAME}(&S)"

${Text} TextDesktop \
    "Put a shortcut on the &desktop" \
    "Verknüpfung auf dem &Desktop anlegen" \
    "Placer un raccourci sur le &bureau" \
    "Poner un acceso directo en el &escritorio" \
    "Создать ярлык на &рабочем столе" \
    "デスクトップにショートカットを置く(&D)" \
    "在桌面上放置快捷方式(&D)" \
    "在桌面上放置捷徑(&D)"

${Text} TextUpdateTitle \
    "Update ${NAME}" \
    "${NAME} aktualisieren" \
    "Mettre à jour ${NAME}" \
    "Actualizar ${NAME}" \
    "Обновление ${NAME}" \
    "${NAME} の更新" \
    "更新 ${NAME}" \
    "更新 ${NAME}"

${Text} TextReplaces \
    "Version $Old is installed and will be replaced by version ${VERSION}. Settings and records stay as they are." \
    "Version $Old ist installiert und wird durch Version ${VERSION} ersetzt. Einstellungen und Aufzeichnungen bleiben, wie sie sind." \
    "La version $Old est installée et sera remplacée par la version ${VERSION}. Les réglages et les enregistrements restent tels quels." \
    "La versión $Old está instalada y se sustituirá por la versión ${VERSION}. Los ajustes y los registros se conservan." \
    "Установлена версия $Old, она будет заменена версией ${VERSION}. Настройки и записи сохранятся." \
    "バージョン $Old がインストールされています。バージョン ${VERSION} に置き換えます。設定と記録はそのまま残ります。" \
    "已安装版本 $Old，将替换为版本 ${VERSION}。设置和记录保持不变。" \
    "已安裝版本 $Old，將取代為版本 ${VERSION}。設定和記錄保持不變。"

${Text} TextReplacesNewer \
    "Version $Old is installed, which is newer. It will be replaced by version ${VERSION}. Settings and records stay; the older version may not know all of them." \
    "Die neuere Version $Old ist installiert. Sie wird durch Version ${VERSION} ersetzt. Einstellungen und Aufzeichnungen bleiben; die ältere Version kennt vielleicht nicht alle." \
    "La version $Old, plus récente, est installée. Elle sera remplacée par la version ${VERSION}. Les réglages et les enregistrements restent ; l’ancienne version ne les connaît peut-être pas tous." \
    "Está instalada la versión $Old, que es más reciente. Se sustituirá por la versión ${VERSION}. Los ajustes y los registros se conservan; puede que la versión anterior no los conozca todos." \
    "Установлена более новая версия $Old. Она будет заменена версией ${VERSION}. Настройки и записи сохранятся, но старая версия может знать не все из них." \
    "より新しいバージョン $Old がインストールされています。バージョン ${VERSION} に置き換えます。設定と記録は残りますが、古いバージョンでは一部が使えないことがあります。" \
    "已安装较新的版本 $Old，将替换为版本 ${VERSION}。设置和记录会保留；旧版本可能无法识别其中一部分。" \
    "已安裝較新的版本 $Old，將取代為版本 ${VERSION}。設定和記錄會保留；舊版本可能無法辨識其中一部分。"

${Text} TextEndsProgram \
    "If ${NAME} is running, it is ended first." \
    "Läuft ${NAME} gerade, wird es vorher beendet." \
    "Si ${NAME} est ouvert, il est d’abord fermé." \
    "Si ${NAME} está abierto, se cerrará antes." \
    "Если ${NAME} запущена, сначала она будет закрыта." \
    "${NAME} が起動している場合は、先に終了します。" \
    "如果 ${NAME} 正在运行，会先将其关闭。" \
    "如果 ${NAME} 正在執行，會先將其關閉。"

${Text} TextEnding \
    "Ending ${NAME} …" \
    "${NAME} wird beendet …" \
    "Fermeture de ${NAME} …" \
    "Cerrando ${NAME} …" \
    "Закрытие ${NAME} …" \
    "${NAME} を終了しています …" \
    "正在关闭 ${NAME} …" \
    "正在關閉 ${NAME} …"

${Text} TextStillRuns \
    "${NAME} is still running, so its files can't be changed. Please end it with Exit in the menu of its icon beside the clock, and try again." \
    "${NAME} läuft noch, deshalb können seine Dateien nicht geändert werden. Bitte beenden Sie es im Menü seines Symbols neben der Uhr und versuchen Sie es noch einmal." \
    "${NAME} est encore ouvert et ses fichiers ne peuvent pas être modifiés. Quittez-le par le menu de son icône à côté de l’horloge, puis réessayez." \
    "${NAME} sigue abierto y sus archivos no se pueden cambiar. Ciérrelo desde el menú de su icono junto al reloj e inténtelo de nuevo." \
    "${NAME} всё ещё работает, поэтому её файлы нельзя изменить. Закройте её через меню значка рядом с часами и повторите попытку." \
    "${NAME} がまだ起動しているため、ファイルを変更できません。時計の横にあるアイコンのメニューから終了して、もう一度お試しください。" \
    "${NAME} 仍在运行，无法更改其文件。请通过时钟旁图标的菜单退出，然后重试。" \
    "${NAME} 仍在執行，無法變更其檔案。請從時鐘旁圖示的選單結束，然後重試。"

${Text} TextElevating \
    "Waiting for the part with administrator rights …" \
    "Der Teil mit Administratorrechten läuft …" \
    "Partie avec droits d’administrateur en cours …" \
    "En curso la parte con permisos de administrador …" \
    "Выполняется часть с правами администратора …" \
    "管理者権限での処理を待っています …" \
    "正在以管理员权限执行 …" \
    "正在以系統管理員權限執行 …"

${Text} TextNotElevated \
    "Nothing was changed, because Windows did not give administrator rights." \
    "Es wurde nichts geändert, weil Windows keine Administratorrechte gegeben hat." \
    "Rien n’a été modifié, car Windows n’a pas accordé les droits d’administrateur." \
    "No se ha cambiado nada, porque Windows no ha concedido permisos de administrador." \
    "Ничего не изменено: Windows не предоставила права администратора." \
    "管理者権限が得られなかったため、何も変更していません。" \
    "未获得管理员权限，没有进行任何更改。" \
    "未取得系統管理員權限，沒有進行任何變更。"

${Text} TextFailed \
    "The part with administrator rights did not succeed." \
    "Der Teil mit Administratorrechten ist nicht gelungen." \
    "La partie avec droits d’administrateur a échoué." \
    "La parte con permisos de administrador ha fallado." \
    "Часть с правами администратора не выполнена." \
    "管理者権限での処理に失敗しました。" \
    "以管理员权限执行的部分未成功。" \
    "以系統管理員權限執行的部分未成功。"

${Text} TextRemoveTitle \
    "Remove ${NAME}" \
    "${NAME} entfernen" \
    "Supprimer ${NAME}" \
    "Quitar ${NAME}" \
    "Удаление ${NAME}" \
    "${NAME} の削除" \
    "移除 ${NAME}" \
    "移除 ${NAME}"

${Text} TextRemoves \
    "${NAME} will be removed from this folder:$\r$\n$INSTDIR" \
    "${NAME} wird aus diesem Ordner entfernt:$\r$\n$INSTDIR" \
    "${NAME} sera supprimé de ce dossier :$\r$\n$INSTDIR" \
    "${NAME} se quitará de esta carpeta:$\r$\n$INSTDIR" \
    "${NAME} будет удалена из папки:$\r$\n$INSTDIR" \
    "${NAME} を次のフォルダーから削除します。$\r$\n$INSTDIR" \
    "将从此文件夹移除 ${NAME}：$\r$\n$INSTDIR" \
    "將從此資料夾移除 ${NAME}：$\r$\n$INSTDIR"

${Text} TextRemoveData \
    "Also delete my &settings and records" \
    "Auch meine &Einstellungen und Aufzeichnungen löschen" \
    "Supprimer aussi mes &réglages et enregistrements" \
    "Borrar también mis &ajustes y registros" \
    "Удалить также мои &настройки и записи" \
    "自分の設定と記録も削除する(&S)" \
    "同时删除我的设置和记录(&S)" \
    "同時刪除我的設定和記錄(&S)"

${Text} TextDataFolder \
    "They are in ${DATA} and can't be brought back." \
    "Sie liegen in ${DATA} und lassen sich nicht zurückholen." \
    "Ils sont dans ${DATA} et ne pourront pas être récupérés." \
    "Están en ${DATA} y no se podrán recuperar." \
    "Они находятся в ${DATA}, восстановить их будет нельзя." \
    "${DATA} にあり、削除すると元に戻せません。" \
    "它们位于 ${DATA}，删除后无法恢复。" \
    "它們位於 ${DATA}，刪除後無法復原。"
