<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Välj källa för säkerhetskopieringen</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Anslut via FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Välj servermappen för säkerhetskopian.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Säkerhetskopieringsjobben stoppas, men filerna på servern finns kvar. Vill du avlänka den här datorn?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Slutförd</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Du kan öppna de här filerna men inte ändra dem.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Din kvot på servern är förbrukad. Ta bort filer eller be administratören om mer utrymme.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Säkerhetskopieringskö</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxyadress:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Det gick inte att läsa din kontoinformation. Försök igen senare.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Servern är full. Frigör utrymme och försök igen.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Serveradress:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt. Försök igen.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Din säkerhetskopia är aktuell.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen finns inte.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Anslut till din Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mapp har valts</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Den här datorn är länkad till en annan Brix. Kontrollera serveradressen.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Lägg till ett filnamn</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Datumintervall:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Undantagna filer</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Inga data </translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Kontrollera inställningarna innan du startar.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Undantagna mappar</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Din IP-adress är inte tillåten. Be administratören att tillåta den.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Öppna Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup är redo.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Det gick inte att läsa in säkerhetskopieringsjobben. Starta om Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Behövs inte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Värdet 0 innebär ingen gräns.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Avlänka</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Timme</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-enheter i det lokala nätverket</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Koden är felaktig eller har upphört att gälla. Ange en ny kod.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Det gick inte att öppna databasen. Starta om Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Källa för säkerhetskopiering</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Bläddra bland versioner</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål för säkerhetskopiering</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Ingen delad mapp är tillgänglig. Be administratören om åtkomst till en delad mapp.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup ser till att det alltid finns en aktuell kopia av dina mappar på din egen server.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Säkerhetskopierar filen: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Låser filen...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Större än</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Versionen av Korvo på servern är för gammal. Be administratören att uppdatera den.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Senaste veckan</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Du behöver din Brix-adress, ditt användarnamn och ditt lösenord.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatvarning</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Starta om %1 för att de nya språkinställningarna ska börja gälla.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Sökord:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Det gick inte att nå FarLink. Kontrollera internetanslutningen.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>En säker kopia av alla dina filer</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Säkerhetskopieringen är pausad.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Vecka</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerar lösenordet...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>En annan källmapp har samma namn. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Lägg till en mapp</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Åtgärden misslyckades. Försök igen senare.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Använd systemspråket</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Ditt lösenord har upphört att gälla. Ändra det på servern.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Servercertifikatet har ändrats. Fortsätt bara om du vet varför. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Ange proxyinställningarna manuellt</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behåll filer på servern när de tas bort på den här datorn</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Konfigurera mapparna för säkerhetskopieringen</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Den här mappen är skrivskyddad, så filer kan inte återställas till den. Vill du använda den?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Väntar...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Uppdateringen misslyckades. Försök igen senare.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Föregående sidor (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Storlek:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Största filstorlek:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Den här mappen ingår i ett annat säkerhetskopieringsjobb. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Ange användarnamnet för proxyservern.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Ett oväntat fel uppstod. Starta om Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Mappar på den här datorn</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Det gick inte att kontrollera den här mappen på grund av ett serverfel. Försök igen senare.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klicka här för att uppdatera</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Ditt konto är inaktiverat. Be administratören att aktivera det.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dag</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Säkerhetskopieringen misslyckades. Kontrollera källmapparna och försök igen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Visa borttagna filer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Delad mapp aktiverad</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Avlänkar...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Antal objekt: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Den delade mappens kvot är förbrukad. Ta bort filer eller använd en annan mapp.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Uppdatera säkerhetskopieringsloggen</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Senaste månaden</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Idag</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Slutdatum:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Igår</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installera uppdatering</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Filer som väntar på säkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Det har gjorts för många inloggningsförsök. Försök igen om några minuter.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup säkerhetskopierar dina mappar kontinuerligt till din Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Välj mapparna som ska säkerhetskopieras och den delade mappen för säkerhetskopian.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Mindre än</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Källmappar</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Porten är ogiltig. Ange ett tal från 1 till 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Den delade mappen är inte monterad. Be administratören att montera den.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Filstorlek</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Den här mappen är skrivskyddad. Filer kan säkerhetskopieras men inte återställas till den.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Den delade mappen finns inte längre. Välj en annan.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Servercertifikatet har ändrats. Bekräfta det i anslutningsinställningarna.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Svaret från servern är ogiltigt. Uppdatera Lumaris Backup och Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Det gick inte att hitta källmappen. Lägg tillbaka den eller ta bort den från säkerhetskopieringsjobbet.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Nästa sidor (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink-ID:t är ogiltigt. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Ange ett filnamn som notes.txt eller ett filnamnstillägg som *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Säkerhetskopierar...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Startdatum:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Det gick inte att starta Lumaris Backup. Starta om datorn.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo är inte aktiverat. Be administratören att aktivera det.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Välj vilka mappar som ska säkerhetskopieras.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidpunkt</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Det gick inte att verifiera servercertifikatet. Kontrollera inställningarna eller fråga administratören.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Så här konfigurerar du Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Disken som källmappen finns på är inte ansluten. Anslut den och försök igen.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Du kan inte skriva till den delade mappen. Be administratören om åtkomst eller använd en annan mapp.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Ditt konto kräver en verifieringskod. Ange den för att logga in.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Ange din Brix-adress och logga in.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lika med</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Starta Lumaris Backup när jag loggar in</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Anpassat datumintervall</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Använd den här mappen</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Den delade mappen är skrivskyddad. Välj en mapp som du kan skriva till.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Det gick inte att nå servern. Kontrollera nätverket och adressen.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Ditt konto får inte använda Korvo. Be administratören om behörighet.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Ta bort gamla versioner</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Det gick inte att kontrollera användarnamnet. Se till att det är korrekt.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Logga in på proxyservern</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Sök efter Brix-enheter i nätverket</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Nedladdningen är slutförd.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Säkerhetskopieringen stoppades på grund av ett fel.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Senaste uppladdning: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Använd inte någon proxyserver</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Det gick inte att kontrollera den här mappen. Kontrollera nätverket och försök igen.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup initieras...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Kryptera anslutningen med SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Ange proxyadress och port.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Undanta namn som börjar med en punkt</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink är inaktiverat på servern. Använd serverns IP-adress eller fråga administratören.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Filer som är större än den här gränsen säkerhetskopieras inte.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Den här versionen av Lumaris Backup är för gammal för den här servern. Vill du uppdatera nu?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Din hemmapp är inaktiverad. Be administratören att aktivera den.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix-enheten har bytts ut eller nollställts. Avlänka den här datorn och anslut igen.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Servern avvisade begäran. Kontrollera inställningarna och försök igen.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Säkerhetskopieringens riktning stämmer inte överens med servern. Ta bort jobbet och skapa det på nytt.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Den här versionen av Lumaris Backup är för gammal för servern. Uppdatera programmet och försök igen.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Det här är inte en giltig källmapp. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Månad</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Använd en svartvit symbol i menyraden</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Det gick inte att verifiera servercertifikatet, så anslutningen kan vara osäker. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Ange verifieringskoden:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Verkställer inställningarna...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Alla typer</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Ditt konto kräver verifieringskoder. Konfigurera dem på servern.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Den här mappen överlappar ett annat säkerhetskopieringsjobb. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Det gick inte att skapa säkerhetskopieringsjobbet. Kontrollera jobbets inställningar och försök igen.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Dölj borttagna filer</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Du kan inte öppna den här mappen. Välj en annan eller be administratören om åtkomst.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Ladda ned</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Visa den senaste aktiviteten</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Filer som matchar listan säkerhetskopieras inte.</translation>
    </message>
</context>
</TS>
