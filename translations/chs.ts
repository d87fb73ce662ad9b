<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>选择备份源</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>通过 FarLink 连接</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>请选择用于存放备份的服务器文件夹。</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>备份任务将停止，但服务器上的文件会保留。要取消链接此电脑吗？</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>您可以打开这些文件，但不能更改。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>您在服务器上的配额已用完。请删除部分文件，或联系管理员增加空间。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>备份队列</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>代理地址：</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>无法读取您的账户信息。请稍后重试。</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>服务器空间已满。请释放空间后重试。</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>服务器地址：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>用户名或密码不正确。请重试。</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>您的备份已是最新状态。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>该文件夹不存在。</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>连接到您的 Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>未选择文件夹</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>此电脑已链接到另一台 Brix。请检查服务器地址。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>添加文件名</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>日期范围：</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>无数据 </translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>请在开始之前检查各项设置。</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>排除的文件夹</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>您的 IP 地址未获允许。请联系管理员允许此地址访问。</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>打开 Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup 已准备就绪。</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>无法加载备份任务。请重新启动 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>值为 0 表示不限制。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消链接</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>局域网中的 Brix 设备</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>验证码不正确或已过期。请输入新的验证码。</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>无法打开数据库。请重新启动 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>备份源</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>浏览版本</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>备份目标</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>没有可用的共享文件夹。请联系管理员授予您共享文件夹的访问权限。</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup 可在您自己的服务器上为您的文件夹保留最新的副本。</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>正在备份文件：%1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>正在锁定文件...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>大于</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>服务器上的 Korvo 版本过低。请联系管理员进行更新。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>最近一周</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>您需要准备好 Brix 的地址、用户名和密码。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>证书警告</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>请重新启动 %1 以应用新的语言设置。</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>关键字：</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>无法连接到 FarLink。请检查您的互联网连接。</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>您所有文件的安全副本</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>备份已暂停。</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>正在检查您的密码...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>另一个要备份的文件夹已使用此名称。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>操作失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>使用系统语言</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>您的密码已过期。请在服务器上更改密码。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>服务器证书已更改。请仅在了解更改原因的情况下继续。要继续吗？</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>手动输入代理设置</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>在此电脑上删除文件后，仍在服务器上保留这些文件</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>设置备份所用的文件夹</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>此文件夹为只读，因此无法将文件还原到其中。要使用此文件夹吗？</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>文件筛选</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>正在等待...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>更新失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>向前 %1 页</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>使用系统的代理设置</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大文件大小：</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>此文件夹已包含在另一个备份任务中。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>请输入代理用户名。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>发生意外错误。请重新启动 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>此电脑上的文件夹</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>由于服务器错误，无法检查此文件夹。请稍后重试。</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>点击此处更新</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>您的账户已停用。请联系管理员启用您的账户。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>天</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>备份失败。请检查要备份的文件夹，然后重试。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>显示已删除的文件</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>共享文件夹已启用</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消链接...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>项目数：%1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>共享文件夹的配额已用完。请删除部分文件，或使用其他文件夹。</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>刷新备份日志</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>最近一个月</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>结束日期：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>等待备份的文件数：%1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>登录尝试次数过多。请在几分钟后重试。</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup 可将您的文件夹持续备份到您的 Brix。</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>请选择要备份的文件夹，以及用于存放备份的共享文件夹。</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>小于</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>要备份的文件夹</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>端口无效。请输入 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>共享文件夹未装载。请联系管理员进行装载。</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>此文件夹为只读。可以备份其中的文件，但无法将文件还原到此文件夹。</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>该共享文件夹已不存在。请选择其他共享文件夹。</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>服务器证书已更改。请在连接设置中确认新证书。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>服务器的响应无效。请更新 Lumaris Backup 和 Korvo。</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>找不到要备份的文件夹。请将其放回原处，或将其从备份任务中移除。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>向后 %1 页</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink ID 无效。请检查后重试。</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>请输入文件名（例如 notes.txt）或扩展名（例如 *.tmp）。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>开始日期：</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>无法启动 Lumaris Backup。请重新启动您的电脑。</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo 未启用。请联系管理员启用 Korvo。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>请选择要备份的文件夹。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>无法验证服务器证书。请检查设置或联系管理员。</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>如何设置 Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>要备份的文件夹所在的驱动器未连接。请连接驱动器后重试。</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>您无法写入此共享文件夹。请联系管理员获取访问权限，或使用其他文件夹。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>您的账户需要验证码。请输入验证码以登录。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>请输入您的 Brix 地址并登录。</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>等于</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>在我登录电脑时启动 Lumaris Backup</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>自定义日期范围</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此文件夹</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>该共享文件夹为只读。请选择您可以写入的共享文件夹。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>无法连接到服务器。请检查网络和服务器地址。</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>您的账户无权使用 Korvo。请联系管理员获取权限。</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>删除旧版本</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>无法检查用户名。请确保用户名正确。</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>登录到代理服务器</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>在网络中搜索 Brix 设备</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下载已完成。</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>由于发生错误，备份已停止。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上传：%1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>不使用代理服务器</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>无法检查此文件夹。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup 正在初始化...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>使用 SSL 加密连接</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>请输入代理地址和端口。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>排除名称以点开头的文件和文件夹</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>服务器上已停用 FarLink。请使用服务器的 IP 地址，或联系管理员。</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>不会备份大于此大小的文件。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup 的版本过低，无法用于此服务器。要立即更新吗？</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>您的个人文件夹已停用。请联系管理员启用此文件夹。</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix 已被更换或重置。请取消链接此电脑，然后重新连接。</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>服务器拒绝了请求。请检查您的设置，然后重试。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>备份方向与服务器不一致。请移除此任务，然后重新创建。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup 的版本过低，无法用于该服务器。请更新后重试。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>此文件夹无法备份。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白菜单栏图标</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>无法验证服务器证书，因此连接可能不安全。要继续吗？</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>请输入验证码：</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>任意类型</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>您的账户需要使用验证码。请在服务器上进行设置。</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>此文件夹与另一个备份任务中的文件夹重叠。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>无法创建备份任务。请检查任务设置，然后重试。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>隐藏已删除的文件</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>您无法打开此文件夹。请选择其他文件夹，或联系管理员获取访问权限。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>显示最近的活动</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>不会备份匹配的文件。</translation>
    </message>
</context>
</TS>
