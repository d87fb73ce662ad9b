<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>選擇備份來源</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>透過 FarLink 連線</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>請選取用來存放備份的伺服器資料夾。</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>備份工作將會停止，但伺服器上的檔案會保留。您要解除此電腦的連結嗎？</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>您可以開啟這些檔案，但無法變更。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>您在伺服器上的配額已用完。請刪除檔案，或向管理員要求更多空間。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>備份佇列</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxy 位址：</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>無法讀取您的帳號資訊。請稍後再試。</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>伺服器空間已滿。請釋放空間，然後再試一次。</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>伺服器位址：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密碼：</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>使用者名稱或密碼不正確。請再試一次。</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>您的備份已是最新狀態。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>資料夾不存在。</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>連線至您的 Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>對話方塊</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>未選取資料夾</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>此電腦已連結至另一台 Brix。請檢查伺服器位址。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>加入檔案名稱</translation>
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
        <translation>日期範圍：</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的檔案</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>沒有資料 </translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選取</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>開始之前，請先檢查設定。</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>排除的資料夾</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>您的 IP 位址未獲允許。請要求管理員允許此位址。</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>開啟 Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup 已準備就緒。</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>無法載入備份工作。請重新啟動 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
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
        <translation>設定</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>設為 0 表示沒有限制。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小時</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>區域網路中的 Brix 裝置</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>驗證碼不正確或已過期。請輸入新的驗證碼。</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>無法開啟資料庫。請重新啟動 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>備份來源</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>瀏覽版本</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>備份目的地</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>沒有可用的共用資料夾。請向管理員要求共用資料夾的存取權限。</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup 會在您自己的伺服器上，為您的資料夾保留一份最新的副本。</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>正在備份檔案：%1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>正在鎖定檔案...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>大於</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>伺服器上的 Korvo 版本過舊。請要求管理員更新 Korvo。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>最近一週</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>您需要準備 Brix 位址、使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>憑證警告</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>請重新啟動 %1 以套用新的語言設定。</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>關鍵字：</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>無法連線至 FarLink。請檢查您的網際網路連線。</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>您所有檔案的安全副本</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>備份已暫停。</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>伺服器</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>正在檢查您的密碼...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>已有另一個要備份的資料夾使用此名稱。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>操作失敗。請稍後再試。</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>使用系統語言</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下個月</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>您的密碼已過期。請在伺服器上變更密碼。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>伺服器憑證已變更。請只在您知道原因時才繼續。您要繼續嗎？</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>手動輸入 Proxy 設定</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>在此電腦上刪除檔案時，保留伺服器上的檔案</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>設定備份所用的資料夾</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>此資料夾為唯讀，因此無法將檔案還原至此資料夾。您要使用此資料夾嗎？</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>檔案篩選</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>正在等候...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分鐘</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>更新失敗。請稍後再試。</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>往前 %1 頁</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>使用系統的 Proxy 設定</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>檔案大小上限：</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>此資料夾已包含在另一個備份工作中。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>請輸入 Proxy 使用者名稱。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy 設定</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>發生未預期的錯誤。請重新啟動 Lumaris Backup。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>此電腦上的資料夾</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>由於伺服器發生錯誤，無法檢查此資料夾。請稍後再試。</translation>
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
        <translation>按一下這裡即可更新</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>您的帳號已停用。請要求管理員啟用您的帳號。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>備份失敗。請檢查要備份的資料夾，然後再試一次。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>顯示已刪除的檔案</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和時間</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>共用資料夾已啟用</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除連結...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>項目數：%1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>共用資料夾的配額已用完。請刪除檔案，或使用其他資料夾。</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>重新整理備份記錄</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>最近一個月</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>結束日期：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>使用者名稱：</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安裝更新</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>等候備份的檔案數：%1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>嘗試登入的次數過多。請過幾分鐘再試一次。</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup 會持續將您的資料夾備份至您的 Brix。</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>請選擇要備份的資料夾，以及用來存放備份的共用資料夾。</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>小於</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>要備份的資料夾</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>連接埠無效。請輸入 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>共用資料夾尚未掛載。請要求管理員掛載此資料夾。</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>檔案大小</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>此資料夾為唯讀。其中的檔案可以備份，但無法還原至此資料夾。</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>共用資料夾已不存在。請選擇其他共用資料夾。</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>連接埠：</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>伺服器憑證已變更。請在連線設定中確認新的憑證。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>伺服器的回應無效。請更新 Lumaris Backup 和 Korvo。</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>找不到要備份的資料夾。請將資料夾放回原處，或將其從備份工作中移除。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>往後 %1 頁</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink ID 無效。請檢查 ID，然後再試一次。</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>請輸入檔案名稱（例如 notes.txt）或副檔名（例如 *.tmp）。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在備份...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>開始日期：</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>無法啟動 Lumaris Backup。請重新啟動您的電腦。</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo 尚未啟用。請要求管理員啟用 Korvo。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>請選取要備份的資料夾。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>無法驗證伺服器憑證。請檢查設定，或洽詢管理員。</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>如何設定 Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>要備份的資料夾所在的磁碟機尚未連接。請連接磁碟機，然後再試一次。</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>您無法寫入共用資料夾。請向管理員要求存取權限，或使用其他資料夾。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>您的帳號需要驗證碼。請輸入驗證碼以登入。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>請輸入您的 Brix 位址並登入。</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>等於</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>登入電腦時啟動 Lumaris Backup</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>自訂日期範圍</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此資料夾</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>共用資料夾為唯讀。請選擇您可以寫入的共用資料夾。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>無法連線至伺服器。請檢查網路和位址。</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>您的帳號沒有使用 Korvo 的權限。請向管理員要求權限。</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>刪除舊版本</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>無法檢查使用者名稱。請確認使用者名稱正確無誤。</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>登入 Proxy 伺服器</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>搜尋網路上的 Brix 裝置</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下載已完成。</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>備份因發生錯誤而停止。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上傳：%1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>不使用 Proxy 伺服器</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>無法檢查此資料夾。請檢查網路，然後再試一次。</translation>
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
        <translation>使用 SSL 加密連線</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>請輸入 Proxy 位址和連接埠。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>排除名稱以點開頭的檔案和資料夾</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>伺服器上的 FarLink 已停用。請使用伺服器的 IP 位址，或洽詢管理員。</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>超過此大小的檔案不會備份。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup 的版本過舊，不適用於此伺服器。您要立即更新嗎？</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>您的家目錄已停用。請要求管理員啟用您的家目錄。</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix 已更換或重設。請解除此電腦的連結，然後重新連線。</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>伺服器拒絕了要求。請檢查您的設定，然後再試一次。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日曆</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>備份方向與伺服器不符。請移除此備份工作，然後重新建立。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup 的版本過舊，不適用於此伺服器。請更新後再試一次。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>此資料夾無法備份。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白的選單列圖示</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>無法驗證伺服器憑證，因此連線可能不安全。您要繼續嗎？</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>請輸入驗證碼：</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>任何類型</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>您的帳號需要使用驗證碼。請在伺服器上設定驗證碼。</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>此資料夾與另一個備份工作的資料夾重疊。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>無法建立備份工作。請檢查工作的設定，然後再試一次。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>隱藏已刪除的檔案</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>您無法開啟此資料夾。請選擇其他資料夾，或向管理員要求存取權限。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帳號</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>顯示最近的活動</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>符合條件的檔案不會備份。</translation>
    </message>
</context>
</TS>
