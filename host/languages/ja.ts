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
        <translation>複数のネットワークが圏内にあるときは、リストで最も上にあるものが使用されます。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_UP</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DOWN</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ADD</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DELETE</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NEW</source>
        <translation>新規</translation>
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
        <translation>キー番号</translation>
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
        <translation>選択したネットワークを優先順位リストから削除しますか？</translation>
    </message>
    <message>
        <source>IDS_ERROR_EMPTY_SSID</source>
        <translation>ネットワーク名を入力してください。</translation>
    </message>
    <message>
        <source>IDS_PROFILE_NAME_REPEAT</source>
        <translation>この名前のネットワークはすでに優先順位リストにあります。</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_40</source>
        <translation>このキーは WEP には使用できません。キーは 5 文字または 13 文字、あるいは 10 桁、26 桁、32 桁のいずれかの 16 進数 (0–&#x2060;9、a–&#x2060;f、A–&#x2060;F) にしてください。

使用できるのは、文字、数字、および次の記号です。
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_WRONG_LENGTH_128</source>
        <translation>このキーは WPA には使用できません。キーは 8 ～ 63 文字、または 64 桁の 16 進数 (0–&#x2060;9、a–&#x2060;f、A–&#x2060;F) にしてください。

使用できるのは、文字、数字、および次の記号です。
- _ ~ ! @ # $ % ^ &amp; * ( ) + { } [ ] :</translation>
    </message>
    <message>
        <source>IDS_ERROR_KEY_DIFFERENT</source>
        <translation>2 つのキーが一致しません。両方の欄に同じキーを入力してください。大文字と小文字は区別されます。</translation>
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
        <source>IDS_WINDOW_TITLE</source>
        <translation>ネットワーク ダッシュボード</translation>
    </message>
    <message>
        <source>IDS_MENU_FILE</source>
        <translation>ファイル(&amp;F)</translation>
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
        <translation>トレースを表示(&amp;T)</translation>
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
        <source>IDS_BUTTON_REFRESH</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>IDS_BUTTON_TRACE</source>
        <translation>トレースを表示</translation>
    </message>
    <message>
        <source>IDS_TRACE_TITLE</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>IDS_LOG_NOT_WRITABLE</source>
        <translation>ログ ファイル %1 に書き込めません。トレースはここにのみ表示されます。</translation>
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
        <translation>接続したネットワークは、リストの先頭に移動します。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NETWORK</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>IDS_CONNECT_SIGNAL</source>
        <translation>電波強度</translation>
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
        <translation>圏内にネットワークがありません。利用できるようになったら、この画面をもう一度開いてください。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_WLAN</source>
        <translation>Wi-Fi プラグインを利用できないため、接続できるネットワークがありません。</translation>
    </message>
    <message>
        <source>IDS_CONNECT_NO_PRIORITY</source>
        <translation>リストを管理するプラグインを利用できないため、ネットワークをリストの先頭に移動できません。</translation>
    </message>
    <message>
        <source>IDS_SETTINGS_TITLE</source>
        <translation>設定</translation>
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
        <translation>Wi-Fi (ファイル内のネットワーク)</translation>
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
        <source>IDS_GENERAL_PLUGIN_NOT_NEEDED</source>
        <translation>不要</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLACES</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>IDS_GENERAL_USER_DATA</source>
        <translation>ユーザー データ: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_PLUGIN_LIBRARY</source>
        <translation>プラグインの場所: %1</translation>
    </message>
    <message>
        <source>IDS_GENERAL_VERSION</source>
        <translation>バージョン: %1</translation>
    </message>
    <message>
        <source>IDS_PAGE_NOT_SHOWN</source>
        <translation>このページは表示できません。プラグイン %1 は読み込まれましたが、ページを提供していません。詳細はトレースで確認できる場合があります。</translation>
    </message>
    <message>
        <source>IDS_KIND_WIFI</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>IDS_KIND_MOBILE</source>
        <translation>モバイル ブロードバンド</translation>
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
        <translation>予備として待機中</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE</source>
        <translation>現在使用中: %1</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_WIFI</source>
        <translation>リストの中で、圏内にある最初のネットワークです。</translation>
    </message>
    <message>
        <source>IDS_HEAD_IN_USE_MOBILE</source>
        <translation>リストでこれより上にある Wi-Fi ネットワークは、どれも圏内にありません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NONE</source>
        <translation>使用中のネットワークはありません</translation>
    </message>
    <message>
        <source>IDS_HEAD_EMPTY</source>
        <translation>リストが空のため、選択できるネットワークがありません。</translation>
    </message>
    <message>
        <source>IDS_HEAD_NOTHING_IN_RANGE</source>
        <translation>リストのネットワークは、どれも圏内にありません。</translation>
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
        <source>IDS_LIST_DAMAGED</source>
        <translation>リストのファイルが破損しています。破損箇所より前の内容を表示しています。設定でネットワークを追加すると、ファイルは新しく書き直されます。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OPENED</source>
        <translation>リストのファイルは存在しますが、開けません。アクセス権を確認してから更新してください。</translation>
    </message>
    <message>
        <source>IDS_LIST_NOT_OFFERED</source>
        <translation>プラグイン %1 は読み込まれましたが、リストを提供していません。</translation>
    </message>
    <message>
        <source>IDS_NO_LIST_TITLE</source>
        <translation>表示できるリストがありません</translation>
    </message>
    <message>
        <source>IDS_EMPTY_TITLE</source>
        <translation>優先順位リストは空です</translation>
    </message>
    <message>
        <source>IDS_EMPTY_HINT</source>
        <translation>設定を開き、このコンピューターに登録済みのネットワークは「追加」、自分で入力する場合は「新規」を選択してください。リストで上にあるネットワークほど優先されます。</translation>
    </message>
    <message>
        <source>IDS_EMPTY_UNREADABLE</source>
        <translation>内容をまったく読み取れません。上のメッセージを確認してください。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_LOADED</source>
        <translation>プラグイン %1 は読み込まれていません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_MISSING</source>
        <translation>プラグイン %1 が見つかりません。インストールするか、--library-path に plugins/ フォルダーを含むディレクトリを指定して起動してください。</translation>
    </message>
    <message>
        <source>IDS_LOAD_CUT</source>
        <translation>プラグイン %1 はファイルが途中で切れているため、使用されません。インストールし直してください。</translation>
    </message>
    <message>
        <source>IDS_LOAD_OTHER_TOOLKIT</source>
        <translation>プラグイン %1 は別の世代の Qt 用に作成されているため、使用されません。
検出: Qt %2
期待: Qt %3</translation>
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
        <translation>プラグイン %1 は別のプログラム用に作成されているため、使用されません。
検出: %2
期待: %3</translation>
    </message>
    <message>
        <source>IDS_LOAD_NO_ENTRY_POINT</source>
        <translation>ライブラリ %1 にはプラグインのエントリ ポイントがないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NULL_INSTANCE</source>
        <translation>プラグイン %1 は使用できるオブジェクトを返さなかったため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_NOT_A_PLUGIN</source>
        <translation>%1 が返したものはこのプログラムのプラグインではないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LOAD_INIT_FAILED</source>
        <translation>プラグイン %1 は動作できないと報告したため、使用されません。詳細はトレースで確認できる場合があります。</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_UNREADABLE</source>
        <translation>言語ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_DAMAGED</source>
        <translation>言語ファイル %1 は %2 バイト目以降が破損しているため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_LANGUAGE_NO_TEXTS</source>
        <translation>言語ファイル %1 には使用できるテキストがないため、使用されません。</translation>
    </message>
    <message>
        <source>IDS_HINT_NETWORKMANAGER</source>
        <translation>NetworkManager は動作していますか？</translation>
    </message>
    <message>
        <source>IDS_NOTE_NETWORKMANAGER</source>
        <extracomment>At the foot of the main window; two lines of 450 pixels at most</extracomment>
        <translation>このコンピューターのネットワークです。NetworkManager がこのリストの順序に従います。</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED</source>
        <translation>このプログラム独自のネットワークです。コンピューターのネットワークは変更されません。</translation>
    </message>
    <message>
        <source>IDS_NOTE_STORED_STANDS_IN</source>
        <translation>NetworkManager を利用できません。これはこのプログラム独自のネットワークで、コンピューターのネットワークは変更されません。</translation>
    </message>
</context>
</TS>
