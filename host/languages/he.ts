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
        <translation>למ&amp;עלה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>למ&amp;טה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;הוספה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>ה&amp;סרה</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;חדשה</translation>
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
        <translation>שם הרשת</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>מפתח</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>אימות המפתח</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>אבטחה</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>הצפנה</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>אינדקס WEP</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>שיטת EAP</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>עדיפות רשתות</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>להסיר את הרשת שנבחרה מהרשימה שלך?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>יש להזין את שם הרשת.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>רשת בשם הזה כבר נמצאת ברשימה שלך. יש להזין שם אחר.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>זה אינו מפתח WEP תקין. מפתח WEP מכיל 5 או 13 תווים, או 10, 26 או 32 ספרות הקסדצימליות (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

אפשר להשתמש באותיות, בספרות ובסימנים אלה:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>זה אינו מפתח WPA תקין. מפתח WPA מכיל בין 8 ל־63 תווים, או 64 ספרות הקסדצימליות (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

אפשר להשתמש באותיות, בספרות ובסימנים אלה:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>שני המפתחות שונים. יש להזין בשני השדות אותו מפתח, עם אותן אותיות גדולות וקטנות.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>יש לבחור סוג אבטחה.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>עברית</translation>
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
        <translation>&#x200f;%1: %2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>לוח הרשתות</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>הרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;רשת</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;תצוגה</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;שפה</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>הת&amp;חברות…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;ניתוק</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>ה&amp;גדרות…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>ר&amp;ענון</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;יציאה</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>הצגת ה&amp;יומן</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>התחברות…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>הגדרות…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>יומן</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>לא ניתן לכתוב לקובץ היומן &#x202a;%1&#x202c;. היומן מוצג כאן בלבד.</translation>
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
        <source>IDS_CONNECT_TITLE</source>
        <translation>התחברות לרשת</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>רשת שאינה ברשימה שלך מתווספת לסוף הרשימה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>רשת שאינה ברשימה שלך מתווספת לראש הרשימה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>רשת שאינה ברשימה שלך אינה מתווספת לרשימה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>רשת</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>התחברות</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>אין רשת בטווח. כשתהיה אחת, היא תופיע כאן.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>חיפוש רשת</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>אין בטווח רשת ש„%1” בשמה.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>ללא מפתח</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>מפתח</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>מפתח חלש (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>חשבון</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>שמורה</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>מקום %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>ברשימה שלך</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>רשתות אחרות בטווח</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>המפתח של %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>הצגת המפתח</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>&#x200f;%1 צריכה חשבון. ההגדרה היא בהגדרות הרשת של שולחן העבודה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>&#x200f;%1 כבר אינה בטווח.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>זה נמשך יותר מהרגיל.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>החיבור אל %1 פעיל, אבל הרשת אינה שמורה: לא ניתן היה לשמור אותה.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>מקלדת: &#x202a;Ctrl+↑&#x202c; ו־&#x202a;Ctrl+↓&#x202c; בוחרים רשת, ↑ ו־↓ מזיזים אותה.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>עדיפות רשתות</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>רשתות Wi-Fi לתרגול</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>כללי</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>כללים</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>רשתות חדשות</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>בסוף הרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>בראש הרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>מחוץ לרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>הרשימה הזאת מנחה את NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>אחרת כל רשת מקבלת בחזרה את העדיפות שהייתה לה לפני הרשימה הזאת.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>שמירה על הסדר גם כשהחלון הזה סגור</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>תוכנית ללא חלון עושה זאת. היא מופעלת עכשיו, ובכל פעם שנכנסים למערכת.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>הצגת סמל בינתיים</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>בלוח של שולחן העבודה: הרשת שבשימוש, הראשונות ברשימה שלך ודרך להתחבר.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>&amp;פתיחה</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>מעבר אוטומטי לרשת גבוהה יותר</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>ברגע שאפשר להשתמש ברשת גבוהה יותר ברשימה שלך. לא עוזבים רשת שחיברת ידנית, ולא מחליפים בזמן VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>פס רחב נייד רק כשאין חיבור אחר</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>חוסך נתונים. פס רחב נייד שנמצא מתחת לכל רשתות ה-Wi-Fi ברשימה שלך מתחבר אחרי חצי דקה בלי חיבור אחר, ומתנתק אחרי דקה שבה יש חיבור אחר.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>הודעה לי בעת מעבר</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>בהתראה של שולחן העבודה, אחרי כל מעבר.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>בוצע מעבר אל %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>היא גבוהה יותר ברשימה שלך מ-%1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>תוספים</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>נטען</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>לא זמין</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>אודות התוכנה</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>הנתונים שלך: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>תיקיית התוספים: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>גרסה: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>לא ניתן להציג דף זה: התוסף &#x202a;%1&#x202c; נטען אך אינו מספק את הדף. פרטים נוספים ביומן.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>פס רחב נייד</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>בשימוש כעת</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>בטווח</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>מחוץ לטווח</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>לא ידוע אם בטווח</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>מוכן</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>בשימוש כעת: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>בשימוש כעת: %1, נדרשת הזדהות</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>בשימוש כעת: %1, ללא אינטרנט</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>אין רשת בשימוש</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>החיבור אינו ידוע</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>הרשימה שלך ריקה, ולכן אין ממה לבחור.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>לא ניתן לקרוא את הרשימה שלך במלואה, ולכן לא ידוע איזו רשת ראשונה.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>תוסף ה־Wi-Fi אינו זמין, ולכן לא ידוע אילו רשתות בטווח.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>התוסף שמנהל את הרשימה אינו זמין.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>מתבצעת התחברות: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>הרשת %1 מחוברת, אך התעבורה אינה עוברת דרכה.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>התוכנה &#x202a;NetworkManager&#x202c; אינה פועלת</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>לא ידוע איזו רשת בשימוש. אפשר לשנות את הרשימה שלך; היא תיכנס לתוקף כשהתוכנה &#x202a;NetworkManager&#x202c; תפעל.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>התוכנה &#x202a;NetworkManager&#x202c; עדיין לא השיבה, ולכן לא ידוע איזו רשת בשימוש.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>תוסף ה־Wi-Fi אינו מדווח איזו רשת בשימוש.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>&#x200f;%1 (תרגול)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>זו הרשת הראשונה ברשימה שלך שידוע שאפשר להשתמש בה.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>הרשת הזאת דורשת הזדהות בדף אינטרנט.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>הרשת מגיבה, אך האינטרנט שמאחוריה אינו מגיב.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>הרשימה מיועדת ל־Wi-Fi ולפס רחב נייד; החיבור הזה הוא מסוג אחר.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>היא אינה ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>רשת ה־VPN %1 מחוברת.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>לפי הרשימה שלך הייתה נבחרת %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>בלעדיו הייתה נבחרת לפי הרשימה שלך %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>לא ידוע על אף רשת ברשימה שלך שאפשר להשתמש בה.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>החיבור בהכנה.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>המפתח בבדיקה.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>הרשת מתבקשת לתת כתובת.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>מחוברת</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>בהתחברות</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>בהתנתקות</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>מוסתרת: נעשה ניסיון</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>לא שמורה כאן</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>אי אפשר להשתמש</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>המפתח נדחה</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>הניסיון האחרון נכשל</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>ידנית בלבד</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>כפולה ברשימה</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>כרטיס SIM נעול</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>אין מתאם</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>אין מודם</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>כבויה</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>הרשת %1 גבוהה ממנה ברשימה.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>הרשת מסתירה את שמה, ולכן לא ידוע אם היא בטווח. נעשה ניסיון.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>רשת בשם הזה נמצאת בטווח, אך האבטחה שלה אחרת.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>היא שמורה למתאם, לתחום תדרים או לתחנה אחרים מאלה שכאן.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>אין עבורה מתאם או מודם שעובד.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>המתאם או המודם שלה כבוי.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>לחצן במחשב הזה מכבה את המתאם או המודם שלה.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>כרטיס ה־SIM מבקש קוד PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>היא שייכת למשתמשים אחרים של המחשב הזה.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>היא דורשת חשבון, ואין חשבון שמור.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>במחשב הזה אין רשת שמורה בשם הזה.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>לא ידוע אם אפשר להשתמש בה.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>היא כבר נמצאת גבוה יותר ברשימה, ולכן למקום הזה אין השפעה.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>אין אליה התחברות אוטומטית.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>התוכנה &#x202a;NetworkManager&#x202c; שומרת על חיבור פועל עד שמתבצע מעבר.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>בניסיון האחרון ההתחברות נכשלה.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>בניסיון האחרון המפתח נדחה.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>בניסיון האחרון היה חסר מפתח.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>בניסיון האחרון לא התקבלה תשובה.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>בניסיון האחרון לא התקבלה כתובת.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>בניסיון האחרון המחשב הזה לא הורשה להיכנס.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>בניסיון האחרון כרטיס ה־SIM לא פעל.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>בפעם האחרונה היא הופסקה ידנית.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>בניסיון האחרון המתאם או המודם לא היה זמין.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>המפתח נדחה. יש הבדל בין אותיות גדולות לקטנות.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>המפתח השמור נדחה. אפשר לשנות אותו בהגדרות הרשת של שולחן העבודה.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>נדרש מפתח, ואין מפתח שמור.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>לא התקבלה תשובה; אולי הרשת רחוקה מדי.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>המחשב הזה הורשה להיכנס, אבל לא קיבל כתובת.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>המחשב הזה לא הורשה להיכנס.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>כרטיס ה־SIM לא פעל.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>הניסיון הופסק.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>המתאם או המודם לא היה זמין.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>אין לך הרשאה לכך.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>מעבר אל %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>החיבור אל %1 לא הצליח.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>הניתוק מ־%1 לא הצליח.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>הקובץ עם הרשימה שלך פגום. מוצגות רק הרשתות שלפני החלק הפגום.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>עותק של הקובץ נשמר בשם %1. התוכנה הזו לא תשנה את הרשימה שלך עד שתתקבל החלטה מה לעשות.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>החלטה מה לעשות…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>הרשימה פתוחה בחלון אחר של תוכנית זו. סגרו אותו כדי לראות את הרשימה כאן.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>פתיחת לוח הרשתות</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>הקובץ עם הרשימה שלך פגום</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>לא ניתן לקרוא את הקובץ עם הרשימה שלך עד סופו. מספר הרשתות שניתן היה לקרוא: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>הרשימה השלמה האחרונה היא מיום %1. מספר הרשתות בה: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>אין רשימה קודמת שניתנת לשחזור.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>בכל מקרה, הקובץ הפגום נשמר בשם %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>שחזור הרשימה השלמה האחרונה</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>שמירת הרשתות שניתן היה לקרוא</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>השארת הקובץ כפי שהוא</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>הקובץ עם הרשימה שלך קיים אך לא ניתן לפתוח אותו. יש לבדוק את ההרשאות שלו ואז לבחור „רענון”.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>התוסף &#x202a;%1&#x202c; נטען אך אינו מספק את הרשימה.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>לא ניתן להציג את הרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>הרשימה שלך ריקה</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>יש לפתוח את ההגדרות ולבחור „הוספה” עבור רשתות השמורות במחשב הזה, או „חדשה” להזנת רשת. הרשת הגבוהה ביותר ברשימה מועדפת.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>אילו רשתות קודמות?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>במחשב הזה שמורות רשתות. אפשר לאמץ אותן בסדר שבו הן משמשות עכשיו, ואז להעביר את המועדפות לראש הרשימה.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>לאחר התחברות לרשת, היא תופיע כאן.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>ההודעה למעלה מסבירה מדוע.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו טעון.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>התוסף &#x202a;%1&#x202c; לא נמצא. יש להתקין אותו, או להפעיל את התוכנה עם &#x202a;--library-path&#x202c; והתיקייה שמכילה את &#x202a;plugins/&#x202c;.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו שלם: הקובץ שלו נגמר מוקדם מדי, ולכן אינו בשימוש. יש להתקין אותו מחדש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>התוסף &#x202a;%1&#x202c; נבנה עבור גרסה ראשית אחרת של Qt, ולכן אינו בשימוש.
נמצא: &#x202a;Qt %2&#x202c;
נדרש: &#x202a;Qt %3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>לא ניתן לטעון את התוסף &#x202a;%1&#x202c; כספרייה: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו מציין עבור מה נבנה, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>התוסף &#x202a;%1&#x202c; נבנה עבור תוכנה אחרת, ולכן אינו בשימוש.
נמצא: &#x202a;%2&#x202c;
נדרש: &#x202a;%3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>הספרייה &#x202a;%1&#x202c; אינה תוסף, ולכן אינה בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>התוסף &#x202a;%1&#x202c; לא סיפק אובייקט לעבודה, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>הקובץ &#x202a;%1&#x202c; אינו תוסף של תוכנה זו, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>לא ניתן היה להפעיל את התוסף &#x202a;%1&#x202c;, ולכן אינו בשימוש. פרטים נוספים ביומן.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>לא ניתן לקרוא את קובץ השפה &#x202a;%1&#x202c;: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>קובץ השפה &#x202a;%1&#x202c; אינו מכיל טקסטים שמישים, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <translation>אלה הרשתות של המחשב הזה. &#x202a;NetworkManager&#x202c; מנסה אותן לפי הסדר ברשימה הזו.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>ההחלטה היא של NetworkManager. בהגדרות אפשר לתת לרשימה הזאת להחליט.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>התוכנה ‪NetworkManager‬ פועלת לפי הרשימה שלך ב-%1 מתוך %2 רשתות.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>למה לא בכולן?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>מה זה אומר</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>&amp;מה הרשימה שלך קובעת…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>מה הרשימה שלך קובעת</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>הרשימה שלך קובעת לאיזו רשת המחשב הזה מתחבר בעצמו כשיש כמה רשתות בטווח. חיבור שפועל נשמר עד שמתבצע מעבר. כבל קודם לכול, ורשתות שאינן ברשימה שלך באות אחרונות. כשיש כמה מתאמים, כל אחד מהם לוקח את הרשת הראשונה שהוא יכול להשתמש בה.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>לכל מקום ברשימה שלך יש השפעה.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>לרשימה שלך יש השפעה כל עוד החלון הזה פתוח. בהגדרות אפשר לשמור על הסדר גם אחר כך.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>הפעלה</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>התחברות</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>אין התחברות אליה מעצמה, ולכן למקום שלה אין השפעה.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>רק מנהל מערכת רשאי לשנות את המקום שלה. בהגדרות הרשת של שולחן העבודה אפשר להפוך אותה לרשת שלך בלבד, ואז למקום שלה תהיה השפעה.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>תוכנה אחרת יוצרת אותה מחדש בכל פעם, ולכן המקום שלה אינו נשמר.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>התוכנה ‪NetworkManager‬ לא קיבלה את המקום שלה.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>מישהו בחר עבורה מדד נתיב, ולכן ייתכן שחיבור אחר יישא את התעבורה לפניה.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>רשימה או תוכנה של מישהו אחר נתנה לה מאז מקום אחר. הרשימה שלך תקבע שוב לגביה ברגע שיהיה בה שינוי.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>אחרי כמה כישלונות התוכנה ‪NetworkManager‬ ממתינה חמש דקות לפני שהיא מנסה שוב.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>&amp;פרטים…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>פרטים</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>המקום ברשימה שלך:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>&#x200f;%1 מתוך %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>לא ברשימה שלך</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>מצב:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>פרופיל %1 מתוך %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>אבטחה:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>מתאם או מודם:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>רק %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>כלשהו</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>כלשהו, כעת %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>שימוש אחרון:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>עדיפות עבור &#x202a;NetworkManager&#x202c;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>חיבור נמדד:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>כנראה כן</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>כנראה לא</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>מי רשאי להשתמש בה:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>כל המשתמשים במחשב הזה</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>התחברות אליה מעצמה</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>ההתחברות אל %1 עדיין אוטומטית.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>ש&amp;כחת הרשת…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>הרשת והמפתח שלה יוצאים מהמחשב הזה.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>כעת לא ידוע איזו רשת שמורה.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>היא אינה שמורה כאן, ולכן אין צורך בשכחה. אפשר להסיר אותה מהרשימה.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>שכחת הרשת</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>שכחת הרשת %1?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>שכחה</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>קיים חיבור אליה, והחיבור יסתיים.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>המחשב הזה ישכח אותה עם המפתח שלה, והיא תצא מהרשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>המחשב הזה ישכח את כל הפרופילים בשם הזה (%1) עם כל מפתח שלהם, והיא תצא מהרשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>אפשר להחזיר את המקום שלה, אבל לא את המפתח.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>המחשב הזה ישכח אותה עם המפתח שלה. היא לא ברשימה שלך, ולכן הרשימה נשארת כפי שהיא.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>המחשב הזה ישכח את כל הפרופילים בשם הזה (%1) עם כל מפתח שלהם. הרשת לא ברשימה שלך, ולכן הרשימה נשארת כפי שהיא.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>אי אפשר לבטל את זה, ואי אפשר להחזיר את המפתח.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>השכחה מתבצעת.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>בוצעה שכחה של %1. אפשר להחזיר את המקום ברשימה, אבל לא את המפתח.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>בוצעה שכחה של %1. אי אפשר להחזיר את המפתח.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>לא בוצעה שכחה של %1, והיא נשארת ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>לא בוצעה שכחה של %1.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>פרופילים שנשכחו: %1 מתוך %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>לא התקבלה תשובה, ולכן לא ידוע אם בוצעה שכחה של %1. היא נשארת ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>לא התקבלה תשובה, ולכן לא ידוע אם בוצעה שכחה של %1.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>בוצעה שכחה של %1, אבל היא נשארת ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>עדיין אין התחברות אוטומטית אל %1.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>אלה רשתות לתרגול. הרשתות של המחשב הזה אינן משתנות.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;עריכה</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;ביטול פעולה</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>ביצוע &amp;חוזר</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>&amp;רשימות קודמות…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>י&amp;יבוא רשימה…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>יי&amp;צוא הרשימה…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>הת&amp;חברות</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>העברה למ&amp;עלה</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>העברה למ&amp;טה</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>העברה לרא&amp;ש הרשימה</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>העברה ל&amp;סוף הרשימה</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>העברה למ&amp;קום…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>העברה למקום</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>המקום החדש של %1, מ-1 (ראש הרשימה) עד %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>המקום החדש של הרשת הראשונה מבין אלה (%1), מ-1 (ראש הרשימה) עד %2. האחרות באות אחריה:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>העברה</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>הסרה &amp;מהרשימה</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>ה&amp;וספה לרשימה</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>לא ברשימה שלך (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>לחיצה או Enter מציגים או מסתירים את הרשתות האלה.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>&#x200f;%1 · שמורה</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>יש לבחור תחילה רשת שאינה ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>יש לבחור תחילה רשת ברשימה.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>היא כבר נמצאת שם.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>תוכנה אחרת שינתה את הרשימה שלך. %1 כבר אינה ברשימה.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>&#x200f;%1: מקום %2 מתוך %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>חיפוש רש&amp;ת</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>אין רשת ש„%1” בשמה.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>ניקוי החיפוש</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>כדי להעביר רשתות למעלה או למטה יש לנקות את החיפוש.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>ביטול פעולה</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>ביצוע חוזר</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>אימוץ הרשתות השמורות…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>ייבוא רשימה…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>ביטול פעולה: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>ביצוע חוזר: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>אין רשימה קודמת לחזור אליה.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>דבר לא בוטל, ולכן אין מה לבצע שוב.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>הקובץ עם הרשימה שלך פגום. „ביטול פעולה” מאפשר שחזור של הרשימה השלמה האחרונה.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>התוסף שמנהל את הרשימה אינו זמין, ולכן לא ניתן לשנות את הרשימה.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>השינוי האחרון: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>דבר לא השתנה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>הסרת כל הרשתות</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>הקובץ נפגם</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>הוספת %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>הוספת %1 רשתות</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>הסרת %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>הסרת %1 רשתות</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>הרשת %1 הוחלפה ברשת %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>העברת %1 למעלה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>העברת %1 למטה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>העברת %1 לראש הרשימה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>העברת %1 לסוף הרשימה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>העברת %1 רשתות</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>שחזור הרשימה מיום %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(ללא שם)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>הרשימה שלך נשארת כפי שהיא.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>כל הרשתות יוסרו.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תתווסף.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>יתווספו %1 רשתות.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תוסר.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>יוסרו %1 רשתות.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>הרשת %1 תוחלף ברשת %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תועבר למעלה.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תועבר למטה.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תועבר לראש הרשימה.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>הרשת %1 תועבר לסוף הרשימה.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>יועברו %1 רשתות.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>רשימות קודמות</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>יש לבחור את הרשימה לשחזור. גם הרשימה הנוכחית תישמר.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>מועד</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>שינוי</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>עכשיו</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>בוטל</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>הרשימה הישנה ביותר שנשמרה</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>הרשימה באותו מועד</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>תוצאת השחזור: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>זו הרשימה כפי שהיא עכשיו.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>שחזור</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>שמירת הקובץ ופתיחת קובץ חדש</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>רשימה זו כבר אינה שמורה. יש לבחור רשימה אחרת.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>ייבוא רשימה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>החלפת הרשימה שלך ברשימה מקובץ. אפשר לבדוק את השינויים לפני ביצועם.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>תוצאת הייבוא: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>הרשימה שלך כבר בסדר הזה. אין מה לייבא.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>מקום</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>תוצאה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>נשארת במקומה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>תתווסף</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>תועבר למעלה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>תועבר למטה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>נשארת במקומה; אחרות יועברו</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>תוסר מהרשימה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; לא שמורה כאן</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>לא שמורות במחשב הזה: %1. הרשתות האלה לא ישמשו עד שיוגדרו כאן.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>ייבוא</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>אימוץ הרשתות השמורות</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>הרכבת הרשימה שלך מהרשתות השמורות במחשב הזה. אפשר לבדוק אותה לפני כן.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>בסדר שבו הן משמשות עכשיו: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>אימוץ</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>לא ניתן לקרוא את הקובץ %1, או שהוא גדול מדי לרשימה. הרשימה שלך לא השתנתה.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>הקובץ %1 אינו רשימת רשתות שאפשר לייבא. %2. הרשימה שלך לא השתנתה.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>ייצוא הרשימה</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>שמירת הרשימה שלך בקובץ, ללא מפתחות.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>לא ניתן לכתוב לקובץ %1. דבר לא השתנה.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>רשימות של רשתות</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>כל הקבצים</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>לא ניתן לכתוב את הרשימה אל %1. יש לבדוק אם הדיסק מלא או אם הקובץ מוגן מפני כתיבה.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>לא ניתן לגבות את הקובץ הפגום %1, ולכן הוא לא שונה. יש לבדוק אם הדיסק מלא או אם התיקייה מוגנת מפני כתיבה.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>הקובץ עם הרשימות הקודמות, %1, פגום ולא שונה. %2. כדי להשתמש שוב ב־„ביטול פעולה”, יש לבחור „רשימות קודמות…” ולפתוח קובץ חדש. הקובץ הפגום יישמר.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>לא ניתן לקרוא את הקובץ עם הרשימות הקודמות, %1, והוא לא שונה. כדי להשתמש שוב ב־„ביטול פעולה”, יש לאפשר את קריאת הקובץ, או לבחור „רשימות קודמות…” ולפתוח קובץ חדש. הקובץ הישן יישמר.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>לא ניתן לשמור רשימות קודמות אל %1. אפשר לבטל שינויים רק עד ליציאה מהתוכנה.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>תוכנה אחרת משתמשת ברשימה. יש לנסות שוב בעוד רגע.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>לא ניתן לשנות את שם הקובץ %1, ולכן לא נפתח קובץ חדש.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>שורה %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>זה אינו XML תקין</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>הצהרה על סוג המסמך אינה מותרת כאן</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>הרכיב „%1” אינו מותר כאן</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>טקסט אינו מותר כאן</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>התכונה „%1” חסרה</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>הערך של התכונה „%1” אינו תקין</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>יש יותר מדי רכיבים „%1”</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>„ביטול פעולה” מאפשר שחזור של הרשימה השלמה האחרונה.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>הקובץ עם הרשימה שלך פגום</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>אי אפשר להשתמש ברשימות קודמות</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>אי אפשר להשתמש באחד התוספים</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>אי אפשר להשתמש באחת השפות</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>&#x200f;%1 מתוך %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>הצגת ההודעה הבאה</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>„התחברות…” מציג את שאר הרשתות שבטווח.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>לא בשימוש, כי היא מחוץ לטווח.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;חיפוש ביומן…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>חיפוש ביומן</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>התוצאה הבאה</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>התוצאה הקודמת</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>תוצאות: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>אין תוצאות</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>מ&amp;ראה</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>כמו &amp;שולחן העבודה</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;בהיר</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;כהה</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>רשת חדשה</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>הרשת „%1” לא שונתה: כבר שמורה רשת בשם הזה, ולא ניתן לשנות אותה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>דבר לא שונה: כמה רשתות שמורות בשם „%1”&#x200f;, ולא ידוע לאיזו מהן הכוונה. יש לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>הרשת „%1” לא שונתה: כבר שמורה רשת בשם הזה, עם פרטים שלא ניתן להזין כאן, למשל חשבון. יש לשנות אותה במקום שבו הוגדרה, או לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>הרשת „%1” לא שונתה: כבר שמורה רשת בשם הזה, והאבטחה או ההצפנה שנבחרה חלשה יותר. יש לבחור אבטחה והצפנה חזקות לפחות באותה מידה, או שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>הרשת „%1” לא שונתה: כבר שמורה רשת בשם הזה, וכדי לשנות אותה דרוש מפתח שלם. יש להזין את המפתח, או לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>הרשת „%1” אינה שמורה: אותה רשת כבר שמורה בשם „%2”&#x200f;, עם הגדרות טובות יותר. במקום זאת יש להוסיף לרשימה שלך את „%2”.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>הרשת „%1” אינה שמורה: בשם של רשת יש 1 עד 32 בייטים. אותיות עם סימנים ואותיות של כתבים אחרים, ובהם עברית, תופסות שניים עד ארבעה בייטים כל אחת.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>הרשת „%1” אינה שמורה: האבטחה, ההצפנה והמפתח האלה אינם מתאימים זה לזה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>הרשת „%1” אינה שמורה: האבטחה הזו דורשת חשבון, שלא ניתן להזין כאן. יש לבצע הגדרה של הרשת בהגדרות שולחן העבודה, ואז להוסיף אותה לרשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>הרשת „%1” אינה שמורה: התוכנה &#x202a;NetworkManager&#x202c; אינה פועלת.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>לא ידוע אם הרשת „%1” שמורה: התוכנה &#x202a;NetworkManager&#x202c; אינה עונה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>הרשת „%1” אינה שמורה: אין לך הרשאה לשמור רשתות במחשב הזה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>הרשת „%1” אינה שמורה: התוכנה &#x202a;NetworkManager&#x202c; אינה מקבלת אותה, ככל הנראה בגלל המפתח.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>הרשת „%1” אינה שמורה: התוכנה &#x202a;NetworkManager&#x202c; מדווחת על שגיאה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>הרשת „%1” אינה שמורה: לא ניתן לקרוא או לכתוב את קובץ הרשתות השמורות. פרטים נוספים ביומן.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>הרשת „%1” אינה שמורה: קובץ הרשתות השמורות פגום ולא שונה. השורה מצוינת ביומן.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>הרשת „%1” אינה שמורה: תוכנה אחרת משנה את הרשתות. יש לנסות שוב בעוד רגע.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>הרשימה שלך</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>סדר הרשימה שלך אינו יכול לחול במלואו בגלל „%1”&#x200f;: לא ניתן לשנות את הרשת הזאת, והעדיפות שלה אינה מתאימה למקום שלה ברשימה. שאר הרשתות הן לפי הרשימה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>סדר הרשימה שלך אינו יכול לחול במלואו בגלל „%1” ורשתות נוספות: לא ניתן לשנות אותן, והעדיפות שלהן אינה מתאימה למקום שלהן ברשימה. השמות כתובים ביומן.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>הרשת „%1” אינה ברשימה שלך, אך מנסים אותה לפני רשתות שנמצאות בה: אין להן עדיפות גבוהה יותר. יש להוסיף את „%1” לרשימה שלך כדי שיהיה לה מקום.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>הרשת „%1” אינה במקום שלה לפי הרשימה שלך: רשימה של משתמש אחר או תוכנה אחרת שינו שוב את העדיפות שלה. ברגע שהרשימה שלך תשתנה, היא תחול שוב.</translation>
    </message>
</context>
</TS>
