<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Choose the backup source</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Connect through FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Select the server folder for the backup.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>You can open these files but not change them.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Your quota on the server is used up. Delete files or ask your administrator for more space.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Backup queue</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxy address:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Your account information could not be read. Try again later.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>The server is full. Free up space and try again.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Server address:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>The username or password is incorrect. Try again.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Your backup is up to date.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>The folder does not exist.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Connect to your Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialog box</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>No folder selected</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>This computer is linked to a different Brix. Check the server address.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Add a file name</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Date range:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Excluded files</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>No data </translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Check the settings before you start.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Excluded folders</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Your IP address is not allowed. Ask your administrator to allow it.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Open Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup is ready.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>The backup tasks could not be loaded. Restart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Not needed</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>The value 0 means no limit.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix devices in the local network</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>The code is incorrect or expired. Enter a new one.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>The database could not be opened. Restart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Backup source</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Creation time</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Browse versions</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backup destination</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>No shared folder is available. Ask your administrator for access to one.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Backing up the file: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Locking the file...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Larger than</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Korvo on the server is too old. Ask your administrator to update it.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>You need your Brix address, username and password.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificate warning</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Please restart %1 to apply the new language settings.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Keyword:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink could not be reached. Check your Internet connection.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>A safe copy of all your files</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>The backup is paused.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Checking your password...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Another backup folder has this name. Choose a different folder.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Add a folder</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>The operation failed. Try again later.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Use the system language</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Your password has expired. Change it on the server.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>The server certificate has changed. Continue only if you know why. Do you want to continue?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Enter the proxy settings manually</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Keep files on the server when they are deleted on this computer</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Set up the backup folders</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>This folder is read-only, so files cannot be restored to it. Do you want to use it?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>File filter</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Waiting...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>The update failed. Try again later.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Previous pages (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Use the proxy settings of the system</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximum file size:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>This folder is in another backup task. Choose a different folder.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Enter the proxy username.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>An unexpected error occurred. Restart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Folders on this computer</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>This folder could not be checked because of a server error. Try again later.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Click here to update</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Your account is disabled. Ask your administrator to enable it.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>The backup failed. Check the backup folders and try again.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Show deleted files</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Shared folder enabled</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Number of items: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>The shared folder&apos;s quota is used up. Delete files or use another folder.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Refresh the backup log</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>End date:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Username:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Install update</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Files waiting to be backed up: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>There were too many sign-in attempts. Try again in a few minutes.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup continuously backs up your folders to your Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Choose the folders to back up and the shared folder for the backup.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Smaller than</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Backup folders</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>The port is not valid. Enter a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>The shared folder is not mounted. Ask your administrator to mount it.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Choose new folder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>File size</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>This folder is read-only. Files can be backed up but not restored to it.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>The shared folder no longer exists. Choose a different one.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>The server certificate has changed. Confirm it in the connection settings.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>The backup folder could not be found. Put it back or remove it from the backup task.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Next pages (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>The FarLink ID is not valid. Check it and try again.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Enter a file name like notes.txt or an extension like *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backing up...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Start date:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup could not be started. Restart your computer.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo is not enabled. Ask your administrator to enable it.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Select the folders to back up.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>The server certificate could not be verified. Check the settings or ask your administrator.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>How to set up Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>The drive of the backup folder is not connected. Connect it and try again.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continue anyway</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>You cannot write to the shared folder. Ask your administrator for access or use another folder.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Your account needs a verification code. Enter it to sign in.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Enter your Brix address and sign in.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Equal to</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Start Lumaris Backup when I sign in</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Custom date range</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Use this folder</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>The shared folder is read-only. Choose one that you can write to.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>The server could not be reached. Check the network and the address.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Your account may not use Korvo. Ask your administrator for permission.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Remove old versions</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>The username could not be checked. Make sure that it is correct.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Sign in to the proxy server</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Search the network for Brix devices</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>The download is complete.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>The backup stopped because of an error.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Last upload: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Do not use a proxy server</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>This folder could not be checked. Check the network and try again.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup is initializing...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encrypt the connection with SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Enter the proxy address and port.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Exclude names that begin with a dot</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink is disabled on the server. Use its IP address or ask your administrator.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Files larger than this are not backed up.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup is too old for this server. Do you want to update now?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Your home folder is disabled. Ask your administrator to enable it.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>The Brix was replaced or reset. Unlink this computer and connect again.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>The server rejected the request. Check your settings and try again.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>The backup direction does not match the server. Remove the task and create it again.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup is too old for the server. Update it and try again.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>This is not a valid backup folder. Choose a different folder.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Use a black-and-white tray icon</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Enter the verification code:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applying the settings...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Any type</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Your account needs verification codes. Set them up on the server.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>This folder overlaps another backup task. Choose a different folder.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>The backup task could not be created. Check its settings and try again.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Hide deleted files</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>You cannot open this folder. Choose another one or ask your administrator for access.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Show the recent activity</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Matching files are not backed up.</translation>
    </message>
</context>
</TS>
