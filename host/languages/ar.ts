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
        <translation>عندما تكون عدة شبكات منها ضمن النطاق، تُستخدم الشبكة الأعلى في القائمة.</translation>
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
        <translation>الأمن</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>فهرس WEP</translation>
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
        <translation>هل تريد إزالة الشبكة المحددة من قائمتك؟</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>أدخل اسم الشبكة.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>توجد شبكة بهذا الاسم في قائمتك بالفعل. أدخل اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>هذا ليس مفتاح WEP صالحًا. يتكوّن مفتاح WEP من ٥ أحرف أو ١٣ حرفًا، أو من ١٠ أو ٢٦ أو ٣٢ رقمًا ست عشريًا (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

يمكنك استخدام الحروف والأرقام والرموز التالية:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>هذا ليس مفتاح WPA صالحًا. يتكوّن مفتاح WPA من ٨ أحرف إلى ٦٣ حرفًا، أو من ٦٤ رقمًا ست عشريًا (&#x202a;0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F&#x202c;).

يمكنك استخدام الحروف والأرقام والرموز التالية:
&#x200e;- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :&#x200e;</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>المفتاحان مختلفان. أدخل المفتاح نفسه في الحقلين، مع مراعاة حالة الأحرف الكبيرة والصغيرة.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>اختر نوع الأمن.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>العربية</translation>
    </message>
    <message>
        <source>IDS_SENTENCES</source>
        <extracomment>Two sentences, one behind the other. Chinese and Japanese have no blank there</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>IDS_NAMES</source>
        <extracomment>Names of networks side by side. %1: the first ones, %2: one more</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>IDS_LABEL</source>
        <extracomment>%1: a label, such as Wi-Fi; %2: what is told about it</extracomment>
        <translation>&#x200f;%1: %2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>لوحة الشبكات</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>قائمتك</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>ال&amp;شبكة</translation>
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
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;قطع الاتصال</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>الإعدا&amp;دات…</translation>
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
        <translation>إظ&amp;هار السجل</translation>
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
        <source>IDS_TRACE_TITLE</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>تعذّرت الكتابة في ملف السجل &#x202a;%1&#x202c;. يظهر السجل هنا فقط.</translation>
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
        <translation>تُضاف الشبكة التي ليست في قائمتك إلى آخر القائمة.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>تُضاف الشبكة التي ليست في قائمتك إلى أول القائمة.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>لا تُضاف الشبكة التي ليست في قائمتك إلى القائمة.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>الشبكة</translation>
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
        <translation>لا توجد شبكة ضمن النطاق. عندما توجد واحدة ستظهر هنا.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>البحث عن شبكة</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>لا توجد شبكة ضمن النطاق في اسمها «%1».</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>بلا مفتاح</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>مفتاح</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>مفتاح ضعيف (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>حساب</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>محفوظة</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>الموضع %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>في قائمتك</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>شبكات أخرى ضمن النطاق</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>مفتاح %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>إظهار المفتاح</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>&#x200f;%1 تحتاج إلى حساب. يمكن إعداد الحساب في إعدادات الشبكة، فافتح الإعدادات في سطح المكتب.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>&#x200f;%1 لم تعد ضمن النطاق.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>يستغرق ذلك وقتًا أطول من المعتاد.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>&#x200f;الاتصال بالشبكة %1 قائم، لكنها غير محفوظة: تعذّر الحفظ.</translation>
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
        <translation>لوحة المفاتيح: &#x202a;Ctrl+↑&#x202c; و&#x202a;Ctrl+↓&#x202c; لاختيار شبكة، و↑ و↓ لنقلها.</translation>
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
        <translation>واي فاي (شبكات للتجربة)</translation>
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
        <source>IDS_RULES_TITLE</source>
        <translation>القواعد</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>الشبكات الجديدة</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>في آخر قائمتك</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>في أول قائمتك</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>خارج قائمتك</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>اجعل هذه القائمة توجّه NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>وإلا تستعيد كل شبكة الأولوية التي كانت لها قبل هذه القائمة.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>إبقاء الترتيب ساريًا عند إغلاق هذه النافذة</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>يقوم بذلك برنامج بلا نافذة. يبدأ الآن، وفي كل مرة تسجل فيها الدخول.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>عرض أيقونة أثناء ذلك</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>في لوحة سطح المكتب: الشبكة المستخدمة، وأوائل قائمتك، وطريقة للاتصال.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>التبديل تلقائيًا إلى شبكة أعلى</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>ما إن يمكن استخدام شبكة أعلى في قائمتك. لا تُترك شبكة وصلتها بنفسك، ولا يحدث تبديل أثناء استخدام VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>شبكة هاتف محمول عند غياب غيرها فقط</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>يوفّر البيانات. تُوصَل شبكة هاتف محمول واقعة تحت كل شبكات Wi-Fi في قائمتك بعد نصف دقيقة دون اتصال آخر، وتُقطع بعد دقيقة من وجود غيره.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>إعلامي عند التبديل</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>بإشعار من سطح المكتب بعد كل تبديل.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>تم التبديل إلى %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>هي أعلى في قائمتك من %1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>الملحقات</translation>
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
        <source>IDS_GENERAL_PLACES</source>
        <translation>حول هذا البرنامج</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>بياناتك: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>مجلد الملحقات: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>الإصدار: &#x202a;%1&#x202c;</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>يتعذّر عرض هذه الصفحة: حُمّلت الملحقة &#x202a;%1&#x202c; لكنها لا تقدّم الصفحة. راجع السجل لمعرفة التفاصيل.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>واي فاي</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>شبكة هاتف محمول</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>قيد الاستخدام الآن</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>ضمن النطاق</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>خارج النطاق</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>غير معروف إن كانت ضمن النطاق</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>قيد الاستخدام الآن: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>قيد الاستخدام الآن: %1، يلزم تسجيل الدخول</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>قيد الاستخدام الآن: %1، بلا إنترنت</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>لا شبكة قيد الاستخدام</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>الاتصال غير معروف</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>قائمتك فارغة، فلا يوجد ما يمكن الاختيار منه.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>تتعذّر قراءة قائمتك كاملة، لذلك لا يُعرف أي شبكة هي الأولى.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>ملحقة الواي فاي غير متوفرة، لذلك لا يُعرف أي الشبكات ضمن النطاق.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>الملحقة التي تدير القائمة غير متوفرة.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>جارٍ الاتصال: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>الشبكة %1 متصلة، لكن حركة البيانات لا تمر عبرها.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>لا يعمل &#x202a;NetworkManager&#x202c;</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>لا يُعرف أي شبكة هي قيد الاستخدام. يمكن تغيير قائمتك، وستسري حين يعمل &#x202a;NetworkManager&#x202c;.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>لم يُجب &#x202a;NetworkManager&#x202c; بعد، لذلك لا يُعرف أي شبكة هي قيد الاستخدام.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>لا تُبلغ ملحقة الواي فاي عن الشبكة قيد الاستخدام.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>&#x200f;%1 (للتجربة)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>هي أول شبكة في قائمتك يُعرف أنه يمكن استخدامها.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>تطلب هذه الشبكة تسجيل الدخول في صفحة ويب.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>الشبكة تستجيب، لكن الإنترنت خلفها لا يستجيب.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>القائمة مخصصة للواي فاي ولشبكة هاتف محمول، وهذا الاتصال من نوع آخر.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>ليست في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>اتصال VPN قائم: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>كانت قائمتك ستختار %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>من دونه كانت قائمتك ستختار %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>لا تُعرف في قائمتك أي شبكة يمكن استخدامها.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>يجري تحضير الاتصال.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>يجري التحقق من المفتاح.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>يُطلب من الشبكة عنوان.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>متصلة</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>يجري قطع الاتصال</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>مخفية: تُجرَّب</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>غير محفوظة هنا</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>لا يمكن استخدامها</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>رُفض المفتاح</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>فشلت آخر محاولة</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>يدويًا فقط</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>مكررة في القائمة</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>بطاقة SIM مقفلة</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>لا يوجد محوّل</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>مطفأة</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>الشبكة %1 أعلى منها في القائمة.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>تُخفي الشبكة اسمها، لذلك لا يُعرف إن كانت ضمن النطاق. تُجرَّب.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>توجد ضمن النطاق شبكة بهذا الاسم، لكن نوع الأمن فيها مختلف.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>هي محفوظة لمحوّل أو نطاق ترددي أو محطة غير ما يوجد هنا.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>لا يوجد لها محوّل أو مودم يعمل.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>المحوّل أو المودم الخاص بها مطفأ.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>زر في هذا الحاسوب يُبقي المحوّل أو المودم الخاص بها مطفأ.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>تطلب بطاقة SIM رمز PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>هي لمستخدمين آخرين لهذا الحاسوب.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>تحتاج إلى حساب، ولا يوجد حساب محفوظ.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>لا توجد في هذا الحاسوب شبكة محفوظة بهذا الاسم.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>لا يُعرف هل يمكن استخدامها.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>هي أعلى في القائمة أصلًا، فلا أثر لهذا الموضع.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>لا يبدأ الاتصال بها تلقائيًا.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>يُبقي &#x202a;NetworkManager&#x202c; على الاتصال الذي يعمل إلى أن تطلب التبديل.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>في آخر محاولة تعذّر الاتصال.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>في آخر محاولة رُفض المفتاح.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>في آخر محاولة كان المفتاح ناقصًا.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>في آخر محاولة لم تُجب.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>في آخر محاولة لم تُعطِ عنوانًا.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>في آخر محاولة لم تسمح لهذا الحاسوب بالدخول.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>في آخر محاولة لم تعمل بطاقة SIM.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>في آخر مرة أُنهيت يدويًا.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>في آخر محاولة لم يكن المحوّل أو المودم متوفرًا.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>رُفض المفتاح. الأحرف الكبيرة والصغيرة تختلف.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>رُفض المفتاح المحفوظ. يمكن تغييره في إعدادات الشبكة، فافتح الإعدادات في سطح المكتب.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>يلزم مفتاح، ولا يوجد مفتاح محفوظ.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>لم تُجب؛ ربما تكون بعيدة جدًا.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>سمحت لهذا الحاسوب بالدخول، لكنها لم تُعطه عنوانًا.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>لم تسمح لهذا الحاسوب بالدخول.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>لم تعمل بطاقة SIM.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>أُوقفت المحاولة.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>لم يكن المحوّل أو المودم متوفرًا.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>لا يُسمح لك بذلك.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>التبديل إلى %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>تعذّر الاتصال بالشبكة %1.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>تعذّر قطع الاتصال بالشبكة %1.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>الملف الذي يحوي قائمتك تالف. لا تظهر إلا الشبكات التي تسبق موضع التلف.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>حُفظت نسخة من الملف باسم %1. لن يغيّر هذا البرنامج قائمتك حتى تقرّر ما يجب فعله.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>تقرير ما يجب فعله…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>القائمة مفتوحة في نافذة أخرى من هذا البرنامج. أغلقها لعرض القائمة هنا.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>فتح لوحة الشبكات</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>قائمتك تالفة</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>تتعذّر قراءة الملف الذي يحوي قائمتك حتى نهايته. عدد الشبكات التي أمكنت قراءتها: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>آخر قائمة كاملة تعود إلى %1. عدد الشبكات فيها: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>لا توجد قائمة سابقة يمكن استعادتها.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>أيًا كان اختيارك، يُحتفظ بالملف التالف باسم %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>استعادة آخر قائمة كاملة</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>الاحتفاظ بالشبكات التي أمكنت قراءتها</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>ترك الملف كما هو</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>الملف الذي يحوي قائمتك موجود لكن يتعذّر فتحه. تحقّق من أذوناته ثم اختر «تحديث».</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>حُمّلت الملحقة &#x202a;%1&#x202c; لكنها لا تقدّم القائمة.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>يتعذّر عرض قائمتك</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>قائمتك فارغة</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>افتح الإعدادات ثم اختر «إضافة» للشبكات المحفوظة على هذا الحاسوب، أو «جديدة» لإدخال شبكة بنفسك. تُفضَّل الشبكة الأعلى في القائمة.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>أي الشبكات تأتي أولًا؟</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>توجد شبكات محفوظة على هذا الحاسوب. خذها بالترتيب الذي تُستخدم به الآن، ثم انقل ما تفضله إلى أول القائمة.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>اتصل بشبكة وستظهر هنا.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>الرسالة أعلاه توضّح السبب.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>الملحقة &#x202a;%1&#x202c; غير محمّلة.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>لم يُعثر على الملحقة &#x202a;%1&#x202c;. ثبّتها، أو شغّل البرنامج بالخيار &#x202a;--library-path&#x202c; مع المجلد الذي يحوي &#x202a;plugins/&#x202c;.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>الملحقة &#x202a;%1&#x202c; ناقصة: ينتهي ملفها قبل أوانه، لذلك لا تُستخدم. أعد تثبيتها.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>بُنيت الملحقة &#x202a;%1&#x202c; لإصدار رئيسي آخر من Qt، لذلك لا تُستخدم.
الموجود: &#x202a;Qt %2&#x202c;
المتوقّع: &#x202a;Qt %3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>يتعذّر تحميل الملحقة &#x202a;%1&#x202c; كمكتبة: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>لا تذكر الملحقة &#x202a;%1&#x202c; ما بُنيت لأجله، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>بُنيت الملحقة &#x202a;%1&#x202c; لبرنامج آخر، لذلك لا تُستخدم.
الموجود: &#x202a;%2&#x202c;
المتوقّع: &#x202a;%3&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>المكتبة &#x202a;%1&#x202c; ليست ملحقة، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>لم تقدّم الملحقة &#x202a;%1&#x202c; كائنًا صالحًا للاستخدام، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>ليست &#x202a;%1&#x202c; ملحقة لهذا البرنامج، لذلك لا تُستخدم.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>تعذّر بدء الملحقة &#x202a;%1&#x202c;، لذلك لا تُستخدم. راجع السجل لمعرفة التفاصيل.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>تتعذّر قراءة ملف اللغة &#x202a;%1&#x202c;: &#x202a;%2&#x202c;</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>لا يحوي ملف اللغة &#x202a;%1&#x202c; نصوصًا صالحة، لذلك لا يُستخدم.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <translation>هذه شبكات هذا الحاسوب. يجرّبها &#x202a;NetworkManager&#x202c; بترتيب هذه القائمة.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>يقرر NetworkManager بنفسه. يمكنك في الإعدادات أن تجعل هذه القائمة هي التي تقرر.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>يتبع ‪NetworkManager‬ قائمتك في %1 من %2 من الشبكات.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>لماذا ليس كلها؟</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>ماذا يعني هذا</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>ما ال&amp;ذي تقرره قائمتك…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>ما الذي تقرره قائمتك</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>تقرر قائمتك بأي شبكة يتصل هذا الحاسوب تلقائيًا عندما تكون عدة شبكات ضمن النطاق. ويبقى الاتصال الذي يعمل إلى أن تطلب التبديل. يأتي الكبل أولًا، وتأتي الشبكات التي ليست في قائمتك أخيرًا. وعند وجود عدة محولات يأخذ كل منها أول شبكة يمكنه استخدامها.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>كل موضع في قائمتك سارٍ.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>تسري قائمتك ما دامت هذه النافذة مفتوحة. ويمكن في الإعدادات إبقاء الترتيب ساريًا بعد ذلك.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>تفعيل</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>لا يتم الاتصال بها تلقائيًا، لذلك ليس لموضعها تأثير.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>لا يغيّر موضعها إلا مسؤول النظام. يمكن في الإعدادات الخاصة بشبكات سطح المكتب جعلها شبكة لك وحدك، فيسري موضعها.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>ينشئها برنامج آخر من جديد كل مرة، لذلك لا يبقى موضعها.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>لم يقبل ‪NetworkManager‬ موضعها.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>اختار أحدهم لها مقياس مسار، لذلك قد يحمل اتصال آخر حركة البيانات قبلها.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>أعطتها قائمة شخص آخر أو برنامجه موضعًا آخر بعد ذلك. تعود قائمتك إلى التقرير بشأنها ما إن تغيّرها.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>بعد عدة محاولات فاشلة ينتظر ‪NetworkManager‬ خمس دقائق قبل أن يحاول من جديد.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>ا&amp;لتفاصيل…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>الموضع في قائمتك:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>&#x200f;%1 من %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>ليست في قائمتك</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>ملف التعريف %1 من %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>الأمن:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>المحوّل أو المودم:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>فقط %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>أيّ واحد</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>أيّ واحد، والآن %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>آخر استخدام:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>الأولوية لدى &#x202a;NetworkManager&#x202c;:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>اتصال محدود الاستخدام:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>نعم على الأرجح</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>لا على الأرجح</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>من يمكنه استخدامها:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>كل مستخدمي هذا الحاسوب</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>يتم الاتصال بها تلقائيًا</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>لا يزال الاتصال بالشبكة %1 يتم تلقائيًا.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>نسيان ال&amp;شبكة…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>تخرج الشبكة مع مفتاحها من هذا الحاسوب.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>لا يُعرف الآن أي شبكة محفوظة.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>هي غير محفوظة هنا، لذلك لا حاجة إلى نسيانها. يمكن إزالتها من القائمة.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>نسيان الشبكة</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>هل تريد نسيان %1؟</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>نسيان</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>الاتصال بها قائم الآن وسينتهي.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>سيتم نسيانها مع مفتاحها في هذا الحاسوب، وستخرج من قائمتك.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>سيتم نسيان كل ملفات التعريف بهذا الاسم (%1) مع مفاتيحها في هذا الحاسوب، وستخرج من قائمتك.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>يمكن استرجاع موضعها، أما مفتاحها فلا.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>سيتم نسيانها مع مفتاحها في هذا الحاسوب. هي ليست في قائمتك، لذلك تبقى القائمة كما هي.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>سيتم نسيان كل ملفات التعريف بهذا الاسم (%1) مع مفاتيحها في هذا الحاسوب. الشبكة ليست في قائمتك، لذلك تبقى القائمة كما هي.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>لا يمكن التراجع عن ذلك، ولا يمكن استرجاع مفتاحها.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>جارٍ نسيانها.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>تم نسيان %1. يمكن استرجاع موضعها في القائمة، أما مفتاحها فلا.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>تم نسيان %1. لا يمكن استرجاع مفتاحها.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>لم يتم نسيان %1، وهي باقية في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>لم يتم نسيان %1.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>ملفات التعريف التي تم نسيانها: %1 من %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>لم ترد إجابة، لذلك لا يُعرف هل تم نسيان %1. هي باقية في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>لم ترد إجابة، لذلك لا يُعرف هل تم نسيان %1.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>تم نسيان %1، لكنها باقية في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>لا يتم الاتصال بالشبكة %1 تلقائيًا حتى الآن.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>هذه شبكات للتجربة. لا تتغيّر شبكات هذا الحاسوب.</translation>
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
        <translation>القوائم ال&amp;سابقة…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>است&amp;يراد قائمة…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;تصدير القائمة…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>ات&amp;صال</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>&amp;نقل إلى أعلى</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>نقل إلى أس&amp;فل</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>نقل إلى أ&amp;ول القائمة</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>نقل إلى آ&amp;خر القائمة</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>نقل إلى &amp;موضع…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>نقل إلى موضع</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>الموضع الجديد لـ %1، من ١ (أول القائمة) إلى %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>الموضع الجديد لأولى هذه الشبكات (%1)، من ١ (أول القائمة) إلى %2. تليها الأخرى:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>نقل</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>إ&amp;زالة من القائمة</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>إضافة إلى ال&amp;قائمة</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>ليست في قائمتك (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>انقر أو اضغط Enter لإظهار هذه الشبكات أو إخفائها.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>&#x200f;%1 · محفوظة</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>اختر أولًا شبكة ليست في قائمتك.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>اختر أولًا شبكة من القائمة.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>هي هناك أصلًا.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>غيّر برنامج آخر قائمتك. لم تعد %1 فيها.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>&#x200f;%1: الموضع %2 من %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>ال&amp;بحث عن شبكة</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>لا توجد شبكة في اسمها «%1».</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>امسح البحث لنقل الشبكات إلى أعلى أو أسفل.</translation>
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
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>أخذ الشبكات المحفوظة…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>استيراد قائمة…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>تراجع عن: %1</translation>
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
        <translation>لم يتم التراجع عن أي تغيير، لذلك لا يوجد ما يمكن إعادته.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>الملف الذي يحوي قائمتك تالف. يتيح «تراجع» استعادة آخر قائمة كاملة.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>الملحقة التي تدير القائمة غير متوفرة، لذلك لا يمكن تغيير القائمة.</translation>
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
        <translation>إزالة كل الشبكات</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>تَلِف الملف</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>إضافة %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>إضافة %1 من الشبكات</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>إزالة %1 من الشبكات</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>حلّت %2 محلّ %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>نقل %1 إلى أعلى</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>نقل %1 إلى أسفل</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>نقل %1 إلى أول القائمة</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>نقل %1 إلى آخر القائمة</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>نقل %1 من الشبكات</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>استعادة قائمة %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(بلا اسم)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>تبقى قائمتك كما هي.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>ستُزال كل الشبكات.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُضاف %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>ستُضاف %1 من الشبكات.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُزال %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>ستُزال %1 من الشبكات.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>ستحلّ %2 محلّ %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُنقل %1 إلى أعلى.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُنقل %1 إلى أسفل.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُنقل %1 إلى أول القائمة.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>ستُنقل %1 إلى آخر القائمة.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>ستُنقل %1 من الشبكات.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>القوائم السابقة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>اختر القائمة التي تريد استعادتها. ستبقى القائمة الحالية محفوظة أيضًا.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>التغيير</translation>
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
        <translation>تم التراجع</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>أقدم قائمة محفوظة</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>القائمة في ذلك الوقت</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>نتيجة الاستعادة: %1</translation>
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
        <translation>الاحتفاظ بالملف وبدء ملف جديد</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>لم تعد تلك القائمة محفوظة. اختر غيرها.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>استيراد قائمة</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>استبدال قائمتك بقائمة من ملف، مع عرض التغييرات قبل تنفيذها.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>نتيجة الاستيراد: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>قائمتك بهذا الترتيب بالفعل. لا يوجد ما يُستورد.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>تبقى في مكانها</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>ستُضاف</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>ستُنقل إلى أعلى</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>ستُنقل إلى أسفل</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>تبقى في مكانها وستُنقل أخرى</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>ستُزال من القائمة</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1؛ غير محفوظة هنا</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>غير محفوظة على هذا الحاسوب: %1. لن تُستخدم هذه الشبكات إلا بعد إعدادها هنا.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>أخذ الشبكات المحفوظة</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>تكوين قائمتك من الشبكات المحفوظة على هذا الحاسوب، مع عرضها قبل ذلك.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>بالترتيب الذي تُستخدم به الآن: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>أخذ</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>تتعذّر قراءة الملف %1، أو أن حجمه أكبر بكثير من حجم قائمة. لم تتغيّر قائمتك.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>الملف %1 ليس قائمة شبكات يمكن استيرادها. %2. لم تتغيّر قائمتك.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>تصدير القائمة</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>حفظ قائمتك في ملف من دون أي مفاتيح.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>تتعذّر الكتابة في الملف %1. لم يتغيّر شيء.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>قوائم الشبكات</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>تتعذّر كتابة القائمة في %1. تحقّق مما إذا كان القرص ممتلئًا أو الملف محميًا من الكتابة.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>يتعذّر إنشاء نسخة احتياطية من الملف التالف %1، لذلك لم يُغيَّر. تحقّق مما إذا كان القرص ممتلئًا أو المجلد محميًا من الكتابة.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>الملف الذي يحوي القوائم السابقة، %1، تالف ولم يُغيَّر. %2. لاستخدام «تراجع» مجددًا، اختر «القوائم السابقة…» وابدأ ملفًا جديدًا. سيُحتفظ بالملف التالف.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>تتعذّر قراءة الملف الذي يحوي القوائم السابقة، %1، ولم يُغيَّر. لاستخدام «تراجع» مجددًا، اجعل الملف قابلًا للقراءة، أو اختر «القوائم السابقة…» وابدأ ملفًا جديدًا. سيُحتفظ بالملف القديم.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>يتعذّر حفظ القوائم السابقة في %1. لا يمكن التراجع عن التغييرات إلا قبل إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>يستخدم برنامج آخر القائمة. حاول مرة أخرى بعد قليل.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>تتعذّر إعادة تسمية الملف %1، لذلك لم يُبدأ ملف جديد.</translation>
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
        <translation>تصريح نوع المستند غير مسموح به هنا</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>العنصر «%1» غير مسموح به هنا</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>النص غير مسموح به هنا</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>السمة «%1» مفقودة</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>قيمة السمة «%1» غير صالحة</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>عدد العناصر «%1» أكبر من المسموح</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>يتيح «تراجع» استعادة آخر قائمة كاملة.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>قائمتك تالفة</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>لا يمكن استخدام القوائم السابقة</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>لا يمكن استخدام إحدى الملحقات</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>لا يمكن استخدام إحدى اللغات</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>&#x200f;%1 من %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>إظهار الرسالة التالية</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>يعرض «اتصال…» الشبكات الأخرى ضمن النطاق.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>غير مستخدمة لأنها خارج النطاق.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;البحث في السجل…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>البحث في السجل</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>النتيجة التالية</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>النتيجة السابقة</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>عدد النتائج: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>لا توجد نتائج</translation>
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
        <translation>لم تُغيَّر «%1»: توجد شبكة محفوظة بهذا الاسم، ولا يمكن تغييرها.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>لم يتغيّر شيء: توجد عدة شبكات محفوظة بالاسم «%1»، ولا يُعرف أيّها المقصودة. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>لم تُغيَّر «%1»: توجد شبكة محفوظة بهذا الاسم، وفيها بيانات لا يمكن إدخالها هنا، مثل حساب. غيّرها حيث جرى إعدادها، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>لم تُغيَّر «%1»: توجد شبكة محفوظة بهذا الاسم، وهذا الأمن أو هذا التشفير أضعف. اختر ما لا يقل عنه قوة، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>لم تُغيَّر «%1»: توجد شبكة محفوظة بهذا الاسم، ويتطلب تغييرها مفتاحًا كاملًا. أدخل المفتاح، أو اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>الشبكة «%1» غير محفوظة: الشبكة نفسها محفوظة بالفعل باسم «%2»، والإعدادات هناك أفضل. أضِف «%2» إلى قائمتك بدلًا منها.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>الشبكة «%1» غير محفوظة: يتكوّن اسم الشبكة من بايت واحد إلى ٣٢ بايت. وكل حرف من الحروف المشكّلة ومن الكتابات الأخرى، ومنها العربية، يأخذ من بايتين إلى أربعة.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>الشبكة «%1» غير محفوظة: هذا الأمن وهذا التشفير وهذا المفتاح لا تتوافق معًا.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>الشبكة «%1» غير محفوظة: يتطلب هذا الأمن حسابًا لا يمكن إدخاله هنا. يمكن إعداد الشبكة في الإعدادات الخاصة بسطح المكتب. أضِفها بعد ذلك إلى قائمتك.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>الشبكة «%1» غير محفوظة&#x200f;: &#x202a;NetworkManager&#x202c; لا يعمل.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>لا يُعرف هل الشبكة «%1» محفوظة&#x200f;: &#x202a;NetworkManager&#x202c; لا يجيب.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>الشبكة «%1» غير محفوظة: ليس لديك إذن بحفظ الشبكات على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>الشبكة «%1» غير محفوظة&#x200f;: &#x202a;NetworkManager&#x202c; لا يقبلها، والسبب على الأرجح هو المفتاح.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>الشبكة «%1» غير محفوظة: أبلغ &#x202a;NetworkManager&#x202c; عن خطأ.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>الشبكة «%1» غير محفوظة: تتعذّر قراءة ملف الشبكات المحفوظة أو الكتابة فيه. راجع السجل لمعرفة التفاصيل.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>الشبكة «%1» غير محفوظة: ملف الشبكات المحفوظة تالف ولم يُغيَّر. راجع السجل لمعرفة السطر.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>الشبكة «%1» غير محفوظة: برنامج آخر يغيّر الشبكات الآن. حاول مرة أخرى بعد قليل.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>قائمتك</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>لا يمكن تطبيق ترتيب قائمتك بالكامل بسبب «%1»: لا يمكن تغيير هذه الشبكة، وأولويتها لا تناسب موضعها في القائمة. الشبكات الأخرى مرتبة حسب القائمة.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>لا يمكن تطبيق ترتيب قائمتك بالكامل بسبب «%1» وشبكات أخرى: لا يمكن تغييرها، وأولويتها لا تناسب موضعها في القائمة. تجد أسماءها في السجل.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>الشبكة «%1» ليست في قائمتك، لكنها تُجرَّب قبل شبكات موجودة فيها: لا توجد أولوية أعلى لهذه الشبكات. أضِف «%1» إلى قائمتك ليكون لها موضع.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>الشبكة «%1» ليست في موضعها حسب قائمتك: غيّرت قائمة مستخدم آخر أو برنامج آخر أولويتها مرة أخرى. ما إن تغيّر قائمتك حتى تسري من جديد.</translation>
    </message>
</context>
</TS>
