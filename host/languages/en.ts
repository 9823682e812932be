<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <extracomment>What the service calls itself; on no screen</extracomment>
        <translation>Network priority</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Title of the settings page; on the page a colon follows</extracomment>
        <translation>Network priority</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <extracomment>Above the list; at most three lines of 270 pixels</extracomment>
        <translation>When several of these networks are in range, the one highest in the list is used.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <extracomment>Button, 100 pixels wide at most: moves the selected network up</extracomment>
        <translation>&amp;Up</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <extracomment>Button, 100 pixels wide at most: moves the selected network down</extracomment>
        <translation>&amp;Down</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <extracomment>Button, 100 pixels wide at most: adds networks that the computer remembers</extracomment>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <extracomment>Button, 100 pixels wide at most: takes the selected network out of the list</extracomment>
        <translation>De&amp;lete</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <extracomment>Button, 100 pixels wide at most: opens the new-network dialog</extracomment>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <extracomment>Title of the dialog with the remembered networks</extracomment>
        <translation>Add networks</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <extracomment>Title of the new-network dialog</extracomment>
        <translation>New network</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>Button</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Button</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <extracomment>Tool tip of the close button in a title bar</extracomment>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Network name</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <extracomment>Label above the field for the network key or pass phrase</extracomment>
        <translation>Key</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Confirm key</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Security</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Encryption</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Key index</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>EAP type</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <extracomment>Title of every question and notice of the page and its dialogs</extracomment>
        <translation>Network priority</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>Remove the selected network from the priority list?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Enter the name of the network.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>A network of this name is already in the priority list.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <extracomment>WEP key of wrong length or form</extracomment>
        <translation>The key does not fit WEP. It must have 5 or 13 characters, or 10, 26 or 32 hexadecimal digits (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Allowed are letters, digits and these signs:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <extracomment>WPA or WPA2 key of wrong length or form</extracomment>
        <translation>The key does not fit WPA. It must have 8 to 63 characters, or 64 hexadecimal digits (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Allowed are letters, digits and these signs:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>The two keys differ. Enter the same key in both fields; upper and lower case count.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Choose a security method.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <extracomment>What speakers of this language call it; in menus</extracomment>
        <translation>English</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Network dashboard</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>&amp;Connect…</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Settings…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;Refresh</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Show &amp;trace</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Connect…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REFRESH</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>Show trace</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>The log file %1 cannot be written; the trace is shown here only.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Connect to a network</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>The network that you connect to goes to the top of your list.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <extracomment>Signal strength, as this language writes percentages</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>No network is in range. Once there is one, open this again.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>The Wi-Fi plug-in is not available, so there is no network to connect to.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>The plug-in that keeps the list is not available, so no network can be put on top of it.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>Your list cannot be read in full, so no network is put on top of it.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <extracomment>Button</extracomment>
        <translation>Close</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <extracomment>Under the list of pages in the settings, 170 pixels wide, on as many lines as it takes.</extracomment>
        <translation>With the keyboard: Ctrl+↑ and Ctrl+↓ choose an entry, ↑ and ↓ move it.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Network priority</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (networks in a file)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>General</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>loaded</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>not available</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>not needed</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>About this dashboard</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Your data: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Plug-ins from: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>This page cannot be shown: the plug-in %1 was loaded, but does not hand out its page. The trace may tell more.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Mobile broadband</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>In use now</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>In range</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Out of range</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>Not known whether in range</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Ready as fallback</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>In use now: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>It is the first network of your list that is in range.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>No Wi-Fi network above it in your list is in range.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>No network in use</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Your list is empty, so there is nothing to choose from.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>None of the networks of your list is in range.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>The Wi-Fi plug-in is not available, so it is not known which networks are in range.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>The plug-in that keeps the list is not available.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>The file with your list is damaged. Only what stands before the damage is shown.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <extracomment>Follows the message that the file with the list is damaged. %1: path of a file</extracomment>
        <translation>The file was copied to %1. This program changes it only once you have decided what to do.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <extracomment>Button; opens the question what to do with a damaged list</extracomment>
        <translation>Decide what to do…</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Your list is damaged</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <extracomment>%1: a number, 0 or more</extracomment>
        <translation>The file with your list cannot be read to its end. Networks that could be read: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <extracomment>%1: date and time; %2: a number, 0 or more</extracomment>
        <translation>The last whole list is of %1. Networks in it: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>There is no earlier list that could be brought back.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <extracomment>%1: name of a file</extracomment>
        <translation>Whatever you choose, the damaged file is kept as %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <extracomment>Button</extracomment>
        <translation>Bring back the last whole list</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <extracomment>Button</extracomment>
        <translation>Go on with what could be read</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <extracomment>Button</extracomment>
        <translation>Leave it as it is</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>The file with your list is there but cannot be opened. Check its permissions, then refresh.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>The plug-in %1 was loaded, but does not hand out the list.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>There is no list to show</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Your priority list is empty</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <extracomment>Names the buttons of the priority page by their captions</extracomment>
        <translation>Open the settings, then choose “Add” for networks that this computer remembers, or “New” to enter one yourself. The network highest in the list is preferred.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Nothing of it can be read. See the message above.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>The plug-in %1 is not loaded.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>The plug-in %1 is not there. Install it, or start the dashboard with --library-path and the directory that has the folder plugins/ in it.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>The plug-in %1 is not whole: its file ends too early, so it is not used. Install it again.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>The plug-in %1 was built for another generation of Qt, so it is not used.
Found: Qt %2
Expected: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>The plug-in %1 cannot be loaded as a library: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>The plug-in %1 does not say what it was built for, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>The plug-in %1 was built for another dashboard, so it is not used.
Found: %2
Expected: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>The library %1 has no entry point of a plug-in, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>The plug-in %1 gave no object to work with, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>What %1 gave is not a plug-in of this dashboard, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>The plug-in %1 says that it cannot work, so it is not used. The trace may tell more.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <extracomment>%1 is a path, %2 the operating system's reason</extracomment>
        <translation>The language file %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <extracomment>%1 is a path, %2 a number</extracomment>
        <translation>The language file %1 is damaged from byte %2 on, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>The language file %1 has no texts that can be used, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>Is NetworkManager running?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>This computer’s networks, from NetworkManager, which follows the order of this list.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Networks of the dashboard’s own; this computer’s are left alone.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>There is no NetworkManager to work with. These are networks of the dashboard’s own; this computer’s are left alone.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>Re&amp;store…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Import order…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;Export order…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>IDS_BUTTON_RESTORE</source>
        <translation>Restore…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <extracomment>%1: a change, such as Moved Café up</extracomment>
        <translation>Undo: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <extracomment>%1: a change, such as Moved Café up</extracomment>
        <translation>Redo: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>There is no earlier list to go back to.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Nothing was undone, so there is nothing to redo.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>The file with your list is damaged. “Undo” brings back the last list that could be read.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>The plug-in that keeps the list is not available, so the list cannot be changed.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <extracomment>%1: a change, such as Moved Café up; %2: date and time</extracomment>
        <translation>Last change: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Nothing changed</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Deleted all entries</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>The file was damaged</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <extracomment>%1: a network</extracomment>
        <translation>Added %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <extracomment>%1: a number, two or more</extracomment>
        <translation>Added %1 entries</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <extracomment>%1: a network</extracomment>
        <translation>Deleted %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <extracomment>%1: a number, two or more</extracomment>
        <translation>Deleted %1 entries</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <extracomment>%1: a network</extracomment>
        <translation>Moved %1 up</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <extracomment>%1: a network</extracomment>
        <translation>Moved %1 down</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <extracomment>%1: a network</extracomment>
        <translation>Moved %1 to the top</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <extracomment>%1: a network</extracomment>
        <translation>Moved %1 to the end</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <extracomment>%1: a number, two or more</extracomment>
        <translation>Moved %1 entries</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <extracomment>%1: date and time</extracomment>
        <translation>Went back to the list of %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <extracomment>In place of a network's name that is empty</extracomment>
        <translation>(no name)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Restore an earlier list</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Choose how your list should be again. The list as it is now stays here as well.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <extracomment>Heading of a column</extracomment>
        <translation>When</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <extracomment>Heading of a column</extracomment>
        <translation>What changed</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <extracomment>Heading of a narrow column</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <extracomment>In a narrow column: the list as it is now</extracomment>
        <translation>Now</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <extracomment>In a narrow column: this change was undone</extracomment>
        <translation>Undone</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <extracomment>In place of a change</extracomment>
        <translation>Oldest list that was kept</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <extracomment>Label above the chosen list</extracomment>
        <translation>The list then</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <extracomment>%1: a change, such as Moved Café up</extracomment>
        <translation>What restoring does: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>This is the list as it is now.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <extracomment>Button</extracomment>
        <translation>Restore</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <extracomment>Button</extracomment>
        <translation>Set it aside and begin anew</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>That list is no longer kept. Choose another.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Import an order</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Takes a list from a file. You see first what would change.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <extracomment>%1: a change, such as Added 3 entries</extracomment>
        <translation>What the import does: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Your list is in this order already. There is nothing to import.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <extracomment>Heading of a narrow column with numbers</extracomment>
        <translation>Place</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <extracomment>Heading of a column</extracomment>
        <translation>What happens</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Stays</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Added</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Moves up</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Moves down</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Others move around it</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Removed from the list</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <extracomment>%1: what happens, such as Added</extracomment>
        <translation>%1; not known here</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <extracomment>%1: names of networks</extracomment>
        <translation>Not known on this computer: %1. An entry like that is used only once the network has been set up here.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <extracomment>Button</extracomment>
        <translation>Import</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be read, or is far too large for a list. Your list is as it was.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <extracomment>%1: path of a file; %2: where and why</extracomment>
        <translation>The file %1 is no list of networks that can be imported. %2. Your list is as it was.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Export the order</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Writes the order of your list to a file, without any keys.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <extracomment>A file name that is proposed</extracomment>
        <translation>network-order.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be written. What was there before is as it was.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <extracomment>Kind of files in a file dialog</extracomment>
        <translation>Orders of networks</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <extracomment>Kind of files in a file dialog</extracomment>
        <translation>All files</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The list cannot be written to %1. See whether the disk is full or the file protected.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The damaged file %1 cannot be copied for safekeeping, so it was left alone. See whether the disk is full or the directory protected.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <extracomment>%1: path of a file; %2: where and why</extracomment>
        <translation>The file with the earlier lists, %1, is damaged and was left alone. %2. Until it is set aside under “Restore…”, nothing can be undone.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file with the earlier lists, %1, cannot be read and was left alone. Until it can be, or is set aside under “Restore…”, nothing can be undone.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>Earlier lists cannot be kept in %1. What you change can be undone only until the program ends.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Another program is working with the list. Try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be renamed, so it was left alone.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <extracomment>%1: number of a line; %2: what is wrong there</extracomment>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>this is not well-formed XML</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>a document type declaration does not belong there</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <extracomment>%1: name of an XML element</extracomment>
        <translation>the element “%1” does not belong there</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>text does not belong there</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <extracomment>%1: name of an XML attribute</extracomment>
        <translation>the attribute “%1” is missing</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <extracomment>%1: name of an XML attribute</extracomment>
        <translation>the attribute “%1” has a value that is not possible</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <extracomment>%1: name of an XML element</extracomment>
        <translation>there are too many elements “%1”</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <extracomment>Follows the message that the file with the list is damaged</extracomment>
        <translation>“Undo” brings back the last list that could be read.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <extracomment>Follows the reason why a network is in use. %1: names of networks</extracomment>
        <translation>Higher in the list, but out of range: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <extracomment>Follows: None of the networks of your list is in range</extracomment>
        <translation>“Connect…” shows the networks that are.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <extracomment>Tool tip of an entry</extracomment>
        <translation>It cannot be used now, because it is out of range.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <extracomment>Tool tip of an entry. %1: a network</extracomment>
        <translation>It could be used, but %1 is higher in the list.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <extracomment>Tool tip of an entry</extracomment>
        <translation>It could be used, but it is not known whether a network higher in the list is in range.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <extracomment>Menu entry</extracomment>
        <translation>&amp;Search the trace…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <extracomment>In an empty search field</extracomment>
        <translation>Search the trace</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <extracomment>Tool tip of a button with an arrow down</extracomment>
        <translation>Next place</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <extracomment>Tool tip of a button with an arrow up</extracomment>
        <translation>Previous place</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <extracomment>%1: a number, one or more</extracomment>
        <translation>Found: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <extracomment>Menu: light or dark colours</extracomment>
        <translation>&amp;Appearance</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <extracomment>Menu entry: the desktop's colours</extracomment>
        <translation>Like the &amp;desktop</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <extracomment>Menu entry: light colours</extracomment>
        <translation>&amp;Light</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <extracomment>Menu entry: dark colours</extracomment>
        <translation>Dar&amp;k</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <extracomment>Title of the notices that follow</extracomment>
        <translation>New network</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was left as it is: a network of this name is set up already, and it cannot be changed.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <extracomment>%1: a network</extracomment>
        <translation>Nothing was changed: several networks are set up under the name “%1”, and it cannot be known which one is meant. Choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was left as it is: a network of this name is set up already, with more than can be entered here, such as an account. Change it where it was set up, or choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was left as it is: a network of this name is set up already, and this security or encryption would be weaker. Choose at least the same, or another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was left as it is: a network of this name is set up already, and changing it needs a complete key. Enter one, or choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <extracomment>%1: the new network; %2: the name under which it is set up</extracomment>
        <translation>“%1” was not stored: the same network is set up already as “%2”, and better than this. Add “%2” to the list instead.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: the name of a network has 1 to 32 bytes. Letters with accents and other scripts take two to four bytes each.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: this security, this encryption and this key do not go together.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: this security needs an account, which cannot be entered here. Set the network up in the settings of your desktop, then add it to the list.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: NetworkManager is not running.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>It is not known whether “%1” was stored: NetworkManager gives no answer.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: you do not have permission to do that on this computer.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: NetworkManager does not accept it, most likely because of the key.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: NetworkManager reports an error.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: the file of the networks that are set up cannot be read or written. The trace tells more.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: the file of the networks that are set up is damaged, and it is left as it is. The trace tells the line.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not stored: another program is changing the networks. Try again.</translation>
    </message>
</context>
</TS>
