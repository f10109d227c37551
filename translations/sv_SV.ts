<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Kopiera versionsnummer</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopierat till urklipp</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licenser från tredje part</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Lägg till konto</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Ändra konto</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Ange ett namn</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Till exempel: Byggnad 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Ange användarnamnet</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Ange lösenordet</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Lämna tomt för att behålla</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Sparar det som programmet loggar in med. Lösenorden på enheterna ändras inte.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Kontot kan inte sparas och används bara till nästa sökning: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Det nya kontot är nu standardkonto</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Det nya kontot har sparats och används för den här enheten från och med nu</numerusform>
            <numerusform>Det nya kontot har sparats och används för dessa %n enheter från och med nu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Spara för dessa enheter (rekommenderas)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Gör till standardkonto för alla enheter</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Spara inte; använd till nästa sökning</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Enheten har varken MAC eller UUID: kontot används bara till nästa sökning</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Kontofilen %1 kan inte läsas: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Kontofilen är skadad och inget av dess konton används: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Ange ett namn på högst %1 tecken</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Ange ett användarnamn på högst %1 tecken</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Ange ett lösenord på högst %1 tecken</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Det finns redan ett konto med namnet ”%1”</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Det finns inget konto med namnet ”%1”</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Fullt: högst %1 konton och %2 enheter</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n enhet använder standardkontot</numerusform>
            <numerusform>%n enheter använder standardkontot</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n enhet använder kontot ”%1”</numerusform>
            <numerusform>%n enheter använder kontot ”%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n av dem har varken MAC eller UUID och använder det bara till nästa sökning</numerusform>
            <numerusform>; %n av dem har varken MAC eller UUID och använder det bara till nästa sökning</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Ta bort kontot ”%1”?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Inloggning på enheten som använder det sker därefter med standardkontot.</numerusform>
            <numerusform> Inloggning på de %n enheter som använder det sker därefter med standardkontot.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Använd för %n enhet</numerusform>
            <numerusform>Använd för %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Välj konto</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Konton</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Standardkontot ändras i sökinställningarna</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Varje enhet provas med ett enda konto: det som valts för den, annars standardkontot. Andra konton provas aldrig.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Standardkonto</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Ta bort konto</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Ta bort %n konto som ingen enhet använder?</numerusform>
            <numerusform>Ta bort %n konton som ingen enhet använder?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Ta bort oanvända konton</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Konton som inte valts för någon enhet</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Används ej</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Enheterna har nekat det här kontot. Välj eller lägg till ett annat.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Använd för %n enhet och försök igen</numerusform>
            <numerusform>Använd för %n enheter och försök igen</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Enheterna nekade kontot %1. Välj eller lägg till ett annat konto.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Ange P2P-ID</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Ange en giltig IP-adress</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Ange kontot</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Ange lösenordet</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Ange portnumret</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>Porten måste vara 1 till 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Lägg till enhet</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Lägg till i favoriter</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P-ID</translation>
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
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckningar</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Högst 50 tecken</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Lägger till…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Tillagd</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Anteckningarna kunde inte sparas. Kontrollera skrivbehörigheten till programmappen.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Favoriten kunde inte tas bort. Kontrollera skrivbehörigheten till programmappen.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoriter</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favorit vald</numerusform>
            <numerusform>favoriter valda</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Sök…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Dubbelklicka på en rad för att lägga till enheten</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Rensa filter</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Lägg till enhet</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Ändra eller rensa söktexten.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Välj ”Lägg till i favoriter” när en enhet läggs till för att spara den här.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Inga favoriter matchar sökningen</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Inga favoriter ännu</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Ta bort %1 från favoriterna?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Lägg till favoriter</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Ta bort favorit</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Lösenordet kan inte läsas: dubbelklicka för att ange det</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Rad %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Ingen MAC-adress: hoppas över</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Används av en annan enhet</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Tilldelad två gånger</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Samma som gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Utanför subnätet</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Nätverks- eller broadcastadress</translation>
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
        <translation>Batchen körs</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Enheter väntar på det nya lösenordet</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Inga misslyckade eller ej utförda enheter</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Den här åtgärden kan inte göras om här</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Bara den senaste batchen kan göras om</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Ett nytt försök hjälper inte för dessa enheter. Åtgärda först orsaken, till exempel kontot.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch-CGI</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Skicka det här kommandot till den valda enheten:</numerusform>
            <numerusform>Skicka det här kommandot till de %n valda enheterna:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobb</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Kör om misslyckade</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Kör batchen igen för de enheter som misslyckades eller inte utfördes</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Återställ adresser</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Återställer de ändrade enheterna till deras tidigare IP-adresser</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Återställa %n enhet till dess tidigare IP-adress?</numerusform>
            <numerusform>Återställa %n enheter till deras tidigare IP-adresser?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Spara resultat</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Startad</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Lyckade / totalt</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Bara misslyckade</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inkluderar enheter som inte utfördes</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Inga batchjobb ännu</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Inga enheter misslyckades</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Återställ IP-adresser</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Spara alla</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Sparar resultaten för alla batchjobb i listan i en fil</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Vänta tills den pågående batchen är klar</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Ej initierad: hoppas över</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Uppgradering pågår: hoppas över</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Adresskonflikt: en annan enhet kan komma att ändras</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Används av en annan enhet</translation>
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
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n varning: se Anmärkning</numerusform>
            <numerusform>%n varningar: se Anmärkning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n enhet hoppas över: se Anmärkning</numerusform>
            <numerusform>%n enheter hoppas över: se Anmärkning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>körs på %n enhet</numerusform>
            <numerusform>körs på %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n hoppas över</numerusform>
            <numerusform>%n hoppas över</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Dölj lista</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Visa %n enhet</numerusform>
            <numerusform>Visa %n enheter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Namn och modell</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Gammal adress</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Ny adress</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Anmärkning</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarefil</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nytt namn</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n lyckades</numerusform>
            <numerusform>%n lyckades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n väntar på det nya lösenordet</numerusform>
            <numerusform>%n väntar på det nya lösenordet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n misslyckades</numerusform>
            <numerusform>%n misslyckades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n ej utförd</numerusform>
            <numerusform>%n ej utförda</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n hoppas över</numerusform>
            <numerusform>%n hoppas över</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n väntar</numerusform>
            <numerusform>%n väntar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Det gamla lösenordet är rätt</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Steg</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Tidsgränsen överskreds</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: hoppas över</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Spara resultat</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultaten sparades i %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Resultaten kunde inte sparas. Välj en annan mapp.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobb</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Fortsätt</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Det finns %n varning. Fortsätta?</numerusform>
            <numerusform>Det finns %n varningar. Fortsätta?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Varningar</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Enheter kan inte byta adress med varandra (t.ex. %1 och %2) i ett steg. Ge först en av dem en annan adress.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>”%1” pågår. Vänta tills det är klart.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>För lite minne eller för få trådar för att starta. Stäng andra program och försök igen.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Spara resultat</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 kanal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 används fortfarande av enheten %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n enhet kördes inte om: adressen har ändrats eller så finns den inte längre i listan (%1)</numerusform>
            <numerusform>%n enheter kördes inte om: adresserna har ändrats eller så finns de inte längre i listan (t.ex. %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Uppgraderingar pågår. Sök när de är klara.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Uppgraderingar pågår. Stäng programmet när de är klara.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, ”</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>”%1” pågår. Sök när det är klart.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>”%1” pågår. Ta bort enheter när det är klart.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>”%1” pågår. Ändra enheter när det är klart.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>”%1” pågår. Stäng programmet när det är klart.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>”%1” pågår. Starta om programmet när det är klart.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>En sökning pågår. Stoppa den med Esc eller vänta tills den är klar.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Kommandon i ett annat kalkylblad körs. Vänta tills de är klara.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>CGI-batchmall.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Ett annat CGI-kommando körs. Vänta tills det är klart.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (avkortat)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>lösenord för standardkontot</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Utomhus</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Förstärkningsprioritet</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Slutarprioritet</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Naturligt ljus</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Gatubelysning</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Eget område</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Svartvitt</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarött</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Vitt ljus</translation>
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
        <translation>Inte nu</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Lita på valda</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Bekräfta enhetscertifikat</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Certifikaten kunde inte sparas. Inget är betrott.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 av %2 enheter valda</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Dessa enheter använder självsignerade certifikat för HTTPS. Inget lösenord har skickats. Jämför fingeravtrycken. När certifikatet är betrott godtas bara denna nyckel.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Certifikatet för %n enhet har ändrats. Inget lösenord har skickats. Det kan vara en annan enhet: välj den bara om orsaken är känd, till exempel en fabriksåterställning.</numerusform>
            <numerusform>Certifikaten för %n enheter har ändrats. Inga lösenord har skickats. Det kan vara andra enheter: välj dem bara om orsaken är känd, till exempel en fabriksåterställning.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC eller UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certifikat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Giltigt till</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Fingeravtryck</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Fingeravtryck (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Betrott fingeravtryck</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Ändrat</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nytt</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Certifikatfilen %1 kan inte läsas: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Certifikatfilen är skadad. Inget certifikat är betrott. Bekräfta dem igen: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Ingen tunnel till enhetens webbport.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Ej skickat</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>CGI-kommando</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Ta bort från sparade kommandon</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Spara det här kommandot</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>Svarets huvud är för stort.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Fel användarnamn eller lösenord. Kontrollera kontot i sökinställningarna.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Kontot är låst. Vänta tills enheten låser upp det.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Inget svar från enheten.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Enheten är inte initierad.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Okänt fel.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Enheten avvisade begäran</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>Svaret är för stort.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Filen kunde inte skrivas: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Stoppat.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>Den del av inspelningen som togs emot finns i %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Enheten uppgraderas.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Enhetens certifikat är inte betrott.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Enhetens certifikat har ändrats.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Värden hittades inte</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Enheten nekade anslutningen. Kontrollera HTTP-porten</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Enheten kan inte nås</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Enheten svarade inte i tid</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Ingen krypterad anslutning. Kontrollera HTTPS-porten</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>Enhetens svar är inte giltig HTTP</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>Anslutningen stängdes innan svaret var slut</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Begäran misslyckades</translation>
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
        <translation>Ett användarnamn får inte innehålla kolon eller styrtecken.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Ett lösenord får inte innehålla nolltecken.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Kopierat</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Filen kunde inte skrivas: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Sparat i %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Kopiera allt</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Sparar texten i en fil</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Välj en mapp</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Sändning av CGI-kommando</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch-CGI</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Ange ett kommando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Kommandot måste börja med /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Stoppat: %1 av %2 klara</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Skickat till %n enhet: godtaget</numerusform>
            <numerusform>Skickat till %n enheter: alla godtog</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Enheten godtog kommandot och gav inget resultat.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Skickat till %n: %1 godtog, %2 misslyckades</numerusform>
            <numerusform>Skickat till %n: %1 godtog, %2 misslyckades</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CgiTable</name>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärder</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Högerklicka för att kopiera resultatet</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Skickar kommandot till den här enheten</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Visa hela resultatet</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Enheten uppgraderas. Skicka kommandon när det är klart.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckning</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Kör kalkylblad</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Kalkylbladets CGI-kommandon kommer att skickas. Resultaten skrivs in i det.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Mallen kunde inte öppnas.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Skicka</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Kommandon i ett annat kalkylblad körs. Vänta tills de är klara.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Läsning av kalkylblad</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Rad %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Filen har ändrats. Öppna den igen.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Sparande av kalkylblad</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rad %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Ej sparat</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Namn på kanal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Namn rapporteras ej</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Ange ett namn</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Längre än %1 byte</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Avvisat av enheten</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Inget svar från enheten</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Ändrat av enheten</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Korta av</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Kortar av namnet till vad enheten kan lagra</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Återställer det namn som enheten har</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Enheten uppgraderas</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Ej ansluten</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanalnamn ej sparat</numerusform>
            <numerusform>%n kanalnamn ej sparade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n osparad ändring</numerusform>
            <numerusform>%n osparade ändringar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Enheten rapporterar inte namnet på %n kanal</numerusform>
            <numerusform>Enheten rapporterar inte namnen på %n kanaler</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Enheten uppgraderas. Spara när det är klart.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Namnge med mönster</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Namnge flera kanaler eller kameror med ett mönster</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Läser kanalnamn…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n kanalnamn sparat</numerusform>
            <numerusform>%n kanalnamn sparade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanalnamn ej sparat</numerusform>
            <numerusform>%n kanalnamn ej sparade</numerusform>
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
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>CGI-kommando</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Filen kunde inte öppnas</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Fel filformat</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Ange ett kommando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Kommandot måste börja med /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (avkortat)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Kopierat till %n enhet</numerusform>
            <numerusform>Kopierat till %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n enhet godtog bara en del</numerusform>
            <numerusform>%n enheter godtog bara en del</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n enhet misslyckades</numerusform>
            <numerusform>%n enheter misslyckades</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n enhet ej utförd</numerusform>
            <numerusform>%n enheter ej utförda</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kopiera kodningsinställningar</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Loggar in…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Enhetens konfiguration kunde inte läsas</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Enhetens funktioner kunde inte läsas</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Inloggad igen. Ändringar som inte sparats har gått förlorade.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Visa rapport</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Programmet avslutades oväntat. En rapport har skrivits</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Kraschrapport</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 finns redan. Ersätta den?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exporterat till %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Filen %1 kunde inte skrivas</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Enheten har ingen webbsida</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopierat till urklipp</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 finns redan bland favoriterna</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 har lagts till i favoriterna</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Favoriten kan inte sparas. Kontrollera att programmets mapp är skrivbar.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Ersätt</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Ersätt fil</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Enheten rapporterar varken MAC-adress eller UUID och kan inte ha någon anteckning</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Enheten kan inte nås via P2P. Kontrollera P2P-ID och nätverksanslutningen.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>IP-adresskonflikt</translation>
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
        <translation>samma som den här datorn</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 före</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 efter</translation>
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
        <translation>Identitet</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initierad</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ej initierad</translation>
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
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>IPv6-adress</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>IPv4-adress</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Enhetsadress</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnätmask</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Värdnamn</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Hittad via</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Portar</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Lokal port</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Tjänsteport</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Enhetens tjänsteport</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>HTTP-port</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>HTTPS-port</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>RTSP-port</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Max. anslutningar</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Anslutna</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Larmingångar</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Hårddiskar</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Tillagd genom</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manuellt (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Sökning</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manuellt (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P-ID</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>P2P-port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Kopiera allt</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Enhetsinformation</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Inloggning misslyckades: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Logga in för att läsa mer</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Loggar in på enheten för att läsa dess portar, kanaler och hårddiskar</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Sparar texten i en fil</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Inga poster matchar sökningen</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Kopiera den här raden</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Enhetsbiblioteksfilen %1 kunde inte läsas</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Enhetsbiblioteksfilen %1 innehåller en okänd rad: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] eller dess post ”file” saknas i enhetsbiblioteksfilen</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Funktionen %2 i %1 saknas i enhetsbiblioteksfilen</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Okänd funktion %2 i %1 i enhetsbiblioteksfilen</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Enhetsbiblioteket %1 kunde inte läsas in: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>Enhetsbiblioteket %1 exporterar inte %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Rad %1 är för lång</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Rad %1 är inte kodad i UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Filen kunde inte öppnas</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Filen är för stor</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Fler fält än kolumner</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Ett fält är för långt</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Ett fält innehåller ett styrtecken</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Okänt tilläggsläge</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Ogiltig enhetsadress</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Ogiltig enhetsport</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Användarnamn eller lösenord saknas</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Raderna %1 och %2 har samma MAC-adress: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Filen innehåller fler än %1 enheter</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Filen saknar rubrikrad för en enhetslista</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Kalkylbladet kunde inte läsas</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>Rotelementet är inte deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Rad %1 är inte giltig XML</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>Kodningen %1 stöds inte</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Bladet har fler än %1 rader</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Tecknet %1 kan inte läsas tillbaka från det här formatet</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Innehållet i den krypterade listan är ogiltigt</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Filen är inte en krypterad enhetslista, eller så är den ofullständig</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Den här versionen av krypterade listor stöds inte</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Parametrarna i den krypterade listan är ogiltiga</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>Listan är krypterad: en lösenfras krävs</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Fel lösenfras, eller så är filen skadad</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Välj bara samma typ (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Välj bara samma modell (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Öppna webbsida</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Öppna livevy</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Kopiera adress</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Kopiera MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Kopiera rad</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Lägg till i favoriter</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Anteckning…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Välj konto för %n vald enhet…</numerusform>
            <numerusform>Välj konto för %n valda enheter…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Välj konto…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Anteckningsfilen %1 kan inte läsas: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Anteckningsfilen %1 är skadad. Vissa anteckningar kan ha gått förlorade. Den behålls under ett annat namn när nästa anteckning sparas.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Enheten rapporterar varken MAC-adress eller UUID och kan inte ha någon anteckning</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>En anteckning får ha högst %1 tecken</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Högst %1 anteckningar kan sparas</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Anteckningen kan inte sparas: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Övrigt</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>lokalt nätverk</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>lokalt nätverk (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Sök enheter</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Ingen enhet vald</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Inloggad</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Inloggning misslyckades: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Ej inloggad</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Anslutningen bröts</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Uppgradering pågår</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Hittades inte</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Obekräftad</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initierad</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ej initierad</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Hittades inte vid den senaste sökningen</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Enhet från den senaste listan, ännu inte hittad</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Hittades senast: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Endast en fil i taget kan dras till fönstret</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Detta är inte en fil på den här datorn</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Filen stöds inte: %1. Dra en enhetslista (.xlsx, .csv, .xml, .devlist) eller en anläggningsfil (.site) till fönstret</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Egen bithastighet</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Huvudström: videoformat</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Huvudström: videoprofil</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Huvudström: ljudkomprimering</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Huvudström: ljudformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Underström: videoformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Underström: videoprofil</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Underström: ljudkomprimering</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Underström: ljudformat</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (ej läst, ej skrivet)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Ej kopierat: %1</translation>
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
        <translation>underströmmens komprimering</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>huvudströmmens komprimering</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>underströmmens upplösning</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>huvudströmmens upplösning</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>underströmmens bithastighet</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>huvudströmmens bithastighet</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>underströmmens bithastighetsstyrning</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>huvudströmmens bithastighetsstyrning</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>underströmmens bildfrekvens</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>huvudströmmens bildfrekvens</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>underströmmens ljud</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>huvudströmmens ljud</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Inget svar från enheten</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Enheten stöder inte detta</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Enheten är upptagen</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Enheten avvisade begäran (fel %1)</translation>
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
        <translation>Enhetens konfiguration är ogiltig. Vissa värden kan saknas.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Enheten rapporterar inte sina kodningsfunktioner. Vissa värden kan saknas.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Huvudström</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Underström</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Kodningsinställningarna för kanal %1 kunde inte läsas</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n osparad ändring</numerusform>
            <numerusform>%n osparade ändringar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Kopiera till %n enhet</numerusform>
            <numerusform>Kopiera till %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Kopiera till valda enheter</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Anslutningen bröts</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Ej sparat: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Enheten uppgraderas. Spara när det är klart.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Anslutningen bröts. Välj Uppdatera för att försöka igen.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, eller så är kanalen inte ansluten. Välj en annan kanal eller Uppdatera.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Ej läst: %1. Ändras inte när du sparar.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Strömtyp</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Aktivera underström</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktivera</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Komprimering</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Bithastighetsstyrning</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Konstant (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variabel (VBR)</translation>
    </message>
    <message>
        <source>码流值(Kb/S)</source>
        <translation>Bithastighet (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Bildfrekvens (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Aktivera ljud</translation>
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
        <translation>Egen</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Läser kodningsinställningar…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Skriver underströmmens upplösning…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Båda strömmarna har samma komprimering: huvudströmmen är nu %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Sparar kodningsinställningar…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Sparat</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Ej sparat</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Inställningarna kunde inte läsas: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Välj filformat</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Lösenorden i filen är i klartext. Lösenord för sparade konton exporteras inte.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Filen innehåller inga lösenord. Fyll i dem innan filen importeras.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Hela listan krypteras med lösenfrasen och endast det här programmet kan läsa den. Den kan inte återställas utan lösenfrasen. Lösenord för sparade konton exporteras inte.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Fullständig lista</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Utan lösenord</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Krypterad (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>Lösenfrasen måste ha minst %1 tecken</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Lösenfras</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Lösenfraserna stämmer inte överens</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Upprepa lösenfrasen</translation>
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
        <translation>Hittades inte vid den senaste sökningen</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Redigera anteckningar</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckningar</translation>
    </message>
</context>
<context>
    <name>FavouriteTable</name>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>IP / P2P ID</source>
        <translation>IP / P2P-ID</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckningar</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärder</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Tar bort den här enheten från favoriterna</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Stäng dialogrutan innan du drar en fil till fönstret</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Släpp för att importera en enhetslista eller öppna en anläggning</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Använd minst två av siffror, bokstäver och symboler, och inga otillåtna tecken.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Ange användarnamnet</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Ange lösenordet</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bekräfta lösenordet</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Lösenorden stämmer inte överens</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Lösenordet måste ha 8 till 32 tecken</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initiering</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n enhet att initiera</numerusform>
            <numerusform>%n enheter att initiera</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nytt lösenord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bekräfta</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 till 32 tecken, med minst två av siffror, bokstäver och symboler (alla synliga tecken utom </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Ange därefter det nya lösenordet även i sökinställningarna.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>När det lyckats</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Enheten hittades inte vid en sökning, eller rapporterar varken MAC-adress eller UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Slutade vänta på enheten: dess adress kan ha ändrats</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tidsgränsen överskreds: adressen kan ha ändrats</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Flera enheter i rad har avvisat lösenordet. Konton kan låsas om du fortsätter.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppar…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Hämtar bilder, %1 av %2 enheter</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n bild</numerusform>
            <numerusform>%n bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n misslyckades</numerusform>
            <numerusform>%n misslyckades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n enhet till visas inte</numerusform>
            <numerusform>%n enheter till visas inte</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Hämta alla igen</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>”%1” pågår. Vänta tills det är klart.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Hämta alla bilder igen (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Spara alla</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Skriv alla bilder till mappen för stillbilder (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Hämtar…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Hämta igen (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Hämtar</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Överhoppad</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Enhetsbilder</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 bilder sparades i %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 bilder sparades i %2, %3 skrevs inte: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n enhet</numerusform>
            <numerusform>%n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Mappen kunde inte öppnas: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Välj enheter i enhetslistan</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Inga enheter</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupp</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n enhet</numerusform>
            <numerusform>%n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Ingen grupp</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exponering</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antiflimmer</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Exponeringsläge</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Förstärkning</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Förstärkningsområde</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Lägsta förstärkning</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Högsta förstärkning</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Kompensering</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Autoiris</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>3D-brusreducering</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Motljus</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Motljusläge</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Hela bilden</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Eget område</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Kompenseringsområde</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Brett dynamiskt omfång</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Högdagerkompensering</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Vitbalans</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Blåförstärkning</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Rödförstärkning</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Hämta bilder</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 kanaler, de första %2 visas</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Spara bilder</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Mappen %1 kunde inte skapas</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Inställningarna kunde inte läsas. Välj Uppdatera för att försöka igen.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>När- och fjärrljus</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>När</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Fjärr</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Dag/natt-växling</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Låg</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medel</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Hög</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Känslighet</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Växlingsfördröjning</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Belysning</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Belysning</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Närljusets styrka</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Fjärrljusets styrka</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Korrigering</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarött och vitt ljus</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Ljustyp</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Fördröjning (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Enheten har inte skickat någon bild</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Ingen bild från %n kanal</numerusform>
            <numerusform>Ingen bild från %n kanaler</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exponering och vitbalans</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Dag/natt och belysning</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>Kameran rapporterar inga sådana inställningar.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Inga inställningar</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Mjuk</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Livfull</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Ljusstyrka</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Nyans</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Skärpa</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Spegling och rotation</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Spegling</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Normal vy</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Korridorläge 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Korridorläge 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Vänd</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilisering</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Elektronisk stabilisering</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Dimreducering</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensitet</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>V</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Ö</translation>
    </message>
    <message>
        <source>右</source>
        <translation>H</translation>
    </message>
    <message>
        <source>下</source>
        <translation>N</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Område (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Vänster får inte vara större än höger</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Överkanten får inte vara större än nederkanten</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Slutare</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Eget intervall</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Slutarintervall (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Kortaste slutartid</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Längsta slutartid</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Minimivärdet får inte vara större än maximivärdet</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Ändringar skrivs direkt till enheten.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standardvärden</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Längre än %1 byte</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Enheten uppgraderas. Ändra inställningar när det är klart.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Läser bildinställningar…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Skriver bildinställningar…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Inget svar från enheten. Ändringen kanske inte har skrivits.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Ej ändrat: %1. Enhetens värde visas.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Redan initierad</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Uppgradering pågår: hoppas över</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>MAC-adress okänd: hoppas över</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Initiera</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initiering</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Välj en enhet som inte är initierad</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
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
        <translation>Bara enheter i detta LAN visas. Enheter i andra LAN kan inte initieras.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n till hoppas över, se Anmärkning</numerusform>
            <numerusform>%n till hoppas över, se Anmärkning</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Anmärkning</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>Den senaste enhetslistan %1 kan inte läsas: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Namnet på en grupp får ha högst %1 tecken</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>P2P-enheter kan inte tillhöra en grupp</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>En anläggning får ha högst %1 enheter</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Anläggningen kan inte sparas: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>Enhetslistan kan inte sparas: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Osparad anläggning</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Den föregående anläggningen kan inte sparas: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Ej ansluten</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Ta bort från vyn (Delete)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Loggar in…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nytt försök om %n s</numerusform>
            <numerusform>%1. Nytt försök om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logga in igen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
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
        <translation>%1 KB buffrat</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Ljud %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 bildrutor överhoppade</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Mappen kunde inte öppnas: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Stillbilder</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Enheten visas inte längre</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Livevy</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximera</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Föregående enhet (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Nästa enhet (PgDn)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>En vy</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 vyer</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 vyer</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Föregående kanaler</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Nästa kanaler</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Ljud av</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Ljud på</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Behåll bildförhållandet</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Sträck ut</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Dölj ströminformation</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Visa ströminformation</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Tar stillbild…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Stillbild av den valda kanalen</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Stillbilder av alla kanaler</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Avsluta helskärm</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Helskärm</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>”%1” pågår. Vänta tills det är klart.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Inga fler enheter kan läggas till</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Välj först enheterna som ska läggas till i enhetslistan</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Lägg till kanalerna för de enheter som är valda i listan (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Lägg till valda enheter (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Lägg till valda enheter</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Stillbilder av alla kanaler på alla enheter</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>Livevyn stängdes eftersom inloggning skedde på en annan enhet</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logga in igen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Loggar in…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Inga kanaler</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Inloggning misslyckades</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nytt försök om %n s</numerusform>
            <numerusform>%1. Nytt försök om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Alla valda enheter visas redan</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Högst %1 enheter kan läggas till. %2 lades inte till.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Inget svar från %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Frågor och svar</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Konton</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Följ systemet</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Anläggningsrapport (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Ändra IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsuppgradering</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Enhetskonfiguration</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Systemkonfiguration</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>CGI-protokoll</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Demoanläggning</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Demoanläggning: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Simulerade enheter, inget nätverk. Användarnamn och lösenord för inloggning på enheterna. Nya enheter måste först initieras.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Öppna demoanläggning</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Inget enhetsbibliotek är installerat: enheter kan inte nås</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Öppnar %1 i systemets PDF-program</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan inte öppna %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Ändrar den här enhetens IP-adress</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Visar all information om den här enheten</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Öppnar den här enhetens webbsida i webbläsaren</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Öppnar livevyn för den här enheten</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initiera enheten först</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Enheten uppgraderas. Ändra dess adress när det är klart.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Webb</translation>
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
        <translation>Enheten har lagts till, men sparades inte i favoriterna. Kontrollera skrivbehörigheten till programmappen.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Enheten har lagts till och sparats i favoriterna</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Enhet tillagd</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Lägg till enhet</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Välj en enhet som inte är initierad</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n enhet misslyckades: se Resultat</numerusform>
            <numerusform>%n enheter misslyckades: se Resultat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Enheten uppgraderas. Ändra dess adress när det är klart.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initiera</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Ändra IP-adresser</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adressen ändrad på %n enhet</numerusform>
            <numerusform>Adresserna ändrade på %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n enhet initierad</numerusform>
            <numerusform>%n enheter initierade</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Stoppat: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Ta bort %n enhet från listan?</numerusform>
            <numerusform>Ta bort %n enheter från listan?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n enhet uppgraderas och togs inte bort</numerusform>
            <numerusform>%n enheter uppgraderas och togs inte bort</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Ta bort enheter</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Ange en giltig IP-adress</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Ange en giltig subnätmask</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Ange en giltig gatewayadress</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Ändra IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Dölj förhandsvisning</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Visar den nya adressen för varje enhet</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Statisk</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>Start-IP</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Samma IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnätmask</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Används av %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Detta är nätverks- eller broadcastadressen</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>Gatewayen ligger utanför subnätet</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Ändra ändå</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Detta är gatewayens adress</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>IP-adress</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Alla %1 enheter döljs av filtren</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Söker enheter…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Inga enheter hittades</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Inget enhetsbibliotek är installerat</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Ändra filtren eller rensa söktexten.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Enheter visas här allt eftersom de hittas.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Kontrollera att enheterna har ström och är anslutna. För enheter i andra nätverk: lägg till deras område i sökinställningarna eller lägg till en enhet via dess adress.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Rensa filter</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Sök igen</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Inget nätverk är valt i sökinställningarna</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Välj det lokala nätverket eller andra nätverk i sökinställningarna.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sökinställningar</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Varför hittades inga enheter?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Programmet kan inte kommunicera med enheter: inga kan hittas eller ändras. Demoanläggningen kräver inga enheter och visar alla funktioner.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Öppna demoanläggning</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Genomsökt: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Lägg till enhet via adress</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Kontrollera kablar och nätverk och sök sedan igen.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Exporterar enheter…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 finns redan. Ersätta den?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Enheterna har exporterats
Fil: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Filen kunde inte skrivas. Kontrollera mappen och om filen är öppen i ett annat program.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Dessa värden kan inte läsas tillbaka från filen:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Orsak</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolumn</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Exportresultat</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Läser enhetslistan…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Ersätt</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Ersätt fil</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Grupp…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Ta bort från anläggningen</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Öppna en enhetslista</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Krypterade enhetslistor (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importerat: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>enheter</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Ej importerat. Filen är öppen i ett annat program, har ett annat format eller innehåller en MAC-adress två gånger.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Orsak</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Importresultat</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Sök igen</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Visa orsaker</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Sökningen stoppades; listan är ofullständig.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Ingen enhet hittades. De grå enheterna hittades tidigare.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n enhet färre än vid senaste sökningen</numerusform>
            <numerusform>%n enheter färre än vid senaste sökningen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
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
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärder</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckning</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupp</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Ny</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Initiera</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Anger det första lösenordet för de valda nya enheterna</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Batchändra IP</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Tilldelar de valda enheterna adresser i följd</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Läser en enhetslista från ett kalkylblad</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Skriver de valda enheterna till ett kalkylblad</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Lägg till manuellt</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Lägger till enheter som en sökning inte hittar: via IP-adress, via P2P-ID eller från favoriterna</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>IP-enhet</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>P2P-enhet</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoriter</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Tar bort de valda enheterna från listan</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initierad</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ej initierad</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Sök…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n vald enhet uppgraderas: dess adress kan inte ändras</numerusform>
            <numerusform>%n valda enheter uppgraderas: deras adresser kan inte ändras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n vald enhet uppgraderas och kan inte tas bort</numerusform>
            <numerusform>%n valda enheter uppgraderas och kan inte tas bort</numerusform>
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
        <translation>Bilder från de valda enheterna (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Fyll i</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Namnge med mönster</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Välj vad som ska namnges</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Namnen kan redigeras i tabellen. Spara skriver dem.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n kanal på den här enheten</numerusform>
            <numerusform>%n kanaler på den här enheten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n vald kamera</numerusform>
            <numerusform>%n valda kameror</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Mönster: {n}, {model}, {ip4} (slutet av adressen)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Mönster</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Flera kanaler får samma namn</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Första nummer</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Siffror</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Namnger kanal 1 på varje kamera.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Ange ett mönster</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Använd bara {n}, {model} och {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Längre än %1 byte</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Inspelare: hoppas över. Öppna den för att namnge kanalerna</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckning</translation>
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
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Ange en giltig tid</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Visar bara enheter som misslyckades eller inte utfördes, sorterade efter orsak. För enheter som inte längre visas, se Batchjobb.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Tar bort markeringarna för enheter som misslyckades eller inte utfördes</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Olösta %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Olöst åtgärd</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Alla åtgärder</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>mindre än 1 min kvar</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>cirka %n min kvar</numerusform>
            <numerusform>cirka %n min kvar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n misslyckades</numerusform>
            <numerusform>%n misslyckades</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppar…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stoppa (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Kör om misslyckade</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Väljer bara de enheter på denna sida som misslyckades eller inte utfördes</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Spara resultat</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobb</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Söker enheter…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 av %3 klara</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n till olöst</numerusform>
            <numerusform>, %n till olösta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>fel lösenord på %n enhet i rad</numerusform>
            <numerusform>fel lösenord på %n enheter i rad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>fel lösenord på %n enhet i rad (konto %1)</numerusform>
            <numerusform>fel lösenord på %n enheter i rad (konto %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Konton kan låsas om du fortsätter. Fortsätta?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Välj efter stoppet ett annat konto i enheternas meny och kör sedan om de misslyckade enheterna (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Kör om misslyckade: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Kör ”%1” igen för de enheter som misslyckades eller inte utfördes. Enheter där ett nytt försök inte hjälper, som efter fel lösenord med samma konto, utelämnas.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Välj olösta</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Välj konto…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Välj ett annat konto för de enheter som avvisade detta och för återstående enheter som använder det, och försök igen med dem</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Ange ett tal</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Svagt</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medel</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Starkt</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Lösenordets styrka</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Anpassa kolumnbredd</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Återställ kolumner</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Markera alla</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Dölj lösenord</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Visa lösenord</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>enhet hittad</numerusform>
            <numerusform>enheter hittade</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Sök enheter</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sökinställningar</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximera</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Fäll ihop</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Expandera</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Ny</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Inga kanaler</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Kanalen är inte ansluten</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Ansluter…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Strömmen avbröts</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nytt försök om %n s</numerusform>
            <numerusform>Nytt försök om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Försök igen nu</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 i p2p.ini saknas eller är ogiltigt</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>P2P-tjänsten kunde inte startas</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Välj en enhet.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch-CGI</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Skickar ett kommando till de valda enheterna</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Kör kalkylblad</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Skickar kommandona i ett kalkylblad och skriver in resultaten i det</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Öppna mall</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Öppnar mallen för kommandokalkylblad</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Sök…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Kopierat</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Enheter som misslyckades</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>Kommandot kommer att skickas till dessa enheter:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Skicka kommando</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Visa hela resultatet</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Kopiera resultat</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Ignorera</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n ändring är inte sparad och går förlorad.</numerusform>
            <numerusform>%n ändringar är inte sparade och går förlorade.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Kopiera</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Kopiera kodningsinställningarna för kanal %1 till samma kanal på den valda enheten?</numerusform>
            <numerusform>Kopiera kodningsinställningarna för kanal %1 till samma kanal på de %n valda enheterna?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Detta omfattar ändringar som inte är sparade.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Sparar kanalnamn…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc för att stoppa)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Enhetskonfiguration</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Kodningsinställningar för kanal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kopiera kodningsinställningar</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Osparade ändringar</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Spara och lämna</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Namnge med mönster</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Konfigurera den här enheten</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Det finns ingen kamera bland de valda enheterna</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Inställningen kunde inte sparas. Kontrollera skrivbehörigheten till programmappen.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Välj en firmwarefil</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Uppgradera</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Stoppa uppgradering</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>IP-adresskonflikt: %n enhet</numerusform>
            <numerusform>IP-adresskonflikt: %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Anslutningen till P2P-enheten %1 bröts. Ta bort enheten och lägg till den igen.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>P2P-tjänsten är frånkopplad. P2P-enheter kan inte nås just nu.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Ändra IP-adresser</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Bilder från de valda enheterna</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Det gamla lösenordet är rätt: väntar på det nya</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Ändra lösenord</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Kontrollera gammalt lösenord</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Starta om enheter</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Återställ fabriksinställningar</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet vald</numerusform>
            <numerusform>%n enheter valda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Tiden är ute: lösenordet på %n enhet ändrades inte</numerusform>
            <numerusform>Tiden är ute: lösenorden på %n enheter ändrades inte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>En annan åtgärd startades: lösenordet på %n enhet ändrades inte</numerusform>
            <numerusform>En annan åtgärd startades: lösenorden på %n enheter ändrades inte</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Välj först enheter till vänster</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>”%1” pågår. Vänta tills det är klart.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Lösenordet ändrades inte på %n enhet (%1); den är markerad</numerusform>
            <numerusform>Lösenordet ändrades inte på %n enheter (%1); de är markerade</numerusform>
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
        <translation>Krypterad enhetslista</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Lösenfras</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Programmet körs redan.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Ange kontot</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Ange lösenordet</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logga in igen</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Inloggningen på %1 misslyckades. Ange användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Fel lösenord, %n gång</numerusform>
            <numerusform>Fel lösenord, %n gånger</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Enhetens svar: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Enheten rapporterar inte hur många försök som återstår. Fler felaktiga lösenord kan låsa kontot.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Spara som den här enhetens konto</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>När inloggningen har lyckats används alltid detta konto för inloggning på den här enheten</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Även för senare enheter</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Efter en lyckad inloggning provas alla enheter utan eget konto, även de i batchjobb, med det i stället för kontot i sökinställningarna, tills programmet avslutas eller kontot i sökinställningarna ändras</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>skärpa</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>spegling</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilisering</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exponering</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>motljus</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>vitbalans</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>dag/natt-läge</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>dimreducering</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>belysning</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>ljusstyrka</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>mättnad</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>nyans</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ej initierad</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Dubblerad adress</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Inloggning nekad</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Kan inte läsas</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Klockan går fel</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Äldre firmware</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Ingen tidsserver</translation>
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
        <translation>Exakt</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>%1 före</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 efter</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; en annan enhet av samma modell har %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>På</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanalnamn</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Kodningsinställningar</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Bildinställningar</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Bildinställningar: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anläggningsrapport</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Avvikelser</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Ändringar på plats</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adress</translation>
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
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Tidsavvikelse</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Tidsavvikelse (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Tidsserver</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Huvudström</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Bredd (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Höjd (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Före</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Nytt värde</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatör</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Rapporteras ej</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Ingen bild</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Inga avvikelser.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Ingen enhet har ändrats sedan programmet startades.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Lästa</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Med avvikelser</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>PDF-filen kan inte skapas</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Mappen %1 kan inte skapas</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 kan inte skrivas: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 tidigare ändringar visas inte.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 kanaler till</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Ändra IP-adress</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Ställ in tid</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Uppgradera firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Tidsserver och tidszon</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Sommartid</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Automatiskt underhåll</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Starta om</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Återställ standard</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videostandard</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Ändra lösenord</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Mappen för tillfälliga filer %1 kan inte användas: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 enheter i rad nekade inloggningen</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Starta om</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Språkbyte</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>Språket ändras när programmet startas om.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Senare</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Kommandot misslyckades</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Lyckades</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Okänt</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Kontot finns inte</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Fel lösenord</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Kontot är låst. Vänta tills enheten låser upp det.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Kontot används redan</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Inget svar från enheten</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protokollet stämmer inte</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Enheten är inte initierad</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Enheten stöder inte detta</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Enheten finns redan i listan</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Enhetens funktioner kunde inte läsas</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Enheten avvisade begäran</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Okänt fel %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Enheten uppgraderas</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Ej utförd</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Stillbilden misslyckades</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Ogiltiga data</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Firmwarefilen kan inte användas</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Ej uppgraderad</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Uppgradering ej bekräftad</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Enheten är upptagen. Försök igen senare.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>Sessionen har upphört. Logga in igen.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Enheten godtar inte detta värde</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Enhetens certifikat är inte betrott</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Enhetens certifikat har ändrats</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Avbrutet</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>En annan enhet svarar på adressen</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Mottaget av enheten, ej bekräftat</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Kopiera text</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Sökrapport</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopierat till urklipp</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Nätverkskort</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Den här datorn har inget användbart nätverkskort</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Kontrollera att ett nätverkskort är installerat och aktiverat.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Sökning via adress</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Tillfrågade adresser</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Svar</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Ingen väg till %1 av dessa adresser</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Ange en gateway för nätverkskortet, eller lägg till en adress i samma nätverk som dessa adresser.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Inget svar från någon adress</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Kontrollera adressområdet i sökinställningarna och att enheterna har ström.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Andra nätverk</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Enheter som hittats utanför alla den här datorns nätverk: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Ändra enheternas IP-adresser innan du loggar in på dem, eller lägg till en adress i deras nätverk på nätverkskortet.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresser</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Skickade förfrågningar</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Mottagna meddelanden</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Hittade enheter</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Används ej</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>oläsbara meddelanden: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>meddelanden från andra enheter än kameror och inspelare: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>meddelanden utan tjänsteadress: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>meddelanden med en annan värds tjänsteadress: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>meddelanden om enheter som lämnar nätverket: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>meddelanden över gränsen: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>Nätverkskortet är inaktiverat</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Aktivera det i operativsystemets nätverksinställningar.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>Nätverkskortet är inte anslutet</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Kontrollera kabeln och switchen, eller anslut till ett trådlöst nätverk.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>Nätverkskortet har ingen IP-adress</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Ange en adress i enheternas nätverk, eller aktivera DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>Nätverkskortet kan inte skicka multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Välj andra nätverk i sökinställningarna för att söka via adress.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Operativsystemet skickade inte förfrågningarna: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Kontrollera datorns brandvägg och nätverkskortets inställningar.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Inga svar mottagna</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Kontrollera att enheterna har ström och finns i samma nätverk, och att ingen brandvägg eller switch filtrerar deras svar. Det går också att söka via adress: se sökinställningarna.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 enheter hittades, %2 färre än vid senaste sökningen.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Hittade enheter: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Inga enheter hittades.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>Start-IP får inte vara större än slut-IP</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>Området får omfatta 17 segment</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Ange en giltig start-IP</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Ange en giltig slut-IP</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sökinställningar</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Sök i lokalt nätverk</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Sök i andra nätverk</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>Start-IP</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>Slut-IP</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Standardkonto för inloggning på enheter</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Logga in på enheter under sökningen</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Läser modell, version och MAC-adress. Varje enhet tar emot detta konto. Efter fel lösenord provas enheten inte igen.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>det finns ingen nyckelringstjänst</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>nyckelringstjänsten är låst</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>nyckelringstjänsten svarar inte</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Vissa lösenord finns i skrivbordets nyckelringstjänst och kan inte läsas (%1). Ange dem igen.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Skrivbordets nyckelringstjänst kan inte användas (%1). Lösenord sparas i filer.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Lösenordet kunde inte sparas i skrivbordets nyckelringstjänst (%1). Det sparas i en fil.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Lösenordet kunde inte tas bort från skrivbordets nyckelringstjänst (%1). Ta bort det i systemets nyckelhanterare.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Demoanläggningen kunde inte öppnas:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Filen är inte en anläggningsfil, eller så är den skadad</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Anläggningsfilen är från en nyare version och kan inte läsas</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Anläggningsfilen har fler än %1 enheter</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Namnet i anläggningsfilen är ogiltigt</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Enhet %1 i anläggningsfilen: %2 är ogiltig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Enhet %1 i anläggningsfilen är en dubblett</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Filen kunde inte öppnas</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Filen är för stor</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Anläggningsfiler (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Öppna anläggning</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Anläggningen ”%1” är öppen, med %n enhet</numerusform>
            <numerusform>Anläggningen ”%1” är öppen, med %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Anläggningen %1 kan inte öppnas: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Anläggning</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Spara anläggning som</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Anläggningen sparades i %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Filen innehåller inga lösenord.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>En ny anläggning tar bort kända enheter och grupper från listan. Osparade ändringar finns kvar bland de senaste anläggningarna.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Ny anläggning</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Anläggning</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Öppna anläggning…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Spara anläggning som…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Ny anläggning…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Ange anläggningens namn</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Välj minst en fil</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Listan innehåller inga enheter</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Skapa rapport</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anläggningsrapport</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>En rapport håller på att skapas</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Anläggningsnamn</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatör</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Spara i</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Välj…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Alla (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Valda (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Programmet loggar in på varje enhet, läser inställningarna och hämtar en bild. Rapporten visar ändringarna sedan programmet startades och innehåller inga lösenord.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan inte öppna %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Öppna PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anläggningsrapport</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Rapporten är klar</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Annan mapp…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Kanalen är inte ansluten</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Stillbilden misslyckades</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Stillbilden misslyckades: filen kunde inte skrivas: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Tar stillbild…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Stillbilder</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Tar stillbild %1 av %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppar…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n tagen</numerusform>
            <numerusform>%n tagna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n misslyckades</numerusform>
            <numerusform>%n misslyckades</numerusform>
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
        <translation>Stillbilder</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Ej utförd</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Enheten visas inte längre</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Månad</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Vecka</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Veckodag</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Sommartid</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktivera</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Efter datum</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Efter vecka</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Slut</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Tillämpa sommartid</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Ange en giltig tid</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Sök…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Rensa sökning</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Sök igen</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Ingen enhet med detta namn eller denna typ, modell eller adress.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Enheter visas här allt eftersom de hittas.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Bara initierade IPv4-enheter visas.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Inga enheter matchar</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Söker enheter…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Inga enheter att konfigurera</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Inget enhetsbibliotek är installerat</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Visa alla</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Programmet kan inte kommunicera med enheter. Öppna demoanläggningen på sidan ”Ändra IP”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Rensa markeringar</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Tar bort markeringarna för enheter som misslyckades eller inte utfördes</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Inloggning har skett på alla enheter i listan.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n enhet utan adress (DHCP) visas inte</numerusform>
            <numerusform>%n enheter utan adress (DHCP) visas inte</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Enheterna som misslyckades eller inte utfördes finns inte i trädet: de är inte initierade, saknar IPv4-adress eller hittades inte igen. Se sidan ”Ändra IP” och Batchjobb.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Januari</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Februari</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>April</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Augusti</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>September</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Oktober</translation>
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
        <translation>Första</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Andra</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Tredje</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Fjärde</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Sista</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Söndag</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Måndag</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Tisdag</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Lördag</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Söndag</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Måndag</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Tisdag</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Lördag</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Varje dag</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Inget svar från enheten</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Tiden kunde inte läsas</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Inget svar från enheten. Dess lösenord kan ha ändrats.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Tidszon</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Starta om</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Återställning</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videostandard</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>%1 s kvar för att ange lösenordet. Därefter måste det gamla lösenordet kontrolleras igen.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>%1 s kvar för att ange lösenordet</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n enhet väntar på det nya lösenordet</numerusform>
            <numerusform>%n enheter väntar på det nya lösenordet</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>det nya lösenordet som angavs har återställts</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Kontrollera det gamla lösenordet igen. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Det nya lösenordet som angavs återställs då.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Tiden är ute: lösenordet på %n enhet ändrades inte. </numerusform>
            <numerusform>Tiden är ute: lösenorden på %n enheter ändrades inte. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>Urvalet har ändrats. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Använd minst två av siffror, bokstäver och symboler, och inga otillåtna tecken.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bekräfta lösenordet</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Lösenorden stämmer inte överens</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Lösenordet måste ha 8 till 32 tecken</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Ange det gamla lösenordet</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Steg 1: kontrollera det gamla lösenordet</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Gammalt lösenord</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Kontrollera</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Steg 2: ange det nya lösenordet</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nytt lösenord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bekräfta lösenord</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 till 32 tecken, med minst två av siffror, bokstäver och symboler (alla synliga tecken utom &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Ändra lösenord</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>När det lyckats</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Sommartid på</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Sommartid av</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP av</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Starta om %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Regelbundna omstarter av</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Starta om den valda enheten?</numerusform>
            <numerusform>Starta om de %n valda enheterna?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Starta om</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Återställa den valda enheten till fabriksinställningar?</numerusform>
            <numerusform>Återställa de %n valda enheterna till fabriksinställningar?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>”%1” kommer att tillämpas på dessa enheter:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Uppdateringsintervallet är 0 minuter: enheten kanske inte längre uppdaterar sin tid. Tillämpa på den valda enheten?</numerusform>
            <numerusform>Uppdateringsintervallet är 0 minuter: enheterna kanske inte längre uppdaterar sin tid. Tillämpa på de %n valda enheterna?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Tillämpa ändå</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Automatiskt underhåll</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Starta om regelbundet</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Starta om kl.</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Omstartsdag</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Starta om nu</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Under omstarten kan en enhet inte nås och spelar inte in.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Starta om enheter</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n vald enhet uppgraderas och kan inte startas om</numerusform>
            <numerusform>%n valda enheter uppgraderas och kan inte startas om</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Återställ fabriksinställningar</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Raderar alla inställningar, konton och lösenord på enheterna. Detta kan inte ångras. Enheterna måste initieras på nytt.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n vald enhet uppgraderas och kan inte återställas</numerusform>
            <numerusform>%n valda enheter uppgraderas och kan inte återställas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Datorns tid</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Synka med datorns tid</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Ställer in varje enhet på den tid då den tar emot begäran</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manuellt</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Använd aktuell tid</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Enhetens tid</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Läs enheternas tid</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enhet</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Alla</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Ej inloggade %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Visar bara enheter utan inloggning hittills, eller vars senaste inloggning misslyckades</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Olösta %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Visar bara enheter som misslyckades eller inte utfördes, sorterade efter orsak.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n till finns inte i den här listan: se Batchjobb.</numerusform>
            <numerusform> %n till finns inte i den här listan: se Batchjobb.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Videostandard</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL är för regioner med 50 Hz nätfrekvens, NTSC för 60 Hz. Vissa enheter startar om efter ändringen.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Enheterna har inte den här funktionen</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Ange NTP-servern</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Tidszon och NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Tidszon</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Aktivera NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>NTP-server</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP-adress eller värdnamn</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>NTP-port</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervall (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Tillämpa tidszon och NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Enheterna har inte %1, den här datorns tidszon. Välj en tidszon.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Ange en giltig IP-adress eller ett giltigt värdnamn</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Enhetens IP-adress, eller ”adress:webbport” om webbporten inte är 80. Obligatoriskt.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Enhetens inloggningsport. Används bara för att kontrollera kontot.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Enhetens användarnamn, utan kolon.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Enhetens lösenord. Ta bort det från filen efteråt.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Kommando som börjar med ”/”. Enheten tar emot ett godtaget kommando två gånger. Obligatoriskt.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 för HTTP, andra heltal för HTTPS. HTTP om tomt.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Fylls i av programmet: svaret, sökvägen till bilden eller inspelningen, eller ”Error:” och orsaken.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Kommandon</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Anvisningar</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolumn</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betydelse</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Behåll rubrikraden. Ersätt exempelraden med egna rader.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Rader utan adress och kommando hoppas över.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Öppna inte filen i ett annat program under körningen.</translation>
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
            <numerusform>%n enhet kan inte uppgraderas med den här filen: se Resultat</numerusform>
            <numerusform>%n enheter kan inte uppgraderas med den här filen: se Resultat</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rad %1: %2</translation>
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
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarefil</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Filen kunde inte öppnas</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Fel filformat</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Resultaten kunde inte sparas: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultaten sparades i %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Filen kunde inte skrivas. Den är skrivskyddad eller öppen i ett annat program. Resultaten sparades i %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>Kalkylbladet har fler än %1 enheter. Dela upp det.</translation>
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
        <translation>%1: %2 uppgraderade, %3 misslyckades. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>Kalkylbladet innehåller inga enheter</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: hoppas över</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Enheten har redan den här versionen</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Läsning av kalkylblad</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Starta uppgradering</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsuppgradering</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Uppgradera från kalkylblad</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n enhet kommer att uppgraderas. Den startar om. Stäng inte av den.</numerusform>
            <numerusform>%n enheter kommer att uppgraderas. De startar om. Stäng inte av dem.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Resultaten skrivs in i kalkylbladet.</translation>
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
        <translation>Uppgradering: %1 av %2 klara</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n lyckades</numerusform>
            <numerusform>%n lyckades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n misslyckades</numerusform>
            <numerusform>%n misslyckades</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Loggar in</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Skickar</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Skriver</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Startar om</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
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
        <translation>Firmwarefil</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Åtgärder</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Ej vald</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Ett nytt försök kan hjälpa</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Rätta filen, kontot eller enheten och uppgradera sedan igen</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Välj fil</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Uppgradera</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Skrivningen har börjat: kan inte stoppas</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Anteckning</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>Enhetens IP-adress. Obligatoriskt.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Enhetens inloggningsport. 37777 om tomt.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Enhetens användarnamn. Om detta och lösenordet är tomma används programmets konto.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Enhetens lösenord. Ta bort det från filen efteråt.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Sökväg till firmwarefilen, absolut eller relativt till det här kalkylbladets mapp. Obligatoriskt.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Fylls i av programmet: versionerna före och efter uppgraderingen, eller varför den misslyckades.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Uppgradering</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Anvisningar</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolumn</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betydelse</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Behåll rubrikraden. Ersätt exempelraden med egna rader.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Rader utan adress och firmwarefil hoppas över.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Öppna inte filen i ett annat program under uppgraderingen.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Skrivningen har börjat: kan inte stoppas</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 vid %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Inte stoppat ännu: försöker igen</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware skriven, enheten startar om: kan inte stoppas</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Uppgraderad: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: ingen version rapporterad</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: nu %2, tidigare version okänd</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Starta uppgradering</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Uppgraderar de valda enheterna</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Välj fil</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Väljer en firmwarefil för de valda enheterna</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Kör om misslyckade</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Uppgraderar på nytt de enheter där ett nytt försök kan hjälpa, till exempel de som inte svarade</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Uppgradera från kalkylblad</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Uppgraderar enheterna i ett kalkylblad och skriver in resultaten i det</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Öppna mall</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Öppnar mallen för uppgraderingskalkylblad</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Sök…</translation>
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
        <translation>Enheter samtidigt</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Enheter som uppgraderas samtidigt</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Väntar på att enheten startar om</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Skriver: stäng inte av enheten</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Skickar filen</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Loggar in</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Uppgraderad</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Ingen firmwarefil vald</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Firmwarefilen finns inte</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Firmwarefilen kunde inte läsas</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Firmwarefilen är tom</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Firmwarefilen är för stor</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Firmwarefilen är skadad</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Firmwaren är för andra modeller</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmwaren avvisades av enheten</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Fel lösenord</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Kontot finns inte</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Kontot är låst</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Enheten är inte initierad</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Uppgradering stöds inte, eller enheten är ej initierad</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Ogiltig IP-adress eller port</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Samma enhet som på en tidigare rad</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Inget svar från enheten</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Enheten är upptagen. Försök igen senare.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Enheten avbröt</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Inget förlopp på för lång tid</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Inget svar efter omstarten</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Oförändrad version efter omstarten</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Stoppat: enheten ej ändrad</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Avbrutet: programmet stängdes</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Okänt fel %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Batchuppgraderingsmall.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Omstartad, men versionen kunde inte läsas</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certifikatet är inte betrott</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Certifikatet har ändrats</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Enheten finns inte längre i listan</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Välj en firmwarefil</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarefil</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Alla filer</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Inga enheter att köra om</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n enhet uppgraderades inte: se Resultat</numerusform>
            <numerusform>%n enheter uppgraderades inte: se Resultat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n enhet uppgraderad</numerusform>
            <numerusform>%n enheter uppgraderade</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Mallen kunde inte öppnas.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsuppgradering</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Uppgradera från kalkylblad</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Stoppat: %1 uppgraderade, %2 misslyckades, %3 ej utförda</translation>
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
        <translation>Rörelsedetektering</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Larm</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Natt</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Motljuskompensering</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Brett dynamiskt omfång</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Högdagerkompensering</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Kodning</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logga in igen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Klicka på en enhet till vänster för att logga in och ändra dess inställningar.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Inloggning misslyckades</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Fortsätt här</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Bara en enhet i taget kan vara inloggad. Om du fortsätter stängs den andra enhetens livevy.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>Livevyn för en annan enhet är öppen</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Anslutningen bröts</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanalnamn</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>Enheternas konfiguration visas och ändras här när en sökning har hittat några.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Inga enheter</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Namnge med mönster</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Klicka på en enhet till vänster för att ändra dess kanalnamn här, eller namnge de valda kamerorna tillsammans.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Ingen bild: filer i mappen Shaders saknas eller är skadade</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Ingen bild: för stor för grafikkortet</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Uppspelning misslyckades</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Uppspelning misslyckades: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Anslutningen till enheten bröts</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Enheten avslutade strömmen</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Enheten skickar ingen video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Enheten godtar inte längre inloggningen</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Enheten skickar ingen videoström</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Den här datorn kan inte avkoda strömmen</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>Enhetens certifikat har ändrats. Webbsidan öppnades inte. Ange inget lösenord på den här enheten.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Enhetens certifikat är inte bekräftat. Webbsidan öppnades inte.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Webbläsaren kunde inte öppnas. Enhetens webbsida: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Inställningarna kunde inte sparas. Kontrollera skrivbehörigheten till programmappen.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Stoppa och avsluta</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Enheter som skriver firmware slutför på egen hand: stäng inte av dem.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certifikat är nu betrott. Försök igen.</numerusform>
            <numerusform>%n certifikat är nu betrodda. Försök igen.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Avsluta programmet</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Kontot kan inte sparas och används bara till nästa sökning: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>”%1” pågår. Om du avslutar ändras inte de återstående enheterna.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Rapporten stoppades; ingen fil skrevs</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Fler än %1 enheter svarade. Ytterligare %2 svar visas inte. Sök i ett mindre område.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Stoppat: %1 rader lyckades, %2 misslyckades, %3 ej skickade.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Klart: %1 rader lyckades, %2 misslyckades.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Resultaten kunde inte sparas: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultaten sparades i %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Filen kunde inte skrivas. Den är skrivskyddad eller öppen i ett annat program. Resultaten sparades i %1</translation>
    </message>
</context>
</TS>
