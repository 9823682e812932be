<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Prioridad de redes</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Prioridad de redes</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>Cuando varias de estas redes están al alcance, se usa la que está más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;Nueva</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Añadir redes</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Nueva red</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Nombre de la red</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Confirmar clave</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>Índice WEP</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>Método EAP</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>Prioridad de redes</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>¿Quitar la red seleccionada de su lista?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Escriba el nombre de la red.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Ya hay una red con ese nombre en su lista. Escriba otro nombre.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Esta clave WEP no es válida. Una clave WEP tiene 5 o 13 caracteres, o bien 10, 26 o 32 dígitos hexadecimales (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Puede usar letras, números y estos símbolos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Esta clave WPA no es válida. Una clave WPA tiene entre 8 y 63 caracteres, o bien 64 dígitos hexadecimales (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Puede usar letras, números y estos símbolos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Las dos claves son distintas. Escriba la misma clave en ambos campos, con las mismas mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Elija un tipo de seguridad.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Español</translation>
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
        <translation>Panel de redes</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Su lista</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Red</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>Co&amp;nectar…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Configuración…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>Ac&amp;tualizar</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>&amp;Mostrar registro</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Conectar…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>No se puede escribir en el archivo de registro %1. El registro solo se muestra aquí.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Conectar a una red</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>Una red que no está en su lista pasa al final de ella.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>Una red que no está en su lista pasa al principio de ella.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>Una red que no está en su lista no se añade a ella.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>No hay ninguna red al alcance. Cuando haya una, aparecerá aquí.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>Buscar una red</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>Ninguna red al alcance tiene «%1» en su nombre.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>Sin clave</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Clave débil (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>Puesto %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>En su lista</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>Otras redes al alcance</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Clave de %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Mostrar la clave</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 necesita una cuenta. Configúrela en la configuración de red de su escritorio.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 ya no está al alcance.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>Tarda más de lo habitual.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>Hay conexión con %1, pero no se pudo guardar: la red no está guardada.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>Teclado: Ctrl+↑ y Ctrl+↓ seleccionan una red; ↑ y ↓ la mueven.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Prioridad de redes</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (redes de prueba)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>General</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>Redes nuevas</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>Al final de su lista</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>Al principio de su lista</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Fuera de su lista</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>Dejar que esta lista dirija NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>Si no, cada red recupera la prioridad que tenía antes de esta lista.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>Mantener el orden con esta ventana cerrada</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>Lo hace un programa sin ventana. Se inicia ahora y cada vez que inicia sesión.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>Mostrar un icono mientras tanto</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>En el panel del escritorio: la red en uso, las primeras de su lista y una forma de conectarse.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>Cambiar por sí solo a una red más alta</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>En cuanto se pueda usar una red más alta de su lista. No se deja una red conectada a mano, ni se cambia durante una VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>Banda ancha móvil solo si no hay otra conexión</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>Ahorra datos. La banda ancha móvil que está por debajo de todas las redes Wi-Fi de su lista se conecta tras medio minuto sin otra conexión y se desconecta tras un minuto con otra.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>Avisarme cuando cambie</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>Con una notificación del escritorio, después de cada cambio.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>Se ha cambiado a %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>Está más arriba en su lista que %1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>cargado</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>no disponible</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>Acerca de este programa</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Sus datos: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Carpeta de complementos: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>No se puede mostrar esta página: el complemento %1 se cargó, pero no ofrece la página. Consulte el registro para ver los detalles.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Banda ancha móvil</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>En uso ahora</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>Al alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Fuera de alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>No se sabe si está al alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Preparada</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>En uso ahora: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>En uso ahora: %1, hay que iniciar sesión</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>En uso ahora: %1, sin Internet</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Ninguna red en uso</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Conexión desconocida</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Su lista está vacía, así que no hay nada que elegir.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Su lista no se puede leer entera, así que no se sabe qué red va primero.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>El complemento de Wi-Fi no está disponible, así que no se sabe qué redes están al alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>El complemento que gestiona la lista no está disponible.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Conectando: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 está conectada, pero el tráfico no pasa por ella.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager no se está ejecutando</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>No se sabe qué red está en uso. Puede cambiar su lista; tendrá efecto cuando NetworkManager se ejecute.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager aún no ha respondido, así que no se sabe qué red está en uso.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>El complemento de Wi-Fi no indica qué red está en uso.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (prueba)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>Es la primera red de su lista que se sabe que puede usarse.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>Esta red pide que inicie sesión en una página web.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>La red responde, pero Internet detrás de ella no.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>La lista es para Wi-Fi y banda ancha móvil; esta conexión es de otro tipo.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>No está en su lista.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>La VPN %1 está conectada.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Su lista elegiría %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Sin ella, su lista elegiría %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>No se sabe de ninguna red de su lista que pueda usarse.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Se está preparando la conexión.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Se está comprobando la clave.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Se está pidiendo una dirección a la red.</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Desconectando</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>Oculta: se intenta</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>No guardada aquí</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>No se puede usar</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Clave rechazada</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Último intento fallido</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>Solo a mano</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>Repetida en la lista</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM bloqueada</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Sin adaptador</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Sin módem</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Apagada</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 está más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>La red oculta su nombre, así que no se sabe si está al alcance. Se intenta.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>Una red de ese nombre está al alcance, pero con otra seguridad.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>Está guardada para un adaptador, una banda o una estación que no están aquí.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>No hay ningún adaptador ni módem que funcione para ella.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Su adaptador o módem está apagado.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Un botón de este equipo mantiene apagado su adaptador o módem.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>La tarjeta SIM pide su PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>Es de otros usuarios de este equipo.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>Necesita una cuenta y no hay ninguna guardada.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>En este equipo no hay ninguna red guardada con ese nombre.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>No se sabe si se puede usar.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>Ya está más arriba en la lista, así que este puesto no tiene efecto.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>No se conecta por sí sola.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager mantiene una conexión que funciona hasta que decida cambiar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>En el último intento no se pudo conectar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>En el último intento se rechazó la clave.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>En el último intento faltaba una clave.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>En el último intento no respondió.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>En el último intento no dio ninguna dirección.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>En el último intento no dejó entrar a este equipo.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>En el último intento no funcionó la tarjeta SIM.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>La última vez se terminó a mano.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>En el último intento el adaptador o el módem no estaba disponible.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>Se rechazó la clave. Las mayúsculas y minúsculas cuentan.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>Se rechazó la clave guardada. Puede cambiarla en la configuración de red de su escritorio.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>Hace falta una clave y no hay ninguna guardada.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>No respondió; quizá esté demasiado lejos.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>Dejó entrar a este equipo, pero no le dio ninguna dirección.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>No dejó entrar a este equipo.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>La tarjeta SIM no funcionó.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>Se detuvo el intento.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>El adaptador o el módem no estaba disponible.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>Usted no tiene permiso para ello.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Cambiar a %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 no se ha conectado.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 no se ha desconectado.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>El archivo de su lista está dañado. Solo se muestran las redes situadas antes de la parte dañada.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Se conserva una copia del archivo como %1. Este programa no modifica su lista hasta que usted decida qué hacer.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Decidir qué hacer…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>La lista está abierta en otra ventana de este programa. Ciérrela para ver la lista aquí.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>Abrir el panel de redes</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Su lista está dañada</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>El archivo de su lista no se puede leer hasta el final. Redes que se han podido leer: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>La última lista completa es del %1. Redes que contiene: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>No hay ninguna lista anterior que se pueda restaurar.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Elija lo que elija, el archivo dañado se conserva como %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Restaurar la última lista completa</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Conservar las redes que se han podido leer</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Dejar el archivo como está</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>El archivo de su lista existe, pero no se puede abrir. Revise los permisos del archivo y elija «Actualizar».</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>El complemento %1 se cargó, pero no ofrece la lista.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>No se puede mostrar su lista</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Su lista está vacía</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Abra la configuración y elija «Añadir» para las redes guardadas en este equipo, o «Nueva» para introducir una. Se prefiere la red que está más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>¿Qué redes van primero?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>En este equipo hay redes guardadas. Adóptelas en el orden en que se usan ahora y luego lleve las que prefiera al principio.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>Al conectarse a una red, esta aparece aquí.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>El mensaje de arriba explica por qué.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>El complemento %1 no está cargado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>No se encuentra el complemento %1. Instálelo, o inicie el programa con --library-path y la carpeta que contiene plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>El complemento %1 está incompleto: su archivo termina antes de tiempo, así que no se usa. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>El complemento %1 se compiló para otra versión principal de Qt, así que no se usa.
Encontrado: Qt %2
Esperado: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>El complemento %1 no se puede cargar como biblioteca: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>El complemento %1 no indica para qué se compiló, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>El complemento %1 se compiló para otro programa, así que no se usa.
Encontrado: %2
Esperado: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>La biblioteca %1 no es un complemento, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>El complemento %1 no proporcionó ningún objeto con el que trabajar, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 no es un complemento para este programa, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>El complemento %1 no pudo iniciarse, así que no se usa. Consulte el registro para ver los detalles.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>No se puede leer el archivo de idioma %1: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>El archivo de idioma %1 no contiene textos utilizables, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Estas son las redes de este equipo. NetworkManager las prueba en el orden de esta lista.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>NetworkManager decide por sí mismo. En la configuración puede dejar que decida esta lista.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>NetworkManager sigue su lista en %1 de %2 redes.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>¿Por qué no en todas?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>Qué significa</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>&amp;Qué decide su lista…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>Qué decide su lista</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>Su lista decide a qué red se conecta este equipo por sí solo cuando hay varias al alcance. Una conexión que funciona se mantiene hasta que decida cambiar. Un cable va primero, y las redes que no están en su lista van al final. Con varios adaptadores, cada uno toma la primera red que puede usar.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>Cada puesto de su lista surte efecto.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>Su lista surte efecto mientras esta ventana está abierta. En la configuración se puede mantener el orden después.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>No se conecta por sí sola, así que su puesto no surte efecto.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>Solo un administrador puede cambiar su puesto. En la configuración de red del escritorio se puede hacer que sea una red solo para usted; entonces su puesto surte efecto.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>Otro programa la crea cada vez de nuevo, así que su puesto no se mantiene.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager no aceptó su puesto.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>Alguien eligió una métrica de ruta para ella, así que otra conexión puede llevar el tráfico antes.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>La lista o un programa de otra persona le ha dado desde entonces otro puesto. Su lista vuelve a decidir en cuanto la cambie.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>Tras varios fallos, NetworkManager espera cinco minutos antes de volver a intentarlo.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>De&amp;talles…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>Puesto en su lista:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>No está en su lista</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>Perfil %1 de %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>Seguridad:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>Adaptador o módem:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>Solo %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>Cualquiera; ahora, %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>Último uso:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>Prioridad para NetworkManager:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>Conexión de uso medido:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>Probablemente sí</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>Probablemente no</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>Quién puede usarla:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>Todos los usuarios de este equipo</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>Se conecta por sí sola</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 sigue conectándose por sí sola.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>&amp;Olvidar red…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>Saca la red de este equipo, con su clave.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>Ahora no se sabe qué redes hay guardadas.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>No está guardada aquí, así que no hay nada que olvidar. Se puede quitar de la lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>Olvidar red</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>¿Olvidar %1?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>Está conectado a ella; la conexión terminará.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>Este equipo la olvidará con su clave, y saldrá de su lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>Este equipo olvidará todos los perfiles con ese nombre (%1) y sus claves, y saldrá de su lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>Su puesto se puede recuperar; su clave, no.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>Este equipo la olvidará con su clave. No está en su lista, así que la lista queda como está.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>Este equipo olvidará todos los perfiles con ese nombre (%1) y sus claves. La red no está en su lista, así que la lista queda como está.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>Esto no se puede deshacer, y su clave no se puede recuperar.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>Se está olvidando.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>%1 se ha olvidado. Su puesto en la lista se puede recuperar; su clave, no.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>%1 se ha olvidado. Su clave no se puede recuperar.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 no se ha olvidado. Sigue en su lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 no se ha olvidado.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>Perfiles olvidados: %1 de %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>No hubo respuesta, así que no se sabe si %1 se ha olvidado. Sigue en su lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>No hubo respuesta, así que no se sabe si %1 se ha olvidado.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 se ha olvidado, pero sigue en su lista.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 sigue sin conectarse por sí sola.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Estas son redes de prueba. Las redes de este equipo no se modifican.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>&amp;Listas anteriores…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Importar lista…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>E&amp;xportar lista…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>Co&amp;nectar</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>Mover al &amp;principio</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Mover al &amp;final</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>&amp;Mover a un puesto…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>Mover a un puesto</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>Nuevo puesto de %1, de 1 (el principio) a %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>Nuevo puesto de la primera de estas redes (%1), de 1 (el principio) a %2. Las demás la siguen:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>&amp;Añadir a la lista</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>Fuera de su lista (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>Haga clic o pulse Intro para mostrar u ocultar estas redes.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · Guardada</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>Elija antes una red que no esté en su lista.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>Elija antes una red de la lista.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>Ya está ahí.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>Otro programa ha cambiado su lista. %1 ya no está en ella.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1: puesto %2 de %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>B&amp;uscar una red</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>Ninguna red tiene «%1» en su nombre.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>Terminar la búsqueda</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>Termine la búsqueda para subir o bajar redes.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>Adoptar las redes guardadas…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>Importar lista…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>No hay ninguna lista anterior a la que volver.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>No se ha deshecho nada, así que no hay nada que rehacer.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>El archivo de su lista está dañado. «Deshacer» restaura la última lista completa.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>El complemento que gestiona la lista no está disponible, así que la lista no se puede cambiar.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Último cambio: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Ningún cambio</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Todas las redes quitadas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>El archivo resultó dañado</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 añadida</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 redes añadidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 quitada</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 redes quitadas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>%1 reemplazada por %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 movida hacia arriba</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 movida hacia abajo</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 movida al principio</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 movida al final</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 redes movidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Lista del %1 restaurada</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Su lista queda como está.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Se quitarán todas las redes.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Se añadirá %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Se añadirán %1 redes.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>Se quitará %1.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Se quitarán %1 redes.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 se reemplazará por %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 se moverá hacia arriba.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 se moverá hacia abajo.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 se moverá al principio.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 se moverá al final.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>Se moverán %1 redes.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Listas anteriores</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Elija la lista que quiere restaurar. La lista actual también se conserva.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>Qué cambió</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>Deshecho</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>La lista más antigua conservada</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>La lista en ese momento</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Resultado de la restauración: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>Esta es la lista tal como está ahora.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>Conservar el archivo y empezar otro</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Esa lista ya no se conserva. Elija otra.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Importar una lista</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Sustituye su lista por la de un archivo. Antes puede comprobar los cambios.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Resultado de la importación: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Su lista ya tiene este orden. No hay nada que importar.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>Qué ocurre</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Se queda donde está</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Se añadirá</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Se moverá hacia arriba</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Se moverá hacia abajo</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Se queda en su sitio; otras se moverán</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Se quitará de la lista</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; no guardada aquí</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>No guardadas en este equipo: %1. Estas redes no se usarán hasta que se configuren aquí.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>Adoptar las redes guardadas</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>Convierte en su lista las redes guardadas en este equipo. Antes puede comprobarla.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>En el orden en que se usan ahora: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>Adoptar</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>El archivo %1 no se puede leer o es demasiado grande para una lista. Su lista no ha cambiado.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>El archivo %1 no es una lista de redes que se pueda importar. %2. Su lista no ha cambiado.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Exportar la lista</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Guarda su lista en un archivo, sin claves.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>lista-de-redes.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>El archivo %1 no se puede escribir. No ha cambiado nada.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Listas de redes</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>La lista no se puede escribir en %1. Compruebe si el disco está lleno o el archivo está protegido contra escritura.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>No se puede hacer una copia de seguridad del archivo dañado %1, así que no se ha modificado. Compruebe si el disco está lleno o la carpeta está protegida contra escritura.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>El archivo de las listas anteriores, %1, está dañado y no se ha modificado. %2. Para volver a usar «Deshacer», elija «Listas anteriores…» y empiece un archivo nuevo. El dañado se conserva.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>El archivo de las listas anteriores, %1, no se puede leer y no se ha modificado. Para volver a usar «Deshacer», haga legible el archivo, o elija «Listas anteriores…» y empiece uno nuevo. El antiguo se conserva.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Las listas anteriores no se pueden conservar en %1. Solo puede deshacer los cambios hasta que salga del programa.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Otro programa está trabajando con la lista. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>No se puede cambiar el nombre del archivo %1, así que no se ha empezado otro.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>no es XML bien formado</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>aquí no se permite una declaración de tipo de documento</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>aquí no se permite el elemento «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>aquí no se permite texto</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>falta el atributo «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>el atributo «%1» tiene un valor no válido</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>hay demasiados elementos «%1»</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>«Deshacer» restaura la última lista completa.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Su lista está dañada</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>No se pueden usar las listas anteriores</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>No se puede usar un complemento</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>No se puede usar un idioma</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Mostrar el mensaje siguiente</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>«Conectar…» muestra las otras redes al alcance.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>No está en uso porque está fuera de alcance.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Buscar en el registro…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Buscar en el registro</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Coincidencia siguiente</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Coincidencia anterior</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Coincidencias: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Como el &amp;sistema</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;Oscuro</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>Red nueva</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>«%1» no se ha modificado: ya hay una red guardada con ese nombre y no se puede modificar.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>No se ha modificado nada: hay varias redes guardadas con el nombre «%1» y no se sabe a cuál se refiere. Elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>«%1» no se ha modificado: ya hay una red guardada con ese nombre, con datos que no se pueden introducir aquí, por ejemplo una cuenta. Modifíquela donde se configuró o elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>«%1» no se ha modificado: ya hay una red guardada con ese nombre, y esta seguridad o este cifrado serían más débiles. Elija una opción que sea al menos igual de segura u otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>«%1» no se ha modificado: ya hay una red guardada con ese nombre y para modificarla hace falta una clave completa. Introduzca la clave o elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>«%1» no se ha guardado: la misma red ya está guardada como «%2», con una configuración mejor. Añada «%2» a su lista en su lugar.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>«%1» no se ha guardado: el nombre de una red tiene de 1 a 32 bytes. Las letras con tilde y las de otras escrituras ocupan de dos a cuatro bytes cada una.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>«%1» no se ha guardado: esta seguridad, este cifrado y esta clave no son compatibles.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>«%1» no se ha guardado: esta seguridad requiere una cuenta, que no se puede introducir aquí. La red se puede configurar en la configuración de su escritorio; después, añádala a su lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>«%1» no se ha guardado: NetworkManager no se está ejecutando.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>No se sabe si «%1» se ha guardado: NetworkManager no responde.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>«%1» no se ha guardado: no tiene permiso para guardar redes en este equipo.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>«%1» no se ha guardado: NetworkManager no acepta la red, muy probablemente por la clave.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>«%1» no se ha guardado: NetworkManager comunica un error.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>«%1» no se ha guardado: el archivo de las redes guardadas no se puede leer o escribir. Consulte el registro para ver los detalles.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>«%1» no se ha guardado: el archivo de las redes guardadas está dañado y no se ha modificado. El registro indica la línea.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>«%1» no se ha guardado: otro programa está cambiando las redes. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>Su lista</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>El orden de su lista no puede aplicarse del todo a causa de «%1»: esta red no se puede modificar, y su prioridad no corresponde a su puesto en la lista. Las demás redes siguen la lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>El orden de su lista no puede aplicarse del todo a causa de «%1» y otras redes: no se pueden modificar, y su prioridad no corresponde a su puesto en la lista. Consulte los nombres en el registro.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>«%1» no está en su lista, pero se prueba antes que redes que sí están: no hay una prioridad más alta para estas. Añada «%1» a su lista para darle un puesto.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>«%1» no tiene su puesto de la lista: la lista de otra persona u otro programa ha vuelto a cambiar su prioridad. En cuanto cambie su lista, esta vuelve a dirigir.</translation>
    </message>
</context>
</TS>
