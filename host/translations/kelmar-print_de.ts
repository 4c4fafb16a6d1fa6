<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ArgumentsText</name>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Print to this queue or preset (queue/preset).</source>
        <translation>Auf dieser Warteschlange oder Vorgabe (Warteschlange/Vorgabe) drucken.</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>ANZAHL</translation>
    </message>
    <message>
        <source>Number of copies.</source>
        <translation>Anzahl der Exemplare.</translation>
    </message>
    <message>
        <source>LIST</source>
        <translation>LISTE</translation>
    </message>
    <message>
        <source>Pages to print, for example 1-3,8.</source>
        <translation>Zu druckende Seiten, zum Beispiel 1-3,8.</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>Title of the job.</source>
        <translation>Titel des Auftrags.</translation>
    </message>
    <message>
        <source>HOST</source>
        <translation>RECHNER</translation>
    </message>
    <message>
        <source>Print server to use, HOST or HOST:PORT.</source>
        <translation>Zu benutzender Druckserver, RECHNER oder RECHNER:PORT.</translation>
    </message>
    <message>
        <source>KEY=VALUE</source>
        <translation>SCHLÜSSEL=WERT</translation>
    </message>
    <message>
        <source>Set an option of the printer, or a key of a panel such as departmentCode.</source>
        <translation>Eine Option des Druckers oder einen Schlüssel eines Bereichs wie departmentCode setzen.</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>SCHLÜSSEL=DATEI</translation>
    </message>
    <message>
        <source>The same with the value read from a file&apos;s first line.</source>
        <translation>Dasselbe mit dem Wert aus der ersten Zeile einer Datei.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NAME=WERT</translation>
    </message>
    <message>
        <source>The same; names unknown here are handed to the print system.</source>
        <translation>Dasselbe; hier unbekannte Namen erhält das Drucksystem.</translation>
    </message>
    <message>
        <source>Print without opening a window.</source>
        <translation>Drucken, ohne ein Fenster zu öffnen.</translation>
    </message>
    <message>
        <source>Accept the proposal when settings cannot be used together.</source>
        <translation>Den Vorschlag annehmen, wenn Einstellungen nicht zusammenpassen.</translation>
    </message>
    <message>
        <source>Write the summary of the settings.</source>
        <translation>Die Zusammenfassung der Einstellungen ausgeben.</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>Die Optionen des Druckers und ihre Werte ausgeben.</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>Ergebnisse und Fehler als JSON ausgeben.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Take the options from this PPD file instead of a queue.</source>
        <translation>Die Optionen aus dieser PPD-Datei statt von einer Warteschlange nehmen.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Load the panels of this bundle instead of the installed ones.</source>
        <translation>Die Bereiche dieses Bündels statt der installierten laden.</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, summary, or a panel&apos;s name or kind.</source>
        <translation>Den Dialog mit diesem Bereich öffnen: general, more, summary oder Name oder Art eines Bereichs.</translation>
    </message>
    <message>
        <source>Write a picture of the dialog and exit.</source>
        <translation>Ein Bild des Dialogs schreiben und enden.</translation>
    </message>
    <message>
        <source>Open the dialog, write how long it took and exit.</source>
        <translation>Den Dialog öffnen, die Dauer ausgeben und enden.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Documents to print; “-” is the standard input.</source>
        <translation>Zu druckende Dokumente; „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[DATEI...]</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Die Datei „%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>“%1” is not of the form KEY=VALUE.</source>
        <translation>„%1“ hat nicht die Form SCHLÜSSEL=WERT.</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme nimmt light oder dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch braucht einen Drucker; --ppd allein nennt keinen.</translation>
    </message>
    <message>
        <source>--batch and --screenshot do not go together.</source>
        <translation>--batch und --screenshot passen nicht zusammen.</translation>
    </message>
    <message>
        <source>--resolve goes with --batch or --summary.</source>
        <translation>--resolve gehört zu --batch oder --summary.</translation>
    </message>
    <message>
        <source>--json goes with --batch, --summary or --list-options.</source>
        <translation>--json gehört zu --batch, --summary oder --list-options.</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>Aufruf: kelmar-print [OPTION...] [DATEI...]
Druckt Dokumente, mit einem Dialog für die Einstellungen oder ohne.

</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Farben des Dialogs: light (hell) oder dark (dunkel).</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled. The manual page kelmar-print(1) tells more.
</source>
        <translation>
Rückgabewerte: 0 Erfolg, 1 Fehler, 2 falscher Aufruf, 3 Einstellungen, die nicht zusammenpassen,
4 abgebrochen. Mehr in der Handbuchseite kelmar-print(1).
</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: Dieser Drucker kennt „%2“ nicht.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>„%1“ wurde auf „%2“ zurückgesetzt.</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>„%1“ wurde auf „%2“ geändert.</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Auf „%2“ zurückgesetzt wurden: %1.</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Auf „%2“ geändert wurden: %1.</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>Die Druckerweiterung ist nicht benutzbar: %1</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>„%1“ ist ein Ordner, kein Dokument.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Die Datei „%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>No temporary file can be made: %1.</source>
        <translation>Es lässt sich keine temporäre Datei anlegen: %1.</translation>
    </message>
    <message>
        <source>The temporary file “%1” cannot be written: %2.</source>
        <translation>Die temporäre Datei „%1“ ist nicht beschreibbar: %2.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>Von der Standardeingabe kam nichts.</translation>
    </message>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>wartet: der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>on hold</source>
        <translation>zurückgehalten</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>wird gedruckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>aborted by the print system</source>
        <translation>vom Drucksystem abgebrochen</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>abgebrochen</translation>
    </message>
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>Es gibt keinen Bildschirm für den Dialog. Mit --batch wird ohne ihn gedruckt.</translation>
    </message>
</context>
<context>
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>„%1“ ist weder eine Seite noch ein Seitenbereich; schreiben Sie zum Beispiel 1-3, 8.</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>Es gibt keine PPD-Datei „%1“.</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>Sie dürfen die PPD-Datei „%1“ nicht lesen.</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>Die PPD-Datei „%1“</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>Die PPD von „%1“</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1 ist fehlerhaft: Zeile %2: %3.</translation>
    </message>
</context>
<context>
    <name>PrintErrorText</name>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Es gibt keinen Drucker namens „%1“.</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Es ist kein Drucker eingerichtet.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Der Druckserver %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>Der Drucker „%1“ nimmt zurzeit keine Aufträge an.</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>Sie dürfen auf „%1“ nicht drucken (%2).</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>Der Drucker „%1“ kann Dokumente dieser Art nicht drucken.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>Der Druckserver meldet: %1</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>Es ist kein Standarddrucker eingestellt; wählen Sie einen Drucker mit Namen.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Diese Einstellungen passen nicht zusammen.</translation>
    </message>
    <message>
        <source>Changed to end a conflict: %1</source>
        <translation>Wegen eines Konflikts geändert: %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Schlüssel der Bereiche</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>Anfrage-ID ist %1-%2 (%3 Datei(en))</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Auftrag %1: %2.</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Diese Einstellungen passen nicht zusammen:</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>Vorschlag (mit --resolve angenommen):</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>Anfrage-ID ist %1</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 kennt den Wert „%2“ nicht; möglich sind %3.</translation>
    </message>
    <message>
        <source>%1 takes %2 digits.</source>
        <translation>%1 nimmt %2 Ziffern.</translation>
    </message>
    <message>
        <source>%1 takes %2 characters, not %3.</source>
        <translation>%1 nimmt %2 Zeichen, nicht %3.</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 nimmt diesen Wert nicht an.</translation>
    </message>
    <message>
        <source>%1 does not take this value: %2 has only %3.</source>
        <translation>%1 nimmt diesen Wert nicht an: %2 kennt nur %3.</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Dieser Drucker hat keine Option oder Einstellung namens „%1“.</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies nimmt eine Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 nimmt True oder False.</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 wird nicht mit dem Auftrag gesendet: %2</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>Der Drucker „%1“ nimmt zurzeit keine Aufträge an.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not take documents of the type %3.</source>
        <translation>„%1“ kann nicht gedruckt werden: der Drucker „%2“ nimmt keine Dokumente der Art %3.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Die Datei „%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The print server did not take “%1”.</source>
        <translation>Der Druckserver hat „%1“ nicht übernommen.</translation>
    </message>
    <message>
        <source>The print server took another value for “%1” than was sent.</source>
        <translation>Der Druckserver hat für „%1“ einen anderen Wert übernommen als gesendet.</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Eine Seite der Druckereinstellungen kann nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>„%1“ konnte nicht vorbereitet werden: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>Die Einstellungen von „%1“ konnten nicht gesichert werden: %2</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>host::GeneralPage</name>
    <message>
        <source>C&amp;ollate</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Bereich:</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>E&amp;xemplare:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Print each copy whole before the next one begins</source>
        <translation>Jedes Exemplar vollständig drucken, bevor das nächste beginnt</translation>
    </message>
    <message>
        <source>for example 1-3, 8</source>
        <translation>zum Beispiel 1-3, 8</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>Type which pages are to be printed, or choose all.</source>
        <translation>Geben Sie die zu druckenden Seiten ein, oder wählen Sie alle.</translation>
    </message>
</context>
<context>
    <name>host::MessageBar</name>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>host::MorePage</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
</context>
<context>
    <name>host::OptionForm</name>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Not together with %1</source>
        <translation>Nicht zusammen mit %1</translation>
    </message>
</context>
<context>
    <name>host::PageBook</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Seiten des Dialogs</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>„%1“ drucken</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>Es gibt keinen Bereich namens „%1“.</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Es ist kein Drucker eingerichtet.</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>Es fehlt ein Dokument oder ein Drucker dafür</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>Bitte beachten</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Vorschlag: %1</translation>
    </message>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>&amp;Vorschlag anwenden</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Behalten &amp;und prüfen</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Diese Einstellungen passen nicht zusammen</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Das Dokument wird an den Druckserver gesendet …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Optionen einer PPD-Datei; es gibt keinen Drucker dazu</translation>
    </message>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>Angehalten: Aufträge warten, bis er wieder gestartet wird</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>Gesendet an „%1“</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Auftrag %1: %2</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
</context>
</TS>
