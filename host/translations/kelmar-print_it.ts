<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ArgumentsText</name>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Print to this queue or preset (queue/preset).</source>
        <translation>Stampa su questa coda o preimpostazione (coda/preimpostazione).</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMERO</translation>
    </message>
    <message>
        <source>Number of copies.</source>
        <translation>Numero di copie.</translation>
    </message>
    <message>
        <source>LIST</source>
        <translation>ELENCO</translation>
    </message>
    <message>
        <source>Pages to print, for example 1-3,8.</source>
        <translation>Pagine da stampare, per esempio 1-3,8.</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TESTO</translation>
    </message>
    <message>
        <source>Title of the job.</source>
        <translation>Titolo del lavoro.</translation>
    </message>
    <message>
        <source>HOST</source>
        <translation>HOST</translation>
    </message>
    <message>
        <source>Print server to use, HOST or HOST:PORT.</source>
        <translation>Server di stampa da usare, HOST o HOST:PORTA.</translation>
    </message>
    <message>
        <source>KEY=VALUE</source>
        <translation>CHIAVE=VALORE</translation>
    </message>
    <message>
        <source>Set an option of the printer, or a key of a panel such as departmentCode.</source>
        <translation>Imposta un’opzione della stampante o una chiave di un pannello, come departmentCode.</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>CHIAVE=FILE</translation>
    </message>
    <message>
        <source>Like --set, with the value from the first line of a file; “-” is the standard input.</source>
        <translation>Come --set, con il valore letto dalla prima riga di un file; «-» è lo standard input.</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>CHIAVE</translation>
    </message>
    <message>
        <source>Like --set, with the value asked for on the terminal, which does not show it.</source>
        <translation>Come --set, con il valore chiesto sul terminale, che non lo mostra.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NOME=VALORE</translation>
    </message>
    <message>
        <source>Like --set, but unknown names are passed to the print system as job options.</source>
        <translation>Come --set, ma i nomi sconosciuti vengono passati al sistema di stampa come opzioni del lavoro.</translation>
    </message>
    <message>
        <source>Print without opening a window.</source>
        <translation>Stampa senza aprire finestre.</translation>
    </message>
    <message>
        <source>Accept the proposal when settings cannot be used together.</source>
        <translation>Accetta la proposta quando alcune impostazioni non possono essere usate insieme.</translation>
    </message>
    <message>
        <source>Write the summary of the settings.</source>
        <translation>Scrive il riepilogo delle impostazioni.</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>Scrive le opzioni della stampante e i relativi valori.</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>Scrive i risultati e gli errori in JSON.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Take the options from this PPD file instead of a queue.</source>
        <translation>Prende le opzioni da questo file PPD invece che da una coda.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>CARTELLA</translation>
    </message>
    <message>
        <source>Load the panels of this bundle instead of the installed ones.</source>
        <translation>Carica i pannelli di questo pacchetto invece di quelli installati.</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, job, summary, or a panel&apos;s name or kind.</source>
        <translation>Apre la finestra di dialogo a questa pagina: general, more, job, summary, oppure il nome o il tipo di un pannello.</translation>
    </message>
    <message>
        <source>Save a screenshot of the dialog and exit.</source>
        <translation>Salva un’immagine della finestra di dialogo ed esce.</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Colori della finestra di dialogo: light (chiari) o dark (scuri).</translation>
    </message>
    <message>
        <source>Open the dialog, write the start-up time and exit.</source>
        <translation>Apre la finestra di dialogo, scrive quanto tempo è servito ed esce.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>Documents to print; “-” is the standard input.</source>
        <translation>Documenti da stampare; «-» è lo standard input.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[FILE...]</translation>
    </message>
    <message>
        <source>--ask takes a key alone; the value is asked for.</source>
        <translation>--ask accetta solo una chiave; il valore viene chiesto a parte.</translation>
    </message>
    <message>
        <source>-o takes NAME=VALUE or NAME.</source>
        <translation>-o accetta NOME=VALORE o NOME.</translation>
    </message>
    <message>
        <source>--%1 takes %2; there is no “=” after the key.</source>
        <translation>--%1 accetta %2; manca «=» dopo una chiave.</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme accetta light o dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch richiede una stampante su cui stampare; --ppd da solo non ne indica nessuna.</translation>
    </message>
    <message>
        <source>The standard input cannot be both a value and a document.</source>
        <translation>Lo standard input non può essere allo stesso tempo un valore e un documento.</translation>
    </message>
    <message>
        <source>--batch and --screenshot cannot be used together.</source>
        <translation>--batch e --screenshot non possono essere usati insieme.</translation>
    </message>
    <message>
        <source>Unknown option on the command line; --help lists the options.</source>
        <translation>Opzione sconosciuta sulla riga di comando; --help elenca tutte le opzioni.</translation>
    </message>
    <message>
        <source>Unknown option “%1”; --help lists the options.</source>
        <translation>Opzione sconosciuta «%1»; --help elenca tutte le opzioni.</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>Uso: kelmar-print [OPZIONE...] [FILE...]
Stampa documenti, con o senza una finestra di dialogo per le impostazioni.

</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for details.
</source>
        <translation>
Codici di uscita: 0 successo, 1 errore, 2 uso scorretto, 3 impostazioni che non possono essere usate insieme,
4 annullato, 5 non è noto se il lavoro sia stato accettato. Maggiori informazioni nella pagina di manuale kelmar-print(1).
</translation>
    </message>
    <message>
        <source>With --batch: write the pages into this PDF file instead of printing them.</source>
        <translation>Con --batch: scrive le pagine in questo file PDF invece di stamparle.</translation>
    </message>
    <message>
        <source>Write the presets of the printer.</source>
        <translation>Scrive le preimpostazioni della stampante.</translation>
    </message>
    <message>
        <source>Save the settings as a preset of the printer, without passwords and codes.</source>
        <translation>Conserva le impostazioni come preimpostazione della stampante, senza password né codici.</translation>
    </message>
    <message>
        <source>Delete a preset of the printer.</source>
        <translation>Elimina una preimpostazione della stampante.</translation>
    </message>
    <message>
        <source>--output requires --batch.</source>
        <translation>--output richiede --batch.</translation>
    </message>
    <message>
        <source>Presets belong to a printer; --ppd alone names none.</source>
        <translation>Le preimpostazioni appartengono a una stampante; --ppd da solo non ne indica nessuna.</translation>
    </message>
    <message>
        <source>--resolve requires --batch, --summary or --save-preset.</source>
        <translation>--resolve richiede --batch, --summary o --save-preset.</translation>
    </message>
    <message>
        <source>--json requires --batch, --summary, --list-options or an option for presets.</source>
        <translation>--json richiede --batch, --summary, --list-options o un’opzione per le preimpostazioni.</translation>
    </message>
    <message>
        <source>Print even if a password or a department code is missing.</source>
        <translation>Stampa anche se manca una password o un codice reparto.</translation>
    </message>
    <message>
        <source>--allow-no-password requires --batch.</source>
        <translation>--allow-no-password richiede --batch.</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not accept “%1”.</source>
        <translation>Il server di stampa non ha accettato «%1».</translation>
    </message>
    <message>
        <source>The print server uses a different value for “%1” than the one that was sent.</source>
        <translation>Il server di stampa usa per «%1» un valore diverso da quello inviato.</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>--list-options lists the settings.</source>
        <translation>--list-options elenca le impostazioni.</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Nessuna soluzione mantiene «%1»; modificare una delle impostazioni.</translation>
    </message>
    <message>
        <source>Passwords and codes are not saved in the preset; enter them each time.</source>
        <translation>Le password e i codici non vengono salvati nella preimpostazione; indicarli ogni volta.</translation>
    </message>
    <message>
        <source>Only a part of the code for “%1” has been given.</source>
        <translation>È stata indicata solo una parte del codice per «%1».</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>The password has been removed: the job will not be protected. %1</source>
        <translation>La password è stata rimossa: il lavoro non sarà protetto. %1</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Questa stampante non dispone di «%1»: il lavoro non sarà protetto.</translation>
    </message>
    <message>
        <source>Not available on this printer: %1.</source>
        <translation>Non disponibile su questa stampante: %1.</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>«%1» è stato reimpostato su «%2».</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>«%1» è stato cambiato in «%2».</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Sono stati reimpostati su «%2»: %1.</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Sono stati cambiati in «%2»: %1.</translation>
    </message>
    <message>
        <source>The reason: “%1” is “%2”.</source>
        <translation>Il motivo: «%1» è impostato su «%2».</translation>
    </message>
</context>
<context>
    <name>ChosenText</name>
    <message>
        <source>the code for “%1”</source>
        <translation>il codice per «%1»</translation>
    </message>
    <message>
        <source>settings of “%1”</source>
        <translation>impostazioni di «%1»</translation>
    </message>
</context>
<context>
    <name>ControlText</name>
    <message>
        <source>Not available while “%1” is “%2”.</source>
        <translation>Non disponibile quando «%1» è impostato su «%2».</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>The document cannot be stored in the folder “%1”: %2.</source>
        <translation>Impossibile memorizzare il documento nella cartella «%1»: %2.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Il file «%1» non esiste.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>«%1» è una cartella, non un documento.</translation>
    </message>
    <message>
        <source>“%1” is a device, not a document.</source>
        <translation>«%1» è un dispositivo, non un documento.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Impossibile leggere il file «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>Il file «%1» è vuoto.</translation>
    </message>
    <message>
        <source>The standard input cannot be read: %1.</source>
        <translation>Impossibile leggere lo standard input: %1.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>Dallo standard input non è arrivato nulla.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standard input</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>Nothing was written into “%1”.</source>
        <translation>Non è stato scritto nulla in «%1».</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>The number of copies to print.</source>
        <translation>Il numero di copie da stampare.</translation>
    </message>
    <message>
        <source>Prints each complete copy before the next one, so that the pages need no sorting.</source>
        <translation>Stampa ogni copia per intero prima di iniziare la successiva: le pagine non vanno riordinate.</translation>
    </message>
    <message>
        <source>The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.</source>
        <translation>Le pagine da stampare. Separare le singole pagine e gli intervalli con virgole, per esempio 1-3, 8.</translation>
    </message>
    <message>
        <source>The size of the paper to print on. Paper of this size must be loaded in one of the printer’s trays.</source>
        <translation>Il formato della carta su cui stampare. Uno dei vassoi della stampante deve contenere carta di questo formato.</translation>
    </message>
    <message>
        <source>The type of paper. The printer feeds and heats heavy or coated paper differently.</source>
        <translation>Il tipo di carta. La stampante trascina e riscalda in modo diverso la carta pesante o patinata.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Il vassoio da cui viene prelevata la carta.</translation>
    </message>
    <message>
        <source>Prints on both sides of the paper. Choose the long edge for pages that turn like those of a book, the short edge for pages that turn like those of a wall calendar.</source>
        <translation>Stampa su fronte e retro del foglio. Il lato lungo è per le pagine che si girano come quelle di un libro, il lato corto per quelle che si girano come i fogli di un calendario da parete.</translation>
    </message>
    <message>
        <source>The number of document pages on one side of the paper. The pages are scaled down to fit.</source>
        <translation>Il numero di pagine del documento su una facciata del foglio. Le pagine vengono ridotte quanto serve.</translation>
    </message>
    <message>
        <source>The order in which several pages are arranged on one side.</source>
        <translation>L’ordine in cui più pagine sono disposte su una facciata.</translation>
    </message>
    <message>
        <source>A line around each page on the paper.</source>
        <translation>Una linea intorno a ogni pagina sul foglio.</translation>
    </message>
    <message>
        <source>Prints the pages upright or sideways. “As in the document” keeps the orientation of each page.</source>
        <translation>Stampa le pagine in verticale o in orizzontale. «Come nel documento» mantiene l’orientamento di ogni pagina.</translation>
    </message>
    <message>
        <source>Scales the pages to fit the paper, or keeps their size. At actual size, whatever does not fit on the paper is cut off.</source>
        <translation>Adatta la dimensione delle pagine al foglio oppure la mantiene. A dimensioni reali, ciò che non sta sul foglio viene tagliato.</translation>
    </message>
    <message>
        <source>Enlarges or reduces each page about its center, in percent of its natural size. Whatever does not fit on the page is cut off.</source>
        <translation>Ingrandisce o riduce ogni pagina rispetto al suo centro, in percentuale della dimensione originale. Ciò che non sta sulla pagina viene tagliato.</translation>
    </message>
    <message>
        <source>Prints only every other page, for example to print on both sides by hand: first the odd pages, then the even pages.</source>
        <translation>Stampa solo una pagina su due, per esempio per stampare manualmente fronte e retro: prima le pagine dispari, poi quelle pari.</translation>
    </message>
    <message>
        <source>Prints the last page first, so that the pages are in order when the printer stacks them face up.</source>
        <translation>Stampa per prima l’ultima pagina: le pagine risultano in ordine quando la stampante le impila a faccia in su.</translation>
    </message>
    <message>
        <source>Prints the whole document.</source>
        <translation>Stampa tutto il documento.</translation>
    </message>
    <message>
        <source>Prints only the page that the application shows.</source>
        <translation>Stampa solo la pagina mostrata dall’applicazione.</translation>
    </message>
    <message>
        <source>Prints only what is selected in the application.</source>
        <translation>Stampa solo ciò che è selezionato nell’applicazione.</translation>
    </message>
    <message>
        <source>The files to print, in this order. Clear the check box of a file to leave it out.</source>
        <translation>I file da stampare, in quest’ordine. Per escludere un file, deselezionarne la casella.</translation>
    </message>
    <message>
        <source>Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.</source>
        <translation>Salva le pagine in un file PDF come verrebbero stampate. Alla stampante non viene inviato nulla.</translation>
    </message>
    <message>
        <source>Shows the pages as they will be printed. Select a thumbnail to show its page.</source>
        <translation>Mostra le pagine come verranno stampate. Selezionare una miniatura per vederne la pagina.</translation>
    </message>
    <message>
        <source>A value that you enter yourself. The line below shows what the printer accepts.</source>
        <translation>Un valore da immettere. La riga sotto indica che cosa accetta la stampante.</translation>
    </message>
    <message>
        <source>The printer that the document is sent to. You can search the list by name or location.</source>
        <translation>La stampante a cui viene inviato il documento. Nell’elenco si può cercare per nome o posizione.</translation>
    </message>
    <message>
        <source>Applies a preset, the settings used last or the printer’s defaults, and saves the current settings as a preset.</source>
        <translation>Applica una preimpostazione, le ultime impostazioni usate o quelle della stampante, e salva le impostazioni attuali come preimpostazione.</translation>
    </message>
    <message>
        <source>The pages of this dialog. A diamond marks each page with changed settings.</source>
        <translation>Le pagine di questa finestra di dialogo. Un rombo indica quelle con impostazioni modificate.</translation>
    </message>
    <message>
        <source>Closes this window. Nothing more is sent to the printer.</source>
        <translation>Chiude questa finestra. Alla stampante non viene inviato altro.</translation>
    </message>
    <message>
        <source>Sends the document to the printer with the settings of all pages.</source>
        <translation>Invia il documento alla stampante con le impostazioni di tutte le pagine.</translation>
    </message>
    <message>
        <source>Cancels the job. Pages that are printed already remain in the printer.</source>
        <translation>Annulla il lavoro. Le pagine già stampate restano nella stampante.</translation>
    </message>
    <message>
        <source>Keeps the job at the print server until you release it.</source>
        <translation>Tiene il lavoro in attesa sul server di stampa finché non viene rilasciato.</translation>
    </message>
    <message>
        <source>Sends the same documents again with the same settings.</source>
        <translation>Invia di nuovo gli stessi documenti con le stesse impostazioni.</translation>
    </message>
    <message>
        <source>The name of the preset. Other programs offer the preset under this name as well.</source>
        <translation>Il nome della preimpostazione. Anche altri programmi la offrono con questo nome.</translation>
    </message>
    <message>
        <source>Saves passwords and codes with the preset, so that you need not enter them each time. Do not use this on a computer that you share with others.</source>
        <translation>Salva le password e i codici con la preimpostazione, così non occorre immetterli ogni volta. Da evitare su un computer condiviso con altri.</translation>
    </message>
    <message>
        <source>Saves the settings of all pages as a preset. A preset of the same name is replaced.</source>
        <translation>Salva le impostazioni di tutte le pagine come preimpostazione. Una preimpostazione con lo stesso nome viene sostituita.</translation>
    </message>
    <message>
        <source>Renames the preset, in other programs as well.</source>
        <translation>Rinomina la preimpostazione, anche negli altri programmi.</translation>
    </message>
    <message>
        <source>Deletes the preset, in other programs as well. The current settings do not change.</source>
        <translation>Elimina la preimpostazione, anche negli altri programmi. Le impostazioni attuali non cambiano.</translation>
    </message>
    <message>
        <source>Closes this dialog without changing any preset.</source>
        <translation>Chiude questa finestra di dialogo senza modificare le preimpostazioni.</translation>
    </message>
    <message>
        <source>Your user name on the print server. It may differ from your user name on this computer.</source>
        <translation>Il nome utente sul server di stampa. Può essere diverso da quello su questo computer.</translation>
    </message>
    <message>
        <source>Your password on the print server.</source>
        <translation>La password sul server di stampa.</translation>
    </message>
    <message>
        <source>Logs in to the print server.</source>
        <translation>Esegue l’accesso al server di stampa.</translation>
    </message>
    <message>
        <source>Continues without a password. The print server may then refuse the request.</source>
        <translation>Continua senza password. Il server di stampa può allora rifiutare la richiesta.</translation>
    </message>
    <message>
        <source>Shows only the settings that differ from the printer’s defaults or the preset, with their previous values.</source>
        <translation>Mostra solo le impostazioni diverse da quelle della stampante o della preimpostazione, con i valori precedenti.</translation>
    </message>
    <message>
        <source>Further options of this printer, with the names that its manufacturer gave them.</source>
        <translation>Altre opzioni di questa stampante, con i nomi dati dal produttore.</translation>
    </message>
    <message>
        <source>Stops waiting. Your settings are kept.</source>
        <translation>Interrompe l’attesa. Le impostazioni vengono mantenute.</translation>
    </message>
    <message>
        <source>Asks the printer or the print server again.</source>
        <translation>Interroga di nuovo la stampante o il server di stampa.</translation>
    </message>
    <message>
        <source>Goes back to the settings.</source>
        <translation>Torna alle impostazioni.</translation>
    </message>
    <message>
        <source>Finds a setting on any page by its name.</source>
        <translation>Cerca un’impostazione per nome in tutte le pagine.</translation>
    </message>
    <message>
        <source>Explains the settings of this page.</source>
        <translation>Spiega le impostazioni di questa pagina.</translation>
    </message>
    <message>
        <source>Whether the pages are printed in color or in black and white.</source>
        <translation>Stampa delle pagine a colori o in bianco e nero.</translation>
    </message>
    <message>
        <source>What the job is called at the printer and in lists of jobs.</source>
        <translation>Il nome del lavoro sulla stampante e negli elenchi dei lavori.</translation>
    </message>
    <message>
        <source>When the print server sends the job to the printer. A job that waits for its release is released in the list of jobs.</source>
        <translation>Quando il server di stampa invia il lavoro alla stampante. Un lavoro in attesa di rilascio viene rilasciato nell’elenco dei lavori.</translation>
    </message>
    <message>
        <source>Jobs of a higher priority are printed first.</source>
        <translation>I lavori con priorità più alta vengono stampati per primi.</translation>
    </message>
    <message>
        <source>A sheet with the names of the job and its owner, printed before or after the document.</source>
        <translation>Un foglio con il nome del lavoro e del proprietario, stampato prima o dopo il documento.</translation>
    </message>
    <message>
        <source>A text that is recorded with the job, for example a project or a customer.</source>
        <translation>Un testo registrato con il lavoro, per esempio un progetto o un cliente.</translation>
    </message>
    <message>
        <source>The printer keeps the job until this password is entered at its control panel. It is not stored.</source>
        <translation>La stampante conserva il lavoro finché questa password non viene immessa sul pannello di controllo. Non viene memorizzata.</translation>
    </message>
    <message>
        <source>The account that the printer charges for the job. It is not stored.</source>
        <translation>L’account al quale la stampante addebita il lavoro. Non viene memorizzato.</translation>
    </message>
    <message>
        <source>Your name or number for the account. It is not stored.</source>
        <translation>Il nome o il numero utente per l’account. Non viene memorizzato.</translation>
    </message>
    <message>
        <source>Arranges the pages for sheets that are folded together in the middle: two pages on each side, four on each sheet.</source>
        <translation>Dispone le pagine per fogli piegati insieme a metà: due pagine per facciata, quattro per foglio.</translation>
    </message>
    <message>
        <source>Folds the sheets of a booklet and staples them in the fold.</source>
        <translation>Piega i fogli di un opuscolo e li pinza lungo la piega.</translation>
    </message>
    <message>
        <source>Prints each page reversed from left to right, for example on transfer paper.</source>
        <translation>Stampa ogni pagina invertita da sinistra a destra, per esempio su carta transfer.</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>Impossibile usare l’estensione di stampa: %1</translation>
    </message>
</context>
<context>
    <name>JobSettingText</name>
    <message>
        <source>Now</source>
        <translation>Subito</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante il giorno</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Di sera</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Di notte</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Nel secondo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Nel terzo turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Nel fine settimana</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Dopo il rilascio</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Non classificato</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classificato</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Riservato</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Segreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Segretissimo</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorità</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Copertine</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Dati per l’addebito</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <comment>cover sheets</comment>
        <translation>%1 prima, %2 dopo</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Utente dell’account</translation>
    </message>
    <message>
        <source>%1 takes a number from 1 to %2.</source>
        <translation>%1 accetta un numero da 1 a %2.</translation>
    </message>
    <message>
        <source>%1 takes %2, or a time in UTC such as 20:15.</source>
        <translation>%1 accetta %2 o un’ora UTC, per esempio 20:15.</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>in attesa: la stampante è stata fermata</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>in attesa</translation>
    </message>
    <message>
        <source>on hold</source>
        <translation>trattenuto</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>in stampa</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>fermato</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>aborted by the print system</source>
        <translation>interrotto dal sistema di stampa</translation>
    </message>
    <message>
        <source>done</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>the print server no longer knows it. It may have been printed; look at the printer.</source>
        <translation>il server di stampa non lo conosce più. Forse è stato stampato; guardare alla stampante.</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Left to right, then down</source>
        <translation>Da sinistra a destra, poi verso il basso</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>Da sinistra a destra, poi verso l’alto</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Da destra a sinistra, poi verso il basso</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>Da destra a sinistra, poi verso l’alto</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Verso il basso, poi da sinistra a destra</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Verso il basso, poi da destra a sinistra</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Verso l’alto, poi da sinistra a destra</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Verso l’alto, poi da destra a sinistra</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Linea sottile</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Linea spessa</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Due linee sottili</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Due linee spesse</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Come nel documento</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Landscape, turned around</source>
        <translation>Orizzontale capovolto</translation>
    </message>
    <message>
        <source>Portrait, turned around</source>
        <translation>Verticale capovolto</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Pagine dispari e pari</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo le pagine dispari</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo le pagine pari</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Shrink to the page or cut off</source>
        <translation>Riduci alla pagina o taglia</translation>
    </message>
    <message>
        <source>Shrink to the page</source>
        <translation>Riduci alla pagina</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>Adatta alla pagina</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Riempi la pagina</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True o False</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2</source>
        <translation>numeri interi da %1 a %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Pagine per facciata</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Adattamento</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Odd or even</source>
        <translation>Dispari o pari</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>L’ultima pagina per prima</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Immagine speculare</translation>
    </message>
</context>
<context>
    <name>LoadedText</name>
    <message>
        <source>Nothing is loaded in “%1”.</source>
        <translation>In «%1» non è caricata carta.</translation>
    </message>
    <message>
        <source>“%1” is not loaded in “%2”.</source>
        <translation>«%1» non è caricato in «%2».</translation>
    </message>
    <message>
        <source>“%1” is not loaded in any tray.</source>
        <translation>«%1» non è caricato in nessun vassoio.</translation>
    </message>
    <message>
        <source>“%1” is loaded, but not as “%2”.</source>
        <translation>«%1» è caricato, ma non come «%2».</translation>
    </message>
</context>
<context>
    <name>LoginText</name>
    <message>
        <source>Log In</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Il nome utente o la password non sono stati accettati.</translation>
    </message>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Il server di stampa %1 richiede un nome utente e una password.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nome &amp;utente:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>La password attraverserà la rete senza cifratura.</translation>
    </message>
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>Non c’è alcuno schermo su cui aprire la finestra di dialogo. Usare --batch per stampare senza.</translation>
    </message>
</context>
<context>
    <name>OpenText</name>
    <message>
        <source>No printer has been set up.</source>
        <translation>Non è stata configurata alcuna stampante.</translation>
    </message>
</context>
<context>
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>«%1» non è una pagina né un intervallo di pagine; scrivere per esempio 1-3, 8.</translation>
    </message>
</context>
<context>
    <name>PagesText</name>
    <message>
        <source>Documents reach the printer unchanged. They cannot be scaled.</source>
        <translation>I documenti arrivano alla stampante senza modifiche. Non è possibile ridimensionarli.</translation>
    </message>
    <message>
        <source>%1 Set “%2” to %3.</source>
        <translation>%1 Imposta “%2” su %3.</translation>
    </message>
</context>
<context>
    <name>PanelValueText</name>
    <message>
        <source>takes a whole number from %1 to %2</source>
        <translation>accetta un numero intero da %1 a %2</translation>
    </message>
    <message>
        <source>takes True or False</source>
        <translation>accetta True o False</translation>
    </message>
    <message>
        <source>cannot be set by a text</source>
        <translation>non può essere impostato con un testo</translation>
    </message>
    <message>
        <source>takes %1 digits</source>
        <translation>accetta %1 cifre</translation>
    </message>
    <message>
        <source>takes %1 characters</source>
        <translation>accetta %1 caratteri</translation>
    </message>
    <message>
        <source>does not take this value</source>
        <translation>non accetta questo valore</translation>
    </message>
    <message>
        <source>does not take this value: %1 has only %2</source>
        <translation>non accetta questo valore: %1 ha solo %2</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <comment>a key, and what it takes</comment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
</context>
<context>
    <name>PasswordText</name>
    <message>
        <source>a digit from 0 to 9</source>
        <translation>una cifra da 0 a 9</translation>
    </message>
    <message>
        <source>a letter from A to Z</source>
        <translation>una lettera dalla A alla Z</translation>
    </message>
    <message>
        <source>a letter from A to Z or a digit from 0 to 9</source>
        <translation>una lettera dalla A alla Z o una cifra da 0 a 9</translation>
    </message>
    <message>
        <source>a printable ASCII character</source>
        <translation>un carattere ASCII stampabile</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>una cifra</translation>
    </message>
    <message>
        <source>a letter</source>
        <translation>una lettera</translation>
    </message>
    <message>
        <source>a printable character</source>
        <translation>un carattere stampabile</translation>
    </message>
    <message>
        <source>Character %1 of the password has to be %2.</source>
        <translation>Il carattere %1 della password deve essere %2.</translation>
    </message>
</context>
<context>
    <name>PolicySystemText</name>
    <message>
        <source>The printer “%1” is not offered here. %2</source>
        <translation>La stampante «%1» qui non è disponibile. %2</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”.</source>
        <translation>«%1» deve essere impostato su «%2».</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”, with a code.</source>
        <translation>«%1» deve essere impostato su «%2», con un codice.</translation>
    </message>
    <message>
        <source>The rules in %1 offer none of the printers that have been set up. %2</source>
        <translation>Le regole in %1 non offrono nessuna delle stampanti configurate. %2</translation>
    </message>
    <message>
        <source>“%1” cannot be used, since settings of this printer are fixed.</source>
        <translation>«%1» non può essere usato, perché alcune impostazioni di questa stampante sono fisse.</translation>
    </message>
</context>
<context>
    <name>PolicyText</name>
    <message>
        <source>it is not a JSON object</source>
        <translation>non è un oggetto JSON</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, riga %2, colonna %3: %4</translation>
    </message>
    <message>
        <source>“%1” is not known here; known are %2</source>
        <translation>«%1» qui non è noto; sono noti %2</translation>
    </message>
    <message>
        <source>“%1” takes a list of names</source>
        <translation>«%1» accetta un elenco di nomi</translation>
    </message>
    <message>
        <source>“%1” takes an object of options and choices</source>
        <translation>«%1» accetta un oggetto di opzioni e valori</translation>
    </message>
    <message>
        <source>“%1” takes a choice in quotes</source>
        <translation>«%1» accetta un valore tra virgolette</translation>
    </message>
    <message>
        <source>“contact” takes a text</source>
        <translation>«contact» accetta un testo</translation>
    </message>
    <message>
        <source>“rules” takes a list</source>
        <translation>«rules» accetta un elenco</translation>
    </message>
    <message>
        <source>“rules” takes JSON objects</source>
        <translation>«rules» accetta oggetti JSON</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than 1 MB.</source>
        <translation>%1 è più grande di 1 MB.</translation>
    </message>
    <message>
        <source>The administrator&apos;s rules for printing are not in force, since they cannot be read. Please tell your administrator: %1</source>
        <translation>Le regole di stampa dell’amministratore non sono in vigore perché non è possibile leggerle. Informare l’amministratore: %1</translation>
    </message>
    <message>
        <source>Set by the administrator.</source>
        <translation>Lo ha stabilito l’amministratore.</translation>
    </message>
    <message>
        <source>Set by the administrator (%1).</source>
        <translation>Lo ha stabilito l’amministratore (%1).</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, problem</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, rule %2: %3</source>
        <comment>file, number, problem</comment>
        <translation>%1, regola %2: %3</translation>
    </message>
</context>
<context>
    <name>PortalText</name>
    <message>
        <source>The document of an application cannot be printed.</source>
        <translation>Impossibile stampare il documento di un’applicazione.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>È vuoto.</translation>
    </message>
    <message>
        <source>It is larger than 2 GB.</source>
        <translation>È più grande di 2 GB.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Impossibile leggerlo: %1.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Stampa di «%1»</translation>
    </message>
    <message>
        <source>The document has not been printed on “%1”.</source>
        <translation>Il documento non è stato stampato su «%1».</translation>
    </message>
    <message>
        <source>The document was sent to “%1”, but with different settings.</source>
        <translation>Il documento è stato inviato a «%1», ma con impostazioni diverse.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>It is larger than 256 MB.</source>
        <translation>È più grande di 256 MB.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>The application that opened the print dialog has been closed. Nothing has been printed.</source>
        <translation>L’applicazione che ha aperto la finestra di stampa è stata chiusa. Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>The application has changed it since the print dialog was opened.</source>
        <translation>L’applicazione lo ha modificato dopo l’apertura della finestra di stampa.</translation>
    </message>
</context>
<context>
    <name>PpdCustomText</name>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un numero intero da %1 a %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un numero da %1 a %2</translation>
    </message>
    <message>
        <source>a length from %1 to %2 pt</source>
        <translation>una lunghezza da %1 a %2 pt</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>da %1 a %2 cifre</translation>
    </message>
    <message>
        <source>a password of %1 to %2 characters</source>
        <translation>una password da %1 a %2 caratteri</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un testo da %1 a %2 caratteri</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 accetta %2.</translation>
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
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>Custom (100 × 200 mm)</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>sizes from %1 × %2 to %3 × %4 pt, such as Custom.%5 (units: pt, mm, cm, m, in, ft)</source>
        <translation>dimensioni da %1 × %2 a %3 × %4 pt, come Custom.%5 (unità: pt, mm, cm, m, in, ft)</translation>
    </message>
    <message>
        <source>Custom. followed by %1</source>
        <translation>Custom. e di seguito %1</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 è %2</translation>
    </message>
    <message>
        <source>{%1}, where %2</source>
        <translation>{%1}, dove %2</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1 is too large: more than %2 MB.</source>
        <translation>%1 è troppo grande: più di %2 MB.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>Il file PPD «%1» non esiste.</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>Non si dispone dei permessi per leggere il file PPD «%1».</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>Il file PPD «%1»</translation>
    </message>
    <message>
        <source>There is not enough memory for the PPD of “%1”: %2.</source>
        <translation>Memoria insufficiente per il PPD di «%1»: %2.</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>Il PPD di «%1»</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1 è danneggiato: riga %2: %3.</translation>
    </message>
</context>
<context>
    <name>PpdTexts</name>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Stampa fronte/retro</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivata</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Lato lungo</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Lato corto</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Qualità di stampa</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Bozza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Scala di grigi</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Alimentazione manuale</translation>
    </message>
    <message>
        <source>Bypass Tray</source>
        <translation>Vassoio bypass</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Carta comune</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Carta fotografica lucida</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Busta</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Output Tray</source>
        <translation>Vassoio di uscita</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Lato stampato in basso</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Lato stampato in alto</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinzatura</translation>
    </message>
    <message>
        <source>One, Top Left</source>
        <translation>Uno, in alto a sinistra</translation>
    </message>
    <message>
        <source>One, Bottom Left</source>
        <translation>Uno, in basso a sinistra</translation>
    </message>
    <message>
        <source>Two, Left</source>
        <translation>Due, a sinistra</translation>
    </message>
    <message>
        <source>Two, Top</source>
        <translation>Due, in alto</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforazione</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Piegatura</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>A preset cannot store the value of “%1”: it contains a tab, a line break or another character that cannot be written to the preset file.</source>
        <translation>Una preimpostazione non può conservare il valore di «%1»: contiene una tabulazione, un’interruzione di riga o un altro carattere che non può essere scritto nel suo file.</translation>
    </message>
    <message>
        <source>A preset cannot store this many settings; the limit is %1 bytes.</source>
        <translation>Una preimpostazione non può contenere così tante impostazioni; il limite è di %1 byte.</translation>
    </message>
    <message>
        <source>This printer does not support these settings: %1.</source>
        <translation>Questa stampante non supporta queste impostazioni: %1.</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>Non è stata definita alcuna stampante predefinita; scegliere una stampante per nome.</translation>
    </message>
    <message>
        <source>“%1” opens the print dialog and prints nothing itself; choose another printer.</source>
        <translation>«%1» apre la finestra di dialogo di stampa e da sola non stampa nulla; scegliere un’altra stampante.</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Non c’è alcuna stampante chiamata «%1».</translation>
    </message>
    <message>
        <source>Your own defaults for this printer are not used. %1</source>
        <translation>Le impostazioni predefinite personali per questa stampante non vengono usate. %1</translation>
    </message>
    <message>
        <source>“%1” has no preset called “%2”.</source>
        <translation>«%1» non ha una preimpostazione chiamata «%2».</translation>
    </message>
</context>
<context>
    <name>PrinterText</name>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>Ferma: i lavori attendono che venga riavviata</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Non accetta lavori</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trovata in rete</translation>
    </message>
    <message>
        <source>State not known</source>
        <translation>Stato sconosciuto</translation>
    </message>
    <message>
        <source>%1: level not known</source>
        <comment>a toner</comment>
        <translation>%1: livello sconosciuto</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <comment>a toner and its level</comment>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a tray and the paper in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Reported by the printer at %1</source>
        <translation>Comunicato dalla stampante alle %1</translation>
    </message>
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no password has been given for it.</source>
        <translation>È stato scelto «%1», ma non è stata fornita la password necessaria.</translation>
    </message>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>È stato scelto «%1», ma non è stato fornito il codice necessario.</translation>
    </message>
    <message>
        <source>A password has been given, but not “%1”: the job is not protected.</source>
        <translation>È stata fornita una password, ma non è stato scelto «%1»: il lavoro non è protetto.</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Questa stampante non dispone di «%1»: il lavoro non sarà protetto.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Queste impostazioni non possono essere usate insieme.</translation>
    </message>
    <message>
        <source>The result cannot be written: %1.</source>
        <translation>Impossibile scrivere il risultato: %1.</translation>
    </message>
    <message>
        <source>Changed to resolve a conflict: %1</source>
        <translation>Cambiato per risolvere un conflitto: %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>e %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Chiavi dei pannelli</translation>
    </message>
    <message>
        <source>Give passwords and codes with --ask or --set-file: other users can read the command line.</source>
        <translation>Indicare password e codici con --ask o --set-file: gli altri utenti possono leggere la riga di comando.</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>l’identificativo della richiesta è %1-%2 (%3 file)</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Lavoro %1: %2.</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Queste impostazioni non possono essere usate insieme:</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>Proposta (si accetta con --resolve):</translation>
    </message>
    <message>
        <source>“%1” has been written.</source>
        <translation>«%1» è stato scritto.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>La preimpostazione «%1» è stata eliminata.</translation>
    </message>
    <message>
        <source>The settings have been saved as the preset “%1”.</source>
        <translation>Le impostazioni sono state salvate come preimpostazione «%1».</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a setting and its value</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>The picture “%1” cannot be written.</source>
        <translation>Impossibile scrivere l’immagine «%1».</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>l’identificativo della richiesta è %1</translation>
    </message>
</context>
<context>
    <name>ServerText</name>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Il server di stampa %1 richiede un nome utente e una password.</translation>
    </message>
    <message>
        <source>The printer “%1” requires a user name and a password.</source>
        <translation>La stampante «%1» richiede un nome utente e una password.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Il server di stampa %1 non è raggiungibile.</translation>
    </message>
    <message>
        <source>The print server %1 sent a response that cannot be interpreted.</source>
        <translation>Il server di stampa %1 ha inviato una risposta che non può essere interpretata.</translation>
    </message>
    <message>
        <source>The connection to the print server %1 was lost.</source>
        <translation>La connessione al server di stampa %1 si è interrotta.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this (%2).</source>
        <translation>Il server di stampa %1 non consente questa operazione (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused the request (%2).</source>
        <translation>Il server di stampa %1 ha rifiutato la richiesta (%2).</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Non c’è alcuna stampante chiamata «%1».</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Non è stata configurata alcuna stampante.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>La stampante «%1» al momento non accetta lavori.</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>Non si dispone dei permessi per stampare su «%1» (%2).</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>La stampante «%1» non può stampare documenti di questo tipo.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Il server di stampa segnala: %1</translation>
    </message>
    <message>
        <source>The print server %1 sends a file of more than %2 megabytes.</source>
        <translation>Il server di stampa %1 invia un file di oltre %2 megabyte.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering.</source>
        <translation>Il server di stampa %1 ha smesso di rispondere.</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>A stored setting is not used: %1</source>
        <translation>Un’impostazione salvata non viene usata: %1</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Questa stampante non ha alcuna opzione o impostazione chiamata «%1».</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies accetta un numero da 1 a %1.</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 accetta True o False.</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 accetta %2.</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 non ha il valore «%2»; ha %3.</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 non viene inviato con il lavoro: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be changed here. %2</source>
        <translation>«%1» qui non può essere modificato. %2</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 non accetta questo valore.</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: questa stampante non dispone di «%2».</translation>
    </message>
    <message>
        <source>The printer “%1” does not take %2.</source>
        <translation>La stampante «%1» non accetta %2.</translation>
    </message>
    <message>
        <source>%1 takes at most %2 characters.</source>
        <translation>%1 accetta al massimo %2 caratteri.</translation>
    </message>
    <message>
        <source>“%1” is not available for a booklet, whose sheets are turned on the short edge.</source>
        <translation>“%1” non è possibile per un opuscolo, i cui fogli si girano sul lato corto.</translation>
    </message>
</context>
<context>
    <name>StoreText</name>
    <message>
        <source>The presets in “%1” cannot be read or changed: %2.</source>
        <translation>Impossibile leggere o modificare le preimpostazioni in «%1»: %2.</translation>
    </message>
    <message>
        <source>There is no preset called “%1”.</source>
        <translation>Non c’è alcuna preimpostazione chiamata «%1».</translation>
    </message>
    <message>
        <source>There is already a preset called “%1”.</source>
        <translation>Esiste già una preimpostazione chiamata «%1».</translation>
    </message>
    <message>
        <source>“%1” is available to all users of this computer; only an administrator can change it.</source>
        <translation>«%1» è comune a tutti gli utenti di questo computer; solo un amministratore può modificarla.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Una preimpostazione deve avere un nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Il nome è troppo lungo.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain spaces; use for example “%1”.</source>
        <translation>Il nome di una preimpostazione non può contenere spazi; usare ad esempio «%1».</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain control characters.</source>
        <translation>Il nome di una preimpostazione non può contenere caratteri di controllo.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain any of these characters: / \ # &quot; &apos; =</source>
        <translation>Il nome di una preimpostazione non può contenere nessuno di questi caratteri: / \ # &quot; &apos; =</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Impossibile leggere il file «%1»: %2.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>La stampante «%1» al momento non accetta lavori.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.</source>
        <translation>Impossibile stampare «%1»: la stampante «%2» non accetta documenti di tipo %3.</translation>
    </message>
    <message>
        <source>The unfinished job %1 could not be canceled.</source>
        <translation>Non è stato possibile annullare il lavoro incompleto %1.</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>It is not known whether the job was accepted. It may print; look at the queue before printing again.</source>
        <translation>Non è noto se il lavoro sia stato accettato. Potrebbe essere stampato: controllare la coda prima di stampare di nuovo.</translation>
    </message>
    <message>
        <source>The print server did not report the settings that it accepted.</source>
        <translation>Il server di stampa non ha comunicato le impostazioni che ha accettato.</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation>Non è stato possibile annullare il lavoro %1.</translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation>Una parte potrebbe essere stata stampata.</translation>
    </message>
    <message>
        <source>An unfinished job may have been left at the print server.</source>
        <translation>Un lavoro incompleto può essere rimasto sul server di stampa.</translation>
    </message>
    <message>
        <source>Look at the queue before printing again.</source>
        <translation>Guardi la coda prima di stampare di nuovo.</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Pagina corrente</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modalità di stampa</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
<context>
    <name>TerminalText</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Il nome utente o la password non sono stati accettati.</translation>
    </message>
    <message>
        <source>User name for %1 [%2]: </source>
        <translation>Nome utente per %1 [%2]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Password: </translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>La password attraverserà la rete senza cifratura.</translation>
    </message>
</context>
<context>
    <name>TitleField</name>
    <message>
        <source>Title:</source>
        <translation>Titolo:</translation>
    </message>
</context>
<context>
    <name>ValueSourceText</name>
    <message>
        <source>The value of %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il valore di %1: %2.</translation>
    </message>
    <message>
        <source>its first line is longer than %1 bytes</source>
        <translation>la prima riga è più lunga di %1 byte</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>non ce n’è nessuno</translation>
    </message>
    <message>
        <source>it is not text</source>
        <translation>non è un testo</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; --set-file takes it from a file or, as %1=-, from the standard input</source>
        <translation>non c’è alcun terminale su cui chiederlo; --set-file lo prende da un file oppure, come %1=-, dallo standard input</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>prompt for a value</comment>
        <translation>%1: </translation>
    </message>
</context>
<context>
    <name>host::ChangeMark</name>
    <message>
        <source>Back to What It Was</source>
        <translation>Torna al valore precedente</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Torna a «%1»</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Modificata. %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificata</translation>
    </message>
    <message>
        <source>Changed; it was “%1”</source>
        <translation>Modificata; prima era «%1»</translation>
    </message>
</context>
<context>
    <name>host::ConflictQuestion</name>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>&amp;Applica suggerimento</translation>
    </message>
    <message>
        <source>Use An&amp;yway</source>
        <translation>Usa comun&amp;que</translation>
    </message>
    <message>
        <source>Print An&amp;yway</source>
        <translation>Stampa comun&amp;que</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Mantieni e ri&amp;vedi</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Nessuna soluzione mantiene «%1»; modificare una delle impostazioni.</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Suggerimento: %1</translation>
    </message>
    <message>
        <source>“%1” protects your document. If you print anyway, the printer may print without it.</source>
        <translation>«%1» protegge il documento. Se si stampa comunque, la stampante potrebbe stampare senza questa protezione.</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Queste impostazioni non possono essere usate insieme</translation>
    </message>
    <message>
        <source>“%1” cannot be changed. If you print anyway, the printer may print without it.</source>
        <translation>«%1» non può essere modificata. Se si stampa comunque, la stampante potrebbe stampare senza questa impostazione.</translation>
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
        <translation>pollici</translation>
    </message>
    <message>
        <source>pt</source>
        <comment>points</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unità della dimensione carta</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source> pt</source>
        <comment>points, behind a number</comment>
        <translation> pt</translation>
    </message>
    <message>
        <source>From %1 to %2 %3</source>
        <comment>smallest size, largest size, unit</comment>
        <translation>Da %1 a %2 %3</translation>
    </message>
    <message>
        <source>a length from %1 to %2 %3</source>
        <comment>smallest, largest, unit</comment>
        <translation>una lunghezza da %1 a %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 is out of range; enter %3.</source>
        <comment>setting, value, such as: a number from 1 to 9</comment>
        <translation>%1: %2 non rientra nei limiti; inserire %3.</translation>
    </message>
</context>
<context>
    <name>host::DialogPreview</name>
    <message>
        <source>Preview…</source>
        <translation>Anteprima…</translation>
    </message>
    <message>
        <source>Show the pages in a separate window</source>
        <translation>Mostrare le pagine in una finestra a parte</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>Your defaults for this printer contain choices that it does not have: %1.</source>
        <translation>Le impostazioni predefinite dell’utente per questa stampante contengono valori di cui non dispone: %1.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Impossibile mostrare una pagina delle impostazioni della stampante: %1</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>Alcune impostazioni salvate di «%1» non vengono inviate con il lavoro (%2): %3</translation>
    </message>
    <message>
        <source>“%1” stays “%2”. %3</source>
        <translation>«%1» resta impostato su «%2». %3</translation>
    </message>
</context>
<context>
    <name>host::DocumentBox</name>
    <message>
        <source>Documents to print</source>
        <translation>Documenti da stampare</translation>
    </message>
</context>
<context>
    <name>host::DocumentChoice</name>
    <message>
        <source>Standard input</source>
        <translation>Standard input</translation>
    </message>
</context>
<context>
    <name>host::EarlierJobs</name>
    <message>
        <source>Job %1: %2</source>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>Jobs %1: %2</source>
        <translation>Lavori %1: %2</translation>
    </message>
</context>
<context>
    <name>host::GeneralPage</name>
    <message>
        <source>C&amp;ollate</source>
        <translation>&amp;Fascicola</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tutte</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Intervallo:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copie:</translation>
    </message>
    <message>
        <source>Print each complete copy before the next one</source>
        <translation>Stampare ogni copia per intero prima di iniziare la successiva</translation>
    </message>
    <message>
        <source>for example 1-3, 8</source>
        <translation>per esempio 1-3, 8</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Pagine da stampare</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagine:</translation>
    </message>
    <message>
        <source>Enter the pages to print, or choose all pages.</source>
        <translation>Immettere le pagine da stampare oppure sceglierle tutte.</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Documenti:</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Salva come PDF…</translation>
    </message>
    <message>
        <source>Save the pages to a file instead of printing them</source>
        <translation>Salvare le pagine in un file invece di stamparle</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Pagina corrente</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>The numbers refer to printed sides with %1 pages each.</source>
        <translation>I numeri si riferiscono alle facciate stampate, con %1 pagine ciascuna.</translation>
    </message>
    <message>
        <source>Choose at least one document.</source>
        <translation>Scegliere almeno un documento.</translation>
    </message>
</context>
<context>
    <name>host::GreyedChoices</name>
    <message>
        <source>To use it, other settings have to change:</source>
        <translation>Per usarlo devono cambiare altre impostazioni:</translation>
    </message>
    <message>
        <source>“%1” instead of “%2”</source>
        <comment>an option with its choice, and another choice</comment>
        <translation>«%1» invece di «%2»</translation>
    </message>
    <message>
        <source>This gives up “%1”, which protects your document.</source>
        <translation>In questo modo si rinuncia a «%1», che protegge il documento.</translation>
    </message>
    <message>
        <source>Change and &amp;Use It</source>
        <translation>Cambia e us&amp;a</translation>
    </message>
    <message>
        <source>Give Up Protection and &amp;Use It</source>
        <translation>Rinuncia alla protezione e us&amp;a</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Non cambiare</translation>
    </message>
    <message>
        <source>“%1” conflicts with this choice, and no resolution was found.</source>
        <translation>«%1» è in conflitto con questa scelta e non è stata trovata alcuna soluzione.</translation>
    </message>
    <message>
        <source>“%1” is not available now</source>
        <translation>«%1» ora non è disponibile</translation>
    </message>
    <message>
        <source>“%1” cannot be changed.</source>
        <translation>«%1» non può essere modificata.</translation>
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
        <translation>Cerc&amp;a…</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Cerca un’impostazione</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>Aiuto su questa pagina</translation>
    </message>
</context>
<context>
    <name>host::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Close &amp;Help</source>
        <translation>C&amp;hiudi l’aiuto</translation>
    </message>
</context>
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n foglio</numerusform>
            <numerusform>%n fogli</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n facciata</numerusform>
            <numerusform>%n facciate</numerusform>
        </translation>
    </message>
    <message>
        <source>black and white</source>
        <translation>bianco e nero</translation>
    </message>
    <message>
        <source>color</source>
        <translation>a colori</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>pages of different sizes</source>
        <translation>pagine di dimensioni diverse</translation>
    </message>
</context>
<context>
    <name>host::JobDesk</name>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Invio del documento al server di stampa…</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Annullamento del lavoro…</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>&amp;Annulla la stampa</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lettura del documento…</translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>Priority:</source>
        <translation>Priorità:</translation>
    </message>
    <message>
        <source>Cover sheet before:</source>
        <translation>Copertina iniziale:</translation>
    </message>
    <message>
        <source>Cover sheet after:</source>
        <translation>Copertina finale:</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Stampa:</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>A un’ora stabilita</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Dati per l’addebito:</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La stampa è stata annullata.</translation>
    </message>
</context>
<context>
    <name>host::LayoutForm</name>
    <message>
        <source>Page layout</source>
        <translation>Disposizione delle pagine</translation>
    </message>
    <message>
        <source>Pages per side:</source>
        <translation>Pagine per facciata:</translation>
    </message>
    <message>
        <source>Order:</source>
        <translation>Ordine:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordo:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientamento:</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Adattamento:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Scala:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Dispari o pari:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>L’ultima pagina per prima</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Immagine speculare</translation>
    </message>
    <message>
        <source>Saddle stitching</source>
        <translation>Pinzatura a sella</translation>
    </message>
</context>
<context>
    <name>host::LimitedProcess</name>
    <message>
        <source>it took too long</source>
        <translation>ha impiegato troppo tempo</translation>
    </message>
    <message>
        <source>it ended unexpectedly</source>
        <translation>è terminato in modo imprevisto</translation>
    </message>
    <message>
        <source>it cannot be started: %1</source>
        <translation>non può essere avviato: %1</translation>
    </message>
    <message>
        <source>it wrote too much</source>
        <translation>ha scritto troppi dati</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>il documento è troppo grande</translation>
    </message>
</context>
<context>
    <name>host::LinkLabel</name>
    <message>
        <source>Go to this setting</source>
        <translation>Vai a questa impostazione</translation>
    </message>
</context>
<context>
    <name>host::MessageBar</name>
    <message>
        <source>C&amp;lose</source>
        <translation>Chiu&amp;di</translation>
    </message>
</context>
<context>
    <name>host::OptionForm</name>
    <message>
        <source>%1…</source>
        <comment>Custom, whose values are asked for</comment>
        <translation>%1…</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>host::PageBook</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Altre opzioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>These settings cannot be changed. %1</source>
        <translation>Queste impostazioni non possono essere modificate. %1</translation>
    </message>
    <message>
        <source>Fixed: %1. %2</source>
        <translation>Valori fissi: %1. %2</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modalità di stampa</translation>
    </message>
</context>
<context>
    <name>host::PageCounter</name>
    <message>
        <source>it is damaged, not complete or protected</source>
        <translation>è danneggiato, incompleto o protetto</translation>
    </message>
    <message>
        <source>it needs a password</source>
        <translation>è necessaria una password</translation>
    </message>
    <message>
        <source>its author does not allow it to be printed</source>
        <translation>l’autore non ne consente la stampa</translation>
    </message>
    <message>
        <source>it is damaged or not complete</source>
        <translation>è danneggiato o incompleto</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: %2.</source>
        <translation>Impossibile stampare «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: %2.</source>
        <translation>Impossibile ridimensionare “%1”: %2.</translation>
    </message>
    <message>
        <source>The settings leave no page of any document to print.</source>
        <translation>Con queste impostazioni non resta alcuna pagina dei documenti da stampare.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there is only one printed side.</source>
        <translation>Con queste impostazioni non resta alcuna pagina da stampare: c’è una sola facciata stampata.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only one page.</source>
        <translation>Con queste impostazioni non resta alcuna pagina da stampare: il documento ha una sola pagina.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there are only %1 printed sides.</source>
        <translation>Con queste impostazioni non resta alcuna pagina da stampare: ci sono solo %1 facciate stampate.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only %1 pages.</source>
        <translation>Con queste impostazioni non resta alcuna pagina da stampare: il documento ha solo %1 pagine.</translation>
    </message>
    <message>
        <source>the print server cannot arrange PostScript documents as a booklet</source>
        <translation>il server di stampa non può disporre come opuscolo i documenti PostScript</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Pagine della finestra di dialogo</translation>
    </message>
    <message>
        <source>has changed settings</source>
        <translation>contiene impostazioni modificate</translation>
    </message>
    <message>
        <source>%1: has changed settings</source>
        <comment>a page</comment>
        <translation>%1: contiene impostazioni modificate</translation>
    </message>
</context>
<context>
    <name>host::PageMaker</name>
    <message>
        <source>there is no program here that shows this kind of document (%1)</source>
        <translation>su questo computer non c’è alcun programma che mostri questo tipo di documento (%1)</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 non è installato</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>memoria insufficiente</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 non può leggere il documento</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ha dato errore: %2</translation>
    </message>
    <message>
        <source>the settings leave no page of the document</source>
        <translation>con queste impostazioni non resta alcuna pagina del documento</translation>
    </message>
</context>
<context>
    <name>host::PdfSaver</name>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>The PDF file has been written</source>
        <translation>Il file PDF è stato scritto</translation>
    </message>
</context>
<context>
    <name>host::PdfWriter</name>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossibile scrivere «%1»: %2.</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>è un collegamento a un altro file</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 non può leggere il documento</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 non è installato</translation>
    </message>
    <message>
        <source>The PDF file cannot be created: %1.</source>
        <translation>Impossibile creare il file PDF: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be converted to PDF: %2.</source>
        <translation>Impossibile convertire «%1» in un file PDF: %2.</translation>
    </message>
</context>
<context>
    <name>host::PresetDialog</name>
    <message>
        <source>Keep &amp;passwords and codes as well</source>
        <translation>Conserva anche le &amp;password e i codici</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Rinomina preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nome della preimpostazione:</translation>
    </message>
    <message>
        <source>Other users of this computer may be able to read them in the preset file.</source>
        <translation>Altri utenti di questo computer potrebbero leggerli nel file delle preimpostazioni.</translation>
    </message>
    <message>
        <source>The preset of this name will be replaced.</source>
        <translation>La preimpostazione con questo nome verrà sostituita.</translation>
    </message>
    <message>
        <source>There is already a preset of this name.</source>
        <translation>Esiste già una preimpostazione con questo nome.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
</context>
<context>
    <name>host::PresetMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Valori predefiniti</translation>
    </message>
    <message>
        <source>Printer’s Defaults</source>
        <translation>Valori predefiniti della stampante</translation>
    </message>
    <message>
        <source>My Defaults</source>
        <translation>Valori predefiniti personali</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Ultime usate</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <comment>the name of settings</comment>
        <translation>%1 (con modifiche)</translation>
    </message>
    <message>
        <source>&amp;Settings: %1</source>
        <translation>Im&amp;postazioni: %1</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Salva «%1»</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salva &amp;come…</translation>
    </message>
    <message>
        <source>Rename “%1”…</source>
        <translation>Rinomina «%1»…</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Elimina «%1»…</translation>
    </message>
    <message>
        <source>Use as My &amp;Default for This Printer</source>
        <translation>&amp;Usa come valori predefiniti personali per questa stampante</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? Other programs use it as well.</source>
        <translation>Eliminare la preimpostazione «%1»? Anche altri programmi la usano.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
</context>
<context>
    <name>host::Preview</name>
    <message>
        <source>the document is read when it is printed</source>
        <translation>il documento viene letto al momento della stampa</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 non è installato</translation>
    </message>
    <message>
        <source>the pages cannot be counted</source>
        <translation>impossibile contare le pagine</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 non può leggere il documento</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ha dato errore: %2</translation>
    </message>
</context>
<context>
    <name>host::PreviewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message>
        <source>No preview: %1.</source>
        <translation>Nessuna anteprima: %1.</translation>
    </message>
    <message>
        <source>This page cannot be shown.</source>
        <translation>Impossibile mostrare questa pagina.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>Foglio %1, fronte</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>Foglio %1, retro</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Shown as in the document</source>
        <translation>Mostrata come nel documento</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non stampata</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>The size relative to the whole page</source>
        <translation>Dimensioni rispetto alla pagina intera</translation>
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
        <translation>Anteprima</translation>
    </message>
</context>
<context>
    <name>host::PreviewStrip</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Click the check box to leave this page out</source>
        <translation>Fare clic sulla casella di controllo per escludere questa pagina</translation>
    </message>
    <message>
        <source>This page is not printed</source>
        <translation>Questa pagina non viene stampata</translation>
    </message>
</context>
<context>
    <name>host::PrintModePage</name>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Account:</translation>
    </message>
    <message>
        <source>Account user:</source>
        <translation>Utente dell’account:</translation>
    </message>
    <message>
        <source>The printer keeps a job with a password until the password is entered at its control panel. Password and account are sent with the job, and not stored.</source>
        <translation>La stampante conserva un lavoro con password finché la password non viene immessa sul pannello di controllo. Password e account vengono inviati con il lavoro e non vengono memorizzati.</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>Annu&amp;lla</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Stampa di %1</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>Manca il documento o la stampante su cui stamparlo</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Interrogazione del server di stampa…</translation>
    </message>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>&amp;Non attendere</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>Non c’è alcuna pagina chiamata «%1».</translation>
    </message>
    <message>
        <source>The print server has not responded yet.</source>
        <translation>Il server di stampa non ha ancora risposto.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>The document will be printed when the printer has responded.</source>
        <translation>Il documento verrà stampato non appena la stampante avrà risposto.</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or location</source>
        <translation>Cerca per nome o posizione</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Cerca stampanti</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Looking for printers on the network…</source>
        <translation>Ricerca di stampanti in rete…</translation>
    </message>
    <message>
        <source>&amp;Add Printer…</source>
        <translation>&amp;Aggiungi stampante…</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>Sta&amp;mpante:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Opzioni di un file PPD; non c’è alcuna stampante su cui stampare</translation>
    </message>
    <message>
        <source>The printer settings of the desktop cannot be opened</source>
        <translation>Impossibile aprire le impostazioni delle stampanti del desktop</translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>Il documento più lungo, «%1», ha solo %n facciata stampata.</numerusform>
            <numerusform>Il documento più lungo, «%1», ha solo %n facciate stampate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>Il documento più lungo, «%1», ha solo %n pagina.</numerusform>
            <numerusform>Il documento più lungo, «%1», ha solo %n pagine.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>C’è solo %n facciata stampata.</numerusform>
            <numerusform>Ci sono solo %n facciate stampate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>Il documento ha solo %n pagina.</numerusform>
            <numerusform>Il documento ha solo %n pagine.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ReasonText</name>
    <message>
        <source>The printer is out of paper.</source>
        <translation>La carta nella stampante è esaurita.</translation>
    </message>
    <message>
        <source>The paper is running low.</source>
        <translation>La carta è in esaurimento.</translation>
    </message>
    <message>
        <source>Paper is jammed in the printer.</source>
        <translation>C’è della carta inceppata nella stampante.</translation>
    </message>
    <message>
        <source>The printer is out of toner.</source>
        <translation>Il toner della stampante è esaurito.</translation>
    </message>
    <message>
        <source>The toner is running low.</source>
        <translation>Il toner è in esaurimento.</translation>
    </message>
    <message>
        <source>A cover of the printer is open.</source>
        <translation>Un coperchio della stampante è aperto.</translation>
    </message>
    <message>
        <source>A paper tray is missing.</source>
        <translation>Manca un vassoio della carta.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Il vassoio di uscita è pieno.</translation>
    </message>
    <message>
        <source>The printer is switched off or not connected.</source>
        <translation>La stampante è spenta o non è collegata.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>La stampante non risponde.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Connessione alla stampante in corso.</translation>
    </message>
    <message>
        <source>The print server is out of space.</source>
        <translation>Il server di stampa ha esaurito lo spazio.</translation>
    </message>
    <message>
        <source>The print server lacks a program for this printer.</source>
        <translation>Al server di stampa manca un programma per questa stampante.</translation>
    </message>
    <message>
        <source>The print server does not trust a program for this printer.</source>
        <translation>Il server di stampa non considera attendibile un programma per questa stampante.</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>Inviato a «%1»</translation>
    </message>
    <message>
        <source>Perhaps sent to “%1”</source>
        <translation>Forse inviato a «%1»</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>A private job is printed once you enter its password at the printer “%1”.</source>
        <translation>Un lavoro riservato viene stampato dopo averne immesso la password sulla stampante «%1».</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Annulla il &amp;lavoro</translation>
    </message>
    <message>
        <source>Print &amp;Again</source>
        <translation>Stampa di n&amp;uovo</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Trattieni</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Rilascia</translation>
    </message>
    <message>
        <source>Pages printed so far: %1</source>
        <translation>Pagine stampate finora: %1</translation>
    </message>
    <message>
        <source>Sent before:</source>
        <translation>Inviati prima:</translation>
    </message>
    <message>
        <source>Pages printed: %1</source>
        <translation>Pagine stampate: %1</translation>
    </message>
    <message>
        <source>Print: %1</source>
        <comment>a time of day, or words such as: at night</comment>
        <translation>Stampa: %1</translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message>
        <source>Find a setting</source>
        <translation>Cerca un’impostazione</translation>
    </message>
    <message>
        <source>Type the name of a setting, in your own words or as the printer driver has it. Press Return to go to the setting.</source>
        <translation>Digitare il nome di un’impostazione, con parole proprie o come figura nel driver della stampante. Premere Invio per andare all’impostazione.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Chiudi la ricerca</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Impostazioni trovate</translation>
    </message>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n impostazione trovata</numerusform>
            <numerusform>%n impostazioni trovate</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes the search. The settings do not change.</source>
        <translation>Chiude la ricerca. Le impostazioni non cambiano.</translation>
    </message>
    <message>
        <source>The settings that were found, each with its page. Press Return to go to the setting.</source>
        <translation>Le impostazioni trovate, ognuna con la sua pagina. Premere Invio per andare all’impostazione.</translation>
    </message>
</context>
<context>
    <name>host::SessionMessages</name>
    <message>
        <source>Please note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Password mancante</translation>
    </message>
    <message>
        <source>Code missing</source>
        <translation>Codice mancante</translation>
    </message>
    <message>
        <source>Use Without Pass&amp;word</source>
        <translation>Usa senza pass&amp;word</translation>
    </message>
    <message>
        <source>Use &amp;Without Code</source>
        <translation>Usa senza &amp;codice</translation>
    </message>
    <message>
        <source>Print Without Pass&amp;word</source>
        <translation>Stampa senza pass&amp;word</translation>
    </message>
    <message>
        <source>Print &amp;Without Code</source>
        <translation>Stampa senza &amp;codice</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Mantieni e ri&amp;vedi</translation>
    </message>
    <message>
        <source>Paper not loaded in the printer</source>
        <translation>Carta non caricata nella stampante</translation>
    </message>
</context>
<context>
    <name>host::SessionPanels</name>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>Non è stato possibile preparare «%1»: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>Non è stato possibile salvare le impostazioni di «%1»: %2</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>S&amp;how changes only</source>
        <translation>&amp;Mostra solo le modifiche</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <comment>what it was, what it is</comment>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificato</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Non è stato modificato nulla.</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Riprova</translation>
    </message>
</context>
<context>
    <name>host::WaitSign</name>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>&amp;Non attendere</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
</context>
<context>
    <name>host::WaitingPage</name>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>an amount of data, of the whole</comment>
        <translation>%1 di %2</translation>
    </message>
</context>
</TS>
