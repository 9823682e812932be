<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Приоритет сетей</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Приоритет сетей</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>Если в зоне действия несколько из этих сетей, используется та, что выше в списке.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>&amp;Вверх</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>В&amp;низ</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;Добавить</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;Создать</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Добавление сетей</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Новая сеть</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Имя сети</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>Ключ</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Подтверждение ключа</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>Защита</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>Шифрование</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>Индекс WEP</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>Метод EAP</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>Приоритет сетей</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>Убрать выбранную сеть из вашего списка?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Введите имя сети.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Сеть с таким именем уже есть в вашем списке. Введите другое имя.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Это недопустимый ключ WEP. Ключ WEP состоит из 5 или 13 символов либо из 10, 26 или 32 шестнадцатеричных цифр (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Допускаются буквы, цифры и следующие символы:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Это недопустимый ключ WPA. Ключ WPA содержит от 8 до 63 символов либо 64 шестнадцатеричные цифры (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Допускаются буквы, цифры и следующие символы:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Ключи различаются. Введите в оба поля один и тот же ключ с одинаковыми прописными и строчными буквами.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Выберите тип защиты.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Русский</translation>
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
        <translation>Панель сетей</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Ваш список</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Сеть</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>&amp;Подключиться…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>От&amp;ключиться</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Настройки…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>О&amp;бновить</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Показать &amp;журнал</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Подключиться…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>Не удаётся записать файл журнала %1. Журнал отображается только здесь.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Подключение к сети</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>Сеть, которой нет в вашем списке, попадёт в его конец.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>Сеть, которой нет в вашем списке, попадёт в его начало.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>Сеть, которой нет в вашем списке, не попадёт в него.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>Нет сетей в зоне действия. Как только такая сеть появится, она будет показана здесь.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>Найти сеть</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>Ни у одной сети в зоне действия нет «%1» в имени.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>Без ключа</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Ключ</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Слабый ключ (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Учётная запись</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Сохранена</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>Место %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>В вашем списке</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>Другие сети в зоне действия</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Ключ сети %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Показать ключ</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>Сети %1 нужна учётная запись. Её можно настроить в настройках сети рабочего стола.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 больше не в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>Это длится дольше обычного.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>Сеть %1 подключена, но не сохранена: сохранить её не удалось.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>Клавиатура: Ctrl+↑ и Ctrl+↓ выбирают сеть, ↑ и ↓ перемещают её.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Приоритет сетей</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (учебные сети)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>Новые сети</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>В конце вашего списка</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>В начале вашего списка</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Вне вашего списка</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>Список управляет NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>Иначе каждая сеть получит обратно приоритет, который был у неё до этого списка.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>Соблюдать порядок и при закрытом окне</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>Это делает программа без окна. Она запускается сейчас и при каждом входе в систему.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>Показывать при этом значок</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>На панели рабочего стола: используемая сеть, первые из вашего списка и возможность подключиться.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>О&amp;ткрыть</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>Самостоятельно переключаться на сеть выше</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>Как только можно использовать сеть выше в вашем списке. Сеть, подключённая вручную, не сменяется, и во время VPN переключений нет.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>Мобильная сеть, только если нет другой</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>Экономит трафик. Мобильная сеть, стоящая в списке ниже всех сетей Wi-Fi, подключается через полминуты без другого соединения и отключается, когда другое работает минуту.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>Сообщать о переключении</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>Уведомлением рабочего стола, после каждого переключения.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>Переключено на %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>В вашем списке эта сеть выше, чем %1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Модули</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>загружен</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>недоступен</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Ваши данные: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Папка модулей: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Версия: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Показать эту страницу нельзя: модуль %1 загружен, но не предоставляет страницу. Подробности есть в журнале.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Мобильная сеть</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>Используется сейчас</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>В зоне действия</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Вне зоны действия</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>Неизвестно, в зоне ли действия</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Готова</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Используется сейчас: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>Используется сейчас: %1, нужен вход</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>Используется сейчас: %1, без интернета</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Сеть не используется</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Подключение неизвестно</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Ваш список пуст, поэтому выбирать не из чего.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Ваш список не удаётся прочитать полностью, поэтому неизвестно, какая сеть первая.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Модуль Wi-Fi недоступен, поэтому неизвестно, какие сети находятся в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>Модуль, который ведёт список, недоступен.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Подключение: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>Сеть %1 подключена, но трафик идёт не через неё.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager не запущен</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>Неизвестно, какая сеть используется. Ваш список можно менять; он вступит в силу, когда NetworkManager заработает.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager ещё не ответил, поэтому неизвестно, какая сеть используется.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>Модуль Wi-Fi не сообщает, какая сеть используется.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (учебная сеть)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>Это первая сеть в вашем списке, о которой известно, что она доступна.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>Эта сеть требует входа на веб-странице.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>Сеть отвечает, а интернет за ней — нет.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>Список предназначен для Wi-Fi и мобильных сетей; это подключение другого вида.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>Её нет в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>VPN %1 подключена.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>По вашему списку была бы выбрана сеть %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Без него по вашему списку была бы выбрана сеть %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>Ни об одной сети в вашем списке не известно, что она доступна.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Подключение готовится.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Проверяется ключ.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>У сети запрашивается адрес.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>Подключена</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Подключается</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Отключается</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>Скрытая: пробуется</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Здесь не сохранена</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Недоступна</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Ключ не принят</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Последняя попытка не удалась</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>Только вручную</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>Повторяется в списке</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM-карта заблокирована</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Нет адаптера</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Нет модема</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Выключена</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 выше в списке.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>Сеть скрывает своё имя, поэтому неизвестно, в зоне ли действия она. Её пробуют.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>Сеть с таким именем находится в зоне действия, но её защита другая.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>Она сохранена для другого адаптера, диапазона или станции, которых здесь нет.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>Для неё нет работающего адаптера или модема.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Её адаптер или модем выключен.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Её адаптер или модем выключен кнопкой этого компьютера.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>SIM-карта требует PIN-код.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>Она принадлежит другим пользователям этого компьютера.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>Ей нужна учётная запись, а она не сохранена.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>На этом компьютере не сохранена сеть с таким именем.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>Неизвестно, доступна ли она.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>Она уже стоит выше в списке, поэтому это место ни на что не влияет.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>Она не подключается сама.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager сохраняет работающее подключение, пока вы не переключитесь.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>При последней попытке не удалось подключиться.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>При последней попытке ключ не был принят.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>При последней попытке не хватало ключа.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>При последней попытке она не ответила.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>При последней попытке она не дала адреса.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>При последней попытке она не впустила этот компьютер.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>При последней попытке SIM-карта не работала.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>В последний раз её остановили вручную.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>При последней попытке адаптер или модем был недоступен.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>Ключ не был принят. Прописные и строчные буквы различаются.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>Сохранённый ключ не был принят. Его можно изменить в настройках сети рабочего стола.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>Нужен ключ, а он не сохранён.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>Она не ответила; возможно, она слишком далеко.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>Она впустила этот компьютер, но не дала ему адреса.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>Она не впустила этот компьютер.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>SIM-карта не работала.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>Попытка остановлена.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>Адаптер или модем был недоступен.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>Вам это не разрешено.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Переключиться на %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Сеть %1 не подключена.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>Сеть %1 не отключена.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>Файл с вашим списком повреждён. Показаны только сети, стоящие до повреждённого места.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Копия файла сохранена как %1. Программа не изменит ваш список, пока вы не решите, что делать.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Решить, что делать…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>Список открыт в другом окне этой программы. Закройте его, чтобы увидеть список здесь.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>Открыть панель сетей</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Ваш список повреждён</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>Файл с вашим списком не удаётся прочитать до конца. Прочитано сетей: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>Последний полный список — от %1. Сетей в нём: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Нет прежнего списка, который можно восстановить.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Что бы вы ни выбрали, повреждённый файл останется под именем %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Восстановить последний полный список</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Сохранить прочитанные сети</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Оставить файл как есть</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Файл с вашим списком существует, но открыть его не удаётся. Проверьте права доступа к нему и нажмите «Обновить».</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Модуль %1 загружен, но не предоставляет список.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Ваш список нельзя показать</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Ваш список пуст</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Откройте настройки и нажмите «Добавить», чтобы выбрать сети, сохранённые на этом компьютере, или «Создать», чтобы ввести сеть самостоятельно. Предпочтение отдаётся сети, которая стоит в списке выше остальных.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>Какие сети важнее?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>На этом компьютере сохранены сети. Возьмите их в том порядке, в котором они используются сейчас, а затем переместите предпочитаемые в начало.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>Подключитесь к сети, и она появится здесь.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Причина указана в сообщении выше.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Модуль %1 не загружен.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Модуль %1 не найден. Установите его или запустите программу с параметром --library-path и папкой, в которой находится plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Модуль %1 неполон: его файл обрывается раньше времени, поэтому он не используется. Установите модуль заново.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Модуль %1 собран для другой основной версии Qt, поэтому он не используется.
Найдено: Qt %2
Ожидалось: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>Модуль %1 не удаётся загрузить как библиотеку: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>Модуль %1 не сообщает, для чего он собран, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>Модуль %1 собран для другой программы, поэтому он не используется.
Найдено: %2
Ожидалось: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>Библиотека %1 не является модулем, поэтому она не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Модуль %1 не предоставил объект для работы, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 не является модулем для этой программы, поэтому не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Модуль %1 не удалось запустить, поэтому он не используется. Подробности есть в журнале.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Не удаётся прочитать языковой файл %1: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>В языковом файле %1 нет пригодных текстов, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Это сети этого компьютера. NetworkManager пробует их в порядке этого списка.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>NetworkManager решает сам. В настройках можно разрешить этому списку управлять им.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>NetworkManager следует вашему списку для сетей: %1 из %2.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>Почему не для всех?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>Что это значит</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>&amp;Чем управляет ваш список…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>Чем управляет ваш список</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>Ваш список решает, к какой сети этот компьютер подключается сам, когда в зоне действия их несколько. Работающее подключение сохраняется, пока вы не переключитесь. Кабель идёт первым, а сети не из вашего списка — последними. Если адаптеров несколько, каждый берёт первую сеть, которую может использовать.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>Каждое место вашего списка действует.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>Ваш список действует, пока открыто это окно. В настройках можно сделать так, чтобы порядок соблюдался и потом.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>Она не подключается сама, поэтому её место не действует.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>Её место может изменить только администратор. В сетевых настройках рабочего стола её можно сделать сетью только для вас; тогда её место будет действовать.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>Её каждый раз заново создаёт другая программа, поэтому её место не сохраняется.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager не принял её место.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>Для неё кем-то выбрана метрика маршрута, поэтому трафик может идти через другое подключение.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>Чужой список или программа с тех пор дали ей другое место. Ваш список снова будет действовать, как только вы его измените.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>После нескольких неудач NetworkManager ждёт пять минут, прежде чем попробовать снова.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>По&amp;дробности…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>Место в вашем списке:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>Нет в вашем списке</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>Профиль %1 из %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>Защита:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>Адаптер или модем:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>Только %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>Любой</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>Любой, сейчас %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>Последнее использование:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>Приоритет для NetworkManager:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>Лимитное подключение:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>Вероятно, да</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>Вероятно, нет</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>Кто может использовать:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>Все пользователи этого компьютера</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>Подключается сама</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>Сеть %1 по-прежнему подключается сама.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>За&amp;быть сеть…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>Снимает сеть с этого компьютера вместе с её ключом.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>Сейчас неизвестно, какие сети сохранены.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>Она здесь не сохранена, поэтому забыть нечего. Её можно убрать из списка.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>Забыть сеть</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>Забыть сеть %1?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>Вы к ней подключены; подключение прервётся.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>Она будет забыта на этом компьютере вместе с ключом и уйдёт из вашего списка.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>На этом компьютере будут забыты все профили с этим именем (%1) вместе с ключами, и она уйдёт из вашего списка.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>Её место можно вернуть, ключ – нет.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>Она будет забыта на этом компьютере вместе с ключом. В вашем списке её нет, и он не изменится.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>На этом компьютере будут забыты все профили с этим именем (%1) вместе с ключами. Этой сети нет в вашем списке, и он не изменится.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>Это нельзя отменить, и ключ вернуть нельзя.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>Сеть забывается.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>Сеть %1 забыта. Место в списке можно вернуть, ключ – нет.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>Сеть %1 забыта. Ключ вернуть нельзя.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>Сеть %1 не забыта и остаётся в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>Сеть %1 не забыта.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>Забыто профилей: %1 из %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>Ответа не было, поэтому неизвестно, забыта ли сеть %1. Она остаётся в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>Ответа не было, поэтому неизвестно, забыта ли сеть %1.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>Сеть %1 забыта, но остаётся в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>Сеть %1 по-прежнему не подключается сама.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Это учебные сети. Сети этого компьютера не изменяются.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>Прежние &amp;списки…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Импортировать список…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;Экспортировать список…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>Подкл&amp;ючиться</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>Переместить &amp;вверх</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>Переместить вни&amp;з</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>Переместить в на&amp;чало</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Переместить в &amp;конец</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>Переместить на &amp;место…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>Переместить на место</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>Новое место сети %1, от 1 (начало) до %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>Новое место первой из этих сетей (%1), от 1 (начало) до %2. Остальные идут за ней:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>Переместить</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>&amp;Убрать из списка</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>Доб&amp;авить в список</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>Не в вашем списке (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>Щёлкните или нажмите Enter, чтобы показать или скрыть эти сети.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · Сохранена</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>Сначала выберите сеть, которой нет в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>Сначала выберите сеть в списке.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>Она уже стоит там.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>Другая программа изменила ваш список. В нём больше нет: %1.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1: место %2 из %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>Найти с&amp;еть</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>Ни у одной сети нет «%1» в имени.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>Сбросить поиск</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>Чтобы перемещать сети вверх и вниз, сбросьте поиск.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>Взять сохранённые сети…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>Импортировать список…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Отменить: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>Повторить: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>Нет прежнего списка, к которому можно вернуться.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Ничего не отменялось, поэтому повторять нечего.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>Файл с вашим списком повреждён. «Отменить» восстановит последний полный список.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>Модуль, который ведёт список, недоступен, поэтому список нельзя изменить.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Последнее изменение: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Ничего не изменилось</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Убраны все сети</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>Файл был повреждён</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>Добавлена сеть %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>Добавлено сетей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>Убрана сеть %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>Убрано сетей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>Сеть %1 заменена сетью %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>Сеть %1 перемещена вверх</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>Сеть %1 перемещена вниз</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>Сеть %1 перемещена в начало</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>Сеть %1 перемещена в конец</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>Перемещено сетей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Восстановлен список от %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Ваш список останется прежним.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Все сети будут убраны.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет добавлена.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Будет добавлено сетей: %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет убрана.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Будет убрано сетей: %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>Сеть %1 будет заменена сетью %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет перемещена вверх.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет перемещена вниз.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет перемещена в начало.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Сеть %1 будет перемещена в конец.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Будет перемещено сетей: %1.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Прежние списки</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Выберите список, который нужно восстановить. Нынешний список тоже сохранится.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>Когда</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>Что изменилось</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>Статус</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>Самый старый сохранённый список</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>Список на тот момент</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Результат восстановления: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>Это список в нынешнем виде.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>Сохранить файл и начать новый</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Этот список больше не хранится. Выберите другой.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Импорт списка</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Заменяет ваш список списком из файла. Сначала можно проверить изменения.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Результат импорта: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Ваш список уже в этом порядке. Импортировать нечего.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>Что произойдёт</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Останется на месте</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Будет добавлена</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Будет перемещена вверх</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Будет перемещена вниз</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Останется; переместятся другие</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Будет убрана из списка</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; здесь не сохранена</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Не сохранены на этом компьютере: %1. Эти сети не используются, пока не настроены здесь.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Импортировать</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>Сохранённые сети</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>Составляет ваш список из сетей, сохранённых на этом компьютере. Сначала его можно проверить.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>В порядке использования сейчас: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>Взять</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>Файл %1 не читается или слишком велик для списка. Ваш список не изменён.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>Файл %1 не является списком сетей, который можно импортировать. %2. Ваш список не изменён.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Экспорт списка</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Сохраняет ваш список в файл, без ключей.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>Файл %1 не удаётся записать. Ничего не изменено.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Списки сетей</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>Список не удаётся записать в %1. Проверьте, не заполнен ли диск и не защищён ли файл от записи.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Не удаётся сделать резервную копию повреждённого файла %1, поэтому он не изменён. Проверьте, не заполнен ли диск и не защищена ли папка от записи.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>Файл с прежними списками, %1, повреждён и не изменён. %2. Чтобы снова пользоваться командой «Отменить», выберите «Прежние списки…» и начните новый файл. Повреждённый файл сохранится.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>Файл с прежними списками, %1, не читается и не изменён. Чтобы снова пользоваться командой «Отменить», откройте доступ к файлу или выберите «Прежние списки…» и начните новый файл. Старый файл сохранится.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Прежние списки не удаётся сохранять в %1. Изменения можно отменить только до выхода из программы.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Со списком работает другая программа. Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>Файл %1 не удаётся переименовать, поэтому новый не начат.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>это некорректный XML</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>здесь недопустимо объявление типа документа</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>здесь недопустим элемент «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>здесь недопустим текст</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>нет атрибута «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>у атрибута «%1» недопустимое значение</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>слишком много элементов «%1»</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>«Отменить» восстановит последний полный список.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Ваш список повреждён</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Прежние списки недоступны</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Один из модулей недоступен</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Один из языков недоступен</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Показать следующее сообщение</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>«Подключиться…» покажет другие сети в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Не используется, потому что вне зоны действия.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Найти в журнале…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Поиск в журнале</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Следующее совпадение</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Предыдущее совпадение</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Совпадений: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Нет совпадений</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Оформление</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>&amp;Как в системе</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;Светлое</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;Тёмное</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>Новая сеть</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже сохранена, и менять её нельзя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Ничего не изменено: под именем «%1» сохранено несколько сетей, и неизвестно, какая имеется в виду. Выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже сохранена, и у неё есть данные, которые здесь ввести нельзя, например учётная запись. Измените её там, где она настроена, или выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже сохранена, а эта защита или это шифрование слабее. Выберите не слабее прежнего или другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже сохранена, и для изменения нужен полный ключ. Введите ключ или выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>Сеть «%1» не сохранена: эта же сеть уже сохранена как «%2», и её настройки лучше. Добавьте в список «%2».</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>Сеть «%1» не сохранена: имя сети занимает от 1 до 32 байт. Кириллица, буквы с диакритикой и знаки других письменностей занимают от двух до четырёх байт каждый.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>Сеть «%1» не сохранена: эта защита, это шифрование и этот ключ не сочетаются.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>Сеть «%1» не сохранена: для этой защиты нужна учётная запись, а здесь её ввести нельзя. Настройте сеть в настройках рабочего стола, затем добавьте её в свой список.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>Сеть «%1» не сохранена: NetworkManager не запущен.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>Неизвестно, сохранена ли сеть «%1»: NetworkManager не отвечает.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>Сеть «%1» не сохранена: у вас нет прав сохранять сети на этом компьютере.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>Сеть «%1» не сохранена: NetworkManager её не принимает, скорее всего из-за ключа.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>Сеть «%1» не сохранена: NetworkManager сообщает об ошибке.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>Сеть «%1» не сохранена: файл сохранённых сетей не удаётся прочитать или записать. Подробности есть в журнале.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>Сеть «%1» не сохранена: файл сохранённых сетей повреждён и не изменён. Строка указана в журнале.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>Сеть «%1» не сохранена: другая программа меняет сети. Попробуйте ещё раз чуть позже.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>Ваш список</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>Порядок вашего списка не может действовать полностью из-за сети «%1»: её нельзя изменить, а её приоритет не подходит к её месту в списке. Остальные сети следуют списку.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>Порядок вашего списка не может действовать полностью из-за «%1» и других сетей: их нельзя изменить, а их приоритет не подходит к их месту в списке. Названия есть в журнале.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>Сети «%1» нет в списке, но она пробуется раньше сетей из списка: более высокого приоритета для них нет. Добавьте «%1» в список, чтобы у неё было место.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>Сеть «%1» не на своём месте в списке: список другого пользователя или другая программа снова изменили её приоритет. Как только вы измените свой список, он снова начнёт действовать.</translation>
    </message>
</context>
</TS>
