<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Prioridade das redes</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Prioridade das redes</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>Quando várias destas redes estão ao alcance, é usada a que está mais acima na lista.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>&amp;Descer</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>&amp;Nova</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>Adicionar redes</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>Nova rede</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>Nome da rede</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>Confirmar chave</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>Criptografia</translation>
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
        <translation>Prioridade das redes</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>Remover a rede selecionada da sua lista?</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>Digite o nome da rede.</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>Já existe uma rede com esse nome na sua lista. Digite outro nome.</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>Esta chave WEP não é válida. Uma chave WEP tem 5 ou 13 caracteres, ou então 10, 26 ou 32 dígitos hexadecimais (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Você pode usar letras, números e estes símbolos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>Esta chave WPA não é válida. Uma chave WPA tem de 8 a 63 caracteres, ou então 64 dígitos hexadecimais (0–&#x2060;9,&#xa0;a–&#x2060;f,&#xa0;A–&#x2060;F).

Você pode usar letras, números e estes símbolos:
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>As duas chaves são diferentes. Digite a mesma chave nos dois campos, respeitando maiúsculas e minúsculas.</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>Escolha um tipo de segurança.</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>Português (Brasil)</translation>
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
        <translation>Painel de redes</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>Sua lista</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>&amp;Rede</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>&amp;Conectar…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>Con&amp;figurações…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>A&amp;tualizar</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>Mostrar &amp;registro</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>Conectar…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>Não é possível gravar no arquivo de registro %1. O registro é exibido apenas aqui.</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>Conectar a uma rede</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>Uma rede que não está na sua lista vai para o fim dela.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>Uma rede que não está na sua lista vai para o topo dela.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>Uma rede que não está na sua lista não entra nela.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>Nenhuma rede está ao alcance. Quando houver uma, ela aparecerá aqui.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>Buscar uma rede</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>Nenhuma rede ao alcance tem “%1” no nome.</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>Sem chave</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>Chave fraca (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>Salva</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>Posição %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>Na sua lista</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>Outras redes ao alcance</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>Chave de %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>Mostrar a chave</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 precisa de uma conta. É possível configurar a conta nas configurações de rede da sua área de trabalho.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 não está mais ao alcance.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>Parar</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>Está demorando mais que o normal.</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 está com a conexão ativa, mas não pôde ser salva.</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>Teclado: Ctrl+↑ e Ctrl+↓ selecionam uma rede; ↑ e ↓ a movem.</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>Prioridade das redes</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (redes de teste)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>Redes novas</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>No fim da sua lista</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>No topo da sua lista</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>Fora da sua lista</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>Deixar esta lista dirigir o NetworkManager</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>Sem isso, cada rede recupera a prioridade que tinha antes desta lista.</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>Manter a ordem com esta janela fechada</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>Um programa sem janela faz isso. Ele inicia agora e cada vez que você entra na sessão.</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>Mostrar um ícone enquanto isso</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>No painel da área de trabalho: a rede em uso, as primeiras da sua lista e uma forma de se conectar.</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>A&amp;brir</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>Mudar sozinho para uma rede mais acima</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>Assim que uma rede mais acima na sua lista puder ser usada. Não sai de uma rede conectada à mão, nem durante uma VPN.</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>Banda larga móvel só se não houver outra conexão</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>Economiza dados. A banda larga móvel abaixo de todas as redes Wi-Fi da sua lista é conectada após meio minuto sem outra conexão e desconectada após um minuto com outra.</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>Avisar quando mudar</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>Com uma notificação da área de trabalho, depois de cada mudança.</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>Mudança para %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>Ela está mais acima na sua lista que %1.</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>carregado</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>não disponível</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>Sobre este programa</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>Seus dados: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>Pasta dos plug-ins: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>Versão: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>Esta página não pode ser exibida: o plug-in %1 foi carregado, mas não fornece a página. Veja os detalhes no registro.</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>Banda larga móvel</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>Em uso agora</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>Ao alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>Fora de alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>Não se sabe se está ao alcance</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>Em uso agora: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>Em uso agora: %1, é preciso fazer login</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>Em uso agora: %1, sem internet</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>Nenhuma rede em uso</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>Conexão desconhecida</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>Sua lista está vazia, portanto não há o que escolher.</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>Sua lista não pode ser lida por inteiro, portanto não se sabe qual rede vem primeiro.</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>O plug-in de Wi-Fi não está disponível, portanto não se sabe quais redes estão ao alcance.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>O plug-in que gerencia a lista não está disponível.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>Conectando: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 está conectada, mas o tráfego não passa por ela.</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>O NetworkManager não está em execução</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>Não se sabe qual rede está em uso. Sua lista pode ser alterada; ela valerá quando o NetworkManager estiver em execução.</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>O NetworkManager ainda não respondeu, portanto não se sabe qual rede está em uso.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>O plug-in de Wi-Fi não informa qual rede está em uso.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1 (teste)</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>É a primeira rede da sua lista que se sabe que pode ser usada.</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>Esta rede pede que você faça login em uma página da web.</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>A rede responde, mas a internet além dela não.</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>A lista é para Wi-Fi e banda larga móvel; esta conexão é de outro tipo.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>Ela não está na sua lista.</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>A VPN %1 está conectada.</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>Sua lista escolheria %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>Sem ela, sua lista escolheria %1.</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>Não se sabe de nenhuma rede da sua lista que possa ser usada.</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>A conexão está sendo preparada.</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>A chave está sendo verificada.</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>Um endereço está sendo pedido à rede.</translation>
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
        <translation>Oculta: é tentada</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Não salva aqui</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Não pode ser usada</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>Chave recusada</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>Última tentativa falhou</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>Só manualmente</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>Repetida na lista</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM bloqueado</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Sem adaptador</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>Sem modem</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>Desligada</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 está mais acima na lista.</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>A rede oculta seu nome, portanto não se sabe se está ao alcance. Ela é tentada.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>Uma rede com esse nome está ao alcance, mas com outra segurança.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>Ela está salva para outro adaptador, outra faixa ou outra estação que não estão aqui.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>Não há adaptador nem modem que funcione para ela.</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>Seu adaptador ou modem está desligado.</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>Um botão deste computador mantém desligado seu adaptador ou modem.</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>O cartão SIM pede seu PIN.</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>Pertence a outros usuários deste computador.</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>Precisa de uma conta, e nenhuma está salva.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>Este computador não tem nenhuma rede salva com esse nome.</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>Não se sabe se pode ser usada.</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>Ela já está mais acima na lista, portanto esta posição não tem efeito.</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>Ela não se conecta sozinha.</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>O NetworkManager mantém uma conexão que funciona até você mudar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>Na última tentativa, não foi possível conectar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>Na última tentativa, a chave foi recusada.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>Na última tentativa, faltava uma chave.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>Na última tentativa, ela não respondeu.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>Na última tentativa, ela não deu um endereço.</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>Na última tentativa, ela não deixou este computador entrar.</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>Na última tentativa, o cartão SIM não funcionou.</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>Da última vez, ela foi encerrada à mão.</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>Na última tentativa, o adaptador ou o modem não estava disponível.</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>A chave foi recusada. Maiúsculas e minúsculas contam.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>A chave salva foi recusada. É possível alterá-la nas configurações de rede da sua área de trabalho.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>É preciso uma chave, e nenhuma está salva.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>Ela não respondeu; talvez esteja longe demais.</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>Ela deixou este computador entrar, mas não lhe deu um endereço.</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>Ela não deixou este computador entrar.</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>O cartão SIM não funcionou.</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>A tentativa foi encerrada.</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>O adaptador ou o modem não estava disponível.</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>Você não tem permissão para isso.</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>Mudar para %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 não foi conectada.</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 não foi desconectada.</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>O arquivo da sua lista está danificado. São exibidas apenas as redes que vêm antes da parte danificada.</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>Uma cópia do arquivo é mantida como %1. Este programa não altera sua lista até que você decida o que fazer.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>Decidir o que fazer…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>A lista está aberta em outra janela deste programa. Feche-a para ver a lista aqui.</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>Abrir o painel de redes</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>Sua lista está danificada</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>O arquivo da sua lista não pode ser lido até o fim. Redes que puderam ser lidas: %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>A última lista completa é de %1. Redes nela: %2.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>Não há lista anterior que possa ser restaurada.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>Seja qual for a escolha, o arquivo danificado é mantido como %1.</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>Restaurar a última lista completa</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>Manter as redes que puderam ser lidas</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>Deixar o arquivo como está</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>O arquivo da sua lista existe, mas não pode ser aberto. Verifique as permissões dele e escolha “Atualizar”.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>O plug-in %1 foi carregado, mas não fornece a lista.</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>Sua lista não pode ser exibida</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>Sua lista está vazia</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>Abra as configurações e escolha “Adicionar” para redes salvas neste computador ou “Nova” para inserir uma. A rede que está mais acima na lista é a preferida.</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>Quais redes vêm primeiro?</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>Há redes salvas neste computador. Adote-as na ordem em que são usadas agora e depois leve as preferidas para o topo.</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>Conecte-se a uma rede, e ela aparecerá aqui.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>A mensagem acima diz o motivo.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>O plug-in %1 não está carregado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>O plug-in %1 não foi encontrado. Instale-o ou inicie o programa com --library-path e a pasta que contém plugins/.</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>O plug-in %1 está incompleto: o arquivo dele termina antes da hora, portanto não é usado. Instale-o novamente.</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>O plug-in %1 foi compilado para outra versão principal do Qt, portanto não é usado.
Encontrado: Qt %2
Esperado: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>O plug-in %1 não pode ser carregado como biblioteca: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>O plug-in %1 não informa para que foi compilado, portanto não é usado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>O plug-in %1 foi compilado para outro programa, portanto não é usado.
Encontrado: %2
Esperado: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>A biblioteca %1 não é um plug-in, portanto não é usada.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>O plug-in %1 não forneceu nenhum objeto utilizável, portanto não é usado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 não é um plug-in para este programa, portanto não é usado.</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>O plug-in %1 não pôde iniciar, portanto não é usado. Veja os detalhes no registro.</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>O arquivo de idioma %1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>O arquivo de idioma %1 não contém textos utilizáveis, portanto não é usado.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>Estas são as redes deste computador. O NetworkManager as experimenta na ordem desta lista.</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>O NetworkManager decide por si mesmo. Nas configurações, você pode deixar esta lista decidir.</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>O NetworkManager segue a sua lista em %1 de %2 redes.</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>Por que não em todas?</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>O que isso significa</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>O &amp;que a sua lista decide…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>O que a sua lista decide</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>A sua lista decide a qual rede este computador se conecta por si mesmo quando há várias ao alcance. Uma conexão que funciona é mantida até você mudar. Um cabo vem primeiro, e as redes que não estão na sua lista vêm por último. Com vários adaptadores, cada um usa a primeira rede que puder.</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>Cada posição da sua lista tem efeito.</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>A sua lista tem efeito enquanto esta janela está aberta. As configurações permitem manter a ordem depois.</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>Ela não se conecta por si mesma, por isso a sua posição não tem efeito.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>Só um administrador pode mudar a sua posição. Nas configurações de rede do ambiente de trabalho, ela pode ser tornada uma rede só sua; então a sua posição tem efeito.</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>Outro programa a cria de novo a cada vez, por isso a sua posição não é mantida.</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>O NetworkManager não aceitou a sua posição.</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>Alguém escolheu uma métrica de rota para ela, por isso outra conexão pode levar o tráfego antes dela.</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>A lista ou um programa de outra pessoa deu a ela outra posição desde então. A sua lista volta a decidir assim que você a mudar.</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>Depois de várias falhas, o NetworkManager espera cinco minutos antes de tentar de novo.</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>Det&amp;alhes…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>Posição na sua lista:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>Não está na sua lista</translation>
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
        <translation>Segurança:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>Adaptador ou modem:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>Só %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>Qualquer um</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>Qualquer um; agora, %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>Último uso:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>Prioridade para o NetworkManager:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>Conexão limitada:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>Provavelmente sim</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>Provavelmente não</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>Quem pode usá-la:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>Todos os usuários deste computador</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>Conecta-se por si mesma</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 ainda se conecta por si mesma.</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>Esq&amp;uecer rede…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>Tira a rede deste computador, com a sua chave.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>No momento não se sabe quais redes estão salvas.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>Ela não está salva aqui, por isso não há nada a esquecer. Ela pode ser removida da lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>Esquecer rede</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>Esquecer %1?</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>Esquecer</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>Você está conectado a ela; a conexão terminará.</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>Este computador a esquecerá com a sua chave, e ela sairá da sua lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>Este computador esquecerá todos os perfis com esse nome (%1) e as suas chaves, e ela sairá da sua lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>A posição dela pode ser recuperada; a chave, não.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>Este computador a esquecerá com a sua chave. Ela não está na sua lista, que fica como está.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>Este computador esquecerá todos os perfis com esse nome (%1) e as suas chaves. A rede não está na sua lista, que fica como está.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>Isso não pode ser desfeito, e a chave dela não pode ser recuperada.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>Ela está sendo esquecida.</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>%1 foi esquecida. A posição na lista pode ser recuperada; a chave, não.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>%1 foi esquecida. A chave não pode ser recuperada.</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 não foi esquecida. Ela continua na sua lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 não foi esquecida.</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>Perfis esquecidos: %1 de %2.</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>Não houve resposta, portanto não se sabe se %1 foi esquecida. Ela continua na sua lista.</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>Não houve resposta, portanto não se sabe se %1 foi esquecida.</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 foi esquecida, mas continua na sua lista.</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 ainda não se conecta por si mesma.</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>Estas são redes de teste. As redes deste computador não são alteradas.</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>&amp;Refazer</translation>
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
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>D&amp;escer</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>Mover para o &amp;topo</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>Mover para o fi&amp;m</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>Mover para uma &amp;posição…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>Mover para uma posição</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>Nova posição de %1, de 1 (o topo) a %2:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>Nova posição da primeira destas redes (%1), de 1 (o topo) a %2. As outras vêm depois dela:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>Remo&amp;ver da lista</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>Adici&amp;onar à lista</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>Fora da sua lista (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>Clique ou pressione Enter para mostrar ou ocultar essas redes.</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · Salva</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>Escolha antes uma rede que não esteja na sua lista.</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>Escolha antes uma rede da lista.</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>Ela já está lá.</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>Outro programa alterou sua lista. %1 não está mais nela.</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1: posição %2 de %3</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>&amp;Buscar uma rede</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>Nenhuma rede tem “%1” no nome.</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>Limpar a busca</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>Limpe a busca para subir ou descer redes.</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>Adotar as redes salvas…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>Importar lista…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>Desfazer: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>Refazer: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>Não há lista anterior à qual voltar.</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>Nada foi desfeito, portanto não há nada a refazer.</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>O arquivo da sua lista está danificado. “Desfazer” permite restaurar a última lista completa.</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>O plug-in que gerencia a lista não está disponível, portanto a lista não pode ser alterada.</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>Última alteração: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>Nada mudou</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>Todas as redes removidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>O arquivo foi danificado</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 adicionada</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 redes adicionadas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 removida</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 redes removidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>%1 substituída por %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 movida para cima</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 movida para baixo</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 movida para o topo</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 movida para o fim</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 redes movidas</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>Lista de %1 restaurada</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(sem nome)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Sua lista fica como está.</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>Todas as redes serão removidas.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será adicionada.</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 redes serão adicionadas.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será removida.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 redes serão removidas.</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 será substituída por %2.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será movida para cima.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será movida para baixo.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será movida para o topo.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 será movida para o fim.</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 redes serão movidas.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>Listas anteriores</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>Escolha a lista a restaurar. A lista atual também é mantida.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>O que mudou</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>Desfeito</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>A lista mais antiga guardada</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>A lista naquele momento</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>Resultado da restauração: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>Esta é a lista como está agora.</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>Manter o arquivo e começar outro</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>Essa lista não está mais guardada. Escolha outra.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>Importar uma lista</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>Substitui sua lista pela de um arquivo. Antes você pode conferir as alterações.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>Resultado da importação: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>Sua lista já está nesta ordem. Não há nada a importar.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>O que acontece</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>Fica onde está</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>Será adicionada</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>Será movida para cima</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>Será movida para baixo</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>Fica no lugar; outras serão movidas</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>Será removida da lista</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1; não salva aqui</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>Não salvas neste computador: %1. Estas redes não serão usadas até serem configuradas aqui.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>Adotar as redes salvas</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>Faz das redes salvas neste computador a sua lista. Antes você pode conferi-la.</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>Na ordem em que são usadas agora: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>Adotar</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>O arquivo %1 não pode ser lido ou é grande demais para uma lista. Sua lista não foi alterada.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>O arquivo %1 não é uma lista de redes que possa ser importada. %2. Sua lista não foi alterada.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>Exportar a lista</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>Salva sua lista em um arquivo, sem chaves.</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>lista-de-redes.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>O arquivo %1 não pode ser gravado. Nada foi alterado.</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>Listas de redes</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>A lista não pode ser gravada em %1. Verifique se o disco está cheio ou se o arquivo está protegido contra gravação.</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>Não é possível fazer uma cópia de segurança do arquivo danificado %1, portanto ele não foi alterado. Verifique se o disco está cheio ou se a pasta está protegida contra gravação.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>O arquivo das listas anteriores, %1, está danificado e não foi alterado. %2. Para voltar a usar “Desfazer”, escolha “Listas anteriores…” e comece um novo arquivo. O danificado é mantido.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>O arquivo das listas anteriores, %1, não pode ser lido e não foi alterado. Para voltar a usar “Desfazer”, torne o arquivo legível, ou escolha “Listas anteriores…” e comece um novo. O antigo é mantido.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>As listas anteriores não podem ser guardadas em %1. Você só pode desfazer alterações até sair do programa.</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>Outro programa está trabalhando com a lista. Tente novamente em instantes.</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>O arquivo %1 não pode ser renomeado, portanto nenhum novo foi começado.</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>não é XML bem formado</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>uma declaração de tipo de documento não é permitida aqui</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>o elemento “%1” não é permitido aqui</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>texto não é permitido aqui</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>falta o atributo “%1”</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>o atributo “%1” tem um valor inválido</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>há elementos “%1” demais</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>“Desfazer” permite restaurar a última lista completa.</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Sua lista está danificada</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>As listas anteriores não podem ser usadas</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Um plug-in não pode ser usado</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>Um idioma não pode ser usado</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>Mostrar a próxima mensagem</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>“Conectar…” mostra as outras redes ao alcance.</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>Não está em uso porque está fora de alcance.</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>&amp;Pesquisar no registro…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>Pesquisar no registro</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>Próxima ocorrência</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>Ocorrência anterior</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>Ocorrências: %1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>Nenhuma ocorrência</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>&amp;Aparência</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>Como o &amp;sistema</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>&amp;Escuro</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>Nova rede</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>“%1” não foi alterada: já existe uma rede salva com esse nome, e ela não pode ser alterada.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>Nada foi alterado: várias redes estão salvas com o nome “%1”, e não se sabe qual delas é. Escolha outro nome.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>“%1” não foi alterada: já existe uma rede salva com esse nome, com dados que não podem ser informados aqui, como uma conta. Altere-a onde ela foi configurada ou escolha outro nome.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>“%1” não foi alterada: já existe uma rede salva com esse nome, e esta segurança ou criptografia seria mais fraca. Escolha uma que seja pelo menos tão forte ou outro nome.</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>“%1” não foi alterada: já existe uma rede salva com esse nome, e para alterá-la é preciso uma chave completa. Digite a chave ou escolha outro nome.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>“%1” não foi salva: a mesma rede já está salva como “%2”, com configurações melhores. Em vez disso, adicione “%2” à sua lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>“%1” não foi salva: o nome de uma rede tem de 1 a 32 bytes. Letras com acento e de outras escritas ocupam de dois a quatro bytes cada.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>“%1” não foi salva: esta segurança, esta criptografia e esta chave não combinam.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>“%1” não foi salva: esta segurança exige uma conta, que não pode ser informada aqui. Configure a rede nas configurações do sistema e depois adicione-a à sua lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>“%1” não foi salva: o NetworkManager não está em execução.</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>Não se sabe se “%1” foi salva: o NetworkManager não responde.</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>“%1” não foi salva: você não tem permissão para salvar redes neste computador.</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>“%1” não foi salva: o NetworkManager não a aceita, muito provavelmente por causa da chave.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>“%1” não foi salva: o NetworkManager informa um erro.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>“%1” não foi salva: o arquivo das redes salvas não pode ser lido ou gravado. Veja os detalhes no registro.</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>“%1” não foi salva: o arquivo das redes salvas está danificado e não foi alterado. Veja a linha no registro.</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>“%1” não foi salva: outro programa está alterando as redes. Tente novamente em instantes.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>Sua lista</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>A ordem da sua lista não pode valer por completo por causa de “%1”: essa rede não pode ser alterada, e a prioridade dela não corresponde à posição dela na lista. As outras redes seguem a lista.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>A ordem da sua lista não pode valer por completo por causa de “%1” e de outras redes: elas não podem ser alteradas, e a prioridade delas não corresponde à posição delas na lista. Veja os nomes no registro.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>“%1” não está na sua lista, mas é tentada antes de redes que estão: não há prioridade mais alta para elas. Adicione “%1” à sua lista para que ela tenha uma posição.</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>“%1” não tem a posição dela na sua lista: a lista de outra pessoa ou outro programa alterou de novo a prioridade dela. Assim que você alterar sua lista, ela volta a valer.</translation>
    </message>
</context>
</TS>
