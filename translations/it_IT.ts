<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copia numero di versione</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiato negli appunti</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licenze di terze parti</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Aggiungi account</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Modifica account</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Inserire un nome</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Per esempio: Edificio 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Inserire il nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Inserire la password</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Lasciare vuoto per conservarla</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Memorizza le credenziali con cui lo strumento accede. Le password dei dispositivi non vengono modificate.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Impossibile salvare l&apos;account, usato solo fino alla prossima ricerca: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Il nuovo account è ora l&apos;account predefinito</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Il nuovo account è stato salvato e da ora è usato per questo dispositivo</numerusform>
            <numerusform>Il nuovo account è stato salvato e da ora è usato per questi %n dispositivi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Salva per questi dispositivi (consigliato)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Imposta come account predefinito di tutti i dispositivi</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Non salvare; usa fino alla prossima ricerca</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Il dispositivo non ha né MAC né UUID: l&apos;account è usato solo fino alla prossima ricerca</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Impossibile leggere il file degli account, %1: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Il file degli account è danneggiato e nessuno dei suoi account è usato: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Inserire un nome di massimo %1 caratteri</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Inserire un nome utente di massimo %1 caratteri</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Inserire una password di massimo %1 caratteri</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Esiste già un account chiamato “%1”</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Non esiste un account chiamato “%1”</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Spazio esaurito: massimo %1 account e %2 dispositivi</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n dispositivo usa l&apos;account predefinito</numerusform>
            <numerusform>%n dispositivi usano l&apos;account predefinito</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n dispositivo usa l&apos;account “%1”</numerusform>
            <numerusform>%n dispositivi usano l&apos;account “%1”</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n di essi non ha né MAC né UUID e lo usa solo fino alla prossima ricerca</numerusform>
            <numerusform>; %n di essi non hanno né MAC né UUID e lo usano solo fino alla prossima ricerca</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Rimuovere l&apos;account “%1”?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Da quel momento l&apos;accesso al dispositivo che lo usa avviene con l&apos;account predefinito.</numerusform>
            <numerusform> Da quel momento l&apos;accesso ai %n dispositivi che lo usano avviene con l&apos;account predefinito.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Usa per %n dispositivo</numerusform>
            <numerusform>Usa per %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Seleziona account</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>L&apos;account predefinito si modifica nelle impostazioni di ricerca</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Ogni dispositivo viene provato con un solo account: quello selezionato per esso oppure quello predefinito. Gli altri account non vengono mai provati.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Account predefinito</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Rimuovi account</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Rimuovere %n account non usato da alcun dispositivo?</numerusform>
            <numerusform>Rimuovere %n account non usati da alcun dispositivo?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Rimuovi account inutilizzati</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Account non selezionati per alcun dispositivo</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Non usato</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>I dispositivi hanno rifiutato questo account. Selezionarne o aggiungerne un altro.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Usa per %n dispositivo e riprova</numerusform>
            <numerusform>Usa per %n dispositivi e riprova</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>I dispositivi hanno rifiutato l&apos;account %1. Selezionarne o aggiungerne un altro.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Inserire l&apos;ID P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Inserire un indirizzo IP valido</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Inserire l&apos;account</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Inserire la password</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Inserire il numero di porta</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>La porta deve essere tra 1 e 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Aggiungi dispositivo</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Aggiungi ai preferiti</translation>
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
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Massimo 50 caratteri</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Aggiunta…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Impossibile salvare le note. Verificare di poter scrivere nella cartella del programma.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Impossibile rimuovere il preferito. Verificare di poter scrivere nella cartella del programma.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Preferiti</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>preferito selezionato</numerusform>
            <numerusform>preferiti selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Doppio clic su una riga per aggiungere il dispositivo</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Cancella filtri</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Aggiungi dispositivo</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Modificare o cancellare il testo di ricerca.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Selezionare “Aggiungi ai preferiti” quando si aggiunge un dispositivo per salvarlo qui.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Nessun preferito corrisponde alla ricerca</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Ancora nessun preferito</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Rimuovere %1 dai preferiti?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Aggiungi preferiti</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Rimuovi preferito</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>La password non è leggibile: fare doppio clic per inserirla</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Nessun indirizzo MAC: ignorato</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In uso da un altro dispositivo</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Assegnato due volte</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Uguale al gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Fuori dalla sottorete</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Indirizzo di rete o di broadcast</translation>
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
        <translation>Il batch è in corso</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Alcuni dispositivi attendono la nuova password</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Nessun dispositivo fallito o non eseguito</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Questa operazione non può essere ripetuta qui</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Solo il batch più recente può essere ripetuto</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Un nuovo tentativo non può aiutare questi dispositivi. Correggere prima la causa, per esempio l&apos;account.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI in batch</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Inviare questo comando al dispositivo selezionato:</numerusform>
            <numerusform>Inviare questo comando ai %n dispositivi selezionati:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Riprova falliti</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Esegue di nuovo il batch per i dispositivi falliti o non eseguiti</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Ripristina indirizzi</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Riporta i dispositivi modificati ai loro indirizzi IP precedenti</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Riportare %n dispositivo al suo indirizzo IP precedente?</numerusform>
            <numerusform>Riportare %n dispositivi ai loro indirizzi IP precedenti?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salva risultati</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Riusciti / totale</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Solo falliti</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Comprende i dispositivi non eseguiti</translation>
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
        <translation>Risultato</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Ancora nessun batch</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Nessun dispositivo fallito</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Ripristina indirizzi IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Salva i risultati di tutti i batch dell&apos;elenco in un unico file</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Attendere la fine del batch in corso</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Non inizializzato: ignorato</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Aggiornamento in corso: ignorato</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflitto di indirizzi: potrebbe essere modificato un altro dispositivo</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>In uso da un altro dispositivo</translation>
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
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n avviso: vedere Note</numerusform>
            <numerusform>%n avvisi: vedere Note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n dispositivo viene ignorato: vedere Note</numerusform>
            <numerusform>%n dispositivi vengono ignorati: vedere Note</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>eseguito su %n dispositivo</numerusform>
            <numerusform>eseguito su %n dispositivi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n ignorato</numerusform>
            <numerusform>%n ignorati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Nascondi elenco</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Mostra %n dispositivo</numerusform>
            <numerusform>Mostra %n dispositivi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Nome e modello</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Vecchio indirizzo</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Nuovo indirizzo</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>File firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nuovo nome</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n riuscito</numerusform>
            <numerusform>%n riusciti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n in attesa della nuova password</numerusform>
            <numerusform>%n in attesa della nuova password</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n fallito</numerusform>
            <numerusform>%n falliti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n non eseguito</numerusform>
            <numerusform>%n non eseguiti</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n ignorato</numerusform>
            <numerusform>%n ignorati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n in attesa</numerusform>
            <numerusform>%n in attesa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Vecchia password corretta</translation>
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
        <translation>Risultato</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Tempo limite superato</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: ignorato</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Salva risultati</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Risultati salvati in %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Impossibile salvare i risultati. Scegliere un&apos;altra cartella.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batch</translation>
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
            <numerusform>C&apos;è %n avviso. Continuare?</numerusform>
            <numerusform>Ci sono %n avvisi. Continuare?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Avvisi</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>I dispositivi non possono scambiarsi gli indirizzi (come %1 e %2) in un solo passo. Assegnare prima un altro indirizzo a uno di essi.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” è in corso. Attendere la fine.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Memoria o thread insufficienti per l&apos;avvio. Chiudere altri programmi e riprovare.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salva risultati</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canale %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 è ancora in uso dal dispositivo %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n dispositivo non è stato ripetuto: il suo indirizzo è cambiato o non è più nell&apos;elenco (%1)</numerusform>
            <numerusform>%n dispositivi non sono stati ripetuti: i loro indirizzi sono cambiati o non sono più nell&apos;elenco (per esempio %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Sono in corso aggiornamenti. Cercare quando saranno terminati.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Sono in corso aggiornamenti. Chiudere il programma quando saranno terminati.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, “</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>“%1” è in corso. Cercare quando sarà terminato.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>“%1” è in corso. Rimuovere i dispositivi quando sarà terminato.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>“%1” è in corso. Modificare i dispositivi quando sarà terminato.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>“%1” è in corso. Chiudere il programma quando sarà terminato.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>“%1” è in corso. Riavviare il programma quando sarà terminato.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>È in corso una ricerca. Interromperla con Esc o attendere la fine.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Sono in corso i comandi di un altro foglio di calcolo. Attendere la fine.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Template CGI in batch.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>È in corso un altro comando CGI. Attendere la fine.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (troncato)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>password dell’account predefinito</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Esterno</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Priorità guadagno</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Priorità otturatore</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Luce naturale</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Lampione</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Area personalizzata</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarossi</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Luce bianca</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Intelligente</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Considera attendibili</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Conferma certificati dei dispositivi</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Impossibile salvare i certificati. Nessuno è considerato attendibile.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 di %2 dispositivi selezionati</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Questi dispositivi usano certificati autofirmati per HTTPS. Non è stata inviata alcuna password. Confrontare le impronte. Dopo la conferma, viene accettata solo questa chiave.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Il certificato di %n dispositivo è cambiato. Non è stata inviata alcuna password. Potrebbe essere un altro dispositivo: selezionarlo solo se si conosce il motivo, per esempio un ripristino di fabbrica.</numerusform>
            <numerusform>I certificati di %n dispositivi sono cambiati. Non è stata inviata alcuna password. Potrebbero essere altri dispositivi: selezionarli solo se si conosce il motivo, per esempio un ripristino di fabbrica.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC o UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Valido fino al</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Impronta</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Impronta (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Impronta attendibile</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Impossibile leggere il file dei certificati, %1: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Il file dei certificati è danneggiato. Nessun certificato è considerato attendibile. Confermarli di nuovo: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Nessun tunnel verso la porta web del dispositivo.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non inviato</translation>
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
        <translation>Rimuovi dai comandi salvati</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Salva questo comando</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>L&apos;intestazione della risposta è troppo grande.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nome utente o password errati. Controllare l&apos;account nelle impostazioni di ricerca.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>L&apos;account è bloccato. Attendere che il dispositivo lo sblocchi.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Nessuna risposta dal dispositivo.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Il dispositivo non è inizializzato.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Errore sconosciuto.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Il dispositivo ha rifiutato la richiesta</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>La risposta è troppo grande.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Impossibile scrivere il file: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>La parte ricevuta della registrazione si trova in %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Il dispositivo è in aggiornamento.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Il certificato del dispositivo non è attendibile.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Il certificato del dispositivo è cambiato.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Host non trovato</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Il dispositivo ha rifiutato la connessione. Controllare la porta HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Il dispositivo non è raggiungibile</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Il dispositivo non ha risposto in tempo</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Nessuna connessione cifrata. Controllare la porta HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>La risposta del dispositivo non è HTTP valido</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>La connessione è stata chiusa prima della fine della risposta</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>La richiesta non è riuscita</translation>
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
        <translation>Un nome utente non deve contenere due punti o caratteri di controllo.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Una password non deve contenere caratteri nulli.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Impossibile scrivere il file: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Salvato in %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copia tutto</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Salva il testo in un file</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selezionare una cartella</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Invio di un comando CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI in batch</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Inserire un comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Il comando deve iniziare con /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Interrotto: %1 di %2 completati</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Inviato a %n dispositivo: accettato</numerusform>
            <numerusform>Inviato a %n dispositivi: tutti accettati</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Il dispositivo ha accettato il comando e non ha restituito alcun risultato.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Inviato a %n: %1 accettati, %2 falliti</numerusform>
            <numerusform>Inviato a %n: %1 accettati, %2 falliti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CgiTable</name>
    <message>
        <source>型号</source>
        <translation>Modello</translation>
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
        <translation>Azioni</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Clic destro per copiare il risultato</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Invia il comando a questo dispositivo</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Mostra tutto il risultato</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Il dispositivo è in aggiornamento. Inviare comandi quando sarà terminato.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Esegui foglio</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Verranno inviati i comandi CGI del foglio di calcolo. I risultati vengono scritti nel foglio.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Impossibile aprire il template.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Sono in corso i comandi di un altro foglio di calcolo. Attendere la fine.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Lettura del foglio di calcolo</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Riga %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Il file è cambiato. Aprirlo di nuovo.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Salvataggio del foglio di calcolo</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nome del canale %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nome non comunicato</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Inserire un nome</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Più lungo di %1 byte</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rifiutato dal dispositivo</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Nessuna risposta dal dispositivo</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Modificato dal dispositivo</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Accorcia</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Accorcia il nome a quanto il dispositivo può memorizzare</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Ripristina il nome presente nel dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Il dispositivo è in aggiornamento</translation>
    </message>
</context>
<context>
    <name>ChannelNamesPanel</name>
    <message>
        <source>通道</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non connesso</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome canale non salvato</numerusform>
            <numerusform>%n nomi canale non salvati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modifica non salvata</numerusform>
            <numerusform>%n modifiche non salvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Il dispositivo non comunica il nome di %n canale</numerusform>
            <numerusform>Il dispositivo non comunica i nomi di %n canali</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Il dispositivo è in aggiornamento. Salvare quando sarà terminato.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomi da schema</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Assegna nomi a più canali o telecamere con un unico schema</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Lettura dei nomi canale…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canale %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nome canale salvato</numerusform>
            <numerusform>%n nomi canale salvati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nome canale non salvato</numerusform>
            <numerusform>%n nomi canale non salvati</numerusform>
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
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Comando CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Il formato del file è errato</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Inserire un comando.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Il comando deve iniziare con /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (troncato)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Copiato su %n dispositivo</numerusform>
            <numerusform>Copiato su %n dispositivi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n dispositivo ha accettato solo una parte</numerusform>
            <numerusform>%n dispositivi hanno accettato solo una parte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n dispositivo fallito</numerusform>
            <numerusform>%n dispositivi falliti</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n dispositivo non eseguito</numerusform>
            <numerusform>%n dispositivi non eseguiti</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copia codifica</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Accesso in corso…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Impossibile leggere la configurazione del dispositivo</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Impossibile leggere le capacità del dispositivo</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Nuovo accesso eseguito. Le modifiche non salvate sono perse.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Mostra rapporto</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Il programma si è chiuso in modo imprevisto. È stato scritto un rapporto</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Rapporto di arresto anomalo</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Esportato in %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Impossibile scrivere il file %1</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Il dispositivo non ha una pagina web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiato negli appunti</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 è già nei preferiti</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 aggiunto ai preferiti</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Impossibile salvare il preferito. Verificare se la cartella del programma è scrivibile.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Sostituisci file</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Il dispositivo non comunica né indirizzo MAC né UUID e non può avere una nota</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Il dispositivo non è raggiungibile via P2P. Controllare l&apos;ID P2P e la connessione di rete.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflitto di indirizzi IP</translation>
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
        <translation>%1 g %2 h</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>come questo computer</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>avanti di %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>indietro di %1</translation>
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
        <translation>Identità</translation>
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
        <translation>Modello</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inizializzato</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non inizializzato</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Indirizzo IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Indirizzo IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Indirizzo dispositivo</translation>
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
        <translation>Sì</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nome host</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Trovato tramite</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Porta locale</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Porta di servizio</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Porta di servizio dispositivo</translation>
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
        <translation>Connessioni massime</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Ingressi allarme</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Dischi rigidi</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Aggiunto da</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manualmente (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Ricerca</translation>
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
        <translation>Nome utente</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copia tutto</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Dettagli dispositivo</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Accesso non riuscito: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Accedi per leggere altro</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Accede al dispositivo per leggerne porte, canali e dischi rigidi</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Salva il testo in un file</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Nessuna voce corrisponde alla ricerca</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copia questa riga</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Impossibile leggere il file delle librerie dispositivi %1</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Il file delle librerie dispositivi %1 contiene una riga sconosciuta: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] o la sua voce “file” manca nel file delle librerie dispositivi</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>La funzione %2 di %1 manca nel file delle librerie dispositivi</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Funzione %2 di %1 sconosciuta nel file delle librerie dispositivi</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Impossibile caricare la libreria dispositivi %1: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>La libreria dispositivi %1 non esporta %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>La riga %1 è troppo lunga</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>La riga %1 non è codificata in UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Il file è troppo grande</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Più campi che colonne</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un campo è troppo lungo</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un campo contiene un carattere di controllo</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Modo di aggiunta sconosciuto</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Indirizzo dispositivo non valido</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Porta dispositivo non valida</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Manca il nome utente o la password</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Le righe %1 e %2 hanno lo stesso indirizzo MAC: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Il file contiene più di %1 dispositivi</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Il file non ha la riga di intestazione di un elenco dispositivi</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Impossibile leggere il foglio di calcolo</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>L&apos;elemento radice non è deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>La riga %1 non è XML valido</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>La codifica %1 non è supportata</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Il foglio ha più di %1 righe</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Il carattere %1 non può essere riletto da questo formato</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Il contenuto dell&apos;elenco cifrato non è valido</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Il file non è un elenco di dispositivi cifrato o è incompleto</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Questa versione degli elenchi cifrati non è supportata</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>I parametri dell&apos;elenco cifrato non sono validi</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>L&apos;elenco è cifrato: è necessaria una passphrase</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Passphrase errata o file danneggiato</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Seleziona solo lo stesso tipo (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Seleziona solo lo stesso modello (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Apri pagina web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Apri vista live</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copia indirizzo</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copia MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copia riga</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Aggiungi ai preferiti</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Nota…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Seleziona account di %n dispositivo selezionato…</numerusform>
            <numerusform>Seleziona account di %n dispositivi selezionati…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleziona account…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Impossibile leggere il file delle note, %1: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Il file delle note, %1, è danneggiato. Alcune note potrebbero essere perse. Viene conservato con un altro nome al salvataggio della prossima nota.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Il dispositivo non comunica né indirizzo MAC né UUID e non può avere una nota</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Una nota può avere al massimo %1 caratteri</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>È possibile salvare al massimo %1 note</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Impossibile salvare la nota: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>rete locale</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>rete locale (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca dispositivi</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Nessun dispositivo selezionato</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Accesso eseguito</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Accesso non riuscito: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Senza accesso</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connessione persa</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Aggiornamento in corso</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Da confermare</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inizializzato</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non inizializzato</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Non trovato nell&apos;ultima ricerca</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Dispositivo dell&apos;ultimo elenco, non ancora trovato</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Trovato l&apos;ultima volta: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Si può trascinare nella finestra un solo file alla volta</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Non è un file di questo computer</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>File non supportato: %1. Trascinare nella finestra un elenco di dispositivi (.xlsx, .csv, .xml, .devlist) o un file di sito (.site)</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Bit rate personalizzato</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Stream principale: formato video</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Stream principale: profilo video</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Stream principale: compressione audio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Stream principale: formato audio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Stream secondario: formato video</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Stream secondario: profilo video</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Stream secondario: compressione audio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Stream secondario: formato audio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (non letto, non scritto)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Non copiato: %1</translation>
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
        <translation>compressione dello stream secondario</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compressione dello stream principale</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>risoluzione dello stream secondario</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>risoluzione dello stream principale</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>bit rate dello stream secondario</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>bit rate dello stream principale</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>controllo bit rate dello stream secondario</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>controllo bit rate dello stream principale</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>frame rate dello stream secondario</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>frame rate dello stream principale</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio dello stream secondario</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio dello stream principale</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Nessuna risposta dal dispositivo</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Il dispositivo non supporta questa funzione</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Il dispositivo è occupato</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Il dispositivo ha rifiutato la richiesta (errore %1)</translation>
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
        <translation>La configurazione del dispositivo non è valida. Alcuni valori potrebbero mancare.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Il dispositivo non comunica le sue capacità di codifica. Alcuni valori potrebbero mancare.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Stream principale</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Stream secondario</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Impossibile leggere le impostazioni di codifica del canale %1</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modifica non salvata</numerusform>
            <numerusform>%n modifiche non salvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copia su %n dispositivo</numerusform>
            <numerusform>Copia su %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copia sui dispositivi selezionati</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Connessione persa</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Non salvato: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Il dispositivo è in aggiornamento. Salvare quando sarà terminato.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Connessione persa. Ricaricare per riprovare.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, oppure il canale non è connesso. Scegliere un altro canale o ricaricare.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Non letto: %1. Il salvataggio non lo modifica.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Tipo di stream</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Attiva stream secondario</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compressione</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Controllo bit rate</translation>
    </message>
    <message>
        <source>固定码流</source>
        <translation>Costante (CBR)</translation>
    </message>
    <message>
        <source>可变码流</source>
        <translation>Variabile (VBR)</translation>
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
        <translation>Qualità</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Attiva audio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Campionamento (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Lettura delle impostazioni di codifica…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Scrittura della risoluzione dello stream secondario…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Entrambi gli stream usano una sola compressione: lo stream principale è ora %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Salvataggio delle impostazioni di codifica…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Impossibile leggere le impostazioni: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Selezionare il formato del file</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Le password nel file sono in chiaro. Le password degli account salvati non vengono esportate.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Il file non contiene password. Inserirle prima dell&apos;importazione.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>L&apos;intero elenco è cifrato con la passphrase e può essere letto solo da questo programma. Senza la passphrase non può essere recuperato. Le password degli account salvati non vengono esportate.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Elenco completo</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Senza password</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Cifrato (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>La passphrase deve avere almeno %1 caratteri</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Le due passphrase non coincidono</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Ripetere la passphrase</translation>
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
        <translation>Non trovato nell&apos;ultima ricerca</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Modifica note</translation>
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
        <translation>N.</translation>
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
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Rimuove questo dispositivo dai preferiti</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Chiudere la finestra di dialogo prima di trascinare un file</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Rilasciare per importare un elenco di dispositivi o aprire un sito</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Usare almeno due tipi tra cifre, lettere e simboli, senza caratteri non ammessi.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Inserire il nome utente</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Inserire la password</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confermare la password</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Le password non corrispondono</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La password deve avere da 8 a 32 caratteri</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inizializzazione</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n dispositivo da inizializzare</numerusform>
            <numerusform>%n dispositivi da inizializzare</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nuova password</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>Da 8 a 32 caratteri, con almeno due tipi tra cifre, lettere e simboli (tutti i caratteri visibili tranne </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Poi inserire la nuova password anche nelle impostazioni di ricerca.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>In caso di successo</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Il dispositivo non è stato trovato da una ricerca, oppure non comunica né indirizzo MAC né UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Attesa del dispositivo interrotta: il suo indirizzo potrebbe essere cambiato</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Tempo limite superato: l&apos;indirizzo potrebbe essere cambiato</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Diversi dispositivi di seguito hanno rifiutato la password. Continuando, gli account potrebbero bloccarsi.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Interruzione…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Recupero immagini, %1 di %2 dispositivi</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n immagine</numerusform>
            <numerusform>%n immagini</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n fallita</numerusform>
            <numerusform>%n fallite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n altro dispositivo non è mostrato</numerusform>
            <numerusform>%n altri dispositivi non sono mostrati</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Recupera tutto di nuovo</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” è in corso. Attendere la fine.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Recupera di nuovo tutte le immagini (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Scrivi tutte le immagini nella cartella delle istantanee (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Recupero…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Recupera di nuovo (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Recupero</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Ignorato</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Immagini dispositivi</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 immagini salvate in %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 immagini salvate in %2, %3 non scritte: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositivo</numerusform>
            <numerusform>%n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Impossibile aprire la cartella: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Selezionare dispositivi nell&apos;elenco dispositivi</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Nessun dispositivo</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n dispositivo</numerusform>
            <numerusform>%n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Nessun gruppo</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Esposizione</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Antisfarfallio</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Modalità esposizione</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Guadagno</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Intervallo guadagno</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Guadagno minimo</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Guadagno massimo</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensazione</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Iris automatico</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Riduzione rumore 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Controluce</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Modalità controluce</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Intera immagine</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Area personalizzata</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Area di compensazione</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gamma dinamica (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. alte luci</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Bilanc. del bianco</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Guadagno blu</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Guadagno rosso</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Recupera immagini</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canali, sono mostrati i primi %2</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Salva immagini</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Impossibile creare la cartella %1</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Impossibile leggere queste impostazioni. Ricaricare per riprovare.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Luce vicina e lontana</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Vicino</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Lontano</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Commutazione giorno/notte</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Basso</translation>
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
        <translation>Sensibilità</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Ritardo commutazione</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Illuminatori</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Illuminatore</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Luminosità luce vicina</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Luminosità luce lontana</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correzione</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarossi e luce bianca</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Tipo di luce</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Ritardo (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Il dispositivo non ha inviato alcuna immagine</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Nessuna immagine di %n canale</numerusform>
            <numerusform>Nessuna immagine di %n canali</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImagePanel</name>
    <message>
        <source>画面</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>曝光与白平衡</source>
        <translation>Esposizione e bilanciamento del bianco</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Giorno/notte e illuminatori</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>La telecamera non comunica tali impostazioni.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Nessuna impostazione</translation>
    </message>
</context>
<context>
    <name>ImagePictureGroups</name>
    <message>
        <source>图像</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>柔和</source>
        <translation>Tenue</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Vivace</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Specchio e rotazione</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Specchio</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vista normale</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Modo corridoio 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Modo corridoio 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Capovolgi</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilizzazione</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Stabilizzatore elettronico</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Antinebbia</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensità</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>S</translation>
    </message>
    <message>
        <source>上</source>
        <translation>A</translation>
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
        <translation>Area (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Sinistra non deve essere maggiore di destra</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Alto non deve essere maggiore di basso</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Otturatore</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Intervallo person.</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Intervallo otturatore (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Otturatore minimo</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Otturatore massimo</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Il minimo non deve essere maggiore del massimo</translation>
    </message>
</context>
<context>
    <name>ImageSide</name>
    <message>
        <source>通道 %1</source>
        <translation>Canale %1</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Le modifiche vengono scritte subito sul dispositivo.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Ricarica</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Più lungo di %1 byte</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Il dispositivo è in aggiornamento. Modificare le impostazioni quando sarà terminato.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Lettura delle impostazioni immagine…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Scrittura delle impostazioni immagine…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Nessuna risposta dal dispositivo. La modifica potrebbe non essere stata scritta.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Non modificato: %1. È mostrato il valore del dispositivo.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Già inizializzato</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Aggiornamento in corso: ignorato</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Indirizzo MAC sconosciuto: ignorato</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Inizializza</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Inizializzazione</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selezionare un dispositivo non inizializzato</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Sono elencati solo i dispositivi di questa LAN. I dispositivi di altre LAN non possono essere inizializzati.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n altro viene ignorato, vedere le note</numerusform>
            <numerusform>%n altri vengono ignorati, vedere le note</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>L&apos;ultimo elenco di dispositivi %1 non può essere letto: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Il nome di un gruppo può avere al massimo %1 caratteri</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>I dispositivi P2P non possono appartenere a un gruppo</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Un sito può avere al massimo %1 dispositivi</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Il sito non può essere salvato: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>L&apos;elenco di dispositivi non può essere salvato: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Sito non salvato</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Il sito precedente non può essere salvato: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canali</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Rimuovi dalla vista (Canc)</translation>
    </message>
</context>
<context>
    <name>LiveChannels</name>
    <message>
        <source>通道 %1</source>
        <translation>Canale %1</translation>
    </message>
</context>
<context>
    <name>LiveCompanion</name>
    <message>
        <source>正在登录…</source>
        <translation>Accesso in corso…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nuovo tentativo tra %n s</numerusform>
            <numerusform>%1. Nuovo tentativo tra %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Accedi di nuovo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
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
        <translation>%1 KB nel buffer</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 fotogrammi saltati</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Impossibile aprire la cartella: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Istantanee</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Il dispositivo non è più mostrato</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vista live</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Dispositivo precedente (PagSu)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Dispositivo successivo (PagGiù)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Vista singola</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 viste</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 viste</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Canali precedenti</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canali successivi</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Riattiva audio</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Mantieni proporzioni</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Adatta allo spazio</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Nascondi info stream</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Mostra info stream</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Acquisizione istantanea…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Istantanea del canale selezionato</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Istantanee di tutti i canali</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Esci da schermo intero</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” è in corso. Attendere la fine.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Non è possibile aggiungere altri dispositivi</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Selezionare prima nell&apos;elenco i dispositivi da aggiungere</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Aggiungi i canali dei dispositivi selezionati nell&apos;elenco (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Aggiungi dispositivi selezionati (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Aggiungi dispositivi selezionati</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Istantanee di tutti i canali di tutti i dispositivi</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>La vista live è stata chiusa per l&apos;accesso a un altro dispositivo</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Accedi di nuovo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Accesso in corso…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Nessun canale</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nuovo tentativo tra %n s</numerusform>
            <numerusform>%1. Nuovo tentativo tra %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Tutti i dispositivi selezionati sono già mostrati</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>È possibile aggiungere al massimo %1 dispositivi. %2 non sono stati aggiunti.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Nessuna risposta da %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Domande e risposte</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Come il sistema</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Rapporto del sito (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modifica IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Aggiorna firmware</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configurazione dispositivi</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configurazione sistema</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocollo CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Sito demo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Sito demo: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Dispositivi simulati, nessuna rete. Nome utente e password per accedere ai dispositivi. I nuovi dispositivi devono prima essere inizializzati.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Apri sito demo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Nessuna libreria dispositivi installata: i dispositivi non sono raggiungibili</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Apertura di %1 nel programma PDF del sistema</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Impossibile aprire %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Modifica l&apos;indirizzo IP di questo dispositivo</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Mostra tutte le informazioni su questo dispositivo</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Apre la pagina web di questo dispositivo nel browser</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Apre la vista live di questo dispositivo</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Inizializzare prima il dispositivo</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Il dispositivo è in aggiornamento. Modificarne l&apos;indirizzo quando sarà terminato.</translation>
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
        <translation>Dispositivo aggiunto, ma non salvato nei preferiti. Verificare di poter scrivere nella cartella del programma.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Dispositivo aggiunto e salvato nei preferiti</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Dispositivo aggiunto</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Aggiungi dispositivo</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Selezionare un dispositivo non inizializzato</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n dispositivo fallito: vedere Risultato</numerusform>
            <numerusform>%n dispositivi falliti: vedere Risultato</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Il dispositivo è in aggiornamento. Modificarne l&apos;indirizzo quando sarà terminato.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Inizializza</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifica indirizzi IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Indirizzo modificato su %n dispositivo</numerusform>
            <numerusform>Indirizzi modificati su %n dispositivi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n dispositivo inizializzato</numerusform>
            <numerusform>%n dispositivi inizializzati</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Interrotto: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Rimuovere %n dispositivo dall&apos;elenco?</numerusform>
            <numerusform>Rimuovere %n dispositivi dall&apos;elenco?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n dispositivo è in aggiornamento e non è stato rimosso</numerusform>
            <numerusform>%n dispositivi sono in aggiornamento e non sono stati rimossi</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Rimuovi dispositivi</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Inserire un indirizzo IP valido</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Inserire una subnet mask valida</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Inserire un indirizzo gateway valido</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modifica IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Nascondi anteprima</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Mostra il nuovo indirizzo di ogni dispositivo</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Statico</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP iniziale</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Stesso IP</translation>
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
        <translation>In uso da %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Questo è l&apos;indirizzo di rete o di broadcast</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>Il gateway è fuori dalla sottorete</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Modifica comunque</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Questo è l&apos;indirizzo del gateway</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Indirizzo IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Tutti i %1 dispositivi sono nascosti dai filtri</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Ricerca dispositivi…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Nessun dispositivo trovato</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nessuna libreria dispositivi installata</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Modificare i filtri o cancellare il testo di ricerca.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>I dispositivi appaiono qui man mano che vengono trovati.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Verificare che i dispositivi siano accesi e collegati. Per dispositivi in altre reti, aggiungere il loro intervallo nelle impostazioni di ricerca o aggiungere un dispositivo tramite indirizzo.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Cancella filtri</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Nessuna rete è selezionata nelle impostazioni di ricerca</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Selezionare la rete locale o altre reti nelle impostazioni di ricerca.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Impostazioni di ricerca</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Perché non sono stati trovati dispositivi?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Il programma non può comunicare con i dispositivi: non è possibile trovarne o modificarne. Il sito demo non richiede dispositivi e mostra tutte le funzioni.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Apri sito demo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Ricerca in: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Aggiungi dispositivo per indirizzo</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Controllare cavi e reti, poi cercare di nuovo.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Esportazione dispositivi…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Dispositivi esportati
File: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Impossibile scrivere il file. Controllare la cartella e se un altro programma ha aperto il file.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Questi valori non possono essere riletti dal file:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Indirizzo</translation>
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
        <translation>Colonna</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Risultato esportazione</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Lettura dell&apos;elenco dispositivi…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Sostituisci file</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Gruppo…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Rimuovi dal sito</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Apri un elenco dispositivi</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Elenchi di dispositivi cifrati (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importati: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>dispositivi</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Non importato. Il file è aperto in un altro programma, ha un altro formato o contiene due volte un indirizzo MAC.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Risultato importazione</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Mostra motivi</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>La ricerca è stata interrotta; l&apos;elenco è incompleto.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Nessun dispositivo trovato. Quelli in grigio sono stati trovati in precedenza.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n dispositivo in meno rispetto all&apos;ultima ricerca</numerusform>
            <numerusform>%n dispositivi in meno rispetto all&apos;ultima ricerca</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
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
        <translation>Modello</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Inizializza</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Imposta la prima password dei nuovi dispositivi selezionati</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modifica IP in batch</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Assegna indirizzi consecutivi ai dispositivi selezionati</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Legge un elenco dispositivi da un foglio di calcolo</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Scrive i dispositivi selezionati in un foglio di calcolo</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Aggiungi manualmente</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Aggiunge dispositivi che una ricerca non trova: per indirizzo IP, per ID P2P o dai preferiti</translation>
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
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Rimuove i dispositivi selezionati dall&apos;elenco</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Inizializzato</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non inizializzato</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n dispositivo selezionato è in aggiornamento: il suo indirizzo non può essere modificato</numerusform>
            <numerusform>%n dispositivi selezionati sono in aggiornamento: i loro indirizzi non possono essere modificati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n dispositivo selezionato è in aggiornamento e non può essere rimosso</numerusform>
            <numerusform>%n dispositivi selezionati sono in aggiornamento e non possono essere rimossi</numerusform>
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
        <translation>Immagini dei dispositivi selezionati (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Compila</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomi da schema</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Selezionare a cosa assegnare i nomi</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>I nomi possono essere modificati nella tabella. “Salva” li scrive.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canale di questo dispositivo</numerusform>
            <numerusform>%n canali di questo dispositivo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n telecamera selezionata</numerusform>
            <numerusform>%n telecamere selezionate</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Schema: {n}, {model}, {ip4} (fine dell&apos;indirizzo)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Più canali ricevono lo stesso nome</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Primo numero</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Cifre</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Assegna il nome al canale 1 di ogni telecamera.</translation>
    </message>
</context>
<context>
    <name>NamePlan</name>
    <message>
        <source>通道 %1</source>
        <translation>Canale %1</translation>
    </message>
    <message>
        <source>请输入命名规则</source>
        <translation>Inserire uno schema</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Usare solo {n}, {model} e {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Più lungo di %1 byte</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Registratore: ignorato. Aprirlo per dare nomi ai suoi canali</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
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
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Inserire un&apos;ora valida</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Mostra solo i dispositivi falliti o non eseguiti, ordinati per motivo. Per i dispositivi non più elencati, vedere Batch.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Rimuove i contrassegni dei dispositivi falliti o non eseguiti</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Irrisolti %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Operazione irrisolta</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Tutte le operazioni</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>meno di 1 min rimanente</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>circa %n min rimanente</numerusform>
            <numerusform>circa %n min rimanenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n fallito</numerusform>
            <numerusform>%n falliti</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Interruzione…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Ferma (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Riprova falliti</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Seleziona solo i dispositivi di questa pagina falliti o non eseguiti</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Salva risultati</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Ricerca dispositivi…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 di %3 completati</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n altro irrisolto</numerusform>
            <numerusform>, %n altri irrisolti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>password errata su %n dispositivo di seguito</numerusform>
            <numerusform>password errata su %n dispositivi di seguito</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>password errata su %n dispositivo di seguito (account %1)</numerusform>
            <numerusform>password errata su %n dispositivi di seguito (account %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Continuando, gli account potrebbero bloccarsi. Continuare?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Dopo l&apos;interruzione, selezionare un altro account nel menu dei dispositivi, poi riprovare i dispositivi falliti (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Riprova falliti: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Esegue di nuovo “%1” per i dispositivi falliti o non eseguiti. I dispositivi per i quali un nuovo tentativo non può aiutare, come dopo una password errata con lo stesso account, sono esclusi.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Seleziona irrisolti</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Seleziona account…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Selezionare un altro account per i dispositivi che hanno rifiutato questo e per i restanti che lo usano, e riprovarli</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Inserire un numero</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Debole</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Sicurezza password</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Adatta larghezza colonne</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Reimposta colonne</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Nascondi password</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Mostra password</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>dispositivo trovato</numerusform>
            <numerusform>dispositivi trovati</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca dispositivi</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Impostazioni di ricerca</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Comprimi</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Espandi</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nuovo</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Nessun canale</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canale non connesso</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Connessione…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Stream interrotto</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nuovo tentativo tra %n s</numerusform>
            <numerusform>Nuovo tentativo tra %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Riprova ora</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 in p2p.ini manca o non è valido</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Impossibile avviare il servizio P2P</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Selezionare un dispositivo.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI in batch</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Invia un comando ai dispositivi selezionati</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Esegui foglio</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Invia i comandi di un foglio di calcolo e vi scrive i risultati</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Apri template</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Apre il template per i fogli di comandi</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copiato</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Dispositivi falliti</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>Il comando verrà inviato a questi dispositivi:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Invia comando</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Mostra tutto il risultato</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copia risultato</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Scarta</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n modifica non è salvata e andrà persa.</numerusform>
            <numerusform>%n modifiche non sono salvate e andranno perse.</numerusform>
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
            <numerusform>Copiare le impostazioni di codifica del canale %1 sullo stesso canale del dispositivo selezionato?</numerusform>
            <numerusform>Copiare le impostazioni di codifica del canale %1 sullo stesso canale dei %n dispositivi selezionati?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Ciò include le modifiche non salvate.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Salvataggio dei nomi canale…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc per fermare)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configurazione dispositivi</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Impostazioni di codifica del canale %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copia codifica</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Salva ed esci</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nomi da schema</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configura questo dispositivo</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Nessuna telecamera tra i dispositivi selezionati</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Impossibile salvare l&apos;impostazione. Verificare di poter scrivere nella cartella del programma.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selezionare un file firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Ferma aggiornamento</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflitto di indirizzi IP: %n dispositivo</numerusform>
            <numerusform>Conflitto di indirizzi IP: %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Connessione al dispositivo P2P %1 persa. Rimuovere il dispositivo e aggiungerlo di nuovo.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>Il servizio P2P è disconnesso. I dispositivi P2P non sono al momento raggiungibili.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifica indirizzi IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Immagini dei dispositivi selezionati</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Vecchia password corretta: in attesa della nuova</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Verifica vecchia password</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Riavvia dispositivi</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Ripristina impostazioni di fabbrica</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n dispositivo selezionato</numerusform>
            <numerusform>%n dispositivi selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Tempo scaduto: la password di %n dispositivo non è stata cambiata</numerusform>
            <numerusform>Tempo scaduto: le password di %n dispositivi non sono state cambiate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>È stata avviata un&apos;altra operazione: la password di %n dispositivo non è stata cambiata</numerusform>
            <numerusform>È stata avviata un&apos;altra operazione: le password di %n dispositivi non sono state cambiate</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Selezionare prima i dispositivi a sinistra</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>“%1” è in corso. Attendere la fine.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Password non cambiata su %n dispositivo (%1); è contrassegnato</numerusform>
            <numerusform>Password non cambiata su %n dispositivi (%1); sono contrassegnati</numerusform>
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
        <translation>Elenco di dispositivi cifrato</translation>
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
        <translation>Avviso</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Il programma è già in esecuzione.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Inserire l&apos;account</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Inserire la password</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Accedi di nuovo</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Accesso a %1 non riuscito. Inserire nome utente e password.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Password errata, %n volta</numerusform>
            <numerusform>Password errata, %n volte</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Risposta del dispositivo: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Il dispositivo non comunica quanti tentativi restano. Altre password errate possono bloccare l&apos;account.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Salva come account di questo dispositivo</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Quando l&apos;accesso è riuscito, a questo dispositivo si accede sempre con questo account</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Anche per i dispositivi successivi</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Dopo un accesso riuscito, tutti i dispositivi senza un proprio account, anche quelli dei batch, vengono provati con esso al posto di quello delle impostazioni di ricerca, fino alla chiusura del programma o alla modifica dell&apos;account delle impostazioni di ricerca</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>nitidezza</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>specchio</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilizzazione</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>esposizione</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>controluce</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>bilanciamento del bianco</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>modalità giorno/notte</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>antinebbia</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>illuminatore</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>luminosità</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contrasto</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturazione</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>tonalità</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non inizializzato</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Indirizzo duplicato</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Accesso rifiutato</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Lettura impossibile</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Orologio impreciso</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware meno recente</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Nessun server orario</translation>
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
        <translation>%1 g %2 h</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Esatta</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>avanti di %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>indietro di %1</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; un altro dispositivo di questo modello ha %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nome canale</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Impostazioni di codifica</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Impostazioni immagine</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Impostazioni immagine: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapporto del sito</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalie</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Modifiche in loco</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivi</translation>
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
        <translation>Modello</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Indirizzo</translation>
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
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Scarto orario</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Scarto orario (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Server orario</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Stream principale</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Larghezza (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Altezza (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Nuovo valore</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatore</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Non comunicato</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Nessuna anomalia.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Nessun dispositivo è stato modificato dall&apos;avvio del programma.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Letti</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Con anomalie</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Impossibile creare il file PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 modifiche precedenti non sono elencate.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>Altri %1 canali</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canale %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifica indirizzo IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Imposta ora</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Aggiorna firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Server orario e fuso orario</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Ora legale</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Manutenzione automatica</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Standard video</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Impossibile usare la cartella dei file temporanei %1: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 dispositivi di seguito hanno rifiutato l’accesso</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Cambio lingua</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>La lingua cambia al riavvio del programma.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Più tardi</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Comando non riuscito</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>L&apos;account non esiste</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>L&apos;account è bloccato. Attendere che il dispositivo lo sblocchi.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>L&apos;account è già in uso</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Nessuna risposta dal dispositivo</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocollo non compatibile</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Il dispositivo non è inizializzato</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Il dispositivo non supporta questa funzione</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Il dispositivo è già nell&apos;elenco</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Impossibile leggere le capacità del dispositivo</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Il dispositivo ha rifiutato la richiesta</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Errore sconosciuto %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Il dispositivo è in aggiornamento</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non eseguito</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Istantanea non riuscita</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Dati non validi</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>File firmware non utilizzabile</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Non aggiornato</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Aggiornamento non confermato</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Il dispositivo è occupato. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>La sessione è scaduta. Accedere di nuovo.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Il dispositivo non accetta questo valore</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Il certificato del dispositivo non è attendibile</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Il certificato del dispositivo è cambiato</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>All&apos;indirizzo risponde un altro dispositivo</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Accettato dal dispositivo, non confermato</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copia testo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Rapporto di ricerca</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copiato negli appunti</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interfaccia di rete</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Questo computer non ha un&apos;interfaccia di rete utilizzabile</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Verificare che un&apos;interfaccia sia installata e abilitata.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Ricerca per indirizzo</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Indirizzi interrogati</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Risposte</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Nessun percorso verso %1 di questi indirizzi</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Impostare un gateway per l&apos;interfaccia o aggiungere un indirizzo nella stessa rete di questi indirizzi.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Nessuna risposta da alcun indirizzo</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Controllare l&apos;intervallo di indirizzi nelle impostazioni di ricerca e che i dispositivi siano accesi.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Altre reti</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Dispositivi trovati fuori da tutte le reti di questo computer: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Prima di accedervi, modificare i loro indirizzi IP o aggiungere all&apos;interfaccia un indirizzo nella loro rete.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Indirizzi</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Richieste inviate</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Messaggi ricevuti</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Dispositivi trovati</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Non usato</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>messaggi illeggibili: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>messaggi di dispositivi diversi da telecamere e registratori: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>messaggi senza indirizzo di servizio: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>messaggi con indirizzo di servizio di un altro host: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>messaggi di dispositivi che lasciano la rete: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>messaggi oltre il limite: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>L&apos;interfaccia è disabilitata</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Abilitarla nelle impostazioni di rete del sistema operativo.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>L&apos;interfaccia non è connessa</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Controllare il cavo e lo switch, o connettersi a una rete wireless.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>L&apos;interfaccia non ha un indirizzo IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Impostare un indirizzo nella rete dei dispositivi o attivare DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>L&apos;interfaccia non può inviare multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Selezionare altre reti nelle impostazioni di ricerca per cercare per indirizzo.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Il sistema operativo non ha inviato le richieste: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Controllare il firewall di questo computer e le impostazioni dell&apos;interfaccia.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Nessuna risposta ricevuta</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Verificare che i dispositivi siano accesi e nella stessa rete, e che nessun firewall o switch filtri le loro risposte. È anche possibile cercare per indirizzo: vedere le impostazioni di ricerca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 dispositivi trovati, %2 in meno rispetto all&apos;ultima ricerca.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Dispositivi trovati: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Nessun dispositivo trovato.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>L&apos;IP iniziale non deve essere maggiore dell&apos;IP finale</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>L&apos;intervallo può coprire al massimo 17 segmenti</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Inserire un IP iniziale valido</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Inserire un IP finale valido</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Impostazioni di ricerca</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Cerca nella rete locale</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Cerca in altre reti</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>IP iniziale</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>IP finale</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Account predefinito per accedere ai dispositivi</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Accedi ai dispositivi durante la ricerca</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Legge modello, versione e indirizzo MAC. Ogni dispositivo riceve questo account. Dopo una password errata, un dispositivo non viene riprovato.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>non c’è un servizio portachiavi</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>il servizio portachiavi è bloccato</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>il servizio portachiavi non risponde</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Alcune password sono nel servizio portachiavi del desktop e non possono essere lette (%1). Inserirle di nuovo.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Il servizio portachiavi del desktop non può essere usato (%1). Le password vengono salvate in file.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Impossibile salvare la password nel servizio portachiavi del desktop (%1). Viene salvata in un file.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Impossibile rimuovere la password dal servizio portachiavi del desktop (%1). Rimuoverla nel gestore delle chiavi del sistema.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Impossibile aprire il sito demo:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Il file non è un file di sito o è danneggiato</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Il file di sito proviene da una versione più recente e non può essere letto</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Il file di sito contiene più di %1 dispositivi</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Il nome nel file di sito non è valido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Dispositivo %1 del file di sito: %2 non è valido</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Il dispositivo %1 del file di sito è duplicato</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Il file è troppo grande</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>File di sito (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Apri sito</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Sito “%1” aperto, con %n dispositivo</numerusform>
            <numerusform>Sito “%1” aperto, con %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Il sito %1 non può essere aperto: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Sito</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Salva sito con nome</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Il sito è stato salvato in %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Il file non contiene password.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Un nuovo sito rimuove dall&apos;elenco i dispositivi noti e i gruppi. Le modifiche non salvate restano nei siti recenti.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Nuovo sito</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Sito</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Apri sito…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Salva sito con nome…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Nuovo sito…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Inserire il nome del sito</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Selezionare almeno un file</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>L&apos;elenco non contiene dispositivi</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Crea rapporto</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapporto del sito</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>È già in corso la creazione di un rapporto</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nome del sito</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installatore</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Salva in</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Scegli…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Tutti (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Selezionati (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Il programma accede a ogni dispositivo, ne legge le impostazioni e acquisisce un&apos;immagine. Il rapporto elenca le modifiche dall&apos;avvio del programma e non contiene password.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Impossibile aprire %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Apri PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapporto del sito</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Il rapporto è pronto</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Altra cartella…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canale non connesso</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Istantanea non riuscita</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Istantanea non riuscita: impossibile scrivere il file: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Acquisizione istantanea…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Istantanee</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Acquisizione istantanea %1 di %2</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Interruzione…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n acquisita</numerusform>
            <numerusform>%n acquisite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallita</numerusform>
            <numerusform>%n fallite</numerusform>
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
        <translation>Istantanee</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non eseguito</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Il dispositivo non è più mostrato</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Giorno sett.</translation>
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
        <translation>Ora legale</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Per data</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Per settimana</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Applica ora legale</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Inserire un&apos;ora valida</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Cerca…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Cancella ricerca</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Nessun dispositivo con questo nome, tipo, modello o indirizzo.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>I dispositivi appaiono qui man mano che vengono trovati.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Sono elencati solo i dispositivi IPv4 inizializzati.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Nessun dispositivo corrisponde</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Ricerca dispositivi…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Nessun dispositivo da configurare</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Nessuna libreria dispositivi installata</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Il programma non può comunicare con i dispositivi. Aprire il sito demo nella pagina “Modifica IP”.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Cancella contrassegni</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Rimuove i contrassegni dei dispositivi falliti o non eseguiti</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>L&apos;accesso a tutti i dispositivi elencati è stato eseguito.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n dispositivo senza indirizzo (DHCP) non è mostrato</numerusform>
            <numerusform>%n dispositivi senza indirizzo (DHCP) non sono mostrati</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>I dispositivi falliti o non eseguiti non sono in questo albero: non sono inizializzati, non hanno un indirizzo IPv4 o non sono stati ritrovati. Vedere la pagina “Modifica IP” e Batch.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Gennaio</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Febbraio</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>Aprile</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Maggio</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Giugno</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Luglio</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Settembre</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Ottobre</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Dicembre</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Seconda</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Terza</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Quarta</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Ultima</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Ogni giorno</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Nessuna risposta dal dispositivo</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Impossibile leggere l&apos;ora</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Nessuna risposta dal dispositivo. La sua password potrebbe essere stata cambiata.</translation>
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
        <translation>Fuso orario</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Riavvio</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Reset di fabbrica</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
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
        <translation>Restano %1 s per inserire la password. Poi la vecchia password dovrà essere verificata di nuovo.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Restano %1 s per inserire la password</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n dispositivo in attesa della nuova password</numerusform>
            <numerusform>%n dispositivi in attesa della nuova password</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>la nuova password inserita viene ripristinata</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Verificare di nuovo la vecchia password. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>La nuova password inserita viene quindi ripristinata.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Tempo scaduto: la password di %n dispositivo non è stata cambiata. </numerusform>
            <numerusform>Tempo scaduto: le password di %n dispositivi non sono state cambiate. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>La selezione è cambiata. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Usare almeno due tipi tra cifre, lettere e simboli, senza caratteri non ammessi.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confermare la password</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Le password non corrispondono</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>La password deve avere da 8 a 32 caratteri</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Inserire la vecchia password</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Passo 1: verificare la vecchia password</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Vecchia password</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Passo 2: impostare la nuova password</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nuova password</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Conferma password</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>Da 8 a 32 caratteri, con almeno due tipi tra cifre, lettere e simboli (tutti i caratteri visibili tranne &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>In caso di successo</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Ora legale attivata</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Ora legale disattivata</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP disattivato</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Riavvio %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Riavvii periodici disattivati</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Riavviare il dispositivo selezionato?</numerusform>
            <numerusform>Riavviare i %n dispositivi selezionati?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Riavvia</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Ripristinare il dispositivo selezionato alle impostazioni di fabbrica?</numerusform>
            <numerusform>Ripristinare i %n dispositivi selezionati alle impostazioni di fabbrica?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>“%1” verrà applicato a questi dispositivi:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>L&apos;intervallo di sincronizzazione è di 0 minuti: il dispositivo potrebbe non aggiornare più la sua ora. Applicarlo al dispositivo selezionato?</numerusform>
            <numerusform>L&apos;intervallo di sincronizzazione è di 0 minuti: i dispositivi potrebbero non aggiornare più la loro ora. Applicarlo ai %n dispositivi selezionati?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Applica comunque</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Manutenzione automatica</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Riavvia periodicamente</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Riavvia alle</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Giorno di riavvio</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Riavvia ora</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Durante il riavvio un dispositivo non è raggiungibile e non registra.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Riavvia dispositivi</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n dispositivo selezionato è in aggiornamento e non può essere riavviato</numerusform>
            <numerusform>%n dispositivi selezionati sono in aggiornamento e non possono essere riavviati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Ripristina impostazioni di fabbrica</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Cancella tutte le impostazioni, gli account e le password dei dispositivi. L&apos;operazione non può essere annullata. I dispositivi devono essere inizializzati di nuovo.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n dispositivo selezionato è in aggiornamento e non può essere ripristinato</numerusform>
            <numerusform>%n dispositivi selezionati sono in aggiornamento e non possono essere ripristinati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Ora del computer</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Imposta ora del computer</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Imposta ogni dispositivo all&apos;ora in cui riceve la richiesta</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manualmente</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Usa ora attuale</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Ora dispositivo</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Leggi ora dispositivi</translation>
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
        <translation>Tutti</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Senza accesso %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Mostra solo i dispositivi finora senza accesso o il cui ultimo accesso non è riuscito</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Irrisolti %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Mostra solo i dispositivi falliti o non eseguiti, ordinati per motivo.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n altro non è in questo elenco: vedere Batch.</numerusform>
            <numerusform> %n altri non sono in questo elenco: vedere Batch.</numerusform>
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
        <translation>PAL è per le regioni con rete elettrica a 50 Hz, NTSC per 60 Hz. Alcuni dispositivi si riavviano dopo la modifica.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>I dispositivi non offrono questa funzione</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Inserire il server NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Fuso orario e NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fuso orario</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Attiva NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Server NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>Indirizzo IP o nome host</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Porta NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervallo (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Applica fuso orario e NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>I dispositivi non offrono %1, il fuso orario di questo computer. Selezionare un fuso orario.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Inserire un indirizzo IP o un nome host valido</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Indirizzo IP del dispositivo, o “indirizzo:porta web” se la porta web non è 80. Obbligatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Porta di accesso del dispositivo. Usata solo per verificare l&apos;account.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Nome utente del dispositivo, senza due punti.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Password del dispositivo. Rimuoverla poi dal file.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Comando che inizia con “/”. Il dispositivo riceve due volte un comando accettato. Obbligatorio.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 per HTTP, altri interi per HTTPS. HTTP se vuoto.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Compilato dal programma: la risposta, il percorso dell&apos;immagine o della registrazione, oppure “Error:” e il motivo.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Istruzioni</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significato</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Conservare la riga di intestazione. Sostituire la riga di esempio con le proprie righe.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Le righe senza indirizzo e comando vengono ignorate.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Non aprire questo file in un altro programma durante l&apos;esecuzione.</translation>
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
            <numerusform>%n dispositivo non può essere aggiornato con questo file: vedere Risultato</numerusform>
            <numerusform>%n dispositivi non possono essere aggiornati con questo file: vedere Risultato</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Riga %1: %2</translation>
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
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>File firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Il formato del file è errato</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Impossibile salvare i risultati: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Risultati salvati in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Impossibile scrivere il file. È di sola lettura o aperto in un altro programma. Risultati salvati in %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>Il foglio di calcolo ha più di %1 dispositivi. Dividerlo.</translation>
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
        <translation>%1: %2 aggiornati, %3 falliti. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>Il foglio di calcolo non contiene dispositivi</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: ignorato</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Il dispositivo ha già questa versione</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Lettura del foglio di calcolo</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Avvia aggiornamento</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Aggiorna firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Aggiorna da foglio di calcolo</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>Verrà aggiornato %n dispositivo. Si riavvierà. Non spegnerlo.</numerusform>
            <numerusform>Verranno aggiornati %n dispositivi. Si riavvieranno. Non spegnerli.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> I risultati vengono scritti nel foglio di calcolo.</translation>
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
        <translation>Aggiornamento: %1 di %2 completati</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n riuscito</numerusform>
            <numerusform>%n riusciti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fallito</numerusform>
            <numerusform>%n falliti</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Riavvio</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:porta</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>File firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Riprovare può aiutare</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Correggere il file, l&apos;account o il dispositivo, poi aggiornare di nuovo</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleziona file</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Scrittura iniziata: non può essere fermata</translation>
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
        <translation>Indirizzo IP del dispositivo. Obbligatorio.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Porta di accesso del dispositivo. 37777 se vuoto.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Nome utente del dispositivo. Se questo e la password sono vuoti, viene usato l&apos;account del programma.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Password del dispositivo. Rimuoverla poi dal file.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Percorso del file firmware, assoluto o relativo alla cartella di questo foglio di calcolo. Obbligatorio.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Compilato dal programma: le versioni prima e dopo l&apos;aggiornamento, o perché non è riuscito.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Istruzioni</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Colonna</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Significato</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Conservare la riga di intestazione. Sostituire la riga di esempio con le proprie righe.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Le righe senza indirizzo e file firmware vengono ignorate.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Non aprire questo file in un altro programma durante l&apos;aggiornamento.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Scrittura iniziata: non può essere fermata</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 al %2%</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Non ancora fermato: nuovo tentativo</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware scritto, dispositivo in riavvio: non può essere fermato</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Aggiornato: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: nessuna versione comunicata</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: ora %2, versione precedente sconosciuta</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Avvia aggiornamento</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Aggiorna i dispositivi selezionati</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Seleziona file</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Seleziona un file firmware per i dispositivi selezionati</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Riprova falliti</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Aggiorna di nuovo i dispositivi per i quali può servire, come quelli che non hanno risposto</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Aggiorna da foglio di calcolo</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Aggiorna i dispositivi di un foglio di calcolo e vi scrive i risultati</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Apri template</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Apre il template per i fogli di aggiornamento</translation>
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
        <translation>Dispositivi alla volta</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Dispositivi aggiornati alla volta</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>In attesa del riavvio del dispositivo</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Scrittura: non spegnere il dispositivo</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Invio del file</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Nessun file firmware selezionato</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Il file firmware non esiste</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Impossibile leggere il file firmware</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Il file firmware è vuoto</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Il file firmware è troppo grande</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Il file firmware è danneggiato</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Il firmware è per altri modelli</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rifiutato dal dispositivo</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>L&apos;account non esiste</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>L&apos;account è bloccato</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Il dispositivo non è inizializzato</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Aggiornamento non supportato o dispositivo non inizializzato</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Indirizzo IP o porta non validi</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Stesso dispositivo di una riga precedente</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Nessuna risposta dal dispositivo</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Il dispositivo è occupato. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Interrotto dal dispositivo</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Nessun avanzamento da troppo tempo</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Nessuna risposta dopo il riavvio</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Versione invariata dopo il riavvio</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Fermato: dispositivo non modificato</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Annullato: il programma è stato chiuso</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Errore sconosciuto %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Template aggiornamento in batch.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Riavviato, ma impossibile leggere la versione</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificato non attendibile</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Il certificato è cambiato</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Il dispositivo non è più nell&apos;elenco</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Selezionare un file firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>File firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Nessun dispositivo da riprovare</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n dispositivo non è stato aggiornato: vedere Risultato</numerusform>
            <numerusform>%n dispositivi non sono stati aggiornati: vedere Risultato</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n dispositivo aggiornato</numerusform>
            <numerusform>%n dispositivi aggiornati</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Impossibile aprire il template.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Aggiorna firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Aggiorna da foglio di calcolo</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Interrotto: %1 aggiornati, %2 falliti, %3 non eseguiti</translation>
    </message>
</context>
<context>
    <name>ValueTables</name>
    <message>
        <source>普通</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>动检</source>
        <translation>Rilevamento movimento</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Allarme</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Notte</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Comp. controluce</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Gamma dinamica (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. alte luci</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Codifica</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Accedi di nuovo</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Fare clic su un dispositivo a sinistra per accedere e modificarne le impostazioni.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Selezionare un dispositivo</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continua qui</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>È possibile accedere a un solo dispositivo alla volta. Continuando si chiude la vista live dell&apos;altro dispositivo.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>La vista live di un altro dispositivo è aperta</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connessione persa</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nomi canali</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>La configurazione dei dispositivi viene mostrata e modificata qui non appena una ricerca ne ha trovati.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Nessun dispositivo</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nomi da schema</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Fare clic su un dispositivo a sinistra per modificare qui i nomi dei suoi canali, oppure denominare insieme le telecamere selezionate.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Nessuna immagine: mancano file nella cartella Shaders o sono danneggiati</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Nessuna immagine: troppo grande per la scheda grafica</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Riproduzione non riuscita</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Riproduzione non riuscita: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Connessione al dispositivo persa</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Il dispositivo ha terminato lo stream</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Il dispositivo non invia video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Il dispositivo non accetta più l&apos;accesso</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Il dispositivo non invia uno stream video</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Questo computer non può decodificare lo stream</translation>
    </message>
</context>
<context>
    <name>WatchedDevices</name>
    <message>
        <source>通道 %1</source>
        <translation>Canale %1</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>设备证书已改变，网页未打开。请勿在此设备上输入密码。</source>
        <translation>Il certificato del dispositivo è cambiato. La pagina web non è stata aperta. Non inserire una password su questo dispositivo.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Il certificato del dispositivo non è confermato. La pagina web non è stata aperta.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Impossibile aprire il browser. Pagina web del dispositivo: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Impossibile salvare le impostazioni. Verificare di poter scrivere nella cartella del programma.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Ferma ed esci</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> I dispositivi che stanno scrivendo il firmware terminano da soli: non spegnerli.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificato confermato. Riprovare.</numerusform>
            <numerusform>%n certificati confermati. Riprovare.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Esci dal programma</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Impossibile salvare l&apos;account, usato solo fino alla prossima ricerca: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>“%1” è in corso. Uscendo, i dispositivi restanti non verranno modificati.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Il rapporto è stato interrotto; nessun file è stato scritto</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Hanno risposto più di %1 dispositivi. Altre %2 risposte non sono elencate. Cercare in un intervallo più piccolo.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Interrotto: %1 righe riuscite, %2 fallite, %3 non inviate.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Terminato: %1 righe riuscite, %2 fallite.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Impossibile salvare i risultati: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Risultati salvati in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Impossibile scrivere il file. È di sola lettura o aperto in un altro programma. Risultati salvati in %1</translation>
    </message>
</context>
</TS>
