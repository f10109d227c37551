<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copy version number</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copied to the clipboard</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Third-party licences</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Add account</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Change account</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Enter a name</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>For example: Building 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Enter the user name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Enter the password</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Leave empty to keep it</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Stores what the tool logs in with. Passwords on devices are not changed.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>The account cannot be stored and is used until the next search only: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>The new account is the default account now</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>The new account is stored and used for this device from now on</numerusform>
            <numerusform>The new account is stored and used for these %n devices from now on</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Store for these devices (recommended)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Make it the default account of all devices</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Do not store; use it until the next search</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>The device has neither MAC nor UUID: the account is used until the next search only</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>The file of accounts, %1, cannot be read: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>The file of accounts is damaged, and none of its accounts is used: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Enter a name of up to %1 characters</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Enter a user name of up to %1 characters</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Enter a password of up to %1 characters</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>There is an account named &quot;%1&quot; already</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>There is no account named &quot;%1&quot;</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>No room: at most %1 accounts and %2 devices</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n device uses the default account</numerusform>
            <numerusform>%n devices use the default account</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n device uses the account &quot;%1&quot;</numerusform>
            <numerusform>%n devices use the account &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n of them has neither MAC nor UUID and uses it until the next search only</numerusform>
            <numerusform>; %n of them have neither MAC nor UUID and use it until the next search only</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Remove the account &quot;%1&quot;?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> The device that uses it is logged in to with the default account from then on.</numerusform>
            <numerusform> The %n devices that use it are logged in to with the default account from then on.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Use for %n device</numerusform>
            <numerusform>Use for %n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Select account</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>The default account is changed in the search settings</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Each device is tried with one account: the one selected for it, or else the default account. Other accounts are never tried.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Default account</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Remove account</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Remove %n account that no device has?</numerusform>
            <numerusform>Remove %n accounts that no device has?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Remove unused accounts</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Accounts that are selected for no device</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Not used</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>The devices have refused this account. Select or add another one.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Use for %n device and retry</numerusform>
            <numerusform>Use for %n devices and retry</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>The devices refused the account %1. Select or add another account.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Enter the P2P ID</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Enter a valid IP address</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Enter the account</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Enter the password</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Enter the port number</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>The port must be 1 to 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Add device</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Add to favourites</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P ID</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Up to 50 characters</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Adding…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Added</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>The notes could not be saved. Check that you may write to the program folder.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>The favourite could not be removed. Check that you may write to the program folder.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favourites</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favourite selected</numerusform>
            <numerusform>favourites selected</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Search…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Double-click a row to add the device</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Clear filters</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Add device</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Change or clear the search text.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Select “Add to favourites” when you add a device to save it here.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>No favourites match the search</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>No favourites yet</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Remove %1 from the favourites?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Add favourites</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Remove favourite</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>The password cannot be read: double-click to enter it</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Row %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>No MAC address: skipped</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In use by another device</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Assigned twice</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Same as the gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Outside the subnet</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Network or broadcast address</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>批处理正在进行</source>
        <translation>The batch is running</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Devices are waiting for the new password</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>No devices failed or were not done</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>This operation cannot be retried here</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Only the most recent batch can be retried</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>A retry cannot help these devices. Correct the reason first, for example the account.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch CGI</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Send this command to the selected device:</numerusform>
            <numerusform>Send this command to the %n selected devices:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batches</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Retry failed</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Runs the batch again for the devices that failed or were not done</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Restore addresses</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Sets the changed devices back to their previous IP addresses</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Set %n device back to its previous IP address?</numerusform>
            <numerusform>Set %n devices back to their previous IP addresses?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Save results</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Started</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Succeeded / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Failed only</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Includes devices that were not done</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>No batches yet</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>No devices failed</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Restore IP addresses</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Save all</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Saves the results of all batches of the list in one file</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Wait until the current batch has finished</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Not initialised: skipped</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Upgrade in progress: skipped</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Address conflict: another device may be changed</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In use by another device</translation>
    </message>
    <message>
        <source>%1（%2）：%3</source>
        <extracomment>A device, what it gets, and a warning about that.</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
</context>
<context>
    <name>BatchPreviewCounts</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n warning: see Notes</numerusform>
            <numerusform>%n warnings: see Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n device is skipped: see Notes</numerusform>
            <numerusform>%n devices are skipped: see Notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>runs on %n device</numerusform>
            <numerusform>runs on %n devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n skipped</numerusform>
            <numerusform>%n skipped</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Hide list</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Show %n device</numerusform>
            <numerusform>Show %n devices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Name and model</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Old address</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>New address</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware file</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>New name</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n succeeded</numerusform>
            <numerusform>%n succeeded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n waiting for the new password</numerusform>
            <numerusform>%n waiting for the new password</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n not done</numerusform>
            <numerusform>%n not done</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n skipped</numerusform>
            <numerusform>%n skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n waiting</numerusform>
            <numerusform>%n waiting</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Old password correct</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Time limit exceeded</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: skipped</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Save results</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Results saved in %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>The results could not be saved. Choose another folder.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batches</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Continue</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>There is %n warning. Continue?</numerusform>
            <numerusform>There are %n warnings. Continue?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warnings</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Devices cannot exchange addresses (such as %1 and %2) in one step. First give one of them another address.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is running. Wait until it has finished.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Not enough memory or threads to start. Close other programs and try again.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Save results</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 channel %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 is still in use by device %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n device was not retried: its address has changed, or it is no longer in the list (%1)</numerusform>
            <numerusform>%n devices were not retried: their addresses have changed, or they are no longer in the list (such as %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Upgrades are running. Search when they have finished.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Upgrades are running. Close the program when they have finished.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, “</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>“%1” is running. Search when it has finished.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>“%1” is running. Remove devices when it has finished.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>“%1” is running. Change devices when it has finished.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>“%1” is running. Close the program when it has finished.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>“%1” is running. Restart the program when it has finished.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>A search is running. Stop it with Esc or wait until it has finished.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Commands of another spreadsheet are running. Wait until they have finished.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>CGI batch template.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Another CGI command is running. Wait until it has finished.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncated)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>password of the default account</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Outdoors</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Gain priority</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Shutter priority</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Natural light</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Street lamp</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Custom region</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Black &amp; white</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrared</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>White light</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Smart</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Trust selected</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirm device certificates</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>The certificates could not be saved. None is trusted.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 of %2 devices selected</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>These devices use self-signed certificates for HTTPS. No password was sent. Compare the fingerprints. Once trusted, only this key is accepted.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>The certificate of %n device has changed. No password was sent. It may be another device: select it only if you know the reason, such as a factory reset.</numerusform>
            <numerusform>The certificates of %n devices have changed. No passwords were sent. They may be other devices: select them only if you know the reason, such as a factory reset.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>State</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC or UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificate</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Valid until</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Fingerprint</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Fingerprint (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Trusted fingerprint</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>New</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>The certificate file %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>The certificate file is damaged. No certificate is trusted. Confirm them again: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>No tunnel to the web port of the device.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Not sent</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>CGI command</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Remove from the saved commands</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Save this command</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>The header of the response is too large.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Wrong user name or password. Check the account in the search settings.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>The account is locked. Wait until the device unlocks it.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>No response from the device.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>The device is not initialised.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Unknown error.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>The device rejected the request</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>The response is too large.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>The file could not be written: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Stopped.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>The part of the recording that was received is in %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>The device is being upgraded.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>The certificate of the device is not trusted.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>The certificate of the device has changed.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>The host was not found</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>The device refused the connection. Check the HTTP port</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>The device cannot be reached</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>The device did not respond in time</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>No encrypted connection. Check the HTTPS port</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>The response of the device is not valid HTTP</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>The connection was closed before the end of the response</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>The request failed</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>Why a request failed, and the same in the words of a library.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>CgiRequest</name>
    <message>
        <source>用户名不能包含冒号或控制字符。</source>
        <translation>A user name must not contain a colon or control characters.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>A password must not contain null characters.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>The file could not be written: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Saved in %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copy all</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Saves the text in a file</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Select a folder</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Sending a CGI command</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch CGI</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Enter a command.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>The command must start with /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Stopped: %1 of %2 done</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Sent to %n device: accepted</numerusform>
            <numerusform>Sent to %n devices: all accepted</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>The device accepted the command and returned no result.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Sent to %n: %1 accepted, %2 failed</numerusform>
            <numerusform>Sent to %n: %1 accepted, %2 failed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CgiTable</name>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Right-click to copy the result</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Sends the command to this device</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Show the whole result</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>The device is being upgraded. Send commands when it has finished.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Run spreadsheet</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>The CGI commands of the spreadsheet will be sent. The results are written into it.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>The template could not be opened.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Send</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Commands of another spreadsheet are running. Wait until they have finished.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Reading the spreadsheet</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Row %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>The file has changed. Open it again.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Saving the spreadsheet</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Row %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Name of channel %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Name not reported</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Enter a name</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Longer than %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rejected by the device</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>No response from the device</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Changed by the device</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Shorten</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Shortens the name to what the device can store</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Restores the name that the device has</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>The device is being upgraded</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Not connected</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n channel name not saved</numerusform>
            <numerusform>%n channel names not saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n unsaved change</numerusform>
            <numerusform>%n unsaved changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>The device does not report the name of %n channel</numerusform>
            <numerusform>The device does not report the names of %n channels</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>The device is being upgraded. Save when it has finished.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Name by pattern</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Name several channels or cameras with one pattern</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Reading channel names…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Channel %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n channel name saved</numerusform>
            <numerusform>%n channel names saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n channel name not saved</numerusform>
            <numerusform>%n channel names not saved</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CommandWorkbook</name>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>CGI command</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>The file could not be opened</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>The file format is wrong</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Enter a command.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>The command must start with /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncated)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Copied to %n device</numerusform>
            <numerusform>Copied to %n devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n device accepted only a part</numerusform>
            <numerusform>%n devices accepted only a part</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n device failed</numerusform>
            <numerusform>%n devices failed</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n device not done</numerusform>
            <numerusform>%n devices not done</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copy encoding settings</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Logging in…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>The configuration of the device could not be read</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>The capabilities of the device could not be read</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Logged in again. Changes that were not saved are lost.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Show report</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>The program ended unexpectedly. A report was written</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Crash report</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 already exists. Replace it?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exported to %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>The file %1 could not be written</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>The device has no web page</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copied to the clipboard</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 is already one of the favourites</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 added to the favourites</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>The favourite cannot be saved. Check whether the folder of the program can be written to.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Replace file</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>The device reports neither a MAC address nor a UUID and cannot have a note</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>The device cannot be reached by P2P. Check the P2P ID and the network connection.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>IP address conflict</translation>
    </message>
</context>
<context>
    <name>DeviceClock</name>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 h</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>same as this computer</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 ahead</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 behind</translation>
    </message>
    <message>
        <source>%1，%2</source>
        <extracomment>%1 is a device&apos;s date and time, %2 by how much its clock is ahead or behind.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>DeviceDetail</name>
    <message>
        <source>标识</source>
        <translation>Identity</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>State</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialised</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Not initialised</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>IPv6 address</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>IPv4 address</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Device address</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnet mask</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Host name</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Found via</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Local port</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Service port</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Device service port</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>HTTP port</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>HTTPS port</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>RTSP port</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Maximum connections</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Alarm inputs</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Storage</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Hard disks</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Added by</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manually (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manually (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P ID</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>P2P port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copy all</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Device details</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Login failed: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Log in to read more</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Logs in to the device to read its ports, channels and hard disks</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Saves the text in a file</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>No entries match the search</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copy this line</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>The device library file %1 could not be read</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>The device library file %1 contains an unknown line: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] or its entry “file” is missing in the device library file</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Function %2 of %1 is missing in the device library file</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Unknown function %2 of %1 in the device library file</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>The device library %1 could not be loaded: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>The device library %1 does not export %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Line %1 is too long</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Line %1 is not encoded in UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>The file could not be opened</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>The file is too large</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>More fields than columns</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>A field is too long</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>A field contains a control character</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Unknown add mode</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Invalid device address</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Invalid device port</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>User name or password is missing</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Lines %1 and %2 have the same MAC address: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>The file contains more than %1 devices</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>The file has no header row of a device list</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>The spreadsheet could not be read</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>The root element is not deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Line %1 is not valid XML</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>The encoding %1 is not supported</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>The sheet has more than %1 rows</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>The character %1 cannot be read back from this format</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>The content of the encrypted list is invalid</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>The file is not an encrypted device list, or is incomplete</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>This version of encrypted lists is not supported</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>The parameters of the encrypted list are invalid</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>The list is encrypted: a passphrase is required</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Wrong passphrase, or the file is damaged</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Select the same type only (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Select the same model only (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Open web page</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Open live view</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copy address</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copy MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copy row</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Add to favourites</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Note…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Select account of %n selected device…</numerusform>
            <numerusform>Select account of %n selected devices…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Select account…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>The file with the notes, %1, cannot be read: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>The file with the notes, %1, is damaged. Some notes may be lost. It is kept under another name when the next note is saved.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>The device reports neither a MAC address nor a UUID and cannot have a note</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>A note can have %1 characters at most</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>At most %1 notes can be saved</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>The note cannot be saved: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>local network</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>local network (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Search for devices</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>No device selected</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Logged in</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Login failed: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Not logged in</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Upgrade in progress</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Unconfirmed</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialised</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Not initialised</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>The last search did not find this device</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>A device of the last list, not found yet</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Last found: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Only one file at a time can be dragged into the window</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>This is not a file on this computer</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>File not supported: %1. Drag a device list (.xlsx, .csv, .xml, .devlist) or a site file (.site) into the window</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Custom bit rate</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Main stream: video format</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Main stream: video profile</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Main stream: audio compression</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Main stream: audio format</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Sub stream: video format</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Sub stream: video profile</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Sub stream: audio compression</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Sub stream: audio format</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (not read, not written)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Not copied: %1</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>EncodeCopy</name>
    <message>
        <source>辅码流编码模式</source>
        <translation>compression of the sub stream</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compression of the main stream</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolution of the sub stream</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolution of the main stream</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>bit rate of the sub stream</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>bit rate of the main stream</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>bit rate control of the sub stream</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>bit rate control of the main stream</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>frame rate of the sub stream</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>frame rate of the main stream</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio of the sub stream</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio of the main stream</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>No response from the device</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>The device does not support this</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>The device is busy</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>The device rejected the request (error %1)</translation>
    </message>
</context>
<context>
    <name>EncodePanel</name>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备的配置无法识别，显示的内容可能不完整</source>
        <translation>The configuration of the device is not valid. Some values may be missing.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>The device does not report its encoding capabilities. Some values may be missing.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Main stream</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Sub stream</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>The encoding settings of channel %1 could not be read</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n unsaved change</numerusform>
            <numerusform>%n unsaved changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copy to %n device</numerusform>
            <numerusform>Copy to %n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copy to selected devices</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Not saved: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>The device is being upgraded. Save when it has finished.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Connection lost. Refresh to try again.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, or the channel is not connected. Choose another channel or refresh.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Not read: %1. Saving does not change them.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Stream type</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Enable sub stream</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Enable</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Bit rate control</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Constant (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variable (VBR)</translation>
    </message>
    <message>
        <source>码流值(Kb/S)</source>
        <translation>Bit rate (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Frame rate (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Enable audio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Sampling (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Reading encoding settings…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Writing the resolution of the sub stream…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Both streams use one compression: the main stream is now %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Saving encoding settings…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Saved</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>The settings could not be read: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Select the file format</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Passwords in the file are in plain text. Passwords of stored accounts are not exported.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>The file contains no passwords. Fill them in before the file is imported.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>The complete list is encrypted with the passphrase, and only this program can read it. It cannot be recovered without the passphrase. Passwords of stored accounts are not exported.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Complete list</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Without passwords</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Encrypted (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>The passphrase needs at least %1 characters</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>The two passphrases differ</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repeat the passphrase</translation>
    </message>
</context>
<context>
    <name>FailedMarks</name>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Not found by the last search</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Edit notes</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>FavouriteTable</name>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>IP / P2P ID</source>
        <translation>IP / P2P ID</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Removes this device from the favourites</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Close the dialog before you drag a file into the window</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Release to import a device list or to open a site</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use at least two of digits, letters and symbols, and no illegal characters.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Enter the user name</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Enter the password</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirm the password</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>The passwords do not match</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>The password must have 8 to 32 characters</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisation</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n device to initialise</numerusform>
            <numerusform>%n devices to initialise</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>New password</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 to 32 characters, with at least two of digits, letters and symbols (all visible characters except </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Afterwards, also enter the new password in the search settings.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>On success</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>The device was not found by a search, or reports neither a MAC address nor a UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Stopped waiting for the device: its address may have changed</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Time limit exceeded: the address may have changed</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Several devices in a row have rejected the password. To continue may lock accounts.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Fetching images, %1 of %2 devices</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n more device is not shown</numerusform>
            <numerusform>%n more devices are not shown</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Fetch all again</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is running. Wait until it has finished.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Fetch all images again (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Save all</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Write all images to the folder of the snapshots (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Fetching…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Fetch again (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Fetching</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Skipped</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Device images</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 images saved to %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 images saved to %2, %3 not written: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n device</numerusform>
            <numerusform>%n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>The folder could not be opened: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Select devices in the device list</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>No devices</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Group</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n device</numerusform>
            <numerusform>%n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>No group</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exposure</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Anti-flicker</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Exposure mode</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Gain range</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Minimum gain</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Maximum gain</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensation</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Auto iris</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>3D noise reduction</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Backlight</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Backlight mode</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Whole image</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Custom region</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Compensation region</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Wide dynamic range</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Highlight compensation</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>White balance</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Blue gain</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Red gain</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Fetch images</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 channels, the first %2 are shown</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Save images</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>The folder %1 could not be created</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>These settings could not be read. Refresh to try again.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Near and far light</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Near</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Far</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Day/night switching</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>高</source>
        <translation>High</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensitivity</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Switching delay</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Illuminators</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Illuminator</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Near light brightness</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Far light brightness</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrared and white light</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Light type</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Delay (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>The device has sent no image</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>No image of %n channel</numerusform>
            <numerusform>No image of %n channels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exposure and white balance</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Day/night and illuminators</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>The camera does not report such settings.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>No settings</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Vivid</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Mirror and rotation</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Normal view</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Corridor mode 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Corridor mode 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Flip</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilisation</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Electronic stabilisation</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Defog</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensity</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>L</translation>
    </message>
    <message>
        <source>上</source>
        <translation>T</translation>
    </message>
    <message>
        <source>右</source>
        <translation>R</translation>
    </message>
    <message>
        <source>下</source>
        <translation>B</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Region (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Left must not be greater than right</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Top must not be greater than bottom</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Shutter</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Custom range</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Shutter range (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Shortest shutter</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Longest shutter</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>The minimum must not be greater than the maximum</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Channel %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Changes are written to the device at once.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Longer than %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>The device is being upgraded. Change settings when it has finished.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Reading image settings…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Writing image settings…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>No response from the device. The change may not have been written.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Not changed: %1. The value of the device is shown.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Already initialised</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Upgrade in progress: skipped</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>MAC address not known: skipped</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Initialise</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Select a device that is not initialised</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Only devices of this LAN are listed. Devices of other LANs cannot be initialised.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n more is skipped, see the notes</numerusform>
            <numerusform>%n more are skipped, see the notes</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>The last device list %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>The name of a group has at most %1 characters</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>P2P devices cannot be in a group</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>A site has at most %1 devices</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>The site cannot be saved: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>The device list cannot be stored: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Unsaved site</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>The previous site cannot be saved: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Channels</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Remove from the view (Delete)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Channel %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Logging in…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Retry in %n s</numerusform>
            <numerusform>%1. Retry in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Log in again</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
</context>
<context>
    <name>LiveFigures</name>
    <message>
        <source>%1 帧/秒   %2 kbit/s</source>
        <translation>%1 fps   %2 kbit/s</translation>
    </message>
    <message>
        <source>待解码 %1 KB</source>
        <extracomment>Data of a live stream that is waiting to be decoded.</extracomment>
        <translation>%1 KB buffered</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 frames skipped</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>The folder could not be opened: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>The device is no longer shown</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Live view</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Previous device (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Next device (PgDn)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Single view</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 views</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 views</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Previous channels</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Next channels</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Unmute</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Keep aspect ratio</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Stretch to fill</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Hide stream information</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Show stream information</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Taking a snapshot…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Snapshot of the selected channel</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Snapshots of all channels</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Exit full screen</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is running. Wait until it has finished.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>No further device can be added</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Select the devices to be added in the device list first</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Add the channels of the devices that are selected in the list (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Add selected devices (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Add selected devices</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Snapshots of all channels of all devices</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>The live view was closed because another device was logged in to</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Log in again</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Logging in…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>No channels</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Login failed</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Retry in %n s</numerusform>
            <numerusform>%1. Retry in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>All selected devices are shown already</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>At most %1 devices can be added. %2 were not added.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>No response from %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Questions and answers</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Follow the desktop</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Site report (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modify IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Device upgrade</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Device configuration</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>System configuration</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>CGI protocol</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Demo site</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Demo site: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Simulated devices, no network. User name and password for logging in to the devices. New devices must be initialised first.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Open demo site</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>No device library is installed: devices cannot be reached</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Opening %1 in the PDF program of the system</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Cannot open %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Changes the IP address of this device</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Shows all information about this device</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Opens the web page of this device in the browser</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Opens the live view of this device</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initialise the device first</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>The device is being upgraded. Change its address when it has finished.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Live</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Device added, but not saved in the favourites. Check that you may write to the program folder.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Device added and saved in the favourites</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Device added</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Add device</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Select a device that is not initialised</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n device failed: see Result</numerusform>
            <numerusform>%n devices failed: see Result</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>The device is being upgraded. Change its address when it has finished.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initialise</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Change IP addresses</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Address changed on %n device</numerusform>
            <numerusform>Addresses changed on %n devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n device initialised</numerusform>
            <numerusform>%n devices initialised</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Stopped: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Remove %n device from the list?</numerusform>
            <numerusform>Remove %n devices from the list?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n device is being upgraded and was not removed</numerusform>
            <numerusform>%n devices are being upgraded and were not removed</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Remove devices</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Enter a valid IP address</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Enter a valid subnet mask</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Enter a valid gateway address</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modify IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Hide preview</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Shows the new address of each device</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>Start IP</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Same IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnet mask</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>In use by %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>This is the network or broadcast address</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>The gateway is outside the subnet</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Change anyway</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>This is the address of the gateway</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>IP address</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>All %1 devices are hidden by the filters</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Searching for devices…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>No devices found</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No device library is installed</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Change the filters or clear the search text.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Devices appear here as they are found.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Check that the devices are powered on and connected. For devices in other networks, add their range in the search settings or add a device by its address.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Clear filters</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>No network is selected in the search settings</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Select the local network or other networks in the search settings.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Search settings</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Why were no devices found?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>The program cannot communicate with devices: none can be found or changed. The demo site needs no devices and shows all functions.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Open demo site</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Searched: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Add device by address</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Check cables and networks, then search again.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Exporting devices…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 already exists. Replace it?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Devices exported
File: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>The file could not be written. Check the folder and whether another program has the file open.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>These values cannot be read back from the file:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Export result</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Reading the device list…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Replace file</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Group…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Remove from site</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Open a device list</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Encrypted device lists (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Imported: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>devices</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Not imported. The file is open in another program, has another format, or contains a MAC address twice.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Import result</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Show reasons</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>The search was stopped; the list is incomplete.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>No device was found. The greyed devices are those found before.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n device fewer than in the last search</numerusform>
            <numerusform>%n devices fewer than in the last search</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>State</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>新</source>
        <translation>New</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Initialise</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Sets the first password of the selected new devices</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Batch modify IP</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Assigns consecutive addresses to the selected devices</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Reads a device list from a spreadsheet</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Writes the selected devices to a spreadsheet</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Add manually</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Adds devices that a search does not find: by IP address, by P2P ID or from the favourites</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>IP device</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>P2P device</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favourites</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Removes the selected devices from the list</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialised</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Not initialised</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Search…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n selected device is being upgraded: its address cannot be changed</numerusform>
            <numerusform>%n selected devices are being upgraded: their addresses cannot be changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n selected device is being upgraded and cannot be removed</numerusform>
            <numerusform>%n selected devices are being upgraded and cannot be removed</numerusform>
        </translation>
    </message>
    <message>
        <source>IPV4</source>
        <translation>IPv4</translation>
    </message>
    <message>
        <source>IPV6</source>
        <translation>IPv6</translation>
    </message>
    <message>
        <source>查看勾选设备的图像（Ctrl+G）</source>
        <translation>Images of the selected devices (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Fill in</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Name by pattern</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Select what is to be named</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>The names can be edited in the table. Save writes them.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n channel of this device</numerusform>
            <numerusform>%n channels of this device</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n selected camera</numerusform>
            <numerusform>%n selected cameras</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Pattern: {n}, {model}, {ip4} (end of address)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Several channels get the same name</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>First number</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Digits</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Names channel 1 of each camera.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Channel %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Enter a pattern</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Use only {n}, {model} and {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Longer than %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Recorder: skipped. Open it to name its channels</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>OMessageBox</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OVBanner</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Enter a valid time</translation>
    </message>
</context>
<context>
    <name>OVDialog</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Shows only devices that failed or were not done, sorted by reason. For devices that are no longer listed, see Batches.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Removes the marks of devices that failed or were not done</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Unresolved %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Unresolved operation</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>All operations</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>less than 1 min left</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>about %n min left</numerusform>
            <numerusform>about %n min left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stop (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Retry failed</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selects only the devices on this page that failed or were not done</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Save results</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batches</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Searching for devices…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 of %3 done</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n more unresolved</numerusform>
            <numerusform>, %n more unresolved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>wrong password on %n device in a row</numerusform>
            <numerusform>wrong password on %n devices in a row</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>wrong password on %n device in a row (account %1)</numerusform>
            <numerusform>wrong password on %n devices in a row (account %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Continuing may lock accounts. Continue?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>After stopping, select another account in the menu of the devices, then retry the failed devices (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Retry failed: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Runs “%1” again for the devices that failed or were not done. Devices for which a retry cannot help, as after a wrong password with the same account, are left out.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Select unresolved</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Select account…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Select another account for the devices that refused this one and for the remaining devices that use it, and try them again</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Enter a number</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Password strength</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Fit column width</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Reset columns</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Hide password</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Show password</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>device found</numerusform>
            <numerusform>devices found</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Search for devices</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Search settings</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Collapse</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Expand</translation>
    </message>
    <message>
        <source>新</source>
        <translation>New</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>No channels</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Channel not connected</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Connecting…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Stream interrupted</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Retry in %n s</numerusform>
            <numerusform>Retry in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Retry now</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 in p2p.ini is missing or invalid</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>The P2P service could not be started</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Select a device.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch CGI</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Sends one command to the selected devices</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Run spreadsheet</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Sends the commands of a spreadsheet and writes the results into it</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Open template</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Opens the template for command spreadsheets</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Search…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copied</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Devices that failed</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>The command will be sent to these devices:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Send command</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Show whole result</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copy result</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Discard</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n change is not saved and will be lost.</numerusform>
            <numerusform>%n changes are not saved and will be lost.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Copy the encoding settings of channel %1 to the same channel of the selected device?</numerusform>
            <numerusform>Copy the encoding settings of channel %1 to the same channel of the %n selected devices?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>This includes changes that are not saved.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Saving channel names…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc to stop)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Device configuration</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Encoding settings of channel %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copy encoding settings</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Save and leave</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Name by pattern</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configure this device</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>There is no camera among the selected devices</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>The setting could not be saved. Check that you may write to the program folder.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Select a firmware file</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Stop upgrade</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>IP address conflict: %n device</numerusform>
            <numerusform>IP address conflict: %n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Connection to P2P device %1 lost. Remove the device and add it again.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>The P2P service is disconnected. P2P devices cannot be reached at the moment.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Change IP addresses</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Images of the selected devices</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Old password correct: waiting for the new one</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Check old password</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reboot devices</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restore factory settings</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n device selected</numerusform>
            <numerusform>%n devices selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Time is up: the password of %n device was not changed</numerusform>
            <numerusform>Time is up: the passwords of %n devices were not changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Another operation was started: the password of %n device was not changed</numerusform>
            <numerusform>Another operation was started: the passwords of %n devices were not changed</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Select devices on the left first</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is running. Wait until it has finished.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Password not changed on %n device (%1); it is marked</numerusform>
            <numerusform>Password not changed on %n devices (%1); they are marked</numerusform>
        </translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
</context>
<context>
    <name>PassphraseDialog</name>
    <message>
        <source>加密的设备列表</source>
        <translation>Encrypted device list</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passphrase</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>The program is already running.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Enter the account</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Enter the password</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Log in again</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Login to %1 failed. Enter its user name and password.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Wrong password, %n time</numerusform>
            <numerusform>Wrong password, %n times</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Answer of the device: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>The device does not report how many attempts are left. More wrong passwords may lock the account.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Store as the account of this device</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Once the login has succeeded, this device is always logged in to with this account</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Also for later devices</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>After a successful login, all devices without an account of their own, also those of batches, are tried with it in place of that of the search settings, until the program ends or the account of the search settings is changed</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>sharpness</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>mirror</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilisation</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exposure</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>back light</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>white balance</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>day and night</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>defog</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>light</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>brightness</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturation</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>hue</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Not initialised</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Duplicate address</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Login refused</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Cannot be read</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Clock is off</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Older firmware</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>No time server</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <extracomment>A line of the site report. %1 is a title, such as the kind of a finding, %2 its text.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 h</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>%1 ahead</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 behind</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; another device of this model has %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>On</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Channel name</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Encode settings</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Image settings</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Image settings: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Site report</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Changes of this visit</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>固件版本</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Time offset</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Time offset (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Time server</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Main stream</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Width (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Height (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>New value</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Not reported</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>No image</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>No findings.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>No device was changed since the start of the program.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>With findings</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>The PDF file cannot be made</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>The folder %1 cannot be created</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 earlier changes are not listed.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 more channels</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Channel %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Set address</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Set time</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Upgrade firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Time server and zone</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Daylight saving time</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Automatic maintenance</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reboot</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Video standard</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>The folder for temporary files %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 devices in a row refused the login</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Change of language</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>The language changes when the program restarts.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Later</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Command failed</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Succeeded</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>The account does not exist</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>The account is locked. Wait until the device unlocks it.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>The account is already in use</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>No response from the device</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocol mismatch</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>The device is not initialised</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>The device does not support this</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>The device is already in the list</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>The device&apos;s capabilities could not be read</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>The device rejected the request</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Unknown error %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>The device is being upgraded</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Not done</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Snapshot failed</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Invalid data</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Firmware file cannot be used</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Not upgraded</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Upgrade not confirmed</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>The device is busy. Try again later.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>The session has expired. Log in again.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>The device does not accept this value</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>The certificate of the device is not trusted</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>The certificate of the device has changed</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Another device responds at the address</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Taken by the device, not confirmed</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copy text</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Search report</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copied to the clipboard</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Network interface</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>This computer has no usable network interface</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Check that an interface is installed and enabled.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Search by address</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Addresses asked</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Answers</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>No route to %1 of these addresses</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Set a gateway for the interface, or add an address in the same network as these addresses.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>No response from any address</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Check the address range in the search settings, and that the devices are powered on.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Other networks</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Devices found outside all networks of this computer: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Before you log in to them, change their IP addresses or add an address in their network to the interface.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Addresses</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Requests sent</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Messages received</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Devices found</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Not used</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>unreadable messages: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>messages of devices other than cameras and recorders: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>messages without a service address: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>messages with a service address of another host: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>messages of devices leaving the network: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>messages over the limit: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>The interface is disabled</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Enable it in the network settings of the operating system.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>The interface is not connected</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Check the cable and the switch, or connect to a wireless network.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>The interface has no IP address</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Set an address in the network of the devices, or enable DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>The interface cannot send multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Select other networks in the search settings to search by address.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>The operating system did not send the requests: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Check the firewall of this computer and the settings of the interface.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>No responses received</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Check that the devices are powered on and in the same network, and that no firewall or switch filters their responses. You can also search by address: see the search settings.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 devices found, %2 fewer than in the last search.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Devices found: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>No devices found.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>The start IP must not be greater than the end IP</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>The range may span 17 segments</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Enter a valid start IP</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Enter a valid end IP</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Search settings</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Search local network</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Search other networks</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>Start IP</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>End IP</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Default account for logging in to devices</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Log in to devices during the search</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Reads the model, version and MAC address. Every device receives this account. After a wrong password, a device is not tried again.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>there is no secret service</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>the secret service is locked</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>the secret service does not respond</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Some passwords are in the secret service of the desktop and cannot be read (%1). Enter them again.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>The secret service of the desktop cannot be used (%1). Passwords are stored in files.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>The password could not be stored in the secret service of the desktop (%1). It is stored in a file.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>The password could not be removed from the secret service of the desktop (%1). Remove it in the key manager of the system.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>The demo site could not be opened:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>The file is not a site file, or is damaged</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>The site file was saved by a newer version and cannot be read</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>The site file has more than %1 devices</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>The name in the site file is invalid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Device %1 of the site file: %2 is invalid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Device %1 of the site file is a duplicate</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>The file cannot be opened</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>The file is too large</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Site files (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Open site</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Site “%1” is open, with %n device</numerusform>
            <numerusform>Site “%1” is open, with %n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Site %1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Save site as</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>The site is saved to %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>The file contains no passwords.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>A new site removes known devices and groups from the list. Unsaved changes are kept in the recent sites.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>New site</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>New site</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Open site…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Save site as…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>New site…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Enter the name of the site</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Select at least one file</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>There are no devices in the list</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Make report</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Site report</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>A report is being made</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Site name</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Save to</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Select…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>All (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Selected (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>The program logs in to each device, reads its settings and takes an image. The report lists the changes since the start of the program and contains no passwords.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>%1 cannot be opened</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Open PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Site report</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>The report is complete</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Other folder…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Channel not connected</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Snapshot failed</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Snapshot failed: the file could not be written: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Taking a snapshot…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Taking snapshot %1 of %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopping…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n taken</numerusform>
            <numerusform>%n taken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message>
        <source>抓图</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Not done</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>The device is no longer shown</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Weekday</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Daylight saving</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Enable</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>By date</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>By week</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>End</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Apply daylight saving</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Enter a valid time</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Search…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Clear search</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Search again</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>No device with this name, type, model or address.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Devices appear here as they are found.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Only initialised IPv4 devices are listed.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>No devices match</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Searching for devices…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>No devices to configure</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No device library is installed</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>The program cannot communicate with devices. Open the demo site on the page “Modify IP”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Clear marks</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Removes the marks of devices that failed or were not done</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>All listed devices have been logged in to.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n device without an address (DHCP) is not shown</numerusform>
            <numerusform>%n devices without an address (DHCP) are not shown</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>The devices that failed or were not done are not in this tree: they are not initialised, have no IPv4 address, or were not found again. See the page “Modify IP” and Batches.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>January</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>February</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>March</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>April</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>May</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>June</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>July</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>August</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>September</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>October</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>November</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>December</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>First week</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Second week</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Third week</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Fourth week</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Every day</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>No response from the device</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>The time could not be read</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>No response from the device. Its password may have been changed.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reboot</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Video standard</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>%1 s left to enter the password. Then the old password must be checked again.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>%1 s left to enter the password</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n device waiting for the new password</numerusform>
            <numerusform>%n devices waiting for the new password</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>the new password that you entered is restored</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Check the old password again. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>The new password that you entered is then restored.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Time is up: the password of %n device was not changed. </numerusform>
            <numerusform>Time is up: the passwords of %n devices were not changed. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>The selection has changed. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use at least two of digits, letters and symbols, and no illegal characters.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirm the password</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>The passwords do not match</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>The password must have 8 to 32 characters</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Enter the old password</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Step 1: check the old password</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Old password</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Step 2: set the new password</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>New password</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirm password</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 to 32 characters, with at least two of digits, letters and symbols (all visible characters except &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>On success</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Daylight saving on</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Daylight saving off</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP off</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Reboot %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Regular reboots off</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Reboot the selected device?</numerusform>
            <numerusform>Reboot the %n selected devices?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reboot</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Reset the selected device to factory settings?</numerusform>
            <numerusform>Reset the %n selected devices to factory settings?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>“%1” will be applied to these devices:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>The update interval is 0 minutes: the device may no longer update its time. Apply it to the selected device?</numerusform>
            <numerusform>The update interval is 0 minutes: the devices may no longer update their time. Apply it to the %n selected devices?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Apply anyway</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Automatic maintenance</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Reboot regularly</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Reboot at</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Day of reboot</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Reboot now</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>While it reboots, a device cannot be reached and does not record.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reboot devices</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n selected device is being upgraded and cannot be rebooted</numerusform>
            <numerusform>%n selected devices are being upgraded and cannot be rebooted</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restore factory settings</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Erases all settings, accounts and passwords of the devices. This cannot be undone. The devices must be initialised again.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n selected device is being upgraded and cannot be reset</numerusform>
            <numerusform>%n selected devices are being upgraded and cannot be reset</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Computer time</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Set to computer time</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Sets each device to the time at which it receives the request</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manually</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Use current time</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Device time</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Read device times</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Device</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Not logged in %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Shows only devices without a login so far, or whose last login failed</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Unresolved %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Shows only devices that failed or were not done, sorted by reason.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n more is not in this list: see Batches.</numerusform>
            <numerusform> %n more are not in this list: see Batches.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Video standard</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL is for regions with 50 Hz mains, NTSC for 60 Hz. Some devices reboot after the change.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>The devices do not offer this function</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Enter the NTP server</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Time zone and NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Enable NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>NTP server</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP address or host name</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>NTP port</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Interval (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Apply time zone and NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>The devices do not offer %1, the time zone of this computer. Select a time zone.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Enter a valid IP address or host name</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>IP address of the device, or &quot;address:web port&quot; if the web port is not 80. Required.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Login port of the device. Used to check the account only.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>User name of the device, without colons.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Password of the device. Remove it from the file afterwards.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Command that starts with &quot;/&quot;. The device receives an accepted command twice. Required.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Scheme</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 for HTTP, other integers for HTTPS. HTTP if empty.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Filled in by the program: the response, the path of the image or recording, or &quot;Error:&quot; and the reason.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Keep the header row. Replace the example row with your own rows.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Rows without address and command are skipped.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Do not open this file in another program while it runs.</translation>
    </message>
</context>
<context>
    <name>UpgradeBatches</name>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不能用此文件升级，请查看结果</source>
        <extracomment>Of the devices that a file was chosen for.</extracomment>
        <translation>
            <numerusform>%n device cannot be upgraded with this file: see Result</numerusform>
            <numerusform>%n devices cannot be upgraded with this file: see Result</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Row %1: %2</translation>
    </message>
</context>
<context>
    <name>UpgradeDocument</name>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>User name</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware file</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>The file could not be opened</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>The file format is wrong</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>The results could not be saved: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Results saved in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>The file could not be written. It is read-only or open in another program. Results saved in %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>The spreadsheet has more than %1 devices. Split it.</translation>
    </message>
</context>
<context>
    <name>UpgradeDocuments</name>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1：成功%2台，失败%3台。</source>
        <translation>%1: %2 upgraded, %3 failed. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>The spreadsheet contains no devices</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: skipped</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>The device already has this version</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Reading the spreadsheet</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Start upgrade</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Device upgrade</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgrade from spreadsheet</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n device will be upgraded. It will restart. Do not turn it off.</numerusform>
            <numerusform>%n devices will be upgraded. They will restart. Do not turn them off.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> The results are written into the spreadsheet.</translation>
    </message>
</context>
<context>
    <name>UpgradeSummary</name>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>升级：%1 / %2</source>
        <extracomment>Finished devices of an upgrade, and all of them.</extracomment>
        <translation>Upgrade: %1 of %2 done</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n succeeded</numerusform>
            <numerusform>%n succeeded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Logging in</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Sending</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Writing</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Restarting</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware file</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Not selected</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>A retry may help</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Correct the file, the account or the device, then upgrade again</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Select file</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Writing has started: cannot be stopped</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>IP address of the device. Required.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Login port of the device. 37777 if empty.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>User name of the device. If this and the password are empty, the account of the program is used.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Password of the device. Remove it from the file afterwards.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Path of the firmware file, absolute or relative to the folder of this spreadsheet. Required.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Filled in by the program: the versions before and after the upgrade, or why it failed.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Keep the header row. Replace the example row with your own rows.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Rows without address and firmware file are skipped.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Do not open this file in another program during the upgrade.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Writing has started: cannot be stopped</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 at %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Not stopped yet: trying again</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware written, device restarting: cannot be stopped</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Upgraded: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: no version reported</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: now %2, previous version unknown</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Start upgrade</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Upgrades the selected devices</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Select file</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selects a firmware file for the selected devices</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Retry failed</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Upgrades the devices again for which a retry may help, such as those that did not respond</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgrade from spreadsheet</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Upgrades the devices of a spreadsheet and writes the results into it</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Open template</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Opens the template for upgrade spreadsheets</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Search…</translation>
    </message>
    <message>
        <source>IPV4</source>
        <translation>IPv4</translation>
    </message>
    <message>
        <source>IPV6</source>
        <translation>IPv6</translation>
    </message>
    <message>
        <source>同时升级</source>
        <extracomment>Followed by a number of devices.</extracomment>
        <translation>Devices at a time</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Devices upgraded at a time</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Waiting for the device to restart</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Writing: do not turn the device off</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Sending the file</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Logging in</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Upgraded</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>No firmware file selected</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>The firmware file does not exist</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>The firmware file could not be read</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>The firmware file is empty</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>The firmware file is too large</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>The firmware file is damaged</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>The firmware is for other models</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rejected by the device</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Wrong password</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>The account does not exist</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>The account is locked</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>The device is not initialised</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Upgrade not supported, or device not initialised</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Invalid IP address or port</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Same device as in an earlier row</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>No response from the device</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>The device is busy. Try again later.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Device aborted</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>No progress for too long</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>No response after the restart</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Version unchanged after the restart</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Stopped: device not changed</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Aborted: the program was closed</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Unknown error %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Batch upgrade template.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Restarted, but the version could not be read</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificate not trusted</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Certificate has changed</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>The device is no longer in the list</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Select a firmware file</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware file</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>No devices to retry</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n device was not upgraded: see Result</numerusform>
            <numerusform>%n devices were not upgraded: see Result</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n device upgraded</numerusform>
            <numerusform>%n devices upgraded</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>The template could not be opened.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Device upgrade</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgrade from spreadsheet</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Stopped: %1 upgraded, %2 failed, %3 not done</translation>
    </message>
</context>
<context>
    <name>ValueTables</name>
    <message>
        <source>普通</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>动检</source>
        <translation>Motion detection</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Backlight compensation</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Wide dynamic range</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Highlight compensation</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Encoding</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Log in again</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Click a device on the left to log in and change its settings.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Select a device</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Login failed</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continue here</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Only one device can be logged in to at a time. Continuing closes the live view of the other device.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>The live view of another device is open</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connection lost</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Channel names</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>The configuration of devices is shown and changed here once a search has found some.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>No devices</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Name by pattern</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Click a device on the left to change the names of its channels here, or name the selected cameras together.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>No image: files in the folder Shaders are missing or damaged</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>No image: too large for the graphics card</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Playback failed</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Playback failed: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Connection to the device lost</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>The device ended the stream</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>The device sends no video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>The device no longer accepts the login</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>The device does not send a video stream</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>This computer cannot decode the stream</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Channel %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>The certificate of the device has changed. The web page was not opened. Do not enter a password on this device.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>The certificate of the device is not confirmed. The web page was not opened.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>The browser could not be opened. Web page of the device: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>The settings could not be saved. Check that you may write to the program folder.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Stop and exit</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Devices that are writing firmware finish by themselves: do not turn them off.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificate trusted. Try again.</numerusform>
            <numerusform>%n certificates trusted. Try again.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Exit program</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>The account cannot be stored and is used until the next search only: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>“%1” is running. If you exit, the remaining devices will not be changed.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>The report was stopped; no file was written</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>More than %1 devices responded. %2 further responses are not listed. Search a smaller range.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Stopped: %1 rows succeeded, %2 failed, %3 not sent.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Finished: %1 rows succeeded, %2 failed.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>The results could not be saved: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Results saved in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>The file could not be written. It is read-only or open in another program. Results saved in %1</translation>
    </message>
</context>
</TS>
