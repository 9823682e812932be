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
        <translation>Subir</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Añadir redes</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Red nueva</translation>
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
        <translation>N.º de clave</translation>
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
        <translation>¿Quitar la red seleccionada de la lista de prioridad?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Escriba el nombre de la red.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Ya hay una red con ese nombre en la lista de prioridad.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>La clave no es válida para WEP. Debe tener 5 o 13 caracteres, o bien 10, 26 o 32 dígitos hexadecimales (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Se permiten letras, números y estos signos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>La clave no es válida para WPA. Debe tener entre 8 y 63 caracteres, o bien 64 dígitos hexadecimales (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Se permiten letras, números y estos signos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>Las dos claves no coinciden. Escriba la misma clave en ambos campos; se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Elija un método de seguridad.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>Panel de redes</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>&amp;Archivo</translation>
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
        <source>IDS_ACTION_SETTINGS</source>
        <translation>&amp;Configuración…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>&amp;Mostrar seguimiento</translation>
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
        <source>IDS_BUTTON_REFRESH</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>Mostrar seguimiento</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Seguimiento</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>No se puede escribir en el archivo de registro %1; el seguimiento solo se muestra aquí.</translation>
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
        <translation>La red a la que se conecte pasará al principio de su lista.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>Señal</translation>
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
        <translation>No hay ninguna red al alcance. Cuando haya alguna, vuelva a abrir esta ventana.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>El complemento de Wi-Fi no está disponible, así que no hay ninguna red a la que conectarse.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>El complemento que guarda la lista no está disponible, así que no se puede poner ninguna red al principio.</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Configuración</translation>
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
        <translation>Wi-Fi (redes en un archivo)</translation>
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
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>no hace falta</translation>
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
        <translation>Complementos en: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>No se puede mostrar esta página: el complemento %1 se cargó, pero no ofrece su página. Es posible que el seguimiento dé más detalles.</translation>
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
        <translation>Lista como alternativa</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>En uso ahora: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>Es la primera red de su lista que está al alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>Ninguna red Wi-Fi situada antes en su lista está al alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Ninguna red en uso</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Su lista está vacía, así que no hay nada que elegir.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>Ninguna de las redes de su lista está al alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>El complemento de Wi-Fi no está disponible, así que no se sabe qué redes están al alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>El complemento que guarda la lista no está disponible.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>El archivo de su lista está dañado. Se muestra lo que hay antes del daño; al añadir una red en la configuración, el archivo se escribe de nuevo.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>El archivo de su lista existe, pero no se puede abrir. Revise sus permisos y actualice la vista.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>El complemento %1 se cargó, pero no ofrece la lista.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>No hay ninguna lista que mostrar</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Su lista de prioridad está vacía</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Abra la configuración y elija «Añadir» para las redes que este equipo recuerda, o «Nueva» para introducir una. Se prefiere la red que está más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>No se puede leer nada de ella. Consulte el mensaje de arriba.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>El complemento %1 no está cargado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>Falta el complemento %1. Instálelo o inicie el programa con --library-path y el directorio que contiene la carpeta plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>El complemento %1 está incompleto: su archivo termina antes de tiempo, así que no se usa. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>El complemento %1 se compiló para otra generación de Qt, así que no se usa.
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
        <translation>La biblioteca %1 no tiene el punto de entrada de un complemento, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>El complemento %1 no proporcionó ningún objeto con el que trabajar, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>Lo que proporcionó %1 no es un complemento de este programa, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>El complemento %1 indica que no puede funcionar, así que no se usa. Es posible que el seguimiento dé más detalles.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>No se puede leer el archivo de idioma %1: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>El archivo de idioma %1 está dañado a partir del byte %2, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>El archivo de idioma %1 no contiene textos utilizables, así que no se usa.</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>¿Está en marcha NetworkManager?</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Redes de este equipo, de NetworkManager, que sigue el orden de esta lista.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Redes propias de este programa; las del equipo no se tocan.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>No hay ningún NetworkManager disponible. Estas redes son propias de este programa; las del equipo no se tocan.</translation>
    </message>
</context>
</TS>
