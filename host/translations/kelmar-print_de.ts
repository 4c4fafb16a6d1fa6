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
        <translation>Auf dieser Warteschlange oder Voreinstellung (Warteschlange/Voreinstellung) drucken.</translation>
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
        <translation>Eine Option des Druckers oder einen Schlüssel einer Einstellungsseite wie departmentCode setzen.</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>SCHLÜSSEL=DATEI</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NAME=WERT</translation>
    </message>
    <message>
        <source>Like --set, but unknown names are passed to the print system as job options.</source>
        <translation>Wie --set, aber unbekannte Namen werden dem Drucksystem als Auftragsoptionen übergeben.</translation>
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
        <translation>Die Einstellungsseiten dieses Bündels statt der installierten laden.</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, job, summary, or a panel&apos;s name or kind.</source>
        <translation>Den Dialog mit dieser Seite öffnen: general, more, job, summary oder Name oder Art einer Einstellungsseite.</translation>
    </message>
    <message>
        <source>Save a screenshot of the dialog and exit.</source>
        <translation>Ein Bildschirmfoto des Dialogs speichern und beenden.</translation>
    </message>
    <message>
        <source>Open the dialog, write the start-up time and exit.</source>
        <translation>Den Dialog öffnen, die Startzeit ausgeben und beenden.</translation>
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
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme erwartet light oder dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch braucht einen Drucker; --ppd allein nennt keinen.</translation>
    </message>
    <message>
        <source>--batch and --screenshot cannot be used together.</source>
        <translation>--batch und --screenshot können nicht zusammen verwendet werden.</translation>
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
        <source>Like --set, with the value from the first line of a file; “-” is the standard input.</source>
        <translation>Wie --set, mit dem Wert aus der ersten Zeile einer Datei; „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>SCHLÜSSEL</translation>
    </message>
    <message>
        <source>Like --set, with the value asked for on the terminal, which does not show it.</source>
        <translation>Wie --set, mit dem Wert, der im Terminal abgefragt und dort nicht angezeigt wird.</translation>
    </message>
    <message>
        <source>--ask takes a key alone; the value is asked for.</source>
        <translation>--ask erwartet nur einen Schlüssel; der Wert wird abgefragt.</translation>
    </message>
    <message>
        <source>-o takes NAME=VALUE or NAME.</source>
        <translation>-o erwartet NAME=WERT oder NAME.</translation>
    </message>
    <message>
        <source>--%1 takes %2; there is no “=” after the key.</source>
        <translation>--%1 erwartet %2; nach einem Schlüssel fehlt „=“.</translation>
    </message>
    <message>
        <source>The standard input cannot be both a value and a document.</source>
        <translation>Die Standardeingabe kann nicht zugleich ein Wert und ein Dokument sein.</translation>
    </message>
    <message>
        <source>Unknown option on the command line; --help lists the options.</source>
        <translation>Unbekannte Option in der Befehlszeile; --help zeigt alle Optionen.</translation>
    </message>
    <message>
        <source>Unknown option “%1”; --help lists the options.</source>
        <translation>Unbekannte Option „%1“; --help zeigt alle Optionen.</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for details.
</source>
        <translation>
Rückgabewerte: 0 Erfolg, 1 Fehler, 2 falscher Aufruf, 3 Einstellungen, die nicht zusammenpassen,
4 abgebrochen, 5 unbekannt, ob der Auftrag angenommen wurde. Mehr in der Handbuchseite kelmar-print(1).
</translation>
    </message>
    <message>
        <source>With --batch: write the pages into this PDF file instead of printing them.</source>
        <translation>Mit --batch: die Seiten in diese PDF-Datei schreiben, statt sie zu drucken.</translation>
    </message>
    <message>
        <source>Write the presets of the printer.</source>
        <translation>Die Voreinstellungen des Druckers ausgeben.</translation>
    </message>
    <message>
        <source>Save the settings as a preset of the printer, without passwords and codes.</source>
        <translation>Die Einstellungen als Voreinstellung des Druckers speichern, ohne Passwörter und Codes.</translation>
    </message>
    <message>
        <source>Delete a preset of the printer.</source>
        <translation>Eine Voreinstellung des Druckers löschen.</translation>
    </message>
    <message>
        <source>--output requires --batch.</source>
        <translation>--output erfordert --batch.</translation>
    </message>
    <message>
        <source>Presets belong to a printer; --ppd alone names none.</source>
        <translation>Voreinstellungen gehören zu einem Drucker; --ppd allein nennt keinen.</translation>
    </message>
    <message>
        <source>--resolve requires --batch, --summary or --save-preset.</source>
        <translation>--resolve erfordert --batch, --summary oder --save-preset.</translation>
    </message>
    <message>
        <source>--json requires --batch, --summary, --list-options or an option for presets.</source>
        <translation>--json erfordert --batch, --summary, --list-options oder eine Option für Voreinstellungen.</translation>
    </message>
    <message>
        <source>Print even if a password or a department code is missing.</source>
        <translation>Auch drucken, wenn ein Passwort oder ein Abteilungscode fehlt.</translation>
    </message>
    <message>
        <source>--allow-no-password requires --batch.</source>
        <translation>--allow-no-password erfordert --batch.</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not accept “%1”.</source>
        <translation>Der Druckserver hat „%1“ nicht übernommen.</translation>
    </message>
    <message>
        <source>The print server uses a different value for “%1” than the one that was sent.</source>
        <translation>Der Druckserver verwendet für „%1“ einen anderen Wert als den gesendeten.</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>--list-options lists the settings.</source>
        <translation>--list-options zeigt alle Einstellungen.</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Keine Lösung behält „%1“ bei; ändern Sie eine der Einstellungen.</translation>
    </message>
    <message>
        <source>Passwords and codes are not saved in the preset; enter them each time.</source>
        <translation>Passwörter und Codes werden nicht in der Voreinstellung gespeichert; geben Sie sie jedes Mal an.</translation>
    </message>
    <message>
        <source>Only a part of the code for “%1” has been given.</source>
        <translation>Für „%1“ wurde nur ein Teil des Codes angegeben.</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>The password has been removed: the job will not be protected. %1</source>
        <translation>Das Passwort wurde entfernt: Der Auftrag wird nicht geschützt. %1</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Dieser Drucker kennt „%1“ nicht: Der Auftrag wird nicht geschützt.</translation>
    </message>
    <message>
        <source>Not available on this printer: %1.</source>
        <translation>Auf diesem Drucker nicht verfügbar: %1.</translation>
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
    <message>
        <source>The reason: “%1” is “%2”.</source>
        <translation>Der Grund: „%1“ steht auf „%2“.</translation>
    </message>
</context>
<context>
    <name>ChosenText</name>
    <message>
        <source>the code for “%1”</source>
        <translation>der Code für „%1“</translation>
    </message>
    <message>
        <source>settings of “%1”</source>
        <translation>Einstellungen von „%1“</translation>
    </message>
</context>
<context>
    <name>ControlText</name>
    <message>
        <source>Not available while “%1” is “%2”.</source>
        <translation>Nicht verfügbar, solange „%1“ auf „%2“ steht.</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>The document cannot be stored in the folder “%1”: %2.</source>
        <translation>Das Dokument lässt sich nicht im Ordner „%1“ ablegen: %2.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>„%1“ ist ein Ordner, kein Dokument.</translation>
    </message>
    <message>
        <source>“%1” is a device, not a document.</source>
        <translation>„%1“ ist ein Gerät, kein Dokument.</translation>
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
        <source>The standard input cannot be read: %1.</source>
        <translation>Die Standardeingabe ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>Von der Standardeingabe kam nichts.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing was written into “%1”.</source>
        <translation>In „%1“ wurde nichts geschrieben.</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>The number of copies to print.</source>
        <translation>Wie oft das Dokument gedruckt wird.</translation>
    </message>
    <message>
        <source>Prints each complete copy before the next one, so that the pages need no sorting.</source>
        <translation>Druckt jedes Exemplar vollständig, bevor das nächste beginnt. Die Seiten müssen dann nicht sortiert werden.</translation>
    </message>
    <message>
        <source>The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.</source>
        <translation>Die zu druckenden Seiten. Trennen Sie einzelne Seiten und Seitenbereiche durch Kommas, zum Beispiel 1-3, 8.</translation>
    </message>
    <message>
        <source>The size of the paper to print on. Paper of this size must be loaded in one of the printer’s trays.</source>
        <translation>Das Format des Papiers, auf das gedruckt wird. Papier in diesem Format muss in einer der Papierkassetten des Druckers liegen.</translation>
    </message>
    <message>
        <source>The type of paper. The printer feeds and heats heavy or coated paper differently.</source>
        <translation>Die Papiersorte. Schweres oder gestrichenes Papier wird vom Drucker anders eingezogen und erhitzt.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>Die Papierkassette, aus der das Papier genommen wird.</translation>
    </message>
    <message>
        <source>Prints on both sides of the paper. Choose the long edge for pages that turn like those of a book, the short edge for pages that turn like those of a wall calendar.</source>
        <translation>Druckt auf beide Seiten des Papiers. Die lange Kante ist für Seiten, die wie in einem Buch umgeblättert werden, die kurze für Seiten, die wie bei einem Wandkalender umgeblättert werden.</translation>
    </message>
    <message>
        <source>The number of document pages on one side of the paper. The pages are scaled down to fit.</source>
        <translation>Wie viele Seiten des Dokuments auf eine Blattseite kommen. Sie werden passend verkleinert.</translation>
    </message>
    <message>
        <source>The order in which several pages are arranged on one side.</source>
        <translation>Die Reihenfolge, in der mehrere Seiten auf einer Blattseite angeordnet werden.</translation>
    </message>
    <message>
        <source>A line around each page on the paper.</source>
        <translation>Eine Linie um jede Seite auf dem Papier.</translation>
    </message>
    <message>
        <source>Prints the pages upright or sideways. “As in the document” keeps the orientation of each page.</source>
        <translation>Druckt die Seiten im Hoch- oder im Querformat. „Wie im Dokument“ behält die Ausrichtung jeder Seite bei.</translation>
    </message>
    <message>
        <source>Scales the pages to fit the paper, or keeps their size. At actual size, whatever does not fit on the paper is cut off.</source>
        <translation>Passt die Größe der Seiten an das Papier an oder behält sie bei. Was in Originalgröße nicht auf das Papier passt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Enlarges or reduces each page about its center, in percent of its natural size. Whatever does not fit on the page is cut off.</source>
        <translation>Vergrößert oder verkleinert jede Seite von ihrer Mitte aus, in Prozent ihrer eigentlichen Größe. Was nicht auf die Seite passt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>Prints only every other page, for example to print on both sides by hand: first the odd pages, then the even pages.</source>
        <translation>Druckt nur jede zweite Seite, etwa um Papier von Hand beidseitig zu bedrucken: erst die ungeraden Seiten, dann die geraden.</translation>
    </message>
    <message>
        <source>Prints the last page first, so that the pages are in order when the printer stacks them face up.</source>
        <translation>Druckt die letzte Seite zuerst. Die Seiten liegen dann in der richtigen Reihenfolge, wenn der Drucker sie mit der bedruckten Seite nach oben ablegt.</translation>
    </message>
    <message>
        <source>Prints the whole document.</source>
        <translation>Druckt das ganze Dokument.</translation>
    </message>
    <message>
        <source>Prints only the page that the application shows.</source>
        <translation>Druckt nur die Seite, die die Anwendung anzeigt.</translation>
    </message>
    <message>
        <source>Prints only what is selected in the application.</source>
        <translation>Druckt nur, was in der Anwendung ausgewählt ist.</translation>
    </message>
    <message>
        <source>The files to print, in this order. Clear the check box of a file to leave it out.</source>
        <translation>Die zu druckenden Dateien in dieser Reihenfolge. Entfernen Sie das Häkchen bei einer Datei, um sie auszulassen.</translation>
    </message>
    <message>
        <source>Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.</source>
        <translation>Speichert die Seiten so, wie sie gedruckt würden, in einer PDF-Datei. An den Drucker wird nichts gesendet.</translation>
    </message>
    <message>
        <source>Shows the pages as they will be printed. Select a thumbnail to show its page.</source>
        <translation>Zeigt die Seiten so, wie sie gedruckt werden. Wählen Sie eine Miniatur, um die Seite groß anzuzeigen.</translation>
    </message>
    <message>
        <source>A value that you enter yourself. The line below shows what the printer accepts.</source>
        <translation>Ein Wert, den Sie selbst eingeben. Die Zeile darunter zeigt, was der Drucker annimmt.</translation>
    </message>
    <message>
        <source>The printer that the document is sent to. You can search the list by name or location.</source>
        <translation>Der Drucker, an den das Dokument gesendet wird. Die Liste lässt sich nach Name oder Standort durchsuchen.</translation>
    </message>
    <message>
        <source>Applies a preset, the settings used last or the printer’s defaults, and saves the current settings as a preset.</source>
        <translation>Wendet eine Voreinstellung, die zuletzt verwendeten Einstellungen oder den Standard des Druckers an und speichert die aktuellen Einstellungen als Voreinstellung.</translation>
    </message>
    <message>
        <source>The pages of this dialog. A diamond marks each page with changed settings.</source>
        <translation>Die Seiten dieses Dialogs. Eine Raute kennzeichnet Seiten mit geänderten Einstellungen.</translation>
    </message>
    <message>
        <source>Closes this window. Nothing more is sent to the printer.</source>
        <translation>Schließt dieses Fenster. An den Drucker wird nichts mehr gesendet.</translation>
    </message>
    <message>
        <source>Sends the document to the printer with the settings of all pages.</source>
        <translation>Sendet das Dokument mit den Einstellungen aller Seiten an den Drucker.</translation>
    </message>
    <message>
        <source>Cancels the job. Pages that are printed already remain in the printer.</source>
        <translation>Bricht den Auftrag ab. Bereits gedruckte Seiten bleiben im Drucker liegen.</translation>
    </message>
    <message>
        <source>Keeps the job at the print server until you release it.</source>
        <translation>Hält den Auftrag auf dem Druckserver zurück, bis Sie ihn freigeben.</translation>
    </message>
    <message>
        <source>Sends the same documents again with the same settings.</source>
        <translation>Sendet dieselben Dokumente noch einmal mit denselben Einstellungen.</translation>
    </message>
    <message>
        <source>The name of the preset. Other programs offer the preset under this name as well.</source>
        <translation>Der Name der Voreinstellung. Auch andere Programme bieten sie unter diesem Namen an.</translation>
    </message>
    <message>
        <source>Saves passwords and codes with the preset, so that you need not enter them each time. Do not use this on a computer that you share with others.</source>
        <translation>Speichert Passwörter und Codes mit der Voreinstellung, damit Sie sie nicht jedes Mal eingeben müssen. Nicht auf Computern verwenden, die auch andere benutzen.</translation>
    </message>
    <message>
        <source>Saves the settings of all pages as a preset. A preset of the same name is replaced.</source>
        <translation>Speichert die Einstellungen aller Seiten als Voreinstellung. Eine Voreinstellung mit demselben Namen wird ersetzt.</translation>
    </message>
    <message>
        <source>Renames the preset, in other programs as well.</source>
        <translation>Benennt die Voreinstellung um, auch in anderen Programmen.</translation>
    </message>
    <message>
        <source>Deletes the preset, in other programs as well. The current settings do not change.</source>
        <translation>Löscht die Voreinstellung, auch in anderen Programmen. Die aktuellen Einstellungen ändern sich nicht.</translation>
    </message>
    <message>
        <source>Closes this dialog without changing any preset.</source>
        <translation>Schließt diesen Dialog, ohne eine Voreinstellung zu ändern.</translation>
    </message>
    <message>
        <source>Your user name on the print server. It may differ from your user name on this computer.</source>
        <translation>Ihr Benutzername auf dem Druckserver. Er kann anders lauten als Ihr Benutzername auf diesem Computer.</translation>
    </message>
    <message>
        <source>Your password on the print server.</source>
        <translation>Ihr Passwort auf dem Druckserver.</translation>
    </message>
    <message>
        <source>Logs in to the print server.</source>
        <translation>Meldet Sie am Druckserver an.</translation>
    </message>
    <message>
        <source>Continues without a password. The print server may then refuse the request.</source>
        <translation>Fährt ohne Passwort fort. Der Druckserver kann die Anfrage dann ablehnen.</translation>
    </message>
    <message>
        <source>Shows only the settings that differ from the printer’s defaults or the preset, with their previous values.</source>
        <translation>Zeigt nur die Einstellungen, die vom Standard des Druckers oder von der Voreinstellung abweichen, mit ihren vorherigen Werten.</translation>
    </message>
    <message>
        <source>Further options of this printer, with the names that its manufacturer gave them.</source>
        <translation>Weitere Optionen dieses Druckers mit den Bezeichnungen seines Herstellers.</translation>
    </message>
    <message>
        <source>Stops waiting. Your settings are kept.</source>
        <translation>Bricht das Warten ab. Ihre Einstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Asks the printer or the print server again.</source>
        <translation>Fragt den Drucker oder den Druckserver noch einmal ab.</translation>
    </message>
    <message>
        <source>Goes back to the settings.</source>
        <translation>Kehrt zu den Einstellungen zurück.</translation>
    </message>
    <message>
        <source>Finds a setting on any page by its name.</source>
        <translation>Findet eine Einstellung auf allen Seiten anhand ihres Namens.</translation>
    </message>
    <message>
        <source>Explains the settings of this page.</source>
        <translation>Erläutert die Einstellungen dieser Seite.</translation>
    </message>
    <message>
        <source>Whether the pages are printed in color or in black and white.</source>
        <translation>Ob die Seiten in Farbe oder in Schwarzweiß gedruckt werden.</translation>
    </message>
    <message>
        <source>What the job is called at the printer and in lists of jobs.</source>
        <translation>Wie der Auftrag am Drucker und in Auftragslisten heißt.</translation>
    </message>
    <message>
        <source>When the print server sends the job to the printer. A job that waits for its release is released in the list of jobs.</source>
        <translation>Wann der Druckserver den Auftrag an den Drucker sendet. Ein Auftrag, der auf seine Freigabe wartet, wird in der Auftragsliste freigegeben.</translation>
    </message>
    <message>
        <source>Jobs of a higher priority are printed first.</source>
        <translation>Aufträge mit höherer Priorität werden zuerst gedruckt.</translation>
    </message>
    <message>
        <source>A sheet with the names of the job and its owner, printed before or after the document.</source>
        <translation>Ein Blatt mit den Namen des Auftrags und seines Besitzers, das vor oder nach dem Dokument gedruckt wird.</translation>
    </message>
    <message>
        <source>A text that is recorded with the job, for example a project or a customer.</source>
        <translation>Ein Text, der mit dem Auftrag erfasst wird, zum Beispiel ein Projekt oder ein Kunde.</translation>
    </message>
    <message>
        <source>The printer keeps the job until this password is entered at its control panel. It is not stored.</source>
        <translation>Der Drucker behält den Auftrag, bis dieses Passwort am Bedienfeld eingegeben wird. Es wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>The account that the printer charges for the job. It is not stored.</source>
        <translation>Das Konto, das der Drucker mit dem Auftrag belastet. Es wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Your name or number for the account. It is not stored.</source>
        <translation>Ihr Name oder Ihre Nummer für das Konto. Wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Arranges the pages for sheets that are folded together in the middle: two pages on each side, four on each sheet.</source>
        <translation>Ordnet die Seiten für Blätter an, die zusammen in der Mitte gefaltet werden: zwei Seiten auf jeder Blattseite, vier auf jedem Blatt.</translation>
    </message>
    <message>
        <source>Folds the sheets of a booklet and staples them in the fold.</source>
        <translation>Faltet die Blätter einer Broschüre und heftet sie im Falz.</translation>
    </message>
    <message>
        <source>Prints each page reversed from left to right, for example on transfer paper.</source>
        <translation>Druckt jede Seite seitenverkehrt, zum Beispiel auf Transferpapier.</translation>
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
    <name>JobSettingText</name>
    <message>
        <source>Now</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Am Abend</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>In der Nacht</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In der zweiten Schicht</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In der dritten Schicht</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Nach der Freigabe</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Dringend</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nicht eingestuft</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Eingestuft</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Deckblätter</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Abrechnungsinformation</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <comment>cover sheets</comment>
        <translation>%1 davor, %2 danach</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Kontobenutzer</translation>
    </message>
    <message>
        <source>%1 takes a number from 1 to %2.</source>
        <translation>%1 erwartet eine Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>%1 takes %2, or a time in UTC such as 20:15.</source>
        <translation>%1 erwartet %2 oder eine Uhrzeit in UTC wie 20:15.</translation>
    </message>
</context>
<context>
    <name>JobText</name>
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
    <message>
        <source>the print server no longer knows it. It may have been printed; look at the printer.</source>
        <translation>der Druckserver kennt ihn nicht mehr. Er ist vielleicht gedruckt worden; sehen Sie am Drucker nach.</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Left to right, then down</source>
        <translation>Von links nach rechts, dann nach unten</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>Von links nach rechts, dann nach oben</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>Von rechts nach links, dann nach unten</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>Von rechts nach links, dann nach oben</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Nach unten, dann von links nach rechts</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Nach unten, dann von rechts nach links</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Nach oben, dann von links nach rechts</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Nach oben, dann von rechts nach links</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Dünne Linie</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Dicke Linie</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Zwei dünne Linien</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Zwei dicke Linien</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Wie im Dokument</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Landscape, turned around</source>
        <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
        <source>Portrait, turned around</source>
        <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Gerade und ungerade Seiten</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Nur ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Nur gerade Seiten</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Shrink to the page or cut off</source>
        <translation>Auf die Seite verkleinern oder abschneiden</translation>
    </message>
    <message>
        <source>Shrink to the page</source>
        <translation>Auf die Seite verkleinern</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>An die Seite anpassen</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Seite ausfüllen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True oder False</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2</source>
        <translation>ganze Zahlen von %1 bis %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Seiten pro Blattseite</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Odd or even</source>
        <translation>Gerade oder ungerade</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
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
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Spiegelbild</translation>
    </message>
</context>
<context>
    <name>LoadedText</name>
    <message>
        <source>Nothing is loaded in “%1”.</source>
        <translation>In „%1“ ist nichts eingelegt.</translation>
    </message>
    <message>
        <source>“%1” is not loaded in “%2”.</source>
        <translation>„%1“ ist in „%2“ nicht eingelegt.</translation>
    </message>
    <message>
        <source>“%1” is not loaded in any tray.</source>
        <translation>„%1“ ist in keiner Kassette eingelegt.</translation>
    </message>
    <message>
        <source>“%1” is loaded, but not as “%2”.</source>
        <translation>„%1“ ist eingelegt, aber nicht als „%2“.</translation>
    </message>
</context>
<context>
    <name>LoginText</name>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Der Benutzername oder das Passwort wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Der Druckserver %1 verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>Das Passwort wird unverschlüsselt über das Netz übertragen.</translation>
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
    <name>OpenText</name>
    <message>
        <source>No printer has been set up.</source>
        <translation>Es ist kein Drucker eingerichtet.</translation>
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
    <name>PagesText</name>
    <message>
        <source>Documents reach the printer unchanged. They cannot be scaled.</source>
        <translation>Dokumente erreichen den Drucker unverändert. Sie können nicht skaliert werden.</translation>
    </message>
    <message>
        <source>%1 Set “%2” to %3.</source>
        <translation>%1 Stellen Sie „%2“ auf %3.</translation>
    </message>
</context>
<context>
    <name>PanelValueText</name>
    <message>
        <source>takes a whole number from %1 to %2</source>
        <translation>erwartet eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>takes True or False</source>
        <translation>erwartet True oder False</translation>
    </message>
    <message>
        <source>cannot be set by a text</source>
        <translation>lässt sich nicht mit einem Text setzen</translation>
    </message>
    <message>
        <source>takes %1 digits</source>
        <translation>erwartet %1 Ziffern</translation>
    </message>
    <message>
        <source>takes %1 characters</source>
        <translation>erwartet %1 Zeichen</translation>
    </message>
    <message>
        <source>does not take this value</source>
        <translation>nimmt diesen Wert nicht an</translation>
    </message>
    <message>
        <source>does not take this value: %1 has only %2</source>
        <translation>nimmt diesen Wert nicht an: %1 kennt nur %2</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <comment>a key, and what it takes</comment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>PasswordText</name>
    <message>
        <source>a digit from 0 to 9</source>
        <translation>eine Ziffer von 0 bis 9</translation>
    </message>
    <message>
        <source>a letter from A to Z</source>
        <translation>ein Buchstabe von A bis Z</translation>
    </message>
    <message>
        <source>a letter from A to Z or a digit from 0 to 9</source>
        <translation>ein Buchstabe von A bis Z oder eine Ziffer von 0 bis 9</translation>
    </message>
    <message>
        <source>a printable ASCII character</source>
        <translation>ein druckbares ASCII-Zeichen</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>eine Ziffer</translation>
    </message>
    <message>
        <source>a letter</source>
        <translation>ein Buchstabe</translation>
    </message>
    <message>
        <source>a printable character</source>
        <translation>ein druckbares Zeichen</translation>
    </message>
    <message>
        <source>Character %1 of the password has to be %2.</source>
        <translation>Zeichen %1 des Passworts muss %2 sein.</translation>
    </message>
</context>
<context>
    <name>PolicySystemText</name>
    <message>
        <source>The printer “%1” is not offered here. %2</source>
        <translation>Der Drucker „%1“ wird hier nicht angeboten. %2</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”.</source>
        <translation>„%1“ muss auf „%2“ stehen.</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”, with a code.</source>
        <translation>„%1“ muss auf „%2“ stehen, mit einem Code.</translation>
    </message>
    <message>
        <source>The rules in %1 offer none of the printers that have been set up. %2</source>
        <translation>Die Regeln in %1 bieten keinen der eingerichteten Drucker an. %2</translation>
    </message>
    <message>
        <source>“%1” cannot be used, since settings of this printer are fixed.</source>
        <translation>„%1“ kann nicht verwendet werden, da Einstellungen dieses Druckers festgelegt sind.</translation>
    </message>
</context>
<context>
    <name>PolicyText</name>
    <message>
        <source>it is not a JSON object</source>
        <translation>es ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>“%1” is not known here; known are %2</source>
        <translation>„%1“ ist hier nicht bekannt; bekannt sind %2</translation>
    </message>
    <message>
        <source>“%1” takes a list of names</source>
        <translation>„%1“ erwartet eine Liste von Namen</translation>
    </message>
    <message>
        <source>“%1” takes an object of options and choices</source>
        <translation>„%1“ erwartet ein Objekt aus Optionen und Werten</translation>
    </message>
    <message>
        <source>“%1” takes a choice in quotes</source>
        <translation>„%1“ erwartet einen Wert in Anführungszeichen</translation>
    </message>
    <message>
        <source>“contact” takes a text</source>
        <translation>„contact“ erwartet einen Text</translation>
    </message>
    <message>
        <source>“rules” takes a list</source>
        <translation>„rules“ erwartet eine Liste</translation>
    </message>
    <message>
        <source>“rules” takes JSON objects</source>
        <translation>„rules“ erwartet JSON-Objekte</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1 is larger than 1 MB.</source>
        <translation>%1 ist größer als 1 MB.</translation>
    </message>
    <message>
        <source>The administrator&apos;s rules for printing are not in force, since they cannot be read. Please tell your administrator: %1</source>
        <translation>Die Druckregeln der Systemverwaltung gelten nicht, weil sie nicht lesbar sind. Bitte melden Sie Ihrer Systemverwaltung: %1</translation>
    </message>
    <message>
        <source>Set by the administrator.</source>
        <translation>Von der Systemverwaltung festgelegt.</translation>
    </message>
    <message>
        <source>Set by the administrator (%1).</source>
        <translation>Von der Systemverwaltung festgelegt (%1).</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, problem</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, rule %2: %3</source>
        <comment>file, number, problem</comment>
        <translation>%1, Regel %2: %3</translation>
    </message>
</context>
<context>
    <name>PortalText</name>
    <message>
        <source>The document of an application cannot be printed.</source>
        <translation>Das Dokument einer Anwendung kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Es ist leer.</translation>
    </message>
    <message>
        <source>It is larger than 2 GB.</source>
        <translation>Es ist größer als 2 GB.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Es ist nicht lesbar: %1.</translation>
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
        <source>The document has not been printed on “%1”.</source>
        <translation>Das Dokument wurde nicht auf „%1“ gedruckt.</translation>
    </message>
    <message>
        <source>The document was sent to “%1”, but with different settings.</source>
        <translation>Das Dokument wurde an „%1“ gesendet, aber mit anderen Einstellungen.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>It is larger than 256 MB.</source>
        <translation>Es ist größer als 256 MB.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>The application that opened the print dialog has been closed. Nothing has been printed.</source>
        <translation>Die Anwendung, die den Druckdialog geöffnet hat, wurde beendet. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>The application has changed it since the print dialog was opened.</source>
        <translation>Die Anwendung hat es geändert, seit der Druckdialog geöffnet wurde.</translation>
    </message>
</context>
<context>
    <name>PpdCustomText</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a length from %1 to %2 pt</source>
        <translation>eine Länge von %1 bis %2 pt</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>a password of %1 to %2 characters</source>
        <translation>ein Passwort von %1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>%1 bis %2 Zeichen Text</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 erwartet %2.</translation>
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
        <translation>Größen von %1 × %2 bis %3 × %4 pt, etwa Custom.%5 (Einheiten: pt, mm, cm, m, in, ft)</translation>
    </message>
    <message>
        <source>Custom. followed by %1</source>
        <translation>Custom. und dahinter %1</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 steht für %2</translation>
    </message>
    <message>
        <source>{%1}, where %2</source>
        <translation>{%1}, dabei: %2</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
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
    <message>
        <source>%1 is too large: more than %2 MB.</source>
        <translation>%1 ist zu groß: mehr als %2 MB.</translation>
    </message>
    <message>
        <source>There is not enough memory for the PPD of “%1”: %2.</source>
        <translation>Für die PPD von „%1“ reicht der Speicher nicht aus: %2.</translation>
    </message>
</context>
<context>
    <name>PpdTexts</name>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Manuelle Zufuhr</translation>
    </message>
    <message>
        <source>Bypass Tray</source>
        <translation>Mehrzweckeinzug</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Glänzendes Fotopapier</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Briefumschlag</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Output Tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>One, Top Left</source>
        <translation>Einmal, oben links</translation>
    </message>
    <message>
        <source>One, Bottom Left</source>
        <translation>Einmal, unten links</translation>
    </message>
    <message>
        <source>Two, Left</source>
        <translation>Zweimal, links</translation>
    </message>
    <message>
        <source>Two, Top</source>
        <translation>Zweimal, oben</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Endverarbeitung</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>A preset cannot store the value of “%1”: it contains a tab, a line break or another character that cannot be written to the preset file.</source>
        <translation>Eine Voreinstellung kann den Wert von „%1“ nicht speichern: Er enthält einen Tabulator, einen Zeilenumbruch oder ein anderes Zeichen, das sich in ihrer Datei nicht schreiben lässt.</translation>
    </message>
    <message>
        <source>A preset cannot store this many settings; the limit is %1 bytes.</source>
        <translation>So viele Einstellungen kann eine Voreinstellung nicht speichern; die Grenze liegt bei %1 Byte.</translation>
    </message>
    <message>
        <source>This printer does not support these settings: %1.</source>
        <translation>Dieser Drucker unterstützt diese Einstellungen nicht: %1.</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>Es ist kein Standarddrucker eingestellt; wählen Sie einen Drucker mit Namen.</translation>
    </message>
    <message>
        <source>“%1” opens the print dialog and prints nothing itself; choose another printer.</source>
        <translation>„%1“ öffnet den Druckdialog und druckt selbst nichts; wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Es gibt keinen Drucker namens „%1“.</translation>
    </message>
    <message>
        <source>Your own defaults for this printer are not used. %1</source>
        <translation>Ihre eigenen Standardeinstellungen für diesen Drucker werden nicht verwendet. %1</translation>
    </message>
    <message>
        <source>“%1” has no preset called “%2”.</source>
        <translation>„%1“ hat keine Voreinstellung namens „%2“.</translation>
    </message>
</context>
<context>
    <name>PrinterText</name>
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
    <message>
        <source>Found on the network</source>
        <translation>Im Netzwerk gefunden</translation>
    </message>
    <message>
        <source>State not known</source>
        <translation>Zustand nicht bekannt</translation>
    </message>
    <message>
        <source>%1: level not known</source>
        <comment>a toner</comment>
        <translation>%1: Füllstand unbekannt</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <comment>a toner and its level</comment>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a tray and the paper in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Reported by the printer at %1</source>
        <translation>Vom Drucker gemeldet um %1</translation>
    </message>
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no password has been given for it.</source>
        <translation>„%1“ ist gewählt, aber es wurde kein Passwort dafür angegeben.</translation>
    </message>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>„%1“ ist gewählt, aber es wurde kein Code dafür angegeben.</translation>
    </message>
    <message>
        <source>A password has been given, but not “%1”: the job is not protected.</source>
        <translation>Es wurde ein Passwort angegeben, aber „%1“ ist nicht gewählt: Der Auftrag ist nicht geschützt.</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Dieser Drucker kennt „%1“ nicht: Der Auftrag wird nicht geschützt.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Diese Einstellungen passen nicht zusammen.</translation>
    </message>
    <message>
        <source>Changed to resolve a conflict: %1</source>
        <translation>Wegen eines Konflikts geändert: %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Schlüssel der Einstellungsseiten</translation>
    </message>
    <message>
        <source>Give passwords and codes with --ask or --set-file: other users can read the command line.</source>
        <translation>Passwörter und Codes mit --ask oder --set-file angeben: Die Befehlszeile können andere Benutzer lesen.</translation>
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
    <message>
        <source>The result cannot be written: %1.</source>
        <translation>Das Ergebnis kann nicht ausgegeben werden: %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>und %1</translation>
    </message>
    <message>
        <source>“%1” has been written.</source>
        <translation>„%1“ wurde geschrieben.</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Die Voreinstellung „%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>The settings have been saved as the preset “%1”.</source>
        <translation>Die Einstellungen wurden als Voreinstellung „%1“ gespeichert.</translation>
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
        <translation>Das Bild „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>Anfrage-ID ist %1</translation>
    </message>
</context>
<context>
    <name>ServerText</name>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>Der Druckserver %1 verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>The printer “%1” requires a user name and a password.</source>
        <translation>Der Drucker „%1“ verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>Der Druckserver %1 ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The print server %1 sent a response that cannot be interpreted.</source>
        <translation>Die Antwort des Druckservers %1 lässt sich nicht auswerten.</translation>
    </message>
    <message>
        <source>The connection to the print server %1 was lost.</source>
        <translation>Die Verbindung zum Druckserver %1 ist abgebrochen.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this (%2).</source>
        <translation>Der Druckserver %1 erlaubt Ihnen das nicht (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused the request (%2).</source>
        <translation>Der Druckserver %1 hat die Anfrage abgelehnt (%2).</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>Es gibt keinen Drucker namens „%1“.</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>Es ist kein Drucker eingerichtet.</translation>
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
    <message>
        <source>The print server %1 sends a file of more than %2 megabytes.</source>
        <translation>Der Druckserver %1 sendet eine Datei von mehr als %2 Megabyte.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering.</source>
        <translation>Der Druckserver %1 antwortet nicht mehr.</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>A stored setting is not used: %1</source>
        <translation>Eine gesicherte Einstellung wird nicht verwendet: %1</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 kennt den Wert „%2“ nicht; möglich sind %3.</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Dieser Drucker hat keine Option oder Einstellung namens „%1“.</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies erwartet eine Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 erwartet True oder False.</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 wird nicht mit dem Auftrag gesendet: %2</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 erwartet %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed here. %2</source>
        <translation>„%1“ kann hier nicht geändert werden. %2</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 nimmt diesen Wert nicht an.</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: Dieser Drucker kennt „%2“ nicht.</translation>
    </message>
    <message>
        <source>The printer “%1” does not take %2.</source>
        <translation>Der Drucker „%1“ nimmt %2 nicht an.</translation>
    </message>
    <message>
        <source>%1 takes at most %2 characters.</source>
        <translation>%1 nimmt höchstens %2 Zeichen an.</translation>
    </message>
    <message>
        <source>“%1” is not available for a booklet, whose sheets are turned on the short edge.</source>
        <translation>„%1“ ist für eine Broschüre nicht möglich, denn ihre Blätter werden an der kurzen Kante gewendet.</translation>
    </message>
</context>
<context>
    <name>StoreText</name>
    <message>
        <source>The presets in “%1” cannot be read or changed: %2.</source>
        <translation>Die Voreinstellungen in „%1“ können nicht gelesen oder geändert werden: %2.</translation>
    </message>
    <message>
        <source>There is no preset called “%1”.</source>
        <translation>Es gibt keine Voreinstellung namens „%1“.</translation>
    </message>
    <message>
        <source>There is already a preset called “%1”.</source>
        <translation>Es gibt bereits eine Voreinstellung namens „%1“.</translation>
    </message>
    <message>
        <source>“%1” is available to all users of this computer; only an administrator can change it.</source>
        <translation>„%1“ gilt für alle Benutzer dieses Computers; nur die Systemverwaltung kann diese Voreinstellung ändern.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain spaces; use for example “%1”.</source>
        <translation>Der Name einer Voreinstellung darf keine Leerzeichen enthalten; verwenden Sie zum Beispiel „%1“.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain control characters.</source>
        <translation>Der Name einer Voreinstellung darf keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain any of these characters: / \ # &quot; &apos; =</source>
        <translation>Der Name einer Voreinstellung darf keines dieser Zeichen enthalten: / \ # &quot; &apos; =</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>Der Drucker „%1“ nimmt zurzeit keine Aufträge an.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.</source>
        <translation>„%1“ kann nicht gedruckt werden: Der Drucker „%2“ nimmt keine Dokumente der Art %3 an.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>Die Datei „%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The unfinished job %1 could not be canceled.</source>
        <translation>Der unfertige Auftrag %1 konnte nicht abgebrochen werden.</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>It is not known whether the job was accepted. It may print; look at the queue before printing again.</source>
        <translation>Es ist nicht bekannt, ob der Auftrag angenommen wurde. Möglicherweise wird er gedruckt; sehen Sie in der Warteschlange nach, bevor Sie erneut drucken.</translation>
    </message>
    <message>
        <source>The print server did not report the settings that it accepted.</source>
        <translation>Der Druckserver hat nicht gemeldet, welche Einstellungen er übernommen hat.</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation>Der Auftrag %1 konnte nicht abgebrochen werden.</translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation>Ein Teil wurde möglicherweise gedruckt.</translation>
    </message>
    <message>
        <source>An unfinished job may have been left at the print server.</source>
        <translation>Auf dem Druckserver kann ein unfertiger Auftrag zurückgeblieben sein.</translation>
    </message>
    <message>
        <source>Look at the queue before printing again.</source>
        <translation>Sehen Sie in der Warteschlange nach, bevor Sie erneut drucken.</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
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
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Druckmodus</translation>
    </message>
</context>
<context>
    <name>TaskText</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>TerminalText</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Der Benutzername oder das Passwort wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>User name for %1 [%2]: </source>
        <translation>Benutzername für %1 [%2]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>Das Passwort wird unverschlüsselt über das Netz übertragen.</translation>
    </message>
</context>
<context>
    <name>TitleField</name>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
</context>
<context>
    <name>ValueSourceText</name>
    <message>
        <source>The value of %1 cannot be read: %2.</source>
        <translation>Der Wert von %1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>its first line is longer than %1 bytes</source>
        <translation>die erste Zeile ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>es gibt keinen</translation>
    </message>
    <message>
        <source>it is not text</source>
        <translation>er ist kein Text</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; --set-file takes it from a file or, as %1=-, from the standard input</source>
        <translation>es gibt kein Terminal für die Abfrage; --set-file nimmt ihn aus einer Datei oder, als %1=-, von der Standardeingabe</translation>
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
        <translation>Auf vorherigen Wert zurücksetzen</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Auf „%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Changed; it was “%1”</source>
        <translation>Geändert; vorher „%1“</translation>
    </message>
</context>
<context>
    <name>host::ConflictQuestion</name>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>&amp;Vorschlag anwenden</translation>
    </message>
    <message>
        <source>Use An&amp;yway</source>
        <translation>&amp;Trotzdem verwenden</translation>
    </message>
    <message>
        <source>Print An&amp;yway</source>
        <translation>&amp;Trotzdem drucken</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Behalten &amp;und prüfen</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Keine Lösung behält „%1“ bei; ändern Sie eine der Einstellungen.</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Vorschlag: %1</translation>
    </message>
    <message>
        <source>“%1” protects your document. If you print anyway, the printer may print without it.</source>
        <translation>„%1“ schützt Ihr Dokument. Wenn Sie trotzdem drucken, druckt der Drucker möglicherweise ohne diesen Schutz.</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Diese Einstellungen passen nicht zusammen</translation>
    </message>
    <message>
        <source>“%1” cannot be changed. If you print anyway, the printer may print without it.</source>
        <translation>„%1“ kann nicht geändert werden. Wenn Sie trotzdem drucken, druckt der Drucker möglicherweise ohne diese Einstellung.</translation>
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
        <translation>Zoll</translation>
    </message>
    <message>
        <source>pt</source>
        <comment>points</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Einheit des Papierformats</translation>
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
        <translation>Von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>a length from %1 to %2 %3</source>
        <comment>smallest, largest, unit</comment>
        <translation>eine Länge von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 is out of range; enter %3.</source>
        <comment>setting, value, such as: a number from 1 to 9</comment>
        <translation>%1: %2 liegt außerhalb des zulässigen Bereichs. Geben Sie %3 ein.</translation>
    </message>
</context>
<context>
    <name>host::DialogPreview</name>
    <message>
        <source>Preview…</source>
        <translation>Vorschau …</translation>
    </message>
    <message>
        <source>Show the pages in a separate window</source>
        <translation>Die Seiten in einem separaten Fenster anzeigen</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>Eine Seite der Druckereinstellungen kann nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>Your defaults for this printer contain choices that it does not have: %1.</source>
        <translation>Ihre Standardeinstellungen für diesen Drucker enthalten Werte, die er nicht hat: %1.</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>Gesicherte Einstellungen von „%1“ werden nicht mit dem Auftrag gesendet (%2): %3</translation>
    </message>
    <message>
        <source>“%1” stays “%2”. %3</source>
        <translation>„%1“ bleibt auf „%2“. %3</translation>
    </message>
</context>
<context>
    <name>host::DocumentBox</name>
    <message>
        <source>Documents to print</source>
        <translation>Zu druckende Dokumente</translation>
    </message>
</context>
<context>
    <name>host::DocumentChoice</name>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
</context>
<context>
    <name>host::EarlierJobs</name>
    <message>
        <source>Job %1: %2</source>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>Jobs %1: %2</source>
        <translation>Aufträge %1: %2</translation>
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
        <source>&amp;Copies:</source>
        <translation>E&amp;xemplare:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Print each complete copy before the next one</source>
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
        <source>Enter the pages to print, or choose all pages.</source>
        <translation>Geben Sie die zu druckenden Seiten ein oder wählen Sie alle Seiten.</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Dokumente:</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern …</translation>
    </message>
    <message>
        <source>Save the pages to a file instead of printing them</source>
        <translation>Die Seiten in einer Datei speichern, statt sie zu drucken</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>The numbers refer to printed sides with %1 pages each.</source>
        <translation>Die Nummern beziehen sich auf Blattseiten mit je %1 Seiten.</translation>
    </message>
    <message>
        <source>Choose at least one document.</source>
        <translation>Wählen Sie mindestens ein Dokument.</translation>
    </message>
</context>
<context>
    <name>host::GreyedChoices</name>
    <message>
        <source>To use it, other settings have to change:</source>
        <translation>Dafür müssen andere Einstellungen geändert werden:</translation>
    </message>
    <message>
        <source>“%1” instead of “%2”</source>
        <comment>an option with its choice, and another choice</comment>
        <translation>„%1“ statt „%2“</translation>
    </message>
    <message>
        <source>This gives up “%1”, which protects your document.</source>
        <translation>Dadurch entfällt „%1“ und damit dieser Schutz Ihres Dokuments.</translation>
    </message>
    <message>
        <source>Change and &amp;Use It</source>
        <translation>Ändern und &amp;verwenden</translation>
    </message>
    <message>
        <source>Give Up Protection and &amp;Use It</source>
        <translation>Auf Schutz verzichten und &amp;verwenden</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>Unveränder&amp;t lassen</translation>
    </message>
    <message>
        <source>“%1” conflicts with this choice, and no resolution was found.</source>
        <translation>„%1“ steht mit dieser Auswahl in Konflikt, und es wurde keine Lösung gefunden.</translation>
    </message>
    <message>
        <source>“%1” is not available now</source>
        <translation>„%1“ ist jetzt nicht verfügbar</translation>
    </message>
    <message>
        <source>“%1” cannot be changed.</source>
        <translation>„%1“ kann nicht geändert werden.</translation>
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
        <translation>S&amp;uchen …</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Eine Einstellung suchen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>Hilfe zu dieser Seite</translation>
    </message>
</context>
<context>
    <name>host::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Close &amp;Help</source>
        <translation>&amp;Hilfe schließen</translation>
    </message>
</context>
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blatt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n Blattseite</numerusform>
            <numerusform>%n Blattseiten</numerusform>
        </translation>
    </message>
    <message>
        <source>black and white</source>
        <translation>schwarzweiß</translation>
    </message>
    <message>
        <source>color</source>
        <translation>farbig</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>pages of different sizes</source>
        <translation>Seiten unterschiedlicher Größe</translation>
    </message>
</context>
<context>
    <name>host::JobDesk</name>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Das Dokument wird an den Druckserver gesendet …</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Der Auftrag wird abgebrochen …</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>Druck &amp;abbrechen</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Das Dokument wird gelesen …</translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>Priority:</source>
        <translation>Priorität:</translation>
    </message>
    <message>
        <source>Cover sheet before:</source>
        <translation>Deckblatt davor:</translation>
    </message>
    <message>
        <source>Cover sheet after:</source>
        <translation>Deckblatt danach:</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Drucken:</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Abrechnungsinformation:</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>Das Drucken wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>host::LayoutForm</name>
    <message>
        <source>Page layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Pages per side:</source>
        <translation>Seiten pro Blattseite:</translation>
    </message>
    <message>
        <source>Order:</source>
        <translation>Reihenfolge:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Skalierung:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Maßstab:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Gerade oder ungerade:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Spiegelbild</translation>
    </message>
    <message>
        <source>Saddle stitching</source>
        <translation>Rückenheftung</translation>
    </message>
</context>
<context>
    <name>host::LimitedProcess</name>
    <message>
        <source>it took too long</source>
        <translation>es dauerte zu lange</translation>
    </message>
    <message>
        <source>it ended unexpectedly</source>
        <translation>das Programm wurde unerwartet beendet</translation>
    </message>
    <message>
        <source>it cannot be started: %1</source>
        <translation>das Programm kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>it wrote too much</source>
        <translation>das Programm hat zu viel ausgegeben</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>das Dokument ist zu groß</translation>
    </message>
</context>
<context>
    <name>host::LinkLabel</name>
    <message>
        <source>Go to this setting</source>
        <translation>Zu dieser Einstellung gehen</translation>
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
    <name>host::OptionForm</name>
    <message>
        <source>%1:</source>
        <comment>label of a field</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1…</source>
        <comment>Custom, whose values are asked for</comment>
        <translation>%1 …</translation>
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
    <message>
        <source>These settings cannot be changed. %1</source>
        <translation>Diese Einstellungen können nicht geändert werden. %1</translation>
    </message>
    <message>
        <source>Fixed: %1. %2</source>
        <translation>Nicht änderbar: %1. %2</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Druckmodus</translation>
    </message>
</context>
<context>
    <name>host::PageCounter</name>
    <message>
        <source>it is damaged, not complete or protected</source>
        <translation>es ist beschädigt, unvollständig oder geschützt</translation>
    </message>
    <message>
        <source>it needs a password</source>
        <translation>es erfordert ein Passwort</translation>
    </message>
    <message>
        <source>its author does not allow it to be printed</source>
        <translation>der Verfasser lässt das Drucken nicht zu</translation>
    </message>
    <message>
        <source>it is damaged or not complete</source>
        <translation>es ist beschädigt oder unvollständig</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: %2.</source>
        <translation>„%1“ kann nicht gedruckt werden: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: %2.</source>
        <translation>„%1“ kann nicht skaliert werden: %2.</translation>
    </message>
    <message>
        <source>The settings leave no page of any document to print.</source>
        <translation>Mit diesen Einstellungen wird keine Seite der Dokumente gedruckt.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there is only one printed side.</source>
        <translation>Mit diesen Einstellungen wird keine Seite gedruckt: Es gibt nur eine bedruckte Seite.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only one page.</source>
        <translation>Mit diesen Einstellungen wird keine Seite gedruckt: Das Dokument hat nur eine Seite.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there are only %1 printed sides.</source>
        <translation>Mit diesen Einstellungen wird keine Seite gedruckt: Es gibt nur %1 bedruckte Seiten.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only %1 pages.</source>
        <translation>Mit diesen Einstellungen wird keine Seite gedruckt: Das Dokument hat nur %1 Seiten.</translation>
    </message>
    <message>
        <source>the print server cannot arrange PostScript documents as a booklet</source>
        <translation>der Druckserver kann PostScript-Dokumente nicht als Broschüre anordnen</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Seiten des Dialogs</translation>
    </message>
    <message>
        <source>has changed settings</source>
        <translation>enthält geänderte Einstellungen</translation>
    </message>
    <message>
        <source>%1: has changed settings</source>
        <comment>a page</comment>
        <translation>%1: enthält geänderte Einstellungen</translation>
    </message>
</context>
<context>
    <name>host::PageMaker</name>
    <message>
        <source>there is no program here that shows this kind of document (%1)</source>
        <translation>hier gibt es kein Programm, das diese Art von Dokument anzeigt (%1)</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>es ist nicht genug Speicher vorhanden</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 kann das Dokument nicht lesen</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>the settings leave no page of the document</source>
        <translation>mit diesen Einstellungen wird keine Seite des Dokuments gedruckt</translation>
    </message>
</context>
<context>
    <name>host::PdfSaver</name>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>The PDF file has been written</source>
        <translation>Die PDF-Datei wurde geschrieben</translation>
    </message>
</context>
<context>
    <name>host::PdfWriter</name>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>es ist eine Verknüpfung mit einer anderen Datei</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 kann das Dokument nicht lesen</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <source>The PDF file cannot be created: %1.</source>
        <translation>Die PDF-Datei kann nicht erstellt werden: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be converted to PDF: %2.</source>
        <translation>Aus „%1“ kann keine PDF-Datei erstellt werden: %2.</translation>
    </message>
</context>
<context>
    <name>host::PresetDialog</name>
    <message>
        <source>Keep &amp;passwords and codes as well</source>
        <translation>Auch &amp;Passwörter und Codes speichern</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Name der Voreinstellung:</translation>
    </message>
    <message>
        <source>Other users of this computer may be able to read them in the preset file.</source>
        <translation>Andere Benutzer dieses Computers können sie möglicherweise in der Datei der Voreinstellungen lesen.</translation>
    </message>
    <message>
        <source>The preset of this name will be replaced.</source>
        <translation>Die Voreinstellung dieses Namens wird ersetzt.</translation>
    </message>
    <message>
        <source>There is already a preset of this name.</source>
        <translation>Es gibt bereits eine Voreinstellung dieses Namens.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
</context>
<context>
    <name>host::PresetMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Printer’s Defaults</source>
        <translation>Standard des Druckers</translation>
    </message>
    <message>
        <source>My Defaults</source>
        <translation>Mein Standard</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <comment>the name of settings</comment>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>&amp;Settings: %1</source>
        <translation>&amp;Einstellungen: %1</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>„%1“ speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Rename “%1”…</source>
        <translation>„%1“ umbenennen …</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>„%1“ löschen …</translation>
    </message>
    <message>
        <source>Use as My &amp;Default for This Printer</source>
        <translation>Als meinen &amp;Standard für diesen Drucker verwenden</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? Other programs use it as well.</source>
        <translation>Die Voreinstellung „%1“ löschen? Auch andere Programme verwenden sie.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>host::Preview</name>
    <message>
        <source>the document is read when it is printed</source>
        <translation>das Dokument wird erst beim Drucken gelesen</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <source>the pages cannot be counted</source>
        <translation>die Seiten können nicht gezählt werden</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 kann das Dokument nicht lesen</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
</context>
<context>
    <name>host::PreviewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>No preview: %1.</source>
        <translation>Keine Vorschau: %1.</translation>
    </message>
    <message>
        <source>This page cannot be shown.</source>
        <translation>Diese Seite kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>Blatt %1, Vorderseite</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>Blatt %1, Rückseite</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Shown as in the document</source>
        <translation>Wie im Dokument angezeigt</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Wird nicht gedruckt</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>The size relative to the whole page</source>
        <translation>Größe im Verhältnis zur ganzen Seite</translation>
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
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>host::PreviewStrip</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Click the check box to leave this page out</source>
        <translation>Klicken Sie auf das Kontrollkästchen, um diese Seite auszulassen</translation>
    </message>
    <message>
        <source>This page is not printed</source>
        <translation>Diese Seite wird nicht gedruckt</translation>
    </message>
</context>
<context>
    <name>host::PrintModePage</name>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Konto:</translation>
    </message>
    <message>
        <source>Account user:</source>
        <translation>Kontobenutzer:</translation>
    </message>
    <message>
        <source>The printer keeps a job with a password until the password is entered at its control panel. Password and account are sent with the job, and not stored.</source>
        <translation>Ein Auftrag mit Passwort bleibt im Drucker, bis das Passwort am Bedienfeld eingegeben wird. Passwort und Konto werden mit dem Auftrag gesendet und nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abbre&amp;chen</translation>
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
        <source>There is no pane called “%1”.</source>
        <translation>Es gibt keine Seite namens „%1“.</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>Es fehlt ein Dokument oder ein Drucker dafür</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Der Druckserver wird abgefragt …</translation>
    </message>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>Nich&amp;t warten</translation>
    </message>
    <message>
        <source>The print server has not responded yet.</source>
        <translation>Der Druckserver hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>The document will be printed when the printer has responded.</source>
        <translation>Das Dokument wird gedruckt, sobald der Drucker geantwortet hat.</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or location</source>
        <translation>Nach Name oder Standort suchen</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Drucker suchen</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Looking for printers on the network…</source>
        <translation>Drucker werden im Netzwerk gesucht …</translation>
    </message>
    <message>
        <source>&amp;Add Printer…</source>
        <translation>Drucker &amp;hinzufügen …</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Optionen einer PPD-Datei; es gibt keinen Drucker dazu</translation>
    </message>
    <message>
        <source>The printer settings of the desktop cannot be opened</source>
        <translation>Die Druckereinstellungen des Desktops lassen sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>Das längste Dokument, „%1“, hat nur %n bedruckte Seite.</numerusform>
            <numerusform>Das längste Dokument, „%1“, hat nur %n bedruckte Seiten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>Das längste Dokument, „%1“, hat nur %n Seite.</numerusform>
            <numerusform>Das längste Dokument, „%1“, hat nur %n Seiten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>Es gibt nur %n bedruckte Seite.</numerusform>
            <numerusform>Es gibt nur %n bedruckte Seiten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>Das Dokument hat nur %n Seite.</numerusform>
            <numerusform>Das Dokument hat nur %n Seiten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ReasonText</name>
    <message>
        <source>The printer is out of paper.</source>
        <translation>Der Drucker hat kein Papier mehr.</translation>
    </message>
    <message>
        <source>The paper is running low.</source>
        <translation>Das Papier geht zur Neige.</translation>
    </message>
    <message>
        <source>Paper is jammed in the printer.</source>
        <translation>Im Drucker hat sich Papier gestaut.</translation>
    </message>
    <message>
        <source>The printer is out of toner.</source>
        <translation>Der Drucker hat keinen Toner mehr.</translation>
    </message>
    <message>
        <source>The toner is running low.</source>
        <translation>Der Toner geht zur Neige.</translation>
    </message>
    <message>
        <source>A cover of the printer is open.</source>
        <translation>Eine Abdeckung des Druckers ist offen.</translation>
    </message>
    <message>
        <source>A paper tray is missing.</source>
        <translation>Eine Papierkassette fehlt.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Das Ausgabefach ist voll.</translation>
    </message>
    <message>
        <source>The printer is switched off or not connected.</source>
        <translation>Der Drucker ist ausgeschaltet oder nicht angeschlossen.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>Der Drucker antwortet nicht.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Die Verbindung zum Drucker wird hergestellt.</translation>
    </message>
    <message>
        <source>The print server is out of space.</source>
        <translation>Der Druckserver hat keinen Speicherplatz mehr.</translation>
    </message>
    <message>
        <source>The print server lacks a program for this printer.</source>
        <translation>Dem Druckserver fehlt ein Programm für diesen Drucker.</translation>
    </message>
    <message>
        <source>The print server does not trust a program for this printer.</source>
        <translation>Der Druckserver vertraut einem Programm für diesen Drucker nicht.</translation>
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
    <message>
        <source>Perhaps sent to “%1”</source>
        <translation>Vielleicht an „%1“ gesendet</translation>
    </message>
    <message>
        <source>A private job is printed once you enter its password at the printer “%1”.</source>
        <translation>Ein vertraulicher Auftrag wird gedruckt, sobald Sie sein Passwort am Drucker „%1“ eingeben.</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Auftrag &amp;abbrechen</translation>
    </message>
    <message>
        <source>Print &amp;Again</source>
        <translation>&amp;Erneut drucken</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>Zurück&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Freigeben</translation>
    </message>
    <message>
        <source>Pages printed so far: %1</source>
        <translation>Bisher gedruckte Seiten: %1</translation>
    </message>
    <message>
        <source>Sent before:</source>
        <translation>Vorher gesendet:</translation>
    </message>
    <message>
        <source>Pages printed: %1</source>
        <translation>Gedruckte Seiten: %1</translation>
    </message>
    <message>
        <source>Print: %1</source>
        <comment>a time of day, or words such as: at night</comment>
        <translation>Druck: %1</translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Type the name of a setting, in your own words or as the printer driver has it. Press Return to go to the setting.</source>
        <translation>Geben Sie den Namen einer Einstellung ein, in eigenen Worten oder wie im Druckertreiber. Die Eingabetaste führt zur Einstellung.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n Einstellung gefunden</numerusform>
            <numerusform>%n Einstellungen gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes the search. The settings do not change.</source>
        <translation>Schließt die Suche. Die Einstellungen ändern sich nicht.</translation>
    </message>
    <message>
        <source>The settings that were found, each with its page. Press Return to go to the setting.</source>
        <translation>Die gefundenen Einstellungen, jeweils mit ihrer Seite. Die Eingabetaste führt zur Einstellung.</translation>
    </message>
</context>
<context>
    <name>host::SessionMessages</name>
    <message>
        <source>Please note</source>
        <translation>Bitte beachten</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Passwort fehlt</translation>
    </message>
    <message>
        <source>Code missing</source>
        <translation>Code fehlt</translation>
    </message>
    <message>
        <source>Use Without Pass&amp;word</source>
        <translation>Ohne &amp;Passwort verwenden</translation>
    </message>
    <message>
        <source>Use &amp;Without Code</source>
        <translation>Ohne &amp;Code verwenden</translation>
    </message>
    <message>
        <source>Print Without Pass&amp;word</source>
        <translation>Ohne &amp;Passwort drucken</translation>
    </message>
    <message>
        <source>Print &amp;Without Code</source>
        <translation>Ohne &amp;Code drucken</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Behalten &amp;und prüfen</translation>
    </message>
    <message>
        <source>Paper not loaded in the printer</source>
        <translation>Papier nicht im Drucker eingelegt</translation>
    </message>
</context>
<context>
    <name>host::SessionPanels</name>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>„%1“ konnte nicht vorbereitet werden: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>Die Einstellungen von „%1“ konnten nicht gespeichert werden: %2</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>S&amp;how changes only</source>
        <translation>Nur Änderungen an&amp;zeigen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <comment>what it was, what it is</comment>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>host::WaitSign</name>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>Nich&amp;t warten</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>host::WaitingPage</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>an amount of data, of the whole</comment>
        <translation>%1 von %2</translation>
    </message>
</context>
</TS>
