<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>网络优先级</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>网络优先级</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>如果其中多个网络都在信号范围内，将使用列表中最靠上的网络。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>添加网络</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>新建网络</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>网络名称</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>密钥</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>确认密钥</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>安全类型</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>WEP 索引</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>EAP 方法</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>网络优先级</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>要从列表中移除所选网络吗？</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>请输入网络名称。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>您的列表中已有同名网络。请输入其他名称。</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>此 WEP 密钥无效。WEP 密钥为 5 个或 13 个字符，或者 10、26 或 32 位十六进制数字（0–&#x2060;9、a–&#x2060;f、A–&#x2060;F）。

可以使用字母、数字和以下符号：
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>此 WPA 密钥无效。WPA 密钥为 8 到 63 个字符，或者 64 位十六进制数字（0–&#x2060;9、a–&#x2060;f、A–&#x2060;F）。

可以使用字母、数字和以下符号：
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>两个密钥不同。请在两个框中输入相同的密钥，大小写也要相同。</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>请选择安全类型。</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>IDS_SENTENCES</source>
        <extracomment>Two sentences, one behind the other. Chinese and Japanese have no blank there</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>IDS_NAMES</source>
        <extracomment>Names of networks side by side. %1: the first ones, %2: one more</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>IDS_LABEL</source>
        <extracomment>%1: a label, such as Wi-Fi; %2: what is told about it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>网络面板</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>您的列表</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>网络(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>连接(&amp;C)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>断开(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>显示日志(&amp;T)</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>连接…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>无法写入日志文件 %1。日志仅在此处显示。</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>连接网络</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>不在列表中的网络会排到列表末尾。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>不在列表中的网络会排到列表顶部。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>不在列表中的网络不会加入列表。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>没有网络在信号范围内。一旦有网络，就会显示在这里。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>查找网络</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>信号范围内没有名称包含“%1”的网络。</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>无密钥</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>密钥</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>弱密钥 (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>已保存</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>位置 %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>在您的列表中</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>信号范围内的其他网络</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>%1 的密钥</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>显示密钥</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 需要账户。请在桌面的网络设置中设置。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 已不在信号范围内。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>所需时间比平时长。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 已连接，但未能保存。</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>键盘：Ctrl+↑ 和 Ctrl+↓ 选择网络，↑ 和 ↓ 移动网络。</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>网络优先级</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi（NetworkManager）</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi（练习用网络）</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>新网络</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>列表末尾</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>列表顶部</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>不加入列表</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>让 NetworkManager 按此列表选择</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>否则，每个网络都会恢复此列表之前的优先级。</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>关闭此窗口后仍保持此顺序</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>由一个没有窗口的程序完成。它现在启动，以后每次登录时也会启动。</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>同时显示图标</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>在桌面面板中：正在使用的网络、列表中的前几项，以及连接方式。</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>自动切换到更靠前的网络</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>列表中更靠前的网络可用时立即切换。不会离开您手动连接的网络，也不会在使用 VPN 时切换。</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>仅在没有其他连接时使用移动宽带</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>节省流量。列表中位于所有 Wi-Fi 网络之下的移动宽带，在半分钟没有其他连接后接通，在其他连接持续一分钟后断开。</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>切换时通知我</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>每次切换后通过桌面通知告知。</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>已切换到 %1</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>它在您的列表中比 %1 更靠前。</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>关于本程序</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>您的数据：%1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>插件文件夹：%1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>无法显示此页面：插件 %1 已加载，但没有提供页面。详情请查看日志。</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>移动宽带</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>正在使用</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>在信号范围内</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>不在信号范围内</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>不确定是否在信号范围内</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>正在使用：%1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>正在使用：%1，需要登录</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>正在使用：%1，无互联网</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>没有正在使用的网络</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>连接情况未知</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>您的列表为空，因此没有可选择的网络。</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>您的列表无法完整读取，因此不知道哪个网络排在第一位。</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Wi-Fi 插件不可用，因此不知道哪些网络在信号范围内。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>管理列表的插件不可用。</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>正在连接：%1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 已连接，但流量不经过它。</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager 未在运行</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>不知道正在使用哪个网络。您的列表可以更改，NetworkManager 运行后生效。</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager 尚未应答，因此不知道正在使用哪个网络。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>Wi-Fi 插件不提供正在使用哪个网络的信息。</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1（练习）</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>它是列表中第一个已知可用的网络。</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>此网络要求在网页上登录。</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>网络有响应，但其后的互联网没有响应。</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>此列表用于 Wi-Fi 和移动宽带；此连接属于另一种类型。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>它不在您的列表中。</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>VPN %1 已连接。</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>按您的列表会选择 %1。</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>若没有它，按您的列表会选择 %1。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>您的列表中没有已知可用的网络。</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>正在准备连接。</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>正在检查密钥。</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>正在向网络请求地址。</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>已连接</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>正在断开</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>已隐藏：会尝试</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>此处未保存</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>不可用</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>密钥被拒绝</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>上次尝试失败</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>仅手动</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>列表中重复</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM 卡已锁定</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>没有适配器</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>没有调制解调器</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 在列表中更靠前。</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>此网络隐藏其名称，因此不确定是否在信号范围内。会尝试连接。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>信号范围内有此名称的网络，但其安全类型不同。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>它是为此处没有的其他适配器、频段或基站保存的。</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>没有可供它使用的适配器或调制解调器。</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>其适配器或调制解调器已关闭。</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>此计算机的按钮关闭了其适配器或调制解调器。</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>SIM 卡需要 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>它属于此计算机的其他用户。</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>它需要帐户，但没有保存任何帐户。</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>此计算机上没有保存此名称的网络。</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>不知道它是否可用。</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>它已在列表中更靠前的地方，因此这个位置不起作用。</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>它不会自动连接。</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager 会保持可用的连接，直到您切换。</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>上次尝试时未能连接。</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>上次尝试时密钥被拒绝。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>上次尝试时缺少密钥。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>上次尝试时没有应答。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>上次尝试时没有得到地址。</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>上次尝试时它不允许此计算机加入。</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>上次尝试时 SIM 卡不起作用。</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>上次是手动结束的。</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>上次尝试时适配器或调制解调器不可用。</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>密钥被拒绝。请注意区分大小写。</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>已保存的密钥被拒绝。可以在桌面的网络设置中更改。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>需要密钥，但没有保存密钥。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>没有应答；可能距离太远。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>它允许此计算机加入，但没有给出地址。</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>它不允许此计算机加入。</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>SIM 卡不起作用。</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>尝试已停止。</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>适配器或调制解调器不可用。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>您无权这样做。</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>切换到 %1</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 未连接。</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 未断开。</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>保存列表的文件已损坏。仅显示损坏位置之前的网络。</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>该文件的副本已保留为 %1。在您决定如何处理之前，本程序不会更改您的列表。</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>决定如何处理…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>列表已在此程序的另一个窗口中打开。关闭该窗口后即可在此处查看列表。</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>打开网络面板</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>您的列表已损坏</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>保存列表的文件无法读取到末尾。能读取的网络数：%1。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>最后一个完整的列表来自 %1。其中的网络数：%2。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>没有可以恢复的以前的列表。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>无论如何选择，损坏的文件都会保留为 %1。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>恢复最后一个完整的列表</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>保留能读取的网络</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>让文件保持原样</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>保存列表的文件存在，但无法打开。请检查其权限，然后选择“刷新”。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>插件 %1 已加载，但没有提供列表。</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>无法显示您的列表</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>您的列表为空</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>请打开设置，选择“添加”来添加此计算机上已保存的网络，或选择“新建”来自行输入网络。列表中最靠上的网络优先使用。</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>优先使用哪些网络？</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>此计算机上保存了一些网络。可以按现在的使用顺序采用它们，然后把首选的网络移到顶部。</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>连接到一个网络后，它会显示在这里。</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>原因请看上面的消息。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>插件 %1 未加载。</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>找不到插件 %1。请安装该插件，或使用 --library-path 和包含 plugins/ 的文件夹启动本程序。</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>插件 %1 不完整：文件被截断，因此未被使用。请重新安装该插件。</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>插件 %1 是为 Qt 的另一个主版本构建的，因此未被使用。
实际：Qt %2
预期：Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>插件 %1 无法作为库加载：%2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>插件 %1 没有说明其适用的程序，因此未被使用。</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>插件 %1 是为其他程序构建的，因此未被使用。
实际：%2
预期：%3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>库 %1 不是插件，因此未被使用。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>插件 %1 没有提供可用的对象，因此未被使用。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 不是本程序的插件，因此未被使用。</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>插件 %1 无法启动，因此未被使用。详情请查看日志。</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>无法读取语言文件 %1：%2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>语言文件 %1 中没有可用的文本，因此未被使用。</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>这些是此计算机的网络。NetworkManager 按此列表的顺序尝试连接它们。</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>由 NetworkManager 自行决定。可以在设置中让它按此列表选择。</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>%2 个网络中有 %1 个由 NetworkManager 按您的列表处理。</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>为什么不是全部？</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>这是什么意思</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>列表决定什么(&amp;W)…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>列表决定什么</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>信号范围内有多个网络时，由您的列表决定此计算机自动连接哪个网络。可用的连接会一直保持，直到您切换。网线优先，不在列表中的网络排在最后。有多个适配器时，每个适配器使用它能用的第一个网络。</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>您列表中的每个位置都已生效。</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>此窗口打开时，您的列表才会生效。可以在设置中让它之后继续保持此顺序。</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>它不会自动连接，所以它的位置不起作用。</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>只有管理员可以更改它的位置。可以在桌面的网络设置中把它设为仅供您使用的网络，这样它的位置就会生效。</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>每次都由另一个程序重新创建，所以它的位置不会保留。</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager 没有接受它的位置。</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>有人为它选定了路由跃点数，因此可能由其他连接先承载流量。</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>此后他人的列表或程序给了它另一个位置。您一更改列表，它就会再次按您的列表处理。</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>多次失败后，NetworkManager 会等待五分钟再重试。</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>详细信息(&amp;A)…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>在您的列表中的位置：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1（共 %2 个）</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>不在您的列表中</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>配置 %1（共 %2 个）</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>安全性：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>适配器或调制解调器：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>仅 %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>任意，目前为 %1</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>上次使用：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>NetworkManager 的优先级：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>按流量计费的连接：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>是</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>否</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>可能是</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>可能不是</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>谁可以使用：</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>此计算机的所有用户</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 仍然会自动连接。</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>忘记网络(&amp;G)…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>将网络及其密钥从此计算机上去除。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>目前不知道保存了哪些网络。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>它没有保存在此处，因此没有可忘记的内容。可以将它从列表中移除。</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>忘记网络</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>忘记 %1？</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>忘记</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>您已连接到它；连接将断开。</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>此计算机将忘记它和它的密钥，它也会离开您的列表。</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>此计算机将忘记此名称的全部 %1 个配置及其密钥，它也会离开您的列表。</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>它的位置可以找回，密钥不能。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>此计算机将忘记它和它的密钥。它不在您的列表中，列表保持不变。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>此计算机将忘记此名称的全部 %1 个配置及其密钥。此网络不在您的列表中，列表保持不变。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>此操作无法撤销，密钥无法找回。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>正在忘记。</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>已忘记 %1。列表中的位置可以找回，密钥不能。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>已忘记 %1。密钥无法找回。</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 未被忘记，仍在您的列表中。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 未被忘记。</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>已忘记的配置：%1 个（共 %2 个）。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>没有应答，因此不知道 %1 是否已被忘记。它仍在您的列表中。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>没有应答，因此不知道 %1 是否已被忘记。</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 已被忘记，但仍在您的列表中。</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 仍然不会自动连接。</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>这些是练习用网络。此计算机的网络保持不变。</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>以前的列表(&amp;L)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>导入列表(&amp;I)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>导出列表(&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>上移(&amp;P)</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>移到顶部(&amp;T)</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>移到末尾(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>移到指定位置(&amp;M)…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>移到指定位置</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>%1 的新位置，从 1（顶部）到 %2：</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>这些网络（%1 个）中第一个的新位置，从 1（顶部）到 %2。其余的排在它后面：</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>从列表中移除(&amp;F)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>添加到列表(&amp;O)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>不在您的列表中（%1）</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>单击或按 Enter 键可显示或隐藏这些网络。</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · 已保存</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>请先选择一个不在您的列表中的网络。</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>请先在列表中选择一个网络。</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>它已在那个位置。</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>另一个程序更改了您的列表。%1 已不在其中。</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1：位置 %2（共 %3 个）</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>查找网络(&amp;W)</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>没有名称包含“%1”的网络。</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>清除查找</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>要上移或下移网络，请先清除查找。</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>采用已保存的网络…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>导入列表…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>没有以前的列表可以返回。</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>没有撤销过任何更改，因此没有可重做的内容。</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>保存列表的文件已损坏。“撤销”可恢复最后一个完整的列表。</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>管理列表的插件不可用，因此无法更改列表。</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>上次更改：%1（%2）</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>没有更改</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>移除所有网络</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>添加 %1 个网络</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>移除 %1 个网络</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>将 %1 替换为 %2</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>上移 %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>下移 %1</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>将 %1 移到顶部</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>将 %1 移到末尾</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>移动 %1 个网络</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>恢复 %1 的列表</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>您的列表保持不变。</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>将移除所有网络。</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>将添加 %1。</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>将添加 %1 个网络。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>将移除 %1。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>将移除 %1 个网络。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 将替换为 %2。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 将上移。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 将下移。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 将移到顶部。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 将移到末尾。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>将移动 %1 个网络。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>以前的列表</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>请选择要恢复的列表。当前的列表也会保留。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>更改内容</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>保留的最早列表</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>当时的列表</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>恢复的结果：%1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>这是当前的列表。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>保留该文件并新建一个</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>该列表已不再保留。请选择其他列表。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>导入列表</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>用文件中的列表替换您的列表。您可以先查看更改。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>导入的结果：%1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>您的列表已经是这个顺序，没有需要导入的内容。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>将添加</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>将上移</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>将下移</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>位置不变，其他网络将移动</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>将从列表中移除</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1（此计算机上未保存）</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>此计算机上未保存：%1。这些网络在此计算机上设置后才会使用。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>采用已保存的网络</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>用此计算机上已保存的网络组成您的列表。您可以先查看。</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>按现在的使用顺序：%1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>采用</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>文件 %1 无法读取，或者作为列表过大。您的列表保持不变。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>文件 %1 不是可以导入的网络列表。%2。您的列表保持不变。</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>导出列表</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>将您的列表存入文件，不包含任何密钥。</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>无法写入文件 %1。未作任何更改。</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>网络列表</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>无法将列表写入 %1。请检查磁盘是否已满或文件是否被写保护。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>损坏的文件 %1 无法备份，因此未作改动。请检查磁盘是否已满或文件夹是否被写保护。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>保存以前列表的文件 %1 已损坏，未作改动。%2。要重新使用“撤销”，请选择“以前的列表…”并新建一个文件。损坏的文件会保留。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>无法读取保存以前列表的文件 %1，未作改动。要重新使用“撤销”，请使该文件可读，或选择“以前的列表…”并新建一个文件。旧文件会保留。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>无法将以前的列表保存在 %1 中。只能在退出程序之前撤销更改。</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>另一个程序正在使用列表。请稍后重试。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>文件 %1 无法重命名，因此没有新建文件。</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>不是格式正确的 XML</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>此处不允许文档类型声明</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>此处不允许元素“%1”</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>此处不允许文本</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>缺少属性“%1”</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>属性“%1”的值无效</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>元素“%1”过多</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>“撤销”可恢复最后一个完整的列表。</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>您的列表已损坏</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>无法使用以前的列表</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>有插件无法使用</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>有语言无法使用</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>显示下一条消息</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>“连接…”可显示信号信号范围内的其他网络。</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>未使用，因为不在信号范围内。</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>搜索日志(&amp;S)…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>搜索日志</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>下一个匹配项</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>上一个匹配项</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>匹配项：%1</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>没有匹配项</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>外观(&amp;A)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>与桌面一致(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>深色(&amp;K)</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>新建网络</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>“%1”未更改：已保存了同名网络，并且无法更改它。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>未做任何更改：有多个以“%1”为名的网络已保存，不知道指的是哪一个。请选择其他名称。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>“%1”未更改：已保存了同名网络，其中含有此处无法输入的内容，例如帐户。请在设置它的地方更改，或选择其他名称。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>“%1”未更改：已保存了同名网络，而这种安全类型或加密会更弱。请选择至少同等强度的安全类型和加密，或选择其他名称。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>“%1”未更改：已保存了同名网络，更改它需要完整的密钥。请输入密钥，或选择其他名称。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>“%1”未保存：同一网络已保存为“%2”，并且设置更好。请改为将“%2”添加到您的列表。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>“%1”未保存：网络名称为 1 到 32 个字节。带重音的字母和汉字等其他文字，每个占 2 到 4 个字节。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>“%1”未保存：这种安全类型、加密和密钥不能搭配使用。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>“%1”未保存：这种安全类型需要帐户，而此处无法输入。请在桌面设置中设置该网络，然后将其添加到您的列表。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>“%1”未保存：NetworkManager 未在运行。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>不知道“%1”是否已保存：NetworkManager 没有响应。</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>“%1”未保存：您没有权限在此计算机上保存网络。</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>“%1”未保存：NetworkManager 不接受它，很可能是密钥的原因。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>“%1”未保存：NetworkManager 报告了错误。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>“%1”未保存：已保存网络的文件无法读取或写入。详情请查看日志。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>“%1”未保存：已保存网络的文件已损坏，未作改动。所在行请查看日志。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>“%1”未保存：另一个程序正在更改网络。请稍后重试。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>您的列表</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>由于“%1”，您的列表顺序无法完全生效：无法更改此网络，并且它的优先级与它在列表中的位置不符。其他网络按列表顺序。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>由于“%1”和其他网络，您的列表顺序无法完全生效：无法更改这些网络，并且它们的优先级与它们在列表中的位置不符。名称请查看日志。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>“%1”不在您的列表中，但会先于列表中的网络被尝试：没有更高的优先级可用于这些网络。请将“%1”添加到您的列表，为它指定位置。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>“%1”不在您的列表规定的位置：其他用户的列表或其他程序再次更改了它的优先级。只要您更改列表，列表就会再次生效。</translation>
    </message>
</context>
</TS>
