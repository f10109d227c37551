<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ca_CA" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copia el número de versió</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>S’ha copiat al porta-retalls</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Llicències de tercers</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Afegeix compte</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Canvia el compte</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduïu un nom</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Per exemple: Edifici 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduïu el nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduïu la contrasenya</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Deixeu-ho buit per conservar-la</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Desa el compte amb què el programa inicia la sessió. Les contrasenyes dels dispositius no canvien.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>El compte no es pot desar i només s’usarà fins a la pròxima cerca: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>El compte nou és ara el compte predeterminat</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>El compte nou s’ha desat i a partir d’ara s’usarà per a aquest dispositiu</numerusform>
            <numerusform>El compte nou s’ha desat i a partir d’ara s’usarà per a aquests %n dispositius</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Desa per a aquests dispositius (recomanat)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Fes-lo el compte predeterminat de tots els dispositius</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>No el desis; usa’l fins a la pròxima cerca</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>El dispositiu no té ni MAC ni UUID: el compte només s’usarà fins a la pròxima cerca</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>No es pot llegir el fitxer de comptes, %1: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>El fitxer de comptes està malmès i no se n’usa cap compte: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Introduïu un nom de fins a %1 caràcters</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Introduïu un nom d’usuari de fins a %1 caràcters</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Introduïu una contrasenya de fins a %1 caràcters</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Ja hi ha un compte anomenat «%1»</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>No hi ha cap compte anomenat «%1»</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>No hi ha espai: com a màxim %1 comptes i %2 dispositius</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispositiu usa el compte predeterminat</numerusform>
            <numerusform>%n dispositius usen el compte predeterminat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispositiu usa el compte «%1»</numerusform>
            <numerusform>%n dispositius usen el compte «%1»</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n no té ni MAC ni UUID i només l’usa fins a la pròxima cerca</numerusform>
            <numerusform>; %n no tenen ni MAC ni UUID i només l’usen fins a la pròxima cerca</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Voleu eliminar el compte «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> A partir de llavors, la sessió al dispositiu que l’usa s’iniciarà amb el compte predeterminat.</numerusform>
            <numerusform> A partir de llavors, la sessió als %n dispositius que l’usen s’iniciarà amb el compte predeterminat.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Usa per a %n dispositiu</numerusform>
            <numerusform>Usa per a %n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Selecciona compte</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Dispositius</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Afegeix</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Canvia</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>El compte predeterminat es canvia a la configuració de cerca</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Cada dispositiu es prova amb un sol compte: el que s’hi ha seleccionat o, si no, el predeterminat. No es proven mai altres comptes.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Compte predeterminat</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Elimina el compte</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Voleu eliminar %n compte que no té cap dispositiu?</numerusform>
            <numerusform>Voleu eliminar %n comptes que no té cap dispositiu?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Elimina els comptes no usats</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Comptes que no estan seleccionats per a cap dispositiu</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>No usat</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Els dispositius han rebutjat aquest compte. Seleccioneu o afegiu-ne un altre.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Usa per a %n dispositiu i reintenta</numerusform>
            <numerusform>Usa per a %n dispositius i reintenta</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Els dispositius han rebutjat el compte %1. Seleccioneu o afegiu-ne un altre.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Introduïu l’ID P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Introduïu una adreça IP vàlida</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Introduïu el compte</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduïu la contrasenya</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Introduïu el número de port</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>El port ha de ser entre 1 i 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Afegeix dispositiu</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Afegeix als preferits</translation>
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
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Fins a 50 caràcters</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>S’està afegint…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Afegit</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No s’han pogut desar les notes. Comproveu que podeu escriure a la carpeta del programa.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>No s’ha pogut eliminar el preferit. Comproveu que podeu escriure a la carpeta del programa.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Afegeix</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Preferits</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>preferit seleccionat</numerusform>
            <numerusform>preferits seleccionats</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Feu doble clic en una fila per afegir el dispositiu</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Neteja els filtres</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Afegeix dispositiu</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Canvieu o esborreu el text de cerca.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Seleccioneu «Afegeix als preferits» en afegir un dispositiu per desar-lo aquí.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Cap preferit no coincideix amb la cerca</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Encara no hi ha preferits</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Voleu eliminar %1 dels preferits?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Afegeix preferits</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Elimina el preferit</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>No es pot llegir la contrasenya: feu doble clic per introduir-la</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Fila %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Sense adreça MAC: s’omet</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>L’usa un altre dispositiu</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Assignada dues vegades</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Igual que la passarel·la</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Fora de la subxarxa</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Adreça de xarxa o de difusió</translation>
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
        <translation>El lot s’està executant</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Hi ha dispositius que esperen la contrasenya nova</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Cap dispositiu ha fallat ni ha quedat sense executar</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Aquesta operació no es pot reintentar aquí</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Només es pot reintentar el lot més recent</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Reintentar no serveix per a aquests dispositius. Corregiu primer el motiu, per exemple el compte.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI per lots</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Envia aquesta ordre al dispositiu seleccionat:</numerusform>
            <numerusform>Envia aquesta ordre als %n dispositius seleccionats:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lots</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Reintenta els fallits</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Torna a executar el lot per als dispositius que han fallat o no s’han executat</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Restaura les adreces</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Torna els dispositius canviats a les adreces IP anteriors</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Voleu tornar %n dispositiu a l’adreça IP anterior?</numerusform>
            <numerusform>Voleu tornar %n dispositius a les adreces IP anteriors?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Desa els resultats</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inici</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Correctes / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Només fallits</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inclou els dispositius no executats</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositiu</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Encara no hi ha lots</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Cap dispositiu ha fallat</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Restaura les adreces IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Desa-ho tot</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Desa els resultats de tots els lots de la llista en un fitxer</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Espereu que acabi el lot actual</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>No inicialitzat: s’omet</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualització en curs: s’omet</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflicte d’adreces: es podria canviar un altre dispositiu</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>L’usa un altre dispositiu</translation>
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
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n advertiment: vegeu Observacions</numerusform>
            <numerusform>%n advertiments: vegeu Observacions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispositiu s’omet: vegeu Observacions</numerusform>
            <numerusform>%n dispositius s’ometen: vegeu Observacions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>s’executa en %n dispositiu</numerusform>
            <numerusform>s’executa en %n dispositius</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n omès</numerusform>
            <numerusform>%n omesos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Avís</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Amaga la llista</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Mostra %n dispositiu</numerusform>
            <numerusform>Mostra %n dispositius</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Nom i model</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Adreça antiga</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Adreça nova</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acció</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observacions</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versió</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fitxer de firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nom nou</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n correcte</numerusform>
            <numerusform>%n correctes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n espera la contrasenya nova</numerusform>
            <numerusform>%n esperen la contrasenya nova</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n fallit</numerusform>
            <numerusform>%n fallits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n no executat</numerusform>
            <numerusform>%n no executats</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n omès</numerusform>
            <numerusform>%n omesos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n en espera</numerusform>
            <numerusform>%n en espera</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>La contrasenya antiga és correcta</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositiu</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>S’ha superat el límit de temps</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: s’omet</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Desa els resultats</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultats desats a %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>No s’han pogut desar els resultats. Trieu una altra carpeta.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lots</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Hi ha %n advertiment. Voleu continuar?</numerusform>
            <numerusform>Hi ha %n advertiments. Voleu continuar?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Advertiments</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Els dispositius no es poden intercanviar les adreces (com ara %1 i %2) en un sol pas. Doneu primer una altra adreça a un d’ells.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» s’està executant. Espereu que acabi.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>No hi ha prou memòria o fils per començar. Tanqueu altres programes i torneu-ho a provar.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Desa els resultats</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>El dispositiu %2 encara usa %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispositiu no s’ha reintentat: la seva adreça ha canviat o ja no és a la llista (%1)</numerusform>
            <numerusform>%n dispositius no s’han reintentat: les seves adreces han canviat o ja no són a la llista (com ara %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Hi ha actualitzacions en curs. Cerqueu quan hagin acabat.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Hi ha actualitzacions en curs. Tanqueu el programa quan hagin acabat.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>», «</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>«%1» s’està executant. Cerqueu quan hagi acabat.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>«%1» s’està executant. Elimineu dispositius quan hagi acabat.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>«%1» s’està executant. Canvieu dispositius quan hagi acabat.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>«%1» s’està executant. Tanqueu el programa quan hagi acabat.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>«%1» s’està executant. Reinicieu el programa quan hagi acabat.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Hi ha una cerca en curs. Atureu-la amb Esc o espereu que acabi.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>S’estan executant les ordres d’un altre full de càlcul. Espereu que acabin.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Plantilla de lots CGI.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>S’està executant una altra ordre CGI. Espereu que acabi.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncat)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>contrasenya del compte predeterminat</translation>
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
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Prioritat del guany</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Prioritat de l’obturador</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Llum natural</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Fanal</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Regió a mida</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Blanc i negre</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivat</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarojos</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Llum blanca</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Intel·ligent</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Ara no</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Confia en la selecció</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmació de certificats de dispositius</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>No s’han pogut desar els certificats. No es confia en cap.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 de %2 dispositius seleccionats</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Aquests dispositius usen certificats autosignats per a HTTPS. No s’ha enviat cap contrasenya. Compareu les empremtes. Un cop hi confieu, només s’acceptarà aquesta clau.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>El certificat de %n dispositiu ha canviat. No s’ha enviat cap contrasenya. Podria ser un altre dispositiu: seleccioneu-lo només si en sabeu el motiu, com ara un restabliment de fàbrica.</numerusform>
            <numerusform>Els certificats de %n dispositius han canviat. No s’ha enviat cap contrasenya. Podrien ser altres dispositius: seleccioneu-los només si en sabeu el motiu, com ara un restabliment de fàbrica.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estat</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC o UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Vàlid fins al</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Empremta</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Empremta (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Empremta de confiança</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Canviat</translation>
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
        <translation>No es pot llegir el fitxer de certificats, %1: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>El fitxer de certificats està malmès. No es confia en cap certificat. Torneu-los a confirmar: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>No hi ha cap túnel al port web del dispositiu.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No enviada</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>Ordre CGI</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Elimina de les ordres desades</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Desa aquesta ordre</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>La capçalera de la resposta és massa gran.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nom d’usuari o contrasenya incorrectes. Comproveu el compte a la configuració de cerca.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>El compte està blocat. Espereu que el dispositiu el desbloqui.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>El dispositiu no respon.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>El dispositiu no està inicialitzat.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Error desconegut.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>El dispositiu ha rebutjat la sol·licitud</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>La resposta és massa gran.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>No s’ha pogut escriure el fitxer: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Aturat.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>La part rebuda de la gravació és a %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>El dispositiu s’està actualitzant.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>El certificat del dispositiu no és de confiança.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>El certificat del dispositiu ha canviat.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>No s’ha trobat l’amfitrió</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>El dispositiu ha rebutjat la connexió. Comproveu el port HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>No es pot accedir al dispositiu</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>El dispositiu no ha respost a temps</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Sense connexió xifrada. Comproveu el port HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>La resposta del dispositiu no és HTTP vàlid</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>La connexió s’ha tancat abans del final de la resposta</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>La sol·licitud ha fallat</translation>
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
        <translation>Un nom d’usuari no pot contenir dos punts ni caràcters de control.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Una contrasenya no pot contenir caràcters nuls.</translation>
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
        <translation>No s’ha pogut escriure el fitxer: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Desat a %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copia-ho tot</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Desa</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Desa el text en un fitxer</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccioneu una carpeta</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Enviament d’una ordre CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI per lots</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduïu una ordre.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>L’ordre ha de començar per /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Aturat: %1 de %2 fets</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Enviada a %n dispositiu: acceptada</numerusform>
            <numerusform>Enviada a %n dispositius: tots l’han acceptada</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>El dispositiu ha acceptat l’ordre i no ha retornat cap resultat.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Enviada a %n: %1 acceptades, %2 fallides</numerusform>
            <numerusform>Enviada a %n: %1 acceptades, %2 fallides</numerusform>
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
        <translation>Ordre</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accions</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Feu clic amb el botó dret per copiar el resultat</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Envia</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Envia l’ordre a aquest dispositiu</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Mostra el resultat complet</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>El dispositiu s’està actualitzant. Envieu ordres quan hagi acabat.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Executa el full</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Obre</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>S’enviaran les ordres CGI del full de càlcul. Els resultats s’hi escriuran.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>No s’ha pogut obrir la plantilla.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envia</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>S’estan executant les ordres d’un altre full de càlcul. Espereu que acabin.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Lectura del full de càlcul</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>El fitxer ha canviat. Torneu-lo a obrir.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Desament del full de càlcul</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Fila %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>No desat</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nom del canal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nom no comunicat</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Introduïu un nom</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera els %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rebutjat pel dispositiu</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>El dispositiu no respon</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Canviat pel dispositiu</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Escurça</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Desfés</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Escurça el nom al que el dispositiu pot emmagatzemar</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Restaura el nom que té el dispositiu</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>El dispositiu s’està actualitzant</translation>
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
        <translation>Connexió</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connectat</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>No connectat</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nom de canal no desat</numerusform>
            <numerusform>%n noms de canal no desats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n canvi no desat</numerusform>
            <numerusform>%n canvis no desats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>El dispositiu no comunica el nom de %n canal</numerusform>
            <numerusform>El dispositiu no comunica els noms de %n canals</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresca</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Desa</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>El dispositiu s’està actualitzant. Deseu quan hagi acabat.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Anomena amb un patró</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Anomena diversos canals o càmeres amb un sol patró</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>S’estan llegint els noms dels canals…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nom de canal desat</numerusform>
            <numerusform>%n noms de canal desats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nom de canal no desat</numerusform>
            <numerusform>%n noms de canal no desats</numerusform>
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
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Ordre CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>No s’ha pogut obrir el fitxer</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>El format del fitxer és incorrecte</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduïu una ordre.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>L’ordre ha de començar per /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncat)</translation>
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
            <numerusform>Copiat a %n dispositiu</numerusform>
            <numerusform>Copiat a %n dispositius</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n dispositiu només n’ha acceptat una part</numerusform>
            <numerusform>%n dispositius només n’han acceptat una part</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispositiu ha fallat</numerusform>
            <numerusform>%n dispositius han fallat</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispositiu no executat</numerusform>
            <numerusform>%n dispositius no executats</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copia la config. de codificació</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>S’està iniciant la sessió…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>No s’ha pogut llegir la configuració del dispositiu</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>No s’han pogut llegir les capacitats del dispositiu</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>S’ha tornat a iniciar la sessió. Els canvis no desats s’han perdut.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Mostra l’informe</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>El programa es va tancar inesperadament. S’ha escrit un informe</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Informe de fallada</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 ja existeix. El voleu substituir?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportat a %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>No s’ha pogut escriure el fitxer %1</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>El dispositiu no té pàgina web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>S’ha copiat al porta-retalls</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 ja és als preferits</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 s’ha afegit als preferits</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No es pot desar el preferit. Comproveu si es pot escriure a la carpeta del programa.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccioneu una carpeta</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substitueix</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substitueix el fitxer</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>El dispositiu no comunica ni adreça MAC ni UUID i no pot tenir cap nota</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>No es pot accedir al dispositiu per P2P. Comproveu l’ID P2P i la connexió de xarxa.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflicte d’adreces IP</translation>
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
        <translation>igual que aquest ordinador</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 avançat</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 endarrerit</translation>
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
        <translation>Identitat</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipus</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de sèrie</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estat</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicialitzat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicialitzat</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versió</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Xarxa</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Adreça IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Adreça IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Adreça del dispositiu</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Màscara de subxarxa</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Passarel·la</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nom d’amfitrió</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Trobat per</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Port local</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Port de servei</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Port de servei del dispositiu</translation>
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
        <translation>Connexions màximes</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canals</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canals</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Connectats</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Entrades d’alarma</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Emmagatzematge</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Discs durs</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Afegit per</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manual (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
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
        <translation>Nom d’usuari</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copia-ho tot</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Detalls del dispositiu</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Inici de sessió fallit: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Inicia la sessió per llegir-ne més</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Inicia la sessió al dispositiu per llegir-ne els ports, els canals i els discs durs</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporta</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Desa el text en un fitxer</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Cap entrada no coincideix amb la cerca</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copia aquesta línia</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>No s’ha pogut llegir el fitxer de la biblioteca de dispositius %1</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>El fitxer de la biblioteca de dispositius %1 conté una línia desconeguda: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>Falta [%1] o la seva entrada «file» al fitxer de la biblioteca de dispositius</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Falta la funció %2 de %1 al fitxer de la biblioteca de dispositius</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Funció desconeguda %2 de %1 al fitxer de la biblioteca de dispositius</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>No s’ha pogut carregar la biblioteca de dispositius %1: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>La biblioteca de dispositius %1 no exporta %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>La línia %1 és massa llarga</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>La línia %1 no està codificada en UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No s’ha pogut obrir el fitxer</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>El fitxer és massa gran</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Més camps que columnes</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un camp és massa llarg</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un camp conté un caràcter de control</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Mode d’addició desconegut</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Adreça de dispositiu no vàlida</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Port de dispositiu no vàlid</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Falta el nom d’usuari o la contrasenya</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Les línies %1 i %2 tenen la mateixa adreça MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>El fitxer conté més de %1 dispositius</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>El fitxer no té la fila de capçalera d’una llista de dispositius</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>No s’ha pogut llegir el full de càlcul</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>L’element arrel no és deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>La línia %1 no és XML vàlid</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>La codificació %1 no és compatible</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>El full té més de %1 files</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>El caràcter %1 no es pot tornar a llegir d’aquest format</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>El contingut de la llista xifrada no és vàlid</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>El fitxer no és una llista de dispositius xifrada o està incomplet</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Aquesta versió de les llistes xifrades no és compatible</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Els paràmetres de la llista xifrada no són vàlids</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>La llista està xifrada: cal una frase de contrasenya</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Frase de contrasenya incorrecta, o el fitxer està malmès</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Selecciona només el mateix tipus (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Selecciona només el mateix model (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalls</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Obre la pàgina web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Obre la vista en directe</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copia l’adreça</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copia la MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copia la fila</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Afegeix als preferits</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintenta</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Nota…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Selecciona el compte de %n dispositiu seleccionat…</numerusform>
            <numerusform>Selecciona el compte de %n dispositius seleccionats…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selecciona compte…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>No es pot llegir el fitxer de notes, %1: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>El fitxer de notes, %1, està malmès. Es poden haver perdut algunes notes. Es conservarà amb un altre nom quan es desi la pròxima nota.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>El dispositiu no comunica ni adreça MAC ni UUID i no pot tenir cap nota</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Una nota pot tenir com a màxim %1 caràcters</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Es poden desar com a màxim %1 notes</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>No es pot desar la nota: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Altres</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>xarxa local</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>xarxa local (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca dispositius</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Cap dispositiu seleccionat</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Sessió iniciada</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Inici de sessió fallit: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Sessió no iniciada</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connexió perduda</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Actualització en curs</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>No trobat</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Per confirmar</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicialitzat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicialitzat</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>No trobat a l’última cerca</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispositiu de l’última llista, encara no trobat</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Trobat per última vegada: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Només es pot arrossegar un fitxer alhora a la finestra</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>No és un fitxer d’aquest ordinador</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Fitxer no compatible: %1. Arrossegueu a la finestra una llista de dispositius (.xlsx, .csv, .xml, .devlist) o un fitxer de lloc (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Taxa de bits a mida</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Flux principal: format de vídeo</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Flux principal: perfil de vídeo</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Flux principal: compressió d’àudio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Flux principal: format d’àudio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Flux secundari: format de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Flux secundari: perfil de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Flux secundari: compressió d’àudio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Flux secundari: format d’àudio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (no llegit, no escrit)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>No copiat: %1</translation>
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
        <translation>compressió del flux secundari</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compressió del flux principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolució del flux secundari</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolució del flux principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>taxa de bits del flux secundari</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>taxa de bits del flux principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>control de la taxa de bits del flux secundari</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>control de la taxa de bits del flux principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>taxa de fotogrames del flux secundari</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>taxa de fotogrames del flux principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>àudio del flux secundari</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>àudio del flux principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>El dispositiu no respon</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>El dispositiu no ho admet</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>El dispositiu està ocupat</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>El dispositiu ha rebutjat la sol·licitud (error %1)</translation>
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
        <translation>La configuració del dispositiu no és vàlida. Poden faltar alguns valors.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>El dispositiu no comunica les seves capacitats de codificació. Poden faltar alguns valors.</translation>
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
        <translation>Flux secundari</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>No s’ha pogut llegir la configuració de codificació del canal %1</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n canvi no desat</numerusform>
            <numerusform>%n canvis no desats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copia a %n dispositiu</numerusform>
            <numerusform>Copia a %n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copia als dispositius seleccionats</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresca</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Desa</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Connexió perduda</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>No desat: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>El dispositiu s’està actualitzant. Deseu quan hagi acabat.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Connexió perduda. Premeu Refresca per reintentar-ho.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, o el canal no està connectat. Trieu un altre canal o premeu Refresca.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>No llegit: %1. En desar no canvien.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Tipus de flux</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Activa el flux secundari</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compressió</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolució</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Control de la taxa</translation>
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
        <translation>Taxa de bits (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Fotogrames (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Qualitat</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Àudio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Activa l’àudio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Mostreig (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>A mida</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>S’està llegint la configuració de codificació…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>S’està escrivint la resolució del flux secundari…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Els dos fluxos usen la mateixa compressió: el flux principal és ara %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>S’està desant la configuració de codificació…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Desat</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>No desat</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>No s’ha pogut llegir la configuració: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Seleccioneu el format de fitxer</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Les contrasenyes del fitxer són en text sense xifrar. Les dels comptes desats no s’exporten.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>El fitxer no conté contrasenyes. Introduïu-les abans d’importar-lo.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Tota la llista es xifra amb la frase de contrasenya i només aquest programa la pot llegir. No es pot recuperar sense la frase de contrasenya. Les contrasenyes dels comptes desats no s’exporten.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Llista completa</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Sense contrasenyes</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Xifrada (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>La frase de contrasenya ha de tenir com a mínim %1 caràcters</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase de contrasenya</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Les dues frases de contrasenya no coincideixen</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repetiu la frase de contrasenya</translation>
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
        <translation>No trobat a l’última cerca</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Edita les notes</translation>
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
        <translation>Núm.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipus</translation>
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
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accions</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Elimina aquest dispositiu dels preferits</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Tanqueu el quadre de diàleg abans d’arrossegar un fitxer a la finestra</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Deixeu anar per importar una llista de dispositius o obrir un lloc</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Useu almenys dos d’aquests tipus: xifres, lletres i símbols, i cap caràcter no permès.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduïu el nom d’usuari</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduïu la contrasenya</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmeu la contrasenya</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Les contrasenyes no coincideixen</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La contrasenya ha de tenir de 8 a 32 caràcters</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inicialització</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n dispositiu per inicialitzar</numerusform>
            <numerusform>%n dispositius per inicialitzar</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Contrasenya nova</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirma</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>De 8 a 32 caràcters, amb almenys dos d’aquests tipus: xifres, lletres i símbols (tots els caràcters visibles excepte </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Després, introduïu també la contrasenya nova a la configuració de cerca.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Si té èxit</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>El dispositiu no s’ha trobat en cap cerca, o no comunica ni adreça MAC ni UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>S’ha deixat d’esperar el dispositiu: la seva adreça pot haver canviat</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>S’ha superat el límit de temps: l’adreça pot haver canviat</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Diversos dispositius seguits han rebutjat la contrasenya. Si continueu, es poden blocar comptes.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>S’està aturant…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>S’estan obtenint les imatges, %1 de %2 dispositius</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n imatge</numerusform>
            <numerusform>%n imatges</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n fallida</numerusform>
            <numerusform>%n fallides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n dispositiu més no es mostra</numerusform>
            <numerusform>%n dispositius més no es mostren</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Obre la carpeta</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Atura</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Torna-ho a obtenir tot</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» s’està executant. Espereu que acabi.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Torna a obtenir totes les imatges (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Desa-ho tot</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Escriu totes les imatges a la carpeta de les instantànies (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>S’està obtenint…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Torna a obtenir (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallit</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>S’està obtenint</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Omès</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Imatges dels dispositius</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 imatges desades a %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 imatges desades a %2, %3 no escrites: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositiu</numerusform>
            <numerusform>%n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>No s’ha pogut obrir la carpeta: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Seleccioneu dispositius a la llista de dispositius</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Cap dispositiu</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Desa</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grup</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositiu</numerusform>
            <numerusform>%n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Cap grup</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exposició</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antiparpelleig</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Mode d’exposició</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Guany</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Interval de guany</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Guany mínim</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Guany màxim</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensació</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Iris automàtic</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Reducció de soroll 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nivell</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Contrallum</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Mode de contrallum</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Tota la imatge</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Regió a mida</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Regió de compensació</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Ampli rang dinàmic</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de llums altes</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balanç de blancs</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Guany blau</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Guany vermell</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Obtén les imatges</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canals, es mostren els primers %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Desa les imatges</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>No s’ha pogut crear la carpeta %1</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>No s’ha pogut llegir aquesta configuració. Premeu Refresca per reintentar-ho.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Llum propera i llunyana</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Propera</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Llunyana</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Commutació dia/nit</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Baix</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mitjà</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensibilitat</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Retard de commutació</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Il·luminadors</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Il·luminador</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Brillantor propera</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Brillantor llunyana</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correcció</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarojos i llum blanca</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Tipus de llum</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brillantor</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Retard (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>El dispositiu no ha enviat cap imatge</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Cap imatge de %n canal</numerusform>
            <numerusform>Cap imatge de %n canals</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Imatge</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exposició i balanç de blancs</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Dia/nit i il·luminadors</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>La càmera no comunica aquesta configuració.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Cap paràmetre</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Imatge</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Suau</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Estàndard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Viu</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Estil</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brillantor</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturació</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>To</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Nitidesa</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Mirall i rotació</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Mirall</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vista normal</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Mode passadís 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Mode passadís 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Capgira</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotació</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Estabilització</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Estabilització electrònica</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Antiboira</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensitat</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>E</translation>
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
        <translation>I</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Regió (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>L’esquerra no pot ser més gran que la dreta</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>La part superior no pot ser més gran que la inferior</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Obturador</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Interval a mida</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Interval d’obturador (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Obturador més curt</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Obturador més llarg</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>El mínim no pot ser més gran que el màxim</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Els canvis s’escriuen de seguida al dispositiu.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresca</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Predeterminats</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera els %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>El dispositiu s’està actualitzant. Canvieu la configuració quan hagi acabat.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>S’està llegint la configuració d’imatge…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>S’està escrivint la configuració d’imatge…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>El dispositiu no respon. Potser el canvi no s’ha escrit.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>No canviat: %1. Es mostra el valor del dispositiu.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Ja inicialitzat</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualització en curs: s’omet</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Adreça MAC desconeguda: s’omet</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Inicialitza</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inicialització</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Seleccioneu un dispositiu no inicialitzat</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipus</translation>
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
        <translation>Versió</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Només es mostren els dispositius d’aquesta LAN. Els d’altres LAN no es poden inicialitzar.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n més s’omet, vegeu Observacions</numerusform>
            <numerusform>%n més s’ometen, vegeu Observacions</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observacions</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>No es pot llegir l’última llista de dispositius %1: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>El nom d’un grup pot tenir com a màxim %1 caràcters</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Els dispositius P2P no poden pertànyer a un grup</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Un lloc pot tenir com a màxim %1 dispositius</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>No es pot desar el lloc: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>No es pot desar la llista de dispositius: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Lloc no desat</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>No es pot desar el lloc anterior: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canals</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>No connectat</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Elimina de la vista (Supr)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>S’està iniciant la sessió…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reintent d’aquí a %n s</numerusform>
            <numerusform>%1. Reintent d’aquí a %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Torna a iniciar sessió</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintenta</translation>
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
        <translation>%1 KB a la memòria</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Àudio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 fotogrames omesos</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>No s’ha pogut obrir la carpeta: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantànies</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>El dispositiu ja no es mostra</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vista en directe</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaura</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximitza</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispositiu anterior (RePàg)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispositiu següent (AvPàg)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Una vista</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 vistes</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 vistes</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Canals anteriors</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canals següents</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Silencia</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Activa el so</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Mantén la relació d’aspecte</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Estira per omplir</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Amaga la informació del flux</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Mostra la informació del flux</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>S’està fent una instantània…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Instantània del canal seleccionat</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Instantànies de tots els canals</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Surt de la pantalla completa</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» s’està executant. Espereu que acabi.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>No es poden afegir més dispositius</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Seleccioneu primer a la llista els dispositius que voleu afegir</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Afegeix els canals dels dispositius seleccionats a la llista (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Afegeix els seleccionats (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Afegeix els seleccionats</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Instantànies de tots els canals de tots els dispositius</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>La vista en directe s’ha tancat perquè s’ha iniciat la sessió en un altre dispositiu</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Torna a iniciar sessió</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintenta</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>S’està iniciant la sessió…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Cap canal</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Inici de sessió fallit</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reintent d’aquí a %n s</numerusform>
            <numerusform>%1. Reintent d’aquí a %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Tots els dispositius seleccionats ja es mostren</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Es poden afegir com a màxim %1 dispositius. %2 no s’han afegit.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>%1 no respon</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Preguntes i respostes</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Quant a</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Aparença</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Segueix el sistema</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Clar</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Fosc</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Informe del lloc (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modifica la IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualització</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuració de dispositius</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configuració del sistema</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocol CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Lloc de demo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Lloc de demo: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Dispositius simulats, sense xarxa. Nom d’usuari i contrasenya per iniciar la sessió als dispositius. Els dispositius nous s’han d’inicialitzar primer.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Obre el lloc de demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>No hi ha cap biblioteca de dispositius instal·lada: no es pot accedir als dispositius</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>S’està obrint %1 amb el programa de PDF del sistema</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>No es pot obrir %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Edita</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Canvia l’adreça IP d’aquest dispositiu</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalls</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Mostra tota la informació d’aquest dispositiu</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Obre la pàgina web d’aquest dispositiu al navegador</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Obre la vista en directe d’aquest dispositiu</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inicialitzeu primer el dispositiu</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>El dispositiu s’està actualitzant. Canvieu-ne l’adreça quan hagi acabat.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Directe</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Dispositiu afegit, però no desat als preferits. Comproveu que podeu escriure a la carpeta del programa.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispositiu afegit i desat als preferits</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispositiu afegit</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Afegeix dispositiu</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Seleccioneu un dispositiu no inicialitzat</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispositiu ha fallat: vegeu Resultat</numerusform>
            <numerusform>%n dispositius han fallat: vegeu Resultat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>El dispositiu s’està actualitzant. Canvieu-ne l’adreça quan hagi acabat.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inicialitza</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Canvia les adreces IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adreça canviada en %n dispositiu</numerusform>
            <numerusform>Adreces canviades en %n dispositius</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n dispositiu inicialitzat</numerusform>
            <numerusform>%n dispositius inicialitzats</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Aturat: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Voleu eliminar %n dispositiu de la llista?</numerusform>
            <numerusform>Voleu eliminar %n dispositius de la llista?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispositiu s’està actualitzant i no s’ha eliminat</numerusform>
            <numerusform>%n dispositius s’estan actualitzant i no s’han eliminat</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Elimina dispositius</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduïu una adreça IP vàlida</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Introduïu una màscara de subxarxa vàlida</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Introduïu una adreça de passarel·la vàlida</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modifica la IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Amaga la vista prèvia</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Vista prèvia</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Mostra l’adreça nova de cada dispositiu</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Estàtica</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP inicial</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Mateixa IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Màscara</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Passarel·la</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>L’usa %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Aquesta és l’adreça de xarxa o de difusió</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>La passarel·la és fora de la subxarxa</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Canvia igualment</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>D’acord</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Aquesta és l’adreça de la passarel·la</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Adreça IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Els filtres amaguen tots els %1 dispositius</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>S’estan cercant dispositius…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>No s’ha trobat cap dispositiu</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No hi ha cap biblioteca de dispositius instal·lada</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Canvieu els filtres o esborreu el text de cerca.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Els dispositius apareixen aquí a mesura que es troben.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Comproveu que els dispositius estiguin engegats i connectats. Per a dispositius d’altres xarxes, afegiu-ne l’interval a la configuració de cerca o afegiu un dispositiu per l’adreça.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Neteja els filtres</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Torna a cercar</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>No hi ha cap xarxa seleccionada a la configuració de cerca</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Seleccioneu la xarxa local o altres xarxes a la configuració de cerca.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuració de cerca</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Per què no s’ha trobat cap dispositiu?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>El programa no es pot comunicar amb els dispositius: no se’n pot trobar ni canviar cap. El lloc de demo no necessita dispositius i mostra totes les funcions.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Obre el lloc de demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>S’ha cercat: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Afegeix un dispositiu per l’adreça</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Comproveu els cables i les xarxes i torneu a cercar.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>S’estan exportant els dispositius…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 ja existeix. El voleu substituir?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispositius exportats
Fitxer: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>No s’ha pogut escriure el fitxer. Comproveu la carpeta i si un altre programa té el fitxer obert.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccioneu una carpeta</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Aquests valors no es poden tornar a llegir del fitxer:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adreça</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motiu</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Resultat de l’exportació</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>S’està llegint la llista de dispositius…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substitueix</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substitueix el fitxer</translation>
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
        <translation>Treu del lloc</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Obre una llista de dispositius</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Llistes de dispositius xifrades (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importats: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>dispositius</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>No importat. El fitxer està obert en un altre programa, té un altre format o conté una adreça MAC dues vegades.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Línia</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adreça</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motiu</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Resultat de la importació</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Torna a cercar</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Mostra els motius</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>S’ha aturat la cerca; la llista és incompleta.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>No s’ha trobat cap dispositiu. Els que apareixen en gris s’havien trobat abans.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispositiu menys que a l’última cerca</numerusform>
            <numerusform>%n dispositius menys que a l’última cerca</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estat</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipus</translation>
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
        <translation>Versió</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accions</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
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
        <translation>Inicialitza</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Defineix la primera contrasenya dels dispositius nous seleccionats</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modifica IP per lots</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Assigna adreces consecutives als dispositius seleccionats</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Llegeix una llista de dispositius d’un full de càlcul</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporta</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Escriu els dispositius seleccionats en un full de càlcul</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Afegeix manualment</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Afegeix dispositius que una cerca no troba: per adreça IP, per ID P2P o dels preferits</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>Dispositiu IP</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>Dispositiu P2P</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Preferits</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Elimina els dispositius seleccionats de la llista</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicialitzat</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicialitzat</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispositiu seleccionat s’està actualitzant: no se’n pot canviar l’adreça</numerusform>
            <numerusform>%n dispositius seleccionats s’estan actualitzant: no se’n poden canviar les adreces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispositiu seleccionat s’està actualitzant i no es pot eliminar</numerusform>
            <numerusform>%n dispositius seleccionats s’estan actualitzant i no es poden eliminar</numerusform>
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
        <translation>Imatges dels dispositius seleccionats (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Emplena</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envia</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Anomena amb un patró</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Seleccioneu què voleu anomenar</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Els noms es poden editar a la taula. Desa els escriu.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canal d’aquest dispositiu</numerusform>
            <numerusform>%n canals d’aquest dispositiu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n càmera seleccionada</numerusform>
            <numerusform>%n càmeres seleccionades</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Patró: {n}, {model}, {ip4} (final de l’adreça)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Patró</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Diversos canals reben el mateix nom</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primer número</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Dígits</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Anomena el canal 1 de cada càmera.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Introduïu un patró</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Useu només {n}, {model} i {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera els %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Gravador: s’omet. Obriu-lo per anomenar-ne els canals</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Desa</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>OMessageBox</name>
    <message>
        <source>确定</source>
        <translation>D’acord</translation>
    </message>
</context>
<context>
    <name>OVBanner</name>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduïu una hora vàlida</translation>
    </message>
</context>
<context>
    <name>OVDialog</name>
    <message>
        <source>确定</source>
        <translation>D’acord</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel·la</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Mostra només els dispositius que han fallat o no s’han executat, ordenats per motiu. Per als dispositius que ja no es mostren, vegeu Lots.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Esborra</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimina les marques dels dispositius que han fallat o no s’han executat</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sense resoldre %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operació sense resoldre</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Totes les operacions</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Atura</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>queda menys d’1 min</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>queda aprox. %n min</numerusform>
            <numerusform>queden aprox. %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n fallit</numerusform>
            <numerusform>%n fallits</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>S’està aturant…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Atura (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Reintenta els fallits</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selecciona només els dispositius d’aquesta pàgina que han fallat o no s’han executat</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Desa els resultats</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lots</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>S’estan cercant dispositius…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 de %3 fets</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n més sense resoldre</numerusform>
            <numerusform>, %n més sense resoldre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>contrasenya incorrecta en %n dispositiu seguit</numerusform>
            <numerusform>contrasenya incorrecta en %n dispositius seguits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>contrasenya incorrecta en %n dispositiu seguit (compte %1)</numerusform>
            <numerusform>contrasenya incorrecta en %n dispositius seguits (compte %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Si continueu, es poden blocar comptes. Voleu continuar?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Després d’aturar, seleccioneu un altre compte al menú dels dispositius i reintenteu els dispositius fallits (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Reintenta els fallits: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Torna a executar «%1» per als dispositius que han fallat o no s’han executat. Se n’exclouen els dispositius en què reintentar no serveix, com després d’una contrasenya incorrecta amb el mateix compte.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Selecciona sense resoldre</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selecciona compte…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Seleccioneu un altre compte per als dispositius que han rebutjat aquest i per als altres dispositius que l’usen, i torneu-los a provar</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Avís</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Introduïu un número</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Feble</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mitjà</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Forta</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Seguretat de la contrasenya</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Ajusta l’amplada de columna</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Restableix les columnes</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Selecciona-ho tot</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Esborra</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Amaga la contrasenya</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostra la contrasenya</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>dispositiu trobat</numerusform>
            <numerusform>dispositius trobats</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca dispositius</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuració de cerca</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Quant a</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimitza</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaura</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximitza</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Redueix</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Expandeix</translation>
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
        <translation>Cap canal</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canal no connectat</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>S’està connectant…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Flux interromput</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Reintent d’aquí a %n s</numerusform>
            <numerusform>Reintent d’aquí a %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Reintenta ara</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 falta a p2p.ini o no és vàlid</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>No s’ha pogut iniciar el servei P2P</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Seleccioneu un dispositiu.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI per lots</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Envia una ordre als dispositius seleccionats</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Executa el full</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Envia les ordres d’un full de càlcul i hi escriu els resultats</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Obre la plantilla</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Obre la plantilla de fulls de càlcul d’ordres</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copiat</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Dispositius que han fallat</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>L’ordre s’enviarà a aquests dispositius:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envia</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Envia l’ordre</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Mostra el resultat complet</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copia el resultat</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Descarta</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n canvi no s’ha desat i es perdrà.</numerusform>
            <numerusform>%n canvis no s’han desat i es perdran.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copia</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Voleu copiar la configuració de codificació del canal %1 al mateix canal del dispositiu seleccionat?</numerusform>
            <numerusform>Voleu copiar la configuració de codificació del canal %1 al mateix canal dels %n dispositius seleccionats?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Això inclou els canvis no desats.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>S’estan desant els noms dels canals…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc per aturar)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuració de dispositius</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Configuració de codificació del canal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copia la config. de codificació</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Canvis no desats</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Desa i surt</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Anomena amb un patró</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configura aquest dispositiu</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>No hi ha cap càmera entre els dispositius seleccionats</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No s’ha pogut desar el paràmetre. Comproveu que podeu escriure a la carpeta del programa.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Seleccioneu un fitxer de firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualitza</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Atura l’actualització</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflicte d’adreces IP: %n dispositiu</numerusform>
            <numerusform>Conflicte d’adreces IP: %n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>S’ha perdut la connexió amb el dispositiu P2P %1. Elimineu el dispositiu i torneu-lo a afegir.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>El servei P2P està desconnectat. Ara mateix no es pot accedir als dispositius P2P.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporta</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Canvia les adreces IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Imatges dels dispositius seleccionats</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Contrasenya antiga correcta: s’espera la nova</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Canvia la contrasenya</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Comprova la contrasenya antiga</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reinicia els dispositius</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restaura la configuració de fàbrica</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositiu seleccionat</numerusform>
            <numerusform>%n dispositius seleccionats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>S’ha acabat el temps: no s’ha canviat la contrasenya de %n dispositiu</numerusform>
            <numerusform>S’ha acabat el temps: no s’han canviat les contrasenyes de %n dispositius</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>S’ha iniciat una altra operació: no s’ha canviat la contrasenya de %n dispositiu</numerusform>
            <numerusform>S’ha iniciat una altra operació: no s’han canviat les contrasenyes de %n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Seleccioneu primer dispositius a l’esquerra</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» s’està executant. Espereu que acabi.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Contrasenya no canviada en %n dispositiu (%1); està marcat</numerusform>
            <numerusform>Contrasenya no canviada en %n dispositius (%1); estan marcats</numerusform>
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
        <translation>Llista de dispositius xifrada</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase de contrasenya</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Avís</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>El programa ja s’està executant.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Introduïu el compte</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduïu la contrasenya</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Torna a iniciar sessió</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>No s’ha pogut iniciar la sessió a %1. Introduïu-ne el nom d’usuari i la contrasenya.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Contrasenya incorrecta, %n vegada</numerusform>
            <numerusform>Contrasenya incorrecta, %n vegades</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Resposta del dispositiu: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>El dispositiu no comunica quants intents queden. Més contrasenyes incorrectes poden blocar el compte.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Desa com a compte d’aquest dispositiu</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Un cop iniciada la sessió correctament, en aquest dispositiu s’inicia sempre amb aquest compte</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>També per als següents</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Després d’un inici de sessió correcte, tots els dispositius sense compte propi, també els dels lots, es proven amb aquest en lloc del de la configuració de cerca, fins que es tanqui el programa o es canviï el compte de la configuració de cerca</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>nitidesa</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>mirall</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>estabilització</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exposició</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>contrallum</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>balanç de blancs</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>mode dia/nit</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>antiboira</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>il·luminador</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>brillantor</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturació</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>to</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicialitzat</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Adreça duplicada</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Inici de sessió rebutjat</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>No es pot llegir</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Rellotge inexacte</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware més antic</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Sense servidor horari</translation>
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
        <translation>Exacta</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>%1 avançat</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 endarrerit</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; un altre dispositiu d’aquest model té %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivat</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Activat</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nom del canal</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Configuració de codificació</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Configuració d’imatge</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Configuració d’imatge: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del lloc</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalies</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Canvis d’aquesta visita</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositius</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipus</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adreça</translation>
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
        <translation>Número de sèrie</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Desfasament horari</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Desfasament horari (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Servidor horari</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canals</translation>
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
        <translation>Amplada (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Alçada (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Imatge</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Abans</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operació</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Valor nou</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detalls</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instal·lador</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>No comunicat</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Sense imatge</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Cap anomalia.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>No s’ha canviat cap dispositiu des de l’inici del programa.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Llegits</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Amb anomalies</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>No es pot crear el fitxer PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>No es pot crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>No es pot escriure %1: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 canvis anteriors no figuren a la llista.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 canals més</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Canvia l’adreça IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Ajusta l’hora</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Actualitza el firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Servidor horari i zona horària</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Horari d’estiu</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Manteniment automàtic</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinicia</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Restaura predeterminats</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Estàndard de vídeo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Canvia la contrasenya</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>No es pot fer servir la carpeta de fitxers temporals %1: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispositius seguits han rebutjat l’inici de sessió</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Reinicia</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Canvi d’idioma</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>L’idioma canvia quan es reinicia el programa.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Més tard</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>L’ordre ha fallat</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Correcte</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconegut</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>El compte no existeix</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contrasenya incorrecta</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>El compte està blocat. Espereu que el dispositiu el desbloqui.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>El compte ja s’està usant</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>El dispositiu no respon</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>El protocol no coincideix</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>El dispositiu no està inicialitzat</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>El dispositiu no ho admet</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>El dispositiu ja és a la llista</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>No s’han pogut llegir les capacitats del dispositiu</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>El dispositiu ha rebutjat la sol·licitud</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Error desconegut %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>El dispositiu s’està actualitzant</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No executat</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>La instantània ha fallat</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Dades no vàlides</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>El fitxer de firmware no es pot usar</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>No actualitzat</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Actualització no confirmada</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>El dispositiu està ocupat. Torneu-ho a provar més tard.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>La sessió ha caducat. Torneu a iniciar la sessió.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>El dispositiu no accepta aquest valor</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>El certificat del dispositiu no és de confiança</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>El certificat del dispositiu ha canviat</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancel·lat</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Un altre dispositiu respon en aquesta adreça</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Rebut pel dispositiu, no confirmat</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copia el text</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Informe de cerca</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>S’ha copiat al porta-retalls</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interfície de xarxa</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Aquest ordinador no té cap interfície de xarxa utilitzable</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Comproveu que hi hagi una interfície instal·lada i activada.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Cerca per adreça</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Adreces consultades</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Respostes</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>No hi ha ruta a %1 d’aquestes adreces</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Definiu una passarel·la per a la interfície o afegiu-hi una adreça de la mateixa xarxa que aquestes adreces.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Cap adreça no respon</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Comproveu l’interval d’adreces a la configuració de cerca i que els dispositius estiguin engegats.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Altres xarxes</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispositius trobats fora de totes les xarxes d’aquest ordinador: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Abans d’iniciar-hi la sessió, canvieu-ne les adreces IP o afegiu a la interfície una adreça de la seva xarxa.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adreces</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Sol·licituds enviades</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Missatges rebuts</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Dispositius trobats</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>No usat</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>missatges il·legibles: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>missatges de dispositius que no són càmeres ni gravadors: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>missatges sense adreça de servei: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>missatges amb l’adreça de servei d’un altre amfitrió: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>missatges de dispositius que deixen la xarxa: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>missatges per sobre del límit: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>La interfície està desactivada</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Activeu-la a la configuració de xarxa del sistema operatiu.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>La interfície no està connectada</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Comproveu el cable i el commutador, o connecteu-vos a una xarxa sense fil.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>La interfície no té adreça IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Definiu una adreça de la xarxa dels dispositius o activeu el DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>La interfície no pot enviar multidifusió</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Seleccioneu altres xarxes a la configuració de cerca per cercar per adreça.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>El sistema operatiu no ha enviat les sol·licituds: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Comproveu el tallafoc d’aquest ordinador i la configuració de la interfície.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>No s’ha rebut cap resposta</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Comproveu que els dispositius estiguin engegats i a la mateixa xarxa, i que cap tallafoc o commutador no en filtri les respostes. També podeu cercar per adreça: vegeu la configuració de cerca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispositius trobats, %2 menys que a l’última cerca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispositius trobats: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>No s’ha trobat cap dispositiu.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>La IP inicial no pot ser més gran que la IP final</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>L’interval pot abastar 17 segments</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduïu una IP inicial vàlida</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Introduïu una IP final vàlida</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuració de cerca</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Cerca a la xarxa local</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Cerca en altres xarxes</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>IP inicial</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>IP final</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Compte predeterminat per iniciar la sessió als dispositius</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Inicia la sessió als dispositius durant la cerca</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Llegeix el model, la versió i l’adreça MAC. Tots els dispositius reben aquest compte. Després d’una contrasenya incorrecta, el dispositiu no es torna a provar.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>no hi ha cap servei de claus</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>el servei de claus està bloquejat</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>el servei de claus no respon</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Algunes contrasenyes són al servei de claus de l’escriptori i no es poden llegir (%1). Introduïu-les de nou.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>No es pot fer servir el servei de claus de l’escriptori (%1). Les contrasenyes es desen en fitxers.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>No s’ha pogut desar la contrasenya al servei de claus de l’escriptori (%1). Es desa en un fitxer.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>No s’ha pogut eliminar la contrasenya del servei de claus de l’escriptori (%1). Elimineu-la al gestor de claus del sistema.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>No s’ha pogut obrir el lloc de demo:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>El fitxer no és un fitxer de lloc o està malmès</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>El fitxer de lloc és d’una versió més nova i no es pot llegir</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>El fitxer de lloc té més de %1 dispositius</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>El nom del fitxer de lloc no és vàlid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispositiu %1 del fitxer de lloc: %2 no és vàlid</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>El dispositiu %1 del fitxer de lloc està repetit</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No s’ha pogut obrir el fitxer</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>El fitxer és massa gran</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Fitxers de lloc (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Obre un lloc</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Lloc «%1» obert, amb %n dispositiu</numerusform>
            <numerusform>Lloc «%1» obert, amb %n dispositius</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>No es pot obrir el lloc %1: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Lloc</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Anomena i desa el lloc</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>El lloc s’ha desat a %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>El fitxer no conté contrasenyes.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Un lloc nou treu de la llista els dispositius coneguts i els grups. Els canvis no desats es conserven als llocs recents.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nou</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Lloc nou</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Lloc</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Obre un lloc…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Anomena i desa el lloc…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Lloc nou…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Introduïu el nom del lloc</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccioneu una carpeta</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Seleccioneu com a mínim un fitxer</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>No hi ha dispositius a la llista</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Crea l’informe</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del lloc</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Ja s’està creant un informe</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nom del lloc</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instal·lador</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Desa a</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Tria…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositius</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Tots (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Seleccionats (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Fitxers</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>El programa inicia la sessió a cada dispositiu, en llegeix la configuració i n’obté una imatge. L’informe inclou els canvis des de l’inici del programa i no conté contrasenyes.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>No es pot obrir %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Obre el PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del lloc</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Obre la carpeta</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>L’informe és a punt</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccioneu una carpeta</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Una altra carpeta…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canal no connectat</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>La instantània ha fallat</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>La instantània ha fallat: no s’ha pogut escriure el fitxer: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>S’està fent una instantània…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Reintenta</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintenta</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Tanca</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Obre la carpeta</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantànies</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>S’està fent la instantània %1 de %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Atura</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>S’està aturant…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n feta</numerusform>
            <numerusform>%n fetes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallida</numerusform>
            <numerusform>%n fallides</numerusform>
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
        <translation>Instantànies</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No executat</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>El dispositiu ja no es mostra</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Setmana</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Dia setm.</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Horari d’estiu</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Per data</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Per setmana</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inici</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Aplica l’horari d’estiu</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduïu una hora vàlida</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Selecciona-ho tot</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositius</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Esborra la cerca</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Torna a cercar</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Cap dispositiu amb aquest nom, tipus, model o adreça.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Els dispositius apareixen aquí a mesura que es troben.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Només es mostren els dispositius IPv4 inicialitzats.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Cap dispositiu no coincideix</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>S’estan cercant dispositius…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Cap dispositiu per configurar</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No hi ha cap biblioteca de dispositius instal·lada</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Mostra-ho tot</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>El programa no es pot comunicar amb els dispositius. Obriu el lloc de demo a la pàgina «Modifica la IP».</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Esborra les marques</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimina les marques dels dispositius que han fallat o no s’han executat</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>S’ha iniciat la sessió a tots els dispositius de la llista.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispositiu sense adreça (DHCP) no es mostra</numerusform>
            <numerusform>%n dispositius sense adreça (DHCP) no es mostren</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Els dispositius que han fallat o no s’han executat no són en aquest arbre: no estan inicialitzats, no tenen adreça IPv4 o no s’han tornat a trobar. Vegeu la pàgina «Modifica la IP» i Lots.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Gener</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Febrer</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Març</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Maig</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Juny</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Juliol</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Agost</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Setembre</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Desembre</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Primera</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Segona</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Tercera</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Quarta</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Última</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Diumenge</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Dilluns</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Dimarts</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Dimecres</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Dijous</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Divendres</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Dissabte</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Diumenge</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Dilluns</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Dimarts</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Dimecres</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Dijous</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Divendres</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Dissabte</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Cada dia</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>El dispositiu no respon</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>No s’ha pogut llegir l’hora</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>El dispositiu no respon. La contrasenya pot haver canviat.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Zona horària</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinici</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Restabliment</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Estàndard de vídeo</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>Queden %1 s per introduir la contrasenya. Després caldrà tornar a comprovar la contrasenya antiga.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Queden %1 s per introduir la contrasenya</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispositiu espera la contrasenya nova</numerusform>
            <numerusform>%n dispositius esperen la contrasenya nova</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>s’ha restaurat la contrasenya nova que havíeu introduït</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Torneu a comprovar la contrasenya antiga. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>La contrasenya nova que heu introduït es restaurarà llavors.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>S’ha acabat el temps: no s’ha canviat la contrasenya de %n dispositiu. </numerusform>
            <numerusform>S’ha acabat el temps: no s’han canviat les contrasenyes de %n dispositius. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>La selecció ha canviat. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Useu almenys dos d’aquests tipus: xifres, lletres i símbols, i cap caràcter no permès.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmeu la contrasenya</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Les contrasenyes no coincideixen</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La contrasenya ha de tenir de 8 a 32 caràcters</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Introduïu la contrasenya antiga</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Pas 1: comproveu la contrasenya antiga</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Contrasenya antiga</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Comprova</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Pas 2: definiu la contrasenya nova</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Contrasenya nova</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirma</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>De 8 a 32 caràcters, amb almenys dos d’aquests tipus: xifres, lletres i símbols (tots els caràcters visibles excepte &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Canvia la contrasenya</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Si té èxit</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Horari d’estiu activat</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Horari d’estiu desactivat</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP desactivat</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Reinici %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Reinicis periòdics desactivats</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Voleu reiniciar el dispositiu seleccionat?</numerusform>
            <numerusform>Voleu reiniciar els %n dispositius seleccionats?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinicia</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Voleu restablir el dispositiu seleccionat a la configuració de fàbrica?</numerusform>
            <numerusform>Voleu restablir els %n dispositius seleccionats a la configuració de fàbrica?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Aplica</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>«%1» s’aplicarà a aquests dispositius:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>L’interval d’actualització és de 0 minuts: el dispositiu potser ja no actualitzarà l’hora. Voleu aplicar-lo al dispositiu seleccionat?</numerusform>
            <numerusform>L’interval d’actualització és de 0 minuts: els dispositius potser ja no actualitzaran l’hora. Voleu aplicar-lo als %n dispositius seleccionats?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Aplica igualment</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Manteniment automàtic</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Reinici periòdic</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Reinici a les</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Dia de reinici</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplica</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Reinicia ara</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Mentre es reinicia, no es pot accedir al dispositiu i aquest no grava.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reinicia els dispositius</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispositiu seleccionat s’està actualitzant i no es pot reiniciar</numerusform>
            <numerusform>%n dispositius seleccionats s’estan actualitzant i no es poden reiniciar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restaura la configuració de fàbrica</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Esborra tota la configuració, els comptes i les contrasenyes dels dispositius. Això no es pot desfer. Caldrà tornar a inicialitzar els dispositius.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispositiu seleccionat s’està actualitzant i no es pot restablir</numerusform>
            <numerusform>%n dispositius seleccionats s’estan actualitzant i no es poden restablir</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Hora de l’ordinador</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Posa l’hora de l’ordinador</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Posa cada dispositiu a l’hora en què rep la sol·licitud</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manualment</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Usa l’hora actual</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplica</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Hora del dispositiu</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Llegeix les hores</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositiu</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Tots</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Sessió no iniciada %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Mostra només els dispositius sense cap inici de sessió fins ara o amb l’últim inici de sessió fallit</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sense resoldre %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Mostra només els dispositius que han fallat o no s’han executat, ordenats per motiu.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n més no és en aquesta llista: vegeu Lots.</numerusform>
            <numerusform> %n més no són en aquesta llista: vegeu Lots.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Estàndard de vídeo</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Estàndard</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL és per a regions amb xarxa elèctrica de 50 Hz, NTSC per a 60 Hz. Alguns dispositius es reinicien després del canvi.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplica</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Els dispositius no ofereixen aquesta funció</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Introduïu el servidor NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Zona horària i NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Zona horària</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Activa l’NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Servidor NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>Adreça IP o nom d’amfitrió</translation>
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
        <translation>Aplica la zona horària i l’NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Els dispositius no ofereixen %1, la zona horària d’aquest ordinador. Seleccioneu una zona horària.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Introduïu una adreça IP o un nom d’amfitrió vàlids</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Adreça IP del dispositiu, o «adreça:port web» si el port web no és el 80. Obligatori.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Port d’inici de sessió del dispositiu. Només s’usa per comprovar el compte.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Nom d’usuari del dispositiu, sense dos punts.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Contrasenya del dispositiu. Elimineu-la després del fitxer.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Ordre que comença per «/». El dispositiu rep dues vegades una ordre acceptada. Obligatori.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Protocol</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 per a HTTP, altres enters per a HTTPS. HTTP si és buit.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>L’emplena el programa: la resposta, el camí de la imatge o de la gravació, o «Error:» i el motiu.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Ordres</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instruccions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significat</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Conserveu la fila de capçalera. Substituïu la fila d’exemple per les vostres files.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Les files sense adreça ni ordre s’ometen.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>No obriu aquest fitxer en un altre programa mentre s’executa.</translation>
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
            <numerusform>%n dispositiu no es pot actualitzar amb aquest fitxer: vegeu Resultat</numerusform>
            <numerusform>%n dispositius no es poden actualitzar amb aquest fitxer: vegeu Resultat</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Fila %1: %2</translation>
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
        <translation>Nom d’usuari</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasenya</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fitxer de firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>No s’ha pogut obrir el fitxer</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>El format del fitxer és incorrecte</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>No s’han pogut desar els resultats: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultats desats a %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>No s’ha pogut escriure el fitxer. És només de lectura o està obert en un altre programa. Resultats desats a %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>El full de càlcul té més de %1 dispositius. Dividiu-lo.</translation>
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
        <translation>%1: %2 actualitzats, %3 fallits. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>El full de càlcul no conté cap dispositiu</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: s’omet</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>El dispositiu ja té aquesta versió</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Lectura del full de càlcul</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Inicia l’actualització</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualització</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualitza des d’un full de càlcul</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n dispositiu s’actualitzarà. Es reiniciarà. No l’apagueu.</numerusform>
            <numerusform>%n dispositius s’actualitzaran. Es reiniciaran. No els apagueu.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Els resultats s’escriuen al full de càlcul.</translation>
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
        <translation>Actualització: %1 de %2 fets</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n correcte</numerusform>
            <numerusform>%n correctes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallit</numerusform>
            <numerusform>%n fallits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Inici de sessió</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Enviament</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Escriptura</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinici</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Núm.</translation>
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
        <translation>Versió</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progrés</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accions</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Reintentar pot servir</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corregiu el fitxer, el compte o el dispositiu i torneu a actualitzar</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selecciona fitxer</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualitza</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Atura</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>L’escriptura ha començat: no es pot aturar</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>Adreça IP del dispositiu. Obligatori.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Port d’inici de sessió del dispositiu. 37777 si és buit.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Nom d’usuari del dispositiu. Si aquest i la contrasenya són buits, s’usa el compte del programa.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Contrasenya del dispositiu. Elimineu-la després del fitxer.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Camí del fitxer de firmware, absolut o relatiu a la carpeta d’aquest full de càlcul. Obligatori.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>L’emplena el programa: les versions d’abans i després de l’actualització, o per què ha fallat.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualització</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instruccions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significat</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Conserveu la fila de capçalera. Substituïu la fila d’exemple per les vostres files.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Les files sense adreça ni fitxer de firmware s’ometen.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>No obriu aquest fitxer en un altre programa durant l’actualització.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>L’escriptura ha començat: no es pot aturar</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 al %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Encara no s’ha aturat: s’hi torna</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware escrit, el dispositiu es reinicia: no es pot aturar</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Actualitzat: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: cap versió comunicada</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: ara %2, versió anterior desconeguda</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Inicia l’actualització</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Actualitza els dispositius seleccionats</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selecciona fitxer</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selecciona un fitxer de firmware per als dispositius seleccionats</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Reintenta els fallits</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Torna a actualitzar els dispositius en què reintentar pot servir, com ara els que no han respost</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualitza des d’un full de càlcul</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Actualitza els dispositius d’un full de càlcul i hi escriu els resultats</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Obre la plantilla</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Obre la plantilla de fulls de càlcul d’actualització</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Cerca…</translation>
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
        <translation>Dispositius alhora</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispositius actualitzats alhora</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>S’espera que el dispositiu es reiniciï</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>S’està escrivint: no apagueu el dispositiu</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>S’està enviant el fitxer</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Inici de sessió</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Actualitzat</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Cap fitxer de firmware seleccionat</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>El fitxer de firmware no existeix</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>No s’ha pogut llegir el fitxer de firmware</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>El fitxer de firmware és buit</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>El fitxer de firmware és massa gran</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>El fitxer de firmware està malmès</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>El firmware és per a altres models</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rebutjat pel dispositiu</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contrasenya incorrecta</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>El compte no existeix</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>El compte està blocat</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>El dispositiu no està inicialitzat</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Actualització no compatible o dispositiu no inicialitzat</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Adreça IP o port no vàlids</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>El mateix dispositiu que en una fila anterior</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>El dispositiu no respon</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>El dispositiu està ocupat. Torneu-ho a provar més tard.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Interromput pel dispositiu</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Sense progrés durant massa temps</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Sense resposta després del reinici</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>La mateixa versió després del reinici</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Aturat: dispositiu no canviat</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Interromput: s’ha tancat el programa</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Error desconegut %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Plantilla actualització per lots.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Reiniciat, però no s’ha pogut llegir la versió</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>El certificat no és de confiança</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>El certificat ha canviat</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>El dispositiu ja no és a la llista</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Seleccioneu un fitxer de firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fitxer de firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Tots els fitxers</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Cap dispositiu per reintentar</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispositiu no s’ha actualitzat: vegeu Resultat</numerusform>
            <numerusform>%n dispositius no s’han actualitzat: vegeu Resultat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n dispositiu actualitzat</numerusform>
            <numerusform>%n dispositius actualitzats</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Obre</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>No s’ha pogut obrir la plantilla.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualització</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualitza des d’un full de càlcul</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Aturat: %1 actualitzats, %2 fallits, %3 no executats</translation>
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
        <translation>Detecció de moviment</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivat</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Compensació de contrallum</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Ampli rang dinàmic</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Compensació de llums altes</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codificació</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Imatge</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Torna a iniciar sessió</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintenta</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Feu clic en un dispositiu de l’esquerra per iniciar-hi la sessió i canviar-ne la configuració.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Seleccioneu un dispositiu</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Inici de sessió fallit</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continua aquí</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Només es pot iniciar la sessió en un dispositiu alhora. Si continueu, es tancarà la vista en directe de l’altre dispositiu.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>La vista en directe d’un altre dispositiu és oberta</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connexió perduda</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Noms dels canals</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>La configuració dels dispositius es mostra i es canvia aquí quan una cerca n’ha trobat.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Cap dispositiu</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Anomena amb un patró</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Feu clic en un dispositiu a l’esquerra per canviar aquí els noms dels seus canals, o anomeneu juntes les càmeres seleccionades.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Sense imatge: falten fitxers a la carpeta Shaders o estan malmesos</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Sense imatge: massa gran per a la targeta gràfica</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>La reproducció ha fallat</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>La reproducció ha fallat: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>S’ha perdut la connexió amb el dispositiu</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>El dispositiu ha finalitzat el flux</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>El dispositiu no envia vídeo</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>El dispositiu ja no accepta l’inici de sessió</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>El dispositiu no envia cap flux de vídeo</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Aquest ordinador no pot descodificar el flux</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>El certificat del dispositiu ha canviat. No s’ha obert la pàgina web. No introduïu cap contrasenya en aquest dispositiu.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>El certificat del dispositiu no està confirmat. No s’ha obert la pàgina web.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>No s’ha pogut obrir el navegador. Pàgina web del dispositiu: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No s’ha pogut desar la configuració. Comproveu que podeu escriure a la carpeta del programa.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Atura i surt</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Els dispositius que escriuen firmware acaben sols: no els apagueu.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificat ja és de confiança. Torneu-ho a provar.</numerusform>
            <numerusform>%n certificats ja són de confiança. Torneu-ho a provar.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Surt del programa</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>El compte no es pot desar i només s’usarà fins a la pròxima cerca: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>«%1» s’està executant. Si sortiu, els dispositius restants no es canviaran.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>S’ha aturat l’informe; no s’ha escrit cap fitxer</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Han respost més de %1 dispositius. No es mostren %2 respostes més. Cerqueu en un interval més petit.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Aturat: %1 files correctes, %2 fallides, %3 no enviades.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Acabat: %1 files correctes, %2 fallides.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>No s’han pogut desar els resultats: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultats desats a %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>No s’ha pogut escriure el fitxer. És només de lectura o està obert en un altre programa. Resultats desats a %1</translation>
    </message>
</context>
</TS>
