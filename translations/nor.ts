<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Velg kilden for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Koble til via FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Velg servermappen for sikkerhetskopien.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Sikkerhetskopieringsoppgavene stopper, men filene på serveren blir værende der. Vil du fjerne tilknytningen for denne datamaskinen?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fullført</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Du kan åpne disse filene, men ikke endre dem.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Kvoten din på serveren er brukt opp. Slett filer, eller be administratoren om mer plass.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Sikkerhetskopieringskø</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxyadresse:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Kontoopplysningene dine kunne ikke leses. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Serveren er full. Frigjør plass, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Serveradresse:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passord:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Brukernavnet eller passordet er feil. Prøv på nytt.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Sikkerhetskopien er oppdatert.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Mappen finnes ikke.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Koble til Brix-enheten din</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Dialogboks</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ingen mappe valgt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nå</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Denne datamaskinen er tilknyttet en annen Brix. Kontroller serveradressen.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Legg til et filnavn</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Datoområde:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Utelatte filer</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Ingen data </translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Kontroller innstillingene før du starter.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Utelatte mapper</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>IP-adressen din er ikke tillatt. Be administratoren om å tillate den.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Åpne Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup er klart.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Sikkerhetskopieringsoppgavene kunne ikke lastes inn. Start Lumaris Backup på nytt.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Ikke nødvendig</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Verdien 0 betyr ingen grense.</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Brix-enheter i det lokale nettverket</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Koden er feil eller utløpt. Skriv inn en ny.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Databasen kunne ikke åpnes. Start Lumaris Backup på nytt.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Kilde for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Bla gjennom versjoner</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Ingen delt mappe er tilgjengelig. Be administratoren om tilgang til en delt mappe.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup sørger for at du alltid har en oppdatert kopi av mappene dine på din egen server.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Sikkerhetskopierer filen: %1</translation>
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
        <translation>Større enn</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Korvo på serveren er for gammel. Be administratoren om å oppdatere tjenesten.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Siste uke</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Du trenger Brix-adressen, brukernavnet og passordet ditt.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifikatadvarsel</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 på nytt for å ta i bruk de nye språkinnstillingene.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Søkeord:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Får ikke kontakt med FarLink. Kontroller internettilkoblingen.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>En sikker kopi av alle filene dine</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Sikkerhetskopieringen er satt på pause.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Uke</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Kontrollerer passordet...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>En annen kildemappe har dette navnet. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Legg til en mappe</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Handlingen kunne ikke utføres. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Bruk systemspråket</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Neste måned</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Passordet ditt er utløpt. Endre det på serveren.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Serversertifikatet er endret. Fortsett bare hvis du vet hvorfor. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Skriv inn proxyinnstillingene manuelt</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behold filer på serveren når de slettes på denne datamaskinen</translation>
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
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Konfigurer mappene for sikkerhetskopieringen</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Denne mappen er skrivebeskyttet, så filer kan ikke gjenopprettes til den. Vil du bruke den?</translation>
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
        <translation>Minutt</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Oppdateringen mislyktes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Foregående sider (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
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
        <translation>Denne mappen tilhører en annen sikkerhetskopieringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Skriv inn brukernavnet for proxyserveren.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Det oppstod en uventet feil. Start Lumaris Backup på nytt.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Mapper på denne datamaskinen</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Denne mappen kunne ikke kontrolleres på grunn av en serverfeil. Prøv på nytt senere.</translation>
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
        <translation>Klikk her for å oppdatere</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Kontoen din er deaktivert. Be administratoren om å aktivere den.</translation>
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
        <translation>Sikkerhetskopieringen mislyktes. Kontroller kildemappene, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Vis slettede filer</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslett</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Delt mappe aktivert</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytningen...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Antall elementer: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Klargjør...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Kvoten for den delte mappen er brukt opp. Slett filer, eller bruk en annen mappe.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Oppdater sikkerhetskopieringsloggen</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Siste måned</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Sluttdato:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nullstill</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Brukernavn:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer oppdatering</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Filer som venter på sikkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Det har vært for mange påloggingsforsøk. Prøv på nytt om noen minutter.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup sikkerhetskopierer mappene dine kontinuerlig til Brix-enheten din.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Velg mappene du vil sikkerhetskopiere, og den delte mappen for sikkerhetskopien.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Mindre enn</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Kildemapper</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Porten er ikke gyldig. Skriv inn et tall fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Den delte mappen er ikke montert. Be administratoren om å montere den.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Velg en annen mappe</translation>
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
        <translation>Denne mappen er skrivebeskyttet. Filene kan sikkerhetskopieres, men ikke gjenopprettes til den.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Den delte mappen finnes ikke lenger. Velg en annen.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Serversertifikatet er endret. Bekreft det i tilkoblingsinnstillingene.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Svaret fra serveren er ikke gyldig. Oppdater Lumaris Backup og Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Finner ikke kildemappen. Legg den tilbake, eller fjern den fra sikkerhetskopieringsoppgaven.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Neste sider (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink-ID-en er ikke gyldig. Kontroller den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Skriv inn et filnavn, for eksempel notes.txt, eller et filetternavn, for eksempel *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhetskopierer...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Startdato:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup kunne ikke startes. Start datamaskinen på nytt.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo er ikke aktivert. Be administratoren om å aktivere tjenesten.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Velg mappene du vil sikkerhetskopiere.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Serversertifikatet kunne ikke verifiseres. Kontroller innstillingene, eller spør administratoren.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Slik konfigurerer du Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Stasjonen med kildemappen er ikke tilkoblet. Koble den til, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Du har ikke skrivetilgang til den delte mappen. Be administratoren om tilgang, eller bruk en annen mappe.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Kontoen din krever en bekreftelseskode. Skriv den inn for å logge på.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Skriv inn Brix-adressen din, og logg på.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Lik</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Start Lumaris Backup når jeg logger på</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Egendefinert datoområde</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Bruk denne mappen</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Den delte mappen er skrivebeskyttet. Velg en som du har skrivetilgang til.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Får ikke kontakt med serveren. Kontroller nettverket og adressen.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Kontoen din har ikke tillatelse til å bruke Korvo. Be administratoren om tillatelse.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Fjern gamle versjoner</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Brukernavnet kunne ikke kontrolleres. Forsikre deg om at det er riktig.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Logg på proxyserveren</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Søk etter Brix-enheter i nettverket</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Sikkerhetskopieringen stoppet på grunn av en feil.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Siste opplasting: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ikke bruk proxyserver</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Denne mappen kunne ikke kontrolleres. Kontroller nettverket, og prøv på nytt.</translation>
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
        <translation>Krypter tilkoblingen med SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Skriv inn adressen og porten for proxyserveren.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Utelat navn som begynner med punktum</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink er deaktivert på serveren. Bruk IP-adressen til serveren, eller spør administratoren.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Filer som er større enn dette, sikkerhetskopieres ikke.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup er for gammelt for denne serveren. Vil du oppdatere nå?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Hjemmemappen din er deaktivert. Be administratoren om å aktivere den.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix-enheten er byttet ut eller tilbakestilt. Fjern tilknytningen for denne datamaskinen, og koble til på nytt.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Serveren avviste forespørselen. Kontroller innstillingene, og prøv på nytt.</translation>
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
        <translation>Retningen for sikkerhetskopieringen samsvarer ikke med serveren. Fjern oppgaven, og opprett den på nytt.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup er for gammelt for serveren. Oppdater programmet, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Dette er ikke en gyldig kildemappe. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Bruk et svart-hvitt symbol i menylinjen</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Serversertifikatet kunne ikke verifiseres, så tilkoblingen kan være usikker. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Skriv inn bekreftelseskoden:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tar i bruk innstillingene...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Alle typer</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Kontoen din krever bekreftelseskoder. Konfigurer dem på serveren.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Denne mappen overlapper med en annen sikkerhetskopieringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Sikkerhetskopieringsoppgaven kunne ikke opprettes. Kontroller innstillingene for den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Skjul slettede filer</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Du kan ikke åpne denne mappen. Velg en annen, eller be administratoren om tilgang.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Last ned</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Vis nylig aktivitet</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Filer som samsvarer med listen, sikkerhetskopieres ikke.</translation>
    </message>
</context>
</TS>
