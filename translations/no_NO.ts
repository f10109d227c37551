<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Kopier versjonsnummer</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopiert til utklippstavlen</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Tredjepartslisenser</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Legg til konto</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Endre konto</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Angi et navn</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>For eksempel: Bygning 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Angi brukernavnet</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Angi passordet</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>La stå tomt for å beholde</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Lagrer det programmet logger inn med. Passordene på enhetene endres ikke.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Kontoen kan ikke lagres og brukes bare til neste søk: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Den nye kontoen er nå standardkonto</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Den nye kontoen er lagret og brukes for denne enheten fra nå av</numerusform>
            <numerusform>Den nye kontoen er lagret og brukes for disse %n enhetene fra nå av</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Lagre for disse enhetene (anbefales)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Gjør til standardkonto for alle enheter</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Ikke lagre; bruk til neste søk</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Enheten har verken MAC eller UUID: kontoen brukes bare til neste søk</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Kontofilen %1 kan ikke leses: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Kontofilen er skadet, og ingen av kontoene i den brukes: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Angi et navn på høyst %1 tegn</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Angi et brukernavn på høyst %1 tegn</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Angi et passord på høyst %1 tegn</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Det finnes allerede en konto med navnet «%1»</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Det finnes ingen konto med navnet «%1»</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Fullt: høyst %1 kontoer og %2 enheter</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n enhet bruker standardkontoen</numerusform>
            <numerusform>%n enheter bruker standardkontoen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n enhet bruker kontoen «%1»</numerusform>
            <numerusform>%n enheter bruker kontoen «%1»</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n av dem har verken MAC eller UUID og bruker den bare til neste søk</numerusform>
            <numerusform>; %n av dem har verken MAC eller UUID og bruker den bare til neste søk</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Fjerne kontoen «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Enheten som bruker den, logges deretter inn med standardkontoen.</numerusform>
            <numerusform> De %n enhetene som bruker den, logges deretter inn med standardkontoen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Bruk for %n enhet</numerusform>
            <numerusform>Bruk for %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Velg konto</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Kontoer</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
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
        <translation>Legg til</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Standardkontoen endres i søkeinnstillingene</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Hver enhet prøves med én konto: den som er valgt for den, ellers standardkontoen. Andre kontoer prøves aldri.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Standardkonto</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Fjern konto</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Fjerne %n konto som ingen enhet bruker?</numerusform>
            <numerusform>Fjerne %n kontoer som ingen enhet bruker?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Fjern ubrukte kontoer</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Kontoer som ikke er valgt for noen enhet</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Ikke brukt</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Enhetene har avvist denne kontoen. Velg eller legg til en annen.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Bruk for %n enhet og prøv igjen</numerusform>
            <numerusform>Bruk for %n enheter og prøv igjen</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Enhetene avviste kontoen %1. Velg eller legg til en annen konto.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Angi P2P-ID</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Angi en gyldig IP-adresse</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Angi kontoen</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Angi passordet</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Angi portnummeret</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>Porten må være 1 til 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Legg til enhet</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Legg til i favoritter</translation>
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
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notater</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Høyst 50 tegn</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Legger til…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Lagt til</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Notatene kunne ikke lagres. Kontroller skrivetilgangen til programmappen.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Favoritten kunne ikke fjernes. Kontroller skrivetilgangen til programmappen.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoritter</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favoritt valgt</numerusform>
            <numerusform>favoritter valgt</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Søk…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Dobbeltklikk på en rad for å legge til enheten</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Tøm filtre</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Legg til enhet</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Endre eller tøm søketeksten.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Velg «Legg til i favoritter» når du legger til en enhet, for å lagre den her.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Ingen favoritter samsvarer med søket</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Ingen favoritter ennå</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Fjerne %1 fra favorittene?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Legg til favoritter</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Fjern favoritt</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Passordet kan ikke leses: dobbeltklikk for å skrive det inn</translation>
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
        <translation>Ingen MAC-adresse: hoppes over</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Brukes av en annen enhet</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Tildelt to ganger</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Samme som gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Utenfor subnettet</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Nettverks- eller kringkastingsadresse</translation>
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
        <translation>Batchen kjører</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Enheter venter på det nye passordet</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Ingen mislykkede eller ikke utførte enheter</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Denne operasjonen kan ikke prøves igjen her</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Bare den siste batchen kan kjøres igjen</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Et nytt forsøk hjelper ikke for disse enhetene. Rett først opp årsaken, for eksempel kontoen.</translation>
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
            <numerusform>Send denne kommandoen til den valgte enheten:</numerusform>
            <numerusform>Send denne kommandoen til de %n valgte enhetene:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobber</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Kjør mislykkede igjen</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Kjører batchen på nytt for enhetene som mislyktes eller ikke ble utført</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Tilbakestill adresser</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Setter de endrede enhetene tilbake til de forrige IP-adressene</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Sette %n enhet tilbake til forrige IP-adresse?</numerusform>
            <numerusform>Sette %n enheter tilbake til de forrige IP-adressene?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Lagre resultater</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Startet</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Vellykket / totalt</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Bare mislykkede</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Omfatter enheter som ikke ble utført</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
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
        <translation>Ingen batchjobber ennå</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Ingen enheter mislyktes</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Tilbakestill IP-adresser</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Lagre alle</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Lagrer resultatene av alle batchjobber i listen i én fil</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Vent til den pågående batchen er ferdig</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Ikke initialisert: hoppes over</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Oppgradering pågår: hoppes over</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Adressekonflikt: en annen enhet kan bli endret</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Brukes av en annen enhet</translation>
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
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n advarsel: se Merknad</numerusform>
            <numerusform>%n advarsler: se Merknad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n enhet hoppes over: se Merknad</numerusform>
            <numerusform>%n enheter hoppes over: se Merknad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>kjøres på %n enhet</numerusform>
            <numerusform>kjøres på %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n hoppes over</numerusform>
            <numerusform>%n hoppes over</numerusform>
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
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Skjul liste</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Vis %n enhet</numerusform>
            <numerusform>Vis %n enheter</numerusform>
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
        <translation>Navn og modell</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Gammel adresse</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Ny adresse</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Merknad</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fastvarefil</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nytt navn</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n vellykket</numerusform>
            <numerusform>%n vellykkede</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n venter på det nye passordet</numerusform>
            <numerusform>%n venter på det nye passordet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n mislyktes</numerusform>
            <numerusform>%n mislyktes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n ikke utført</numerusform>
            <numerusform>%n ikke utført</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n hoppes over</numerusform>
            <numerusform>%n hoppes over</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n venter</numerusform>
            <numerusform>%n venter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Det gamle passordet er riktig</translation>
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
        <translation>Navn</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Trinn</translation>
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
        <translation>Tidsgrensen er overskredet</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: hoppes over</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Lagre resultater</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultatene er lagret i %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Resultatene kunne ikke lagres. Velg en annen mappe.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobber</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Fortsett</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Det er %n advarsel. Fortsette?</numerusform>
            <numerusform>Det er %n advarsler. Fortsette?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Advarsler</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Enheter kan ikke bytte adresse med hverandre (som %1 og %2) i ett trinn. Gi først en av dem en annen adresse.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» pågår. Vent til det er ferdig.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Ikke nok minne eller tråder til å starte. Lukk andre programmer og prøv igjen.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Lagre resultater</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 kanal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 er fortsatt i bruk av enheten %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n enhet ble ikke kjørt igjen: adressen er endret, eller den finnes ikke lenger i listen (%1)</numerusform>
            <numerusform>%n enheter ble ikke kjørt igjen: adressene er endret, eller de finnes ikke lenger i listen (som %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Oppgraderinger pågår. Søk når de er ferdige.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Oppgraderinger pågår. Lukk programmet når de er ferdige.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>», «</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>«%1» pågår. Søk når det er ferdig.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>«%1» pågår. Fjern enheter når det er ferdig.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>«%1» pågår. Endre enheter når det er ferdig.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>«%1» pågår. Lukk programmet når det er ferdig.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>«%1» pågår. Start programmet på nytt når det er ferdig.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Et søk pågår. Stopp det med Esc, eller vent til det er ferdig.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Kommandoer i et annet regneark kjøres. Vent til de er ferdige.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>CGI-batchmal.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>En annen CGI-kommando kjøres. Vent til den er ferdig.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (avkortet)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>passord for standardkontoen</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Utendørs</translation>
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
        <translation>Forsterkningsprioritet</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Lukkerprioritet</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Naturlig lys</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Gatelys</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Egendefinert område</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Farge</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Svart-hvitt</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarødt</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Hvitt lys</translation>
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
        <translation>Ikke nå</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Klarer valgte</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Bekreft enhetssertifikater</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Sertifikatene kunne ikke lagres. Ingen er klarert.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 av %2 enheter valgt</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Disse enhetene bruker selvsignerte sertifikater for HTTPS. Ingen passord er sendt. Sammenlign fingeravtrykkene. Når sertifikatet er klarert, godtas bare denne nøkkelen.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Sertifikatet til %n enhet er endret. Ingen passord er sendt. Det kan være en annen enhet: velg den bare hvis årsaken er kjent, for eksempel en tilbakestilling til fabrikkinnstillinger.</numerusform>
            <numerusform>Sertifikatene til %n enheter er endret. Ingen passord er sendt. Det kan være andre enheter: velg dem bare hvis årsaken er kjent, for eksempel en tilbakestilling til fabrikkinnstillinger.</numerusform>
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
        <translation>Sertifikat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Gyldig til</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Fingeravtrykk</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Fingeravtrykk (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Klarert fingeravtrykk</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Endret</translation>
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
        <translation>Sertifikatfilen %1 kan ikke leses: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Sertifikatfilen er skadet. Ingen sertifikater er klarert. Bekreft dem på nytt: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Ingen tunnel til enhetens webport.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Ikke sendt</translation>
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
        <translation>Fjern fra lagrede kommandoer</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Lagre denne kommandoen</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>Svarets hode er for stort.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Feil brukernavn eller passord. Kontroller kontoen i søkeinnstillingene.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Kontoen er låst. Vent til enheten låser den opp.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Ikke noe svar fra enheten.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Enheten er ikke initialisert.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Ukjent feil.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Enheten avviste forespørselen</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>Svaret er for stort.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Filen kunne ikke skrives: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Stoppet.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>Den delen av opptaket som ble mottatt, er i %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Enheten oppgraderes.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Enhetens sertifikat er ikke klarert.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Enhetens sertifikat er endret.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Verten ble ikke funnet</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Enheten avviste tilkoblingen. Kontroller HTTP-porten</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Enheten kan ikke nås</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Enheten svarte ikke i tide</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Ingen kryptert tilkobling. Kontroller HTTPS-porten</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>Enhetens svar er ikke gyldig HTTP</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>Tilkoblingen ble lukket før svaret var ferdig</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Forespørselen mislyktes</translation>
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
        <translation>Et brukernavn kan ikke inneholde kolon eller kontrolltegn.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Et passord kan ikke inneholde nulltegn.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Filen kunne ikke skrives: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Lagret i %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Kopier alt</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Lagrer teksten i en fil</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Velg en mappe</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Sending av CGI-kommando</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch-CGI</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Angi en kommando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Kommandoen må begynne med /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Stoppet: %1 av %2 ferdig</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Sendt til %n enhet: godtatt</numerusform>
            <numerusform>Sendt til %n enheter: alle godtok</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Enheten godtok kommandoen og ga ikke noe resultat.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Sendt til %n: %1 godtok, %2 mislyktes</numerusform>
            <numerusform>Sendt til %n: %1 godtok, %2 mislyktes</numerusform>
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
        <translation>Handlinger</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Høyreklikk for å kopiere resultatet</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Sender kommandoen til denne enheten</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Vis hele resultatet</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Enheten oppgraderes. Send kommandoer når det er ferdig.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notat</translation>
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
        <translation>Kjør regneark</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>CGI-kommandoene i regnearket blir sendt. Resultatene skrives inn i det.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Malen kunne ikke åpnes.</translation>
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
        <translation>Kommandoer i et annet regneark kjøres. Vent til de er ferdige.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Lesing av regneark</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Rad %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Filen er endret. Åpne den på nytt.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Lagring av regneark</translation>
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
        <translation>Ikke lagret</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Navn på kanal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Navn ikke rapportert</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Angi et navn</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Lengre enn %1 byte</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Avvist av enheten</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Ikke noe svar fra enheten</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Endret av enheten</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Forkort</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Forkorter navnet til det enheten kan lagre</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Gjenoppretter navnet som enheten har</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Enheten oppgraderes</translation>
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
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Tilkoblet</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Ikke tilkoblet</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanalnavn ikke lagret</numerusform>
            <numerusform>%n kanalnavn ikke lagret</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n ulagret endring</numerusform>
            <numerusform>%n ulagrede endringer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Enheten rapporterer ikke navnet på %n kanal</numerusform>
            <numerusform>Enheten rapporterer ikke navnene på %n kanaler</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Enheten oppgraderes. Lagre når det er ferdig.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Gi navn etter mønster</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Gi flere kanaler eller kameraer navn med ett mønster</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Leser kanalnavn…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n kanalnavn lagret</numerusform>
            <numerusform>%n kanalnavn lagret</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n kanalnavn ikke lagret</numerusform>
            <numerusform>%n kanalnavn ikke lagret</numerusform>
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
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>CGI-kommando</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Filen kunne ikke åpnes</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Feil filformat</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Angi en kommando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Kommandoen må begynne med /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (avkortet)</translation>
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
            <numerusform>Kopiert til %n enhet</numerusform>
            <numerusform>Kopiert til %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n enhet godtok bare en del</numerusform>
            <numerusform>%n enheter godtok bare en del</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n enhet mislyktes</numerusform>
            <numerusform>%n enheter mislyktes</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n enhet ikke utført</numerusform>
            <numerusform>%n enheter ikke utført</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kopier kodingsinnstillinger</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Logger inn…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Enhetens konfigurasjon kunne ikke leses</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Enhetens funksjoner kunne ikke leses</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Logget inn på nytt. Endringer som ikke var lagret, er gått tapt.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Vis rapport</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Programmet ble avsluttet uventet. En rapport er skrevet</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Krasjrapport</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 finnes allerede. Erstatte den?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Eksportert til %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Filen %1 kunne ikke skrives</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Enheten har ingen nettside</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopiert til utklippstavlen</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 er allerede blant favorittene</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 er lagt til i favorittene</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Favoritten kan ikke lagres. Kontroller at programmappen er skrivbar.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Erstatt</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Erstatt fil</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Enheten rapporterer verken MAC-adresse eller UUID og kan ikke ha et notat</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Enheten kan ikke nås via P2P. Kontroller P2P-ID og nettverkstilkoblingen.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>IP-adressekonflikt</translation>
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
        <translation>%1 t %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 t</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>samme som denne datamaskinen</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 foran</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 etter</translation>
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
        <translation>Navn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
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
        <translation>Initialisert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ikke initialisert</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Fastvare</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Nettverk</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>IPv6-adresse</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>IPv4-adresse</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Enhetsadresse</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnettmaske</translation>
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
        <translation>Nei</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Vertsnavn</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Funnet via</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porter</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Lokal port</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Tjenesteport</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Enhetens tjenesteport</translation>
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
        <translation>Maks. tilkoblinger</translation>
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
        <translation>Tilkoblet</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Alarminnganger</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Lagring</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Harddisker</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Lagt til via</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manuelt (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manuelt (%1)</translation>
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
        <translation>Brukernavn</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Kopier alt</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Enhetsdetaljer</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Innlogging mislyktes: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Logg inn for å lese mer</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Logger inn på enheten for å lese porter, kanaler og harddisker</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Lagrer teksten i en fil</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Ingen oppføringer samsvarer med søket</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Kopier denne linjen</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Enhetsbibliotekfilen %1 kunne ikke leses</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Enhetsbibliotekfilen %1 inneholder en ukjent linje: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] eller oppføringen «file» mangler i enhetsbibliotekfilen</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Funksjonen %2 i %1 mangler i enhetsbibliotekfilen</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Ukjent funksjon %2 i %1 i enhetsbibliotekfilen</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Enhetsbiblioteket %1 kunne ikke lastes inn: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>Enhetsbiblioteket %1 eksporterer ikke %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Linje %1 er for lang</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Linje %1 er ikke kodet i UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Filen kunne ikke åpnes</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Filen er for stor</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Flere felt enn kolonner</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Et felt er for langt</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Et felt inneholder et kontrolltegn</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Ukjent tilleggsmodus</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Ugyldig enhetsadresse</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Ugyldig enhetsport</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Brukernavn eller passord mangler</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Linje %1 og %2 har samme MAC-adresse: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Filen inneholder mer enn %1 enheter</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Filen har ingen overskriftsrad for en enhetsliste</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Regnearket kunne ikke leses</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>Rotelementet er ikke deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Linje %1 er ikke gyldig XML</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>Kodingen %1 støttes ikke</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Arket har mer enn %1 rader</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Tegnet %1 kan ikke leses tilbake fra dette formatet</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Innholdet i den krypterte listen er ugyldig</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Filen er ikke en kryptert enhetsliste, eller den er ufullstendig</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Denne versjonen av krypterte lister støttes ikke</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Parameterne i den krypterte listen er ugyldige</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>Listen er kryptert: en passfrase kreves</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Feil passfrase, eller filen er skadet</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Velg bare samme type (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Velg bare samme modell (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Åpne nettside</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Åpne direktevisning</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Kopier adresse</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Kopier MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Kopier rad</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Legg til i favoritter</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Notat…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Velg konto for %n valgt enhet…</numerusform>
            <numerusform>Velg konto for %n valgte enheter…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Velg konto…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Notatfilen %1 kan ikke leses: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Notatfilen %1 er skadet. Noen notater kan være tapt. Den beholdes under et annet navn når neste notat lagres.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Enheten rapporterer verken MAC-adresse eller UUID og kan ikke ha et notat</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Et notat kan ha høyst %1 tegn</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Høyst %1 notater kan lagres</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Notatet kan ikke lagres: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Annet</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>lokalt nettverk</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>lokalt nettverk (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Søk etter enheter</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Ingen enhet valgt</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Logget inn</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Innlogging mislyktes: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Ikke logget inn</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Tilkoblingen er brutt</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Oppgradering pågår</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Ikke funnet</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Ubekreftet</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ikke initialisert</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Ikke funnet i det siste søket</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Enhet fra forrige liste, ennå ikke funnet</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Sist funnet: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Bare én fil om gangen kan dras til vinduet</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Dette er ikke en fil på denne datamaskinen</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Filen støttes ikke: %1. Dra en enhetsliste (.xlsx, .csv, .xml, .devlist) eller en anleggsfil (.site) til vinduet</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Egendef. bithastighet</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Hovedstrøm: videoformat</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Hovedstrøm: videoprofil</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Hovedstrøm: lydkomprimering</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Hovedstrøm: lydformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Understrøm: videoformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Understrøm: videoprofil</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Understrøm: lydkomprimering</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Understrøm: lydformat</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (ikke lest, ikke skrevet)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Ikke kopiert: %1</translation>
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
        <translation>komprimering for understrømmen</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>komprimering for hovedstrømmen</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>oppløsning for understrømmen</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>oppløsning for hovedstrømmen</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>bithastighet for understrømmen</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>bithastighet for hovedstrømmen</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>bithastighetskontroll for understrømmen</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>bithastighetskontroll for hovedstrømmen</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>bildefrekvens for understrømmen</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>bildefrekvens for hovedstrømmen</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>lyd for understrømmen</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>lyd for hovedstrømmen</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Ikke noe svar fra enheten</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Enheten støtter ikke dette</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Enheten er opptatt</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Enheten avviste forespørselen (feil %1)</translation>
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
        <translation>Enhetens konfigurasjon er ikke gyldig. Noen verdier kan mangle.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Enheten rapporterer ikke kodingsfunksjonene sine. Noen verdier kan mangle.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Hovedstrøm</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Understrøm</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Kodingsinnstillingene for kanal %1 kunne ikke leses</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n ulagret endring</numerusform>
            <numerusform>%n ulagrede endringer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Kopier til %n enhet</numerusform>
            <numerusform>Kopier til %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Kopier til valgte enheter</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Tilkoblingen er brutt</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Ikke lagret: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Enheten oppgraderes. Lagre når det er ferdig.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Tilkoblingen er brutt. Velg Oppdater for å prøve igjen.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, eller kanalen er ikke tilkoblet. Velg en annen kanal eller Oppdater.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Ikke lest: %1. Endres ikke ved lagring.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Strømtype</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Aktiver understrøm</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktiver</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Komprimering</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Oppløsning</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Bithastighetskontroll</translation>
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
        <translation>Bildefrekvens (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Lyd</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Aktiver lyd</translation>
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
        <translation>Egendefinert</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Leser kodingsinnstillinger…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Skriver oppløsningen for understrømmen…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Begge strømmene bruker samme komprimering: hovedstrømmen er nå %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Lagrer kodingsinnstillinger…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Ikke lagret</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Innstillingene kunne ikke leses: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Velg filformat</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Passordene i filen er i klartekst. Passord for lagrede kontoer eksporteres ikke.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Filen inneholder ingen passord. Fyll dem inn før filen importeres.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Hele listen krypteres med passfrasen, og bare dette programmet kan lese den. Den kan ikke gjenopprettes uten passfrasen. Passord for lagrede kontoer eksporteres ikke.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Fullstendig liste</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Uten passord</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Kryptert (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>Passfrasen må ha minst %1 tegn</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passfrase</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Passfrasene stemmer ikke overens</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Gjenta passfrasen</translation>
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
        <translation>Ikke funnet i det siste søket</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Rediger notater</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notater</translation>
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
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notater</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Handlinger</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Fjerner denne enheten fra favorittene</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Lukk dialogen før du drar en fil til vinduet</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Slipp for å importere en enhetsliste eller åpne et anlegg</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Bruk minst to av sifre, bokstaver og symboler, og ingen ulovlige tegn.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Angi brukernavnet</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Angi passordet</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bekreft passordet</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Passordene stemmer ikke overens</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Passordet må ha 8 til 32 tegn</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisering</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n enhet som skal initialiseres</numerusform>
            <numerusform>%n enheter som skal initialiseres</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nytt passord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bekreft</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 til 32 tegn, med minst to av sifre, bokstaver og symboler (alle synlige tegn unntatt </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Angi etterpå det nye passordet også i søkeinnstillingene.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Når det lykkes</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Enheten ble ikke funnet i et søk, eller rapporterer verken MAC-adresse eller UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Sluttet å vente på enheten: adressen kan være endret</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tidsgrensen er overskredet: adressen kan være endret</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Flere enheter på rad har avvist passordet. Hvis du fortsetter, kan kontoer bli låst.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopper…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Henter bilder, %1 av %2 enheter</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n bilde</numerusform>
            <numerusform>%n bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n mislyktes</numerusform>
            <numerusform>%n mislyktes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n enhet til vises ikke</numerusform>
            <numerusform>%n enheter til vises ikke</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Hent alle på nytt</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» pågår. Vent til det er ferdig.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Hent alle bilder på nytt (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Lagre alle</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Skriv alle bilder til mappen for stillbilder (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Henter…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Hent på nytt (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Mislyktes</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Henter</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Hoppet over</translation>
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
        <translation>%1 bilder lagret i %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 bilder lagret i %2, %3 ikke skrevet: %4</translation>
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
        <translation>Mappen kunne ikke åpnes: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Velg enheter i enhetslisten</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Ingen enheter</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppe</translation>
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
        <translation>Ingen gruppe</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Eksponering</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antiflimmer</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Eksponeringsmodus</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Forsterkning</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Forsterkningsområde</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Minste forsterkning</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Største forsterkning</translation>
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
        <translation>3D-støyreduksjon</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nivå</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Motlys</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Motlysmodus</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Hele bildet</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Egendefinert område</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Kompenseringsområde</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Bredt dynamisk område</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Høylyskompensering</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Hvitbalanse</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Blåforsterkning</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Rødforsterkning</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Hent bilder</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 kanaler, de første %2 vises</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Lagre bilder</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Mappen %1 kunne ikke opprettes</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Disse innstillingene kunne ikke leses. Velg Oppdater for å prøve igjen.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Nær- og fjernlys</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Nær</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Dag/natt-veksling</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Lav</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Middels</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Høy</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Følsomhet</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Vekslingsforsinkelse</translation>
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
        <translation>Nærlysets styrke</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Fjernlysets styrke</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Korrigering</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarødt og hvitt lys</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Lystype</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Lysstyrke</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Forsinkelse (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Enheten har ikke sendt noe bilde</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Ikke noe bilde fra %n kanal</numerusform>
            <numerusform>Ikke noe bilde fra %n kanaler</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Eksponering og hvitbalanse</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Dag/natt og belysning</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>Kameraet rapporterer ingen slike innstillinger.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Ingen innstillinger</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Myk</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Livlig</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Lysstyrke</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Metning</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Fargetone</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Skarphet</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Speiling og rotasjon</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Speiling</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Normal visning</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Korridormodus 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Korridormodus 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Vend</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotasjon</translation>
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
        <translation>Tåkereduksjon</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
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
        <translation>Ø</translation>
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
        <translation>Venstre kan ikke være større enn høyre</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Øvre kan ikke være større enn nedre</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Lukker</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Egendefinert område</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Lukkerområde (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Korteste lukkertid</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Lengste lukkertid</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Minimum kan ikke være større enn maksimum</translation>
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
        <translation>Navn</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Endringer skrives til enheten med en gang.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standardverdier</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Lengre enn %1 byte</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Enheten oppgraderes. Endre innstillinger når det er ferdig.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Leser bildeinnstillinger…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Skriver bildeinnstillinger…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Ikke noe svar fra enheten. Endringen er kanskje ikke skrevet.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Ikke endret: %1. Enhetens verdi vises.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Allerede initialisert</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Oppgradering pågår: hoppes over</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>MAC-adresse ukjent: hoppes over</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisering</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Velg en enhet som ikke er initialisert</translation>
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
        <translation>Modell</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Bare enheter i dette LAN-et vises. Enheter i andre LAN kan ikke initialiseres.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n til hoppes over, se Merknad</numerusform>
            <numerusform>%n til hoppes over, se Merknad</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Merknad</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>Den forrige enhetslisten %1 kan ikke leses: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Navnet på en gruppe kan ha høyst %1 tegn</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>P2P-enheter kan ikke være i en gruppe</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Et anlegg kan ha høyst %1 enheter</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Anlegget kan ikke lagres: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>Enhetslisten kan ikke lagres: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Ulagret anlegg</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Det forrige anlegget kan ikke lagres: %1</translation>
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
        <translation>Ikke tilkoblet</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Fjern fra visningen (Delete)</translation>
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
        <translation>Logger inn…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nytt forsøk om %n s</numerusform>
            <numerusform>%1. Nytt forsøk om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logg inn på nytt</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Prøv igjen</translation>
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
        <translation>%1 KB bufret</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Lyd %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 bilderuter hoppet over</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Mappen kunne ikke åpnes: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Stillbilder</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Enheten vises ikke lenger</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Direktevisning</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maksimer</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Forrige enhet (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Neste enhet (PgDn)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Én visning</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 visninger</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 visninger</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Forrige kanaler</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Neste kanaler</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Lyd av</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Lyd på</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Behold bildeforholdet</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Strekk til fullt</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Skjul strøminformasjon</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Vis strøminformasjon</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Tar stillbilde…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Stillbilde av den valgte kanalen</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Stillbilder av alle kanaler</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Avslutt fullskjerm</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Fullskjerm</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» pågår. Vent til det er ferdig.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Ingen flere enheter kan legges til</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Velg først enhetene som skal legges til, i enhetslisten</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Legg til kanalene for enhetene som er valgt i listen (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Legg til valgte enheter (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Legg til valgte enheter</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Stillbilder av alle kanaler på alle enheter</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>Direktevisningen ble lukket fordi en annen enhet ble logget inn</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logg inn på nytt</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Logger inn…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Ingen kanaler</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Innlogging mislyktes</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nytt forsøk om %n s</numerusform>
            <numerusform>%1. Nytt forsøk om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Alle valgte enheter vises allerede</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Høyst %1 enheter kan legges til. %2 ble ikke lagt til.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Ikke noe svar fra %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Spørsmål og svar</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Kontoer</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Følg systemet</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Lyst</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Mørkt</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Anleggsrapport (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Endre IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsoppgradering</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Enhetskonfigurasjon</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Systemkonfigurasjon</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>CGI-protokoll</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Demoanlegg</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Demoanlegg: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Simulerte enheter, ikke noe nettverk. Brukernavn og passord for innlogging på enhetene. Nye enheter må først initialiseres.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Åpne demoanlegg</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Ingen enhetsbiblioteker er installert: enheter kan ikke nås</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Åpner %1 i systemets PDF-program</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan ikke åpne %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Endrer IP-adressen til denne enheten</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Viser all informasjon om denne enheten</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Åpner nettsiden til denne enheten i nettleseren</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Åpner direktevisningen for denne enheten</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initialiser enheten først</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Enheten oppgraderes. Endre adressen når det er ferdig.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Direkte</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Enheten er lagt til, men ikke lagret i favorittene. Kontroller skrivetilgangen til programmappen.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Enheten er lagt til og lagret i favorittene</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Enheten er lagt til</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Legg til enhet</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Velg en enhet som ikke er initialisert</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n enhet mislyktes: se Resultat</numerusform>
            <numerusform>%n enheter mislyktes: se Resultat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Enheten oppgraderes. Endre adressen når det er ferdig.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Endre IP-adresser</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adresse endret på %n enhet</numerusform>
            <numerusform>Adresser endret på %n enheter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n enhet initialisert</numerusform>
            <numerusform>%n enheter initialisert</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Stoppet: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Fjerne %n enhet fra listen?</numerusform>
            <numerusform>Fjerne %n enheter fra listen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n enhet oppgraderes og ble ikke fjernet</numerusform>
            <numerusform>%n enheter oppgraderes og ble ikke fjernet</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Fjern enheter</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Angi en gyldig IP-adresse</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Angi en gyldig subnettmaske</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Angi en gyldig gatewayadresse</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Endre IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Skjul forhåndsvisning</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Forhåndsvisning</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Viser den nye adressen til hver enhet</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
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
        <translation>Samme IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnettmaske</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Brukes av %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Dette er nettverks- eller kringkastingsadressen</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>Gatewayen er utenfor subnettet</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Endre likevel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Dette er adressen til gatewayen</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>IP-adresse</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Alle %1 enheter er skjult av filtrene</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Søker etter enheter…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Ingen enheter funnet</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Ingen enhetsbiblioteker er installert</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Endre filtrene eller tøm søketeksten.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Enheter vises her etter hvert som de blir funnet.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Kontroller at enhetene har strøm og er tilkoblet. For enheter i andre nettverk: legg til området deres i søkeinnstillingene, eller legg til en enhet etter adresse.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Tøm filtre</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Søk på nytt</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Ingen nettverk er valgt i søkeinnstillingene</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Velg det lokale nettverket eller andre nettverk i søkeinnstillingene.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Søkeinnstillinger</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Hvorfor ble ingen enheter funnet?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Programmet kan ikke kommunisere med enheter: ingen kan finnes eller endres. Demoanlegget trenger ingen enheter og viser alle funksjoner.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Åpne demoanlegg</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Gjennomsøkt: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Legg til enhet etter adresse</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Kontroller kabler og nettverk, og søk på nytt.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Eksporterer enheter…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 finnes allerede. Erstatte den?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Enhetene er eksportert
Fil: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Filen kunne ikke skrives. Kontroller mappen og om filen er åpen i et annet program.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Disse verdiene kan ikke leses tilbake fra filen:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Årsak</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolonne</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Eksportresultat</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Leser enhetslisten…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Erstatt</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Erstatt fil</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Gruppe…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Fjern fra anlegget</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Åpne en enhetsliste</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Krypterte enhetslister (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importert: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>enheter</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Ikke importert. Filen er åpen i et annet program, har et annet format eller inneholder en MAC-adresse to ganger.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Linje</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Årsak</translation>
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
        <translation>Søk på nytt</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Vis årsaker</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Søket ble stoppet; listen er ufullstendig.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Ingen enhet ble funnet. De grå enhetene ble funnet tidligere.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n enhet færre enn i siste søk</numerusform>
            <numerusform>%n enheter færre enn i siste søk</numerusform>
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
        <translation>Navn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
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
        <translation>Versjon</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Handlinger</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notat</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppe</translation>
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
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Angir det første passordet for de valgte nye enhetene</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Batchendre IP</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Tildeler fortløpende adresser til de valgte enhetene</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Leser en enhetsliste fra et regneark</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Skriver de valgte enhetene til et regneark</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Legg til manuelt</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Legger til enheter som et søk ikke finner: etter IP-adresse, etter P2P-ID eller fra favorittene</translation>
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
        <translation>Favoritter</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Fjerner de valgte enhetene fra listen</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ikke initialisert</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Søk…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n valgt enhet oppgraderes: adressen kan ikke endres</numerusform>
            <numerusform>%n valgte enheter oppgraderes: adressene kan ikke endres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n valgt enhet oppgraderes og kan ikke fjernes</numerusform>
            <numerusform>%n valgte enheter oppgraderes og kan ikke fjernes</numerusform>
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
        <translation>Bilder fra de valgte enhetene (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Fyll inn</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Gi navn etter mønster</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Velg hva som skal få navn</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Navnene kan redigeres i tabellen. Lagre skriver dem.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n kanal på denne enheten</numerusform>
            <numerusform>%n kanaler på denne enheten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n valgt kamera</numerusform>
            <numerusform>%n valgte kameraer</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Mønster: {n}, {model}, {ip4} (slutten av adressen)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Mønster</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Flere kanaler får samme navn</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Første nummer</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Sifre</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Gir kanal 1 på hvert kamera navn.</translation>
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
        <translation>Angi et mønster</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Bruk bare {n}, {model} og {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Lengre enn %1 byte</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Opptaker: hoppes over. Åpne den for å gi kanalene navn</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notat</translation>
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
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Angi et gyldig klokkeslett</translation>
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
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Viser bare enheter som mislyktes eller ikke ble utført, sortert etter årsak. For enheter som ikke lenger vises, se Batchjobber.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Tøm</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Fjerner merkene for enheter som mislyktes eller ikke ble utført</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Uløste %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Uløst operasjon</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Alle operasjoner</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>mindre enn 1 min igjen</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>cirka %n min igjen</numerusform>
            <numerusform>cirka %n min igjen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n mislyktes</numerusform>
            <numerusform>%n mislyktes</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopper…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stopp (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Kjør mislykkede igjen</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Velger bare enhetene på denne siden som mislyktes eller ikke ble utført</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Lagre resultater</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batchjobber</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Søker etter enheter…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 av %3 ferdig</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n til uløst</numerusform>
            <numerusform>, %n til uløste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>feil passord på %n enhet på rad</numerusform>
            <numerusform>feil passord på %n enheter på rad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>feil passord på %n enhet på rad (konto %1)</numerusform>
            <numerusform>feil passord på %n enheter på rad (konto %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Hvis du fortsetter, kan kontoer bli låst. Fortsette?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Etter stopp: velg en annen konto i menyen for enhetene, og kjør deretter de mislykkede enhetene igjen (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Kjør mislykkede igjen: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Kjører «%1» på nytt for enhetene som mislyktes eller ikke ble utført. Enheter der et nytt forsøk ikke hjelper, som etter feil passord med samme konto, utelates.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Velg uløste</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Velg konto…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Velg en annen konto for enhetene som avviste denne og for de gjenværende enhetene som bruker den, og prøv dem igjen</translation>
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
        <translation>Angi et tall</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Svakt</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Middels</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Sterkt</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Passordstyrke</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Tilpass kolonnebredde</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Tilbakestill kolonner</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Velg alle</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Tøm</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Skjul passord</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Vis passord</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>enhet funnet</numerusform>
            <numerusform>enheter funnet</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Søk etter enheter</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Søkeinnstillinger</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimer</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maksimer</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Utvid</translation>
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
        <translation>Ingen kanaler</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Kanalen er ikke tilkoblet</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Kobler til…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Strømmen ble avbrutt</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nytt forsøk om %n s</numerusform>
            <numerusform>Nytt forsøk om %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Prøv igjen nå</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 i p2p.ini mangler eller er ugyldig</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>P2P-tjenesten kunne ikke startes</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Velg en enhet.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>Batch-CGI</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Sender én kommando til de valgte enhetene</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Kjør regneark</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Sender kommandoene i et regneark og skriver resultatene inn i det</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Åpne mal</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Åpner malen for kommandoregneark</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Søk…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Enheter som mislyktes</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>Kommandoen blir sendt til disse enhetene:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Send kommando</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Vis hele resultatet</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Kopier resultat</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Forkast</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n endring er ikke lagret og vil gå tapt.</numerusform>
            <numerusform>%n endringer er ikke lagret og vil gå tapt.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Kopier</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Kopiere kodingsinnstillingene for kanal %1 til samme kanal på den valgte enheten?</numerusform>
            <numerusform>Kopiere kodingsinnstillingene for kanal %1 til samme kanal på de %n valgte enhetene?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Dette omfatter endringer som ikke er lagret.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Lagrer kanalnavn…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc for å stoppe)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Enhetskonfigurasjon</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Kodingsinnstillinger for kanal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kopier kodingsinnstillinger</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Ulagrede endringer</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Lagre og gå</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Gi navn etter mønster</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Konfigurer denne enheten</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Det er ikke noe kamera blant de valgte enhetene</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Innstillingen kunne ikke lagres. Kontroller skrivetilgangen til programmappen.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Velg en fastvarefil</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Oppgrader</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Stopp oppgradering</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>IP-adressekonflikt: %n enhet</numerusform>
            <numerusform>IP-adressekonflikt: %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Tilkoblingen til P2P-enheten %1 er brutt. Fjern enheten og legg den til på nytt.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>P2P-tjenesten er frakoblet. P2P-enheter kan ikke nås for øyeblikket.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Eksporter</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Endre IP-adresser</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Bilder fra de valgte enhetene</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Det gamle passordet er riktig: venter på det nye</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Endre passord</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Kontroller gammelt passord</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Start enheter på nytt</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Gjenopprett fabrikkinnstillinger</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n enhet valgt</numerusform>
            <numerusform>%n enheter valgt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Tiden er ute: passordet på %n enhet ble ikke endret</numerusform>
            <numerusform>Tiden er ute: passordene på %n enheter ble ikke endret</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>En annen operasjon ble startet: passordet på %n enhet ble ikke endret</numerusform>
            <numerusform>En annen operasjon ble startet: passordene på %n enheter ble ikke endret</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Velg først enheter til venstre</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» pågår. Vent til det er ferdig.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Passordet ble ikke endret på %n enhet (%1); den er merket</numerusform>
            <numerusform>Passordet ble ikke endret på %n enheter (%1); de er merket</numerusform>
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
        <translation>Kryptert enhetsliste</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passfrase</translation>
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
        <translation>Programmet kjører allerede.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Angi kontoen</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Angi passordet</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logg inn på nytt</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Innlogging på %1 mislyktes. Angi brukernavn og passord.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Feil passord, %n gang</numerusform>
            <numerusform>Feil passord, %n ganger</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Svar fra enheten: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Enheten rapporterer ikke hvor mange forsøk som gjenstår. Flere feil passord kan låse kontoen.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Lagre som kontoen til denne enheten</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Når innloggingen har lyktes, brukes alltid denne kontoen for innlogging på denne enheten</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Også for senere enheter</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Etter en vellykket innlogging prøves alle enheter uten egen konto, også de i batchjobber, med denne i stedet for kontoen i søkeinnstillingene, til programmet avsluttes eller kontoen i søkeinnstillingene endres</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>skarphet</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>speiling</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilisering</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>eksponering</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>motlys</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>hvitbalanse</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>dag/natt-modus</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>tåkereduksjon</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>belysning</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>lysstyrke</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>metning</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>fargetone</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Ikke initialisert</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Duplisert adresse</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Innlogging avvist</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Kan ikke leses</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Klokken går feil</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Eldre fastvare</translation>
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
        <translation>%1 t %2 min</translation>
    </message>
    <message>
        <source>%1 天 %2 小时</source>
        <translation>%1 d %2 t</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Nøyaktig</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>%1 foran</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 etter</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; en annen enhet av samme modell har %2</translation>
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
        <translation>Kanalnavn</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Kodingsinnstillinger</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Bildeinnstillinger</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Bildeinnstillinger: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anleggsrapport</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Avvik</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Endringer på stedet</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>固件版本</source>
        <translation>Fastvare</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Tidsavvik</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Tidsavvik (s)</translation>
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
        <translation>Hovedstrøm</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Bredde (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Høyde (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Før</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Nå</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operasjon</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Ny verdi</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatør</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Ikke rapportert</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Ikke noe bilde</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Ingen avvik.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Ingen enhet er endret siden programmet ble startet.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Lest</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Med avvik</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>PDF-filen kan ikke opprettes</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Mappen %1 kan ikke opprettes</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 kan ikke skrives: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 tidligere endringer vises ikke.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 kanaler til</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Endre IP-adresse</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Still klokken</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Oppgrader fastvare</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Tidsserver og tidssone</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Sommertid</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Automatisk vedlikehold</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Start på nytt</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Gjenopprett standard</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videostandard</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Endre passord</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Mappen for midlertidige filer %1 kan ikke brukes: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 enheter på rad avviste påloggingen</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Start på nytt</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Endring av språk</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>Språket endres når programmet startes på nytt.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Senere</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Kommandoen mislyktes</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Vellykket</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Ukjent</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Kontoen finnes ikke</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Feil passord</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Kontoen er låst. Vent til enheten låser den opp.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Kontoen er allerede i bruk</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Ikke noe svar fra enheten</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protokollen stemmer ikke</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Enheten er ikke initialisert</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Enheten støtter ikke dette</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Enheten er allerede i listen</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Enhetens funksjoner kunne ikke leses</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Enheten avviste forespørselen</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Ukjent feil %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Enheten oppgraderes</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Ikke utført</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Stillbildet mislyktes</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Ugyldige data</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Fastvarefilen kan ikke brukes</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Ikke oppgradert</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Oppgradering ikke bekreftet</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Enheten er opptatt. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>Økten er utløpt. Logg inn på nytt.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Enheten godtar ikke denne verdien</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Enhetens sertifikat er ikke klarert</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Enhetens sertifikat er endret</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Avbrutt</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>En annen enhet svarer på adressen</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Mottatt av enheten, ikke bekreftet</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Kopier tekst</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Søkerapport</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Kopiert til utklippstavlen</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Nettverkskort</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Denne datamaskinen har ikke noe brukbart nettverkskort</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Kontroller at et nettverkskort er installert og aktivert.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Søk etter adresse</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Spurte adresser</translation>
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
        <translation>Ingen rute til %1 av disse adressene</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Angi en gateway for nettverkskortet, eller legg til en adresse i samme nettverk som disse adressene.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Ikke noe svar fra noen adresse</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Kontroller adresseområdet i søkeinnstillingene, og at enhetene har strøm.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Andre nettverk</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Enheter funnet utenfor alle nettverkene til denne datamaskinen: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Før du logger inn på dem: endre IP-adressene deres, eller legg til en adresse i nettverket deres på nettverkskortet.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresser</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Sendte forespørsler</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Mottatte meldinger</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Enheter funnet</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Ikke brukt</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>uleselige meldinger: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>meldinger fra andre enheter enn kameraer og opptakere: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>meldinger uten tjenesteadresse: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>meldinger med tjenesteadressen til en annen vert: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>meldinger om enheter som forlater nettverket: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>meldinger over grensen: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>Nettverkskortet er deaktivert</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Aktiver det i nettverksinnstillingene til operativsystemet.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>Nettverkskortet er ikke tilkoblet</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Kontroller kabelen og svitsjen, eller koble til et trådløst nettverk.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>Nettverkskortet har ingen IP-adresse</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Angi en adresse i nettverket til enhetene, eller aktiver DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>Nettverkskortet kan ikke sende multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Velg andre nettverk i søkeinnstillingene for å søke etter adresse.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Operativsystemet sendte ikke forespørslene: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Kontroller brannmuren på denne datamaskinen og innstillingene for nettverkskortet.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Ingen svar mottatt</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Kontroller at enhetene har strøm og er i samme nettverk, og at ingen brannmur eller svitsj filtrerer svarene deres. Du kan også søke etter adresse: se søkeinnstillingene.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 enheter funnet, %2 færre enn i siste søk.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Enheter funnet: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Ingen enheter funnet.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>Start-IP kan ikke være større enn slutt-IP</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>Området kan omfatte 17 segmenter</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Angi en gyldig start-IP</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Angi en gyldig slutt-IP</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Søkeinnstillinger</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Søk i lokalt nettverk</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Søk i andre nettverk</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>Start-IP</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>Slutt-IP</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Standardkonto for innlogging på enheter</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Logg inn på enheter under søket</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Leser modell, versjon og MAC-adresse. Hver enhet mottar denne kontoen. Etter feil passord prøves ikke en enhet igjen.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>det finnes ingen nøkkelringtjeneste</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>nøkkelringtjenesten er låst</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>nøkkelringtjenesten svarer ikke</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Noen passord er i skrivebordets nøkkelringtjeneste og kan ikke leses (%1). Skriv dem inn på nytt.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Skrivebordets nøkkelringtjeneste kan ikke brukes (%1). Passord lagres i filer.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Passordet kunne ikke lagres i skrivebordets nøkkelringtjeneste (%1). Det lagres i en fil.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Passordet kunne ikke fjernes fra skrivebordets nøkkelringtjeneste (%1). Fjern det i systemets nøkkelbehandling.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Demoanlegget kunne ikke åpnes:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Filen er ikke en anleggsfil, eller den er skadet</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Anleggsfilen er fra en nyere versjon og kan ikke leses</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Anleggsfilen har mer enn %1 enheter</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Navnet i anleggsfilen er ugyldig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Enhet %1 i anleggsfilen: %2 er ugyldig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Enhet %1 i anleggsfilen er et duplikat</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Filen kunne ikke åpnes</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Filen er for stor</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Anleggsfiler (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Åpne anlegg</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Anlegget «%1» er åpnet, med %n enhet</numerusform>
            <numerusform>Anlegget «%1» er åpnet, med %n enheter</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Anlegget %1 kan ikke åpnes: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Anlegg</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Lagre anlegg som</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Anlegget er lagret i %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Filen inneholder ingen passord.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Et nytt anlegg fjerner kjente enheter og grupper fra listen. Ulagrede endringer beholdes i de siste anleggene.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nytt</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Nytt anlegg</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Anlegg</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Åpne anlegg…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Lagre anlegg som…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Nytt anlegg…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Angi navnet på anlegget</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Velg minst én fil</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Listen inneholder ingen enheter</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Lag rapport</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anleggsrapport</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>En rapport er under arbeid</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Anleggets navn</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatør</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Lagre i</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Velg…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Alle (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Valgte (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Programmet logger inn på hver enhet, leser innstillingene og henter et bilde. Rapporten viser endringene siden programmet ble startet, og inneholder ingen passord.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Kan ikke åpne %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Åpne PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Anleggsrapport</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Rapporten er klar</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Annen mappe…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Kanalen er ikke tilkoblet</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Stillbildet mislyktes</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Stillbildet mislyktes: filen kunne ikke skrives: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Tar stillbilde…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Prøv igjen</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Stillbilder</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Tar stillbilde %1 av %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopper…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n tatt</numerusform>
            <numerusform>%n tatt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n mislyktes</numerusform>
            <numerusform>%n mislyktes</numerusform>
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
        <translation>Ikke utført</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Enheten vises ikke lenger</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Uke</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Ukedag</translation>
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
        <translation>Sommertid</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktiver</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Etter dato</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Etter uke</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Slutt</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Bruk sommertid</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Angi et gyldig klokkeslett</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Velg alle</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Søk…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Tøm søk</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Søk på nytt</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Ingen enhet med dette navnet eller denne typen, modellen eller adressen.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Enheter vises her etter hvert som de blir funnet.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Bare initialiserte IPv4-enheter vises.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Ingen enheter samsvarer</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Søker etter enheter…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Ingen enheter å konfigurere</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Ingen enhetsbiblioteker er installert</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Vis alle</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Programmet kan ikke kommunisere med enheter. Åpne demoanlegget på siden «Endre IP».</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Fjern merker</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Fjerner merkene for enheter som mislyktes eller ikke ble utført</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Alle enheter i listen er logget inn.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n enhet uten adresse (DHCP) vises ikke</numerusform>
            <numerusform>%n enheter uten adresse (DHCP) vises ikke</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Enhetene som mislyktes eller ikke ble utført, er ikke i dette treet: de er ikke initialisert, har ingen IPv4-adresse eller ble ikke funnet igjen. Se siden «Endre IP» og Batchjobber.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Februar</translation>
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
        <translation>Mai</translation>
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
        <translation>August</translation>
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
        <translation>Desember</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Første uke</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Andre uke</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Tredje uke</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Fjerde uke</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Siste uke</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Tirsdag</translation>
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
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Tirsdag</translation>
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
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Hver dag</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Ikke noe svar fra enheten</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Tiden kunne ikke leses</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Ikke noe svar fra enheten. Passordet kan være endret.</translation>
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
        <translation>Tidssone</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Omstart</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Tilbakestilling</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
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
        <translation>%1 s igjen til å angi passordet. Deretter må det gamle passordet kontrolleres på nytt.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>%1 s igjen til å angi passordet</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n enhet venter på det nye passordet</numerusform>
            <numerusform>%n enheter venter på det nye passordet</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>det nye passordet du angav, er gjenopprettet</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Kontroller det gamle passordet på nytt. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Det nye passordet du angav, gjenopprettes da.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Tiden er ute: passordet på %n enhet ble ikke endret. </numerusform>
            <numerusform>Tiden er ute: passordene på %n enheter ble ikke endret. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>Utvalget er endret. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Bruk minst to av sifre, bokstaver og symboler, og ingen ulovlige tegn.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bekreft passordet</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Passordene stemmer ikke overens</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Passordet må ha 8 til 32 tegn</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Angi det gamle passordet</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Trinn 1: kontroller det gamle passordet</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Gammelt passord</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Kontroller</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Trinn 2: angi det nye passordet</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nytt passord</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bekreft passord</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 til 32 tegn, med minst to av sifre, bokstaver og symboler (alle synlige tegn unntatt &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Endre passord</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Når det lykkes</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Sommertid på</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Sommertid av</translation>
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
        <translation>Omstart %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Faste omstarter av</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Starte den valgte enheten på nytt?</numerusform>
            <numerusform>Starte de %n valgte enhetene på nytt?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Start på nytt</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Tilbakestille den valgte enheten til fabrikkinnstillinger?</numerusform>
            <numerusform>Tilbakestille de %n valgte enhetene til fabrikkinnstillinger?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>«%1» blir brukt på disse enhetene:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Oppdateringsintervallet er 0 minutter: enheten oppdaterer kanskje ikke lenger klokken sin. Bruke det på den valgte enheten?</numerusform>
            <numerusform>Oppdateringsintervallet er 0 minutter: enhetene oppdaterer kanskje ikke lenger klokken sin. Bruke det på de %n valgte enhetene?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Bruk likevel</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Automatisk vedlikehold</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Omstart regelmessig</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Omstart kl.</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Omstartsdag</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Start på nytt nå</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Under omstarten kan en enhet ikke nås, og den gjør ikke opptak.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Start enheter på nytt</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n valgt enhet oppgraderes og kan ikke startes på nytt</numerusform>
            <numerusform>%n valgte enheter oppgraderes og kan ikke startes på nytt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Gjenopprett fabrikkinnstillinger</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Sletter alle innstillinger, kontoer og passord på enhetene. Dette kan ikke angres. Enhetene må initialiseres på nytt.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n valgt enhet oppgraderes og kan ikke tilbakestilles</numerusform>
            <numerusform>%n valgte enheter oppgraderes og kan ikke tilbakestilles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Datamaskinens tid</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Still etter datamaskinen</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Stiller hver enhet til tiden da den mottar forespørselen</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manuelt</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Bruk gjeldende tid</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Enhetens tid</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Les enhetenes tid</translation>
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
        <translation>Alle</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Ikke logget inn %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Viser bare enheter uten innlogging hittil, eller der siste innlogging mislyktes</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Uløste %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Viser bare enheter som mislyktes eller ikke ble utført, sortert etter årsak.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n til er ikke i denne listen: se Batchjobber.</numerusform>
            <numerusform> %n til er ikke i denne listen: se Batchjobber.</numerusform>
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
        <translation>PAL er for områder med 50 Hz strømnett, NTSC for 60 Hz. Noen enheter starter på nytt etter endringen.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Enhetene har ikke denne funksjonen</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Angi NTP-serveren</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Tidssone og NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Tidssone</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Aktiver NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>NTP-server</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP-adresse eller vertsnavn</translation>
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
        <translation>Bruk tidssone og NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Enhetene har ikke %1, tidssonen til denne datamaskinen. Velg en tidssone.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Angi en gyldig IP-adresse eller et gyldig vertsnavn</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Enhetens IP-adresse, eller «adresse:webport» hvis webporten ikke er 80. Obligatorisk.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Enhetens innloggingsport. Brukes bare til å kontrollere kontoen.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Enhetens brukernavn, uten kolon.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Enhetens passord. Fjern det fra filen etterpå.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Kommando som begynner med «/». Enheten mottar en godtatt kommando to ganger. Obligatorisk.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 for HTTP, andre heltall for HTTPS. HTTP hvis tomt.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Fylles ut av programmet: svaret, banen til bildet eller opptaket, eller «Error:» og årsaken.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Kommandoer</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Veiledning</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolonne</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betydning</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Behold overskriftsraden. Erstatt eksempelraden med dine egne rader.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Rader uten adresse og kommando hoppes over.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Ikke åpne denne filen i et annet program mens den kjøres.</translation>
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
            <numerusform>%n enhet kan ikke oppgraderes med denne filen: se Resultat</numerusform>
            <numerusform>%n enheter kan ikke oppgraderes med denne filen: se Resultat</numerusform>
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
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fastvarefil</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Filen kunne ikke åpnes</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Feil filformat</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Resultatene kunne ikke lagres: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultatene er lagret i %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Filen kunne ikke skrives. Den er skrivebeskyttet eller åpen i et annet program. Resultatene er lagret i %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>Regnearket har mer enn %1 enheter. Del det opp.</translation>
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
        <translation>%1: %2 oppgradert, %3 mislyktes. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>Regnearket inneholder ingen enheter</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: hoppes over</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Enheten har allerede denne versjonen</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Lesing av regneark</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Start oppgradering</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsoppgradering</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Oppgrader fra regneark</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n enhet blir oppgradert. Den starter på nytt. Ikke slå den av.</numerusform>
            <numerusform>%n enheter blir oppgradert. De starter på nytt. Ikke slå dem av.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Resultatene skrives inn i regnearket.</translation>
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
        <translation>Oppgradering: %1 av %2 ferdig</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n vellykket</numerusform>
            <numerusform>%n vellykkede</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n mislyktes</numerusform>
            <numerusform>%n mislyktes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Logger inn</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Skriver</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Starter på nytt</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
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
        <translation>Versjon</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fastvarefil</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Handlinger</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Ikke valgt</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Et nytt forsøk kan hjelpe</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Rett opp filen, kontoen eller enheten, og oppgrader deretter på nytt</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Velg fil</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Oppgrader</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Skrivingen har begynt: kan ikke stoppes</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notat</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>Enhetens IP-adresse. Obligatorisk.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Enhetens innloggingsport. 37777 hvis tom.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Enhetens brukernavn. Hvis dette og passordet er tomme, brukes programmets konto.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Enhetens passord. Fjern det fra filen etterpå.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Bane til fastvarefilen, absolutt eller relativ til mappen for dette regnearket. Obligatorisk.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Fylles ut av programmet: versjonene før og etter oppgraderingen, eller hvorfor den mislyktes.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Oppgradering</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Veiledning</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Kolonne</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Betydning</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Behold overskriftsraden. Erstatt eksempelraden med dine egne rader.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Rader uten adresse og fastvarefil hoppes over.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Ikke åpne denne filen i et annet program under oppgraderingen.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Skrivingen har begynt: kan ikke stoppes</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 ved %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Ikke stoppet ennå: prøver igjen</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Fastvaren er skrevet, enheten starter på nytt: kan ikke stoppes</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Oppgradert: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: ingen versjon rapportert</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: nå %2, tidligere versjon ukjent</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Start oppgradering</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Oppgraderer de valgte enhetene</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Velg fil</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Velger en fastvarefil for de valgte enhetene</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Kjør mislykkede igjen</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Oppgraderer på nytt enhetene der et nytt forsøk kan hjelpe, for eksempel de som ikke svarte</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Oppgrader fra regneark</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Oppgraderer enhetene i et regneark og skriver resultatene inn i det</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Åpne mal</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Åpner malen for oppgraderingsregneark</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Søk…</translation>
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
        <translation>Enheter samtidig</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Enheter som oppgraderes samtidig</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Venter på at enheten starter på nytt</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Skriver: ikke slå av enheten</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Sender filen</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Logger inn</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Oppgradert</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Ingen fastvarefil valgt</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Fastvarefilen finnes ikke</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Fastvarefilen kunne ikke leses</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Fastvarefilen er tom</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Fastvarefilen er for stor</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Fastvarefilen er skadet</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Fastvaren er for andre modeller</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Fastvaren ble avvist av enheten</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Feil passord</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Kontoen finnes ikke</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Kontoen er låst</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Enheten er ikke initialisert</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Oppgradering støttes ikke, eller enheten er ikke initialisert</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Ugyldig IP-adresse eller port</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Samme enhet som i en tidligere rad</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Ikke noe svar fra enheten</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Enheten er opptatt. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Enheten avbrøt</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Ingen fremdrift for lenge</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Ikke noe svar etter omstarten</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Uendret versjon etter omstarten</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Stoppet: enheten er ikke endret</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Avbrutt: programmet ble lukket</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Ukjent feil %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Batchoppgraderingsmal.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Startet på nytt, men versjonen kunne ikke leses</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Sertifikatet er ikke klarert</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Sertifikatet er endret</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Enheten finnes ikke lenger i listen</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Velg en fastvarefil</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fastvarefil</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Alle filer</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Ingen enheter å kjøre igjen</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n enhet ble ikke oppgradert: se Resultat</numerusform>
            <numerusform>%n enheter ble ikke oppgradert: se Resultat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n enhet oppgradert</numerusform>
            <numerusform>%n enheter oppgradert</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Malen kunne ikke åpnes.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Enhetsoppgradering</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Oppgrader fra regneark</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Stoppet: %1 oppgradert, %2 mislyktes, %3 ikke utført</translation>
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
        <translation>Bevegelsesdeteksjon</translation>
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
        <translation>Natt</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Motlyskompensering</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Bredt dynamisk område</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Høylyskompensering</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Koding</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Logg inn på nytt</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Klikk på en enhet til venstre for å logge inn og endre innstillingene.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Velg en enhet</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Innlogging mislyktes</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Fortsett her</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Bare én enhet kan være logget inn om gangen. Hvis du fortsetter, lukkes direktevisningen for den andre enheten.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>Direktevisningen for en annen enhet er åpen</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Tilkoblingen er brutt</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanalnavn</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>Konfigurasjonen av enheter vises og endres her når et søk har funnet noen.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Ingen enheter</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Gi navn etter mønster</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Klikk på en enhet til venstre for å endre kanalnavnene her, eller gi de valgte kameraene navn samlet.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Ikke noe bilde: filer i mappen Shaders mangler eller er skadet</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Ikke noe bilde: for stort for grafikkortet</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Avspilling mislyktes</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Avspilling mislyktes: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Tilkoblingen til enheten er brutt</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Enheten avsluttet strømmen</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Enheten sender ingen video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Enheten godtar ikke lenger innloggingen</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Enheten sender ingen videostrøm</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Denne datamaskinen kan ikke dekode strømmen</translation>
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
        <translation>Enhetens sertifikat er endret. Nettsiden ble ikke åpnet. Ikke angi noe passord på denne enheten.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Enhetens sertifikat er ikke bekreftet. Nettsiden ble ikke åpnet.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Nettleseren kunne ikke åpnes. Enhetens nettside: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Innstillingene kunne ikke lagres. Kontroller skrivetilgangen til programmappen.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Stopp og avslutt</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Enheter som skriver fastvare, fullfører på egen hånd: ikke slå dem av.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n sertifikat er klarert. Prøv igjen.</numerusform>
            <numerusform>%n sertifikater er klarert. Prøv igjen.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Avslutt programmet</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Kontoen kan ikke lagres og brukes bare til neste søk: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>«%1» pågår. Hvis du avslutter, blir de gjenværende enhetene ikke endret.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Rapporten ble stoppet; ingen fil ble skrevet</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Mer enn %1 enheter svarte. Ytterligere %2 svar vises ikke. Søk i et mindre område.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Stoppet: %1 rader vellykket, %2 mislyktes, %3 ikke sendt.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Ferdig: %1 rader vellykket, %2 mislyktes.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Resultatene kunne ikke lagres: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultatene er lagret i %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Filen kunne ikke skrives. Den er skrivebeskyttet eller åpen i et annet program. Resultatene er lagret i %1</translation>
    </message>
</context>
</TS>
