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
        <translation>Kies de back-upbron</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Maak verbinding via FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Selecteer de servermap voor de back-up.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Back-uptaken worden gestopt, maar bestanden op de server blijven behouden. Wil je deze computer ontkoppelen?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Je kunt deze bestanden openen, maar niet wijzigen.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Je quotum op de server is volledig gebruikt. Verwijder bestanden of vraag je beheerder om meer ruimte.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Back-upwachtrij</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxyadres:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Je accountgegevens kunnen niet worden gelezen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>De server is vol. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Serveradres:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Je back-up is up-to-date.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>De map bestaat niet.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Maak verbinding met je Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Geen map geselecteerd</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Deze computer is gekoppeld aan een andere Brix. Controleer het serveradres.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Voeg een bestandsnaam toe</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Periode:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Uitgesloten bestanden</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Geen gegevens </translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecteer</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Controleer de instellingen voordat je begint.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Uitgesloten mappen</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Je IP-adres is niet toegestaan. Vraag je beheerder om het toe te staan.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Open Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup is gereed.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>De back-uptaken kunnen niet worden geladen. Start Lumaris Backup opnieuw.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open map</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niet nodig</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>De waarde 0 betekent geen limiet.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppel</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Uur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleer</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-apparaten in het lokale netwerk</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>De code is onjuist of verlopen. Voer een nieuwe code in.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>De database kan niet worden geopend. Start Lumaris Backup opnieuw.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Back-upbron</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Aangemaakt op</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Blader door versies</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Back-upbestemming</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Er is geen gedeelde map beschikbaar. Vraag je beheerder om toegang tot een gedeelde map.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup bewaart een actuele kopie van je mappen op je eigen server.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Back-up maken van bestand: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Bestand vergrendelen...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Groter dan</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Korvo op de server is te oud. Vraag je beheerder om Korvo bij te werken.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Afgelopen week</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Je hebt het adres van je Brix, je gebruikersnaam en je wachtwoord nodig.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Pas toe</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificaatwaarschuwing</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 opnieuw om de nieuwe taalinstellingen toe te passen.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Trefwoord:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink is niet bereikbaar. Controleer je internetverbinding.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Een veilige kopie van al je bestanden</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>De back-up is gepauzeerd.</translation>
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
        <translation>Wachtwoord controleren...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Een andere bronmap heeft deze naam al. Kies een andere map.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Voeg een map toe</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>De bewerking is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Gebruik de systeemtaal</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Volgende maand</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Je wachtwoord is verlopen. Wijzig het op de server.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Het servercertificaat is gewijzigd. Ga alleen door als je weet waarom. Wil je doorgaan?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Voer de proxyinstellingen handmatig in</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Bewaar bestanden op de server als ze op deze computer worden verwijderd</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding testen...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Stel de mappen voor de back-up in</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Deze map is alleen-lezen, dus er kunnen geen bestanden in worden teruggezet. Wil je de map gebruiken?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Bestandsfilter</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Wachten...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuut</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>De update is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Vorige pagina&apos;s (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Gebruik de proxyinstellingen van het systeem</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Grootte:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale bestandsgrootte:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Deze map hoort al bij een andere back-uptaak. Kies een andere map.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Voer de gebruikersnaam voor de proxy in.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Er is een onverwachte fout opgetreden. Start Lumaris Backup opnieuw.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Mappen op deze computer</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Deze map kan door een serverfout niet worden gecontroleerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klik hier om bij te werken</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Je account is uitgeschakeld. Vraag je beheerder om je account in te schakelen.</translation>
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
        <translation>De back-up is mislukt. Controleer de bronmappen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Toon verwijderde bestanden</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Ga door</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Gedeelde map ingeschakeld</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Aantal onderdelen: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Het quotum van de gedeelde map is volledig gebruikt. Verwijder bestanden of gebruik een andere map.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Vernieuw het back-uplogboek</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Afgelopen maand</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Einddatum:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Wis filter</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installeer update</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Bestanden die wachten op back-up: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Er is te vaak geprobeerd in te loggen. Probeer het over een paar minuten opnieuw.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup maakt op je Brix doorlopend back-ups van je mappen.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Kies de mappen waarvan je een back-up wilt maken en de gedeelde map voor de back-up.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Kleiner dan</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Bronmappen</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>De poort is ongeldig. Voer een getal van 1 tot en met 65535 in.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>De gedeelde map is niet geactiveerd. Vraag je beheerder om de map te activeren.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Kies een andere map</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Deze map is alleen-lezen. Er kan wel een back-up van bestanden worden gemaakt, maar ze kunnen niet in deze map worden teruggezet.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>De gedeelde map bestaat niet meer. Kies een andere gedeelde map.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Het servercertificaat is gewijzigd. Bevestig het in de verbindingsinstellingen.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Het antwoord van de server is ongeldig. Werk Lumaris Backup en Korvo bij.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>De bronmap is niet gevonden. Plaats de map terug op de oorspronkelijke locatie of verwijder deze uit de back-uptaak.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sluit af</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Volgende pagina&apos;s (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>De FarLink-ID is ongeldig. Controleer de ID en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Voer een bestandsnaam in, zoals notities.txt, of een extensie, zoals *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Back-up maken...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Begindatum:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup kan niet worden gestart. Start je computer opnieuw op.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo is niet ingeschakeld. Vraag je beheerder om Korvo in te schakelen.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Selecteer de mappen waarvan je een back-up wilt maken.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijdstip</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Het servercertificaat kan niet worden geverifieerd. Controleer de instellingen of vraag je beheerder om hulp.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Zo stel je Lumaris Backup in</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>De schijf met de bronmap is niet aangesloten. Sluit de schijf aan en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Ga toch door</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Je kunt niet naar de gedeelde map schrijven. Vraag je beheerder om toegang of gebruik een andere map.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Voor je account is een verificatiecode nodig. Voer de code in om in te loggen.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Voer het adres van je Brix in en log in.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Gelijk aan</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Start Lumaris Backup wanneer ik inlog</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Aangepaste periode</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Gebruik deze map</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>De gedeelde map is alleen-lezen. Kies een map waarnaar je kunt schrijven.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>De server is niet bereikbaar. Controleer het netwerk en het adres.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Je account mag Korvo niet gebruiken. Vraag je beheerder om toestemming.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Verwijder oude versies</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>De gebruikersnaam kan niet worden gecontroleerd. Zorg ervoor dat deze juist is.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Log in bij de proxyserver</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Zoek in het netwerk naar Brix-apparaten</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>De download is voltooid.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>De back-up is gestopt vanwege een fout.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Laatste upload: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Gebruik geen proxyserver</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Deze map kan niet worden gecontroleerd. Controleer het netwerk en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup initialiseren...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Versleutel de verbinding met SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Voer het adres en de poort van de proxy in.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Sluit namen uit die met een punt beginnen</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink is op de server uitgeschakeld. Gebruik het IP-adres van de server of vraag je beheerder om hulp.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Van grotere bestanden wordt geen back-up gemaakt.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup is te oud voor deze server. Wil je nu bijwerken?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervat</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Je thuismap is uitgeschakeld. Vraag je beheerder om de map in te schakelen.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>De Brix is vervangen of gereset. Ontkoppel deze computer en maak opnieuw verbinding.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>De server heeft het verzoek geweigerd. Controleer je instellingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>De back-uprichting komt niet overeen met de server. Verwijder de taak en maak deze opnieuw aan.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup is te oud voor de server. Werk Lumaris Backup bij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Dit is geen geldige bronmap. Kies een andere map.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Zet terug</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Maand</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Gebruik een zwart-witsymbool in de menubalk</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Het servercertificaat kan niet worden geverifieerd. De verbinding is daardoor mogelijk niet veilig. Wil je doorgaan?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Voer de verificatiecode in:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Alle typen</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Voor je account zijn verificatiecodes nodig. Stel deze in op de server.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Deze map overlapt met een map van een andere back-uptaak. Kies een andere map.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>De back-uptaak kan niet worden aangemaakt. Controleer de instellingen van de taak en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeer</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Verberg verwijderde bestanden</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Je kunt deze map niet openen. Kies een andere map of vraag je beheerder om toegang.</translation>
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
        <translation>augustus</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Toon recente activiteit</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Van overeenkomende bestanden wordt geen back-up gemaakt.</translation>
    </message>
</context>
</TS>
