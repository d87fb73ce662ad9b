<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Escolher a origem da cópia de segurança</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Ligar através do FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Selecione a pasta do servidor para a cópia de segurança.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>As tarefas de cópia de segurança são interrompidas, mas os ficheiros permanecem no servidor. Pretende desassociar este computador?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Pode abrir estes ficheiros, mas não alterá-los.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>A sua quota no servidor está esgotada. Elimine ficheiros ou peça mais espaço ao administrador.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Fila da cópia de segurança</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Endereço do proxy:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Não foi possível ler as informações da sua conta. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>O servidor está cheio. Liberte espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Endereço do servidor:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos. Tente novamente.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>A sua cópia de segurança está atualizada.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Ligar ao seu Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Nenhuma pasta selecionada</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Este computador está associado a outro Brix. Verifique o endereço do servidor.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Adicionar um nome de ficheiro</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maio</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Intervalo de datas:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ficheiros excluídos</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Sem dados </translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Verifique as definições antes de começar.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Pastas excluídas</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>O seu endereço IP não é permitido. Peça ao administrador que o permita.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Abrir o Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>O Lumaris Backup está pronto.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Não foi possível carregar as tarefas de cópia de segurança. Reinicie o Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Não é necessário</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>O valor 0 significa que não há limite.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
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
        <translation>Dispositivos Brix na rede local</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>O código está incorreto ou expirou. Introduza um novo.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>outubro</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Não foi possível abrir a base de dados. Reinicie o Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Origem da cópia de segurança</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Data de criação</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Explorar versões</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino da cópia de segurança</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Nenhuma pasta partilhada está disponível. Peça ao administrador acesso a uma.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>O Lumaris Backup mantém uma cópia atualizada das suas pastas no seu próprio servidor.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>A fazer cópia de segurança do ficheiro: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>A bloquear o ficheiro...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Maior do que</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>A versão do Korvo no servidor é demasiado antiga. Peça ao administrador que a atualize.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Última semana</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançadas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Precisa do endereço do seu Brix, do nome de utilizador e da palavra-passe.</translation>
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
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A descarregar...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembro</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o %1 para aplicar as novas definições de idioma.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Palavra-chave:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Não foi possível contactar o FarLink. Verifique a sua ligação à Internet.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Uma cópia segura de todos os seus ficheiros</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>A cópia de segurança está em pausa.</translation>
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
        <translation>A verificar a sua palavra-passe...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Outra pasta de origem tem este nome. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Adicionar uma pasta</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>A operação falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Utilizar o idioma do sistema</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mês seguinte</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>A sua palavra-passe expirou. Altere-a no servidor.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>O certificado do servidor foi alterado. Continue apenas se souber o motivo. Pretende continuar?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Introduzir as definições de proxy manualmente</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Manter os ficheiros no servidor quando são eliminados neste computador</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junho</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Configurar as pastas para a cópia de segurança</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Esta pasta é só de leitura, pelo que não é possível restaurar ficheiros para ela. Pretende utilizá-la?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de ficheiros</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>A aguardar...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>A atualização falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Páginas anteriores (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo dos ficheiros:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janeiro</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Esta pasta pertence a outra tarefa de cópia de segurança. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Introduza o nome de utilizador do proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Ocorreu um erro inesperado. Reinicie o Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>A enviar...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Pastas neste computador</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Não foi possível verificar esta pasta devido a um erro do servidor. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>quinta-feira</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Clique aqui para atualizar</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>A sua conta está desativada. Peça ao administrador que a ative.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>A cópia de segurança falhou. Verifique as pastas de origem e tente novamente.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar ficheiros eliminados</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Pasta partilhada ativada</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Número de itens: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>fevereiro</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>A quota da pasta partilhada está esgotada. Elimine ficheiros ou utilize outra pasta.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Atualizar o registo da cópia de segurança</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Último mês</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Data de fim:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome de utilizador:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar atualização</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Ficheiros a aguardar cópia de segurança: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Houve demasiadas tentativas de início de sessão. Tente novamente dentro de alguns minutos.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>O Lumaris Backup guarda continuamente no seu Brix cópias de segurança das suas pastas.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Escolha as pastas de que pretende fazer cópia de segurança e a pasta partilhada de destino.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Menor do que</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Pastas de origem</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>A porta não é válida. Introduza um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>A pasta partilhada não está montada. Peça ao administrador que a monte.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamanho do ficheiro</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Esta pasta é só de leitura. É possível fazer cópia de segurança dos ficheiros, mas não restaurá-los para esta pasta.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>A pasta partilhada já não existe. Escolha outra.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>O certificado do servidor foi alterado. Confirme-o nas definições de ligação.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>março</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>A resposta do servidor não é válida. Atualize o Lumaris Backup e o Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Não foi possível encontrar a pasta de origem. Volte a colocá-la no lugar ou remova-a da tarefa de cópia de segurança.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Páginas seguintes (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>O ID do FarLink não é válido. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Introduza um nome de ficheiro, como notas.txt, ou uma extensão, como *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A estabelecer ligação...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>A fazer cópia de segurança...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Data de início:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Não foi possível iniciar o Lumaris Backup. Reinicie o computador.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>O Korvo não está ativado. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Selecione as pastas de que pretende fazer cópia de segurança.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Não foi possível verificar o certificado do servidor. Verifique as definições ou contacte o administrador.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Como configurar o Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>A unidade da pasta de origem não está ligada. Ligue-a e tente novamente.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Não pode escrever na pasta partilhada. Peça acesso ao administrador ou utilize outra pasta.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>A sua conta requer um código de verificação. Introduza-o para iniciar sessão.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Introduza o endereço do seu Brix e inicie sessão.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Abrir o Lumaris Backup ao iniciar sessão</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Intervalo de datas personalizado</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Utilizar esta pasta</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>A pasta partilhada é só de leitura. Escolha uma em que possa escrever.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Não foi possível contactar o servidor. Verifique a rede e o endereço.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>A sua conta não tem permissão para utilizar o Korvo. Peça permissão ao administrador.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Remover versões antigas</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Não foi possível verificar o nome de utilizador. Certifique-se de que está correto.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Iniciar sessão no servidor proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Procurar dispositivos Brix na rede</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A descarga está concluída.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>A cópia de segurança parou devido a um erro.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Último envio: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Não utilizar um servidor proxy</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Não foi possível verificar esta pasta. Verifique a rede e tente novamente.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>O Lumaris Backup está a inicializar...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encriptar a ligação com SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Introduza o endereço e a porta do proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Excluir nomes que começam por um ponto</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>O FarLink está desativado no servidor. Utilize o endereço IP do servidor ou contacte o administrador.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Não é feita cópia de segurança de ficheiros maiores do que este valor.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>A versão do Lumaris Backup é demasiado antiga para este servidor. Pretende atualizar agora?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>A sua pasta pessoal está desativada. Peça ao administrador que a ative.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>O Brix foi substituído ou reposto no estado inicial. Desassocie este computador e volte a estabelecer a ligação.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>O servidor rejeitou o pedido. Verifique as suas definições e tente novamente.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>A direção da cópia de segurança não corresponde à do servidor. Remova a tarefa e crie-a novamente.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>A versão do Lumaris Backup é demasiado antiga para o servidor. Atualize-a e tente novamente.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Esta não é uma pasta de origem válida. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utilizar um ícone a preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Não foi possível verificar o certificado do servidor, pelo que a ligação pode não ser segura. Pretende continuar?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Introduza o código de verificação:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Qualquer tipo</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>A sua conta requer códigos de verificação. Configure-os no servidor.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Esta pasta sobrepõe-se a uma pasta de outra tarefa de cópia de segurança. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Não foi possível criar a tarefa de cópia de segurança. Verifique as respetivas definições e tente novamente.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Ocultar ficheiros eliminados</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Não pode abrir esta pasta. Escolha outra ou peça acesso ao administrador.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarregar</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Mostrar a atividade recente</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Não é feita cópia de segurança dos ficheiros correspondentes.</translation>
    </message>
</context>
</TS>
