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
        <translation>Network name:</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <extracomment>Label above the field for the network key or pass phrase</extracomment>
        <translation>Key:</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Confirm key:</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Authentication:</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Encryption:</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>Key index:</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <extracomment>Label, cut off beyond 100 pixels</extracomment>
        <translation>EAP method:</translation>
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
        <translation>The key doesn't fit WEP. It must have 5 or 13 characters, or 10, 26 or 32 hexadecimal digits (0-9, A-F).

Allowed are letters, digits and these signs:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <extracomment>WPA or WPA2 key of wrong length or form</extracomment>
        <translation>The key doesn't fit WPA. It must have 8 to 63 characters, or 64 hexadecimal digits (0-9, A-F).

Allowed are letters, digits and these signs:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>The two keys differ. Enter the same key in both fields; upper and lower case count.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Choose an authentication method.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
</context>
</TS>
