<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Vyberte zdroj zálohování</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Připojovat se přes FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Vyberte složku na serveru, do které se bude zálohovat.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Úlohy zálohování se zastaví, ale soubory na serveru zůstanou. Chcete zrušit propojení tohoto počítače?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Tyto soubory můžete otevřít, ale nemůžete je měnit.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Vaše kvóta na serveru je vyčerpaná. Odstraňte soubory nebo požádejte správce o více místa.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Fronta zálohování</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Adresa proxy serveru:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Informace o vašem účtu se nepodařilo načíst. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Server je plný. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Adresa serveru:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Vaše záloha je aktuální.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Složka neexistuje.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Připojte se ke svému zařízení Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogové okno</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Není vybrána žádná složka</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Tento počítač je propojený s jiným zařízením Brix. Zkontrolujte adresu serveru.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Předchozí měsíc</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Přidat název souboru</translation>
    </message>
    <message>
        <source>May</source>
        <translation>květen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Období:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Žádná data </translation>
    </message>
    <message>
        <source>December</source>
        <translation>prosinec</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Než začnete, zkontrolujte nastavení.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>červenec</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Vyloučené složky</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Vaše IP adresa není povolená. Požádejte správce, aby ji povolil.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Otevřít Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Aplikace Lumaris Backup je připravená.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Úlohy zálohování se nepodařilo načíst. Restartujte aplikaci Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Není potřeba</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Hodnota 0 znamená bez omezení.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hodina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Zařízení Brix v místní síti</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Kód není správný nebo jeho platnost vypršela. Zadejte nový kód.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>říjen</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Databázi se nepodařilo otevřít. Restartujte aplikaci Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Zdroj zálohování</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Datum vytvoření</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Procházet verze</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Cíl zálohování</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Není dostupná žádná sdílená složka. Požádejte správce, aby vám k některé udělil přístup.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Aplikace Lumaris Backup udržuje aktuální kopii vašich složek na vašem vlastním serveru.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Zálohování souboru: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Zamykání souboru...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Větší než</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Verze služby Korvo na serveru je příliš stará. Požádejte správce, aby ji aktualizoval.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Poslední týden</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Pokročilé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Budete potřebovat adresu svého zařízení Brix, uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Upozornění na problém s certifikátem</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Aby se nové nastavení jazyka použilo, restartujte prosím aplikaci %1.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Klíčové slovo:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Službu FarLink se nepodařilo kontaktovat. Zkontrolujte připojení k internetu.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Bezpečná kopie všech vašich souborů</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Zálohování je pozastavené.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Týden</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrola hesla...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Jiná zdrojová složka má stejný název. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Akce se nezdařila. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Používat jazyk systému</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Další měsíc</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Platnost vašeho hesla vypršela. Změňte ho na serveru.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Certifikát serveru se změnil. Pokračujte, jen pokud víte proč. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Zadávat nastavení proxy serveru ručně</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Ponechávat soubory na serveru, když se v tomto počítači odstraní</translation>
    </message>
    <message>
        <source>June</source>
        <translation>červen</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Nastavte složky pro zálohování</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Tato složka je jen pro čtení, takže do ní nelze obnovit soubory. Chcete ji použít?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr souborů</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Čekání...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aktualizace se nezdařila. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Předchozí stránky (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Používat nastavení proxy serveru ze systému</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Velikost:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximální velikost souboru:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>leden</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Tato složka patří k jiné úloze zálohování. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Zadejte uživatelské jméno pro proxy server.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Došlo k neočekávané chybě. Restartujte aplikaci Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Složky v tomto počítači</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Tuto složku se kvůli chybě serveru nepodařilo zkontrolovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>září</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>čtvrtek</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>pondělí</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kliknutím sem spustíte aktualizaci</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Váš účet je deaktivovaný. Požádejte správce, aby ho aktivoval.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>duben</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Zálohování se nezdařilo. Zkontrolujte zdrojové složky a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Zobrazit odstraněné soubory</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Sdílená složka povolena</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Počet položek: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>únor</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Kvóta sdílené složky je vyčerpaná. Odstraňte soubory nebo použijte jinou složku.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Aktualizovat protokol zálohování</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Poslední měsíc</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Koncové datum:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Nainstalovat aktualizaci</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Soubory čekající na zálohování: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Proběhlo příliš mnoho pokusů o přihlášení. Zkuste to znovu za několik minut.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Aplikace Lumaris Backup průběžně zálohuje vaše složky do vašeho zařízení Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Vyberte složky, které chcete zálohovat, a sdílenou složku pro zálohu.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Menší než</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Zdrojové složky</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Port není platný. Zadejte číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Sdílená složka není připojená. Požádejte správce, aby ji připojil.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Vybrat jinou složku</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Velikost souboru</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Tato složka je jen pro čtení. Soubory z ní lze zálohovat, ale nelze je do ní obnovit.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Sdílená složka už neexistuje. Vyberte jinou.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Certifikát serveru se změnil. Potvrďte ho v nastavení připojení.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>březen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>úterý</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Odpověď serveru není platná. Aktualizujte aplikaci Lumaris Backup a službu Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Zdrojovou složku se nepodařilo najít. Vraťte ji na původní místo, nebo ji odeberte z úlohy zálohování.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Další stránky (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>ID služby FarLink není platné. Zkontrolujte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Zadejte název souboru, například notes.txt, nebo příponu, například *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Zálohování...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Počáteční datum:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Aplikaci Lumaris Backup se nepodařilo spustit. Restartujte počítač.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Služba Korvo není aktivní. Požádejte správce, aby ji aktivoval.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Vyberte složky, které chcete zálohovat.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Certifikát serveru se nepodařilo ověřit. Zkontrolujte nastavení nebo se obraťte na správce.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Jak nastavit aplikaci Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Disk se zdrojovou složkou není připojený. Připojte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Do sdílené složky nemůžete zapisovat. Požádejte správce o přístup nebo použijte jinou složku.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Váš účet vyžaduje ověřovací kód. Zadejte ho a přihlaste se.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Zadejte adresu svého zařízení Brix a přihlaste se.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Rovná se</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Spouštět aplikaci Lumaris Backup po přihlášení</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Vlastní období</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Použít tuto složku</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Sdílená složka je jen pro čtení. Vyberte složku, do které můžete zapisovat.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>pátek</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Server se nepodařilo kontaktovat. Zkontrolujte síť a adresu.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Váš účet nesmí používat službu Korvo. Požádejte správce o oprávnění.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Odstranit staré verze</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Uživatelské jméno se nepodařilo zkontrolovat. Ujistěte se, že je správné.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Přihlašovat se k proxy serveru</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Hledat zařízení Brix v síti</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Stahování je dokončené.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Zálohování se zastavilo kvůli chybě.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>neděle</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Poslední nahrání: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Tuto složku se nepodařilo zkontrolovat. Zkontrolujte síť a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Inicializace aplikace Lumaris Backup...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Šifrovat připojení pomocí SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Vylučovat názvy začínající tečkou</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>Služba FarLink je na serveru deaktivovaná. Použijte IP adresu serveru nebo se obraťte na správce.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Soubory větší než tato hodnota se nezálohují.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Aplikace Lumaris Backup je pro tento server příliš stará. Chcete ji nyní aktualizovat?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Vaše domovská složka je deaktivovaná. Požádejte správce, aby ji aktivoval.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Zařízení Brix bylo vyměněno nebo resetováno. Zrušte propojení tohoto počítače a připojte se znovu.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Server požadavek odmítl. Zkontrolujte nastavení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendář</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Směr zálohování neodpovídá nastavení serveru. Odeberte úlohu a vytvořte ji znovu.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Aplikace Lumaris Backup je pro server příliš stará. Aktualizujte ji a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>středa</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Toto není platná zdrojová složka. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Používat černobílou ikonu v řádku nabídek</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Certifikát serveru se nepodařilo ověřit, takže připojení nemusí být zabezpečené. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Zadejte ověřovací kód:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Uplatňování nastavení...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Libovolný typ</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Váš účet vyžaduje ověřovací kódy. Nastavte je na serveru.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Tato složka se překrývá s jinou úlohou zálohování. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Úlohu zálohování se nepodařilo vytvořit. Zkontrolujte její nastavení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Skrýt odstraněné soubory</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Tuto složku nemůžete otevřít. Vyberte jinou nebo požádejte správce o přístup.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>August</source>
        <translation>srpen</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Zobrazit nedávnou aktivitu</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Soubory odpovídající seznamu se nezálohují.</translation>
    </message>
</context>
</TS>
