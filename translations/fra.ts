<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Choose the backup source</source>
        <translation>Choisir la source de la sauvegarde</translation>
    </message>
    <message>
        <source>Connect through FarLink</source>
        <translation>Se connecter via FarLink</translation>
    </message>
    <message>
        <source>Select the server folder for the backup.</source>
        <translation>Sélectionnez le dossier du serveur pour la sauvegarde.</translation>
    </message>
    <message>
        <source>Backup tasks stop, but files on the server stay there. Do you want to unlink this computer?</source>
        <translation>Les tâches de sauvegarde s’arrêtent, mais les fichiers restent sur le serveur. Voulez-vous dissocier cet ordinateur&#xa0;?</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>You can open these files but not change them.</source>
        <translation>Vous pouvez ouvrir ces fichiers, mais pas les modifier.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files or ask your administrator for more space.</source>
        <translation>Votre quota sur le serveur est épuisé. Supprimez des fichiers ou demandez plus d’espace à votre administrateur.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Backup queue</source>
        <translation>File d’attente de sauvegarde</translation>
    </message>
    <message>
        <source>Proxy address:</source>
        <translation>Adresse du proxy&#xa0;:</translation>
    </message>
    <message>
        <source>Your account information could not be read. Try again later.</source>
        <translation>Impossible de lire les informations de votre compte. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The server is full. Free up space and try again.</source>
        <translation>Le serveur est plein. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>Server address:</source>
        <translation>Adresse du serveur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Try again.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est incorrect. Réessayez.</translation>
    </message>
    <message>
        <source>Your backup is up to date.</source>
        <translation>Votre sauvegarde est à jour.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>Connect to your Brix</source>
        <translation>Connexion à votre Brix</translation>
    </message>
    <message>
        <source>Dialog box</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>No folder selected</source>
        <translation>Aucun dossier sélectionné</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>This computer is linked to a different Brix. Check the server address.</source>
        <translation>Cet ordinateur est associé à un autre Brix. Vérifiez l’adresse du serveur.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Add a file name</source>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Date range:</source>
        <translation>Période&#xa0;:</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>No data </source>
        <translation>Aucune donnée </translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Check the settings before you start.</source>
        <translation>Vérifiez les réglages avant de démarrer.</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>Excluded folders</source>
        <translation>Dossiers exclus</translation>
    </message>
    <message>
        <source>Your IP address is not allowed. Ask your administrator to allow it.</source>
        <translation>Votre adresse IP n’est pas autorisée. Demandez à votre administrateur de l’autoriser.</translation>
    </message>
    <message>
        <source>Open Lumaris Backup</source>
        <translation>Ouvrir Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is ready.</source>
        <translation>Lumaris Backup est prêt.</translation>
    </message>
    <message>
        <source>The backup tasks could not be loaded. Restart Lumaris Backup.</source>
        <translation>Impossible de charger les tâches de sauvegarde. Redémarrez Lumaris Backup.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Pas nécessaire</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>The value 0 means no limit.</source>
        <translation>La valeur 0 signifie qu’il n’y a pas de limite.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Brix devices in the local network</source>
        <translation>Appareils Brix sur le réseau local</translation>
    </message>
    <message>
        <source>The code is incorrect or expired. Enter a new one.</source>
        <translation>Le code est incorrect ou a expiré. Saisissez-en un nouveau.</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>The database could not be opened. Restart Lumaris Backup.</source>
        <translation>Impossible d’ouvrir la base de données. Redémarrez Lumaris Backup.</translation>
    </message>
    <message>
        <source>Backup source</source>
        <translation>Source de la sauvegarde</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Browse versions</source>
        <translation>Parcourir les versions</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination de la sauvegarde</translation>
    </message>
    <message>
        <source>No shared folder is available. Ask your administrator for access to one.</source>
        <translation>Aucun dossier partagé n’est disponible. Demandez à votre administrateur l’accès à un dossier partagé.</translation>
    </message>
    <message>
        <source>Lumaris Backup keeps an up-to-date copy of your folders on your own server.</source>
        <translation>Lumaris Backup conserve une copie à jour de vos dossiers sur votre propre serveur.</translation>
    </message>
    <message>
        <source>Backing up the file: %1</source>
        <translation>Sauvegarde du fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Locking the file...</source>
        <translation>Verrouillage du fichier...</translation>
    </message>
    <message>
        <source>Larger than</source>
        <translation>Supérieure à</translation>
    </message>
    <message>
        <source>Korvo on the server is too old. Ask your administrator to update it.</source>
        <translation>La version de Korvo sur le serveur est trop ancienne. Demandez à votre administrateur de la mettre à jour.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>You need your Brix address, username and password.</source>
        <translation>Il vous faut l’adresse de votre Brix, votre nom d’utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement en cours...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avertissement relatif au certificat</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Veuillez redémarrer %1 pour appliquer les nouveaux réglages de langue.</translation>
    </message>
    <message>
        <source>Keyword:</source>
        <translation>Mot-clé&#xa0;:</translation>
    </message>
    <message>
        <source>FarLink could not be reached. Check your Internet connection.</source>
        <translation>Impossible de joindre FarLink. Vérifiez votre connexion Internet.</translation>
    </message>
    <message>
        <source>A safe copy of all your files</source>
        <translation>Une copie de tous vos fichiers en lieu sûr</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>The backup is paused.</source>
        <translation>La sauvegarde est suspendue.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Checking your password...</source>
        <translation>Vérification de votre mot de passe...</translation>
    </message>
    <message>
        <source>Another backup folder has this name. Choose a different folder.</source>
        <translation>Un autre dossier à sauvegarder porte ce nom. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>The operation failed. Try again later.</source>
        <translation>L’opération a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Use the system language</source>
        <translation>Utiliser la langue du système</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on the server.</source>
        <translation>Votre mot de passe a expiré. Modifiez-le sur le serveur.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Continue only if you know why. Do you want to continue?</source>
        <translation>Le certificat du serveur a changé. Ne continuez que si vous en connaissez la raison. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Enter the proxy settings manually</source>
        <translation>Saisir manuellement les réglages du proxy</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Conserver sur le serveur les fichiers supprimés de cet ordinateur</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>Set up the backup folders</source>
        <translation>Configuration des dossiers pour la sauvegarde</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour en cours...</translation>
    </message>
    <message>
        <source>This folder is read-only, so files cannot be restored to it. Do you want to use it?</source>
        <translation>Ce dossier est en lecture seule&#xa0;: aucun fichier ne peut y être restauré. Voulez-vous l’utiliser&#xa0;?</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtre de fichiers</translation>
    </message>
    <message>
        <source>Waiting...</source>
        <translation>En attente...</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>La mise à jour a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Previous pages (%1)</source>
        <translation>Pages précédentes (%1)</translation>
    </message>
    <message>
        <source>Use the proxy settings of the system</source>
        <translation>Utiliser les réglages de proxy du système</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Taille maximale des fichiers&#xa0;:</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>This folder is in another backup task. Choose a different folder.</source>
        <translation>Ce dossier fait partie d’une autre tâche de sauvegarde. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Enter the proxy username.</source>
        <translation>Saisissez le nom d’utilisateur du proxy.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Réglages du proxy</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement en cours...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Restart Lumaris Backup.</source>
        <translation>Une erreur inattendue s’est produite. Redémarrez Lumaris Backup.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi en cours...</translation>
    </message>
    <message>
        <source>Folders on this computer</source>
        <translation>Dossiers de cet ordinateur</translation>
    </message>
    <message>
        <source>This folder could not be checked because of a server error. Try again later.</source>
        <translation>Impossible de vérifier ce dossier en raison d’une erreur du serveur. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Cliquez ici pour mettre à jour</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask your administrator to enable it.</source>
        <translation>Votre compte est désactivé. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>The backup failed. Check the backup folders and try again.</source>
        <translation>La sauvegarde a échoué. Vérifiez les dossiers à sauvegarder et réessayez.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Afficher les fichiers supprimés</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Shared folder enabled</source>
        <translation>Dossier partagé activé</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation en cours...</translation>
    </message>
    <message>
        <source>Number of items: %1</source>
        <translation>Nombre d’éléments&#xa0;: %1</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation en cours...</translation>
    </message>
    <message>
        <source>The shared folder&apos;s quota is used up. Delete files or use another folder.</source>
        <translation>Le quota du dossier partagé est épuisé. Supprimez des fichiers ou utilisez un autre dossier.</translation>
    </message>
    <message>
        <source>Refresh the backup log</source>
        <translation>Actualiser le journal des sauvegardes</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>End date:</source>
        <translation>Date de fin&#xa0;:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>Files waiting to be backed up: %1</source>
        <translation>Fichiers en attente de sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>There were too many sign-in attempts. Try again in a few minutes.</source>
        <translation>Trop de tentatives de connexion ont eu lieu. Réessayez dans quelques minutes.</translation>
    </message>
    <message>
        <source>Lumaris Backup continuously backs up your folders to your Brix.</source>
        <translation>Lumaris Backup sauvegarde en continu vos dossiers sur votre Brix.</translation>
    </message>
    <message>
        <source>Choose the folders to back up and the shared folder for the backup.</source>
        <translation>Choisissez les dossiers à sauvegarder et le dossier partagé destiné à la sauvegarde.</translation>
    </message>
    <message>
        <source>Smaller than</source>
        <translation>Inférieure à</translation>
    </message>
    <message>
        <source>Backup folders</source>
        <translation>Dossiers à sauvegarder</translation>
    </message>
    <message>
        <source>The port is not valid. Enter a number from 1 to 65535.</source>
        <translation>Le port n’est pas valide. Saisissez un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Ask your administrator to mount it.</source>
        <translation>Le dossier partagé n’est pas monté. Demandez à votre administrateur de le monter.</translation>
    </message>
    <message>
        <source>Choose new folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>This folder is read-only. Files can be backed up but not restored to it.</source>
        <translation>Ce dossier est en lecture seule. Ses fichiers peuvent être sauvegardés, mais ils ne pourront pas y être restaurés.</translation>
    </message>
    <message>
        <source>The shared folder no longer exists. Choose a different one.</source>
        <translation>Le dossier partagé n’existe plus. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port&#xa0;:</translation>
    </message>
    <message>
        <source>The server certificate has changed. Confirm it in the connection settings.</source>
        <translation>Le certificat du serveur a changé. Confirmez-le dans les réglages de connexion.</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>The server&apos;s reply is not valid. Update Lumaris Backup and Korvo.</source>
        <translation>La réponse du serveur n’est pas valide. Mettez à jour Lumaris Backup et Korvo.</translation>
    </message>
    <message>
        <source>The backup folder could not be found. Put it back or remove it from the backup task.</source>
        <translation>Le dossier à sauvegarder est introuvable. Remettez-le en place ou retirez-le de la tâche de sauvegarde.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Next pages (%1)</source>
        <translation>Pages suivantes (%1)</translation>
    </message>
    <message>
        <source>The FarLink ID is not valid. Check it and try again.</source>
        <translation>L’ID FarLink n’est pas valide. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>Enter a file name like notes.txt or an extension like *.tmp.</source>
        <translation>Saisissez un nom de fichier comme notes.txt ou une extension comme *.tmp.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion en cours...</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sauvegarde en cours...</translation>
    </message>
    <message>
        <source>Start date:</source>
        <translation>Date de début&#xa0;:</translation>
    </message>
    <message>
        <source>Lumaris Backup could not be started. Restart your computer.</source>
        <translation>Impossible de démarrer Lumaris Backup. Redémarrez votre ordinateur.</translation>
    </message>
    <message>
        <source>Korvo is not enabled. Ask your administrator to enable it.</source>
        <translation>Korvo n’est pas activé. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Select the folders to back up.</source>
        <translation>Sélectionnez les dossiers à sauvegarder.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>The server certificate could not be verified. Check the settings or ask your administrator.</source>
        <translation>Impossible de vérifier le certificat du serveur. Vérifiez les réglages ou contactez votre administrateur.</translation>
    </message>
    <message>
        <source>How to set up Lumaris Backup</source>
        <translation>Comment configurer Lumaris Backup</translation>
    </message>
    <message>
        <source>The drive of the backup folder is not connected. Connect it and try again.</source>
        <translation>Le disque du dossier à sauvegarder n’est pas connecté. Connectez-le et réessayez.</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>You cannot write to the shared folder. Ask your administrator for access or use another folder.</source>
        <translation>Vous ne pouvez pas écrire dans le dossier partagé. Demandez l’accès à votre administrateur ou utilisez un autre dossier.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Your account needs a verification code. Enter it to sign in.</source>
        <translation>Votre compte exige un code de vérification. Saisissez-le pour vous connecter.</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Enter your Brix address and sign in.</source>
        <translation>Saisissez l’adresse de votre Brix et connectez-vous.</translation>
    </message>
    <message>
        <source>Equal to</source>
        <translation>Égale à</translation>
    </message>
    <message>
        <source>Start Lumaris Backup when I sign in</source>
        <translation>Démarrer Lumaris Backup à l’ouverture de session</translation>
    </message>
    <message>
        <source>Custom date range</source>
        <translation>Période personnalisée</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Utiliser ce dossier</translation>
    </message>
    <message>
        <source>The shared folder is read-only. Choose one that you can write to.</source>
        <translation>Le dossier partagé est en lecture seule. Choisissez-en un dans lequel vous pouvez écrire.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>The server could not be reached. Check the network and the address.</source>
        <translation>Impossible de joindre le serveur. Vérifiez le réseau et l’adresse.</translation>
    </message>
    <message>
        <source>Your account may not use Korvo. Ask your administrator for permission.</source>
        <translation>Votre compte n’est pas autorisé à utiliser Korvo. Demandez l’autorisation à votre administrateur.</translation>
    </message>
    <message>
        <source>Remove old versions</source>
        <translation>Supprimer les anciennes versions</translation>
    </message>
    <message>
        <source>The username could not be checked. Make sure that it is correct.</source>
        <translation>Impossible de vérifier le nom d’utilisateur. Assurez-vous qu’il est correct.</translation>
    </message>
    <message>
        <source>Sign in to the proxy server</source>
        <translation>S’authentifier auprès du serveur proxy</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Search the network for Brix devices</source>
        <translation>Rechercher des appareils Brix sur le réseau</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Le téléchargement est terminé.</translation>
    </message>
    <message>
        <source>The backup stopped because of an error.</source>
        <translation>La sauvegarde s’est arrêtée en raison d’une erreur.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Dernier envoi&#xa0;: %1</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ne pas utiliser de serveur proxy</translation>
    </message>
    <message>
        <source>This folder could not be checked. Check the network and try again.</source>
        <translation>Impossible de vérifier ce dossier. Vérifiez le réseau et réessayez.</translation>
    </message>
    <message>
        <source>Lumaris Backup</source>
        <translation>Lumaris Backup</translation>
    </message>
    <message>
        <source>Lumaris Backup is initializing...</source>
        <translation>Initialisation de Lumaris Backup...</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Chiffrer la connexion avec SSL</translation>
    </message>
    <message>
        <source>Enter the proxy address and port.</source>
        <translation>Saisissez l’adresse et le port du proxy.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Exclure les noms commençant par un point</translation>
    </message>
    <message>
        <source>FarLink is disabled on the server. Use its IP address or ask your administrator.</source>
        <translation>FarLink est désactivé sur le serveur. Utilisez l’adresse IP du serveur ou contactez votre administrateur.</translation>
    </message>
    <message>
        <source>Files larger than this are not backed up.</source>
        <translation>Les fichiers plus volumineux ne sont pas sauvegardés.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for this server. Do you want to update now?</source>
        <translation>Lumaris Backup est trop ancien pour ce serveur. Voulez-vous le mettre à jour maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Your home folder is disabled. Ask your administrator to enable it.</source>
        <translation>Votre dossier personnel est désactivé. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>The Brix was replaced or reset. Unlink this computer and connect again.</source>
        <translation>Le Brix a été remplacé ou réinitialisé. Dissociez cet ordinateur, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>The server rejected the request. Check your settings and try again.</source>
        <translation>Le serveur a rejeté la demande. Vérifiez vos réglages et réessayez.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>The backup direction does not match the server. Remove the task and create it again.</source>
        <translation>Le sens de la sauvegarde ne correspond pas à celui du serveur. Supprimez la tâche et recréez-la.</translation>
    </message>
    <message>
        <source>Lumaris Backup is too old for the server. Update it and try again.</source>
        <translation>Lumaris Backup est trop ancien pour le serveur. Mettez-le à jour et réessayez.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>This is not a valid backup folder. Choose a different folder.</source>
        <translation>Ce dossier ne peut pas être sauvegardé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utiliser une icône en noir et blanc dans la barre des menus</translation>
    </message>
    <message>
        <source>The server certificate could not be verified, so the connection may be insecure. Do you want to continue?</source>
        <translation>Impossible de vérifier le certificat du serveur&#xa0;: la connexion risque de ne pas être sécurisée. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Enter the verification code:</source>
        <translation>Saisissez le code de vérification&#xa0;:</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Application des réglages...</translation>
    </message>
    <message>
        <source>Any type</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Your account needs verification codes. Set them up on the server.</source>
        <translation>Votre compte exige des codes de vérification. Configurez-les sur le serveur.</translation>
    </message>
    <message>
        <source>This folder overlaps another backup task. Choose a different folder.</source>
        <translation>Ce dossier chevauche une autre tâche de sauvegarde. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The backup task could not be created. Check its settings and try again.</source>
        <translation>Impossible de créer la tâche de sauvegarde. Vérifiez ses réglages et réessayez.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Hide deleted files</source>
        <translation>Masquer les fichiers supprimés</translation>
    </message>
    <message>
        <source>You cannot open this folder. Choose another one or ask your administrator for access.</source>
        <translation>Vous ne pouvez pas ouvrir ce dossier. Choisissez-en un autre ou demandez l’accès à votre administrateur.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Show the recent activity</source>
        <translation>Afficher l’activité récente</translation>
    </message>
    <message>
        <source>Matching files are not backed up.</source>
        <translation>Les fichiers correspondants ne sont pas sauvegardés.</translation>
    </message>
</context>
</TS>
