<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>语言</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关于</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在搜索，请稍候再关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未安装设备库：以 --demo 参数启动可演示模拟站点</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>详情</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>观看实时画面</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>以 --demo 参数启动可演示模拟站点。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导入</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OMessageBox</name>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVAddressField</name>
    <message>
        <source>请输入正确的IP地址</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVDialog</name>
    <message>
        <source>确定</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message>
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关于</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最小化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最大化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>CGI协议</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在此向多台设备批量发送CGI命令，并逐台查看设备的回应。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>常用命令可以保存为模板。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>设备配置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在此查看并修改设备的编码参数和图像参数，旁边是实时预览。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修改可以复制到其他设备。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message>
        <source>设备升级</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在此为选中的设备选择固件并批量升级，每台设备的进度和结果都显示在表中。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>也可以按升级文档一次升级多台设备。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message>
        <source>尚未修改</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>状态</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>名称</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>类型</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>型号</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>版本号</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>台设备已选中</source>
        <extracomment>Follows a number at the foot of a page, as in &quot;3 devices selected&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP地址冲突</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>系统配置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>在此为多台设备统一校时、设置网络服务和修改密码。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>也可以重启设备或恢复出厂设置。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>用户名</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>密码</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
