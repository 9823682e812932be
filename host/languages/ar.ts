<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>أولوية الشبكات</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>أولوية الشبكات</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>عند توفّر أكثر من شبكة من هذه الشبكات، تُستخدم الشبكة الأعلى في القائمة.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>إضافة شبكات</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>شبكة جديدة</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>اسم الشبكة:</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>المفتاح:</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>تأكيد المفتاح:</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>المصادقة:</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>التشفير:</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>رقم المفتاح:</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>أسلوب EAP:</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>أولوية الشبكات</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>هل تريد إزالة الشبكة المحددة من قائمة الأولوية؟</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>أدخل اسم الشبكة.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>توجد شبكة بهذا الاسم في قائمة الأولوية بالفعل.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>المفتاح غير مناسب لـ WEP. يجب أن يتكوّن من 5 أحرف أو 13 حرفًا، أو من 10 أو 26 أو 32 رقمًا ست عشريًا (&#x202a;0-9, A-F&#x202c;).

يُسمح بالحروف والأرقام والرموز التالية:
&#x202a;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x202c;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>المفتاح غير مناسب لـ WPA. يجب أن يتكوّن من 8 أحرف إلى 63 حرفًا، أو من 64 رقمًا ست عشريًا (&#x202a;0-9, A-F&#x202c;).

يُسمح بالحروف والأرقام والرموز التالية:
&#x202a;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x202c;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>المفتاحان غير متطابقين. أدخل المفتاح نفسه في الحقلين، مع مراعاة حالة الأحرف الكبيرة والصغيرة.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>اختر أسلوب المصادقة.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
</context>
</TS>
