<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Priorité des réseaux</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Priorité des réseaux</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>Lorsque plusieurs de ces réseaux sont à portée, celui qui est le plus haut dans la liste est utilisé.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Ajouter des réseaux</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Nouveau réseau</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Nom du réseau</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Confirmer la clé</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>Index WEP</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>Méthode EAP</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>Priorité des réseaux</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>Retirer le réseau sélectionné de votre liste&#x202f;?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Saisissez le nom du réseau.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Un réseau de ce nom figure déjà dans votre liste. Saisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Cette clé WEP n’est pas valide. Une clé WEP comporte 5 ou 13 caractères, ou bien 10, 26 ou 32 chiffres hexadécimaux (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Vous pouvez utiliser des lettres, des chiffres et les symboles suivants&#xa0;:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Cette clé WPA n’est pas valide. Une clé WPA comporte de 8 à 63 caractères, ou bien 64 chiffres hexadécimaux (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Vous pouvez utiliser des lettres, des chiffres et les symboles suivants&#xa0;:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Les deux clés sont différentes. Saisissez la même clé dans les deux champs, en respectant les majuscules et les minuscules.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Choisissez un type de sécurité.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Français</translation>
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
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Tableau de bord réseau</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Votre liste</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Réseau</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>Se &amp;connecter…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>Ac&amp;tualiser</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Se connecter…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>Impossible d’écrire dans le fichier journal %1. Le journal n’est affiché qu’ici.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Se connecter à un réseau</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>Un réseau qui n’est pas dans votre liste est mis à la fin.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>Un réseau qui n’est pas dans votre liste est mis en tête.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>Un réseau qui n’est pas dans votre liste n’y est pas ajouté.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>Aucun réseau n’est à portée. Dès qu’il y en aura un, il apparaîtra ici.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>Rechercher un réseau</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>Aucun réseau à portée n’a «&#xa0;%1&#xa0;» dans son nom.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>Sans clé</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Clé faible (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>Rang %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>Dans votre liste</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>Autres réseaux à portée</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Clé de %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Afficher la clé</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 demande un compte. Vous pouvez le configurer dans les paramètres réseau de votre bureau.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 n’est plus à portée.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>Cela prend plus de temps que d’habitude.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 est connecté, mais n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>Clavier&#xa0;: Ctrl+↑ et Ctrl+↓ sélectionnent un réseau, ↑ et ↓ le déplacent.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Priorité des réseaux</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (réseaux d’essai)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>Nouveaux réseaux</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>À la fin de votre liste</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>En tête de votre liste</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Pas dans votre liste</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>Laisser cette liste diriger NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>Sinon, chaque réseau retrouve la priorité qu’il avait avant cette liste.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>Maintenir l’ordre quand cette fenêtre est fermée</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>Un programme sans fenêtre s’en charge. Il démarre maintenant et à chaque ouverture de session.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>Afficher une icône pendant ce temps</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>Dans le tableau de bord du bureau&#xa0;: le réseau utilisé, les premiers de votre liste et un moyen de se connecter.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>Passer automatiquement à un réseau plus haut</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>Dès qu’un réseau plus haut dans votre liste peut être utilisé. Sans quitter un réseau connecté à la main, ni pendant un VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>Haut débit mobile seulement à défaut d’autre</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>Économise les données. Le haut débit mobile placé sous tous les réseaux Wi-Fi de votre liste est connecté après une demi-minute sans autre connexion, et déconnecté après une minute avec une autre.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>Me prévenir à chaque changement</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>Par une notification du bureau, après chaque changement.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>Passage à %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>Il est plus haut dans votre liste que %1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Modules</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>chargé</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Vos données&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Dossier des modules&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Cette page ne peut pas être affichée&#xa0;: le module %1 a été chargé, mais il ne fournit pas la page. Consultez le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Haut débit mobile</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>Utilisé actuellement</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>À portée</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Hors de portée</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>On ignore s’il est à portée</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Utilisé actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>Utilisé actuellement&#xa0;: %1, identification requise</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>Utilisé actuellement&#xa0;: %1, sans Internet</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Aucun réseau utilisé</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Connexion inconnue</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Votre liste est vide&#x202f;; il n’y a donc rien à choisir.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Votre liste ne peut pas être lue en entier&#x202f;; on ne sait donc pas quel réseau vient en premier.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Le module Wi-Fi n’est pas disponible&#x202f;; on ne sait donc pas quels réseaux sont à portée.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>Le module qui gère la liste n’est pas disponible.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Connexion en cours&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 est connecté, mais le trafic n’y passe pas.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>On ne sait pas quel réseau est utilisé. Votre liste peut être modifiée&#x202f;; elle prendra effet dès que NetworkManager fonctionnera.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager n’a pas encore répondu&#x202f;; on ne sait donc pas quel réseau est utilisé.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>Le module Wi-Fi n’indique pas quel réseau est utilisé.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (essai)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>C’est le premier réseau de votre liste dont on sait qu’il peut servir.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>Ce réseau demande de s’identifier sur une page web.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>Le réseau répond, mais pas Internet au-delà.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>La liste est faite pour le Wi-Fi et le haut débit mobile&#x202f;; cette connexion est d’un autre type.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>Il n’est pas dans votre liste.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>Le VPN %1 est connecté.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Votre liste choisirait %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Sans elle, votre liste choisirait %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>On ne sait d’aucun des réseaux de votre liste qu’il peut servir.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>La connexion est en préparation.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>La clé est en cours de vérification.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Une adresse est demandée au réseau.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>Masqué&#xa0;: est essayé</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Non enregistré ici</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Ne peut pas servir</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Clé refusée</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Dernier essai échoué</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>À la main seulement</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>En double dans la liste</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM verrouillée</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Pas d’adaptateur</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Pas de modem</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Éteint</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 est plus haut dans la liste.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>Le réseau masque son nom&#x202f;; on ne sait donc pas s’il est à portée. Il est essayé.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>Un réseau de ce nom est à portée, mais sa sécurité est autre.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>Il est enregistré pour un autre adaptateur, une autre bande ou une autre station que ceux d’ici.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>Aucun adaptateur ou modem ne fonctionne pour lui.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Son adaptateur ou modem est éteint.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Un bouton de cet ordinateur maintient éteint son adaptateur ou modem.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>La carte SIM demande son code PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>Il appartient à d’autres utilisateurs de cet ordinateur.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>Il lui faut un compte, et aucun n’est enregistré.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>Cet ordinateur n’a aucun réseau enregistré de ce nom.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>On ne sait pas s’il peut servir.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>Il est déjà plus haut dans la liste&#x202f;; ce rang est donc sans effet.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>Il ne se connecte pas de lui-même.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager garde une connexion qui fonctionne jusqu’à ce que vous décidiez de passer à une autre.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>Au dernier essai, la connexion a échoué.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>Au dernier essai, la clé a été refusée.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>Au dernier essai, il manquait une clé.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>Au dernier essai, il n’a pas répondu.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>Au dernier essai, il n’a pas donné d’adresse.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>Au dernier essai, il n’a pas laissé entrer cet ordinateur.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>Au dernier essai, la carte SIM n’a pas fonctionné.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>La dernière fois, il a été arrêté à la main.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>Au dernier essai, l’adaptateur ou le modem n’était pas disponible.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>La clé a été refusée. Les majuscules et les minuscules comptent.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>La clé enregistrée a été refusée. Vous pouvez la modifier dans les paramètres réseau de votre bureau.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>Il faut une clé, et aucune n’est enregistrée.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>Il n’a pas répondu ; il est peut-être trop loin.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>Il a laissé entrer cet ordinateur, mais ne lui a pas donné d’adresse.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>Il n’a pas laissé entrer cet ordinateur.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>La carte SIM n’a pas fonctionné.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>L’essai a été arrêté.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>L’adaptateur ou le modem n’était pas disponible.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>Vous n’en avez pas le droit.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Passer à %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 n’a pas été connecté.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 n’a pas été déconnecté.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>Le fichier de votre liste est endommagé. Seuls les réseaux situés avant la partie endommagée sont affichés.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Une copie du fichier est conservée sous le nom %1. Ce programme ne modifie pas votre liste tant que vous n’avez pas décidé que faire.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Décider que faire…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>La liste est ouverte dans une autre fenêtre de ce programme. Fermez-la pour voir la liste ici.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>Ouvrir le tableau de bord réseau</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Votre liste est endommagée</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>Le fichier de votre liste ne peut pas être lu jusqu’à la fin. Réseaux lisibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>La dernière liste complète date du %1. Réseaux qu’elle contient&#xa0;: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Aucune liste précédente ne peut être restaurée.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Quel que soit votre choix, le fichier endommagé est conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Restaurer la dernière liste complète</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Conserver les réseaux lisibles</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Laisser le fichier tel quel</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Le fichier de votre liste existe, mais il ne peut pas être ouvert. Vérifiez ses droits d’accès, puis choisissez «&#xa0;Actualiser&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Le module %1 a été chargé, mais il ne fournit pas la liste.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Votre liste ne peut pas être affichée</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Votre liste est vide</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Ouvrez les paramètres, puis choisissez «&#xa0;Ajouter&#xa0;» pour les réseaux enregistrés sur cet ordinateur, ou «&#xa0;Nouveau&#xa0;» pour en saisir un vous-même. Le réseau le plus haut dans la liste est préféré.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>Quels réseaux viennent en premier&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>Des réseaux sont enregistrés sur cet ordinateur. Reprenez-les dans l’ordre dans lequel ils sont utilisés actuellement, puis placez ceux que vous préférez en tête.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>Connectez-vous à un réseau, et il apparaîtra ici.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Le message ci-dessus dit pourquoi.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Le module %1 n’est pas chargé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Le module %1 est introuvable. Installez-le, ou démarrez le programme avec --library-path et le dossier qui contient plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Le module %1 est incomplet&#xa0;: son fichier s’arrête trop tôt&#x202f;; il n’est donc pas utilisé. Réinstallez-le.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Le module %1 a été compilé pour une autre version majeure de Qt&#x202f;; il n’est donc pas utilisé.
Trouvé&#xa0;: Qt %2
Attendu&#xa0;: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>Le module %1 ne peut pas être chargé comme bibliothèque&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>Le module %1 n’indique pas pour quoi il a été compilé&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>Le module %1 a été compilé pour un autre programme&#x202f;; il n’est donc pas utilisé.
Trouvé&#xa0;: %2
Attendu&#xa0;: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>La bibliothèque %1 n’est pas un module&#x202f;; elle n’est donc pas utilisée.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Le module %1 n’a fourni aucun objet utilisable&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 n’est pas un module pour ce programme&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Le module %1 n’a pas pu démarrer&#x202f;; il n’est donc pas utilisé. Consultez le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Le fichier de langue %1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>Le fichier de langue %1 ne contient aucun texte utilisable&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Ce sont les réseaux de cet ordinateur. NetworkManager les essaie dans l’ordre de cette liste.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>NetworkManager décide lui-même. Dans les paramètres, vous pouvez laisser cette liste décider.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>NetworkManager suit votre liste pour %1 réseaux sur %2.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>Pourquoi pas pour tous&#x202f;?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>Ce que cela veut dire</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>&amp;Ce que décide votre liste…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>Ce que décide votre liste</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>Votre liste décide à quel réseau cet ordinateur se connecte de lui-même quand plusieurs sont à portée. Une connexion qui fonctionne est gardée jusqu’à ce que vous décidiez de passer à une autre. Un câble passe en premier, et les réseaux qui ne sont pas dans votre liste en dernier. Avec plusieurs adaptateurs, chacun prend le premier réseau qu’il peut utiliser.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>Chaque rang de votre liste a son effet.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>Votre liste a son effet tant que cette fenêtre est ouverte. Les paramètres permettent de maintenir l’ordre ensuite.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>Il ne se connecte pas de lui-même, donc son rang n’a pas d’effet.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>Seul un administrateur peut changer son rang. Dans les paramètres réseau du bureau, il peut devenir un réseau pour vous seul&#x202f;; son rang a alors son effet.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>Un autre programme le recrée à chaque fois, donc son rang n’est pas gardé.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager n’a pas accepté son rang.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>Quelqu’un a choisi une métrique de route pour lui, donc une autre connexion peut porter le trafic avant lui.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>La liste ou un programme de quelqu’un d’autre lui a donné depuis un autre rang. Votre liste en décide à nouveau dès que vous la modifiez.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>Après plusieurs échecs, NetworkManager attend cinq minutes avant de réessayer.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>Dét&amp;ails…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>Rang dans votre liste&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>Pas dans votre liste</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>Profil %1 sur %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>Sécurité&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>Adaptateur ou modem&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>%1 seulement</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>N’importe lequel</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>N’importe lequel, actuellement %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>Dernière utilisation&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>Priorité pour NetworkManager&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>Connexion limitée&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>Probablement oui</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>Probablement non</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>Qui peut l’utiliser&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>Tous les utilisateurs de cet ordinateur</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>Se connecte de lui-même</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 se connecte toujours de lui-même.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>&amp;Oublier le réseau…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>Enlève le réseau de cet ordinateur, avec sa clé.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>On ignore actuellement quels réseaux sont enregistrés.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>Il n’est pas enregistré ici&#x202f;; il n’y a donc rien à oublier. Il peut être retiré de la liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>Oublier le réseau</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>Oublier %1&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>Vous y êtes connecté&#x202f;; la connexion prendra fin.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>Cet ordinateur l’oubliera avec sa clé, et il quittera votre liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>Cet ordinateur oubliera tous les profils de ce nom (%1) avec leurs clés, et il quittera votre liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>Son rang peut être récupéré, pas sa clé.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>Cet ordinateur l’oubliera avec sa clé. Il n’est pas dans votre liste, qui reste telle quelle.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>Cet ordinateur oubliera tous les profils de ce nom (%1) avec leurs clés. Le réseau n’est pas dans votre liste, qui reste telle quelle.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>Cela ne peut pas être annulé, et sa clé ne peut pas être récupérée.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>Oubli en cours.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>%1 oublié. Son rang dans la liste peut être récupéré, pas sa clé.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>%1 oublié. Sa clé ne peut pas être récupérée.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 n’a pas été oublié et reste dans votre liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 n’a pas été oublié.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>Profils oubliés&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>Il n’y a pas eu de réponse&#x202f;; on ne sait donc pas si %1 est oublié. Il reste dans votre liste.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>Il n’y a pas eu de réponse&#x202f;; on ne sait donc pas si %1 est oublié.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 est oublié, mais reste dans votre liste.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 ne se connecte toujours pas de lui-même.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Ce sont des réseaux d’essai. Les réseaux de cet ordinateur ne sont pas modifiés.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>Ann&amp;uler l’action</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>&amp;Listes précédentes…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Importer une liste…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>E&amp;xporter la liste…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>Placer en &amp;tête</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Placer à la &amp;fin</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>Placer à un ran&amp;g…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>Placer à un rang</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>Nouveau rang de %1, de 1 (la tête) à %2&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>Nouveau rang du premier de ces réseaux (%1), de 1 (la tête) à %2. Les autres le suivent&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>Placer</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>Retirer de la li&amp;ste</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>A&amp;jouter à la liste</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>Hors de votre liste (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>Cliquez, ou appuyez sur Retour, pour afficher ou masquer ces réseaux.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · Enregistré</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>Choisissez d’abord un réseau qui n’est pas dans votre liste.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>Choisissez d’abord un réseau dans la liste.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>Il y est déjà.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>Un autre programme a modifié votre liste. %1 n’y est plus.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1&#xa0;: rang %2 sur %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>Rec&amp;hercher un réseau</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>Aucun réseau n’a «&#xa0;%1&#xa0;» dans son nom.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>Effacez la recherche pour monter ou descendre des réseaux.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Annuler l’action</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>Reprendre les réseaux enregistrés…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>Importer une liste…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Annuler l’action&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>Il n’y a pas de liste précédente à laquelle revenir.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Rien n’a été annulé&#x202f;; il n’y a donc rien à rétablir.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>Le fichier de votre liste est endommagé. «&#xa0;Annuler l’action&#xa0;» permet de restaurer la dernière liste complète.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>Le module qui gère la liste n’est pas disponible&#x202f;; la liste ne peut donc pas être modifiée.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Dernière modification : %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Aucune modification</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Tous les réseaux retirés</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>Le fichier a été endommagé</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 ajouté</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 réseaux ajoutés</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 retiré</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 réseaux retirés</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>%1 remplacé par %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 déplacé vers le haut</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 déplacé vers le bas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 déplacé en tête</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 déplacé à la fin</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 réseaux déplacés</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Liste du %1 restaurée</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Votre liste reste telle quelle.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Tous les réseaux seront retirés.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera ajouté.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 réseaux seront ajoutés.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera retiré.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 réseaux seront retirés.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 sera remplacé par %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera déplacé vers le haut.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera déplacé vers le bas.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera déplacé en tête.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 sera déplacé à la fin.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 réseaux seront déplacés.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Listes précédentes</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Choisissez la liste à restaurer. La liste actuelle est également conservée.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>Ce qui a changé</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>État</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>Plus ancienne liste conservée</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>Liste à ce moment-là</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Résultat de la restauration&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>C’est la liste telle qu’elle est maintenant.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>Conserver le fichier et en commencer un autre</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Cette liste n’est plus conservée. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Importer une liste</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Remplace votre liste par celle d’un fichier. Vous pouvez d’abord vérifier les modifications.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Résultat de l’importation&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Votre liste est déjà dans cet ordre. Il n’y a rien à importer.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>Ce qui se passe</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Reste à sa place</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Sera ajouté</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Sera déplacé vers le haut</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Sera déplacé vers le bas</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Reste en place&#x202f;; d’autres seront déplacés</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Sera retiré de la liste</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1&#x202f;; non enregistré ici</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Non enregistrés sur cet ordinateur&#xa0;: %1. Ces réseaux ne seront utilisés qu’une fois configurés ici.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>Reprendre les réseaux enregistrés</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>Fait des réseaux enregistrés sur cet ordinateur votre liste. Vous pouvez d’abord la vérifier.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>Dans l’ordre dans lequel ils sont utilisés actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>Le fichier %1 ne peut pas être lu ou est bien trop volumineux pour une liste. Votre liste est inchangée.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>Le fichier %1 n’est pas une liste de réseaux importable. %2. Votre liste est inchangée.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Exporter la liste</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Enregistre votre liste dans un fichier, sans les clés.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>liste-de-reseaux.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>Le fichier %1 ne peut pas être écrit. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Listes de réseaux</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>La liste ne peut pas être écrite dans %1. Vérifiez si le disque est plein ou si le fichier est protégé en écriture.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Impossible de faire une copie de sauvegarde du fichier endommagé %1&#x202f;; il n’a donc pas été modifié. Vérifiez si le disque est plein ou si le dossier est protégé en écriture.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>Le fichier des listes précédentes, %1, est endommagé et n’a pas été modifié. %2. Pour pouvoir de nouveau utiliser «&#xa0;Annuler l’action&#xa0;», choisissez «&#xa0;Listes précédentes…&#xa0;» et commencez un nouveau fichier. Celui qui est endommagé est conservé.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>Le fichier des listes précédentes, %1, ne peut pas être lu et n’a pas été modifié. Pour pouvoir de nouveau utiliser «&#xa0;Annuler l’action&#xa0;», rendez le fichier lisible, ou choisissez «&#xa0;Listes précédentes…&#xa0;» et commencez un nouveau fichier. L’ancien est conservé.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Les listes précédentes ne peuvent pas être conservées dans %1. Vous ne pouvez annuler vos modifications que jusqu’à la fermeture du programme.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Un autre programme utilise la liste. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>Le fichier %1 ne peut pas être renommé&#x202f;; aucun nouveau fichier n’a donc été commencé.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>ce n’est pas du XML bien formé</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>une déclaration de type de document n’est pas autorisée ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>l’élément «&#xa0;%1&#xa0;» n’est pas autorisé ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>du texte n’est pas autorisé ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>l’attribut « %1 » manque</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>l’attribut «&#xa0;%1&#xa0;» a une valeur non valide</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>il y a trop d’éléments « %1 »</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>«&#xa0;Annuler l’action&#xa0;» permet de restaurer la dernière liste complète.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Votre liste est endommagée</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Les listes précédentes ne peuvent pas être utilisées</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Un module ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Une langue ne peut pas être utilisée</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Afficher le message suivant</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>«&#xa0;Se connecter…&#xa0;» montre les autres réseaux à portée.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Non utilisé, car il est hors de portée.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Rechercher dans le journal…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Rechercher dans le journal</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Occurrence suivante</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Occurrence précédente</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Occurrences&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Aucune occurrence</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;Sombre</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>Nouveau réseau</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été modifié&#xa0;: un réseau de ce nom est déjà enregistré et ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Rien n’a été modifié&#xa0;: plusieurs réseaux sont enregistrés sous le nom «&#xa0;%1&#xa0;», et on ne sait pas lequel est visé. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été modifié&#xa0;: un réseau de ce nom est déjà enregistré, avec des données qui ne peuvent pas être saisies ici, par exemple un compte. Modifiez-le là où il a été configuré, ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été modifié&#xa0;: un réseau de ce nom est déjà enregistré, et cette sécurité ou ce chiffrement serait plus faible. Choisissez-en un qui soit au moins aussi fort, ou un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été modifié&#xa0;: un réseau de ce nom est déjà enregistré, et sa modification demande une clé complète. Saisissez la clé, ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le même réseau est déjà enregistré sous le nom «&#xa0;%2&#xa0;», avec de meilleurs paramètres. Ajoutez plutôt «&#xa0;%2&#xa0;» à votre liste.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le nom d’un réseau compte de 1 à 32 octets. Les lettres accentuées et les autres écritures en prennent chacune de deux à quatre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: cette sécurité, ce chiffrement et cette clé ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: cette sécurité demande un compte, qui ne peut pas être saisi ici. Configurez le réseau dans les paramètres de votre bureau, puis ajoutez-le à votre liste.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: NetworkManager n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>On ne sait pas si «&#xa0;%1&#xa0;» a été enregistré&#xa0;: NetworkManager ne répond pas.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: vous n’êtes pas autorisé à enregistrer des réseaux sur cet ordinateur.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: NetworkManager ne l’accepte pas, très probablement à cause de la clé.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: NetworkManager signale une erreur.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le fichier des réseaux enregistrés ne peut pas être lu ou écrit. Consultez le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le fichier des réseaux enregistrés est endommagé et n’a pas été modifié. Le journal indique la ligne.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: un autre programme modifie les réseaux. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>Votre liste</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>L’ordre de votre liste ne peut pas s’appliquer entièrement à cause de «&#xa0;%1&#xa0;»&#xa0;: ce réseau ne peut pas être modifié, et sa priorité ne correspond pas à son rang dans la liste. Les autres réseaux suivent la liste.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>L’ordre de votre liste ne peut pas s’appliquer entièrement à cause de «&#xa0;%1&#xa0;» et d’autres réseaux&#xa0;: ils ne peuvent pas être modifiés, et leur priorité ne correspond pas à leur rang dans la liste. Leurs noms se trouvent dans le journal.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas dans votre liste, mais est essayé avant des réseaux qui y sont&#xa0;: il n’y a pas de priorité plus élevée pour ceux-ci. Ajoutez «&#xa0;%1&#xa0;» à votre liste pour lui donner un rang.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas son rang dans votre liste&#xa0;: la liste d’une autre personne ou un autre programme a encore changé sa priorité. Dès que vous modifiez votre liste, elle s’applique de nouveau.</translation>
    </message>
</context>
</TS>
