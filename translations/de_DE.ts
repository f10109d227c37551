<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>复制版本号</source>
        <translation>Versionsnummer kopieren</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>第三方软件许可</source>
        <translation>Lizenzen Dritter</translation>
    </message>
</context>
<context>
    <name>AccountDialog</name>
    <message>
        <source>添加账号</source>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>修改账号</source>
        <translation>Konto ändern</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>请输入名称</source>
        <translation>Geben Sie einen Namen ein</translation>
    </message>
    <message>
        <source>例如：一号楼</source>
        <translation>Zum Beispiel: Gebäude 1</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Geben Sie den Benutzernamen ein</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Geben Sie das Passwort ein</translation>
    </message>
    <message>
        <source>留空则不修改</source>
        <translation>Leer lassen, um es zu behalten</translation>
    </message>
    <message>
        <source>这里只保存登录时使用的账号，不会修改设备上的密码。</source>
        <translation>Speichert die Anmeldedaten des Programms. Passwörter auf Geräten werden nicht geändert.</translation>
    </message>
</context>
<context>
    <name>AccountKeeper</name>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Das Konto kann nicht gespeichert werden und gilt nur bis zur nächsten Suche: %1</translation>
    </message>
    <message>
        <source>新账号已设为默认账号</source>
        <translation>Das neue Konto ist jetzt das Standardkonto</translation>
    </message>
    <message numerus="yes">
        <source>新账号已保存，以后登录这 %n 台设备时使用</source>
        <translation>
            <numerusform>Das neue Konto ist gespeichert und wird ab jetzt für dieses Gerät verwendet</numerusform>
            <numerusform>Das neue Konto ist gespeichert und wird ab jetzt für diese %n Geräte verwendet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AccountKeeping</name>
    <message>
        <source>保存为这些设备的账号（推荐）</source>
        <translation>Für diese Geräte speichern (empfohlen)</translation>
    </message>
    <message>
        <source>设为默认账号，用于搜索和所有设备</source>
        <translation>Als Standardkonto aller Geräte festlegen</translation>
    </message>
    <message>
        <source>不保存，只用到下次搜索</source>
        <translation>Nicht speichern; bis zur nächsten Suche verwenden</translation>
    </message>
</context>
<context>
    <name>AccountList</name>
    <message>
        <source>设备没有MAC和UUID，账号只用到下次搜索</source>
        <translation>Das Gerät hat weder MAC noch UUID: Das Konto gilt nur bis zur nächsten Suche</translation>
    </message>
</context>
<context>
    <name>AccountStore</name>
    <message>
        <source>账号文件 %1 无法读取：%2</source>
        <translation>Die Kontendatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>账号文件已损坏，其中的账号均未使用：%1</source>
        <translation>Die Kontendatei ist beschädigt, keines ihrer Konten wird verwendet: %1</translation>
    </message>
    <message>
        <source>请输入名称，最多 %1 个字符</source>
        <translation>Geben Sie einen Namen mit höchstens %1 Zeichen ein</translation>
    </message>
    <message>
        <source>请输入账号，最多 %1 个字符</source>
        <translation>Geben Sie einen Benutzernamen mit höchstens %1 Zeichen ein</translation>
    </message>
    <message>
        <source>请输入密码，最多 %1 个字符</source>
        <translation>Geben Sie ein Passwort mit höchstens %1 Zeichen ein</translation>
    </message>
    <message>
        <source>已有名为“%1”的账号</source>
        <translation>Es gibt bereits ein Konto namens „%1“</translation>
    </message>
    <message>
        <source>没有名为“%1”的账号</source>
        <translation>Es gibt kein Konto namens „%1“</translation>
    </message>
    <message>
        <source>账号已满：最多 %1 个账号和 %2 台设备</source>
        <translation>Kein Platz: höchstens %1 Konten und %2 Geräte</translation>
    </message>
</context>
<context>
    <name>AccountsDialog</name>
    <message numerus="yes">
        <source>%n 台设备使用默认账号</source>
        <translation>
            <numerusform>%n Gerät verwendet das Standardkonto</numerusform>
            <numerusform>%n Geräte verwenden das Standardkonto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备使用账号“%1”</source>
        <translation>
            <numerusform>%n Gerät verwendet das Konto „%1“</numerusform>
            <numerusform>%n Geräte verwenden das Konto „%1“</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>；其中 %n 台没有MAC和UUID，只用到下次搜索</source>
        <translation>
            <numerusform>; %n davon hat weder MAC noch UUID und verwendet es nur bis zur nächsten Suche</numerusform>
            <numerusform>; %n davon haben weder MAC noch UUID und verwenden es nur bis zur nächsten Suche</numerusform>
        </translation>
    </message>
    <message>
        <source>删除账号“%1”？</source>
        <translation>Konto „%1“ entfernen?</translation>
    </message>
    <message numerus="yes">
        <source>使用它的 %n 台设备以后用默认账号登录。</source>
        <translation>
            <numerusform> Am Gerät, das es verwendet, erfolgt die Anmeldung dann mit dem Standardkonto.</numerusform>
            <numerusform> An den %n Geräten, die es verwenden, erfolgt die Anmeldung dann mit dem Standardkonto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备</source>
        <translation>
            <numerusform>Für %n Gerät verwenden</numerusform>
            <numerusform>Für %n Geräte verwenden</numerusform>
        </translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>选择账号</source>
        <translation>Konto auswählen</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>账号</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>设备数</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>默认账号在“搜索设置”中修改</source>
        <translation>Das Standardkonto wird in den Sucheinstellungen geändert</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>每台设备只用一个账号登录：为它选定的账号，否则为默认账号。其他账号不会自动尝试。</source>
        <translation>An jedem Gerät wird ein Konto versucht: das dafür ausgewählte, sonst das Standardkonto. Andere Konten werden nie versucht.</translation>
    </message>
    <message>
        <source>默认账号</source>
        <translation>Standardkonto</translation>
    </message>
    <message>
        <source>删除账号</source>
        <translation>Konto entfernen</translation>
    </message>
    <message numerus="yes">
        <source>删除没有设备使用的 %n 个账号？</source>
        <translation>
            <numerusform>%n Konto entfernen, das kein Gerät hat?</numerusform>
            <numerusform>%n Konten entfernen, die kein Gerät hat?</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除未使用的账号</source>
        <translation>Unbenutzte Konten entfernen</translation>
    </message>
    <message>
        <source>没有为任何设备选定的账号</source>
        <translation>Konten, die für kein Gerät ausgewählt sind</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>设备已拒绝此账号，请选择或添加另一个账号</source>
        <translation>Die Geräte haben dieses Konto abgelehnt. Wählen oder fügen Sie ein anderes hinzu.</translation>
    </message>
    <message numerus="yes">
        <source>用于 %n 台设备并重试</source>
        <translation>
            <numerusform>Für %n Gerät verwenden und wiederholen</numerusform>
            <numerusform>Für %n Geräte verwenden und wiederholen</numerusform>
        </translation>
    </message>
    <message>
        <source>设备拒绝了账号 %1。请选择或添加另一个账号。</source>
        <translation>Die Geräte haben das Konto %1 abgelehnt. Wählen oder fügen Sie ein anderes hinzu.</translation>
    </message>
</context>
<context>
    <name>AddDeviceDialog</name>
    <message>
        <source>请输入P2P ID</source>
        <translation>Geben Sie die P2P-ID ein</translation>
    </message>
    <message>
        <source>请输入正确的IP</source>
        <translation>Geben Sie eine gültige IP-Adresse ein</translation>
    </message>
    <message>
        <source>请输入账号</source>
        <translation>Geben Sie das Konto ein</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Geben Sie das Passwort ein</translation>
    </message>
    <message>
        <source>请输入端口</source>
        <translation>Geben Sie die Portnummer ein</translation>
    </message>
    <message>
        <source>端口范围为1到65535</source>
        <translation>Der Port muss zwischen 1 und 65535 liegen</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Zu Favoriten hinzufügen</translation>
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
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>最多50个字符</source>
        <translation>Höchstens 50 Zeichen</translation>
    </message>
</context>
<context>
    <name>AddDevicesByFavoritesWindow</name>
    <message>
        <source>正在添加…</source>
        <translation>Wird hinzugefügt…</translation>
    </message>
    <message>
        <source>已添加</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>备注无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Die Notizen konnten nicht gespeichert werden. Prüfen Sie Ihre Schreibrechte im Programmordner.</translation>
    </message>
    <message>
        <source>收藏无法删除，请检查程序所在文件夹的写入权限</source>
        <translation>Der Favorit konnte nicht entfernt werden. Prüfen Sie Ihre Schreibrechte im Programmordner.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoriten</translation>
    </message>
    <message numerus="yes">
        <source>个收藏已选中</source>
        <extracomment>Follows a number, as in &quot;3 favourites selected&quot;.</extracomment>
        <translation>
            <numerusform>Favorit ausgewählt</numerusform>
            <numerusform>Favoriten ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>双击一行可添加该设备</source>
        <translation>Doppelklick auf eine Zeile fügt das Gerät hinzu</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Filter löschen</translation>
    </message>
    <message>
        <source>手动添加设备</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>换一个搜索文字，或清除它。</source>
        <translation>Ändern oder löschen Sie den Suchtext.</translation>
    </message>
    <message>
        <source>手动添加设备时勾选“添加到收藏夹”，设备就会保存在这里。</source>
        <translation>Wählen Sie beim Hinzufügen eines Geräts „Zu Favoriten hinzufügen“, um es hier zu speichern.</translation>
    </message>
    <message>
        <source>没有符合搜索文字的收藏</source>
        <translation>Kein Favorit entspricht der Suche</translation>
    </message>
    <message>
        <source>收藏夹是空的</source>
        <translation>Noch keine Favoriten</translation>
    </message>
    <message>
        <source>请确认是否要从收藏夹中删除 %1</source>
        <translation>%1 aus den Favoriten entfernen?</translation>
    </message>
    <message>
        <source>添加收藏设备</source>
        <translation>Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>删除收藏</source>
        <translation>Favorit entfernen</translation>
    </message>
    <message>
        <source>密码无法读取，双击该行输入密码</source>
        <translation>Das Passwort ist nicht lesbar: zum Eingeben doppelklicken</translation>
    </message>
</context>
<context>
    <name>AddingBatches</name>
    <message>
        <source>第%1行 %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>AddressPlan</name>
    <message>
        <source>没有MAC，不会修改</source>
        <translation>Keine MAC-Adresse: übersprungen</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Von einem anderen Gerät verwendet</translation>
    </message>
    <message>
        <source>与本批设备冲突</source>
        <translation>Doppelt vergeben</translation>
    </message>
    <message>
        <source>与网关地址相同</source>
        <translation>Identisch mit dem Gateway</translation>
    </message>
    <message>
        <source>超出起始IP的网段</source>
        <translation>Außerhalb des Subnetzes</translation>
    </message>
    <message>
        <source>网络地址或广播地址</source>
        <translation>Netz- oder Broadcast-Adresse</translation>
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
        <translation>Der Auftrag läuft</translation>
    </message>
    <message>
        <source>设备正在等待新密码</source>
        <translation>Geräte warten auf das neue Passwort</translation>
    </message>
    <message>
        <source>没有失败或未执行的设备</source>
        <translation>Kein Gerät fehlgeschlagen oder nicht ausgeführt</translation>
    </message>
    <message>
        <source>此操作不能在这里重试</source>
        <translation>Dieser Vorgang kann hier nicht wiederholt werden</translation>
    </message>
    <message>
        <source>只有最近一次批处理可以重试</source>
        <translation>Nur der letzte Auftrag kann wiederholt werden</translation>
    </message>
    <message>
        <source>这些设备的失败不会因重试而消失，请先更正原因（如密码）</source>
        <translation>Eine Wiederholung hilft bei diesen Geräten nicht. Beheben Sie zuerst die Ursache, zum Beispiel das Konto.</translation>
    </message>
</context>
<context>
    <name>BatchCGIWindow</name>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-Stapel</translation>
    </message>
    <message numerus="yes">
        <source>向选中的 %n 台设备发送同一条命令：</source>
        <translation>
            <numerusform>Diesen Befehl an das ausgewählte Gerät senden:</numerusform>
            <numerusform>Diesen Befehl an die %n ausgewählten Geräte senden:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPanel</name>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>重试失败</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>对失败和未执行的设备再试一次</source>
        <translation>Führt den Auftrag für fehlgeschlagene oder nicht ausgeführte Geräte erneut aus</translation>
    </message>
    <message>
        <source>恢复地址</source>
        <translation>Adressen zurücksetzen</translation>
    </message>
    <message>
        <source>将修改成功的设备恢复为修改前的IP地址</source>
        <translation>Setzt die geänderten Geräte auf ihre vorherigen IP-Adressen zurück</translation>
    </message>
    <message numerus="yes">
        <source>确定要将 %n 台设备恢复为修改前的IP地址吗？</source>
        <translation>
            <numerusform>%n Gerät auf die vorherige IP-Adresse zurücksetzen?</numerusform>
            <numerusform>%n Geräte auf die vorherigen IP-Adressen zurücksetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>批处理</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Gestartet</translation>
    </message>
    <message>
        <source>成功 / 全部</source>
        <translation>Erfolgreich / gesamt</translation>
    </message>
    <message>
        <source>只看失败</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>包括未执行的设备</source>
        <translation>Einschließlich nicht ausgeführter Geräte</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>还没有批处理</source>
        <translation>Noch keine Aufträge</translation>
    </message>
    <message>
        <source>没有失败的设备</source>
        <translation>Keine Geräte fehlgeschlagen</translation>
    </message>
    <message>
        <source>恢复IP地址</source>
        <translation>IP-Adressen zurücksetzen</translation>
    </message>
    <message>
        <source>保存全部</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>将列表中所有批处理的结果保存到一个文件</source>
        <translation>Speichert die Ergebnisse aller Aufträge der Liste in einer Datei</translation>
    </message>
    <message>
        <source>请等待当前批处理结束</source>
        <translation>Warten Sie, bis der aktuelle Auftrag beendet ist</translation>
    </message>
</context>
<context>
    <name>BatchPreview</name>
    <message>
        <source>未初始化，不会执行</source>
        <translation>Nicht initialisiert: übersprungen</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Update läuft: übersprungen</translation>
    </message>
    <message>
        <source>IP地址冲突，可能作用于另一台设备</source>
        <translation>Adresskonflikt: Ein anderes Gerät könnte geändert werden</translation>
    </message>
    <message>
        <source>与其他设备冲突</source>
        <translation>Von einem anderen Gerät verwendet</translation>
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
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个警告，请查看提示</source>
        <translation>
            <numerusform>%n Warnung: siehe Hinweise</numerusform>
            <numerusform>%n Warnungen: siehe Hinweise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备不会执行，请查看提示</source>
        <translation>
            <numerusform>%n Gerät wird übersprungen: siehe Hinweise</numerusform>
            <numerusform>%n Geräte werden übersprungen: siehe Hinweise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>对 %n 台设备执行</source>
        <translation>
            <numerusform>wird auf %n Gerät ausgeführt</numerusform>
            <numerusform>wird auf %n Geräten ausgeführt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>跳过 %n 台</source>
        <translation>
            <numerusform>%n übersprungen</numerusform>
            <numerusform>%n übersprungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchPreviewDialog</name>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>收起列表</source>
        <translation>Liste ausblenden</translation>
    </message>
    <message numerus="yes">
        <source>查看 %n 台设备</source>
        <translation>
            <numerusform>%n Gerät anzeigen</numerusform>
            <numerusform>%n Geräte anzeigen</numerusform>
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
        <translation>Name und Modell</translation>
    </message>
    <message>
        <source>原地址</source>
        <translation>Alte Adresse</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>新地址</source>
        <translation>Neue Adresse</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwaredatei</translation>
    </message>
    <message>
        <source>新名称</source>
        <translation>Neuer Name</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message numerus="yes">
        <source>%n 台设备成功</source>
        <translation>
            <numerusform>%n erfolgreich</numerusform>
            <numerusform>%n erfolgreich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n wartet auf das neue Passwort</numerusform>
            <numerusform>%n warten auf das neue Passwort</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备失败</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n nicht ausgeführt</numerusform>
            <numerusform>%n nicht ausgeführt</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备已跳过</source>
        <translation>
            <numerusform>%n übersprungen</numerusform>
            <numerusform>%n übersprungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待执行</source>
        <translation>
            <numerusform>%n wartet</numerusform>
            <numerusform>%n warten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchResult</name>
    <message>
        <source>旧密码正确</source>
        <translation>Altes Passwort richtig</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>超过时间限制</source>
        <translation>Zeitlimit überschritten</translation>
    </message>
    <message>
        <source>%1，已跳过</source>
        <translation>%1: übersprungen</translation>
    </message>
</context>
<context>
    <name>BatchResults</name>
    <message>
        <source>保存结果</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>结果已保存到 %1</source>
        <translation>Ergebnisse gespeichert in %1</translation>
    </message>
    <message>
        <source>结果无法保存，可以另选位置重试。
%1</source>
        <translation>Die Ergebnisse konnten nicht gespeichert werden. Wählen Sie einen anderen Ordner.
%1</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Aufträge</translation>
    </message>
</context>
<context>
    <name>BatchWarningQuestion</name>
    <message>
        <source>继续</source>
        <translation>Fortfahren</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个警告，仍要继续吗？</source>
        <translation>
            <numerusform>Es gibt %n Warnung. Fortfahren?</numerusform>
            <numerusform>Es gibt %n Warnungen. Fortfahren?</numerusform>
        </translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warnungen</translation>
    </message>
</context>
<context>
    <name>Batches</name>
    <message>
        <source>设备之间互换地址（如 %1 与 %2），无法直接修改。请先将其中一台改为其他地址。</source>
        <translation>Geräte können ihre Adressen (z. B. %1 und %2) nicht in einem Schritt tauschen. Geben Sie zuerst einem davon eine andere Adresse.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1“ läuft. Warten Sie, bis der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>系统资源不足，无法开始</source>
        <translation>Nicht genug Arbeitsspeicher oder Threads zum Starten. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>%1 通道 %2</source>
        <translation>%1 Kanal %2</translation>
    </message>
    <message>
        <source>地址 %1 仍由设备 %2 使用</source>
        <translation>%1 wird noch von Gerät %2 verwendet</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的地址已改变，或已不在列表中，没有重试（如 %1）</source>
        <translation>
            <numerusform>%n Gerät wurde nicht wiederholt: Seine Adresse hat sich geändert, oder es ist nicht mehr in der Liste (%1)</numerusform>
            <numerusform>%n Geräte wurden nicht wiederholt: Ihre Adressen haben sich geändert, oder sie sind nicht mehr in der Liste (z. B. %1)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BusyState</name>
    <message>
        <source>当前有设备正在升级中，请勿刷新设备！</source>
        <translation>Updates laufen. Suchen Sie, wenn sie beendet sind.</translation>
    </message>
    <message>
        <source>当前有设备正在升级中，请稍候再关闭</source>
        <translation>Updates laufen. Schließen Sie das Programm, wenn sie beendet sind.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>“, „</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再搜索设备</source>
        <extracomment>%1 is the name of running work, as on the button that starts it.</extracomment>
        <translation>„%1“ läuft. Suchen Sie, wenn der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再删除设备</source>
        <translation>„%1“ läuft. Entfernen Sie Geräte, wenn der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再修改设备</source>
        <translation>„%1“ läuft. Ändern Sie Geräte, wenn der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再关闭</source>
        <translation>„%1“ läuft. Schließen Sie das Programm, wenn der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>“%1”正在进行，请在结束后再重启程序</source>
        <translation>„%1“ läuft. Starten Sie das Programm neu, wenn der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>正在搜索，请先停止搜索（Esc）或稍候再关闭</source>
        <translation>Eine Suche läuft. Stoppen Sie sie mit Esc, oder warten Sie, bis sie beendet ist.</translation>
    </message>
</context>
<context>
    <name>CGIConfigManage</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Befehle einer anderen Tabelle laufen. Warten Sie, bis sie beendet sind.</translation>
    </message>
    <message>
        <source>批量操作CGI模板.xlsx</source>
        <translation>CGI-Stapelvorlage.xlsx</translation>
    </message>
    <message>
        <source>正在发送另一条CGI命令。</source>
        <translation>Ein anderer CGI-Befehl läuft. Warten Sie, bis er beendet ist.</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (gekürzt)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>默认账号的密码</source>
        <translation>Passwort des Standardkontos</translation>
    </message>
</context>
<context>
    <name>CameraOptions</name>
    <message>
        <source>室外</source>
        <translation>Außen</translation>
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
        <translation>Verstärkungspriorität</translation>
    </message>
    <message>
        <source>快门优先</source>
        <translation>Verschlusspriorität</translation>
    </message>
    <message>
        <source>自然光</source>
        <translation>Natürliches Licht</translation>
    </message>
    <message>
        <source>路灯</source>
        <translation>Straßenlampe</translation>
    </message>
    <message>
        <source>区域自定义</source>
        <translation>Eigener Bereich</translation>
    </message>
    <message>
        <source>彩色</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>黑白</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>红外</source>
        <translation>Infrarot</translation>
    </message>
    <message>
        <source>白光</source>
        <translation>Weißlicht</translation>
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
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>信任所选证书</source>
        <translation>Auswahl vertrauen</translation>
    </message>
    <message>
        <source>确认设备证书</source>
        <translation>Gerätezertifikate bestätigen</translation>
    </message>
    <message>
        <source>证书无法保存，未信任任何证书。
%1</source>
        <translation>Die Zertifikate konnten nicht gespeichert werden. Keinem wird vertraut.
%1</translation>
    </message>
    <message>
        <source>已选 %1 / %2 台设备</source>
        <translation>%1 von %2 Geräten ausgewählt</translation>
    </message>
    <message>
        <source>以下设备通过 HTTPS 出示了自己创建的证书，尚未发送密码。请核对指纹，确认后只信任该密钥。</source>
        <translation>Diese Geräte verwenden selbstsignierte Zertifikate für HTTPS. Es wurde kein Passwort gesendet. Vergleichen Sie die Fingerabdrücke. Nach der Bestätigung wird nur dieser Schlüssel akzeptiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的证书与已确认的不同，已停止发送密码。可能有人冒充设备：仅在知道原因（如设备已恢复出厂设置）时才勾选。</source>
        <translation>
            <numerusform>Das Zertifikat von %n Gerät hat sich geändert. Es wurde kein Passwort gesendet. Es könnte ein anderes Gerät sein: Wählen Sie es nur aus, wenn Sie den Grund kennen, zum Beispiel ein Zurücksetzen auf Werkseinstellungen.</numerusform>
            <numerusform>Die Zertifikate von %n Geräten haben sich geändert. Es wurden keine Passwörter gesendet. Es könnten andere Geräte sein: Wählen Sie sie nur aus, wenn Sie den Grund kennen, zum Beispiel ein Zurücksetzen auf Werkseinstellungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>IP:端口</source>
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>MAC 或 UUID</source>
        <translation>MAC oder UUID</translation>
    </message>
    <message>
        <source>证书名称</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>有效期</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>指纹</source>
        <translation>Fingerabdruck</translation>
    </message>
    <message>
        <source>指纹（SHA-256）</source>
        <translation>Fingerabdruck (SHA-256)</translation>
    </message>
    <message>
        <source>已确认的指纹</source>
        <translation>Bestätigter Fingerabdruck</translation>
    </message>
    <message>
        <source>证书已改变</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>新证书</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>CertificateStore</name>
    <message>
        <source>证书文件 %1 无法读取：%2</source>
        <translation>Die Zertifikatsdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>证书文件已损坏，其中的证书均不再信任，请重新确认：%1</source>
        <translation>Die Zertifikatsdatei ist beschädigt. Keinem Zertifikat wird vertraut. Bestätigen Sie sie erneut: %1</translation>
    </message>
</context>
<context>
    <name>CgiBatches</name>
    <message>
        <source>没有通往设备网页端口的隧道。</source>
        <translation>Kein Tunnel zum Webport des Geräts.</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Nicht gesendet</translation>
    </message>
</context>
<context>
    <name>CgiCommandField</name>
    <message>
        <source>CGI命令</source>
        <translation>CGI-Befehl</translation>
    </message>
    <message>
        <source>从常用命令中移除</source>
        <translation>Aus den gespeicherten Befehlen entfernen</translation>
    </message>
    <message>
        <source>保存为常用命令</source>
        <translation>Diesen Befehl speichern</translation>
    </message>
</context>
<context>
    <name>CgiProcedure</name>
    <message>
        <source>应答头过大。</source>
        <translation>Der Header der Antwort ist zu groß.</translation>
    </message>
    <message>
        <source>账号或密码错误。</source>
        <translation>Benutzername oder Passwort falsch. Prüfen Sie das Konto in den Sucheinstellungen.</translation>
    </message>
    <message>
        <source>设备被锁定。</source>
        <translation>Das Konto ist gesperrt. Warten Sie, bis das Gerät es freigibt.</translation>
    </message>
    <message>
        <source>网络连接失败。</source>
        <translation>Keine Antwort vom Gerät.</translation>
    </message>
    <message>
        <source>设备未初始化。</source>
        <translation>Das Gerät ist nicht initialisiert.</translation>
    </message>
    <message>
        <source>未知错误。</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
    <message>
        <source>服务器连接失败</source>
        <translation>Das Gerät hat die Anforderung abgelehnt</translation>
    </message>
    <message>
        <source>应答内容过大。</source>
        <translation>Die Antwort ist zu groß.</translation>
    </message>
    <message>
        <source>文件写入失败：</source>
        <translation>Die Datei konnte nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>操作已停止。</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>已收到的部分录像保存在：%1</source>
        <translation>Der empfangene Teil der Aufzeichnung liegt in %1</translation>
    </message>
    <message>
        <source>设备正在升级。</source>
        <translation>Das Gerät wird gerade aktualisiert.</translation>
    </message>
    <message>
        <source>设备证书未确认。</source>
        <translation>Dem Zertifikat des Geräts wird nicht vertraut.</translation>
    </message>
    <message>
        <source>设备证书已改变。</source>
        <translation>Das Zertifikat des Geräts hat sich geändert.</translation>
    </message>
    <message>
        <source>找不到该主机</source>
        <translation>Der Host wurde nicht gefunden</translation>
    </message>
    <message>
        <source>设备拒绝连接，请检查HTTP端口</source>
        <translation>Das Gerät hat die Verbindung abgelehnt. Prüfen Sie den HTTP-Port</translation>
    </message>
    <message>
        <source>无法连接设备</source>
        <translation>Das Gerät ist nicht erreichbar</translation>
    </message>
    <message>
        <source>设备没有及时应答</source>
        <translation>Das Gerät hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>无法建立加密连接，请检查HTTPS端口</source>
        <translation>Keine verschlüsselte Verbindung. Prüfen Sie den HTTPS-Port</translation>
    </message>
    <message>
        <source>设备的应答不是有效的HTTP</source>
        <translation>Die Antwort des Geräts ist kein gültiges HTTP</translation>
    </message>
    <message>
        <source>应答结束前连接已断开</source>
        <translation>Die Verbindung wurde vor dem Ende der Antwort geschlossen</translation>
    </message>
    <message>
        <source>请求失败</source>
        <translation>Die Anforderung ist fehlgeschlagen</translation>
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
        <translation>Ein Benutzername darf keinen Doppelpunkt und keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>密码不能包含空字符。</source>
        <translation>Ein Passwort darf keine Nullzeichen enthalten.</translation>
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
        <translation>Die Datei konnte nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>已保存到文件：%1</source>
        <translation>Gespeichert in %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Speichert den Text in einer Datei</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>CgiSender</name>
    <message>
        <source>发送CGI命令</source>
        <translation>CGI-Befehl wird gesendet</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-Stapel</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Geben Sie einen Befehl ein.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Der Befehl muss mit /cgi-bin/ beginnen</translation>
    </message>
    <message>
        <source>已停止，完成 %1 / %2</source>
        <translation>Gestoppt: %1 von %2 erledigt</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成</source>
        <translation>
            <numerusform>An %n Gerät gesendet: angenommen</numerusform>
            <numerusform>An %n Geräte gesendet: alle angenommen</numerusform>
        </translation>
    </message>
    <message>
        <source>命令已执行，没有可显示的结果。</source>
        <translation>Das Gerät hat den Befehl angenommen und kein Ergebnis geliefert.</translation>
    </message>
    <message numerus="yes">
        <source>批量配置CGI命令已完成：成功 %1，失败 %2</source>
        <translation>
            <numerusform>An %n gesendet: %1 angenommen, %2 fehlgeschlagen</numerusform>
            <numerusform>An %n gesendet: %1 angenommen, %2 fehlgeschlagen</numerusform>
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
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>Url路径</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>
右键点击可复制结果</source>
        <translation>
Rechtsklick, um das Ergebnis zu kopieren</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>向这台设备发送CGI命令</source>
        <translation>Sendet den Befehl an dieses Gerät</translation>
    </message>
    <message>
        <source>查看全部内容</source>
        <translation>Ganzes Ergebnis anzeigen</translation>
    </message>
    <message>
        <source>设备正在升级，不能发送CGI命令</source>
        <translation>Das Gerät wird gerade aktualisiert. Senden Sie Befehle, wenn das Update beendet ist.</translation>
    </message>
    <message>
        <source>应答</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notiz</translation>
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
        <translation>Tabelle ausführen</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>即将执行文件中的CGI命令，执行结果将记录在文件中</source>
        <translation>Die CGI-Befehle der Tabelle werden gesendet. Die Ergebnisse werden in die Tabelle geschrieben.</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Die Vorlage konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Senden</translation>
    </message>
</context>
<context>
    <name>CgiWorkbooks</name>
    <message>
        <source>正在执行另一个文件中的CGI命令。</source>
        <translation>Befehle einer anderen Tabelle laufen. Warten Sie, bis sie beendet sind.</translation>
    </message>
    <message>
        <source>读取表格文件</source>
        <translation>Tabelle wird gelesen</translation>
    </message>
    <message>
        <source>第%1行</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>文件已被修改，请重新打开。</source>
        <translation>Die Datei hat sich geändert. Öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>保存表格文件</source>
        <translation>Tabelle wird gespeichert</translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>ChannelNameCell</name>
    <message>
        <source>已修改，尚未保存</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>通道 %1 的名称</source>
        <translation>Name von Kanal %1</translation>
    </message>
</context>
<context>
    <name>ChannelNameTrouble</name>
    <message>
        <source>设备没有告知名称</source>
        <translation>Name nicht gemeldet</translation>
    </message>
    <message>
        <source>名称不能为空</source>
        <translation>Geben Sie einen Namen ein</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Länger als %1 Bytes</translation>
    </message>
    <message>
        <source>设备没有接受</source>
        <translation>Vom Gerät abgelehnt</translation>
    </message>
    <message>
        <source>设备没有应答</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>设备改变了名称</source>
        <translation>Vom Gerät geändert</translation>
    </message>
    <message>
        <source>截短</source>
        <translation>Kürzen</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>保留设备能存下的部分</source>
        <translation>Kürzt den Namen auf die Länge, die das Gerät speichern kann</translation>
    </message>
    <message>
        <source>恢复设备现有的名称</source>
        <translation>Stellt den Namen im Gerät wieder her</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Das Gerät wird gerade aktualisiert</translation>
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
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>已连接</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n Kanalname nicht gespeichert</numerusform>
            <numerusform>%n Kanalnamen nicht gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n ungespeicherte Änderung</numerusform>
            <numerusform>%n ungespeicherte Änderungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>设备没有告知 %n 个通道的名称</source>
        <translation>
            <numerusform>Das Gerät meldet den Namen von %n Kanal nicht</numerusform>
            <numerusform>Das Gerät meldet die Namen von %n Kanälen nicht</numerusform>
        </translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Das Gerät wird gerade aktualisiert. Speichern Sie, wenn das Update beendet ist.</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nach Muster benennen</translation>
    </message>
    <message>
        <source>用一条规则为多个通道或多台摄像机命名</source>
        <translation>Mehrere Kanäle oder Kameras mit einem Muster benennen</translation>
    </message>
</context>
<context>
    <name>ChannelNamesWork</name>
    <message>
        <source>正在读取通道名称…</source>
        <translation>Kanalnamen werden gelesen…</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称已保存</source>
        <translation>
            <numerusform>%n Kanalname gespeichert</numerusform>
            <numerusform>%n Kanalnamen gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道名称未保存</source>
        <translation>
            <numerusform>%n Kanalname nicht gespeichert</numerusform>
            <numerusform>%n Kanalnamen nicht gespeichert</numerusform>
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
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>CGI配置命令</source>
        <translation>CGI-Befehl</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Das Dateiformat ist falsch</translation>
    </message>
    <message>
        <source>请填写CGI命令的具体内容。</source>
        <translation>Geben Sie einen Befehl ein.</translation>
    </message>
    <message>
        <source>URL格式错误。</source>
        <translation>Der Befehl muss mit / beginnen</translation>
    </message>
    <message>
        <source>…（内容过长，已截断）</source>
        <translation>… (gekürzt)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>ConfigCopy</name>
    <message numerus="yes">
        <source>%n 台设备已复制</source>
        <translation>
            <numerusform>Auf %n Gerät kopiert</numerusform>
            <numerusform>Auf %n Geräte kopiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备只复制了一部分</source>
        <translation>
            <numerusform>%n Gerät hat nur einen Teil übernommen</numerusform>
            <numerusform>%n Geräte haben nur einen Teil übernommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备复制失败</source>
        <translation>
            <numerusform>%n Gerät fehlgeschlagen</numerusform>
            <numerusform>%n Geräte fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未执行</source>
        <translation>
            <numerusform>%n Gerät nicht ausgeführt</numerusform>
            <numerusform>%n Geräte nicht ausgeführt</numerusform>
        </translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kodierung kopieren</translation>
    </message>
</context>
<context>
    <name>ConfigSession</name>
    <message>
        <source>正在登录…</source>
        <translation>Anmeldung läuft…</translation>
    </message>
    <message>
        <source>获取设备配置失败</source>
        <translation>Die Konfiguration des Geräts konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Die Fähigkeiten des Geräts konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>设备已重新登录，尚未保存的修改已丢失</source>
        <translation>Erneut angemeldet. Nicht gespeicherte Änderungen sind verloren.</translation>
    </message>
</context>
<context>
    <name>CrashReportNotice</name>
    <message>
        <source>显示报告</source>
        <translation>Bericht anzeigen</translation>
    </message>
    <message>
        <source>程序上次异常退出，已写入报告</source>
        <translation>Das Programm wurde unerwartet beendet. Ein Bericht wurde geschrieben</translation>
    </message>
    <message>
        <source>异常退出报告</source>
        <translation>Absturzbericht</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>已导出到 %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>无法写入文件 %1</source>
        <translation>Die Datei %1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>这台设备没有可打开的网页</source>
        <translation>Das Gerät hat keine Webseite</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
    <message>
        <source>%1 已在收藏夹中</source>
        <translation>%1 ist bereits in den Favoriten</translation>
    </message>
    <message>
        <source>%1 已添加到收藏夹</source>
        <translation>%1 zu den Favoriten hinzugefügt</translation>
    </message>
    <message>
        <source>收藏无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Der Favorit kann nicht gespeichert werden. Prüfen Sie, ob der Programmordner beschreibbar ist.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Das Gerät meldet weder MAC-Adresse noch UUID und kann keine Notiz haben</translation>
    </message>
</context>
<context>
    <name>DeviceAdding</name>
    <message>
        <source>没有取得通往该设备的本地端口，请检查P2P ID和网络</source>
        <translation>Das Gerät ist über P2P nicht erreichbar. Prüfen Sie die P2P-ID und die Netzwerkverbindung.</translation>
    </message>
</context>
<context>
    <name>DeviceAddressCell</name>
    <message>
        <source>IP地址冲突</source>
        <translation>IP-Adresskonflikt</translation>
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
        <translation>wie dieser Computer</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>Of a device&apos;s clock, against this computer&apos;s. %1 is a span of time.</extracomment>
        <translation>geht %1 vor</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>geht %1 nach</translation>
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
        <translation>Identität</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
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
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Nicht initialisiert</translation>
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
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>IPv6地址</source>
        <translation>IPv6-Adresse</translation>
    </message>
    <message>
        <source>IPv4地址</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <source>设备地址</source>
        <translation>Geräteadresse</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnetzmaske</translation>
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
        <translation>Nein</translation>
    </message>
    <message>
        <source>主机名</source>
        <translation>Hostname</translation>
    </message>
    <message>
        <source>本机地址</source>
        <translation>Gefunden über</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>本地端口</source>
        <translation>Lokaler Port</translation>
    </message>
    <message>
        <source>服务端口</source>
        <translation>Dienstport</translation>
    </message>
    <message>
        <source>设备服务端口</source>
        <translation>Dienstport des Geräts</translation>
    </message>
    <message>
        <source>HTTP端口</source>
        <translation>HTTP-Port</translation>
    </message>
    <message>
        <source>HTTPS端口</source>
        <translation>HTTPS-Port</translation>
    </message>
    <message>
        <source>RTSP端口</source>
        <translation>RTSP-Port</translation>
    </message>
    <message>
        <source>最大连接数</source>
        <translation>Maximale Verbindungen</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>已连接通道</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>报警输入</source>
        <translation>Alarmeingänge</translation>
    </message>
    <message>
        <source>存储</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>硬盘数</source>
        <translation>Festplatten</translation>
    </message>
    <message>
        <source>添加与账号</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>添加方式</source>
        <translation>Hinzugefügt durch</translation>
    </message>
    <message>
        <source>手动添加（P2P）</source>
        <translation>Manuell (P2P)</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>手动添加（%1）</source>
        <translation>Manuell (%1)</translation>
    </message>
    <message>
        <source>P2P ID</source>
        <translation>P2P-ID</translation>
    </message>
    <message>
        <source>P2P端口</source>
        <translation>P2P-Port</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Benutzername</translation>
    </message>
</context>
<context>
    <name>DeviceDetailDialog</name>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>设备详情</source>
        <translation>Gerätedetails</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Anmeldung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>登录读取更多</source>
        <translation>Anmelden für mehr Daten</translation>
    </message>
    <message>
        <source>登录设备，读取端口、通道和硬盘等信息</source>
        <translation>Meldet sich am Gerät an, um Ports, Kanäle und Festplatten zu lesen</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>保存为文本文件</source>
        <translation>Speichert den Text in einer Datei</translation>
    </message>
    <message>
        <source>搜索名称或内容</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>没有包含这些文字的信息</source>
        <translation>Keine Einträge entsprechen der Suche</translation>
    </message>
</context>
<context>
    <name>DeviceDetailLine</name>
    <message>
        <source>复制这一行</source>
        <translation>Diese Zeile kopieren</translation>
    </message>
</context>
<context>
    <name>DeviceLibraries</name>
    <message>
        <source>无法读取设备库配置文件 %1</source>
        <translation>Die Gerätebibliotheksdatei %1 konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>设备库配置文件 %1 中有无法识别的行：%2</source>
        <translation>Die Gerätebibliotheksdatei %1 enthält eine unbekannte Zeile: %2</translation>
    </message>
    <message>
        <source>设备库配置文件中缺少 [%1] 或其 file</source>
        <translation>[%1] oder der Eintrag „file“ fehlt in der Gerätebibliotheksdatei</translation>
    </message>
    <message>
        <source>设备库配置文件没有列出 %1 的函数 %2</source>
        <translation>Funktion %2 von %1 fehlt in der Gerätebibliotheksdatei</translation>
    </message>
    <message>
        <source>设备库配置文件为 %1 列出了未知的函数 %2</source>
        <translation>Unbekannte Funktion %2 von %1 in der Gerätebibliotheksdatei</translation>
    </message>
    <message>
        <source>无法加载设备库 %1：%2</source>
        <translation>Die Gerätebibliothek %1 konnte nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>设备库 %1 中没有入口 %2</source>
        <translation>Die Gerätebibliothek %1 exportiert %2 nicht</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>第 %1 行过长</source>
        <translation>Zeile %1 ist zu lang</translation>
    </message>
    <message>
        <source>第 %1 行不是UTF-8编码</source>
        <translation>Zeile %1 ist nicht in UTF-8 kodiert</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>字段比表头多</source>
        <translation>Mehr Felder als Spalten</translation>
    </message>
    <message>
        <source>字段过长</source>
        <translation>Ein Feld ist zu lang</translation>
    </message>
    <message>
        <source>字段内有控制字符</source>
        <translation>Ein Feld enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>不支持的添加模式</source>
        <translation>Unbekannte Art des Hinzufügens</translation>
    </message>
    <message>
        <source>设备地址无效</source>
        <translation>Ungültige Geräteadresse</translation>
    </message>
    <message>
        <source>设备端口无效</source>
        <translation>Ungültiger Geräteport</translation>
    </message>
    <message>
        <source>缺少用户名或密码</source>
        <translation>Benutzername oder Passwort fehlt</translation>
    </message>
    <message>
        <source>第 %1 行与第 %2 行的MAC地址相同：%3</source>
        <translation>Die Zeilen %1 und %2 haben dieselbe MAC-Adresse: %3</translation>
    </message>
    <message>
        <source>文件内的设备超过 %1 台</source>
        <translation>Die Datei enthält mehr als %1 Geräte</translation>
    </message>
    <message>
        <source>文件内没有设备列表的表头</source>
        <translation>Die Datei hat keine Kopfzeile einer Geräteliste</translation>
    </message>
    <message>
        <source>无法读取工作簿</source>
        <translation>Die Tabelle konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>根元素不是 deviceList：%1</source>
        <translation>Das Stammelement ist nicht deviceList: %1</translation>
    </message>
    <message>
        <source>第 %1 行不是有效的XML</source>
        <translation>Zeile %1 ist kein gültiges XML</translation>
    </message>
    <message>
        <source>不支持的编码：%1</source>
        <translation>Die Zeichenkodierung %1 wird nicht unterstützt</translation>
    </message>
    <message>
        <source>表格超过 %1 行</source>
        <translation>Das Blatt hat mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>字符 %1 在此格式中无法读回</source>
        <translation>Das Zeichen %1 kann aus diesem Format nicht zurückgelesen werden</translation>
    </message>
    <message>
        <source>加密列表的内容无效</source>
        <translation>Der Inhalt der verschlüsselten Liste ist ungültig</translation>
    </message>
    <message>
        <source>文件不是加密的设备列表，或者不完整</source>
        <translation>Die Datei ist keine verschlüsselte Geräteliste oder sie ist unvollständig</translation>
    </message>
    <message>
        <source>加密列表的版本不受支持</source>
        <translation>Diese Version verschlüsselter Listen wird nicht unterstützt</translation>
    </message>
    <message>
        <source>加密列表的参数无效</source>
        <translation>Die Parameter der verschlüsselten Liste sind ungültig</translation>
    </message>
    <message>
        <source>列表已加密，需要密码短语</source>
        <translation>Die Liste ist verschlüsselt: Eine Passphrase ist erforderlich</translation>
    </message>
    <message>
        <source>密码短语错误，或者文件已损坏</source>
        <translation>Falsche Passphrase, oder die Datei ist beschädigt</translation>
    </message>
</context>
<context>
    <name>DeviceMenu</name>
    <message>
        <source>只勾选同类型设备（%1）</source>
        <translation>Nur denselben Typ auswählen (%1)</translation>
    </message>
    <message>
        <source>只勾选同型号设备（%1）</source>
        <translation>Nur dasselbe Modell auswählen (%1)</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>打开设备网页</source>
        <translation>Webseite öffnen</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Live-Ansicht öffnen</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>复制MAC</source>
        <translation>MAC kopieren</translation>
    </message>
    <message>
        <source>复制整行</source>
        <translation>Zeile kopieren</translation>
    </message>
    <message>
        <source>添加到收藏夹</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>备注…</source>
        <translation>Notiz…</translation>
    </message>
    <message numerus="yes">
        <source>选择勾选的 %n 台设备的账号…</source>
        <translation>
            <numerusform>Konto für %n ausgewähltes Gerät auswählen…</numerusform>
            <numerusform>Konto für %n ausgewählte Geräte auswählen…</numerusform>
        </translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Konto auswählen…</translation>
    </message>
</context>
<context>
    <name>DeviceNotes</name>
    <message>
        <source>备注文件 %1 无法读取：%2</source>
        <translation>Die Datei mit den Notizen, %1, kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。</source>
        <translation>Die Datei mit den Notizen, %1, ist beschädigt. Einige Notizen sind möglicherweise verloren. Beim Speichern der nächsten Notiz bleibt sie unter einem anderen Namen erhalten.</translation>
    </message>
    <message>
        <source>设备没有报告MAC或UUID，不能添加备注</source>
        <translation>Das Gerät meldet weder MAC-Adresse noch UUID und kann keine Notiz haben</translation>
    </message>
    <message>
        <source>备注最多 %1 个字符</source>
        <translation>Eine Notiz kann höchstens %1 Zeichen haben</translation>
    </message>
    <message>
        <source>最多可以保存 %1 条备注</source>
        <translation>Es können höchstens %1 Notizen gespeichert werden</translation>
    </message>
    <message>
        <source>备注无法保存：%1</source>
        <translation>Die Notiz kann nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
</context>
<context>
    <name>DeviceSearch</name>
    <message>
        <source>本地网段</source>
        <translation>lokales Netz</translation>
    </message>
    <message>
        <source>本地网段（%1）</source>
        <translation>lokales Netz (%1)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Geräte suchen</translation>
    </message>
</context>
<context>
    <name>DeviceState</name>
    <message>
        <source>未选择设备</source>
        <translation>Kein Gerät ausgewählt</translation>
    </message>
    <message>
        <source>已登录</source>
        <translation>Angemeldet</translation>
    </message>
    <message>
        <source>登录失败：%1</source>
        <translation>Anmeldung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>未登录</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Verbindung getrennt</translation>
    </message>
    <message>
        <source>正在升级</source>
        <translation>Update läuft</translation>
    </message>
</context>
<context>
    <name>DeviceStateCell</name>
    <message>
        <source>未找到</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>待确认</source>
        <translation>Unbestätigt</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Nicht initialisiert</translation>
    </message>
    <message>
        <source>最近一次搜索没有找到该设备</source>
        <translation>Bei der letzten Suche nicht gefunden</translation>
    </message>
    <message>
        <source>上次的列表中的设备，尚未找到</source>
        <translation>Gerät der letzten Liste, noch nicht gefunden</translation>
    </message>
    <message>
        <source>最后一次找到：%1</source>
        <translation>Zuletzt gefunden: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>一次只能拖入一个文件</source>
        <translation>Es kann nur eine Datei auf einmal in das Fenster gezogen werden</translation>
    </message>
    <message>
        <source>拖入的不是本机上的文件</source>
        <translation>Dies ist keine Datei auf diesem Computer</translation>
    </message>
    <message>
        <source>不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）</source>
        <translation>Nicht unterstützte Datei: %1. Ziehen Sie eine Geräteliste (.xlsx, .csv, .xml, .devlist) oder eine Standortdatei (.site) in das Fenster</translation>
    </message>
</context>
<context>
    <name>EncodeBitRate</name>
    <message>
        <source>自定义码流值</source>
        <translation>Eigene Bitrate</translation>
    </message>
</context>
<context>
    <name>EncodeConfig</name>
    <message>
        <source>主码流编码视频格式属性</source>
        <translation>Hauptstream: Videoformat</translation>
    </message>
    <message>
        <source>主码流编码视频格式profile</source>
        <translation>Hauptstream: Videoprofil</translation>
    </message>
    <message>
        <source>主码流编码音频压缩格式</source>
        <translation>Hauptstream: Audiokomprimierung</translation>
    </message>
    <message>
        <source>主码流编码音频格式</source>
        <translation>Hauptstream: Audioformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式属性</source>
        <translation>Substream: Videoformat</translation>
    </message>
    <message>
        <source>辅码流编码视频格式profile</source>
        <translation>Substream: Videoprofil</translation>
    </message>
    <message>
        <source>辅码流编码音频压缩格式</source>
        <translation>Substream: Audiokomprimierung</translation>
    </message>
    <message>
        <source>辅码流编码音频格式配置</source>
        <translation>Substream: Audioformat</translation>
    </message>
    <message>
        <source>%1（没有读到，未写入）</source>
        <translation>%1 (nicht gelesen, nicht geschrieben)</translation>
    </message>
</context>
<context>
    <name>EncodeCopies</name>
    <message>
        <source>未复制：%1</source>
        <translation>Nicht kopiert: %1</translation>
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
        <translation>Komprimierung des Substreams</translation>
    </message>
    <message>
        <source>主码流编码模式</source>
        <translation>Komprimierung des Hauptstreams</translation>
    </message>
    <message>
        <source>辅码流分辨率</source>
        <translation>Auflösung des Substreams</translation>
    </message>
    <message>
        <source>主码流分辨率</source>
        <translation>Auflösung des Hauptstreams</translation>
    </message>
    <message>
        <source>辅码流码率</source>
        <translation>Bitrate des Substreams</translation>
    </message>
    <message>
        <source>主码流码率</source>
        <translation>Bitrate des Hauptstreams</translation>
    </message>
    <message>
        <source>辅码流码率控制</source>
        <translation>Bitratensteuerung des Substreams</translation>
    </message>
    <message>
        <source>主码流码率控制</source>
        <translation>Bitratensteuerung des Hauptstreams</translation>
    </message>
    <message>
        <source>辅码流帧率</source>
        <translation>Bildrate des Substreams</translation>
    </message>
    <message>
        <source>主码流帧率</source>
        <translation>Bildrate des Hauptstreams</translation>
    </message>
    <message>
        <source>辅码流音频编码</source>
        <translation>Audio des Substreams</translation>
    </message>
    <message>
        <source>主码流音频编码</source>
        <translation>Audio des Hauptstreams</translation>
    </message>
</context>
<context>
    <name>EncodeForm</name>
    <message>
        <source>设备没有应答</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Das Gerät unterstützt dies nicht</translation>
    </message>
    <message>
        <source>设备正忙</source>
        <translation>Das Gerät ist ausgelastet</translation>
    </message>
    <message>
        <source>设备拒绝了此操作（错误 %1）</source>
        <translation>Das Gerät hat die Anforderung abgelehnt (Fehler %1)</translation>
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
        <translation>Die Konfiguration des Geräts ist ungültig. Einige Werte können fehlen.</translation>
    </message>
    <message>
        <source>设备没有告知它的编码能力，部分选项为空</source>
        <translation>Das Gerät meldet seine Kodierungsfähigkeiten nicht. Einige Werte können fehlen.</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Hauptstream</translation>
    </message>
    <message>
        <source>辅码流</source>
        <translation>Substream</translation>
    </message>
    <message>
        <source>没有读到通道 %1 的编码配置</source>
        <translation>Die Kodierung von Kanal %1 konnte nicht gelesen werden</translation>
    </message>
    <message numerus="yes">
        <source>有未保存的修改：%n 项</source>
        <translation>
            <numerusform>%n ungespeicherte Änderung</numerusform>
            <numerusform>%n ungespeicherte Änderungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>复制到 %n 台设备</source>
        <translation>
            <numerusform>Auf %n Gerät kopieren</numerusform>
            <numerusform>Auf %n Geräte kopieren</numerusform>
        </translation>
    </message>
    <message>
        <source>复制到选中的设备</source>
        <translation>Auf ausgewählte Geräte kopieren</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>与设备的连接已断开</source>
        <translation>Verbindung getrennt</translation>
    </message>
    <message>
        <source>没有保存：%1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>设备正在升级，不能保存修改</source>
        <translation>Das Gerät wird gerade aktualisiert. Speichern Sie, wenn das Update beendet ist.</translation>
    </message>
    <message>
        <source>与设备的连接已断开，请刷新重试。</source>
        <translation>Verbindung getrennt. Zum erneuten Versuch neu laden.</translation>
    </message>
    <message>
        <source>%1，或者这个通道没有连接。请选择其他通道，或刷新重试。</source>
        <translation>%1, oder der Kanal ist nicht verbunden. Wählen Sie einen anderen Kanal, oder laden Sie neu.</translation>
    </message>
    <message>
        <source>没有读到：%1，保存时不写入</source>
        <translation>Nicht gelesen: %1. Beim Speichern bleibt dies unverändert.</translation>
    </message>
</context>
<context>
    <name>EncodeStream</name>
    <message>
        <source>码流类型</source>
        <translation>Streamtyp</translation>
    </message>
    <message>
        <source>启用辅码流</source>
        <translation>Substream aktivieren</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>编码模式</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>码流控制</source>
        <translation>Bitratensteuerung</translation>
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
        <translation>Bitrate (kbit/s)</translation>
    </message>
    <message>
        <source>帧率(FPS)</source>
        <translation>Bildrate (fps)</translation>
    </message>
    <message>
        <source>画质</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>音频编码</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>启用音频</source>
        <translation>Audio aktivieren</translation>
    </message>
    <message>
        <source>采样率(Hz)</source>
        <translation>Abtastrate (Hz)</translation>
    </message>
</context>
<context>
    <name>EncodeValues</name>
    <message>
        <source>自定义</source>
        <translation>Eigene</translation>
    </message>
</context>
<context>
    <name>EncodeWork</name>
    <message>
        <source>正在读取编码配置…</source>
        <translation>Kodierung wird gelesen…</translation>
    </message>
    <message>
        <source>正在写入辅码流分辨率…</source>
        <translation>Auflösung des Substreams wird geschrieben…</translation>
    </message>
    <message>
        <source>设备的编码模式由主码流决定：主码流已改为 %1</source>
        <translation>Beide Streams verwenden eine Komprimierung: Der Hauptstream ist jetzt %1</translation>
    </message>
    <message>
        <source>正在保存编码配置…</source>
        <translation>Kodierung wird gespeichert…</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>读取配置失败：%1</source>
        <translation>Die Einstellungen konnten nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>请选择导出的文件格式</source>
        <translation>Dateiformat auswählen</translation>
    </message>
    <message>
        <source>文件中的密码是明文。已保存账号的密码不导出。</source>
        <translation>Passwörter stehen in der Datei im Klartext. Passwörter gespeicherter Konten werden nicht exportiert.</translation>
    </message>
    <message>
        <source>文件不含密码。导入前须在文件中填写密码。</source>
        <translation>Die Datei enthält keine Passwörter. Sie müssen vor dem Import eingetragen werden.</translation>
    </message>
    <message>
        <source>整个列表用密码短语加密，只有本程序能读取。密码短语丢失后无法恢复。已保存账号的密码不导出。</source>
        <translation>Die gesamte Liste wird mit der Passphrase verschlüsselt, und nur dieses Programm kann sie lesen. Ohne Passphrase kann sie nicht wiederhergestellt werden. Passwörter gespeicherter Konten werden nicht exportiert.</translation>
    </message>
    <message>
        <source>完整列表</source>
        <translation>Vollständige Liste</translation>
    </message>
    <message>
        <source>不含密码</source>
        <translation>Ohne Passwörter</translation>
    </message>
    <message>
        <source>加密（.devlist）</source>
        <translation>Verschlüsselt (.devlist)</translation>
    </message>
    <message>
        <source>密码短语至少 %1 个字符</source>
        <translation>Die Passphrase muss mindestens %1 Zeichen haben</translation>
    </message>
    <message>
        <source>密码短语</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>两次输入不一致</source>
        <translation>Die beiden Passphrasen stimmen nicht überein</translation>
    </message>
    <message>
        <source>再次输入密码短语</source>
        <translation>Passphrase wiederholen</translation>
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
        <translation>Bei der letzten Suche nicht gefunden</translation>
    </message>
</context>
<context>
    <name>FavouriteNoteCell</name>
    <message>
        <source>编辑备注</source>
        <translation>Notizen bearbeiten</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notizen</translation>
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
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>添加结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>从收藏夹中删除</source>
        <translation>Entfernt dieses Gerät aus den Favoriten</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>请先关闭对话框，再拖入文件</source>
        <translation>Schließen Sie den Dialog, bevor Sie eine Datei in das Fenster ziehen</translation>
    </message>
    <message>
        <source>松开鼠标，导入设备列表或打开现场</source>
        <translation>Loslassen, um eine Geräteliste zu importieren oder einen Standort zu öffnen</translation>
    </message>
</context>
<context>
    <name>FirstPasswordDialog</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Verwenden Sie mindestens zwei der Arten Ziffern, Buchstaben und Symbole und keine unzulässigen Zeichen.</translation>
    </message>
    <message>
        <source>请输入用户名</source>
        <translation>Geben Sie den Benutzernamen ein</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Geben Sie das Passwort ein</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bestätigen Sie das Passwort</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Das Passwort muss 8 bis 32 Zeichen haben</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisierung</translation>
    </message>
    <message numerus="yes">
        <source>%n台未初始化设备</source>
        <translation>
            <numerusform>%n Gerät zu initialisieren</numerusform>
            <numerusform>%n Geräte zu initialisieren</numerusform>
        </translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除</source>
        <translation>8 bis 32 Zeichen, mindestens zwei der Arten Ziffern, Buchstaben und Symbole (alle sichtbaren Zeichen außer </translation>
    </message>
    <message>
        <source>这五个字符以外的任意可见字符)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>设定新密码后,请在“搜索设置”中设置新密码</source>
        <translation>Geben Sie das neue Passwort danach auch in den Sucheinstellungen ein.</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Bei Erfolg</translation>
    </message>
</context>
<context>
    <name>FoundDevices</name>
    <message>
        <source>没有该设备的搜索应答，或应答中既没有MAC地址也没有UUID</source>
        <translation>Das Gerät wurde nicht durch eine Suche gefunden oder meldet weder MAC-Adresse noch UUID</translation>
    </message>
    <message>
        <source>已停止等待设备，地址可能已修改</source>
        <translation>Warten auf das Gerät gestoppt: Seine Adresse hat sich möglicherweise geändert</translation>
    </message>
    <message>
        <source>超过时间限制，地址可能已修改</source>
        <translation>Zeitlimit überschritten: Die Adresse hat sich möglicherweise geändert</translation>
    </message>
</context>
<context>
    <name>GalleryBar</name>
    <message>
        <source>连续多台设备密码错误，继续可能锁定账户。是否继续？</source>
        <translation>Mehrere Geräte nacheinander haben das Passwort abgelehnt. Beim Fortfahren können Konten gesperrt werden.</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>正在获取图像 %1 / %2</source>
        <translation>Bilder werden abgerufen, %1 von %2 Geräten</translation>
    </message>
    <message numerus="yes">
        <source>%n 幅图像</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 幅失败</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台设备未显示</source>
        <translation>
            <numerusform>%n weiteres Gerät wird nicht angezeigt</numerusform>
            <numerusform>%n weitere Geräte werden nicht angezeigt</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>全部重新获取</source>
        <translation>Alle neu abrufen</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1“ läuft. Warten Sie, bis der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>重新获取所有图像（F5）</source>
        <translation>Alle Bilder neu abrufen (F5)</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>把所有图像写入抓图文件夹（Ctrl+S）</source>
        <translation>Alle Bilder in den Ordner der Schnappschüsse schreiben (Strg+S)</translation>
    </message>
</context>
<context>
    <name>GalleryCell</name>
    <message>
        <source>正在获取…</source>
        <translation>Wird abgerufen…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>重新获取（R）</source>
        <translation>Neu abrufen (R)</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>获取中</source>
        <translation>Abruf läuft</translation>
    </message>
    <message>
        <source>已跳过</source>
        <translation>Übersprungen</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>设备图像</source>
        <translation>Gerätebilder</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2</source>
        <translation>%1 Bilder gespeichert in %2</translation>
    </message>
    <message>
        <source>已保存 %1 幅图像到 %2，%3 幅无法写入：%4</source>
        <translation>%1 Bilder gespeichert in %2, %3 nicht geschrieben: %4</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n Gerät</numerusform>
            <numerusform>%n Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Der Ordner konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>请在设备列表中勾选设备</source>
        <translation>Wählen Sie Geräte in der Geräteliste aus</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Keine Geräte</translation>
    </message>
</context>
<context>
    <name>GroupDialog</name>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppe</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备</source>
        <translation>
            <numerusform>%n Gerät</numerusform>
            <numerusform>%n Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>不属于任何分组</source>
        <translation>Keine Gruppe</translation>
    </message>
</context>
<context>
    <name>ImageExposureGroups</name>
    <message>
        <source>曝光</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>防闪烁</source>
        <translation>Anti-Flimmern</translation>
    </message>
    <message>
        <source>曝光模式</source>
        <translation>Belichtungsmodus</translation>
    </message>
    <message>
        <source>增益</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>增益范围</source>
        <translation>Verstärkungsbereich</translation>
    </message>
    <message>
        <source>最小增益</source>
        <translation>Min. Verstärkung</translation>
    </message>
    <message>
        <source>最大增益</source>
        <translation>Max. Verstärkung</translation>
    </message>
    <message>
        <source>曝光补偿</source>
        <translation>Kompensation</translation>
    </message>
    <message>
        <source>自动光圈</source>
        <translation>Auto-Blende</translation>
    </message>
    <message>
        <source>3D降噪</source>
        <translation>3D-Rauschminderung</translation>
    </message>
    <message>
        <source>降噪等级</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Gegenlicht</translation>
    </message>
    <message>
        <source>背光模式</source>
        <translation>Gegenlichtmodus</translation>
    </message>
    <message>
        <source>整个画面</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>自定义区域</source>
        <translation>Eigener Bereich</translation>
    </message>
    <message>
        <source>补偿区域</source>
        <translation>Kompensationsbereich</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Dynamikbereich (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Spitzlichtkompensation</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>白平衡模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>蓝增益</source>
        <translation>Blauverstärkung</translation>
    </message>
    <message>
        <source>红增益</source>
        <translation>Rotverstärkung</translation>
    </message>
</context>
<context>
    <name>ImageGallery</name>
    <message>
        <source>获取图像</source>
        <translation>Bilder abrufen</translation>
    </message>
    <message>
        <source>共 %1 个通道，仅显示前 %2 个</source>
        <translation>%1 Kanäle, die ersten %2 werden angezeigt</translation>
    </message>
    <message>
        <source>保存图像</source>
        <translation>Bilder speichern</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Der Ordner %1 konnte nicht erstellt werden</translation>
    </message>
</context>
<context>
    <name>ImageGroup</name>
    <message>
        <source>没有读到这一组设置，不能修改。请刷新重试。</source>
        <translation>Diese Einstellungen konnten nicht gelesen werden. Zum erneuten Versuch neu laden.</translation>
    </message>
</context>
<context>
    <name>ImageLightGroups</name>
    <message>
        <source>远近光</source>
        <translation>Nah- und Fernlicht</translation>
    </message>
    <message>
        <source>近光</source>
        <translation>Nah</translation>
    </message>
    <message>
        <source>远光</source>
        <translation>Fern</translation>
    </message>
    <message>
        <source>日夜转换</source>
        <translation>Tag/Nacht-Umschaltung</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>灵敏度</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>%1秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>切换延时</source>
        <translation>Umschaltverzögerung</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Beleuchtungen</translation>
    </message>
    <message>
        <source>灯光</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>近光亮度</source>
        <translation>Helligkeit Nahlicht</translation>
    </message>
    <message>
        <source>远光亮度</source>
        <translation>Helligkeit Fernlicht</translation>
    </message>
    <message>
        <source>灯光校正</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>混合补光</source>
        <translation>Infrarot und Weißlicht</translation>
    </message>
    <message>
        <source>补光方式</source>
        <translation>Lichtart</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>延时(秒)</source>
        <translation>Verzögerung (s)</translation>
    </message>
</context>
<context>
    <name>ImageOperations</name>
    <message>
        <source>设备没有发送画面</source>
        <translation>Das Gerät hat kein Bild gesendet</translation>
    </message>
    <message numerus="yes">
        <source>%n 个通道没有图像</source>
        <translation>
            <numerusform>Kein Bild von %n Kanal</numerusform>
            <numerusform>Kein Bild von %n Kanälen</numerusform>
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
        <translation>Belichtung und Weißabgleich</translation>
    </message>
    <message>
        <source>日夜与补光</source>
        <translation>Tag/Nacht und Beleuchtung</translation>
    </message>
    <message>
        <source>摄像机没有告知这方面的设置。</source>
        <translation>Die Kamera meldet solche Einstellungen nicht.</translation>
    </message>
    <message>
        <source>没有可调的项目</source>
        <translation>Keine Einstellungen</translation>
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
        <translation>Weich</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>艳丽</source>
        <translation>Lebhaft</translation>
    </message>
    <message>
        <source>风格</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>锐度</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>镜像与旋转</source>
        <translation>Spiegelung und Drehung</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>正常视角</source>
        <translation>Normale Ansicht</translation>
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
        <translation>Kippen</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilisierung</translation>
    </message>
    <message>
        <source>电子防抖</source>
        <translation>Bildstabilisierung</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Entnebeln</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>强度</source>
        <translation>Intensität</translation>
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
        <translation>O</translation>
    </message>
    <message>
        <source>右</source>
        <translation>R</translation>
    </message>
    <message>
        <source>下</source>
        <translation>U</translation>
    </message>
    <message>
        <source>区域(0–8192)</source>
        <translation>Bereich (0–8192)</translation>
    </message>
    <message>
        <source>左边不能大于右边</source>
        <translation>Links darf nicht größer als rechts sein</translation>
    </message>
    <message>
        <source>上边不能大于下边</source>
        <translation>Oben darf nicht größer als unten sein</translation>
    </message>
</context>
<context>
    <name>ImageShutter</name>
    <message>
        <source>快门</source>
        <translation>Verschluss</translation>
    </message>
    <message>
        <source>自定义范围</source>
        <translation>Eigener Bereich</translation>
    </message>
    <message>
        <source>快门范围(ms)</source>
        <translation>Verschlussbereich (ms)</translation>
    </message>
    <message>
        <source>最短快门</source>
        <translation>Kürzester Verschluss</translation>
    </message>
    <message>
        <source>最长快门</source>
        <translation>Längster Verschluss</translation>
    </message>
    <message>
        <source>下限不能大于上限</source>
        <translation>Das Minimum darf nicht größer als das Maximum sein</translation>
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
        <translation>Name</translation>
    </message>
    <message>
        <source>配置模式</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>修改会立即写入设备。</source>
        <translation>Änderungen werden sofort auf das Gerät geschrieben.</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Länger als %1 Bytes</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改。</source>
        <translation>Das Gerät wird gerade aktualisiert. Ändern Sie Einstellungen, wenn das Update beendet ist.</translation>
    </message>
</context>
<context>
    <name>ImageWork</name>
    <message>
        <source>正在读取图像配置…</source>
        <translation>Bildeinstellungen werden gelesen…</translation>
    </message>
    <message>
        <source>正在写入图像配置…</source>
        <translation>Bildeinstellungen werden geschrieben…</translation>
    </message>
    <message>
        <source>设备没有应答，修改可能没有写入</source>
        <translation>Keine Antwort vom Gerät. Die Änderung wurde möglicherweise nicht geschrieben.</translation>
    </message>
    <message>
        <source>没有修改：%1。显示的是设备现有的值</source>
        <translation>Nicht geändert: %1. Der Wert des Geräts wird angezeigt.</translation>
    </message>
</context>
<context>
    <name>InitialisationPreview</name>
    <message>
        <source>已初始化，不会执行</source>
        <translation>Bereits initialisiert</translation>
    </message>
    <message>
        <source>正在升级，不会执行</source>
        <translation>Update läuft: übersprungen</translation>
    </message>
    <message>
        <source>MAC地址未知，不会执行</source>
        <translation>MAC-Adresse unbekannt: übersprungen</translation>
    </message>
</context>
<context>
    <name>InitialiseDialog</name>
    <message>
        <source>初始化</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>初始化设置</source>
        <translation>Initialisierung</translation>
    </message>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Wählen Sie ein nicht initialisiertes Gerät aus</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
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
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>列表只显示本局域网设备,初始化不支持跨局域网</source>
        <translation>Nur Geräte dieses LANs sind aufgelistet. Geräte anderer LANs können nicht initialisiert werden.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不会执行，请查看提示</source>
        <extracomment>Ticked devices that are not initialised.</extracomment>
        <translation>
            <numerusform>%n weiteres wird übersprungen, siehe Hinweise</numerusform>
            <numerusform>%n weitere werden übersprungen, siehe Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweise</translation>
    </message>
</context>
<context>
    <name>KnownDevices</name>
    <message>
        <source>上次的设备列表 %1 无法读取：%2</source>
        <translation>Die letzte Geräteliste %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>分组名称最多 %1 个字符</source>
        <translation>Der Name einer Gruppe darf höchstens %1 Zeichen haben</translation>
    </message>
    <message>
        <source>P2P设备不能分组</source>
        <translation>P2P-Geräte können keiner Gruppe angehören</translation>
    </message>
    <message>
        <source>现场最多 %1 台设备</source>
        <translation>Ein Standort darf höchstens %1 Geräte haben</translation>
    </message>
    <message>
        <source>现场无法保存：%1</source>
        <translation>Der Standort kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>设备列表无法保存：%1</source>
        <translation>Die Geräteliste kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>未保存的现场</source>
        <translation>Nicht gespeicherter Standort</translation>
    </message>
    <message>
        <source>原现场无法保存：%1</source>
        <translation>Der vorherige Standort kann nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>LiveChannelList</name>
    <message>
        <source>通道列表</source>
        <extracomment>Heads a list of the channels of a device.</extracomment>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>未连接</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>从画面中移除（Delete）</source>
        <translation>Aus der Ansicht entfernen (Entf)</translation>
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
        <translation>Anmeldung läuft…</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Neuer Versuch in %n s</numerusform>
            <numerusform>%1. Neuer Versuch in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Erneut anmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Wiederholen</translation>
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
        <translation>%1 KB gepuffert</translation>
    </message>
    <message>
        <source>音频 %1</source>
        <translation>Audio %1</translation>
    </message>
    <message>
        <source>跳过 %1 帧</source>
        <translation>%1 Bilder übersprungen</translation>
    </message>
</context>
<context>
    <name>LiveSnapshots</name>
    <message>
        <source>无法打开文件夹：%1</source>
        <translation>Der Ordner konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Schnappschüsse</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Das Gerät wird nicht mehr angezeigt</translation>
    </message>
</context>
<context>
    <name>LiveTitleBar</name>
    <message>
        <source>实时画面</source>
        <translation>Live-Ansicht</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>上一台设备（PgUp）</source>
        <translation>Vorheriges Gerät (Bild↑)</translation>
    </message>
    <message>
        <source>下一台设备（PgDn）</source>
        <translation>Nächstes Gerät (Bild↓)</translation>
    </message>
</context>
<context>
    <name>LiveToolBar</name>
    <message>
        <source>1 画面</source>
        <translation>Einzelansicht</translation>
    </message>
    <message>
        <source>4 画面</source>
        <translation>4 Ansichten</translation>
    </message>
    <message>
        <source>9 画面</source>
        <translation>9 Ansichten</translation>
    </message>
    <message>
        <source>上一页通道</source>
        <translation>Vorherige Kanäle</translation>
    </message>
    <message>
        <source>下一页通道</source>
        <translation>Nächste Kanäle</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Ton aus</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Ton ein</translation>
    </message>
    <message>
        <source>保持画面比例</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>拉伸铺满</source>
        <translation>Auf Fläche strecken</translation>
    </message>
    <message>
        <source>隐藏码流信息</source>
        <translation>Streamdaten ausblenden</translation>
    </message>
    <message>
        <source>显示码流信息</source>
        <translation>Streamdaten anzeigen</translation>
    </message>
    <message>
        <source>正在抓图…</source>
        <translation>Schnappschuss wird aufgenommen…</translation>
    </message>
    <message>
        <source>抓取当前通道</source>
        <translation>Schnappschuss des ausgewählten Kanals</translation>
    </message>
    <message>
        <source>抓取全部通道</source>
        <translation>Schnappschüsse aller Kanäle</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Vollbild beenden</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1“ läuft. Warten Sie, bis der Vorgang beendet ist.</translation>
    </message>
    <message>
        <source>画面中已有足够多的设备</source>
        <translation>Es kann kein weiteres Gerät hinzugefügt werden</translation>
    </message>
    <message>
        <source>请先在设备列表中勾选要一起查看的设备</source>
        <translation>Wählen Sie die hinzuzufügenden Geräte zuerst in der Geräteliste aus</translation>
    </message>
    <message>
        <source>把列表中勾选的设备的通道加入画面（A）</source>
        <translation>Kanäle der in der Liste ausgewählten Geräte hinzufügen (A)</translation>
    </message>
    <message>
        <source>加入勾选的设备（%1）</source>
        <translation>Ausgewählte Geräte hinzufügen (%1)</translation>
    </message>
    <message>
        <source>加入勾选的设备</source>
        <translation>Ausgewählte Geräte hinzufügen</translation>
    </message>
    <message>
        <source>抓取全部设备的所有通道</source>
        <translation>Schnappschüsse aller Kanäle aller Geräte</translation>
    </message>
</context>
<context>
    <name>LiveWindow</name>
    <message>
        <source>已登录另一台设备，实时画面已关闭</source>
        <translation>Die Live-Ansicht wurde geschlossen, weil die Anmeldung an einem anderen Gerät erfolgte</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Erneut anmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>正在登录…</source>
        <translation>Anmeldung läuft…</translation>
    </message>
    <message>
        <source>没有通道</source>
        <translation>Keine Kanäle</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message numerus="yes">
        <source>%1，%n 秒后重试</source>
        <translation>
            <numerusform>%1. Neuer Versuch in %n s</numerusform>
            <numerusform>%1. Neuer Versuch in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备都已在画面中</source>
        <translation>Alle ausgewählten Geräte werden bereits angezeigt</translation>
    </message>
    <message>
        <source>最多加入 %1 台设备，其余 %2 台没有加入</source>
        <translation>Es können höchstens %1 Geräte hinzugefügt werden. %2 wurden nicht hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>LoginMemory</name>
    <message>
        <source>%1 没有应答</source>
        <translation>Keine Antwort von %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>帮助</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>QA</source>
        <translation>Fragen und Antworten</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>账号管理</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>外观</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Wie Desktop</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>现场报告（Ctrl+R）</source>
        <translation>Standortbericht (Ctrl+R)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>修改IP</source>
        <translation>IP ändern</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Geräte-Update</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Gerätekonfiguration</translation>
    </message>
    <message>
        <source>系统配置</source>
        <translation>Systemkonfiguration</translation>
    </message>
    <message>
        <source>CGI协议</source>
        <translation>CGI-Protokoll</translation>
    </message>
    <message>
        <source>演示站点</source>
        <extracomment>In the title bar. %1 is a user name and a password.</extracomment>
        <translation>Demo-Standort</translation>
    </message>
    <message>
        <source>演示站点：%1</source>
        <translation>Demo-Standort: %1</translation>
    </message>
    <message>
        <source>模拟设备，不连接网络。账号为登录设备的用户名和密码；新设备须先初始化。</source>
        <translation>Simulierte Geräte, kein Netzwerk. Benutzername und Passwort für die Anmeldung an den Geräten. Neue Geräte müssen zuerst initialisiert werden.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Demo-Standort öffnen</translation>
    </message>
    <message>
        <source>未安装设备库，无法与设备通信</source>
        <translation>Keine Gerätebibliothek installiert: Geräte sind nicht erreichbar</translation>
    </message>
    <message>
        <source>正在用系统的PDF程序打开 %1</source>
        <translation>%1 wird im PDF-Programm des Systems geöffnet</translation>
    </message>
    <message>
        <source>无法打开 %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>ModifyIPActions</name>
    <message>
        <source>编辑</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>修改这台设备的IP地址</source>
        <translation>Ändert die IP-Adresse dieses Geräts</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>显示这台设备的全部信息</source>
        <translation>Zeigt alle Informationen über dieses Gerät</translation>
    </message>
    <message>
        <source>在浏览器中打开设备网页</source>
        <translation>Öffnet die Webseite dieses Geräts im Browser</translation>
    </message>
    <message>
        <source>查看实时画面</source>
        <translation>Öffnet die Live-Ansicht dieses Geräts</translation>
    </message>
    <message>
        <source>未初始化的设备没有实时画面</source>
        <translation>Initialisieren Sie das Gerät zuerst</translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Das Gerät wird gerade aktualisiert. Ändern Sie seine Adresse, wenn das Update beendet ist.</translation>
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
        <translation>Gerät hinzugefügt, aber nicht in den Favoriten gespeichert. Prüfen Sie Ihre Schreibrechte im Programmordner.</translation>
    </message>
    <message>
        <source>设备已添加，并保存到收藏夹</source>
        <translation>Gerät hinzugefügt und in den Favoriten gespeichert</translation>
    </message>
    <message>
        <source>设备已添加</source>
        <translation>Gerät hinzugefügt</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Gerät hinzufügen</translation>
    </message>
</context>
<context>
    <name>ModifyIPBatches</name>
    <message>
        <source>请选择一台未初始化的设备</source>
        <translation>Wählen Sie ein nicht initialisiertes Gerät aus</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未成功，请查看修改结果</source>
        <extracomment>Devices of a batch that failed.</extracomment>
        <translation>
            <numerusform>%n Gerät fehlgeschlagen: siehe Ergebnis</numerusform>
            <numerusform>%n Geräte fehlgeschlagen: siehe Ergebnis</numerusform>
        </translation>
    </message>
    <message>
        <source>设备正在升级，不能修改IP地址</source>
        <translation>Das Gerät wird gerade aktualisiert. Ändern Sie seine Adresse, wenn das Update beendet ist.</translation>
    </message>
    <message>
        <source>初始化</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-Adressen ändern</translation>
    </message>
    <message numerus="yes">
        <source>已修改 %n 台设备的IP地址</source>
        <translation>
            <numerusform>Adresse auf %n Gerät geändert</numerusform>
            <numerusform>Adressen auf %n Geräten geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已初始化 %n 台设备</source>
        <translation>
            <numerusform>%n Gerät initialisiert</numerusform>
            <numerusform>%n Geräte initialisiert</numerusform>
        </translation>
    </message>
    <message>
        <source>已停止：%1</source>
        <translation>Gestoppt: %1</translation>
    </message>
</context>
<context>
    <name>ModifyIPDevices</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message numerus="yes">
        <source>请确认是否要删除</source>
        <translation>
            <numerusform>%n Gerät aus der Liste entfernen?</numerusform>
            <numerusform>%n Geräte aus der Liste entfernen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备正在升级，没有删除</source>
        <translation>
            <numerusform>%n Gerät wird gerade aktualisiert und wurde nicht entfernt</numerusform>
            <numerusform>%n Geräte werden gerade aktualisiert und wurden nicht entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>删除设备</source>
        <translation>Geräte entfernen</translation>
    </message>
</context>
<context>
    <name>ModifyIPDialog</name>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Geben Sie eine gültige IP-Adresse ein</translation>
    </message>
    <message>
        <source>请输入正确的子网掩码</source>
        <translation>Geben Sie eine gültige Subnetzmaske ein</translation>
    </message>
    <message>
        <source>请输入正确的网关</source>
        <translation>Geben Sie eine gültige Gateway-Adresse ein</translation>
    </message>
    <message>
        <source>修改IP</source>
        <translation>IP ändern</translation>
    </message>
    <message>
        <source>收起预览</source>
        <translation>Vorschau ausblenden</translation>
    </message>
    <message>
        <source>预览</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>显示每台设备将得到的地址</source>
        <translation>Zeigt die neue Adresse jedes Geräts</translation>
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
        <translation>Start-IP</translation>
    </message>
    <message>
        <source>同一IP</source>
        <translation>Gleiche IP</translation>
    </message>
    <message>
        <source>子网掩码</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <source>网关</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>该地址已被 %1 使用</source>
        <translation>Von %1 verwendet</translation>
    </message>
    <message>
        <source>这是网络地址或广播地址</source>
        <translation>Dies ist die Netz- oder Broadcast-Adresse</translation>
    </message>
    <message>
        <source>网关不在该网段内</source>
        <translation>Das Gateway liegt außerhalb des Subnetzes</translation>
    </message>
    <message>
        <source>仍然修改</source>
        <translation>Trotzdem ändern</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>这是网关的地址</source>
        <translation>Dies ist die Adresse des Gateways</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>起始IP</source>
        <comment>one device</comment>
        <translation>IP-Adresse</translation>
    </message>
</context>
<context>
    <name>ModifyIPEmptyState</name>
    <message>
        <source>筛选条件隐藏了全部 %1 台设备</source>
        <translation>Alle %1 Geräte sind durch die Filter ausgeblendet</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Geräte werden gesucht…</translation>
    </message>
    <message>
        <source>没有找到设备</source>
        <translation>Keine Geräte gefunden</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Keine Gerätebibliothek installiert</translation>
    </message>
    <message>
        <source>放宽筛选条件，或清除搜索文字。</source>
        <translation>Ändern Sie die Filter, oder löschen Sie den Suchtext.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Gefundene Geräte erscheinen hier.</translation>
    </message>
    <message>
        <source>请检查网线和网段，或在搜索设置中添加其他网段，然后重新搜索。</source>
        <translation>Prüfen Sie, ob die Geräte eingeschaltet und angeschlossen sind. Fügen Sie für Geräte in anderen Netzen deren Bereich in den Sucheinstellungen hinzu, oder fügen Sie ein Gerät über seine Adresse hinzu.</translation>
    </message>
    <message>
        <source>清除筛选</source>
        <translation>Filter löschen</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>搜索设置中没有选择网段</source>
        <translation>In den Sucheinstellungen ist kein Netz ausgewählt</translation>
    </message>
    <message>
        <source>请在搜索设置中选择本地网段或其他网段。</source>
        <translation>Wählen Sie in den Sucheinstellungen das lokale Netz oder andere Netze aus.</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sucheinstellungen</translation>
    </message>
    <message>
        <source>为什么没有找到设备？</source>
        <translation>Warum wurden keine Geräte gefunden?</translation>
    </message>
    <message>
        <source>程序无法与设备通信，因此找不到设备，也不能修改设备。演示站点不需要设备，可以试用全部功能。</source>
        <translation>Das Programm kann nicht mit Geräten kommunizieren: Es kann keine finden oder ändern. Der Demo-Standort braucht keine Geräte und zeigt alle Funktionen.</translation>
    </message>
    <message>
        <source>打开演示站点</source>
        <translation>Demo-Standort öffnen</translation>
    </message>
    <message>
        <source>已搜索：%1</source>
        <translation>Durchsucht: %1</translation>
    </message>
    <message>
        <source>按地址添加设备</source>
        <translation>Gerät über Adresse hinzufügen</translation>
    </message>
    <message>
        <source>请检查网线和网段，然后重新搜索。</source>
        <translation>Prüfen Sie Kabel und Netze, und suchen Sie dann erneut.</translation>
    </message>
</context>
<context>
    <name>ModifyIPFiles</name>
    <message>
        <source>正在导出设备…</source>
        <translation>Geräte werden exportiert…</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>%1 已存在，是否覆盖？</source>
        <translation>%1 ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>导出设备成功
文件路径:</source>
        <translation>Geräte exportiert
Datei: </translation>
    </message>
    <message>
        <source>导出设备失败，请检查本机是否已经安装了Office</source>
        <translation>Die Datei konnte nicht geschrieben werden. Prüfen Sie den Ordner und ob ein anderes Programm die Datei geöffnet hat.</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>以下内容无法从该文件正确导入：</source>
        <translation>Diese Werte können aus der Datei nicht zurückgelesen werden:</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>导出结果</source>
        <translation>Exportergebnis</translation>
    </message>
    <message>
        <source>正在读取设备列表…</source>
        <translation>Geräteliste wird gelesen…</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>覆盖文件</source>
        <translation>Datei ersetzen</translation>
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
        <translation>Aus dem Standort entfernen</translation>
    </message>
</context>
<context>
    <name>ModifyIPImport</name>
    <message>
        <source>打开excel文件</source>
        <translation>Geräteliste öffnen</translation>
    </message>
    <message>
        <source>加密的设备列表 (*.devlist)</source>
        <translation>Verschlüsselte Gerätelisten (*.devlist)</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>批量导入设备：</source>
        <translation>Importiert: </translation>
    </message>
    <message>
        <source>台已完成</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>导入失败，可能格式不准确、文件内存在重复的MAC地址设备或者文件已经被打开！</source>
        <translation>Nicht importiert. Die Datei ist in einem anderen Programm geöffnet, hat ein anderes Format oder enthält eine MAC-Adresse doppelt.</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>导入结果</source>
        <translation>Importergebnis</translation>
    </message>
</context>
<context>
    <name>ModifyIPNotice</name>
    <message>
        <source>重新搜索</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>查看原因</source>
        <translation>Gründe anzeigen</translation>
    </message>
    <message>
        <source>搜索已停止，列表不完整。</source>
        <translation>Die Suche wurde gestoppt; die Liste ist unvollständig.</translation>
    </message>
    <message>
        <source>没有找到设备，灰色的是以前找到的设备</source>
        <translation>Kein Gerät gefunden. Grau sind die früher gefundenen Geräte.</translation>
    </message>
    <message numerus="yes">
        <source>找到的设备比上次搜索少 %n 台</source>
        <translation>
            <numerusform>%n Gerät weniger als bei der letzten Suche</numerusform>
            <numerusform>%n Geräte weniger als bei der letzten Suche</numerusform>
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
        <translation>Name</translation>
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
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>修改结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>ModifyIPToolBar</name>
    <message>
        <source>初始化</source>
        <translation>Initialisieren</translation>
    </message>
    <message>
        <source>为勾选的新设备设置第一个密码</source>
        <translation>Legt das erste Passwort der ausgewählten neuen Geräte fest</translation>
    </message>
    <message>
        <source>批量修改IP</source>
        <translation>IP-Stapeländerung</translation>
    </message>
    <message>
        <source>为勾选的设备依次分配地址</source>
        <translation>Weist den ausgewählten Geräten fortlaufende Adressen zu</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>从表格文件读入设备列表</source>
        <translation>Liest eine Geräteliste aus einer Tabelle</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>把勾选的设备写入表格文件</source>
        <translation>Schreibt die ausgewählten Geräte in eine Tabelle</translation>
    </message>
    <message>
        <source>手动添加</source>
        <translation>Manuell hinzufügen</translation>
    </message>
    <message>
        <source>添加搜索不到的设备：按IP、按P2P或从收藏夹</source>
        <translation>Fügt Geräte hinzu, die eine Suche nicht findet: über IP-Adresse, P2P-ID oder aus den Favoriten</translation>
    </message>
    <message>
        <source>IP设备</source>
        <translation>IP-Gerät</translation>
    </message>
    <message>
        <source>P2P设备</source>
        <translation>P2P-Gerät</translation>
    </message>
    <message>
        <source>收藏夹</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>把勾选的设备从列表中删除</source>
        <translation>Entfernt die ausgewählten Geräte aus der Liste</translation>
    </message>
    <message>
        <source>已初始化</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Nicht initialisiert</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Suchen…</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能修改IP地址</source>
        <translation>
            <numerusform>%n ausgewähltes Gerät wird gerade aktualisiert: Seine Adresse kann nicht geändert werden</numerusform>
            <numerusform>%n ausgewählte Geräte werden gerade aktualisiert: Ihre Adressen können nicht geändert werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能删除</source>
        <translation>
            <numerusform>%n ausgewähltes Gerät wird gerade aktualisiert und kann nicht entfernt werden</numerusform>
            <numerusform>%n ausgewählte Geräte werden gerade aktualisiert und können nicht entfernt werden</numerusform>
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
        <translation>Bilder der ausgewählten Geräte (Strg+G)</translation>
    </message>
</context>
<context>
    <name>NamePatternDialog</name>
    <message>
        <source>填入</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nach Muster benennen</translation>
    </message>
    <message>
        <source>请选择要命名的项</source>
        <translation>Wählen Sie aus, was benannt werden soll</translation>
    </message>
    <message>
        <source>填入后可在表格中修改，保存时才写入设备。</source>
        <translation>Die Namen können in der Tabelle bearbeitet werden. „Speichern“ schreibt sie.</translation>
    </message>
    <message numerus="yes">
        <source>当前设备的 %n 个通道</source>
        <translation>
            <numerusform>%n Kanal dieses Geräts</numerusform>
            <numerusform>%n Kanäle dieses Geräts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>勾选的 %n 台摄像机</source>
        <translation>
            <numerusform>%n ausgewählte Kamera</numerusform>
            <numerusform>%n ausgewählte Kameras</numerusform>
        </translation>
    </message>
    <message>
        <source>命名规则：{n} 序号，{model} 型号，{ip4} 地址的最后一段</source>
        <translation>Muster: {n}, {model}, {ip4} (Ende der Adresse)</translation>
    </message>
    <message>
        <source>命名规则</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>多个通道会得到同一个名称</source>
        <translation>Mehrere Kanäle erhalten denselben Namen</translation>
    </message>
    <message>
        <source>起始序号</source>
        <translation>Erste Nummer</translation>
    </message>
    <message>
        <source>位数</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>写入各台摄像机的通道 1。</source>
        <translation>Benennt Kanal 1 jeder Kamera.</translation>
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
        <translation>Geben Sie ein Muster ein</translation>
    </message>
    <message>
        <source>只能使用 {n}、{model} 和 {ip4}</source>
        <translation>Nur {n}, {model} und {ip4} verwenden</translation>
    </message>
    <message>
        <source>名称过长，最多 %1 字节</source>
        <translation>Länger als %1 Bytes</translation>
    </message>
    <message>
        <source>录像机，不会执行；其通道请单独命名</source>
        <translation>Rekorder: übersprungen. Öffnen Sie ihn, um seine Kanäle zu benennen</translation>
    </message>
</context>
<context>
    <name>NoteDialog</name>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notiz</translation>
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
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OVDateTimeField</name>
    <message>
        <source>请输入正确的时间</source>
        <translation>Geben Sie eine gültige Zeit ein</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OVFailedFilter</name>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。已不在列表中的设备见批处理记录。</source>
        <translation>Zeigt nur fehlgeschlagene oder nicht ausgeführte Geräte, nach Grund sortiert. Nicht mehr aufgelistete Geräte finden Sie unter „Aufträge“.</translation>
    </message>
    <message>
        <source>清除标记</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Entfernt die Markierungen fehlgeschlagener oder nicht ausgeführter Geräte</translation>
    </message>
    <message>
        <source>仅未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Offen %1</translation>
    </message>
</context>
<context>
    <name>OVFailedOperation</name>
    <message>
        <source>未成功的操作</source>
        <translation>Offener Vorgang</translation>
    </message>
    <message>
        <source>全部操作</source>
        <translation>Alle Vorgänge</translation>
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
        <translation>weniger als 1 min übrig</translation>
    </message>
    <message numerus="yes">
        <source>剩余约 %n 分钟</source>
        <translation>
            <numerusform>etwa %n min übrig</numerusform>
            <numerusform>etwa %n min übrig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台失败</source>
        <extracomment>Devices of a running batch.</extracomment>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stoppen (Esc)</translation>
    </message>
    <message>
        <source>重试失败</source>
        <extracomment>%1 is the title of the batch. The page may have a separate retry button.</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>在本页只勾选失败和未执行的设备</source>
        <translation>Wählt auf dieser Seite nur fehlgeschlagene oder nicht ausgeführte Geräte aus</translation>
    </message>
    <message>
        <source>保存结果</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <source>批处理记录</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Geräte werden gesucht…</translation>
    </message>
    <message>
        <source>%1 %2 / %3</source>
        <extracomment>A running batch: title, finished devices, all devices.</extracomment>
        <translation>%1: %2 von %3 erledigt</translation>
    </message>
    <message numerus="yes">
        <source>，另有 %n 台此前未成功</source>
        <extracomment>After the number of failed devices of a batch that retries another one.</extracomment>
        <translation>
            <numerusform>, %n weiteres offen</numerusform>
            <numerusform>, %n weitere offen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误</source>
        <translation>
            <numerusform>falsches Passwort auf %n Gerät in Folge</numerusform>
            <numerusform>falsches Passwort auf %n Geräten in Folge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>连续 %n 台设备密码错误（账号 %1）</source>
        <translation>
            <numerusform>falsches Passwort auf %n Gerät in Folge (Konto %1)</numerusform>
            <numerusform>falsches Passwort auf %n Geräten in Folge (Konto %1)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2，继续可能锁定账户。是否继续？</source>
        <translation>%1: %2. Beim Fortfahren können Konten gesperrt werden. Fortfahren?</translation>
    </message>
    <message>
        <source>停止后，可在设备的右键菜单中选择账号，再重试失败的设备（Esc）</source>
        <translation>Wählen Sie nach dem Stoppen im Menü der Geräte ein anderes Konto, und wiederholen Sie dann die fehlgeschlagenen Geräte (Esc)</translation>
    </message>
    <message>
        <source>重试失败：%1</source>
        <translation>Erneut versuchen: %1</translation>
    </message>
    <message>
        <source>对“%1”中失败和未执行的设备再试一次，密码错误等不会因重试而成功的除外</source>
        <translation>Führt „%1“ für fehlgeschlagene oder nicht ausgeführte Geräte erneut aus. Geräte, bei denen eine Wiederholung nicht hilft, etwa nach falschem Passwort mit demselben Konto, werden ausgelassen.</translation>
    </message>
    <message>
        <source>选中未成功</source>
        <translation>Offene auswählen</translation>
    </message>
    <message>
        <source>选择账号…</source>
        <translation>Konto auswählen…</translation>
    </message>
    <message>
        <source>为拒绝了此账号的设备和其余使用此账号的设备选择另一个账号，然后重试</source>
        <translation>Wählen Sie ein anderes Konto für die Geräte, die dieses abgelehnt haben, und für die übrigen Geräte, die es verwenden, und versuchen Sie es mit ihnen erneut</translation>
    </message>
</context>
<context>
    <name>OVMessageBox</name>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>OVNumberField</name>
    <message>
        <source>请输入数字</source>
        <translation>Geben Sie eine Zahl ein</translation>
    </message>
</context>
<context>
    <name>OVStrengthBar</name>
    <message>
        <source>弱</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>强</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>密码强度</source>
        <translation>Passwortstärke</translation>
    </message>
</context>
<context>
    <name>OVTable</name>
    <message>
        <source>列宽适合内容</source>
        <translation>Spaltenbreite anpassen</translation>
    </message>
    <message>
        <source>恢复默认列</source>
        <translation>Spalten zurücksetzen</translation>
    </message>
</context>
<context>
    <name>OVTableHead</name>
    <message>
        <source>全选</source>
        <translation>Alle auswählen</translation>
    </message>
</context>
<context>
    <name>OVTextField</name>
    <message>
        <source>清除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Passwort anzeigen</translation>
    </message>
</context>
<context>
    <name>OVTitleBar</name>
    <message numerus="yes">
        <source>台设备被搜索到</source>
        <extracomment>Follows a number in the title bar, as in &quot;24 devices found&quot;.</extracomment>
        <translation>
            <numerusform>Gerät gefunden</numerusform>
            <numerusform>Geräte gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Geräte suchen</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sucheinstellungen</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OVTreeRow</name>
    <message>
        <source>收起</source>
        <translation>Einklappen</translation>
    </message>
    <message>
        <source>展开</source>
        <translation>Ausklappen</translation>
    </message>
    <message>
        <source>新</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>OV_MediaPlayer</name>
    <message>
        <source>没有通道</source>
        <translation>Keine Kanäle</translation>
    </message>
    <message>
        <source>通道未连接</source>
        <translation>Kanal nicht verbunden</translation>
    </message>
    <message>
        <source>正在连接…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>画面中断</source>
        <translation>Stream unterbrochen</translation>
    </message>
    <message numerus="yes">
        <source>%n 秒后重试</source>
        <translation>
            <numerusform>Neuer Versuch in %n s</numerusform>
            <numerusform>Neuer Versuch in %n s</numerusform>
        </translation>
    </message>
    <message>
        <source>立即重试</source>
        <translation>Jetzt wiederholen</translation>
    </message>
</context>
<context>
    <name>P2PPorts</name>
    <message>
        <source>p2p.ini 中的 %1 缺失或无效</source>
        <translation>%1 in p2p.ini fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>P2P端口代理没有启动</source>
        <translation>Der P2P-Dienst konnte nicht gestartet werden</translation>
    </message>
</context>
<context>
    <name>PageCGIConfig</name>
    <message>
        <source>请选择一台设备。</source>
        <translation>Wählen Sie ein Gerät aus.</translation>
    </message>
    <message>
        <source>批量配置CGI</source>
        <translation>CGI-Stapel</translation>
    </message>
    <message>
        <source>向勾选的设备发送同一条命令</source>
        <translation>Sendet einen Befehl an die ausgewählten Geräte</translation>
    </message>
    <message>
        <source>批量表单操作</source>
        <translation>Tabelle ausführen</translation>
    </message>
    <message>
        <source>执行表格文件中的命令，并把结果写回文件</source>
        <translation>Sendet die Befehle einer Tabelle und schreibt die Ergebnisse hinein</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Vorlage öffnen</translation>
    </message>
    <message>
        <source>打开命令表格的模板文件</source>
        <translation>Öffnet die Vorlage für Befehlstabellen</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>复制成功</source>
        <translation>Kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>未成功的设备</source>
        <translation>Fehlgeschlagene Geräte</translation>
    </message>
    <message>
        <source>将向下列设备发送命令：</source>
        <translation>Der Befehl wird an diese Geräte gesendet:</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>发送命令</source>
        <translation>Befehl senden</translation>
    </message>
    <message>
        <source>查看全部结果</source>
        <translation>Ganzes Ergebnis anzeigen</translation>
    </message>
    <message>
        <source>复制结果</source>
        <translation>Ergebnis kopieren</translation>
    </message>
</context>
<context>
    <name>PageDeviceConfig</name>
    <message>
        <source>放弃修改</source>
        <translation>Verwerfen</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 项修改尚未保存，离开后将丢失。</source>
        <translation>
            <numerusform>%n Änderung ist nicht gespeichert und geht verloren.</numerusform>
            <numerusform>%n Änderungen sind nicht gespeichert und gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Kopieren</translation>
    </message>
    <message numerus="yes">
        <source>将通道 %1 的编码配置复制到选中的 %n 台设备的同一通道？</source>
        <extracomment>%1 is a channel number.</extracomment>
        <translation>
            <numerusform>Kodierung von Kanal %1 auf denselben Kanal des ausgewählten Geräts kopieren?</numerusform>
            <numerusform>Kodierung von Kanal %1 auf denselben Kanal der %n ausgewählten Geräte kopieren?</numerusform>
        </translation>
    </message>
    <message>
        <source>其中包括尚未保存的修改。</source>
        <translation>Dies schließt nicht gespeicherte Änderungen ein.</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>正在保存通道名称…</source>
        <translation>Kanalnamen werden gespeichert…</translation>
    </message>
    <message>
        <source>（按Esc停止）</source>
        <translation> (Esc zum Stoppen)</translation>
    </message>
    <message>
        <source>设备配置</source>
        <translation>Gerätekonfiguration</translation>
    </message>
    <message>
        <source>写入通道 %1 的编码配置</source>
        <extracomment>The change of a device; %1 is a channel number.</extracomment>
        <translation>Kodierung von Kanal %1</translation>
    </message>
    <message>
        <source>复制编码配置</source>
        <translation>Kodierung kopieren</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>保存并离开</source>
        <translation>Speichern und verlassen</translation>
    </message>
    <message>
        <source>批量命名</source>
        <translation>Nach Muster benennen</translation>
    </message>
    <message>
        <source>配置这台设备</source>
        <translation>Dieses Gerät konfigurieren</translation>
    </message>
    <message>
        <source>勾选的设备中没有摄像机</source>
        <translation>Unter den ausgewählten Geräten ist keine Kamera</translation>
    </message>
</context>
<context>
    <name>PageDeviceUpgrade</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Die Einstellung konnte nicht gespeichert werden. Prüfen Sie Ihre Schreibrechte im Programmordner.</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Firmwaredatei auswählen</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>停止升级</source>
        <translation>Update stoppen</translation>
    </message>
</context>
<context>
    <name>PageModifyIP</name>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备IP地址冲突</source>
        <extracomment>Number of devices whose address another device has, too.</extracomment>
        <translation>
            <numerusform>IP-Adresskonflikt: %n Gerät</numerusform>
            <numerusform>IP-Adresskonflikt: %n Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>到P2P设备 %1 的连接已断开，请删除后重新添加</source>
        <translation>Verbindung zum P2P-Gerät %1 getrennt. Entfernen Sie das Gerät, und fügen Sie es erneut hinzu.</translation>
    </message>
    <message>
        <source>P2P服务已断开，P2P设备暂时无法访问</source>
        <translation>Der P2P-Dienst ist getrennt. P2P-Geräte sind derzeit nicht erreichbar.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-Adressen ändern</translation>
    </message>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>查看勾选设备的图像</source>
        <translation>Bilder der ausgewählten Geräte</translation>
    </message>
</context>
<context>
    <name>PageSystemConfig</name>
    <message>
        <source>旧密码正确，等待新密码</source>
        <translation>Altes Passwort richtig: Warten auf das neue</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>验证旧密码</source>
        <translation>Altes Passwort prüfen</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Geräte neu starten</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Werkseinstellungen wiederherstellen</translation>
    </message>
    <message numerus="yes">
        <source>%n台设备已选中</source>
        <extracomment>In the status line of a page.</extracomment>
        <translation>
            <numerusform>%n Gerät ausgewählt</numerusform>
            <numerusform>%n Geräte ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Die Zeit ist abgelaufen: Das Passwort von %n Gerät wurde nicht geändert</numerusform>
            <numerusform>Die Zeit ist abgelaufen: Die Passwörter von %n Geräten wurden nicht geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已开始其他操作，%n 台设备的密码没有修改</source>
        <translation>
            <numerusform>Ein anderer Vorgang wurde gestartet: Das Passwort von %n Gerät wurde nicht geändert</numerusform>
            <numerusform>Ein anderer Vorgang wurde gestartet: Die Passwörter von %n Geräten wurden nicht geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>请先在左侧勾选设备</source>
        <translation>Wählen Sie zuerst links Geräte aus</translation>
    </message>
    <message>
        <source>“%1”正在进行，请等待其完成</source>
        <translation>„%1“ läuft. Warten Sie, bis der Vorgang beendet ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备的密码没有修改（%1），已标记</source>
        <extracomment>%1 are the reasons.</extracomment>
        <translation>
            <numerusform>Passwort auf %n Gerät nicht geändert (%1); es ist markiert</numerusform>
            <numerusform>Passwort auf %n Geräten nicht geändert (%1); sie sind markiert</numerusform>
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
        <translation>Verschlüsselte Geräteliste</translation>
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
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>应用程序已经运行!</source>
        <translation>Das Programm läuft bereits.</translation>
    </message>
</context>
<context>
    <name>ReloginDialog</name>
    <message>
        <source>请输入账号</source>
        <translation>Geben Sie das Konto ein</translation>
    </message>
    <message>
        <source>请输入密码</source>
        <translation>Geben Sie das Passwort ein</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Erneut anmelden</translation>
    </message>
    <message>
        <source>设备 %1 没有接受登录，请输入它的账号和密码。</source>
        <translation>Anmeldung an %1 fehlgeschlagen. Geben Sie Benutzername und Passwort ein.</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message numerus="yes">
        <source>密码错误，已 %n 次</source>
        <translation>
            <numerusform>Falsches Passwort, %n Mal</numerusform>
            <numerusform>Falsches Passwort, %n Mal</numerusform>
        </translation>
    </message>
    <message>
        <source>设备的应答：%1</source>
        <translation>Antwort des Geräts: %1</translation>
    </message>
    <message>
        <source>设备没有报告剩余的尝试次数。继续输错可能锁定账户。</source>
        <translation>Das Gerät meldet nicht, wie viele Versuche übrig sind. Weitere falsche Passwörter können das Konto sperren.</translation>
    </message>
    <message>
        <source>保存为此设备的账号</source>
        <translation>Als Konto dieses Geräts speichern</translation>
    </message>
    <message>
        <source>登录成功后，以后登录这台设备都使用此账号</source>
        <translation>Nach erfolgreicher Anmeldung erfolgt die Anmeldung an diesem Gerät immer mit diesem Konto</translation>
    </message>
    <message>
        <source>之后的设备也使用此账号</source>
        <translation>Auch für spätere Geräte</translation>
    </message>
    <message>
        <source>登录成功后，没有自己账号的设备都用此账号代替搜索设置中的账号，批处理也是如此，直到程序退出或搜索设置中的账号改变</source>
        <translation>Nach erfolgreicher Anmeldung wird dieses Konto bei allen Geräten ohne eigenes Konto, auch denen von Aufträgen, anstelle des Kontos der Sucheinstellungen versucht, bis das Programm endet oder das Konto der Sucheinstellungen geändert wird</translation>
    </message>
</context>
<context>
    <name>ReportTexts</name>
    <message>
        <source>锐度</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>防抖</source>
        <translation>Stabilisierung</translation>
    </message>
    <message>
        <source>曝光</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source>背光</source>
        <translation>Gegenlicht</translation>
    </message>
    <message>
        <source>白平衡</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>日夜模式</source>
        <translation>Tag/Nacht-Modus</translation>
    </message>
    <message>
        <source>透雾</source>
        <translation>Entnebeln</translation>
    </message>
    <message>
        <source>补光灯</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>对比度</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>饱和度</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>色调</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>未初始化</source>
        <translation>Nicht initialisiert</translation>
    </message>
    <message>
        <source>地址重复</source>
        <translation>Doppelte Adresse</translation>
    </message>
    <message>
        <source>登录被拒绝</source>
        <translation>Anmeldung abgelehnt</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>时间不准</source>
        <translation>Uhr geht falsch</translation>
    </message>
    <message>
        <source>固件较旧</source>
        <translation>Ältere Firmware</translation>
    </message>
    <message>
        <source>未使用时间服务器</source>
        <translation>Kein Zeitserver</translation>
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
        <translation>Genau</translation>
    </message>
    <message>
        <source>快 %1</source>
        <extracomment>The clock of a device against that of the computer. %1 is a span of time.</extracomment>
        <translation>geht %1 vor</translation>
    </message>
    <message>
        <source>慢 %1</source>
        <translation>geht %1 nach</translation>
    </message>
    <message>
        <source>%1，同型号设备为 %2</source>
        <extracomment>%1 is the firmware version of a device, %2 the newer version of another device of the same model.</extracomment>
        <translation>%1; ein anderes Gerät dieses Modells hat %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>开启</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanalname</translation>
    </message>
    <message>
        <source>编码设置</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>图像设置</source>
        <extracomment>An image setting of a device was changed. %1 is the setting.</extracomment>
        <translation>Bildeinstellungen</translation>
    </message>
    <message>
        <source>图像设置：%1</source>
        <translation>Bildeinstellungen: %1</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Standortbericht</translation>
    </message>
    <message>
        <source>异常项</source>
        <translation>Auffälligkeiten</translation>
    </message>
    <message>
        <source>本次更改</source>
        <translation>Änderungen vor Ort</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
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
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>时间偏差</source>
        <translation>Zeitabweichung</translation>
    </message>
    <message>
        <source>时间偏差（秒）</source>
        <translation>Zeitabweichung (s)</translation>
    </message>
    <message>
        <source>时间服务器</source>
        <translation>Zeitserver</translation>
    </message>
    <message>
        <source>通道数</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>主码流</source>
        <translation>Hauptstream</translation>
    </message>
    <message>
        <source>通道</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>宽度（像素）</source>
        <translation>Breite (px)</translation>
    </message>
    <message>
        <source>高度（像素）</source>
        <translation>Höhe (px)</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>更改前</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>新值</source>
        <translation>Neuer Wert</translation>
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
        <translation>Nicht gemeldet</translation>
    </message>
    <message>
        <source>无图像</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>没有异常项。</source>
        <translation>Keine Auffälligkeiten.</translation>
    </message>
    <message>
        <source>程序启动以来没有更改设备。</source>
        <translation>Seit dem Start des Programms wurde kein Gerät geändert.</translation>
    </message>
    <message>
        <source>已读取</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>有异常</source>
        <translation>Mit Auffälligkeiten</translation>
    </message>
    <message>
        <source>PDF文件无法生成</source>
        <translation>Die PDF-Datei kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>无法建立文件夹 %1</source>
        <translation>Der Ordner %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>%1 无法写入：%2</source>
        <extracomment>%1 is the path of a file or folder, %2 the reason why it cannot be written.</extracomment>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>较早的 %1 项更改未保留。</source>
        <translation>%1 frühere Änderungen sind nicht aufgeführt.</translation>
    </message>
    <message>
        <source>另有 %1 个通道</source>
        <translation>%1 weitere Kanäle</translation>
    </message>
    <message>
        <source>通道 %1</source>
        <extracomment>A channel of a recorder. %1 is its number, from 1.</extracomment>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>IP-Adresse ändern</translation>
    </message>
    <message>
        <source>设置时间</source>
        <translation>Zeit einstellen</translation>
    </message>
    <message>
        <source>固件升级</source>
        <translation>Firmware-Update</translation>
    </message>
    <message>
        <source>时间服务器和时区</source>
        <translation>Zeitserver und Zeitzone</translation>
    </message>
    <message>
        <source>夏令时</source>
        <translation>Sommerzeit</translation>
    </message>
    <message>
        <source>自动维护</source>
        <translation>Automatische Wartung</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>恢复默认设置</source>
        <translation>Standardwerte wiederherstellen</translation>
    </message>
    <message>
        <source>视频制式</source>
        <translation>Videonorm</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>临时文件夹 %1 无法使用：%2</source>
        <extracomment>%1 is the path of the folder for temporary files, %2 the reason why it cannot be used.</extracomment>
        <translation>Der Ordner für temporäre Dateien %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>连续 %1 台设备拒绝登录</source>
        <extracomment>Why a device of a report was not read: %1 devices in a row refused the login, and the report was stopped.</extracomment>
        <translation>%1 Geräte in Folge haben die Anmeldung abgelehnt</translation>
    </message>
</context>
<context>
    <name>RestartDialog</name>
    <message>
        <source>重启</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Sprachwechsel</translation>
    </message>
    <message>
        <source>语言变更需要重新启动程序才能生效！</source>
        <translation>Die Sprache wechselt beim Neustart des Programms.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>ResultNames</name>
    <message>
        <source>命令失败</source>
        <translation>Befehl fehlgeschlagen</translation>
    </message>
    <message>
        <source>成功</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Das Konto ist nicht vorhanden</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Das Konto ist gesperrt. Warten Sie, bis das Gerät es freigibt.</translation>
    </message>
    <message>
        <source>账号已登录</source>
        <translation>Das Konto wird bereits verwendet</translation>
    </message>
    <message>
        <source>网络异常</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>协议不匹配</source>
        <translation>Protokoll passt nicht</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Das Gerät ist nicht initialisiert</translation>
    </message>
    <message>
        <source>设备不支持此操作</source>
        <translation>Das Gerät unterstützt dies nicht</translation>
    </message>
    <message>
        <source>设备已存在</source>
        <translation>Das Gerät ist bereits in der Liste</translation>
    </message>
    <message>
        <source>获取设备能力失败</source>
        <translation>Die Fähigkeiten des Geräts konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>设备拒绝了此操作</source>
        <translation>Das Gerät hat die Anforderung abgelehnt</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Unbekannter Fehler %1</translation>
    </message>
    <message>
        <source>设备正在升级</source>
        <translation>Das Gerät wird gerade aktualisiert</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Nicht ausgeführt</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Schnappschuss fehlgeschlagen</translation>
    </message>
    <message>
        <source>数据无效</source>
        <translation>Ungültige Daten</translation>
    </message>
    <message>
        <source>升级文件不可用</source>
        <translation>Firmwaredatei nicht verwendbar</translation>
    </message>
    <message>
        <source>升级未完成</source>
        <translation>Nicht aktualisiert</translation>
    </message>
    <message>
        <source>升级结果未确认</source>
        <translation>Update nicht bestätigt</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Das Gerät ist ausgelastet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>登录已失效，请重新登录</source>
        <translation>Die Sitzung ist abgelaufen. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>设备不接受该值</source>
        <translation>Das Gerät akzeptiert diesen Wert nicht</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Dem Zertifikat des Geräts wird nicht vertraut</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Das Zertifikat des Geräts hat sich geändert</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>该地址上应答的是其他设备</source>
        <translation>Ein anderes Gerät antwortet unter dieser Adresse</translation>
    </message>
    <message>
        <source>设备已接受，但结果未确认</source>
        <translation>Vom Gerät angenommen, nicht bestätigt</translation>
    </message>
</context>
<context>
    <name>SearchReportDialog</name>
    <message>
        <source>复制文本</source>
        <translation>Text kopieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>搜索报告</source>
        <translation>Suchbericht</translation>
    </message>
    <message>
        <source>已复制到剪贴板</source>
        <translation>In die Zwischenablage kopiert</translation>
    </message>
</context>
<context>
    <name>SearchReportText</name>
    <message>
        <source>网卡</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <source>本机没有可用的网卡</source>
        <translation>Dieser Computer hat keinen nutzbaren Netzwerkadapter</translation>
    </message>
    <message>
        <source>检查网卡是否已安装并启用。</source>
        <translation>Prüfen Sie, ob ein Adapter installiert und aktiviert ist.</translation>
    </message>
    <message>
        <source>按地址搜索</source>
        <translation>Suche über Adressen</translation>
    </message>
    <message>
        <source>已询问</source>
        <translation>Angefragte Adressen</translation>
    </message>
    <message>
        <source>%1 个地址</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>有应答</source>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>本机没有到其中 %1 个地址的路由</source>
        <translation>Keine Route zu %1 dieser Adressen</translation>
    </message>
    <message>
        <source>为网卡设置网关，或添加一个与这些地址同一网段的地址。</source>
        <translation>Legen Sie ein Gateway für den Adapter fest, oder fügen Sie eine Adresse im selben Netz wie diese Adressen hinzu.</translation>
    </message>
    <message>
        <source>没有地址应答</source>
        <translation>Keine Antwort von irgendeiner Adresse</translation>
    </message>
    <message>
        <source>检查搜索设置中的地址范围，以及设备是否已通电。</source>
        <translation>Prüfen Sie den Adressbereich in den Sucheinstellungen und ob die Geräte eingeschaltet sind.</translation>
    </message>
    <message>
        <source>其他网段</source>
        <translation>Andere Netze</translation>
    </message>
    <message>
        <source>找到的 %1 台设备不在本机的任何网段内</source>
        <translation>Außerhalb aller Netze dieses Computers gefundene Geräte: %1</translation>
    </message>
    <message>
        <source>登录它们之前，修改设备的IP地址，或为网卡添加一个同一网段的地址。</source>
        <translation>Ändern Sie vor der Anmeldung ihre IP-Adressen, oder fügen Sie dem Adapter eine Adresse in ihrem Netz hinzu.</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Adressen</translation>
    </message>
    <message>
        <source>已发送</source>
        <translation>Gesendete Anfragen</translation>
    </message>
    <message>
        <source>%1 个请求</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>已收到</source>
        <translation>Empfangene Nachrichten</translation>
    </message>
    <message>
        <source>%1 条消息</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>找到</source>
        <translation>Gefundene Geräte</translation>
    </message>
    <message>
        <source>%1 台设备</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>未采用</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>无法识别的消息 %1 条</source>
        <translation>unlesbare Nachrichten: %1</translation>
    </message>
    <message>
        <source>非视频设备的消息 %1 条</source>
        <translation>Nachrichten von anderen Geräten als Kameras und Rekordern: %1</translation>
    </message>
    <message>
        <source>没有服务地址的消息 %1 条</source>
        <translation>Nachrichten ohne Dienstadresse: %1</translation>
    </message>
    <message>
        <source>服务地址属于其他主机的消息 %1 条</source>
        <translation>Nachrichten mit Dienstadresse eines anderen Hosts: %1</translation>
    </message>
    <message>
        <source>设备离开网络的通知 %1 条</source>
        <translation>Nachrichten von Geräten, die das Netz verlassen: %1</translation>
    </message>
    <message>
        <source>超出数量限制的消息 %1 条</source>
        <translation>Nachrichten über dem Limit: %1</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>网卡已停用</source>
        <translation>Der Adapter ist deaktiviert</translation>
    </message>
    <message>
        <source>在操作系统的网络设置中启用它。</source>
        <translation>Aktivieren Sie ihn in den Netzwerkeinstellungen des Betriebssystems.</translation>
    </message>
    <message>
        <source>网络未连接</source>
        <translation>Der Adapter ist nicht verbunden</translation>
    </message>
    <message>
        <source>检查网线和交换机，或连接到无线网络。</source>
        <translation>Prüfen Sie Kabel und Switch, oder verbinden Sie sich mit einem WLAN.</translation>
    </message>
    <message>
        <source>没有IP地址</source>
        <translation>Der Adapter hat keine IP-Adresse</translation>
    </message>
    <message>
        <source>设置一个与设备同一网段的地址，或启用DHCP。</source>
        <translation>Legen Sie eine Adresse im Netz der Geräte fest, oder aktivieren Sie DHCP.</translation>
    </message>
    <message>
        <source>网卡不能发送组播</source>
        <translation>Der Adapter kann kein Multicast senden</translation>
    </message>
    <message>
        <source>在搜索设置中选择其他网段，按地址搜索。</source>
        <translation>Wählen Sie in den Sucheinstellungen andere Netze aus, um über Adressen zu suchen.</translation>
    </message>
    <message>
        <source>系统拒绝发送请求：%1</source>
        <translation>Das Betriebssystem hat die Anfragen nicht gesendet: %1</translation>
    </message>
    <message>
        <source>检查本机的防火墙和网卡的设置。</source>
        <translation>Prüfen Sie die Firewall dieses Computers und die Einstellungen des Adapters.</translation>
    </message>
    <message>
        <source>没有收到任何应答</source>
        <translation>Keine Antworten empfangen</translation>
    </message>
    <message>
        <source>检查设备是否已通电并连接到同一网络，以及本机的防火墙和交换机是否过滤了应答。也可以在搜索设置中按地址搜索。</source>
        <translation>Prüfen Sie, ob die Geräte eingeschaltet und im selben Netz sind und ob weder Firewall noch Switch ihre Antworten filtert. Sie können auch über Adressen suchen: siehe Sucheinstellungen.</translation>
    </message>
    <message>
        <source>找到 %1 台设备，比上次搜索少 %2 台。</source>
        <translation>%1 Geräte gefunden, %2 weniger als bei der letzten Suche.</translation>
    </message>
    <message>
        <source>找到 %1 台设备。</source>
        <translation>Gefundene Geräte: %1.</translation>
    </message>
    <message>
        <source>没有找到设备。</source>
        <translation>Keine Geräte gefunden.</translation>
    </message>
</context>
<context>
    <name>SearchSettingsDialog</name>
    <message>
        <source>起始ip不可以大于结束ip</source>
        <translation>Die Start-IP darf nicht größer als die End-IP sein</translation>
    </message>
    <message>
        <source>仅支持跨16个网段搜索</source>
        <translation>Der Bereich darf höchstens 17 Segmente umfassen</translation>
    </message>
    <message>
        <source>请输入正确的起始IP</source>
        <translation>Geben Sie eine gültige Start-IP ein</translation>
    </message>
    <message>
        <source>请输入正确的结束IP</source>
        <translation>Geben Sie eine gültige End-IP ein</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>搜索设置</source>
        <translation>Sucheinstellungen</translation>
    </message>
    <message>
        <source>搜索本地网段</source>
        <translation>Lokales Netz durchsuchen</translation>
    </message>
    <message>
        <source>搜索其他网段</source>
        <translation>Andere Netze durchsuchen</translation>
    </message>
    <message>
        <source>起始IP</source>
        <translation>Start-IP</translation>
    </message>
    <message>
        <source>结束IP</source>
        <translation>End-IP</translation>
    </message>
    <message>
        <source>用户名</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>登录搜索到的设备时默认使用此账号</source>
        <translation>Standardkonto für die Anmeldung an Geräten</translation>
    </message>
    <message>
        <source>搜索时用此账号登录设备</source>
        <translation>Während der Suche an Geräten anmelden</translation>
    </message>
    <message>
        <source>读取型号、版本号和MAC。每台设备都会收到此账号；密码错误的设备不会再次尝试。</source>
        <translation>Liest Modell, Version und MAC-Adresse. Jedes Gerät erhält dieses Konto. Nach einem falschen Passwort wird ein Gerät nicht erneut versucht.</translation>
    </message>
</context>
<context>
    <name>SecretProblem</name>
    <message>
        <source>没有密钥服务</source>
        <translation>es gibt keinen Schlüsselbunddienst</translation>
    </message>
    <message>
        <source>密钥服务已锁定</source>
        <translation>der Schlüsselbunddienst ist gesperrt</translation>
    </message>
    <message>
        <source>密钥服务没有响应</source>
        <translation>der Schlüsselbunddienst antwortet nicht</translation>
    </message>
</context>
<context>
    <name>SecretVault</name>
    <message>
        <source>部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码</source>
        <translation>Einige Passwörter sind im Schlüsselbunddienst des Desktops und können nicht gelesen werden (%1). Geben Sie sie erneut ein.</translation>
    </message>
    <message>
        <source>无法使用桌面的密钥服务（%1）。密码保存在文件中</source>
        <translation>Der Schlüsselbunddienst des Desktops kann nicht verwendet werden (%1). Passwörter werden in Dateien gespeichert.</translation>
    </message>
    <message>
        <source>密码无法存入桌面的密钥服务（%1），保存在文件中</source>
        <translation>Das Passwort konnte nicht im Schlüsselbunddienst des Desktops gespeichert werden (%1). Es wird in einer Datei gespeichert.</translation>
    </message>
    <message>
        <source>密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除</source>
        <translation>Das Passwort konnte nicht aus dem Schlüsselbunddienst des Desktops entfernt werden (%1). Entfernen Sie es in der Schlüsselverwaltung des Systems.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>无法打开模拟站点：</source>
        <translation>Der Demo-Standort konnte nicht geöffnet werden:</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>文件不是现场文件，或者已损坏</source>
        <translation>Die Datei ist keine Standortdatei oder sie ist beschädigt</translation>
    </message>
    <message>
        <source>现场文件由更新的版本保存，无法读取</source>
        <translation>Die Standortdatei stammt von einer neueren Version und kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>现场文件的设备超过 %1 台</source>
        <translation>Die Standortdatei hat mehr als %1 Geräte</translation>
    </message>
    <message>
        <source>现场文件中的名称无效</source>
        <translation>Der Name in der Standortdatei ist ungültig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备的 %2 无效</source>
        <translation>Gerät %1 der Standortdatei: %2 ist ungültig</translation>
    </message>
    <message>
        <source>现场文件中第 %1 台设备重复</source>
        <translation>Gerät %1 der Standortdatei kommt doppelt vor</translation>
    </message>
    <message>
        <source>无法打开文件</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>文件过大</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
</context>
<context>
    <name>SiteFiles</name>
    <message>
        <source>现场文件 (*.site)</source>
        <translation>Standortdateien (*.site)</translation>
    </message>
    <message>
        <source>打开现场</source>
        <translation>Standort öffnen</translation>
    </message>
    <message numerus="yes">
        <source>已打开现场“%1”，共 %n 台设备</source>
        <translation>
            <numerusform>Standort „%1“ mit %n Gerät geöffnet</numerusform>
            <numerusform>Standort „%1“ mit %n Geräten geöffnet</numerusform>
        </translation>
    </message>
    <message>
        <source>无法打开现场 %1：%2</source>
        <translation>Der Standort %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>现场</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>现场另存为</source>
        <translation>Standort speichern unter</translation>
    </message>
    <message>
        <source>现场已保存到 %1</source>
        <translation>Der Standort wurde unter %1 gespeichert</translation>
    </message>
    <message>
        <source>文件不含密码。</source>
        <translation>Die Datei enthält keine Passwörter.</translation>
    </message>
    <message>
        <source>新建现场后，已知设备和分组从列表中清除。未保存的更改会保留在最近的现场中。</source>
        <translation>Ein neuer Standort entfernt bekannte Geräte und Gruppen aus der Liste. Nicht gespeicherte Änderungen bleiben bei den letzten Standorten erhalten.</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>新建现场</source>
        <translation>Neuer Standort</translation>
    </message>
</context>
<context>
    <name>SiteMenu</name>
    <message>
        <source>现场</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>打开现场…</source>
        <translation>Standort öffnen…</translation>
    </message>
    <message>
        <source>现场另存为…</source>
        <translation>Standort speichern unter…</translation>
    </message>
    <message>
        <source>新建现场…</source>
        <translation>Neuer Standort…</translation>
    </message>
</context>
<context>
    <name>SiteReportDialog</name>
    <message>
        <source>请输入现场名称</source>
        <translation>Geben Sie den Namen des Standorts ein</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>请至少选择一种文件</source>
        <translation>Wählen Sie mindestens eine Datei aus</translation>
    </message>
    <message>
        <source>列表中没有设备</source>
        <translation>Die Liste enthält keine Geräte</translation>
    </message>
    <message>
        <source>生成报告</source>
        <translation>Bericht erstellen</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Standortbericht</translation>
    </message>
    <message>
        <source>报告正在生成</source>
        <translation>Ein Bericht wird gerade erstellt</translation>
    </message>
    <message>
        <source>现场名称</source>
        <translation>Standortname</translation>
    </message>
    <message>
        <source>安装人员</source>
        <translation>Installateur</translation>
    </message>
    <message>
        <source>保存到</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Auswählen…</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>全部（%1）</source>
        <translation>Alle (%1)</translation>
    </message>
    <message>
        <source>勾选的（%1）</source>
        <translation>Ausgewählte (%1)</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>将登录每台设备，读取信息并获取图像。报告包含程序启动以来的更改，不含密码。</source>
        <translation>Das Programm meldet sich an jedem Gerät an, liest die Einstellungen und ruft ein Bild ab. Der Bericht enthält die Änderungen seit dem Start des Programms und keine Passwörter.</translation>
    </message>
</context>
<context>
    <name>SiteReportResult</name>
    <message>
        <source>无法打开 %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>打开PDF</source>
        <translation>PDF öffnen</translation>
    </message>
    <message>
        <source>现场报告</source>
        <translation>Standortbericht</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>报告已生成</source>
        <translation>Der Bericht ist fertig</translation>
    </message>
    <message>
        <source>请选择文件夹</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>换一个文件夹…</source>
        <translation>Anderer Ordner…</translation>
    </message>
</context>
<context>
    <name>SnapThread</name>
    <message>
        <source>通道未连接</source>
        <translation>Kanal nicht verbunden</translation>
    </message>
    <message>
        <source>抓图失败</source>
        <translation>Schnappschuss fehlgeschlagen</translation>
    </message>
    <message>
        <source>抓图失败，图片无法写入：%1</source>
        <translation>Schnappschuss fehlgeschlagen: Die Datei konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>SnapshotCell</name>
    <message>
        <source>正在抓图…</source>
        <translation>Schnappschuss wird aufgenommen…</translation>
    </message>
    <message>
        <source>等待中</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>重新抓取</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>SnapshotDialog</name>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>打开文件夹</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>抓图</source>
        <translation>Schnappschüsse</translation>
    </message>
    <message>
        <source>正在抓图 %1 / %2</source>
        <translation>Schnappschuss %1 von %2 wird aufgenommen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n aufgenommen</numerusform>
            <numerusform>%n aufgenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
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
        <translation>Schnappschüsse</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>Nicht ausgeführt</translation>
    </message>
    <message>
        <source>设备已移出画面</source>
        <translation>Das Gerät wird nicht mehr angezeigt</translation>
    </message>
</context>
<context>
    <name>SystemDaylightPoint</name>
    <message>
        <source>月</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>星期</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>SystemDaylightSection</name>
    <message>
        <source>夏令时</source>
        <translation>Sommerzeit</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>按日期</source>
        <translation>Nach Datum</translation>
    </message>
    <message>
        <source>按星期</source>
        <translation>Nach Woche</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>应用夏令时</source>
        <translation>Sommerzeit anwenden</translation>
    </message>
    <message>
        <source>请输入正确的时间</source>
        <translation>Geben Sie eine gültige Zeit ein</translation>
    </message>
</context>
<context>
    <name>SystemDeviceTree</name>
    <message>
        <source>全选</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>搜索…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>清除搜索</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>重新搜索</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>没有设备的名称、类型、型号或地址包含这些文字。</source>
        <translation>Kein Gerät mit diesem Namen, Typ, Modell oder dieser Adresse.</translation>
    </message>
    <message>
        <source>找到的设备会陆续显示在这里。</source>
        <translation>Gefundene Geräte erscheinen hier.</translation>
    </message>
    <message>
        <source>只列出已初始化的IPv4设备。</source>
        <translation>Nur initialisierte IPv4-Geräte sind aufgelistet.</translation>
    </message>
    <message>
        <source>没有匹配的设备</source>
        <translation>Keine passenden Geräte</translation>
    </message>
    <message>
        <source>正在搜索设备…</source>
        <translation>Geräte werden gesucht…</translation>
    </message>
    <message>
        <source>没有可配置的设备</source>
        <translation>Keine konfigurierbaren Geräte</translation>
    </message>
    <message>
        <source>未安装设备库</source>
        <translation>Keine Gerätebibliothek installiert</translation>
    </message>
    <message>
        <source>显示全部</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>程序无法与设备通信。可在“修改IP”页打开演示站点。</source>
        <translation>Das Programm kann nicht mit Geräten kommunizieren. Öffnen Sie den Demo-Standort auf der Seite „IP ändern“.</translation>
    </message>
    <message>
        <source>清除失败标记</source>
        <translation>Markierungen löschen</translation>
    </message>
    <message>
        <source>不再标记失败和未执行的设备</source>
        <translation>Entfernt die Markierungen fehlgeschlagener oder nicht ausgeführter Geräte</translation>
    </message>
    <message>
        <source>列表中的设备都已登录。</source>
        <translation>An allen aufgelisteten Geräten ist die Anmeldung erfolgt.</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备没有IP地址（等待DHCP），未列出</source>
        <translation>
            <numerusform>%n Gerät ohne Adresse (DHCP) wird nicht angezeigt</numerusform>
            <numerusform>%n Geräte ohne Adresse (DHCP) werden nicht angezeigt</numerusform>
        </translation>
    </message>
    <message>
        <source>失败和未执行的设备不在此列表中：没有初始化、没有IPv4地址或不再被找到。请查看“修改IP”页和批处理记录。</source>
        <translation>Die fehlgeschlagenen oder nicht ausgeführten Geräte sind nicht in diesem Baum: Sie sind nicht initialisiert, haben keine IPv4-Adresse oder wurden nicht wiedergefunden. Siehe die Seite „IP ändern“ und „Aufträge“.</translation>
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
        <translation>März</translation>
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
        <translation>Dezember</translation>
    </message>
    <message>
        <source>第一周</source>
        <translation>Erste</translation>
    </message>
    <message>
        <source>第二周</source>
        <translation>Zweite</translation>
    </message>
    <message>
        <source>第三周</source>
        <translation>Dritte</translation>
    </message>
    <message>
        <source>第四周</source>
        <translation>Vierte</translation>
    </message>
    <message>
        <source>最后一周</source>
        <translation>Letzte</translation>
    </message>
    <message>
        <source>周日</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>周一</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>周二</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>周三</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>周四</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>周五</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>周六</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>星期日</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>星期一</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>星期二</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>星期三</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>星期四</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>星期五</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>星期六</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>每天</source>
        <translation>Täglich</translation>
    </message>
</context>
<context>
    <name>SystemOperations</name>
    <message>
        <source>设备没有应答</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>没有读到设备的时间</source>
        <translation>Die Zeit konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>设备没有应答，密码可能已修改</source>
        <translation>Keine Antwort vom Gerät. Sein Passwort wurde möglicherweise geändert.</translation>
    </message>
</context>
<context>
    <name>SystemPanels</name>
    <message>
        <source>校时</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Werksreset</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
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
        <translation>Noch %1 s zur Eingabe des Passworts. Danach muss das alte Passwort erneut geprüft werden.</translation>
    </message>
    <message>
        <source>%1 秒后失效</source>
        <translation>Noch %1 s zur Eingabe des Passworts</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备等待新密码</source>
        <translation>
            <numerusform>%n Gerät wartet auf das neue Passwort</numerusform>
            <numerusform>%n Geräte warten auf das neue Passwort</numerusform>
        </translation>
    </message>
    <message>
        <source>已恢复之前输入的新密码</source>
        <translation>das eingegebene neue Passwort ist wiederhergestellt</translation>
    </message>
    <message>
        <source>请重新验证旧密码。</source>
        <translation>Prüfen Sie das alte Passwort erneut. </translation>
    </message>
    <message>
        <source>已输入的新密码届时会恢复。</source>
        <translation>Das eingegebene neue Passwort wird dann wiederhergestellt.</translation>
    </message>
    <message numerus="yes">
        <source>时间已到，%n 台设备的密码没有修改。</source>
        <translation>
            <numerusform>Die Zeit ist abgelaufen: Das Passwort von %n Gerät wurde nicht geändert. </numerusform>
            <numerusform>Die Zeit ist abgelaufen: Die Passwörter von %n Geräten wurden nicht geändert. </numerusform>
        </translation>
    </message>
    <message>
        <source>勾选的设备已改变。</source>
        <translation>Die Auswahl hat sich geändert. </translation>
    </message>
</context>
<context>
    <name>SystemPasswordPanel</name>
    <message>
        <source>请至少包含数字、字母和常用字符中的两种，且不能存在非法字符。</source>
        <translation>Verwenden Sie mindestens zwei der Arten Ziffern, Buchstaben und Symbole und keine unzulässigen Zeichen.</translation>
    </message>
    <message>
        <source>请确认密码</source>
        <translation>Bestätigen Sie das Passwort</translation>
    </message>
    <message>
        <source>请输入相同的密码</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>密码长度应当在8到32个字符范围内</source>
        <translation>Das Passwort muss 8 bis 32 Zeichen haben</translation>
    </message>
    <message>
        <source>请输入旧密码</source>
        <translation>Geben Sie das alte Passwort ein</translation>
    </message>
    <message>
        <source>第一步：验证旧密码</source>
        <translation>Schritt 1: altes Passwort prüfen</translation>
    </message>
    <message>
        <source>旧密码</source>
        <translation>Altes Passwort</translation>
    </message>
    <message>
        <source>验证</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>第二步：设置新密码</source>
        <translation>Schritt 2: neues Passwort festlegen</translation>
    </message>
    <message>
        <source>新密码</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>确认密码</source>
        <translation>Passwort bestätigen</translation>
    </message>
    <message>
        <source>密码8~32位,且至少包含数字、字母和常用字符中的两种(字符为除&apos;&quot;:;&amp;这五个字符以外的任意可见字符)</source>
        <translation>8 bis 32 Zeichen, mindestens zwei der Arten Ziffern, Buchstaben und Symbole (alle sichtbaren Zeichen außer &apos;&quot;:;&amp;)</translation>
    </message>
    <message>
        <source>修改密码</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>成功后</source>
        <translation>Bei Erfolg</translation>
    </message>
</context>
<context>
    <name>SystemPreview</name>
    <message>
        <source>启用夏令时</source>
        <translation>Sommerzeit ein</translation>
    </message>
    <message>
        <source>停用夏令时</source>
        <translation>Sommerzeit aus</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>停用NTP</source>
        <translation>NTP aus</translation>
    </message>
    <message>
        <source>%1 %2 重启</source>
        <extracomment>Time of a reboot: a day of the week or every day, and a time.</extracomment>
        <translation>Neustart %1 %2</translation>
    </message>
    <message>
        <source>停用定时重启</source>
        <translation>Regelmäßiger Neustart aus</translation>
    </message>
    <message numerus="yes">
        <source>确定要重启选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Ausgewähltes Gerät neu starten?</numerusform>
            <numerusform>Die %n ausgewählten Geräte neu starten?</numerusform>
        </translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Neu starten</translation>
    </message>
    <message numerus="yes">
        <source>确定要将选中的 %n 台设备恢复出厂设置吗？</source>
        <translation>
            <numerusform>Ausgewähltes Gerät auf Werkseinstellungen zurücksetzen?</numerusform>
            <numerusform>Die %n ausgewählten Geräte auf Werkseinstellungen zurücksetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>将对下列设备执行“%1”：</source>
        <translation>„%1“ wird auf diese Geräte angewendet:</translation>
    </message>
    <message numerus="yes">
        <source>更新周期为 0 分钟，设备可能不再校时。仍要应用到选中的 %n 台设备吗？</source>
        <translation>
            <numerusform>Das Aktualisierungsintervall ist 0 Minuten: Das Gerät stellt seine Zeit möglicherweise nicht mehr. Auf das ausgewählte Gerät anwenden?</numerusform>
            <numerusform>Das Aktualisierungsintervall ist 0 Minuten: Die Geräte stellen ihre Zeit möglicherweise nicht mehr. Auf die %n ausgewählten Geräte anwenden?</numerusform>
        </translation>
    </message>
    <message>
        <source>仍然应用</source>
        <translation>Trotzdem anwenden</translation>
    </message>
</context>
<context>
    <name>SystemRebootPanel</name>
    <message>
        <source>自动维护</source>
        <translation>Automatische Wartung</translation>
    </message>
    <message>
        <source>定时自动重启</source>
        <translation>Regelmäßig neu starten</translation>
    </message>
    <message>
        <source>重启时间</source>
        <translation>Neustart um</translation>
    </message>
    <message>
        <source>重启日</source>
        <translation>Tag des Neustarts</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>设备重启期间无法访问，录像和预览会中断。</source>
        <translation>Während des Neustarts ist ein Gerät nicht erreichbar und zeichnet nicht auf.</translation>
    </message>
    <message>
        <source>重启设备</source>
        <translation>Geräte neu starten</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能重启</source>
        <translation>
            <numerusform>%n ausgewähltes Gerät wird gerade aktualisiert und kann nicht neu gestartet werden</numerusform>
            <numerusform>%n ausgewählte Geräte werden gerade aktualisiert und können nicht neu gestartet werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemResetPanel</name>
    <message>
        <source>恢复出厂设置</source>
        <translation>Werkseinstellungen wiederherstellen</translation>
    </message>
    <message>
        <source>设备的全部配置、账号和密码都会清除，此操作无法撤销。恢复后需要重新初始化设备。</source>
        <translation>Löscht alle Einstellungen, Konten und Passwörter der Geräte. Dies kann nicht rückgängig gemacht werden. Die Geräte müssen neu initialisiert werden.</translation>
    </message>
    <message numerus="yes">
        <source>勾选的设备中有 %n 台正在升级，不能恢复出厂设置</source>
        <translation>
            <numerusform>%n ausgewähltes Gerät wird gerade aktualisiert und kann nicht zurückgesetzt werden</numerusform>
            <numerusform>%n ausgewählte Geräte werden gerade aktualisiert und können nicht zurückgesetzt werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SystemTimePanel</name>
    <message>
        <source>按电脑时间校时</source>
        <translation>Computerzeit</translation>
    </message>
    <message>
        <source>同步电脑时间</source>
        <translation>Auf Computerzeit stellen</translation>
    </message>
    <message>
        <source>每台设备得到发送时刻的电脑时间</source>
        <translation>Stellt jedes Gerät auf die Zeit, zu der es die Anforderung erhält</translation>
    </message>
    <message>
        <source>手动校时</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>取当前时间</source>
        <translation>Aktuelle Zeit übernehmen</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>设备时间</source>
        <translation>Gerätezeit</translation>
    </message>
    <message>
        <source>读取设备时间</source>
        <translation>Gerätezeiten lesen</translation>
    </message>
    <message>
        <source>设备</source>
        <translation>Gerät</translation>
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
        <translation>Nicht angemeldet %1</translation>
    </message>
    <message>
        <source>只显示还没有登录过或最近一次登录失败的设备</source>
        <translation>Zeigt nur Geräte ohne bisherige Anmeldung oder mit fehlgeschlagener letzter Anmeldung</translation>
    </message>
    <message>
        <source>未成功 %1</source>
        <extracomment>Shows only the devices whose batches failed or did not reach them; %1 is their number.</extracomment>
        <translation>Offen %1</translation>
    </message>
    <message>
        <source>只显示失败和未执行的设备，按原因排列。</source>
        <translation>Zeigt nur fehlgeschlagene oder nicht ausgeführte Geräte, nach Grund sortiert.</translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 台不在此列表中，见批处理记录。</source>
        <translation>
            <numerusform> %n weiteres ist nicht in dieser Liste: siehe „Aufträge“.</numerusform>
            <numerusform> %n weitere sind nicht in dieser Liste: siehe „Aufträge“.</numerusform>
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
        <translation>PAL gilt für Regionen mit 50-Hz-Netz, NTSC für 60 Hz. Einige Geräte starten nach der Änderung neu.</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>设备的接口没有此功能</source>
        <translation>Die Geräte bieten diese Funktion nicht an</translation>
    </message>
</context>
<context>
    <name>SystemZonePanel</name>
    <message>
        <source>请输入NTP服务器</source>
        <translation>Geben Sie den NTP-Server ein</translation>
    </message>
    <message>
        <source>时区和NTP</source>
        <translation>Zeitzone und NTP</translation>
    </message>
    <message>
        <source>时区</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>启用NTP</source>
        <translation>NTP aktivieren</translation>
    </message>
    <message>
        <source>NTP服务器</source>
        <translation>NTP-Server</translation>
    </message>
    <message>
        <source>地址或域名</source>
        <translation>IP-Adresse oder Hostname</translation>
    </message>
    <message>
        <source>NTP端口</source>
        <translation>NTP-Port</translation>
    </message>
    <message>
        <source>更新周期(分钟)</source>
        <translation>Intervall (min)</translation>
    </message>
    <message>
        <source>应用时区和NTP</source>
        <translation>Zeitzone und NTP anwenden</translation>
    </message>
    <message>
        <source>设备没有本机的时区 %1，请选择时区</source>
        <translation>Die Geräte bieten %1, die Zeitzone dieses Computers, nicht an. Wählen Sie eine Zeitzone.</translation>
    </message>
    <message>
        <source>请输入正确的IP地址或域名</source>
        <translation>Geben Sie eine gültige IP-Adresse oder einen gültigen Hostnamen ein</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>设备的IP地址；网页端口不是80时写成“地址:网页端口”。必填。</source>
        <translation>IP-Adresse des Geräts, oder „Adresse:Webport“, wenn der Webport nicht 80 ist. Erforderlich.</translation>
    </message>
    <message>
        <source>设备的登录端口，只用于检查账号，不用于发送命令。</source>
        <translation>Anmeldeport des Geräts. Dient nur zur Prüfung des Kontos.</translation>
    </message>
    <message>
        <source>登录设备的用户名，不能包含冒号。</source>
        <translation>Benutzername des Geräts, ohne Doppelpunkte.</translation>
    </message>
    <message>
        <source>登录设备的密码。执行完成后请从文件中删除。</source>
        <translation>Passwort des Geräts. Entfernen Sie es danach aus der Datei.</translation>
    </message>
    <message>
        <source>以“/”开头的命令。设备接受的命令会发送两次。必填。</source>
        <translation>Befehl, der mit „/“ beginnt. Das Gerät erhält einen angenommenen Befehl zweimal. Erforderlich.</translation>
    </message>
    <message>
        <source>协议</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>0表示HTTP，其他整数表示HTTPS；不填时为HTTP。</source>
        <translation>0 für HTTP, andere ganze Zahlen für HTTPS. HTTP, wenn leer.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>由程序填写：设备的应答，图片或录像的文件路径，或以“Error:”开头的失败原因。</source>
        <translation>Wird vom Programm ausgefüllt: die Antwort, der Pfad des Bilds oder der Aufzeichnung, oder „Error:“ und der Grund.</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在执行前用自己的内容替换示例行。</source>
        <translation>Behalten Sie die Kopfzeile. Ersetzen Sie die Beispielzeile durch Ihre eigenen Zeilen.</translation>
    </message>
    <message>
        <source>IP和命令都为空的行会被跳过。</source>
        <translation>Zeilen ohne Adresse und Befehl werden übersprungen.</translation>
    </message>
    <message>
        <source>执行时请不要在其他程序中打开此文件。</source>
        <translation>Öffnen Sie diese Datei während der Ausführung nicht in einem anderen Programm.</translation>
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
            <numerusform>%n Gerät kann mit dieser Datei nicht aktualisiert werden: siehe Ergebnis</numerusform>
            <numerusform>%n Geräte können mit dieser Datei nicht aktualisiert werden: siehe Ergebnis</numerusform>
        </translation>
    </message>
    <message>
        <source>第%1行 %2</source>
        <translation>Zeile %1: %2</translation>
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
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwaredatei</translation>
    </message>
    <message>
        <source>文件打开失败</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>文件格式错误</source>
        <translation>Das Dateiformat ist falsch</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>升级结果无法保存：%1</source>
        <translation>Die Ergebnisse konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>升级结果已保存到文件：%1</source>
        <translation>Ergebnisse gespeichert in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。升级结果已另存为：%1</source>
        <translation>Die Datei konnte nicht geschrieben werden. Sie ist schreibgeschützt oder in einem anderen Programm geöffnet. Ergebnisse gespeichert in %1</translation>
    </message>
    <message>
        <source>文档中的设备超过 %1 行，请分成多个文档</source>
        <translation>Die Tabelle hat mehr als %1 Geräte. Teilen Sie sie auf.</translation>
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
        <translation>%1: %2 aktualisiert, %3 fehlgeschlagen. </translation>
    </message>
</context>
<context>
    <name>UpgradePreview</name>
    <message>
        <source>文档中没有设备</source>
        <translation>Die Tabelle enthält keine Geräte</translation>
    </message>
    <message>
        <source>%1，不会执行</source>
        <translation>%1: übersprungen</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <extracomment>The name of a file, and the version of the firmware in it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>设备已是此版本</source>
        <translation>Das Gerät hat diese Version bereits</translation>
    </message>
    <message>
        <source>读取升级文档</source>
        <translation>Tabelle wird gelesen</translation>
    </message>
</context>
<context>
    <name>UpgradePreviewDialog</name>
    <message>
        <source>开始升级</source>
        <translation>Update starten</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Geräte-Update</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Update aus Tabelle</translation>
    </message>
    <message numerus="yes">
        <source>即将升级 %n 台设备。升级期间设备会重启，请勿断电。</source>
        <translation>
            <numerusform>%n Gerät wird aktualisiert. Es startet neu. Schalten Sie es nicht aus.</numerusform>
            <numerusform>%n Geräte werden aktualisiert. Sie starten neu. Schalten Sie sie nicht aus.</numerusform>
        </translation>
    </message>
    <message>
        <source>结果将写入文档。</source>
        <translation> Die Ergebnisse werden in die Tabelle geschrieben.</translation>
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
        <translation>Update: %1 von %2 erledigt</translation>
    </message>
    <message numerus="yes">
        <source>成功 %n</source>
        <translation>
            <numerusform>%n erfolgreich</numerusform>
            <numerusform>%n erfolgreich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>失败 %n</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpgradeTable</name>
    <message>
        <source>等待</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>发送</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>写入</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>重启</source>
        <translation>Neustart</translation>
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
        <translation>IP:Port</translation>
    </message>
    <message>
        <source>版本号</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwaredatei</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>未选择</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>可以重试</source>
        <translation>Wiederholung kann helfen</translation>
    </message>
    <message>
        <source>请先更正文件、账号或设备，再重新升级</source>
        <translation>Korrigieren Sie Datei, Konto oder Gerät, und starten Sie das Update dann erneut</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Schreiben hat begonnen: kann nicht gestoppt werden</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>UpgradeTemplateText</name>
    <message>
        <source>设备的IP地址。必填。</source>
        <translation>IP-Adresse des Geräts. Erforderlich.</translation>
    </message>
    <message>
        <source>设备的登录端口，不填时为37777。</source>
        <translation>Anmeldeport des Geräts. 37777, wenn leer.</translation>
    </message>
    <message>
        <source>登录设备的用户名；与密码都不填时使用程序已知的账号。</source>
        <translation>Benutzername des Geräts. Sind dieser und das Passwort leer, wird das Konto des Programms verwendet.</translation>
    </message>
    <message>
        <source>登录设备的密码。升级完成后请从文件中删除。</source>
        <translation>Passwort des Geräts. Entfernen Sie es danach aus der Datei.</translation>
    </message>
    <message>
        <source>升级文件的完整路径，或相对于此文档所在文件夹的路径。必填。</source>
        <translation>Pfad der Firmwaredatei, absolut oder relativ zum Ordner dieser Tabelle. Erforderlich.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>由程序填写：升级前后的版本，或失败原因。</source>
        <translation>Wird vom Programm ausgefüllt: die Versionen vor und nach dem Update, oder warum es fehlgeschlagen ist.</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>列</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>请保留第一行的标题，并在升级前用自己的内容替换示例行。</source>
        <translation>Behalten Sie die Kopfzeile. Ersetzen Sie die Beispielzeile durch Ihre eigenen Zeilen.</translation>
    </message>
    <message>
        <source>IP和升级文件都为空的行会被跳过。</source>
        <translation>Zeilen ohne Adresse und Firmwaredatei werden übersprungen.</translation>
    </message>
    <message>
        <source>升级时请不要在其他程序中打开此文件。</source>
        <translation>Öffnen Sie diese Datei während des Updates nicht in einem anderen Programm.</translation>
    </message>
</context>
<context>
    <name>UpgradeTexts</name>
    <message>
        <source>已开始写入，无法停止</source>
        <translation>Schreiben hat begonnen: kann nicht gestoppt werden</translation>
    </message>
    <message>
        <source>%1（%2%）</source>
        <translation>%1 bei %2 %</translation>
    </message>
    <message>
        <source>尚未停止，正在重试</source>
        <translation>Noch nicht gestoppt: neuer Versuch</translation>
    </message>
    <message>
        <source>固件已写入，设备正在重启，无法停止</source>
        <translation>Firmware geschrieben, Gerät startet neu: kann nicht gestoppt werden</translation>
    </message>
    <message>
        <source>升级成功：%1</source>
        <translation>Aktualisiert: %1</translation>
    </message>
    <message>
        <source>%1：未读到版本号</source>
        <translation>%1: keine Version gemeldet</translation>
    </message>
    <message>
        <source>%1：现为 %2，升级前的版本未知</source>
        <translation>%1: jetzt %2, vorherige Version unbekannt</translation>
    </message>
</context>
<context>
    <name>UpgradeToolBar</name>
    <message>
        <source>开始升级</source>
        <translation>Update starten</translation>
    </message>
    <message>
        <source>升级勾选的设备</source>
        <translation>Aktualisiert die Firmware der ausgewählten Geräte</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>为勾选的设备选择同一个升级文件</source>
        <translation>Wählt eine Firmwaredatei für die ausgewählten Geräte aus</translation>
    </message>
    <message>
        <source>重试失败项</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>再次升级重试可能成功的设备，例如无应答的设备</source>
        <translation>Wiederholt das Update der Geräte, bei denen dies helfen kann, etwa der Geräte ohne Antwort</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Update aus Tabelle</translation>
    </message>
    <message>
        <source>按表格文件升级其中的设备，并把结果写回文件</source>
        <translation>Aktualisiert die Geräte einer Tabelle und schreibt die Ergebnisse hinein</translation>
    </message>
    <message>
        <source>打开模板</source>
        <translation>Vorlage öffnen</translation>
    </message>
    <message>
        <source>打开升级文档的模板文件</source>
        <translation>Öffnet die Vorlage für Update-Tabellen</translation>
    </message>
    <message>
        <source>搜索...</source>
        <translation>Suchen…</translation>
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
        <translation>Geräte gleichzeitig</translation>
    </message>
    <message>
        <source>同时升级的设备数</source>
        <translation>Gleichzeitig aktualisierte Geräte</translation>
    </message>
</context>
<context>
    <name>UpgradeTools</name>
    <message>
        <source>等待设备重启</source>
        <translation>Warten auf den Neustart des Geräts</translation>
    </message>
    <message>
        <source>正在写入，请勿断电</source>
        <translation>Schreiben: Gerät nicht ausschalten</translation>
    </message>
    <message>
        <source>正在发送文件</source>
        <translation>Datei wird gesendet</translation>
    </message>
    <message>
        <source>正在登录设备</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>等待升级</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>升级成功</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>未选择升级文件</source>
        <translation>Keine Firmwaredatei ausgewählt</translation>
    </message>
    <message>
        <source>升级文件不存在</source>
        <translation>Die Firmwaredatei ist nicht vorhanden</translation>
    </message>
    <message>
        <source>升级文件无法读取</source>
        <translation>Die Firmwaredatei konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>升级文件是空的</source>
        <translation>Die Firmwaredatei ist leer</translation>
    </message>
    <message>
        <source>升级文件过大</source>
        <translation>Die Firmwaredatei ist zu groß</translation>
    </message>
    <message>
        <source>升级文件已损坏</source>
        <translation>Die Firmwaredatei ist beschädigt</translation>
    </message>
    <message>
        <source>升级文件不适用于此型号</source>
        <translation>Die Firmware ist für andere Modelle</translation>
    </message>
    <message>
        <source>设备不接受此升级文件</source>
        <translation>Firmware vom Gerät abgelehnt</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>账号不存在</source>
        <translation>Das Konto ist nicht vorhanden</translation>
    </message>
    <message>
        <source>账号被锁定</source>
        <translation>Das Konto ist gesperrt</translation>
    </message>
    <message>
        <source>设备未初始化</source>
        <translation>Das Gerät ist nicht initialisiert</translation>
    </message>
    <message>
        <source>设备不支持升级，或未初始化</source>
        <translation>Update nicht unterstützt, oder Gerät nicht initialisiert</translation>
    </message>
    <message>
        <source>IP或端口填写错误</source>
        <translation>Ungültige IP-Adresse oder ungültiger Port</translation>
    </message>
    <message>
        <source>与前面的行是同一设备</source>
        <translation>Gleiches Gerät wie in einer früheren Zeile</translation>
    </message>
    <message>
        <source>设备无应答</source>
        <translation>Keine Antwort vom Gerät</translation>
    </message>
    <message>
        <source>设备忙，请稍后重试</source>
        <translation>Das Gerät ist ausgelastet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>设备中断了升级</source>
        <translation>Abbruch durch Gerät</translation>
    </message>
    <message>
        <source>升级长时间没有进展</source>
        <translation>Zu lange kein Fortschritt</translation>
    </message>
    <message>
        <source>设备重启后未恢复</source>
        <translation>Keine Antwort nach dem Neustart</translation>
    </message>
    <message>
        <source>重启后仍是原版本</source>
        <translation>Version nach dem Neustart unverändert</translation>
    </message>
    <message>
        <source>已停止，设备未改动</source>
        <translation>Gestoppt: Gerät nicht geändert</translation>
    </message>
    <message>
        <source>程序退出，升级中断</source>
        <translation>Abgebrochen: Das Programm wurde geschlossen</translation>
    </message>
    <message>
        <source>未知错误 %1</source>
        <translation>Unbekannter Fehler %1</translation>
    </message>
    <message>
        <source>批量升级模板.xlsx</source>
        <translation>Stapel-Update-Vorlage.xlsx</translation>
    </message>
    <message>
        <source>设备已恢复，但无法确认版本</source>
        <translation>Neu gestartet, aber die Version konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>设备证书未确认</source>
        <translation>Zertifikat nicht vertrauenswürdig</translation>
    </message>
    <message>
        <source>设备证书已改变</source>
        <translation>Zertifikat hat sich geändert</translation>
    </message>
    <message>
        <source>设备已不在列表中</source>
        <translation>Das Gerät ist nicht mehr in der Liste</translation>
    </message>
</context>
<context>
    <name>UpgradeWork</name>
    <message>
        <source>请选择一台设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>选择升级文件</source>
        <translation>Firmwaredatei auswählen</translation>
    </message>
    <message>
        <source>升级文件</source>
        <translation>Firmwaredatei</translation>
    </message>
    <message>
        <source>所有文件</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>没有可以重试的设备</source>
        <translation>Keine Geräte zu wiederholen</translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备未升级成功，请查看结果</source>
        <extracomment>Devices that were upgraded.</extracomment>
        <translation>
            <numerusform>%n Gerät wurde nicht aktualisiert: siehe Ergebnis</numerusform>
            <numerusform>%n Geräte wurden nicht aktualisiert: siehe Ergebnis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 台设备升级成功</source>
        <translation>
            <numerusform>%n Gerät aktualisiert</numerusform>
            <numerusform>%n Geräte aktualisiert</numerusform>
        </translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>打开模板文件失败。</source>
        <translation>Die Vorlage konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>设备升级</source>
        <translation>Geräte-Update</translation>
    </message>
    <message>
        <source>升级文档</source>
        <translation>Update aus Tabelle</translation>
    </message>
    <message>
        <source>已停止：升级成功 %1 台，失败 %2 台，未执行 %3 台</source>
        <extracomment>Devices that were to be upgraded.</extracomment>
        <translation>Gestoppt: %1 aktualisiert, %2 fehlgeschlagen, %3 nicht ausgeführt</translation>
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
        <translation>Bewegungserkennung</translation>
    </message>
    <message>
        <source>报警</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>白天</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>夜晚</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>背光补偿</source>
        <translation>Gegenlichtkompensation</translation>
    </message>
    <message>
        <source>宽动态</source>
        <translation>Dynamikbereich (WDR)</translation>
    </message>
    <message>
        <source>强光抑制</source>
        <translation>Spitzlichtkompensation</translation>
    </message>
</context>
<context>
    <name>VideoConfig</name>
    <message>
        <source>编码配置</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>视频配置</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>重新登录</source>
        <translation>Erneut anmelden</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，登录后在此查看并修改它的配置。</source>
        <translation>Klicken Sie links auf ein Gerät, um sich anzumelden und seine Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>请选择设备</source>
        <translation>Wählen Sie ein Gerät aus</translation>
    </message>
    <message>
        <source>登录失败</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>继续配置</source>
        <translation>Hier fortfahren</translation>
    </message>
    <message>
        <source>同一时间只能登录一台设备。继续配置将关闭另一台设备的实时画面。</source>
        <translation>Die Anmeldung ist nur an einem Gerät gleichzeitig möglich. Beim Fortfahren wird die Live-Ansicht des anderen Geräts geschlossen.</translation>
    </message>
    <message>
        <source>正在查看另一台设备的实时画面</source>
        <translation>Die Live-Ansicht eines anderen Geräts ist geöffnet</translation>
    </message>
    <message>
        <source>连接已断开</source>
        <translation>Verbindung getrennt</translation>
    </message>
    <message>
        <source>通道名称</source>
        <translation>Kanalnamen</translation>
    </message>
    <message>
        <source>搜索到设备后，在此查看并修改它们的配置。</source>
        <translation>Die Konfiguration der Geräte wird hier angezeigt und geändert, sobald eine Suche welche gefunden hat.</translation>
    </message>
    <message>
        <source>没有设备</source>
        <translation>Keine Geräte</translation>
    </message>
    <message>
        <source>按规则命名</source>
        <translation>Nach Muster benennen</translation>
    </message>
    <message>
        <source>单击左侧的一台设备，在此修改它的通道名称，或者为勾选的摄像机统一命名。</source>
        <translation>Klicken Sie links auf ein Gerät, um hier seine Kanalnamen zu ändern, oder benennen Sie die ausgewählten Kameras gemeinsam.</translation>
    </message>
</context>
<context>
    <name>VideoItem</name>
    <message>
        <source>无法显示画面：Shaders 文件夹中的文件缺失或无法使用</source>
        <translation>Kein Bild: Dateien im Ordner Shaders fehlen oder sind beschädigt</translation>
    </message>
    <message>
        <source>无法显示画面：显卡不支持这样大的画面</source>
        <translation>Kein Bild: zu groß für die Grafikkarte</translation>
    </message>
</context>
<context>
    <name>VideoStream</name>
    <message>
        <source>播放失败</source>
        <translation>Wiedergabe fehlgeschlagen</translation>
    </message>
    <message>
        <source>播放失败：%1</source>
        <translation>Wiedergabe fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>与设备的连接已中断</source>
        <translation>Verbindung zum Gerät getrennt</translation>
    </message>
    <message>
        <source>设备结束了视频流</source>
        <translation>Das Gerät hat den Stream beendet</translation>
    </message>
    <message>
        <source>设备没有发送可显示的画面</source>
        <translation>Das Gerät sendet kein Video</translation>
    </message>
    <message>
        <source>设备不再接受登录</source>
        <translation>Das Gerät akzeptiert die Anmeldung nicht mehr</translation>
    </message>
    <message>
        <source>设备发送的数据不是视频流</source>
        <translation>Das Gerät sendet keinen Videostream</translation>
    </message>
    <message>
        <source>本机无法处理视频流</source>
        <translation>Dieser Computer kann den Stream nicht dekodieren</translation>
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
        <translation>Das Zertifikat des Geräts hat sich geändert. Die Webseite wurde nicht geöffnet. Geben Sie auf diesem Gerät kein Passwort ein.</translation>
    </message>
    <message>
        <source>设备证书未确认，网页未打开。</source>
        <translation>Das Zertifikat des Geräts ist nicht bestätigt. Die Webseite wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>无法打开浏览器，设备网页：%1</source>
        <translation>Der Browser konnte nicht geöffnet werden. Webseite des Geräts: %1</translation>
    </message>
</context>
<context>
    <name>WindowChoices</name>
    <message>
        <source>设置无法保存，请检查程序所在文件夹的写入权限</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden. Prüfen Sie Ihre Schreibrechte im Programmordner.</translation>
    </message>
</context>
<context>
    <name>WindowPopups</name>
    <message>
        <source>停止并退出</source>
        <translation>Stoppen und beenden</translation>
    </message>
    <message>
        <source>已开始写入的设备会自行完成升级，请勿断电。</source>
        <translation> Geräte, die gerade Firmware schreiben, machen selbstständig fertig: Schalten Sie sie nicht aus.</translation>
    </message>
    <message numerus="yes">
        <source>已信任 %n 个证书，请重试刚才的操作</source>
        <translation>
            <numerusform>%n Zertifikat bestätigt. Versuchen Sie es erneut.</numerusform>
            <numerusform>%n Zertifikate bestätigt. Versuchen Sie es erneut.</numerusform>
        </translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>账号无法保存，只用到下次搜索：%1</source>
        <translation>Das Konto kann nicht gespeichert werden und gilt nur bis zur nächsten Suche: %1</translation>
    </message>
    <message>
        <source>“%1”正在进行。退出后，其余设备不会更改。</source>
        <translation>„%1“ läuft. Wenn Sie beenden, werden die übrigen Geräte nicht geändert.</translation>
    </message>
    <message>
        <source>报告已停止，没有生成文件</source>
        <translation>Der Bericht wurde gestoppt; es wurde keine Datei geschrieben</translation>
    </message>
</context>
<context>
    <name>WindowSearch</name>
    <message>
        <source>搜索到的设备超过 %1 台，其余 %2 个应答未列入列表。请缩小搜索范围。</source>
        <translation>Mehr als %1 Geräte haben geantwortet. %2 weitere Antworten sind nicht aufgelistet. Durchsuchen Sie einen kleineren Bereich.</translation>
    </message>
</context>
<context>
    <name>WorkbookResults</name>
    <message>
        <source>已停止执行：成功%1行，失败%2行，未执行%3行。</source>
        <translation>Gestoppt: %1 Zeilen erfolgreich, %2 fehlgeschlagen, %3 nicht gesendet.</translation>
    </message>
    <message>
        <source>执行完成：成功%1行，失败%2行。</source>
        <translation>Fertig: %1 Zeilen erfolgreich, %2 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>执行结果无法保存：%1</source>
        <translation>Die Ergebnisse konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>执行结果已保存到文件：%1</source>
        <translation>Ergebnisse gespeichert in %1</translation>
    </message>
    <message>
        <source>原文件无法写入，可能已被打开或为只读。执行结果已另存为：%1</source>
        <translation>Die Datei konnte nicht geschrieben werden. Sie ist schreibgeschützt oder in einem anderen Programm geöffnet. Ergebnisse gespeichert in %1</translation>
    </message>
</context>
</TS>
