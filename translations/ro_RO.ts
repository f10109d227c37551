<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copiere număr versiune</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiat în clipboard</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licențe terțe</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Adăugare cont</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Modificare cont</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduceți un nume</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>De exemplu: Clădirea 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduceți numele de utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduceți parola</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Lăsați gol pentru a o păstra</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Se stochează datele cu care se autentifică programul. Parolele de pe dispozitive nu se modifică.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Contul nu poate fi stocat și se folosește doar până la următoarea căutare: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Noul cont este acum contul implicit</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Noul cont este stocat și se folosește de acum pentru acest dispozitiv</numerusform>
            <numerusform>Noul cont este stocat și se folosește de acum pentru aceste %n dispozitive</numerusform>
            <numerusform>Noul cont este stocat și se folosește de acum pentru aceste %n de dispozitive</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Stocare pentru aceste dispozitive (recomandat)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Setare drept cont implicit pentru toate dispozitivele</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Fără stocare; utilizare până la următoarea căutare</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Dispozitivul nu are nici MAC, nici UUID: contul se folosește doar până la următoarea căutare</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Fișierul de conturi, %1, nu poate fi citit: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Fișierul de conturi este deteriorat și niciun cont din el nu se folosește: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Introduceți un nume de cel mult %1 caractere</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Introduceți un nume de utilizator de cel mult %1 caractere</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Introduceți o parolă de cel mult %1 caractere</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Există deja un cont cu numele „%1”</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Nu există niciun cont cu numele „%1”</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Fără spațiu: cel mult %1 conturi și %2 dispozitive</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispozitiv folosește contul implicit</numerusform>
            <numerusform>%n dispozitive folosesc contul implicit</numerusform>
            <numerusform>%n de dispozitive folosesc contul implicit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispozitiv folosește contul „%1”</numerusform>
            <numerusform>%n dispozitive folosesc contul „%1”</numerusform>
            <numerusform>%n de dispozitive folosesc contul „%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n dintre ele nu are nici MAC, nici UUID și îl folosește doar până la următoarea căutare</numerusform>
            <numerusform>; %n dintre ele nu au nici MAC, nici UUID și îl folosesc doar până la următoarea căutare</numerusform>
            <numerusform>; %n dintre ele nu au nici MAC, nici UUID și îl folosesc doar până la următoarea căutare</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Eliminați contul „%1”?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> La dispozitivul care îl folosește, autentificarea se va face apoi cu contul implicit.</numerusform>
            <numerusform> La cele %n dispozitive care îl folosesc, autentificarea se va face apoi cu contul implicit.</numerusform>
            <numerusform> La cele %n de dispozitive care îl folosesc, autentificarea se va face apoi cu contul implicit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Utilizare la %n dispozitiv</numerusform>
            <numerusform>Utilizare la %n dispozitive</numerusform>
            <numerusform>Utilizare la %n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Selectare cont</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Conturi</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Cont</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Dispozitive</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Adăugare</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Modificare</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Contul implicit se modifică în setările de căutare</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Pe fiecare dispozitiv se încearcă un singur cont: cel selectat pentru el sau, în lipsă, contul implicit. Alte conturi nu se încearcă niciodată.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Cont implicit</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Eliminare cont</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Eliminați %n cont pe care nu îl are niciun dispozitiv?</numerusform>
            <numerusform>Eliminați %n conturi pe care nu le are niciun dispozitiv?</numerusform>
            <numerusform>Eliminați %n de conturi pe care nu le are niciun dispozitiv?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Eliminare conturi nefolosite</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Conturi care nu sunt selectate pentru niciun dispozitiv</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Nefolosit</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Dispozitivele au refuzat acest cont. Selectați sau adăugați altul.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Utilizare la %n dispozitiv și reîncercare</numerusform>
            <numerusform>Utilizare la %n dispozitive și reîncercare</numerusform>
            <numerusform>Utilizare la %n de dispozitive și reîncercare</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Dispozitivele au refuzat contul %1. Selectați sau adăugați alt cont.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Introduceți ID-ul P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Introduceți o adresă IP validă</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Introduceți contul</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduceți parola</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Introduceți numărul portului</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>Portul trebuie să fie între 1 și 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Adăugare dispozitiv</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Adăugare la favorite</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>ID P2P</translation>
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
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Cel mult 50 de caractere</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Se adaugă…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Adăugat</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Notele nu au putut fi salvate. Verificați permisiunea de scriere în folderul programului.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Elementul favorit nu a putut fi eliminat. Verificați permisiunea de scriere în folderul programului.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Adăugare</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favorite</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favorit selectat</numerusform>
            <numerusform>favorite selectate</numerusform>
            <numerusform>de favorite selectate</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Căutare…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Faceți dublu clic pe un rând pentru a adăuga dispozitivul</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Golire filtre</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Adăugare dispozitiv</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Modificați sau goliți textul căutării.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Selectați „Adăugare la favorite” când adăugați un dispozitiv pentru a-l salva aici.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Niciun favorit nu corespunde căutării</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Încă nu există favorite</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Eliminați %1 din favorite?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Adăugare favorite</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Eliminare favorit</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Parola nu poate fi citită: faceți dublu clic pentru a o introduce</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Rândul %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Fără adresă MAC: omis</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Folosită de alt dispozitiv</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Atribuită de două ori</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Identică cu gateway-ul</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>În afara subrețelei</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Adresă de rețea sau de broadcast</translation>
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
        <translation>Lotul este în curs</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Dispozitivele așteaptă parola nouă</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Niciun dispozitiv eșuat sau neexecutat</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Această operație nu poate fi reîncercată aici</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Doar cel mai recent lot poate fi reîncercat</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Reîncercarea nu ajută la aceste dispozitive. Corectați mai întâi cauza, de exemplu contul.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI în lot</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Trimiteți această comandă la dispozitivul selectat:</numerusform>
            <numerusform>Trimiteți această comandă la cele %n dispozitive selectate:</numerusform>
            <numerusform>Trimiteți această comandă la cele %n de dispozitive selectate:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Loturi</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Reîncercare eșuate</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Execută din nou lotul pentru dispozitivele eșuate sau neexecutate</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Restaurare adrese</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Readuce dispozitivele modificate la adresele IP anterioare</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Readuceți %n dispozitiv la adresa IP anterioară?</numerusform>
            <numerusform>Readuceți %n dispozitive la adresele IP anterioare?</numerusform>
            <numerusform>Readuceți %n de dispozitive la adresele IP anterioare?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salvare rezultate</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Început</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Reușite / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Doar eșuate</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Include dispozitivele neexecutate</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitiv</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Încă nu există loturi</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Niciun dispozitiv eșuat</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Restaurare adrese IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Salvare toate</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Salvează rezultatele tuturor loturilor din listă într-un singur fișier</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Așteptați până se termină lotul curent</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Neinițializat: omis</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualizare în curs: omis</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflict de adrese: se poate modifica alt dispozitiv</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Folosită de alt dispozitiv</translation>
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
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n avertisment: vezi Observații</numerusform>
            <numerusform>%n avertismente: vezi Observații</numerusform>
            <numerusform>%n de avertismente: vezi Observații</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispozitiv este omis: vezi Observații</numerusform>
            <numerusform>%n dispozitive sunt omise: vezi Observații</numerusform>
            <numerusform>%n de dispozitive sunt omise: vezi Observații</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>se execută pe %n dispozitiv</numerusform>
            <numerusform>se execută pe %n dispozitive</numerusform>
            <numerusform>se execută pe %n de dispozitive</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n omis</numerusform>
            <numerusform>%n omise</numerusform>
            <numerusform>%n omise</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Notificare</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Ascundere listă</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Afișare %n dispozitiv</numerusform>
            <numerusform>Afișare %n dispozitive</numerusform>
            <numerusform>Afișare %n de dispozitive</numerusform>
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
        <translation>Nume și model</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Adresa veche</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Adresa nouă</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acțiune</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observații</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versiune</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fișier firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nume nou</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n reușit</numerusform>
            <numerusform>%n reușite</numerusform>
            <numerusform>%n reușite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n așteaptă parola nouă</numerusform>
            <numerusform>%n așteaptă parola nouă</numerusform>
            <numerusform>%n așteaptă parola nouă</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n eșuat</numerusform>
            <numerusform>%n eșuate</numerusform>
            <numerusform>%n eșuate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n neexecutat</numerusform>
            <numerusform>%n neexecutate</numerusform>
            <numerusform>%n neexecutate</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n omis</numerusform>
            <numerusform>%n omise</numerusform>
            <numerusform>%n omise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n în așteptare</numerusform>
            <numerusform>%n în așteptare</numerusform>
            <numerusform>%n în așteptare</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Parola veche este corectă</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitiv</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Limita de timp a fost depășită</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: omis</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Salvare rezultate</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Rezultatele au fost salvate în %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Rezultatele nu au putut fi salvate. Alegeți alt folder.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Loturi</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Continuare</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Există %n avertisment. Continuați?</numerusform>
            <numerusform>Există %n avertismente. Continuați?</numerusform>
            <numerusform>Există %n de avertismente. Continuați?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Avertismente</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Dispozitivele nu își pot schimba adresele între ele (precum %1 și %2) într-un singur pas. Dați mai întâi unuia dintre ele altă adresă.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1” este în curs. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Memorie sau fire de execuție insuficiente pentru pornire. Închideți alte programe și încercați din nou.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salvare rezultate</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canalul %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 este încă folosită de dispozitivul %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispozitiv nu a fost reîncercat: adresa sa s-a schimbat sau nu mai este în listă (%1)</numerusform>
            <numerusform>%n dispozitive nu au fost reîncercate: adresele lor s-au schimbat sau nu mai sunt în listă (precum %1)</numerusform>
            <numerusform>%n de dispozitive nu au fost reîncercate: adresele lor s-au schimbat sau nu mai sunt în listă (precum %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Actualizările sunt în curs. Căutați după ce se termină.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Actualizările sunt în curs. Închideți programul după ce se termină.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, „</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>„%1” este în curs. Căutați după ce se termină.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>„%1” este în curs. Eliminați dispozitive după ce se termină.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>„%1” este în curs. Modificați dispozitive după ce se termină.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>„%1” este în curs. Închideți programul după ce se termină.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>„%1” este în curs. Reporniți programul după ce se termină.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>O căutare este în curs. Opriți-o cu Esc sau așteptați până se termină.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Se execută comenzile altei foi de calcul. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Șablon lot CGI.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Se execută altă comandă CGI. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (trunchiat)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>parola contului implicit</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automat</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Prioritate câștig</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Prioritate obturator</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Lumină naturală</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Iluminat stradal</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Regiune personalizată</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Alb-negru</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infraroșu</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Lumină albă</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Inteligent</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Nu acum</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Încredere în selecție</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmarea certificatelor dispozitivelor</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Certificatele nu au putut fi salvate. Niciunul nu este de încredere.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 din %2 dispozitive selectate</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Aceste dispozitive folosesc certificate autosemnate pentru HTTPS. Nu s-a trimis nicio parolă. Comparați amprentele. După acordarea încrederii se acceptă doar această cheie.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Certificatul pentru %n dispozitiv s-a schimbat. Nu s-a trimis nicio parolă. Poate fi alt dispozitiv: selectați-l doar dacă știți motivul, de exemplu o resetare la setările din fabrică.</numerusform>
            <numerusform>Certificatele pentru %n dispozitive s-au schimbat. Nu s-a trimis nicio parolă. Pot fi alte dispozitive: selectați-le doar dacă știți motivul, de exemplu o resetare la setările din fabrică.</numerusform>
            <numerusform>Certificatele pentru %n de dispozitive s-au schimbat. Nu s-a trimis nicio parolă. Pot fi alte dispozitive: selectați-le doar dacă știți motivul, de exemplu o resetare la setările din fabrică.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stare</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC sau UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Valabil până la</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Amprentă</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Amprentă (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Amprentă de încredere</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Schimbat</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nou</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Fișierul de certificate, %1, nu poate fi citit: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Fișierul de certificate este deteriorat. Niciun certificat nu este de încredere. Confirmați-le din nou: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Nu există tunel către portul web al dispozitivului.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Netrimisă</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>Comandă CGI</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Eliminare din comenzile salvate</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Salvarea acestei comenzi</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>Antetul răspunsului este prea mare.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nume de utilizator sau parolă greșite. Verificați contul din setările de căutare.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Contul este blocat. Așteptați până îl deblochează dispozitivul.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Niciun răspuns de la dispozitiv.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Dispozitivul nu este inițializat.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Eroare necunoscută.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Dispozitivul a respins cererea</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>Răspunsul este prea mare.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Fișierul nu a putut fi scris: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Oprit.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>Partea primită a înregistrării se află în %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Dispozitivul se actualizează.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Certificatul dispozitivului nu este de încredere.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Certificatul dispozitivului s-a schimbat.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Gazda nu a fost găsită</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Dispozitivul a refuzat conexiunea. Verificați portul HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Dispozitivul nu poate fi contactat</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Dispozitivul nu a răspuns la timp</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Fără conexiune criptată. Verificați portul HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>Răspunsul dispozitivului nu este HTTP valid</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>Conexiunea s-a închis înainte de sfârșitul răspunsului</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Cererea a eșuat</translation>
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
        <translation>Numele de utilizator nu poate conține două puncte sau caractere de control.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Parola nu poate conține caractere nule.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Copiat</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Fișierul nu a putut fi scris: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Salvat în %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiere tot</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Salvează textul într-un fișier</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selectați un folder</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Trimiterea unei comenzi CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI în lot</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduceți o comandă.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Comanda trebuie să înceapă cu /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Oprit: %1 din %2 terminate</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Trimis la %n dispozitiv: acceptat</numerusform>
            <numerusform>Trimis la %n dispozitive: toate au acceptat</numerusform>
            <numerusform>Trimis la %n de dispozitive: toate au acceptat</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Dispozitivul a acceptat comanda și nu a returnat niciun rezultat.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Trimis la %n: %1 acceptate, %2 eșuate</numerusform>
            <numerusform>Trimis la %n: %1 acceptate, %2 eșuate</numerusform>
            <numerusform>Trimis la %n: %1 acceptate, %2 eșuate</numerusform>
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
        <translation>Comandă</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acțiuni</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Clic dreapta pentru a copia rezultatul</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Trimitere</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Trimite comanda la acest dispozitiv</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Afișare rezultat complet</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Dispozitivul se actualizează. Trimiteți comenzi după ce se termină.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notă</translation>
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
        <translation>Executare foaie</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Comenzile CGI din foaia de calcul vor fi trimise. Rezultatele se scriu în aceasta.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Șablonul nu a putut fi deschis.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Trimitere</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Se execută comenzile altei foi de calcul. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Citirea foii de calcul</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Rândul %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Fișierul s-a schimbat. Deschideți-l din nou.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Salvarea foii de calcul</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rândul %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Nesalvat</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Numele canalului %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nume neraportat</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Introduceți un nume</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mai lung de %1 octeți</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Respins de dispozitiv</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Niciun răspuns de la dispozitiv</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Modificat de dispozitiv</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Scurtare</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Scurtează numele la cât poate stoca dispozitivul</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Restaurează numele pe care îl are dispozitivul</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Dispozitivul se actualizează</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conexiune</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Octeți</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Conectat</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Neconectat</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nume de canal nesalvat</numerusform>
            <numerusform>%n nume de canal nesalvate</numerusform>
            <numerusform>%n de nume de canal nesalvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modificare nesalvată</numerusform>
            <numerusform>%n modificări nesalvate</numerusform>
            <numerusform>%n de modificări nesalvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Dispozitivul nu raportează numele pentru %n canal</numerusform>
            <numerusform>Dispozitivul nu raportează numele pentru %n canale</numerusform>
            <numerusform>Dispozitivul nu raportează numele pentru %n de canale</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Reîncărcare</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Dispozitivul se actualizează. Salvați după ce se termină.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Denumire după tipar</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Denumirea mai multor canale sau camere după un singur tipar</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Se citesc numele canalelor…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canalul %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nume de canal salvat</numerusform>
            <numerusform>%n nume de canal salvate</numerusform>
            <numerusform>%n de nume de canal salvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nume de canal nesalvat</numerusform>
            <numerusform>%n nume de canal nesalvate</numerusform>
            <numerusform>%n de nume de canal nesalvate</numerusform>
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
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Comandă CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Fișierul nu a putut fi deschis</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Formatul fișierului este greșit</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduceți o comandă.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Comanda trebuie să înceapă cu /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (trunchiat)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Copiat pe %n dispozitiv</numerusform>
            <numerusform>Copiat pe %n dispozitive</numerusform>
            <numerusform>Copiat pe %n de dispozitive</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n dispozitiv a acceptat doar o parte</numerusform>
            <numerusform>%n dispozitive au acceptat doar o parte</numerusform>
            <numerusform>%n de dispozitive au acceptat doar o parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispozitiv eșuat</numerusform>
            <numerusform>%n dispozitive eșuate</numerusform>
            <numerusform>%n de dispozitive eșuate</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispozitiv neexecutat</numerusform>
            <numerusform>%n dispozitive neexecutate</numerusform>
            <numerusform>%n de dispozitive neexecutate</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiere setări de codare</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Autentificare…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Configurația dispozitivului nu a putut fi citită</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Capabilitățile dispozitivului nu au putut fi citite</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Autentificat din nou. Modificările nesalvate s-au pierdut.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Afișare raport</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Programul s-a închis neașteptat. A fost scris un raport</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Raport de defecțiune</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 există deja. Îl înlocuiți?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportat în %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Fișierul %1 nu a putut fi scris</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Dispozitivul nu are pagină web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiat în clipboard</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 se află deja la favorite</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 a fost adăugat la favorite</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Favoritul nu poate fi salvat. Verificați dacă se poate scrie în folderul programului.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selectați un folder</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Înlocuire</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Înlocuire fișier</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Dispozitivul nu raportează nici adresă MAC, nici UUID și nu poate avea o notă</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Dispozitivul nu poate fi contactat prin P2P. Verificați ID-ul P2P și conexiunea la rețea.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflict de adrese IP</translation>
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
        <translation>%1 z %2 h</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>la fel ca acest computer</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>înainte cu %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>în urmă cu %1</translation>
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
        <translation>Identitate</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Număr de serie</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stare</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inițializat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Neinițializat</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versiune</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Rețea</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Adresă IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Adresă IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Adresă dispozitiv</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Mască de subrețea</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nume gazdă</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Găsit prin</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porturi</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Port local</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Port serviciu</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Port serviciu dispozitiv</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>Port HTTP</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>Port HTTPS</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>Port RTSP</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Conexiuni maxime</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Conectate</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Intrări de alarmă</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Stocare</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Hard diskuri</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Cont</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Adăugat prin</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manual (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Căutare</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manual (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>ID P2P</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>Port P2P</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiere tot</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Detalii dispozitiv</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Autentificare eșuată: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Autentificare pentru detalii</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Se autentifică la dispozitiv pentru a citi porturile, canalele și hard diskurile</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Salvează textul într-un fișier</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Căutare</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Nicio intrare nu corespunde căutării</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copierea acestei linii</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Fișierul bibliotecii de dispozitive %1 nu a putut fi citit</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Fișierul bibliotecii de dispozitive %1 conține o linie necunoscută: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] sau intrarea sa „file” lipsește din fișierul bibliotecii de dispozitive</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Funcția %2 din %1 lipsește din fișierul bibliotecii de dispozitive</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Funcție necunoscută %2 din %1 în fișierul bibliotecii de dispozitive</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Biblioteca de dispozitive %1 nu a putut fi încărcată: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>Biblioteca de dispozitive %1 nu exportă %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Linia %1 este prea lungă</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Linia %1 nu este codificată în UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Fișierul nu a putut fi deschis</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Fișierul este prea mare</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Mai multe câmpuri decât coloane</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un câmp este prea lung</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un câmp conține un caracter de control</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Mod de adăugare necunoscut</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Adresă de dispozitiv nevalidă</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Port de dispozitiv nevalid</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Lipsește numele de utilizator sau parola</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Liniile %1 și %2 au aceeași adresă MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Fișierul conține mai mult de %1 dispozitive</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Fișierul nu are rând de antet al unei liste de dispozitive</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Foaia de calcul nu a putut fi citită</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>Elementul rădăcină nu este deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Linia %1 nu este XML valid</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>Codificarea %1 nu este acceptată</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Foaia are mai mult de %1 rânduri</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Caracterul %1 nu poate fi recitit din acest format</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Conținutul listei criptate nu este valid</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Fișierul nu este o listă de dispozitive criptată sau este incomplet</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Această versiune a listelor criptate nu este acceptată</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Parametrii listei criptate nu sunt valizi</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>Lista este criptată: este necesară o frază de acces</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Frază de acces greșită sau fișier deteriorat</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Selectare doar același tip (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Selectare doar același model (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Deschidere pagină web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Deschidere vizualizare live</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copiere adresă</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copiere MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copiere rând</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Adăugare la favorite</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reîncercare</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Notă…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Selectare cont pentru %n dispozitiv selectat…</numerusform>
            <numerusform>Selectare cont pentru %n dispozitive selectate…</numerusform>
            <numerusform>Selectare cont pentru %n de dispozitive selectate…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selectare cont…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Fișierul cu note, %1, nu poate fi citit: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Fișierul cu note, %1, este deteriorat. Unele note se pot pierde. Va fi păstrat sub alt nume la salvarea următoarei note.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Dispozitivul nu raportează nici adresă MAC, nici UUID și nu poate avea o notă</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>O notă poate avea cel mult %1 caractere</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Se pot salva cel mult %1 note</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Nota nu poate fi salvată: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Altele</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>rețea locală</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>rețea locală (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Căutare dispozitive</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Niciun dispozitiv selectat</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Autentificat</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Autentificare eșuată: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Neautentificat</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Conexiune pierdută</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Actualizare în curs</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Negăsit</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>De confirmat</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inițializat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Neinițializat</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Negăsit la ultima căutare</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispozitiv din ultima listă, încă negăsit</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Găsit ultima dată: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>În fereastră se poate trage câte un singur fișier</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Acesta nu este un fișier de pe acest calculator</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Fișier neacceptat: %1. Trageți în fereastră o listă de dispozitive (.xlsx, .csv, .xml, .devlist) sau un fișier de locație (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Rată de biți personalizată</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Flux principal: format video</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Flux principal: profil video</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Flux principal: compresie audio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Flux principal: format audio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Flux secundar: format video</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Flux secundar: profil video</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Flux secundar: compresie audio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Flux secundar: format audio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (necitit, nescris)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Necopiat: %1</translation>
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
        <translation>compresia fluxului secundar</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compresia fluxului principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>rezoluția fluxului secundar</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>rezoluția fluxului principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>rata de biți a fluxului secundar</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>rata de biți a fluxului principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>controlul ratei de biți a fluxului secundar</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>controlul ratei de biți a fluxului principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>rata de cadre a fluxului secundar</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>rata de cadre a fluxului principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>sunetul fluxului secundar</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>sunetul fluxului principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Niciun răspuns de la dispozitiv</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Dispozitivul nu acceptă această operație</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Dispozitivul este ocupat</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Dispozitivul a respins cererea (eroarea %1)</translation>
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
        <translation>Configurația dispozitivului nu este validă. Unele valori pot lipsi.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Dispozitivul nu își raportează capabilitățile de codare. Unele valori pot lipsi.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Flux principal</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Flux secundar</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Setările de codare ale canalului %1 nu au putut fi citite</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modificare nesalvată</numerusform>
            <numerusform>%n modificări nesalvate</numerusform>
            <numerusform>%n de modificări nesalvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copiere pe %n dispozitiv</numerusform>
            <numerusform>Copiere pe %n dispozitive</numerusform>
            <numerusform>Copiere pe %n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copiere pe dispozitivele selectate</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Reîncărcare</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Conexiune pierdută</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Nesalvat: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Dispozitivul se actualizează. Salvați după ce se termină.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Conexiune pierdută. Apăsați Reîncărcare pentru a reîncerca.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1 sau canalul nu este conectat. Alegeți alt canal sau apăsați Reîncărcare.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Necitit: %1. Salvarea nu modifică aceste valori.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Tip flux</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Activare flux secundar</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activare</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compresie</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Rezoluție</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Control rată de biți</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Constantă (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variabilă (VBR)</translation>
    </message>
    <message>
        <source>码流值(Kb/S)</source>
        <translation>Rată de biți (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Rată de cadre (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Calitate</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Activare audio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Eșantionare (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Personalizat</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Se citesc setările de codare…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Se scrie rezoluția fluxului secundar…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Ambele fluxuri folosesc aceeași compresie: fluxul principal este acum %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Se salvează setările de codare…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvat</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Nesalvat</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Setările nu au putut fi citite: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Selectați formatul fișierului</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Parolele din fișier sunt în text simplu. Parolele conturilor stocate nu se exportă.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Fișierul nu conține parole. Completați-le înainte de import.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Întreaga listă este criptată cu fraza de acces și poate fi citită numai de acest program. Nu poate fi recuperată fără fraza de acces. Parolele conturilor stocate nu se exportă.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Listă completă</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Fără parole</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Criptată (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>Fraza de acces trebuie să aibă cel puțin %1 caractere</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frază de acces</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Cele două fraze de acces nu coincid</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repetați fraza de acces</translation>
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
        <translation>Negăsit la ultima căutare</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Editare note</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
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
        <translation>Tip</translation>
    </message>
    <message>
        <source>IP / P2P ID</source>
        <translation>IP / ID P2P</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acțiuni</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Elimină acest dispozitiv din favorite</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Închideți dialogul înainte de a trage un fișier în fereastră</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Eliberați pentru a importa o listă de dispozitive sau a deschide o locație</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Folosiți cel puțin două dintre cifre, litere și simboluri și niciun caracter nepermis.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduceți numele de utilizator</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduceți parola</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmați parola</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Parolele nu coincid</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Parola trebuie să aibă între 8 și 32 de caractere</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inițializare</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n dispozitiv de inițializat</numerusform>
            <numerusform>%n dispozitive de inițializat</numerusform>
            <numerusform>%n de dispozitive de inițializat</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Parolă nouă</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmare</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8–32 de caractere, cu cel puțin două dintre cifre, litere și simboluri (toate caracterele vizibile, cu excepția </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Apoi introduceți noua parolă și în setările de căutare.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>La reușită</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Dispozitivul nu a fost găsit la o căutare sau nu raportează nici adresă MAC, nici UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Așteptarea dispozitivului s-a oprit: este posibil ca adresa să se fi schimbat</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Limita de timp a fost depășită: este posibil ca adresa să se fi schimbat</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Mai multe dispozitive la rând au respins parola. Continuarea poate bloca conturi.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Se oprește…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Se preiau imaginile, %1 din %2 dispozitive</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n imagine</numerusform>
            <numerusform>%n imagini</numerusform>
            <numerusform>%n de imagini</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n eșuat</numerusform>
            <numerusform>%n eșuate</numerusform>
            <numerusform>%n eșuate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>Încă %n dispozitiv nu este afișat</numerusform>
            <numerusform>Încă %n dispozitive nu sunt afișate</numerusform>
            <numerusform>Încă %n de dispozitive nu sunt afișate</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuare</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Deschidere folder</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Preluare toate din nou</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1” este în curs. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Preluarea din nou a tuturor imaginilor (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Salvare toate</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Scrierea tuturor imaginilor în folderul instantaneelor (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Se preia…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>În așteptare</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Preluare din nou (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Eșuat</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Se preia</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Omis</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Imagini dispozitive</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 imagini salvate în %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 imagini salvate în %2, %3 nescrise: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispozitiv</numerusform>
            <numerusform>%n dispozitive</numerusform>
            <numerusform>%n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Folderul nu a putut fi deschis: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Selectați dispozitive în lista de dispozitive</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Niciun dispozitiv</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grup</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispozitiv</numerusform>
            <numerusform>%n dispozitive</numerusform>
            <numerusform>%n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Niciun grup</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Expunere</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antipâlpâire</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Mod de expunere</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Câștig</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Interval de câștig</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Câștig minim</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Câștig maxim</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensare</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Iris automat</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Reducere zgomot 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Contralumină</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Mod contralumină</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Toată imaginea</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Regiune personalizată</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Regiune de compensare</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gamă dinamică largă</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. lumini puternice</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balans de alb</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Câștig albastru</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Câștig roșu</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Preluare imagini</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canale, sunt afișate primele %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Salvare imagini</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Folderul %1 nu a putut fi creat</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Aceste setări nu au putut fi citite. Apăsați Reîncărcare pentru a reîncerca.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Lumină apropiată și îndepărtată</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Aproape</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Departe</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Comutare zi/noapte</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Scăzut</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mediu</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Ridicat</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensibilitate</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Întârziere comutare</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Iluminatoare</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Iluminator</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Luminozitate apropiată</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Luminozitate îndepărtată</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Corecție</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infraroșu și lumină albă</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Tip de lumină</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Întârziere (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Dispozitivul nu a trimis nicio imagine</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Nicio imagine de la %n canal</numerusform>
            <numerusform>Nicio imagine de la %n canale</numerusform>
            <numerusform>Nicio imagine de la %n de canale</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Imagine</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Expunere și balans de alb</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Zi/noapte și iluminatoare</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>Camera nu raportează astfel de setări.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Nicio setare</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Imagine</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Blând</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Viu</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminozitate</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturație</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Nuanță</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Claritate</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Oglindire și rotire</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Oglindire</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vedere normală</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Mod coridor 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Mod coridor 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Răsturnare</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotire</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilizare</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Stabilizare electronică</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Anticeață</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensitate</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>St</translation>
    </message>
    <message>
        <source>上</source>
        <translation>S</translation>
    </message>
    <message>
        <source>右</source>
        <translation>D</translation>
    </message>
    <message>
        <source>下</source>
        <translation>J</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Regiune (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Stânga nu poate fi mai mare decât dreapta</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Sus nu poate fi mai mare decât jos</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Obturator</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Interval personalizat</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Interval obturator (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Obturator minim</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Obturator maxim</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Minimul nu poate fi mai mare decât maximul</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Canalul %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Modificările se scriu imediat în dispozitiv.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Reîncărcare</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Valori implicite</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mai lung de %1 octeți</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Dispozitivul se actualizează. Modificați setările după ce se termină.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Se citesc setările imaginii…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Se scriu setările imaginii…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Niciun răspuns de la dispozitiv. Este posibil ca modificarea să nu se fi scris.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Nemodificat: %1. Se afișează valoarea dispozitivului.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Deja inițializat</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualizare în curs: omis</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Adresă MAC necunoscută: omis</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Inițializare</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inițializare</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selectați un dispozitiv neinițializat</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tip</translation>
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
        <translation>Versiune</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Sunt listate doar dispozitivele din acest LAN. Dispozitivele din alte LAN-uri nu pot fi inițializate.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>încă %n este omis, vezi Observații</numerusform>
            <numerusform>încă %n sunt omise, vezi Observații</numerusform>
            <numerusform>încă %n sunt omise, vezi Observații</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observații</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>Ultima listă de dispozitive %1 nu poate fi citită: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Numele unui grup poate avea cel mult %1 de caractere</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Dispozitivele P2P nu pot face parte dintr-un grup</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>O locație poate avea cel mult %1 de dispozitive</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Locația nu poate fi salvată: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>Lista de dispozitive nu poate fi salvată: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Locație nesalvată</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Locația anterioară nu poate fi salvată: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canale</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Neconectat</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Eliminare din vizualizare (Delete)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Canalul %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Autentificare…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reîncercare în %n s</numerusform>
            <numerusform>%1. Reîncercare în %n s</numerusform>
            <numerusform>%1. Reîncercare în %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Autentificare din nou</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reîncercare</translation>
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
        <translation>%1 KB în buffer</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 cadre omise</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Folderul nu a putut fi deschis: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantanee</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Dispozitivul nu mai este afișat</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vizualizare live</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurare</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizare</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispozitivul anterior (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispozitivul următor (PgDn)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>O vizualizare</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 vizualizări</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 vizualizări</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Canalele anterioare</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canalele următoare</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Fără sunet</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Cu sunet</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Păstrare raport de aspect</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Întindere pe ecran</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Ascundere informații flux</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Afișare informații flux</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Se face un instantaneu…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Instantaneu al canalului selectat</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Instantanee ale tuturor canalelor</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Ieșire din ecran complet</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Ecran complet</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1” este în curs. Așteptați până se termină.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Nu se mai pot adăuga dispozitive</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Selectați mai întâi în lista de dispozitive dispozitivele de adăugat</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Adăugarea canalelor dispozitivelor selectate în listă (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Adăugare dispozitive selectate (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Adăugare dispozitive selectate</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Instantanee ale tuturor canalelor de pe toate dispozitivele</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>Vizualizarea live s-a închis deoarece s-a făcut autentificarea la alt dispozitiv</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Autentificare din nou</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reîncercare</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Autentificare…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Niciun canal</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Autentificare eșuată</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reîncercare în %n s</numerusform>
            <numerusform>%1. Reîncercare în %n s</numerusform>
            <numerusform>%1. Reîncercare în %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Toate dispozitivele selectate sunt deja afișate</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Se pot adăuga cel mult %1 dispozitive. %2 nu au fost adăugate.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Niciun răspuns de la %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Ajutor</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Limbă</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Întrebări și răspunsuri</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Conturi</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Ca sistemul</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Luminos</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Întunecat</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Raportul locației (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modificare IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualizare dispozitiv</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configurare dispozitiv</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configurare sistem</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocol CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Locație demo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Locație demo: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Dispozitive simulate, fără rețea. Numele de utilizator și parola pentru autentificarea la dispozitive. Dispozitivele noi trebuie mai întâi inițializate.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Deschidere locație demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Nu este instalată nicio bibliotecă de dispozitive: dispozitivele nu pot fi contactate</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Se deschide %1 în programul PDF al sistemului</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>%1 nu poate fi deschis</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Editare</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Modifică adresa IP a acestui dispozitiv</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Afișează toate informațiile despre acest dispozitiv</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Deschide pagina web a acestui dispozitiv în browser</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Deschide vizualizarea live a acestui dispozitiv</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inițializați mai întâi dispozitivul</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Dispozitivul se actualizează. Modificați-i adresa după ce se termină.</translation>
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
        <translation>Dispozitivul a fost adăugat, dar nu a fost salvat la favorite. Verificați permisiunea de scriere în folderul programului.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispozitivul a fost adăugat și salvat la favorite</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispozitiv adăugat</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Adăugare dispozitiv</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selectați un dispozitiv neinițializat</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispozitiv eșuat: vezi Rezultat</numerusform>
            <numerusform>%n dispozitive eșuate: vezi Rezultat</numerusform>
            <numerusform>%n de dispozitive eșuate: vezi Rezultat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Dispozitivul se actualizează. Modificați-i adresa după ce se termină.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inițializare</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificare adrese IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adresă modificată pe %n dispozitiv</numerusform>
            <numerusform>Adrese modificate pe %n dispozitive</numerusform>
            <numerusform>Adrese modificate pe %n de dispozitive</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n dispozitiv inițializat</numerusform>
            <numerusform>%n dispozitive inițializate</numerusform>
            <numerusform>%n de dispozitive inițializate</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Oprit: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Eliminați %n dispozitiv din listă?</numerusform>
            <numerusform>Eliminați %n dispozitive din listă?</numerusform>
            <numerusform>Eliminați %n de dispozitive din listă?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispozitiv se actualizează și nu a fost eliminat</numerusform>
            <numerusform>%n dispozitive se actualizează și nu au fost eliminate</numerusform>
            <numerusform>%n de dispozitive se actualizează și nu au fost eliminate</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Eliminare dispozitive</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduceți o adresă IP validă</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Introduceți o mască de subrețea validă</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Introduceți o adresă de gateway validă</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modificare IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Ascundere previzualizare</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Previzualizare</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Afișează noua adresă a fiecărui dispozitiv</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP inițial</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Același IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Mască de subrețea</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Folosită de %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Aceasta este adresa de rețea sau de broadcast</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>Gateway-ul este în afara subrețelei</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Modificare oricum</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Aceasta este adresa gateway-ului</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Adresă IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Toate cele %1 dispozitive sunt ascunse de filtre</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Se caută dispozitive…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Niciun dispozitiv găsit</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nu este instalată nicio bibliotecă de dispozitive</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Modificați filtrele sau goliți textul căutării.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Dispozitivele apar aici pe măsură ce sunt găsite.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Verificați dacă dispozitivele sunt alimentate și conectate. Pentru dispozitive din alte rețele, adăugați intervalul lor în setările de căutare sau adăugați un dispozitiv după adresă.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Golire filtre</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Căutare din nou</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Nicio rețea nu este selectată în setările de căutare</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Selectați rețeaua locală sau alte rețele în setările de căutare.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Setări de căutare</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>De ce nu s-au găsit dispozitive?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Programul nu poate comunica cu dispozitivele: niciunul nu poate fi găsit sau modificat. Locația demo nu are nevoie de dispozitive și prezintă toate funcțiile.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Deschidere locație demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Căutat: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Adăugare dispozitiv după adresă</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Verificați cablurile și rețelele, apoi căutați din nou.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Se exportă dispozitivele…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 există deja. Îl înlocuiți?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispozitive exportate
Fișier: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Fișierul nu a putut fi scris. Verificați folderul și dacă fișierul este deschis în alt program.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selectați un folder</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Aceste valori nu pot fi recitite din fișier:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresă</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Coloană</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Rezultatul exportului</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Se citește lista de dispozitive…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Înlocuire</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Înlocuire fișier</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Grup…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Eliminare din locație</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Deschiderea unei liste de dispozitive</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Liste de dispozitive criptate (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importat: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>dispozitive</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Neimportat. Fișierul este deschis în alt program, are alt format sau conține o adresă MAC de două ori.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresă</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Rezultatul importului</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Căutare din nou</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Afișare motive</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Căutarea a fost oprită; lista este incompletă.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Nu s-a găsit niciun dispozitiv. Cele gri au fost găsite anterior.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispozitiv mai puțin decât la ultima căutare</numerusform>
            <numerusform>%n dispozitive mai puțin decât la ultima căutare</numerusform>
            <numerusform>%n de dispozitive mai puțin decât la ultima căutare</numerusform>
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
        <translation>Stare</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tip</translation>
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
        <translation>Versiune</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acțiuni</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notă</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nou</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Inițializare</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Setează prima parolă a dispozitivelor noi selectate</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modificare IP în lot</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Atribuie adrese consecutive dispozitivelor selectate</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Citește o listă de dispozitive dintr-o foaie de calcul</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Scrie dispozitivele selectate într-o foaie de calcul</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Adăugare manuală</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Adaugă dispozitive pe care o căutare nu le găsește: după adresa IP, după ID-ul P2P sau din favorite</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>Dispozitiv IP</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>Dispozitiv P2P</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favorite</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminare</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Elimină dispozitivele selectate din listă</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inițializat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Neinițializat</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Căutare…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispozitiv selectat se actualizează: adresa sa nu poate fi modificată</numerusform>
            <numerusform>%n dispozitive selectate se actualizează: adresele lor nu pot fi modificate</numerusform>
            <numerusform>%n de dispozitive selectate se actualizează: adresele lor nu pot fi modificate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispozitiv selectat se actualizează și nu poate fi eliminat</numerusform>
            <numerusform>%n dispozitive selectate se actualizează și nu pot fi eliminate</numerusform>
            <numerusform>%n de dispozitive selectate se actualizează și nu pot fi eliminate</numerusform>
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
        <translation>Imaginile dispozitivelor selectate (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Completare</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Trimitere</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Denumire după tipar</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Selectați ce trebuie denumit</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Numele pot fi editate în tabel. Salvare le scrie.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canal al acestui dispozitiv</numerusform>
            <numerusform>%n canale ale acestui dispozitiv</numerusform>
            <numerusform>%n de canale ale acestui dispozitiv</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n cameră selectată</numerusform>
            <numerusform>%n camere selectate</numerusform>
            <numerusform>%n de camere selectate</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Tipar: {n}, {model}, {ip4} (sfârșitul adresei)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Tipar</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Mai multe canale primesc același nume</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primul număr</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Cifre</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Denumește canalul 1 al fiecărei camere.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Canalul %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Introduceți un tipar</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Folosiți doar {n}, {model} și {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mai lung de %1 octeți</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Recorder: omis. Deschideți-l pentru a-i denumi canalele</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Salvare</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notă</translation>
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
        <translation>Închidere</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduceți o oră validă</translation>
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
        <translation>Anulare</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Afișează doar dispozitivele eșuate sau neexecutate, sortate după motiv. Pentru dispozitivele care nu mai sunt listate, vezi Loturi.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Golire</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimină marcajele dispozitivelor eșuate sau neexecutate</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Nerezolvate %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operație nerezolvată</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Toate operațiile</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>mai puțin de 1 min rămas</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>circa %n min rămas</numerusform>
            <numerusform>circa %n min rămase</numerusform>
            <numerusform>circa %n min rămase</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n eșuat</numerusform>
            <numerusform>%n eșuate</numerusform>
            <numerusform>%n eșuate</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuare</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Se oprește…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Oprire (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Reîncercare eșuate</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selectează doar dispozitivele de pe această pagină eșuate sau neexecutate</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salvare rezultate</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Loturi</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Se caută dispozitive…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 din %3 terminate</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, încă %n nerezolvat</numerusform>
            <numerusform>, încă %n nerezolvate</numerusform>
            <numerusform>, încă %n nerezolvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>parolă greșită pe %n dispozitiv la rând</numerusform>
            <numerusform>parolă greșită pe %n dispozitive la rând</numerusform>
            <numerusform>parolă greșită pe %n de dispozitive la rând</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>parolă greșită pe %n dispozitiv la rând (contul %1)</numerusform>
            <numerusform>parolă greșită pe %n dispozitive la rând (contul %1)</numerusform>
            <numerusform>parolă greșită pe %n de dispozitive la rând (contul %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Continuarea poate bloca conturi. Continuați?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>După oprire, selectați alt cont din meniul dispozitivelor, apoi reîncercați dispozitivele eșuate (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Reîncercare eșuate: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Execută din nou „%1” pentru dispozitivele eșuate sau neexecutate. Dispozitivele la care reîncercarea nu ajută, de exemplu după o parolă greșită cu același cont, sunt excluse.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Selectare nerezolvate</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selectare cont…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Selectați alt cont pentru dispozitivele care l-au refuzat pe acesta și pentru celelalte dispozitive care îl folosesc, apoi reîncercați-le</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Notificare</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Introduceți un număr</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Slabă</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mediu</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Puternică</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Puterea parolei</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Potrivire lățime coloane</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Resetare coloane</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Selectare totală</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Golire</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Ascundere parolă</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Afișare parolă</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>dispozitiv găsit</numerusform>
            <numerusform>dispozitive găsite</numerusform>
            <numerusform>de dispozitive găsite</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Căutare dispozitive</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Setări de căutare</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizare</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurare</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizare</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Restrângere</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Extindere</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nou</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Niciun canal</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canal neconectat</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Se conectează…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Flux întrerupt</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Reîncercare în %n s</numerusform>
            <numerusform>Reîncercare în %n s</numerusform>
            <numerusform>Reîncercare în %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Reîncercare acum</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 din p2p.ini lipsește sau nu este valid</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Serviciul P2P nu a putut fi pornit</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Selectați un dispozitiv.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI în lot</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Trimite o comandă la dispozitivele selectate</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Executare foaie</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Trimite comenzile dintr-o foaie de calcul și scrie rezultatele în ea</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Deschidere șablon</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Deschide șablonul pentru foile de calcul cu comenzi</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Căutare…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copiat</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Dispozitive eșuate</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>Comanda va fi trimisă la aceste dispozitive:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Trimitere</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Trimitere comandă</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Afișare rezultat complet</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copiere rezultat</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Renunțare</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n modificare nu este salvată și se va pierde.</numerusform>
            <numerusform>%n modificări nu sunt salvate și se vor pierde.</numerusform>
            <numerusform>%n de modificări nu sunt salvate și se vor pierde.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copiere</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Copiați setările de codare ale canalului %1 pe același canal al dispozitivului selectat?</numerusform>
            <numerusform>Copiați setările de codare ale canalului %1 pe același canal al celor %n dispozitive selectate?</numerusform>
            <numerusform>Copiați setările de codare ale canalului %1 pe același canal al celor %n de dispozitive selectate?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Sunt incluse și modificările nesalvate.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Se salvează numele canalelor…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc pentru oprire)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configurare dispozitiv</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Setările de codare ale canalului %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiere setări de codare</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Modificări nesalvate</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Salvare și ieșire</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Denumire după tipar</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configurarea acestui dispozitiv</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Nu există nicio cameră între dispozitivele selectate</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Setarea nu a putut fi salvată. Verificați permisiunea de scriere în folderul programului.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selectați un fișier firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizare</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Oprire actualizare</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflict de adrese IP: %n dispozitiv</numerusform>
            <numerusform>Conflict de adrese IP: %n dispozitive</numerusform>
            <numerusform>Conflict de adrese IP: %n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Conexiunea la dispozitivul P2P %1 s-a pierdut. Eliminați dispozitivul și adăugați-l din nou.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>Serviciul P2P este deconectat. Dispozitivele P2P nu pot fi contactate momentan.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificare adrese IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Imaginile dispozitivelor selectate</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Parola veche este corectă: se așteaptă cea nouă</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Modificare parolă</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Verificare parolă veche</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Repornire dispozitive</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Revenire la setările din fabrică</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispozitiv selectat</numerusform>
            <numerusform>%n dispozitive selectate</numerusform>
            <numerusform>%n de dispozitive selectate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Timpul a expirat: parola pentru %n dispozitiv nu a fost modificată</numerusform>
            <numerusform>Timpul a expirat: parolele pentru %n dispozitive nu au fost modificate</numerusform>
            <numerusform>Timpul a expirat: parolele pentru %n de dispozitive nu au fost modificate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>A fost pornită altă operație: parola pentru %n dispozitiv nu a fost modificată</numerusform>
            <numerusform>A fost pornită altă operație: parolele pentru %n dispozitive nu au fost modificate</numerusform>
            <numerusform>A fost pornită altă operație: parolele pentru %n de dispozitive nu au fost modificate</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Selectați mai întâi dispozitive în stânga</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1” este în curs. Așteptați până se termină.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Parola nu a fost modificată pe %n dispozitiv (%1); este marcat</numerusform>
            <numerusform>Parola nu a fost modificată pe %n dispozitive (%1); sunt marcate</numerusform>
            <numerusform>Parola nu a fost modificată pe %n de dispozitive (%1); sunt marcate</numerusform>
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
        <translation>Listă de dispozitive criptată</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frază de acces</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Notificare</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Programul rulează deja.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Introduceți contul</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduceți parola</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Autentificare din nou</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Autentificarea la %1 a eșuat. Introduceți numele de utilizator și parola.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Parolă greșită, %n dată</numerusform>
            <numerusform>Parolă greșită, de %n ori</numerusform>
            <numerusform>Parolă greșită, de %n de ori</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Răspunsul dispozitivului: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Dispozitivul nu raportează câte încercări au mai rămas. Alte parole greșite pot bloca contul.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Stocare drept contul acestui dispozitiv</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>După o autentificare reușită, la acest dispozitiv autentificarea se face mereu cu acest cont</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Și la dispozitivele următoare</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>După o autentificare reușită, toate dispozitivele fără cont propriu, inclusiv cele din loturi, se încearcă cu acesta în locul celui din setările de căutare, până la închiderea programului sau până la modificarea contului din setările de căutare</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>claritate</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>oglindire</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilizare</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>expunere</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>contralumină</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>balans de alb</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>mod zi/noapte</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>anticeață</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>iluminator</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>luminozitate</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturație</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>nuanță</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Neinițializat</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Adresă duplicată</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Autentificare refuzată</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Nu poate fi citit</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Ceas inexact</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware mai vechi</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Fără server de timp</translation>
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
        <translation>%1 z %2 h</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Exactă</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>înainte cu %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>în urmă cu %1</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; alt dispozitiv de acest model are %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Pornit</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nume canal</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Setări de codare</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Setări de imagine</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Setări de imagine: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Raportul locației</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalii</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Modificări la vizită</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitive</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresă</translation>
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
        <translation>Număr de serie</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Abatere de timp</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Abatere de timp (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Server de timp</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Flux principal</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Lățime (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Înălțime (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Imagine</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Acum</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operație</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Valoare nouă</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalator</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Neraportat</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Fără imagine</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Nicio anomalie.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Niciun dispozitiv nu a fost modificat de la pornirea programului.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Citite</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Cu anomalii</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Fișierul PDF nu poate fi creat</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Folderul %1 nu poate fi creat</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 nu poate fi scris: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>Modificări anterioare care nu apar în listă: %1.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>Alte canale: %1</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canalul %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificare adresă IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Setare oră</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Actualizare firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Server de timp și fus orar</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Ora de vară</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Întreținere automată</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Repornire</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Restaurare valori implicite</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Standard video</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Modificare parolă</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Folderul pentru fișiere temporare %1 nu poate fi folosit: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispozitive la rând au refuzat autentificarea</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Repornire</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Schimbarea limbii</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>Limba se schimbă la repornirea programului.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Mai târziu</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Comandă eșuată</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Reușit</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Necunoscut</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Contul nu există</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Parolă greșită</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Contul este blocat. Așteptați până îl deblochează dispozitivul.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Contul este deja folosit</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Niciun răspuns de la dispozitiv</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocol nepotrivit</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Dispozitivul nu este inițializat</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Dispozitivul nu acceptă această operație</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Dispozitivul este deja în listă</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Capabilitățile dispozitivului nu au putut fi citite</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Dispozitivul a respins cererea</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Eroare necunoscută %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Dispozitivul se actualizează</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Neexecutat</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Instantaneu eșuat</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Date nevalide</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Fișierul firmware nu poate fi folosit</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Neactualizat</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Actualizare neconfirmată</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Dispozitivul este ocupat. Reîncercați mai târziu.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>Sesiunea a expirat. Autentificați-vă din nou.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Dispozitivul nu acceptă această valoare</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificatul dispozitivului nu este de încredere</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Certificatul dispozitivului s-a schimbat</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Anulat</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Alt dispozitiv răspunde la această adresă</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Preluat de dispozitiv, neconfirmat</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copiere text</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Raport de căutare</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiat în clipboard</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interfață de rețea</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Acest computer nu are nicio interfață de rețea utilizabilă</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Verificați dacă o interfață este instalată și activată.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Căutare după adresă</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Adrese interogate</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Răspunsuri</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Nicio rută către %1 dintre aceste adrese</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Setați un gateway pentru interfață sau adăugați o adresă din aceeași rețea cu aceste adrese.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Niciun răspuns de la nicio adresă</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Verificați intervalul de adrese din setările de căutare și alimentarea dispozitivelor.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Alte rețele</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispozitive găsite în afara tuturor rețelelor acestui computer: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Înainte de autentificare, modificați adresele IP ale acestora sau adăugați interfeței o adresă din rețeaua lor.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adrese</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Cereri trimise</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Mesaje primite</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Dispozitive găsite</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Nefolosit</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>mesaje necitibile: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>mesaje de la alte dispozitive decât camere și recordere: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>mesaje fără adresă de serviciu: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>mesaje cu adresa de serviciu a altei gazde: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>mesaje ale dispozitivelor care părăsesc rețeaua: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>mesaje peste limită: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>Interfața este dezactivată</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Activați-o în setările de rețea ale sistemului de operare.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>Interfața nu este conectată</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Verificați cablul și switch-ul sau conectați-vă la o rețea wireless.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>Interfața nu are adresă IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Setați o adresă din rețeaua dispozitivelor sau activați DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>Interfața nu poate trimite multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Selectați alte rețele în setările de căutare pentru a căuta după adresă.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Sistemul de operare nu a trimis cererile: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Verificați firewallul acestui computer și setările interfeței.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Niciun răspuns primit</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Verificați dacă dispozitivele sunt alimentate și se află în aceeași rețea și dacă niciun firewall sau switch nu le filtrează răspunsurile. Puteți căuta și după adresă: vezi setările de căutare.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispozitive găsite, cu %2 mai puțin decât la ultima căutare.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispozitive găsite: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Niciun dispozitiv găsit.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>IP-ul inițial nu poate fi mai mare decât IP-ul final</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>Intervalul poate cuprinde 17 segmente</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduceți un IP inițial valid</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Introduceți un IP final valid</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Căutare</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Setări de căutare</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Căutare în rețeaua locală</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Căutare în alte rețele</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>IP inițial</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>IP final</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Cont implicit pentru autentificarea la dispozitive</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Autentificare la dispozitive în timpul căutării</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Citește modelul, versiunea și adresa MAC. Fiecare dispozitiv primește acest cont. După o parolă greșită, dispozitivul nu se mai încearcă.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>nu există niciun serviciu de chei</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>serviciul de chei este blocat</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>serviciul de chei nu răspunde</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Unele parole se află în serviciul de chei al desktopului și nu pot fi citite (%1). Introduceți-le din nou.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Serviciul de chei al desktopului nu poate fi folosit (%1). Parolele sunt salvate în fișiere.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Parola nu a putut fi salvată în serviciul de chei al desktopului (%1). Este salvată într-un fișier.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Parola nu a putut fi eliminată din serviciul de chei al desktopului (%1). Eliminați-o în managerul de chei al sistemului.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Locația demo nu a putut fi deschisă:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Fișierul nu este un fișier de locație sau este deteriorat</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Fișierul de locație provine dintr-o versiune mai nouă și nu poate fi citit</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Fișierul de locație conține peste %1 de dispozitive</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Numele din fișierul de locație nu este valid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispozitivul %1 din fișierul de locație: %2 nu este valid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Dispozitivul %1 din fișierul de locație este duplicat</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Fișierul nu a putut fi deschis</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Fișierul este prea mare</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Fișiere de locație (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Deschidere locație</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Locația „%1” este deschisă, cu %n dispozitiv</numerusform>
            <numerusform>Locația „%1” este deschisă, cu %n dispozitive</numerusform>
            <numerusform>Locația „%1” este deschisă, cu %n de dispozitive</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Locația %1 nu poate fi deschisă: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Locație</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Salvare locație ca</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Locația a fost salvată în %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Fișierul nu conține parole.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>O locație nouă elimină din listă dispozitivele cunoscute și grupurile. Modificările nesalvate se păstrează în locațiile recente.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nouă</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Locație nouă</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Locație</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Deschidere locație…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Salvare locație ca…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Locație nouă…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Introduceți numele locației</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selectați un folder</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Selectați cel puțin un fișier</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Nu există dispozitive în listă</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Creare raport</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Raportul locației</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Un raport este deja în curs de creare</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Numele locației</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalator</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Salvare în</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Alegere…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitive</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Toate (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Selectate (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Fișiere</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Programul se autentifică la fiecare dispozitiv, îi citește setările și preia o imagine. Raportul cuprinde modificările de la pornirea programului și nu conține parole.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>%1 nu poate fi deschis</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Deschidere PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Raportul locației</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Deschidere folder</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Raportul este gata</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selectați un folder</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Alt folder…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canal neconectat</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Instantaneu eșuat</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Instantaneu eșuat: fișierul nu a putut fi scris: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Se face un instantaneu…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>În așteptare</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Reîncercare</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reîncercare</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Închidere</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Deschidere folder</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantanee</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Se face instantaneul %1 din %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Se oprește…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n realizat</numerusform>
            <numerusform>%n realizate</numerusform>
            <numerusform>%n realizate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n eșuat</numerusform>
            <numerusform>%n eșuate</numerusform>
            <numerusform>%n eșuate</numerusform>
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
        <translation>Instantanee</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Neexecutat</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Dispozitivul nu mai este afișat</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Luna</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Ziua</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Săptămâna</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Ziua săpt.</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Ora de vară</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activare</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>După dată</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>După săptămână</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Început</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Sfârșit</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Aplicare oră de vară</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduceți o oră validă</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Selectare totală</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitive</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Căutare…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Golire căutare</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Căutare din nou</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Niciun dispozitiv cu acest nume, tip, model sau această adresă.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Dispozitivele apar aici pe măsură ce sunt găsite.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Sunt listate doar dispozitivele IPv4 inițializate.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Niciun dispozitiv găsit</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Se caută dispozitive…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Niciun dispozitiv de configurat</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nu este instalată nicio bibliotecă de dispozitive</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Afișare toate</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Programul nu poate comunica cu dispozitivele. Deschideți locația demo pe pagina „Modificare IP”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Golire marcaje</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimină marcajele dispozitivelor eșuate sau neexecutate</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>La toate dispozitivele din listă s-a făcut autentificarea.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispozitiv fără adresă (DHCP) nu este afișat</numerusform>
            <numerusform>%n dispozitive fără adresă (DHCP) nu sunt afișate</numerusform>
            <numerusform>%n de dispozitive fără adresă (DHCP) nu sunt afișate</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Dispozitivele eșuate sau neexecutate nu se află în acest arbore: nu sunt inițializate, nu au adresă IPv4 sau nu au fost regăsite. Vezi pagina „Modificare IP” și Loturi.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Ianuarie</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Februarie</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Martie</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>Aprilie</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Iunie</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Iulie</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>August</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Septembrie</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Octombrie</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Noiembrie</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Decembrie</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>A doua</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>A treia</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>A patra</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Ultima</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Duminică</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Luni</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Marți</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Miercuri</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Joi</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Vineri</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Sâmbătă</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Duminică</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Luni</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Marți</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Miercuri</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Joi</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Vineri</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Sâmbătă</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>În fiecare zi</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Niciun răspuns de la dispozitiv</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Ora nu a putut fi citită</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Niciun răspuns de la dispozitiv. Este posibil ca parola să se fi modificat.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fus orar</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Repornire</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Resetare din fabrică</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Standard video</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>%1 s rămase pentru introducerea parolei. Apoi parola veche trebuie verificată din nou.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>%1 s rămase pentru introducerea parolei</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispozitiv așteaptă parola nouă</numerusform>
            <numerusform>%n dispozitive așteaptă parola nouă</numerusform>
            <numerusform>%n de dispozitive așteaptă parola nouă</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>noua parolă introdusă a fost restaurată</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Verificați din nou parola veche. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Noua parolă introdusă se restaurează atunci.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Timpul a expirat: parola pentru %n dispozitiv nu a fost modificată. </numerusform>
            <numerusform>Timpul a expirat: parolele pentru %n dispozitive nu au fost modificate. </numerusform>
            <numerusform>Timpul a expirat: parolele pentru %n de dispozitive nu au fost modificate. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>Selecția s-a schimbat. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Folosiți cel puțin două dintre cifre, litere și simboluri și niciun caracter nepermis.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmați parola</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Parolele nu coincid</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Parola trebuie să aibă între 8 și 32 de caractere</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Introduceți parola veche</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Pasul 1: verificați parola veche</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Parolă veche</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Verificare</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Pasul 2: setați parola nouă</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Parolă nouă</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmare parolă</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8–32 de caractere, cu cel puțin două dintre cifre, litere și simboluri (toate caracterele vizibile, cu excepția &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Modificare parolă</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>La reușită</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Ora de vară activată</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Ora de vară dezactivată</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP oprit</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Repornire %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Reporniri regulate oprite</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Reporniți dispozitivul selectat?</numerusform>
            <numerusform>Reporniți cele %n dispozitive selectate?</numerusform>
            <numerusform>Reporniți cele %n de dispozitive selectate?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Repornire</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Resetați dispozitivul selectat la setările din fabrică?</numerusform>
            <numerusform>Resetați cele %n dispozitive selectate la setările din fabrică?</numerusform>
            <numerusform>Resetați cele %n de dispozitive selectate la setările din fabrică?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Aplicare</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>„%1” se va aplica acestor dispozitive:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Intervalul de actualizare este de 0 minute: este posibil ca dispozitivul să nu-și mai actualizeze ora. Îl aplicați dispozitivului selectat?</numerusform>
            <numerusform>Intervalul de actualizare este de 0 minute: este posibil ca dispozitivele să nu-și mai actualizeze ora. Îl aplicați celor %n dispozitive selectate?</numerusform>
            <numerusform>Intervalul de actualizare este de 0 minute: este posibil ca dispozitivele să nu-și mai actualizeze ora. Îl aplicați celor %n de dispozitive selectate?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Aplicare oricum</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Întreținere automată</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Repornire regulată</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Repornire la</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Ziua repornirii</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicare</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Repornire acum</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>În timpul repornirii, un dispozitiv nu poate fi contactat și nu înregistrează.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Repornire dispozitive</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispozitiv selectat se actualizează și nu poate fi repornit</numerusform>
            <numerusform>%n dispozitive selectate se actualizează și nu pot fi repornite</numerusform>
            <numerusform>%n de dispozitive selectate se actualizează și nu pot fi repornite</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Revenire la setările din fabrică</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Șterge toate setările, conturile și parolele dispozitivelor. Operația nu poate fi anulată. Dispozitivele trebuie inițializate din nou.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispozitiv selectat se actualizează și nu poate fi resetat</numerusform>
            <numerusform>%n dispozitive selectate se actualizează și nu pot fi resetate</numerusform>
            <numerusform>%n de dispozitive selectate se actualizează și nu pot fi resetate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Ora computerului</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Setare la ora computerului</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Setează fiecare dispozitiv la ora la care primește cererea</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Folosire oră curentă</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicare</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Ora dispozitivului</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Citire ore dispozitive</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispozitiv</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Toate</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Neautentificate %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Afișează doar dispozitivele fără autentificare până acum sau a căror ultimă autentificare a eșuat</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Nerezolvate %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Afișează doar dispozitivele eșuate sau neexecutate, sortate după motiv.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> Încă %n nu este în această listă: vezi Loturi.</numerusform>
            <numerusform> Încă %n nu sunt în această listă: vezi Loturi.</numerusform>
            <numerusform> Încă %n nu sunt în această listă: vezi Loturi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Standard video</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL este pentru regiuni cu rețea electrică de 50 Hz, NTSC pentru 60 Hz. Unele dispozitive repornesc după modificare.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicare</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Dispozitivele nu oferă această funcție</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Introduceți serverul NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Fus orar și NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fus orar</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Activare NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Server NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>Adresă IP sau nume gazdă</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Port NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Interval (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Aplicare fus orar și NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Dispozitivele nu oferă %1, fusul orar al acestui computer. Selectați un fus orar.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Introduceți o adresă IP sau un nume de gazdă valid</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Adresa IP a dispozitivului sau „adresă:port web” dacă portul web nu este 80. Obligatoriu.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Portul de autentificare al dispozitivului. Folosit doar pentru verificarea contului.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Numele de utilizator al dispozitivului, fără două puncte.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Parola dispozitivului. Eliminați-o apoi din fișier.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Comandă care începe cu „/”. Dispozitivul primește de două ori o comandă acceptată. Obligatoriu.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Protocol</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 pentru HTTP, alte numere întregi pentru HTTPS. HTTP dacă este gol.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Completat de program: răspunsul, calea imaginii sau a înregistrării ori „Error:” și motivul.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Comenzi</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucțiuni</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Coloană</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Semnificație</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Păstrați rândul de antet. Înlocuiți rândul exemplu cu rândurile proprii.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Rândurile fără adresă și comandă sunt omise.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Nu deschideți acest fișier în alt program în timpul execuției.</translation>
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
            <numerusform>%n dispozitiv nu poate fi actualizat cu acest fișier: vezi Rezultat</numerusform>
            <numerusform>%n dispozitive nu pot fi actualizate cu acest fișier: vezi Rezultat</numerusform>
            <numerusform>%n de dispozitive nu pot fi actualizate cu acest fișier: vezi Rezultat</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Rândul %1: %2</translation>
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
        <translation>Nume utilizator</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fișier firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Fișierul nu a putut fi deschis</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Formatul fișierului este greșit</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Rezultatele nu au putut fi salvate: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Rezultatele au fost salvate în %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Fișierul nu a putut fi scris. Este doar în citire sau deschis în alt program. Rezultatele au fost salvate în %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>Foaia de calcul are mai mult de %1 dispozitive. Împărțiți-o.</translation>
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
        <translation>%1: %2 actualizate, %3 eșuate. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>Foaia de calcul nu conține dispozitive</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: omis</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Dispozitivul are deja această versiune</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Citirea foii de calcul</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Pornire actualizare</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualizare dispozitiv</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizare din foaie de calcul</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n dispozitiv va fi actualizat. Va reporni. Nu îl opriți.</numerusform>
            <numerusform>%n dispozitive vor fi actualizate. Vor reporni. Nu le opriți.</numerusform>
            <numerusform>%n de dispozitive vor fi actualizate. Vor reporni. Nu le opriți.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Rezultatele se scriu în foaia de calcul.</translation>
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
        <translation>Actualizare: %1 din %2 terminate</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n reușit</numerusform>
            <numerusform>%n reușite</numerusform>
            <numerusform>%n reușite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n eșuat</numerusform>
            <numerusform>%n eșuate</numerusform>
            <numerusform>%n eșuate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>În așteptare</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Autentificare</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Trimitere</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Scriere</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Repornire</translation>
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
        <translation>IP:port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versiune</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progres</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acțiuni</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Neselectat</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>O reîncercare poate ajuta</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corectați fișierul, contul sau dispozitivul, apoi actualizați din nou</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selectare fișier</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizare</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Scrierea a început: nu poate fi oprită</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notă</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>Adresa IP a dispozitivului. Obligatoriu.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Portul de autentificare al dispozitivului. 37777 dacă este gol.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Numele de utilizator al dispozitivului. Dacă acesta și parola sunt goale, se folosește contul programului.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Parola dispozitivului. Eliminați-o apoi din fișier.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Calea fișierului firmware, absolută sau relativă la folderul acestei foi de calcul. Obligatoriu.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Rezultat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Completat de program: versiunile dinainte și de după actualizare sau motivul eșecului.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizare</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucțiuni</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Coloană</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Semnificație</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Păstrați rândul de antet. Înlocuiți rândul exemplu cu rândurile proprii.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Rândurile fără adresă și fișier firmware sunt omise.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Nu deschideți acest fișier în alt program în timpul actualizării.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Scrierea a început: nu poate fi oprită</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 la %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Încă neoprit: se reîncearcă</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware scris, dispozitivul repornește: nu poate fi oprit</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Actualizat: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: nicio versiune raportată</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: acum %2, versiunea anterioară necunoscută</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Pornire actualizare</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Actualizează dispozitivele selectate</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selectare fișier</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selectează un fișier firmware pentru dispozitivele selectate</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Reîncercare eșuate</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Actualizează din nou dispozitivele la care o reîncercare poate ajuta, de exemplu cele care nu au răspuns</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizare din foaie de calcul</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Actualizează dispozitivele dintr-o foaie de calcul și scrie rezultatele în ea</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Deschidere șablon</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Deschide șablonul pentru foile de calcul de actualizare</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Căutare…</translation>
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
        <translation>Dispozitive simultan</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispozitive actualizate simultan</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Se așteaptă repornirea dispozitivului</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Se scrie: nu opriți dispozitivul</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Se trimite fișierul</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Autentificare</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>În așteptare</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Actualizat</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Niciun fișier firmware selectat</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Fișierul firmware nu există</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Fișierul firmware nu a putut fi citit</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Fișierul firmware este gol</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Fișierul firmware este prea mare</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Fișierul firmware este deteriorat</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Firmware-ul este pentru alte modele</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware respins de dispozitiv</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Parolă greșită</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Contul nu există</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Contul este blocat</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Dispozitivul nu este inițializat</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Actualizare neacceptată sau dispozitiv neinițializat</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Adresă IP sau port nevalid</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Același dispozitiv ca într-un rând anterior</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Niciun răspuns de la dispozitiv</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Dispozitivul este ocupat. Reîncercați mai târziu.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Întrerupt de dispozitiv</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Niciun progres de prea mult timp</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Niciun răspuns după repornire</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Versiune neschimbată după repornire</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Oprit: dispozitiv nemodificat</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Întrerupt: programul a fost închis</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Eroare necunoscută %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Șablon actualizare în lot.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Repornit, dar versiunea nu a putut fi citită</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificatul nu este de încredere</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Certificatul s-a schimbat</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Dispozitivul nu mai este în listă</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selectați un fișier firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fișier firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Toate fișierele</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Niciun dispozitiv de reîncercat</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispozitiv nu a fost actualizat: vezi Rezultat</numerusform>
            <numerusform>%n dispozitive nu au fost actualizate: vezi Rezultat</numerusform>
            <numerusform>%n de dispozitive nu au fost actualizate: vezi Rezultat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n dispozitiv actualizat</numerusform>
            <numerusform>%n dispozitive actualizate</numerusform>
            <numerusform>%n de dispozitive actualizate</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Deschidere</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Șablonul nu a putut fi deschis.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualizare dispozitiv</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizare din foaie de calcul</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Oprit: %1 actualizate, %2 eșuate, %3 neexecutate</translation>
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
        <translation>Detecția mișcării</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarmă</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Zi</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Noapte</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Compensare contralumină</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gamă dinamică largă</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Compensare lumini puternice</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codare</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Imagine</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Autentificare din nou</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reîncercare</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Faceți clic pe un dispozitiv din stânga pentru a vă autentifica și a-i modifica setările.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Selectați un dispozitiv</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Autentificare eșuată</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continuare aici</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Autentificarea este posibilă la un singur dispozitiv odată. Continuarea închide vizualizarea live a celuilalt dispozitiv.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>Vizualizarea live a altui dispozitiv este deschisă</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Conexiune pierdută</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nume canale</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>Configurația dispozitivelor se afișează și se modifică aici după ce o căutare a găsit dispozitive.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Niciun dispozitiv</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Denumire după tipar</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Faceți clic pe un dispozitiv din stânga pentru a modifica aici numele canalelor sale sau denumiți împreună camerele selectate.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Nicio imagine: fișierele din folderul Shaders lipsesc sau sunt deteriorate</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Nicio imagine: prea mare pentru placa grafică</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Redare eșuată</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Redare eșuată: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Conexiunea la dispozitiv s-a pierdut</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Dispozitivul a încheiat fluxul</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Dispozitivul nu trimite semnal video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Dispozitivul nu mai acceptă autentificarea</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Dispozitivul nu trimite un flux video</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Acest computer nu poate decoda fluxul</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Canalul %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>Certificatul dispozitivului s-a schimbat. Pagina web nu a fost deschisă. Nu introduceți nicio parolă pe acest dispozitiv.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Certificatul dispozitivului nu este confirmat. Pagina web nu a fost deschisă.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Browserul nu a putut fi deschis. Pagina web a dispozitivului: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Setările nu au putut fi salvate. Verificați permisiunea de scriere în folderul programului.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Oprire și ieșire</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Dispozitivele care scriu firmware termină singure: nu le opriți.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificat este acum de încredere. Reîncercați.</numerusform>
            <numerusform>%n certificate sunt acum de încredere. Reîncercați.</numerusform>
            <numerusform>%n de certificate sunt acum de încredere. Reîncercați.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Ieșire din program</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Contul nu poate fi stocat și se folosește doar până la următoarea căutare: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>„%1” este în curs. Dacă ieșiți, celelalte dispozitive nu vor fi modificate.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Raportul a fost oprit; nu a fost scris niciun fișier</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Au răspuns mai mult de %1 dispozitive. Alte %2 răspunsuri nu sunt listate. Căutați într-un interval mai mic.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Oprit: %1 rânduri reușite, %2 eșuate, %3 netrimise.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Terminat: %1 rânduri reușite, %2 eșuate.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Rezultatele nu au putut fi salvate: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Rezultatele au fost salvate în %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Fișierul nu a putut fi scris. Este doar în citire sau deschis în alt program. Rezultatele au fost salvate în %1</translation>
    </message>
</context>
</TS>
