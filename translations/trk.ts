<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Yedekleme kaynağını seçin</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>FarLink üzerinden bağlan</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Yedekleme için sunucu klasörünü seçin.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Yedekleme görevleri durur ancak dosyalar sunucuda kalır. Bu bilgisayarın eşleştirmesini kaldırmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Bu dosyaları açabilirsiniz ancak değiştiremezsiniz.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Sunucudaki kotanız doldu. Dosya silin veya yöneticinizden daha fazla alan isteyin.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Yedekleme kuyruğu</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Proxy adresi:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Hesap bilgileriniz okunamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Sunucu dolu. Yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Sunucu adresi:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Kullanıcı adı veya parola yanlış. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Yedeğiniz güncel.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Klasör mevcut değil.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Brix&apos;inize bağlanın</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>İletişim kutusu</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Klasör seçilmedi</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Bu bilgisayar başka bir Brix ile eşleştirilmiş. Sunucu adresini denetleyin.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Önceki ay</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Dosya adı ekle</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Tarih aralığı:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Veri yok </translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Başlamadan önce ayarları denetleyin.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Hariç tutulan klasörler</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>IP adresinize izin verilmiyor. Yöneticinizden izin vermesini isteyin.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Lumaris Backup&apos;ı aç</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup hazır.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Yedekleme görevleri yüklenemedi. Lumaris Backup&apos;ı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Gerekli değil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>0 değeri, sınır olmadığı anlamına gelir.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Eşleştirmeyi kaldır</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Vazgeç</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Yerel ağdaki Brix cihazları</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Kod yanlış veya süresi dolmuş. Yeni bir kod girin.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Veritabanı açılamadı. Lumaris Backup&apos;ı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Yedekleme kaynağı</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Oluşturulma zamanı</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Sürümlere göz at</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Yedekleme hedefi</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Kullanılabilir paylaşılan klasör yok. Yöneticinizden paylaşılan bir klasöre erişim isteyin.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup, klasörlerinizin güncel bir kopyasını kendi sunucunuzda tutar.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Dosya yedekleniyor: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Dosya kilitleniyor...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Şundan büyük</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Sunucudaki Korvo çok eski. Yöneticinizden güncellemesini isteyin.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Son bir hafta</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Brix adresinize, kullanıcı adınıza ve parolanıza ihtiyacınız var.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifika uyarısı</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Yeni dil ayarlarının uygulanması için lütfen %1 uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Anahtar sözcük:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>FarLink&apos;e ulaşılamadı. İnternet bağlantınızı denetleyin.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Tüm dosyalarınızın güvenli bir kopyası</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Yedekleme duraklatıldı.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Hafta</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Sunucu</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Parolanız denetleniyor...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Bu ada sahip başka bir kaynak klasör var. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>İşlem başarısız oldu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Sistem dilini kullan</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Sonraki ay</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Parolanızın süresi doldu. Parolanızı sunucuda değiştirin.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Sunucu sertifikası değişti. Yalnızca nedenini biliyorsanız devam edin. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Proxy ayarlarını elle gir</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Bu bilgisayarda silinen dosyaları sunucuda tut</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı sınanıyor...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Yedekleme için klasörleri ayarlayın</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Bu klasör salt okunur, bu nedenle dosyalar bu klasöre geri yüklenemez. Klasörü kullanmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dosya filtresi</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Bekliyor...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Dakika</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Güncelleme başarısız oldu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Önceki sayfalar (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Sistemin proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Boyut:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>En büyük dosya boyutu:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Bu klasör başka bir yedekleme görevinde yer alıyor. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Proxy kullanıcı adını girin.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy ayarları</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Beklenmeyen bir hata oluştu. Lumaris Backup&apos;ı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Bu bilgisayardaki klasörler</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Bir sunucu hatası nedeniyle bu klasör denetlenemedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Güncellemek için buraya tıklayın</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Hesabınız devre dışı. Yöneticinizden hesabınızı etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Yedekleme başarısız oldu. Kaynak klasörleri denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Silinen dosyaları göster</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Paylaşılan klasör etkin</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Eşleştirme kaldırılıyor...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Öğe sayısı: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Paylaşılan klasörün kotası doldu. Dosya silin veya başka bir klasör kullanın.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Yedekleme günlüğünü yenile</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Son bir ay</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Bitiş tarihi:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Güncellemeyi yükle</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Yedeklenmeyi bekleyen dosyalar: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Çok fazla oturum açma denemesi yapıldı. Birkaç dakika sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup, klasörlerinizi sürekli olarak Brix&apos;inize yedekler.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Yedeklenecek klasörleri ve yedekleme için kullanılacak paylaşılan klasörü seçin.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Şundan küçük</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Kaynak klasörler</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Bağlantı noktası geçerli değil. 1 ile 65535 arasında bir sayı girin.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Paylaşılan klasör bağlı değil. Yöneticinizden klasörü bağlamasını isteyin.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Başka klasör seç</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dosya boyutu</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Bu klasör salt okunur. Dosyalar yedeklenebilir ancak bu klasöre geri yüklenemez.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Paylaşılan klasör artık mevcut değil. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Bağlantı noktası:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Sunucu sertifikası değişti. Sertifikayı bağlantı ayarlarında onaylayın.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Sunucunun yanıtı geçerli değil. Lumaris Backup&apos;ı ve Korvo&apos;yu güncelleyin.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Kaynak klasör bulunamadı. Klasörü eski yerine koyun veya yedekleme görevinden kaldırın.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Sonraki sayfalar (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>FarLink kimliği geçerli değil. Kimliği denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>notes.txt gibi bir dosya adı veya *.tmp gibi bir uzantı girin.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Yedekleniyor...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Başlangıç tarihi:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Lumaris Backup başlatılamadı. Bilgisayarınızı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo etkin değil. Yöneticinizden Korvo&apos;yu etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Yedeklenecek klasörleri seçin.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Sunucu sertifikası doğrulanamadı. Ayarları denetleyin veya yöneticinize danışın.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Lumaris Backup nasıl ayarlanır</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Kaynak klasörün bulunduğu sürücü takılı değil. Sürücüyü takıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Yine de devam et</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Paylaşılan klasöre yazma izniniz yok. Yöneticinizden erişim isteyin veya başka bir klasör kullanın.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Hesabınız için doğrulama kodu gerekiyor. Oturum açmak için kodu girin.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Brix adresinizi girip oturum açın.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Şuna eşit</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Oturum açtığımda Lumaris Backup&apos;ı başlat</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Özel tarih aralığı</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Bu klasörü kullan</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Paylaşılan klasör salt okunur. Yazma izniniz olan bir klasör seçin.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Sunucuya ulaşılamadı. Ağı ve adresi denetleyin.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Hesabınızın Korvo&apos;yu kullanma izni yok. Yöneticinizden izin isteyin.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Eski sürümleri kaldır</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Kullanıcı adı denetlenemedi. Doğru olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Proxy sunucusunda oturum aç</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Ağda Brix cihazlarını ara</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Yedekleme bir hata nedeniyle durdu.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Son karşıya yükleme: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Proxy sunucusu kullanmadan bağlan</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Bu klasör denetlenemedi. Ağı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup başlatılıyor...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Bağlantıyı SSL ile şifrele</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Proxy adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Noktayla başlayan adları hariç tut</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink sunucuda devre dışı. Sunucunun IP adresini kullanın veya yöneticinize danışın.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Bundan büyük dosyalar yedeklenmez.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup bu sunucu için çok eski. Şimdi güncellemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Ana klasörünüz devre dışı. Yöneticinizden klasörü etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Brix başka bir cihazla değiştirilmiş veya sıfırlanmış. Bu bilgisayarın eşleştirmesini kaldırıp yeniden bağlanın.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Sunucu isteği reddetti. Ayarlarınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Yedekleme yönü sunucuyla uyuşmuyor. Görevi kaldırıp yeniden oluşturun.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup sunucu için çok eski. Uygulamayı güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Bu, geçerli bir kaynak klasör değil. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Siyah beyaz menü çubuğu simgesi kullan</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Sunucu sertifikası doğrulanamadı, bu nedenle bağlantı güvenli olmayabilir. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başlat</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Doğrulama kodunu girin:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Tüm türler</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Hesabınız için doğrulama kodları gerekiyor. Doğrulama kodlarını sunucuda ayarlayın.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Bu klasör başka bir yedekleme göreviyle çakışıyor. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Yedekleme görevi oluşturulamadı. Görevin ayarlarını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Silinen dosyaları gizle</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Bu klasörü açamazsınız. Başka bir klasör seçin veya yöneticinizden erişim isteyin.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Son etkinlikleri göster</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Listeye uyan dosyalar yedeklenmez.</translation>
    </message>
</context>
</TS>
