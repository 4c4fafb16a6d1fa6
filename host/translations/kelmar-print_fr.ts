<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ArgumentsText</name>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Print to this queue or preset (queue/preset).</source>
        <translation>Imprimer sur cette file ou ce préréglage (file/préréglage).</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Number of copies.</source>
        <translation>Nombre de copies.</translation>
    </message>
    <message>
        <source>LIST</source>
        <translation>LISTE</translation>
    </message>
    <message>
        <source>Pages to print, for example 1-3,8.</source>
        <translation>Pages à imprimer, par exemple 1-3,8.</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <source>Title of the job.</source>
        <translation>Titre de la tâche.</translation>
    </message>
    <message>
        <source>HOST</source>
        <translation>HÔTE</translation>
    </message>
    <message>
        <source>Print server to use, HOST or HOST:PORT.</source>
        <translation>Serveur d’impression à utiliser, HÔTE ou HÔTE:PORT.</translation>
    </message>
    <message>
        <source>KEY=VALUE</source>
        <translation>CLÉ=VALEUR</translation>
    </message>
    <message>
        <source>Set an option of the printer, or a key of a panel such as departmentCode.</source>
        <translation>Régler une option de l’imprimante ou une clé d’un panneau, comme departmentCode.</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>CLÉ=FICHIER</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NOM=VALEUR</translation>
    </message>
    <message>
        <source>Like --set, but unknown names are passed to the print system as job options.</source>
        <translation>Comme --set, mais les noms inconnus sont transmis au système d’impression comme options de la tâche.</translation>
    </message>
    <message>
        <source>Print without opening a window.</source>
        <translation>Imprimer sans ouvrir de fenêtre.</translation>
    </message>
    <message>
        <source>Accept the proposal when settings cannot be used together.</source>
        <translation>Accepter la proposition quand des réglages sont incompatibles.</translation>
    </message>
    <message>
        <source>Write the summary of the settings.</source>
        <translation>Afficher le résumé des réglages.</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>Afficher les options de l’imprimante et leurs choix.</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>Afficher les résultats et les erreurs en JSON.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Take the options from this PPD file instead of a queue.</source>
        <translation>Prendre les options de ce fichier PPD plutôt que d’une file.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>DOSSIER</translation>
    </message>
    <message>
        <source>Load the panels of this bundle instead of the installed ones.</source>
        <translation>Charger les panneaux de ce paquet plutôt que ceux installés.</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, job, summary, or a panel&apos;s name or kind.</source>
        <translation>Ouvrir la boîte de dialogue à cette page&#xa0;: general, more, job, summary, ou le nom ou le type d’un panneau.</translation>
    </message>
    <message>
        <source>Save a screenshot of the dialog and exit.</source>
        <translation>Enregistrer une capture d’écran de la boîte de dialogue et quitter.</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Couleurs de la boîte de dialogue&#xa0;: light (clair) ou dark (sombre).</translation>
    </message>
    <message>
        <source>Open the dialog, write the start-up time and exit.</source>
        <translation>Ouvrir la boîte de dialogue, afficher le temps de démarrage et quitter.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Documents to print; “-” is the standard input.</source>
        <translation>Documents à imprimer&#xa0;; «&#xa0;-&#xa0;» est l’entrée standard.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[FICHIER...]</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme accepte light ou dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch demande une imprimante&#xa0;; --ppd seul n’en désigne aucune.</translation>
    </message>
    <message>
        <source>--batch and --screenshot cannot be used together.</source>
        <translation>--batch et --screenshot ne peuvent pas être utilisées ensemble.</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>Usage&#xa0;: kelmar-print [OPTION...] [FICHIER...]
Imprime des documents, avec ou sans boîte de dialogue pour les réglages.

</translation>
    </message>
    <message>
        <source>Like --set, with the value from the first line of a file; “-” is the standard input.</source>
        <translation>Comme --set, la valeur étant lue sur la première ligne d’un fichier&#xa0;; «&#xa0;-&#xa0;» est l’entrée standard.</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>CLÉ</translation>
    </message>
    <message>
        <source>Like --set, with the value asked for on the terminal, which does not show it.</source>
        <translation>Comme --set, la valeur étant demandée dans le terminal, qui ne l’affiche pas.</translation>
    </message>
    <message>
        <source>--ask takes a key alone; the value is asked for.</source>
        <translation>--ask prend seulement une clé&#xa0;; la valeur est demandée ensuite.</translation>
    </message>
    <message>
        <source>-o takes NAME=VALUE or NAME.</source>
        <translation>-o prend NOM=VALEUR ou NOM.</translation>
    </message>
    <message>
        <source>--%1 takes %2; there is no “=” after the key.</source>
        <translation>--%1 prend %2&#xa0;; il manque «&#xa0;=&#xa0;» après une clé.</translation>
    </message>
    <message>
        <source>The standard input cannot be both a value and a document.</source>
        <translation>L’entrée standard ne peut pas être à la fois une valeur et un document.</translation>
    </message>
    <message>
        <source>Unknown option on the command line; --help lists the options.</source>
        <translation>Option inconnue sur la ligne de commande&#xa0;; --help affiche la liste des options.</translation>
    </message>
    <message>
        <source>Unknown option “%1”; --help lists the options.</source>
        <translation>Option inconnue&#xa0;: «&#xa0;%1&#xa0;»&#xa0;; --help affiche la liste des options.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for details.
</source>
        <translation>
Codes de retour&#xa0;: 0 succès, 1 échec, 2 usage incorrect, 3 réglages incompatibles,
4 annulé, 5 on ne sait pas si la tâche a été acceptée. Voir aussi la page de manuel kelmar-print(1).
</translation>
    </message>
    <message>
        <source>With --batch: write the pages into this PDF file instead of printing them.</source>
        <translation>Avec --batch&#xa0;: enregistrer les pages dans ce fichier PDF au lieu de les imprimer.</translation>
    </message>
    <message>
        <source>Write the presets of the printer.</source>
        <translation>Afficher les préréglages de l’imprimante.</translation>
    </message>
    <message>
        <source>Save the settings as a preset of the printer, without passwords and codes.</source>
        <translation>Conserver les réglages comme préréglage de l’imprimante, sans les mots de passe ni les codes.</translation>
    </message>
    <message>
        <source>Delete a preset of the printer.</source>
        <translation>Supprimer un préréglage de l’imprimante.</translation>
    </message>
    <message>
        <source>--output requires --batch.</source>
        <translation>--output nécessite --batch.</translation>
    </message>
    <message>
        <source>Presets belong to a printer; --ppd alone names none.</source>
        <translation>Les préréglages sont liés à une imprimante&#xa0;; --ppd seul n’en désigne aucune.</translation>
    </message>
    <message>
        <source>--resolve requires --batch, --summary or --save-preset.</source>
        <translation>--resolve nécessite --batch, --summary ou --save-preset.</translation>
    </message>
    <message>
        <source>--json requires --batch, --summary, --list-options or an option for presets.</source>
        <translation>--json nécessite --batch, --summary, --list-options ou une option relative aux préréglages.</translation>
    </message>
    <message>
        <source>Print even if a password or a department code is missing.</source>
        <translation>Imprimer même s’il manque un mot de passe ou un code de service.</translation>
    </message>
    <message>
        <source>--allow-no-password requires --batch.</source>
        <translation>--allow-no-password nécessite --batch.</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not accept “%1”.</source>
        <translation>Le serveur d’impression n’a pas accepté «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The print server uses a different value for “%1” than the one that was sent.</source>
        <translation>Le serveur d’impression utilise pour «&#xa0;%1&#xa0;» une autre valeur que celle envoyée.</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>--list-options lists the settings.</source>
        <translation>--list-options affiche la liste des réglages.</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Aucune solution ne conserve «&#xa0;%1&#xa0;»&#xa0;; modifiez l’un des réglages.</translation>
    </message>
    <message>
        <source>Passwords and codes are not saved in the preset; enter them each time.</source>
        <translation>Les mots de passe et les codes ne sont pas enregistrés dans le préréglage&#xa0;; indiquez-les à chaque fois.</translation>
    </message>
    <message>
        <source>Only a part of the code for “%1” has been given.</source>
        <translation>Seule une partie du code pour «&#xa0;%1&#xa0;» a été indiquée.</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>The password has been removed: the job will not be protected. %1</source>
        <translation>Le mot de passe a été supprimé&#xa0;: la tâche ne sera pas protégée. %1</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Cette imprimante ne connaît pas «&#xa0;%1&#xa0;»&#xa0;: la tâche ne sera pas protégée.</translation>
    </message>
    <message>
        <source>Not available on this printer: %1.</source>
        <translation>Non disponible sur cette imprimante&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» a été réinitialisé à «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» est passé à «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Ont été réinitialisés à «&#xa0;%2&#xa0;»&#xa0;: %1.</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Sont passés à «&#xa0;%2&#xa0;»&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The reason: “%1” is “%2”.</source>
        <translation>La raison&#xa0;: «&#xa0;%1&#xa0;» est réglé sur «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ChosenText</name>
    <message>
        <source>the code for “%1”</source>
        <translation>le code de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>settings of “%1”</source>
        <translation>réglages de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ControlText</name>
    <message>
        <source>Not available while “%1” is “%2”.</source>
        <translation>Non disponible tant que «&#xa0;%1&#xa0;» est réglé sur «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>The document cannot be stored in the folder “%1”: %2.</source>
        <translation>Le document ne peut pas être stocké dans le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Il n’y a pas de fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas un document.</translation>
    </message>
    <message>
        <source>“%1” is a device, not a document.</source>
        <translation>«&#xa0;%1&#xa0;» est un périphérique, pas un document.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est illisible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>The standard input cannot be read: %1.</source>
        <translation>L’entrée standard est illisible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>L’entrée standard n’a rien fourni.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>Nothing was written into “%1”.</source>
        <translation>Rien n’a été écrit dans «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>The number of copies to print.</source>
        <translation>Le nombre de copies à imprimer.</translation>
    </message>
    <message>
        <source>Prints each complete copy before the next one, so that the pages need no sorting.</source>
        <translation>Imprime chaque copie en entier avant de commencer la suivante&#xa0;; les pages n’ont pas à être triées.</translation>
    </message>
    <message>
        <source>The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.</source>
        <translation>Les pages à imprimer. Séparez les pages et les plages par des virgules, par exemple 1-3, 8.</translation>
    </message>
    <message>
        <source>The size of the paper to print on. Paper of this size must be loaded in one of the printer’s trays.</source>
        <translation>Le format du papier sur lequel imprimer. Un des bacs de l’imprimante doit contenir du papier de ce format.</translation>
    </message>
    <message>
        <source>The type of paper. The printer feeds and heats heavy or coated paper differently.</source>
        <translation>Le type de papier. L’imprimante entraîne et chauffe différemment le papier épais ou couché.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Le bac dans lequel le papier est pris.</translation>
    </message>
    <message>
        <source>Prints on both sides of the paper. Choose the long edge for pages that turn like those of a book, the short edge for pages that turn like those of a wall calendar.</source>
        <translation>Imprime sur les deux faces du papier. Choisissez le bord long pour des pages qui se tournent comme celles d’un livre, le bord court pour celles d’un calendrier mural.</translation>
    </message>
    <message>
        <source>The number of document pages on one side of the paper. The pages are scaled down to fit.</source>
        <translation>Le nombre de pages du document par face de papier. Les pages sont réduites en conséquence.</translation>
    </message>
    <message>
        <source>The order in which several pages are arranged on one side.</source>
        <translation>L’ordre dans lequel plusieurs pages sont disposées sur une face.</translation>
    </message>
    <message>
        <source>A line around each page on the paper.</source>
        <translation>Un trait autour de chaque page sur le papier.</translation>
    </message>
    <message>
        <source>Prints the pages upright or sideways. “As in the document” keeps the orientation of each page.</source>
        <translation>Imprime les pages en portrait ou en paysage. «&#xa0;Comme dans le document&#xa0;» conserve l’orientation de chaque page.</translation>
    </message>
    <message>
        <source>Scales the pages to fit the paper, or keeps their size. At actual size, whatever does not fit on the paper is cut off.</source>
        <translation>Adapte la taille des pages au papier, ou la conserve. En taille réelle, ce qui dépasse du papier est coupé.</translation>
    </message>
    <message>
        <source>Enlarges or reduces each page about its center, in percent of its natural size. Whatever does not fit on the page is cut off.</source>
        <translation>Agrandit ou réduit chaque page à partir de son centre, en pourcentage de sa taille d’origine. Ce qui dépasse de la page est coupé.</translation>
    </message>
    <message>
        <source>Prints only every other page, for example to print on both sides by hand: first the odd pages, then the even pages.</source>
        <translation>N’imprime qu’une page sur deux, par exemple pour imprimer manuellement en recto verso&#xa0;: d’abord les pages impaires, puis les pages paires.</translation>
    </message>
    <message>
        <source>Prints the last page first, so that the pages are in order when the printer stacks them face up.</source>
        <translation>Imprime la dernière page en premier&#xa0;: les pages sont dans l’ordre lorsque l’imprimante les empile face imprimée vers le haut.</translation>
    </message>
    <message>
        <source>Prints the whole document.</source>
        <translation>Imprime tout le document.</translation>
    </message>
    <message>
        <source>Prints only the page that the application shows.</source>
        <translation>N’imprime que la page affichée par l’application.</translation>
    </message>
    <message>
        <source>Prints only what is selected in the application.</source>
        <translation>N’imprime que ce qui est sélectionné dans l’application.</translation>
    </message>
    <message>
        <source>The files to print, in this order. Clear the check box of a file to leave it out.</source>
        <translation>Les fichiers à imprimer, dans cet ordre. Décochez un fichier pour l’omettre.</translation>
    </message>
    <message>
        <source>Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.</source>
        <translation>Enregistre les pages dans un fichier PDF telles qu’elles seraient imprimées. Rien n’est envoyé à l’imprimante.</translation>
    </message>
    <message>
        <source>Shows the pages as they will be printed. Select a thumbnail to show its page.</source>
        <translation>Affiche les pages telles qu’elles seront imprimées. Sélectionnez une miniature pour afficher sa page.</translation>
    </message>
    <message>
        <source>A value that you enter yourself. The line below shows what the printer accepts.</source>
        <translation>Une valeur que vous saisissez. La ligne en dessous indique ce que l’imprimante accepte.</translation>
    </message>
    <message>
        <source>The printer that the document is sent to. You can search the list by name or location.</source>
        <translation>L’imprimante à laquelle le document est envoyé. La liste permet une recherche par nom ou par emplacement.</translation>
    </message>
    <message>
        <source>Applies a preset, the settings used last or the printer’s defaults, and saves the current settings as a preset.</source>
        <translation>Applique un préréglage, les derniers réglages utilisés ou ceux de l’imprimante, et enregistre les réglages actuels comme préréglage.</translation>
    </message>
    <message>
        <source>The pages of this dialog. A diamond marks each page with changed settings.</source>
        <translation>Les pages de cette boîte de dialogue. Un losange signale celles dont des réglages ont été modifiés.</translation>
    </message>
    <message>
        <source>Closes this window. Nothing more is sent to the printer.</source>
        <translation>Ferme cette fenêtre. Plus rien n’est envoyé à l’imprimante.</translation>
    </message>
    <message>
        <source>Sends the document to the printer with the settings of all pages.</source>
        <translation>Envoie le document à l’imprimante avec les réglages de toutes les pages.</translation>
    </message>
    <message>
        <source>Cancels the job. Pages that are printed already remain in the printer.</source>
        <translation>Annule la tâche. Les pages déjà imprimées restent dans l’imprimante.</translation>
    </message>
    <message>
        <source>Keeps the job at the print server until you release it.</source>
        <translation>Garde la tâche en attente sur le serveur d’impression jusqu’à ce que vous la libériez.</translation>
    </message>
    <message>
        <source>Sends the same documents again with the same settings.</source>
        <translation>Envoie de nouveau les mêmes documents avec les mêmes réglages.</translation>
    </message>
    <message>
        <source>The name of the preset. Other programs offer the preset under this name as well.</source>
        <translation>Le nom du préréglage. D’autres programmes le proposent aussi sous ce nom.</translation>
    </message>
    <message>
        <source>Saves passwords and codes with the preset, so that you need not enter them each time. Do not use this on a computer that you share with others.</source>
        <translation>Enregistre les mots de passe et les codes avec le préréglage, pour ne pas avoir à les saisir chaque fois. À éviter sur un ordinateur partagé.</translation>
    </message>
    <message>
        <source>Saves the settings of all pages as a preset. A preset of the same name is replaced.</source>
        <translation>Enregistre les réglages de toutes les pages comme préréglage. Un préréglage du même nom est remplacé.</translation>
    </message>
    <message>
        <source>Renames the preset, in other programs as well.</source>
        <translation>Renomme le préréglage, y compris dans les autres programmes.</translation>
    </message>
    <message>
        <source>Deletes the preset, in other programs as well. The current settings do not change.</source>
        <translation>Supprime le préréglage, y compris dans les autres programmes. Les réglages actuels ne changent pas.</translation>
    </message>
    <message>
        <source>Closes this dialog without changing any preset.</source>
        <translation>Ferme cette boîte de dialogue sans modifier de préréglage.</translation>
    </message>
    <message>
        <source>Your user name on the print server. It may differ from your user name on this computer.</source>
        <translation>Votre nom d’utilisateur sur le serveur d’impression. Il peut différer de celui de cet ordinateur.</translation>
    </message>
    <message>
        <source>Your password on the print server.</source>
        <translation>Votre mot de passe sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Logs in to the print server.</source>
        <translation>Ouvre une session sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Continues without a password. The print server may then refuse the request.</source>
        <translation>Continue sans mot de passe. Le serveur d’impression peut alors refuser la demande.</translation>
    </message>
    <message>
        <source>Shows only the settings that differ from the printer’s defaults or the preset, with their previous values.</source>
        <translation>N’affiche que les réglages qui diffèrent de ceux de l’imprimante ou du préréglage, avec leurs valeurs précédentes.</translation>
    </message>
    <message>
        <source>Further options of this printer, with the names that its manufacturer gave them.</source>
        <translation>Autres options de cette imprimante, avec les noms donnés par son fabricant.</translation>
    </message>
    <message>
        <source>Stops waiting. Your settings are kept.</source>
        <translation>Cesse d’attendre. Vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>Asks the printer or the print server again.</source>
        <translation>Interroge de nouveau l’imprimante ou le serveur d’impression.</translation>
    </message>
    <message>
        <source>Goes back to the settings.</source>
        <translation>Revient aux réglages.</translation>
    </message>
    <message>
        <source>Finds a setting on any page by its name.</source>
        <translation>Recherche un réglage par son nom dans toutes les pages.</translation>
    </message>
    <message>
        <source>Explains the settings of this page.</source>
        <translation>Explique les réglages de cette page.</translation>
    </message>
    <message>
        <source>Whether the pages are printed in color or in black and white.</source>
        <translation>Impression des pages en couleur ou en noir et blanc.</translation>
    </message>
    <message>
        <source>What the job is called at the printer and in lists of jobs.</source>
        <translation>Le nom de la tâche sur l’imprimante et dans les listes de tâches.</translation>
    </message>
    <message>
        <source>When the print server sends the job to the printer. A job that waits for its release is released in the list of jobs.</source>
        <translation>Moment où le serveur d’impression envoie la tâche à l’imprimante. Une tâche en attente de libération est libérée dans la liste des tâches.</translation>
    </message>
    <message>
        <source>Jobs of a higher priority are printed first.</source>
        <translation>Les tâches de priorité supérieure sont imprimées en premier.</translation>
    </message>
    <message>
        <source>A sheet with the names of the job and its owner, printed before or after the document.</source>
        <translation>Une feuille portant le nom de la tâche et celui de son propriétaire, imprimée avant ou après le document.</translation>
    </message>
    <message>
        <source>A text that is recorded with the job, for example a project or a customer.</source>
        <translation>Un texte enregistré avec la tâche, par exemple un projet ou un client.</translation>
    </message>
    <message>
        <source>The printer keeps the job until this password is entered at its control panel. It is not stored.</source>
        <translation>L’imprimante conserve la tâche jusqu’à ce que ce mot de passe soit saisi sur son panneau de commande. Il n’est pas enregistré.</translation>
    </message>
    <message>
        <source>The account that the printer charges for the job. It is not stored.</source>
        <translation>Le compte auquel l’imprimante impute la tâche. Il n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Your name or number for the account. It is not stored.</source>
        <translation>Votre nom ou votre numéro pour le compte. Il n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Arranges the pages for sheets that are folded together in the middle: two pages on each side, four on each sheet.</source>
        <translation>Dispose les pages pour des feuilles pliées ensemble au milieu&#xa0;: deux pages par face, quatre par feuille.</translation>
    </message>
    <message>
        <source>Folds the sheets of a booklet and staples them in the fold.</source>
        <translation>Plie les feuilles d’un livret et les agrafe dans le pli.</translation>
    </message>
    <message>
        <source>Prints each page reversed from left to right, for example on transfer paper.</source>
        <translation>Imprime chaque page inversée de gauche à droite, par exemple sur du papier transfert.</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>L’extension d’impression est inutilisable&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>JobSettingText</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Pendant la journée</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Le soir</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Pendant le deuxième poste</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Pendant le troisième poste</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>À sa libération</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Pages de garde</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Informations de facturation</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <comment>cover sheets</comment>
        <translation>%1 avant, %2 après</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Utilisateur du compte</translation>
    </message>
    <message>
        <source>%1 takes a number from 1 to %2.</source>
        <translation>%1 prend un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>%1 takes %2, or a time in UTC such as 20:15.</source>
        <translation>%1 prend %2 ou une heure UTC, par exemple 20:15.</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>en attente&#xa0;: l’imprimante est arrêtée</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>on hold</source>
        <translation>suspendue</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>en cours d’impression</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>aborted by the print system</source>
        <translation>abandonnée par le système d’impression</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminée</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>état inconnu</translation>
    </message>
    <message>
        <source>the print server no longer knows it. It may have been printed; look at the printer.</source>
        <translation>le serveur d’impression ne la connaît plus. Elle a peut-être été imprimée&#xa0;; vérifiez sur l’imprimante.</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Left to right, then down</source>
        <translation>De gauche à droite, puis vers le bas</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>De gauche à droite, puis vers le haut</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>De droite à gauche, puis vers le bas</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>De droite à gauche, puis vers le haut</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Vers le bas, puis de gauche à droite</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Vers le bas, puis de droite à gauche</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Vers le haut, puis de gauche à droite</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Vers le haut, puis de droite à gauche</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Trait fin</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Trait épais</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Deux traits fins</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Deux traits épais</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Comme dans le document</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Landscape, turned around</source>
        <translation>Paysage, retourné</translation>
    </message>
    <message>
        <source>Portrait, turned around</source>
        <translation>Portrait, retourné</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Pages impaires et paires</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Pages impaires seulement</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Pages paires seulement</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Shrink to the page or cut off</source>
        <translation>Réduire à la page ou rogner</translation>
    </message>
    <message>
        <source>Shrink to the page</source>
        <translation>Réduire à la page</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Remplir la page</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True ou False</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2</source>
        <translation>des nombres entiers de %1 à %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Pages par face</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Ajustement</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Odd or even</source>
        <translation>Impaires ou paires</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Image en miroir</translation>
    </message>
</context>
<context>
    <name>LoadedText</name>
    <message>
        <source>Nothing is loaded in “%1”.</source>
        <translation>Rien n’est chargé dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is not loaded in “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas chargé dans «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is not loaded in any tray.</source>
        <translation>«&#xa0;%1&#xa0;» n’est chargé dans aucun bac.</translation>
    </message>
    <message>
        <source>“%1” is loaded, but not as “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» est chargé, mais pas comme «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>LoginText</name>
    <message>
        <source>Log In</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Le nom d’utilisateur ou le mot de passe n’a pas été accepté.</translation>
    </message>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Le serveur d’impression %1 exige un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nom d’&amp;utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>Le mot de passe circulera sur le réseau sans chiffrement.</translation>
    </message>
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>Aucun écran pour afficher la boîte de dialogue. Utilisez --batch pour imprimer sans elle.</translation>
    </message>
</context>
<context>
    <name>OpenText</name>
    <message>
        <source>No printer has been set up.</source>
        <translation>Aucune imprimante n’est configurée.</translation>
    </message>
</context>
<context>
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni une page ni une plage de pages&#xa0;; écrivez par exemple 1-3, 8.</translation>
    </message>
</context>
<context>
    <name>PagesText</name>
    <message>
        <source>Documents reach the printer unchanged. They cannot be scaled.</source>
        <translation>Les documents parviennent à l’imprimante sans modification. Ils ne peuvent pas être mis à l’échelle.</translation>
    </message>
    <message>
        <source>%1 Set “%2” to %3.</source>
        <translation>%1 Réglez «&#xa0;%2&#xa0;» sur %3.</translation>
    </message>
</context>
<context>
    <name>PanelValueText</name>
    <message>
        <source>takes a whole number from %1 to %2</source>
        <translation>prend un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>takes True or False</source>
        <translation>prend True ou False</translation>
    </message>
    <message>
        <source>cannot be set by a text</source>
        <translation>ne peut pas être réglé par un texte</translation>
    </message>
    <message>
        <source>takes %1 digits</source>
        <translation>prend %1 chiffres</translation>
    </message>
    <message>
        <source>takes %1 characters</source>
        <translation>prend %1 caractères</translation>
    </message>
    <message>
        <source>does not take this value</source>
        <translation>n’accepte pas cette valeur</translation>
    </message>
    <message>
        <source>does not take this value: %1 has only %2</source>
        <translation>n’accepte pas cette valeur&#xa0;: %1 n’a que %2</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <comment>a key, and what it takes</comment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>PasswordText</name>
    <message>
        <source>a digit from 0 to 9</source>
        <translation>un chiffre de 0 à 9</translation>
    </message>
    <message>
        <source>a letter from A to Z</source>
        <translation>une lettre de A à Z</translation>
    </message>
    <message>
        <source>a letter from A to Z or a digit from 0 to 9</source>
        <translation>une lettre de A à Z ou un chiffre de 0 à 9</translation>
    </message>
    <message>
        <source>a printable ASCII character</source>
        <translation>un caractère ASCII imprimable</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>un chiffre</translation>
    </message>
    <message>
        <source>a letter</source>
        <translation>une lettre</translation>
    </message>
    <message>
        <source>a printable character</source>
        <translation>un caractère imprimable</translation>
    </message>
    <message>
        <source>Character %1 of the password has to be %2.</source>
        <translation>Le caractère %1 du mot de passe doit être %2.</translation>
    </message>
</context>
<context>
    <name>PolicySystemText</name>
    <message>
        <source>The printer “%1” is not offered here. %2</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’est pas proposée ici. %2</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» doit être réglé sur «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”, with a code.</source>
        <translation>«&#xa0;%1&#xa0;» doit être réglé sur «&#xa0;%2&#xa0;», avec un code.</translation>
    </message>
    <message>
        <source>The rules in %1 offer none of the printers that have been set up. %2</source>
        <translation>Les règles de %1 n’offrent aucune des imprimantes configurées. %2</translation>
    </message>
    <message>
        <source>“%1” cannot be used, since settings of this printer are fixed.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé, car des réglages de cette imprimante sont fixés.</translation>
    </message>
</context>
<context>
    <name>PolicyText</name>
    <message>
        <source>it is not a JSON object</source>
        <translation>ce n’est pas un objet JSON</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, ligne %2, colonne %3&#xa0;: %4</translation>
    </message>
    <message>
        <source>“%1” is not known here; known are %2</source>
        <translation>«&#xa0;%1&#xa0;» est inconnu ici&#xa0;; sont connus&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” takes a list of names</source>
        <translation>«&#xa0;%1&#xa0;» prend une liste de noms</translation>
    </message>
    <message>
        <source>“%1” takes an object of options and choices</source>
        <translation>«&#xa0;%1&#xa0;» prend un objet d’options et de choix</translation>
    </message>
    <message>
        <source>“%1” takes a choice in quotes</source>
        <translation>«&#xa0;%1&#xa0;» prend un choix entre guillemets</translation>
    </message>
    <message>
        <source>“contact” takes a text</source>
        <translation>«&#xa0;contact&#xa0;» prend un texte</translation>
    </message>
    <message>
        <source>“rules” takes a list</source>
        <translation>«&#xa0;rules&#xa0;» prend une liste</translation>
    </message>
    <message>
        <source>“rules” takes JSON objects</source>
        <translation>«&#xa0;rules&#xa0;» prend des objets JSON</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 est illisible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is larger than 1 MB.</source>
        <translation>%1 dépasse 1 Mo.</translation>
    </message>
    <message>
        <source>The administrator&apos;s rules for printing are not in force, since they cannot be read. Please tell your administrator: %1</source>
        <translation>Les règles d’impression de l’administrateur ne sont pas appliquées, car elles sont illisibles. Veuillez en informer votre administrateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Set by the administrator.</source>
        <translation>Défini par l’administrateur.</translation>
    </message>
    <message>
        <source>Set by the administrator (%1).</source>
        <translation>Défini par l’administrateur (%1).</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, problem</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, rule %2: %3</source>
        <comment>file, number, problem</comment>
        <translation>%1, règle %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>PortalText</name>
    <message>
        <source>The document of an application cannot be printed.</source>
        <translation>Le document d’une application ne peut pas être imprimé.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
    <message>
        <source>It is larger than 2 GB.</source>
        <translation>Il dépasse 2 Go.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Il est illisible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Imprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The document has not been printed on “%1”.</source>
        <translation>Le document n’a pas été imprimé sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The document was sent to “%1”, but with different settings.</source>
        <translation>Le document a été envoyé à «&#xa0;%1&#xa0;», mais avec des réglages différents.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>It is larger than 256 MB.</source>
        <translation>Il dépasse 256 Mo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The application that opened the print dialog has been closed. Nothing has been printed.</source>
        <translation>L’application qui a ouvert la boîte de dialogue d’impression a été fermée. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The application has changed it since the print dialog was opened.</source>
        <translation>L’application l’a modifié depuis l’ouverture de la boîte de dialogue d’impression.</translation>
    </message>
</context>
<context>
    <name>PpdCustomText</name>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>a length from %1 to %2 pt</source>
        <translation>une longueur de %1 à %2 pt</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 à %2 chiffres</translation>
    </message>
    <message>
        <source>a password of %1 to %2 characters</source>
        <translation>un mot de passe de %1 à %2 caractères</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texte de %1 à %2 caractères</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 prend %2.</translation>
    </message>
    <message>
        <source>%1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>%1 × %2 %3</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>Custom (100 × 200 mm)</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>sizes from %1 × %2 to %3 × %4 pt, such as Custom.%5 (units: pt, mm, cm, m, in, ft)</source>
        <translation>des tailles de %1 × %2 à %3 × %4 pt, comme Custom.%5 (unités&#xa0;: pt, mm, cm, m, in, ft)</translation>
    </message>
    <message>
        <source>Custom. followed by %1</source>
        <translation>Custom. puis %1</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 est %2</translation>
    </message>
    <message>
        <source>{%1}, where %2</source>
        <translation>{%1}, où %2</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>Il n’y a pas de fichier PPD «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>Vous n’avez pas le droit de lire le fichier PPD «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>Le fichier PPD «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>Le PPD de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1 est défectueux&#xa0;: ligne %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 is too large: more than %2 MB.</source>
        <translation>%1 est trop volumineux&#xa0;: plus de %2 Mo.</translation>
    </message>
    <message>
        <source>There is not enough memory for the PPD of “%1”: %2.</source>
        <translation>Mémoire insuffisante pour le PPD de «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>PpdTexts</name>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Qualité d’impression</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Bypass Tray</source>
        <translation>Bac auxiliaire</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Papier photo brillant</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Enveloppe</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Output Tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Face imprimée dessous</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Face imprimée dessus</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafage</translation>
    </message>
    <message>
        <source>One, Top Left</source>
        <translation>Une, en haut à gauche</translation>
    </message>
    <message>
        <source>One, Bottom Left</source>
        <translation>Une, en bas à gauche</translation>
    </message>
    <message>
        <source>Two, Left</source>
        <translation>Deux, à gauche</translation>
    </message>
    <message>
        <source>Two, Top</source>
        <translation>Deux, en haut</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Pliage</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>A preset cannot store the value of “%1”: it contains a tab, a line break or another character that cannot be written to the preset file.</source>
        <translation>Un préréglage ne peut pas conserver la valeur de «&#xa0;%1&#xa0;»&#xa0;: elle contient une tabulation, un saut de ligne ou un autre caractère que son fichier ne permet pas d’écrire.</translation>
    </message>
    <message>
        <source>A preset cannot store this many settings; the limit is %1 bytes.</source>
        <translation>Un préréglage ne peut pas enregistrer autant de réglages&#xa0;; la limite est de %1&#xa0;octets.</translation>
    </message>
    <message>
        <source>This printer does not support these settings: %1.</source>
        <translation>Cette imprimante ne prend pas en charge ces réglages&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>Aucune imprimante par défaut n’est définie&#xa0;; désignez une imprimante par son nom.</translation>
    </message>
    <message>
        <source>“%1” opens the print dialog and prints nothing itself; choose another printer.</source>
        <translation>«&#xa0;%1&#xa0;» ouvre la boîte de dialogue d’impression et n’imprime rien elle-même&#xa0;; choisissez une autre imprimante.</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Il n’y a pas d’imprimante nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Your own defaults for this printer are not used. %1</source>
        <translation>Vos propres réglages par défaut pour cette imprimante ne sont pas utilisés. %1</translation>
    </message>
    <message>
        <source>“%1” has no preset called “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de préréglage appelé «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>PrinterText</name>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>Arrêtée&#xa0;: les tâches attendent sa remise en marche</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>N’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trouvée sur le réseau</translation>
    </message>
    <message>
        <source>State not known</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>%1: level not known</source>
        <comment>a toner</comment>
        <translation>%1&#xa0;: niveau inconnu</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <comment>a toner and its level</comment>
        <translation>%1&#xa0;: %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a tray and the paper in it</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Reported by the printer at %1</source>
        <translation>Signalé par l’imprimante à %1</translation>
    </message>
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no password has been given for it.</source>
        <translation>«&#xa0;%1&#xa0;» a été choisi, mais aucun mot de passe n’a été indiqué.</translation>
    </message>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>«&#xa0;%1&#xa0;» a été choisi, mais aucun code n’a été indiqué.</translation>
    </message>
    <message>
        <source>A password has been given, but not “%1”: the job is not protected.</source>
        <translation>Un mot de passe a été indiqué, mais «&#xa0;%1&#xa0;» n’a pas été choisi&#xa0;: la tâche n’est pas protégée.</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Cette imprimante ne connaît pas «&#xa0;%1&#xa0;»&#xa0;: la tâche ne sera pas protégée.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Ces réglages sont incompatibles.</translation>
    </message>
    <message>
        <source>Changed to resolve a conflict: %1</source>
        <translation>Modifié pour résoudre un conflit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Clés des panneaux</translation>
    </message>
    <message>
        <source>Give passwords and codes with --ask or --set-file: other users can read the command line.</source>
        <translation>Indiquez les mots de passe et les codes avec --ask ou --set-file : les autres utilisateurs peuvent lire la ligne de commande.</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>l’identifiant de la requête est %1-%2 (%3 fichier(s))</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Tâche %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Ces réglages sont incompatibles&#xa0;:</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>Proposition (acceptée avec --resolve)&#xa0;:</translation>
    </message>
    <message>
        <source>The result cannot be written: %1.</source>
        <translation>Le résultat ne peut pas être écrit&#xa0;: %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>et %1</translation>
    </message>
    <message>
        <source>“%1” has been written.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Le préréglage «&#xa0;%1&#xa0;» a été supprimé.</translation>
    </message>
    <message>
        <source>The settings have been saved as the preset “%1”.</source>
        <translation>Les réglages ont été enregistrés dans le préréglage «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a setting and its value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>The picture “%1” cannot be written.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>l’identifiant de la requête est %1</translation>
    </message>
</context>
<context>
    <name>ServerText</name>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Le serveur d’impression %1 exige un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The printer “%1” requires a user name and a password.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» exige un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Le serveur d’impression %1 est injoignable.</translation>
    </message>
    <message>
        <source>The print server %1 sent a response that cannot be interpreted.</source>
        <translation>La réponse du serveur d’impression %1 ne peut pas être interprétée.</translation>
    </message>
    <message>
        <source>The connection to the print server %1 was lost.</source>
        <translation>La connexion au serveur d’impression %1 a été interrompue.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this (%2).</source>
        <translation>Le serveur d’impression %1 ne vous y autorise pas (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused the request (%2).</source>
        <translation>Le serveur d’impression %1 a refusé la requête (%2).</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Il n’y a pas d’imprimante nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Aucune imprimante n’est configurée.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’accepte pas de tâches actuellement.</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>Vous n’avez pas le droit d’imprimer sur «&#xa0;%1&#xa0;» (%2).</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» ne peut pas imprimer ce type de documents.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Le serveur d’impression signale&#xa0;: %1</translation>
    </message>
    <message>
        <source>The print server %1 sends a file of more than %2 megabytes.</source>
        <translation>Le serveur d’impression %1 envoie un fichier de plus de %2 mégaoctets.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering.</source>
        <translation>Le serveur d’impression %1 ne répond plus.</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>A stored setting is not used: %1</source>
        <translation>Un réglage enregistré n’est pas utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 n’a pas de choix «&#xa0;%2&#xa0;»&#xa0;; il a %3.</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Cette imprimante n’a pas d’option ni de réglage nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies prend un nombre de 1 à %1.</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 prend True ou False.</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 n’est pas envoyé avec la tâche&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 prend %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed here. %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être modifié ici. %2</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 n’accepte pas cette valeur.</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1&#xa0;: cette imprimante ne connaît pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The printer “%1” does not take %2.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’accepte pas %2.</translation>
    </message>
    <message>
        <source>%1 takes at most %2 characters.</source>
        <translation>%1 accepte au plus %2 caractères.</translation>
    </message>
    <message>
        <source>“%1” is not available for a booklet, whose sheets are turned on the short edge.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas possible pour un livret, dont les feuilles se tournent sur le bord court.</translation>
    </message>
</context>
<context>
    <name>StoreText</name>
    <message>
        <source>The presets in “%1” cannot be read or changed: %2.</source>
        <translation>Les préréglages de «&#xa0;%1&#xa0;» ne peuvent être ni lus ni modifiés&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There is no preset called “%1”.</source>
        <translation>Il n’y a pas de préréglage nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is already a preset called “%1”.</source>
        <translation>Il y a déjà un préréglage nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is available to all users of this computer; only an administrator can change it.</source>
        <translation>«&#xa0;%1&#xa0;» est destiné à tous les utilisateurs de cet ordinateur&#xa0;; seul un administrateur peut le modifier.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage doit avoir un nom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain spaces; use for example “%1”.</source>
        <translation>Le nom d’un préréglage ne peut pas contenir d’espaces&#xa0;; utilisez par exemple «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain control characters.</source>
        <translation>Le nom d’un préréglage ne peut pas contenir de caractères de contrôle.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain any of these characters: / \ # &quot; &apos; =</source>
        <translation>Le nom d’un préréglage ne peut contenir aucun de ces caractères&#xa0;: / \ # &quot; &apos; =</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’accepte pas de tâches actuellement.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être imprimé&#xa0;: l’imprimante «&#xa0;%2&#xa0;» n’accepte pas les documents de type %3.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est illisible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The unfinished job %1 could not be canceled.</source>
        <translation>La tâche inachevée %1 n’a pas pu être annulée.</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>It is not known whether the job was accepted. It may print; look at the queue before printing again.</source>
        <translation>On ne sait pas si la tâche a été acceptée. Elle sera peut-être imprimée&#xa0;; consultez la file d’attente avant de relancer l’impression.</translation>
    </message>
    <message>
        <source>The print server did not report the settings that it accepted.</source>
        <translation>Le serveur d’impression n’a pas indiqué les réglages qu’il a acceptés.</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation>La tâche %1 n’a pas pu être annulée.</translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation>Une partie a peut-être été imprimée.</translation>
    </message>
    <message>
        <source>An unfinished job may have been left at the print server.</source>
        <translation>Une tâche inachevée peut être restée sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Look at the queue before printing again.</source>
        <translation>Regardez la file d’attente avant d’imprimer de nouveau.</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Page actuelle</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Mode d’impression</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>TerminalText</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Le nom d’utilisateur ou le mot de passe n’a pas été accepté.</translation>
    </message>
    <message>
        <source>User name for %1 [%2]: </source>
        <translation>Nom d’utilisateur pour %1 [%2]&#xa0;: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe&#xa0;: </translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>Le mot de passe circulera sur le réseau sans chiffrement.</translation>
    </message>
</context>
<context>
    <name>TitleField</name>
    <message>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ValueSourceText</name>
    <message>
        <source>The value of %1 cannot be read: %2.</source>
        <translation>La valeur de %1 est illisible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>its first line is longer than %1 bytes</source>
        <translation>sa première ligne dépasse %1 octets</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>il n’y en a pas</translation>
    </message>
    <message>
        <source>it is not text</source>
        <translation>ce n’est pas du texte</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; --set-file takes it from a file or, as %1=-, from the standard input</source>
        <translation>aucun terminal ne permet de la demander&#xa0;; --set-file la prend dans un fichier ou, avec %1=-, sur l’entrée standard</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>prompt for a value</comment>
        <translation>%1&#xa0;: </translation>
    </message>
</context>
<context>
    <name>host::ChangeMark</name>
    <message>
        <source>Back to What It Was</source>
        <translation>Revenir à la valeur d’avant</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Revenir à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modifié. %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Changed; it was “%1”</source>
        <translation>Modifié&#xa0;; c’était «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>host::ConflictQuestion</name>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>A&amp;ppliquer la suggestion</translation>
    </message>
    <message>
        <source>Use An&amp;yway</source>
        <translation>Utiliser &amp;quand même</translation>
    </message>
    <message>
        <source>Print An&amp;yway</source>
        <translation>Imprimer &amp;quand même</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>&amp;Garder et vérifier</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Aucune solution ne conserve «&#xa0;%1&#xa0;»&#xa0;; modifiez l’un des réglages.</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Suggestion&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” protects your document. If you print anyway, the printer may print without it.</source>
        <translation>«&#xa0;%1&#xa0;» protège votre document. Si vous imprimez quand même, l’imprimante risque d’imprimer sans cette protection.</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Ces réglages sont incompatibles</translation>
    </message>
    <message>
        <source>“%1” cannot be changed. If you print anyway, the printer may print without it.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être modifié. Si vous imprimez quand même, l’imprimante risque d’imprimer sans ce réglage.</translation>
    </message>
</context>
<context>
    <name>host::CustomEditor</name>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>po</translation>
    </message>
    <message>
        <source>pt</source>
        <comment>points</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unité du format du papier</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source> pt</source>
        <comment>points, behind a number</comment>
        <translation> pt</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <comment>smallest size, largest size, unit</comment>
        <translation>De %1 à %2 %3</translation>
    </message>
    <message>
        <source>a length from %1 to %2 %3</source>
        <comment>smallest, largest, unit</comment>
        <translation>une longueur de %1 à %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 is out of range; enter %3.</source>
        <comment>setting, value, such as: a number from 1 to 9</comment>
        <translation>%1 : %2 est hors limites ; saisissez %3.</translation>
    </message>
</context>
<context>
    <name>host::DialogPreview</name>
    <message>
        <source>Preview…</source>
        <translation>Aperçu…</translation>
    </message>
    <message>
        <source>Show the pages in a separate window</source>
        <translation>Afficher les pages dans une fenêtre séparée</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Une page des réglages de l’imprimante ne peut pas être affichée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Your defaults for this printer contain choices that it does not have: %1.</source>
        <translation>Vos valeurs par défaut pour cette imprimante contiennent des choix qu’elle n’a pas&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>Des réglages enregistrés de «&#xa0;%1&#xa0;» ne sont pas envoyés avec la tâche (%2)&#xa0;: %3</translation>
    </message>
    <message>
        <source>“%1” stays “%2”. %3</source>
        <translation>«&#xa0;%1&#xa0;» reste réglé sur «&#xa0;%2&#xa0;». %3</translation>
    </message>
</context>
<context>
    <name>host::DocumentBox</name>
    <message>
        <source>Documents to print</source>
        <translation>Documents à imprimer</translation>
    </message>
</context>
<context>
    <name>host::DocumentChoice</name>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
</context>
<context>
    <name>host::EarlierJobs</name>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Jobs %1: %2</source>
        <translation>Tâches %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>host::GeneralPage</name>
    <message>
        <source>C&amp;ollate</source>
        <translation>Ass&amp;embler</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>P&amp;lage&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Print each complete copy before the next one</source>
        <translation>Imprimer chaque copie en entier avant de commencer la suivante</translation>
    </message>
    <message>
        <source>for example 1-3, 8</source>
        <translation>par exemple 1-3, 8</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pages à imprimer</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages&#xa0;:</translation>
    </message>
    <message>
        <source>Enter the pages to print, or choose all pages.</source>
        <translation>Saisissez les pages à imprimer, ou choisissez toutes les pages.</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Documents&#xa0;:</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Save the pages to a file instead of printing them</source>
        <translation>Enregistrer les pages dans un fichier au lieu de les imprimer</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Page actuelle</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>The numbers refer to printed sides with %1 pages each.</source>
        <translation>Les numéros désignent les faces imprimées, de %1 pages chacune.</translation>
    </message>
    <message>
        <source>Choose at least one document.</source>
        <translation>Choisissez au moins un document.</translation>
    </message>
</context>
<context>
    <name>host::GreyedChoices</name>
    <message>
        <source>To use it, other settings have to change:</source>
        <translation>Pour l’utiliser, d’autres réglages doivent changer&#xa0;:</translation>
    </message>
    <message>
        <source>“%1” instead of “%2”</source>
        <comment>an option with its choice, and another choice</comment>
        <translation>«&#xa0;%1&#xa0;» au lieu de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>This gives up “%1”, which protects your document.</source>
        <translation>Cela revient à renoncer à «&#xa0;%1&#xa0;», qui protège votre document.</translation>
    </message>
    <message>
        <source>Change and &amp;Use It</source>
        <translation>Modifier et &amp;utiliser</translation>
    </message>
    <message>
        <source>Give Up Protection and &amp;Use It</source>
        <translation>Renoncer à la protection et &amp;utiliser</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Laisser tel quel</translation>
    </message>
    <message>
        <source>“%1” conflicts with this choice, and no resolution was found.</source>
        <translation>«&#xa0;%1&#xa0;» est en conflit avec ce choix, et aucune solution n’a été trouvée.</translation>
    </message>
    <message>
        <source>“%1” is not available now</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas disponible actuellement</translation>
    </message>
    <message>
        <source>“%1” cannot be changed.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être modifié.</translation>
    </message>
</context>
<context>
    <name>host::GuideButtons</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>Aide sur cette page</translation>
    </message>
</context>
<context>
    <name>host::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Close &amp;Help</source>
        <translation>Fermer l’ai&amp;de</translation>
    </message>
</context>
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n feuille</numerusform>
            <numerusform>%n feuilles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n face</numerusform>
            <numerusform>%n faces</numerusform>
        </translation>
    </message>
    <message>
        <source>black and white</source>
        <translation>noir et blanc</translation>
    </message>
    <message>
        <source>color</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>pages of different sizes</source>
        <translation>pages de formats différents</translation>
    </message>
</context>
<context>
    <name>host::JobDesk</name>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Envoi du document au serveur d’impression…</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Annulation de la tâche…</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>&amp;Annuler l’impression</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lecture du document…</translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>Priority:</source>
        <translation>Priorité&#xa0;:</translation>
    </message>
    <message>
        <source>Cover sheet before:</source>
        <translation>Page de garde avant&#xa0;:</translation>
    </message>
    <message>
        <source>Cover sheet after:</source>
        <translation>Page de garde après&#xa0;:</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Impression&#xa0;:</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>À une heure donnée</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Informations de facturation&#xa0;:</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>L’impression a été annulée.</translation>
    </message>
</context>
<context>
    <name>host::LayoutForm</name>
    <message>
        <source>Page layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Pages per side:</source>
        <translation>Pages par face&#xa0;:</translation>
    </message>
    <message>
        <source>Order:</source>
        <translation>Ordre&#xa0;:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordure&#xa0;:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Ajustement&#xa0;:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Échelle&#xa0;:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Impaires ou paires&#xa0;:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Image en miroir</translation>
    </message>
    <message>
        <source>Saddle stitching</source>
        <translation>Piqûre à cheval</translation>
    </message>
</context>
<context>
    <name>host::LimitedProcess</name>
    <message>
        <source>it took too long</source>
        <translation>l’opération a pris trop de temps</translation>
    </message>
    <message>
        <source>it ended unexpectedly</source>
        <translation>le programme s’est terminé de façon inattendue</translation>
    </message>
    <message>
        <source>it cannot be started: %1</source>
        <translation>le programme ne peut pas être lancé&#xa0;: %1</translation>
    </message>
    <message>
        <source>it wrote too much</source>
        <translation>le programme a produit trop de données</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>le document est trop volumineux</translation>
    </message>
</context>
<context>
    <name>host::LinkLabel</name>
    <message>
        <source>Go to this setting</source>
        <translation>Accéder à ce réglage</translation>
    </message>
</context>
<context>
    <name>host::MessageBar</name>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>host::OptionForm</name>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>%1…</source>
        <comment>Custom, whose values are asked for</comment>
        <translation>%1…</translation>
    </message>
</context>
<context>
    <name>host::PageBook</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>These settings cannot be changed. %1</source>
        <translation>Ces réglages ne peuvent pas être modifiés. %1</translation>
    </message>
    <message>
        <source>Fixed: %1. %2</source>
        <translation>Imposé&#xa0;: %1. %2</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Mode d’impression</translation>
    </message>
</context>
<context>
    <name>host::PageCounter</name>
    <message>
        <source>it is damaged, not complete or protected</source>
        <translation>il est endommagé, incomplet ou protégé</translation>
    </message>
    <message>
        <source>it needs a password</source>
        <translation>un mot de passe est nécessaire</translation>
    </message>
    <message>
        <source>its author does not allow it to be printed</source>
        <translation>l’auteur n’en autorise pas l’impression</translation>
    </message>
    <message>
        <source>it is damaged or not complete</source>
        <translation>il est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être imprimé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être mis à l’échelle&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The settings leave no page of any document to print.</source>
        <translation>Avec ces réglages, il ne reste aucune page à imprimer dans les documents.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there is only one printed side.</source>
        <translation>Avec ces réglages, il ne reste aucune page à imprimer&#xa0;: il n’y a qu’une face imprimée.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only one page.</source>
        <translation>Avec ces réglages, il ne reste aucune page à imprimer&#xa0;: le document n’a qu’une page.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there are only %1 printed sides.</source>
        <translation>Avec ces réglages, il ne reste aucune page à imprimer&#xa0;: il n’y a que %1 faces imprimées.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only %1 pages.</source>
        <translation>Avec ces réglages, il ne reste aucune page à imprimer&#xa0;: le document n’a que %1 pages.</translation>
    </message>
    <message>
        <source>the print server cannot arrange PostScript documents as a booklet</source>
        <translation>le serveur d’impression ne peut pas disposer en livret les documents PostScript</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Pages de la boîte de dialogue</translation>
    </message>
    <message>
        <source>has changed settings</source>
        <translation>contient des réglages modifiés</translation>
    </message>
    <message>
        <source>%1: has changed settings</source>
        <comment>a page</comment>
        <translation>%1&#xa0;: contient des réglages modifiés</translation>
    </message>
</context>
<context>
    <name>host::PageMaker</name>
    <message>
        <source>there is no program here that shows this kind of document (%1)</source>
        <translation>aucun programme ne permet ici d’afficher ce type de document (%1)</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 n’est pas installé</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 ne peut pas lire le document</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>the settings leave no page of the document</source>
        <translation>avec ces réglages, il ne reste aucune page du document</translation>
    </message>
</context>
<context>
    <name>host::PdfSaver</name>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>The PDF file has been written</source>
        <translation>Le fichier PDF a été écrit</translation>
    </message>
</context>
<context>
    <name>host::PdfWriter</name>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>c’est un lien vers un autre fichier</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 ne peut pas lire le document</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 n’est pas installé</translation>
    </message>
    <message>
        <source>The PDF file cannot be created: %1.</source>
        <translation>Le fichier PDF ne peut pas être créé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be converted to PDF: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être converti en fichier PDF&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>host::PresetDialog</name>
    <message>
        <source>Keep &amp;passwords and codes as well</source>
        <translation>Conserver aussi les mots de &amp;passe et les codes</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Other users of this computer may be able to read them in the preset file.</source>
        <translation>Les autres utilisateurs de cet ordinateur pourraient les lire dans le fichier des préréglages.</translation>
    </message>
    <message>
        <source>The preset of this name will be replaced.</source>
        <translation>Le préréglage de ce nom sera remplacé.</translation>
    </message>
    <message>
        <source>There is already a preset of this name.</source>
        <translation>Il y a déjà un préréglage de ce nom.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
</context>
<context>
    <name>host::PresetMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler la modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Printer’s Defaults</source>
        <translation>Valeurs par défaut de l’imprimante</translation>
    </message>
    <message>
        <source>My Defaults</source>
        <translation>Mes valeurs par défaut</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Derniers réglages utilisés</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <comment>the name of settings</comment>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>&amp;Settings: %1</source>
        <translation>Ré&amp;glages&#xa0;: %1</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Enregistrer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Rename “%1”…</source>
        <translation>Renommer «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Use as My &amp;Default for This Printer</source>
        <translation>Utiliser par &amp;défaut pour cette imprimante</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? Other programs use it as well.</source>
        <translation>Supprimer le préréglage «&#xa0;%1&#xa0;»&#xa0;? D’autres programmes l’utilisent aussi.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>host::Preview</name>
    <message>
        <source>the document is read when it is printed</source>
        <translation>le document est lu au moment de l’impression</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 n’est pas installé</translation>
    </message>
    <message>
        <source>the pages cannot be counted</source>
        <translation>les pages ne peuvent pas être comptées</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 ne peut pas lire le document</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 a échoué&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>host::PreviewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>No preview: %1.</source>
        <translation>Pas d’aperçu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This page cannot be shown.</source>
        <translation>Cette page ne peut pas être affichée.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>Feuille %1, recto</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>Feuille %1, verso</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Shown as in the document</source>
        <translation>Affiché comme dans le document</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non imprimée</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>The size relative to the whole page</source>
        <translation>Taille par rapport à la page entière</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>action, keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>magnification</comment>
        <translation>%1×</translation>
    </message>
</context>
<context>
    <name>host::PreviewSheet</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>host::PreviewStrip</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Click the check box to leave this page out</source>
        <translation>Cliquez sur la case à cocher pour exclure cette page</translation>
    </message>
    <message>
        <source>This page is not printed</source>
        <translation>Cette page n’est pas imprimée</translation>
    </message>
</context>
<context>
    <name>host::PrintModePage</name>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Compte&#xa0;:</translation>
    </message>
    <message>
        <source>Account user:</source>
        <translation>Utilisateur du compte&#xa0;:</translation>
    </message>
    <message>
        <source>The printer keeps a job with a password until the password is entered at its control panel. Password and account are sent with the job, and not stored.</source>
        <translation>L’imprimante conserve une tâche avec mot de passe jusqu’à ce que celui-ci soit saisi sur son panneau de commande. Le mot de passe et le compte sont envoyés avec la tâche et ne sont pas enregistrés.</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>Il n’y a pas de page nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>Il n’y a pas de document, ou pas d’imprimante pour l’imprimer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Interrogation du serveur d’impression…</translation>
    </message>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>Ne pl&amp;us attendre</translation>
    </message>
    <message>
        <source>The print server has not responded yet.</source>
        <translation>Le serveur d’impression n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>The document will be printed when the printer has responded.</source>
        <translation>Le document sera imprimé dès que l’imprimante aura répondu.</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or location</source>
        <translation>Rechercher par nom ou emplacement</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Rechercher des imprimantes</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Looking for printers on the network…</source>
        <translation>Recherche d’imprimantes sur le réseau…</translation>
    </message>
    <message>
        <source>&amp;Add Printer…</source>
        <translation>&amp;Ajouter une imprimante…</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>Imp&amp;rimante&#xa0;:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Options d’un fichier PPD&#xa0;; il n’y a pas d’imprimante</translation>
    </message>
    <message>
        <source>The printer settings of the desktop cannot be opened</source>
        <translation>Impossible d’ouvrir les paramètres d’imprimante du bureau</translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>Le document le plus long, «&#xa0;%1&#xa0;», n’a que %n face imprimée.</numerusform>
            <numerusform>Le document le plus long, «&#xa0;%1&#xa0;», n’a que %n faces imprimées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>Le document le plus long, «&#xa0;%1&#xa0;», n’a que %n page.</numerusform>
            <numerusform>Le document le plus long, «&#xa0;%1&#xa0;», n’a que %n pages.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>Il n’y a que %n face imprimée.</numerusform>
            <numerusform>Il n’y a que %n faces imprimées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>Le document n’a que %n page.</numerusform>
            <numerusform>Le document n’a que %n pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ReasonText</name>
    <message>
        <source>The printer is out of paper.</source>
        <translation>L’imprimante n’a plus de papier.</translation>
    </message>
    <message>
        <source>The paper is running low.</source>
        <translation>Il reste peu de papier.</translation>
    </message>
    <message>
        <source>Paper is jammed in the printer.</source>
        <translation>Du papier est coincé dans l’imprimante.</translation>
    </message>
    <message>
        <source>The printer is out of toner.</source>
        <translation>L’imprimante n’a plus de toner.</translation>
    </message>
    <message>
        <source>The toner is running low.</source>
        <translation>Il reste peu de toner.</translation>
    </message>
    <message>
        <source>A cover of the printer is open.</source>
        <translation>Un capot de l’imprimante est ouvert.</translation>
    </message>
    <message>
        <source>A paper tray is missing.</source>
        <translation>Un bac à papier est absent.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Le bac de sortie est plein.</translation>
    </message>
    <message>
        <source>The printer is switched off or not connected.</source>
        <translation>L’imprimante est éteinte ou n’est pas connectée.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>L’imprimante ne répond pas.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Connexion à l’imprimante en cours.</translation>
    </message>
    <message>
        <source>The print server is out of space.</source>
        <translation>Le serveur d’impression n’a plus d’espace disque.</translation>
    </message>
    <message>
        <source>The print server lacks a program for this printer.</source>
        <translation>Il manque au serveur d’impression un programme pour cette imprimante.</translation>
    </message>
    <message>
        <source>The print server does not trust a program for this printer.</source>
        <translation>Le serveur d’impression ne fait pas confiance à un programme de cette imprimante.</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>Envoyé à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Perhaps sent to “%1”</source>
        <translation>Peut-être envoyé à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>A private job is printed once you enter its password at the printer “%1”.</source>
        <translation>Une tâche confidentielle est imprimée dès que vous saisissez son mot de passe sur l’imprimante «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Annuler la &amp;tâche</translation>
    </message>
    <message>
        <source>Print &amp;Again</source>
        <translation>Imprimer à &amp;nouveau</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Suspendre</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Libérer</translation>
    </message>
    <message>
        <source>Pages printed so far: %1</source>
        <translation>Pages imprimées jusqu’ici&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sent before:</source>
        <translation>Envoyées avant&#xa0;:</translation>
    </message>
    <message>
        <source>Pages printed: %1</source>
        <translation>Pages imprimées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Print: %1</source>
        <comment>a time of day, or words such as: at night</comment>
        <translation>Impression&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message>
        <source>Find a setting</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>Type the name of a setting, in your own words or as the printer driver has it. Press Return to go to the setting.</source>
        <translation>Saisissez le nom d’un réglage, avec vos propres mots ou tel qu’il figure dans le pilote de l’imprimante. Appuyez sur Entrée pour y accéder.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Fermer la recherche</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Réglages trouvés</translation>
    </message>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n réglage trouvé</numerusform>
            <numerusform>%n réglages trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes the search. The settings do not change.</source>
        <translation>Ferme la recherche. Les réglages ne changent pas.</translation>
    </message>
    <message>
        <source>The settings that were found, each with its page. Press Return to go to the setting.</source>
        <translation>Les réglages trouvés, chacun avec sa page. Appuyez sur Entrée pour accéder au réglage.</translation>
    </message>
</context>
<context>
    <name>host::SessionMessages</name>
    <message>
        <source>Please note</source>
        <translation>À noter</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Mot de passe manquant</translation>
    </message>
    <message>
        <source>Code missing</source>
        <translation>Code manquant</translation>
    </message>
    <message>
        <source>Use Without Pass&amp;word</source>
        <translation>Utiliser sans &amp;mot de passe</translation>
    </message>
    <message>
        <source>Use &amp;Without Code</source>
        <translation>Utiliser sans &amp;code</translation>
    </message>
    <message>
        <source>Print Without Pass&amp;word</source>
        <translation>Imprimer sans &amp;mot de passe</translation>
    </message>
    <message>
        <source>Print &amp;Without Code</source>
        <translation>Imprimer sans &amp;code</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>&amp;Garder et vérifier</translation>
    </message>
    <message>
        <source>Paper not loaded in the printer</source>
        <translation>Papier non chargé dans l’imprimante</translation>
    </message>
</context>
<context>
    <name>host::SessionPanels</name>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être préparé&#xa0;: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>Les réglages de «&#xa0;%1&#xa0;» n’ont pas pu être enregistrés&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>S&amp;how changes only</source>
        <translation>Afficher uniquement les m&amp;odifications</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <comment>what it was, what it is</comment>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
</context>
<context>
    <name>host::WaitSign</name>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>Ne pl&amp;us attendre</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>host::WaitingPage</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>an amount of data, of the whole</comment>
        <translation>%1 sur %2</translation>
    </message>
</context>
</TS>
