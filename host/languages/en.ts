<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <extracomment>Name of the plug-in in logs and messages</extracomment>
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
        <translation>Up</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <extracomment>Button, 100 pixels wide at most: moves the selected network down</extracomment>
        <translation>Down</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <extracomment>Button, 100 pixels wide at most: adds networks that the computer remembers</extracomment>
        <translation>Add</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <extracomment>Button, 100 pixels wide at most: takes the selected network out of the list</extracomment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <extracomment>Button, 100 pixels wide at most: opens the new-network dialog</extracomment>
        <translation>New</translation>
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
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Settings</translation>
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
        <translation>The file with your list is damaged. What stands before the damage is shown; adding a network in the settings writes the file anew.</translation>
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
</context>
</TS>
