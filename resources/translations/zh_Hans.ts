<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <!-- The menu -->
    <message><source>Vantrix</source><translation>Vantrix</translation></message>
    <message><source>Open Vantrix</source><translation>打开 Vantrix</translation></message>
    <message><source>Settings…</source><translation>设置…</translation></message>
    <message><source>Quit Vantrix</source><translation>退出 Vantrix</translation></message>
    <message><source>Vantrix menu</source><translation>Vantrix 菜单</translation></message>
    <message><source>Settings and quit</source><translation>设置与退出</translation></message>
    <!-- Readings, layouts and tabs -->
    <message><source>CPU</source><translation>CPU</translation></message>
    <message><source>Memory</source><translation>内存</translation></message>
    <message><source>Network</source><translation>网络</translation></message>
    <message><source>Disk</source><translation>磁盘</translation></message>
    <message><source>GPU</source><translation>GPU</translation></message>
    <message><source>CPU temperature</source><translation>CPU 温度</translation></message>
    <message><source>Battery</source><translation>电池</translation></message>
    <message><source>Sensors</source><translation>传感器</translation></message>
    <message><source>Accessories</source><translation>配件</translation></message>
    <message><source>Bluetooth accessories</source><translation>蓝牙配件</translation></message>
    <message><source>Inline</source><translation>单行</translation></message>
    <message><source>Stacked</source><translation>堆叠</translation></message>
    <message><source>With graph</source><translation>带图表</translation></message>
    <message><source>General</source><translation>通用</translation></message>
    <message><source>Menu Bar</source><translation>菜单栏</translation></message>
    <message><source>Popover</source><translation>概览</translation></message>
    <message><source>Alerts</source><translation>提醒</translation></message>
    <!-- Captions beside the values of the status item: as short as CPU and RAM -->
    <message><source>DISK</source><translation>DISK</translation></message>
    <message><source>CHG</source><translation>CHG</translation></message>
    <message><source>BAT</source><translation>BAT</translation></message>
    <!-- Cards -->
    <message>
        <source>No cards selected. Choose what to show in Settings → Popover.</source>
        <translation>未选择任何卡片。请在“设置”→“概览”中选择要显示的内容。</translation>
    </message>
    <message><source>User</source><translation>用户</translation></message>
    <message><source>System</source><translation>系统</translation></message>
    <message><source>Idle</source><translation>闲置</translation></message>
    <message numerus="yes">
        <source>%lld cores</source>
        <translation><numerusform>%lld 个核心</numerusform></translation>
    </message>
    <message><source>%lld cores (%lldP + %lldE)</source><translation>%lld 个核心 (%lldP + %lldE)</translation></message>
    <message><source>App</source><translation>应用</translation></message>
    <message><source>Wired</source><translation>固定</translation></message>
    <message><source>Compressed</source><translation>已压缩</translation></message>
    <message><source>Swap used</source><translation>交换区已用</translation></message>
    <message><source>Pressure: normal</source><translation>压力：正常</translation></message>
    <message><source>Pressure: warning</source><translation>压力：偏高</translation></message>
    <message><source>Pressure: critical</source><translation>压力：严重</translation></message>
    <message><source>Kernel</source><translation>内核</translation></message>
    <message><source>Programs by CPU use</source><translation>按 CPU 占用排列的程序</translation></message>
    <message><source>Programs by memory use</source><translation>按内存占用排列的程序</translation></message>
    <message><source>of %@</source><translation>/ %@</translation></message>
    <message><source>%@ free</source><translation>%@ 可用</translation></message>
    <message><source>%@ free of %@</source><translation>%@ 可用，共 %@</translation></message>
    <message><source>Download</source><translation>下载</translation></message>
    <message><source>Upload</source><translation>上传</translation></message>
    <message><source>Network name unavailable</source><translation>网络名称不可用</translation></message>
    <message>
        <source>Allow location access to show the network name</source>
        <translation>允许访问位置信息以显示网络名称</translation>
    </message>
    <message><source>Signal</source><translation>信号</translation></message>
    <message><source>Signal-to-noise</source><translation>信噪比</translation></message>
    <message><source>Link speed</source><translation>连接速率</translation></message>
    <message><source>Interface</source><translation>接口</translation></message>
    <message><source>IP address</source><translation>IP 地址</translation></message>
    <message><source>%@ is not available</source><translation>%@ 不可用</translation></message>
    <message><source>Excellent</source><translation>极佳</translation></message>
    <message><source>Good</source><translation>良好</translation></message>
    <message><source>Fair</source><translation>一般</translation></message>
    <message><source>Weak</source><translation>较弱</translation></message>
    <message><source>Read</source><translation>读取</translation></message>
    <message><source>Write</source><translation>写入</translation></message>
    <message><source>SoC</source><translation>SoC</translation></message>
    <message><source>SSD</source><translation>SSD</translation></message>
    <message><source>max %@</source><translation>最高 %@</translation></message>
    <message><source>System power</source><translation>系统功耗</translation></message>
    <message><source>Adapter input</source><translation>适配器输入</translation></message>
    <message><source>CPU power</source><translation>CPU 功耗</translation></message>
    <message><source>GPU power</source><translation>GPU 功耗</translation></message>
    <message><source>Neural Engine</source><translation>神经网络引擎</translation></message>
    <message><source>Memory (DRAM)</source><translation>内存 (DRAM)</translation></message>
    <message><source>Fan %lld</source><translation>风扇 %lld</translation></message>
    <message><source>All sensors (%lld)</source><translation>所有传感器 (%lld)</translation></message>
    <message>
        <source>Temperatures are not available on this Mac.</source>
        <translation>此 Mac 无法提供温度数据。</translation>
    </message>
    <message><source>Charging</source><translation>正在充电</translation></message>
    <message><source>Plugged in</source><translation>已接通电源</translation></message>
    <message><source>On battery</source><translation>使用电池</translation></message>
    <message><source>to full: %@</source><translation>充满还需 %@</translation></message>
    <message><source>left: %@</source><translation>剩余 %@</translation></message>
    <message><source>Maximum capacity</source><translation>最大容量</translation></message>
    <message><source>Cycle count</source><translation>循环计数</translation></message>
    <message><source>Temperature</source><translation>温度</translation></message>
    <message><source>Charging power</source><translation>充电功率</translation></message>
    <message><source>Discharge power</source><translation>放电功率</translation></message>
    <message numerus="yes">
        <source>%lld connected</source>
        <translation><numerusform>已连接 %lld 个</numerusform></translation>
    </message>
    <!-- Values with their units -->
    <message numerus="yes">
        <source>%lld seconds</source>
        <translation><numerusform>%lld 秒</numerusform></translation>
    </message>
    <message><source>%lldh %lldm</source><translation>%lld 小时 %lld 分钟</translation></message>
    <message><source>%lldm</source><translation>%lld 分钟</translation></message>
    <message numerus="yes">
        <source>%lld bytes</source>
        <translation><numerusform>%lld 字节</numerusform></translation>
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
        <translation><numerusform>%lld 比特</numerusform></translation>
    </message>
    <message><source>%@/s</source><translation>%@/秒</translation></message>
    <message><source>%lld dBm · %@</source><translation>%lld dBm · %@</translation></message>
    <message><source>%@ dB</source><translation>%@ dB</translation></message>
    <message><source>%@ Mbps</source><translation>%@ Mbps</translation></message>
    <message><source>%@ rpm</source><translation>%@ 转/分</translation></message>
    <message><source>%@ W</source><translation>%@ W</translation></message>
    <!-- Settings -->
    <message><source>Vantrix Settings</source><translation>Vantrix 设置</translation></message>
    <message><source>Launch at login</source><translation>登录时启动</translation></message>
    <message><source>Update every</source><translation>更新间隔</translation></message>
    <message><source>Color thresholds</source><translation>颜色阈值</translation></message>
    <message><source>Warning</source><translation>警告</translation></message>
    <message><source>Critical</source><translation>严重</translation></message>
    <message><source>Warning threshold</source><translation>警告阈值</translation></message>
    <message><source>Critical threshold</source><translation>严重阈值</translation></message>
    <message>
        <source>Bars, rings and the menu bar turn orange and red above these values.</source>
        <translation>超过这些值时，进度条、圆环和菜单栏会变为橙色和红色。</translation>
    </message>
    <message>
        <source>Nothing turns orange: the warning threshold is not below the critical one.</source>
        <translation>警告阈值不低于严重阈值，因此不会显示橙色。</translation>
    </message>
    <message><source>Units</source><translation>单位</translation></message>
    <message><source>°C</source><translation>°C</translation></message>
    <message><source>°F</source><translation>°F</translation></message>
    <message><source>Bytes</source><translation>字节</translation></message>
    <message><source>Bits</source><translation>比特</translation></message>
    <message><source>GB</source><translation>GB</translation></message>
    <message><source>GiB</source><translation>GiB</translation></message>
    <message>
        <source>Memory is counted in steps of 1024 under either name.</source>
        <translation>无论使用哪种名称，内存都按 1024 进位。</translation>
    </message>
    <message><source>Preview</source><translation>预览</translation></message>
    <message><source>Select at least one module</source><translation>请至少选择一个模块</translation></message>
    <message><source>Style</source><translation>样式</translation></message>
    <message><source>Layout</source><translation>布局</translation></message>
    <message><source>Color values above the thresholds</source><translation>为超过阈值的数值着色</translation></message>
    <message><source>Modules</source><translation>模块</translation></message>
    <message>
        <source>Only the checked modules appear in the menu bar, in this order. With none selected, Vantrix shows just its icon.</source>
        <translation>菜单栏中仅按此顺序显示已勾选的模块。如果一个都未勾选，Vantrix 只显示自己的图标。</translation>
    </message>
    <message><source>Move %@ up</source><translation>上移 %@</translation></message>
    <message><source>Move %@ down</source><translation>下移 %@</translation></message>
    <message><source>What modules show</source><translation>模块显示的内容</translation></message>
    <message><source>Space in use</source><translation>已用空间</translation></message>
    <message><source>Read and write</source><translation>读写速度</translation></message>
    <message><source>Mean</source><translation>平均</translation></message>
    <message><source>Hottest</source><translation>最高</translation></message>
    <message><source>Network interface</source><translation>网络接口</translation></message>
    <message><source>All hardware ports</source><translation>所有硬件端口</translation></message>
    <message><source>Disk volume</source><translation>宗卷</translation></message>
    <message><source>System volume</source><translation>系统宗卷</translation></message>
    <message>
        <source>Interface and volume count in the popover and for alerts as well.</source>
        <translation>接口和宗卷的选择也用于概览和提醒。</translation>
    </message>
    <message><source>Cards</source><translation>卡片</translation></message>
    <message>
        <source>GPU, Sensors and Battery only appear on Macs that report them.</source>
        <translation>仅在 Mac 提供相应数据时，才会显示 GPU、传感器和电池。</translation>
    </message>
    <message><source>Send notifications</source><translation>发送通知</translation></message>
    <message>
        <source>Each alert is sent at most once every 15 minutes.</source>
        <translation>每种提醒每 15 分钟最多发送一次。</translation>
    </message>
    <message>
        <source>The CPU alert uses the critical threshold from General.</source>
        <translation>CPU 提醒使用“通用”中设置的严重阈值。</translation>
    </message>
    <message><source>Name the programs responsible</source><translation>列出占用最多的程序</translation></message>
    <message><source>Notify me about</source><translation>出现以下情况时通知我</translation></message>
    <message><source>CPU above %@</source><translation>CPU 占用率高于 %@</translation></message>
    <message><source>Memory under pressure</source><translation>内存压力过大</translation></message>
    <message><source>Disk almost full</source><translation>磁盘空间即将用尽</translation></message>
    <message><source>Battery at %@ or less, not charging</source><translation>电池电量不高于 %@ 且未充电</translation></message>
    <message><source>CPU temperature above 95 °C</source><translation>CPU 温度高于 95 °C</translation></message>
    <message><source>CPU temperature above %@</source><translation>CPU 温度高于 %@</translation></message>
    <message><source>Conditions</source><translation>条件</translation></message>
    <message><source>Only after it lasts</source><translation>持续时间达到</translation></message>
    <message><source>Disk full threshold</source><translation>磁盘占用阈值</translation></message>
    <message><source>Disk full alert at</source><translation>磁盘占用提醒阈值</translation></message>
    <message><source>Battery low alert at</source><translation>电池电量提醒阈值</translation></message>
    <message><source>CPU temperature alert at</source><translation>CPU 温度提醒阈值</translation></message>
    <message><source>Send test notification</source><translation>发送测试通知</translation></message>
    <!-- Notifications -->
    <message><source>High CPU usage</source><translation>CPU 占用率过高</translation></message>
    <message>
        <source>The CPU has been at %@ or more for a while.</source>
        <translation>CPU 占用率已有一段时间处于 %@ 或更高。</translation>
    </message>
    <message><source>Memory is running low</source><translation>内存不足</translation></message>
    <message>
        <source>%@ of %@ in use and the system is under memory pressure.</source>
        <translation>已使用 %@（共 %@），系统内存压力过大。</translation>
    </message>
    <message><source>Only %@ free on the startup disk.</source><translation>启动磁盘仅剩 %@ 可用空间。</translation></message>
    <message><source>Only %@ free on %@.</source><translation>%2$@ 仅剩 %1$@ 可用空间。</translation></message>
    <message><source>Battery low</source><translation>电池电量低</translation></message>
    <message><source>%@ left. Plug in the charger.</source><translation>剩余 %@。请接上充电器。</translation></message>
    <message><source>CPU is running hot</source><translation>CPU 温度过高</translation></message>
    <message><source>The CPU temperature is %@.</source><translation>CPU 温度为 %@。</translation></message>
    <message><source>Notifications are working.</source><translation>通知功能正常。</translation></message>
    <message><source>Test notification sent.</source><translation>测试通知已发送。</translation></message>
    <message>
        <source>Notifications are turned off for Vantrix. Enable them in System Settings → Notifications.</source>
        <translation>Vantrix 的通知已关闭。请在“系统设置”→“通知”中打开。</translation>
    </message>
    <message>
        <source>This copy of Vantrix is signed without a developer's identity, and macOS shows no notifications of such programs.</source>
        <translation>此 Vantrix 副本未使用开发者身份签名，macOS 不会显示此类程序的通知。</translation>
    </message>
    <!-- A value in a graph: how long ago it was -->
    <message><source>now</source><translation>现在</translation></message>
    <message><source>%lld s ago</source><translation>%lld 秒前</translation></message>
    <message><source>%lld min ago</source><translation>%lld 分钟前</translation></message>
    <!-- Read out by assistive programs -->
    <message><source>now %@, lowest %@, highest %@</source><translation>现在 %@，最低 %@，最高 %@</translation></message>
    <message><source>CPU load</source><translation>CPU 负载</translation></message>
    <message><source>Load of each core</source><translation>各核心负载</translation></message>
    <message><source>Memory in use</source><translation>已用内存</translation></message>
    <message><source>Disk space in use</source><translation>已用磁盘空间</translation></message>
    <message><source>GPU load</source><translation>GPU 负载</translation></message>
    <message><source>Download history</source><translation>下载速率走势</translation></message>
    <message><source>Upload history</source><translation>上传速率走势</translation></message>
    <message><source>Read history</source><translation>读取速率走势</translation></message>
    <message><source>Write history</source><translation>写入速率走势</translation></message>
    <message><source>GPU history</source><translation>GPU 负载走势</translation></message>
    <!-- Accessories without a name, and the case of earbuds -->
    <message><source>Bluetooth device</source><translation>蓝牙设备</translation></message>
    <message><source>Wireless device</source><translation>无线设备</translation></message>
    <message><source>Graphics tablet</source><translation>数位板</translation></message>
    <message><source>Game controller</source><translation>游戏手柄</translation></message>
    <message><source>%@ case</source><translation>%@充电盒</translation></message>
    <!-- Names in the readings shown as an example -->
    <message><source>Home</source><translation>家</translation></message>
    <message><source>Keyboard</source><translation>键盘</translation></message>
    <message><source>Mouse</source><translation>鼠标</translation></message>
    <message><source>Headphones</source><translation>耳机</translation></message>
    <message><source>Wi-Fi</source><translation>Wi-Fi</translation></message>
    <message><source>Ethernet</source><translation>以太网</translation></message>
    <message><source>USB Ethernet</source><translation>USB 以太网</translation></message>
    <message><source>Mobile broadband</source><translation>移动宽带</translation></message>
    <message><source>VPN</source><translation>VPN</translation></message>
    <message><source>Bluetooth</source><translation>蓝牙</translation></message>
    <message><source>PPP</source><translation>PPP</translation></message>
    <message><source>Bridge</source><translation>网桥</translation></message>
    <message><source>Bond</source><translation>链路聚合</translation></message>
    <message><source>VLAN</source><translation>VLAN</translation></message>
    <message><source>%@°C</source><translation>%@°C</translation></message>
    <message><source>%@°F</source><translation>%@°F</translation></message>
    <message><source>Battery charge</source><translation>电池电量</translation></message>
</context>
</TS>
