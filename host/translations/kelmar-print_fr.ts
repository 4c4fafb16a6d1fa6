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
        <source>The same with the value read from a file&apos;s first line.</source>
        <translation>Idem, la valeur étant lue sur la première ligne d’un fichier.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NOM=VALEUR</translation>
    </message>
    <message>
        <source>The same; names unknown here are handed to the print system.</source>
        <translation>Idem ; les noms inconnus ici sont transmis au système d’impression.</translation>
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
        <translation>Écrire le résumé des réglages.</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>Écrire les options de l’imprimante et leurs choix.</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>Écrire les résultats et les erreurs en JSON.</translation>
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
        <source>Open the dialog at this pane: general, more, summary, or a panel&apos;s name or kind.</source>
        <translation>Ouvrir le dialogue sur ce volet : general, more, summary, ou le nom ou le type d’un panneau.</translation>
    </message>
    <message>
        <source>Write a picture of the dialog and exit.</source>
        <translation>Écrire une image du dialogue et quitter.</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Couleurs du dialogue : light (clair) ou dark (sombre).</translation>
    </message>
    <message>
        <source>Open the dialog, write how long it took and exit.</source>
        <translation>Ouvrir le dialogue, écrire la durée et quitter.</translation>
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
        <translation>Documents à imprimer ; « - » est l’entrée standard.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[FICHIER...]</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Le fichier « %1 » est illisible : %2.</translation>
    </message>
    <message>
        <source>“%1” is not of the form KEY=VALUE.</source>
        <translation>« %1 » n’est pas de la forme CLÉ=VALEUR.</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme accepte light ou dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch demande une imprimante ; --ppd seul n’en désigne aucune.</translation>
    </message>
    <message>
        <source>--batch and --screenshot do not go together.</source>
        <translation>--batch et --screenshot ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>--resolve goes with --batch or --summary.</source>
        <translation>--resolve s’emploie avec --batch ou --summary.</translation>
    </message>
    <message>
        <source>--json goes with --batch, --summary or --list-options.</source>
        <translation>--json s’emploie avec --batch, --summary ou --list-options.</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>Usage : kelmar-print [OPTION...] [FICHIER...]
Imprime des documents, avec ou sans dialogue de réglages.

</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled. The manual page kelmar-print(1) tells more.
</source>
        <translation>
Codes de retour : 0 succès, 1 échec, 2 usage incorrect, 3 réglages incompatibles,
4 annulé. Voir aussi la page de manuel kelmar-print(1).
</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1 : cette imprimante ne connaît pas « %2 ».</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>« %1 » a été réinitialisé à « %2 ».</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>« %1 » est passé à « %2 ».</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Ont été réinitialisés à « %2 » : %1.</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Sont passés à « %2 » : %1.</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>L’extension d’impression est inutilisable : %1</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Il n’y a pas de fichier « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>« %1 » est un dossier, pas un document.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Le fichier « %1 » est illisible : %2.</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>Le fichier « %1 » est vide.</translation>
    </message>
    <message>
        <source>No temporary file can be made: %1.</source>
        <translation>Impossible de créer un fichier temporaire : %1.</translation>
    </message>
    <message>
        <source>The temporary file “%1” cannot be written: %2.</source>
        <translation>Impossible d’écrire le fichier temporaire « %1 » : %2.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>L’entrée standard n’a rien fourni.</translation>
    </message>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>en attente : l’imprimante est arrêtée</translation>
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
        <translation>inconnu</translation>
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
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>« %1 » n’est ni une page ni une plage de pages ; écrivez par exemple 1-3, 8.</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>Il n’y a pas de fichier PPD « %1 ».</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>Vous n’avez pas le droit de lire le fichier PPD « %1 ».</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>Le fichier PPD « %1 »</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>Le PPD de « %1 »</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1 est défectueux : ligne %2 : %3.</translation>
    </message>
</context>
<context>
    <name>PrintErrorText</name>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Il n’y a pas d’imprimante nommée « %1 ».</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Aucune imprimante n’est configurée.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Le serveur d’impression %1 est injoignable.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>L’imprimante « %1 » n’accepte pas de tâches actuellement.</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>Vous n’avez pas le droit d’imprimer sur « %1 » (%2).</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>L’imprimante « %1 » ne peut pas imprimer ce type de documents.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Le serveur d’impression signale : %1</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>Aucune imprimante par défaut n’est définie ; désignez une imprimante par son nom.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Ces réglages sont incompatibles.</translation>
    </message>
    <message>
        <source>Changed to end a conflict: %1</source>
        <translation>Modifié pour résoudre un conflit : %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Clés des panneaux</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>l’identifiant de la requête est %1-%2 (%3 fichier(s))</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Tâche %1 : %2.</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Ces réglages sont incompatibles :</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>Proposition (acceptée avec --resolve) :</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written.</source>
        <translation>L’image « %1 » ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>l’identifiant de la requête est %1</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 n’a pas de choix « %2 » ; il a %3.</translation>
    </message>
    <message>
        <source>%1 takes %2 digits.</source>
        <translation>%1 prend %2 chiffres.</translation>
    </message>
    <message>
        <source>%1 takes %2 characters, not %3.</source>
        <translation>%1 prend %2 caractères, pas %3.</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 n’accepte pas cette valeur.</translation>
    </message>
    <message>
        <source>%1 does not take this value: %2 has only %3.</source>
        <translation>%1 n’accepte pas cette valeur : %2 n’a que %3.</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Cette imprimante n’a pas d’option ni de réglage nommé « %1 ».</translation>
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
        <translation>%1 n’est pas envoyé avec la tâche : %2</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>L’imprimante « %1 » n’accepte pas de tâches actuellement.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not take documents of the type %3.</source>
        <translation>« %1 » ne peut pas être imprimé : l’imprimante « %2 » n’accepte pas les documents de type %3.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Le fichier « %1 » est illisible : %2.</translation>
    </message>
    <message>
        <source>The print server did not take “%1”.</source>
        <translation>Le serveur d’impression n’a pas retenu « %1 ».</translation>
    </message>
    <message>
        <source>The print server took another value for “%1” than was sent.</source>
        <translation>Le serveur d’impression a retenu pour « %1 » une autre valeur que celle envoyée.</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Une page des réglages de l’imprimante ne peut pas être affichée : %1</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>« %1 » n’a pas pu être préparé : %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>Les réglages de « %1 » n’ont pas pu être enregistrés : %2</translation>
    </message>
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
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
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
        <translation>P&amp;lage :</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Print each copy whole before the next one begins</source>
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
        <translation>Pages :</translation>
    </message>
    <message>
        <source>Type which pages are to be printed, or choose all.</source>
        <translation>Saisissez les pages à imprimer, ou choisissez-les toutes.</translation>
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
    <name>host::MorePage</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
</context>
<context>
    <name>host::OptionForm</name>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>Not together with %1</source>
        <translation>Incompatible avec %1</translation>
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
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Pages du dialogue</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <source>Print “%1”</source>
        <translation>Imprimer « %1 »</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>Il n’y a pas de volet nommé « %1 ».</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Aucune imprimante n’est configurée.</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>Il n’y a pas de document, ou pas d’imprimante pour l’imprimer</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>À noter</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Suggestion : %1</translation>
    </message>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>A&amp;ppliquer la suggestion</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>&amp;Garder et vérifier</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Ces réglages sont incompatibles</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrée standard</translation>
    </message>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Envoi du document au serveur d’impression…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Options d’un fichier PPD ; il n’y a pas d’imprimante</translation>
    </message>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>Arrêtée : les tâches attendent sa remise en marche</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>N’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>Envoyé à « %1 »</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1 : %2</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
</context>
</TS>
