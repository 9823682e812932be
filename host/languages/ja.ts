<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>PriorityPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>ネットワークの優先順位</translation>
    </message>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>ネットワークの優先順位</translation>
    </message>
    <message>
        <source>IDS_PROFILE_INFO</source>
        <translation>これらのネットワークのうち複数が圏内にあるときは、リストで最も上にあるものが使用されます。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD_TITLE</source>
        <translation>ネットワークの追加</translation>
    </message>
    <message>
        <source>IDS_NEWPROFILE</source>
        <translation>新しいネットワーク</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>IDS_LIST_NETWORK_NAME</source>
        <translation>ネットワーク名</translation>
    </message>
    <message>
        <source>IDS_KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>IDS_KEY_CONFIRM</source>
        <translation>キーの確認</translation>
    </message>
    <message>
        <source>IDS_AUTHENTICATION</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>IDS_ENCRYPTION</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>IDS_KEYINDEX</source>
        <translation>WEP インデックス</translation>
    </message>
    <message>
        <source>IDS_EAP_METHOD</source>
        <translation>EAP 方式</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BOX_TITLE</source>
        <translation>ネットワークの優先順位</translation>
    </message>
    <message>
        <source>IDS_WARNING_DELETE</source>
        <translation>選択したネットワークをリストから削除しますか？</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>ネットワーク名を入力してください。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>この名前のネットワークはすでにリストにあります。別の名前を入力してください。</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>これは有効な WEP キーではありません。WEP キーは 5 文字または 13 文字、あるいは 10 桁、26 桁、32 桁のいずれかの 16 進数 (0–&#x2060;9、a–&#x2060;f、A–&#x2060;F) です。

使用できるのは、文字、数字、および次の記号です。
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>これは有効な WPA キーではありません。WPA キーは 8 ～ 63 文字、または 64 桁の 16 進数 (0–&#x2060;9、a–&#x2060;f、A–&#x2060;F) です。

使用できるのは、文字、数字、および次の記号です。
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>2 つのキーが異なります。両方の欄に、大文字と小文字も含めて同じキーを入力してください。</translation>
    </message>
    <message>
        <source>IDS_ERROR_WRONG_AUTHENTICATION</source>
        <translation>セキュリティの種類を選択してください。</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>IDS_LANGUAGE_NAME</source>
        <translation>日本語</translation>
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
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TITLE</source>
        <translation>ネットワークダッシュボード</translation>
    </message>
    <message>
        <source>IDS_LIST_TITLE</source>
        <extracomment>Above the list</extracomment>
        <translation>リスト</translation>
    </message>
    <message>
        <source>IDS_MENU_NETWORK</source>
        <translation>ネットワーク(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_MENU_VIEW</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>IDS_MENU_LANGUAGE</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_ACTION_CONNECT</source>
        <translation>接続(&amp;C)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_DISCONNECT</source>
        <translation>切断(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_ACTION_SETTINGS</source>
        <translation>設定(&amp;S)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_REFRESH</source>
        <translation>更新(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_ACTION_QUIT</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE</source>
        <translation>ログを表示(&amp;T)</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CONNECT</source>
        <translation>接続…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SETTINGS</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>ログファイル %1 に書き込めません。ログはここにのみ表示されます。</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>IDS_CONNECT_TITLE</source>
        <translation>ネットワークへの接続</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT</source>
        <translation>リストにないネットワークは、リストの最後に入ります。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_TOP</source>
        <translation>リストにないネットワークは、リストの先頭に入ります。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_HINT_NONE</source>
        <translation>リストにないネットワークは、リストに入りません。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PERCENT</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OK</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NONE</source>
        <translation>圏内にネットワークがありません。見つかると、ここに表示されます。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SEARCH</source>
        <translation>ネットワークを探す</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_FOUND</source>
        <translation>圏内に、名前に「%1」を含むネットワークはありません。</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_OPEN</source>
        <extracomment>What a network in range asks for</extracomment>
        <translation>キーなし</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_KEY</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_WEAK</source>
        <extracomment>What a network in range asks for; 200 pixels</extracomment>
        <translation>弱いキー (WEP)</translation>
    </message>
    <message>
        <source>IDS_PROTECTION_ACCOUNT</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SAVED</source>
        <extracomment>Behind what a network in range asks for</extracomment>
        <translation>登録済み</translation>
    </message>
    <message>
        <source>IDS_CONNECT_PLACE</source>
        <translation>順位 %1</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LISTED</source>
        <translation>リストにあるもの</translation>
    </message>
    <message>
        <source>IDS_CONNECT_OTHERS</source>
        <translation>圏内のその他のネットワーク</translation>
    </message>
    <message>
        <source>IDS_CONNECT_KEY</source>
        <extracomment>Label of a field. %1: a network</extracomment>
        <translation>%1 のキー</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SHOW_KEY</source>
        <translation>キーを表示</translation>
    </message>
    <message>
        <source>IDS_CONNECT_ACCOUNT</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 にはアカウントが必要です。デスクトップのネットワーク設定で設定してください。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_AWAY</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 は圏内になくなりました。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_STOP</source>
        <extracomment>Button, in the place of Cancel while a network is being connected</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>IDS_CONNECT_LONG</source>
        <translation>いつもより時間がかかっています。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NOT_SAVED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 に接続しましたが、登録できませんでした。</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_KEYS</source>
        <translation>キーボード: Ctrl+↑ と Ctrl+↓ でネットワークを選択し、↑ と ↓ で移動します。</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_PRIORITY</source>
        <translation>ネットワークの優先順位</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_NETWORKMANAGER</source>
        <translation>Wi-Fi (NetworkManager)</translation>
    </message>
    <message>
        <source>IDS_PLUGIN_WLAN_STORED</source>
        <translation>Wi-Fi (練習用ネットワーク)</translation>
    </message>
    <message>
        <source>IDS_GENERAL_TITLE</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>IDS_GENERAL_LANGUAGE</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>IDS_RULES_TITLE</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>IDS_RULES_NEW</source>
        <extracomment>In the settings, above a box with the next three texts: where networks go in the list that are connected for the first time</extracomment>
        <translation>新しいネットワーク</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_END</source>
        <translation>リストの最後</translation>
    </message>
    <message>
        <source>IDS_NEW_AT_TOP</source>
        <translation>リストの先頭</translation>
    </message>
    <message>
        <source>IDS_NEW_NOT_LISTED</source>
        <translation>リストに入れない</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING</source>
        <translation>NetworkManager をこのリストに従わせる</translation>
    </message>
    <message>
        <source>IDS_RULES_RULING_HINT</source>
        <translation>オフにすると、各ネットワークの優先度はこのリストの前の値に戻ります。</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING</source>
        <translation>このウィンドウを閉じても順序を守る</translation>
    </message>
    <message>
        <source>IDS_RULES_KEEPING_HINT</source>
        <translation>ウィンドウのないプログラムが行います。今すぐ、そしてログインのたびに起動します。</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON</source>
        <translation>その間アイコンを表示する</translation>
    </message>
    <message>
        <source>IDS_RULES_ICON_HINT</source>
        <translation>デスクトップのパネルに、使用中のネットワーク、リストの先頭、接続の方法を示します。</translation>
    </message>
    <message>
        <source>IDS_ICON_OPEN</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING</source>
        <translation>より上のネットワークに自動で切り替える</translation>
    </message>
    <message>
        <source>IDS_RULES_FOLLOWING_HINT</source>
        <translation>リストでより上のネットワークが使用できるようになったときに切り替えます。手動で接続したネットワークからは切り替えません。VPN の使用中も切り替えません。</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING</source>
        <translation>モバイルブロードバンドはほかに接続がないときだけ</translation>
    </message>
    <message>
        <source>IDS_RULES_SAVING_HINT</source>
        <translation>データ通信量を節約します。リストのすべての Wi-Fi ネットワークより下にあるモバイルブロードバンドは、ほかのネットワークへの接続が 30 秒間ないと接続され、1 分間続くと切断されます。</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING</source>
        <translation>切り替えたときに通知する</translation>
    </message>
    <message>
        <source>IDS_RULES_NOTIFYING_HINT</source>
        <translation>切り替えのたびに、デスクトップの通知でお知らせします。</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_SWITCHED</source>
        <translation>%1 に切り替えました</translation>
    </message>
    <message>
        <source>IDS_NOTIFY_HIGHER</source>
        <translation>リストで %1 より上にあります。</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGINS</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_WORKS</source>
        <translation>読み込み済み</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_MISSING</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>ユーザーデータ: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>プラグインのフォルダー: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>バージョン: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>このページは表示できません。プラグイン %1 は読み込まれましたが、ページを提供していません。詳細はログを確認してください。</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>モバイルブロードバンド</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_USE</source>
        <translation>現在使用中</translation>
    </message>
    <message>
        <source>IDS_STATE_IN_RANGE</source>
        <translation>圏内</translation>
    </message>
    <message>
        <source>IDS_STATE_OUT_OF_RANGE</source>
        <translation>圏外</translation>
    </message>
    <message>
        <source>IDS_STATE_UNKNOWN</source>
        <translation>圏内かどうか不明</translation>
    </message>
    <message>
        <source>IDS_STATE_FALLBACK</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>現在使用中: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL</source>
        <translation>現在使用中: %1（サインインが必要）</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED</source>
        <translation>現在使用中: %1（インターネットなし）</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>使用中のネットワークはありません</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNKNOWN</source>
        <extracomment>In place of the network in use when it is not known which one that is</extracomment>
        <translation>接続状態は不明です</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>リストが空のため、選択できるネットワークがありません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_UNREADABLE</source>
        <extracomment>The list is damaged or cannot be opened; a message below tells which</extracomment>
        <translation>リスト全体を読み取れないため、どのネットワークが最初か不明です。</translation>
    </message>
    <message>
        <source>IDS_HEAD_RANGE_UNKNOWN</source>
        <translation>Wi-Fi プラグインを利用できないため、どのネットワークが圏内にあるか不明です。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_PRIORITY_PLUGIN</source>
        <translation>リストを管理するプラグインを利用できません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECTING</source>
        <extracomment>In place of the network in use while one is being connected. %1: a network</extracomment>
        <translation>接続中: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_NO_TRAFFIC</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 に接続していますが、通信はそこを通っていません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE</source>
        <extracomment>In place of the network in use</extracomment>
        <translation>NetworkManager が動作していません</translation>
    </message>
    <message>
        <source>IDS_HEAD_GONE_WHY</source>
        <extracomment>Follows: NetworkManager is not running</extracomment>
        <translation>どのネットワークが使用中か不明です。リストは変更でき、NetworkManager が動作すると有効になります。</translation>
    </message>
    <message>
        <source>IDS_HEAD_ASKING</source>
        <translation>NetworkManager からまだ応答がないため、どのネットワークが使用中か不明です。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_TOLD</source>
        <translation>Wi-Fi プラグインは、どのネットワークが使用中かを知らせていません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_PRACTICE</source>
        <extracomment>The headline while the networks are made up. %1: the headline, such as: In use now: Home</extracomment>
        <translation>%1（練習）</translation>
    </message>
    <message>
        <source>IDS_HEAD_FIRST</source>
        <extracomment>Why a network is in use</extracomment>
        <translation>リストの中で、使えることがわかっている最初のネットワークです。</translation>
    </message>
    <message>
        <source>IDS_HEAD_PORTAL_WHY</source>
        <translation>このネットワークでは、Web ページでのサインインが必要です。</translation>
    </message>
    <message>
        <source>IDS_HEAD_LIMITED_WHY</source>
        <translation>ネットワークは応答していますが、その先のインターネットは応答していません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_OTHER_KIND</source>
        <extracomment>What is in use is a cable, for example</extracomment>
        <translation>リストは Wi-Fi とモバイルブロードバンド用です。この接続は別の種類です。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOT_LISTED</source>
        <extracomment>Of the network in use</extracomment>
        <translation>これはリストにありません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_VPN</source>
        <extracomment>%1: what the user calls the VPN</extracomment>
        <translation>VPN %1 に接続しています。</translation>
    </message>
    <message>
        <source>IDS_HEAD_CHOICE</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>リストに従うと %1 が選ばれます。</translation>
    </message>
    <message>
        <source>IDS_HEAD_WITHOUT_IT</source>
        <extracomment>What is in use is a cable, for example. %1: a network</extracomment>
        <translation>これがなければ、リストに従って %1 が選ばれます。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_USABLE</source>
        <translation>リストには、使えることがわかっているネットワークがありません。</translation>
    </message>
    <message>
        <source>IDS_STAGE_PREPARING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>接続を準備しています。</translation>
    </message>
    <message>
        <source>IDS_STAGE_AUTHENTICATING</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>キーを確認しています。</translation>
    </message>
    <message>
        <source>IDS_STAGE_ADDRESS</source>
        <extracomment>How far a network is that is being connected</extracomment>
        <translation>ネットワークにアドレスを要求しています。</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTED</source>
        <extracomment>Of a network that is not in use, at the end of its row</extracomment>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>IDS_STATE_CONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>接続中</translation>
    </message>
    <message>
        <source>IDS_STATE_DISCONNECTING</source>
        <extracomment>At the end of a row</extracomment>
        <translation>切断中</translation>
    </message>
    <message>
        <source>IDS_STATE_HIDDEN</source>
        <extracomment>At the end of a row: the network does not tell its name</extracomment>
        <translation>非公開: 試します</translation>
    </message>
    <message>
        <source>IDS_STATE_NOT_SAVED</source>
        <extracomment>At the end of a row</extracomment>
        <translation>ここでは未登録</translation>
    </message>
    <message>
        <source>IDS_STATE_CANNOT</source>
        <extracomment>At the end of a row</extracomment>
        <translation>使えません</translation>
    </message>
    <message>
        <source>IDS_STATE_KEY_REFUSED</source>
        <extracomment>At the end of a row: when last tried</extracomment>
        <translation>キー拒否</translation>
    </message>
    <message>
        <source>IDS_STATE_FAILED</source>
        <extracomment>At the end of a row: it could not be connected when last tried</extracomment>
        <translation>前回は失敗</translation>
    </message>
    <message>
        <source>IDS_STATE_BY_HAND</source>
        <extracomment>At the end of a row: it does not connect by itself</extracomment>
        <translation>手動のみ</translation>
    </message>
    <message>
        <source>IDS_STATE_TWICE</source>
        <extracomment>At the end of a row: the network is in the list at a higher place too</extracomment>
        <translation>リストに重複</translation>
    </message>
    <message>
        <source>IDS_STATE_SIM</source>
        <extracomment>At the end of a row: the SIM card wants its PIN</extracomment>
        <translation>SIM ロック中</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_ADAPTER</source>
        <extracomment>At the end of a row</extracomment>
        <translation>アダプターなし</translation>
    </message>
    <message>
        <source>IDS_STATE_NO_MODEM</source>
        <extracomment>At the end of a row</extracomment>
        <translation>モデムなし</translation>
    </message>
    <message>
        <source>IDS_STATE_OFF</source>
        <extracomment>At the end of a row: the adapter or modem is off</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>IDS_USE_LOWER</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 がリストの上位にあります。</translation>
    </message>
    <message>
        <source>IDS_USE_HIDDEN</source>
        <translation>ネットワークが名前を公開していないため、圏内かどうか不明です。接続は試します。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_SECURITY</source>
        <translation>この名前のネットワークは圏内にありますが、セキュリティが異なります。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_DEVICE</source>
        <extracomment>station: an access point</extracomment>
        <translation>ここにはない別のアダプター、帯域、または基地局用に登録されています。</translation>
    </message>
    <message>
        <source>IDS_USE_NO_DEVICE</source>
        <translation>動作するアダプターまたはモデムがありません。</translation>
    </message>
    <message>
        <source>IDS_USE_OFF</source>
        <translation>アダプターまたはモデムがオフになっています。</translation>
    </message>
    <message>
        <source>IDS_USE_BLOCKED</source>
        <extracomment>By a hardware button or in flight mode</extracomment>
        <translation>このコンピューターのボタンによって、アダプターまたはモデムがオフになっています。</translation>
    </message>
    <message>
        <source>IDS_USE_SIM</source>
        <translation>SIM カードが PIN を求めています。</translation>
    </message>
    <message>
        <source>IDS_USE_OTHER_USERS</source>
        <translation>このコンピューターのほかのユーザーのものです。</translation>
    </message>
    <message>
        <source>IDS_USE_NO_ACCOUNT</source>
        <translation>アカウントが必要ですが、登録されていません。</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_SAVED</source>
        <translation>このコンピューターには、この名前のネットワークは登録されていません。</translation>
    </message>
    <message>
        <source>IDS_USE_NOT_KNOWN</source>
        <translation>使えるかどうか不明です。</translation>
    </message>
    <message>
        <source>IDS_USE_TWICE</source>
        <translation>すでにリストの上位にあるため、この順位は効果がありません。</translation>
    </message>
    <message>
        <source>IDS_USE_BY_HAND</source>
        <translation>自動では接続しません。</translation>
    </message>
    <message>
        <source>IDS_USE_KEPT</source>
        <translation>NetworkManager は、切り替えるまで、動作している接続を保ちます。</translation>
    </message>
    <message>
        <source>IDS_FAILED_OTHER</source>
        <translation>前回は接続できませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_KEY</source>
        <translation>前回はキーが拒否されました。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_KEY</source>
        <translation>前回はキーがありませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ANSWER</source>
        <translation>前回は応答がありませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NO_ADDRESS</source>
        <translation>前回はアドレスを取得できませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_REFUSED</source>
        <translation>前回はこのコンピューターの参加が拒否されました。</translation>
    </message>
    <message>
        <source>IDS_FAILED_SIM</source>
        <translation>前回は SIM カードが動作しませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_STOPPED</source>
        <translation>前回は手動で終了されました。</translation>
    </message>
    <message>
        <source>IDS_FAILED_DEVICE</source>
        <translation>前回はアダプターまたはモデムを利用できませんでした。</translation>
    </message>
    <message>
        <source>IDS_TRIED_KEY</source>
        <translation>キーが拒否されました。大文字と小文字は区別されます。</translation>
    </message>
    <message>
        <source>IDS_TRIED_SAVED_KEY</source>
        <translation>登録されているキーが拒否されました。デスクトップのネットワーク設定で変更できます。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_KEY</source>
        <translation>キーが必要ですが、登録されていません。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ANSWER</source>
        <translation>応答がありませんでした。遠すぎるのかもしれません。</translation>
    </message>
    <message>
        <source>IDS_TRIED_NO_ADDRESS</source>
        <translation>このコンピューターは参加できましたが、アドレスを取得できませんでした。</translation>
    </message>
    <message>
        <source>IDS_TRIED_REFUSED</source>
        <translation>このコンピューターの参加が拒否されました。</translation>
    </message>
    <message>
        <source>IDS_TRIED_SIM</source>
        <translation>SIM カードが動作しませんでした。</translation>
    </message>
    <message>
        <source>IDS_TRIED_STOPPED</source>
        <translation>中止されました。</translation>
    </message>
    <message>
        <source>IDS_TRIED_DEVICE</source>
        <translation>アダプターまたはモデムを利用できませんでした。</translation>
    </message>
    <message>
        <source>IDS_FAILED_NOT_ALLOWED</source>
        <translation>その操作は許可されていません。</translation>
    </message>
    <message>
        <source>IDS_SWITCH_TO</source>
        <extracomment>Tool tip of that button. %1: a network</extracomment>
        <translation>%1 に切り替え</translation>
    </message>
    <message>
        <source>IDS_SWITCH_FAILED</source>
        <extracomment>%1: a network. A reason may follow</extracomment>
        <translation>%1 に接続できませんでした。</translation>
    </message>
    <message>
        <source>IDS_DISCONNECT_FAILED</source>
        <extracomment>%1: a network</extracomment>
        <translation>%1 を切断できませんでした。</translation>
    </message>
    <message>
        <source>IDS_LIST_DAMAGED</source>
        <translation>リストのファイルが破損しています。破損箇所より前のネットワークだけを表示しています。</translation>
    </message>
    <message>
        <source>IDS_LIST_KEPT</source>
        <translation>ファイルのコピーを %1 として残しました。対処を選択するまで、このプログラムはリストを変更しません。</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REPAIR</source>
        <translation>対処を選択…</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_ALREADY</source>
        <translation>リストはこのプログラムの別のウィンドウで開かれています。ここに表示するには、そのウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>IDS_MODULE_OPEN_DASHBOARD</source>
        <translation>ネットワークダッシュボードを開く</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_TITLE</source>
        <translation>リストの破損</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_READ</source>
        <translation>リストのファイルを最後まで読み取れません。読み取れたネットワークの数: %1</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LAST</source>
        <translation>最後の完全なリストは %1 のものです。ネットワークの数: %2</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_NO_LAST</source>
        <translation>復元できる以前のリストはありません。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_COPY</source>
        <translation>どれを選択しても、破損したファイルは %1 として残ります。</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_BRING_BACK</source>
        <translation>最後の完全なリストを復元</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_GO_ON</source>
        <translation>読み取れたネットワークを残す</translation>
    </message>
    <message>
        <source>IDS_DAMAGE_LEAVE</source>
        <translation>ファイルをそのままにする</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>リストのファイルは存在しますが、開けません。アクセス権を確認してから「更新」を選択してください。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>プラグイン %1 は読み込まれましたが、リストを提供していません。</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>リストを表示できません</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>リストは空です</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>設定を開き、このコンピューターに登録済みのネットワークを加えるには「追加」を、自分で入力するには「新規」を選択してください。リストで上にあるネットワークほど優先されます。</translation>
    </message>
    <message>
        <source>IDS_FIRST_TITLE</source>
        <translation>どのネットワークを優先しますか？</translation>
    </message>
    <message>
        <source>IDS_FIRST_TAKE_OVER</source>
        <translation>このコンピューターにはネットワークが登録されています。今使われている順に取り込み、そのあと優先したいものを先頭に移動してください。</translation>
    </message>
    <message>
        <source>IDS_FIRST_CONNECT</source>
        <translation>ネットワークに接続すると、ここに表示されます。</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>理由は上のメッセージに示されています。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>プラグイン %1 は読み込まれていません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>プラグイン %1 が見つかりません。インストールするか、plugins/ を含むフォルダーを --library-path に指定してプログラムを起動してください。</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>プラグイン %1 はファイルが途中で切れているため、使用されません。インストールし直してください。</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>プラグイン %1 は別のメジャーバージョンの Qt 用にビルドされているため、使用されません。
検出: Qt %2
必要: Qt %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_LIBRARY</source>
        <translation>プラグイン %1 をライブラリとして読み込めません: %2</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_VERIFICATION</source>
        <translation>プラグイン %1 は対象のプログラムを示していないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_REFUSED</source>
        <translation>プラグイン %1 は別のプログラム用にビルドされているため、使用されません。
検出: %2
必要: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>ライブラリ %1 はプラグインではないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>プラグイン %1 は使用できるオブジェクトを返さなかったため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 はこのプログラム用のプラグインではないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>プラグイン %1 を開始できなかったため、使用されません。詳細はログを確認してください。</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>言語ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>言語ファイル %1 には使用できるテキストがないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>このコンピューターのネットワークです。NetworkManager がこのリストの順に接続を試みます。</translation>
    </message>
    <message>
        <source>IDS_NOTE_NOT_RULING</source>
        <translation>NetworkManager が自動で選びます。このリストに従わせるには、設定で変更してください。</translation>
    </message>
    <message>
        <source>IDS_RULED_SOME</source>
        <translation>NetworkManager は、%2 個のネットワークのうち %1 個でリストに従っています。</translation>
    </message>
    <message>
        <source>IDS_RULED_WHY</source>
        <translation>すべてではない理由</translation>
    </message>
    <message>
        <source>IDS_RULED_MEANS</source>
        <translation>その意味</translation>
    </message>
    <message>
        <source>IDS_ACTION_RULED</source>
        <translation>リストが決めること(&amp;W)…</translation>
    </message>
    <message>
        <source>IDS_RULED_TITLE</source>
        <translation>リストが決めること</translation>
    </message>
    <message>
        <source>IDS_RULED_TEXT</source>
        <translation>複数のネットワークが圏内にあるとき、このコンピューターが自動で接続するネットワークをリストが決めます。動作している接続は、切り替えるまで保たれます。ケーブルが最優先で、リストにないネットワークは最後になります。アダプターが複数あるときは、それぞれが使用できる最初のネットワークに接続します。</translation>
    </message>
    <message>
        <source>IDS_RULED_ALL</source>
        <translation>リストのすべての順位が効いています。</translation>
    </message>
    <message>
        <source>IDS_RULED_WINDOW</source>
        <translation>リストは、このウィンドウが開いている間だけ効きます。その後も順序を守るには、設定で変更してください。</translation>
    </message>
    <message>
        <source>IDS_RULED_TURN_ON</source>
        <translation>オンにする</translation>
    </message>
    <message>
        <source>IDS_RULED_CONNECT</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>IDS_RULED_BY_HAND</source>
        <translation>自動で接続しないため、順位は効きません。</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_ALLOWED</source>
        <translation>順位を変更できるのは管理者だけです。デスクトップのネットワーク設定で自分専用のネットワークにすると、順位が効くようになります。</translation>
    </message>
    <message>
        <source>IDS_RULED_PASSING</source>
        <translation>ほかのプログラムが毎回作り直すため、順位は保たれません。</translation>
    </message>
    <message>
        <source>IDS_RULED_REFUSED</source>
        <translation>NetworkManager は、その順位を受け付けませんでした。</translation>
    </message>
    <message>
        <source>IDS_RULED_OWN_METRIC</source>
        <translation>ルートのメトリックが個別に選ばれているため、ほかの接続が先に通信を受け持つことがあります。</translation>
    </message>
    <message>
        <source>IDS_RULED_OTHER_LIST</source>
        <translation>ほかの人のリストまたはプログラムが、その後に別の順位を付けました。リストを変更すると、ふたたびあなたのリストが効きます。</translation>
    </message>
    <message>
        <source>IDS_RULED_RETRIES</source>
        <translation>何度か失敗すると、NetworkManager は 5 分待ってからもう一度試します。</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ACTION</source>
        <translation>詳細(&amp;A)…</translation>
    </message>
    <message>
        <source>IDS_DETAILS_TITLE</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE</source>
        <translation>リスト内の順位:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PLACE_OF</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_LISTED</source>
        <translation>リストにありません</translation>
    </message>
    <message>
        <source>IDS_DETAILS_STATE</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROFILE</source>
        <translation>プロファイル %1 / %2</translation>
    </message>
    <message>
        <source>IDS_DETAILS_SECURITY</source>
        <translation>セキュリティ:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE</source>
        <translation>アダプターまたはモデム:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ONLY_DEVICE</source>
        <translation>%1 のみ</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ANY_DEVICE</source>
        <translation>どれでも</translation>
    </message>
    <message>
        <source>IDS_DETAILS_DEVICE_NOW</source>
        <translation>どれでも (現在は %1)</translation>
    </message>
    <message>
        <source>IDS_DETAILS_LAST_USED</source>
        <translation>前回の使用:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PRIORITY</source>
        <translation>NetworkManager での優先度:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_METERED</source>
        <translation>従量制課金接続:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_YES</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NO</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_YES</source>
        <translation>おそらく、はい</translation>
    </message>
    <message>
        <source>IDS_DETAILS_PROBABLY_NO</source>
        <translation>おそらく、いいえ</translation>
    </message>
    <message>
        <source>IDS_DETAILS_USERS</source>
        <translation>使用できるユーザー:</translation>
    </message>
    <message>
        <source>IDS_DETAILS_ALL_USERS</source>
        <translation>このコンピューターのすべてのユーザー</translation>
    </message>
    <message>
        <source>IDS_DETAILS_BY_ITSELF</source>
        <translation>自動で接続する</translation>
    </message>
    <message>
        <source>IDS_DETAILS_NOT_TURNED_OFF</source>
        <translation>%1 は、まだ自動で接続します。</translation>
    </message>
    <message>
        <source>IDS_FORGET_ACTION</source>
        <translation>ネットワークの破棄(&amp;G)…</translation>
    </message>
    <message>
        <source>IDS_FORGET_HINT</source>
        <translation>ネットワークをキーとともにこのコンピューターから取り除きます。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_KNOWN</source>
        <translation>現在、どのネットワークが登録されているか不明です。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NOT_SAVED</source>
        <translation>ここでは未登録なので、破棄するものはありません。リストから削除できます。</translation>
    </message>
    <message>
        <source>IDS_FORGET_WINDOW</source>
        <translation>ネットワークの破棄</translation>
    </message>
    <message>
        <source>IDS_FORGET_TITLE</source>
        <translation>%1 を破棄しますか？</translation>
    </message>
    <message>
        <source>IDS_FORGET_BUTTON</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>IDS_FORGET_IN_USE</source>
        <translation>接続中です。この接続は終了します。</translation>
    </message>
    <message>
        <source>IDS_FORGET_TEXT</source>
        <translation>このコンピューターからキーとともに破棄され、リストから外れます。</translation>
    </message>
    <message>
        <source>IDS_FORGET_SEVERAL</source>
        <translation>このコンピューターから、この名前のプロファイル %1 件すべてがキーとともに破棄され、リストから外れます。</translation>
    </message>
    <message>
        <source>IDS_FORGET_FOR_GOOD</source>
        <translation>順位は取り戻せますが、キーは取り戻せません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED</source>
        <translation>このコンピューターからキーとともに破棄されます。リストにはないため、リストは変わりません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_SEVERAL</source>
        <translation>このコンピューターから、この名前のプロファイル %1 件すべてがキーとともに破棄されます。このネットワークはリストにないため、リストは変わりません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FOR_GOOD</source>
        <translation>これは元に戻せません。キーも取り戻せません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNDER_WAY</source>
        <translation>破棄しています。</translation>
    </message>
    <message>
        <source>IDS_FORGET_DONE</source>
        <translation>%1 を破棄しました。リスト内の順位は取り戻せますが、キーは取り戻せません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_DONE</source>
        <translation>%1 を破棄しました。キーは取り戻せません。</translation>
    </message>
    <message>
        <source>IDS_FORGET_FAILED</source>
        <translation>%1 は破棄されず、リストに残っています。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_FAILED</source>
        <translation>%1 は破棄されませんでした。</translation>
    </message>
    <message>
        <source>IDS_FORGET_SOME</source>
        <translation>破棄したプロファイル: %1 / %2。</translation>
    </message>
    <message>
        <source>IDS_FORGET_NO_ANSWER</source>
        <translation>応答がなかったため、%1 が破棄されたかどうか不明です。リストには残っています。</translation>
    </message>
    <message>
        <source>IDS_FORGET_UNLISTED_NO_ANSWER</source>
        <translation>応答がなかったため、%1 が破棄されたかどうか不明です。</translation>
    </message>
    <message>
        <source>IDS_FORGET_STAYS</source>
        <translation>%1 は破棄されましたが、リストに残っています。</translation>
    </message>
    <message>
        <source>IDS_RULED_NOT_TURNED_ON</source>
        <translation>%1 は、まだ自動で接続しません。</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>これは練習用ネットワークです。このコンピューターのネットワークは変更されません。</translation>
    </message>
    <message>
        <source>IDS_MENU_EDIT</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>IDS_ACTION_UNDO</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_ACTION_REDO</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_ACTION_RESTORE</source>
        <translation>以前のリスト(&amp;L)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_IMPORT</source>
        <translation>リストのインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>IDS_ACTION_EXPORT</source>
        <translation>リストのエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_EDIT_CONNECT</source>
        <translation>接続(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_EDIT_UP</source>
        <translation>上へ移動(&amp;P)</translation>
    </message>
    <message>
        <source>IDS_EDIT_DOWN</source>
        <translation>下へ移動(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_EDIT_TOP</source>
        <translation>先頭へ移動(&amp;T)</translation>
    </message>
    <message>
        <source>IDS_EDIT_END</source>
        <translation>末尾へ移動(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_EDIT_TO_PLACE</source>
        <translation>順位を指定して移動(&amp;M)…</translation>
    </message>
    <message>
        <source>IDS_PLACE_WINDOW</source>
        <translation>順位を指定して移動</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_ONE</source>
        <translation>%1 の新しい順位（1（先頭）から %2 まで）:</translation>
    </message>
    <message>
        <source>IDS_PLACE_OF_SEVERAL</source>
        <translation>これらのネットワーク（%1 件）の最初のものの新しい順位（1（先頭）から %2 まで）。ほかはその後に続きます:</translation>
    </message>
    <message>
        <source>IDS_PLACE_MOVE</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>IDS_EDIT_REMOVE</source>
        <translation>リストから削除(&amp;F)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_ADD</source>
        <translation>リストに追加(&amp;O)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_TITLE</source>
        <translation>リストにないもの (%1)</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_HINT</source>
        <translation>クリックするか Enter キーを押すと、これらのネットワークの表示と非表示を切り替えます。</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_SAVED</source>
        <translation>%1 · 登録済み</translation>
    </message>
    <message>
        <source>IDS_UNLISTED_NONE</source>
        <translation>先に、リストにないネットワークを選択してください。</translation>
    </message>
    <message>
        <source>IDS_EDIT_NONE</source>
        <translation>先にリストでネットワークを選択してください。</translation>
    </message>
    <message>
        <source>IDS_EDIT_IN_PLACE</source>
        <translation>すでにその順位にあります。</translation>
    </message>
    <message>
        <source>IDS_EDIT_GONE</source>
        <translation>ほかのプログラムがリストを変更しました。%1 はもうリストにありません。</translation>
    </message>
    <message>
        <source>IDS_EDIT_PLACE</source>
        <translation>%1: %3 個中の順位 %2</translation>
    </message>
    <message>
        <source>IDS_FIND_ACTION</source>
        <translation>ネットワークを探す(&amp;W)</translation>
    </message>
    <message>
        <source>IDS_FIND_NONE</source>
        <translation>名前に「%1」を含むネットワークはありません。</translation>
    </message>
    <message>
        <source>IDS_FIND_CLEAR</source>
        <translation>検索をやめる</translation>
    </message>
    <message>
        <source>IDS_FIND_MOVES</source>
        <translation>ネットワークを上下に移動するには、検索をやめてください。</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UNDO</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>IDS_BUTTON_REDO</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TAKE_OVER</source>
        <translation>登録済みのネットワークを取り込む…</translation>
    </message>
    <message>
        <source>IDS_BUTTON_IMPORT</source>
        <translation>リストのインポート…</translation>
    </message>
    <message>
        <source>IDS_UNDO_WHAT</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>IDS_REDO_WHAT</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>IDS_UNDO_NOTHING</source>
        <translation>戻すことのできる以前のリストはありません。</translation>
    </message>
    <message>
        <source>IDS_REDO_NOTHING</source>
        <translation>元に戻した変更がないため、やり直すものはありません。</translation>
    </message>
    <message>
        <source>IDS_REDO_DAMAGED</source>
        <translation>リストのファイルが破損しています。「元に戻す」で、最後の完全なリストを復元できます。</translation>
    </message>
    <message>
        <source>IDS_UNDO_NO_PLUGIN</source>
        <translation>リストを管理するプラグインを利用できないため、リストを変更できません。</translation>
    </message>
    <message>
        <source>IDS_LAST_CHANGE</source>
        <translation>最後の変更: %1 (%2)</translation>
    </message>
    <message>
        <source>IDS_CHANGE_NONE</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>IDS_CHANGE_EMPTIED</source>
        <translation>すべてのネットワークを削除</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DAMAGED</source>
        <translation>ファイルが破損</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_ONE</source>
        <translation>%1 を追加</translation>
    </message>
    <message>
        <source>IDS_CHANGE_ADDED_MANY</source>
        <translation>%1 個のネットワークを追加</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_ONE</source>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>IDS_CHANGE_DELETED_MANY</source>
        <translation>%1 個のネットワークを削除</translation>
    </message>
    <message>
        <source>IDS_CHANGE_REPLACED</source>
        <translation>%1 を %2 に置き換え</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_UP</source>
        <translation>%1 を上へ移動</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_DOWN</source>
        <translation>%1 を下へ移動</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_TOP</source>
        <translation>%1 を先頭へ移動</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_END</source>
        <translation>%1 を末尾へ移動</translation>
    </message>
    <message>
        <source>IDS_CHANGE_MOVED_MANY</source>
        <translation>%1 個のネットワークを移動</translation>
    </message>
    <message>
        <source>IDS_CHANGE_WENT_BACK</source>
        <translation>%1 のリストを復元</translation>
    </message>
    <message>
        <source>IDS_CHANGE_UNNAMED</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>IDS_PLAN_NONE</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>リストは今のままです。</translation>
    </message>
    <message>
        <source>IDS_PLAN_EMPTY</source>
        <extracomment>What will be done, before it is done</extracomment>
        <translation>すべてのネットワークが削除されます。</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が追加されます。</translation>
    </message>
    <message>
        <source>IDS_PLAN_ADD_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 個のネットワークが追加されます。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_ONE</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が削除されます。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REMOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 個のネットワークが削除されます。</translation>
    </message>
    <message>
        <source>IDS_PLAN_REPLACE</source>
        <translation>%1 が %2 に置き換わります。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_UP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が上へ移動します。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_DOWN</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が下へ移動します。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_TOP</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が先頭へ移動します。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_END</source>
        <extracomment>What will be done, before it is done. %1: a network</extracomment>
        <translation>%1 が末尾へ移動します。</translation>
    </message>
    <message>
        <source>IDS_PLAN_MOVE_MANY</source>
        <extracomment>What will be done, before it is done. %1: a number, two or more</extracomment>
        <translation>%1 個のネットワークが移動します。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TITLE</source>
        <translation>以前のリスト</translation>
    </message>
    <message>
        <source>IDS_RESTORE_HINT</source>
        <translation>復元するリストを選択してください。現在のリストも残ります。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_TIME</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>IDS_RESTORE_CHANGE</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>IDS_RESTORE_STATUS</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>IDS_RESTORE_NOW</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>IDS_RESTORE_UNDONE</source>
        <translation>元に戻した変更</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OLDEST</source>
        <translation>保存されている最も古いリスト</translation>
    </message>
    <message>
        <source>IDS_RESTORE_PREVIEW</source>
        <translation>そのときのリスト</translation>
    </message>
    <message>
        <source>IDS_RESTORE_EFFECT</source>
        <translation>復元の結果: %1</translation>
    </message>
    <message>
        <source>IDS_RESTORE_IS_NOW</source>
        <translation>これは現在のリストです。</translation>
    </message>
    <message>
        <source>IDS_RESTORE_OK</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>IDS_RESTORE_ASIDE</source>
        <translation>ファイルを残して新しく始める</translation>
    </message>
    <message>
        <source>IDS_RESTORE_GONE</source>
        <translation>そのリストはもう保存されていません。別のものを選択してください。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TITLE</source>
        <translation>リストのインポート</translation>
    </message>
    <message>
        <source>IDS_IMPORT_HINT</source>
        <translation>リストをファイルのリストに置き換えます。変更内容を先に確認できます。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_SUMMARY</source>
        <translation>インポートの結果: %1</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NO_CHANGE</source>
        <translation>リストはすでにこの順序です。インポートするものはありません。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_PLACE</source>
        <translation>順位</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STAYS</source>
        <translation>そのままです</translation>
    </message>
    <message>
        <source>IDS_IMPORT_ADDED</source>
        <translation>追加されます</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_UP</source>
        <translation>上へ移動します</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED_DOWN</source>
        <translation>下へ移動します</translation>
    </message>
    <message>
        <source>IDS_IMPORT_MOVED</source>
        <translation>そのまま、ほかが移動します</translation>
    </message>
    <message>
        <source>IDS_IMPORT_REMOVED</source>
        <translation>リストから削除されます</translation>
    </message>
    <message>
        <source>IDS_IMPORT_EFFECT_UNKNOWN</source>
        <translation>%1 (未登録)</translation>
    </message>
    <message>
        <source>IDS_IMPORT_UNKNOWN</source>
        <translation>このコンピューターでは未登録: %1。これらのネットワークは、このコンピューターで設定するまで使用されません。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_OK</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_TITLE</source>
        <translation>登録済みのネットワークの取り込み</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_HINT</source>
        <translation>このコンピューターに登録済みのネットワークをリストにします。内容を先に確認できます。</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_SUMMARY</source>
        <translation>今使われている順の取り込み: %1</translation>
    </message>
    <message>
        <source>IDS_TAKE_OVER_OK</source>
        <translation>取り込む</translation>
    </message>
    <message>
        <source>IDS_IMPORT_NOT_READABLE</source>
        <translation>ファイル %1 は読み取れないか、リストとしては大きすぎます。リストは変更されていません。</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DAMAGED</source>
        <translation>ファイル %1 は、インポートできるネットワークリストではありません。%2。リストは変更されていません。</translation>
    </message>
    <message>
        <source>IDS_EXPORT_TITLE</source>
        <translation>リストのエクスポート</translation>
    </message>
    <message>
        <source>IDS_EXPORT_HINT</source>
        <translation>リストをファイルに保存します。キーは含まれません。</translation>
    </message>
    <message>
        <source>IDS_EXPORT_FILE_NAME</source>
        <translation>network-list.xml</translation>
    </message>
    <message>
        <source>IDS_EXPORT_NOT_WRITTEN</source>
        <translation>ファイル %1 に書き込めません。何も変更されていません。</translation>
    </message>
    <message>
        <source>IDS_ORDER_FILES</source>
        <translation>ネットワークリスト</translation>
    </message>
    <message>
        <source>IDS_ALL_FILES</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_WRITTEN</source>
        <translation>リストを %1 に書き込めません。ディスクの空き容量と、ファイルが書き込み禁止になっていないかを確認してください。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_KEPT</source>
        <translation>破損したファイル %1 のバックアップを作成できないため、変更していません。ディスクの空き容量と、フォルダーが書き込み禁止になっていないかを確認してください。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_DAMAGED</source>
        <translation>以前のリストのファイル %1 は破損しているため、変更していません。%2。「元に戻す」をまた使うには、「以前のリスト…」で新しいファイルを始めてください。破損したファイルは残ります。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_READABLE</source>
        <translation>以前のリストのファイル %1 を読み取れないため、変更していません。「元に戻す」をまた使うには、ファイルを読み取れるようにするか、「以前のリスト…」で新しいファイルを始めてください。古いファイルは残ります。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_WRITABLE</source>
        <translation>以前のリストを %1 に保存できません。変更を元に戻せるのは、プログラムを終了するまでです。</translation>
    </message>
    <message>
        <source>IDS_LIST_BUSY</source>
        <translation>ほかのプログラムがリストを使用しています。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>IDS_HISTORY_NOT_SET_ASIDE</source>
        <translation>ファイル %1 の名前を変更できないため、新しいファイルは始めていません。</translation>
    </message>
    <message>
        <source>IDS_FAULT_LINE</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>IDS_FAULT_XML</source>
        <translation>正しい形式の XML ではありません</translation>
    </message>
    <message>
        <source>IDS_FAULT_DECLARATION</source>
        <translation>ここでは文書型宣言を使用できません</translation>
    </message>
    <message>
        <source>IDS_FAULT_ELEMENT</source>
        <translation>ここでは要素「%1」を使用できません</translation>
    </message>
    <message>
        <source>IDS_FAULT_TEXT</source>
        <translation>ここではテキストを使用できません</translation>
    </message>
    <message>
        <source>IDS_FAULT_ATTRIBUTE</source>
        <translation>属性「%1」がありません</translation>
    </message>
    <message>
        <source>IDS_FAULT_VALUE</source>
        <translation>属性「%1」の値が正しくありません</translation>
    </message>
    <message>
        <source>IDS_FAULT_TOO_MANY</source>
        <translation>要素「%1」が多すぎます</translation>
    </message>
    <message>
        <source>IDS_LIST_UNDO_DAMAGE</source>
        <translation>「元に戻す」で、最後の完全なリストを復元できます。</translation>
    </message>
    <message>
        <source>IDS_BANNER_LIST_DAMAGED</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>リストが破損しています</translation>
    </message>
    <message>
        <source>IDS_BANNER_HISTORY</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>以前のリストを使えません</translation>
    </message>
    <message>
        <source>IDS_BANNER_PLUGIN</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>使えないプラグインがあります</translation>
    </message>
    <message>
        <source>IDS_BANNER_LANGUAGE</source>
        <extracomment>Title of a message above the list</extracomment>
        <translation>使えない言語があります</translation>
    </message>
    <message>
        <source>IDS_BANNER_COUNT</source>
        <extracomment>Button of a message: %1 is its number, %2 how many there are</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>IDS_BANNER_NEXT</source>
        <extracomment>Tool tip of that button</extracomment>
        <translation>次のメッセージを表示</translation>
    </message>
    <message>
        <source>IDS_HEAD_CONNECT_HINT</source>
        <translation>「接続…」で圏内のほかのネットワークを表示します。</translation>
    </message>
    <message>
        <source>IDS_WHY_OUT_OF_RANGE</source>
        <translation>圏外のため、使用していません。</translation>
    </message>
    <message>
        <source>IDS_ACTION_TRACE_SEARCH</source>
        <translation>ログを検索(&amp;S)…</translation>
    </message>
    <message>
        <source>IDS_TRACE_SEARCH</source>
        <translation>ログを検索</translation>
    </message>
    <message>
        <source>IDS_TRACE_NEXT</source>
        <translation>次の一致</translation>
    </message>
    <message>
        <source>IDS_TRACE_PREVIOUS</source>
        <translation>前の一致</translation>
    </message>
    <message>
        <source>IDS_TRACE_MATCHES</source>
        <translation>一致: %1 件</translation>
    </message>
    <message>
        <source>IDS_TRACE_NO_MATCH</source>
        <translation>一致なし</translation>
    </message>
    <message>
        <source>IDS_MENU_APPEARANCE</source>
        <translation>外観(&amp;A)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_SYSTEM</source>
        <translation>デスクトップに合わせる(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_LIGHT</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_APPEARANCE_DARK</source>
        <translation>ダーク(&amp;K)</translation>
    </message>
</context>
<context>
    <name>WLAN</name>
    <message>
        <source>IDS_WLAN_TITLE</source>
        <translation>新しいネットワーク</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_READ_ONLY</source>
        <translation>「%1」は変更されませんでした。この名前のネットワークはすでに登録されていて、変更できません。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_SEVERAL</source>
        <translation>何も変更されませんでした。「%1」という名前で複数のネットワークが登録されていて、どれのことか不明です。別の名前を選択してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_UNDESCRIBED</source>
        <translation>「%1」は変更されませんでした。この名前のネットワークはすでに登録されていて、アカウントなど、ここでは入力できない内容を含んでいます。設定した場所で変更するか、別の名前を選択してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_STRONGER</source>
        <translation>「%1」は変更されませんでした。この名前のネットワークはすでに登録されていて、このセキュリティまたは暗号化ではそれより弱くなります。同等以上のものか、別の名前を選択してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_KEPT_KEY</source>
        <translation>「%1」は変更されませんでした。この名前のネットワークはすでに登録されていて、変更するには完全なキーが必要です。キーを入力するか、別の名前を選択してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BETTER_PROFILE</source>
        <translation>「%1」は登録されませんでした。同じネットワークが、より良い設定で「%2」としてすでに登録されています。代わりに「%2」をリストに追加してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_NAME</source>
        <translation>「%1」は登録されませんでした。ネットワーク名は 1～32 バイトです。アクセント付きの文字や日本語などの文字は、1 文字につき 2～4 バイトになります。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BAD_SECURITY</source>
        <translation>「%1」は登録されませんでした。このセキュリティ、暗号化、キーは組み合わせられません。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ACCOUNT</source>
        <translation>「%1」は登録されませんでした。このセキュリティにはアカウントが必要ですが、ここでは入力できません。デスクトップの設定でネットワークを設定してから、リストに追加してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NOT_RUNNING</source>
        <translation>「%1」は登録されませんでした。NetworkManager が動作していません。</translation>
    </message>
    <message>
        <source>IDS_WLAN_NO_ANSWER</source>
        <translation>「%1」が登録されたかどうかは不明です。NetworkManager が応答しません。</translation>
    </message>
    <message>
        <source>IDS_WLAN_DENIED</source>
        <translation>「%1」は登録されませんでした。このコンピューターにネットワークを登録する権限がありません。</translation>
    </message>
    <message>
        <source>IDS_WLAN_REFUSED</source>
        <translation>「%1」は登録されませんでした。NetworkManager に受け付けられませんでした。原因はおそらくキーです。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FAILED</source>
        <translation>「%1」は登録されませんでした。NetworkManager がエラーを返しました。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_UNUSABLE</source>
        <translation>「%1」は登録されませんでした。登録済みネットワークのファイルを読み書きできません。詳細はログを確認してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_FILE_DAMAGED</source>
        <translation>「%1」は登録されませんでした。登録済みネットワークのファイルが破損しているため、変更していません。該当する行はログを確認してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_BUSY</source>
        <translation>「%1」は登録されませんでした。ほかのプログラムがネットワークを変更しています。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_TITLE</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_FIXED</source>
        <translation>「%1」のため、リストの順番を完全には適用できません。このネットワークは変更できず、その優先度がリストでの順位に合いません。ほかのネットワークはリストに従います。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_SEVERAL</source>
        <translation>「%1」とほかのネットワークのため、リストの順番を完全には適用できません。これらは変更できず、優先度がリストでの順位に合いません。名前はログをご覧ください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OVERTAKEN</source>
        <translation>「%1」はリストにありませんが、リストにあるネットワークより先に試されます。それらのための、より高い優先度はありません。順位を付けるには、「%1」をリストに追加してください。</translation>
    </message>
    <message>
        <source>IDS_WLAN_ORDER_OTHER</source>
        <translation>「%1」はリストの順位どおりになっていません。ほかのユーザーのリストまたはほかのプログラムが、優先度を再び変更しました。リストを変更すると、再びリストの順番になります。</translation>
    </message>
</context>
</TS>
