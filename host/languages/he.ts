<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>עדיפות רשתות</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>עדיפות רשתות</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>כאשר כמה מהרשתות האלה נמצאות בטווח, נעשה שימוש ברשת הגבוהה ביותר ברשימה.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>למטה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>הוספה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>מחיקה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>חדש</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>הוספת רשתות</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>רשת חדשה</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>שם הרשת:</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>מפתח:</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>אימות המפתח:</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>שיטת אימות:</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>הצפנה:</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>מספר מפתח:</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>שיטת EAP:</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>עדיפות רשתות</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>להסיר את הרשת שנבחרה מרשימת העדיפויות?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>יש להזין את שם הרשת.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>רשת בשם הזה כבר נמצאת ברשימת העדיפויות.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>המפתח אינו מתאים ל-WEP. עליו להכיל 5 או 13 תווים, או 10, 26 או 32 ספרות הקסדצימליות (&#x202a;0-9, A-F&#x202c;).

מותר להשתמש באותיות, בספרות ובסימנים אלה:
&#x202a;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x202c;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>המפתח אינו מתאים ל-WPA. עליו להכיל בין 8 ל-63 תווים, או 64 ספרות הקסדצימליות (&#x202a;0-9, A-F&#x202c;).

מותר להשתמש באותיות, בספרות ובסימנים אלה:
&#x202a;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x202c;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>שני המפתחות שונים. יש להזין אותו מפתח בשני השדות, כולל אותיות גדולות וקטנות.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>יש לבחור שיטת אימות.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
</context>
</TS>
