<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Sicherungsquelle auswählen</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Über FarLink verbinden</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Wählen Sie den Serverordner für die Sicherung.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Sicherungsaufgaben werden beendet, Dateien auf dem Server bleiben jedoch erhalten. Möchten Sie die Verknüpfung dieses Computers aufheben?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Sie können diese Dateien öffnen, aber nicht ändern.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Ihr Kontingent auf dem Server ist erschöpft. Löschen Sie Dateien oder bitten Sie Ihren Administrator um mehr Speicherplatz.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Sicherungswarteschlange</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxy-Adresse:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Ihre Kontoinformationen konnten nicht gelesen werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Der Server ist voll. Geben Sie Speicherplatz frei und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Serveradresse:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Der Benutzername oder das Passwort ist falsch. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Ihre Sicherung ist aktuell.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Mit Ihrem Brix verbinden</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogfenster</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Kein Ordner ausgewählt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Dieser Computer ist mit einem anderen Brix verknüpft. Prüfen Sie die Serveradresse.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Dateinamen hinzufügen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Zeitraum:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Keine Daten </translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Prüfen Sie die Einstellungen, bevor Sie beginnen.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Ausgeschlossene Ordner</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Ihre IP-Adresse ist nicht zugelassen. Bitten Sie Ihren Administrator, sie zuzulassen.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Lumaris Backup öffnen</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup ist bereit.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Die Sicherungsaufgaben konnten nicht geladen werden. Starten Sie Lumaris Backup neu.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nicht nötig</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Der Wert 0 bedeutet keine Begrenzung.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-Geräte im lokalen Netzwerk</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Der Code ist falsch oder abgelaufen. Geben Sie einen neuen ein.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Die Datenbank konnte nicht geöffnet werden. Starten Sie Lumaris Backup neu.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Sicherungsquelle</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Sicherungsziel</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Es ist kein freigegebener Ordner verfügbar. Bitten Sie Ihren Administrator um Zugriff.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup hält eine aktuelle Kopie Ihrer Ordner auf Ihrem eigenen Server bereit.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Datei wird gesichert: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Datei wird gesperrt...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Größer als</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Korvo auf dem Server ist zu alt. Bitten Sie Ihren Administrator um ein Update.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Sie benötigen Ihre Brix-Adresse, Ihren Benutzernamen und Ihr Passwort.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Zertifikatwarnung</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Bitte starten Sie %1 neu, damit die neuen Spracheinstellungen wirksam werden.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Suchbegriff:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink konnte nicht erreicht werden. Prüfen Sie Ihre Internetverbindung.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Eine sichere Kopie all Ihrer Dateien</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Die Sicherung ist angehalten.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Passwort wird geprüft...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Ein anderer Quellordner hat bereits diesen Namen. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Der Vorgang ist fehlgeschlagen. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Systemsprache verwenden</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Ihr Passwort ist abgelaufen. Ändern Sie es auf dem Server.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Das Serverzertifikat hat sich geändert. Fahren Sie nur fort, wenn Sie den Grund kennen. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Proxy-Einstellungen manuell eingeben</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Dateien auf dem Server behalten, wenn sie auf diesem Computer gelöscht werden</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Ordner für die Sicherung einrichten</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Dieser Ordner ist schreibgeschützt, daher können darin keine Dateien wiederhergestellt werden. Möchten Sie ihn verwenden?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dateifilter</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Wartet...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Das Update ist fehlgeschlagen. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Vorherige Seiten (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Proxy-Einstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale Dateigröße:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Dieser Ordner gehört zu einer anderen Sicherungsaufgabe. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Geben Sie den Proxy-Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-Einstellungen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Ein unerwarteter Fehler ist aufgetreten. Starten Sie Lumaris Backup neu.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Ordner auf diesem Computer</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Dieser Ordner konnte wegen eines Serverfehlers nicht geprüft werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Zum Aktualisieren hier klicken</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Ihr Konto ist deaktiviert. Bitten Sie Ihren Administrator, es zu aktivieren.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Die Sicherung ist fehlgeschlagen. Prüfen Sie die Quellordner und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Gelöschte Dateien anzeigen</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Freigegebener Ordner aktiviert</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Anzahl der Elemente: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Das Kontingent des freigegebenen Ordners ist erschöpft. Löschen Sie Dateien oder verwenden Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Sicherungsprotokoll aktualisieren</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Enddatum:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Update installieren</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Noch zu sichernde Dateien: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Es gab zu viele Anmeldeversuche. Versuchen Sie es in einigen Minuten erneut.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup sichert Ihre Ordner laufend auf Ihrem Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Wählen Sie die zu sichernden Ordner und den freigegebenen Ordner für die Sicherung.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Kleiner als</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Quellordner</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Der Port ist ungültig. Geben Sie eine Zahl von 1 bis 65535 ein.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Der freigegebene Ordner ist nicht eingebunden. Bitten Sie Ihren Administrator, ihn einzubinden.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Dieser Ordner ist schreibgeschützt. Dateien können gesichert, aber nicht darin wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Der freigegebene Ordner ist nicht mehr vorhanden. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Das Serverzertifikat hat sich geändert. Bestätigen Sie es in den Verbindungseinstellungen.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Die Antwort des Servers ist ungültig. Aktualisieren Sie Lumaris Backup und Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Der Quellordner wurde nicht gefunden. Bringen Sie ihn an den ursprünglichen Ort zurück oder entfernen Sie ihn aus der Sicherungsaufgabe.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Nächste Seiten (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>Die FarLink-ID ist ungültig. Prüfen Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Geben Sie einen Dateinamen wie notes.txt oder eine Erweiterung wie *.tmp ein.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sicherung läuft...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Startdatum:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup konnte nicht gestartet werden. Starten Sie Ihren Computer neu.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo ist nicht aktiviert. Bitten Sie Ihren Administrator, es zu aktivieren.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Wählen Sie die zu sichernden Ordner.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Das Serverzertifikat konnte nicht verifiziert werden. Prüfen Sie die Einstellungen oder fragen Sie Ihren Administrator.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>So richten Sie Lumaris Backup ein</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Das Laufwerk des Quellordners ist nicht angeschlossen. Schließen Sie es an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Sie haben keinen Schreibzugriff auf den freigegebenen Ordner. Bitten Sie Ihren Administrator um Zugriff oder verwenden Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Ihr Konto erfordert einen Bestätigungscode. Geben Sie ihn zur Anmeldung ein.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Geben Sie Ihre Brix-Adresse ein und melden Sie sich an.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Lumaris Backup beim Anmelden starten</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Eigener Zeitraum</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Diesen Ordner verwenden</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Der freigegebene Ordner ist schreibgeschützt. Wählen Sie einen Ordner mit Schreibzugriff.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Der Server konnte nicht erreicht werden. Prüfen Sie das Netzwerk und die Adresse.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Mit Ihrem Konto dürfen Sie Korvo nicht verwenden. Bitten Sie Ihren Administrator um die Berechtigung.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Alte Versionen entfernen</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Der Benutzername konnte nicht geprüft werden. Stellen Sie sicher, dass er richtig ist.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Beim Proxy-Server anmelden</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Netzwerk nach Brix-Geräten durchsuchen</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Der Download ist abgeschlossen.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Die Sicherung wurde wegen eines Fehlers abgebrochen.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Zuletzt hochgeladen: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Keinen Proxy-Server verwenden</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Dieser Ordner konnte nicht geprüft werden. Prüfen Sie das Netzwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup wird initialisiert...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Verbindung mit SSL verschlüsseln</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Geben Sie die Proxy-Adresse und den Port ein.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Namen ausschließen, die mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink ist auf dem Server deaktiviert. Verwenden Sie dessen IP-Adresse oder fragen Sie Ihren Administrator.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Größere Dateien werden nicht gesichert.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup ist für diesen Server zu alt. Möchten Sie es jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Ihr persönlicher Ordner ist deaktiviert. Bitten Sie Ihren Administrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Das Brix-Gerät wurde ersetzt oder zurückgesetzt. Heben Sie die Verknüpfung dieses Computers auf und verbinden Sie ihn neu.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Der Server hat die Anfrage abgelehnt. Prüfen Sie Ihre Einstellungen und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Die Sicherungsrichtung passt nicht zum Server. Entfernen Sie die Aufgabe und erstellen Sie sie neu.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup ist für den Server zu alt. Aktualisieren Sie es und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Dies ist kein gültiger Quellordner. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Schwarz-weißes Menüleistensymbol verwenden</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Das Serverzertifikat konnte nicht verifiziert werden, daher ist die Verbindung möglicherweise unsicher. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Bestätigungscode eingeben:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Alle Typen</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Ihr Konto erfordert Bestätigungscodes. Richten Sie diese auf dem Server ein.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Dieser Ordner überschneidet sich mit einer anderen Sicherungsaufgabe. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Die Sicherungsaufgabe konnte nicht erstellt werden. Prüfen Sie deren Einstellungen und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Gelöschte Dateien ausblenden</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Sie können diesen Ordner nicht öffnen. Wählen Sie einen anderen oder bitten Sie Ihren Administrator um Zugriff.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Letzte Aktivitäten anzeigen</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Dateien, die einem Eintrag entsprechen, werden nicht gesichert.</translation>
    </message>
</context>
</TS>
