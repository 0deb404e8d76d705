<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>Vantrixを開く</translation></message>
    <message><source>Settings…</source><translation>設定…</translation></message>
    <message><source>Quit Vantrix</source><translation>Vantrixを終了</translation></message>
    <message><source>Vantrix menu</source><translation>Vantrixのメニュー</translation></message>
    <message><source>Settings and quit</source><translation>設定と終了</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>メモリ</translation></message>
    <message><source>Network</source><translation>ネットワーク</translation></message>
    <message><source>Disk</source><translation>ディスク</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>CPU温度</translation></message>
    <message><source>Battery</source><translation>バッテリー</translation></message>
    <message><source>Sensors</source><translation>センサー</translation></message>
    <message><source>Accessories</source><translation>アクセサリ</translation></message>
    <message><source>Bluetooth accessories</source><translation>Bluetoothアクセサリ</translation></message>
    <message><source>Inline</source><translation>横並び</translation></message>
    <message><source>Stacked</source><translation>2段</translation></message>
    <message><source>With graph</source><translation>グラフ付き</translation></message>
    <message><source>General</source><translation>一般</translation></message>
    <message><source>Menu Bar</source><translation>メニューバー</translation></message>
    <message><source>Popover</source><translation>ポップアップ</translation></message>
    <message><source>Alerts</source><translation>通知</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISK</translation></message>
    <message><source>CHG</source><translation>CHG</translation></message>
    <message><source>BAT</source><translation>BAT</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>カードが選択されていません。「設定」→「ポップアップ」で表示する項目を選んでください。</translation>
    </message>
    <message><source>User</source><translation>ユーザー</translation></message>
    <message><source>System</source><translation>システム</translation></message>
    <message><source>Idle</source><translation>アイドル</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lldコア</numerusform></translation>
    </message>
    <message><source>%lld cores (%lldP + %lldE)</source><translation>%lldコア (%lldP + %lldE)</translation></message>
    <message><source>App</source><translation>アプリ</translation></message>
    <message><source>Wired</source><translation>確保済み</translation></message>
    <message><source>Compressed</source><translation>圧縮</translation></message>
    <message><source>Swap used</source><translation>スワップ使用</translation></message>
    <message><source>Pressure: normal</source><translation>メモリプレッシャー: 正常</translation></message>
    <message><source>Pressure: warning</source><translation>メモリプレッシャー: 警告</translation></message>
    <message><source>Pressure: critical</source><translation>メモリプレッシャー: 深刻</translation></message>
    <message><source>Kernel</source><translation>カーネル</translation></message>
    <message><source>Programs by CPU use</source><translation>CPUの使用量が多いプログラム</translation></message>
    <message><source>Programs by memory use</source><translation>メモリの使用量が多いプログラム</translation></message>
    <message><source>of %@</source><translation>/ %@</translation></message>
    <message><source>%@ free</source><translation>空き%@</translation></message>
    <message><source>%@ free of %@</source><translation>空き%@ / %@</translation></message>
    <message><source>Download</source><translation>ダウンロード</translation></message>
    <message><source>Upload</source><translation>アップロード</translation></message>
    <message><source>Network name unavailable</source><translation>ネットワーク名を取得できません</translation></message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>位置情報へのアクセスを許可するとネットワーク名が表示されます</translation>
    </message>
    <message><source>Signal</source><translation>信号</translation></message>
    <message><source>Signal-to-noise</source><translation>SN比</translation></message>
    <message><source>Link speed</source><translation>リンク速度</translation></message>
    <message><source>Interface</source><translation>インターフェイス</translation></message>
    <message><source>IP address</source><translation>IPアドレス</translation></message>
    <message><source>%@ is not available</source><translation>%@は利用できません</translation></message>
    <message><source>Excellent</source><translation>非常に良好</translation></message>
    <message><source>Good</source><translation>良好</translation></message>
    <message><source>Fair</source><translation>普通</translation></message>
    <message><source>Weak</source><translation>弱い</translation></message>
    <message><source>Read</source><translation>読み出し</translation></message>
    <message><source>Write</source><translation>書き込み</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>最大%@</translation></message>
    <message><source>System power</source><translation>システム電力</translation></message>
    <message><source>Adapter input</source><translation>アダプタ入力</translation></message>
    <message><source>CPU power</source><translation>CPU電力</translation></message>
    <message><source>GPU power</source><translation>GPU電力</translation></message>
    <message><source>Neural Engine</source><translation>Neural Engine</translation></message>
    <message><source>Memory (DRAM)</source><translation>メモリ (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>ファン%lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>すべてのセンサー (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>このMacでは温度を取得できません。</translation>
    </message>
    <message><source>Charging</source><translation>充電中</translation></message>
    <message><source>Plugged in</source><translation>電源に接続済み</translation></message>
    <message><source>On battery</source><translation>バッテリー駆動</translation></message>
    <message><source>to full: %@</source><translation>満充電まで%@</translation></message>
    <message><source>left: %@</source><translation>残り%@</translation></message>
    <message><source>Maximum capacity</source><translation>最大容量</translation></message>
    <message><source>Cycle count</source><translation>充放電回数</translation></message>
    <message><source>Temperature</source><translation>温度</translation></message>
    <message><source>Charging power</source><translation>充電電力</translation></message>
    <message><source>Discharge power</source><translation>放電電力</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>%lld台接続中</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld秒</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld時間%lld分</translation></message>
    <message><source>%lldm</source><translation>%lld分</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lldバイト</numerusform></translation>
    </message>
    <message><source>%@ KB</source><translation>%@ KB</translation></message>
    <message><source>%@ MB</source><translation>%@ MB</translation></message>
    <message><source>%@ GB</source><translation>%@ GB</translation></message>
    <message><source>%@ TB</source><translation>%@ TB</translation></message>
    <message><source>%@ PB</source><translation>%@ PB</translation></message>
    <message><source>%@ EB</source><translation>%@ EB</translation></message>
    <message><source>%@ KiB</source><translation>%@ KiB</translation></message>
    <message><source>%@ MiB</source><translation>%@ MiB</translation></message>
    <message><source>%@ GiB</source><translation>%@ GiB</translation></message>
    <message><source>%@ TiB</source><translation>%@ TiB</translation></message>
    <message><source>%@ kb</source><translation>%@ kb</translation></message>
    <message><source>%@ Mb</source><translation>%@ Mb</translation></message>
    <message><source>%@ Gb</source><translation>%@ Gb</translation></message>
    <message><source>%@ Tb</source><translation>%@ Tb</translation></message>
    <message numerus="yes">
        <source>%lld bits</source>
        <translation><numerusform>%lldビット</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/秒</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbps</translation></message>
    <message><source>%@ rpm</source><translation>%@ rpm</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Vantrixの設定</translation></message>
    <message><source>Launch at login</source><translation>ログイン時に起動</translation></message>
    <message><source>Update every</source><translation>更新間隔</translation></message>
    <message><source>Color thresholds</source><translation>色のしきい値</translation></message>
    <message><source>Warning</source><translation>警告</translation></message>
    <message><source>Critical</source><translation>危険</translation></message>
    <message><source>Warning threshold</source><translation>警告のしきい値</translation></message>
    <message><source>Critical threshold</source><translation>危険のしきい値</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>この値を超えると、バー、リング、メニューバーがオレンジや赤に変わります。</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>警告のしきい値が危険のしきい値以上のため、オレンジにはなりません。</translation>
    </message>
    <message><source>Units</source><translation>単位</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>バイト</translation></message>
    <message><source>Bits</source><translation>ビット</translation></message>
    <message><source>GB</source><translation>GB</translation></message>
    <message><source>GiB</source><translation>GiB</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>どちらの表記でもメモリは1024を単位に数えます。</translation>
    </message>
    <message><source>Preview</source><translation>プレビュー</translation></message>
    <message><source>Select at least one module</source><translation>モジュールを1つ以上選択してください</translation></message>
    <message><source>Style</source><translation>スタイル</translation></message>
    <message><source>Layout</source><translation>レイアウト</translation></message>
    <message><source>Color values above the thresholds</source><translation>しきい値を超えた値に色を付ける</translation></message>
    <message><source>Modules</source><translation>モジュール</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>選択したモジュールだけが、この順序でメニューバーに表示されます。何も選択しない場合は、Vantrixのアイコンだけが表示されます。</translation>
    </message>
    <message><source>Move %@ up</source><translation>%@を上に移動</translation></message>
    <message><source>Move %@ down</source><translation>%@を下に移動</translation></message>
    <message><source>What modules show</source><translation>モジュールの表示内容</translation></message>
    <message><source>Space in use</source><translation>使用容量</translation></message>
    <message><source>Read and write</source><translation>読み書き速度</translation></message>
    <message><source>Mean</source><translation>平均</translation></message>
    <message><source>Hottest</source><translation>最高</translation></message>
    <message><source>Network interface</source><translation>ネットワークインターフェイス</translation></message>
    <message><source>All hardware ports</source><translation>すべてのハードウェアポート</translation></message>
    <message><source>Disk volume</source><translation>ボリューム</translation></message>
    <message><source>System volume</source><translation>システムボリューム</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>インターフェイスとボリュームの選択は、ポップアップと通知にも使われます。</translation>
    </message>
    <message><source>Cards</source><translation>カード</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>GPU、センサー、バッテリーは、情報を取得できるMacでのみ表示されます。</translation>
    </message>
    <message><source>Send notifications</source><translation>通知を送信</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>同じ通知は、15分に1回まで送信されます。</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>CPUの通知には、「一般」で設定した危険のしきい値が使われます。</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>原因となっているプログラムを表示</translation></message>
    <message><source>Notify me about</source><translation>通知する状態</translation></message>
    <message><source>CPU above %@</source><translation>CPU使用率が%@を超えたとき</translation></message>
    <message><source>Memory under pressure</source><translation>メモリが逼迫したとき</translation></message>
    <message><source>Disk almost full</source><translation>ディスクの空きが残りわずか</translation></message>
    <message>
        <source>Battery at %@ or less, not charging</source>
        <translation>バッテリー残量が%@以下で充電していないとき</translation>
    </message>
    <message><source>CPU temperature above 95 °C</source><translation>CPU温度が95 °Cを超えたとき</translation></message>
    <message><source>CPU temperature above %@</source><translation>CPU温度が%@を超えたとき</translation></message>
    <message><source>Conditions</source><translation>条件</translation></message>
    <message><source>Only after it lasts</source><translation>継続時間</translation></message>
    <message><source>Disk full threshold</source><translation>ディスク使用率のしきい値</translation></message>
    <message><source>Disk full alert at</source><translation>ディスク通知の使用率</translation></message>
    <message><source>Battery low alert at</source><translation>バッテリー通知の残量</translation></message>
    <message><source>CPU temperature alert at</source><translation>CPU温度通知のしきい値</translation></message>
    <message><source>Send test notification</source><translation>テスト通知を送信</translation></message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>CPU使用率が高くなっています</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>CPU使用率がしばらく%@以上になっています。</translation>
    </message>
    <message><source>Memory is running low</source><translation>メモリが不足しています</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>%2$@中%1$@が使用中で、メモリが逼迫しています。</translation>
    </message>
    <message><source>Only %@ free on the startup disk.</source><translation>起動ディスクの空き容量は残り%@です。</translation></message>
    <message><source>Only %@ free on %@.</source><translation>%2$@の空き容量は残り%1$@です。</translation></message>
    <message><source>Battery low</source><translation>バッテリー残量が少なくなっています</translation></message>
    <message><source>%@ left. Plug in the charger.</source><translation>残り%@です。充電器を接続してください。</translation></message>
    <message><source>CPU is running hot</source><translation>CPUが高温になっています</translation></message>
    <message><source>The CPU temperature is %@.</source><translation>CPUの温度は%@です。</translation></message>
    <message><source>Notifications are working.</source><translation>通知は正常に動作しています。</translation></message>
    <message><source>Test notification sent.</source><translation>テスト通知を送信しました。</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Vantrixの通知はオフになっています。「システム設定」→「通知」でオンにしてください。</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>このVantrixは開発者のIDで署名されていないため、macOSは通知を表示しません。</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>現在</translation></message>
    <message><source>%lld s ago</source><translation>%lld秒前</translation></message>
    <message><source>%lld min ago</source><translation>%lld分前</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>現在%@、最低%@、最高%@</translation></message>
    <message><source>CPU load</source><translation>CPUの負荷</translation></message>
    <message><source>Load of each core</source><translation>各コアの負荷</translation></message>
    <message><source>Memory in use</source><translation>使用中のメモリ</translation></message>
    <message><source>Disk space in use</source><translation>使用中のディスク容量</translation></message>
    <message><source>GPU load</source><translation>GPUの負荷</translation></message>
    <message><source>Download history</source><translation>ダウンロード速度の推移</translation></message>
    <message><source>Upload history</source><translation>アップロード速度の推移</translation></message>
    <message><source>Read history</source><translation>読み出し速度の推移</translation></message>
    <message><source>Write history</source><translation>書き込み速度の推移</translation></message>
    <message><source>GPU history</source><translation>GPU負荷の推移</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>Bluetoothデバイス</translation></message>
    <message><source>Wireless device</source><translation>ワイヤレスデバイス</translation></message>
    <message><source>Graphics tablet</source><translation>ペンタブレット</translation></message>
    <message><source>Game controller</source><translation>ゲームコントローラ</translation></message>
    <message><source>%@ case</source><translation>%@のケース</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>自宅</translation></message>
    <message><source>Keyboard</source><translation>キーボード</translation></message>
    <message><source>Mouse</source><translation>マウス</translation></message>
    <message><source>Headphones</source><translation>ヘッドフォン</translation></message>
    <message><source>Wi-Fi</source><translation>Wi-Fi</translation></message>
    <message><source>Ethernet</source><translation>Ethernet</translation></message>
    <message><source>USB Ethernet</source><translation>USB Ethernet</translation></message>
    <message><source>Mobile broadband</source><translation>モバイルブロードバンド</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>Bluetooth</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>ブリッジ</translation></message>
    <message><source>Bond</source><translation>ボンド</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@°C</translation></message>
    <message><source>%@°F</source><translation>%@°F</translation></message>
    <message><source>Battery charge</source><translation>バッテリー残量</translation></message>
</context>
</TS>
