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
        <translation>Escolher a origem do backup</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Conectar pelo FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Selecione a pasta do servidor para o backup.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>As tarefas de backup serão interrompidas, mas os arquivos permanecerão no servidor. Deseja desvincular este computador?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Você pode abrir estes arquivos, mas não alterá-los.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Sua cota no servidor se esgotou. Exclua arquivos ou peça mais espaço ao administrador.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>Fila de backup</translation>
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
        <translation>O servidor está cheio. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Endereço do servidor:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>O nome de usuário ou a senha estão incorretos. Tente novamente.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Seu backup está atualizado.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Conectar-se ao seu Brix</translation>
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
        <translation>Este computador está vinculado a outro Brix. Verifique o endereço do servidor.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Adicionar um nome de arquivo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Período:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Arquivos ignorados</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Sem dados </translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
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
        <translation>Verifique os ajustes antes de começar.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Pastas ignoradas</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Seu endereço IP não está autorizado. Peça ao administrador para autorizá-lo.</translation>
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
        <translation>Não foi possível carregar as tarefas de backup. Reinicie o Lumaris Backup.</translation>
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
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>O valor 0 significa que não há limite.</translation>
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
        <translation>Dispositivos Brix na rede local</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>O código está incorreto ou expirou. Insira um novo.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Não foi possível abrir o banco de dados. Reinicie o Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Origem do backup</translation>
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
        <translation>Destino do backup</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Nenhuma pasta compartilhada está disponível. Peça acesso ao administrador.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>O Lumaris Backup mantém uma cópia atualizada das suas pastas no seu próprio servidor.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Fazendo backup do arquivo: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Bloqueando o arquivo...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Maior que</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>A versão do Korvo no servidor é antiga demais. Peça ao administrador para atualizá-la.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Última semana</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Você precisa do endereço, do nome de usuário e da senha do seu Brix.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
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
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o %1 para aplicar os novos ajustes de idioma.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Palavra-chave:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Não foi possível acessar o FarLink. Verifique sua conexão com a Internet.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Uma cópia segura de todos os seus arquivos</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>O backup está pausado.</translation>
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
        <translation>Verificando sua senha...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Já existe uma pasta de origem com este nome. Escolha outra pasta.</translation>
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
        <translation>Usar o idioma do sistema</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Próximo mês</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Sua senha expirou. Altere-a no servidor.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>O certificado do servidor foi alterado. Continue somente se souber o motivo. Deseja continuar?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Inserir os ajustes de proxy manualmente</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Manter no servidor os arquivos excluídos neste computador</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Configurar as pastas para o backup</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Esta pasta é somente leitura, portanto não é possível restaurar arquivos nela. Deseja usá-la?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de arquivos</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>Aguardando...</translation>
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
        <translation>Usar os ajustes de proxy do sistema</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo do arquivo:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Esta pasta já está em outra tarefa de backup. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Insira o nome de usuário do proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ajustes de proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Ocorreu um erro inesperado. Reinicie o Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Enviando...</translation>
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
        <translation>Setembro</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Clique aqui para atualizar</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Sua conta está desativada. Peça ao administrador para ativá-la.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>O backup falhou. Verifique as pastas de origem e tente novamente.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar arquivos excluídos</translation>
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
        <translation>Pasta compartilhada ativada</translation>
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
        <translation>Número de itens: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>A cota da pasta compartilhada se esgotou. Exclua arquivos ou use outra pasta.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Atualizar o log de backup</translation>
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
        <translation>Data final:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome de usuário:</translation>
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
        <translation>Arquivos aguardando backup: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Houve muitas tentativas de login. Tente novamente em alguns minutos.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>O Lumaris Backup faz backup contínuo das suas pastas no seu Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Escolha as pastas a incluir no backup e a pasta compartilhada de destino.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Menor que</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Pastas de origem</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>A porta não é válida. Insira um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>A pasta compartilhada não está montada. Peça ao administrador para montá-la.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Esta pasta é somente leitura. É possível fazer backup dos arquivos, mas não restaurá-los nela.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>A pasta compartilhada não existe mais. Escolha outra.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>O certificado do servidor foi alterado. Confirme-o nos ajustes de conexão.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>A resposta do servidor não é válida. Atualize o Lumaris Backup e o Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Não foi possível encontrar a pasta de origem. Coloque-a de volta no lugar ou remova-a da tarefa de backup.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Próximas páginas (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>O ID do FarLink não é válido. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Insira um nome de arquivo, como notas.txt, ou uma extensão, como *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Fazendo backup...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Data inicial:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Não foi possível iniciar o Lumaris Backup. Reinicie o computador.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>O Korvo não está ativado. Peça ao administrador para ativá-lo.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Selecione as pastas a incluir no backup.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Horário</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Não foi possível verificar o certificado do servidor. Verifique os ajustes ou consulte o administrador.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Como configurar o Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>A unidade da pasta de origem não está conectada. Conecte-a e tente novamente.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Você não pode gravar na pasta compartilhada. Peça acesso ao administrador ou use outra pasta.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Sua conta exige um código de verificação. Insira-o para fazer login.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Insira o endereço do seu Brix e faça login.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Igual a</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Iniciar o Lumaris Backup ao fazer login no computador</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usar esta pasta</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>A pasta compartilhada é somente leitura. Escolha uma em que você possa gravar.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Não foi possível acessar o servidor. Verifique a rede e o endereço.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Sua conta não pode usar o Korvo. Peça permissão ao administrador.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Remover versões antigas</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Não foi possível verificar o nome de usuário. Confira se ele está correto.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>Fazer login no servidor proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Procurar dispositivos Brix na rede</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>O download foi concluído.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>O backup parou devido a um erro.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Último envio: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Não usar servidor proxy</translation>
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
        <translation>Inicializando o Lumaris Backup...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Criptografar a conexão com SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Insira o endereço e a porta do proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Ignorar nomes que começam com ponto</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>O FarLink está desativado no servidor. Use o endereço IP do servidor ou consulte o administrador.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Arquivos acima deste tamanho não são incluídos no backup.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>A versão do Lumaris Backup é antiga demais para este servidor. Deseja atualizá-la agora?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Sua pasta pessoal está desativada. Peça ao administrador para ativá-la.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>O Brix foi substituído ou redefinido. Desvincule este computador e conecte-se novamente.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>O servidor recusou a solicitação. Verifique os ajustes e tente novamente.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>A direção do backup não corresponde à do servidor. Remova a tarefa e crie-a novamente.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>A versão do Lumaris Backup é antiga demais para o servidor. Atualize-a e tente novamente.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Esta não é uma pasta de origem válida. Escolha outra pasta.</translation>
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
        <translation>Usar um ícone preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Não foi possível verificar o certificado do servidor, portanto a conexão pode não ser segura. Deseja continuar?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
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
        <translation>Insira o código de verificação:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando os ajustes...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Qualquer tipo</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Sua conta exige códigos de verificação. Configure-os no servidor.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Esta pasta se sobrepõe à de outra tarefa de backup. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Não foi possível criar a tarefa de backup. Verifique os ajustes da tarefa e tente novamente.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Ocultar arquivos excluídos</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Você não pode abrir esta pasta. Escolha outra ou peça acesso ao administrador.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Mostrar a atividade recente</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Os arquivos correspondentes não são incluídos no backup.</translation>
    </message>
</context>
</TS>
