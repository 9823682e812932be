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
        <translation>&amp;لأعلى</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>لأ&amp;سفل</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>إ&amp;زالة</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;جديدة</translation>
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
        <translation>اسم الشبكة</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>تأكيد المفتاح</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>المصادقة</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>رقم المفتاح</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>أسلوب EAP</translation>
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
        <translation>المفتاح غير مناسب لـ WEP. يجب أن يتكوّن من 5 أحرف أو 13 حرفًا، أو من 10 أو 26 أو 32 رقمًا ست عشريًا (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

يُسمح بالحروف والأرقام والرموز التالية:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>المفتاح غير مناسب لـ WPA. يجب أن يتكوّن من 8 أحرف إلى 63 حرفًا، أو من 64 رقمًا ست عشريًا (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

يُسمح بالحروف والأرقام والرموز التالية:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
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
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>العربية</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>لوحة الشبكات</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;اللغة</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>ات&amp;صال…</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>الإ&amp;عدادات…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;تحديث</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>إظهار سجل الت&amp;تبّع</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>اتصال…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REFRESH</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>إظهار التتبّع</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>سجل التتبّع</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>تعذّرت الكتابة في ملف السجل &#x202a;%1&#x202c;؛ يظهر التتبّع هنا فقط.</translation>
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
        <source>IDS_CONNECT_TITLE</source>
        <translation>الاتصال بشبكة</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>توضع الشبكة التي تتصل بها في أعلى قائمتك.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>لا توجد شبكة في المدى. عندما توجد واحدة، افتح هذه النافذة من جديد.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>إضافة الواي فاي غير متوفرة، لذلك لا توجد شبكة للاتصال بها.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>الإضافة التي تحفظ القائمة غير متوفرة، لذلك لا يمكن وضع شبكة في أعلاها.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>لا يمكن قراءة قائمتك كاملة، لذلك لا توضع أي شبكة في أعلاها.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>بلوحة المفاتيح: &#x202a;Ctrl+↑&#x202c; و&#x202a;Ctrl+↓&#x202c; لاختيار إدخال، و↑ و↓ لنقله.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>أولوية الشبكات</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>واي فاي (&#x202a;NetworkManager&#x202c;)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>واي فاي (شبكات من ملف)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>الإضافات</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>محمّلة</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>غير متوفرة</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>غير لازمة</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>حول هذه اللوحة</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>بياناتك: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>موضع الإضافات: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>الإصدار: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>يتعذّر عرض هذه الصفحة: حُمّلت الإضافة &#x202a;%1&#x202c; لكنها لا تقدّم صفحتها. قد يوضّح سجل التتبّع المزيد.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>واي فاي</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>النطاق العريض للجوال</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>قيد الاستخدام الآن</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>في المدى</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>خارج المدى</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>غير معروف إن كانت في المدى</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>جاهزة كبديل</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>قيد الاستخدام الآن: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>هي أول شبكة في قائمتك تقع في المدى.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>لا توجد في المدى شبكة واي فاي تسبقها في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>لا توجد شبكة قيد الاستخدام</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>قائمتك فارغة، فلا يوجد ما يمكن الاختيار منه.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>لا توجد في المدى أي شبكة من قائمتك.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>إضافة الواي فاي غير متوفرة، لذلك لا يُعرف أي الشبكات في المدى.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>الإضافة التي تحفظ القائمة غير متوفرة.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>الملف الذي يحوي قائمتك تالف. لا يُعرض إلا ما قبل موضع التلف.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>نُسخ الملف إلى %1. ولن يغيّره هذا البرنامج إلا بعد أن تقرر ما يجب فعله.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>تقرير ما يجب فعله…</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>قائمتك تالفة</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>لا يمكن قراءة الملف الذي يحوي قائمتك حتى نهايته. عدد الشبكات التي أمكنت قراءتها: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>آخر قائمة كاملة هي قائمة %1. عدد الشبكات فيها: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>لا توجد قائمة سابقة يمكن إرجاعها.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>مهما اخترت، يُحفظ الملف التالف باسم %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>إرجاع آخر قائمة كاملة</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>المتابعة بما أمكنت قراءته</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>تركه كما هو</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>الملف الذي يحوي قائمتك موجود لكن يتعذّر فتحه. تحقّق من أذوناته ثم حدّث العرض.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>حُمّلت الإضافة &#x202a;%1&#x202c; لكنها لا تقدّم القائمة.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>لا توجد قائمة لعرضها</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>قائمة الأولوية فارغة</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>افتح الإعدادات ثم اختر «إضافة» للشبكات التي يتذكّرها هذا الحاسوب، أو «جديدة» لإدخال شبكة بنفسك. تُفضَّل الشبكة الأعلى في القائمة.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>لا يمكن قراءة أي شيء منها. راجع الرسالة أعلاه.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>الإضافة &#x202a;%1&#x202c; غير محمّلة.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>الإضافة &#x202a;%1&#x202c; غير موجودة. ثبّتها، أو شغّل اللوحة بالخيار &#x202a;--library-path&#x202c; مع المجلد الذي يحوي المجلد &#x202a;plugins/&#x202c;.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>الإضافة &#x202a;%1&#x202c; ناقصة: ينتهي ملفها قبل أوانه، لذلك لا تُستخدم. أعد تثبيتها.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>بُنيت الإضافة &#x202a;%1&#x202c; لجيل آخر من Qt، لذلك لا تُستخدم.
الموجود: &#x202a;Qt %2&#x202c;
المتوقّع: &#x202a;Qt %3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>يتعذّر تحميل الإضافة &#x202a;%1&#x202c; كمكتبة: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>لا تذكر الإضافة &#x202a;%1&#x202c; ما بُنيت لأجله، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>بُنيت الإضافة &#x202a;%1&#x202c; للوحة أخرى، لذلك لا تُستخدم.
الموجود: &#x202a;%2&#x202c;
المتوقّع: &#x202a;%3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>لا تحوي المكتبة &#x202a;%1&#x202c; نقطة دخول لإضافة، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>لم تقدّم الإضافة &#x202a;%1&#x202c; كائنًا للعمل معه، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>ما قدّمته &#x202a;%1&#x202c; ليس إضافة لهذه اللوحة، لذلك لا يُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>تفيد الإضافة &#x202a;%1&#x202c; بأنها لا تستطيع العمل، لذلك لا تُستخدم. قد يوضّح سجل التتبّع المزيد.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>تتعذّر قراءة ملف اللغة &#x202a;%1&#x202c;: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>ملف اللغة &#x202a;%1&#x202c; تالف بدءًا من البايت %2، لذلك لا يُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>لا يحوي ملف اللغة &#x202a;%1&#x202c; نصوصًا صالحة، لذلك لا يُستخدم.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>هل يعمل &#x202a;NetworkManager&#x202c;؟</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <translation>شبكات هذا الحاسوب من &#x202a;NetworkManager&#x202c; الذي يتبع ترتيب هذه القائمة.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>شبكات خاصة بهذه اللوحة؛ أما شبكات هذا الحاسوب فلا تُمَسّ.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>لا يتوفر &#x202a;NetworkManager&#x202c; للعمل معه. هذه شبكات خاصة بهذه اللوحة؛ أما شبكات هذا الحاسوب فلا تُمَسّ.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>ت&amp;راجع</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>ا&amp;ستعادة…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>است&amp;يراد الترتيب…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;تصدير الترتيب…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>IDS_BUTTON_RESTORE</source>
        <translation>استعادة…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>تراجع: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>إعادة: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>لا توجد قائمة سابقة للرجوع إليها.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>لم يُتراجع عن شيء، فلا شيء لإعادته.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>ملف قائمتك تالف. يعيد «تراجع» آخر قائمة أمكنت قراءتها.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>الملحق الذي يحفظ القائمة غير متوفر، لذا لا يمكن تغييرها.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>آخر تغيير: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>لم يتغير شيء</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>حُذفت كل الإدخالات</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>تَلِف الملف</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>أُضيفت %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>إدخالات مضافة: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>حُذفت %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>إدخالات محذوفة: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>نُقلت %1 إلى أعلى</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>نُقلت %1 إلى أسفل</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>نُقلت %1 إلى أول القائمة</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>نُقلت %1 إلى آخر القائمة</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>إدخالات منقولة: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>عودة إلى قائمة %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(بلا اسم)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>استعادة قائمة سابقة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>اختر الحال التي تريد أن تعود إليها قائمتك. وتبقى القائمة الحالية هنا أيضًا.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>متى</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>ما الذي تغيّر</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>تُرُوجِع عنها</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>أقدم قائمة محفوظة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>القائمة حينها</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>ما تفعله الاستعادة: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>هذه هي القائمة كما هي الآن.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>نحّه جانبًا وابدأ من جديد</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>لم تعد تلك القائمة محفوظة. اختر غيرها.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>استيراد ترتيب</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>يأخذ قائمة من ملف. سترى أولًا ما الذي سيتغير.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>ما يفعله الاستيراد: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>قائمتك بهذا الترتيب أصلًا. لا شيء لاستيراده.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>ما يحدث</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>تبقى</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>تُضاف</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>تصعد</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>تنزل</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>تتحرك غيرها حولها</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>تُزال من القائمة</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1؛ غير معروفة هنا</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>غير معروفة على هذا الحاسوب: %1. لا يُستخدم إدخال كهذا إلا بعد إعداد الشبكة هنا.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>لا يمكن قراءة الملف %1، أو هو أكبر بكثير من أن يكون قائمة. قائمتك كما كانت.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>الملف %1 ليس قائمة شبكات يمكن استيرادها. %2. قائمتك كما كانت.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>تصدير الترتيب</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>يكتب ترتيب قائمتك في ملف، من دون أي مفاتيح.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-order.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>لا يمكن كتابة الملف %1. ما كان هناك من قبل باقٍ كما كان.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>ترتيبات الشبكات</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>لا يمكن كتابة القائمة في %1. تحقق مما إذا كان القرص ممتلئًا أو الملف محميًا.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>لا يمكن نسخ الملف التالف %1 لحفظه، لذا تُرك كما هو. تحقق مما إذا كان القرص ممتلئًا أو المجلد محميًا.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>الملف الذي فيه القوائم السابقة، %1، تالف وتُرك كما هو. %2. لا يمكن التراجع عن شيء قبل تنحيته جانبًا في «استعادة…».</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>لا يمكن قراءة الملف الذي فيه القوائم السابقة، %1، وتُرك كما هو. لا يمكن التراجع عن شيء إلى أن تمكن قراءته أو يُنحّى جانبًا في «استعادة…».</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>لا يمكن حفظ القوائم السابقة في %1. يمكن التراجع عما تغيّره إلى أن ينتهي البرنامج فقط.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>برنامج آخر يعمل على القائمة. حاول مرة أخرى بعد لحظة.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>لا يمكن إعادة تسمية الملف %1، لذا تُرك كما هو.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>هذا ليس XML سليم البنية</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>لا مكان هنا لتصريح عن نوع المستند</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>لا مكان هنا للعنصر «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>لا مكان هنا لنص</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>السمة «%1» ناقصة</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>للسمة «%1» قيمة غير ممكنة</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>عناصر «%1» أكثر مما يجوز</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>يعيد «تراجع» آخر قائمة أمكنت قراءتها.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <translation>أعلى منها في القائمة لكن خارج المدى: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>يعرض «اتصال…» الشبكات الموجودة في المدى.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>لا يمكن استخدامها الآن لأنها خارج المدى.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <translation>يمكن استخدامها، لكن %1 أعلى منها في القائمة.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <translation>يمكن استخدامها، لكن ليس معروفًا هل توجد في المدى شبكة أعلى منها في القائمة.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;بحث في التتبّع…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>البحث في التتبّع</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>الموضع التالي</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>الموضع السابق</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>عدد المواضع: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>ال&amp;مظهر</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>مثل &amp;سطح المكتب</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;فاتح</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;داكن</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>شبكة جديدة</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>بقيت «%1» كما هي: توجد شبكة مُعدّة بهذا الاسم، ولا يجوز تغييرها.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>لم يتغيّر شيء: توجد عدة شبكات مُعدّة بالاسم «%1»، ولا يمكن معرفة المقصودة منها. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>بقيت «%1» كما هي: توجد شبكة مُعدّة بهذا الاسم، وفيها أكثر مما يمكن إدخاله هنا، مثل حساب. غيّرها حيث أُعدّت، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>بقيت «%1» كما هي: توجد شبكة مُعدّة بهذا الاسم، وهذه المصادقة أو هذا التشفير أضعف. اختر ما لا يقل عنه، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>بقيت «%1» كما هي: توجد شبكة مُعدّة بهذا الاسم، ويتطلب تغييرها مفتاحًا كاملًا. أدخل مفتاحًا، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>لم تُحفظ «%1»: الشبكة نفسها مُعدّة بالفعل باسم «%2»، وبشكل أفضل من هذا. أضِف «%2» إلى القائمة بدلًا منها.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>لم تُحفظ «%1»: يتكوّن اسم الشبكة من بايت واحد إلى 32 بايت. الحروف المشكّلة والكتابات الأخرى، ومنها العربية، يأخذ كل حرف منها من بايتين إلى أربعة.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>لم تُحفظ «%1»: هذه المصادقة وهذا التشفير وهذا المفتاح لا تتوافق معًا.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>لم تُحفظ «%1»: تتطلب هذه المصادقة حسابًا لا يمكن إدخاله هنا. أعِدّ الشبكة في إعدادات سطح المكتب، ثم أضِفها إلى القائمة.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>لم تُحفظ «%1»&#x200f;: &#x202a;NetworkManager&#x202c; لا يعمل.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>لا يُعرف هل حُفظت «%1»&#x200f;: &#x202a;NetworkManager&#x202c; لا يجيب.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>لم تُحفظ «%1»: ليس لديك إذن بذلك على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>لم تُحفظ «%1»&#x200f;: &#x202a;NetworkManager&#x202c; لا يقبلها، والسبب على الأرجح هو المفتاح.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>لم تُحفظ «%1»: أبلغ &#x202a;NetworkManager&#x202c; عن خطأ.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>لم تُحفظ «%1»: تتعذّر قراءة ملف الشبكات المُعدّة أو الكتابة فيه. في سجل التتبّع تفاصيل أكثر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>لم تُحفظ «%1»: ملف الشبكات المُعدّة تالف، وتُرك كما هو. السطر مذكور في سجل التتبّع.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>لم تُحفظ «%1»: برنامج آخر يغيّر الشبكات الآن. حاول مرة أخرى.</translation>
    </message>
</context>
</TS>
