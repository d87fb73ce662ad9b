<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>バックアップ元を選択</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>FarLink 経由で接続する</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>バックアップに使用するサーバー上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>バックアップタスクは停止しますが、サーバー上のファイルはそのまま残ります。このコンピューターのリンクを解除しますか？</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>これらのファイルは開くことができますが、変更はできません。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>サーバー上の割り当て容量を使い切りました。ファイルを削除するか、容量の追加を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>バックアップキュー</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>プロキシアドレス：</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>アカウント情報を読み取れませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>サーバーの空き容量がありません。空き容量を増やしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>サーバーアドレス：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>ユーザー名またはパスワードが正しくありません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>バックアップは最新の状態です。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Brix に接続</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>ダイアログボックス</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>フォルダーが選択されていません</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>このコンピューターは別の Brix にリンクされています。サーバーアドレスを確認してください。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>ファイル名を追加</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>期間：</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>除外するファイル</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>データなし </translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>開始する前に設定を確認してください。</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>除外するフォルダー</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>お使いの IP アドレスは許可されていません。許可するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Lumaris Backup を開く</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup の準備ができました。</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>バックアップタスクを読み込めませんでした。Lumaris Backup を再起動してください。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不要</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>0 を指定すると無制限になります。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンクを解除</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>ローカルネットワーク上の Brix</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>コードが正しくないか、有効期限が切れています。新しいコードを入力してください。</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>データベースを開けませんでした。Lumaris Backup を再起動してください。</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>バックアップ元</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>バックアップ先</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>使用できる共有フォルダーがありません。共有フォルダーへのアクセス権を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup は、フォルダーの最新のコピーをご自身のサーバーに保管します。</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>バックアップ中のファイル：%1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>ファイルをロックしています...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>次の値より大きい</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>サーバーの Korvo のバージョンが古すぎます。アップデートするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>過去 1 週間</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Brix のアドレス、ユーザー名、パスワードをご用意ください。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>証明書の警告</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>新しい言語設定を適用するには、%1 を再起動してください。</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>キーワード：</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink に接続できませんでした。インターネット接続を確認してください。</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>すべてのファイルを安全に保管</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>バックアップは一時停止しています。</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>パスワードを確認しています...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>同じ名前のバックアップ元フォルダーがすでにあります。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>操作に失敗しました。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>システムの言語を使用</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>パスワードの有効期限が切れています。サーバーでパスワードを変更してください。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>サーバー証明書が変更されています。変更の理由がわかっている場合にのみ続行してください。続行しますか？</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>プロキシ設定を手動で入力する</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>このコンピューターで削除したファイルをサーバーに残す</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>バックアップに使用するフォルダーの設定</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>アップデート中...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>このフォルダーは読み取り専用のため、ファイルを復元できません。このフォルダーを使用しますか？</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>ファイルフィルター</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>待機中...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>アップデートに失敗しました。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>サイズ：</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大ファイルサイズ：</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>このフォルダーは別のバックアップタスクで使用されています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>プロキシのユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>予期しないエラーが発生しました。Lumaris Backup を再起動してください。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロード中...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>このコンピューター上のフォルダー</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>サーバーエラーのため、このフォルダーを確認できませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>ここをクリックしてアップデート</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>お使いのアカウントは無効になっています。有効にするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>バックアップに失敗しました。バックアップ元フォルダーを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>削除されたファイルを表示</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>共有フォルダーが有効</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>項目数：%1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>共有フォルダーの割り当て容量を使い切りました。ファイルを削除するか、別のフォルダーを使用してください。</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>バックアップログを更新</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>過去 1 か月</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>終了日：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>ユーザー名：</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>バックアップ待ちのファイル数：%1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>サインインの試行回数が多すぎます。数分後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup は、フォルダーを Brix に継続的にバックアップします。</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>バックアップするフォルダーと、バックアップ先の共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>次の値より小さい</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>バックアップ元フォルダー</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>ポート番号が正しくありません。1 から 65535 までの数字を入力してください。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>共有フォルダーがマウントされていません。マウントするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>このフォルダーは読み取り専用です。ファイルのバックアップはできますが、このフォルダーへの復元はできません。</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>共有フォルダーが存在しなくなりました。別の共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート：</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>サーバー証明書が変更されています。接続の設定で内容を確認し、承認してください。</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>サーバーの応答が正しくありません。Lumaris Backup と Korvo をアップデートしてください。</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>バックアップ元フォルダーが見つかりませんでした。フォルダーを元の場所に戻すか、バックアップタスクから削除してください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink ID が正しくありません。ID を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>notes.txt のようなファイル名、または *.tmp のような拡張子を入力してください。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>バックアップ中...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>開始日：</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup を起動できませんでした。コンピューターを再起動してください。</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo が有効になっていません。有効にするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>バックアップするフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>サーバー証明書を検証できませんでした。設定を確認するか、管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Lumaris Backup の設定方法</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>バックアップ元フォルダーのドライブが接続されていません。ドライブを接続して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>共有フォルダーに書き込めません。アクセス権を管理者に依頼するか、別のフォルダーを使用してください。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>お使いのアカウントには確認コードが必要です。サインインするには、確認コードを入力してください。</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Brix のアドレスを入力して、サインインしてください。</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>次の値に等しい</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>ログイン時に Lumaris Backup を起動する</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>このフォルダーを使用</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>共有フォルダーが読み取り専用です。書き込み可能な共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>サーバーに接続できませんでした。ネットワークとアドレスを確認してください。</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>お使いのアカウントには Korvo の使用が許可されていません。使用の許可を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>古いバージョンを削除</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>ユーザー名を確認できませんでした。ユーザー名が正しいことを確かめてください。</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>プロキシサーバーにサインインする</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>ネットワーク上の Brix を検索</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>エラーのため、バックアップが停止しました。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>最終アップロード：%1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>プロキシサーバーを使用しない</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>このフォルダーを確認できませんでした。ネットワークを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup を初期化しています...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>接続を SSL で暗号化する</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>プロキシアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>ドットで始まる名前を除外する</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>サーバーの FarLink は無効になっています。サーバーの IP アドレスを使用するか、管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>このサイズより大きいファイルはバックアップされません。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>お使いの Lumaris Backup はバージョンが古いため、このサーバーでは使用できません。今すぐアップデートしますか？</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>お使いのホームフォルダーは無効になっています。有効にするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix が交換または初期化されました。このコンピューターのリンクを解除して、もう一度接続してください。</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>サーバーが要求を拒否しました。設定を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>バックアップの方向がサーバーの設定と一致しません。タスクを削除して、もう一度作成してください。</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>お使いの Lumaris Backup はバージョンが古いため、サーバーで使用できません。アップデートして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>有効なバックアップ元フォルダーではありません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>白黒のメニューバーアイコンを使用する</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>サーバー証明書を検証できなかったため、接続が安全でない可能性があります。続行しますか？</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>確認コードを入力：</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>お使いのアカウントには確認コードの設定が必要です。サーバーで設定してください。</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>このフォルダーは別のバックアップタスクのフォルダーと重なっています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>バックアップタスクを作成できませんでした。タスクの設定を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>削除されたファイルを非表示</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>このフォルダーを開けません。別のフォルダーを選択するか、アクセス権を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>最近のアクティビティを表示</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>一致するファイルはバックアップされません。</translation>
    </message>
</context>
</TS>
