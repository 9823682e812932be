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
        <extracomment>Button, 100 pixels wide at most: adds networks that are saved on this computer</extracomment>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <extracomment>Button, 100 pixels wide at most: takes the selected network out of the list; also in the question about that</extracomment>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <extracomment>Button, 100 pixels wide at most: opens the new-network dialog</extracomment>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <extracomment>Title of the dialog with the saved networks</extracomment>
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
        <translation>WEP index</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>EAP method</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <extracomment>Title of every question and notice of the page and its dialogs</extracomment>
        <translation>Network priority</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <extracomment>A question; its buttons are “Remove” and “Cancel”. The network stays saved on this computer</extracomment>
        <translation>Remove the selected network from your list?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Enter the name of the network.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>A network with this name is already in your list. Enter another name.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <extracomment>WEP key of wrong length or form</extracomment>
        <translation>This is not a valid WEP key. A WEP key has 5 or 13 characters, or 10, 26 or 32 hexadecimal digits (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

You can use letters, digits and these symbols:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <extracomment>WPA or WPA2 key of wrong length or form</extracomment>
        <translation>This is not a valid WPA key. A WPA key has 8 to 63 characters, or 64 hexadecimal digits (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

You can use letters, digits and these symbols:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>The two keys are different. Enter the same key in both fields, with the same capital and small letters.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Choose a security type.</translation>
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
        <translation>Network dashboard</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Your list</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Network</translation>
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
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;Disconnect</translation>
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
        <translation>Show &amp;log</translation>
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
        <source>IDS_TRACE_TITLE</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>The log file %1 cannot be written. The log is shown here only.</translation>
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
        <translation>A network that is not in your list goes to its end.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>A network that is not in your list goes to its top.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>A network that is not in your list stays out of it.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Network</translation>
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
        <translation>No network is in range. When there is one, it appears here.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <extracomment>In an empty search field above the networks in range</extracomment>
        <translation>Find a network</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <extracomment>%1: what was typed into the search field</extracomment>
        <translation>No network in range has “%1” in its name.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>No key</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Weak key (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Saved</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <extracomment>Behind what a network in range asks for. %1: its place in the list</extracomment>
        <translation>Place %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <extracomment>Above the networks in range that are in the list</extracomment>
        <translation>In your list</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <extracomment>Above the networks in range that are not in the list</extracomment>
        <translation>Other networks in range</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Key of %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Show key</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 needs an account. Set it up in the network settings of your desktop.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 is no longer in range.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <extracomment>While a network is being connected</extracomment>
        <translation>This takes longer than usual.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 is connected, but could not be saved.</translation>
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
        <translation>Keyboard: Ctrl+↑ and Ctrl+↓ select a network, ↑ and ↓ move it.</translation>
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
        <translation>Wi-Fi (practice networks)</translation>
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
        <source>IDS_RULES_TITLE</source>
        <extracomment>Page of the settings: how the list rules the networks</extracomment>
        <translation>Rules</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>New networks</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>At the end of your list</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>At the top of your list</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Not in your list</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <extracomment>Box to tick</extracomment>
        <translation>Let this list rule NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>Without it, every network gets back the priority that it had before this list.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <extracomment>Box to tick</extracomment>
        <translation>Keep the order in effect when this window is closed</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>A program without a window does it. It starts now, and with each session.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <extracomment>Box to tick, below the one for keeping the order in effect when the window is closed. The icon is in the panel of the desktop</extracomment>
        <translation>Show an icon meanwhile</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>In the panel of the desktop: the network in use, the first of your list, and a way to connect.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <extracomment>Action in the menu of the icon in the panel: opens the window</extracomment>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <extracomment>Box to tick. Higher: in the list</extracomment>
        <translation>Switch to a higher network by itself</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>As soon as a network higher in your list can be used. Not away from one that you connected by hand, and not during a VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <extracomment>Box to tick: mobile broadband is connected only while nothing else is</extracomment>
        <translation>Mobile broadband only when nothing else works</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>Saves data. Mobile broadband below all Wi-Fi networks of your list is connected after half a minute without another connection, and ended after a minute with one.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <extracomment>Box to tick, below the one for switching to a higher network by itself</extracomment>
        <translation>Tell me when it switches</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <extracomment>Tool tip of that box</extracomment>
        <translation>As a notification of the desktop, each time.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <extracomment>Title of a notification of the desktop. %1: the name of a network</extracomment>
        <translation>Switched to %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <extracomment>Text below that title. %1: the name of the network that was in use before</extracomment>
        <translation>It is higher in your list than %1.</translation>
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
        <source>IDS_GENERAL_PLACES</source>
        <translation>About this program</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Your data: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Plug-in folder: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>This page cannot be shown: the plug-in %1 was loaded but does not provide the page. See the log for details.</translation>
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
        <translation>Not known if in range</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <extracomment>Of mobile broadband that is not in use: it is used when no Wi-Fi network above it is in range</extracomment>
        <translation>Ready</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>In use now: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <extracomment>%1: a network whose web page asks for a sign-in before it lets anybody through</extracomment>
        <translation>In use now: %1, sign-in needed</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <extracomment>%1: a network</extracomment>
        <translation>In use now: %1, no internet</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>No network in use</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Connection not known</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Your list is empty, so there is nothing to choose from.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Your list cannot be read in full, so it is not known which network comes first.</translation>
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
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Connecting: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 is connected, but the traffic does not go through it.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager is not running</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>It is not known which network is in use. Your list can be changed; it takes effect once NetworkManager runs.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager has not answered yet, so it is not known which network is in use.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>The Wi-Fi plug-in does not tell which network is in use.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (practice)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>It is the first network in your list that is known to be usable.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>This network wants you to sign in on a web page.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>The network answers, the internet behind it does not.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>The list is for Wi-Fi and mobile broadband; this connection is of another kind.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>It is not in your list.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>The VPN %1 is connected.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Your list would choose %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Without it, your list would choose %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>None of the networks in your list is known to be usable.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>The connection is being prepared.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>The key is being checked.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>The network is being asked for an address.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>Connected</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Connecting</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Disconnecting</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>Hidden: is tried</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Not saved here</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Cannot be used</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Key refused</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Last try failed</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>By hand only</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>Listed twice</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM locked</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>No adapter</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>No modem</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Turned off</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 is higher in the list.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>The network hides its name, so it is not known if it is in range. It is tried.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>A network of that name is in range, but has another security.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>It is saved for another adapter, band or station than what is here.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>There is no adapter or modem for it that works.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Its adapter or modem is turned off.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Its adapter or modem is held off by a button of this computer.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>The SIM card wants its PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>It belongs to other users of this computer.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>It needs an account, and none is saved.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>This computer has no saved network of that name.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>It is not known if it can be used.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>It stands higher in the list already, so this place has no effect.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>It does not connect by itself.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager keeps a connection that works until you switch.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>When last tried, it could not be connected.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>When last tried, the key was refused.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>When last tried, a key was missing.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>When last tried, it did not answer.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>When last tried, it gave no address.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>When last tried, it did not let this computer in.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>When last tried, the SIM card did not work.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>When last tried, it was ended by hand.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>When last tried, the adapter or modem was not available.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <extracomment>These follow "was not connected", right after the attempt</extracomment>
        <translation>The key was refused. Upper and lower case count.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>The saved key was refused. You can change it in the network settings of your desktop.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>A key is needed, and none is saved.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>It did not answer; it may be too far away.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>It let this computer in, but gave it no address.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>It did not let this computer in.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>The SIM card did not work.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>It was stopped.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>The adapter or modem was not available.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>You are not allowed to do that.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Switch to %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 was not connected.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 was not disconnected.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>The file with your list is damaged. Only the networks before the damaged part are shown.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <extracomment>Follows the message that the file with the list is damaged. %1: path of a file</extracomment>
        <translation>A copy of the file is kept as %1. This program does not change your list until you decide what to do.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <extracomment>Button; opens the question what to do with a damaged list</extracomment>
        <translation>Decide what to do…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <extracomment>In the settings of the desktop, in place of the list</extracomment>
        <translation>The list is open in another window of this program. Close that one to see the list here.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <extracomment>Button in the settings of the desktop; starts the program of the list</extracomment>
        <translation>Open the dashboard</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Your list is damaged</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <extracomment>%1: a number, 0 or more</extracomment>
        <translation>The file with your list cannot be read to the end. Networks that could be read: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <extracomment>%1: date and time; %2: a number, 0 or more</extracomment>
        <translation>The last complete list is from %1. Networks in it: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>There is no earlier list that can be restored.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <extracomment>%1: name of a file</extracomment>
        <translation>Whatever you choose, the damaged file is kept as %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <extracomment>Button</extracomment>
        <translation>Restore the last complete list</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <extracomment>Button</extracomment>
        <translation>Keep the networks that could be read</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <extracomment>Button</extracomment>
        <translation>Leave the file as it is</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>The file with your list exists but cannot be opened. Check its permissions, then choose “Refresh”.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>The plug-in %1 was loaded but does not provide the list.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Your list cannot be shown</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Your list is empty</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <extracomment>Names the buttons of the priority page by their captions</extracomment>
        <translation>Open the settings, then choose “Add” for networks that are saved on this computer, or “New” to enter one yourself. The network highest in the list is preferred.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>Which networks come first?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <extracomment>Above a button that does it</extracomment>
        <translation>Networks are saved on this computer. Take them over in the order in which they are used now, then move the ones you prefer to the top.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <extracomment>Above a button that does it; no network is saved yet</extracomment>
        <translation>Connect to a network, and it appears here.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>The message above tells why.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>The plug-in %1 is not loaded.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>The plug-in %1 was not found. Install it, or start the program with --library-path and the folder that contains plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>The plug-in %1 is incomplete: its file ends too early, so it is not used. Install it again.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>The plug-in %1 was built for another major version of Qt, so it is not used.
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
        <translation>The plug-in %1 was built for another program, so it is not used.
Found: %2
Expected: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>The library %1 is not a plug-in, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>The plug-in %1 did not provide an object to work with, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 is not a plug-in for this program, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>The plug-in %1 could not start, so it is not used. See the log for details.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <extracomment>%1 is a path, %2 the operating system's reason</extracomment>
        <translation>The language file %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>The language file %1 has no texts that can be used, so it is not used.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>These are this computer’s networks. NetworkManager tries them in the order of this list.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <extracomment>In the place of the text before, while the user does not want the list to rule</extracomment>
        <translation>NetworkManager decides by itself. You can let this list rule it in the settings.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <extracomment>In the place of that, while some places have no effect; %1: how many have, %2: how many there are</extracomment>
        <translation>NetworkManager follows your list for %1 of %2 networks.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <extracomment>Button behind that</extracomment>
        <translation>Why not all?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <extracomment>The same button while all places have their effect</extracomment>
        <translation>What this means</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <extracomment>In a menu: what the list decides and what it does not</extracomment>
        <translation>&amp;What your list rules…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <extracomment>Title of a dialog</extracomment>
        <translation>What your list rules</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <extracomment>In that dialog</extracomment>
        <translation>Your list rules to which network this computer connects by itself when several are in range. A connection that works is kept until you switch. A cable comes first, and networks that are not in your list come last. With several adapters, each takes the first network that it can use.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <extracomment>In that dialog, when no network has anything against it</extracomment>
        <translation>Every place in your list has its effect.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <extracomment>In that dialog; a button Settings… stands beside it</extracomment>
        <translation>Your list has its effect while this window is open. The settings can keep the order in effect after that.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <extracomment>Button beside a network that does not connect by itself, and now shall</extracomment>
        <translation>Turn on</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <extracomment>Button beside a network that could not be connected several times</extracomment>
        <translation>Connect</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <extracomment>Why a place of the list has no effect</extracomment>
        <translation>It does not connect by itself, so its place has no effect.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <extracomment>The same</extracomment>
        <translation>Only an administrator may change its place. In the desktop’s network settings it can be made a network for you alone; then its place has its effect.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <extracomment>The same</extracomment>
        <translation>Another program makes it anew each time, so its place is not kept.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <extracomment>The same</extracomment>
        <translation>NetworkManager did not take its place.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <extracomment>Why a place of the list has no effect. A route metric is NetworkManager's number for which connection carries the traffic</extracomment>
        <translation>Somebody has chosen a route metric for it, so another connection may carry the traffic before it.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <extracomment>Why a place of the list has no effect. Somebody else: another user of the computer, for one</extracomment>
        <translation>Somebody else’s list or program has given it another place since. Your list rules it again as soon as you change the list.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <extracomment>Behind a sentence that tells why a network could not be connected</extracomment>
        <translation>After several failures NetworkManager waits for five minutes before it tries again.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <extracomment>Menu entry: all that is known of the network that is chosen</extracomment>
        <translation>Det&amp;ails…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <extracomment>Title of the dialog behind it</extracomment>
        <translation>Details</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <extracomment>Caption in that dialog; a place stands behind it</extracomment>
        <translation>Place in your list:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <extracomment>%1: a place; %2: how many there are</extracomment>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <extracomment>In the place of that</extracomment>
        <translation>Not in your list</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <extracomment>Caption; such as In range stands behind it</extracomment>
        <translation>State:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <extracomment>Heading, where several saved networks have one name; %1: which of them, %2: how many there are</extracomment>
        <translation>Profile %1 of %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <extracomment>Caption; such as WPA2PSK stands behind it</extracomment>
        <translation>Security:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <extracomment>Caption</extracomment>
        <translation>Adapter or modem:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <extracomment>Behind that: the only adapter that the network is for; %1: such as wlan0</extracomment>
        <translation>Only %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <extracomment>Behind that: any adapter or modem</extracomment>
        <translation>Any</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <extracomment>Behind that; %1: the adapter or modem that it has or would have now</extracomment>
        <translation>Any, at present %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <extracomment>Caption; date and time stand behind it</extracomment>
        <translation>Last used:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <extracomment>Caption; a number from -999 to 999 stands behind it</extracomment>
        <translation>Priority for NetworkManager:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <extracomment>Caption; whether what goes through it is counted or paid for</extracomment>
        <translation>Metered connection:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <extracomment>Behind that</extracomment>
        <translation>Yes</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <extracomment>Behind that</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <extracomment>Behind that: NetworkManager takes it to be so, nobody has said so</extracomment>
        <translation>Probably yes</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <extracomment>The same</extracomment>
        <translation>Probably no</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <extracomment>Caption; names of users, or the next text, stand behind it</extracomment>
        <translation>Who may use it:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>All users of this computer</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <extracomment>Box to tick</extracomment>
        <translation>Connects by itself</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <extracomment>Below that box, when the mark was taken away in vain; %1: a network</extracomment>
        <translation>%1 still connects by itself.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <extracomment>Menu entry: takes the network off this computer, with its key</extracomment>
        <translation>For&amp;get network…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <extracomment>Tool tip of that entry</extracomment>
        <translation>Takes the network off this computer, with its key.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <extracomment>The same, when it can’t be chosen</extracomment>
        <translation>It is not known now which networks are saved.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <extracomment>The same</extracomment>
        <translation>It is not saved here, so there is nothing to forget. It can be removed from the list.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <extracomment>Title of the question</extracomment>
        <translation>Forget network</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <extracomment>First line of the question; %1: a network</extracomment>
        <translation>Forget %1?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <extracomment>Button</extracomment>
        <translation>Forget</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <extracomment>In the question</extracomment>
        <translation>You are connected to it; the connection will end.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <extracomment>In the question</extracomment>
        <translation>This computer will forget it with its key, and it will leave your list.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <extracomment>In the place of that, where several saved networks have the name; %1: how many, two at least</extracomment>
        <translation>This computer will forget all %1 profiles of that name with their keys, and it will leave your list.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <extracomment>In the question, behind that</extracomment>
        <translation>Its place can be brought back, its key can’t.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <extracomment>In the question, in the place of the three above, of a network that is not in the list</extracomment>
        <translation>This computer will forget it with its key. It is not in your list, so your list stays as it is.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <extracomment>The same, where several saved networks have the name; %1: how many, two at least</extracomment>
        <translation>This computer will forget all %1 profiles of that name with their keys. It is not in your list, so your list stays as it is.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <extracomment>Behind that</extracomment>
        <translation>This can’t be undone, and its key can’t be brought back.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <extracomment>In the dialog, once Forget was pressed</extracomment>
        <translation>It is being forgotten.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <extracomment>At the foot of the main window; %1: a network</extracomment>
        <translation>Forgot %1. Its place in the list can be brought back, its key can’t.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <extracomment>The same, of a network that was not in the list</extracomment>
        <translation>Forgot %1. Its key can’t be brought back.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <extracomment>In the dialog; a reason may follow. %1: a network</extracomment>
        <translation>%1 was not forgotten. It stays in your list.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <extracomment>The same, of a network that is not in the list</extracomment>
        <translation>%1 was not forgotten.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <extracomment>Behind that, where several saved networks have the name</extracomment>
        <translation>Forgotten profiles: %1 of %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <extracomment>In the dialog; %1: a network</extracomment>
        <translation>There was no answer, so it is not known if %1 is forgotten. It stays in your list.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <extracomment>The same, of a network that is not in the list</extracomment>
        <translation>There was no answer, so it is not known if %1 is forgotten.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <extracomment>In the dialog; a reason follows. %1: a network</extracomment>
        <translation>%1 is forgotten, but stays in your list.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <extracomment>At the foot of the dialog, after Turn on; %1: a network</extracomment>
        <translation>%1 still does not connect by itself.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>These are practice networks. This computer’s networks are not changed.</translation>
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
        <translation>Earlier &amp;lists…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Import list…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;Export list…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <extracomment>In the menu of a network of the list: connects it now</extracomment>
        <translation>&amp;Connect</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <extracomment>In the Edit menu and in the menu of a network of the list, as the next four</extracomment>
        <translation>Move u&amp;p</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>Move &amp;down</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>Move to &amp;top</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Move to e&amp;nd</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <extracomment>In the same menus; asks for the place</extracomment>
        <translation>&amp;Move to place…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <extracomment>Title of the dialog that asks for the place</extracomment>
        <translation>Move to place</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <extracomment>In that dialog, above a box with a number; %1: a network; %2: the last place</extracomment>
        <translation>New place of %1, from 1 (the top) to %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <extracomment>In the place of that, where several are moved together; %1: how many, two at least; %2: the last place that the first of them can get</extracomment>
        <translation>New place of the first of these %1 networks, from 1 (the top) to %2. The others follow it:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <extracomment>Button of that dialog</extracomment>
        <translation>Move</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>Remove &amp;from list</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <extracomment>In the Edit menu and in the menu of a saved network that is not in the list</extracomment>
        <translation>Add t&amp;o list</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <extracomment>Above the saved networks that are not in the list; %1: how many</extracomment>
        <translation>Not in your list (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <extracomment>Tool tip of that line</extracomment>
        <translation>Click, or press Enter, to show or hide these networks.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <extracomment>Below the name of a network that is not in the list; %1: Wi-Fi or mobile broadband</extracomment>
        <translation>%1 · Saved</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <extracomment>Why no network can be added: none is chosen</extracomment>
        <translation>Choose a network that is not in your list first.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <extracomment>Why a network can't be moved or removed: none is chosen</extracomment>
        <translation>Choose a network in the list first.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <extracomment>Why a network can't be moved up, down, to the top or to the end</extracomment>
        <translation>It stands there already.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <extracomment>What was to be moved or removed has gone meanwhile; %1: one or more networks</extracomment>
        <translation>Another program has changed your list. %1 is no longer in it.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <extracomment>Told by screen readers; %1: what was done, such as "Moved Café up"; %2: its place then; %3: how many networks there are</extracomment>
        <translation>%1: place %2 of %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <extracomment>In the Edit menu: goes to the field that finds networks of the list by their names</extracomment>
        <translation>Find a net&amp;work</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <extracomment>In place of the list; %1: what is looked for</extracomment>
        <translation>No network has “%1” in its name.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <extracomment>Button below that: shows all networks again</extracomment>
        <translation>Clear search</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <extracomment>Why a network can't be moved up or down while networks are looked for</extracomment>
        <translation>Clear the search to move networks up or down.</translation>
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
        <source>IDS_BUTTON_TAKE_OVER</source>
        <extracomment>Button; opens the dialog “Take over saved networks”</extracomment>
        <translation>Take over saved networks…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <extracomment>Button; the same as the entry of the menu Edit</extracomment>
        <translation>Import list…</translation>
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
        <translation>The file with your list is damaged. “Undo” restores the last complete list.</translation>
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
        <translation>Removed all networks</translation>
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
        <translation>Added %1 networks</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <extracomment>%1: a network</extracomment>
        <translation>Removed %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <extracomment>%1: a number, two or more</extracomment>
        <translation>Removed %1 networks</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <extracomment>%1 and %2: names of networks; %2 now stands where %1 stood</extracomment>
        <translation>Replaced %1 by %2</translation>
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
        <translation>Moved %1 networks</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <extracomment>%1: date and time</extracomment>
        <translation>Restored the list from %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <extracomment>In place of a network's name that is empty</extracomment>
        <translation>(no name)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Your list stays as it is.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>All networks will be removed.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will be added.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 networks will be added.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will be removed.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 networks will be removed.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <extracomment>%1 and %2: names of networks; %2 will stand where %1 stands</extracomment>
        <translation>%1 will be replaced by %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will move up.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will move down.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will move to the top.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 will move to the end.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 networks will move.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Earlier lists</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Choose the list to restore. Your list as it is now is kept as well.</translation>
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
        <translation>List at that time</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <extracomment>%1: what will be done, such as Café will move up.</extracomment>
        <translation>Result of restoring: %1</translation>
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
        <extracomment>Button: the file with the earlier lists that cannot be read gets another name, and a new one is begun</extracomment>
        <translation>Keep the file and start a new one</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>That list is no longer kept. Choose another.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Import a list</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Replaces your list with one from a file. You can check the changes first.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <extracomment>%1: what will be done, such as 3 networks will be added.</extracomment>
        <translation>Result of the import: %1</translation>
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
        <translation>Stays where it is</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Will be added</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Will move up</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Will move down</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Stays; others will move</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Will be removed from the list</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <extracomment>%1: what happens, such as Will be added; “here” is this computer</extracomment>
        <translation>%1; not saved here</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <extracomment>%1: names of networks</extracomment>
        <translation>Not saved on this computer: %1. These networks are not used until they have been set up here.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <extracomment>Button</extracomment>
        <translation>Import</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <extracomment>Title of a dialog that shows the list that would be made</extracomment>
        <translation>Take over saved networks</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <extracomment>Tool tip of the button that opens the dialog</extracomment>
        <translation>Makes the networks that are saved on this computer your list. You can check it first.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <extracomment>%1: what will be done, such as 3 networks will be added.</extracomment>
        <translation>In the order in which they are used now: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <extracomment>Button</extracomment>
        <translation>Take over</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be read, or is far too large for a list. Your list has not been changed.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <extracomment>%1: path of a file; %2: where and why</extracomment>
        <translation>The file %1 is not a network list that can be imported. %2. Your list has not been changed.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Export the list</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Saves your list to a file, without any keys.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <extracomment>A file name that is proposed</extracomment>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be written. Nothing has been changed.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <extracomment>Kind of files in a file dialog</extracomment>
        <translation>Network lists</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <extracomment>Kind of files in a file dialog</extracomment>
        <translation>All files</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The list cannot be written to %1. Check whether the disk is full or the file is write-protected.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The damaged file %1 cannot be backed up, so it was not changed. Check whether the disk is full or the folder is write-protected.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <extracomment>%1: path of a file; %2: where and why</extracomment>
        <translation>The file with the earlier lists, %1, is damaged and was not changed. %2. To use “Undo” again, choose “Earlier lists…” and start a new file. The damaged one is kept.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file with the earlier lists, %1, cannot be read and was not changed. To use “Undo” again, make the file readable, or choose “Earlier lists…” and start a new one. The old one is kept.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>Earlier lists cannot be kept in %1. You can undo changes only until you quit the program.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Another program is working with the list. Try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <extracomment>%1: path of a file</extracomment>
        <translation>The file %1 cannot be renamed, so no new one was started.</translation>
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
        <translation>a document type declaration is not allowed here</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <extracomment>%1: name of an XML element</extracomment>
        <translation>the element “%1” is not allowed here</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>text is not allowed here</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <extracomment>%1: name of an XML attribute</extracomment>
        <translation>the attribute “%1” is missing</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <extracomment>%1: name of an XML attribute</extracomment>
        <translation>the attribute “%1” has an invalid value</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <extracomment>%1: name of an XML element</extracomment>
        <translation>there are too many “%1” elements</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <extracomment>Follows the message that the file with the list is damaged</extracomment>
        <translation>“Undo” restores the last complete list.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Your list is damaged</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Earlier lists cannot be used</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>A plug-in cannot be used</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>A language cannot be used</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Show the next message</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <extracomment>Follows: None of the networks in your list is in range</extracomment>
        <translation>“Connect…” shows the other networks in range.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <extracomment>Tool tip of an entry</extracomment>
        <translation>Not in use, because it is out of range.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <extracomment>Menu entry</extracomment>
        <translation>&amp;Search the log…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <extracomment>In an empty search field</extracomment>
        <translation>Search the log</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <extracomment>Tool tip of a button with an arrow down</extracomment>
        <translation>Next match</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <extracomment>Tool tip of a button with an arrow up</extracomment>
        <translation>Previous match</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <extracomment>%1: a number, one or more</extracomment>
        <translation>Matches: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>No matches</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <extracomment>Menu: light or dark colours</extracomment>
        <translation>&amp;Appearance</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <extracomment>Menu entry: the desktop's colours</extracomment>
        <translation>Same as &amp;desktop</translation>
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
        <translation>“%1” was not changed: a network with this name is already saved, and it cannot be changed.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <extracomment>%1: a network</extracomment>
        <translation>Nothing was changed: several networks are saved under the name “%1”, and it is not known which one is meant. Choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not changed: a network with this name is already saved, with details that cannot be entered here, such as an account. Change it where it was set up, or choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not changed: a network with this name is already saved, and this security or encryption would be weaker. Choose one that is at least as strong, or another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not changed: a network with this name is already saved, and changing it needs a complete key. Enter the key, or choose another name.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <extracomment>%1: the new network; %2: the name under which it is saved</extracomment>
        <translation>“%1” was not saved: the same network is already saved as “%2”, with better settings. Add “%2” to your list instead.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: the name of a network has 1 to 32 bytes. Letters with accents and letters of other scripts take two to four bytes each.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: this security, this encryption and this key do not go together.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: this security needs an account, which cannot be entered here. Set the network up in the settings of your desktop, then add it to your list.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: NetworkManager is not running.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>It is not known whether “%1” was saved: NetworkManager does not answer.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: you do not have permission to save networks on this computer.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: NetworkManager does not accept it, most likely because of the key.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: NetworkManager reports an error.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: the file with the saved networks cannot be read or written. See the log for details.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: the file with the saved networks is damaged and was not changed. See the log for the line.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” was not saved: another program is changing the networks. Try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <extracomment>Title of the notices about the order of the list</extracomment>
        <translation>Your list</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <extracomment>%1: a network</extracomment>
        <translation>The order of your list cannot take full effect because of “%1”: this network cannot be changed, and its priority does not fit its place in the list. The other networks follow the list.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <extracomment>%1: a network</extracomment>
        <translation>The order of your list cannot take full effect because of “%1” and other networks: they cannot be changed, and their priority does not fit their place in the list. See the log for their names.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” is not in your list, but is tried before networks that are: there is no higher priority for these. Add “%1” to your list to give it a place.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <extracomment>%1: a network</extracomment>
        <translation>“%1” does not have its place in your list: another user’s list or another program has changed its priority again. As soon as you change your list, it rules again.</translation>
    </message>
</context>
</TS>
