<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Copier le numéro de version</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Licences tierces</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Modifier le compte</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Saisissez un nom</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Par exemple&#xa0;: Bâtiment 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Saisissez le nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Saisissez le mot de passe</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Laisser vide pour le conserver</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Enregistre les identifiants utilisés par l&apos;outil. Les mots de passe des appareils ne sont pas modifiés.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Le compte ne peut pas être enregistré et n&apos;est utilisé que jusqu&apos;à la prochaine recherche&#xa0;: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Le nouveau compte est désormais le compte par défaut</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Le nouveau compte est enregistré et sera désormais utilisé pour cet appareil</numerusform>
            <numerusform>Le nouveau compte est enregistré et sera désormais utilisé pour ces %n appareils</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Enregistrer pour ces appareils (recommandé)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>En faire le compte par défaut de tous les appareils</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Seulement jusqu&apos;à la prochaine recherche</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>L&apos;appareil n&apos;a ni MAC ni UUID&#xa0;: le compte n&apos;est utilisé que jusqu&apos;à la prochaine recherche</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Le fichier des comptes, %1, ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Le fichier des comptes est endommagé et aucun de ses comptes n&apos;est utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Saisissez un nom de %1 caractères au maximum</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Saisissez un nom d&apos;utilisateur de %1 caractères au maximum</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Saisissez un mot de passe de %1 caractères au maximum</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Il existe déjà un compte nommé «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Il n&apos;existe aucun compte nommé «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Plus de place&#xa0;: %1 comptes et %2 appareils au maximum</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n appareil utilise le compte par défaut</numerusform>
            <numerusform>%n appareils utilisent le compte par défaut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n appareil utilise le compte «&#xa0;%1&#xa0;»</numerusform>
            <numerusform>%n appareils utilisent le compte «&#xa0;%1&#xa0;»</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>&#xa0;; %n d&apos;entre eux n&apos;a ni MAC ni UUID et ne l&apos;utilise que jusqu&apos;à la prochaine recherche</numerusform>
            <numerusform>&#xa0;; %n d&apos;entre eux n&apos;ont ni MAC ni UUID et ne l&apos;utilisent que jusqu&apos;à la prochaine recherche</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Supprimer le compte «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> L&apos;identification à l&apos;appareil qui l&apos;utilise se fera ensuite avec le compte par défaut.</numerusform>
            <numerusform> L&apos;identification aux %n appareils qui l&apos;utilisent se fera ensuite avec le compte par défaut.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Utiliser pour %n appareil</numerusform>
            <numerusform>Utiliser pour %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Choisir un compte</translation>
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
        <translation>Appareils</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Le compte par défaut se modifie dans les paramètres de recherche</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>Chaque appareil est essayé avec un seul compte&#xa0;: celui qui lui est affecté, sinon le compte par défaut. Les autres comptes ne sont jamais essayés.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Compte par défaut</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Supprimer le compte</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>Supprimer %n compte qu&apos;aucun appareil n&apos;utilise&#xa0;?</numerusform>
            <numerusform>Supprimer %n comptes qu&apos;aucun appareil n&apos;utilise&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Supprimer les comptes inutilisés</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Comptes qui ne sont affectés à aucun appareil</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Non utilisé</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Les appareils ont refusé ce compte. Choisissez-en ou ajoutez-en un autre.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Utiliser pour %n appareil et réessayer</numerusform>
            <numerusform>Utiliser pour %n appareils et réessayer</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Les appareils ont refusé le compte %1. Choisissez-en ou ajoutez-en un autre.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Saisissez l&apos;ID P2P</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Saisissez une adresse IP valide</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Saisissez le compte</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Saisissez le mot de passe</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Saisissez le numéro de port</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>Le port doit être compris entre 1 et 65535</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Ajouter un appareil</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Ajouter aux favoris</translation>
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
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>50 caractères maximum</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Ajout…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Les remarques n&apos;ont pas pu être enregistrées. Vérifiez que vous pouvez écrire dans le dossier du programme.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Le favori n&apos;a pas pu être supprimé. Vérifiez que vous pouvez écrire dans le dossier du programme.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoris</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>favori sélectionné</numerusform>
            <numerusform>favoris sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Rechercher…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Double-cliquez sur une ligne pour ajouter l&apos;appareil</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Effacer les filtres</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Ajouter un appareil</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Modifiez ou effacez le texte de recherche.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Sélectionnez «&#xa0;Ajouter aux favoris&#xa0;» lors de l&apos;ajout d&apos;un appareil pour l&apos;enregistrer ici.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Aucun favori ne correspond à la recherche</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Aucun favori</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>Supprimer %1 des favoris&#xa0;?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Ajouter des favoris</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Supprimer le favori</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Le mot de passe est illisible : double-cliquez pour le saisir</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Pas d&apos;adresse MAC&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Utilisée par un autre appareil</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Attribuée deux fois</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Identique à la passerelle</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Hors du sous-réseau</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Adresse de réseau ou de diffusion</translation>
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
        <translation>Le lot est en cours</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Des appareils attendent le nouveau mot de passe</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Aucun appareil en échec ou non exécuté</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Cette opération ne peut pas être relancée ici</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Seul le lot le plus récent peut être relancé</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Une relance ne peut pas aider ces appareils. Corrigez d&apos;abord la cause, par exemple le compte.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI par lot</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Envoyer cette commande à l&apos;appareil sélectionné&#xa0;:</numerusform>
            <numerusform>Envoyer cette commande aux %n appareils sélectionnés&#xa0;:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lots</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Relancer les échecs</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Relance le lot pour les appareils en échec ou non exécutés</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Rétablir les adresses</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Remet les appareils modifiés à leur adresse IP précédente</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>Remettre %n appareil à son adresse IP précédente&#xa0;?</numerusform>
            <numerusform>Remettre %n appareils à leur adresse IP précédente&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Réussis / total</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Échecs seulement</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Inclut les appareils non exécutés</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Aucun lot</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Aucun appareil en échec</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>Rétablir les adresses IP</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Enregistre les résultats de tous les lots de la liste dans un seul fichier</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Attendez la fin du lot en cours</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Non initialisé&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Mise à jour en cours&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Conflit d&apos;adresse&#xa0;: un autre appareil pourrait être modifié</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Utilisée par un autre appareil</translation>
    </message>
    <message>
        <source>%1（%2）：%3</source>
        <extracomment>A device, what it gets, and a warning about that.</extracomment>
        <translation>%1 (%2)&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>BatchPreviewCounts</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n avertissement&#xa0;: voir Remarques</numerusform>
            <numerusform>%n avertissements&#xa0;: voir Remarques</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n appareil est ignoré&#xa0;: voir Remarques</numerusform>
            <numerusform>%n appareils sont ignorés&#xa0;: voir Remarques</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>exécuté sur %n appareil</numerusform>
            <numerusform>exécuté sur %n appareils</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n ignoré</numerusform>
            <numerusform>%n ignorés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Masquer la liste</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>Afficher %n appareil</numerusform>
            <numerusform>Afficher %n appareils</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewTable</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>名称和型号</source>
        <translation>Nom et modèle</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Ancienne adresse</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Nouvelle adresse</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fichier firmware</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Nouveau nom</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n réussi</numerusform>
            <numerusform>%n réussis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n en attente du nouveau mot de passe</numerusform>
            <numerusform>%n en attente du nouveau mot de passe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n non exécuté</numerusform>
            <numerusform>%n non exécutés</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n ignoré</numerusform>
            <numerusform>%n ignorés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n en attente</numerusform>
            <numerusform>%n en attente</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Ancien mot de passe correct</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Étape</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1&#xa0;: ignoré</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Résultats enregistrés dans %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Les résultats n&apos;ont pas pu être enregistrés. Choisissez un autre dossier.
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
        <translation>Continuer</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Il y a %n avertissement. Continuer&#xa0;?</numerusform>
            <numerusform>Il y a %n avertissements. Continuer&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Avertissements</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Des appareils ne peuvent pas échanger leurs adresses (comme %1 et %2) en une seule étape. Donnez d&apos;abord une autre adresse à l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Pas assez de mémoire ou de threads pour démarrer. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 canal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 est encore utilisé par l&apos;appareil %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n appareil n&apos;a pas été relancé&#xa0;: son adresse a changé ou il n&apos;est plus dans la liste (%1)</numerusform>
            <numerusform>%n appareils n&apos;ont pas été relancés&#xa0;: leur adresse a changé ou ils ne sont plus dans la liste (par exemple %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Des mises à jour sont en cours. Lancez la recherche quand elles seront terminées.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Des mises à jour sont en cours. Fermez le programme quand elles seront terminées.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>&#xa0;», «&#xa0;</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>«&#xa0;%1&#xa0;» est en cours. Lancez la recherche à la fin.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Supprimez des appareils à la fin.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Modifiez des appareils à la fin.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Fermez le programme à la fin.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Redémarrez le programme à la fin.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Une recherche est en cours. Arrêtez-la avec Échap ou attendez la fin.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Les commandes d&apos;une autre feuille de calcul sont en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>Modèle CGI par lot.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Une autre commande CGI est en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (tronqué)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>mot de passe du compte par défaut</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Extérieur</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>增益优先</source>
        <translation>Priorité au gain</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Priorité à l&apos;obturateur</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Lumière naturelle</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Lampadaire</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Zone personnalisée</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarouge</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Lumière blanche</translation>
    </message>
    <message>
        <source>智能</source>
        <translation>Intelligent</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>暂不信任</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Approuver la sélection</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Confirmer les certificats des appareils</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Les certificats n&apos;ont pas pu être enregistrés. Aucun n&apos;est approuvé.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 appareils sélectionnés sur %2</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Ces appareils utilisent des certificats autosignés pour HTTPS. Aucun mot de passe n&apos;a été envoyé. Comparez les empreintes. Une fois approuvée, seule cette clé est acceptée.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Le certificat de %n appareil a changé. Aucun mot de passe n&apos;a été envoyé. Il peut s&apos;agir d&apos;un autre appareil&#xa0;: ne le sélectionnez que si vous connaissez la raison, par exemple une réinitialisation d&apos;usine.</numerusform>
            <numerusform>Les certificats de %n appareils ont changé. Aucun mot de passe n&apos;a été envoyé. Il peut s&apos;agir d&apos;autres appareils&#xa0;: ne les sélectionnez que si vous connaissez la raison, par exemple une réinitialisation d&apos;usine.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>État</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC ou UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Valide jusqu&apos;au</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Empreinte (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Empreinte approuvée</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Nouveau</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Le fichier des certificats, %1, ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Le fichier des certificats est endommagé. Aucun certificat n&apos;est approuvé. Confirmez-les à nouveau&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Pas de tunnel vers le port web de l&apos;appareil.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non envoyé</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>Commande CGI</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Retirer des commandes enregistrées</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Enregistrer cette commande</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>L&apos;en-tête de la réponse est trop volumineux.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Nom d&apos;utilisateur ou mot de passe incorrect. Vérifiez le compte dans les paramètres de recherche.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Le compte est verrouillé. Attendez que l&apos;appareil le déverrouille.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Pas de réponse de l&apos;appareil.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>L&apos;appareil n&apos;est pas initialisé.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Erreur inconnue.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>L&apos;appareil a rejeté la requête</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>La réponse est trop volumineuse.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Le fichier n&apos;a pas pu être écrit&#xa0;: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>La partie reçue de l&apos;enregistrement se trouve dans %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>L&apos;appareil est en cours de mise à jour.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Le certificat de l&apos;appareil n&apos;est pas approuvé.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Le certificat de l&apos;appareil a changé.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>L&apos;hôte est introuvable</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>L&apos;appareil a refusé la connexion. Vérifiez le port HTTP</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>L&apos;appareil est injoignable</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>L&apos;appareil n&apos;a pas répondu à temps</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Pas de connexion chiffrée. Vérifiez le port HTTPS</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>La réponse de l&apos;appareil n&apos;est pas du HTTP valide</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>La connexion a été fermée avant la fin de la réponse</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>La requête a échoué</translation>
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
        <translation>Un nom d&apos;utilisateur ne doit contenir ni deux-points ni caractères de contrôle.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Un mot de passe ne doit pas contenir de caractères nuls.</translation>
    </message>
</context>
<context>
    <name>CgiResponseWindow</name>
    <message>
        <source>复制成功</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Le fichier n&apos;a pas pu être écrit&#xa0;: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Enregistre le texte dans un fichier</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>Envoi d&apos;une commande CGI</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI par lot</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Saisissez une commande.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>La commande doit commencer par /cgi-bin/</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Arrêté&#xa0;: %1 sur %2 traités</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>Envoyé à %n appareil&#xa0;: accepté</numerusform>
            <numerusform>Envoyé à %n appareils&#xa0;: tous acceptés</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>L&apos;appareil a accepté la commande et n&apos;a renvoyé aucun résultat.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>Envoyé à %n&#xa0;: %1 acceptés, %2 échecs</numerusform>
            <numerusform>Envoyé à %n&#xa0;: %1 acceptés, %2 échecs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CgiTable</name>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:port</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Clic droit pour copier le résultat</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Envoie la commande à cet appareil</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Afficher tout le résultat</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>L&apos;appareil est en cours de mise à jour. Envoyez des commandes quand elle sera terminée.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
</context>
<context>
    <name>CgiWorkbook</name>
    <message>
        <source>批量表单操作</source>
        <translation>Exécuter une feuille</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Les commandes CGI de la feuille de calcul seront envoyées. Les résultats y sont écrits.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Le modèle n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envoyer</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Les commandes d&apos;une autre feuille de calcul sont en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Lecture de la feuille de calcul</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Le fichier a changé. Ouvrez-le à nouveau.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Enregistrement de la feuille de calcul</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Nom du canal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Nom non communiqué</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Saisissez un nom</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Plus de %1 octets</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Rejeté par l&apos;appareil</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Pas de réponse de l&apos;appareil</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Modifié par l&apos;appareil</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Raccourcir</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Raccourcit le nom à ce que l&apos;appareil peut stocker</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Rétablit le nom que porte l&apos;appareil</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>L&apos;appareil est en cours de mise à jour</translation>
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
        <translation>Connexion</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non connecté</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nom de canal non enregistré</numerusform>
            <numerusform>%n noms de canaux non enregistrés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modification non enregistrée</numerusform>
            <numerusform>%n modifications non enregistrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>L&apos;appareil ne communique pas le nom de %n canal</numerusform>
            <numerusform>L&apos;appareil ne communique pas les noms de %n canaux</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>L&apos;appareil est en cours de mise à jour. Enregistrez quand elle sera terminée.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nommer par motif</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Nommer plusieurs canaux ou caméras avec un seul motif</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Lecture des noms des canaux…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Canal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n nom de canal enregistré</numerusform>
            <numerusform>%n noms de canaux enregistrés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n nom de canal non enregistré</numerusform>
            <numerusform>%n noms de canaux non enregistrés</numerusform>
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
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>Commande CGI</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Le fichier n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Le format du fichier est incorrect</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Saisissez une commande.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>La commande doit commencer par /</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (tronqué)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Copié sur %n appareil</numerusform>
            <numerusform>Copié sur %n appareils</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n appareil n&apos;a accepté qu&apos;une partie</numerusform>
            <numerusform>%n appareils n&apos;ont accepté qu&apos;une partie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n appareil en échec</numerusform>
            <numerusform>%n appareils en échec</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n appareil non exécuté</numerusform>
            <numerusform>%n appareils non exécutés</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copier l&apos;encodage</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Identification…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>La configuration de l&apos;appareil n&apos;a pas pu être lue</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Les capacités de l&apos;appareil n&apos;ont pas pu être lues</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Identifié à nouveau. Les modifications non enregistrées sont perdues.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Afficher le rapport</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Le programme s&apos;est arrêté de façon inattendue. Un rapport a été écrit</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Rapport de plantage</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exporté vers %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Le fichier %1 n&apos;a pas pu être écrit</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>L&apos;appareil n&apos;a pas de page web</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 figure déjà dans les favoris</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 ajouté aux favoris</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Le favori ne peut pas être enregistré. Vérifiez que le dossier du programme est accessible en écriture.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>L&apos;appareil ne communique ni adresse MAC ni UUID et ne peut pas avoir de remarque</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>L&apos;appareil est injoignable par P2P. Vérifiez l&apos;ID P2P et la connexion réseau.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>Conflit d&apos;adresses IP</translation>
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
        <translation>%1 j %2 h</translation>
    </message>
    <message>
        <source>与电脑一致</source>
        <translation>identique à cet ordinateur</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>avance de %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>retard de %1</translation>
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
        <translation>Identité</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>État</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisé</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non initialisé</translation>
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
        <translation>Réseau</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>Adresse IPv6</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>Adresse IPv4</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Adresse de l&apos;appareil</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Masque de sous-réseau</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Nom d&apos;hôte</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Trouvé via</translation>
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
        <translation>Port de service</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Port de service de l&apos;appareil</translation>
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
        <translation>Connexions maximales</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Entrées d&apos;alarme</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Disques durs</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Ajouté par</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manuellement (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manuellement (%1)</translation>
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
        <translation>Nom d&apos;utilisateur</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Détails de l&apos;appareil</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Échec de l&apos;identification&#xa0;: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>S&apos;identifier pour en lire plus</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>S&apos;identifie à l&apos;appareil pour lire ses ports, canaux et disques durs</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Enregistre le texte dans un fichier</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Aucune entrée ne correspond à la recherche</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Copier cette ligne</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Le fichier de bibliothèques d&apos;appareils %1 n&apos;a pas pu être lu</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Le fichier de bibliothèques d&apos;appareils %1 contient une ligne inconnue&#xa0;: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] ou son entrée «&#xa0;file&#xa0;» manque dans le fichier de bibliothèques d&apos;appareils</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>La fonction %2 de %1 manque dans le fichier de bibliothèques d&apos;appareils</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Fonction %2 de %1 inconnue dans le fichier de bibliothèques d&apos;appareils</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>La bibliothèque d&apos;appareils %1 n&apos;a pas pu être chargée&#xa0;: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>La bibliothèque d&apos;appareils %1 n&apos;exporte pas %2</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>La ligne %1 est trop longue</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>La ligne %1 n&apos;est pas encodée en UTF-8</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Le fichier n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Le fichier est trop volumineux</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Plus de champs que de colonnes</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Un champ est trop long</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Un champ contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Mode d&apos;ajout inconnu</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Adresse d&apos;appareil non valide</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Port d&apos;appareil non valide</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Nom d&apos;utilisateur ou mot de passe manquant</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Les lignes %1 et %2 ont la même adresse MAC&#xa0;: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Le fichier contient plus de %1 appareils</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Le fichier n&apos;a pas la ligne d&apos;en-tête d&apos;une liste d&apos;appareils</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>La feuille de calcul n&apos;a pas pu être lue</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>L&apos;élément racine n&apos;est pas deviceList&#xa0;: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>La ligne %1 n&apos;est pas du XML valide</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>L&apos;encodage %1 n&apos;est pas pris en charge</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>La feuille a plus de %1 lignes</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Le caractère %1 ne peut pas être relu depuis ce format</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Le contenu de la liste chiffrée n&apos;est pas valide</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Le fichier n&apos;est pas une liste d&apos;appareils chiffrée, ou il est incomplet</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Cette version des listes chiffrées n&apos;est pas prise en charge</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Les paramètres de la liste chiffrée ne sont pas valides</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>La liste est chiffrée&#xa0;: une phrase secrète est nécessaire</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Phrase secrète incorrecte, ou fichier endommagé</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Sélectionner uniquement le même type (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Sélectionner uniquement le même modèle (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Ouvrir la page web</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Ouvrir la vue en direct</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Copier l&apos;adresse</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>Copier la MAC</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Copier la ligne</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Remarque…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Choisir le compte de %n appareil sélectionné…</numerusform>
            <numerusform>Choisir le compte de %n appareils sélectionnés…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Choisir un compte…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Le fichier des remarques, %1, ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Le fichier des remarques, %1, est endommagé. Certaines remarques peuvent être perdues. Il est conservé sous un autre nom à l&apos;enregistrement de la prochaine remarque.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>L&apos;appareil ne communique ni adresse MAC ni UUID et ne peut pas avoir de remarque</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Une remarque peut avoir %1 caractères au maximum</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>%1 remarques au maximum peuvent être enregistrées</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>La remarque ne peut pas être enregistrée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>réseau local</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>réseau local (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Rechercher des appareils</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Aucun appareil sélectionné</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Identifié</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Échec de l&apos;identification&#xa0;: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Non identifié</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Mise à jour en cours</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Non trouvé</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>À confirmer</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisé</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non initialisé</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Introuvable à la dernière recherche</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Appareil de la dernière liste, pas encore trouvé</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Trouvé pour la dernière fois&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Un seul fichier à la fois peut être glissé dans la fenêtre</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Ce n&apos;est pas un fichier de cet ordinateur</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Fichier non pris en charge&#xa0;: %1. Glissez une liste d&apos;appareils (.xlsx, .csv, .xml, .devlist) ou un fichier de site (.site) dans la fenêtre</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Débit personnalisé</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Flux principal&#xa0;: format vidéo</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Flux principal&#xa0;: profil vidéo</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Flux principal&#xa0;: compression audio</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Flux principal&#xa0;: format audio</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Flux secondaire&#xa0;: format vidéo</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Flux secondaire&#xa0;: profil vidéo</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Flux secondaire&#xa0;: compression audio</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Flux secondaire&#xa0;: format audio</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (non lu, non écrit)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Non copié&#xa0;: %1</translation>
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
        <translation>compression du flux secondaire</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>compression du flux principal</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>résolution du flux secondaire</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>résolution du flux principal</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>débit du flux secondaire</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>débit du flux principal</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>contrôle du débit du flux secondaire</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>contrôle du débit du flux principal</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>images/s du flux secondaire</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>images/s du flux principal</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>audio du flux secondaire</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>audio du flux principal</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Pas de réponse de l&apos;appareil</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>L&apos;appareil ne prend pas cela en charge</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>L&apos;appareil est occupé</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>L&apos;appareil a rejeté la requête (erreur %1)</translation>
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
        <translation>La configuration de l&apos;appareil n&apos;est pas valide. Certaines valeurs peuvent manquer.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>L&apos;appareil ne communique pas ses capacités d&apos;encodage. Certaines valeurs peuvent manquer.</translation>
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
        <translation>Flux secondaire</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Les paramètres d&apos;encodage du canal %1 n&apos;ont pas pu être lus</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n modification non enregistrée</numerusform>
            <numerusform>%n modifications non enregistrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Copier sur %n appareil</numerusform>
            <numerusform>Copier sur %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Copier sur les appareils sélectionnés</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Non enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>L&apos;appareil est en cours de mise à jour. Enregistrez quand elle sera terminée.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Connexion perdue. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, ou le canal n&apos;est pas connecté. Choisissez un autre canal ou actualisez.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Non lu&#xa0;: %1. L&apos;enregistrement n&apos;y change rien.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Type de flux</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Activer le flux secondaire</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Contrôle du débit</translation>
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
        <translation>Débit (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Images/s</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Activer l&apos;audio</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Échantillonnage (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Lecture des paramètres d&apos;encodage…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Écriture de la résolution du flux secondaire…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Les deux flux utilisent la même compression&#xa0;: le flux principal est désormais en %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Enregistrement des paramètres d&apos;encodage…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Les paramètres n&apos;ont pas pu être lus&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Choisissez le format du fichier</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Les mots de passe du fichier sont en clair. Les mots de passe des comptes enregistrés ne sont pas exportés.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Le fichier ne contient pas de mots de passe. Saisissez-les avant l&apos;importation.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Toute la liste est chiffrée avec la phrase secrète, et seul ce programme peut la lire. Elle ne peut pas être récupérée sans la phrase secrète. Les mots de passe des comptes enregistrés ne sont pas exportés.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Liste complète</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Sans mots de passe</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Chiffrée (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>La phrase secrète doit avoir au moins %1 caractères</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Phrase secrète</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Les deux phrases secrètes sont différentes</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Répéter la phrase secrète</translation>
    </message>
</context>
<context>
    <name>FailedMarks</name>
    <message>
        <source>%1：%2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Introuvable à la dernière recherche</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Modifier les remarques</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>FavouriteTable</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
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
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Supprime cet appareil des favoris</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Fermez la boîte de dialogue avant de glisser un fichier dans la fenêtre</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Relâchez pour importer une liste d&apos;appareils ou ouvrir un site</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Utilisez au moins deux types parmi chiffres, lettres et symboles, sans caractère interdit.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Saisissez le nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Saisissez le mot de passe</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmez le mot de passe</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Le mot de passe doit comporter 8 à 32 caractères</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisation</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n appareil à initialiser</numerusform>
            <numerusform>%n appareils à initialiser</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 à 32 caractères, avec au moins deux types parmi chiffres, lettres et symboles (tous les caractères visibles sauf </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Ensuite, saisissez aussi le nouveau mot de passe dans les paramètres de recherche.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>En cas de succès</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>L&apos;appareil n&apos;a pas été trouvé par une recherche, ou ne communique ni adresse MAC ni UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Attente de l&apos;appareil arrêtée&#xa0;: son adresse a peut-être changé</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Délai dépassé&#xa0;: l&apos;adresse a peut-être changé</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Plusieurs appareils de suite ont rejeté le mot de passe. Continuer peut verrouiller des comptes.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Arrêt…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Récupération des images, %1 appareils sur %2</translation>
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
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n autre appareil n&apos;est pas affiché</numerusform>
            <numerusform>%n autres appareils ne sont pas affichés</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Tout récupérer à nouveau</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Récupérer à nouveau toutes les images (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Écrire toutes les images dans le dossier des captures (Ctrl+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Récupération…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Récupérer à nouveau (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Ignoré</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Images des appareils</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 images enregistrées dans %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 images enregistrées dans %2, %3 non écrites&#xa0;: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n appareil</numerusform>
            <numerusform>%n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Le dossier n&apos;a pas pu être ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Sélectionnez des appareils dans la liste des appareils</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Aucun appareil</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groupe</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n appareil</numerusform>
            <numerusform>%n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Aucun groupe</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Anti-scintillement</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Mode d&apos;exposition</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Plage de gain</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Gain minimal</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Gain maximal</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Compensation</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Iris auto</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>Réduction du bruit 3D</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Contre-jour</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Mode contre-jour</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Image entière</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Zone personnalisée</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Zone de compensation</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Plage dynamique (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. hautes lumières</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Gain bleu</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Gain rouge</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Récupérer les images</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 canaux, les %2 premiers sont affichés</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Enregistrer les images</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Le dossier %1 n&apos;a pas pu être créé</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Ces paramètres n&apos;ont pas pu être lus. Actualisez pour réessayer.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Éclairage proche et lointain</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Proche</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Lointain</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Commutation jour/nuit</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Sensibilité</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Délai de commutation</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Éclairages</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Luminosité proche</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Luminosité lointaine</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarouge et lumière blanche</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Type d&apos;éclairage</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Délai (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>L&apos;appareil n&apos;a envoyé aucune image</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Pas d&apos;image de %n canal</numerusform>
            <numerusform>Pas d&apos;image de %n canaux</numerusform>
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
        <translation>Exposition et balance des blancs</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Jour/nuit et éclairages</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>La caméra ne communique pas de tels paramètres.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Aucun paramètre</translation>
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
        <translation>Doux</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Vif</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Miroir et rotation</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Vue normale</translation>
    </message>
    <message>
        <source>走廊模式1</source>
        <translation>Mode couloir 1</translation>
    </message>
    <message>
        <source>走廊模式2</source>
        <translation>Mode couloir 2</translation>
    </message>
    <message>
        <source>倒影</source>
        <translation>Retourner</translation>
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
        <translation>Stabilisation électronique</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Anti-brume</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensité</translation>
    </message>
</context>
<context>
    <name>ImageRegion</name>
    <message>
        <source>左</source>
        <translation>G</translation>
    </message>
    <message>
        <source>上</source>
        <translation>H</translation>
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
        <translation>Zone (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>La gauche ne doit pas dépasser la droite</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Le haut ne doit pas dépasser le bas</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Obturateur</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Plage personnalisée</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Plage d&apos;obturation (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Obturation min.</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Obturation max.</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Le minimum ne doit pas dépasser le maximum</translation>
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
        <translation>Les modifications sont écrites immédiatement sur l&apos;appareil.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Plus de %1 octets</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>L&apos;appareil est en cours de mise à jour. Modifiez les paramètres quand elle sera terminée.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Lecture des paramètres d&apos;image…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Écriture des paramètres d&apos;image…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Pas de réponse de l&apos;appareil. La modification n&apos;a peut-être pas été écrite.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Non modifié&#xa0;: %1. La valeur de l&apos;appareil est affichée.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Déjà initialisé</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Mise à jour en cours&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>Adresse MAC inconnue&#xa0;: ignoré</translation>
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
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Sélectionnez un appareil non initialisé</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
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
        <translation>Seuls les appareils de ce LAN sont affichés. Les appareils d&apos;autres LAN ne peuvent pas être initialisés.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n autre est ignoré, voir Remarques</numerusform>
            <numerusform>%n autres sont ignorés, voir Remarques</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>La dernière liste d&apos;appareils %1 ne peut pas être lue&#xa0;: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Le nom d&apos;un groupe ne peut pas dépasser %1 caractères</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>Les appareils P2P ne peuvent pas être dans un groupe</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Un site ne peut pas contenir plus de %1 appareils</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Le site ne peut pas être enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>La liste d&apos;appareils ne peut pas être enregistrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Site non enregistré</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Le site précédent ne peut pas être enregistré&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Retirer de la vue (Suppr)</translation>
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
        <translation>Identification…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nouvel essai dans %n s</numerusform>
            <numerusform>%1. Nouvel essai dans %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>S&apos;identifier à nouveau</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>LiveFigures</name>
    <message>
        <source>%1 帧/秒   %2 kbit/s</source>
        <translation>%1 images/s   %2 kbit/s</translation>
    </message>
    <message>
        <source>待解码 %1 KB</source>
        <extracomment>Data of a live stream that is waiting to be decoded.</extracomment>
        <translation>%1 Ko en tampon</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 images sautées</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Le dossier n&apos;a pas pu être ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>L&apos;appareil n&apos;est plus affiché</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Vue en direct</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Appareil précédent (PgPréc)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Appareil suivant (PgSuiv)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Vue unique</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 vues</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 vues</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Canaux précédents</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Canaux suivants</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Couper son</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Rétablir son</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Masquer les infos du flux</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Afficher les infos du flux</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Capture en cours…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Capture du canal sélectionné</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Captures de tous les canaux</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Attendez la fin.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Aucun autre appareil ne peut être ajouté</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Sélectionnez d&apos;abord les appareils à ajouter dans la liste des appareils</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Ajouter les canaux des appareils sélectionnés dans la liste (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Ajouter les appareils sélectionnés (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Ajouter les appareils sélectionnés</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Captures de tous les canaux de tous les appareils</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>La vue en direct a été fermée à cause de l&apos;identification à un autre appareil</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>S&apos;identifier à nouveau</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Identification…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Aucun canal</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Échec de l&apos;identification</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Nouvel essai dans %n s</numerusform>
            <numerusform>%1. Nouvel essai dans %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Tous les appareils sélectionnés sont déjà affichés</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>%1 appareils au maximum peuvent être ajoutés. %2 n&apos;ont pas été ajoutés.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Pas de réponse de %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Questions et réponses</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Rapport de site (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>Modifier l&apos;IP</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Mise à jour firmware</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuration des appareils</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Configuration système</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>Protocole CGI</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Site de démo</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Site de démo&#xa0;: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Appareils simulés, sans réseau. Nom d&apos;utilisateur et mot de passe pour s&apos;identifier aux appareils. Les nouveaux appareils doivent d&apos;abord être initialisés.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Ouvrir le site de démo</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Aucune bibliothèque d&apos;appareils installée&#xa0;: les appareils sont injoignables</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>Ouverture de %1 dans le lecteur PDF du système</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>Impossible d&apos;ouvrir %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Modifie l&apos;adresse IP de cet appareil</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Affiche toutes les informations sur cet appareil</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Ouvre la page web de cet appareil dans le navigateur</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Ouvre la vue en direct de cet appareil</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initialisez d&apos;abord l&apos;appareil</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>L&apos;appareil est en cours de mise à jour. Modifiez son adresse quand elle sera terminée.</translation>
    </message>
    <message>
        <source>web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>live</source>
        <translation>Direct</translation>
    </message>
</context>
<context>
    <name>ModifyIPAdding</name>
    <message>
        <source>设备已添加，但无法保存到收藏夹，请检查程序所在文件夹的写入权限</source>
        <translation>Appareil ajouté, mais non enregistré dans les favoris. Vérifiez que vous pouvez écrire dans le dossier du programme.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Appareil ajouté et enregistré dans les favoris</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Appareil ajouté</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Ajouter un appareil</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Sélectionnez un appareil non initialisé</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n appareil en échec&#xa0;: voir Résultat</numerusform>
            <numerusform>%n appareils en échec&#xa0;: voir Résultat</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>L&apos;appareil est en cours de mise à jour. Modifiez son adresse quand elle sera terminée.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initialiser</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifier les adresses IP</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adresse modifiée sur %n appareil</numerusform>
            <numerusform>Adresses modifiées sur %n appareils</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n appareil initialisé</numerusform>
            <numerusform>%n appareils initialisés</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Arrêté&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>Supprimer %n appareil de la liste&#xa0;?</numerusform>
            <numerusform>Supprimer %n appareils de la liste&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n appareil est en cours de mise à jour et n&apos;a pas été supprimé</numerusform>
            <numerusform>%n appareils sont en cours de mise à jour et n&apos;ont pas été supprimés</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Supprimer des appareils</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Saisissez une adresse IP valide</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Saisissez un masque de sous-réseau valide</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Saisissez une adresse de passerelle valide</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>Modifier l&apos;IP</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Masquer l&apos;aperçu</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Affiche la nouvelle adresse de chaque appareil</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>静态</source>
        <translation>Statique</translation>
    </message>
    <message>
        <source>起始IP</source>
        <extracomment>Some languages have a different term for the address of one device and the first address of a batch.</extracomment>
        <translation>IP de début</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Même IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Utilisée par %1</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>C&apos;est l&apos;adresse de réseau ou de diffusion</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>La passerelle est hors du sous-réseau</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Modifier quand même</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>C&apos;est l&apos;adresse de la passerelle</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>Adresse IP</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Les %1 appareils sont tous masqués par les filtres</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Recherche d&apos;appareils…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Aucun appareil trouvé</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Aucune bibliothèque d&apos;appareils installée</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Modifiez les filtres ou effacez le texte de recherche.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Les appareils apparaissent ici dès qu&apos;ils sont trouvés.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Vérifiez que les appareils sont sous tension et connectés. Pour les appareils d&apos;autres réseaux, ajoutez leur plage dans les paramètres de recherche ou ajoutez un appareil par son adresse.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Effacer les filtres</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Relancer la recherche</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>Aucun réseau n&apos;est sélectionné dans les paramètres de recherche</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Sélectionnez le réseau local ou d&apos;autres réseaux dans les paramètres de recherche.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Paramètres de recherche</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Pourquoi aucun appareil n&apos;a-t-il été trouvé&#xa0;?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Le programme ne peut pas communiquer avec les appareils&#xa0;: aucun ne peut être trouvé ni modifié. Le site de démo n&apos;a pas besoin d&apos;appareils et montre toutes les fonctions.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Ouvrir le site de démo</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Recherché&#xa0;: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Ajouter un appareil par adresse</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Vérifiez les câbles et les réseaux, puis relancez la recherche.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Exportation des appareils…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Appareils exportés
Fichier&#xa0;: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Le fichier n&apos;a pas pu être écrit. Vérifiez le dossier et si un autre programme a ouvert le fichier.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Ces valeurs ne peuvent pas être relues depuis le fichier&#xa0;:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Résultat de l&apos;exportation</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Lecture de la liste des appareils…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Remplacer le fichier</translation>
    </message>
</context>
<context>
    <name>ModifyIPGroups</name>
    <message>
        <source>分组…</source>
        <translation>Groupe…</translation>
    </message>
    <message>
        <source>从现场中移除</source>
        <translation>Retirer du site</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Ouvrir une liste d&apos;appareils</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Listes d&apos;appareils chiffrées (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importé&#xa0;: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>appareils</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Non importé. Le fichier est ouvert dans un autre programme, a un autre format ou contient deux fois une adresse MAC.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Résultat de l&apos;importation</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Relancer la recherche</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Afficher les raisons</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>La recherche a été arrêtée&#xa0;; la liste est incomplète.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Aucun appareil trouvé. Les appareils grisés ont été trouvés auparavant.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n appareil de moins qu&apos;à la dernière recherche</numerusform>
            <numerusform>%n appareils de moins qu&apos;à la dernière recherche</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModifyIPTable</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>État</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
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
        <translation>Résultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nouveau</translation>
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
        <translation>Définit le premier mot de passe des nouveaux appareils sélectionnés</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>Modifier IP par lot</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Attribue des adresses consécutives aux appareils sélectionnés</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Lit une liste d&apos;appareils dans une feuille de calcul</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Écrit les appareils sélectionnés dans une feuille de calcul</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Ajout manuel</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Ajoute des appareils qu&apos;une recherche ne trouve pas&#xa0;: par adresse IP, par ID P2P ou depuis les favoris</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>Appareil IP</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>Appareil P2P</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Supprime les appareils sélectionnés de la liste</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisé</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non initialisé</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Rechercher…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n appareil sélectionné est en cours de mise à jour&#xa0;: son adresse ne peut pas être modifiée</numerusform>
            <numerusform>%n appareils sélectionnés sont en cours de mise à jour&#xa0;: leurs adresses ne peuvent pas être modifiées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n appareil sélectionné est en cours de mise à jour et ne peut pas être supprimé</numerusform>
            <numerusform>%n appareils sélectionnés sont en cours de mise à jour et ne peuvent pas être supprimés</numerusform>
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
        <translation>Images des appareils sélectionnés (Ctrl+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nommer par motif</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Choisissez ce qui doit être nommé</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Les noms peuvent être modifiés dans le tableau. «&#xa0;Enregistrer&#xa0;» les écrit.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n canal de cet appareil</numerusform>
            <numerusform>%n canaux de cet appareil</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n caméra sélectionnée</numerusform>
            <numerusform>%n caméras sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Motif&#xa0;: {n}, {model}, {ip4} (fin de l&apos;adresse)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Plusieurs canaux reçoivent le même nom</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Premier numéro</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Nomme le canal 1 de chaque caméra.</translation>
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
        <translation>Saisissez un motif</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Utilisez uniquement {n}, {model} et {ip4}</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Plus de %1 octets</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Enregistreur&#xa0;: ignoré. Ouvrez-le pour nommer ses canaux</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarque</translation>
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
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Saisissez une heure valide</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Affiche uniquement les appareils en échec ou non exécutés, triés par raison. Pour les appareils qui ne sont plus listés, voir Lots.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Retire les marques des appareils en échec ou non exécutés</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Non résolus %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Opération non résolue</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Toutes les opérations</translation>
    </message>
</context>
<context>
    <name>OVFootBar</name>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>：</source>
        <translation>&#xa0;: </translation>
    </message>
    <message>
        <source>剩余不到 1 分钟</source>
        <extracomment>Remaining time of a batch.</extracomment>
        <translation>moins de 1 min restante</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>environ %n min restante</numerusform>
            <numerusform>environ %n min restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Arrêt…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Arrêter (Échap)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Relancer les échecs</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Sélectionne uniquement les appareils de cette page en échec ou non exécutés</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Enregistrer les résultats</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Lots</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Recherche d&apos;appareils…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1&#xa0;: %2 sur %3 traités</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n autre non résolu</numerusform>
            <numerusform>, %n autres non résolus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>mot de passe incorrect sur %n appareil de suite</numerusform>
            <numerusform>mot de passe incorrect sur %n appareils de suite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>mot de passe incorrect sur %n appareil de suite (compte %1)</numerusform>
            <numerusform>mot de passe incorrect sur %n appareils de suite (compte %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1&#xa0;: %2. Continuer peut verrouiller des comptes. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Après l&apos;arrêt, choisissez un autre compte dans le menu des appareils, puis relancez les appareils en échec (Échap)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Relancer les échecs&#xa0;: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Relance «&#xa0;%1&#xa0;» pour les appareils en échec ou non exécutés. Les appareils pour lesquels une relance ne peut pas aider, par exemple après un mot de passe incorrect avec le même compte, sont exclus.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Sélectionner non résolus</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Choisir un compte…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Choisissez un autre compte pour les appareils qui ont refusé celui-ci et pour les appareils restants qui l&apos;utilisent, et réessayez-les</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Saisissez un nombre</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Force du mot de passe</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Ajuster les colonnes</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Réinitialiser les colonnes</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>appareil trouvé</numerusform>
            <numerusform>appareils trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Rechercher des appareils</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Paramètres de recherche</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Replier</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Déplier</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Nouveau</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Aucun canal</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Canal non connecté</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Flux interrompu</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Nouvel essai dans %n s</numerusform>
            <numerusform>Nouvel essai dans %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 dans p2p.ini manque ou n&apos;est pas valide</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Le service P2P n&apos;a pas pu être démarré</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Sélectionnez un appareil.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI par lot</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Envoie une commande aux appareils sélectionnés</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Exécuter une feuille</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Envoie les commandes d&apos;une feuille de calcul et y écrit les résultats</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Ouvrir fichier modèle</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Ouvre le modèle des feuilles de commandes</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Rechercher…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Copié</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Appareils en échec</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>La commande sera envoyée à ces appareils&#xa0;:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Envoyer la commande</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Afficher tout le résultat</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Copier le résultat</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Abandonner</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n modification n&apos;est pas enregistrée et sera perdue.</numerusform>
            <numerusform>%n modifications ne sont pas enregistrées et seront perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copier</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Copier les paramètres d&apos;encodage du canal %1 sur le même canal de l&apos;appareil sélectionné&#xa0;?</numerusform>
            <numerusform>Copier les paramètres d&apos;encodage du canal %1 sur le même canal des %n appareils sélectionnés&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Cela inclut les modifications non enregistrées.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Enregistrement des noms des canaux…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Échap pour arrêter)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Configuration des appareils</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Paramètres d&apos;encodage du canal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Copier l&apos;encodage</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Enregistrer et quitter</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nommer par motif</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Configurer cet appareil</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Aucune caméra parmi les appareils sélectionnés</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Le paramètre n&apos;a pas pu être enregistré. Vérifiez que vous pouvez écrire dans le dossier du programme.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Choisir un fichier firmware</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Arrêter la mise à jour</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>Conflit d&apos;adresses IP&#xa0;: %n appareil</numerusform>
            <numerusform>Conflit d&apos;adresses IP&#xa0;: %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Connexion à l&apos;appareil P2P %1 perdue. Supprimez l&apos;appareil et ajoutez-le à nouveau.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>Le service P2P est déconnecté. Les appareils P2P sont injoignables pour le moment.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifier les adresses IP</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Images des appareils sélectionnés</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Ancien mot de passe correct&#xa0;: en attente du nouveau</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Vérifier l&apos;ancien mot de passe</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Redémarrer les appareils</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Rétablir les paramètres d&apos;usine</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n appareil sélectionné</numerusform>
            <numerusform>%n appareils sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Temps écoulé&#xa0;: le mot de passe de %n appareil n&apos;a pas été changé</numerusform>
            <numerusform>Temps écoulé&#xa0;: les mots de passe de %n appareils n&apos;ont pas été changés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Une autre opération a été lancée&#xa0;: le mot de passe de %n appareil n&apos;a pas été changé</numerusform>
            <numerusform>Une autre opération a été lancée&#xa0;: les mots de passe de %n appareils n&apos;ont pas été changés</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Sélectionnez d&apos;abord des appareils à gauche</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Attendez la fin.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Mot de passe non changé sur %n appareil (%1)&#xa0;; il est marqué</numerusform>
            <numerusform>Mot de passe non changé sur %n appareils (%1)&#xa0;; ils sont marqués</numerusform>
        </translation>
    </message>
    <message>
        <source>；</source>
        <translation>&#xa0;; </translation>
    </message>
</context>
<context>
    <name>PassphraseDialog</name>
    <message>
        <source>加密的设备列表</source>
        <translation>Liste d&apos;appareils chiffrée</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Phrase secrète</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Le programme est déjà en cours d&apos;exécution.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Saisissez le compte</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Saisissez le mot de passe</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>S&apos;identifier à nouveau</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Échec de l&apos;identification à %1. Saisissez son nom d&apos;utilisateur et son mot de passe.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Mot de passe incorrect, %n fois</numerusform>
            <numerusform>Mot de passe incorrect, %n fois</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Réponse de l&apos;appareil&#xa0;: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>L&apos;appareil n&apos;indique pas le nombre d&apos;essais restants. D&apos;autres mots de passe incorrects peuvent verrouiller le compte.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Enregistrer pour cet appareil</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Une fois l&apos;identification réussie, ce compte est toujours utilisé pour s&apos;identifier à cet appareil</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Aussi pour les appareils suivants</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Après une identification réussie, tous les appareils sans compte propre, y compris ceux des lots, sont essayés avec ce compte à la place de celui des paramètres de recherche, jusqu&apos;à la fin du programme ou la modification du compte des paramètres de recherche</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>netteté</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>miroir</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>stabilisation</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>exposition</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>contre-jour</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>balance des blancs</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>mode jour/nuit</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>anti-brume</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>éclairage</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>luminosité</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>contraste</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>saturation</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>teinte</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Non initialisé</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Adresse en double</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Identification refusée</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Lecture impossible</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Horloge inexacte</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Firmware plus ancien</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Pas de serveur de temps</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <extracomment>A line of the site report. %1 is a title, such as the kind of a finding, %2 its text.</extracomment>
        <translation>%1&#xa0;: %2</translation>
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
        <translation>%1 j %2 h</translation>
    </message>
    <message>
        <source>一致</source>
        <translation>Exacte</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>avance de %1</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>retard de %1</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1&#xa0;; un autre appareil de ce modèle a %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Nom du canal</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Paramètres d&apos;encodage</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Paramètres d&apos;image</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Paramètres d&apos;image&#xa0;: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapport de site</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Anomalies</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Modifications sur site</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
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
        <translation>Firmware</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Écart d&apos;heure</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Écart d&apos;heure (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Serveur de temps</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Canaux</translation>
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
        <translation>Largeur (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Hauteur (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Actuellement</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Nouvelle valeur</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>未报告</source>
        <translation>Non communiqué</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Pas d&apos;image</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Aucune anomalie.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Aucun appareil n&apos;a été modifié depuis le démarrage du programme.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Lus</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Avec anomalies</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Impossible de créer le fichier PDF</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 modifications antérieures ne figurent pas dans la liste.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 autres canaux</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Modifier l&apos;adresse IP</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Régler l&apos;heure</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Mise à jour du firmware</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Serveur de temps et fuseau horaire</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Heure d&apos;été</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Maintenance automatique</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Norme vidéo</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Impossible d&apos;utiliser le dossier des fichiers temporaires %1 : %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 appareils de suite ont refusé la connexion</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Changement de langue</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>La langue change au redémarrage du programme.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Échec de la commande</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Le compte n&apos;existe pas</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Le compte est verrouillé. Attendez que l&apos;appareil le déverrouille.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Le compte est déjà utilisé</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Pas de réponse de l&apos;appareil</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protocole incompatible</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>L&apos;appareil n&apos;est pas initialisé</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>L&apos;appareil ne prend pas cela en charge</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>L&apos;appareil est déjà dans la liste</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Les capacités de l&apos;appareil n&apos;ont pas pu être lues</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>L&apos;appareil a rejeté la requête</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erreur inconnue %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>L&apos;appareil est en cours de mise à jour</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non exécuté</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Échec de la capture</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Données non valides</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Fichier firmware inutilisable</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Non mis à jour</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Mise à jour non confirmée</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>L&apos;appareil est occupé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>La session a expiré. Identifiez-vous à nouveau.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>L&apos;appareil n&apos;accepte pas cette valeur</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Le certificat de l&apos;appareil n&apos;est pas approuvé</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Le certificat de l&apos;appareil a changé</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Un autre appareil répond à cette adresse</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Accepté par l&apos;appareil, non confirmé</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Copier le texte</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Rapport de recherche</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Interface réseau</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Cet ordinateur n&apos;a aucune interface réseau utilisable</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Vérifiez qu&apos;une interface est installée et activée.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Recherche par adresse</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Adresses interrogées</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Pas de route vers %1 de ces adresses</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Définissez une passerelle pour l&apos;interface ou ajoutez une adresse dans le même réseau que ces adresses.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Aucune réponse d&apos;aucune adresse</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Vérifiez la plage d&apos;adresses dans les paramètres de recherche et que les appareils sont sous tension.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Autres réseaux</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Appareils trouvés hors de tous les réseaux de cet ordinateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Avant de vous y identifier, modifiez leurs adresses IP ou ajoutez à l&apos;interface une adresse de leur réseau.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresses</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Requêtes envoyées</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Messages reçus</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Appareils trouvés</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Non utilisé</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>messages illisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>messages d&apos;appareils autres que des caméras et enregistreurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>messages sans adresse de service&#xa0;: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>messages avec l&apos;adresse de service d&apos;un autre hôte&#xa0;: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>messages d&apos;appareils quittant le réseau&#xa0;: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>messages au-delà de la limite&#xa0;: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>L&apos;interface est désactivée</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Activez-la dans les paramètres réseau du système d&apos;exploitation.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>L&apos;interface n&apos;est pas connectée</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Vérifiez le câble et le switch, ou connectez-vous à un réseau sans fil.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>L&apos;interface n&apos;a pas d&apos;adresse IP</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Définissez une adresse dans le réseau des appareils ou activez DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>L&apos;interface ne peut pas émettre en multicast</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Sélectionnez d&apos;autres réseaux dans les paramètres de recherche pour rechercher par adresse.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Le système d&apos;exploitation n&apos;a pas envoyé les requêtes&#xa0;: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Vérifiez le pare-feu de cet ordinateur et les paramètres de l&apos;interface.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Aucune réponse reçue</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Vérifiez que les appareils sont sous tension et dans le même réseau, et qu&apos;aucun pare-feu ni switch ne filtre leurs réponses. Vous pouvez aussi rechercher par adresse&#xa0;: voir les paramètres de recherche.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 appareils trouvés, %2 de moins qu&apos;à la dernière recherche.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Appareils trouvés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Aucun appareil trouvé.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>L&apos;IP de début ne doit pas dépasser l&apos;IP de fin</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>La plage peut couvrir 17 segments au maximum</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Saisissez une IP de début valide</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Saisissez une IP de fin valide</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Paramètres de recherche</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Rechercher dans le réseau local</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Rechercher dans d&apos;autres réseaux</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>IP de début</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>IP de fin</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Compte par défaut pour s&apos;identifier aux appareils</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>S&apos;identifier pendant la recherche</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Lit le modèle, la version et l&apos;adresse MAC. Chaque appareil reçoit ce compte. Après un mot de passe incorrect, un appareil n&apos;est pas réessayé.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>il n’y a pas de service de trousseau</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>le service de trousseau est verrouillé</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>le service de trousseau ne répond pas</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Certains mots de passe sont dans le service de trousseau du bureau et ne peuvent pas être lus (%1). Saisissez-les à nouveau.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Le service de trousseau du bureau ne peut pas être utilisé (%1). Les mots de passe sont enregistrés dans des fichiers.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Le mot de passe n’a pas pu être enregistré dans le service de trousseau du bureau (%1). Il est enregistré dans un fichier.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Le mot de passe n’a pas pu être supprimé du service de trousseau du bureau (%1). Supprimez-le dans le gestionnaire de clés du système.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Le site de démo n&apos;a pas pu être ouvert&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Le fichier n&apos;est pas un fichier de site, ou il est endommagé</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Le fichier de site provient d&apos;une version plus récente et ne peut pas être lu</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Le fichier de site contient plus de %1 appareils</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Le nom dans le fichier de site n&apos;est pas valide</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Appareil %1 du fichier de site&#xa0;: %2 n&apos;est pas valide</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>L&apos;appareil %1 du fichier de site est en double</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Le fichier n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Le fichier est trop volumineux</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Fichiers de site (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Ouvrir un site</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Site «&#xa0;%1&#xa0;» ouvert, avec %n appareil</numerusform>
            <numerusform>Site «&#xa0;%1&#xa0;» ouvert, avec %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Le site %1 ne peut pas être ouvert&#xa0;: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Enregistrer le site sous</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Le site est enregistré dans %1</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Le fichier ne contient pas de mots de passe.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Un nouveau site retire de la liste les appareils connus et les groupes. Les modifications non enregistrées restent dans les sites récents.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Nouveau site</translation>
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
        <translation>Ouvrir un site…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Enregistrer le site sous…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Nouveau site…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Saisissez le nom du site</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Choisissez au moins un fichier</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>La liste ne contient aucun appareil</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Créer le rapport</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapport de site</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Un rapport est en cours de création</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Nom du site</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Tous (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Sélectionnés (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Le programme s&apos;identifie à chaque appareil, lit ses paramètres et récupère une image. Le rapport indique les modifications depuis le démarrage du programme et ne contient aucun mot de passe.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>Impossible d&apos;ouvrir %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>Ouvrir le PDF</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Rapport de site</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Le rapport est terminé</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Autre dossier…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Canal non connecté</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Échec de la capture</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Échec de la capture&#xa0;: le fichier n&apos;a pas pu être écrit&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Capture en cours…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Captures</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Capture %1 sur %2 en cours</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Arrêt…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n prise</numerusform>
            <numerusform>%n prises</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
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
        <translation>Captures</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Non exécuté</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>L&apos;appareil n&apos;est plus affiché</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Jour sem.</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Heure d&apos;été</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Par date</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Par semaine</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Appliquer l&apos;heure d&apos;été</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Saisissez une heure valide</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Rechercher…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Relancer la recherche</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Aucun appareil avec ce nom, ce type, ce modèle ou cette adresse.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Les appareils apparaissent ici dès qu&apos;ils sont trouvés.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Seuls les appareils IPv4 initialisés sont affichés.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Aucun appareil correspondant</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Recherche d&apos;appareils…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Aucun appareil à configurer</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Aucune bibliothèque d&apos;appareils installée</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Le programme ne peut pas communiquer avec les appareils. Ouvrez le site de démo sur la page «&#xa0;Modifier l&apos;IP&#xa0;».</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Effacer les marques</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Retire les marques des appareils en échec ou non exécutés</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>L&apos;identification a réussi sur tous les appareils affichés.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n appareil sans adresse (DHCP) n&apos;est pas affiché</numerusform>
            <numerusform>%n appareils sans adresse (DHCP) ne sont pas affichés</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Les appareils en échec ou non exécutés ne sont pas dans cette arborescence&#xa0;: ils ne sont pas initialisés, n&apos;ont pas d&apos;adresse IPv4 ou n&apos;ont pas été retrouvés. Voir la page «&#xa0;Modifier l&apos;IP&#xa0;» et Lots.</translation>
    </message>
</context>
<context>
    <name>SystemLists</name>
    <message>
        <source>1月</source>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>2月</source>
        <translation>Février</translation>
    </message>
    <message>
        <source>3月</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>4月</source>
        <translation>Avril</translation>
    </message>
    <message>
        <source>5月</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>6月</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>7月</source>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>8月</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>9月</source>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>10月</source>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>11月</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>12月</source>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Première</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Deuxième</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Troisième</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Quatrième</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Dernière</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Chaque jour</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Pas de réponse de l&apos;appareil</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>L&apos;heure n&apos;a pas pu être lue</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Pas de réponse de l&apos;appareil. Son mot de passe a peut-être été changé.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Redémarrage</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Réinit. d&apos;usine</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Norme vidéo</translation>
    </message>
</context>
<context>
    <name>SystemPasswordNotice</name>
    <message>
        <source>只剩 %1 秒，之后需要重新验证旧密码</source>
        <translation>%1 s restantes pour saisir le mot de passe. Ensuite, l&apos;ancien mot de passe devra être vérifié à nouveau.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>%1 s restantes pour saisir le mot de passe</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n appareil en attente du nouveau mot de passe</numerusform>
            <numerusform>%n appareils en attente du nouveau mot de passe</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>le nouveau mot de passe que vous avez saisi est rétabli</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Vérifiez à nouveau l&apos;ancien mot de passe. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Le nouveau mot de passe que vous avez saisi est alors rétabli.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Temps écoulé&#xa0;: le mot de passe de %n appareil n&apos;a pas été changé. </numerusform>
            <numerusform>Temps écoulé&#xa0;: les mots de passe de %n appareils n&apos;ont pas été changés. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>La sélection a changé. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Utilisez au moins deux types parmi chiffres, lettres et symboles, sans caractère interdit.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Confirmez le mot de passe</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Le mot de passe doit comporter 8 à 32 caractères</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Saisissez l&apos;ancien mot de passe</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Étape 1&#xa0;: vérifier l&apos;ancien mot de passe</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Ancien mot de passe</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Étape 2&#xa0;: définir le nouveau mot de passe</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 à 32 caractères, avec au moins deux types parmi chiffres, lettres et symboles (tous les caractères visibles sauf &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Changer de mot de passe</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>En cas de succès</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Heure d&apos;été activée</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Heure d&apos;été désactivée</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP désactivé</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Redémarrage %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Redémarrage régulier désactivé</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Redémarrer l&apos;appareil sélectionné&#xa0;?</numerusform>
            <numerusform>Redémarrer les %n appareils sélectionnés&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Redémarrer</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Réinitialiser l&apos;appareil sélectionné aux paramètres d&apos;usine&#xa0;?</numerusform>
            <numerusform>Réinitialiser les %n appareils sélectionnés aux paramètres d&apos;usine&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>«&#xa0;%1&#xa0;» sera appliqué à ces appareils&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>L&apos;intervalle de mise à l&apos;heure est de 0 minute&#xa0;: l&apos;appareil risque de ne plus mettre son heure à jour. L&apos;appliquer à l&apos;appareil sélectionné&#xa0;?</numerusform>
            <numerusform>L&apos;intervalle de mise à l&apos;heure est de 0 minute&#xa0;: les appareils risquent de ne plus mettre leur heure à jour. L&apos;appliquer aux %n appareils sélectionnés&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Appliquer quand même</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Maintenance automatique</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Redémarrer régulièrement</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Redémarrer à</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Jour du redémarrage</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Redémarrer maintenant</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Pendant son redémarrage, un appareil est injoignable et n&apos;enregistre pas.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Redémarrer les appareils</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n appareil sélectionné est en cours de mise à jour et ne peut pas être redémarré</numerusform>
            <numerusform>%n appareils sélectionnés sont en cours de mise à jour et ne peuvent pas être redémarrés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Rétablir les paramètres d&apos;usine</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Efface tous les paramètres, comptes et mots de passe des appareils. Cette action est irréversible. Les appareils devront être initialisés à nouveau.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n appareil sélectionné est en cours de mise à jour et ne peut pas être réinitialisé</numerusform>
            <numerusform>%n appareils sélectionnés sont en cours de mise à jour et ne peuvent pas être réinitialisés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Heure de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Mettre à l&apos;heure de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Met chaque appareil à l&apos;heure à laquelle il reçoit la requête</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manuellement</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Prendre l&apos;heure actuelle</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Heure de l&apos;appareil</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Lire les heures des appareils</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Appareil</translation>
    </message>
</context>
<context>
    <name>SystemTreeStates</name>
    <message>
        <source>全部</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>未登录 %1</source>
        <extracomment>Shows only the devices without a login; %1 is their number.</extracomment>
        <translation>Non identifiés %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Affiche uniquement les appareils sans identification à ce jour ou dont la dernière a échoué</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Non résolus %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Affiche uniquement les appareils en échec ou non exécutés, triés par raison.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n autre n&apos;est pas dans cette liste&#xa0;: voir Lots.</numerusform>
            <numerusform> %n autres ne sont pas dans cette liste&#xa0;: voir Lots.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemVideoPanel</name>
    <message>
        <source>视频制式</source>
        <translation>Norme vidéo</translation>
    </message>
    <message>
        <source>制式</source>
        <translation>Norme</translation>
    </message>
    <message>
        <source>PAL 为 50 Hz 电源地区使用，NTSC 为 60 Hz 电源地区使用。部分设备在切换后会重启。</source>
        <translation>PAL est destiné aux régions avec un secteur à 50 Hz, NTSC à 60 Hz. Certains appareils redémarrent après le changement.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Les appareils ne proposent pas cette fonction</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Saisissez le serveur NTP</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Fuseau horaire et NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>Activer NTP</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>Serveur NTP</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>Adresse IP ou nom d&apos;hôte</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>Port NTP</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervalle (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Appliquer le fuseau horaire et NTP</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Les appareils ne proposent pas %1, le fuseau horaire de cet ordinateur. Choisissez un fuseau horaire.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Saisissez une adresse IP ou un nom d&apos;hôte valide</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>Adresse IP de l&apos;appareil, ou «&#xa0;adresse:port web&#xa0;» si le port web n&apos;est pas 80. Obligatoire.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Port d&apos;identification de l&apos;appareil. Sert uniquement à vérifier le compte.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Nom d&apos;utilisateur de l&apos;appareil, sans deux-points.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Mot de passe de l&apos;appareil. Supprimez-le ensuite du fichier.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Commande commençant par «&#xa0;/&#xa0;». L&apos;appareil reçoit deux fois une commande acceptée. Obligatoire.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 pour HTTP, autres entiers pour HTTPS. HTTP si vide.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Rempli par le programme&#xa0;: la réponse, le chemin de l&apos;image ou de l&apos;enregistrement, ou «&#xa0;Error:&#xa0;» et la raison.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Signification</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Conservez la ligne d&apos;en-tête. Remplacez la ligne d&apos;exemple par vos propres lignes.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Les lignes sans adresse ni commande sont ignorées.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>N&apos;ouvrez pas ce fichier dans un autre programme pendant l&apos;exécution.</translation>
    </message>
</context>
<context>
    <name>UpgradeBatches</name>
    <message>
        <source>%1：%2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不能用此文件升级，请查看结果</source>
        <extracomment>Of the devices that a file was chosen for.</extracomment>
        <translation>
            <numerusform>%n appareil ne peut pas être mis à jour avec ce fichier&#xa0;: voir Résultat</numerusform>
            <numerusform>%n appareils ne peuvent pas être mis à jour avec ce fichier&#xa0;: voir Résultat</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
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
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fichier firmware</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Le fichier n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Le format du fichier est incorrect</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Les résultats n&apos;ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Résultats enregistrés dans %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Le fichier n&apos;a pas pu être écrit. Il est en lecture seule ou ouvert dans un autre programme. Résultats enregistrés dans %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>La feuille de calcul contient plus de %1 appareils. Divisez-la.</translation>
    </message>
</context>
<context>
    <name>UpgradeDocuments</name>
    <message>
        <source>%1：%2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1：成功%2台，失败%3台。</source>
        <translation>%1&#xa0;: %2 mis à jour, %3 échecs. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>La feuille de calcul ne contient aucun appareil</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1&#xa0;: ignoré</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>L&apos;appareil a déjà cette version</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Lecture de la feuille de calcul</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Lancer la mise à jour</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Mise à jour firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Mise à jour par feuille de calcul</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n appareil sera mis à jour. Il va redémarrer. Ne l&apos;éteignez pas.</numerusform>
            <numerusform>%n appareils seront mis à jour. Ils vont redémarrer. Ne les éteignez pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Les résultats sont écrits dans la feuille de calcul.</translation>
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
        <translation>Mise à jour&#xa0;: %1 sur %2 traités</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n réussi</numerusform>
            <numerusform>%n réussis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n échec</numerusform>
            <numerusform>%n échecs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Redémarrage</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modèle</translation>
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
        <translation>Firmware</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Une relance peut aider</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Corrigez le fichier, le compte ou l&apos;appareil, puis relancez la mise à jour</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Écriture commencée&#xa0;: arrêt impossible</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>Adresse IP de l&apos;appareil. Obligatoire.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Port d&apos;identification de l&apos;appareil. 37777 si vide.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Nom d&apos;utilisateur de l&apos;appareil. Si ce champ et le mot de passe sont vides, le compte du programme est utilisé.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Mot de passe de l&apos;appareil. Supprimez-le ensuite du fichier.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Chemin du fichier firmware, absolu ou relatif au dossier de cette feuille de calcul. Obligatoire.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Rempli par le programme&#xa0;: les versions avant et après la mise à jour, ou la raison de l&apos;échec.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Signification</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Conservez la ligne d&apos;en-tête. Remplacez la ligne d&apos;exemple par vos propres lignes.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Les lignes sans adresse ni fichier firmware sont ignorées.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>N&apos;ouvrez pas ce fichier dans un autre programme pendant la mise à jour.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Écriture commencée&#xa0;: arrêt impossible</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 à %2&#xa0;%</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Pas encore arrêté&#xa0;: nouvel essai</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware écrit, l&apos;appareil redémarre&#xa0;: arrêt impossible</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Mis à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1&#xa0;: aucune version communiquée</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1&#xa0;: maintenant %2, version précédente inconnue</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Lancer la mise à jour</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Met à jour les appareils sélectionnés</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Choisit un fichier firmware pour les appareils sélectionnés</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Relancer les échecs</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Relance la mise à jour des appareils pour lesquels cela peut aider, par exemple ceux qui n&apos;ont pas répondu</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Mise à jour par feuille de calcul</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Met à jour les appareils d&apos;une feuille de calcul et y écrit les résultats</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Ouvrir fichier modèle</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Ouvre le modèle des feuilles de mise à jour</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Rechercher…</translation>
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
        <translation>Appareils à la fois</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Appareils mis à jour à la fois</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Attente du redémarrage de l&apos;appareil</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Écriture&#xa0;: n&apos;éteignez pas l&apos;appareil</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Envoi du fichier</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Mis à jour</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Aucun fichier firmware choisi</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Le fichier firmware n&apos;existe pas</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Le fichier firmware n&apos;a pas pu être lu</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Le fichier firmware est vide</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Le fichier firmware est trop volumineux</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Le fichier firmware est endommagé</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Le firmware est destiné à d&apos;autres modèles</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware rejeté par l&apos;appareil</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Le compte n&apos;existe pas</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Le compte est verrouillé</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>L&apos;appareil n&apos;est pas initialisé</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Mise à jour non prise en charge, ou appareil non initialisé</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Adresse IP ou port non valide</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Même appareil que dans une ligne précédente</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Pas de réponse de l&apos;appareil</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>L&apos;appareil est occupé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Abandon par l&apos;appareil</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Aucune progression depuis trop longtemps</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Pas de réponse après le redémarrage</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Version inchangée après le redémarrage</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Arrêté&#xa0;: appareil non modifié</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Interrompu&#xa0;: le programme a été fermé</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Erreur inconnue %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Modèle mise à jour par lot.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Redémarré, mais la version n&apos;a pas pu être lue</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Certificat non approuvé</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Le certificat a changé</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>L&apos;appareil n&apos;est plus dans la liste</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Choisir un fichier firmware</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Fichier firmware</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Aucun appareil à relancer</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n appareil n&apos;a pas été mis à jour&#xa0;: voir Résultat</numerusform>
            <numerusform>%n appareils n&apos;ont pas été mis à jour&#xa0;: voir Résultat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n appareil mis à jour</numerusform>
            <numerusform>%n appareils mis à jour</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Le modèle n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Mise à jour firmware</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Mise à jour par feuille de calcul</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Arrêté&#xa0;: %1 mis à jour, %2 échecs, %3 non exécutés</translation>
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
        <translation>Détection de mouvement</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Comp. de contre-jour</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Plage dynamique (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Comp. hautes lumières</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>S&apos;identifier à nouveau</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Cliquez sur un appareil à gauche pour vous identifier et modifier ses paramètres.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Sélectionnez un appareil</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Échec de l&apos;identification</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Continuer ici</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>L&apos;identification n&apos;est possible qu&apos;à un seul appareil à la fois. Continuer ferme la vue en direct de l&apos;autre appareil.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>La vue en direct d&apos;un autre appareil est ouverte</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Connexion perdue</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Noms des canaux</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>La configuration des appareils est affichée et modifiée ici dès qu&apos;une recherche en a trouvé.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Aucun appareil</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nommer par motif</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Cliquez sur un appareil à gauche pour modifier ici les noms de ses canaux, ou nommez ensemble les caméras sélectionnées.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Pas d&apos;image&#xa0;: des fichiers du dossier Shaders manquent ou sont endommagés</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Pas d&apos;image&#xa0;: trop grande pour la carte graphique</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Échec de la lecture</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Échec de la lecture&#xa0;: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Connexion à l&apos;appareil perdue</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>L&apos;appareil a terminé le flux</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>L&apos;appareil n&apos;envoie pas de vidéo</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>L&apos;appareil n&apos;accepte plus l&apos;identification</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>L&apos;appareil n&apos;envoie pas de flux vidéo</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Cet ordinateur ne peut pas décoder le flux</translation>
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
        <translation>Le certificat de l&apos;appareil a changé. La page web n&apos;a pas été ouverte. Ne saisissez aucun mot de passe sur cet appareil.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Le certificat de l&apos;appareil n&apos;est pas confirmé. La page web n&apos;a pas été ouverte.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Le navigateur n&apos;a pas pu être ouvert. Page web de l&apos;appareil&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Les paramètres n&apos;ont pas pu être enregistrés. Vérifiez que vous pouvez écrire dans le dossier du programme.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Arrêter et quitter</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Les appareils en train d&apos;écrire le firmware terminent d&apos;eux-mêmes&#xa0;: ne les éteignez pas.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n certificat approuvé. Réessayez.</numerusform>
            <numerusform>%n certificats approuvés. Réessayez.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Le compte ne peut pas être enregistré et n&apos;est utilisé que jusqu&apos;à la prochaine recherche&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>«&#xa0;%1&#xa0;» est en cours. Si vous quittez, les appareils restants ne seront pas modifiés.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Le rapport a été arrêté&#xa0;; aucun fichier n&apos;a été écrit</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Plus de %1 appareils ont répondu. %2 autres réponses ne sont pas affichées. Recherchez dans une plage plus petite.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Arrêté&#xa0;: %1 lignes réussies, %2 échecs, %3 non envoyées.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Terminé&#xa0;: %1 lignes réussies, %2 échecs.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Les résultats n&apos;ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Résultats enregistrés dans %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Le fichier n&apos;a pas pu être écrit. Il est en lecture seule ou ouvert dans un autre programme. Résultats enregistrés dans %1</translation>
    </message>
</context>
</TS>
