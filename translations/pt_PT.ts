<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copiar número da versão</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado para a área de transferência</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licenças de terceiros</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Adicionar conta</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Alterar conta</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Introduza um nome</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Por exemplo: Edifício 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduza o nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza a palavra-passe</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Deixar vazio para a manter</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Guarda as credenciais com que a ferramenta inicia sessão. As palavras-passe dos dispositivos não são alteradas.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Não é possível guardar a conta, que só é usada até à próxima pesquisa: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>A nova conta é agora a conta predefinida</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>A nova conta foi guardada e será usada para este dispositivo a partir de agora</numerusform>
            <numerusform>A nova conta foi guardada e será usada para estes %n dispositivos a partir de agora</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Guardar para estes dispositivos (recomendado)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Torná-la a conta predefinida de todos os dispositivos</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Não guardar; usar até à próxima pesquisa</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>O dispositivo não tem MAC nem UUID: a conta só é usada até à próxima pesquisa</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Não é possível ler o ficheiro de contas, %1: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>O ficheiro de contas está danificado e nenhuma das suas contas é usada: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Introduza um nome com até %1 caracteres</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Introduza um nome de utilizador com até %1 caracteres</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Introduza uma palavra-passe com até %1 caracteres</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Já existe uma conta com o nome “%1”</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Não existe nenhuma conta com o nome “%1”</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Sem espaço: no máximo %1 contas e %2 dispositivos</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispositivo usa a conta predefinida</numerusform>
            <numerusform>%n dispositivos usam a conta predefinida</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispositivo usa a conta “%1”</numerusform>
            <numerusform>%n dispositivos usam a conta “%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n deles não tem MAC nem UUID e só a usa até à próxima pesquisa</numerusform>
            <numerusform>; %n deles não têm MAC nem UUID e só a usam até à próxima pesquisa</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Remover a conta “%1”?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> No dispositivo que a usa, a sessão passa a ser iniciada com a conta predefinida.</numerusform>
            <numerusform> Nos %n dispositivos que a usam, a sessão passa a ser iniciada com a conta predefinida.</numerusform>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Selecionar conta</translation>
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
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>A conta predefinida é alterada nas definições de pesquisa</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Cada dispositivo é tentado com uma só conta: a que está selecionada para ele ou, na sua falta, a conta predefinida. As outras contas nunca são tentadas.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Conta predefinida</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Remover conta</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Remover %n conta que nenhum dispositivo tem?</numerusform>
            <numerusform>Remover %n contas que nenhum dispositivo tem?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Remover contas não usadas</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Contas não selecionadas para nenhum dispositivo</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Não usado</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Os dispositivos recusaram esta conta. Selecione ou adicione outra.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Usar para %n dispositivo e repetir</numerusform>
            <numerusform>Usar para %n dispositivos e repetir</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Os dispositivos recusaram a conta %1. Selecione ou adicione outra.</translation>
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
        <translation>Introduza um endereço IP válido</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Introduza a conta</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza a palavra-passe</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Introduza o número da porta</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>A porta deve estar entre 1 e 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Adicionar dispositivo</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Adicionar aos favoritos</translation>
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
        <translation>Porta</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Até 50 caracteres</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>A adicionar…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Não foi possível guardar as notas. Verifique se pode escrever na pasta do programa.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Não foi possível remover o favorito. Verifique se pode escrever na pasta do programa.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoritos</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favorito selecionado</numerusform>
            <numerusform>favoritos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Pesquisar…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Faça duplo clique numa linha para adicionar o dispositivo</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Limpar filtros</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Adicionar dispositivo</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Altere ou limpe o texto de pesquisa.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Selecione “Adicionar aos favoritos” ao adicionar um dispositivo para o guardar aqui.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Nenhum favorito corresponde à pesquisa</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Ainda não há favoritos</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Remover %1 dos favoritos?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Adicionar favoritos</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Remover favorito</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Não é possível ler a palavra-passe: faça duplo clique para a introduzir</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Linha %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Sem endereço MAC: ignorado</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Em uso por outro dispositivo</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Atribuído duas vezes</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Igual ao gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Fora da sub-rede</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Endereço de rede ou de difusão</translation>
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
        <translation>O lote está em curso</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Há dispositivos a aguardar a nova palavra-passe</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Nenhum dispositivo falhado ou não executado</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Esta operação não pode ser repetida aqui</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Só o lote mais recente pode ser repetido</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Uma repetição não pode ajudar estes dispositivos. Corrija primeiro a causa, por exemplo a conta.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI em lote</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Enviar este comando ao dispositivo selecionado:</numerusform>
            <numerusform>Enviar este comando aos %n dispositivos selecionados:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lotes</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Repetir falhados</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Executa novamente o lote para os dispositivos falhados ou não executados</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Repor endereços</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Repõe os endereços IP anteriores dos dispositivos alterados</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Repor o endereço IP anterior de %n dispositivo?</numerusform>
            <numerusform>Repor os endereços IP anteriores de %n dispositivos?</numerusform>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Com êxito / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Só falhados</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inclui os dispositivos não executados</translation>
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
        <translation>Ainda não há lotes</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Nenhum dispositivo falhou</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Repor endereços IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Guardar tudo</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Guarda os resultados de todos os lotes da lista num só ficheiro</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Aguarde que o lote atual termine</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Não inicializado: ignorado</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Atualização em curso: ignorado</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflito de endereços: pode ser alterado outro dispositivo</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Em uso por outro dispositivo</translation>
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
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n aviso: ver Notas</numerusform>
            <numerusform>%n avisos: ver Notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispositivo é ignorado: ver Notas</numerusform>
            <numerusform>%n dispositivos são ignorados: ver Notas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>executado em %n dispositivo</numerusform>
            <numerusform>executado em %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n ignorado</numerusform>
            <numerusform>%n ignorados</numerusform>
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
        <translation>Selecione um dispositivo</translation>
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
        <translation>Endereço antigo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Endereço novo</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Ficheiro de firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nome novo</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n com êxito</numerusform>
            <numerusform>%n com êxito</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n a aguardar a nova palavra-passe</numerusform>
            <numerusform>%n a aguardar a nova palavra-passe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n falhado</numerusform>
            <numerusform>%n falhados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n não executado</numerusform>
            <numerusform>%n não executados</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n ignorado</numerusform>
            <numerusform>%n ignorados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n em espera</numerusform>
            <numerusform>%n em espera</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Palavra-passe antiga correta</translation>
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
        <translation>Passo</translation>
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
        <translation>Tempo limite excedido</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: ignorado</translation>
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
        <translation>Resultados guardados em %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Não foi possível guardar os resultados. Escolha outra pasta.
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
            <numerusform>Há %n aviso. Continuar?</numerusform>
            <numerusform>Há %n avisos. Continuar?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Avisos</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Os dispositivos não podem trocar endereços (como %1 e %2) num só passo. Atribua primeiro outro endereço a um deles.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” está em curso. Aguarde que termine.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Memória ou threads insuficientes para iniciar. Feche outros programas e tente novamente.</translation>
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
        <translation>%1 ainda está em uso pelo dispositivo %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispositivo não foi repetido: o seu endereço mudou ou já não está na lista (%1)</numerusform>
            <numerusform>%n dispositivos não foram repetidos: os seus endereços mudaram ou já não estão na lista (por exemplo, %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Há atualizações em curso. Pesquise quando terminarem.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Há atualizações em curso. Feche o programa quando terminarem.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, “</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>“%1” está em curso. Pesquise quando terminar.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>“%1” está em curso. Remova dispositivos quando terminar.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>“%1” está em curso. Altere dispositivos quando terminar.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>“%1” está em curso. Feche o programa quando terminar.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>“%1” está em curso. Reinicie o programa quando terminar.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Está em curso uma pesquisa. Pare-a com Esc ou aguarde que termine.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Estão em curso comandos de outra folha de cálculo. Aguarde que terminem.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Modelo CGI em lote.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Está em curso outro comando CGI. Aguarde que termine.</translation>
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
        <translation>palavra-passe da conta predefinida</translation>
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
        <translation>Prioridade ao ganho</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Prioridade ao obturador</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Luz natural</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Candeeiro de rua</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Zona personalizada</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infravermelho</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Luz branca</translation>
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
        <translation>Agora não</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Confiar na seleção</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmar certificados dos dispositivos</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Não foi possível guardar os certificados. Nenhum é de confiança.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 de %2 dispositivos selecionados</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Estes dispositivos usam certificados autoassinados para HTTPS. Não foi enviada nenhuma palavra-passe. Compare as impressões digitais. Depois da confirmação, só esta chave é aceite.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>O certificado de %n dispositivo mudou. Não foi enviada nenhuma palavra-passe. Pode ser outro dispositivo: selecione-o apenas se souber o motivo, como uma reposição de fábrica.</numerusform>
            <numerusform>Os certificados de %n dispositivos mudaram. Não foram enviadas palavras-passe. Podem ser outros dispositivos: selecione-os apenas se souber o motivo, como uma reposição de fábrica.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
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
        <translation>Válido até</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Impressão digital</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Impressão digital (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Impressão digital de confiança</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Alterado</translation>
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
        <translation>Não é possível ler o ficheiro de certificados, %1: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>O ficheiro de certificados está danificado. Nenhum certificado é de confiança. Confirme-os novamente: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Sem túnel para a porta web do dispositivo.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Não enviado</translation>
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
        <translation>Remover dos comandos guardados</translation>
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
        <translation>O cabeçalho da resposta é demasiado grande.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nome de utilizador ou palavra-passe incorretos. Verifique a conta nas definições de pesquisa.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>A conta está bloqueada. Aguarde que o dispositivo a desbloqueie.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Sem resposta do dispositivo.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>O dispositivo não está inicializado.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Erro desconhecido.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>O dispositivo rejeitou o pedido</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>A resposta é demasiado grande.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Não foi possível escrever o ficheiro: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Parado.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>A parte recebida da gravação está em %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>O dispositivo está a ser atualizado.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>O certificado do dispositivo não é de confiança.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>O certificado do dispositivo mudou.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>O anfitrião não foi encontrado</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>O dispositivo recusou a ligação. Verifique a porta HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Não é possível aceder ao dispositivo</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>O dispositivo não respondeu a tempo</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Sem ligação cifrada. Verifique a porta HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>A resposta do dispositivo não é HTTP válido</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>A ligação foi fechada antes do fim da resposta</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>O pedido falhou</translation>
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
        <translation>Um nome de utilizador não pode conter dois pontos nem caracteres de controlo.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Uma palavra-passe não pode conter caracteres nulos.</translation>
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
        <translation>Não foi possível escrever o ficheiro: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Guardado em %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar tudo</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Guarda o texto num ficheiro</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecione uma pasta</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>A enviar um comando CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI em lote</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduza um comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>O comando deve começar por /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Parado: %1 de %2 concluídos</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Enviado a %n dispositivo: aceite</numerusform>
            <numerusform>Enviado a %n dispositivos: todos aceites</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>O dispositivo aceitou o comando e não devolveu nenhum resultado.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Enviado a %n: %1 aceites, %2 falhados</numerusform>
            <numerusform>Enviado a %n: %1 aceites, %2 falhados</numerusform>
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
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Clique com o botão direito para copiar o resultado</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Envia o comando a este dispositivo</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Mostrar todo o resultado</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>O dispositivo está a ser atualizado. Envie comandos quando terminar.</translation>
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
        <translation>Executar folha</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Os comandos CGI da folha de cálculo serão enviados. Os resultados são escritos nela.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Não foi possível abrir o ficheiro modelo.</translation>
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
        <translation>Estão em curso comandos de outra folha de cálculo. Aguarde que terminem.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>A ler a folha de cálculo</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Linha %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>O ficheiro mudou. Abra-o novamente.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>A guardar a folha de cálculo</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Linha %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Não guardado</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nome do canal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nome não comunicado</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Introduza um nome</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mais de %1 bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rejeitado pelo dispositivo</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Sem resposta do dispositivo</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Alterado pelo dispositivo</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Encurtar</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Encurta o nome para o que o dispositivo pode guardar</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Repõe o nome que o dispositivo tem</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>O dispositivo está a ser atualizado</translation>
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
        <translation>Ligação</translation>
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
        <translation>Ligado</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Não ligado</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome de canal não guardado</numerusform>
            <numerusform>%n nomes de canais não guardados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n alteração não guardada</numerusform>
            <numerusform>%n alterações não guardadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>O dispositivo não comunica o nome de %n canal</numerusform>
            <numerusform>O dispositivo não comunica os nomes de %n canais</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>O dispositivo está a ser atualizado. Guarde quando terminar.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear por padrão</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Nomear vários canais ou câmaras com um só padrão</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>A ler nomes dos canais…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nome de canal guardado</numerusform>
            <numerusform>%n nomes de canais guardados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome de canal não guardado</numerusform>
            <numerusform>%n nomes de canais não guardados</numerusform>
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
        <translation>Porta</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Comando CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Não foi possível abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>O formato do ficheiro está incorreto</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Introduza um comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>O comando deve começar por /</translation>
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
            <numerusform>Copiado para %n dispositivo</numerusform>
            <numerusform>Copiado para %n dispositivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n dispositivo aceitou apenas uma parte</numerusform>
            <numerusform>%n dispositivos aceitaram apenas uma parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispositivo falhou</numerusform>
            <numerusform>%n dispositivos falharam</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispositivo não executado</numerusform>
            <numerusform>%n dispositivos não executados</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar codificação</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>A iniciar sessão…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Não foi possível ler a configuração do dispositivo</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Não foi possível ler as capacidades do dispositivo</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Sessão iniciada novamente. As alterações não guardadas perderam-se.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Mostrar relatório</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>O programa terminou inesperadamente. Foi escrito um relatório</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Relatório de falha</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 já existe. Substituir?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportado para %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Não foi possível escrever o ficheiro %1</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>O dispositivo não tem página web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado para a área de transferência</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 já está nos favoritos</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 adicionado aos favoritos</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Não é possível guardar o favorito. Verifique se é possível escrever na pasta do programa.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substituir ficheiro</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>O dispositivo não comunica endereço MAC nem UUID e não pode ter uma nota</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Não é possível aceder ao dispositivo por P2P. Verifique o ID P2P e a ligação de rede.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflito de endereços IP</translation>
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
        <translation>igual a este computador</translation>
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
        <translation>Número de série</translation>
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
        <translation>Não inicializado</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versão</translation>
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
        <translation>Endereço IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Endereço IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Endereço do dispositivo</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara de sub-rede</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nome do anfitrião</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Encontrado por</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Portas</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Porta local</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Porta de serviço</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Porta de serviço do dispositivo</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>Porta HTTP</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>Porta HTTPS</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>Porta RTSP</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Máximo de ligações</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Entradas de alarme</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Discos rígidos</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Adicionado por</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manualmente (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Pesquisa</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manualmente (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>ID P2P</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>Porta P2P</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copiar tudo</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Detalhes do dispositivo</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Falha ao iniciar sessão: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Iniciar sessão para ler mais</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Inicia sessão no dispositivo para ler as suas portas, canais e discos rígidos</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Guarda o texto num ficheiro</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Nenhuma entrada corresponde à pesquisa</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copiar esta linha</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Não foi possível ler o ficheiro de bibliotecas de dispositivos %1</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>O ficheiro de bibliotecas de dispositivos %1 contém uma linha desconhecida: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>Falta [%1] ou a sua entrada “file” no ficheiro de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Falta a função %2 de %1 no ficheiro de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Função %2 de %1 desconhecida no ficheiro de bibliotecas de dispositivos</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Não foi possível carregar a biblioteca de dispositivos %1: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>A biblioteca de dispositivos %1 não exporta %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>A linha %1 é demasiado longa</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>A linha %1 não está codificada em UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Não foi possível abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>O ficheiro é demasiado grande</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Mais campos do que colunas</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Um campo é demasiado longo</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Um campo contém um carácter de controlo</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Modo de adição desconhecido</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Endereço de dispositivo inválido</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Porta de dispositivo inválida</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Falta o nome de utilizador ou a palavra-passe</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>As linhas %1 e %2 têm o mesmo endereço MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>O ficheiro contém mais de %1 dispositivos</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>O ficheiro não tem a linha de cabeçalho de uma lista de dispositivos</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Não foi possível ler a folha de cálculo</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>O elemento raiz não é deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>A linha %1 não é XML válido</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>A codificação %1 não é suportada</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>A folha tem mais de %1 linhas</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>O carácter %1 não pode ser lido de volta deste formato</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>O conteúdo da lista cifrada não é válido</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>O ficheiro não é uma lista de dispositivos cifrada ou está incompleto</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Esta versão das listas cifradas não é suportada</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Os parâmetros da lista cifrada não são válidos</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>A lista está cifrada: é necessária uma frase-passe</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Frase-passe errada, ou o ficheiro está danificado</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Selecionar apenas o mesmo tipo (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Selecionar apenas o mesmo modelo (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Abrir página web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abrir vista em direto</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copiar endereço</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copiar MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copiar linha</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Adicionar aos favoritos</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Nota…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Selecionar conta de %n dispositivo selecionado…</numerusform>
            <numerusform>Selecionar conta de %n dispositivos selecionados…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selecionar conta…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Não é possível ler o ficheiro com as notas, %1: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>O ficheiro com as notas, %1, está danificado. Algumas notas podem ter-se perdido. É mantido com outro nome quando a próxima nota for guardada.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>O dispositivo não comunica endereço MAC nem UUID e não pode ter uma nota</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Uma nota pode ter no máximo %1 caracteres</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Podem ser guardadas no máximo %1 notas</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Não é possível guardar a nota: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
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
        <translation>Pesquisar dispositivos</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Nenhum dispositivo selecionado</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Sessão iniciada</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Falha ao iniciar sessão: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Sem sessão</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Ligação perdida</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Atualização em curso</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Não encontrado</translation>
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
        <translation>Não inicializado</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Não encontrado na última pesquisa</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispositivo da última lista, ainda não encontrado</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Encontrado pela última vez: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Só é possível arrastar um ficheiro de cada vez para a janela</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Não é um ficheiro deste computador</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Ficheiro não suportado: %1. Arraste para a janela uma lista de dispositivos (.xlsx, .csv, .xml, .devlist) ou um ficheiro de local (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Taxa de bits personalizada</translation>
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
        <translation>Fluxo principal: compressão de áudio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Fluxo principal: formato de áudio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Fluxo secundário: formato de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Fluxo secundário: perfil de vídeo</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Fluxo secundário: compressão de áudio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Fluxo secundário: formato de áudio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (não lido, não escrito)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Não copiado: %1</translation>
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
        <translation>compressão do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compressão do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>resolução do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>resolução do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>taxa de bits do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>taxa de bits do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>controlo da taxa de bits do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>controlo da taxa de bits do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>taxa de fotogramas do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>taxa de fotogramas do fluxo principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>áudio do fluxo secundário</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>áudio do fluxo principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Sem resposta do dispositivo</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>O dispositivo não suporta esta função</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>O dispositivo está ocupado</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>O dispositivo rejeitou o pedido (erro %1)</translation>
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
        <translation>A configuração do dispositivo não é válida. Alguns valores podem faltar.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>O dispositivo não comunica as suas capacidades de codificação. Alguns valores podem faltar.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Fluxo principal</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Fluxo secundário</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Não foi possível ler as definições de codificação do canal %1</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n alteração não guardada</numerusform>
            <numerusform>%n alterações não guardadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copiar para %n dispositivo</numerusform>
            <numerusform>Copiar para %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copiar para os dispositivos selecionados</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Ligação perdida</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Não guardado: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>O dispositivo está a ser atualizado. Guarde quando terminar.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Ligação perdida. Recarregue para tentar novamente.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, ou o canal não está ligado. Escolha outro canal ou recarregue.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Não lido: %1. Guardar não o altera.</translation>
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
        <translation>Ativar fluxo secundário</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compressão</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Controlo da taxa</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Constante (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variável (VBR)</translation>
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
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Ativar áudio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Amostragem (Hz)</translation>
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
        <translation>A ler definições de codificação…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>A escrever a resolução do fluxo secundário…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Ambos os fluxos usam a mesma compressão: o fluxo principal é agora %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>A guardar definições de codificação…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Não guardado</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Não foi possível ler as definições: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Selecione o formato do ficheiro</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>As palavras-passe no ficheiro estão em texto simples. As palavras-passe das contas guardadas não são exportadas.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>O ficheiro não contém palavras-passe. Preencha-as antes da importação.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Toda a lista é cifrada com a frase-passe e só este programa a pode ler. Não pode ser recuperada sem a frase-passe. As palavras-passe das contas guardadas não são exportadas.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Lista completa</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Sem palavras-passe</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Cifrada (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>A frase-passe deve ter pelo menos %1 caracteres</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Frase-passe</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>As duas frases-passe não coincidem</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Repita a frase-passe</translation>
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
        <translation>Não encontrado na última pesquisa</translation>
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
        <translation>Porta</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
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
        <translation>Ações</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Remove este dispositivo dos favoritos</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Feche a caixa de diálogo antes de arrastar um ficheiro para a janela</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Largue para importar uma lista de dispositivos ou abrir um local</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use pelo menos dois tipos entre algarismos, letras e símbolos, sem caracteres não permitidos.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Introduza o nome de utilizador</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Introduza a palavra-passe</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme a palavra-passe</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>As palavras-passe não coincidem</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>A palavra-passe deve ter de 8 a 32 caracteres</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inicialização</translation>
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
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>De 8 a 32 caracteres, com pelo menos dois tipos entre algarismos, letras e símbolos (todos os caracteres visíveis exceto </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Depois, introduza também a nova palavra-passe nas definições de pesquisa.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Em caso de êxito</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>O dispositivo não foi encontrado por uma pesquisa ou não comunica endereço MAC nem UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Espera pelo dispositivo interrompida: o seu endereço pode ter mudado</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tempo limite excedido: o endereço pode ter mudado</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Vários dispositivos seguidos rejeitaram a palavra-passe. Continuar pode bloquear contas.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>A parar…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>A obter imagens, %1 de %2 dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n imagem</numerusform>
            <numerusform>%n imagens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n falhada</numerusform>
            <numerusform>%n falhadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>Mais %n dispositivo não é mostrado</numerusform>
            <numerusform>Mais %n dispositivos não são mostrados</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Obter tudo novamente</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” está em curso. Aguarde que termine.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Obter novamente todas as imagens (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Guardar tudo</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Escrever todas as imagens na pasta das capturas (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>A obter…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Obter novamente (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Falhado</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>A obter</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Ignorado</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Imagens dos dispositivos</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 imagens guardadas em %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 imagens guardadas em %2, %3 não escritas: %4</translation>
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
        <translation>Não foi possível abrir a pasta: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Selecione dispositivos na lista de dispositivos</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Sem dispositivos</translation>
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
        <translation>Nenhum grupo</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exposição</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Anticintilação</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Modo de exposição</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Ganho</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Gama de ganho</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Ganho mínimo</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Ganho máximo</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensação</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Íris automática</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Redução de ruído 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Nível</translation>
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
        <translation>Imagem inteira</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Zona personalizada</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Zona de compensação</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gama dinâmica (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de altas luzes</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balanço de brancos</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Ganho de azul</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Ganho de vermelho</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Obter imagens</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canais, são mostrados os primeiros %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Guardar imagens</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Não foi possível criar a pasta %1</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Não foi possível ler estas definições. Recarregue para tentar novamente.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Luz próxima e distante</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Distante</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Comutação dia/noite</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Alto</translation>
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
        <translation>Atraso de comutação</translation>
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
        <translation>Brilho da luz próxima</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Brilho da luz distante</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correção</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infravermelho e luz branca</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Tipo de luz</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Brilho</translation>
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
        <translation>O dispositivo não enviou nenhuma imagem</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Sem imagem de %n canal</numerusform>
            <numerusform>Sem imagem de %n canais</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Exposição e balanço de brancos</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Dia/noite e iluminadores</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>A câmara não comunica estas definições.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Sem definições</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Padrão</translation>
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
        <translation>Brilho</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Tonalidade</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gama</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Espelho e rotação</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Espelho</translation>
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
        <translation>Rotação</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Estabilização</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Estabilização eletrónica</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Antinevoeiro</translation>
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
        <translation>C</translation>
    </message>
    <message>
        <source>右</source>
        <translation>D</translation>
    </message>
    <message>
        <source>下</source>
        <translation>B</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Zona (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>A esquerda não pode ser maior do que a direita</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>O topo não pode ser maior do que a base</translation>
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
        <translation>Gama personalizada</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Gama do obturador (ms)</translation>
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
        <translation>O mínimo não pode ser maior do que o máximo</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>As alterações são escritas imediatamente no dispositivo.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mais de %1 bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>O dispositivo está a ser atualizado. Altere as definições quando terminar.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>A ler definições de imagem…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>A escrever definições de imagem…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Sem resposta do dispositivo. A alteração pode não ter sido escrita.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Não alterado: %1. É mostrado o valor do dispositivo.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Já inicializado</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Atualização em curso: ignorado</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Endereço MAC desconhecido: ignorado</translation>
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
        <translation>Inicialização</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selecione um dispositivo não inicializado</translation>
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
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Só são listados os dispositivos desta LAN. Os dispositivos de outras LAN não podem ser inicializados.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>Mais %n é ignorado, ver as notas</numerusform>
            <numerusform>Mais %n são ignorados, ver as notas</numerusform>
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
        <translation>A última lista de dispositivos %1 não pode ser lida: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>O nome de um grupo pode ter no máximo %1 caracteres</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Os dispositivos P2P não podem pertencer a um grupo</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Um local pode ter no máximo %1 dispositivos</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>O local não pode ser guardado: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>A lista de dispositivos não pode ser guardada: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Local não guardado</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>O local anterior não pode ser guardado: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canais</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Não ligado</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Remover da vista (Delete)</translation>
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
        <translation>A iniciar sessão…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nova tentativa em %n s</numerusform>
            <numerusform>%1. Nova tentativa em %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sessão de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Repetir</translation>
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
        <translation>%1 KB em buffer</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Áudio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 fotogramas ignorados</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Não foi possível abrir a pasta: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>O dispositivo já não é mostrado</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vista em direto</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispositivo anterior (PgUp)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispositivo seguinte (PgDn)</translation>
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
        <translation>Canais anteriores</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canais seguintes</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Ativar som</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Manter proporções</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Esticar</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Ocultar dados do fluxo</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Mostrar dados do fluxo</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>A capturar…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Captura do canal selecionado</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Capturas de todos os canais</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Sair do ecrã inteiro</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Ecrã inteiro</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” está em curso. Aguarde que termine.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Não é possível adicionar mais dispositivos</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Selecione primeiro na lista os dispositivos a adicionar</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Adicionar os canais dos dispositivos selecionados na lista (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Adicionar dispositivos selecionados (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Adicionar dispositivos selecionados</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Capturas de todos os canais de todos os dispositivos</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>A vista em direto foi fechada porque se iniciou sessão noutro dispositivo</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sessão de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>A iniciar sessão…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Sem canais</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Falha ao iniciar sessão</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nova tentativa em %n s</numerusform>
            <numerusform>%1. Nova tentativa em %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Todos os dispositivos selecionados já são mostrados</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Podem ser adicionados no máximo %1 dispositivos. %2 não foram adicionados.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Sem resposta de %1</translation>
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
        <translation>Perguntas e respostas</translation>
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
        <translation>Aspeto</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Como o sistema</translation>
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
        <translation>Relatório do local (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Alterar IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Atualizar firmware</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuração de dispositivos</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configuração do sistema</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocolo CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Local de demo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Local de demo: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Dispositivos simulados, sem rede. Nome de utilizador e palavra-passe para iniciar sessão nos dispositivos. Os dispositivos novos têm de ser inicializados primeiro.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir local de demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Nenhuma biblioteca de dispositivos instalada: não é possível aceder aos dispositivos</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>A abrir %1 no programa de PDF do sistema</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Não é possível abrir %1</translation>
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
        <translation>Altera o endereço IP deste dispositivo</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Mostra todas as informações sobre este dispositivo</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Abre a página web deste dispositivo no navegador</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Abre a vista em direto deste dispositivo</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inicialize primeiro o dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>O dispositivo está a ser atualizado. Altere o seu endereço quando terminar.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Direto</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Dispositivo adicionado, mas não guardado nos favoritos. Verifique se pode escrever na pasta do programa.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispositivo adicionado e guardado nos favoritos</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispositivo adicionado</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Adicionar dispositivo</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selecione um dispositivo não inicializado</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispositivo falhou: ver Resultado</numerusform>
            <numerusform>%n dispositivos falharam: ver Resultado</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>O dispositivo está a ser atualizado. Altere o seu endereço quando terminar.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Alterar endereços IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Endereço alterado em %n dispositivo</numerusform>
            <numerusform>Endereços alterados em %n dispositivos</numerusform>
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
        <translation>Parado: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Remover %n dispositivo da lista?</numerusform>
            <numerusform>Remover %n dispositivos da lista?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispositivo está a ser atualizado e não foi removido</numerusform>
            <numerusform>%n dispositivos estão a ser atualizados e não foram removidos</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Remover dispositivos</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduza um endereço IP válido</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Introduza uma máscara de sub-rede válida</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Introduza um endereço de gateway válido</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Alterar IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Ocultar pré-visualização</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Mostra o novo endereço de cada dispositivo</translation>
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
        <translation>Mesmo IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Em uso por %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Este é o endereço de rede ou de difusão</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>O gateway está fora da sub-rede</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Alterar mesmo assim</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Este é o endereço do gateway</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Endereço IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Todos os %1 dispositivos estão ocultos pelos filtros</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>A pesquisar dispositivos…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Nenhum dispositivo encontrado</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nenhuma biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Altere os filtros ou limpe o texto de pesquisa.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Os dispositivos aparecem aqui à medida que são encontrados.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Verifique se os dispositivos estão ligados à corrente e à rede. Para dispositivos noutras redes, adicione a respetiva gama nas definições de pesquisa ou adicione um dispositivo pelo seu endereço.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Limpar filtros</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Pesquisar novamente</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Nenhuma rede está selecionada nas definições de pesquisa</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Selecione a rede local ou outras redes nas definições de pesquisa.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Definições de pesquisa</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Porque não foram encontrados dispositivos?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>O programa não consegue comunicar com os dispositivos: nenhum pode ser encontrado ou alterado. O local de demo não precisa de dispositivos e mostra todas as funções.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Abrir local de demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Pesquisado: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Adicionar dispositivo por endereço</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Verifique os cabos e as redes e pesquise novamente.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>A exportar dispositivos…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 já existe. Substituir?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispositivos exportados
Ficheiro: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Não foi possível escrever o ficheiro. Verifique a pasta e se outro programa tem o ficheiro aberto.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Estes valores não podem ser lidos de volta do ficheiro:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Endereço</translation>
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
        <translation>Coluna</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Resultado da exportação</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>A ler a lista de dispositivos…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Substituir ficheiro</translation>
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
        <translation>Remover do local</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Abrir uma lista de dispositivos</translation>
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
        <translation>Não importado. O ficheiro está aberto noutro programa, tem outro formato ou contém um endereço MAC duas vezes.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Resultado da importação</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Pesquisar novamente</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Mostrar motivos</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>A pesquisa foi interrompida; a lista está incompleta.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Nenhum dispositivo encontrado. Os que aparecem a cinzento foram encontrados antes.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispositivo a menos do que na última pesquisa</numerusform>
            <numerusform>%n dispositivos a menos do que na última pesquisa</numerusform>
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
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ações</translation>
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
        <translation>Define a primeira palavra-passe dos novos dispositivos selecionados</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Alterar IP em lote</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Atribui endereços consecutivos aos dispositivos selecionados</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Lê uma lista de dispositivos de uma folha de cálculo</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Escreve os dispositivos selecionados numa folha de cálculo</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Adicionar manualmente</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Adiciona dispositivos que uma pesquisa não encontra: por endereço IP, por ID P2P ou a partir dos favoritos</translation>
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
        <translation>Remover</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Remove os dispositivos selecionados da lista</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inicializado</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Não inicializado</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Pesquisar…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispositivo selecionado está a ser atualizado: o seu endereço não pode ser alterado</numerusform>
            <numerusform>%n dispositivos selecionados estão a ser atualizados: os seus endereços não podem ser alterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispositivo selecionado está a ser atualizado e não pode ser removido</numerusform>
            <numerusform>%n dispositivos selecionados estão a ser atualizados e não podem ser removidos</numerusform>
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
        <translation>Imagens dos dispositivos selecionados (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear por padrão</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Selecione o que deve ser nomeado</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Os nomes podem ser editados na tabela. “Guardar” escreve-os.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canal deste dispositivo</numerusform>
            <numerusform>%n canais deste dispositivo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n câmara selecionada</numerusform>
            <numerusform>%n câmaras selecionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Padrão: {n}, {model}, {ip4} (fim do endereço)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Vários canais recebem o mesmo nome</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primeiro número</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Dígitos</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Nomeia o canal 1 de cada câmara.</translation>
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
        <translation>Introduza um padrão</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Use apenas {n}, {model} e {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Mais de %1 bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Gravador: ignorado. Abra-o para nomear os seus canais</translation>
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
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OVBanner</name>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduza uma hora válida</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Mostra apenas os dispositivos falhados ou não executados, ordenados por motivo. Para dispositivos que já não estão na lista, ver Lotes.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Remove as marcas dos dispositivos falhados ou não executados</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Por resolver %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operação por resolver</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Todas as operações</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>falta menos de 1 min</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>falta cerca de %n min</numerusform>
            <numerusform>faltam cerca de %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n falhado</numerusform>
            <numerusform>%n falhados</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>A parar…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Parar (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Repetir falhados</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Seleciona apenas os dispositivos desta página falhados ou não executados</translation>
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
        <translation>A pesquisar dispositivos…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 de %3 concluídos</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, mais %n por resolver</numerusform>
            <numerusform>, mais %n por resolver</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>palavra-passe incorreta em %n dispositivo seguido</numerusform>
            <numerusform>palavra-passe incorreta em %n dispositivos seguidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>palavra-passe incorreta em %n dispositivo seguido (conta %1)</numerusform>
            <numerusform>palavra-passe incorreta em %n dispositivos seguidos (conta %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Continuar pode bloquear contas. Continuar?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Depois de parar, selecione outra conta no menu dos dispositivos e repita os dispositivos falhados (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Repetir falhados: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Executa “%1” novamente para os dispositivos falhados ou não executados. Os dispositivos para os quais uma repetição não pode ajudar, como após uma palavra-passe incorreta com a mesma conta, são excluídos.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Selecionar por resolver</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Selecionar conta…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Selecione outra conta para os dispositivos que recusaram esta e para os restantes que a usam, e tente-os novamente</translation>
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
        <translation>Introduza um número</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Fraca</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Força da palavra-passe</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Ajustar largura das colunas</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Repor colunas</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Ocultar palavra-passe</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostrar palavra-passe</translation>
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
        <translation>Pesquisar dispositivos</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Definições de pesquisa</translation>
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
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Recolher</translation>
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
        <translation>Sem canais</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canal não ligado</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>A ligar…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Fluxo interrompido</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nova tentativa em %n s</numerusform>
            <numerusform>Nova tentativa em %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Repetir agora</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 em p2p.ini falta ou é inválido</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Não foi possível iniciar o serviço P2P</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Selecione um dispositivo.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI em lote</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Envia um comando aos dispositivos selecionados</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Executar folha</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Envia os comandos de uma folha de cálculo e escreve nela os resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir ficheiro modelo</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Abre o ficheiro modelo para folhas de comandos</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Pesquisar…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Dispositivos falhados</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>O comando será enviado a estes dispositivos:</translation>
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
        <translation>Mostrar todo o resultado</translation>
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
            <numerusform>%n alteração não está guardada e vai perder-se.</numerusform>
            <numerusform>%n alterações não estão guardadas e vão perder-se.</numerusform>
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
            <numerusform>Copiar as definições de codificação do canal %1 para o mesmo canal do dispositivo selecionado?</numerusform>
            <numerusform>Copiar as definições de codificação do canal %1 para o mesmo canal dos %n dispositivos selecionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Isto inclui as alterações não guardadas.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>A guardar nomes dos canais…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc para parar)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuração de dispositivos</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Definições de codificação do canal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copiar codificação</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Alterações não guardadas</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Guardar e sair</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nomear por padrão</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configurar este dispositivo</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Não há nenhuma câmara entre os dispositivos selecionados</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Não foi possível guardar a definição. Verifique se pode escrever na pasta do programa.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selecione um ficheiro de firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Parar atualização</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflito de endereços IP: %n dispositivo</numerusform>
            <numerusform>Conflito de endereços IP: %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Ligação ao dispositivo P2P %1 perdida. Remova o dispositivo e adicione-o novamente.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>O serviço P2P está desligado. De momento, não é possível aceder aos dispositivos P2P.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Alterar endereços IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Imagens dos dispositivos selecionados</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Palavra-passe antiga correta: a aguardar a nova</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Alterar palavra-passe</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Verificar palavra-passe antiga</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Repor definições de fábrica</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selecionado</numerusform>
            <numerusform>%n dispositivos selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>O tempo acabou: a palavra-passe de %n dispositivo não foi alterada</numerusform>
            <numerusform>O tempo acabou: as palavras-passe de %n dispositivos não foram alteradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Foi iniciada outra operação: a palavra-passe de %n dispositivo não foi alterada</numerusform>
            <numerusform>Foi iniciada outra operação: as palavras-passe de %n dispositivos não foram alteradas</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Selecione primeiro dispositivos à esquerda</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” está em curso. Aguarde que termine.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Palavra-passe não alterada em %n dispositivo (%1); está marcado</numerusform>
            <numerusform>Palavra-passe não alterada em %n dispositivos (%1); estão marcados</numerusform>
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
        <translation>Frase-passe</translation>
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
        <translation>O programa já está em execução.</translation>
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
        <translation>Introduza a palavra-passe</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sessão de novo</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Falha ao iniciar sessão em %1. Introduza o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Palavra-passe incorreta, %n vez</numerusform>
            <numerusform>Palavra-passe incorreta, %n vezes</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Resposta do dispositivo: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>O dispositivo não comunica quantas tentativas restam. Mais palavras-passe incorretas podem bloquear a conta.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Guardar como conta deste dispositivo</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Depois de iniciada a sessão com êxito, a sessão neste dispositivo é sempre iniciada com esta conta</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Também para dispositivos posteriores</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Depois de iniciada a sessão com êxito, todos os dispositivos sem conta própria, incluindo os dos lotes, são tentados com ela em vez da conta das definições de pesquisa, até o programa terminar ou a conta das definições de pesquisa ser alterada</translation>
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
        <translation>espelho</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>estabilização</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exposição</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>contraluz</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>balanço de brancos</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>modo dia/noite</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>antinevoeiro</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>iluminador</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>brilho</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturação</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>tonalidade</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gama</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Não inicializado</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Endereço duplicado</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Início de sessão recusado</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Não é possível ler</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Relógio incorreto</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware mais antigo</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Sem servidor de hora</translation>
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
        <translation>Exata</translation>
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
        <translation>%1; outro dispositivo deste modelo tem %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nome do canal</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Definições de codificação</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Definições de imagem</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Definições de imagem: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Relatório do local</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalias</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Alterações desta visita</translation>
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
        <translation>Endereço</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>固件版本</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Desvio da hora</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Desvio da hora (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Servidor de hora</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Fluxo principal</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canal</translation>
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
        <translation>Imagem</translation>
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
        <translation>Operação</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Novo valor</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Não comunicado</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Sem imagem</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Sem anomalias.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Nenhum dispositivo foi alterado desde o início do programa.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Lidos</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Com anomalias</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Não é possível criar o ficheiro PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>Não é possível escrever %1: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 alterações anteriores não são apresentadas.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>Mais %1 canais</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Alterar endereço IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Acertar hora</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Atualizar firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Servidor de hora e fuso horário</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Hora de verão</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Manutenção automática</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Repor predefinições</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Norma de vídeo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Alterar palavra-passe</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Não é possível usar a pasta de ficheiros temporários %1: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispositivos seguidos recusaram o início de sessão</translation>
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
        <translation>Mudança de idioma</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>O idioma muda quando o programa reiniciar.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Mais tarde</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>O comando falhou</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Com êxito</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>A conta não existe</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Palavra-passe incorreta</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>A conta está bloqueada. Aguarde que o dispositivo a desbloqueie.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>A conta já está em uso</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Sem resposta do dispositivo</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocolo incompatível</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>O dispositivo não está inicializado</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>O dispositivo não suporta esta função</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>O dispositivo já está na lista</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Não foi possível ler as capacidades do dispositivo</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>O dispositivo rejeitou o pedido</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erro desconhecido %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>O dispositivo está a ser atualizado</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Não executado</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>A captura falhou</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Dados inválidos</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Ficheiro de firmware inutilizável</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Não atualizado</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Atualização não confirmada</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>O dispositivo está ocupado. Tente mais tarde.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>A sessão expirou. Inicie sessão novamente.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>O dispositivo não aceita este valor</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>O certificado do dispositivo não é de confiança</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>O certificado do dispositivo mudou</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Outro dispositivo responde no endereço</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Aceite pelo dispositivo, não confirmado</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Relatório de pesquisa</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiado para a área de transferência</translation>
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
        <translation>Este computador não tem nenhuma interface de rede utilizável</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Verifique se uma interface está instalada e ativada.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Pesquisa por endereço</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Endereços consultados</translation>
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
        <translation>Sem rota para %1 destes endereços</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Defina um gateway para a interface ou adicione um endereço na mesma rede que estes endereços.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Sem resposta de nenhum endereço</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Verifique a gama de endereços nas definições de pesquisa e se os dispositivos estão ligados à corrente.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Outras redes</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispositivos encontrados fora de todas as redes deste computador: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Antes de iniciar sessão neles, altere os seus endereços IP ou adicione à interface um endereço na rede deles.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Endereços</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Pedidos enviados</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Mensagens recebidas</translation>
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
        <translation>Não usado</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>mensagens ilegíveis: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>mensagens de dispositivos que não são câmaras nem gravadores: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>mensagens sem endereço de serviço: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>mensagens com endereço de serviço de outro anfitrião: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>mensagens de dispositivos a sair da rede: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>mensagens acima do limite: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>A interface está desativada</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Ative-a nas definições de rede do sistema operativo.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>A interface não está ligada</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Verifique o cabo e o switch ou ligue-se a uma rede sem fios.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>A interface não tem endereço IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Defina um endereço na rede dos dispositivos ou ative o DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>A interface não pode enviar multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Selecione outras redes nas definições de pesquisa para pesquisar por endereço.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>O sistema operativo não enviou os pedidos: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Verifique a firewall deste computador e as definições da interface.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Nenhuma resposta recebida</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Verifique se os dispositivos estão ligados à corrente e na mesma rede, e se nenhuma firewall ou switch filtra as respostas. Também pode pesquisar por endereço: ver as definições de pesquisa.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispositivos encontrados, menos %2 do que na última pesquisa.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispositivos encontrados: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Nenhum dispositivo encontrado.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>O IP inicial não pode ser maior do que o IP final</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>A gama pode abranger no máximo 17 segmentos</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Introduza um IP inicial válido</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Introduza um IP final válido</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Definições de pesquisa</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Pesquisar rede local</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Pesquisar outras redes</translation>
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
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Conta predefinida para iniciar sessão nos dispositivos</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Iniciar sessão durante a pesquisa</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Lê o modelo, a versão e o endereço MAC. Cada dispositivo recebe esta conta. Depois de uma palavra-passe incorreta, um dispositivo não é tentado novamente.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>não há serviço de chaves</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>o serviço de chaves está bloqueado</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>o serviço de chaves não responde</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Algumas palavras-passe estão no serviço de chaves do ambiente de trabalho e não podem ser lidas (%1). Introduza-as novamente.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Não é possível usar o serviço de chaves do ambiente de trabalho (%1). As palavras-passe são guardadas em ficheiros.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Não foi possível guardar a palavra-passe no serviço de chaves do ambiente de trabalho (%1). É guardada num ficheiro.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Não foi possível remover a palavra-passe do serviço de chaves do ambiente de trabalho (%1). Remova-a no gestor de chaves do sistema.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Não foi possível abrir o local de demo:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>O ficheiro não é um ficheiro de local ou está danificado</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>O ficheiro de local é de uma versão mais recente e não pode ser lido</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>O ficheiro de local tem mais de %1 dispositivos</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>O nome no ficheiro de local não é válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispositivo %1 do ficheiro de local: %2 não é válido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>O dispositivo %1 do ficheiro de local está repetido</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Não foi possível abrir o ficheiro</translation>
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
        <translation>Ficheiros de local (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Abrir local</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Local “%1” aberto, com %n dispositivo</numerusform>
            <numerusform>Local “%1” aberto, com %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>O local %1 não pode ser aberto: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Guardar local como</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>O local foi guardado em %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>O ficheiro não contém palavras-passe.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Um novo local remove da lista os dispositivos conhecidos e os grupos. As alterações não guardadas ficam nos locais recentes.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Novo local</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Abrir local…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Guardar local como…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Novo local…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Introduza o nome do local</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Selecione pelo menos um ficheiro</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Não há dispositivos na lista</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Criar relatório</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Relatório do local</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Já está a ser criado um relatório</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nome do local</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Instalador</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Guardar em</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Escolher…</translation>
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
        <translation>Selecionados (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>O programa inicia sessão em cada dispositivo, lê as suas definições e obtém uma imagem. O relatório apresenta as alterações desde o início do programa e não contém palavras-passe.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Não é possível abrir %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Abrir PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Relatório do local</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>O relatório está concluído</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Outra pasta…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canal não ligado</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>A captura falhou</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>A captura falhou: não foi possível escrever o ficheiro: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>A capturar…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Repetir</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>A fazer a captura %1 de %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>A parar…</translation>
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
            <numerusform>%n falhada</numerusform>
            <numerusform>%n falhadas</numerusform>
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
        <translation>Não executado</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>O dispositivo já não é mostrado</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Dia sem.</translation>
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
        <translation>Hora de verão</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Ativar</translation>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Aplicar hora de verão</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Introduza uma hora válida</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Pesquisar…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Limpar pesquisa</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Pesquisar novamente</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Nenhum dispositivo com este nome, tipo, modelo ou endereço.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Os dispositivos aparecem aqui à medida que são encontrados.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Só são listados os dispositivos IPv4 inicializados.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Nenhum dispositivo corresponde</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>A pesquisar dispositivos…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Sem dispositivos para configurar</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nenhuma biblioteca de dispositivos instalada</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>O programa não consegue comunicar com os dispositivos. Abra o local de demo na página “Alterar IP”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Limpar marcas</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Remove as marcas dos dispositivos falhados ou não executados</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>Foi iniciada sessão em todos os dispositivos listados.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispositivo sem endereço (DHCP) não é mostrado</numerusform>
            <numerusform>%n dispositivos sem endereço (DHCP) não são mostrados</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Os dispositivos falhados ou não executados não estão nesta árvore: não estão inicializados, não têm endereço IPv4 ou não foram encontrados de novo. Ver a página “Alterar IP” e Lotes.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Março</translation>
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
        <translation>Junho</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Julho</translation>
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
        <translation>Dezembro</translation>
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
        <translation>Quarta</translation>
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
        <translation>Segunda</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Terça</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Quarta</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Quinta</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Sexta</translation>
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
        <translation>Segunda</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Terça</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Quarta</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Quinta</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Sexta</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Diariamente</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Sem resposta do dispositivo</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Não foi possível ler a hora</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Sem resposta do dispositivo. A sua palavra-passe pode ter sido alterada.</translation>
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
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reinício</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Repor de fábrica</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
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
        <translation>Faltam %1 s para introduzir a palavra-passe. Depois, a palavra-passe antiga terá de ser verificada novamente.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Faltam %1 s para introduzir a palavra-passe</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispositivo a aguardar a nova palavra-passe</numerusform>
            <numerusform>%n dispositivos a aguardar a nova palavra-passe</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>a nova palavra-passe que introduziu foi reposta</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Verifique novamente a palavra-passe antiga. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>A nova palavra-passe que introduziu é então reposta.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>O tempo acabou: a palavra-passe de %n dispositivo não foi alterada. </numerusform>
            <numerusform>O tempo acabou: as palavras-passe de %n dispositivos não foram alteradas. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>A seleção mudou. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Use pelo menos dois tipos entre algarismos, letras e símbolos, sem caracteres não permitidos.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirme a palavra-passe</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>As palavras-passe não coincidem</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>A palavra-passe deve ter de 8 a 32 caracteres</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Introduza a palavra-passe antiga</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Passo 1: verificar a palavra-passe antiga</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Palavra-passe antiga</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Passo 2: definir a nova palavra-passe</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nova palavra-passe</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>De 8 a 32 caracteres, com pelo menos dois tipos entre algarismos, letras e símbolos (todos os caracteres visíveis exceto &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Alterar palavra-passe</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Em caso de êxito</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Hora de verão ativada</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Hora de verão desativada</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP desativado</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Reinício %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Reinícios regulares desativados</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Reiniciar o dispositivo selecionado?</numerusform>
            <numerusform>Reiniciar os %n dispositivos selecionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Reiniciar</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Repor as definições de fábrica do dispositivo selecionado?</numerusform>
            <numerusform>Repor as definições de fábrica dos %n dispositivos selecionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>“%1” será aplicado a estes dispositivos:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>O intervalo de sincronização é de 0 minutos: o dispositivo pode deixar de atualizar a sua hora. Aplicar ao dispositivo selecionado?</numerusform>
            <numerusform>O intervalo de sincronização é de 0 minutos: os dispositivos podem deixar de atualizar a sua hora. Aplicar aos %n dispositivos selecionados?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Aplicar mesmo assim</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Manutenção automática</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Reiniciar regularmente</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Reiniciar às</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Dia do reinício</translation>
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
        <translation>Enquanto reinicia, um dispositivo não está acessível e não grava.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Reiniciar dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispositivo selecionado está a ser atualizado e não pode ser reiniciado</numerusform>
            <numerusform>%n dispositivos selecionados estão a ser atualizados e não podem ser reiniciados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Repor definições de fábrica</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Apaga todas as definições, contas e palavras-passe dos dispositivos. Esta ação não pode ser anulada. Os dispositivos têm de ser inicializados novamente.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispositivo selecionado está a ser atualizado e não pode ser reposto</numerusform>
            <numerusform>%n dispositivos selecionados estão a ser atualizados e não podem ser repostos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Hora do computador</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Acertar pelo computador</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Acerta cada dispositivo pela hora a que recebe o pedido</translation>
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
        <translation>Usar a hora atual</translation>
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
        <translation>Ler hora dos dispositivos</translation>
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
        <translation>Sem sessão %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Mostra apenas os dispositivos ainda sem sessão iniciada ou cujo último início de sessão falhou</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Por resolver %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Mostra apenas os dispositivos falhados ou não executados, ordenados por motivo.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> Mais %n não está nesta lista: ver Lotes.</numerusform>
            <numerusform> Mais %n não estão nesta lista: ver Lotes.</numerusform>
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
        <translation>PAL destina-se a regiões com rede elétrica de 50 Hz, NTSC a 60 Hz. Alguns dispositivos reiniciam após a alteração.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Os dispositivos não oferecem esta função</translation>
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
        <translation>Fuso horário e NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Ativar NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Servidor NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP ou nome do anfitrião</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Porta NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervalo (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Aplicar fuso horário e NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Os dispositivos não oferecem %1, o fuso horário deste computador. Selecione um fuso horário.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Introduza um endereço IP ou nome de anfitrião válido</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Endereço IP do dispositivo, ou “endereço:porta web” se a porta web não for 80. Obrigatório.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Porta de início de sessão do dispositivo. Usada apenas para verificar a conta.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Nome de utilizador do dispositivo, sem dois pontos.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Palavra-passe do dispositivo. Remova-a depois do ficheiro.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Comando que começa por “/”. O dispositivo recebe duas vezes um comando aceite. Obrigatório.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 para HTTP, outros inteiros para HTTPS. HTTP se estiver vazio.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Preenchido pelo programa: a resposta, o caminho da imagem ou da gravação, ou “Error:” e o motivo.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instruções</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Coluna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Mantenha a linha de cabeçalho. Substitua a linha de exemplo pelas suas próprias linhas.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>As linhas sem endereço e comando são ignoradas.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Não abra este ficheiro noutro programa durante a execução.</translation>
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
            <numerusform>%n dispositivo não pode ser atualizado com este ficheiro: ver Resultado</numerusform>
            <numerusform>%n dispositivos não podem ser atualizados com este ficheiro: ver Resultado</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Linha %1: %2</translation>
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
        <translation>Porta</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Ficheiro de firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Não foi possível abrir o ficheiro</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>O formato do ficheiro está incorreto</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Não foi possível guardar os resultados: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Resultados guardados em %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Não foi possível escrever o ficheiro. É só de leitura ou está aberto noutro programa. Resultados guardados em %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>A folha de cálculo tem mais de %1 dispositivos. Divida-a.</translation>
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
        <translation>%1: %2 atualizados, %3 falhados. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>A folha de cálculo não contém dispositivos</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: ignorado</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>O dispositivo já tem esta versão</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>A ler a folha de cálculo</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Iniciar atualização</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Atualizar firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Atualizar por folha de cálculo</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n dispositivo será atualizado. Vai reiniciar. Não o desligue.</numerusform>
            <numerusform>%n dispositivos serão atualizados. Vão reiniciar. Não os desligue.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Os resultados são escritos na folha de cálculo.</translation>
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
        <translation>Atualização: %1 de %2 concluídos</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n com êxito</numerusform>
            <numerusform>%n com êxito</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n falhado</numerusform>
            <numerusform>%n falhados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>A iniciar sessão</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>A escrever</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>A reiniciar</translation>
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
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Uma repetição pode ajudar</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corrija o ficheiro, a conta ou o dispositivo e atualize novamente</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selecionar ficheiro</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>A escrita começou: não pode ser parada</translation>
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
        <translation>Endereço IP do dispositivo. Obrigatório.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Porta de início de sessão do dispositivo. 37777 se estiver vazio.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Nome de utilizador do dispositivo. Se este campo e a palavra-passe estiverem vazios, é usada a conta do programa.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Palavra-passe do dispositivo. Remova-a depois do ficheiro.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Caminho do ficheiro de firmware, absoluto ou relativo à pasta desta folha de cálculo. Obrigatório.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Preenchido pelo programa: as versões antes e depois da atualização, ou o motivo da falha.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instruções</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Coluna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Mantenha a linha de cabeçalho. Substitua a linha de exemplo pelas suas próprias linhas.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>As linhas sem endereço e ficheiro de firmware são ignoradas.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Não abra este ficheiro noutro programa durante a atualização.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>A escrita começou: não pode ser parada</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 aos %2%</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Ainda não parado: nova tentativa</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware escrito, dispositivo a reiniciar: não pode ser parado</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Atualizado: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: nenhuma versão comunicada</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: agora %2, versão anterior desconhecida</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Iniciar atualização</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Atualiza os dispositivos selecionados</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Selecionar ficheiro</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Seleciona um ficheiro de firmware para os dispositivos selecionados</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Repetir falhados</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Atualiza novamente os dispositivos para os quais uma repetição pode ajudar, como os que não responderam</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Atualizar por folha de cálculo</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Atualiza os dispositivos de uma folha de cálculo e escreve nela os resultados</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Abrir ficheiro modelo</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Abre o ficheiro modelo para folhas de atualização</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Pesquisar…</translation>
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
        <translation>Dispositivos de cada vez</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispositivos atualizados de cada vez</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>A aguardar o reinício do dispositivo</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>A escrever: não desligue o dispositivo</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>A enviar o ficheiro</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>A iniciar sessão</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Nenhum ficheiro de firmware selecionado</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>O ficheiro de firmware não existe</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Não foi possível ler o ficheiro de firmware</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>O ficheiro de firmware está vazio</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>O ficheiro de firmware é demasiado grande</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>O ficheiro de firmware está danificado</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>O firmware é para outros modelos</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rejeitado pelo dispositivo</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Palavra-passe incorreta</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>A conta não existe</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>A conta está bloqueada</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>O dispositivo não está inicializado</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Atualização não suportada ou dispositivo não inicializado</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Endereço IP ou porta inválidos</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Mesmo dispositivo que numa linha anterior</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Sem resposta do dispositivo</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>O dispositivo está ocupado. Tente mais tarde.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Interrompido pelo dispositivo</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Demasiado tempo sem progresso</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Sem resposta após o reinício</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Versão inalterada após o reinício</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Parado: dispositivo não alterado</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Interrompido: o programa foi fechado</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erro desconhecido %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Modelo de atualização em lote.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Reiniciado, mas não foi possível ler a versão</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificado não confiável</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>O certificado mudou</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>O dispositivo já não está na lista</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selecione um ficheiro de firmware</translation>
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
        <translation>Sem dispositivos para repetir</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispositivo não foi atualizado: ver Resultado</numerusform>
            <numerusform>%n dispositivos não foram atualizados: ver Resultado</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n dispositivo atualizado</numerusform>
            <numerusform>%n dispositivos atualizados</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Não foi possível abrir o ficheiro modelo.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Atualizar firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Atualizar por folha de cálculo</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Parado: %1 atualizados, %2 falhados, %3 não executados</translation>
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
        <translation>Deteção de movimento</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Comp. de contraluz</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gama dinâmica (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. de altas luzes</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codificação</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Iniciar sessão de novo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Clique num dispositivo à esquerda para iniciar sessão e alterar as suas definições.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Selecione um dispositivo</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Falha ao iniciar sessão</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continuar aqui</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Só é possível ter sessão iniciada num dispositivo de cada vez. Continuar fecha a vista em direto do outro dispositivo.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>A vista em direto de outro dispositivo está aberta</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Ligação perdida</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nomes dos canais</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>A configuração dos dispositivos é mostrada e alterada aqui assim que uma pesquisa encontrar algum.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Sem dispositivos</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomear por padrão</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Clique num dispositivo à esquerda para alterar aqui os nomes dos seus canais, ou dê nome às câmaras selecionadas em conjunto.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Sem imagem: faltam ficheiros na pasta Shaders ou estão danificados</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Sem imagem: demasiado grande para a placa gráfica</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>A reprodução falhou</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>A reprodução falhou: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Ligação ao dispositivo perdida</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>O dispositivo terminou o fluxo</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>O dispositivo não envia vídeo</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>O dispositivo já não aceita o início de sessão</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>O dispositivo não envia um fluxo de vídeo</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Este computador não consegue descodificar o fluxo</translation>
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
        <translation>O certificado do dispositivo mudou. A página web não foi aberta. Não introduza nenhuma palavra-passe neste dispositivo.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>O certificado do dispositivo não está confirmado. A página web não foi aberta.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Não foi possível abrir o navegador. Página web do dispositivo: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Não foi possível guardar as definições. Verifique se pode escrever na pasta do programa.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Parar e sair</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Os dispositivos que estão a escrever o firmware terminam sozinhos: não os desligue.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificado aceite. Tente novamente.</numerusform>
            <numerusform>%n certificados aceites. Tente novamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Não é possível guardar a conta, que só é usada até à próxima pesquisa: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>“%1” está em curso. Se sair, os restantes dispositivos não serão alterados.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>O relatório foi interrompido; nenhum ficheiro foi escrito</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Responderam mais de %1 dispositivos. Mais %2 respostas não são listadas. Pesquise uma gama mais pequena.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Parado: %1 linhas com êxito, %2 falhadas, %3 não enviadas.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Terminado: %1 linhas com êxito, %2 falhadas.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Não foi possível guardar os resultados: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Resultados guardados em %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Não foi possível escrever o ficheiro. É só de leitura ou está aberto noutro programa. Resultados guardados em %1</translation>
    </message>
</context>
</TS>
