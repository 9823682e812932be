<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Netzwerkpriorität</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Netzwerkpriorität</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>Sind mehrere dieser Netzwerke in Reichweite, wird das in der Liste oberste verwendet.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Netzwerke hinzufügen</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Neues Netzwerk</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Netzwerkname</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Schlüssel bestätigen</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>Schlüssel-Nr.</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>EAP-Methode</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>Netzwerkpriorität</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>Soll das ausgewählte Netzwerk aus der Prioritätsliste entfernt werden?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Geben Sie den Namen des Netzwerks ein.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Ein Netzwerk mit diesem Namen steht bereits in der Prioritätsliste.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Der Schlüssel eignet sich nicht für WEP. Er muss aus 5 oder 13 Zeichen oder aus 10, 26 oder 32 Hexadezimalziffern (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F) bestehen.

Erlaubt sind Buchstaben, Ziffern und diese Zeichen:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Der Schlüssel eignet sich nicht für WPA. Er muss aus 8 bis 63 Zeichen oder aus 64 Hexadezimalziffern (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F) bestehen.

Erlaubt sind Buchstaben, Ziffern und diese Zeichen:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Die beiden Schlüssel stimmen nicht überein. Geben Sie in beide Felder denselben Schlüssel ein; Groß- und Kleinschreibung wird unterschieden.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Wählen Sie ein Sicherheitsverfahren aus.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Netzwerkübersicht</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>&amp;Verbinden…</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Ablaufprotokoll an&amp;zeigen</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REFRESH</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>Protokoll anzeigen</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Ablaufprotokoll</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>In die Protokolldatei %1 kann nicht geschrieben werden; das Ablaufprotokoll wird nur hier angezeigt.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Mit einem Netzwerk verbinden</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>Das Netzwerk, mit dem Sie sich verbinden, rückt an die Spitze Ihrer Liste.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>Signalstärke</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>Es ist kein Netzwerk in Reichweite. Öffnen Sie dieses Fenster erneut, sobald eines da ist.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>Das WLAN-Plugin ist nicht verfügbar, daher gibt es kein Netzwerk zum Verbinden.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>Das Plugin, das die Liste verwaltet, ist nicht verfügbar, daher kann kein Netzwerk an ihre Spitze rücken.</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Netzwerkpriorität</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>WLAN (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>WLAN (Netzwerke in einer Datei)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>nicht nötig</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Ihre Daten: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Plugins aus: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Diese Seite kann nicht angezeigt werden: Das Plugin %1 wurde geladen, stellt seine Seite aber nicht bereit. Näheres steht möglicherweise im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Mobiles Breitband</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>Wird verwendet</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>In Reichweite</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Außer Reichweite</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>Reichweite unbekannt</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Als Ersatz bereit</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Wird verwendet: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>Es ist das erste Netzwerk Ihrer Liste, das in Reichweite ist.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>Kein WLAN, das in Ihrer Liste weiter oben steht, ist in Reichweite.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Kein Netzwerk wird verwendet</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Ihre Liste ist leer, daher gibt es nichts auszuwählen.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>Keines der Netzwerke Ihrer Liste ist in Reichweite.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Das WLAN-Plugin ist nicht verfügbar, daher ist nicht bekannt, welche Netzwerke in Reichweite sind.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>Das Plugin, das die Liste verwaltet, ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>Die Datei mit Ihrer Liste ist beschädigt. Angezeigt wird, was vor der beschädigten Stelle steht. Wenn Sie in den Einstellungen ein Netzwerk hinzufügen, wird die Datei neu geschrieben.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Die Datei mit Ihrer Liste ist vorhanden, lässt sich aber nicht öffnen. Prüfen Sie ihre Zugriffsrechte und aktualisieren Sie dann die Anzeige.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Das Plugin %1 wurde geladen, stellt die Liste aber nicht bereit.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Keine Liste vorhanden</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Ihre Prioritätsliste ist leer</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Öffnen Sie die Einstellungen und wählen Sie „Hinzufügen“ für Netzwerke, die dieser Computer kennt, oder „Neu“, um selbst eines einzugeben. Das oberste Netzwerk der Liste wird bevorzugt.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Nichts davon ist lesbar. Beachten Sie die Meldung oben.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Das Plugin %1 ist nicht geladen.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Das Plugin %1 fehlt. Installieren Sie es, oder starten Sie das Programm mit --library-path und dem Verzeichnis, das den Ordner plugins/ enthält.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Das Plugin %1 ist unvollständig: Seine Datei endet zu früh, daher wird es nicht verwendet. Installieren Sie es erneut.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Das Plugin %1 wurde für eine andere Qt-Generation erstellt und wird daher nicht verwendet.
Gefunden: Qt %2
Erwartet: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>Das Plugin %1 lässt sich nicht als Bibliothek laden: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>Das Plugin %1 gibt nicht an, wofür es erstellt wurde, und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>Das Plugin %1 wurde für ein anderes Programm erstellt und wird daher nicht verwendet.
Gefunden: %2
Erwartet: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>Die Bibliothek %1 hat keinen Einsprungpunkt eines Plugins und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Das Plugin %1 hat kein Objekt geliefert und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>Was %1 geliefert hat, ist kein Plugin dieses Programms und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Das Plugin %1 meldet, dass es nicht arbeiten kann, und wird daher nicht verwendet. Näheres steht möglicherweise im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Die Sprachdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>Die Sprachdatei %1 ist ab Byte %2 beschädigt und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>Die Sprachdatei %1 enthält keine brauchbaren Texte und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>Läuft NetworkManager?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Die Netzwerke dieses Computers, von NetworkManager, der die Reihenfolge dieser Liste befolgt.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Eigene Netzwerke dieses Programms; die des Computers bleiben unberührt.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>Es gibt keinen NetworkManager. Dies sind eigene Netzwerke dieses Programms; die des Computers bleiben unberührt.</translation>
    </message>
</context>
</TS>
