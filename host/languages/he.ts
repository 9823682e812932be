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
        <translation>שיטת אימות</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>הצפנה</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>מספר מפתח</translation>
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
        <translation>המפתח אינו מתאים ל-WEP. עליו להכיל 5 או 13 תווים, או 10, 26 או 32 ספרות הקסדצימליות (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

מותר להשתמש באותיות, בספרות ובסימנים אלה:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>המפתח אינו מתאים ל-WPA. עליו להכיל בין 8 ל-63 תווים, או 64 ספרות הקסדצימליות (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

מותר להשתמש באותיות, בספרות ובסימנים אלה:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
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
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>עברית</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>לוח הרשתות</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;קובץ</translation>
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
        <source>IDS_ACTION_SETTINGS</source>
        <translation>ה&amp;גדרות…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;רענון</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;יציאה</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>הצגת &amp;מעקב</translation>
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
        <source>IDS_BUTTON_REFRESH</source>
        <translation>רענון</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>הצגת מעקב</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>מעקב</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>לא ניתן לכתוב לקובץ היומן &#x202a;%1&#x202c;; המעקב מוצג כאן בלבד.</translation>
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
        <translation>הרשת שמתחברים אליה עוברת לראש הרשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>רשת</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>עוצמת אות</translation>
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
        <translation>אין רשת בטווח. כאשר תהיה אחת, יש לפתוח חלון זה שוב.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>תוסף ה-Wi-Fi אינו זמין, ולכן אין רשת להתחבר אליה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>התוסף ששומר את הרשימה אינו זמין, ולכן לא ניתן להעביר רשת לראשה.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>לא ניתן לקרוא את כל הרשימה שלך, ולכן שום רשת לא מועברת לראשה.</translation>
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
        <translation>במקלדת: &#x202a;Ctrl+↑&#x202c; ו־&#x202a;Ctrl+↓&#x202c; בוחרים רשומה, ↑ ו־↓ מזיזים אותה.</translation>
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
        <translation>Wi-Fi (רשתות מקובץ)</translation>
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
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>לא נדרש</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>אודות הלוח</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>הנתונים שלך: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>מיקום התוספים: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>גרסה: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>לא ניתן להציג דף זה: התוסף &#x202a;%1&#x202c; נטען אך אינו מספק את הדף שלו. ייתכן שיש פרטים נוספים במעקב.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>פס רחב סלולרי</translation>
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
        <translation>מוכן כגיבוי</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>בשימוש כעת: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>זו הרשת הראשונה ברשימה שלך הנמצאת בטווח.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>אין בטווח רשת Wi-Fi הקודמת לו ברשימה שלך.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>אין רשת בשימוש</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>הרשימה שלך ריקה, ולכן אין ממה לבחור.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>אף רשת מהרשימה שלך אינה בטווח.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>תוסף ה-Wi-Fi אינו זמין, ולכן לא ידוע אילו רשתות בטווח.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>התוסף ששומר את הרשימה אינו זמין.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>הקובץ עם הרשימה שלך פגום. מוצג רק מה שלפני הפגם.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>הקובץ הועתק אל %1. התוכנית הזו תשנה אותו רק אחרי שתחליט מה לעשות.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>החלטה מה לעשות…</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>הרשימה שלך פגומה</translation>
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
        <translation>אין רשימה קודמת שניתן להחזיר.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>בכל בחירה, הקובץ הפגום נשמר בשם %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>החזרת הרשימה השלמה האחרונה</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>להמשיך עם מה שניתן היה לקרוא</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>להשאיר כפי שהוא</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>הקובץ עם הרשימה שלך קיים אך לא ניתן לפתוח אותו. יש לבדוק את ההרשאות שלו ולרענן.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>התוסף &#x202a;%1&#x202c; נטען אך אינו מספק את הרשימה.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>אין רשימה להצגה</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>רשימת העדיפויות ריקה</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>יש לפתוח את ההגדרות ולבחור ״הוספה״ עבור רשתות שהמחשב זוכר, או ״חדשה״ להזנת רשת. הרשת הגבוהה ביותר ברשימה מועדפת.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>לא ניתן לקרוא ממנה דבר. יש לעיין בהודעה שלמעלה.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו טעון.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו קיים. יש להתקין אותו, או להפעיל את הלוח עם &#x202a;--library-path&#x202c; והתיקייה שבה נמצאת התיקייה &#x202a;plugins/&#x202c;.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>התוסף &#x202a;%1&#x202c; אינו שלם: הקובץ שלו נגמר מוקדם מדי, ולכן אינו בשימוש. יש להתקין אותו מחדש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>התוסף &#x202a;%1&#x202c; נבנה עבור דור אחר של Qt, ולכן אינו בשימוש.
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
        <translation>התוסף &#x202a;%1&#x202c; נבנה עבור לוח אחר, ולכן אינו בשימוש.
נמצא: &#x202a;%2&#x202c;
נדרש: &#x202a;%3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>לספרייה &#x202a;%1&#x202c; אין נקודת כניסה של תוסף, ולכן אינה בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>התוסף &#x202a;%1&#x202c; לא סיפק אובייקט לעבודה, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>מה שסיפק &#x202a;%1&#x202c; אינו תוסף של לוח זה, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>התוסף &#x202a;%1&#x202c; מדווח שאינו יכול לפעול, ולכן אינו בשימוש. ייתכן שיש פרטים נוספים במעקב.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>לא ניתן לקרוא את קובץ השפה &#x202a;%1&#x202c;: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>קובץ השפה &#x202a;%1&#x202c; פגום החל מבית %2, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>קובץ השפה &#x202a;%1&#x202c; אינו מכיל טקסטים שמישים, ולכן אינו בשימוש.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>האם &#x202a;NetworkManager&#x202c; פועל?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <translation>הרשתות של המחשב, מתוך &#x202a;NetworkManager&#x202c;, שפועל לפי סדר הרשימה הזו.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>רשתות של הלוח בלבד; הרשתות של המחשב אינן משתנות.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>אין &#x202a;NetworkManager&#x202c; לעבוד איתו. אלה רשתות של הלוח בלבד; הרשתות של המחשב אינן משתנות.</translation>
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
        <translation>&amp;שחזור…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>י&amp;יבוא סדר…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>יי&amp;צוא סדר…</translation>
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
        <source>IDS_BUTTON_RESTORE</source>
        <translation>שחזור…</translation>
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
        <translation>הקובץ עם הרשימה פגום. „ביטול פעולה” מחזיר את הרשימה האחרונה שניתן היה לקרוא.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>התוסף ששומר את הרשימה אינו זמין, ולכן אי אפשר לשנות אותה.</translation>
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
        <translation>נמחקו כל הרשומות</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>הקובץ נפגם</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 נוספה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>רשומות שנוספו: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 נמחקה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>רשומות שנמחקו: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 הועברה למעלה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 הועברה למטה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 הועברה לראש הרשימה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 הועברה לסוף הרשימה</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>רשומות שהועברו: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>חזרה לרשימה מיום %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(ללא שם)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>שחזור רשימה קודמת</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>בחר איך הרשימה תהיה שוב. גם הרשימה הנוכחית נשארת כאן.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>מתי</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>מה השתנה</translation>
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
        <translation>הרשימה אז</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>מה השחזור עושה: %1</translation>
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
        <translation>הנח אותו בצד והתחל מחדש</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>רשימה זו כבר אינה שמורה. בחר אחרת.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>ייבוא סדר</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>לוקח רשימה מקובץ. תראה קודם מה ישתנה.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>מה הייבוא עושה: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>הרשימה כבר בסדר הזה. אין מה לייבא.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>מקום</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>מה קורה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>נשארת</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>מתווספת</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>עולה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>יורדת</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>אחרות זזות סביבה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>מוסרת מהרשימה</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; לא מוכרת כאן</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>לא מוכרות במחשב הזה: %1. רשומה כזו תשמש רק לאחר שהרשת תוגדר כאן.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>ייבוא</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>לא ניתן לקרוא את הקובץ %1, או שהוא גדול מדי לרשימה. הרשימה שלך כפי שהייתה.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>הקובץ %1 אינו רשימת רשתות שאפשר לייבא. %2. הרשימה שלך כפי שהייתה.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>ייצוא הסדר</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>כותב את סדר הרשימה לקובץ, בלי שום מפתחות.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-order.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>לא ניתן לכתוב את הקובץ %1. מה שהיה שם קודם נשאר כפי שהיה.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>סדרי רשתות</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>כל הקבצים</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>לא ניתן לכתוב את הרשימה אל %1. בדוק אם הדיסק מלא או שהקובץ מוגן.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>לא ניתן להעתיק את הקובץ הפגום %1 לשמירה, ולכן הוא נשאר כפי שהוא. בדוק אם הדיסק מלא או שהתיקייה מוגנת.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>הקובץ עם הרשימות הקודמות, %1, פגום ונשאר כפי שהוא. %2. עד שיונח בצד תחת „שחזור…” אי אפשר לבטל דבר.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>לא ניתן לקרוא את הקובץ עם הרשימות הקודמות, %1, והוא נשאר כפי שהוא. עד שניתן יהיה, או שיונח בצד תחת „שחזור…”, אי אפשר לבטל דבר.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>לא ניתן לשמור רשימות קודמות אל %1. מה שתשנה ניתן לביטול רק עד סיום התוכנית.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>תוכנית אחרת עובדת עם הרשימה. נסה שוב בעוד רגע.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>לא ניתן לשנות את שם הקובץ %1, ולכן הוא נשאר כפי שהוא.</translation>
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
        <translation>הצהרה על סוג המסמך אינה שייכת לשם</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>הרכיב „%1” אינו שייך לשם</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>טקסט אינו שייך לשם</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>התכונה „%1” חסרה</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>לתכונה „%1” יש ערך שאינו אפשרי</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>יש יותר מדי רכיבי „%1”</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>„ביטול פעולה” מחזיר את הרשימה האחרונה שניתן היה לקרוא.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <translation>גבוה יותר ברשימה אך מחוץ לטווח: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>„התחברות…” מציג את הרשתות שבטווח.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>אי אפשר להשתמש בה כעת, כי היא מחוץ לטווח.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <translation>אפשר היה להשתמש בה, אבל %1 גבוהה ממנה ברשימה.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <translation>אפשר היה להשתמש בה, אבל לא ידוע אם רשת גבוהה ממנה ברשימה נמצאת בטווח.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;חיפוש במעקב…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>חיפוש במעקב</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>המקום הבא</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>המקום הקודם</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>נמצאו: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>לא נמצא</translation>
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
        <translation>„%1” נשארה כפי שהייתה: כבר מוגדרת רשת בשם הזה, ואסור לשנות אותה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>דבר לא השתנה: כמה רשתות מוגדרות בשם „%1”&#x200f;, ולא ניתן לדעת לאיזו מהן הכוונה. יש לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>„%1” נשארה כפי שהייתה: כבר מוגדרת רשת בשם הזה, ויש בה יותר ממה שאפשר להזין כאן, למשל חשבון. יש לשנות אותה במקום שבו הוגדרה, או לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>„%1” נשארה כפי שהייתה: כבר מוגדרת רשת בשם הזה, ושיטת האימות או ההצפנה הזו חלשה יותר. יש לבחור לפחות באותה רמה, או לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>„%1” נשארה כפי שהייתה: כבר מוגדרת רשת בשם הזה, וכדי לשנות אותה דרוש מפתח שלם. יש להזין מפתח, או לבחור שם אחר.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>„%1” לא נשמרה: אותה רשת כבר מוגדרת בשם „%2”&#x200f;, וטוב יותר מכך. במקום זאת יש להוסיף לרשימה את „%2”.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>„%1” לא נשמרה: בשם של רשת יש 1 עד 32 בתים. אותיות עם סימנים וכתבים אחרים, ובהם עברית, תופסים שניים עד ארבעה בתים לאות.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>„%1” לא נשמרה: שיטת האימות, ההצפנה והמפתח האלה אינם מתאימים זה לזה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>„%1” לא נשמרה: שיטת האימות הזו דורשת חשבון, שלא ניתן להזין כאן. יש להגדיר את הרשת בהגדרות שולחן העבודה, ואז להוסיף אותה לרשימה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>„%1” לא נשמרה: &#x202a;NetworkManager&#x202c; אינו פועל.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>לא ידוע אם „%1” נשמרה: &#x202a;NetworkManager&#x202c; אינו עונה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>„%1” לא נשמרה: אין לך הרשאה לכך במחשב הזה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>„%1” לא נשמרה: &#x202a;NetworkManager&#x202c; אינו מקבל אותה, ככל הנראה בגלל המפתח.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>„%1” לא נשמרה: &#x202a;NetworkManager&#x202c; מדווח על שגיאה.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>„%1” לא נשמרה: לא ניתן לקרוא או לכתוב את קובץ הרשתות המוגדרות. במעקב יש פרטים נוספים.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>„%1” לא נשמרה: קובץ הרשתות המוגדרות פגום, והוא נשאר כפי שהוא. השורה מצוינת במעקב.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>„%1” לא נשמרה: תוכנית אחרת משנה את הרשתות. יש לנסות שוב.</translation>
    </message>
</context>
</TS>
