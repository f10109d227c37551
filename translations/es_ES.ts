<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copiar número de versión</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licencias de terceros</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Añadir cuenta</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Modificar cuenta</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduzca un nombre</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Por ejemplo: Edificio 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduzca el usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduzca la contraseña</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Dejar vacío para conservarla</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Guarda las credenciales con las que la herramienta inicia sesión. Las contraseñas de los dispositivos no cambian.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>La cuenta no se puede guardar y solo se usa hasta la próxima búsqueda: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>La nueva cuenta es ahora la cuenta predeterminada</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>La nueva cuenta se ha guardado y se usará para este dispositivo a partir de ahora</numerusform>
            <numerusform>La nueva cuenta se ha guardado y se usará para estos %n dispositivos a partir de ahora</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Guardar para estos dispositivos (recomendado)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Usar como cuenta predeterminada de todos</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>No guardar; usar hasta la próxima búsqueda</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>El dispositivo no tiene MAC ni UUID: la cuenta solo se usa hasta la próxima búsqueda</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>No se puede leer el archivo de cuentas, %1: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>El archivo de cuentas está dañado y no se usa ninguna de sus cuentas: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Introduzca un nombre de hasta %1 caracteres</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Introduzca un usuario de hasta %1 caracteres</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Introduzca una contraseña de hasta %1 caracteres</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Ya existe una cuenta llamada «%1»</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>No existe ninguna cuenta llamada «%1»</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Sin espacio: como máximo %1 cuentas y %2 dispositivos</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispositivo usa la cuenta predeterminada</numerusform>
            <numerusform>%n dispositivos usan la cuenta predeterminada</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispositivo usa la cuenta «%1»</numerusform>
            <numerusform>%n dispositivos usan la cuenta «%1»</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n de ellos no tiene MAC ni UUID y solo la usa hasta la próxima búsqueda</numerusform>
            <numerusform>; %n de ellos no tienen MAC ni UUID y solo la usan hasta la próxima búsqueda</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>¿Eliminar la cuenta «%1»?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> En el dispositivo que la usa se iniciará sesión con la cuenta predeterminada a partir de entonces.</numerusform>
            <numerusform> En los %n dispositivos que la usan se iniciará sesión con la cuenta predeterminada a partir de entonces.</numerusform>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Seleccionar cuenta</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>La cuenta predeterminada se modifica en los ajustes de búsqueda</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Cada dispositivo se prueba con una sola cuenta: la seleccionada para él o, si no la hay, la predeterminada. Nunca se prueban otras cuentas.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Cuenta predeterminada</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Eliminar cuenta</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>¿Eliminar %n cuenta que no tiene ningún dispositivo?</numerusform>
            <numerusform>¿Eliminar %n cuentas que no tiene ningún dispositivo?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Eliminar cuentas no usadas</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Cuentas no seleccionadas para ningún dispositivo</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Los dispositivos han rechazado esta cuenta. Seleccione o añada otra.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Usar para %n dispositivo y reintentar</numerusform>
            <numerusform>Usar para %n dispositivos y reintentar</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Los dispositivos han rechazado la cuenta %1. Seleccione o añada otra.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Introduzca el ID de P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Introduzca una dirección IP válida</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Introduzca la cuenta</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduzca la contraseña</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Introduzca el número de puerto</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>El puerto debe estar entre 1 y 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Añadir dispositivo</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>ID de P2P</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Hasta 50 caracteres</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Añadiendo…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No se pudieron guardar las notas. Compruebe que puede escribir en la carpeta del programa.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>No se pudo eliminar el favorito. Compruebe que puede escribir en la carpeta del programa.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Añadir</translation>
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
        <translation>Doble clic en una fila para añadir el dispositivo</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Borrar filtros</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Añadir dispositivo</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Cambie o borre el texto de búsqueda.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Seleccione «Añadir a favoritos» al añadir un dispositivo para guardarlo aquí.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Ningún favorito coincide con la búsqueda</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Aún no hay favoritos</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>¿Eliminar %1 de los favoritos?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Añadir favoritos</translation>
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
        <translation>No se puede leer la contraseña: haga doble clic para introducirla</translation>
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
        <translation>Sin dirección MAC: omitido</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>En uso por otro dispositivo</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Asignada dos veces</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Igual que la puerta de enlace</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Fuera de la subred</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Dirección de red o de difusión</translation>
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
        <translation>El lote está en curso</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Hay dispositivos esperando la nueva contraseña</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Ningún dispositivo fallido o no ejecutado</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Esta operación no se puede reintentar aquí</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Solo se puede reintentar el lote más reciente</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Un reintento no puede ayudar a estos dispositivos. Corrija antes la causa, por ejemplo la cuenta.</translation>
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
            <numerusform>Enviar este comando al dispositivo seleccionado:</numerusform>
            <numerusform>Enviar este comando a los %n dispositivos seleccionados:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lotes</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Reintentar fallidos</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Ejecuta de nuevo el lote para los dispositivos fallidos o no ejecutados</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Restaurar direcciones</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Devuelve los dispositivos modificados a sus direcciones IP anteriores</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>¿Devolver %n dispositivo a su dirección IP anterior?</numerusform>
            <numerusform>¿Devolver %n dispositivos a sus direcciones IP anteriores?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Guardar resultados</translation>
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
        <translation>Solo fallidos</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Incluye los dispositivos no ejecutados</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
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
        <translation>Aún no hay lotes</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Ningún dispositivo fallido</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Restaurar direcciones IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Guarda los resultados de todos los lotes de la lista en un archivo</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Espere a que termine el lote actual</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>No inicializado: omitido</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualización en curso: omitido</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflicto de direcciones: podría modificarse otro dispositivo</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>En uso por otro dispositivo</translation>
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
            <numerusform>%n advertencia: ver Notas</numerusform>
            <numerusform>%n advertencias: ver Notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispositivo se omite: ver Notas</numerusform>
            <numerusform>%n dispositivos se omiten: ver Notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>se ejecuta en %n dispositivo</numerusform>
            <numerusform>se ejecuta en %n dispositivos</numerusform>
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
        <translation>Nombre y modelo</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Dirección anterior</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:puerto</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Dirección nueva</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Archivo de firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nombre nuevo</translation>
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
            <numerusform>%n esperando la nueva contraseña</numerusform>
            <numerusform>%n esperando la nueva contraseña</numerusform>
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
            <numerusform>%n no ejecutado</numerusform>
            <numerusform>%n no ejecutados</numerusform>
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
        <translation>Contraseña anterior correcta</translation>
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
        <translation>Nombre</translation>
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
        <translation>Tiempo límite superado</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: omitido</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Guardar resultados</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Resultados guardados en %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>No se pudieron guardar los resultados. Elija otra carpeta.
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
            <numerusform>Hay %n advertencia. ¿Continuar?</numerusform>
            <numerusform>Hay %n advertencias. ¿Continuar?</numerusform>
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
        <translation>Los dispositivos no pueden intercambiar direcciones (como %1 y %2) en un solo paso. Asigne antes otra dirección a uno de ellos.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>No hay suficiente memoria o hilos para iniciar. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Guardar resultados</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 aún está en uso por el dispositivo %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispositivo no se reintentó: su dirección ha cambiado o ya no está en la lista (%1)</numerusform>
            <numerusform>%n dispositivos no se reintentaron: sus direcciones han cambiado o ya no están en la lista (por ejemplo, %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Hay actualizaciones en curso. Busque cuando hayan terminado.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Hay actualizaciones en curso. Cierre el programa cuando hayan terminado.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>», «</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>«%1» está en curso. Busque cuando haya terminado.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>«%1» está en curso. Elimine dispositivos cuando haya terminado.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>«%1» está en curso. Modifique dispositivos cuando haya terminado.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>«%1» está en curso. Cierre el programa cuando haya terminado.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>«%1» está en curso. Reinicie el programa cuando haya terminado.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Hay una búsqueda en curso. Deténgala con Esc o espere a que termine.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Hay comandos de otra hoja de cálculo en curso. Espere a que terminen.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Plantilla de CGI por lotes.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Hay otro comando CGI en curso. Espere a que termine.</translation>
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
        <translation>contraseña de la cuenta predeterminada</translation>
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
        <translation>Prioridad de ganancia</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Prioridad de obturador</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Luz natural</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Farola</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Zona personalizada</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarrojo</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Luz blanca</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Inteligente</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Confiar en selección</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmar certificados de dispositivos</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>No se pudieron guardar los certificados. No se confía en ninguno.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 de %2 dispositivos seleccionados</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Estos dispositivos usan certificados autofirmados para HTTPS. No se ha enviado ninguna contraseña. Compare las huellas. Tras confirmarla, solo se acepta esta clave.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>El certificado de %n dispositivo ha cambiado. No se ha enviado ninguna contraseña. Puede ser otro dispositivo: selecciónelo solo si conoce el motivo, como un restablecimiento de fábrica.</numerusform>
            <numerusform>Los certificados de %n dispositivos han cambiado. No se ha enviado ninguna contraseña. Pueden ser otros dispositivos: selecciónelos solo si conoce el motivo, como un restablecimiento de fábrica.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:puerto</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC o UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Huella</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Huella (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Huella de confianza</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nuevo</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>No se puede leer el archivo de certificados, %1: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>El archivo de certificados está dañado. No se confía en ningún certificado. Confírmelos de nuevo: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>No hay túnel al puerto web del dispositivo.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No enviado</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>Comando CGI</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Eliminar de los comandos guardados</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Guardar este comando</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>La cabecera de la respuesta es demasiado grande.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Usuario o contraseña incorrectos. Compruebe la cuenta en los ajustes de búsqueda.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>La cuenta está bloqueada. Espere a que el dispositivo la desbloquee.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Sin respuesta del dispositivo.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>El dispositivo no está inicializado.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Error desconocido.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>El dispositivo rechazó la solicitud</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>La respuesta es demasiado grande.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>No se pudo escribir el archivo: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>La parte recibida de la grabación está en %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>El dispositivo se está actualizando.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>El certificado del dispositivo no es de confianza.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>El certificado del dispositivo ha cambiado.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>No se encontró el host</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>El dispositivo rechazó la conexión. Compruebe el puerto HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>No se puede acceder al dispositivo</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>El dispositivo no respondió a tiempo</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>No hay conexión cifrada. Compruebe el puerto HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>La respuesta del dispositivo no es HTTP válido</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>La conexión se cerró antes del final de la respuesta</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>La solicitud falló</translation>
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
        <translation>Un usuario no debe contener dos puntos ni caracteres de control.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Una contraseña no debe contener caracteres nulos.</translation>
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
        <translation>No se pudo escribir el archivo: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Guarda el texto en un archivo</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione una carpeta</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Enviando un comando CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI por lotes</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduzca un comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>El comando debe empezar por /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Detenido: %1 de %2 realizados</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Enviado a %n dispositivo: aceptado</numerusform>
            <numerusform>Enviado a %n dispositivos: todos aceptados</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>El dispositivo aceptó el comando y no devolvió ningún resultado.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Enviado a %n: %1 aceptados, %2 fallidos</numerusform>
            <numerusform>Enviado a %n: %1 aceptados, %2 fallidos</numerusform>
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
        <translation>IP:puerto</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Clic derecho para copiar el resultado</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Envía el comando a este dispositivo</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Mostrar todo el resultado</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>El dispositivo se está actualizando. Envíe comandos cuando haya terminado.</translation>
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
        <translation>Ejecutar hoja</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Se enviarán los comandos CGI de la hoja de cálculo. Los resultados se escriben en ella.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>No se pudo abrir la plantilla.</translation>
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
        <translation>Hay comandos de otra hoja de cálculo en curso. Espere a que terminen.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Leyendo la hoja de cálculo</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Fila %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>El archivo ha cambiado. Ábralo de nuevo.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Guardando la hoja de cálculo</translation>
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
        <translation>Sin guardar</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nombre del canal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nombre no comunicado</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Introduzca un nombre</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Más de %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rechazado por el dispositivo</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Sin respuesta del dispositivo</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Modificado por el dispositivo</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Acortar</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Acorta el nombre a lo que el dispositivo puede guardar</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Restaura el nombre que tiene el dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>El dispositivo se está actualizando</translation>
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
        <translation>Conexión</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
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
        <translation>No conectado</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nombre de canal sin guardar</numerusform>
            <numerusform>%n nombres de canal sin guardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n cambio sin guardar</numerusform>
            <numerusform>%n cambios sin guardar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>El dispositivo no comunica el nombre de %n canal</numerusform>
            <numerusform>El dispositivo no comunica los nombres de %n canales</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>El dispositivo se está actualizando. Guarde cuando haya terminado.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nombrar por patrón</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Nombrar varios canales o cámaras con un solo patrón</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Leyendo nombres de canales…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nombre de canal guardado</numerusform>
            <numerusform>%n nombres de canal guardados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nombre de canal sin guardar</numerusform>
            <numerusform>%n nombres de canal sin guardar</numerusform>
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
        <translation>Puerto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Comando CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>El formato del archivo es incorrecto</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduzca un comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>El comando debe empezar por /</translation>
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
            <numerusform>%n dispositivo aceptó solo una parte</numerusform>
            <numerusform>%n dispositivos aceptaron solo una parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispositivo fallido</numerusform>
            <numerusform>%n dispositivos fallidos</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispositivo no ejecutado</numerusform>
            <numerusform>%n dispositivos no ejecutados</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar codificación</translation>
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
        <translation>No se pudo leer la configuración del dispositivo</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>No se pudieron leer las capacidades del dispositivo</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Sesión iniciada de nuevo. Los cambios no guardados se han perdido.</translation>
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
        <translation>El programa se cerró inesperadamente. Se ha escrito un informe</translation>
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
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>No se pudo escribir el archivo %1</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>El dispositivo no tiene página web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 ya está en los favoritos</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 añadido a los favoritos</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No se puede guardar el favorito. Compruebe si se puede escribir en la carpeta del programa.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Reemplazar archivo</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>El dispositivo no comunica dirección MAC ni UUID y no puede tener una nota</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>No se puede acceder al dispositivo por P2P. Compruebe el ID de P2P y la conexión de red.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflicto de direcciones IP</translation>
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
        <translation>igual que este equipo</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>%1 de adelanto</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 de retraso</translation>
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
        <translation>Identidad</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
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
        <translation>No inicializado</translation>
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
        <translation>Red</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Dirección IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Dirección IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Dirección del dispositivo</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara de subred</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Puerta de enlace</translation>
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
        <translation>Nombre de host</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Encontrado por</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Puertos</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Puerto local</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Puerto de servicio</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Puerto de servicio</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>Puerto HTTP</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>Puerto HTTPS</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>Puerto RTSP</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Conexiones máximas</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Entradas de alarma</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Discos duros</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Añadido por</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manualmente (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manualmente (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>ID de P2P</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>Puerto P2P</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Detalles del dispositivo</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Error de inicio de sesión: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Iniciar sesión para leer más</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Inicia sesión en el dispositivo para leer sus puertos, canales y discos duros</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Guarda el texto en un archivo</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Ninguna entrada coincide con la búsqueda</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copiar esta línea</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>No se pudo leer el archivo de bibliotecas de dispositivos %1</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>El archivo de bibliotecas de dispositivos %1 contiene una línea desconocida: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>Falta [%1] o su entrada «file» en el archivo de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Falta la función %2 de %1 en el archivo de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Función %2 de %1 desconocida en el archivo de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>No se pudo cargar la biblioteca de dispositivos %1: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>La biblioteca de dispositivos %1 no exporta %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>La línea %1 es demasiado larga</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>La línea %1 no está codificada en UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>El archivo es demasiado grande</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Más campos que columnas</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un campo es demasiado largo</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un campo contiene un carácter de control</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Modo de adición desconocido</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Dirección de dispositivo no válida</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Puerto de dispositivo no válido</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Falta el usuario o la contraseña</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Las líneas %1 y %2 tienen la misma dirección MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>El archivo contiene más de %1 dispositivos</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>El archivo no tiene la fila de cabecera de una lista de dispositivos</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>No se pudo leer la hoja de cálculo</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>El elemento raíz no es deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>La línea %1 no es XML válido</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>La codificación %1 no es compatible</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>La hoja tiene más de %1 filas</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>El carácter %1 no se puede volver a leer desde este formato</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>El contenido de la lista cifrada no es válido</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>El archivo no es una lista de dispositivos cifrada o está incompleto</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Esta versión de las listas cifradas no es compatible</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Los parámetros de la lista cifrada no son válidos</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>La lista está cifrada: se necesita una frase de contraseña</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Frase de contraseña incorrecta, o el archivo está dañado</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Seleccionar solo el mismo tipo (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Seleccionar solo el mismo modelo (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Abrir página web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abrir vista en vivo</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copiar dirección</translation>
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
        <translation>Añadir a favoritos</translation>
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
            <numerusform>Seleccionar cuenta de %n dispositivo seleccionado…</numerusform>
            <numerusform>Seleccionar cuenta de %n dispositivos seleccionados…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleccionar cuenta…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>No se puede leer el archivo con las notas, %1: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>El archivo con las notas, %1, está dañado. Es posible que se hayan perdido algunas notas. Se conservará con otro nombre al guardar la próxima nota.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>El dispositivo no comunica dirección MAC ni UUID y no puede tener una nota</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Una nota puede tener como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Se pueden guardar como máximo %1 notas</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>No se puede guardar la nota: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>red local</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>red local (%1)</translation>
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
        <translation>Error de inicio de sesión: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Sin sesión</translation>
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
        <translation>No encontrado</translation>
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
        <translation>No inicializado</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>No encontrado en la última búsqueda</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispositivo de la última lista, aún no encontrado</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Encontrado por última vez: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Solo se puede arrastrar un archivo a la vez a la ventana</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>No es un archivo de este equipo</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Archivo no compatible: %1. Arrastre a la ventana una lista de dispositivos (.xlsx, .csv, .xml, .devlist) o un archivo de sitio (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Tasa de bits personalizada</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Flujo principal: formato de vídeo</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Flujo principal: perfil de vídeo</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Flujo principal: compresión de audio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Flujo principal: formato de audio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Flujo secundario: formato de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Flujo secundario: perfil de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Flujo secundario: compresión de audio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Flujo secundario: formato de audio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (no leído, no escrito)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>No copiado: %1</translation>
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
        <translation>compresión del flujo secundario</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compresión del flujo principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolución del flujo secundario</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolución del flujo principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>tasa de bits del flujo secundario</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>tasa de bits del flujo principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>control de tasa de bits del flujo secundario</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>control de tasa de bits del flujo principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>tasa de fotogramas del flujo secundario</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>tasa de fotogramas del flujo principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio del flujo secundario</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio del flujo principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Sin respuesta del dispositivo</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>El dispositivo no admite esta función</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>El dispositivo está ocupado</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>El dispositivo rechazó la solicitud (error %1)</translation>
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
        <translation>La configuración del dispositivo no es válida. Pueden faltar algunos valores.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>El dispositivo no comunica sus capacidades de codificación. Pueden faltar algunos valores.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Flujo principal</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Flujo secundario</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>No se pudieron leer los ajustes de codificación del canal %1</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n cambio sin guardar</numerusform>
            <numerusform>%n cambios sin guardar</numerusform>
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
        <translation>Copiar a los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Sin guardar: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>El dispositivo se está actualizando. Guarde cuando haya terminado.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Conexión perdida. Recargue para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, o el canal no está conectado. Elija otro canal o recargue.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>No leído: %1. Al guardar no se modifica.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Tipo de flujo</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Activar flujo secundario</translation>
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
        <translation>Control de tasa</translation>
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
        <translation>Tasa de bits (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Fotogramas (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Calidad</translation>
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
        <translation>Muestreo (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Personalizado</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Leyendo ajustes de codificación…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Escribiendo la resolución del flujo secundario…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Ambos flujos usan la misma compresión: el flujo principal es ahora %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Guardando ajustes de codificación…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Sin guardar</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>No se pudieron leer los ajustes: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Seleccione el formato del archivo</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Las contraseñas del archivo están en texto sin cifrar. Las contraseñas de las cuentas guardadas no se exportan.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>El archivo no contiene contraseñas. Introdúzcalas antes de importarlo.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Toda la lista se cifra con la frase de contraseña y solo este programa puede leerla. No se puede recuperar sin la frase de contraseña. Las contraseñas de las cuentas guardadas no se exportan.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Lista completa</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Sin contraseñas</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Cifrada (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>La frase de contraseña debe tener al menos %1 caracteres</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase de contraseña</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Las dos frases de contraseña no coinciden</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repita la frase de contraseña</translation>
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
        <translation>No encontrado en la última búsqueda</translation>
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
        <translation>IP / ID de P2P</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
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
        <translation>Acciones</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Elimina este dispositivo de los favoritos</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Cierre el cuadro de diálogo antes de arrastrar un archivo a la ventana</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Suelte para importar una lista de dispositivos o abrir un sitio</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use al menos dos tipos entre dígitos, letras y símbolos, sin caracteres no permitidos.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduzca el usuario</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduzca la contraseña</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme la contraseña</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La contraseña debe tener entre 8 y 32 caracteres</translation>
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
        <translation>Usuario</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Contraseña nueva</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>De 8 a 32 caracteres, con al menos dos tipos entre dígitos, letras y símbolos (todos los caracteres visibles excepto </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Después, introduzca también la nueva contraseña en los ajustes de búsqueda.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Si se completa</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>El dispositivo no se encontró en una búsqueda o no comunica dirección MAC ni UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Se dejó de esperar al dispositivo: su dirección puede haber cambiado</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tiempo límite superado: la dirección puede haber cambiado</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Varios dispositivos seguidos han rechazado la contraseña. Continuar puede bloquear cuentas.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Obteniendo imágenes, %1 de %2 dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
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
            <numerusform>%n dispositivo más no se muestra</numerusform>
            <numerusform>%n dispositivos más no se muestran</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Obtener todo de nuevo</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Obtener de nuevo todas las imágenes (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Escribir todas las imágenes en la carpeta de capturas (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Obteniendo…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Obtener de nuevo (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Obteniendo</translation>
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
        <translation>Imágenes de dispositivos</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 imágenes guardadas en %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 imágenes guardadas en %2, %3 no escritas: %4</translation>
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
        <translation>No se pudo abrir la carpeta: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Seleccione dispositivos en la lista de dispositivos</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>No hay dispositivos</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
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
        <translation>Antiparpadeo</translation>
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
        <translation>Reducción de ruido 3D</translation>
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
        <translation>Imagen completa</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Zona personalizada</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Zona de compensación</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Rango dinámico (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de altas luces</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balance de blancos</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Ganancia de azul</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Ganancia de rojo</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Obtener imágenes</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canales, se muestran los primeros %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Guardar imágenes</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>No se pudo crear la carpeta %1</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>No se pudieron leer estos ajustes. Recargue para intentarlo de nuevo.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Luz cercana y lejana</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Lejos</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Cambio día/noche</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Bajo</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensibilidad</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Retardo de cambio</translation>
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
        <translation>Brillo de luz cercana</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Brillo de luz lejana</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarrojo y luz blanca</translation>
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
        <translation>Retardo (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>El dispositivo no ha enviado ninguna imagen</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Sin imagen de %n canal</numerusform>
            <numerusform>Sin imagen de %n canales</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exposición y balance de blancos</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Día/noche e iluminadores</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>La cámara no comunica estos ajustes.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Sin ajustes</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Imagen</translation>
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
        <translation>Tono</translation>
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
        <translation>Espejo y rotación</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Espejo</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vista normal</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Modo pasillo 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Modo pasillo 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Volteo</translation>
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
        <translation>Antiniebla</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensidad</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>Iz</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Ar</translation>
    </message>
    <message>
        <source>右</source>
        <translation>De</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Zona (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Izquierda no debe ser mayor que derecha</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Arriba no debe ser mayor que abajo</translation>
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
        <translation>Rango personalizado</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Rango de obturador (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Obturador mínimo</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Obturador máximo</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>El mínimo no debe ser mayor que el máximo</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Los cambios se escriben en el dispositivo al instante.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Predeterminados</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Más de %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>El dispositivo se está actualizando. Modifique los ajustes cuando haya terminado.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Leyendo ajustes de imagen…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Escribiendo ajustes de imagen…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Sin respuesta del dispositivo. Es posible que el cambio no se haya escrito.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Sin modificar: %1. Se muestra el valor del dispositivo.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Ya inicializado</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Actualización en curso: omitido</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Dirección MAC desconocida: omitido</translation>
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
        <translation>Seleccione un dispositivo no inicializado</translation>
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
        <translation>IP:puerto</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Solo se muestran los dispositivos de esta LAN. Los dispositivos de otras LAN no se pueden inicializar.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n más se omite, ver las notas</numerusform>
            <numerusform>%n más se omiten, ver las notas</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>No se puede leer la última lista de dispositivos %1: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>El nombre de un grupo puede tener como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Los dispositivos P2P no pueden estar en un grupo</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Un sitio puede tener como máximo %1 dispositivos</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>No se puede guardar el sitio: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>No se puede guardar la lista de dispositivos: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Sitio no guardado</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>No se puede guardar el sitio anterior: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canales</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Quitar de la vista (Supr)</translation>
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
        <translation>Iniciando sesión…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reintento en %n s</numerusform>
            <numerusform>%1. Reintento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de nuevo</translation>
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
        <translation>%1 KB en búfer</translation>
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
        <translation>No se pudo abrir la carpeta: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>El dispositivo ya no se muestra</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vista en vivo</translation>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispositivo anterior (RePág)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispositivo siguiente (AvPág)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Vista única</translation>
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
        <translation>Canales anteriores</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canales siguientes</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Activar sonido</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Mantener proporción</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Ocultar datos del flujo</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Mostrar datos del flujo</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Capturando…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Captura del canal seleccionado</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Capturas de todos los canales</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en curso. Espere a que termine.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>No se pueden añadir más dispositivos</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Seleccione antes en la lista los dispositivos que desea añadir</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Añadir los canales de los dispositivos seleccionados en la lista (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Añadir dispositivos seleccionados (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Añadir dispositivos seleccionados</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Capturas de todos los canales de todos los dispositivos</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>La vista en vivo se cerró porque se inició sesión en otro dispositivo</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de nuevo</translation>
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
        <translation>No hay canales</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Error de inicio de sesión</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Reintento en %n s</numerusform>
            <numerusform>%1. Reintento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Todos los dispositivos seleccionados ya se muestran</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Se pueden añadir como máximo %1 dispositivos. No se añadieron %2.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Sin respuesta de %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Preguntas y respuestas</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Según el sistema</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Informe del sitio (Ctrl+R)</translation>
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
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuración de dispositivos</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configuración del sistema</translation>
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
        <translation>Dispositivos simulados, sin red. Usuario y contraseña para iniciar sesión en los dispositivos. Los dispositivos nuevos deben inicializarse antes.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir sitio de demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>No hay ninguna biblioteca de dispositivos instalada: no se puede acceder a los dispositivos</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Abriendo %1 en el programa de PDF del sistema</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>No se puede abrir %1</translation>
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
        <translation>Modifica la dirección IP de este dispositivo</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Muestra toda la información de este dispositivo</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Abre la página web de este dispositivo en el navegador</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abre la vista en vivo de este dispositivo</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inicialice antes el dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>El dispositivo se está actualizando. Modifique su dirección cuando haya terminado.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>En vivo</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Dispositivo añadido, pero no guardado en los favoritos. Compruebe que puede escribir en la carpeta del programa.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispositivo añadido y guardado en los favoritos</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispositivo añadido</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Añadir dispositivo</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Seleccione un dispositivo no inicializado</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispositivo fallido: ver Resultado</numerusform>
            <numerusform>%n dispositivos fallidos: ver Resultado</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>El dispositivo se está actualizando. Modifique su dirección cuando haya terminado.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificar direcciones IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Dirección modificada en %n dispositivo</numerusform>
            <numerusform>Direcciones modificadas en %n dispositivos</numerusform>
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
        <translation>Detenido: %1</translation>
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
            <numerusform>¿Eliminar %n dispositivo de la lista?</numerusform>
            <numerusform>¿Eliminar %n dispositivos de la lista?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispositivo se está actualizando y no se eliminó</numerusform>
            <numerusform>%n dispositivos se están actualizando y no se eliminaron</numerusform>
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
        <translation>Introduzca una dirección IP válida</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Introduzca una máscara de subred válida</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Introduzca una dirección de puerta de enlace válida</translation>
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
        <translation>Muestra la nueva dirección de cada dispositivo</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Estática</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP inicial</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Misma IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara de subred</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>En uso por %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Esta es la dirección de red o de difusión</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>La puerta de enlace está fuera de la subred</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Modificar igualmente</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Esta es la dirección de la puerta de enlace</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Dirección IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Los filtros ocultan los %1 dispositivos</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Buscando dispositivos…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>No se encontraron dispositivos</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No hay ninguna biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Cambie los filtros o borre el texto de búsqueda.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Los dispositivos aparecen aquí a medida que se encuentran.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Compruebe que los dispositivos estén encendidos y conectados. Para dispositivos de otras redes, añada su rango en los ajustes de búsqueda o añada un dispositivo por su dirección.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Borrar filtros</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>No hay ninguna red seleccionada en los ajustes de búsqueda</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Seleccione la red local u otras redes en los ajustes de búsqueda.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Ajustes de búsqueda</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>¿Por qué no se encontraron dispositivos?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>El programa no puede comunicarse con los dispositivos: no se puede encontrar ni modificar ninguno. El sitio de demo no necesita dispositivos y muestra todas las funciones.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir sitio de demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Buscado: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Añadir dispositivo por dirección</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Compruebe los cables y las redes y busque de nuevo.</translation>
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
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispositivos exportados
Archivo: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>No se pudo escribir el archivo. Compruebe la carpeta y si otro programa tiene abierto el archivo.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Estos valores no se pueden volver a leer del archivo:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Resultado de exportación</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Leyendo la lista de dispositivos…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Reemplazar archivo</translation>
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
        <translation>Quitar del sitio</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Abrir una lista de dispositivos</translation>
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
        <translation>Importado: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>dispositivos</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>No importado. El archivo está abierto en otro programa, tiene otro formato o contiene una dirección MAC dos veces.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Resultado de importación</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Mostrar motivos</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>La búsqueda se detuvo; la lista está incompleta.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>No se encontró ningún dispositivo. Los que aparecen en gris se encontraron antes.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispositivo menos que en la última búsqueda</numerusform>
            <numerusform>%n dispositivos menos que en la última búsqueda</numerusform>
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
        <translation>Nombre</translation>
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
        <translation>IP:puerto</translation>
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
        <translation>Acciones</translation>
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
        <translation>Nuevo</translation>
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
        <translation>Establece la primera contraseña de los dispositivos nuevos seleccionados</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modificar IP por lotes</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Asigna direcciones consecutivas a los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Lee una lista de dispositivos de una hoja de cálculo</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Escribe los dispositivos seleccionados en una hoja de cálculo</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Añadir manualmente</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Añade dispositivos que una búsqueda no encuentra: por dirección IP, por ID de P2P o desde los favoritos</translation>
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
        <translation>Elimina de la lista los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicializado</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Buscar…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispositivo seleccionado se está actualizando: su dirección no se puede modificar</numerusform>
            <numerusform>%n dispositivos seleccionados se están actualizando: sus direcciones no se pueden modificar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispositivo seleccionado se está actualizando y no se puede eliminar</numerusform>
            <numerusform>%n dispositivos seleccionados se están actualizando y no se pueden eliminar</numerusform>
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
        <translation>Imágenes de los dispositivos seleccionados (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nombrar por patrón</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Seleccione lo que desea nombrar</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Los nombres se pueden editar en la tabla. «Guardar» los escribe.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canal de este dispositivo</numerusform>
            <numerusform>%n canales de este dispositivo</numerusform>
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
        <translation>Patrón: {n}, {model}, {ip4} (final de la dirección)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Varios canales reciben el mismo nombre</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primer número</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Dígitos</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Nombra el canal 1 de cada cámara.</translation>
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
        <translation>Introduzca un patrón</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Use solo {n}, {model} e {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Más de %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Grabador: omitido. Ábralo para nombrar sus canales</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduzca una hora válida</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Muestra solo los dispositivos fallidos o no ejecutados, ordenados por motivo. Para los dispositivos que ya no están en la lista, consulte Lotes.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Quita las marcas de los dispositivos fallidos o no ejecutados</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sin resolver %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operación sin resolver</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Todas las operaciones</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
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
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Detener (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Reintentar fallidos</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Selecciona solo los dispositivos de esta página fallidos o no ejecutados</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Guardar resultados</translation>
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
        <translation>%1: %2 de %3 realizados</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n más sin resolver</numerusform>
            <numerusform>, %n más sin resolver</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>contraseña incorrecta en %n dispositivo seguido</numerusform>
            <numerusform>contraseña incorrecta en %n dispositivos seguidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>contraseña incorrecta en %n dispositivo seguido (cuenta %1)</numerusform>
            <numerusform>contraseña incorrecta en %n dispositivos seguidos (cuenta %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Continuar puede bloquear cuentas. ¿Continuar?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Tras detener, seleccione otra cuenta en el menú de los dispositivos y reintente los dispositivos fallidos (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Reintentar fallidos: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Ejecuta «%1» de nuevo para los dispositivos fallidos o no ejecutados. Se excluyen los dispositivos a los que un reintento no puede ayudar, como tras una contraseña incorrecta con la misma cuenta.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Seleccionar sin resolver</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleccionar cuenta…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Seleccione otra cuenta para los dispositivos que rechazaron esta y para los restantes que la usan, y reinténtelos</translation>
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
        <translation>Introduzca un número</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Débil</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Seguridad de la contraseña</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Ajustar ancho de columnas</translation>
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
        <translation>Ocultar contraseña</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostrar contraseña</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>dispositivo encontrado</numerusform>
            <numerusform>dispositivos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Buscar dispositivos</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Ajustes de búsqueda</translation>
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
        <translation>Cerrar</translation>
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
        <translation>Nuevo</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>No hay canales</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canal no conectado</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Flujo interrumpido</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Reintento en %n s</numerusform>
            <numerusform>Reintento en %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Reintentar ahora</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 en p2p.ini falta o no es válido</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>No se pudo iniciar el servicio P2P</translation>
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
        <translation>Envía un comando a los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Ejecutar hoja</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Envía los comandos de una hoja de cálculo y escribe en ella los resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir plantilla</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Abre la plantilla para hojas de comandos</translation>
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
        <translation>Dispositivos fallidos</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>El comando se enviará a estos dispositivos:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Enviar comando</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Mostrar todo el resultado</translation>
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
            <numerusform>%n cambio no está guardado y se perderá.</numerusform>
            <numerusform>%n cambios no están guardados y se perderán.</numerusform>
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
            <numerusform>¿Copiar los ajustes de codificación del canal %1 al mismo canal del dispositivo seleccionado?</numerusform>
            <numerusform>¿Copiar los ajustes de codificación del canal %1 al mismo canal de los %n dispositivos seleccionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Esto incluye los cambios no guardados.</translation>
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
        <translation>Guardando nombres de canales…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc para detener)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuración de dispositivos</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Ajustes de codificación del canal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar codificación</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Guardar y salir</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nombrar por patrón</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configurar este dispositivo</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>No hay ninguna cámara entre los dispositivos seleccionados</translation>
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
        <translation>No se pudo guardar el ajuste. Compruebe que puede escribir en la carpeta del programa.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Seleccione un archivo de firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Detener actualización</translation>
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
            <numerusform>Conflicto de direcciones IP: %n dispositivo</numerusform>
            <numerusform>Conflicto de direcciones IP: %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Conexión con el dispositivo P2P %1 perdida. Elimine el dispositivo y añádalo de nuevo.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>El servicio P2P está desconectado. No se puede acceder a los dispositivos P2P en este momento.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificar direcciones IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Imágenes de los dispositivos seleccionados</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Contraseña anterior correcta: esperando la nueva</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Verificar contraseña anterior</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restablecer valores de fábrica</translation>
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
            <numerusform>Tiempo agotado: la contraseña de %n dispositivo no se cambió</numerusform>
            <numerusform>Tiempo agotado: las contraseñas de %n dispositivos no se cambiaron</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Se inició otra operación: la contraseña de %n dispositivo no se cambió</numerusform>
            <numerusform>Se inició otra operación: las contraseñas de %n dispositivos no se cambiaron</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Seleccione antes dispositivos a la izquierda</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«%1» está en curso. Espere a que termine.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Contraseña no cambiada en %n dispositivo (%1); está marcado</numerusform>
            <numerusform>Contraseña no cambiada en %n dispositivos (%1); están marcados</numerusform>
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
        <translation>Frase de contraseña</translation>
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
        <translation>El programa ya está en ejecución.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Introduzca la cuenta</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduzca la contraseña</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de nuevo</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Error de inicio de sesión en %1. Introduzca su usuario y contraseña.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Contraseña incorrecta, %n vez</numerusform>
            <numerusform>Contraseña incorrecta, %n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Respuesta del dispositivo: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>El dispositivo no indica cuántos intentos quedan. Más contraseñas incorrectas pueden bloquear la cuenta.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Guardar como cuenta de este dispositivo</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Cuando el inicio de sesión sea correcto, en este dispositivo siempre se iniciará sesión con esta cuenta</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>También para dispositivos posteriores</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Tras iniciar sesión correctamente, todos los dispositivos sin cuenta propia, también los de los lotes, se prueban con ella en lugar de la de los ajustes de búsqueda, hasta que termine el programa o se modifique la cuenta de los ajustes de búsqueda</translation>
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
        <translation>espejo</translation>
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
        <translation>balance de blancos</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>modo día/noche</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>antiniebla</translation>
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
        <translation>tono</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>No inicializado</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Dirección duplicada</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Inicio de sesión rechazado</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Reloj inexacto</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware más antiguo</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Sin servidor de hora</translation>
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
        <translation>%1 de adelanto</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>%1 de retraso</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; otro dispositivo de este modelo tiene %2</translation>
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
        <translation>Nombre del canal</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Ajustes de codificación</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Ajustes de imagen</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Ajustes de imagen: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del sitio</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalías</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Cambios de esta visita</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
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
        <translation>Dirección</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Puerto</translation>
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
        <translation>Canales</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Flujo principal</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Anchura (px)</translation>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Ahora</translation>
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
        <translation>Valor nuevo</translation>
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
        <translation>No comunicado</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Sin anomalías.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>No se ha cambiado ningún dispositivo desde el inicio del programa.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Leídos</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Con anomalías</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>No se puede crear el archivo PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>No se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 cambios anteriores no figuran en la lista.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 canales más</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modificar dirección IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Ajustar hora</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Servidor de hora y zona horaria</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Horario de verano</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Mantenimiento automático</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Norma de vídeo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>No se puede usar la carpeta de archivos temporales %1: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispositivos seguidos rechazaron el inicio de sesión</translation>
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
        <translation>El idioma cambia al reiniciar el programa.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Error del comando</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>La cuenta no existe</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>La cuenta está bloqueada. Espere a que el dispositivo la desbloquee.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>La cuenta ya está en uso</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Sin respuesta del dispositivo</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocolo incompatible</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>El dispositivo no está inicializado</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>El dispositivo no admite esta función</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>El dispositivo ya está en la lista</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>No se pudieron leer las capacidades del dispositivo</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>El dispositivo rechazó la solicitud</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Error desconocido %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>El dispositivo se está actualizando</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No ejecutado</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Error de captura</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Datos no válidos</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Archivo de firmware no utilizable</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>No actualizado</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Actualización no confirmada</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>El dispositivo está ocupado. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>La sesión ha caducado. Inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>El dispositivo no acepta este valor</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>El certificado del dispositivo no es de confianza</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>El certificado del dispositivo ha cambiado</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Otro dispositivo responde en la dirección</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Aceptado por el dispositivo, sin confirmar</translation>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Informe de búsqueda</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado al portapapeles</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interfaz de red</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Este equipo no tiene ninguna interfaz de red utilizable</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Compruebe que haya una interfaz instalada y activada.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Búsqueda por dirección</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Direcciones consultadas</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Respuestas</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Sin ruta a %1 de estas direcciones</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Configure una puerta de enlace para la interfaz o añada una dirección en la misma red que estas direcciones.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Sin respuesta de ninguna dirección</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Compruebe el rango de direcciones en los ajustes de búsqueda y que los dispositivos estén encendidos.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Otras redes</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispositivos encontrados fuera de todas las redes de este equipo: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Antes de iniciar sesión en ellos, modifique sus direcciones IP o añada a la interfaz una dirección de su red.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Direcciones</translation>
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
        <translation>Mensajes recibidos</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Dispositivos encontrados</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>mensajes ilegibles: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>mensajes de dispositivos que no son cámaras ni grabadores: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>mensajes sin dirección de servicio: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>mensajes con dirección de servicio de otro host: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>mensajes de dispositivos que abandonan la red: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>mensajes por encima del límite: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>La interfaz está desactivada</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Actívela en los ajustes de red del sistema operativo.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>La interfaz no está conectada</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Compruebe el cable y el switch o conéctese a una red inalámbrica.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>La interfaz no tiene dirección IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Configure una dirección en la red de los dispositivos o active DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>La interfaz no puede enviar multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Seleccione otras redes en los ajustes de búsqueda para buscar por dirección.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>El sistema operativo no envió las solicitudes: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Compruebe el cortafuegos de este equipo y los ajustes de la interfaz.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>No se recibieron respuestas</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Compruebe que los dispositivos estén encendidos y en la misma red, y que ningún cortafuegos ni switch filtre sus respuestas. También puede buscar por dirección: consulte los ajustes de búsqueda.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispositivos encontrados, %2 menos que en la última búsqueda.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispositivos encontrados: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>No se encontraron dispositivos.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>La IP inicial no debe ser mayor que la IP final</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>El rango puede abarcar 17 segmentos como máximo</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduzca una IP inicial válida</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Introduzca una IP final válida</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Ajustes de búsqueda</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Buscar en la red local</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Buscar en otras redes</translation>
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
        <translation>Usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Cuenta predeterminada para iniciar sesión en los dispositivos</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Iniciar sesión durante la búsqueda</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Lee el modelo, la versión y la dirección MAC. Cada dispositivo recibe esta cuenta. Tras una contraseña incorrecta, no se vuelve a probar el dispositivo.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>no hay servicio de claves</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>el servicio de claves está bloqueado</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>el servicio de claves no responde</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Algunas contraseñas están en el servicio de claves del escritorio y no se pueden leer (%1). Introdúzcalas de nuevo.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>No se puede usar el servicio de claves del escritorio (%1). Las contraseñas se guardan en archivos.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>No se pudo guardar la contraseña en el servicio de claves del escritorio (%1). Se guarda en un archivo.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>No se pudo eliminar la contraseña del servicio de claves del escritorio (%1). Elimínela en el gestor de claves del sistema.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>No se pudo abrir el sitio de demo:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>El archivo no es un archivo de sitio o está dañado</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>El archivo de sitio es de una versión más reciente y no se puede leer</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>El archivo de sitio tiene más de %1 dispositivos</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>El nombre en el archivo de sitio no es válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispositivo %1 del archivo de sitio: %2 no es válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>El dispositivo %1 del archivo de sitio está repetido</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>El archivo es demasiado grande</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Archivos de sitio (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Abrir sitio</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Sitio «%1» abierto, con %n dispositivo</numerusform>
            <numerusform>Sitio «%1» abierto, con %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>No se puede abrir el sitio %1: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Sitio</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Guardar sitio como</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>El sitio se guardó en %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>El archivo no contiene contraseñas.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Un sitio nuevo quita de la lista los dispositivos conocidos y los grupos. Los cambios no guardados se conservan en los sitios recientes.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Sitio nuevo</translation>
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
        <translation>Guardar sitio como…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Sitio nuevo…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Introduzca el nombre del sitio</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Seleccione al menos un archivo</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>No hay dispositivos en la lista</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Crear informe</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del sitio</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Ya se está creando un informe</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nombre del sitio</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Elegir…</translation>
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
        <translation>Archivos</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>El programa inicia sesión en cada dispositivo, lee sus ajustes y obtiene una imagen. El informe incluye los cambios desde el inicio del programa y no contiene contraseñas.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Abrir PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Informe del sitio</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>El informe está listo</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Otra carpeta…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canal no conectado</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Error de captura</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Error de captura: no se pudo escribir el archivo: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Capturando…</translation>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Tomando captura %1 de %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n tomada</numerusform>
            <numerusform>%n tomadas</numerusform>
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
        <translation>Capturas</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>No ejecutado</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>El dispositivo ya no se muestra</translation>
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
        <translation>Día sem.</translation>
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
        <translation>Horario de verano</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Por fecha</translation>
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
        <translation>Aplicar horario de verano</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduzca una hora válida</translation>
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
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Ningún dispositivo con este nombre, tipo, modelo o dirección.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Los dispositivos aparecen aquí a medida que se encuentran.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Solo se muestran los dispositivos IPv4 inicializados.</translation>
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
        <translation>No hay dispositivos que configurar</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>No hay ninguna biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>El programa no puede comunicarse con los dispositivos. Abra el sitio de demo en la página «Modificar IP».</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Borrar marcas</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Quita las marcas de los dispositivos fallidos o no ejecutados</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Se ha iniciado sesión en todos los dispositivos de la lista.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispositivo sin dirección (DHCP) no se muestra</numerusform>
            <numerusform>%n dispositivos sin dirección (DHCP) no se muestran</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Los dispositivos fallidos o no ejecutados no están en este árbol: no están inicializados, no tienen dirección IPv4 o no se han vuelto a encontrar. Consulte la página «Modificar IP» y Lotes.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Febrero</translation>
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
        <translation>Mayo</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Primera</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Segunda</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Tercera</translation>
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
        <translation>Lunes</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Viernes</translation>
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
        <translation>Lunes</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Cada día</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Sin respuesta del dispositivo</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>No se pudo leer la hora</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Sin respuesta del dispositivo. Es posible que se haya cambiado su contraseña.</translation>
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
        <translation>Zona horaria</translation>
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
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Norma de vídeo</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>Quedan %1 s para introducir la contraseña. Después habrá que verificar de nuevo la contraseña anterior.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Quedan %1 s para introducir la contraseña</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispositivo esperando la nueva contraseña</numerusform>
            <numerusform>%n dispositivos esperando la nueva contraseña</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>se restaura la nueva contraseña que introdujo</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Verifique de nuevo la contraseña anterior. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Entonces se restaura la nueva contraseña que introdujo.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Tiempo agotado: la contraseña de %n dispositivo no se cambió. </numerusform>
            <numerusform>Tiempo agotado: las contraseñas de %n dispositivos no se cambiaron. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>La selección ha cambiado. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use al menos dos tipos entre dígitos, letras y símbolos, sin caracteres no permitidos.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme la contraseña</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La contraseña debe tener entre 8 y 32 caracteres</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Introduzca la contraseña anterior</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Paso 1: verificar la contraseña anterior</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Contraseña anterior</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Paso 2: establecer la contraseña nueva</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Contraseña nueva</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar contraseña</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>De 8 a 32 caracteres, con al menos dos tipos entre dígitos, letras y símbolos (todos los caracteres visibles excepto &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Si se completa</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Horario de verano activado</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Horario de verano desactivado</translation>
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
            <numerusform>¿Reiniciar el dispositivo seleccionado?</numerusform>
            <numerusform>¿Reiniciar los %n dispositivos seleccionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>¿Restablecer el dispositivo seleccionado a los valores de fábrica?</numerusform>
            <numerusform>¿Restablecer los %n dispositivos seleccionados a los valores de fábrica?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>«%1» se aplicará a estos dispositivos:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>El intervalo de sincronización es de 0 minutos: es posible que el dispositivo deje de actualizar su hora. ¿Aplicarlo al dispositivo seleccionado?</numerusform>
            <numerusform>El intervalo de sincronización es de 0 minutos: es posible que los dispositivos dejen de actualizar su hora. ¿Aplicarlo a los %n dispositivos seleccionados?</numerusform>
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
        <translation>Mantenimiento automático</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Reiniciar periódicamente</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Reiniciar a las</translation>
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
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Mientras se reinicia, un dispositivo no está accesible y no graba.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispositivo seleccionado se está actualizando y no se puede reiniciar</numerusform>
            <numerusform>%n dispositivos seleccionados se están actualizando y no se pueden reiniciar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Restablecer valores de fábrica</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Borra todos los ajustes, cuentas y contraseñas de los dispositivos. Esta acción no se puede deshacer. Los dispositivos deben inicializarse de nuevo.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispositivo seleccionado se está actualizando y no se puede restablecer</numerusform>
            <numerusform>%n dispositivos seleccionados se están actualizando y no se pueden restablecer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Hora del equipo</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Ajustar a la hora del equipo</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Pone cada dispositivo a la hora en que recibe la solicitud</translation>
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
        <translation>Usar la hora actual</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Hora del dispositivo</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Leer hora de dispositivos</translation>
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
        <translation>Sin sesión %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Muestra solo los dispositivos sin inicio de sesión hasta ahora o cuyo último inicio de sesión falló</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Sin resolver %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Muestra solo los dispositivos fallidos o no ejecutados, ordenados por motivo.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n más no está en esta lista: consulte Lotes.</numerusform>
            <numerusform> %n más no están en esta lista: consulte Lotes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Norma de vídeo</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Norma</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL es para regiones con red eléctrica de 50 Hz y NTSC para 60 Hz. Algunos dispositivos se reinician tras el cambio.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Los dispositivos no ofrecen esta función</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Introduzca el servidor NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Zona horaria y NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Zona horaria</translation>
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
        <translation>IP o nombre de host</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Puerto NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervalo (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Aplicar zona horaria y NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Los dispositivos no ofrecen %1, la zona horaria de este equipo. Seleccione una zona horaria.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Introduzca una dirección IP o un nombre de host válidos</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Dirección IP del dispositivo, o «dirección:puerto web» si el puerto web no es 80. Obligatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Puerto de inicio de sesión del dispositivo. Solo se usa para comprobar la cuenta.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Usuario del dispositivo, sin dos puntos.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Contraseña del dispositivo. Elimínela después del archivo.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Comando que empieza por «/». El dispositivo recibe dos veces un comando aceptado. Obligatorio.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 para HTTP, otros enteros para HTTPS. HTTP si está vacío.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Lo rellena el programa: la respuesta, la ruta de la imagen o grabación, o «Error:» y el motivo.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucciones</translation>
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
        <translation>Conserve la fila de cabecera. Sustituya la fila de ejemplo por sus propias filas.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Las filas sin dirección ni comando se omiten.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>No abra este archivo en otro programa durante la ejecución.</translation>
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
            <numerusform>%n dispositivo no se puede actualizar con este archivo: ver Resultado</numerusform>
            <numerusform>%n dispositivos no se pueden actualizar con este archivo: ver Resultado</numerusform>
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
        <translation>Puerto</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Archivo de firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>El formato del archivo es incorrecto</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>No se pudieron guardar los resultados: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultados guardados en %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>No se pudo escribir el archivo. Es de solo lectura o está abierto en otro programa. Resultados guardados en %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>La hoja de cálculo tiene más de %1 dispositivos. Divídala.</translation>
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
        <translation>La hoja de cálculo no contiene dispositivos</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: omitido</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>El dispositivo ya tiene esta versión</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Leyendo la hoja de cálculo</translation>
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
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde hoja de cálculo</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>Se actualizará %n dispositivo. Se reiniciará. No lo apague.</numerusform>
            <numerusform>Se actualizarán %n dispositivos. Se reiniciarán. No los apague.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Los resultados se escriben en la hoja de cálculo.</translation>
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
        <translation>Actualización: %1 de %2 realizados</translation>
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
        <translation>Grabando</translation>
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
        <translation>IP:puerto</translation>
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
        <translation>Acciones</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Un reintento puede ayudar</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corrija el archivo, la cuenta o el dispositivo y actualice de nuevo</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Escritura iniciada: no se puede detener</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
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
        <translation>Dirección IP del dispositivo. Obligatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Puerto de inicio de sesión del dispositivo. 37777 si está vacío.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Usuario del dispositivo. Si este campo y la contraseña están vacíos, se usa la cuenta del programa.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Contraseña del dispositivo. Elimínela después del archivo.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Ruta del archivo de firmware, absoluta o relativa a la carpeta de esta hoja de cálculo. Obligatorio.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Lo rellena el programa: las versiones antes y después de la actualización, o por qué falló.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instrucciones</translation>
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
        <translation>Conserve la fila de cabecera. Sustituya la fila de ejemplo por sus propias filas.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Las filas sin dirección ni archivo de firmware se omiten.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>No abra este archivo en otro programa durante la actualización.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Escritura iniciada: no se puede detener</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 al %2&#xa0;%</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Aún no detenido: intentándolo de nuevo</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware escrito, el dispositivo se reinicia: no se puede detener</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: versión no comunicada</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: ahora %2, versión anterior desconocida</translation>
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
        <translation>Actualiza los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleccionar archivo</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Selecciona un archivo de firmware para los dispositivos seleccionados</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Reintentar fallidos</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Actualiza de nuevo los dispositivos a los que un reintento puede ayudar, como los que no respondieron</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde hoja de cálculo</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Actualiza los dispositivos de una hoja de cálculo y escribe en ella los resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir plantilla</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Abre la plantilla para hojas de actualización</translation>
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
        <translation>Dispositivos a la vez</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispositivos actualizados a la vez</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Esperando el reinicio del dispositivo</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Escribiendo: no apague el dispositivo</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Enviando el archivo</translation>
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
        <translation>Sin archivo de firmware seleccionado</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>El archivo de firmware no existe</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>No se pudo leer el archivo de firmware</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>El archivo de firmware está vacío</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>El archivo de firmware es demasiado grande</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>El archivo de firmware está dañado</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>El firmware es para otros modelos</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rechazado por el dispositivo</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>La cuenta no existe</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>La cuenta está bloqueada</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>El dispositivo no está inicializado</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Actualización no admitida o dispositivo no inicializado</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Dirección IP o puerto no válidos</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Mismo dispositivo que en una fila anterior</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Sin respuesta del dispositivo</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>El dispositivo está ocupado. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Interrumpido por el dispositivo</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Demasiado tiempo sin progreso</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Sin respuesta tras el reinicio</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Versión sin cambios tras el reinicio</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Detenido: dispositivo no modificado</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Interrumpido: se cerró el programa</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Error desconocido %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Plantilla de actualización por lotes.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Reiniciado, pero no se pudo leer la versión</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificado no confiable</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>El certificado ha cambiado</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>El dispositivo ya no está en la lista</translation>
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
        <translation>Seleccione un archivo de firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Archivo de firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>No hay dispositivos que reintentar</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispositivo no se actualizó: ver Resultado</numerusform>
            <numerusform>%n dispositivos no se actualizaron: ver Resultado</numerusform>
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
        <translation>No se pudo abrir la plantilla.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Actualizar firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Actualizar desde hoja de cálculo</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Detenido: %1 actualizados, %2 fallidos, %3 no ejecutados</translation>
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
        <translation>Detección de movimiento</translation>
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
        <translation>Noche</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Comp. de contraluz</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Rango dinámico (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de altas luces</translation>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sesión de nuevo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Haga clic en un dispositivo a la izquierda para iniciar sesión y modificar sus ajustes.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Seleccione un dispositivo</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Error de inicio de sesión</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continuar aquí</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Solo se puede iniciar sesión en un dispositivo a la vez. Al continuar se cierra la vista en vivo del otro dispositivo.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>La vista en vivo de otro dispositivo está abierta</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nombres de canales</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>La configuración de los dispositivos se muestra y se modifica aquí en cuanto una búsqueda encuentra alguno.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>No hay dispositivos</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nombrar por patrón</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Haga clic en un dispositivo a la izquierda para cambiar aquí los nombres de sus canales, o nombre juntas las cámaras seleccionadas.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Sin imagen: faltan archivos en la carpeta Shaders o están dañados</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Sin imagen: demasiado grande para la tarjeta gráfica</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Error de reproducción</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Error de reproducción: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Conexión con el dispositivo perdida</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>El dispositivo finalizó el flujo</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>El dispositivo no envía vídeo</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>El dispositivo ya no acepta el inicio de sesión</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>El dispositivo no envía un flujo de vídeo</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Este equipo no puede decodificar el flujo</translation>
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
        <translation>El certificado del dispositivo ha cambiado. No se abrió la página web. No introduzca ninguna contraseña en este dispositivo.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>El certificado del dispositivo no está confirmado. No se abrió la página web.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>No se pudo abrir el navegador. Página web del dispositivo: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>No se pudieron guardar los ajustes. Compruebe que puede escribir en la carpeta del programa.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Detener y salir</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Los dispositivos que están escribiendo el firmware terminan por sí solos: no los apague.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificado aceptado. Inténtelo de nuevo.</numerusform>
            <numerusform>%n certificados aceptados. Inténtelo de nuevo.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>La cuenta no se puede guardar y solo se usa hasta la próxima búsqueda: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>«%1» está en curso. Si sale, los dispositivos restantes no se modificarán.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>El informe se detuvo; no se escribió ningún archivo</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Respondieron más de %1 dispositivos. %2 respuestas más no se muestran. Busque en un rango menor.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Detenido: %1 filas correctas, %2 fallidas, %3 no enviadas.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Terminado: %1 filas correctas, %2 fallidas.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>No se pudieron guardar los resultados: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultados guardados en %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>No se pudo escribir el archivo. Es de solo lectura o está abierto en otro programa. Resultados guardados en %1</translation>
    </message>
</context>
</TS>
