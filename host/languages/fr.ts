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
        <translation>N° de clé</translation>
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
        <translation>Retirer le réseau sélectionné de la liste de priorité&#x202f;?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Saisissez le nom du réseau.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Un réseau de ce nom figure déjà dans la liste de priorité.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>La clé ne convient pas à WEP. Elle doit comporter 5 ou 13 caractères, ou bien 10, 26 ou 32 chiffres hexadécimaux (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Sont autorisés les lettres, les chiffres et les signes suivants&#xa0;:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>La clé ne convient pas à WPA. Elle doit comporter de 8 à 63 caractères, ou bien 64 chiffres hexadécimaux (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Sont autorisés les lettres, les chiffres et les signes suivants&#xa0;:
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
        <source>IDS_WINDOW_TITLE</source>
        <translation>Tableau de bord réseau</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;Fichier</translation>
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
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Afficher la &amp;trace</translation>
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
        <source>IDS_BUTTON_REFRESH</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>Afficher la trace</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>Impossible d’écrire dans le fichier journal %1&#x202f;; la trace n’est affichée qu’ici.</translation>
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
        <translation>Le réseau auquel vous vous connectez passe en tête de votre liste.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>Signal</translation>
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
        <translation>Aucun réseau n’est à portée. Rouvrez cette fenêtre lorsqu’il y en aura un.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>Le module Wi-Fi n’est pas disponible&#x202f;; il n’y a donc aucun réseau auquel se connecter.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>Le module qui gère la liste n’est pas disponible&#x202f;; aucun réseau ne peut donc y être placé en tête.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>Votre liste ne peut pas être lue en entier&#x202f;; aucun réseau n’y est donc placé en tête.</translation>
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
        <translation>Au clavier&#xa0;: Ctrl+↑ et Ctrl+↓ choisissent une entrée, ↑ et ↓ la déplacent.</translation>
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
        <translation>Wi-Fi (réseaux dans un fichier)</translation>
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
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>pas nécessaire</translation>
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
        <translation>Emplacement des modules&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Cette page ne peut pas être affichée&#xa0;: le module %1 a été chargé, mais il ne fournit pas sa page. La trace en dit peut-être plus.</translation>
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
        <translation>Portée inconnue</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Prêt en secours</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Utilisé actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>C’est le premier réseau de votre liste qui soit à portée.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>Aucun réseau Wi-Fi placé avant lui dans votre liste n’est à portée.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Aucun réseau utilisé</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Votre liste est vide&#x202f;; il n’y a donc rien à choisir.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>Aucun des réseaux de votre liste n’est à portée.</translation>
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
        <source>IDS_LIST_DAMAGED</source>
        <translation>Le fichier de votre liste est endommagé. Seul ce qui précède l’endroit endommagé est affiché.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Le fichier a été copié dans %1. Ce programme ne le modifie pas tant que vous n’avez pas décidé que faire.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Décider que faire…</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Votre liste est endommagée</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>Le fichier de votre liste ne peut pas être lu jusqu’à la fin. Réseaux lisibles&#x202f;: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>La dernière liste complète date du %1. Réseaux qu’elle contient&#x202f;: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Il n’y a pas de liste précédente à rétablir.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Quel que soit votre choix, le fichier endommagé est conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Rétablir la dernière liste complète</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Continuer avec ce qui a pu être lu</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Laisser tel quel</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Le fichier de votre liste existe, mais il ne peut pas être ouvert. Vérifiez ses droits d’accès, puis actualisez.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Le module %1 a été chargé, mais il ne fournit pas la liste.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Aucune liste à afficher</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Votre liste de priorité est vide</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Ouvrez les paramètres, puis choisissez «&#xa0;Ajouter&#xa0;» pour les réseaux que cet ordinateur connaît, ou «&#xa0;Nouveau&#xa0;» pour en saisir un vous-même. Le réseau le plus haut dans la liste est préféré.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Rien n’a pu en être lu. Consultez le message ci-dessus.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Le module %1 n’est pas chargé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Le module %1 est absent. Installez-le, ou démarrez le programme avec --library-path et le répertoire qui contient le dossier plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Le module %1 est incomplet&#xa0;: son fichier s’arrête trop tôt&#x202f;; il n’est donc pas utilisé. Réinstallez-le.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Le module %1 a été compilé pour une autre génération de Qt&#x202f;; il n’est donc pas utilisé.
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
        <translation>La bibliothèque %1 n’a pas le point d’entrée d’un module&#x202f;; elle n’est donc pas utilisée.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Le module %1 n’a fourni aucun objet utilisable&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>Ce que %1 a fourni n’est pas un module de ce programme&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Le module %1 signale qu’il ne peut pas fonctionner&#x202f;; il n’est donc pas utilisé. La trace en dit peut-être plus.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Le fichier de langue %1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>Le fichier de langue %1 est endommagé à partir de l’octet %2&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>Le fichier de langue %1 ne contient aucun texte utilisable&#x202f;; il n’est donc pas utilisé.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>NetworkManager est-il en marche&#x202f;?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Réseaux de cet ordinateur, gérés par NetworkManager, qui suit l’ordre de cette liste.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Réseaux propres à ce programme&#x202f;; ceux de l’ordinateur ne sont pas modifiés.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>NetworkManager n’est pas disponible. Ces réseaux sont propres à ce programme&#x202f;; ceux de l’ordinateur ne sont pas modifiés.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>Re&amp;staurer…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Importer un ordre…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>E&amp;xporter l’ordre…</translation>
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
        <source>IDS_BUTTON_RESTORE</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Annuler : %1</translation>
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
        <translation>Rien n’a été annulé, il n’y a donc rien à rétablir.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>Le fichier de votre liste est endommagé. « Annuler l’action » ramène la dernière liste lisible.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>Le module qui tient la liste n’est pas disponible ; la liste ne peut donc pas être modifiée.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Dernière modification : %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Aucun changement</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Toutes les entrées supprimées</translation>
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
        <translation>%1 entrées ajoutées</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 supprimé</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 entrées supprimées</translation>
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
        <translation>%1 entrées déplacées</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Retour à la liste du %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Restaurer une liste précédente</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Choisissez comment votre liste doit redevenir. La liste actuelle reste ici aussi.</translation>
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
        <translation>La liste à ce moment</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Effet de la restauration : %1</translation>
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
        <translation>Le mettre de côté et recommencer</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Cette liste n’est plus conservée. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Importer un ordre</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Reprend une liste depuis un fichier. Vous voyez d’abord ce qui changerait.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Effet de l’importation : %1</translation>
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
        <translation>Reste</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Est ajouté</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Monte</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Descend</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>D’autres se déplacent autour</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Est retiré de la liste</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1 ; inconnu ici</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Inconnus sur cet ordinateur : %1. Une telle entrée n’est utilisée qu’une fois le réseau configuré ici.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>Le fichier %1 ne peut pas être lu ou est bien trop grand pour une liste. Votre liste est inchangée.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>Le fichier %1 n’est pas une liste de réseaux importable. %2. Votre liste est inchangée.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Exporter l’ordre</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Écrit l’ordre de votre liste dans un fichier, sans les clés.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>ordre-des-reseaux.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>Le fichier %1 ne peut pas être écrit. Ce qui s’y trouvait est inchangé.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Ordres de réseaux</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>La liste ne peut pas être écrite dans %1. Vérifiez si le disque est plein ou le fichier protégé.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Le fichier endommagé %1 ne peut pas être copié par sécurité&#x202f;; il a été laissé tel quel. Vérifiez si le disque est plein ou le dossier protégé.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>Le fichier des listes précédentes, %1, est endommagé et a été laissé tel quel. %2. Tant qu’il n’est pas mis de côté dans « Restaurer… », rien ne peut être annulé.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>Le fichier des listes précédentes, %1, ne peut pas être lu et a été laissé tel quel. Tant qu’il ne l’est pas ou n’est pas mis de côté dans « Restaurer… », rien ne peut être annulé.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Les listes précédentes ne peuvent pas être conservées dans %1. Vos modifications ne pourront être annulées que jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Un autre programme utilise la liste. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>Le fichier %1 ne peut pas être renommé ; il a été laissé tel quel.</translation>
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
        <translation>une déclaration de type de document n’a pas sa place ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>l’élément « %1 » n’a pas sa place ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>du texte n’a pas sa place ici</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>l’attribut « %1 » manque</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>l’attribut « %1 » a une valeur impossible</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>il y a trop d’éléments « %1 »</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>« Annuler l’action » ramène la dernière liste lisible.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <translation>Plus haut dans la liste, mais hors de portée : %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>« Se connecter… » montre les réseaux à portée.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Inutilisable pour l’instant, car hors de portée.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <translation>Utilisable, mais %1 est plus haut dans la liste.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <translation>Utilisable, mais on ignore si un réseau plus haut dans la liste est à portée.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Rechercher dans la trace…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Rechercher dans la trace</translation>
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
        <translation>Trouvés : %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Comme le &amp;bureau</translation>
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
        <translation>«&#xa0;%1&#xa0;» est resté tel quel&#xa0;: un réseau de ce nom est déjà configuré et ne doit pas être modifié.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Rien n’a été modifié&#xa0;: plusieurs réseaux sont configurés sous le nom «&#xa0;%1&#xa0;», et rien ne dit lequel est visé. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>«&#xa0;%1&#xa0;» est resté tel quel&#xa0;: un réseau de ce nom est déjà configuré, avec plus que ce qui peut être saisi ici, par exemple un compte. Modifiez-le là où il a été configuré ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>«&#xa0;%1&#xa0;» est resté tel quel&#xa0;: un réseau de ce nom est déjà configuré, et cette sécurité ou ce chiffrement serait plus faible. Choisissez au moins l’équivalent ou un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>«&#xa0;%1&#xa0;» est resté tel quel&#xa0;: un réseau de ce nom est déjà configuré, et sa modification demande une clé complète. Saisissez-en une ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le même réseau est déjà configuré sous le nom «&#xa0;%2&#xa0;», et mieux qu’ainsi. Ajoutez plutôt «&#xa0;%2&#xa0;» à la liste.</translation>
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
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: cette sécurité demande un compte, qui ne peut pas être saisi ici. Configurez le réseau dans les paramètres de votre bureau, puis ajoutez-le à la liste.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: NetworkManager n’est pas lancé.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>On ne sait pas si «&#xa0;%1&#xa0;» a été enregistré&#xa0;: NetworkManager ne répond pas.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: vous n’y êtes pas autorisé sur cet ordinateur.</translation>
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
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le fichier des réseaux configurés ne peut pas être lu ou écrit. La trace en dit plus.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: le fichier des réseaux configurés est endommagé et reste tel quel. La trace indique la ligne.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été enregistré&#xa0;: un autre programme modifie les réseaux. Réessayez.</translation>
    </message>
</context>
</TS>
