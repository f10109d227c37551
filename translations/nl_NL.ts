<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Versienummer kopiëren</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Gekopieerd naar het klembord</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licenties van derden</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Account toevoegen</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Account wijzigen</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Voer een naam in</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Bijvoorbeeld: Gebouw 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Voer de gebruikersnaam in</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Voer het wachtwoord in</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Leeg laten om te behouden</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Slaat op waarmee het programma zich aanmeldt. Wachtwoorden op apparaten worden niet gewijzigd.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Het account kan niet worden opgeslagen en wordt alleen tot de volgende zoekopdracht gebruikt: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Het nieuwe account is nu het standaardaccount</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Het nieuwe account is opgeslagen en wordt vanaf nu voor dit apparaat gebruikt</numerusform>
            <numerusform>Het nieuwe account is opgeslagen en wordt vanaf nu voor deze %n apparaten gebruikt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Opslaan voor deze apparaten (aanbevolen)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Instellen als standaardaccount van alle apparaten</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Niet opslaan; gebruiken tot de volgende zoekopdracht</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Het apparaat heeft geen MAC en geen UUID: het account wordt alleen tot de volgende zoekopdracht gebruikt</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Het accountbestand %1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Het accountbestand is beschadigd en geen van de accounts wordt gebruikt: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Voer een naam van maximaal %1 tekens in</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Voer een gebruikersnaam van maximaal %1 tekens in</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Voer een wachtwoord van maximaal %1 tekens in</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Er is al een account met de naam “%1”</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Er is geen account met de naam “%1”</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Geen ruimte: maximaal %1 accounts en %2 apparaten</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n apparaat gebruikt het standaardaccount</numerusform>
            <numerusform>%n apparaten gebruiken het standaardaccount</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n apparaat gebruikt het account “%1”</numerusform>
            <numerusform>%n apparaten gebruiken het account “%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n ervan heeft geen MAC en geen UUID en gebruikt het alleen tot de volgende zoekopdracht</numerusform>
            <numerusform>; %n ervan hebben geen MAC en geen UUID en gebruiken het alleen tot de volgende zoekopdracht</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Account “%1” verwijderen?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Aanmelden bij het apparaat dat het gebruikt, gebeurt daarna met het standaardaccount.</numerusform>
            <numerusform> Aanmelden bij de %n apparaten die het gebruiken, gebeurt daarna met het standaardaccount.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Gebruiken voor %n apparaat</numerusform>
            <numerusform>Gebruiken voor %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Account selecteren</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Het standaardaccount wordt gewijzigd in de zoekinstellingen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Elk apparaat wordt met één account geprobeerd: het account dat ervoor is geselecteerd, of anders het standaardaccount. Andere accounts worden nooit geprobeerd.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Standaardaccount</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Account verwijderen</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>%n account verwijderen dat geen apparaat heeft?</numerusform>
            <numerusform>%n accounts verwijderen die geen apparaat heeft?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Ongebruikte accounts verwijderen</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Accounts die voor geen enkel apparaat zijn geselecteerd</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Niet gebruikt</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>De apparaten hebben dit account geweigerd. Selecteer of voeg een ander account toe.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Gebruiken voor %n apparaat en opnieuw proberen</numerusform>
            <numerusform>Gebruiken voor %n apparaten en opnieuw proberen</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>De apparaten hebben het account %1 geweigerd. Selecteer of voeg een ander account toe.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Voer de P2P-ID in</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Voer een geldig IP-adres in</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Voer het account in</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Voer het wachtwoord in</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Voer het poortnummer in</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>De poort moet tussen 1 en 65535 liggen</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Apparaat toevoegen</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Toevoegen aan favorieten</translation>
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
        <translation>Poort</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Maximaal 50 tekens</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Toevoegen…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>De notities konden niet worden opgeslagen. Controleer of u in de programmamap mag schrijven.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>De favoriet kon niet worden verwijderd. Controleer of u in de programmamap mag schrijven.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favorieten</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favoriet geselecteerd</numerusform>
            <numerusform>favorieten geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Zoeken…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Dubbelklik op een rij om het apparaat toe te voegen</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Filters wissen</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Apparaat toevoegen</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Wijzig of wis de zoektekst.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Selecteer “Toevoegen aan favorieten” bij het toevoegen van een apparaat om het hier op te slaan.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Geen favorieten gevonden voor de zoektekst</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Nog geen favorieten</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>%1 uit de favorieten verwijderen?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Favorieten toevoegen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Favoriet verwijderen</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Het wachtwoord kan niet worden gelezen: dubbelklik om het in te voeren</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Rij %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Geen MAC-adres: overgeslagen</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In gebruik door een ander apparaat</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Dubbel toegewezen</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Gelijk aan de gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Buiten het subnet</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Netwerk- of broadcastadres</translation>
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
        <translation>De batch wordt uitgevoerd</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Apparaten wachten op het nieuwe wachtwoord</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Geen apparaten mislukt of niet uitgevoerd</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Deze bewerking kan hier niet opnieuw worden uitgevoerd</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Alleen de laatste batch kan opnieuw worden uitgevoerd</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Een nieuwe poging helpt niet bij deze apparaten. Verhelp eerst de oorzaak, bijvoorbeeld het account.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-batch</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Deze opdracht naar het geselecteerde apparaat verzenden:</numerusform>
            <numerusform>Deze opdracht naar de %n geselecteerde apparaten verzenden:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batches</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Mislukte opnieuw</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Voert de batch opnieuw uit voor apparaten die zijn mislukt of niet zijn uitgevoerd</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Adressen herstellen</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Zet de gewijzigde apparaten terug op hun vorige IP-adressen</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>%n apparaat terugzetten op het vorige IP-adres?</numerusform>
            <numerusform>%n apparaten terugzetten op hun vorige IP-adressen?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Resultaten opslaan</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Gestart</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Geslaagd / totaal</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Alleen mislukte</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inclusief apparaten die niet zijn uitgevoerd</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Nog geen batches</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Geen apparaten mislukt</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>IP-adressen herstellen</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Alles opslaan</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Slaat de resultaten van alle batches in de lijst op in één bestand</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Wacht tot de huidige batch klaar is</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Niet geïnitialiseerd: overgeslagen</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Upgrade bezig: overgeslagen</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Adresconflict: mogelijk wordt een ander apparaat gewijzigd</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In gebruik door een ander apparaat</translation>
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
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n waarschuwing: zie Notities</numerusform>
            <numerusform>%n waarschuwingen: zie Notities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n apparaat wordt overgeslagen: zie Notities</numerusform>
            <numerusform>%n apparaten worden overgeslagen: zie Notities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>wordt uitgevoerd op %n apparaat</numerusform>
            <numerusform>wordt uitgevoerd op %n apparaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n overgeslagen</numerusform>
            <numerusform>%n overgeslagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Lijst verbergen</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>%n apparaat tonen</numerusform>
            <numerusform>%n apparaten tonen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Naam en model</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Oud adres</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Nieuw adres</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarebestand</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nieuwe naam</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n geslaagd</numerusform>
            <numerusform>%n geslaagd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n wacht op het nieuwe wachtwoord</numerusform>
            <numerusform>%n wachten op het nieuwe wachtwoord</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n niet uitgevoerd</numerusform>
            <numerusform>%n niet uitgevoerd</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n overgeslagen</numerusform>
            <numerusform>%n overgeslagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n wacht</numerusform>
            <numerusform>%n wachten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Oud wachtwoord juist</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Stap</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Tijdslimiet overschreden</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: overgeslagen</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Resultaten opslaan</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultaten opgeslagen in %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>De resultaten konden niet worden opgeslagen. Kies een andere map.
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
        <translation>Doorgaan</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Er is %n waarschuwing. Doorgaan?</numerusform>
            <numerusform>Er zijn %n waarschuwingen. Doorgaan?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Waarschuwingen</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Apparaten kunnen hun adressen (zoals %1 en %2) niet in één stap uitwisselen. Geef een ervan eerst een ander adres.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is bezig. Wacht tot dit klaar is.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Niet genoeg geheugen of threads om te starten. Sluit andere programma&apos;s en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Resultaten opslaan</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 kanaal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 is nog in gebruik door apparaat %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n apparaat is niet opnieuw geprobeerd: het adres is gewijzigd of het staat niet meer in de lijst (%1)</numerusform>
            <numerusform>%n apparaten zijn niet opnieuw geprobeerd: hun adressen zijn gewijzigd of ze staan niet meer in de lijst (bijvoorbeeld %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Er zijn upgrades bezig. Zoek wanneer ze klaar zijn.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Er zijn upgrades bezig. Sluit het programma wanneer ze klaar zijn.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, “</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>“%1” is bezig. Zoek wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>“%1” is bezig. Verwijder apparaten wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>“%1” is bezig. Wijzig apparaten wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>“%1” is bezig. Sluit het programma wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>“%1” is bezig. Start het programma opnieuw wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Er wordt gezocht. Stop het zoeken met Esc of wacht tot het klaar is.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Opdrachten van een andere spreadsheet zijn bezig. Wacht tot ze klaar zijn.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>CGI-batchsjabloon.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Een andere CGI-opdracht is bezig. Wacht tot deze klaar is.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (ingekort)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>wachtwoord van het standaardaccount</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Buiten</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Versterkingsprioriteit</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Sluiterprioriteit</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Natuurlijk licht</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Straatlantaarn</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Aangepast gebied</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Zwart-wit</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarood</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Wit licht</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Slim</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Niet nu</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Selectie vertrouwen</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Apparaatcertificaten bevestigen</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>De certificaten konden niet worden opgeslagen. Geen enkel wordt vertrouwd.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 van %2 apparaten geselecteerd</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Deze apparaten gebruiken zelfondertekende certificaten voor HTTPS. Er is geen wachtwoord verzonden. Vergelijk de vingerafdrukken. Na bevestiging wordt alleen deze sleutel geaccepteerd.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Het certificaat van %n apparaat is gewijzigd. Er is geen wachtwoord verzonden. Het kan een ander apparaat zijn: selecteer het alleen als u de reden kent, zoals een fabrieksreset.</numerusform>
            <numerusform>De certificaten van %n apparaten zijn gewijzigd. Er zijn geen wachtwoorden verzonden. Het kunnen andere apparaten zijn: selecteer ze alleen als u de reden kent, zoals een fabrieksreset.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC of UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificaat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Geldig tot</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Vingerafdruk</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Vingerafdruk (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Vertrouwde vingerafdruk</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nieuw</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Het certificatenbestand %1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Het certificatenbestand is beschadigd. Geen certificaat wordt vertrouwd. Bevestig ze opnieuw: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Geen tunnel naar de webpoort van het apparaat.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Niet verzonden</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>CGI-opdracht</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Verwijderen uit de opgeslagen opdrachten</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Deze opdracht opslaan</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>De header van het antwoord is te groot.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Gebruikersnaam of wachtwoord onjuist. Controleer het account in de zoekinstellingen.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Het account is geblokkeerd. Wacht tot het apparaat het vrijgeeft.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Geen antwoord van het apparaat.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Het apparaat is niet geïnitialiseerd.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Onbekende fout.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Het apparaat heeft het verzoek geweigerd</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>Het antwoord is te groot.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Het bestand kon niet worden geschreven: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Gestopt.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>Het ontvangen deel van de opname staat in %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Het apparaat wordt geüpgraded.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Het certificaat van het apparaat wordt niet vertrouwd.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Het certificaat van het apparaat is gewijzigd.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>De host is niet gevonden</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Het apparaat heeft de verbinding geweigerd. Controleer de HTTP-poort</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Het apparaat is niet bereikbaar</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Het apparaat heeft niet op tijd geantwoord</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Geen versleutelde verbinding. Controleer de HTTPS-poort</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>Het antwoord van het apparaat is geen geldige HTTP</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>De verbinding is verbroken vóór het einde van het antwoord</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Het verzoek is mislukt</translation>
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
        <translation>Een gebruikersnaam mag geen dubbele punt of stuurtekens bevatten.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Een wachtwoord mag geen nultekens bevatten.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Het bestand kon niet worden geschreven: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Opgeslagen in %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Alles kopiëren</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Slaat de tekst op in een bestand</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecteer een map</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>CGI-opdracht verzenden</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-batch</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Voer een opdracht in.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>De opdracht moet met /cgi-bin/ beginnen</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Gestopt: %1 van %2 gedaan</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Verzonden naar %n apparaat: geaccepteerd</numerusform>
            <numerusform>Verzonden naar %n apparaten: alle geaccepteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Het apparaat heeft de opdracht geaccepteerd en geen resultaat teruggegeven.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Verzonden naar %n: %1 geaccepteerd, %2 mislukt</numerusform>
            <numerusform>Verzonden naar %n: %1 geaccepteerd, %2 mislukt</numerusform>
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
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acties</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Klik met rechts om het resultaat te kopiëren</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Verzenden</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Verzendt de opdracht naar dit apparaat</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Volledig resultaat tonen</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Het apparaat wordt geüpgraded. Verzend opdrachten wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notitie</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Spreadsheet uitvoeren</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>De CGI-opdrachten van de spreadsheet worden verzonden. De resultaten worden erin geschreven.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Het sjabloon kon niet worden geopend.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Verzenden</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Opdrachten van een andere spreadsheet zijn bezig. Wacht tot ze klaar zijn.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Spreadsheet lezen</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Rij %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Het bestand is gewijzigd. Open het opnieuw.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Spreadsheet opslaan</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rij %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Niet opgeslagen</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Naam van kanaal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Naam niet gemeld</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Voer een naam in</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Langer dan %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Geweigerd door het apparaat</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Geen antwoord van het apparaat</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Gewijzigd door het apparaat</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Inkorten</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Ongedaan</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Kort de naam in tot wat het apparaat kan opslaan</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Herstelt de naam die het apparaat heeft</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Het apparaat wordt geüpgraded</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Kanaal</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Niet verbonden</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanaalnaam niet opgeslagen</numerusform>
            <numerusform>%n kanaalnamen niet opgeslagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n niet-opgeslagen wijziging</numerusform>
            <numerusform>%n niet-opgeslagen wijzigingen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Het apparaat meldt de naam van %n kanaal niet</numerusform>
            <numerusform>Het apparaat meldt de namen van %n kanalen niet</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Het apparaat wordt geüpgraded. Sla op wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Benoemen via patroon</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Meerdere kanalen of camera&apos;s met één patroon benoemen</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Kanaalnamen lezen…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Kanaal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n kanaalnaam opgeslagen</numerusform>
            <numerusform>%n kanaalnamen opgeslagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanaalnaam niet opgeslagen</numerusform>
            <numerusform>%n kanaalnamen niet opgeslagen</numerusform>
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
        <translation>Poort</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>CGI-opdracht</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Het bestand kon niet worden geopend</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>De bestandsindeling is onjuist</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Voer een opdracht in.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>De opdracht moet met / beginnen</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (ingekort)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Gekopieerd naar %n apparaat</numerusform>
            <numerusform>Gekopieerd naar %n apparaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n apparaat heeft slechts een deel geaccepteerd</numerusform>
            <numerusform>%n apparaten hebben slechts een deel geaccepteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n apparaat mislukt</numerusform>
            <numerusform>%n apparaten mislukt</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n apparaat niet uitgevoerd</numerusform>
            <numerusform>%n apparaten niet uitgevoerd</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Codering kopiëren</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Aanmelden…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>De configuratie van het apparaat kon niet worden gelezen</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>De mogelijkheden van het apparaat konden niet worden gelezen</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Opnieuw aangemeld. Niet-opgeslagen wijzigingen zijn verloren.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Rapport tonen</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Het programma is onverwacht beëindigd. Er is een rapport geschreven</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Crashrapport</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 bestaat al. Vervangen?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Geëxporteerd naar %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Het bestand %1 kon niet worden geschreven</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Het apparaat heeft geen webpagina</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Gekopieerd naar het klembord</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 staat al in de favorieten</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 toegevoegd aan de favorieten</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>De favoriet kan niet worden opgeslagen. Controleer of de programmamap beschrijfbaar is.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Bestand vervangen</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Het apparaat meldt geen MAC-adres en geen UUID en kan geen notitie hebben</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Het apparaat is niet bereikbaar via P2P. Controleer de P2P-ID en de netwerkverbinding.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>IP-adresconflict</translation>
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
        <translation>%1 u %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 u</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>gelijk aan deze computer</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>loopt %1 voor</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>loopt %1 achter</translation>
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
        <translation>Identiteit</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
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
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Geïnitialiseerd</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>IPv6-adres</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>IPv4-adres</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Apparaatadres</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnetmasker</translation>
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
        <translation>Nee</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Hostnaam</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Gevonden via</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Poorten</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Lokale poort</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Servicepoort</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Servicepoort apparaat</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>HTTP-poort</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>HTTPS-poort</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>RTSP-poort</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Maximaal aantal verbindingen</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Alarmingangen</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Harde schijven</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Toegevoegd door</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Handmatig (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Handmatig (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P-ID</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>P2P-poort</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Alles kopiëren</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Apparaatdetails</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Aanmelden mislukt: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Aanmelden om meer te lezen</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Meldt zich aan bij het apparaat om poorten, kanalen en harde schijven te lezen</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Slaat de tekst op in een bestand</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Geen items gevonden voor de zoektekst</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Deze regel kopiëren</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Het apparaatbibliotheekbestand %1 kon niet worden gelezen</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Het apparaatbibliotheekbestand %1 bevat een onbekende regel: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] of de vermelding “file” ontbreekt in het apparaatbibliotheekbestand</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Functie %2 van %1 ontbreekt in het apparaatbibliotheekbestand</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Onbekende functie %2 van %1 in het apparaatbibliotheekbestand</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>De apparaatbibliotheek %1 kon niet worden geladen: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>De apparaatbibliotheek %1 exporteert %2 niet</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Regel %1 is te lang</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Regel %1 is niet gecodeerd in UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Het bestand kon niet worden geopend</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Het bestand is te groot</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Meer velden dan kolommen</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Een veld is te lang</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Een veld bevat een stuurteken</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Onbekende toevoegmodus</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Ongeldig apparaatadres</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Ongeldige apparaatpoort</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Gebruikersnaam of wachtwoord ontbreekt</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Regels %1 en %2 hebben hetzelfde MAC-adres: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Het bestand bevat meer dan %1 apparaten</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Het bestand heeft geen kopregel van een apparaatlijst</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>De spreadsheet kon niet worden gelezen</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>Het hoofdelement is niet deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Regel %1 is geen geldige XML</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>De tekencodering %1 wordt niet ondersteund</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Het blad heeft meer dan %1 rijen</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Het teken %1 kan niet uit deze indeling worden teruggelezen</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>De inhoud van de versleutelde lijst is ongeldig</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Het bestand is geen versleutelde apparatenlijst of is onvolledig</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Deze versie van versleutelde lijsten wordt niet ondersteund</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>De parameters van de versleutelde lijst zijn ongeldig</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>De lijst is versleuteld: een wachtwoordzin is vereist</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Verkeerde wachtwoordzin, of het bestand is beschadigd</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Alleen hetzelfde type selecteren (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Alleen hetzelfde model selecteren (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Webpagina openen</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Livebeeld openen</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Adres kopiëren</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>MAC kopiëren</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Rij kopiëren</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Toevoegen aan favorieten</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Notitie…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Account van %n geselecteerd apparaat selecteren…</numerusform>
            <numerusform>Account van %n geselecteerde apparaten selecteren…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Account selecteren…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Het bestand met de notities, %1, kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Het bestand met de notities, %1, is beschadigd. Sommige notities zijn mogelijk verloren. Het wordt onder een andere naam bewaard wanneer de volgende notitie wordt opgeslagen.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Het apparaat meldt geen MAC-adres en geen UUID en kan geen notitie hebben</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Een notitie mag maximaal %1 tekens bevatten</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Er kunnen maximaal %1 notities worden opgeslagen</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>De notitie kan niet worden opgeslagen: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Overig</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>lokaal netwerk</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>lokaal netwerk (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Apparaten zoeken</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Geen apparaat geselecteerd</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Aangemeld</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Aanmelden mislukt: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Niet aangemeld</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Upgrade bezig</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Niet gevonden</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Te bevestigen</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Geïnitialiseerd</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Niet gevonden bij de laatste zoekopdracht</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Apparaat van de laatste lijst, nog niet gevonden</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Laatst gevonden: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Er kan maar één bestand tegelijk naar het venster worden gesleept</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Dit is geen bestand op deze computer</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Bestand niet ondersteund: %1. Sleep een apparatenlijst (.xlsx, .csv, .xml, .devlist) of een locatiebestand (.site) naar het venster</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Aangepaste bitrate</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Hoofdstream: videoformaat</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Hoofdstream: videoprofiel</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Hoofdstream: audiocompressie</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Hoofdstream: audioformaat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Substream: videoformaat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Substream: videoprofiel</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Substream: audiocompressie</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Substream: audioformaat</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (niet gelezen, niet geschreven)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Niet gekopieerd: %1</translation>
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
        <translation>compressie van de substream</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compressie van de hoofdstream</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolutie van de substream</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolutie van de hoofdstream</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>bitrate van de substream</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>bitrate van de hoofdstream</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>bitrateregeling van de substream</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>bitrateregeling van de hoofdstream</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>framerate van de substream</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>framerate van de hoofdstream</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio van de substream</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio van de hoofdstream</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Geen antwoord van het apparaat</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Het apparaat ondersteunt dit niet</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Het apparaat is bezet</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Het apparaat heeft het verzoek geweigerd (fout %1)</translation>
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
        <translation>De configuratie van het apparaat is ongeldig. Sommige waarden ontbreken mogelijk.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Het apparaat meldt zijn coderingsmogelijkheden niet. Sommige waarden ontbreken mogelijk.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanaal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Hoofdstream</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Substream</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>De coderingsinstellingen van kanaal %1 konden niet worden gelezen</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n niet-opgeslagen wijziging</numerusform>
            <numerusform>%n niet-opgeslagen wijzigingen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Kopiëren naar %n apparaat</numerusform>
            <numerusform>Kopiëren naar %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Kopiëren naar geselecteerde apparaten</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Niet opgeslagen: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Het apparaat wordt geüpgraded. Sla op wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Verbinding verbroken. Vernieuw om het opnieuw te proberen.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, of het kanaal is niet verbonden. Kies een ander kanaal of vernieuw.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Niet gelezen: %1. Opslaan wijzigt dit niet.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Streamtype</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Substream inschakelen</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Inschakelen</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compressie</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Bitrateregeling</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Constant (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variabel (VBR)</translation>
    </message>
    <message>
        <source>码流值(Kb/S)</source>
        <translation>Bitrate (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Framerate (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Audio inschakelen</translation>
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
        <translation>Aangepast</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Coderingsinstellingen lezen…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Resolutie van de substream schrijven…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Beide streams gebruiken één compressie: de hoofdstream is nu %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Coderingsinstellingen opslaan…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Niet opgeslagen</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>De instellingen konden niet worden gelezen: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Selecteer de bestandsindeling</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Wachtwoorden in het bestand zijn onversleuteld. Wachtwoorden van opgeslagen accounts worden niet geëxporteerd.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Het bestand bevat geen wachtwoorden. Vul ze in vóór het importeren.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>De hele lijst wordt versleuteld met de wachtwoordzin en alleen dit programma kan de lijst lezen. Zonder de wachtwoordzin kan de lijst niet worden hersteld. Wachtwoorden van opgeslagen accounts worden niet geëxporteerd.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Volledige lijst</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Zonder wachtwoorden</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Versleuteld (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>De wachtwoordzin moet minstens %1 tekens hebben</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Wachtwoordzin</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>De twee wachtwoordzinnen verschillen</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Herhaal de wachtwoordzin</translation>
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
        <translation>Niet gevonden bij de laatste zoekopdracht</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Notities bewerken</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notities</translation>
    </message>
</context>
<context>
    <name>FavouriteTable</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>IP / P2P ID</source>
        <translation>IP / P2P-ID</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notities</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acties</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Verwijdert dit apparaat uit de favorieten</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Sluit het dialoogvenster voordat u een bestand naar het venster sleept</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Laat los om een apparatenlijst te importeren of een locatie te openen</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Gebruik minstens twee van cijfers, letters en symbolen, en geen ongeldige tekens.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Voer de gebruikersnaam in</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Voer het wachtwoord in</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bevestig het wachtwoord</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>De wachtwoorden komen niet overeen</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Het wachtwoord moet 8 tot 32 tekens hebben</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisatie</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n apparaat te initialiseren</numerusform>
            <numerusform>%n apparaten te initialiseren</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nieuw wachtwoord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bevestigen</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 tot 32 tekens, met minstens twee van cijfers, letters en symbolen (alle zichtbare tekens behalve </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Voer daarna het nieuwe wachtwoord ook in de zoekinstellingen in.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Bij succes</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Het apparaat is niet door een zoekopdracht gevonden, of meldt geen MAC-adres en geen UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Wachten op het apparaat gestopt: het adres is mogelijk gewijzigd</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tijdslimiet overschreden: het adres is mogelijk gewijzigd</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Meerdere apparaten achter elkaar hebben het wachtwoord geweigerd. Doorgaan kan accounts blokkeren.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppen…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Beelden ophalen, %1 van %2 apparaten</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n beeld</numerusform>
            <numerusform>%n beelden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n apparaat meer wordt niet getoond</numerusform>
            <numerusform>%n apparaten meer worden niet getoond</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Alles opnieuw ophalen</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is bezig. Wacht tot dit klaar is.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Alle beelden opnieuw ophalen (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Alles opslaan</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Alle beelden naar de map met snapshots schrijven (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Ophalen…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>In wachtrij</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Opnieuw ophalen (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Ophalen</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Overgeslagen</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Apparaatbeelden</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 beelden opgeslagen in %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 beelden opgeslagen in %2, %3 niet geschreven: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n apparaat</numerusform>
            <numerusform>%n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>De map kon niet worden geopend: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Selecteer apparaten in de apparaatlijst</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Geen apparaten</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groep</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n apparaat</numerusform>
            <numerusform>%n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Geen groep</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Belichting</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antiflikker</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Belichtingsmodus</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Versterking</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Versterkingsbereik</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Min. versterking</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Max. versterking</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensatie</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Auto-iris</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>3D-ruisonderdrukking</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Tegenlicht</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Tegenlichtmodus</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Hele beeld</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Aangepast gebied</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Compensatiegebied</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Dynamisch bereik (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Hooglichtcompensatie</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Witbalans</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Blauwversterking</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Roodversterking</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Beelden ophalen</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 kanalen, de eerste %2 worden getoond</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Beelden opslaan</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>De map %1 kon niet worden gemaakt</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Deze instellingen konden niet worden gelezen. Vernieuw om het opnieuw te proberen.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Dichtbij- en veraflicht</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Dichtbij</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Veraf</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Dag/nacht-omschakeling</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Gevoeligheid</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Omschakelvertraging</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Verlichting</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Helderheid dichtbij</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Helderheid veraf</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correctie</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarood en wit licht</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Lichttype</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Vertraging (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Het apparaat heeft geen beeld verzonden</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Geen beeld van %n kanaal</numerusform>
            <numerusform>Geen beeld van %n kanalen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Belichting en witbalans</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Dag/nacht en verlichting</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>De camera meldt zulke instellingen niet.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Geen instellingen</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Zacht</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Levendig</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stijl</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Helderheid</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Tint</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Scherpte</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Spiegeling en rotatie</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Normale weergave</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Gangmodus 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Gangmodus 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Omkeren</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotatie</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilisatie</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Elektronische stabilisatie</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Ontnevelen</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensiteit</translation>
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
        <translation>B</translation>
    </message>
    <message>
        <source>右</source>
        <translation>R</translation>
    </message>
    <message>
        <source>下</source>
        <translation>O</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Gebied (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Links mag niet groter zijn dan rechts</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Boven mag niet groter zijn dan onder</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Sluiter</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Aangepast bereik</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Sluiterbereik (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Kortste sluitertijd</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Langste sluitertijd</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Het minimum mag niet groter zijn dan het maximum</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanaal %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanaal</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Wijzigingen worden direct naar het apparaat geschreven.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Langer dan %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Het apparaat wordt geüpgraded. Wijzig instellingen wanneer dit klaar is.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Beeldinstellingen lezen…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Beeldinstellingen schrijven…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Geen antwoord van het apparaat. De wijziging is mogelijk niet geschreven.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Niet gewijzigd: %1. De waarde van het apparaat wordt getoond.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Al geïnitialiseerd</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Upgrade bezig: overgeslagen</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>MAC-adres onbekend: overgeslagen</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Initialiseren</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisatie</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selecteer een apparaat dat niet is geïnitialiseerd</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
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
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Alleen apparaten van dit LAN staan in de lijst. Apparaten van andere LAN&apos;s kunnen niet worden geïnitialiseerd.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n meer wordt overgeslagen, zie de notities</numerusform>
            <numerusform>%n meer worden overgeslagen, zie de notities</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notities</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>De laatste apparatenlijst %1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>De naam van een groep mag hoogstens %1 tekens hebben</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>P2P-apparaten kunnen niet tot een groep behoren</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Een locatie mag hoogstens %1 apparaten hebben</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>De locatie kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>De apparatenlijst kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Niet-opgeslagen locatie</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>De vorige locatie kan niet worden opgeslagen: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Uit de weergave verwijderen (Del)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanaal %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Aanmelden…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nieuwe poging over %n s</numerusform>
            <numerusform>%1. Nieuwe poging over %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Opnieuw aanmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw</translation>
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
        <translation>%1 KB gebufferd</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 frames overgeslagen</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>De map kon niet worden geopend: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Het apparaat wordt niet meer getoond</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Livebeeld</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Vorig formaat</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Vorig apparaat (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Volgend apparaat (PgDn)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Enkel beeld</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 beelden</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 beelden</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Vorige kanalen</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Volgende kanalen</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Geluid uit</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Geluid aan</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Beeldverhouding behouden</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Uitrekken</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Streaminfo verbergen</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Streaminfo tonen</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Snapshot maken…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Snapshot van het geselecteerde kanaal</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Snapshots van alle kanalen</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Volledig scherm sluiten</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Volledig scherm</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is bezig. Wacht tot dit klaar is.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Er kan geen apparaat meer worden toegevoegd</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Selecteer eerst de toe te voegen apparaten in de apparaatlijst</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>De kanalen toevoegen van de apparaten die in de lijst zijn geselecteerd (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Geselecteerde apparaten toevoegen (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Geselecteerde apparaten toevoegen</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Snapshots van alle kanalen van alle apparaten</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>Het livebeeld is gesloten omdat bij een ander apparaat is aangemeld</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Opnieuw aanmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Aanmelden…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Geen kanalen</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nieuwe poging over %n s</numerusform>
            <numerusform>%1. Nieuwe poging over %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Alle geselecteerde apparaten worden al getoond</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Er kunnen maximaal %1 apparaten worden toegevoegd. %2 zijn niet toegevoegd.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Geen antwoord van %1</translation>
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
        <translation>Taal</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Vragen en antwoorden</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Als systeem</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Locatierapport (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>IP wijzigen</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Apparaatupgrade</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Apparaatconfiguratie</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Systeemconfiguratie</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>CGI-protocol</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Demolocatie</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Demolocatie: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Gesimuleerde apparaten, geen netwerk. Gebruikersnaam en wachtwoord voor het aanmelden bij de apparaten. Nieuwe apparaten moeten eerst worden geïnitialiseerd.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Demolocatie openen</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Geen apparaatbibliotheek geïnstalleerd: apparaten zijn niet bereikbaar</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>%1 wordt geopend in het pdf-programma van het systeem</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan %1 niet openen</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Wijzigt het IP-adres van dit apparaat</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Toont alle informatie over dit apparaat</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Opent de webpagina van dit apparaat in de browser</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Opent het livebeeld van dit apparaat</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initialiseer eerst het apparaat</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Het apparaat wordt geüpgraded. Wijzig het adres wanneer dit klaar is.</translation>
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
        <translation>Apparaat toegevoegd, maar niet opgeslagen in de favorieten. Controleer of u in de programmamap mag schrijven.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Apparaat toegevoegd en opgeslagen in de favorieten</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Apparaat toegevoegd</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Apparaat toevoegen</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selecteer een apparaat dat niet is geïnitialiseerd</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n apparaat mislukt: zie Resultaat</numerusform>
            <numerusform>%n apparaten mislukt: zie Resultaat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Het apparaat wordt geüpgraded. Wijzig het adres wanneer dit klaar is.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initialiseren</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-adressen wijzigen</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adres gewijzigd op %n apparaat</numerusform>
            <numerusform>Adressen gewijzigd op %n apparaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n apparaat geïnitialiseerd</numerusform>
            <numerusform>%n apparaten geïnitialiseerd</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Gestopt: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>%n apparaat uit de lijst verwijderen?</numerusform>
            <numerusform>%n apparaten uit de lijst verwijderen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n apparaat wordt geüpgraded en is niet verwijderd</numerusform>
            <numerusform>%n apparaten worden geüpgraded en zijn niet verwijderd</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Apparaten verwijderen</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Voer een geldig IP-adres in</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Voer een geldig subnetmasker in</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Voer een geldig gateway-adres in</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>IP wijzigen</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Voorbeeld verbergen</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Toont het nieuwe adres van elk apparaat</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>Begin-IP</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Zelfde IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnetmasker</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>In gebruik door %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Dit is het netwerk- of broadcastadres</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>De gateway ligt buiten het subnet</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Toch wijzigen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Dit is het adres van de gateway</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>IP-adres</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Alle %1 apparaten zijn verborgen door de filters</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Apparaten zoeken…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Geen apparaten gevonden</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Geen apparaatbibliotheek geïnstalleerd</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Wijzig de filters of wis de zoektekst.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Gevonden apparaten verschijnen hier.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Controleer of de apparaten zijn ingeschakeld en verbonden. Voeg voor apparaten in andere netwerken hun bereik toe in de zoekinstellingen, of voeg een apparaat toe via het adres.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Filters wissen</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Opnieuw zoeken</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>In de zoekinstellingen is geen netwerk geselecteerd</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Selecteer het lokale netwerk of andere netwerken in de zoekinstellingen.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Zoekinstellingen</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Waarom zijn er geen apparaten gevonden?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Het programma kan niet met apparaten communiceren: er kunnen geen apparaten worden gevonden of gewijzigd. De demolocatie heeft geen apparaten nodig en toont alle functies.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Demolocatie openen</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Doorzocht: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Apparaat via adres toevoegen</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Controleer kabels en netwerken en zoek dan opnieuw.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Apparaten exporteren…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 bestaat al. Vervangen?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Apparaten geëxporteerd
Bestand: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Het bestand kon niet worden geschreven. Controleer de map en of een ander programma het bestand heeft geopend.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Deze waarden kunnen niet uit het bestand worden teruggelezen:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolom</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Exportresultaat</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Apparaatlijst lezen…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Bestand vervangen</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Groep…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Uit locatie verwijderen</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Een apparaatlijst openen</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Versleutelde apparatenlijsten (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importeren</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Geïmporteerd: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>apparaten</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Niet geïmporteerd. Het bestand is geopend in een ander programma, heeft een andere indeling of bevat een MAC-adres dubbel.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Importresultaat</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Opnieuw zoeken</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Redenen tonen</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Het zoeken is gestopt; de lijst is onvolledig.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Geen apparaat gevonden. De grijze apparaten zijn eerder gevonden.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n apparaat minder dan bij de laatste zoekopdracht</numerusform>
            <numerusform>%n apparaten minder dan bij de laatste zoekopdracht</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
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
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acties</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notitie</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nieuw</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Initialiseren</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Stelt het eerste wachtwoord van de geselecteerde nieuwe apparaten in</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>IP&apos;s wijzigen</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Wijst opeenvolgende adressen toe aan de geselecteerde apparaten</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importeren</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Leest een apparaatlijst uit een spreadsheet</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Schrijft de geselecteerde apparaten naar een spreadsheet</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Voegt apparaten toe die een zoekopdracht niet vindt: via IP-adres, via P2P-ID of uit de favorieten</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>IP-apparaat</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>P2P-apparaat</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favorieten</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Verwijdert de geselecteerde apparaten uit de lijst</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Geïnitialiseerd</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Zoeken…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n geselecteerd apparaat wordt geüpgraded: het adres kan niet worden gewijzigd</numerusform>
            <numerusform>%n geselecteerde apparaten worden geüpgraded: hun adressen kunnen niet worden gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n geselecteerd apparaat wordt geüpgraded en kan niet worden verwijderd</numerusform>
            <numerusform>%n geselecteerde apparaten worden geüpgraded en kunnen niet worden verwijderd</numerusform>
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
        <translation>Beelden van de geselecteerde apparaten (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Invullen</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Verzenden</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Benoemen via patroon</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Selecteer wat een naam moet krijgen</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>De namen kunnen in de tabel worden bewerkt. “Opslaan” schrijft ze.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n kanaal van dit apparaat</numerusform>
            <numerusform>%n kanalen van dit apparaat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n geselecteerde camera</numerusform>
            <numerusform>%n geselecteerde camera&apos;s</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Patroon: {n}, {model}, {ip4} (einde van het adres)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Patroon</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Meerdere kanalen krijgen dezelfde naam</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Eerste nummer</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Cijfers</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Benoemt kanaal 1 van elke camera.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanaal %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Voer een patroon in</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Gebruik alleen {n}, {model} en {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Langer dan %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Recorder: overgeslagen. Open deze om de kanalen te benoemen</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notitie</translation>
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
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Voer een geldige tijd in</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Toont alleen apparaten die zijn mislukt of niet zijn uitgevoerd, gesorteerd op reden. Zie Batches voor apparaten die niet meer in de lijst staan.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Verwijdert de markeringen van apparaten die zijn mislukt of niet zijn uitgevoerd</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Onopgelost %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Onopgeloste bewerking</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Alle bewerkingen</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>nog minder dan 1 min</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>nog ongeveer %n min</numerusform>
            <numerusform>nog ongeveer %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppen…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stoppen (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Mislukte opnieuw</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selecteert alleen de apparaten op deze pagina die zijn mislukt of niet zijn uitgevoerd</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Resultaten opslaan</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batches</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Apparaten zoeken…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 van %3 gedaan</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, nog %n onopgelost</numerusform>
            <numerusform>, nog %n onopgelost</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>onjuist wachtwoord op %n apparaat achter elkaar</numerusform>
            <numerusform>onjuist wachtwoord op %n apparaten achter elkaar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>onjuist wachtwoord op %n apparaat achter elkaar (account %1)</numerusform>
            <numerusform>onjuist wachtwoord op %n apparaten achter elkaar (account %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Doorgaan kan accounts blokkeren. Doorgaan?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Selecteer na het stoppen een ander account in het menu van de apparaten en probeer de mislukte apparaten daarna opnieuw (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Mislukte opnieuw: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Voert “%1” opnieuw uit voor apparaten die zijn mislukt of niet zijn uitgevoerd. Apparaten waarbij een nieuwe poging niet helpt, zoals na een onjuist wachtwoord met hetzelfde account, worden weggelaten.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Onopgeloste selecteren</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Account selecteren…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Selecteer een ander account voor de apparaten die dit account hebben geweigerd en voor de overige apparaten die het gebruiken, en probeer ze opnieuw</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Voer een getal in</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Zwak</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Sterk</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Wachtwoordsterkte</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Kolombreedte aanpassen</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Kolommen herstellen</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Alles selecteren</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Wachtwoord verbergen</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Wachtwoord tonen</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>apparaat gevonden</numerusform>
            <numerusform>apparaten gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Apparaten zoeken</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Zoekinstellingen</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Vorig formaat</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Inklappen</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Uitklappen</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nieuw</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Geen kanalen</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Kanaal niet verbonden</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Stream onderbroken</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nieuwe poging over %n s</numerusform>
            <numerusform>Nieuwe poging over %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Nu opnieuw</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 in p2p.ini ontbreekt of is ongeldig</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>De P2P-service kon niet worden gestart</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Selecteer een apparaat.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-batch</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Verzendt één opdracht naar de geselecteerde apparaten</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Spreadsheet uitvoeren</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Verzendt de opdrachten van een spreadsheet en schrijft de resultaten erin</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Sjabloon openen</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Opent het sjabloon voor opdrachtspreadsheets</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Zoeken…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Gekopieerd</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Mislukte apparaten</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>De opdracht wordt naar deze apparaten verzonden:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Verzenden</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Opdracht verzenden</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Volledig resultaat tonen</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Resultaat kopiëren</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Verwerpen</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n wijziging is niet opgeslagen en gaat verloren.</numerusform>
            <numerusform>%n wijzigingen zijn niet opgeslagen en gaan verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Kopiëren</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>De coderingsinstellingen van kanaal %1 kopiëren naar hetzelfde kanaal van het geselecteerde apparaat?</numerusform>
            <numerusform>De coderingsinstellingen van kanaal %1 kopiëren naar hetzelfde kanaal van de %n geselecteerde apparaten?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Dit omvat ook niet-opgeslagen wijzigingen.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Kanaalnamen opslaan…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc om te stoppen)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Apparaatconfiguratie</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Coderingsinstellingen van kanaal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Codering kopiëren</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Niet-opgeslagen wijzigingen</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Opslaan en verlaten</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Benoemen via patroon</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Dit apparaat configureren</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Er is geen camera onder de geselecteerde apparaten</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>De instelling kon niet worden opgeslagen. Controleer of u in de programmamap mag schrijven.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selecteer een firmwarebestand</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgraden</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Upgrade stoppen</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>IP-adresconflict: %n apparaat</numerusform>
            <numerusform>IP-adresconflict: %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Verbinding met P2P-apparaat %1 verbroken. Verwijder het apparaat en voeg het opnieuw toe.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>De P2P-service is niet verbonden. P2P-apparaten zijn momenteel niet bereikbaar.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-adressen wijzigen</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Beelden van de geselecteerde apparaten</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Oud wachtwoord juist: wacht op het nieuwe</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Wachtwoord wijzigen</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Oud wachtwoord controleren</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Apparaten herstarten</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabrieksinstellingen herstellen</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n apparaat geselecteerd</numerusform>
            <numerusform>%n apparaten geselecteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>De tijd is om: het wachtwoord van %n apparaat is niet gewijzigd</numerusform>
            <numerusform>De tijd is om: de wachtwoorden van %n apparaten zijn niet gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Een andere bewerking is gestart: het wachtwoord van %n apparaat is niet gewijzigd</numerusform>
            <numerusform>Een andere bewerking is gestart: de wachtwoorden van %n apparaten zijn niet gewijzigd</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Selecteer eerst links apparaten</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” is bezig. Wacht tot dit klaar is.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Wachtwoord niet gewijzigd op %n apparaat (%1); het is gemarkeerd</numerusform>
            <numerusform>Wachtwoord niet gewijzigd op %n apparaten (%1); ze zijn gemarkeerd</numerusform>
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
        <translation>Versleutelde apparatenlijst</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Wachtwoordzin</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Het programma is al geopend.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Voer het account in</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Voer het wachtwoord in</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Opnieuw aanmelden</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Aanmelden bij %1 mislukt. Voer de gebruikersnaam en het wachtwoord in.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Onjuist wachtwoord, %n keer</numerusform>
            <numerusform>Onjuist wachtwoord, %n keer</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Antwoord van het apparaat: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Het apparaat meldt niet hoeveel pogingen er over zijn. Meer onjuiste wachtwoorden kunnen het account blokkeren.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Opslaan als account van dit apparaat</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Zodra het aanmelden is gelukt, wordt bij dit apparaat altijd met dit account aangemeld</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Ook voor latere apparaten</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Na een geslaagde aanmelding worden alle apparaten zonder eigen account, ook die van batches, hiermee geprobeerd in plaats van met het account van de zoekinstellingen, tot het programma eindigt of het account van de zoekinstellingen wordt gewijzigd</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>scherpte</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>spiegelen</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilisatie</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>belichting</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>tegenlicht</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>witbalans</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>dag/nacht-modus</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>ontnevelen</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>verlichting</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>helderheid</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>verzadiging</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>tint</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Dubbel adres</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Aanmelding geweigerd</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Kan niet worden gelezen</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Klok loopt niet gelijk</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Oudere firmware</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Geen tijdserver</translation>
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
        <translation>%1 u %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 u</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Gelijk</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>loopt %1 voor</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>loopt %1 achter</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; een ander apparaat van dit model heeft %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanaalnaam</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Coderingsinstellingen</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Beeldinstellingen</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Beeldinstellingen: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Locatierapport</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Bevindingen</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Wijzigingen bij bezoek</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
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
        <translation>Adres</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Poort</translation>
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
        <translation>Tijdafwijking</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Tijdafwijking (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Tijdserver</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Hoofdstream</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanaal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Breedte (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Hoogte (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Voorheen</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Bewerking</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Nieuwe waarde</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Niet gemeld</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Geen beeld</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Geen bevindingen.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Er is geen apparaat gewijzigd sinds de start van het programma.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Gelezen</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Met bevindingen</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Het PDF-bestand kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>De map %1 kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 eerdere wijzigingen zijn niet vermeld.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>Nog %1 kanalen</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Kanaal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-adres wijzigen</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Tijd instellen</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Firmware upgraden</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Tijdserver en tijdzone</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Zomertijd</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Automatisch onderhoud</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Herstarten</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videonorm</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Wachtwoord wijzigen</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>De map voor tijdelijke bestanden %1 kan niet worden gebruikt: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 apparaten achter elkaar hebben de aanmelding geweigerd</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Herstarten</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Taal wijzigen</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>De taal verandert wanneer het programma opnieuw start.</translation>
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
        <translation>Opdracht mislukt</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Geslaagd</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Het account bestaat niet</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Onjuist wachtwoord</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Het account is geblokkeerd. Wacht tot het apparaat het vrijgeeft.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Het account is al in gebruik</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Geen antwoord van het apparaat</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocol komt niet overeen</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Het apparaat is niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Het apparaat ondersteunt dit niet</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Het apparaat staat al in de lijst</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>De mogelijkheden van het apparaat konden niet worden gelezen</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Het apparaat heeft het verzoek geweigerd</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Onbekende fout %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Het apparaat wordt geüpgraded</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Niet uitgevoerd</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Snapshot mislukt</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Ongeldige gegevens</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Firmwarebestand niet bruikbaar</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Niet geüpgraded</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Upgrade niet bevestigd</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Het apparaat is bezet. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>De sessie is verlopen. Meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Het apparaat accepteert deze waarde niet</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Het certificaat van het apparaat wordt niet vertrouwd</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Het certificaat van het apparaat is gewijzigd</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Een ander apparaat antwoordt op het adres</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Geaccepteerd door het apparaat, niet bevestigd</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Tekst kopiëren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Zoekrapport</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Gekopieerd naar het klembord</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Netwerkinterface</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Deze computer heeft geen bruikbare netwerkinterface</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Controleer of een interface is geïnstalleerd en ingeschakeld.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Zoeken op adres</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Bevraagde adressen</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Antwoorden</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Geen route naar %1 van deze adressen</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Stel een gateway in voor de interface of voeg een adres toe in hetzelfde netwerk als deze adressen.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Geen antwoord van enig adres</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Controleer het adresbereik in de zoekinstellingen en of de apparaten zijn ingeschakeld.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Andere netwerken</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Apparaten gevonden buiten alle netwerken van deze computer: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Wijzig hun IP-adressen voordat u zich bij ze aanmeldt, of voeg aan de interface een adres in hun netwerk toe.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adressen</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Verzonden verzoeken</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Ontvangen berichten</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Gevonden apparaten</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Niet gebruikt</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>onleesbare berichten: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>berichten van andere apparaten dan camera&apos;s en recorders: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>berichten zonder serviceadres: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>berichten met het serviceadres van een andere host: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>berichten van apparaten die het netwerk verlaten: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>berichten boven de limiet: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>De interface is uitgeschakeld</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Schakel deze in via de netwerkinstellingen van het besturingssysteem.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>De interface is niet verbonden</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Controleer de kabel en de switch, of maak verbinding met een draadloos netwerk.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>De interface heeft geen IP-adres</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Stel een adres in het netwerk van de apparaten in of schakel DHCP in.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>De interface kan geen multicast verzenden</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Selecteer andere netwerken in de zoekinstellingen om op adres te zoeken.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Het besturingssysteem heeft de verzoeken niet verzonden: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Controleer de firewall van deze computer en de instellingen van de interface.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Geen antwoorden ontvangen</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Controleer of de apparaten zijn ingeschakeld en in hetzelfde netwerk zitten, en of geen firewall of switch hun antwoorden filtert. U kunt ook op adres zoeken: zie de zoekinstellingen.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 apparaten gevonden, %2 minder dan bij de laatste zoekopdracht.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Gevonden apparaten: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Geen apparaten gevonden.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>Het begin-IP mag niet groter zijn dan het eind-IP</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>Het bereik mag maximaal 17 segmenten omvatten</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Voer een geldig begin-IP in</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Voer een geldig eind-IP in</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Zoekinstellingen</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Lokaal netwerk doorzoeken</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Andere netwerken doorzoeken</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>Begin-IP</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>Eind-IP</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Standaardaccount voor het aanmelden bij apparaten</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Tijdens het zoeken bij apparaten aanmelden</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Leest model, versie en MAC-adres. Elk apparaat ontvangt dit account. Na een onjuist wachtwoord wordt een apparaat niet opnieuw geprobeerd.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>er is geen sleutelbosdienst</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>de sleutelbosdienst is vergrendeld</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>de sleutelbosdienst reageert niet</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Sommige wachtwoorden staan in de sleutelbosdienst van het bureaublad en kunnen niet worden gelezen (%1). Voer ze opnieuw in.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>De sleutelbosdienst van het bureaublad kan niet worden gebruikt (%1). Wachtwoorden worden in bestanden opgeslagen.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Het wachtwoord kon niet in de sleutelbosdienst van het bureaublad worden opgeslagen (%1). Het wordt in een bestand opgeslagen.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Het wachtwoord kon niet uit de sleutelbosdienst van het bureaublad worden verwijderd (%1). Verwijder het in het sleutelbeheer van het systeem.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>De demolocatie kon niet worden geopend:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Het bestand is geen locatiebestand of is beschadigd</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Het locatiebestand is van een nieuwere versie en kan niet worden gelezen</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Het locatiebestand bevat meer dan %1 apparaten</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>De naam in het locatiebestand is ongeldig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Apparaat %1 van het locatiebestand: %2 is ongeldig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Apparaat %1 van het locatiebestand komt dubbel voor</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Het bestand kon niet worden geopend</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Het bestand is te groot</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Locatiebestanden (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Locatie openen</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Locatie “%1” geopend, met %n apparaat</numerusform>
            <numerusform>Locatie “%1” geopend, met %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Locatie %1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Locatie opslaan als</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>De locatie is opgeslagen in %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Het bestand bevat geen wachtwoorden.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Een nieuwe locatie verwijdert bekende apparaten en groepen uit de lijst. Niet-opgeslagen wijzigingen blijven bewaard in de recente locaties.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Nieuwe locatie</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Locatie openen…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Locatie opslaan als…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Nieuwe locatie…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Voer de naam van de locatie in</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Selecteer minstens één bestand</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>De lijst bevat geen apparaten</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Rapport maken</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Locatierapport</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Er wordt al een rapport gemaakt</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Locatienaam</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Opslaan in</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Alle (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Geselecteerd (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Het programma meldt zich aan bij elk apparaat, leest de instellingen en haalt een beeld op. Het rapport vermeldt de wijzigingen sinds de start van het programma en bevat geen wachtwoorden.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan %1 niet openen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>PDF openen</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Locatierapport</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Het rapport is klaar</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Andere map…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Kanaal niet verbonden</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Snapshot mislukt</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Snapshot mislukt: het bestand kon niet worden geschreven: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Snapshot maken…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>In wachtrij</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Snapshot %1 van %2 maken</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stoppen…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n gemaakt</numerusform>
            <numerusform>%n gemaakt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
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
        <translation>Niet uitgevoerd</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Het apparaat wordt niet meer getoond</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Weekdag</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Zomertijd</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Inschakelen</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Op datum</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Op week</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Einde</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Zomertijd toepassen</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Voer een geldige tijd in</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Zoeken…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Zoekopdracht wissen</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Opnieuw zoeken</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Geen apparaat met deze naam, dit type, model of adres.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Gevonden apparaten verschijnen hier.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Alleen geïnitialiseerde IPv4-apparaten staan in de lijst.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Geen apparaten gevonden</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Apparaten zoeken…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Geen apparaten om te configureren</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Geen apparaatbibliotheek geïnstalleerd</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Het programma kan niet met apparaten communiceren. Open de demolocatie op de pagina “IP wijzigen”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Markeringen wissen</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Verwijdert de markeringen van apparaten die zijn mislukt of niet zijn uitgevoerd</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Bij alle apparaten in de lijst is aangemeld.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n apparaat zonder adres (DHCP) wordt niet getoond</numerusform>
            <numerusform>%n apparaten zonder adres (DHCP) worden niet getoond</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>De apparaten die zijn mislukt of niet zijn uitgevoerd, staan niet in deze boom: ze zijn niet geïnitialiseerd, hebben geen IPv4-adres of zijn niet opnieuw gevonden. Zie de pagina “IP wijzigen” en Batches.</translation>
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
        <translation>Maart</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>April</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Mei</translation>
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
        <translation>Augustus</translation>
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
        <translation>Eerste</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Tweede</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Derde</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Vierde</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Laatste</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Zondag</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Maandag</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Dinsdag</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Woensdag</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Donderdag</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Vrijdag</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Zaterdag</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Zondag</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Maandag</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Dinsdag</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Woensdag</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Donderdag</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Vrijdag</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Zaterdag</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Elke dag</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Geen antwoord van het apparaat</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>De tijd kon niet worden gelezen</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Geen antwoord van het apparaat. Het wachtwoord is mogelijk gewijzigd.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Tijdzone</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Herstart</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Fabrieksreset</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videonorm</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>Nog %1 s om het wachtwoord in te voeren. Daarna moet het oude wachtwoord opnieuw worden gecontroleerd.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Nog %1 s om het wachtwoord in te voeren</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n apparaat wacht op het nieuwe wachtwoord</numerusform>
            <numerusform>%n apparaten wachten op het nieuwe wachtwoord</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>het ingevoerde nieuwe wachtwoord is hersteld</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Controleer het oude wachtwoord opnieuw. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Het ingevoerde nieuwe wachtwoord wordt dan hersteld.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>De tijd is om: het wachtwoord van %n apparaat is niet gewijzigd. </numerusform>
            <numerusform>De tijd is om: de wachtwoorden van %n apparaten zijn niet gewijzigd. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>De selectie is gewijzigd. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Gebruik minstens twee van cijfers, letters en symbolen, en geen ongeldige tekens.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bevestig het wachtwoord</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>De wachtwoorden komen niet overeen</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Het wachtwoord moet 8 tot 32 tekens hebben</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Voer het oude wachtwoord in</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Stap 1: oud wachtwoord controleren</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Oud wachtwoord</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Controleren</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Stap 2: nieuw wachtwoord instellen</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nieuw wachtwoord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bevestigen</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 tot 32 tekens, met minstens twee van cijfers, letters en symbolen (alle zichtbare tekens behalve &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Wachtwoord wijzigen</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Bij succes</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Zomertijd aan</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Zomertijd uit</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP uit</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Herstart %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Periodieke herstart uit</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Geselecteerd apparaat herstarten?</numerusform>
            <numerusform>De %n geselecteerde apparaten herstarten?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Herstarten</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Fabrieksinstellingen van het geselecteerde apparaat herstellen?</numerusform>
            <numerusform>Fabrieksinstellingen van de %n geselecteerde apparaten herstellen?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>“%1” wordt toegepast op deze apparaten:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Het update-interval is 0 minuten: het apparaat werkt zijn tijd mogelijk niet meer bij. Toepassen op het geselecteerde apparaat?</numerusform>
            <numerusform>Het update-interval is 0 minuten: de apparaten werken hun tijd mogelijk niet meer bij. Toepassen op de %n geselecteerde apparaten?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Toch toepassen</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Automatisch onderhoud</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Periodiek herstarten</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Herstarten om</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Dag van herstart</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Nu herstarten</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Tijdens het herstarten is een apparaat niet bereikbaar en neemt het niet op.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Apparaten herstarten</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n geselecteerd apparaat wordt geüpgraded en kan niet worden herstart</numerusform>
            <numerusform>%n geselecteerde apparaten worden geüpgraded en kunnen niet worden herstart</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabrieksinstellingen herstellen</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Wist alle instellingen, accounts en wachtwoorden van de apparaten. Dit kan niet ongedaan worden gemaakt. De apparaten moeten opnieuw worden geïnitialiseerd.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n geselecteerd apparaat wordt geüpgraded en kan niet worden gereset</numerusform>
            <numerusform>%n geselecteerde apparaten worden geüpgraded en kunnen niet worden gereset</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Computertijd</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Instellen op computertijd</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Zet elk apparaat op de tijd waarop het het verzoek ontvangt</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Huidige tijd gebruiken</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Apparaattijd</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Apparaattijden lezen</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Apparaat</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Niet aangemeld %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Toont alleen apparaten waarbij nog niet is aangemeld of waarvan de laatste aanmelding is mislukt</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Onopgelost %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Toont alleen apparaten die zijn mislukt of niet zijn uitgevoerd, gesorteerd op reden.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> Nog %n staat niet in deze lijst: zie Batches.</numerusform>
            <numerusform> Nog %n staan niet in deze lijst: zie Batches.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Videonorm</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL is voor regio&apos;s met 50 Hz-lichtnet, NTSC voor 60 Hz. Sommige apparaten herstarten na de wijziging.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>De apparaten bieden deze functie niet</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Voer de NTP-server in</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Tijdzone en NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Tijdzone</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>NTP inschakelen</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>NTP-server</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP-adres of hostnaam</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>NTP-poort</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Interval (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Tijdzone en NTP toepassen</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>De apparaten bieden %1, de tijdzone van deze computer, niet aan. Selecteer een tijdzone.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Voer een geldig IP-adres of geldige hostnaam in</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>IP-adres van het apparaat, of “adres:webpoort” als de webpoort niet 80 is. Verplicht.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Aanmeldpoort van het apparaat. Alleen gebruikt om het account te controleren.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Gebruikersnaam van het apparaat, zonder dubbele punten.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Wachtwoord van het apparaat. Verwijder het daarna uit het bestand.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Opdracht die met “/” begint. Het apparaat ontvangt een geaccepteerde opdracht twee keer. Verplicht.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 voor HTTP, andere gehele getallen voor HTTPS. HTTP indien leeg.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Ingevuld door het programma: het antwoord, het pad van het beeld of de opname, of “Error:” en de reden.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Opdrachten</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructies</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolom</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betekenis</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Behoud de kopregel. Vervang de voorbeeldrij door uw eigen rijen.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Rijen zonder adres en opdracht worden overgeslagen.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Open dit bestand niet in een ander programma tijdens de uitvoering.</translation>
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
            <numerusform>%n apparaat kan niet met dit bestand worden geüpgraded: zie Resultaat</numerusform>
            <numerusform>%n apparaten kunnen niet met dit bestand worden geüpgraded: zie Resultaat</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rij %1: %2</translation>
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
        <translation>Poort</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarebestand</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Het bestand kon niet worden geopend</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>De bestandsindeling is onjuist</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>De resultaten konden niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultaten opgeslagen in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Het bestand kon niet worden geschreven. Het is alleen-lezen of in een ander programma geopend. Resultaten opgeslagen in %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>De spreadsheet heeft meer dan %1 apparaten. Splits deze.</translation>
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
        <translation>%1: %2 geüpgraded, %3 mislukt. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>De spreadsheet bevat geen apparaten</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: overgeslagen</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Het apparaat heeft deze versie al</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Spreadsheet lezen</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Upgrade starten</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Apparaatupgrade</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgraden via spreadsheet</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n apparaat wordt geüpgraded. Het start opnieuw. Schakel het niet uit.</numerusform>
            <numerusform>%n apparaten worden geüpgraded. Ze starten opnieuw. Schakel ze niet uit.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> De resultaten worden in de spreadsheet geschreven.</translation>
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
        <translation>Upgrade: %1 van %2 gedaan</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n geslaagd</numerusform>
            <numerusform>%n geslaagd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n mislukt</numerusform>
            <numerusform>%n mislukt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>In wachtrij</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Zenden</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Herstarten</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:poort</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acties</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Opnieuw proberen kan helpen</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corrigeer het bestand, het account of het apparaat en upgrade daarna opnieuw</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Bestand selecteren</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgraden</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Schrijven is begonnen: kan niet worden gestopt</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notitie</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>IP-adres van het apparaat. Verplicht.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Aanmeldpoort van het apparaat. 37777 indien leeg.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Gebruikersnaam van het apparaat. Als deze en het wachtwoord leeg zijn, wordt het account van het programma gebruikt.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Wachtwoord van het apparaat. Verwijder het daarna uit het bestand.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Pad van het firmwarebestand, absoluut of relatief ten opzichte van de map van deze spreadsheet. Verplicht.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Ingevuld door het programma: de versies voor en na de upgrade, of waarom deze is mislukt.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgraden</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructies</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolom</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betekenis</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Behoud de kopregel. Vervang de voorbeeldrij door uw eigen rijen.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Rijen zonder adres en firmwarebestand worden overgeslagen.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Open dit bestand niet in een ander programma tijdens de upgrade.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Schrijven is begonnen: kan niet worden gestopt</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 bij %2%</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Nog niet gestopt: nieuwe poging</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware geschreven, apparaat herstart: kan niet worden gestopt</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Geüpgraded: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: geen versie gemeld</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: nu %2, vorige versie onbekend</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Upgrade starten</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Upgradet de geselecteerde apparaten</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Bestand selecteren</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selecteert een firmwarebestand voor de geselecteerde apparaten</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Mislukte opnieuw</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Upgradet opnieuw de apparaten waarbij een nieuwe poging kan helpen, zoals apparaten die niet antwoordden</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgraden via spreadsheet</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Upgradet de apparaten van een spreadsheet en schrijft de resultaten erin</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Sjabloon openen</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Opent het sjabloon voor upgradespreadsheets</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Zoeken…</translation>
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
        <translation>Apparaten tegelijk</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Apparaten die tegelijk worden geüpgraded</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Wachten op de herstart van het apparaat</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Schrijven: schakel het apparaat niet uit</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Bestand verzenden</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>In wachtrij</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Geüpgraded</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Geen firmwarebestand geselecteerd</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Het firmwarebestand bestaat niet</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Het firmwarebestand kon niet worden gelezen</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Het firmwarebestand is leeg</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Het firmwarebestand is te groot</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Het firmwarebestand is beschadigd</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>De firmware is voor andere modellen</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware geweigerd door het apparaat</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Onjuist wachtwoord</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Het account bestaat niet</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Het account is geblokkeerd</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Het apparaat is niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Upgrade niet ondersteund, of apparaat niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Ongeldig IP-adres of ongeldige poort</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Zelfde apparaat als in een eerdere rij</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Geen antwoord van het apparaat</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Het apparaat is bezet. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Afgebroken door apparaat</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Te lang geen voortgang</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Geen antwoord na de herstart</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Versie ongewijzigd na de herstart</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Gestopt: apparaat niet gewijzigd</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Afgebroken: het programma is gesloten</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Onbekende fout %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Batchupgrade-sjabloon.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Herstart, maar de versie kon niet worden gelezen</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificaat niet vertrouwd</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Certificaat is gewijzigd</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Het apparaat staat niet meer in de lijst</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selecteer een firmwarebestand</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwarebestand</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Geen apparaten voor een nieuwe poging</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n apparaat is niet geüpgraded: zie Resultaat</numerusform>
            <numerusform>%n apparaten zijn niet geüpgraded: zie Resultaat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n apparaat geüpgraded</numerusform>
            <numerusform>%n apparaten geüpgraded</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Het sjabloon kon niet worden geopend.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Apparaatupgrade</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Upgraden via spreadsheet</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Gestopt: %1 geüpgraded, %2 mislukt, %3 niet uitgevoerd</translation>
    </message>
</context>
<context>
    <name>ValueTables</name>
    <message>
        <source>普通</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>动检</source>
        <translation>Bewegingsdetectie</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Tegenlichtcompensatie</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Dynamisch bereik (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Hooglichtcompensatie</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codering</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Opnieuw aanmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Klik links op een apparaat om u aan te melden en de instellingen te wijzigen.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Selecteer een apparaat</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Hier doorgaan</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Er kan maar bij één apparaat tegelijk worden aangemeld. Doorgaan sluit het livebeeld van het andere apparaat.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>Het livebeeld van een ander apparaat is geopend</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanaalnamen</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>De configuratie van apparaten wordt hier getoond en gewijzigd zodra er apparaten zijn gevonden.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Geen apparaten</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Benoemen via patroon</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Klik links op een apparaat om hier de kanaalnamen te wijzigen, of geef de geselecteerde camera&apos;s samen een naam.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Geen beeld: bestanden in de map Shaders ontbreken of zijn beschadigd</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Geen beeld: te groot voor de grafische kaart</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Afspelen mislukt</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Afspelen mislukt: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Verbinding met het apparaat verbroken</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Het apparaat heeft de stream beëindigd</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Het apparaat verzendt geen video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Het apparaat accepteert de aanmelding niet meer</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Het apparaat verzendt geen videostream</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Deze computer kan de stream niet decoderen</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Kanaal %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>Het certificaat van het apparaat is gewijzigd. De webpagina is niet geopend. Voer op dit apparaat geen wachtwoord in.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Het certificaat van het apparaat is niet bevestigd. De webpagina is niet geopend.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>De browser kon niet worden geopend. Webpagina van het apparaat: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>De instellingen konden niet worden opgeslagen. Controleer of u in de programmamap mag schrijven.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Stoppen en afsluiten</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Apparaten die firmware schrijven, ronden dit zelf af: schakel ze niet uit.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificaat vertrouwd. Probeer het opnieuw.</numerusform>
            <numerusform>%n certificaten vertrouwd. Probeer het opnieuw.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Programma afsluiten</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Het account kan niet worden opgeslagen en wordt alleen tot de volgende zoekopdracht gebruikt: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>“%1” is bezig. Als u afsluit, worden de overige apparaten niet gewijzigd.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Het rapport is gestopt; er is geen bestand geschreven</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Meer dan %1 apparaten hebben geantwoord. %2 verdere antwoorden staan niet in de lijst. Doorzoek een kleiner bereik.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Gestopt: %1 rijen geslaagd, %2 mislukt, %3 niet verzonden.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Klaar: %1 rijen geslaagd, %2 mislukt.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>De resultaten konden niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultaten opgeslagen in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Het bestand kon niet worden geschreven. Het is alleen-lezen of in een ander programma geopend. Resultaten opgeslagen in %1</translation>
    </message>
</context>
</TS>
