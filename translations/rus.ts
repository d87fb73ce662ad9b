<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Выбор источника резервного копирования</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Подключаться через FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Выберите папку на сервере для резервной копии.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Задачи резервного копирования будут остановлены, но файлы на сервере сохранятся. Отвязать этот компьютер?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Эти файлы можно открывать, но не изменять.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Ваша квота на сервере исчерпана. Удалите файлы или попросите администратора выделить больше места.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Очередь резервного копирования</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Адрес прокси-сервера:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Не удалось получить сведения о вашей учётной записи. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>На сервере нет места. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Адрес сервера:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Неверное имя пользователя или пароль. Повторите попытку.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Ваша резервная копия актуальна.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Папка не существует.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Подключение к вашему устройству Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Диалоговое окно</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Папка не выбрана</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Этот компьютер привязан к другому устройству Brix. Проверьте адрес сервера.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Добавить имя файла</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Период:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключённые файлы</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Нет данных </translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Прежде чем начать, проверьте настройки.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Исключённые папки</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Доступ с вашего IP-адреса не разрешён. Попросите администратора разрешить его.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Открыть Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Приложение Lumaris Backup готово к работе.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Не удалось загрузить задачи резервного копирования. Перезапустите Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Не нужно</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>Значение 0 означает, что ограничения нет.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Час</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Устройства Brix в локальной сети</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Код неверен или просрочен. Введите новый код.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Не удалось открыть базу данных. Перезапустите Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Источник резервного копирования</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Время создания</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Просмотреть версии</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Место хранения резервной копии</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Нет доступных общих папок. Запросите доступ у администратора.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup хранит актуальную копию ваших папок на вашем сервере.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Резервное копирование файла: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Блокировка файла...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Больше</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>Служба Korvo на сервере устарела. Попросите администратора обновить её.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Последняя неделя</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Вам понадобятся адрес устройства Brix, имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Предупреждение о сертификате</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Перезапустите %1, чтобы применить новые настройки языка.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Ключевое слово:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Не удалось подключиться к FarLink. Проверьте подключение к интернету.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Надёжная копия всех ваших файлов</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>Резервное копирование приостановлено.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Неделя</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Проверка пароля...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Исходная папка с таким именем уже есть. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>Не удалось выполнить операцию. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Использовать язык системы</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Срок действия вашего пароля истёк. Смените пароль на сервере.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Сертификат сервера изменился. Продолжайте, только если знаете причину. Продолжить?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Задавать настройки прокси-сервера вручную</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Сохранять на сервере файлы, удалённые на этом компьютере</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Настройка папок для резервного копирования</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Эта папка доступна только для чтения, поэтому восстановить в неё файлы нельзя. Использовать её?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Фильтр файлов</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Ожидание...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Минута</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Не удалось выполнить обновление. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Предыдущие страницы (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Использовать системные настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Максимальный размер файла:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Эта папка уже входит в другую задачу резервного копирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Введите имя пользователя для прокси-сервера.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Произошла непредвиденная ошибка. Перезапустите Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Папки на этом компьютере</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Не удалось проверить эту папку из-за ошибки сервера. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Нажмите здесь, чтобы обновить</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Ваша учётная запись отключена. Попросите администратора включить её.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>Не удалось выполнить резервное копирование. Проверьте исходные папки и повторите попытку.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Показать удалённые файлы</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Общая папка включена</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отвязка...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Количество элементов: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Квота общей папки исчерпана. Удалите файлы или используйте другую папку.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Обновить журнал резервного копирования</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Последний месяц</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Дата окончания:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Файлов, ожидающих резервного копирования: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Слишком много попыток входа. Повторите попытку через несколько минут.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup непрерывно выполняет резервное копирование ваших папок на устройство Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Выберите папки, которые нужно включить в резервную копию, и общую папку для её хранения.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Исходные папки</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Недопустимый порт. Введите число от 1 до 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Общая папка не смонтирована. Попросите администратора смонтировать её.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Размер файла</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Эта папка доступна только для чтения. Создать резервную копию файлов можно, но восстановить их в эту папку нельзя.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Общая папка больше не существует. Выберите другую.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Сертификат сервера изменился. Подтвердите его в настройках подключения.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>Получен недопустимый ответ сервера. Обновите Lumaris Backup и Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Исходная папка не найдена. Верните её на место или уберите из задачи резервного копирования.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Следующие страницы (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>Недопустимый идентификатор FarLink. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Введите имя файла, например notes.txt, или расширение, например *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Резервное копирование...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Дата начала:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Не удалось запустить Lumaris Backup. Перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Служба Korvo не включена. Попросите администратора включить её.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Выберите папки, которые нужно включить в резервную копию.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Не удалось проверить сертификат сервера. Проверьте настройки или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Как настроить Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Диск с исходной папкой не подключён. Подключите его и повторите попытку.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Всё равно продолжить</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>У вас нет прав на запись в общую папку. Запросите доступ у администратора или используйте другую папку.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Для вашей учётной записи нужен код подтверждения. Введите его, чтобы войти.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Введите адрес вашего устройства Brix и выполните вход.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Равно</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Запускать Lumaris Backup при входе в систему</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Произвольный период</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Использовать эту папку</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Общая папка доступна только для чтения. Выберите папку, доступную для записи.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Не удалось подключиться к серверу. Проверьте сеть и адрес.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Вашей учётной записи не разрешено использовать Korvo. Запросите разрешение у администратора.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Удалить старые версии</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Не удалось проверить имя пользователя. Убедитесь, что оно указано верно.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Выполнять вход на прокси-сервер</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Найти устройства Brix в сети</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>Резервное копирование остановлено из-за ошибки.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Последняя отправка: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Не использовать прокси-сервер</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Не удалось проверить эту папку. Проверьте сеть и повторите попытку.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Инициализация Lumaris Backup...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Шифровать подключение с помощью SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Исключать файлы и папки с точкой в начале имени</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>Служба FarLink отключена на сервере. Используйте IP-адрес сервера или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Файлы большего размера не включаются в резервную копию.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Версия Lumaris Backup слишком старая для этого сервера. Обновить приложение сейчас?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Ваша домашняя папка отключена. Попросите администратора включить её.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Устройство Brix было заменено или сброшено. Отвяжите этот компьютер и подключитесь снова.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Сервер отклонил запрос. Проверьте настройки и повторите попытку.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Направление резервного копирования не совпадает с заданным на сервере. Удалите задачу и создайте её снова.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Версия Lumaris Backup слишком старая для сервера. Обновите приложение и повторите попытку.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Эта папка не подходит в качестве исходной. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Использовать чёрно-белый значок в строке меню</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Не удалось проверить сертификат сервера, поэтому подключение может быть небезопасным. Продолжить?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Введите код подтверждения:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Любой тип</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Для вашей учётной записи нужны коды подтверждения. Настройте их на сервере.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Эта папка пересекается с папкой другой задачи резервного копирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Не удалось создать задачу резервного копирования. Проверьте её настройки и повторите попытку.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Скрыть удалённые файлы</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>У вас нет доступа к этой папке. Выберите другую или запросите доступ у администратора.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учётная запись</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Показать недавние действия</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Файлы, соответствующие списку, не включаются в резервную копию.</translation>
    </message>
</context>
</TS>
