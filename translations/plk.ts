<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Wybierz źródło kopii zapasowej</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Łącz przez FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Wybierz folder na serwerze, w którym będzie zapisywana kopia zapasowa.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Zadania kopii zapasowej zostaną zatrzymane, ale pliki pozostaną na serwerze. Czy chcesz usunąć powiązanie tego komputera?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Ukończono</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Możesz otwierać te pliki, ale nie możesz ich zmieniać.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Twój limit miejsca na serwerze został wyczerpany. Usuń część plików lub poproś administratora o więcej miejsca.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Kolejka kopii zapasowej</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Adres serwera proxy:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Nie udało się odczytać informacji o Twoim koncie. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Na serwerze nie ma wolnego miejsca. Zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Adres serwera:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Twoja kopia zapasowa jest aktualna.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Połącz się z urządzeniem Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nie wybrano folderu</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Ten komputer jest powiązany z innym urządzeniem Brix. Sprawdź adres serwera.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Zakres dat:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Brak danych </translation>
    </message>
    <message>
        <source>December</source>
        <translation>grudzień</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operacja</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Sprawdź ustawienia przed rozpoczęciem.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>lipiec</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Wykluczone foldery</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Twój adres IP nie jest dozwolony. Poproś administratora o zezwolenie na jego użycie.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Otwórz Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Program Lumaris Backup jest gotowy.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Nie udało się wczytać zadań kopii zapasowej. Uruchom ponownie program Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niepotrzebne</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Wartość 0 oznacza brak limitu.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Usuń powiązanie</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Urządzenia Brix w sieci lokalnej</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Kod jest nieprawidłowy lub wygasł. Wprowadź nowy.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>październik</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Nie udało się otworzyć bazy danych. Uruchom ponownie program Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Źródło kopii zapasowej</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Data utworzenia</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Przeglądaj wersje</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Miejsce docelowe kopii zapasowej</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Brak dostępnego folderu udostępnionego. Poproś administratora o dostęp do takiego folderu.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup przechowuje aktualną kopię Twoich folderów na Twoim własnym serwerze.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Tworzenie kopii zapasowej pliku: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Blokowanie pliku...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Większy niż</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Wersja usługi Korvo na serwerze jest za stara. Poproś administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ostatni tydzień</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Potrzebne są adres urządzenia Brix, nazwa użytkownika i hasło.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Ostrzeżenie o certyfikacie</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Uruchom ponownie program %1, aby zastosować nowe ustawienia języka.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Słowo kluczowe:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Nie udało się połączyć z usługą FarLink. Sprawdź połączenie z internetem.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Bezpieczna kopia wszystkich Twoich plików</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Tworzenie kopii zapasowej jest wstrzymane.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Tydzień</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Sprawdzanie hasła...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Inny folder źródłowy ma tę samą nazwę. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Operacja nie powiodła się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Używaj języka systemu</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Twoje hasło wygasło. Zmień je na serwerze.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Certyfikat serwera się zmienił. Kontynuuj tylko wtedy, gdy znasz przyczynę. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Wprowadź ustawienia serwera proxy ręcznie</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Zachowuj pliki na serwerze, gdy zostaną usunięte z tego komputera</translation>
    </message>
    <message>
        <source>June</source>
        <translation>czerwiec</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Skonfiguruj foldery do tworzenia kopii zapasowej</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Ten folder jest tylko do odczytu, więc nie można przywracać do niego plików. Czy chcesz go użyć?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr plików</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Oczekiwanie...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuta</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aktualizacja nie powiodła się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Używaj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Rozmiar:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksymalny rozmiar pliku:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>styczeń</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Ten folder należy do innego zadania kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Wprowadź nazwę użytkownika serwera proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Wystąpił nieoczekiwany błąd. Uruchom ponownie program Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Przesyłanie...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Foldery na tym komputerze</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Nie udało się sprawdzić tego folderu z powodu błędu serwera. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>wrzesień</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>czwartek</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>poniedziałek</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kliknij tutaj, aby zaktualizować</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Twoje konto jest wyłączone. Poproś administratora o jego włączenie.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>kwiecień</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Nie udało się utworzyć kopii zapasowej. Sprawdź foldery źródłowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Pokaż usunięte pliki</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Folder udostępniony jest włączony</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Usuwanie powiązania...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Liczba elementów: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>luty</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Limit miejsca folderu udostępnionego został wyczerpany. Usuń część plików lub użyj innego folderu.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Odśwież dziennik kopii zapasowej</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ostatni miesiąc</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Data końcowa:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Pliki oczekujące na utworzenie kopii zapasowej: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Wykonano zbyt wiele prób logowania. Spróbuj ponownie za kilka minut.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup na bieżąco tworzy na Twoim urządzeniu Brix kopie zapasowe Twoich folderów.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Wybierz foldery, których kopie zapasowe chcesz tworzyć, oraz folder udostępniony, w którym będą one zapisywane.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Mniejszy niż</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Foldery źródłowe</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Port jest nieprawidłowy. Wprowadź liczbę od 1 do 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Folder udostępniony nie jest zamontowany. Poproś administratora o jego zamontowanie.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Rozmiar pliku</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Ten folder jest tylko do odczytu. Można tworzyć kopie zapasowe plików, ale nie można ich do niego przywracać.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Folder udostępniony już nie istnieje. Wybierz inny.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Certyfikat serwera się zmienił. Potwierdź go w ustawieniach połączenia.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzec</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Wyszukaj</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>wtorek</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Odpowiedź serwera jest nieprawidłowa. Zaktualizuj program Lumaris Backup i usługę Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Nie udało się znaleźć folderu źródłowego. Umieść go z powrotem na miejscu lub usuń go z zadania kopii zapasowej.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>Identyfikator FarLink jest nieprawidłowy. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Wprowadź nazwę pliku, na przykład notatki.txt, lub rozszerzenie, na przykład *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Tworzenie kopii zapasowej...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Data początkowa:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Nie udało się uruchomić programu Lumaris Backup. Uruchom ponownie komputer.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Usługa Korvo nie jest włączona. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Wybierz foldery, których kopie zapasowe chcesz tworzyć.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera. Sprawdź ustawienia lub skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Jak skonfigurować Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Dysk z folderem źródłowym nie jest podłączony. Podłącz go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Nie możesz zapisywać w folderze udostępnionym. Poproś administratora o dostęp lub użyj innego folderu.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Twoje konto wymaga kodu weryfikacyjnego. Wprowadź go, aby się zalogować.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Wprowadź adres urządzenia Brix i zaloguj się.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Równy</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Uruchamiaj Lumaris Backup po zalogowaniu</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Niestandardowy zakres dat</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Użyj tego folderu</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Folder udostępniony jest tylko do odczytu. Wybierz taki, w którym możesz zapisywać.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>piątek</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Nie udało się połączyć z serwerem. Sprawdź sieć i adres.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Twoje konto nie ma uprawnień do korzystania z usługi Korvo. Poproś administratora o ich nadanie.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Usuń stare wersje</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Nie udało się sprawdzić nazwy użytkownika. Upewnij się, że jest prawidłowa.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Loguj się na serwerze proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Wyszukaj urządzenia Brix w sieci</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Pobieranie zostało ukończone.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Tworzenie kopii zapasowej zostało zatrzymane z powodu błędu.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>niedziela</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ostatnio przesłano: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Nie udało się sprawdzić tego folderu. Sprawdź sieć i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Inicjowanie programu Lumaris Backup...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Szyfruj połączenie za pomocą SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Wykluczaj nazwy zaczynające się od kropki</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>Usługa FarLink jest wyłączona na serwerze. Użyj adresu IP serwera lub skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Kopie zapasowe większych plików nie są tworzone.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Wersja programu Lumaris Backup jest za stara dla tego serwera. Czy chcesz teraz zaktualizować program?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Twój folder domowy jest wyłączony. Poproś administratora o jego włączenie.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Urządzenie Brix zostało wymienione lub zresetowane. Usuń powiązanie tego komputera i połącz się ponownie.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Serwer odrzucił żądanie. Sprawdź ustawienia i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Kierunek tworzenia kopii zapasowej nie zgadza się z ustawionym na serwerze. Usuń zadanie i utwórz je ponownie.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Wersja programu Lumaris Backup jest za stara dla serwera. Zaktualizuj program i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>środa</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>To nie jest prawidłowy folder źródłowy. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Używaj czarno-białej ikony na pasku menu</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera, więc połączenie może nie być bezpieczne. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Wprowadź kod weryfikacyjny:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Dowolny typ</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Twoje konto wymaga kodów weryfikacyjnych. Skonfiguruj je na serwerze.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Ten folder pokrywa się z folderem innego zadania kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Nie udało się utworzyć zadania kopii zapasowej. Sprawdź jego ustawienia i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Ukryj usunięte pliki</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Nie możesz otworzyć tego folderu. Wybierz inny lub poproś administratora o dostęp.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>August</source>
        <translation>sierpień</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Pokaż ostatnią aktywność</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Kopie zapasowe pasujących plików nie są tworzone.</translation>
    </message>
</context>
</TS>
