<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Vælg kilden til sikkerhedskopiering</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Opret forbindelse via FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Vælg servermappen til sikkerhedskopien.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Sikkerhedskopieringsopgaverne stopper, men filerne på serveren bevares. Vil du fjerne denne computers tilknytning?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fuldført</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Du kan åbne disse filer, men ikke ændre dem.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Din kvote på serveren er brugt op. Slet filer, eller bed din administrator om mere plads.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Kø til sikkerhedskopiering</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxyadresse:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Dine kontooplysninger kunne ikke læses. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Serveren er fuld. Frigør plads, og prøv igen.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Serveradresse:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Adgangskode:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Brugernavnet eller adgangskoden er forkert. Prøv igen.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Din sikkerhedskopi er opdateret.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen findes ikke.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Opret forbindelse til din Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe er valgt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Denne computer er tilknyttet en anden Brix. Kontroller serveradressen.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Tilføj et filnavn</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Datointerval:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Udeladte filer</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Ingen data </translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Kontroller indstillingerne, før du starter.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Udeladte mapper</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Din IP-adresse er ikke tilladt. Bed din administrator om at tillade den.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Åbn Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup er klar.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Sikkerhedskopieringsopgaverne kunne ikke indlæses. Genstart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Ikke nødvendigt</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Værdien 0 betyder ingen grænse.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-enheder på det lokale netværk</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Koden er forkert eller udløbet. Angiv en ny.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Databasen kunne ikke åbnes. Genstart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Kilde til sikkerhedskopiering</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Oprettelsestidspunkt</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Gennemse versioner</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination for sikkerhedskopiering</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Der er ingen tilgængelig delt mappe. Bed din administrator om adgang til en.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup opbevarer en opdateret kopi af dine mapper på din egen server.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Sikkerhedskopierer filen: %1</translation>
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
        <translation>Større end</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Korvo på serveren er for gammel. Bed din administrator om at opdatere Korvo.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Seneste uge</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanceret</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Du skal bruge din Brix-adresse, dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Forløb</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatadvarsel</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Genstart %1 for at anvende de nye sprogindstillinger.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Søgeord:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Der kunne ikke oprettes forbindelse til FarLink. Kontroller din internetforbindelse.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>En sikker kopi af alle dine filer</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Sikkerhedskopieringen er sat på pause.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Uge</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerer din adgangskode...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>En anden kildemappe har dette navn. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Tilføj en mappe</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Handlingen mislykkedes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Brug systemets sprog</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Næste måned</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Din adgangskode er udløbet. Skift den på serveren.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Serverens certifikat er ændret. Fortsæt kun, hvis du ved hvorfor. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Angiv proxyindstillingerne manuelt</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behold filer på serveren, når de slettes på denne computer</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Konfigurer mapperne til sikkerhedskopieringen</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Denne mappe er skrivebeskyttet, så der kan ikke gendannes filer til den. Vil du bruge den?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Venter...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minut</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Opdateringen mislykkedes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Forrige sider (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Størrelse:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksimal filstørrelse:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Denne mappe er med i en anden sikkerhedskopieringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Angiv brugernavnet til proxyserveren.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Der opstod en uventet fejl. Genstart Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Mapper på denne computer</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Denne mappe kunne ikke kontrolleres på grund af en serverfejl. Prøv igen senere.</translation>
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
        <translation>mandag</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klik her for at opdatere</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Din konto er deaktiveret. Bed din administrator om at aktivere den.</translation>
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
        <translation>Sikkerhedskopieringen mislykkedes. Kontroller kildemapperne, og prøv igen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Vis slettede filer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslæt</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Delt mappe aktiveret</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Antal elementer: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Den delte mappes kvote er brugt op. Slet filer, eller brug en anden mappe.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Opdater sikkerhedskopieringsloggen</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Seneste måned</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Slutdato:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Brugernavn:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer opdatering</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Filer, der venter på sikkerhedskopiering: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Der har været for mange loginforsøg. Prøv igen om et par minutter.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup sikkerhedskopierer løbende dine mapper til din Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Vælg de mapper, der skal sikkerhedskopieres, og den delte mappe til sikkerhedskopien.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Mindre end</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Kildemapper</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Porten er ikke gyldig. Angiv et tal fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Den delte mappe er ikke monteret. Bed din administrator om at montere den.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Vælg anden mappe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Filstørrelse</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Denne mappe er skrivebeskyttet. Filer kan sikkerhedskopieres, men ikke gendannes til den.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Den delte mappe findes ikke længere. Vælg en anden.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Serverens certifikat er ændret. Bekræft det i forbindelsesindstillingerne.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Serverens svar er ikke gyldigt. Opdater Lumaris Backup og Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Kildemappen blev ikke fundet. Læg den tilbage, eller fjern den fra sikkerhedskopieringsopgaven.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Næste sider (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink-id&apos;et er ikke gyldigt. Kontroller det, og prøv igen.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Angiv et filnavn som notes.txt eller et filtypenavn som *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhedskopierer...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Startdato:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup kunne ikke startes. Genstart computeren.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo er ikke aktiveret. Bed din administrator om at aktivere Korvo.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Vælg de mapper, der skal sikkerhedskopieres.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Serverens certifikat kunne ikke verificeres. Kontroller indstillingerne, eller spørg din administrator.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Sådan konfigurerer du Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Drevet med kildemappen er ikke tilsluttet. Tilslut det, og prøv igen.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Du kan ikke skrive til den delte mappe. Bed din administrator om adgang, eller brug en anden mappe.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Din konto kræver en bekræftelseskode. Angiv den for at logge ind.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Angiv din Brix-adresse, og log ind.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lig med</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Start Lumaris Backup, når jeg logger ind</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Brugerdefineret datointerval</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Brug denne mappe</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Den delte mappe er skrivebeskyttet. Vælg en mappe, som du kan skrive til.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Der kunne ikke oprettes forbindelse til serveren. Kontroller netværket og adressen.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Din konto har ikke tilladelse til at bruge Korvo. Bed din administrator om tilladelse.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Fjern gamle versioner</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Brugernavnet kunne ikke kontrolleres. Sørg for, at det er korrekt.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Log ind på proxyserveren</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Søg efter Brix-enheder på netværket</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Downloaden er fuldført.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Sikkerhedskopieringen stoppede på grund af en fejl.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Seneste upload: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Brug ikke proxyserver</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Denne mappe kunne ikke kontrolleres. Kontroller netværket, og prøv igen.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup initialiseres...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Krypter forbindelsen med SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Angiv proxyadressen og porten.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Udelad navne, der begynder med et punktum</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink er deaktiveret på serveren. Brug serverens IP-adresse, eller spørg din administrator.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Filer, der er større end dette, sikkerhedskopieres ikke.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup er for gammel til denne server. Vil du opdatere nu?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Din hjemmemappe er deaktiveret. Bed din administrator om at aktivere den.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix-enheden er blevet udskiftet eller nulstillet. Fjern denne computers tilknytning, og opret forbindelse igen.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Serveren afviste anmodningen. Kontroller dine indstillinger, og prøv igen.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Retningen for sikkerhedskopieringen stemmer ikke overens med serveren. Fjern opgaven, og opret den igen.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup er for gammel til serveren. Opdater programmet, og prøv igen.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Dette er ikke en gyldig kildemappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gendan</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Brug et sort-hvidt symbol på menulinjen</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Serverens certifikat kunne ikke verificeres, så forbindelsen er muligvis ikke sikker. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Angiv bekræftelseskoden:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Anvender indstillingerne...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Alle typer</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Din konto kræver bekræftelseskoder. Konfigurer dem på serveren.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Denne mappe overlapper en anden sikkerhedskopieringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Sikkerhedskopieringsopgaven kunne ikke oprettes. Kontroller dens indstillinger, og prøv igen.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Skjul slettede filer</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Du kan ikke åbne denne mappe. Vælg en anden, eller bed din administrator om adgang.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Vis den seneste aktivitet</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Filer, der svarer til et punkt på listen, sikkerhedskopieres ikke.</translation>
    </message>
</context>
</TS>
