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
        <source>IDS_CONNECT_DAMAGED</source>
        <translation>Su lista no se puede leer por completo, así que no se pone ninguna red al principio.</translation>
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
        <translation>Con el teclado: Ctrl+↑ y Ctrl+↓ eligen una entrada; ↑ y ↓ la mueven.</translation>
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
        <translation>El archivo de su lista está dañado. Solo se muestra lo que hay antes del daño.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>El archivo se ha copiado en %1. Este programa no lo modifica hasta que usted decida qué hacer.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Decidir qué hacer…</translation>
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
        <translation>No hay ninguna lista anterior que recuperar.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Elija lo que elija, el archivo dañado se conserva como %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Recuperar la última lista completa</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Continuar con lo que se ha podido leer</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Dejarlo como está</translation>
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
        <translation>Re&amp;staurar…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>&amp;Importar orden…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>E&amp;xportar orden…</translation>
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
        <source>IDS_BUTTON_RESTORE</source>
        <translation>Restaurar…</translation>
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
        <translation>El archivo de su lista está dañado. «Deshacer» recupera la última lista que se pudo leer.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>El complemento que guarda la lista no está disponible, así que la lista no se puede cambiar.</translation>
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
        <translation>Se eliminaron todas las entradas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>El archivo se dañó</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>Añadida: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 entradas añadidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>Eliminada: %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 entradas eliminadas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1: movida hacia arriba</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1: movida hacia abajo</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1: movida al principio</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1: movida al final</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 entradas movidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Vuelta a la lista del %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Restaurar una lista anterior</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Elija cómo debe volver a ser su lista. La lista actual también se conserva aquí.</translation>
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
        <translation>La lista más antigua guardada</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>La lista entonces</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Lo que hará la restauración: %1</translation>
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
        <translation>Apartarlo y empezar de nuevo</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Esa lista ya no se guarda. Elija otra.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Importar un orden</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Toma una lista de un archivo. Antes verá lo que cambiaría.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Lo que hará la importación: %1</translation>
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
        <translation>Se queda</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Se añade</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Sube</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Otras se mueven a su alrededor</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Se quita de la lista</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; no se conoce aquí</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>No se conocen en este equipo: %1. Una entrada así solo se usa cuando la red se haya configurado aquí.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>El archivo %1 no se puede leer o es demasiado grande para una lista. Su lista sigue igual.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>El archivo %1 no es una lista de redes que se pueda importar. %2. Su lista sigue igual.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Exportar el orden</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Escribe el orden de su lista en un archivo, sin claves.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>orden-de-redes.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>El archivo %1 no se puede escribir. Lo que había antes sigue igual.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Órdenes de redes</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>La lista no se puede escribir en %1. Compruebe si el disco está lleno o el archivo protegido.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>El archivo dañado %1 no se puede copiar para conservarlo, así que no se ha tocado. Compruebe si el disco está lleno o la carpeta protegida.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>El archivo de las listas anteriores, %1, está dañado y no se ha tocado. %2. Hasta que se aparte en «Restaurar…», no se puede deshacer nada.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>El archivo de las listas anteriores, %1, no se puede leer y no se ha tocado. Hasta que se pueda o se aparte en «Restaurar…», no se puede deshacer nada.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>Las listas anteriores no se pueden guardar en %1. Lo que cambie solo podrá deshacerse hasta que termine el programa.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Otro programa está trabajando con la lista. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>El archivo %1 no se puede renombrar, así que no se ha tocado.</translation>
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
        <translation>una declaración de tipo de documento no corresponde ahí</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>el elemento «%1» no corresponde ahí</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>no corresponde texto ahí</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>falta el atributo «%1»</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>el atributo «%1» tiene un valor imposible</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>hay demasiados elementos «%1»</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>«Deshacer» recupera la última lista que se pudo leer.</translation>
    </message>
    <message>
        <source>IDS_HEAD_SKIPPED</source>
        <translation>Más arriba en la lista, pero fuera de alcance: %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>«Conectar…» muestra las redes al alcance.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>No se puede usar ahora, porque está fuera de alcance.</translation>
    </message>
    <message>
        <source>IDS_WHY_LOWER</source>
        <translation>Se podría usar, pero %1 está más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_WHY_UNDECIDED</source>
        <translation>Se podría usar, pero no se sabe si hay al alcance una red más arriba en la lista.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Buscar en el seguimiento…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Buscar en el seguimiento</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Lugar siguiente</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Lugar anterior</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Como el &amp;escritorio</translation>
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
        <translation>«%1» se dejó como estaba: ya hay una red configurada con ese nombre y no se debe cambiar.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>No se cambió nada: hay varias redes configuradas con el nombre «%1» y no se puede saber cuál es la indicada. Elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>«%1» se dejó como estaba: ya hay una red configurada con ese nombre, con más de lo que se puede introducir aquí, por ejemplo una cuenta. Cámbiela donde se configuró o elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>«%1» se dejó como estaba: ya hay una red configurada con ese nombre, y esta seguridad o este cifrado serían más débiles. Elija al menos lo mismo u otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>«%1» se dejó como estaba: ya hay una red configurada con ese nombre y para cambiarla hace falta una clave completa. Introduzca una o elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>«%1» no se guardó: la misma red ya está configurada como «%2», y mejor que así. Añada «%2» a la lista en su lugar.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>«%1» no se guardó: el nombre de una red tiene de 1 a 32 bytes. Las letras con tilde y otras escrituras ocupan de dos a cuatro bytes cada una.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>«%1» no se guardó: esta seguridad, este cifrado y esta clave no son compatibles.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>«%1» no se guardó: esta seguridad requiere una cuenta, que no se puede introducir aquí. Configure la red en los ajustes de su escritorio y añádala después a la lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>«%1» no se guardó: NetworkManager no está en ejecución.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>No se sabe si «%1» se guardó: NetworkManager no responde.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>«%1» no se guardó: no tiene permiso para hacerlo en este equipo.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>«%1» no se guardó: NetworkManager no la acepta, muy probablemente por la clave.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>«%1» no se guardó: NetworkManager comunica un error.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>«%1» no se guardó: el archivo de las redes configuradas no se puede leer o escribir. El seguimiento dice más.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>«%1» no se guardó: el archivo de las redes configuradas está dañado y se deja como está. El seguimiento indica la línea.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>«%1» no se guardó: otro programa está cambiando las redes. Inténtelo de nuevo.</translation>
    </message>
</context>
</TS>
