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
        <translation>Sind mehrere dieser Netzwerke in Reichweite, wird das verwendet, das in der Liste am höchsten steht.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>&amp;Aufwärts</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>A&amp;bwärts</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;Neu</translation>
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
        <translation>WEP-Index</translation>
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
        <translation>Soll das ausgewählte Netzwerk aus Ihrer Liste entfernt werden?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Geben Sie den Namen des Netzwerks ein.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Ein Netzwerk mit diesem Namen steht bereits in Ihrer Liste. Geben Sie einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Das ist kein gültiger WEP-Schlüssel. Ein WEP-Schlüssel hat 5 oder 13 Zeichen oder 10, 26 oder 32 Hexadezimalziffern (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Erlaubt sind Buchstaben, Ziffern und diese Zeichen:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Das ist kein gültiger WPA-Schlüssel. Ein WPA-Schlüssel hat 8 bis 63 Zeichen oder 64 Hexadezimalziffern (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Erlaubt sind Buchstaben, Ziffern und diese Zeichen:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Die beiden Schlüssel sind verschieden. Geben Sie in beide Felder denselben Schlüssel ein, mit denselben Groß- und Kleinbuchstaben.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Wählen Sie einen Sicherheitstyp aus.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>IDS_SENTENCES</source>
        <extracomment>Two sentences, one behind the other. Chinese and Japanese have no blank there</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>IDS_NAMES</source>
        <extracomment>Names of networks side by side. %1: the first ones, %2: one more</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>IDS_LABEL</source>
        <extracomment>%1: a label, such as Wi-Fi; %2: what is told about it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Netzwerkübersicht</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Ihre Liste</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Netzwerk</translation>
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
        <translation>&amp;Verbinden&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>Einste&amp;llungen …</translation>
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
        <translation>Verbinden&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Ablaufprotokoll</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>In die Protokolldatei %1 kann nicht geschrieben werden. Das Ablaufprotokoll wird nur hier angezeigt.</translation>
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
        <translation>Ein Netzwerk, das nicht in Ihrer Liste steht, kommt an ihr Ende.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>Ein Netzwerk, das nicht in Ihrer Liste steht, kommt an ihren Anfang.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>Ein Netzwerk, das nicht in Ihrer Liste steht, kommt auch nicht hinein.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Netzwerk</translation>
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
        <translation>Kein Netzwerk ist in Reichweite. Sobald eines da ist, erscheint es hier.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>Netzwerk suchen</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>Kein Netzwerk in Reichweite hat „%1“ im Namen.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>Ohne Schlüssel</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Schwacher Schlüssel (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>Platz %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>In Ihrer Liste</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>Andere Netzwerke in Reichweite</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Schlüssel von %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Schlüssel anzeigen</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 braucht ein Konto. Es lässt sich in den Einstellungen Ihres Desktops für Netzwerke einrichten.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 ist nicht mehr in Reichweite.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>Das dauert länger als gewöhnlich.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 ist verbunden, konnte aber nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>Tastatur: Strg+↑ und Strg+↓ wählen ein Netzwerk aus, ↑ und ↓ verschieben es.</translation>
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
        <translation>WLAN (Übungsnetzwerke)</translation>
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
        <source>IDS_RULES_TITLE</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>Neue Netzwerke</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>Am Ende Ihrer Liste</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>Am Anfang Ihrer Liste</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Nicht in Ihrer Liste</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>Diese Liste bestimmt über NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>Sonst erhält jedes Netzwerk die Priorität zurück, die es vor dieser Liste hatte.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>Reihenfolge auch ohne Fenster einhalten</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>Das macht ein Programm ohne Fenster. Es startet jetzt und bei jeder Anmeldung.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>Währenddessen ein Symbol anzeigen</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>In der Leiste der Arbeitsumgebung: das verwendete Netzwerk, die ersten Ihrer Liste und ein Weg, sich zu verbinden.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>Von selbst zu einem höheren Netzwerk wechseln</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>Sobald ein Netzwerk weiter oben in Ihrer Liste verwendet werden kann. Nicht weg von einem Netzwerk, das Sie von Hand verbunden haben, und nicht während einer VPN-Verbindung.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>Mobiles Breitband nur, wenn nichts anderes geht</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>Spart Daten. Mobiles Breitband, das unter allen WLAN-Netzwerken Ihrer Liste steht, wird nach einer halben Minute ohne andere Verbindung verbunden und nach einer Minute mit einer anderen getrennt.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>Bei jedem Wechsel benachrichtigen</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>Als Benachrichtigung des Desktops, nach jedem Wechsel.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>Zu %1 gewechselt</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>Es steht in Ihrer Liste weiter oben als %1.</translation>
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
        <source>IDS_GENERAL_PLACES</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Ihre Daten: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Plugin-Ordner: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Diese Seite kann nicht angezeigt werden: Das Plugin %1 wurde geladen, stellt die Seite aber nicht bereit. Näheres steht im Ablaufprotokoll.</translation>
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
        <translation>Unbekannt, ob in Reichweite</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Wird verwendet: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>Wird verwendet: %1, Anmeldung nötig</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>Wird verwendet: %1, kein Internet</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Kein Netzwerk wird verwendet</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Verbindung nicht bekannt</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Ihre Liste ist leer, daher gibt es nichts auszuwählen.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Ihre Liste lässt sich nicht vollständig lesen, daher ist nicht bekannt, welches Netzwerk an erster Stelle steht.</translation>
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
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Verbindung wird hergestellt: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 ist verbunden, aber der Datenverkehr läuft nicht darüber.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager läuft nicht</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>Welches Netzwerk verwendet wird, ist nicht bekannt. Ihre Liste lässt sich ändern; sie gilt, sobald NetworkManager läuft.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager hat noch nicht geantwortet, daher ist nicht bekannt, welches Netzwerk verwendet wird.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>Das WLAN-Plugin teilt nicht mit, welches Netzwerk verwendet wird.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (Übung)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>Es ist das erste Netzwerk in Ihrer Liste, von dem bekannt ist, dass es funktionieren kann.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>Dieses Netzwerk verlangt eine Anmeldung auf einer Webseite.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>Das Netzwerk antwortet, das Internet dahinter nicht.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>Die Liste ist für WLAN und Mobiles Breitband; diese Verbindung ist von anderer Art.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>Es steht nicht in Ihrer Liste.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>Das VPN %1 ist verbunden.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Ihre Liste würde %1 wählen.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Ohne sie würde Ihre Liste %1 wählen.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>Von keinem der Netzwerke in Ihrer Liste ist bekannt, dass es funktionieren kann.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Die Verbindung wird vorbereitet.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Der Schlüssel wird geprüft.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Das Netzwerk wird um eine Adresse gebeten.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Wird verbunden</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Wird getrennt</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>Verborgen: wird versucht</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Hier nicht gespeichert</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Nicht möglich</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Schlüssel abgelehnt</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Zuletzt fehlgeschlagen</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>Nur von Hand</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>Doppelt in der Liste</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM gesperrt</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Kein Adapter</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Kein Modem</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 steht in der Liste weiter oben.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>Das Netzwerk verbirgt seinen Namen, daher ist nicht bekannt, ob es in Reichweite ist. Es wird versucht.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>Ein Netzwerk dieses Namens ist in Reichweite, hat aber eine andere Sicherheit.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>Es ist für einen anderen Adapter, ein anderes Band oder eine andere Station gespeichert als hier vorhanden.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>Es gibt keinen Adapter und kein Modem dafür, die funktionieren.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Der Adapter oder das Modem dafür ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Eine Taste dieses Computers hält den Adapter oder das Modem dafür ausgeschaltet.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>Die SIM-Karte verlangt ihre PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>Es gehört anderen Benutzern dieses Computers.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>Es braucht ein Konto, und keines ist gespeichert.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>Auf diesem Computer ist kein Netzwerk dieses Namens gespeichert.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>Es ist nicht bekannt, ob es möglich ist.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>Es steht schon weiter oben in der Liste, daher wirkt dieser Platz nicht.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>Es verbindet sich nicht von selbst.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager behält eine Verbindung, die funktioniert, bis Sie wechseln.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>Beim letzten Versuch kam keine Verbindung zustande.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>Beim letzten Versuch wurde der Schlüssel abgelehnt.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>Beim letzten Versuch fehlte ein Schlüssel.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>Beim letzten Versuch hat es nicht geantwortet.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>Beim letzten Versuch gab es keine Adresse.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>Beim letzten Versuch hat es diesen Computer nicht zugelassen.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>Beim letzten Versuch funktionierte die SIM-Karte nicht.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>Beim letzten Mal wurde es von Hand beendet.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>Beim letzten Versuch war der Adapter oder das Modem nicht verfügbar.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>Der Schlüssel wurde abgelehnt. Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>Der gespeicherte Schlüssel wurde abgelehnt. Er lässt sich in den Einstellungen Ihres Desktops für Netzwerke ändern.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>Ein Schlüssel wird gebraucht, und keiner ist gespeichert.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>Es hat nicht geantwortet; vielleicht ist es zu weit entfernt.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>Es hat diesen Computer zugelassen, ihm aber keine Adresse gegeben.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>Es hat diesen Computer nicht zugelassen.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>Die SIM-Karte hat nicht funktioniert.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>Der Versuch wurde beendet.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>Der Adapter oder das Modem war nicht verfügbar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>Sie dürfen das nicht.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Zu %1 wechseln</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 wurde nicht verbunden.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 wurde nicht getrennt.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>Die Datei mit Ihrer Liste ist beschädigt. Nur die Netzwerke vor der beschädigten Stelle werden angezeigt.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Eine Kopie der Datei wird als %1 aufbewahrt. Dieses Programm ändert Ihre Liste erst, wenn Sie entschieden haben, was geschehen soll.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Entscheiden&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>Die Liste ist in einem anderen Fenster dieses Programms geöffnet. Schließen Sie es, um die Liste hier zu sehen.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>Dashboard öffnen</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Ihre Liste ist beschädigt</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>Die Datei mit Ihrer Liste lässt sich nicht bis zum Ende lesen. Lesbare Netzwerke: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>Die letzte vollständige Liste ist vom %1. Netzwerke darin: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Es gibt keine frühere Liste, die sich wiederherstellen lässt.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Was Sie auch wählen: Die beschädigte Datei bleibt als %1 erhalten.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Letzte vollständige Liste wiederherstellen</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Lesbare Netzwerke behalten</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Datei lassen, wie sie ist</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Die Datei mit Ihrer Liste ist vorhanden, lässt sich aber nicht öffnen. Prüfen Sie die Zugriffsrechte der Datei, und wählen Sie dann „Aktualisieren“.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Das Plugin %1 wurde geladen, stellt die Liste aber nicht bereit.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Ihre Liste kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Ihre Liste ist leer</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Öffnen Sie die Einstellungen, und wählen Sie „Hinzufügen“ für Netzwerke, die auf diesem Computer gespeichert sind, oder „Neu“, um selbst eines einzugeben. Das Netzwerk, das in der Liste am höchsten steht, wird bevorzugt.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>Welche Netzwerke kommen zuerst?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>Auf diesem Computer sind Netzwerke gespeichert. Übernehmen Sie sie in der Reihenfolge, in der sie jetzt verwendet werden, und setzen Sie dann die bevorzugten an den Anfang.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>Verbinden Sie sich mit einem Netzwerk, dann erscheint es hier.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Die Meldung oben sagt, warum.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Das Plugin %1 ist nicht geladen.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Das Plugin %1 wurde nicht gefunden. Installieren Sie es, oder starten Sie das Programm mit --library-path und dem Ordner, der plugins/ enthält.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Das Plugin %1 ist unvollständig: Seine Datei endet zu früh, daher wird es nicht verwendet. Installieren Sie es erneut.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Das Plugin %1 wurde für eine andere Hauptversion von Qt erstellt und wird daher nicht verwendet.
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
        <translation>Die Bibliothek %1 ist kein Plugin und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Das Plugin %1 hat kein Objekt geliefert, mit dem sich arbeiten lässt, und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 ist kein Plugin für dieses Programm und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Das Plugin %1 konnte nicht starten und wird daher nicht verwendet. Näheres steht im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Die Sprachdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>Die Sprachdatei %1 enthält keine brauchbaren Texte und wird daher nicht verwendet.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Das sind die Netzwerke dieses Computers. NetworkManager probiert sie in der Reihenfolge dieser Liste.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>NetworkManager entscheidet selbst. In den Einstellungen können Sie diese Liste bestimmen lassen.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>NetworkManager folgt Ihrer Liste bei %1 von %2 Netzwerken.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>Warum nicht bei allen?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>Was das heißt</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>Was &amp;Ihre Liste bestimmt…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>Was Ihre Liste bestimmt</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>Ihre Liste bestimmt, mit welchem Netzwerk sich dieser Computer von selbst verbindet, wenn mehrere in Reichweite sind. Eine Verbindung, die funktioniert, bleibt, bis Sie wechseln. Ein Kabel geht vor, und Netzwerke, die nicht in Ihrer Liste stehen, kommen zuletzt. Bei mehreren Adaptern nimmt jeder das erste Netzwerk, das er verwenden kann.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>Jeder Platz in Ihrer Liste wirkt.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>Ihre Liste wirkt, solange dieses Fenster offen ist. Die Einstellungen können dafür sorgen, dass die Reihenfolge danach weiter gilt.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>Es verbindet sich nicht von selbst, daher wirkt sein Platz nicht.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>Seinen Platz darf nur ein Administrator ändern. In den Netzwerkeinstellungen der Arbeitsumgebung kann es ein Netzwerk für Sie allein werden; dann wirkt sein Platz.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>Ein anderes Programm legt es jedes Mal neu an, daher bleibt sein Platz nicht erhalten.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager hat seinen Platz nicht übernommen.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>Jemand hat dafür eine Routenmetrik gewählt, daher kann eine andere Verbindung vor ihm den Verkehr tragen.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>Die Liste oder ein Programm von jemand anderem hat ihm seither einen anderen Platz gegeben. Ihre Liste bestimmt wieder darüber, sobald Sie sie ändern.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>Nach mehreren Fehlschlägen wartet NetworkManager fünf Minuten, bevor er es erneut versucht.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>De&amp;tails&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>Platz in Ihrer Liste:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>Nicht in Ihrer Liste</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>Profil %1 von %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>Sicherheit:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>Adapter oder Modem:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>Nur %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>Beliebig, zurzeit %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>Zuletzt verwendet:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>Priorität für NetworkManager:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>Getaktete Verbindung:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>Vermutlich ja</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>Vermutlich nein</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>Wer es verwenden darf:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>Alle Benutzer dieses Computers</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>Verbindet sich von selbst</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 verbindet sich weiterhin von selbst.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>Net&amp;zwerk vergessen&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>Nimmt das Netzwerk mit seinem Schlüssel von diesem Computer.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>Zurzeit ist nicht bekannt, welche Netzwerke gespeichert sind.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>Es ist hier nicht gespeichert, daher gibt es nichts zu vergessen. Es lässt sich aus der Liste entfernen.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>Netzwerk vergessen</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>%1 vergessen?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>Sie sind damit verbunden; die Verbindung wird beendet.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>Es wird mit seinem Schlüssel auf diesem Computer vergessen und verlässt Ihre Liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>Auf diesem Computer werden alle Profile dieses Namens (%1) mit ihren Schlüsseln vergessen, und es verlässt Ihre Liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>Sein Platz lässt sich zurückholen, sein Schlüssel nicht.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>Es wird mit seinem Schlüssel auf diesem Computer vergessen. Es steht nicht in Ihrer Liste; diese bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>Auf diesem Computer werden alle Profile dieses Namens (%1) mit ihren Schlüsseln vergessen. Das Netzwerk steht nicht in Ihrer Liste; diese bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>Das lässt sich nicht rückgängig machen, und der Schlüssel lässt sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>Es wird vergessen.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>%1 vergessen. Der Platz in der Liste lässt sich zurückholen, der Schlüssel nicht.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>%1 vergessen. Der Schlüssel lässt sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 wurde nicht vergessen und bleibt in Ihrer Liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 wurde nicht vergessen.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>Vergessene Profile: %1 von %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>Es kam keine Antwort, daher ist nicht bekannt, ob %1 vergessen ist. Es bleibt in Ihrer Liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>Es kam keine Antwort, daher ist nicht bekannt, ob %1 vergessen ist.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 ist vergessen, bleibt aber in Ihrer Liste.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 verbindet sich weiterhin nicht von selbst.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Das sind Übungsnetzwerke. Die Netzwerke dieses Computers werden nicht verändert.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>&amp;Frühere Listen&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>Liste &amp;importieren&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>Liste &amp;exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>Nach &amp;oben verschieben</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>Nach &amp;unten verschieben</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>An den &amp;Anfang verschieben</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Ans En&amp;de verschieben</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>An einen &amp;Platz verschieben&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>An einen Platz verschieben</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>Neuer Platz von %1, von 1 (Anfang) bis %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>Neuer Platz des ersten dieser Netzwerke (%1), von 1 (Anfang) bis %2. Die anderen folgen ihm:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>Aus der Liste entfer&amp;nen</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>Zur Liste hinzufü&amp;gen</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>Nicht in Ihrer Liste (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>Klicken Sie oder drücken Sie die Eingabetaste, um diese Netzwerke ein- oder auszublenden.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · Gespeichert</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>Wählen Sie zuerst ein Netzwerk aus, das nicht in Ihrer Liste steht.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>Wählen Sie zuerst ein Netzwerk in der Liste aus.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>Es steht schon dort.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>Ein anderes Programm hat Ihre Liste geändert. %1 steht nicht mehr darin.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1: Platz %2 von %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>Netzwerk &amp;suchen</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>Kein Netzwerk hat „%1“ im Namen.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>Suche beenden</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>Beenden Sie die Suche, um Netzwerke nach oben oder unten zu verschieben.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>Gespeicherte Netzwerke übernehmen&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>Liste importieren&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>Es gibt keine frühere Liste, zu der Sie zurückkehren könnten.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Es wurde nichts rückgängig gemacht, also gibt es nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>Die Datei mit Ihrer Liste ist beschädigt. Mit „Rückgängig“ lässt sich die letzte vollständige Liste wiederherstellen.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>Das Plugin, das die Liste verwaltet, ist nicht verfügbar, daher lässt sich die Liste nicht ändern.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Letzte Änderung: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Nichts geändert</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Alle Netzwerke entfernt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>Die Datei wurde beschädigt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 Netzwerke hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 Netzwerke entfernt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>%1 durch %2 ersetzt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 nach oben verschoben</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 nach unten verschoben</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 an den Anfang verschoben</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 ans Ende verschoben</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 Netzwerke verschoben</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Liste vom %1 wiederhergestellt</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Ihre Liste bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Alle Netzwerke werden entfernt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird hinzugefügt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 Netzwerke werden hinzugefügt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird entfernt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 Netzwerke werden entfernt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 wird durch %2 ersetzt.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird nach oben verschoben.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird nach unten verschoben.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird an den Anfang verschoben.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 wird ans Ende verschoben.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 Netzwerke werden verschoben.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Frühere Listen</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Wählen Sie die Liste, die wiederhergestellt werden soll. Auch die jetzige Liste bleibt erhalten.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>Was geändert wurde</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>Älteste aufbewahrte Liste</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>Liste zu diesem Zeitpunkt</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Ergebnis der Wiederherstellung: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>Das ist die Liste, wie sie jetzt ist.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>Datei aufbewahren und neue beginnen</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Diese Liste wird nicht mehr aufbewahrt. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Liste importieren</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Ersetzt Ihre Liste durch eine aus einer Datei. Sie können die Änderungen vorher prüfen.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Ergebnis des Imports: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Ihre Liste hat diese Reihenfolge schon. Es gibt nichts zu importieren.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Bleibt, wo es ist</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Wird hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Wird nach oben verschoben</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Wird nach unten verschoben</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Bleibt; andere werden verschoben</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Wird aus der Liste entfernt</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; hier nicht gespeichert</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Auf diesem Computer nicht gespeichert: %1. Diese Netzwerke werden erst verwendet, wenn sie hier eingerichtet sind.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>Gespeicherte Netzwerke übernehmen</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>Macht die Netzwerke, die auf diesem Computer gespeichert sind, zu Ihrer Liste. Sie können sie vorher prüfen.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>In der Reihenfolge, in der sie jetzt verwendet werden: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>Die Datei %1 lässt sich nicht lesen oder ist für eine Liste viel zu groß. Ihre Liste ist unverändert.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>Die Datei %1 ist keine Netzwerkliste, die sich importieren lässt. %2. Ihre Liste ist unverändert.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Speichert Ihre Liste in einer Datei, ohne Schlüssel.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>netzwerkliste.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>Die Datei %1 lässt sich nicht schreiben. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Netzwerklisten</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>Die Liste lässt sich nicht in %1 schreiben. Prüfen Sie, ob der Datenträger voll oder die Datei schreibgeschützt ist.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Von der beschädigten Datei %1 lässt sich keine Sicherungskopie anlegen, daher wurde sie nicht geändert. Prüfen Sie, ob der Datenträger voll oder der Ordner schreibgeschützt ist.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>Die Datei mit den früheren Listen, %1, ist beschädigt und wurde nicht geändert. %2. Um „Rückgängig“ wieder zu verwenden, wählen Sie „Frühere Listen&#xa0;…“ und beginnen Sie eine neue Datei. Die beschädigte wird aufbewahrt.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>Die Datei mit den früheren Listen, %1, lässt sich nicht lesen und wurde nicht geändert. Um „Rückgängig“ wieder zu verwenden, machen Sie die Datei lesbar, oder wählen Sie „Frühere Listen&#xa0;…“ und beginnen Sie eine neue. Die alte wird aufbewahrt.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Frühere Listen lassen sich nicht in %1 aufbewahren. Änderungen lassen sich nur rückgängig machen, bis Sie das Programm beenden.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Ein anderes Programm arbeitet gerade mit der Liste. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>Die Datei %1 lässt sich nicht umbenennen, daher wurde keine neue begonnen.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>Das ist kein wohlgeformtes XML</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>Eine Dokumenttyp-Deklaration ist hier nicht erlaubt</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>Das Element „%1“ ist hier nicht erlaubt</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>Text ist hier nicht erlaubt</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>Das Attribut „%1“ fehlt</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>Das Attribut „%1“ hat einen ungültigen Wert</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>Es gibt zu viele Elemente „%1“</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>Mit „Rückgängig“ lässt sich die letzte vollständige Liste wiederherstellen.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Ihre Liste ist beschädigt</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Frühere Listen lassen sich nicht verwenden</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Ein Plugin lässt sich nicht verwenden</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Eine Sprache lässt sich nicht verwenden</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Die nächste Meldung zeigen</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>„Verbinden&#xa0;…“ zeigt die anderen Netzwerke in Reichweite.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Wird nicht verwendet, weil es außer Reichweite ist.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>Ablaufprotokoll &amp;durchsuchen&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Ablaufprotokoll durchsuchen</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Treffer: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Wie im &amp;System</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>D&amp;unkel</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>Neues Netzwerk</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>„%1“ wurde nicht geändert: Ein Netzwerk mit diesem Namen ist bereits gespeichert und darf nicht geändert werden.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Es wurde nichts geändert: Unter dem Namen „%1“ sind mehrere Netzwerke gespeichert, und es ist nicht bekannt, welches gemeint ist. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>„%1“ wurde nicht geändert: Ein Netzwerk mit diesem Namen ist bereits gespeichert, mit Angaben, die sich hier nicht eingeben lassen, zum Beispiel einem Konto. Ändern Sie es dort, wo es eingerichtet wurde, oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>„%1“ wurde nicht geändert: Ein Netzwerk mit diesem Namen ist bereits gespeichert, und diese Sicherheit oder Verschlüsselung wäre schwächer. Wählen Sie eine, die mindestens so stark ist, oder einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>„%1“ wurde nicht geändert: Ein Netzwerk mit diesem Namen ist bereits gespeichert, und zum Ändern ist ein vollständiger Schlüssel nötig. Geben Sie den Schlüssel ein, oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>„%1“ wurde nicht gespeichert: Dasselbe Netzwerk ist bereits als „%2“ gespeichert, mit besseren Einstellungen. Fügen Sie stattdessen „%2“ zu Ihrer Liste hinzu.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>„%1“ wurde nicht gespeichert: Der Name eines Netzwerks hat 1 bis 32 Byte. Umlaute, Buchstaben mit Akzenten und andere Schriften brauchen je zwei bis vier Byte.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>„%1“ wurde nicht gespeichert: Diese Sicherheit, diese Verschlüsselung und dieser Schlüssel passen nicht zusammen.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>„%1“ wurde nicht gespeichert: Diese Sicherheit verlangt ein Konto, das sich hier nicht eingeben lässt. Das Netzwerk muss in den Einstellungen Ihres Desktops eingerichtet werden. Fügen Sie es danach zu Ihrer Liste hinzu.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>„%1“ wurde nicht gespeichert: NetworkManager läuft nicht.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>Es ist nicht bekannt, ob „%1“ gespeichert wurde: NetworkManager antwortet nicht.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>„%1“ wurde nicht gespeichert: Sie haben auf diesem Computer keine Berechtigung zum Speichern von Netzwerken.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>„%1“ wurde nicht gespeichert: NetworkManager nimmt es nicht an, höchstwahrscheinlich wegen des Schlüssels.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>„%1“ wurde nicht gespeichert: NetworkManager meldet einen Fehler.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>„%1“ wurde nicht gespeichert: Die Datei mit den gespeicherten Netzwerken lässt sich nicht lesen oder schreiben. Näheres steht im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>„%1“ wurde nicht gespeichert: Die Datei mit den gespeicherten Netzwerken ist beschädigt und wurde nicht geändert. Die Zeile steht im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>„%1“ wurde nicht gespeichert: Ein anderes Programm ändert gerade die Netzwerke. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>Ihre Liste</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>Die Reihenfolge Ihrer Liste kann wegen „%1“ nicht ganz wirksam werden: Dieses Netzwerk kann nicht geändert werden, und seine Priorität passt nicht zu seinem Platz in der Liste. Die anderen Netzwerke folgen der Liste.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>Die Reihenfolge Ihrer Liste kann wegen „%1“ und anderer Netzwerke nicht ganz wirksam werden: Sie können nicht geändert werden, und ihre Priorität passt nicht zu ihrem Platz in der Liste. Ihre Namen stehen im Ablaufprotokoll.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>„%1“ steht nicht in Ihrer Liste, wird aber vor Netzwerken versucht, die darin stehen: Für diese gibt es keine höhere Priorität. Fügen Sie „%1“ zu Ihrer Liste hinzu, damit das Netzwerk einen Platz bekommt.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>„%1“ hat nicht den Platz aus Ihrer Liste: Die Liste einer anderen Person oder ein anderes Programm hat die Priorität erneut geändert. Sobald Sie Ihre Liste ändern, gilt sie wieder.</translation>
    </message>
</context>
</TS>
