<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>A biztonsági mentés forrásának kiválasztása</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Csatlakozás a FarLink szolgáltatáson keresztül</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Válassza ki, hogy a kiszolgáló melyik mappájába kerüljön a biztonsági mentés.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>A mentési feladatok leállnak, de a kiszolgálón lévő fájlok megmaradnak. Megszünteti ennek a számítógépnek a társítását?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Ezeket a fájlokat megnyithatja, de nem módosíthatja.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>A kiszolgálón lévő kvótája betelt. Töröljön fájlokat, vagy kérjen több tárhelyet a rendszergazdától.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciók</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Mentési várólista</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxy címe:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>A fiókadatok beolvasása nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>A kiszolgáló megtelt. Szabadítson fel helyet, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Kiszolgáló címe:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>A felhasználónév vagy a jelszó helytelen. Próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>A biztonsági mentés naprakész.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A mappa nem létezik.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Csatlakozás a Brix-eszközhöz</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Párbeszédpanel</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nincs kiválasztva mappa</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Most</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Ez a számítógép egy másik Brix-eszközhöz van társítva. Ellenőrizze a kiszolgáló címét.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Fájlnév hozzáadása</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Dátumtartomány:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Nincs adat </translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Kiválasztás</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Indítás előtt ellenőrizze a beállításokat.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Kizárt mappák</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Az Ön IP-címe nem engedélyezett. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>A Lumaris Backup megnyitása</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>A Lumaris Backup készen áll.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>A mentési feladatok betöltése nem sikerült. Indítsa újra a Lumaris Backup alkalmazást.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nem szükséges</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>A 0 érték azt jelenti, hogy nincs korlátozás.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Társítás megszüntetése</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégsem</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-eszközök a helyi hálózaton</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>A kód helytelen vagy lejárt. Adjon meg egy újat.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Az adatbázis megnyitása nem sikerült. Indítsa újra a Lumaris Backup alkalmazást.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Biztonsági mentés forrása</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Létrehozás időpontja</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Verziók böngészése</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Biztonsági mentés célhelye</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Nincs elérhető megosztott mappa. Kérjen hozzáférést egy ilyen mappához a rendszergazdától.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>A Lumaris Backup naprakész másolatot őriz a mappáiról az Ön saját kiszolgálóján.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Fájl biztonsági mentése: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Fájl zárolása...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Nagyobb, mint</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>A kiszolgálón lévő Korvo túl régi. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Elmúlt hét</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Szüksége lesz a Brix-eszköz címére, a felhasználónevére és a jelszavára.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Tanúsítványfigyelmeztetés</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Az új nyelvi beállítások alkalmazásához indítsa újra a %1 alkalmazást.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Kulcsszó:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>A FarLink szolgáltatás nem érhető el. Ellenőrizze az internetkapcsolatot.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Biztonságos másolat az összes fájljáról</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>A biztonsági mentés szünetel.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Hét</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Kiszolgáló</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Egy másik mentendő mappának is ez a neve. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>A művelet nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>A rendszer nyelvének használata</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Következő hónap</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>A jelszava lejárt. Módosítsa a kiszolgálón.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>A kiszolgáló tanúsítványa megváltozott. Csak akkor folytassa, ha tudja, hogy miért. Folytatja?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Proxybeállítások kézi megadása</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Az erről a számítógépről törölt fájlok megtartása a kiszolgálón</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Írásvédett</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>A biztonsági mentés mappáinak beállítása</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Ez a mappa írásvédett, ezért ide nem állíthatók vissza fájlok. Szeretné használni ezt a mappát?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Fájlszűrő</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Várakozás...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Perc</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>A frissítés nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Előző oldalak (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Méret:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximális fájlméret:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Ez a mappa egy másik mentési feladathoz tartozik. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Adja meg a proxy felhasználónevét.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Váratlan hiba történt. Indítsa újra a Lumaris Backup alkalmazást.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Mappák ezen a számítógépen</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>A mappa ellenőrzése kiszolgálóhiba miatt nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kattintson ide a frissítéshez</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>A fiókja le van tiltva. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Nap</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>A biztonsági mentés nem sikerült. Ellenőrizze a mentendő mappákat, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Törölt fájlok megjelenítése</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Megosztott mappa engedélyezve</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Társítás megszüntetése...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Elemek száma: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>A megosztott mappa kvótája betelt. Töröljön fájlokat, vagy használjon másik mappát.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Mentési napló frissítése</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Elmúlt hónap</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Záró dátum:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Frissítés telepítése</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Biztonsági mentésre váró fájlok: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Túl sok bejelentkezési kísérlet történt. Próbálkozzon újra néhány perc múlva.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>A Lumaris Backup folyamatosan biztonsági mentést készít a mappáiról a Brix-eszközére.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Válassza ki a mentendő mappákat és azt a megosztott mappát, amelybe a biztonsági mentés kerül.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Kisebb, mint</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Mentendő mappák</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>A port érvénytelen. Adjon meg egy 1 és 65535 közötti számot.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>A megosztott mappa nincs csatolva. Kérje meg a rendszergazdát, hogy csatolja.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Fájlméret</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Ez a mappa írásvédett. A fájlokról készíthető biztonsági mentés, de ide nem állíthatók vissza fájlok.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>A megosztott mappa már nem létezik. Válasszon másikat.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>A kiszolgáló tanúsítványa megváltozott. Erősítse meg a kapcsolat beállításaiban.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>A kiszolgáló válasza érvénytelen. Frissítse a Lumaris Backup alkalmazást és a Korvo szolgáltatást.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>A mentendő mappa nem található. Helyezze vissza, vagy távolítsa el a mentési feladatból.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Következő oldalak (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>A FarLink-azonosító érvénytelen. Ellenőrizze, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Adjon meg egy fájlnevet (például notes.txt) vagy egy kiterjesztést (például *.tmp).</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Biztonsági mentés folyamatban...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Kezdő dátum:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>A Lumaris Backup elindítása nem sikerült. Indítsa újra a számítógépet.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>A Korvo nincs engedélyezve. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Válassza ki a mentendő mappákat.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>A kiszolgáló tanúsítványát nem sikerült ellenőrizni. Tekintse át a beállításokat, vagy forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>A Lumaris Backup beállítása</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>A mentendő mappa meghajtója nincs csatlakoztatva. Csatlakoztassa, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Folytatás mindenképpen</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Nem írhat a megosztott mappába. Kérjen hozzáférést a rendszergazdától, vagy használjon másik mappát.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>A fiókjához ellenőrző kód szükséges. A bejelentkezéshez adja meg a kódot.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Adja meg a Brix-eszköz címét, majd jelentkezzen be.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Egyenlő</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>A Lumaris Backup indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Egyéni dátumtartomány</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>A mappa használata</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>A megosztott mappa írásvédett. Válasszon olyat, amelybe írhat.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>A kiszolgáló nem érhető el. Ellenőrizze a hálózatot és a címet.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>A fiókja nem használhatja a Korvo szolgáltatást. Kérjen engedélyt a rendszergazdától.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Régi verziók eltávolítása</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>A felhasználónév ellenőrzése nem sikerült. Győződjön meg arról, hogy helyes.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Bejelentkezés a proxykiszolgálóra</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Brix-eszközök keresése a hálózaton</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>A biztonsági mentés hiba miatt leállt.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Legutóbbi feltöltés: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Proxykiszolgáló mellőzése</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>A mappa ellenőrzése nem sikerült. Ellenőrizze a hálózatot, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>A Lumaris Backup inicializálása...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Kapcsolat titkosítása SSL használatával</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Adja meg a proxy címét és portját.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Ponttal kezdődő nevek kizárása</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>A FarLink le van tiltva a kiszolgálón. Használja a kiszolgáló IP-címét, vagy forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Az ennél nagyobb fájlokról nem készül biztonsági mentés.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>A Lumaris Backup túl régi ehhez a kiszolgálóhoz. Szeretné most frissíteni?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>A saját mappája le van tiltva. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>A Brix-eszközt kicserélték vagy alaphelyzetbe állították. Szüntesse meg ennek a számítógépnek a társítását, majd csatlakozzon újra.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>A kiszolgáló elutasította a kérést. Ellenőrizze a beállításokat, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Naptár</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>A biztonsági mentés iránya nem egyezik a kiszolgálón beállítottal. Távolítsa el a feladatot, majd hozza létre újra.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>A Lumaris Backup túl régi a kiszolgálóhoz. Frissítse, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Ez a mappa nem használható mentendő mappaként. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Hónap</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Fekete-fehér ikon használata a menüsorban</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>A kiszolgáló tanúsítványát nem sikerült ellenőrizni, ezért előfordulhat, hogy a kapcsolat nem biztonságos. Folytatja?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Adja meg az ellenőrző kódot:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Bármilyen típus</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>A fiókjához ellenőrző kódok szükségesek. Állítsa be ezeket a kiszolgálón.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Ez a mappa átfedésben van egy másik mentési feladattal. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>A mentési feladat létrehozása nem sikerült. Ellenőrizze a feladat beállításait, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Törölt fájlok elrejtése</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Nem nyithatja meg ezt a mappát. Válasszon másikat, vagy kérjen hozzáférést a rendszergazdától.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Legutóbbi tevékenység megjelenítése</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>A lista valamely elemének megfelelő fájlokról nem készül biztonsági mentés.</translation>
    </message>
</context>
</TS>
