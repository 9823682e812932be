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
        <translation>Если в зоне действия несколько этих сетей, используется та, что выше в списке.</translation>
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
        <translation>&amp;Удалить</translation>
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
        <translation>Номер ключа</translation>
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
        <translation>Удалить выбранную сеть из списка приоритетов?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Введите имя сети.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Сеть с таким именем уже есть в списке приоритетов.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Ключ не подходит для WEP. Он должен состоять из 5 или 13 символов либо из 10, 26 или 32 шестнадцатеричных цифр (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Допускаются буквы, цифры и следующие знаки:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Ключ не подходит для WPA. Он должен содержать от 8 до 63 символов либо 64 шестнадцатеричные цифры (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Допускаются буквы, цифры и следующие знаки:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Ключи не совпадают. Введите один и тот же ключ в оба поля с учётом регистра букв.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Выберите способ защиты.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Панель сетей</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;Файл</translation>
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
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Настройки…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Показать &amp;трассировку</translation>
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
        <source>IDS_BUTTON_REFRESH</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>Показать трассировку</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Трассировка</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>Не удаётся записать файл журнала %1; трассировка отображается только здесь.</translation>
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
        <translation>Сеть, к которой вы подключаетесь, становится первой в вашем списке.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>Сигнал</translation>
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
        <translation>В зоне действия нет ни одной сети. Когда сеть появится, откройте это окно снова.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>Модуль Wi-Fi недоступен, поэтому подключаться не к чему.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>Модуль, который хранит список, недоступен, поэтому поставить сеть на первое место нельзя.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>Ваш список не читается полностью, поэтому ни одна сеть не ставится на первое место.</translation>
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
        <translation>С клавиатуры: Ctrl+↑ и Ctrl+↓ выбирают запись, ↑ и ↓ перемещают её.</translation>
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
        <translation>Wi-Fi (сети в файле)</translation>
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
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>не нужен</translation>
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
        <translation>Расположение модулей: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Версия: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Показать эту страницу нельзя: модуль %1 загружен, но не предоставляет свою страницу. Подробности, возможно, есть в трассировке.</translation>
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
        <translation>Доступность неизвестна</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Готова как запасная</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Используется сейчас: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>Это первая сеть вашего списка, которая находится в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>Ни одна из сетей Wi-Fi, стоящих в списке выше, не находится в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Сеть не используется</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Ваш список пуст, поэтому выбирать не из чего.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>Ни одна из сетей вашего списка не находится в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Модуль Wi-Fi недоступен, поэтому неизвестно, какие сети находятся в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>Модуль, который хранит список, недоступен.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>Файл с вашим списком повреждён. Показано только то, что стоит до повреждённого места.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Файл скопирован в %1. Программа изменит его только после того, как вы решите, что делать.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Решить, что делать…</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Ваш список повреждён</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>Файл с вашим списком не читается до конца. Прочитано сетей: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>Последний целый список — от %1. Сетей в нём: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Нет более раннего списка, который можно вернуть.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Что бы вы ни выбрали, повреждённый файл сохранён как %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Вернуть последний целый список</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Продолжить с тем, что прочитано</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Оставить как есть</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>Файл с вашим списком существует, но открыть его не удаётся. Проверьте права доступа к нему и обновите окно.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>Модуль %1 загружен, но не предоставляет список.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Нет списка для показа</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Ваш список приоритетов пуст</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Откройте настройки и нажмите «Добавить», чтобы выбрать сети, которые помнит этот компьютер, или «Создать», чтобы ввести сеть самостоятельно. Предпочтение отдаётся сети, которая стоит в списке выше.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>Прочитать его не удалось. См. сообщение выше.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>Модуль %1 не загружен.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Модуль %1 отсутствует. Установите его или запустите программу с параметром --library-path и каталогом, в котором находится папка plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>Модуль %1 неполон: его файл обрывается раньше времени, поэтому он не используется. Установите модуль заново.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>Модуль %1 собран для другого поколения Qt, поэтому он не используется.
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
        <translation>В библиотеке %1 нет точки входа модуля, поэтому она не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>Модуль %1 не предоставил объект для работы, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>То, что предоставил %1, не является модулем этой программы, поэтому не используется.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>Модуль %1 сообщает, что не может работать, поэтому он не используется. Подробности, возможно, есть в трассировке.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>Не удаётся прочитать языковой файл %1: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>Языковой файл %1 повреждён начиная с байта %2, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>В языковом файле %1 нет пригодных текстов, поэтому он не используется.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>Запущен ли NetworkManager?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Сети этого компьютера из NetworkManager, который следует порядку этого списка.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Собственные сети программы; сети компьютера не изменяются.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>NetworkManager недоступен. Это собственные сети программы; сети компьютера не изменяются.</translation>
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
        <translation>&amp;Восстановить…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Импорт порядка…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>&amp;Экспорт порядка…</translation>
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
        <source>IDS_BUTTON_RESTORE</source>
        <translation>Восстановить…</translation>
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
        <translation>Нет более ранней версии списка, к которой можно вернуться.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Ничего не отменялось, поэтому повторять нечего.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>Файл с вашим списком повреждён. «Отменить» вернёт последний список, который удалось прочитать.</translation>
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
        <translation>Удалены все записи</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>Файл был повреждён</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>Добавлено записей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>Удалено: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>Удалено записей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>Перемещено вверх: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>Перемещено вниз: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>Перемещено в начало: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>Перемещено в конец: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>Перемещено записей: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Возврат к списку от %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Восстановление прежнего списка</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Выберите, каким снова должен стать список. Нынешний список тоже останется здесь.</translation>
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
        <translation>Самый старый из сохранённых</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>Список тогда</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Что сделает восстановление: %1</translation>
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
        <translation>Отложить его и начать заново</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Этот список больше не хранится. Выберите другой.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Импорт порядка</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Берёт список из файла. Сначала вы увидите, что изменится.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Что сделает импорт: %1</translation>
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
        <translation>Остаётся</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Добавится</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Поднимется</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Опустится</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Другие переместятся вокруг</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Исчезнет из списка</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; здесь неизвестна</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Неизвестны на этом компьютере: %1. Такая запись используется, только когда сеть здесь настроена.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Импортировать</translation>
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
        <translation>Экспорт порядка</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Записывает порядок вашего списка в файл, без ключей.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-order.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>Файл %1 не удаётся записать. То, что там было, не изменено.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Порядок сетей</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>Список не удаётся записать в %1. Проверьте, не заполнен ли диск и не защищён ли файл.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Повреждённый файл %1 не удаётся скопировать на всякий случай, поэтому он не тронут. Проверьте, не заполнен ли диск и не защищён ли каталог.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>Файл с прежними списками, %1, повреждён и не тронут. %2. Пока он не отложен через «Восстановить…», отменить ничего нельзя.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>Файл с прежними списками, %1, не читается и не тронут. Пока он не станет доступен или не будет отложен через «Восстановить…», отменить ничего нельзя.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Прежние списки нельзя сохранять в %1. Изменения можно будет отменить только до завершения программы.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Со списком работает другая программа. Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>Файл %1 не удаётся переименовать, поэтому он не тронут.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>это не правильно построенный XML</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>здесь не место объявлению типа документа</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>здесь не место элементу «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>здесь не место тексту</translation>
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
        <translation>«Отменить» вернёт последний список, который удалось прочитать.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <translation>Выше в списке, но вне зоны действия: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>«Подключиться…» покажет сети в зоне действия.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Сейчас недоступна: вне зоны действия.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <translation>Доступна, но %1 выше в списке.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <translation>Доступна, но неизвестно, есть ли в зоне действия сеть выше в списке.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Найти в трассировке…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Поиск в трассировке</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Следующее место</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Предыдущее место</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Найдено: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Оформление</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>&amp;Как на рабочем столе</translation>
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
        <translation>Сеть «%1» не изменена: сеть с таким именем уже настроена, и менять её нельзя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Ничего не изменено: под именем «%1» настроено несколько сетей, и неизвестно, какая имеется в виду. Выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже настроена, и у неё есть то, чего здесь не ввести, например учётная запись. Измените её там, где она настроена, или выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже настроена, а эта защита или это шифрование слабее. Выберите не слабее прежнего или другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>Сеть «%1» не изменена: сеть с таким именем уже настроена, и для изменения нужен полный ключ. Введите его или выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>Сеть «%1» не сохранена: эта же сеть уже настроена как «%2», и лучше, чем так. Добавьте в список «%2».</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>Сеть «%1» не сохранена: имя сети занимает от 1 до 32 байт. Буквы с диакритикой и другие письменности занимают от двух до четырёх байт на знак.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>Сеть «%1» не сохранена: эта защита, это шифрование и этот ключ не сочетаются.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>Сеть «%1» не сохранена: для этой защиты нужна учётная запись, а здесь её ввести нельзя. Настройте сеть в параметрах рабочего стола, затем добавьте её в список.</translation>
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
        <translation>Сеть «%1» не сохранена: на этом компьютере у вас нет на это прав.</translation>
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
        <translation>Сеть «%1» не сохранена: файл настроенных сетей не удаётся прочитать или записать. Подробнее — в трассировке.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>Сеть «%1» не сохранена: файл настроенных сетей повреждён и оставлен как есть. Строка указана в трассировке.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>Сеть «%1» не сохранена: другая программа меняет сети. Попробуйте ещё раз.</translation>
    </message>
</context>
</TS>
