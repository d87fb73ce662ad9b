<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Elegir el origen de la copia de seguridad</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Conectar mediante FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Seleccione la carpeta del servidor para la copia de seguridad.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Las tareas de copia de seguridad se detendrán, pero los archivos permanecerán en el servidor. ¿Desea desvincular este equipo?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Puede abrir estos archivos, pero no modificarlos.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Su cuota en el servidor está agotada. Elimine archivos o pida más espacio al administrador.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Cola de copia de seguridad</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Dirección del proxy:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>No se pudo leer la información de su cuenta. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>El servidor está lleno. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Dirección del servidor:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Su copia de seguridad está al día.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Conectarse a su Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Ninguna carpeta seleccionada</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Este equipo está vinculado a otro Brix. Compruebe la dirección del servidor.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Agregar un nombre de archivo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Intervalo de fechas:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>No hay datos </translation>
    </message>
    <message>
        <source>December</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Revise los ajustes antes de empezar.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Carpetas excluidas</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Su dirección IP no está autorizada. Pida al administrador que la autorice.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Abrir Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup está listo.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>No se pudieron cargar las tareas de copia de seguridad. Reinicie Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>No es necesario</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>El valor 0 significa que no hay límite.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Dispositivos Brix en la red local</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>El código no es correcto o ha caducado. Escriba uno nuevo.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>No se pudo abrir la base de datos. Reinicie Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Origen de la copia de seguridad</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Explorar versiones</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino de la copia de seguridad</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>No hay ninguna carpeta compartida disponible. Pida al administrador acceso a una.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup mantiene una copia actualizada de sus carpetas en su propio servidor.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Haciendo copia de seguridad del archivo: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Bloqueando el archivo...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Mayor que</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>La versión de Korvo del servidor es demasiado antigua. Pida al administrador que la actualice.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Última semana</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Necesita la dirección de su Brix, su nombre de usuario y su contraseña.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Advertencia de certificado</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar los nuevos ajustes de idioma.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Palabra clave:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>No se pudo conectar con FarLink. Compruebe la conexión a Internet.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Una copia segura de todos sus archivos</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>La copia de seguridad está en pausa.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Comprobando la contraseña...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Otra carpeta de origen ya tiene este nombre. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Agregar una carpeta</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>No se pudo completar la operación. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Usar el idioma del sistema</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Su contraseña ha caducado. Cámbiela en el servidor.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>El certificado del servidor ha cambiado. Continúe solo si conoce el motivo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Especificar manualmente los ajustes del proxy</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Conservar los archivos en el servidor cuando se eliminen en este equipo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Configurar las carpetas para la copia de seguridad</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Esta carpeta es de solo lectura, por lo que no se pueden restaurar archivos en ella. ¿Desea usarla?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de archivos</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Esperando...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>No se pudo completar la actualización. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Páginas anteriores (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Usar los ajustes de proxy del sistema</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamaño máximo de archivo:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Esta carpeta está en otra tarea de copia de seguridad. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Escriba el nombre de usuario del proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ajustes del proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Se produjo un error inesperado. Reinicie Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Carpetas de este equipo</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>No se pudo comprobar esta carpeta debido a un error del servidor. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Haga clic aquí para actualizar</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Su cuenta está deshabilitada. Pida al administrador que la habilite.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>No se pudo completar la copia de seguridad. Compruebe las carpetas de origen e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar archivos eliminados</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Carpeta compartida habilitada</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Número de elementos: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>La cuota de la carpeta compartida está agotada. Elimine archivos o use otra carpeta.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Actualizar el registro de copias de seguridad</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Último mes</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Fecha de fin:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar actualización</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Archivos pendientes de copia de seguridad: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Hubo demasiados intentos de inicio de sesión. Inténtelo de nuevo dentro de unos minutos.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup hace una copia de seguridad continua de sus carpetas en su Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Elija las carpetas que desea incluir en la copia de seguridad y la carpeta compartida donde guardarla.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Carpetas de origen</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>El puerto no es válido. Escriba un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>La carpeta compartida no está montada. Pida al administrador que la monte.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamaño de archivo</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Esta carpeta es de solo lectura. Se puede hacer copia de seguridad de los archivos, pero no restaurarlos en ella.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>La carpeta compartida ya no existe. Elija otra.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>El certificado del servidor ha cambiado. Confírmelo en los ajustes de conexión.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>La respuesta del servidor no es válida. Actualice Lumaris Backup y Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>No se encontró la carpeta de origen. Devuélvala a su lugar o quítela de la tarea de copia de seguridad.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Páginas siguientes (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>El ID de FarLink no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Escriba un nombre de archivo, como notas.txt, o una extensión, como *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Haciendo copia de seguridad...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Fecha de inicio:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>No se pudo iniciar Lumaris Backup. Reinicie el equipo.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo no está habilitado. Pida al administrador que lo habilite.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Seleccione las carpetas que desea incluir en la copia de seguridad.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>No se pudo verificar el certificado del servidor. Compruebe los ajustes o consulte al administrador.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Cómo configurar Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>La unidad de la carpeta de origen no está conectada. Conéctela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar igualmente</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>No puede escribir en la carpeta compartida. Pida acceso al administrador o use otra carpeta.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Su cuenta requiere un código de verificación. Escríbalo para iniciar sesión.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Escriba la dirección de su Brix e inicie sesión.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Abrir Lumaris Backup al iniciar sesión en el equipo</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Intervalo de fechas personalizado</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usar esta carpeta</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>La carpeta compartida es de solo lectura. Elija una en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>No se pudo conectar con el servidor. Compruebe la red y la dirección.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Su cuenta no está autorizada a usar Korvo. Pida permiso al administrador.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Eliminar versiones antiguas</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>No se pudo comprobar el nombre de usuario. Asegúrese de que sea correcto.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Iniciar sesión en el servidor proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Buscar dispositivos Brix en la red</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>La descarga se ha completado.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>La copia de seguridad se detuvo debido a un error.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Última subida: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>No usar ningún servidor proxy</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>No se pudo comprobar esta carpeta. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Lumaris Backup se está iniciando...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Cifrar la conexión con SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Escriba la dirección y el puerto del proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Excluir los nombres que empiecen por un punto</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink está deshabilitado en el servidor. Use la dirección IP del servidor o consulte al administrador.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>No se hace copia de seguridad de los archivos que superan este tamaño.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>La versión de Lumaris Backup es demasiado antigua para este servidor. ¿Desea actualizarla ahora?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Su carpeta personal está deshabilitada. Pida al administrador que la habilite.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>El Brix se reemplazó o se restableció. Desvincule este equipo y conéctese de nuevo.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>El servidor rechazó la solicitud. Compruebe los ajustes e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>El sentido de la copia de seguridad no coincide con el del servidor. Elimine la tarea y vuelva a crearla.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>La versión de Lumaris Backup es demasiado antigua para el servidor. Actualícela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Esta no es una carpeta de origen válida. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar un icono en blanco y negro en la barra de menús</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>No se pudo verificar el certificado del servidor, por lo que la conexión podría no ser segura. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Escriba el código de verificación:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando los ajustes...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Cualquier tipo</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Su cuenta requiere códigos de verificación. Configúrelos en el servidor.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Esta carpeta se superpone con la de otra tarea de copia de seguridad. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>No se pudo crear la tarea de copia de seguridad. Compruebe los ajustes de la tarea e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Ocultar archivos eliminados</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>No puede abrir esta carpeta. Elija otra o pida acceso al administrador.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Mostrar la actividad reciente</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>No se hace copia de seguridad de los archivos que coinciden con la lista.</translation>
    </message>
</context>
</TS>
