<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="gl_GL" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copiar o número de versión</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiouse no portapapeis</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licenzas de terceiros</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Engadir conta</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Cambiar conta</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduza un nome</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Por exemplo: Edificio 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduza o nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza o contrasinal</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Deixar baleiro para conservalo</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Garda a conta coa que o programa inicia sesión. Os contrasinais dos dispositivos non cambian.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>A conta non se pode gardar e só se usa ata a próxima busca: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>A nova conta é agora a conta predeterminada</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>A nova conta gardouse e úsase de agora en diante para este dispositivo</numerusform>
            <numerusform>A nova conta gardouse e úsase de agora en diante para estes %n dispositivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Gardar para estes dispositivos (recomendado)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Usar como conta predeterminada de todos</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Non gardar; usar ata a próxima busca</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>O dispositivo non ten nin MAC nin UUID: a conta só se usa ata a próxima busca</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Non se pode ler o ficheiro de contas, %1: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>O ficheiro de contas está danado e non se usa ningunha das súas contas: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Introduza un nome de ata %1 caracteres</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Introduza un nome de usuario de ata %1 caracteres</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Introduza un contrasinal de ata %1 caracteres</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Xa existe unha conta chamada «%1»</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Non existe ningunha conta chamada «%1»</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Sen espazo: como máximo %1 contas e %2 dispositivos</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispositivo usa a conta predeterminada</numerusform>
            <numerusform>%n dispositivos usan a conta predeterminada</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispositivo usa a conta «%1»</numerusform>
            <numerusform>%n dispositivos usan a conta «%1»</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n deles non ten nin MAC nin UUID e só a usa ata a próxima busca</numerusform>
            <numerusform>; %n deles non teñen nin MAC nin UUID e só a usan ata a próxima busca</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Quere eliminar a conta «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Desde ese momento, a sesión no dispositivo que a usa iníciase coa conta predeterminada.</numerusform>
            <numerusform> Desde ese momento, a sesión nos %n dispositivos que a usan iníciase coa conta predeterminada.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Usar para %n dispositivo</numerusform>
            <numerusform>Usar para %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Seleccionar conta</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Engadir</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>A conta predeterminada cámbiase na configuración de busca</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Cada dispositivo próbase cunha soa conta: a seleccionada para el ou, se non, a predeterminada. Nunca se proban outras contas.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Conta predeterminada</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Eliminar conta</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Quere eliminar %n conta que non ten ningún dispositivo?</numerusform>
            <numerusform>Quere eliminar %n contas que non ten ningún dispositivo?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Eliminar as contas non usadas</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Contas que non están seleccionadas para ningún dispositivo</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Non usado</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Os dispositivos rexeitaron esta conta. Seleccione ou engada outra.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Usar para %n dispositivo e tentar de novo</numerusform>
            <numerusform>Usar para %n dispositivos e tentar de novo</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Os dispositivos rexeitaron a conta %1. Seleccione ou engada outra.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Introduza o ID P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Introduza un enderezo IP válido</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Introduza a conta</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza o contrasinal</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Introduza o número de porto</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>O porto debe estar entre 1 e 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Engadir dispositivo</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Engadir aos favoritos</translation>
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
        <translation>Porto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Ata 50 caracteres</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Engadindo…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Engadido</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Non se puideron gardar as notas. Comprobe que pode escribir no cartafol do programa.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Non se puido eliminar o favorito. Comprobe que pode escribir no cartafol do programa.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Engadir</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoritos</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favorito seleccionado</numerusform>
            <numerusform>favoritos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Prema dúas veces nunha fila para engadir o dispositivo</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Limpar filtros</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Engadir dispositivo</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Cambie ou borre o texto de busca.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Seleccione «Engadir aos favoritos» ao engadir un dispositivo para gardalo aquí.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Ningún favorito coincide coa busca</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Aínda non hai favoritos</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Quere eliminar %1 dos favoritos?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Engadir favoritos</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Eliminar favorito</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Non se pode ler o contrasinal: faga dobre clic para introducilo</translation>
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
        <translation>Sen enderezo MAC: omítese</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Úsao outro dispositivo</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Asignado dúas veces</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Igual que a pasarela</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Fóra da subrede</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Enderezo de rede ou de difusión</translation>
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
        <translation>O lote está en execución</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Hai dispositivos á espera do novo contrasinal</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Ningún dispositivo fallou nin quedou sen executar</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Esta operación non se pode reintentar aquí</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Só se pode reintentar o lote máis recente</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Reintentar non serve para estes dispositivos. Corrixa primeiro o motivo, por exemplo a conta.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI por lotes</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Enviar esta orde ao dispositivo seleccionado:</numerusform>
            <numerusform>Enviar esta orde aos %n dispositivos seleccionados:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lotes</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Reintentar os fallidos</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Executa de novo o lote para os dispositivos que fallaron ou non se executaron</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Restaurar enderezos</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Devolve os dispositivos cambiados aos seus enderezos IP anteriores</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Quere devolver %n dispositivo ao seu enderezo IP anterior?</numerusform>
            <numerusform>Quere devolver %n dispositivos aos seus enderezos IP anteriores?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Gardar resultados</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Lote</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Correctos / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Só fallidos</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inclúe os dispositivos non executados</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Aínda non hai lotes</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Ningún dispositivo fallou</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Restaurar enderezos IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Gardar todo</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Garda os resultados de todos os lotes da lista nun ficheiro</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Agarde a que remate o lote actual</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Sen inicializar: omítese</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualización en curso: omítese</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflito de enderezos: podería cambiarse outro dispositivo</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Úsao outro dispositivo</translation>
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
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n advertencia: véxase Observacións</numerusform>
            <numerusform>%n advertencias: véxase Observacións</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispositivo omítese: véxase Observacións</numerusform>
            <numerusform>%n dispositivos omítense: véxase Observacións</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>execútase en %n dispositivo</numerusform>
            <numerusform>execútase en %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n omitido</numerusform>
            <numerusform>%n omitidos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Ocultar lista</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Mostrar %n dispositivo</numerusform>
            <numerusform>Mostrar %n dispositivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Nome e modelo</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Enderezo antigo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Novo enderezo</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observacións</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Ficheiro de firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Novo nome</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n correcto</numerusform>
            <numerusform>%n correctos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n á espera do novo contrasinal</numerusform>
            <numerusform>%n á espera do novo contrasinal</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n fallido</numerusform>
            <numerusform>%n fallidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n non executado</numerusform>
            <numerusform>%n non executados</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n omitido</numerusform>
            <numerusform>%n omitidos</numerusform>
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
        <translation>O contrasinal antigo é correcto</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Superouse o límite de tempo</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: omítese</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Gardar resultados</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultados gardados en %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Non se puideron gardar os resultados. Escolla outro cartafol.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lotes</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Hai %n advertencia. Quere continuar?</numerusform>
            <numerusform>Hai %n advertencias. Quere continuar?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Advertencias</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Os dispositivos non poden intercambiar os enderezos (como %1 e %2) nun só paso. Dea primeiro outro enderezo a un deles.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en execución. Agarde a que remate.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Non hai memoria ou fíos abondo para comezar. Peche outros programas e ténteo de novo.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Gardar resultados</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canle %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>O dispositivo %2 aínda usa %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispositivo non se reintentou: o seu enderezo cambiou ou xa non está na lista (%1)</numerusform>
            <numerusform>%n dispositivos non se reintentaron: os seus enderezos cambiaron ou xa non están na lista (como %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Hai actualizacións en curso. Busque cando rematen.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Hai actualizacións en curso. Peche o programa cando rematen.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>», «</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>«%1» está en execución. Busque cando remate.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>«%1» está en execución. Elimine dispositivos cando remate.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>«%1» está en execución. Cambie dispositivos cando remate.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>«%1» está en execución. Peche o programa cando remate.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>«%1» está en execución. Reinicie o programa cando remate.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Hai unha busca en curso. Deténaa con Esc ou agarde a que remate.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Estanse a executar as ordes doutra folla de cálculo. Agarde a que rematen.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Folla modelo CGI por lotes.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Estase a executar outra orde CGI. Agarde a que remate.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncado)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>contrasinal da conta predeterminada</translation>
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
        <translation>Prioridade da ganancia</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Prioridade do obturador</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Luz natural</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Farol</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Rexión á medida</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Branco e negro</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infravermello</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Luz branca</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Intelixente</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Agora non</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Confiar na selección</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmar certificados de dispositivos</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Non se puideron gardar os certificados. Non se confía en ningún.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 de %2 dispositivos seleccionados</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Estes dispositivos usan certificados autoasinados para HTTPS. Non se enviou ningún contrasinal. Compare as pegadas dixitais. Despois de confiar, só se acepta esta clave.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>O certificado de %n dispositivo cambiou. Non se enviou ningún contrasinal. Podería ser outro dispositivo: seleccióneo só se coñece o motivo, como un restablecemento de fábrica.</numerusform>
            <numerusform>Os certificados de %n dispositivos cambiaron. Non se enviou ningún contrasinal. Poderían ser outros dispositivos: seleccióneos só se coñece o motivo, como un restablecemento de fábrica.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC ou UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Válido ata</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Pegada dixital</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Pegada dixital (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Pegada dixital de confianza</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Cambiado</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Novo</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Non se pode ler o ficheiro de certificados, %1: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>O ficheiro de certificados está danado. Non se confía en ningún certificado. Confírmeos de novo: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Non hai túnel ao porto web do dispositivo.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non enviada</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>Orde CGI</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Eliminar das ordes gardadas</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Gardar esta orde</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>A cabeceira da resposta é demasiado grande.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nome de usuario ou contrasinal incorrectos. Comprobe a conta na configuración de busca.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>A conta está bloqueada. Agarde a que o dispositivo a desbloquee.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>O dispositivo non responde.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>O dispositivo non está inicializado.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Erro descoñecido.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>O dispositivo rexeitou a solicitude</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>A resposta é demasiado grande.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Non se puido escribir o ficheiro: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Detido.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>A parte recibida da gravación está en %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>O dispositivo estase a actualizar.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>O certificado do dispositivo non é de confianza.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>O certificado do dispositivo cambiou.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Non se atopou o servidor</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>O dispositivo rexeitou a conexión. Comprobe o porto HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Non se pode acceder ao dispositivo</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>O dispositivo non respondeu a tempo</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Sen conexión cifrada. Comprobe o porto HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>A resposta do dispositivo non é HTTP válido</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>A conexión pechouse antes do final da resposta</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>A solicitude fallou</translation>
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
        <translation>Un nome de usuario non pode conter dous puntos nin caracteres de control.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Un contrasinal non pode conter caracteres nulos.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Non se puido escribir o ficheiro: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Gardado en %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Gardar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Garda o texto nun ficheiro</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione un cartafol</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Envío dunha orde CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI por lotes</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduza unha orde.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>A orde debe comezar por /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Detido: %1 de %2 feitos</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Enviada a %n dispositivo: aceptada</numerusform>
            <numerusform>Enviada a %n dispositivos: todos a aceptaron</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>O dispositivo aceptou a orde e non devolveu ningún resultado.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Enviada a %n: %1 aceptadas, %2 fallidas</numerusform>
            <numerusform>Enviada a %n: %1 aceptadas, %2 fallidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CgiTable</name>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Orde</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accións</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Prema co botón dereito para copiar o resultado</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Envía a orde a este dispositivo</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Mostrar o resultado completo</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>O dispositivo estase a actualizar. Envíe ordes cando remate.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Executar folla</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Enviaranse as ordes CGI da folla de cálculo. Os resultados escríbense nela.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Non se puido abrir a folla modelo.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Estanse a executar as ordes doutra folla de cálculo. Agarde a que rematen.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Lectura da folla de cálculo</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>O ficheiro cambiou. Ábrao de novo.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Gardado da folla de cálculo</translation>
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
        <translation>Sen gardar</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nome da canle %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nome non comunicado</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Introduza un nome</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera os %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rexeitado polo dispositivo</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>O dispositivo non responde</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Cambiado polo dispositivo</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Acurtar</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Desfacer</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Acurta o nome ao que o dispositivo pode almacenar</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Restaura o nome que ten o dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>O dispositivo estase a actualizar</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Canle</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non conectado</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome de canle sen gardar</numerusform>
            <numerusform>%n nomes de canle sen gardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n cambio sen gardar</numerusform>
            <numerusform>%n cambios sen gardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>O dispositivo non comunica o nome de %n canle</numerusform>
            <numerusform>O dispositivo non comunica os nomes de %n canles</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refrescar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Gardar</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>O dispositivo estase a actualizar. Garde cando remate.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear cun patrón</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Nomear varias canles ou cámaras cun só patrón</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Lendo os nomes das canles…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canle %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nome de canle gardado</numerusform>
            <numerusform>%n nomes de canle gardados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome de canle sen gardar</numerusform>
            <numerusform>%n nomes de canle sen gardar</numerusform>
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
        <translation>Porto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Orde CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Non se puido abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>O formato do ficheiro é incorrecto</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduza unha orde.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>A orde debe comezar por /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (truncado)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Copiado a %n dispositivo</numerusform>
            <numerusform>Copiado a %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n dispositivo só aceptou unha parte</numerusform>
            <numerusform>%n dispositivos só aceptaron unha parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispositivo fallou</numerusform>
            <numerusform>%n dispositivos fallaron</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispositivo non executado</numerusform>
            <numerusform>%n dispositivos non executados</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar config. de codificación</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Non se puido ler a configuración do dispositivo</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Non se puideron ler as capacidades do dispositivo</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Iniciouse sesión de novo. Os cambios sen gardar perdéronse.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Mostrar informe</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>O programa pechouse inesperadamente. Escribiuse un informe</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Informe de fallo</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 xa existe. Quere substituílo?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Non se puido escribir o ficheiro %1</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>O dispositivo non ten páxina web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiouse no portapapeis</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 xa está nos favoritos</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 engadiuse aos favoritos</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Non se pode gardar o favorito. Comprobe se se pode escribir no cartafol do programa.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione un cartafol</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substituír</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substituír ficheiro</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>O dispositivo non comunica nin enderezo MAC nin UUID e non pode ter nota</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Non se pode acceder ao dispositivo por P2P. Comprobe o ID P2P e a conexión de rede.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflito de enderezos IP</translation>
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
        <translation>igual que este ordenador</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 adiantado</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 atrasado</translation>
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
        <translation>Identidade</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Sen inicializar</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Enderezo IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Enderezo IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Enderezo do dispositivo</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara de subrede</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Pasarela</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Si</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nome do servidor</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Atopado por</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Portos</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Porto local</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Porto de servizo</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Porto de servizo do dispositivo</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>Porto HTTP</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>Porto HTTPS</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>Porto RTSP</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Conexións máximas</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canles</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canles</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Conectadas</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Entradas de alarma</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Almacenamento</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Discos duros</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Engadido por</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manual (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Busca</translation>
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
        <translation>Porto P2P</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Detalles do dispositivo</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Fallou o inicio de sesión: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Iniciar sesión para ler máis</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Inicia sesión no dispositivo para ler os seus portos, canles e discos duros</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Garda o texto nun ficheiro</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Ningunha entrada coincide coa busca</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copiar esta liña</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Non se puido ler o ficheiro da biblioteca de dispositivos %1</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>O ficheiro da biblioteca de dispositivos %1 contén unha liña descoñecida: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>Falta [%1] ou a súa entrada «file» no ficheiro da biblioteca de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Falta a función %2 de %1 no ficheiro da biblioteca de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Función descoñecida %2 de %1 no ficheiro da biblioteca de dispositivos</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Non se puido cargar a biblioteca de dispositivos %1: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>A biblioteca de dispositivos %1 non exporta %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>A liña %1 é demasiado longa</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>A liña %1 non está codificada en UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Non se puido abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>O ficheiro é demasiado grande</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Máis campos que columnas</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un campo é demasiado longo</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un campo contén un carácter de control</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Modo de engadido descoñecido</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Enderezo de dispositivo non válido</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Porto de dispositivo non válido</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Falta o nome de usuario ou o contrasinal</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>As liñas %1 e %2 teñen o mesmo enderezo MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>O ficheiro contén máis de %1 dispositivos</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>O ficheiro non ten a fila de cabeceira dunha lista de dispositivos</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Non se puido ler a folla de cálculo</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>O elemento raíz non é deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>A liña %1 non é XML válido</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>A codificación %1 non é compatible</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>A folla ten máis de %1 filas</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>O carácter %1 non se pode volver ler deste formato</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>O contido da lista cifrada non é válido</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>O ficheiro non é unha lista de dispositivos cifrada ou está incompleto</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Esta versión das listas cifradas non é compatible</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Os parámetros da lista cifrada non son válidos</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>A lista está cifrada: precísase unha frase de contrasinal</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Frase de contrasinal incorrecta, ou o ficheiro está danado</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Seleccionar só o mesmo tipo (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Seleccionar só o mesmo modelo (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Abrir páxina web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abrir vista en directo</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copiar enderezo</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copiar MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copiar fila</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Engadir aos favoritos</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Nota…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Seleccionar a conta de %n dispositivo seleccionado…</numerusform>
            <numerusform>Seleccionar a conta de %n dispositivos seleccionados…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleccionar conta…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Non se pode ler o ficheiro das notas, %1: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>O ficheiro das notas, %1, está danado. Poden terse perdido algunhas notas. Conservarase con outro nome cando se garde a próxima nota.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>O dispositivo non comunica nin enderezo MAC nin UUID e non pode ter nota</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Unha nota pode ter como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Pódense gardar como máximo %1 notas</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Non se pode gardar a nota: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>rede local</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>rede local (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Buscar dispositivos</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Ningún dispositivo seleccionado</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Sesión iniciada</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Fallou o inicio de sesión: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Sesión non iniciada</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Actualización en curso</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Non atopado</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Por confirmar</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Sen inicializar</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Non atopado na última busca</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispositivo da última lista, aínda non atopado</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Atopado por última vez: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Só se pode arrastrar un ficheiro de cada vez á xanela</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Non é un ficheiro deste equipo</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Ficheiro non compatible: %1. Arrastre á xanela unha lista de dispositivos (.xlsx, .csv, .xml, .devlist) ou un ficheiro de sitio (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Taxa de bits á medida</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Fluxo principal: formato de vídeo</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Fluxo principal: perfil de vídeo</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Fluxo principal: compresión de audio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Fluxo principal: formato de audio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Fluxo secundario: formato de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Fluxo secundario: perfil de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Fluxo secundario: compresión de audio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Fluxo secundario: formato de audio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (non lido, non escrito)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Non copiado: %1</translation>
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
        <translation>compresión do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compresión do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolución do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolución do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>taxa de bits do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>taxa de bits do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>control da taxa de bits do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>control da taxa de bits do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>taxa de fotogramas do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>taxa de fotogramas do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio do fluxo secundario</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio do fluxo principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>O dispositivo non responde</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>O dispositivo non o admite</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>O dispositivo está ocupado</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>O dispositivo rexeitou a solicitude (erro %1)</translation>
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
        <translation>A configuración do dispositivo non é válida. Poden faltar algúns valores.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>O dispositivo non comunica as súas capacidades de codificación. Poden faltar algúns valores.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canle</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Fluxo principal</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Fluxo secundario</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Non se puido ler a configuración de codificación da canle %1</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n cambio sen gardar</numerusform>
            <numerusform>%n cambios sen gardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copiar a %n dispositivo</numerusform>
            <numerusform>Copiar a %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copiar aos dispositivos seleccionados</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refrescar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Gardar</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Sen gardar: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>O dispositivo estase a actualizar. Garde cando remate.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Conexión perdida. Prema Refrescar para tentalo de novo.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, ou a canle non está conectada. Escolla outra canle ou prema Refrescar.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Non lido: %1. Ao gardar non cambian.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Tipo de fluxo</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Activar fluxo secundario</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Control da taxa</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Constante (CBR)</translation>
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
        <translation>Fotogramas (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Calidade</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Activar audio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Mostraxe (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Á medida</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Lendo a configuración de codificación…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Escribindo a resolución do fluxo secundario…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Ambos os fluxos usan a mesma compresión: o fluxo principal é agora %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Gardando a configuración de codificación…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Gardado</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Sen gardar</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Non se puido ler a configuración: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Seleccione o formato de ficheiro</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Os contrasinais do ficheiro están en texto sen cifrar. Os das contas gardadas non se exportan.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>O ficheiro non contén contrasinais. Introdúzaos antes de importalo.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Toda a lista cífrase coa frase de contrasinal e só este programa pode lela. Non se pode recuperar sen a frase de contrasinal. Os contrasinais das contas gardadas non se exportan.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Lista completa</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Sen contrasinais</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Cifrada (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>A frase de contrasinal debe ter polo menos %1 caracteres</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase de contrasinal</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>As dúas frases de contrasinal non coinciden</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repita a frase de contrasinal</translation>
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
        <translation>Non atopado na última busca</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Editar notas</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>FavouriteTable</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>IP / P2P ID</source>
        <translation>IP / ID P2P</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accións</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Elimina este dispositivo dos favoritos</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Peche o cadro de diálogo antes de arrastrar un ficheiro á xanela</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Solte para importar unha lista de dispositivos ou abrir un sitio</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use polo menos dous destes tipos: cifras, letras e símbolos, e ningún carácter non permitido.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduza o nome de usuario</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza o contrasinal</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme o contrasinal</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Os contrasinais non coinciden</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>O contrasinal debe ter de 8 a 32 caracteres</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inicialización</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n dispositivo por inicializar</numerusform>
            <numerusform>%n dispositivos por inicializar</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Novo contrasinal</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>De 8 a 32 caracteres, con polo menos dous destes tipos: cifras, letras e símbolos (todos os caracteres visibles agás </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Despois, introduza tamén o novo contrasinal na configuración de busca.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Se ten éxito</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>O dispositivo non se atopou nunha busca, ou non comunica nin enderezo MAC nin UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Deixouse de agardar polo dispositivo: o seu enderezo pode ter cambiado</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Superouse o límite de tempo: o enderezo pode ter cambiado</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Varios dispositivos seguidos rexeitaron o contrasinal. Se continúa, poden bloquearse contas.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Detendo…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Obtendo imaxes, %1 de %2 dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n imaxe</numerusform>
            <numerusform>%n imaxes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n fallida</numerusform>
            <numerusform>%n fallidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n dispositivo máis non se mostra</numerusform>
            <numerusform>%n dispositivos máis non se mostran</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir cartafol</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Deter</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Obter todo de novo</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en execución. Agarde a que remate.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Obter todas as imaxes de novo (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Gardar todo</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Escribir todas as imaxes no cartafol das instantáneas (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Obtendo…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Obter de novo (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Obtendo</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Omitido</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Imaxes dos dispositivos</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 imaxes gardadas en %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 imaxes gardadas en %2, %3 sen escribir: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositivo</numerusform>
            <numerusform>%n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Non se puido abrir o cartafol: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Seleccione dispositivos na lista de dispositivos</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Ningún dispositivo</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Gardar</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositivo</numerusform>
            <numerusform>%n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Ningún grupo</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antiescintileo</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Modo de exposición</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Ganancia</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Rango de ganancia</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Ganancia mínima</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Ganancia máxima</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensación</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Iris automático</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Redución de ruído 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Contraluz</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Modo de contraluz</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Toda a imaxe</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Rexión á medida</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Rexión de compensación</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Amplo rango dinámico</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de luces altas</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balance de brancos</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Ganancia azul</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Ganancia vermella</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Obter imaxes</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canles, móstranse as primeiras %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Gardar imaxes</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Non se puido crear o cartafol %1</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Non se puido ler esta configuración. Prema Refrescar para tentalo de novo.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Luz próxima e afastada</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Afastada</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Conmutación día/noite</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensibilidade</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Atraso de conmutación</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Iluminadores</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Iluminador</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Brillo da luz próxima</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Brillo da luz afastada</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infravermello e luz branca</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Tipo de luz</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Atraso (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>O dispositivo non enviou ningunha imaxe</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Ningunha imaxe de %n canle</numerusform>
            <numerusform>Ningunha imaxe de %n canles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Imaxe</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exposición e balance de brancos</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Día/noite e iluminadores</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>A cámara non comunica esta configuración.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Sen configuración</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Imaxe</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Vivo</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Espello e rotación</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Espello</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vista normal</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Modo corredor 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Modo corredor 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Estabilización</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Estabilización electrónica</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Antinéboa</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensidade</translation>
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
        <translation>Rexión (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>A esquerda non pode ser maior que a dereita</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>A parte superior non pode ser maior que a inferior</translation>
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
        <translation>Rango á medida</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Rango do obturador (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Obturador máis curto</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Obturador máis longo</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>O mínimo non pode ser maior que o máximo</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Canle %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canle</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Os cambios escríbense de inmediato no dispositivo.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refrescar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Predeterminados</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera os %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>O dispositivo estase a actualizar. Cambie a configuración cando remate.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Lendo a configuración da imaxe…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Escribindo a configuración da imaxe…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>O dispositivo non responde. Pode que o cambio non se escribise.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Non cambiado: %1. Móstrase o valor do dispositivo.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Xa inicializado</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualización en curso: omítese</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Enderezo MAC descoñecido: omítese</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inicialización</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Seleccione un dispositivo sen inicializar</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Só se mostran os dispositivos desta LAN. Os doutras LAN non se poden inicializar.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n máis omítese, véxase Observacións</numerusform>
            <numerusform>%n máis omítense, véxase Observacións</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Observacións</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>Non se pode ler a última lista de dispositivos %1: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>O nome dun grupo pode ter como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Os dispositivos P2P non poden estar nun grupo</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Un sitio pode ter como máximo %1 dispositivos</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Non se pode gardar o sitio: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>Non se pode gardar a lista de dispositivos: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Sitio non gardado</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Non se pode gardar o sitio anterior: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canles</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non conectado</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Eliminar da vista (Supr)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Canle %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Novo intento en %n s</numerusform>
            <numerusform>%1. Novo intento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
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
        <translation>%1 KB na memoria</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 fotogramas omitidos</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Non se puido abrir o cartafol: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>O dispositivo xa non se mostra</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vista en directo</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispositivo anterior (RePáx)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispositivo seguinte (AvPáx)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Unha vista</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 vistas</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 vistas</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Canles anteriores</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canles seguintes</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Activar son</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Manter a proporción</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Estirar para encher</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Ocultar información do fluxo</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Mostrar información do fluxo</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Facendo unha instantánea…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Instantánea da canle seleccionada</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Instantáneas de todas as canles</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Saír da pantalla completa</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en execución. Agarde a que remate.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Non se poden engadir máis dispositivos</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Seleccione primeiro na lista os dispositivos que quere engadir</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Engadir as canles dos dispositivos seleccionados na lista (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Engadir os seleccionados (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Engadir os seleccionados</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Instantáneas de todas as canles de todos os dispositivos</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>A vista en directo pechouse porque se iniciou sesión noutro dispositivo</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Ningunha canle</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Fallou o inicio de sesión</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Novo intento en %n s</numerusform>
            <numerusform>%1. Novo intento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Todos os dispositivos seleccionados xa se mostran</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Pódense engadir como máximo %1 dispositivos. %2 non se engadiron.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>%1 non responde</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Axuda</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Preguntas e respostas</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Contas</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Aparencia</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Seguir o sistema</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Informe do sitio (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modificar IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuración de dispositivos</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configuración do sistema</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocolo CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Sitio de demo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Sitio de demo: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Dispositivos simulados, sen rede. Nome de usuario e contrasinal para iniciar sesión nos dispositivos. Os dispositivos novos débense inicializar primeiro.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir sitio de demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Non hai ningunha biblioteca de dispositivos instalada: non se pode acceder aos dispositivos</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Abrindo %1 no programa de PDF do sistema</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Non se pode abrir %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Cambia o enderezo IP deste dispositivo</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Mostra toda a información deste dispositivo</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Abre a páxina web deste dispositivo no navegador</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abre a vista en directo deste dispositivo</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inicialice primeiro o dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>O dispositivo estase a actualizar. Cambie o seu enderezo cando remate.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Directo</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Dispositivo engadido, pero non gardado nos favoritos. Comprobe que pode escribir no cartafol do programa.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispositivo engadido e gardado nos favoritos</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispositivo engadido</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Engadir dispositivo</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Seleccione un dispositivo sen inicializar</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispositivo fallou: véxase Resultado</numerusform>
            <numerusform>%n dispositivos fallaron: véxase Resultado</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>O dispositivo estase a actualizar. Cambie o seu enderezo cando remate.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Cambiar enderezos IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Enderezo cambiado en %n dispositivo</numerusform>
            <numerusform>Enderezos cambiados en %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n dispositivo inicializado</numerusform>
            <numerusform>%n dispositivos inicializados</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Detido: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Quere eliminar %n dispositivo da lista?</numerusform>
            <numerusform>Quere eliminar %n dispositivos da lista?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispositivo estase a actualizar e non se eliminou</numerusform>
            <numerusform>%n dispositivos estanse a actualizar e non se eliminaron</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Eliminar dispositivos</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduza un enderezo IP válido</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Introduza unha máscara de subrede válida</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Introduza un enderezo de pasarela válido</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modificar IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Ocultar vista previa</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Mostra o novo enderezo de cada dispositivo</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP inicial</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Mesma IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Pasarela</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Úsao %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Este é o enderezo de rede ou de difusión</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>A pasarela está fóra da subrede</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Cambiar igualmente</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Este é o enderezo da pasarela</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Enderezo IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Os filtros ocultan todos os %1 dispositivos</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Buscando dispositivos…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Non se atopou ningún dispositivo</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Non hai ningunha biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Cambie os filtros ou borre o texto de busca.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Os dispositivos aparecen aquí a medida que se atopan.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Comprobe que os dispositivos estean acendidos e conectados. Para dispositivos doutras redes, engada o seu rango na configuración de busca ou engada un dispositivo polo seu enderezo.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Limpar filtros</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de novo</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Non hai ningunha rede seleccionada na configuración de busca</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Seleccione a rede local ou outras redes na configuración de busca.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuración de busca</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Por que non se atoparon dispositivos?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>O programa non se pode comunicar cos dispositivos: non se pode atopar nin cambiar ningún. O sitio de demo non precisa dispositivos e mostra todas as funcións.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir sitio de demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Buscouse: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Engadir dispositivo por enderezo</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Comprobe os cables e as redes e busque de novo.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Exportando dispositivos…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 xa existe. Quere substituílo?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispositivos exportados
Ficheiro: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Non se puido escribir o ficheiro. Comprobe o cartafol e se outro programa ten o ficheiro aberto.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione un cartafol</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Estes valores non se poden volver ler do ficheiro:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Enderezo</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Resultado da exportación</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Lendo a lista de dispositivos…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substituír</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substituír ficheiro</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Grupo…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Retirar do sitio</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Abrir unha lista de dispositivos</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Listas de dispositivos cifradas (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importados: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>dispositivos</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Non importado. O ficheiro está aberto noutro programa, ten outro formato ou contén un enderezo MAC dúas veces.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Liña</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Enderezo</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Resultado da importación</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de novo</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Mostrar motivos</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Detívose a busca; a lista está incompleta.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Non se atopou ningún dispositivo. Os que aparecen en gris atopáronse antes.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispositivo menos que na última busca</numerusform>
            <numerusform>%n dispositivos menos que na última busca</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accións</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Novo</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Define o primeiro contrasinal dos novos dispositivos seleccionados</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modificar IP por lotes</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Asigna enderezos consecutivos aos dispositivos seleccionados</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Le unha lista de dispositivos dunha folla de cálculo</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Escribe os dispositivos seleccionados nunha folla de cálculo</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Engadir manualmente</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Engade dispositivos que unha busca non atopa: por enderezo IP, por ID P2P ou dos favoritos</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>Dispositivo IP</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>Dispositivo P2P</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Elimina os dispositivos seleccionados da lista</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Sen inicializar</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Buscar…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispositivo seleccionado estase a actualizar: o seu enderezo non se pode cambiar</numerusform>
            <numerusform>%n dispositivos seleccionados estanse a actualizar: os seus enderezos non se poden cambiar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispositivo seleccionado estase a actualizar e non se pode eliminar</numerusform>
            <numerusform>%n dispositivos seleccionados estanse a actualizar e non se poden eliminar</numerusform>
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
        <translation>Imaxes dos dispositivos seleccionados (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Encher</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear cun patrón</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Seleccione o que quere nomear</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Os nomes pódense editar na táboa. Gardar escríbeos.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canle deste dispositivo</numerusform>
            <numerusform>%n canles deste dispositivo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n cámara seleccionada</numerusform>
            <numerusform>%n cámaras seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Patrón: {n}, {model}, {ip4} (final do enderezo)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Varias canles reciben o mesmo nome</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primeiro número</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Díxitos</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Nomea a canle 1 de cada cámara.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Canle %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Introduza un patrón</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Use só {n}, {model} e {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Supera os %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Gravador: omítese. Ábrao para nomear as súas canles</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Gardar</translation>
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
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>OVBanner</name>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduza unha hora válida</translation>
    </message>
</context>
<context>
    <name>OVDialog</name>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Mostra só os dispositivos que fallaron ou non se executaron, ordenados por motivo. Para os dispositivos que xa non se mostran, véxase Lotes.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimina as marcas dos dispositivos que fallaron ou non se executaron</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sen resolver %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operación sen resolver</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Todas as operacións</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Deter</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>queda menos de 1 min</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>queda aprox. %n min</numerusform>
            <numerusform>quedan aprox. %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n fallido</numerusform>
            <numerusform>%n fallidos</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Detendo…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Deter (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Reintentar os fallidos</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selecciona só os dispositivos desta páxina que fallaron ou non se executaron</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Gardar resultados</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lotes</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Buscando dispositivos…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 de %3 feitos</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n máis sen resolver</numerusform>
            <numerusform>, %n máis sen resolver</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>contrasinal incorrecto en %n dispositivo seguido</numerusform>
            <numerusform>contrasinal incorrecto en %n dispositivos seguidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>contrasinal incorrecto en %n dispositivo seguido (conta %1)</numerusform>
            <numerusform>contrasinal incorrecto en %n dispositivos seguidos (conta %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Se continúa, poden bloquearse contas. Quere continuar?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Despois de deter, seleccione outra conta no menú dos dispositivos e reintente os dispositivos fallidos (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Reintentar os fallidos: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Executa de novo «%1» para os dispositivos que fallaron ou non se executaron. Exclúense os dispositivos nos que reintentar non serve, como despois dun contrasinal incorrecto coa mesma conta.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Seleccionar sen resolver</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleccionar conta…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Seleccione outra conta para os dispositivos que rexeitaron esta e para os demais dispositivos que a usan, e próbeos de novo</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Introduza un número</translation>
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
        <translation>Media</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Seguridade do contrasinal</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Axustar ancho de columna</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Restablecer columnas</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Ocultar contrasinal</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostrar contrasinal</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>dispositivo atopado</numerusform>
            <numerusform>dispositivos atopados</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Buscar dispositivos</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuración de busca</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Contraer</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Novo</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Ningunha canle</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canle non conectada</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Fluxo interrompido</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Novo intento en %n s</numerusform>
            <numerusform>Novo intento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Reintentar agora</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 falta en p2p.ini ou non é válido</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Non se puido iniciar o servizo P2P</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Seleccione un dispositivo.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI por lotes</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Envía unha orde aos dispositivos seleccionados</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Executar folla</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Envía as ordes dunha folla de cálculo e escribe nela os resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir folla modelo</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Abre a folla modelo de ordes</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Dispositivos que fallaron</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>A orde enviarase a estes dispositivos:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Enviar orde</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Mostrar o resultado completo</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copiar resultado</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Descartar</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n cambio está sen gardar e perderase.</numerusform>
            <numerusform>%n cambios están sen gardar e perderanse.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copiar</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Quere copiar a configuración de codificación da canle %1 á mesma canle do dispositivo seleccionado?</numerusform>
            <numerusform>Quere copiar a configuración de codificación da canle %1 á mesma canle dos %n dispositivos seleccionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Isto inclúe os cambios sen gardar.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Gardando os nomes das canles…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc para deter)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuración de dispositivos</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Configuración de codificación da canle %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar config. de codificación</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Cambios sen gardar</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Gardar e saír</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nomear cun patrón</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configurar este dispositivo</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Non hai ningunha cámara entre os dispositivos seleccionados</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Non se puido gardar a opción. Comprobe que pode escribir no cartafol do programa.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Seleccione un ficheiro de firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Deter a actualización</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflito de enderezos IP: %n dispositivo</numerusform>
            <numerusform>Conflito de enderezos IP: %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Perdeuse a conexión co dispositivo P2P %1. Elimine o dispositivo e engádao de novo.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>O servizo P2P está desconectado. Agora mesmo non se pode acceder aos dispositivos P2P.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Cambiar enderezos IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Imaxes dos dispositivos seleccionados</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Contrasinal antigo correcto: á espera do novo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contrasinal</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Comprobar contrasinal antigo</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restaurar a configuración de fábrica</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo seleccionado</numerusform>
            <numerusform>%n dispositivos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Rematou o tempo: non se cambiou o contrasinal de %n dispositivo</numerusform>
            <numerusform>Rematou o tempo: non se cambiaron os contrasinais de %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Iniciouse outra operación: non se cambiou o contrasinal de %n dispositivo</numerusform>
            <numerusform>Iniciouse outra operación: non se cambiaron os contrasinais de %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Seleccione primeiro dispositivos á esquerda</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en execución. Agarde a que remate.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Contrasinal non cambiado en %n dispositivo (%1); está marcado</numerusform>
            <numerusform>Contrasinal non cambiado en %n dispositivos (%1); están marcados</numerusform>
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
        <translation>Lista de dispositivos cifrada</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase de contrasinal</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>O programa xa se está a executar.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Introduza a conta</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza o contrasinal</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de novo</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Non se puido iniciar sesión en %1. Introduza o seu nome de usuario e contrasinal.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Contrasinal incorrecto, %n vez</numerusform>
            <numerusform>Contrasinal incorrecto, %n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Resposta do dispositivo: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>O dispositivo non comunica cantos intentos quedan. Máis contrasinais incorrectos poden bloquear a conta.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Gardar como a conta deste dispositivo</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Despois dun inicio de sesión correcto, neste dispositivo iníciase sempre sesión con esta conta</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Tamén para os seguintes</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Despois dun inicio de sesión correcto, todos os dispositivos sen conta propia, tamén os dos lotes, próbanse con esta en lugar da da configuración de busca, ata que se peche o programa ou se cambie a conta da configuración de busca</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>nitidez</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>espello</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>estabilización</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exposición</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>contraluz</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>balance de brancos</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>modo día/noite</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>antinéboa</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>iluminador</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>brillo</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturación</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>ton</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Sen inicializar</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Enderezo duplicado</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Inicio de sesión rexeitado</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Non se pode ler</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Reloxo inexacto</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware máis antigo</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Sen servidor de hora</translation>
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
        <translation>%1 adiantado</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 atrasado</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; outro dispositivo deste modelo ten %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nome da canle</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Configuración de codificación</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Configuración de imaxe</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Configuración de imaxe: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe do sitio</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalías</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Cambios desta visita</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Enderezo</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porto</translation>
    </message>
    <message>
        <source>固件版本</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Desfase horario</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Desfase horario (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Servidor de hora</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canles</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Fluxo principal</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canle</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Largura (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Altura (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Imaxe</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Valor novo</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Non comunicado</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Sen imaxe</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Sen anomalías.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Non se cambiou ningún dispositivo desde o inicio do programa.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Lidos</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Con anomalías</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Non se pode crear o ficheiro PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Non se pode crear o cartafol %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>Non se pode escribir %1: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 cambios anteriores non figuran na lista.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 canles máis</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canle %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Cambiar enderezo IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Axustar hora</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Servidor de hora e fuso horario</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Horario de verán</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Mantemento automático</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Restaurar predeterminados</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Estándar de vídeo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contrasinal</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Non se pode usar o cartafol de ficheiros temporais %1: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispositivos seguidos rexeitaron o inicio de sesión</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Cambio de idioma</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>O idioma cambia cando se reinicia o programa.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Máis tarde</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>A orde fallou</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Descoñecido</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>A conta non existe</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contrasinal incorrecto</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>A conta está bloqueada. Agarde a que o dispositivo a desbloquee.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>A conta xa está en uso</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>O dispositivo non responde</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>O protocolo non coincide</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>O dispositivo non está inicializado</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>O dispositivo non o admite</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>O dispositivo xa está na lista</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Non se puideron ler as capacidades do dispositivo</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>O dispositivo rexeitou a solicitude</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erro descoñecido %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>O dispositivo estase a actualizar</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non executado</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>A instantánea fallou</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Datos non válidos</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>O ficheiro de firmware non se pode usar</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Non actualizado</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Actualización non confirmada</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>O dispositivo está ocupado. Ténteo máis tarde.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>A sesión caducou. Inicie sesión de novo.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>O dispositivo non acepta este valor</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>O certificado do dispositivo non é de confianza</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>O certificado do dispositivo cambiou</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Outro dispositivo responde neste enderezo</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Recibido polo dispositivo, sen confirmar</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copiar texto</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Informe de busca</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiouse no portapapeis</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interface de rede</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Este ordenador non ten ningunha interface de rede utilizable</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Comprobe que haxa unha interface instalada e activada.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Busca por enderezo</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Enderezos consultados</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Respostas</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Non hai ruta a %1 destes enderezos</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Defina unha pasarela para a interface ou engada un enderezo da mesma rede ca estes enderezos.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Non responde ningún enderezo</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Comprobe o rango de enderezos na configuración de busca e que os dispositivos estean acendidos.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Outras redes</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispositivos atopados fóra de todas as redes deste ordenador: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Antes de iniciar sesión neles, cambie os seus enderezos IP ou engada á interface un enderezo da súa rede.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Enderezos</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Solicitudes enviadas</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Mensaxes recibidas</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Dispositivos atopados</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Non usado</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>mensaxes ilexibles: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>mensaxes de dispositivos que non son cámaras nin gravadores: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>mensaxes sen enderezo de servizo: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>mensaxes co enderezo de servizo doutro servidor: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>mensaxes de dispositivos que deixan a rede: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>mensaxes por riba do límite: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>A interface está desactivada</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Actívea na configuración de rede do sistema operativo.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>A interface non está conectada</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Comprobe o cable e o conmutador, ou conéctese a unha rede sen fíos.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>A interface non ten enderezo IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Defina un enderezo da rede dos dispositivos ou active o DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>A interface non pode enviar multidifusión</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Seleccione outras redes na configuración de busca para buscar por enderezo.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>O sistema operativo non enviou as solicitudes: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Comprobe a devasa deste ordenador e a configuración da interface.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Non se recibiu ningunha resposta</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Comprobe que os dispositivos estean acendidos e na mesma rede, e que ningunha devasa ou conmutador filtre as súas respostas. Tamén pode buscar por enderezo: véxase a configuración de busca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispositivos atopados, %2 menos que na última busca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispositivos atopados: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Non se atopou ningún dispositivo.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>A IP inicial non pode ser maior que a IP final</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>O rango pode abranguer 17 segmentos</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduza unha IP inicial válida</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Introduza unha IP final válida</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Configuración de busca</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Buscar na rede local</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Buscar noutras redes</translation>
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
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Conta predeterminada para iniciar sesión nos dispositivos</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Iniciar sesión durante a busca</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Le o modelo, a versión e o enderezo MAC. Todos os dispositivos reciben esta conta. Despois dun contrasinal incorrecto, o dispositivo non se proba de novo.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>non hai servizo de chaves</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>o servizo de chaves está bloqueado</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>o servizo de chaves non responde</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Algúns contrasinais están no servizo de chaves do escritorio e non se poden ler (%1). Introdúzaos de novo.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Non se pode usar o servizo de chaves do escritorio (%1). Os contrasinais gárdanse en ficheiros.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Non se puido gardar o contrasinal no servizo de chaves do escritorio (%1). Gárdase nun ficheiro.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Non se puido eliminar o contrasinal do servizo de chaves do escritorio (%1). Elimíneo no xestor de chaves do sistema.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Non se puido abrir o sitio de demo:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>O ficheiro non é un ficheiro de sitio ou está danado</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>O ficheiro de sitio é dunha versión máis nova e non se pode ler</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>O ficheiro de sitio ten máis de %1 dispositivos</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>O nome no ficheiro de sitio non é válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispositivo %1 do ficheiro de sitio: %2 non é válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>O dispositivo %1 do ficheiro de sitio está repetido</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Non se puido abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>O ficheiro é demasiado grande</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Ficheiros de sitio (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Abrir sitio</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Sitio «%1» aberto, con %n dispositivo</numerusform>
            <numerusform>Sitio «%1» aberto, con %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Non se pode abrir o sitio %1: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Gardar sitio como</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>O sitio gardouse en %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>O ficheiro non contén contrasinais.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Un sitio novo retira da lista os dispositivos coñecidos e os grupos. Os cambios non gardados consérvanse nos sitios recentes.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Sitio novo</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Abrir sitio…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Gardar sitio como…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Sitio novo…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Introduza o nome do sitio</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione un cartafol</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Seleccione polo menos un ficheiro</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Non hai dispositivos na lista</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Crear informe</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe do sitio</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Xa se está a crear un informe</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nome do sitio</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Gardar en</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Escoller…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Todos (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Seleccionados (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>O programa inicia sesión en cada dispositivo, le a súa configuración e obtén unha imaxe. O informe inclúe os cambios desde o inicio do programa e non contén contrasinais.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Non se pode abrir %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Abrir PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe do sitio</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir cartafol</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>O informe está listo</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione un cartafol</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Outro cartafol…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canle non conectada</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>A instantánea fallou</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>A instantánea fallou: non se puido escribir o ficheiro: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Facendo unha instantánea…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Pechar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir cartafol</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Facendo a instantánea %1 de %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Deter</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Detendo…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n feita</numerusform>
            <numerusform>%n feitas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallida</numerusform>
            <numerusform>%n fallidas</numerusform>
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
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non executado</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>O dispositivo xa non se mostra</translation>
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
        <translation>Día</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Día da semana</translation>
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
        <translation>Horario de verán</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Por data</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Por semana</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Aplicar horario de verán</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduza unha hora válida</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Borrar busca</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de novo</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Ningún dispositivo con este nome, tipo, modelo ou enderezo.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Os dispositivos aparecen aquí a medida que se atopan.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Só se mostran os dispositivos IPv4 inicializados.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Ningún dispositivo coincide</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Buscando dispositivos…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Ningún dispositivo que configurar</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Non hai ningunha biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>O programa non se pode comunicar cos dispositivos. Abra o sitio de demo na páxina «Modificar IP».</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Borrar marcas</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Elimina as marcas dos dispositivos que fallaron ou non se executaron</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Iniciouse sesión en todos os dispositivos da lista.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispositivo sen enderezo (DHCP) non se mostra</numerusform>
            <numerusform>%n dispositivos sen enderezo (DHCP) non se mostran</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Os dispositivos que fallaron ou non se executaron non están nesta árbore: non están inicializados, non teñen enderezo IPv4 ou non se atoparon de novo. Véxase a páxina «Modificar IP» e Lotes.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Xaneiro</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Febreiro</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Xuño</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Xullo</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Decembro</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Primeira</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Segunda</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Terceira</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Cuarta</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Última</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Luns</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Mércores</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Xoves</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Venres</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Luns</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Mércores</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Xoves</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Venres</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>A diario</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>O dispositivo non responde</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Non se puido ler a hora</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>O dispositivo non responde. O seu contrasinal pode ter cambiado.</translation>
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
        <translation>Fuso horario</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinicio</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Valores de fábrica</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Estándar de vídeo</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>Quedan %1 s para introducir o contrasinal. Despois haberá que comprobar de novo o contrasinal antigo.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Quedan %1 s para introducir o contrasinal</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispositivo á espera do novo contrasinal</numerusform>
            <numerusform>%n dispositivos á espera do novo contrasinal</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>restaurouse o novo contrasinal que introduciu</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Comprobe de novo o contrasinal antigo. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>O novo contrasinal que introduciu restaurarase entón.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Rematou o tempo: non se cambiou o contrasinal de %n dispositivo. </numerusform>
            <numerusform>Rematou o tempo: non se cambiaron os contrasinais de %n dispositivos. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>A selección cambiou. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use polo menos dous destes tipos: cifras, letras e símbolos, e ningún carácter non permitido.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme o contrasinal</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Os contrasinais non coinciden</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>O contrasinal debe ter de 8 a 32 caracteres</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Introduza o contrasinal antigo</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Paso 1: comprobe o contrasinal antigo</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Contrasinal antigo</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Paso 2: defina o novo contrasinal</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Novo contrasinal</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar contrasinal</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>De 8 a 32 caracteres, con polo menos dous destes tipos: cifras, letras e símbolos (todos os caracteres visibles agás &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contrasinal</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Se ten éxito</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Horario de verán activado</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Horario de verán desactivado</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP desactivado</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Reinicio %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Reinicios periódicos desactivados</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Quere reiniciar o dispositivo seleccionado?</numerusform>
            <numerusform>Quere reiniciar os %n dispositivos seleccionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Quere restablecer o dispositivo seleccionado á configuración de fábrica?</numerusform>
            <numerusform>Quere restablecer os %n dispositivos seleccionados á configuración de fábrica?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>«%1» aplicarase a estes dispositivos:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>O intervalo de actualización é de 0 minutos: o dispositivo pode deixar de actualizar a hora. Quere aplicalo ao dispositivo seleccionado?</numerusform>
            <numerusform>O intervalo de actualización é de 0 minutos: os dispositivos poden deixar de actualizar a hora. Quere aplicalo aos %n dispositivos seleccionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Aplicar igualmente</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Mantemento automático</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Reinicio periódico</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Reinicio ás</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Día de reinicio</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Mentres se reinicia, non se pode acceder ao dispositivo e este non grava.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispositivo seleccionado estase a actualizar e non se pode reiniciar</numerusform>
            <numerusform>%n dispositivos seleccionados estanse a actualizar e non se poden reiniciar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restaurar a configuración de fábrica</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Borra toda a configuración, as contas e os contrasinais dos dispositivos. Isto non se pode desfacer. Haberá que inicializar os dispositivos de novo.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispositivo seleccionado estase a actualizar e non se pode restablecer</numerusform>
            <numerusform>%n dispositivos seleccionados estanse a actualizar e non se poden restablecer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Hora do ordenador</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Axustar á hora do ordenador</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Axusta cada dispositivo á hora en que recibe a solicitude</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manualmente</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Usar a hora actual</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Hora do dispositivo</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Ler as horas</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivo</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Sesión non iniciada %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Mostra só os dispositivos sen inicio de sesión ata agora ou con fallo no último inicio de sesión</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sen resolver %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Mostra só os dispositivos que fallaron ou non se executaron, ordenados por motivo.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n máis non está nesta lista: véxase Lotes.</numerusform>
            <numerusform> %n máis non están nesta lista: véxase Lotes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Estándar de vídeo</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL é para rexións con rede eléctrica de 50 Hz, NTSC para 60 Hz. Algúns dispositivos reinícianse despois do cambio.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Os dispositivos non ofrecen esta función</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Introduza o servidor NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Fuso horario e NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fuso horario</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Activar NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Servidor NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP ou nome do servidor</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Porto NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervalo (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Aplicar fuso horario e NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Os dispositivos non ofrecen %1, o fuso horario deste ordenador. Seleccione un fuso horario.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Introduza un enderezo IP ou un nome de servidor válido</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Enderezo IP do dispositivo, ou «enderezo:porto web» se o porto web non é o 80. Obrigatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Porto de inicio de sesión do dispositivo. Só se usa para comprobar a conta.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Nome de usuario do dispositivo, sen dous puntos.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Contrasinal do dispositivo. Elimíneo despois do ficheiro.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Orde que comeza por «/». O dispositivo recibe dúas veces unha orde aceptada. Obrigatorio.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 para HTTP, outros enteiros para HTTPS. HTTP se está baleiro.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Énchea o programa: a resposta, a ruta da imaxe ou da gravación, ou «Error:» e o motivo.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Ordes</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucións</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Conserve a fila de cabeceira. Substitúa a fila de exemplo polas súas filas.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>As filas sen enderezo nin orde omítense.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Non abra este ficheiro noutro programa mentres se executa.</translation>
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
            <numerusform>%n dispositivo non se pode actualizar con este ficheiro: véxase Resultado</numerusform>
            <numerusform>%n dispositivos non se poden actualizar con este ficheiro: véxase Resultado</numerusform>
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
        <translation>Porto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contrasinal</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Ficheiro de firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Non se puido abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>O formato do ficheiro é incorrecto</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Non se puideron gardar os resultados: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultados gardados en %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Non se puido escribir o ficheiro. É de só lectura ou está aberto noutro programa. Resultados gardados en %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>A folla de cálculo ten máis de %1 dispositivos. Divídaa.</translation>
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
        <translation>%1: %2 actualizados, %3 fallidos. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>A folla de cálculo non contén dispositivos</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: omítese</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>O dispositivo xa ten esta versión</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Lectura da folla de cálculo</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Iniciar actualización</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde folla de cálculo</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n dispositivo actualizarase. Reiniciarase. Non o apague.</numerusform>
            <numerusform>%n dispositivos actualizaranse. Reiniciaranse. Non os apague.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Os resultados escríbense na folla de cálculo.</translation>
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
        <translation>Actualización: %1 de %2 feitos</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n correcto</numerusform>
            <numerusform>%n correctos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallido</numerusform>
            <numerusform>%n fallidos</numerusform>
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
        <translation>Iniciando sesión</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Enviando</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Escribindo</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciando</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porto</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Accións</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Ningún</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Reintentar pode servir</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corrixa o ficheiro, a conta ou o dispositivo e actualice de novo</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleccionar ficheiro</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Deter</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>A escritura comezou: non se pode deter</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
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
        <translation>Enderezo IP do dispositivo. Obrigatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Porto de inicio de sesión do dispositivo. 37777 se está baleiro.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Nome de usuario do dispositivo. Se este e o contrasinal están baleiros, úsase a conta do programa.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Contrasinal do dispositivo. Elimíneo despois do ficheiro.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Ruta do ficheiro de firmware, absoluta ou relativa ao cartafol desta folla de cálculo. Obrigatorio.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Énchea o programa: as versións de antes e despois da actualización, ou por que fallou.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucións</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Conserve a fila de cabeceira. Substitúa a fila de exemplo polas súas filas.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>As filas sen enderezo nin ficheiro de firmware omítense.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Non abra este ficheiro noutro programa durante a actualización.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>A escritura comezou: non se pode deter</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 ao %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Aínda non se detivo: téntase de novo</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware escrito, o dispositivo reiníciase: non se pode deter</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: ningunha versión comunicada</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: agora %2, versión anterior descoñecida</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Iniciar actualización</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Actualiza os dispositivos seleccionados</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleccionar ficheiro</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selecciona un ficheiro de firmware para os dispositivos seleccionados</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Reintentar os fallidos</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Actualiza de novo os dispositivos nos que reintentar pode servir, como os que non responderon</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde folla de cálculo</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Actualiza os dispositivos dunha folla de cálculo e escribe nela os resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir folla modelo</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Abre a folla modelo de actualización</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Buscar…</translation>
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
        <translation>Dispositivos á vez</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispositivos actualizados á vez</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Agardando a que o dispositivo se reinicie</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Escribindo: non apague o dispositivo</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Enviando o ficheiro</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Iniciando sesión</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Ningún ficheiro de firmware seleccionado</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>O ficheiro de firmware non existe</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Non se puido ler o ficheiro de firmware</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>O ficheiro de firmware está baleiro</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>O ficheiro de firmware é demasiado grande</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>O ficheiro de firmware está danado</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>O firmware é para outros modelos</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rexeitado polo dispositivo</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contrasinal incorrecto</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>A conta non existe</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>A conta está bloqueada</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>O dispositivo non está inicializado</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Actualización non compatible ou dispositivo sen inicializar</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Enderezo IP ou porto non válido</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>O mesmo dispositivo que nunha fila anterior</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>O dispositivo non responde</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>O dispositivo está ocupado. Ténteo máis tarde.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Interrompido polo dispositivo</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Sen progreso durante demasiado tempo</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Sen resposta despois do reinicio</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>A mesma versión despois do reinicio</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Detido: dispositivo sen cambios</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Interrompido: pechouse o programa</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erro descoñecido %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Folla modelo actualización por lotes.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Reiniciado, pero non se puido ler a versión</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>O certificado non é de confianza</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>O certificado cambiou</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>O dispositivo xa non está na lista</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Seleccione un ficheiro de firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Ficheiro de firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Ningún dispositivo que reintentar</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispositivo non se actualizou: véxase Resultado</numerusform>
            <numerusform>%n dispositivos non se actualizaron: véxase Resultado</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n dispositivo actualizado</numerusform>
            <numerusform>%n dispositivos actualizados</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Non se puido abrir a folla modelo.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde folla de cálculo</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Detido: %1 actualizados, %2 fallidos, %3 non executados</translation>
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
        <translation>Detección de movemento</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Compensación de contraluz</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Amplo rango dinámico</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Compensación de luces altas</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codificación</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Imaxe</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Prema nun dispositivo da esquerda para iniciar sesión e cambiar a súa configuración.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Fallou o inicio de sesión</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continuar aquí</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Só se pode iniciar sesión nun dispositivo á vez. Se continúa, pecharase a vista en directo do outro dispositivo.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>A vista en directo doutro dispositivo está aberta</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nomes das canles</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>A configuración dos dispositivos móstrase e cámbiase aquí cando unha busca atopa algún.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Ningún dispositivo</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear cun patrón</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Prema nun dispositivo á esquerda para cambiar aquí os nomes das súas canles, ou dea nome ás cámaras seleccionadas xuntas.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Sen imaxe: faltan ficheiros no cartafol Shaders ou están danados</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Sen imaxe: demasiado grande para a tarxeta gráfica</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>A reprodución fallou</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>A reprodución fallou: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Perdeuse a conexión co dispositivo</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>O dispositivo finalizou o fluxo</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>O dispositivo non envía vídeo</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>O dispositivo xa non acepta o inicio de sesión</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>O dispositivo non envía un fluxo de vídeo</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Este ordenador non pode descodificar o fluxo</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Canle %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>O certificado do dispositivo cambiou. Non se abriu a páxina web. Non introduza ningún contrasinal neste dispositivo.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>O certificado do dispositivo non está confirmado. Non se abriu a páxina web.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Non se puido abrir o navegador. Páxina web do dispositivo: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Non se puido gardar a configuración. Comprobe que pode escribir no cartafol do programa.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Deter e saír</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Os dispositivos que escriben firmware rematan sós: non os apague.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificado xa é de confianza. Ténteo de novo.</numerusform>
            <numerusform>%n certificados xa son de confianza. Ténteo de novo.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Saír do programa</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>A conta non se pode gardar e só se usa ata a próxima busca: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>«%1» está en execución. Se sae, os dispositivos restantes non se cambiarán.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Detívose o informe; non se escribiu ningún ficheiro</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Responderon máis de %1 dispositivos. Non se mostran outras %2 respostas. Busque nun rango menor.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Detido: %1 filas correctas, %2 fallidas, %3 non enviadas.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Rematado: %1 filas correctas, %2 fallidas.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Non se puideron gardar os resultados: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultados gardados en %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Non se puido escribir o ficheiro. É de só lectura ou está aberto noutro programa. Resultados gardados en %1</translation>
    </message>
</context>
</TS>
