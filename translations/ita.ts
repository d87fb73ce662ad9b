<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Scegli l&apos;origine del backup</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Connetti tramite FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Seleziona la cartella del server per il backup.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Le attività di backup verranno interrotte, ma i file sul server non verranno rimossi. Vuoi scollegare questo computer?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Puoi aprire questi file, ma non modificarli.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>La tua quota sul server è esaurita. Elimina alcuni file o chiedi più spazio all&apos;amministratore.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Coda di backup</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Indirizzo proxy:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Impossibile leggere le informazioni del tuo account. Riprova più tardi.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Lo spazio sul server è esaurito. Libera spazio e riprova.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Indirizzo del server:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Il nome utente o la password non sono corretti. Riprova.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Il backup è aggiornato.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Connettiti al tuo Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nessuna cartella selezionata</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Questo computer è collegato a un altro Brix. Verifica l&apos;indirizzo del server.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Aggiungi un nome di file</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Intervallo di date:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Nessun dato </translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Verifica le impostazioni prima di iniziare.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Cartelle escluse</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Il tuo indirizzo IP non è autorizzato. Chiedi all&apos;amministratore di autorizzarlo.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Apri Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup è pronto.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Impossibile caricare le attività di backup. Riavvia Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Non serve</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Il valore 0 indica nessun limite.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Dispositivi Brix nella rete locale</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Il codice non è corretto o è scaduto. Inseriscine uno nuovo.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Impossibile aprire il database. Riavvia Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Origine del backup</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Sfoglia versioni</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destinazione del backup</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Non è disponibile alcuna cartella condivisa. Chiedi all&apos;amministratore di concederti l&apos;accesso a una cartella.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup mantiene sul tuo server una copia sempre aggiornata delle tue cartelle.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Backup del file in corso: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Blocco del file in corso...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Maggiore di</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>La versione di Korvo sul server è troppo vecchia. Chiedi all&apos;amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ultima settimana</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Ti servono l&apos;indirizzo del tuo Brix, il nome utente e la password.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avviso relativo al certificato</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Riavvia %1 per applicare le nuove impostazioni della lingua.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Parola chiave:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Impossibile raggiungere FarLink. Verifica la connessione a Internet.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Una copia sicura di tutti i tuoi file</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Il backup è sospeso.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Verifica della password in corso...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Esiste già una cartella di origine con questo nome. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Operazione non riuscita. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Usa la lingua di sistema</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>La tua password è scaduta. Modificala sul server.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Il certificato del server è cambiato. Continua solo se ne conosci il motivo. Vuoi continuare?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Inserisci manualmente le impostazioni proxy</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Mantieni i file sul server quando vengono eliminati da questo computer</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione in corso...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Configura le cartelle per il backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Questa cartella è di sola lettura, quindi non sarà possibile ripristinarvi i file. Vuoi usarla?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro file</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>In attesa...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aggiornamento non riuscito. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Pagine precedenti (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Dimensione massima dei file:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Questa cartella fa parte di un&apos;altra attività di backup. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Inserisci il nome utente del proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Si è verificato un errore imprevisto. Riavvia Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Caricamento sul server...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Cartelle su questo computer</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Impossibile verificare questa cartella a causa di un errore del server. Riprova più tardi.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Fai clic qui per aggiornare</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Il tuo account è disabilitato. Chiedi all&apos;amministratore di abilitarlo.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Backup non riuscito. Verifica le cartelle di origine e riprova.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostra file eliminati</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Cartella condivisa abilitata</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Numero di elementi: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>La quota della cartella condivisa è esaurita. Elimina alcuni file o usa un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Aggiorna il registro dei backup</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ultimo mese</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Data di fine:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installa aggiornamento</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>File in attesa di backup: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Troppi tentativi di accesso. Riprova tra qualche minuto.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup esegue continuamente il backup delle tue cartelle sul tuo Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Scegli le cartelle di cui eseguire il backup e la cartella condivisa di destinazione.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Minore di</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Cartelle di origine</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>La porta non è valida. Inserisci un numero da 1 a 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>La cartella condivisa non è montata. Chiedi all&apos;amministratore di montarla.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dimensione file</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Questa cartella è di sola lettura. È possibile eseguire il backup dei file, ma non ripristinarli nella cartella.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>La cartella condivisa non esiste più. Scegline un&apos;altra.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Il certificato del server è cambiato. Confermalo nelle impostazioni di connessione.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>La risposta del server non è valida. Aggiorna Lumaris Backup e Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Impossibile trovare la cartella di origine. Rimettila al suo posto o rimuovila dall&apos;attività di backup.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Pagine successive (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>L&apos;ID FarLink non è valido. Verificalo e riprova.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Inserisci un nome di file come notes.txt o un&apos;estensione come *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup in corso...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Data di inizio:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Impossibile avviare Lumaris Backup. Riavvia il computer.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo non è abilitato. Chiedi all&apos;amministratore di abilitarlo.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Seleziona le cartelle di cui eseguire il backup.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Impossibile verificare il certificato del server. Controlla le impostazioni o rivolgiti all&apos;amministratore.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Come configurare Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>L&apos;unità della cartella di origine non è connessa. Connettila e riprova.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Non puoi scrivere nella cartella condivisa. Chiedi l&apos;accesso all&apos;amministratore o usa un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Il tuo account richiede un codice di verifica. Inseriscilo per accedere.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Inserisci l&apos;indirizzo del tuo Brix e accedi.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Uguale a</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Avvia Lumaris Backup quando accedo al computer</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Intervallo di date personalizzato</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usa questa cartella</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>La cartella condivisa è di sola lettura. Scegline una in cui puoi scrivere.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Impossibile raggiungere il server. Verifica la rete e l&apos;indirizzo.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Il tuo account non è autorizzato a usare Korvo. Chiedi l&apos;autorizzazione all&apos;amministratore.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Rimuovi le vecchie versioni</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Impossibile verificare il nome utente. Assicurati che sia corretto.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Accedi al server proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Cerca dispositivi Brix nella rete</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Il download è stato completato.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Il backup è stato interrotto a causa di un errore.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ultimo caricamento: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Non usare un server proxy</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Impossibile verificare questa cartella. Controlla la rete e riprova.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Inizializzazione di Lumaris Backup in corso...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Crittografa la connessione con SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Inserisci l&apos;indirizzo e la porta del proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Escludi file e cartelle il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink è disabilitato sul server. Usa l&apos;indirizzo IP del server o rivolgiti all&apos;amministratore.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Non viene eseguito il backup dei file di dimensione superiore.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>La versione di Lumaris Backup è troppo vecchia per questo server. Vuoi aggiornarla adesso?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>La tua cartella home è disabilitata. Chiedi all&apos;amministratore di abilitarla.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Il Brix è stato sostituito o riportato allo stato iniziale. Scollega questo computer e connettiti di nuovo.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Il server ha rifiutato la richiesta. Verifica le impostazioni e riprova.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo file</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>La direzione del backup non corrisponde a quella impostata sul server. Rimuovi l&apos;attività e creala di nuovo.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>La versione di Lumaris Backup è troppo vecchia per il server. Aggiornala e riprova.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Questa non è una cartella di origine valida. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usa un&apos;icona in bianco e nero nella barra dei menu</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Impossibile verificare il certificato del server, quindi la connessione potrebbe non essere sicura. Vuoi continuare?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Avvia adesso</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Inserisci il codice di verifica:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applicazione delle impostazioni in corso...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Qualsiasi tipo</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Il tuo account richiede codici di verifica. Configurali sul server.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Questa cartella si sovrappone a un&apos;altra attività di backup. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Impossibile creare l&apos;attività di backup. Verificane le impostazioni e riprova.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Nascondi file eliminati</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Non puoi aprire questa cartella. Scegline un&apos;altra o chiedi l&apos;accesso all&apos;amministratore.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Mostra l&apos;attività recente</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Non viene eseguito il backup dei file corrispondenti.</translation>
    </message>
</context>
</TS>
