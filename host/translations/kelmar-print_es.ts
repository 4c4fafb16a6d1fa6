<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ArgumentsText</name>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Print to this queue or preset (queue/preset).</source>
        <translation>Imprimir en esta cola o preajuste (cola/preajuste).</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>Number of copies.</source>
        <translation>Número de copias.</translation>
    </message>
    <message>
        <source>LIST</source>
        <translation>LISTA</translation>
    </message>
    <message>
        <source>Pages to print, for example 1-3,8.</source>
        <translation>Páginas que se van a imprimir, por ejemplo 1-3,8.</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <source>Title of the job.</source>
        <translation>Título del trabajo.</translation>
    </message>
    <message>
        <source>HOST</source>
        <translation>EQUIPO</translation>
    </message>
    <message>
        <source>Print server to use, HOST or HOST:PORT.</source>
        <translation>Servidor de impresión que se va a usar, EQUIPO o EQUIPO:PUERTO.</translation>
    </message>
    <message>
        <source>KEY=VALUE</source>
        <translation>CLAVE=VALOR</translation>
    </message>
    <message>
        <source>Set an option of the printer, or a key of a panel such as departmentCode.</source>
        <translation>Establecer una opción de la impresora o una clave de un panel, como departmentCode.</translation>
    </message>
    <message>
        <source>KEY=FILE</source>
        <translation>CLAVE=ARCHIVO</translation>
    </message>
    <message>
        <source>Like --set, with the value from the first line of a file; “-” is the standard input.</source>
        <translation>Como --set, con el valor leído de la primera línea de un archivo; «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>CLAVE</translation>
    </message>
    <message>
        <source>Like --set, with the value asked for on the terminal, which does not show it.</source>
        <translation>Como --set, pidiendo el valor en el terminal, que no lo muestra.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NOMBRE=VALOR</translation>
    </message>
    <message>
        <source>Like --set, but unknown names are passed to the print system as job options.</source>
        <translation>Como --set, pero los nombres desconocidos se pasan al sistema de impresión como opciones del trabajo.</translation>
    </message>
    <message>
        <source>Print without opening a window.</source>
        <translation>Imprimir sin abrir ninguna ventana.</translation>
    </message>
    <message>
        <source>Accept the proposal when settings cannot be used together.</source>
        <translation>Aceptar la propuesta cuando haya ajustes que no se puedan usar juntos.</translation>
    </message>
    <message>
        <source>Write the summary of the settings.</source>
        <translation>Escribir el resumen de los ajustes.</translation>
    </message>
    <message>
        <source>Write the options of the printer and their choices.</source>
        <translation>Escribir las opciones de la impresora y sus valores.</translation>
    </message>
    <message>
        <source>Write results and errors as JSON.</source>
        <translation>Escribir los resultados y los errores en JSON.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>Take the options from this PPD file instead of a queue.</source>
        <translation>Tomar las opciones de este archivo PPD en lugar de una cola.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>CARPETA</translation>
    </message>
    <message>
        <source>Load the panels of this bundle instead of the installed ones.</source>
        <translation>Cargar los paneles de este paquete en lugar de los instalados.</translation>
    </message>
    <message>
        <source>Open the dialog at this pane: general, more, job, summary, or a panel&apos;s name or kind.</source>
        <translation>Abrir el diálogo en esta página: general, more, job, summary, o el nombre o el tipo de un panel.</translation>
    </message>
    <message>
        <source>Save a screenshot of the dialog and exit.</source>
        <translation>Guardar una imagen del diálogo y salir.</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Colores del diálogo: light (claros) o dark (oscuros).</translation>
    </message>
    <message>
        <source>Open the dialog, write the start-up time and exit.</source>
        <translation>Abrir el diálogo, escribir cuánto ha tardado y salir.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Documents to print; “-” is the standard input.</source>
        <translation>Documentos que se van a imprimir; «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[ARCHIVO...]</translation>
    </message>
    <message>
        <source>--ask takes a key alone; the value is asked for.</source>
        <translation>--ask solo admite una clave; el valor se pide aparte.</translation>
    </message>
    <message>
        <source>-o takes NAME=VALUE or NAME.</source>
        <translation>-o admite NOMBRE=VALOR o NOMBRE.</translation>
    </message>
    <message>
        <source>--%1 takes %2; there is no “=” after the key.</source>
        <translation>--%1 admite %2; falta «=» después de una clave.</translation>
    </message>
    <message>
        <source>--color-scheme takes light or dark.</source>
        <translation>--color-scheme admite light o dark.</translation>
    </message>
    <message>
        <source>--batch needs a printer to print to; --ppd alone names none.</source>
        <translation>--batch necesita una impresora en la que imprimir; --ppd por sí solo no indica ninguna.</translation>
    </message>
    <message>
        <source>The standard input cannot be both a value and a document.</source>
        <translation>La entrada estándar no puede ser un valor y un documento a la vez.</translation>
    </message>
    <message>
        <source>--batch and --screenshot cannot be used together.</source>
        <translation>--batch y --screenshot no se pueden combinar.</translation>
    </message>
    <message>
        <source>Unknown option on the command line; --help lists the options.</source>
        <translation>Opción desconocida en la línea de comandos; --help muestra todas las opciones.</translation>
    </message>
    <message>
        <source>Unknown option “%1”; --help lists the options.</source>
        <translation>Opción desconocida «%1»; --help muestra todas las opciones.</translation>
    </message>
    <message>
        <source>Usage: kelmar-print [OPTION...] [FILE...]
Print documents, with a dialog for the settings or without one.

</source>
        <translation>Uso: kelmar-print [OPCIÓN...] [ARCHIVO...]
Imprime documentos, con un diálogo para los ajustes o sin él.

</translation>
    </message>
    <message>
        <source>
Exit codes: 0 success, 1 failure, 2 wrong usage, 3 settings that cannot be used together,
4 canceled, 5 not known whether the job was accepted. See the manual page kelmar-print(1) for details.
</source>
        <translation>
Códigos de salida: 0 éxito, 1 error, 2 uso incorrecto, 3 ajustes que no se pueden usar juntos,
4 cancelado, 5 no se sabe si se ha aceptado el trabajo. Más información en la página de manual kelmar-print(1).
</translation>
    </message>
    <message>
        <source>With --batch: write the pages into this PDF file instead of printing them.</source>
        <translation>Con --batch: guardar las páginas en este archivo PDF en lugar de imprimirlas.</translation>
    </message>
    <message>
        <source>Write the presets of the printer.</source>
        <translation>Escribir los preajustes de la impresora.</translation>
    </message>
    <message>
        <source>Save the settings as a preset of the printer, without passwords and codes.</source>
        <translation>Guardar los ajustes como preajuste de la impresora, sin contraseñas ni códigos.</translation>
    </message>
    <message>
        <source>Delete a preset of the printer.</source>
        <translation>Eliminar un preajuste de la impresora.</translation>
    </message>
    <message>
        <source>--output requires --batch.</source>
        <translation>--output requiere --batch.</translation>
    </message>
    <message>
        <source>Presets belong to a printer; --ppd alone names none.</source>
        <translation>Los preajustes pertenecen a una impresora; --ppd por sí solo no indica ninguna.</translation>
    </message>
    <message>
        <source>--resolve requires --batch, --summary or --save-preset.</source>
        <translation>--resolve requiere --batch, --summary o --save-preset.</translation>
    </message>
    <message>
        <source>--json requires --batch, --summary, --list-options or an option for presets.</source>
        <translation>--json requiere --batch, --summary, --list-options o una opción de preajustes.</translation>
    </message>
    <message>
        <source>Print even if a password or a department code is missing.</source>
        <translation>Imprimir aunque falte una contraseña o un código de departamento.</translation>
    </message>
    <message>
        <source>--allow-no-password requires --batch.</source>
        <translation>--allow-no-password requiere --batch.</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not accept “%1”.</source>
        <translation>El servidor de impresión no ha aceptado «%1».</translation>
    </message>
    <message>
        <source>The print server uses a different value for “%1” than the one that was sent.</source>
        <translation>El servidor de impresión usa para «%1» un valor distinto del enviado.</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>--list-options lists the settings.</source>
        <translation>--list-options muestra los ajustes.</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Ninguna solución conserva «%1»; cambie uno de los ajustes.</translation>
    </message>
    <message>
        <source>Passwords and codes are not saved in the preset; enter them each time.</source>
        <translation>Las contraseñas y los códigos no se guardan en el preajuste; indíquelos cada vez.</translation>
    </message>
    <message>
        <source>Only a part of the code for “%1” has been given.</source>
        <translation>Solo se ha indicado una parte del código para «%1».</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>The password has been removed: the job will not be protected. %1</source>
        <translation>La contraseña se ha quitado: el trabajo no estará protegido. %1</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Esta impresora no tiene «%1»: el trabajo no estará protegido.</translation>
    </message>
    <message>
        <source>Not available on this printer: %1.</source>
        <translation>No disponible en esta impresora: %1.</translation>
    </message>
</context>
<context>
    <name>ChangeText</name>
    <message>
        <source>“%1” was reset to “%2”.</source>
        <translation>«%1» se ha restablecido a «%2».</translation>
    </message>
    <message>
        <source>“%1” was changed to “%2”.</source>
        <translation>«%1» se ha cambiado a «%2».</translation>
    </message>
    <message>
        <source>These were reset to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Se han restablecido a «%2»: %1.</translation>
    </message>
    <message>
        <source>These were changed to “%2”: %1.</source>
        <comment>a list of options, a choice</comment>
        <translation>Se han cambiado a «%2»: %1.</translation>
    </message>
    <message>
        <source>The reason: “%1” is “%2”.</source>
        <translation>El motivo: «%1» está en «%2».</translation>
    </message>
</context>
<context>
    <name>ChosenText</name>
    <message>
        <source>the code for “%1”</source>
        <translation>el código de «%1»</translation>
    </message>
    <message>
        <source>settings of “%1”</source>
        <translation>ajustes de «%1»</translation>
    </message>
</context>
<context>
    <name>ControlText</name>
    <message>
        <source>Not available while “%1” is “%2”.</source>
        <translation>No disponible mientras «%1» esté en «%2».</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>The document cannot be stored in the folder “%1”: %2.</source>
        <translation>No se puede almacenar el documento en la carpeta «%1»: %2.</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>No existe el archivo «%1».</translation>
    </message>
    <message>
        <source>“%1” is a folder, not a document.</source>
        <translation>«%1» es una carpeta, no un documento.</translation>
    </message>
    <message>
        <source>“%1” is a device, not a document.</source>
        <translation>«%1» es un dispositivo, no un documento.</translation>
    </message>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>No se puede leer el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file “%1” is empty.</source>
        <translation>El archivo «%1» está vacío.</translation>
    </message>
    <message>
        <source>The standard input cannot be read: %1.</source>
        <translation>No se puede leer la entrada estándar: %1.</translation>
    </message>
    <message>
        <source>Nothing came from the standard input.</source>
        <translation>No ha llegado nada por la entrada estándar.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Entrada estándar</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>La impresión se ha cancelado.</translation>
    </message>
    <message>
        <source>Nothing was written into “%1”.</source>
        <translation>No se ha escrito nada en «%1».</translation>
    </message>
</context>
<context>
    <name>Explanation</name>
    <message>
        <source>The number of copies to print.</source>
        <translation>El número de copias que se imprimen.</translation>
    </message>
    <message>
        <source>Prints each complete copy before the next one, so that the pages need no sorting.</source>
        <translation>Imprime cada copia completa antes de empezar la siguiente, de modo que no hay que ordenar las páginas.</translation>
    </message>
    <message>
        <source>The pages to print. Separate single pages and ranges with commas, for example 1-3, 8.</source>
        <translation>Las páginas que se imprimen. Separe con comas las páginas sueltas y los intervalos, por ejemplo 1-3, 8.</translation>
    </message>
    <message>
        <source>The size of the paper to print on. Paper of this size must be loaded in one of the printer’s trays.</source>
        <translation>El tamaño del papel en el que se imprime. Una de las bandejas de la impresora debe contener papel de este tamaño.</translation>
    </message>
    <message>
        <source>The type of paper. The printer feeds and heats heavy or coated paper differently.</source>
        <translation>El tipo de papel. La impresora arrastra y calienta de otra forma el papel grueso o estucado.</translation>
    </message>
    <message>
        <source>The tray that the paper is taken from.</source>
        <translation>La bandeja de la que se toma el papel.</translation>
    </message>
    <message>
        <source>Prints on both sides of the paper. Choose the long edge for pages that turn like those of a book, the short edge for pages that turn like those of a wall calendar.</source>
        <translation>Imprime en las dos caras del papel. Elija el borde largo si las páginas se pasan como las de un libro, y el borde corto si se pasan como las hojas de un calendario de pared.</translation>
    </message>
    <message>
        <source>The number of document pages on one side of the paper. The pages are scaled down to fit.</source>
        <translation>El número de páginas del documento en una cara del papel. Se reducen para que quepan.</translation>
    </message>
    <message>
        <source>The order in which several pages are arranged on one side.</source>
        <translation>El orden en que se colocan varias páginas en una cara.</translation>
    </message>
    <message>
        <source>A line around each page on the paper.</source>
        <translation>Una línea alrededor de cada página en el papel.</translation>
    </message>
    <message>
        <source>Prints the pages upright or sideways. “As in the document” keeps the orientation of each page.</source>
        <translation>Imprime las páginas en vertical o en horizontal. «Como en el documento» conserva la orientación de cada página.</translation>
    </message>
    <message>
        <source>Scales the pages to fit the paper, or keeps their size. At actual size, whatever does not fit on the paper is cut off.</source>
        <translation>Ajusta el tamaño de las páginas al papel o lo conserva. A tamaño real se recorta lo que no cabe en el papel.</translation>
    </message>
    <message>
        <source>Enlarges or reduces each page about its center, in percent of its natural size. Whatever does not fit on the page is cut off.</source>
        <translation>Amplía o reduce cada página desde su centro, en porcentaje de su tamaño original. Se recorta lo que no cabe en la página.</translation>
    </message>
    <message>
        <source>Prints only every other page, for example to print on both sides by hand: first the odd pages, then the even pages.</source>
        <translation>Imprime solo una de cada dos páginas, por ejemplo para imprimir a mano por las dos caras: primero las impares y después las pares.</translation>
    </message>
    <message>
        <source>Prints the last page first, so that the pages are in order when the printer stacks them face up.</source>
        <translation>Imprime primero la última página, de modo que las páginas quedan en orden cuando la impresora las apila boca arriba.</translation>
    </message>
    <message>
        <source>Prints the whole document.</source>
        <translation>Imprime todo el documento.</translation>
    </message>
    <message>
        <source>Prints only the page that the application shows.</source>
        <translation>Imprime solo la página que muestra la aplicación.</translation>
    </message>
    <message>
        <source>Prints only what is selected in the application.</source>
        <translation>Imprime solo lo que está seleccionado en la aplicación.</translation>
    </message>
    <message>
        <source>The files to print, in this order. Clear the check box of a file to leave it out.</source>
        <translation>Los archivos que se imprimen, en este orden. Desmarque un archivo para omitirlo.</translation>
    </message>
    <message>
        <source>Saves the pages to a PDF file as they would be printed. Nothing is sent to the printer.</source>
        <translation>Guarda las páginas en un archivo PDF tal como se imprimirían. No se envía nada a la impresora.</translation>
    </message>
    <message>
        <source>Shows the pages as they will be printed. Select a thumbnail to show its page.</source>
        <translation>Muestra las páginas tal como se imprimirán. Seleccione una miniatura para ver su página.</translation>
    </message>
    <message>
        <source>A value that you enter yourself. The line below shows what the printer accepts.</source>
        <translation>Un valor que introduce usted. La línea de abajo indica qué acepta la impresora.</translation>
    </message>
    <message>
        <source>The printer that the document is sent to. You can search the list by name or location.</source>
        <translation>La impresora a la que se envía el documento. En la lista se puede buscar por nombre o ubicación.</translation>
    </message>
    <message>
        <source>Applies a preset, the settings used last or the printer’s defaults, and saves the current settings as a preset.</source>
        <translation>Aplica un preajuste, los últimos ajustes usados o los de la impresora, y guarda los ajustes actuales como preajuste.</translation>
    </message>
    <message>
        <source>The pages of this dialog. A diamond marks each page with changed settings.</source>
        <translation>Las páginas de este diálogo. Un rombo señala las que tienen ajustes cambiados.</translation>
    </message>
    <message>
        <source>Closes this window. Nothing more is sent to the printer.</source>
        <translation>Cierra esta ventana. No se envía nada más a la impresora.</translation>
    </message>
    <message>
        <source>Sends the document to the printer with the settings of all pages.</source>
        <translation>Envía el documento a la impresora con los ajustes de todas las páginas.</translation>
    </message>
    <message>
        <source>Cancels the job. Pages that are printed already remain in the printer.</source>
        <translation>Cancela el trabajo. Las páginas ya impresas quedan en la impresora.</translation>
    </message>
    <message>
        <source>Keeps the job at the print server until you release it.</source>
        <translation>Mantiene el trabajo en espera en el servidor de impresión hasta que usted lo libere.</translation>
    </message>
    <message>
        <source>Sends the same documents again with the same settings.</source>
        <translation>Envía otra vez los mismos documentos con los mismos ajustes.</translation>
    </message>
    <message>
        <source>The name of the preset. Other programs offer the preset under this name as well.</source>
        <translation>El nombre del preajuste. Otros programas también lo ofrecen con este nombre.</translation>
    </message>
    <message>
        <source>Saves passwords and codes with the preset, so that you need not enter them each time. Do not use this on a computer that you share with others.</source>
        <translation>Guarda las contraseñas y los códigos con el preajuste para no tener que introducirlos cada vez. No lo use en un equipo compartido con otras personas.</translation>
    </message>
    <message>
        <source>Saves the settings of all pages as a preset. A preset of the same name is replaced.</source>
        <translation>Guarda los ajustes de todas las páginas como preajuste. Un preajuste con el mismo nombre se reemplaza.</translation>
    </message>
    <message>
        <source>Renames the preset, in other programs as well.</source>
        <translation>Cambia el nombre del preajuste, también en otros programas.</translation>
    </message>
    <message>
        <source>Deletes the preset, in other programs as well. The current settings do not change.</source>
        <translation>Elimina el preajuste, también en otros programas. Los ajustes actuales no cambian.</translation>
    </message>
    <message>
        <source>Closes this dialog without changing any preset.</source>
        <translation>Cierra este diálogo sin cambiar ningún preajuste.</translation>
    </message>
    <message>
        <source>Your user name on the print server. It may differ from your user name on this computer.</source>
        <translation>Su nombre de usuario en el servidor de impresión. Puede ser distinto del de este equipo.</translation>
    </message>
    <message>
        <source>Your password on the print server.</source>
        <translation>Su contraseña en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Logs in to the print server.</source>
        <translation>Inicia sesión en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Continues without a password. The print server may then refuse the request.</source>
        <translation>Continúa sin contraseña. El servidor de impresión puede entonces rechazar la solicitud.</translation>
    </message>
    <message>
        <source>Shows only the settings that differ from the printer’s defaults or the preset, with their previous values.</source>
        <translation>Muestra solo los ajustes que difieren de los de la impresora o del preajuste, con sus valores anteriores.</translation>
    </message>
    <message>
        <source>Further options of this printer, with the names that its manufacturer gave them.</source>
        <translation>Otras opciones de esta impresora, con los nombres que les da su fabricante.</translation>
    </message>
    <message>
        <source>Stops waiting. Your settings are kept.</source>
        <translation>Deja de esperar. Sus ajustes se conservan.</translation>
    </message>
    <message>
        <source>Asks the printer or the print server again.</source>
        <translation>Vuelve a consultar a la impresora o al servidor de impresión.</translation>
    </message>
    <message>
        <source>Goes back to the settings.</source>
        <translation>Vuelve a los ajustes.</translation>
    </message>
    <message>
        <source>Finds a setting on any page by its name.</source>
        <translation>Busca un ajuste por su nombre en todas las páginas.</translation>
    </message>
    <message>
        <source>Explains the settings of this page.</source>
        <translation>Explica los ajustes de esta página.</translation>
    </message>
    <message>
        <source>Whether the pages are printed in color or in black and white.</source>
        <translation>Si las páginas se imprimen en color o en blanco y negro.</translation>
    </message>
    <message>
        <source>What the job is called at the printer and in lists of jobs.</source>
        <translation>El nombre del trabajo en la impresora y en las listas de trabajos.</translation>
    </message>
    <message>
        <source>When the print server sends the job to the printer. A job that waits for its release is released in the list of jobs.</source>
        <translation>Cuándo envía el servidor de impresión el trabajo a la impresora. Un trabajo que espera su liberación se libera en la lista de trabajos.</translation>
    </message>
    <message>
        <source>Jobs of a higher priority are printed first.</source>
        <translation>Los trabajos de mayor prioridad se imprimen primero.</translation>
    </message>
    <message>
        <source>A sheet with the names of the job and its owner, printed before or after the document.</source>
        <translation>Una hoja con el nombre del trabajo y el de su propietario, que se imprime antes o después del documento.</translation>
    </message>
    <message>
        <source>A text that is recorded with the job, for example a project or a customer.</source>
        <translation>Un texto que se registra con el trabajo, por ejemplo, un proyecto o un cliente.</translation>
    </message>
    <message>
        <source>The printer keeps the job until this password is entered at its control panel. It is not stored.</source>
        <translation>La impresora conserva el trabajo hasta que se introduce esta contraseña en su panel de control. No se guarda.</translation>
    </message>
    <message>
        <source>The account that the printer charges for the job. It is not stored.</source>
        <translation>La cuenta a la que la impresora carga el trabajo. No se guarda.</translation>
    </message>
    <message>
        <source>Your name or number for the account. It is not stored.</source>
        <translation>Su nombre o número para la cuenta. No se guarda.</translation>
    </message>
    <message>
        <source>Arranges the pages for sheets that are folded together in the middle: two pages on each side, four on each sheet.</source>
        <translation>Dispone las páginas para hojas que se doblan juntas por la mitad: dos páginas por cara, cuatro por hoja.</translation>
    </message>
    <message>
        <source>Folds the sheets of a booklet and staples them in the fold.</source>
        <translation>Dobla las hojas de un folleto y las grapa por el pliegue.</translation>
    </message>
    <message>
        <source>Prints each page reversed from left to right, for example on transfer paper.</source>
        <translation>Imprime cada página invertida de izquierda a derecha, por ejemplo en papel de transferencia.</translation>
    </message>
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>No se puede usar la extensión de impresión: %1</translation>
    </message>
</context>
<context>
    <name>JobSettingText</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante el día</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Por la tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>En el segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>En el tercer turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>El fin de semana</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Cuando se libere</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
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
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>No clasificado</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Clasificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Alto secreto</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Portadas</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Datos de facturación</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <comment>cover sheets</comment>
        <translation>%1 antes, %2 después</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Usuario de la cuenta</translation>
    </message>
    <message>
        <source>%1 takes a number from 1 to %2.</source>
        <translation>%1 admite un número del 1 al %2.</translation>
    </message>
    <message>
        <source>%1 takes %2, or a time in UTC such as 20:15.</source>
        <translation>%1 admite %2 o una hora UTC, por ejemplo 20:15.</translation>
    </message>
</context>
<context>
    <name>JobText</name>
    <message>
        <source>waiting: the printer has been stopped</source>
        <translation>en espera: la impresora está detenida</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>on hold</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiéndose</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>aborted by the print system</source>
        <translation>interrumpido por el sistema de impresión</translation>
    </message>
    <message>
        <source>done</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>the print server no longer knows it. It may have been printed; look at the printer.</source>
        <translation>el servidor de impresión ya no lo conoce. Puede que se haya impreso; mire en la impresora.</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Left to right, then down</source>
        <translation>De izquierda a derecha, luego hacia abajo</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>De izquierda a derecha, luego hacia arriba</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>De derecha a izquierda, luego hacia abajo</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>De derecha a izquierda, luego hacia arriba</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Hacia abajo, luego de izquierda a derecha</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Hacia abajo, luego de derecha a izquierda</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Hacia arriba, luego de izquierda a derecha</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Hacia arriba, luego de derecha a izquierda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Thin line</source>
        <translation>Línea fina</translation>
    </message>
    <message>
        <source>Thick line</source>
        <translation>Línea gruesa</translation>
    </message>
    <message>
        <source>Two thin lines</source>
        <translation>Dos líneas finas</translation>
    </message>
    <message>
        <source>Two thick lines</source>
        <translation>Dos líneas gruesas</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Como en el documento</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Landscape, turned around</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Portrait, turned around</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Páginas impares y pares</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Solo las páginas impares</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Solo las páginas pares</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Shrink to the page or cut off</source>
        <translation>Reducir a la página o recortar</translation>
    </message>
    <message>
        <source>Shrink to the page</source>
        <translation>Reducir a la página</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Llenar la página</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>True or False</source>
        <translation>True o False</translation>
    </message>
    <message>
        <source>whole numbers from %1 to %2</source>
        <translation>números enteros de %1 a %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Páginas por cara</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Odd or even</source>
        <translation>Impares o pares</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>La última página primero</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Imagen reflejada</translation>
    </message>
</context>
<context>
    <name>LoadedText</name>
    <message>
        <source>Nothing is loaded in “%1”.</source>
        <translation>No hay nada cargado en «%1».</translation>
    </message>
    <message>
        <source>“%1” is not loaded in “%2”.</source>
        <translation>«%1» no está cargado en «%2».</translation>
    </message>
    <message>
        <source>“%1” is not loaded in any tray.</source>
        <translation>«%1» no está cargado en ninguna bandeja.</translation>
    </message>
    <message>
        <source>“%1” is loaded, but not as “%2”.</source>
        <translation>«%1» está cargado, pero no como «%2».</translation>
    </message>
</context>
<context>
    <name>LoginText</name>
    <message>
        <source>Log In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>No se ha aceptado el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>El servidor de impresión %1 requiere un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nombre de &amp;usuario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>La contraseña se transmitirá por la red sin cifrar.</translation>
    </message>
</context>
<context>
    <name>MainText</name>
    <message>
        <source>There is no display to open the dialog on. Use --batch to print without it.</source>
        <translation>No hay ninguna pantalla en la que abrir el diálogo. Use --batch para imprimir sin él.</translation>
    </message>
</context>
<context>
    <name>OpenText</name>
    <message>
        <source>No printer has been set up.</source>
        <translation>No se ha configurado ninguna impresora.</translation>
    </message>
</context>
<context>
    <name>PageRangesText</name>
    <message>
        <source>“%1” is not a page or a range of pages; write for example 1-3, 8.</source>
        <translation>«%1» no es una página ni un intervalo de páginas; escriba por ejemplo 1-3, 8.</translation>
    </message>
</context>
<context>
    <name>PagesText</name>
    <message>
        <source>Documents reach the printer unchanged. They cannot be scaled.</source>
        <translation>Los documentos llegan a la impresora sin cambios. No se puede cambiar su escala.</translation>
    </message>
    <message>
        <source>%1 Set “%2” to %3.</source>
        <translation>%1 Ajuste «%2» a %3.</translation>
    </message>
</context>
<context>
    <name>PanelValueText</name>
    <message>
        <source>takes a whole number from %1 to %2</source>
        <translation>admite un número entero del %1 al %2</translation>
    </message>
    <message>
        <source>takes True or False</source>
        <translation>admite True o False</translation>
    </message>
    <message>
        <source>cannot be set by a text</source>
        <translation>no se puede establecer con un texto</translation>
    </message>
    <message>
        <source>takes %1 digits</source>
        <translation>admite %1 dígitos</translation>
    </message>
    <message>
        <source>takes %1 characters</source>
        <translation>admite %1 caracteres</translation>
    </message>
    <message>
        <source>does not take this value</source>
        <translation>no admite este valor</translation>
    </message>
    <message>
        <source>does not take this value: %1 has only %2</source>
        <translation>no admite este valor: %1 solo tiene %2</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <comment>a key, and what it takes</comment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
</context>
<context>
    <name>PasswordText</name>
    <message>
        <source>a digit from 0 to 9</source>
        <translation>un dígito del 0 al 9</translation>
    </message>
    <message>
        <source>a letter from A to Z</source>
        <translation>una letra de la A a la Z</translation>
    </message>
    <message>
        <source>a letter from A to Z or a digit from 0 to 9</source>
        <translation>una letra de la A a la Z o un dígito del 0 al 9</translation>
    </message>
    <message>
        <source>a printable ASCII character</source>
        <translation>un carácter ASCII imprimible</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>un dígito</translation>
    </message>
    <message>
        <source>a letter</source>
        <translation>una letra</translation>
    </message>
    <message>
        <source>a printable character</source>
        <translation>un carácter imprimible</translation>
    </message>
    <message>
        <source>Character %1 of the password has to be %2.</source>
        <translation>El carácter %1 de la contraseña debe ser %2.</translation>
    </message>
</context>
<context>
    <name>PolicySystemText</name>
    <message>
        <source>The printer “%1” is not offered here. %2</source>
        <translation>La impresora «%1» no se ofrece aquí. %2</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”.</source>
        <translation>«%1» debe estar en «%2».</translation>
    </message>
    <message>
        <source>“%1” has to be “%2”, with a code.</source>
        <translation>«%1» debe estar en «%2», con un código.</translation>
    </message>
    <message>
        <source>The rules in %1 offer none of the printers that have been set up. %2</source>
        <translation>Las reglas de %1 no ofrecen ninguna de las impresoras configuradas. %2</translation>
    </message>
    <message>
        <source>“%1” cannot be used, since settings of this printer are fixed.</source>
        <translation>«%1» no se puede usar porque hay ajustes de esta impresora que están fijados.</translation>
    </message>
</context>
<context>
    <name>PolicyText</name>
    <message>
        <source>it is not a JSON object</source>
        <translation>no es un objeto JSON</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, línea %2, columna %3: %4</translation>
    </message>
    <message>
        <source>“%1” is not known here; known are %2</source>
        <translation>«%1» no se conoce aquí; se conocen %2</translation>
    </message>
    <message>
        <source>“%1” takes a list of names</source>
        <translation>«%1» admite una lista de nombres</translation>
    </message>
    <message>
        <source>“%1” takes an object of options and choices</source>
        <translation>«%1» admite un objeto de opciones y valores</translation>
    </message>
    <message>
        <source>“%1” takes a choice in quotes</source>
        <translation>«%1» admite un valor entre comillas</translation>
    </message>
    <message>
        <source>“contact” takes a text</source>
        <translation>«contact» admite un texto</translation>
    </message>
    <message>
        <source>“rules” takes a list</source>
        <translation>«rules» admite una lista</translation>
    </message>
    <message>
        <source>“rules” takes JSON objects</source>
        <translation>«rules» admite objetos JSON</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than 1 MB.</source>
        <translation>%1 ocupa más de 1 MB.</translation>
    </message>
    <message>
        <source>The administrator&apos;s rules for printing are not in force, since they cannot be read. Please tell your administrator: %1</source>
        <translation>Las reglas de impresión del administrador no se aplican porque no se pueden leer. Informe a su administrador: %1</translation>
    </message>
    <message>
        <source>Set by the administrator.</source>
        <translation>Así lo ha fijado el administrador.</translation>
    </message>
    <message>
        <source>Set by the administrator (%1).</source>
        <translation>Así lo ha fijado el administrador (%1).</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, problem</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, rule %2: %3</source>
        <comment>file, number, problem</comment>
        <translation>%1, regla %2: %3</translation>
    </message>
</context>
<context>
    <name>PortalText</name>
    <message>
        <source>The document of an application cannot be printed.</source>
        <translation>No se puede imprimir el documento de una aplicación.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>It is larger than 2 GB.</source>
        <translation>Ocupa más de 2 GB.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Imprimir «%1»</translation>
    </message>
    <message>
        <source>The document has not been printed on “%1”.</source>
        <translation>No se ha impreso el documento en «%1».</translation>
    </message>
    <message>
        <source>The document was sent to “%1”, but with different settings.</source>
        <translation>El documento se ha enviado a «%1», pero con ajustes distintos.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>It is larger than 256 MB.</source>
        <translation>Ocupa más de 256 MB.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>The application that opened the print dialog has been closed. Nothing has been printed.</source>
        <translation>La aplicación que abrió el diálogo de impresión se ha cerrado. No se ha imprimido nada.</translation>
    </message>
    <message>
        <source>The application has changed it since the print dialog was opened.</source>
        <translation>La aplicación lo ha modificado desde que se abrió el diálogo de impresión.</translation>
    </message>
</context>
<context>
    <name>PpdCustomText</name>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un número de %1 a %2</translation>
    </message>
    <message>
        <source>a length from %1 to %2 pt</source>
        <translation>una longitud de %1 a %2 pt</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 a %2 dígitos</translation>
    </message>
    <message>
        <source>a password of %1 to %2 characters</source>
        <translation>una contraseña de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>un texto de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 admite %2.</translation>
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
        <translation>tamaños de %1 × %2 a %3 × %4 pt, como Custom.%5 (unidades: pt, mm, cm, m, in, ft)</translation>
    </message>
    <message>
        <source>Custom. followed by %1</source>
        <translation>Custom. seguido de %1</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 es %2</translation>
    </message>
    <message>
        <source>{%1}, where %2</source>
        <translation>{%1}, donde %2</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
</context>
<context>
    <name>PpdDocumentText</name>
    <message>
        <source>%1 is too large: more than %2 MB.</source>
        <translation>%1 es demasiado grande: más de %2 MB.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>option and its choice</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no PPD file “%1”.</source>
        <translation>No existe el archivo PPD «%1».</translation>
    </message>
    <message>
        <source>You are not allowed to read the PPD file “%1”.</source>
        <translation>No tiene permiso para leer el archivo PPD «%1».</translation>
    </message>
    <message>
        <source>The PPD file “%1”</source>
        <translation>El archivo PPD «%1»</translation>
    </message>
    <message>
        <source>There is not enough memory for the PPD of “%1”: %2.</source>
        <translation>No hay memoria suficiente para el PPD de «%1»: %2.</translation>
    </message>
    <message>
        <source>The PPD of “%1”</source>
        <translation>El PPD de «%1»</translation>
    </message>
    <message>
        <source>%1 is broken: line %2: %3.</source>
        <translation>%1 está dañado: línea %2: %3.</translation>
    </message>
</context>
<context>
    <name>PpdTexts</name>
    <message>
        <source>Two-Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Bypass Tray</source>
        <translation>Bandeja multiuso</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Papel normal</translation>
    </message>
    <message>
        <source>Glossy Photo Paper</source>
        <translation>Papel fotográfico brillante</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Output Tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Cara impresa hacia abajo</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Cara impresa hacia arriba</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapado</translation>
    </message>
    <message>
        <source>One, Top Left</source>
        <translation>Una, arriba a la izquierda</translation>
    </message>
    <message>
        <source>One, Bottom Left</source>
        <translation>Una, abajo a la izquierda</translation>
    </message>
    <message>
        <source>Two, Left</source>
        <translation>Dos, a la izquierda</translation>
    </message>
    <message>
        <source>Two, Top</source>
        <translation>Dos, arriba</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforado</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegado</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>A preset cannot store the value of “%1”: it contains a tab, a line break or another character that cannot be written to the preset file.</source>
        <translation>Un preajuste no puede guardar el valor de «%1»: contiene un tabulador, un salto de línea u otro carácter que no se puede escribir en su archivo.</translation>
    </message>
    <message>
        <source>A preset cannot store this many settings; the limit is %1 bytes.</source>
        <translation>Un preajuste no puede guardar tantos ajustes; el límite es de %1 bytes.</translation>
    </message>
    <message>
        <source>This printer does not support these settings: %1.</source>
        <translation>Esta impresora no admite estos ajustes: %1.</translation>
    </message>
</context>
<context>
    <name>PrintSystemText</name>
    <message>
        <source>No default printer has been set; choose a printer by name.</source>
        <translation>No se ha definido ninguna impresora predeterminada; elija una impresora por su nombre.</translation>
    </message>
    <message>
        <source>“%1” opens the print dialog and prints nothing itself; choose another printer.</source>
        <translation>«%1» abre el diálogo de impresión y no imprime nada por sí misma; elija otra impresora.</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>No hay ninguna impresora llamada «%1».</translation>
    </message>
    <message>
        <source>Your own defaults for this printer are not used. %1</source>
        <translation>No se usan sus propios valores predeterminados para esta impresora. %1</translation>
    </message>
    <message>
        <source>“%1” has no preset called “%2”.</source>
        <translation>«%1» no tiene ningún preajuste llamado «%2».</translation>
    </message>
</context>
<context>
    <name>PrinterText</name>
    <message>
        <source>Stopped: jobs wait until it is started again</source>
        <translation>Detenida: los trabajos esperan hasta que se reanude</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Encontrada en la red</translation>
    </message>
    <message>
        <source>State not known</source>
        <translation>Estado desconocido</translation>
    </message>
    <message>
        <source>%1: level not known</source>
        <comment>a toner</comment>
        <translation>%1: nivel desconocido</translation>
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
        <translation>Comunicado por la impresora a las %1</translation>
    </message>
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no password has been given for it.</source>
        <translation>Se ha elegido «%1», pero no se ha indicado ninguna contraseña para ello.</translation>
    </message>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>Se ha elegido «%1», pero no se ha indicado ningún código para ello.</translation>
    </message>
    <message>
        <source>A password has been given, but not “%1”: the job is not protected.</source>
        <translation>Se ha indicado una contraseña, pero no se ha elegido «%1»: el trabajo no está protegido.</translation>
    </message>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Esta impresora no tiene «%1»: el trabajo no estará protegido.</translation>
    </message>
</context>
<context>
    <name>ResultText</name>
    <message>
        <source>These settings cannot be used together.</source>
        <translation>Estos ajustes no se pueden usar juntos.</translation>
    </message>
    <message>
        <source>The result cannot be written: %1.</source>
        <translation>No se puede escribir el resultado: %1.</translation>
    </message>
    <message>
        <source>Changed to resolve a conflict: %1</source>
        <translation>Cambiado para resolver un conflicto: %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>y %1</translation>
    </message>
    <message>
        <source>Keys of the panels</source>
        <translation>Claves de los paneles</translation>
    </message>
    <message>
        <source>Give passwords and codes with --ask or --set-file: other users can read the command line.</source>
        <translation>Indique las contraseñas y los códigos con --ask o --set-file: otros usuarios pueden leer la línea de órdenes.</translation>
    </message>
    <message>
        <source>request id is %1-%2 (%3 file(s))</source>
        <translation>el identificador de la petición es %1-%2 (%3 archivo(s))</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Trabajo %1: %2.</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Estos ajustes no se pueden usar juntos:</translation>
    </message>
    <message>
        <source>Proposal (accepted with --resolve):</source>
        <translation>Propuesta (se acepta con --resolve):</translation>
    </message>
    <message>
        <source>“%1” has been written.</source>
        <translation>Se ha guardado «%1».</translation>
    </message>
    <message>
        <source>The preset “%1” has been deleted.</source>
        <translation>Se ha eliminado el preajuste «%1».</translation>
    </message>
    <message>
        <source>The settings have been saved as the preset “%1”.</source>
        <translation>Los ajustes se han guardado como el preajuste «%1».</translation>
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
        <translation>No se puede escribir la imagen «%1».</translation>
    </message>
    <message>
        <source>request id is %1</source>
        <translation>el identificador de la petición es %1</translation>
    </message>
</context>
<context>
    <name>ServerText</name>
    <message>
        <source>The print server %1 requires a user name and a password.</source>
        <translation>El servidor de impresión %1 requiere un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The printer “%1” requires a user name and a password.</source>
        <translation>La impresora «%1» requiere un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>No se puede acceder al servidor de impresión %1.</translation>
    </message>
    <message>
        <source>The print server %1 sent a response that cannot be interpreted.</source>
        <translation>El servidor de impresión %1 ha enviado una respuesta que no se puede interpretar.</translation>
    </message>
    <message>
        <source>The connection to the print server %1 was lost.</source>
        <translation>Se ha interrumpido la conexión con el servidor de impresión %1.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>The print server %1 does not allow this (%2).</source>
        <translation>El servidor de impresión %1 no permite esta operación (%2).</translation>
    </message>
    <message>
        <source>The print server %1 refused the request (%2).</source>
        <translation>El servidor de impresión %1 ha rechazado la petición (%2).</translation>
    </message>
    <message>
        <source>There is no printer called “%1”.</source>
        <translation>No hay ninguna impresora llamada «%1».</translation>
    </message>
    <message>
        <source>No printer has been set up.</source>
        <translation>No se ha configurado ninguna impresora.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>La impresora «%1» no acepta trabajos en este momento.</translation>
    </message>
    <message>
        <source>You are not allowed to print to “%1” (%2).</source>
        <translation>No tiene permiso para imprimir en «%1» (%2).</translation>
    </message>
    <message>
        <source>The printer “%1” cannot print documents of this type.</source>
        <translation>La impresora «%1» no puede imprimir documentos de este tipo.</translation>
    </message>
    <message>
        <source>The print server reports: %1</source>
        <translation>El servidor de impresión informa: %1</translation>
    </message>
    <message>
        <source>The print server %1 sends a file of more than %2 megabytes.</source>
        <translation>El servidor de impresión %1 envía un archivo de más de %2 megabytes.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering.</source>
        <translation>El servidor de impresión %1 ha dejado de responder.</translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>A stored setting is not used: %1</source>
        <translation>No se usa un ajuste guardado: %1</translation>
    </message>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Esta impresora no tiene ninguna opción ni ningún ajuste llamado «%1».</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies admite un número del 1 al %1.</translation>
    </message>
    <message>
        <source>%1 takes True or False.</source>
        <translation>%1 admite True o False.</translation>
    </message>
    <message>
        <source>%1 takes %2.</source>
        <translation>%1 admite %2.</translation>
    </message>
    <message>
        <source>%1 has no choice “%2”; it has %3.</source>
        <translation>%1 no tiene el valor «%2»; tiene %3.</translation>
    </message>
    <message>
        <source>%1 is not sent with the job: %2</source>
        <translation>%1 no se envía con el trabajo: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be changed here. %2</source>
        <translation>«%1» no se puede cambiar aquí. %2</translation>
    </message>
    <message>
        <source>%1 does not take this value.</source>
        <translation>%1 no admite este valor.</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: esta impresora no tiene «%2».</translation>
    </message>
    <message>
        <source>The printer “%1” does not take %2.</source>
        <translation>La impresora «%1» no acepta %2.</translation>
    </message>
    <message>
        <source>%1 takes at most %2 characters.</source>
        <translation>%1 acepta como máximo %2 caracteres.</translation>
    </message>
    <message>
        <source>“%1” is not available for a booklet, whose sheets are turned on the short edge.</source>
        <translation>«%1» no es posible para un folleto, cuyas hojas se giran por el borde corto.</translation>
    </message>
</context>
<context>
    <name>StoreText</name>
    <message>
        <source>The presets in “%1” cannot be read or changed: %2.</source>
        <translation>No se pueden leer o cambiar los preajustes de «%1»: %2.</translation>
    </message>
    <message>
        <source>There is no preset called “%1”.</source>
        <translation>No hay ningún preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>There is already a preset called “%1”.</source>
        <translation>Ya existe un preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>“%1” is available to all users of this computer; only an administrator can change it.</source>
        <translation>«%1» es común a todos los usuarios de este equipo; solo un administrador puede cambiarlo.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain spaces; use for example “%1”.</source>
        <translation>El nombre de un preajuste no puede contener espacios; use por ejemplo «%1».</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain control characters.</source>
        <translation>El nombre de un preajuste no puede contener caracteres de control.</translation>
    </message>
    <message>
        <source>The name of a preset cannot contain any of these characters: / \ # &quot; &apos; =</source>
        <translation>El nombre de un preajuste no puede contener ninguno de estos caracteres: / \ # &quot; &apos; =</translation>
    </message>
</context>
<context>
    <name>SubmitText</name>
    <message>
        <source>The file “%1” cannot be read: %2.</source>
        <translation>No se puede leer el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The printer “%1” is not accepting jobs at the moment.</source>
        <translation>La impresora «%1» no acepta trabajos en este momento.</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.</source>
        <translation>No se puede imprimir «%1»: la impresora «%2» no acepta documentos del tipo %3.</translation>
    </message>
    <message>
        <source>The unfinished job %1 could not be canceled.</source>
        <translation>No se ha podido cancelar el trabajo sin terminar %1.</translation>
    </message>
    <message>
        <source>Nothing was printed.</source>
        <translation>No se ha impreso nada.</translation>
    </message>
    <message>
        <source>It is not known whether the job was accepted. It may print; look at the queue before printing again.</source>
        <translation>No se sabe si se ha aceptado el trabajo. Es posible que se imprima; consulte la cola antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>The print server did not report the settings that it accepted.</source>
        <translation>El servidor de impresión no ha indicado qué ajustes ha aceptado.</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation>No se ha podido cancelar el trabajo %1.</translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation>Es posible que se haya impreso una parte.</translation>
    </message>
    <message>
        <source>An unfinished job may have been left at the print server.</source>
        <translation>Puede que haya quedado un trabajo sin terminar en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Look at the queue before printing again.</source>
        <translation>Mire la cola antes de volver a imprimir.</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modo de impresión</translation>
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
        <translation>No se ha aceptado el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>User name for %1 [%2]: </source>
        <translation>Nombre de usuario para %1 [%2]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
    </message>
    <message>
        <source>The password will cross the network without encryption.</source>
        <translation>La contraseña se transmitirá por la red sin cifrar.</translation>
    </message>
</context>
<context>
    <name>TitleField</name>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
</context>
<context>
    <name>ValueSourceText</name>
    <message>
        <source>The value of %1 cannot be read: %2.</source>
        <translation>No se puede leer el valor de %1: %2.</translation>
    </message>
    <message>
        <source>its first line is longer than %1 bytes</source>
        <translation>su primera línea tiene más de %1 bytes</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>no hay ninguno</translation>
    </message>
    <message>
        <source>it is not text</source>
        <translation>no es texto</translation>
    </message>
    <message>
        <source>there is no terminal to ask on; --set-file takes it from a file or, as %1=-, from the standard input</source>
        <translation>no hay ningún terminal en el que pedirlo; --set-file lo toma de un archivo o, como %1=-, de la entrada estándar</translation>
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
        <translation>Volver al valor anterior</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Volver a «%1»</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Cambiado. %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiado</translation>
    </message>
    <message>
        <source>Changed; it was “%1”</source>
        <translation>Cambiado; antes era «%1»</translation>
    </message>
</context>
<context>
    <name>host::ConflictQuestion</name>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>&amp;Aplicar sugerencia</translation>
    </message>
    <message>
        <source>Use An&amp;yway</source>
        <translation>Usar ig&amp;ualmente</translation>
    </message>
    <message>
        <source>Print An&amp;yway</source>
        <translation>Imprimir ig&amp;ualmente</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Mantener y re&amp;visar</translation>
    </message>
    <message>
        <source>No resolution keeps “%1”; change one of the settings.</source>
        <translation>Ninguna solución conserva «%1»; cambie uno de los ajustes.</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Sugerencia: %1</translation>
    </message>
    <message>
        <source>“%1” protects your document. If you print anyway, the printer may print without it.</source>
        <translation>«%1» protege su documento. Si imprime igualmente, es posible que la impresora imprima sin esa protección.</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Estos ajustes no se pueden usar juntos</translation>
    </message>
    <message>
        <source>“%1” cannot be changed. If you print anyway, the printer may print without it.</source>
        <translation>«%1» no se puede cambiar. Si imprime igualmente, es posible que la impresora imprima sin ese ajuste.</translation>
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
        <translation>pulg.</translation>
    </message>
    <message>
        <source>pt</source>
        <comment>points</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit of the paper size</source>
        <translation>Unidad del tamaño del papel</translation>
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
        <translation>De %1 a %2 %3</translation>
    </message>
    <message>
        <source>a length from %1 to %2 %3</source>
        <comment>smallest, largest, unit</comment>
        <translation>una longitud de %1 a %2 %3</translation>
    </message>
    <message>
        <source>%1: %2 is out of range; enter %3.</source>
        <comment>setting, value, such as: a number from 1 to 9</comment>
        <translation>%1: %2 está fuera del intervalo permitido; introduzca %3.</translation>
    </message>
</context>
<context>
    <name>host::DialogPreview</name>
    <message>
        <source>Preview…</source>
        <translation>Vista previa…</translation>
    </message>
    <message>
        <source>Show the pages in a separate window</source>
        <translation>Mostrar las páginas en una ventana aparte</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>Your defaults for this printer contain choices that it does not have: %1.</source>
        <translation>Los valores predeterminados que usted ha fijado para esta impresora incluyen algunos que no tiene: %1.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>No se puede mostrar una página de los ajustes de la impresora: %1</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>Hay ajustes guardados de «%1» que no se envían con el trabajo (%2): %3</translation>
    </message>
    <message>
        <source>“%1” stays “%2”. %3</source>
        <translation>«%1» sigue en «%2». %3</translation>
    </message>
</context>
<context>
    <name>host::DocumentBox</name>
    <message>
        <source>Documents to print</source>
        <translation>Documentos que se van a imprimir</translation>
    </message>
</context>
<context>
    <name>host::DocumentChoice</name>
    <message>
        <source>Standard input</source>
        <translation>Entrada estándar</translation>
    </message>
</context>
<context>
    <name>host::EarlierJobs</name>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>Jobs %1: %2</source>
        <translation>Trabajos %1: %2</translation>
    </message>
</context>
<context>
    <name>host::GeneralPage</name>
    <message>
        <source>C&amp;ollate</source>
        <translation>Int&amp;ercalar</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>Inte&amp;rvalo:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>Print each complete copy before the next one</source>
        <translation>Imprimir cada copia completa antes de empezar la siguiente</translation>
    </message>
    <message>
        <source>for example 1-3, 8</source>
        <translation>por ejemplo 1-3, 8</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Páginas que se van a imprimir</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Enter the pages to print, or choose all pages.</source>
        <translation>Escriba las páginas que se van a imprimir o elija todas.</translation>
    </message>
    <message>
        <source>Documents:</source>
        <translation>Documentos:</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Save the pages to a file instead of printing them</source>
        <translation>Guardar las páginas en un archivo en lugar de imprimirlas</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>The numbers refer to printed sides with %1 pages each.</source>
        <translation>Los números se refieren a las caras impresas, con %1 páginas cada una.</translation>
    </message>
    <message>
        <source>Choose at least one document.</source>
        <translation>Elija al menos un documento.</translation>
    </message>
</context>
<context>
    <name>host::GreyedChoices</name>
    <message>
        <source>To use it, other settings have to change:</source>
        <translation>Para usarlo hay que cambiar otros ajustes:</translation>
    </message>
    <message>
        <source>“%1” instead of “%2”</source>
        <comment>an option with its choice, and another choice</comment>
        <translation>«%1» en lugar de «%2»</translation>
    </message>
    <message>
        <source>This gives up “%1”, which protects your document.</source>
        <translation>Con ello se renuncia a «%1», que protege su documento.</translation>
    </message>
    <message>
        <source>Change and &amp;Use It</source>
        <translation>Cambiar y &amp;usar</translation>
    </message>
    <message>
        <source>Give Up Protection and &amp;Use It</source>
        <translation>Renunciar a la protección y &amp;usar</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>De&amp;jar como está</translation>
    </message>
    <message>
        <source>“%1” conflicts with this choice, and no resolution was found.</source>
        <translation>«%1» entra en conflicto con esta opción y no se ha encontrado ninguna solución.</translation>
    </message>
    <message>
        <source>“%1” is not available now</source>
        <translation>«%1» no está disponible ahora</translation>
    </message>
    <message>
        <source>“%1” cannot be changed.</source>
        <translation>«%1» no se puede cambiar.</translation>
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
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Help on this page</source>
        <translation>Ayuda sobre esta página</translation>
    </message>
</context>
<context>
    <name>host::HelpPage</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Close &amp;Help</source>
        <translation>Cerrar la a&amp;yuda</translation>
    </message>
</context>
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n hoja</numerusform>
            <numerusform>%n hojas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n cara</numerusform>
            <numerusform>%n caras</numerusform>
        </translation>
    </message>
    <message>
        <source>black and white</source>
        <translation>blanco y negro</translation>
    </message>
    <message>
        <source>color</source>
        <translation>color</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>pages of different sizes</source>
        <translation>páginas de distintos tamaños</translation>
    </message>
</context>
<context>
    <name>host::JobDesk</name>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Enviando el documento al servidor de impresión…</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Cancelando el trabajo…</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>&amp;Cancelar la impresión</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Leyendo el documento…</translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>Priority:</source>
        <translation>Prioridad:</translation>
    </message>
    <message>
        <source>Cover sheet before:</source>
        <translation>Portada inicial:</translation>
    </message>
    <message>
        <source>Cover sheet after:</source>
        <translation>Portada final:</translation>
    </message>
    <message>
        <source>Print:</source>
        <translation>Impresión:</translation>
    </message>
    <message>
        <source>At a time of day</source>
        <translation>A una hora determinada</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Datos de facturación:</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>Printing was canceled.</source>
        <translation>La impresión se ha cancelado.</translation>
    </message>
</context>
<context>
    <name>host::LayoutForm</name>
    <message>
        <source>Page layout</source>
        <translation>Disposición de las páginas</translation>
    </message>
    <message>
        <source>Pages per side:</source>
        <translation>Páginas por cara:</translation>
    </message>
    <message>
        <source>Order:</source>
        <translation>Orden:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Borde:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientación:</translation>
    </message>
    <message>
        <source>Scaling:</source>
        <translation>Ajuste:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Escala:</translation>
    </message>
    <message>
        <source>Odd or even:</source>
        <translation>Impares o pares:</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>La última página primero</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>Saddle stitching</source>
        <translation>Grapado a caballete</translation>
    </message>
</context>
<context>
    <name>host::LimitedProcess</name>
    <message>
        <source>it took too long</source>
        <translation>ha tardado demasiado</translation>
    </message>
    <message>
        <source>it ended unexpectedly</source>
        <translation>ha terminado de forma inesperada</translation>
    </message>
    <message>
        <source>it cannot be started: %1</source>
        <translation>no se puede iniciar: %1</translation>
    </message>
    <message>
        <source>it wrote too much</source>
        <translation>ha escrito demasiados datos</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>el documento es demasiado grande</translation>
    </message>
</context>
<context>
    <name>host::LinkLabel</name>
    <message>
        <source>Go to this setting</source>
        <translation>Ir a este ajuste</translation>
    </message>
</context>
<context>
    <name>host::MessageBar</name>
    <message>
        <source>C&amp;lose</source>
        <translation>Cerr&amp;ar</translation>
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
        <translation>General</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>These settings cannot be changed. %1</source>
        <translation>Estos ajustes no se pueden cambiar. %1</translation>
    </message>
    <message>
        <source>Fixed: %1. %2</source>
        <translation>Valores fijos: %1. %2</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modo de impresión</translation>
    </message>
</context>
<context>
    <name>host::PageCounter</name>
    <message>
        <source>it is damaged, not complete or protected</source>
        <translation>está dañado, incompleto o protegido</translation>
    </message>
    <message>
        <source>it needs a password</source>
        <translation>requiere una contraseña</translation>
    </message>
    <message>
        <source>its author does not allow it to be printed</source>
        <translation>su autor no permite imprimirlo</translation>
    </message>
    <message>
        <source>it is damaged or not complete</source>
        <translation>está dañado o incompleto</translation>
    </message>
    <message>
        <source>“%1” cannot be printed: %2.</source>
        <translation>No se puede imprimir «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: %2.</source>
        <translation>No se puede cambiar la escala de «%1»: %2.</translation>
    </message>
    <message>
        <source>The settings leave no page of any document to print.</source>
        <translation>Con estos ajustes no queda ninguna página de los documentos por imprimir.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there is only one printed side.</source>
        <translation>Con estos ajustes no queda ninguna página por imprimir: solo hay una cara impresa.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only one page.</source>
        <translation>Con estos ajustes no queda ninguna página por imprimir: el documento solo tiene una página.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: there are only %1 printed sides.</source>
        <translation>Con estos ajustes no queda ninguna página por imprimir: solo hay %1 caras impresas.</translation>
    </message>
    <message>
        <source>The settings leave no page to print: the document has only %1 pages.</source>
        <translation>Con estos ajustes no queda ninguna página por imprimir: el documento solo tiene %1 páginas.</translation>
    </message>
    <message>
        <source>the print server cannot arrange PostScript documents as a booklet</source>
        <translation>el servidor de impresión no puede disponer como folleto los documentos PostScript</translation>
    </message>
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Páginas del diálogo</translation>
    </message>
    <message>
        <source>has changed settings</source>
        <translation>tiene ajustes cambiados</translation>
    </message>
    <message>
        <source>%1: has changed settings</source>
        <comment>a page</comment>
        <translation>%1: tiene ajustes cambiados</translation>
    </message>
</context>
<context>
    <name>host::PageMaker</name>
    <message>
        <source>there is no program here that shows this kind of document (%1)</source>
        <translation>en este equipo no hay ningún programa que muestre este tipo de documento (%1)</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 no está instalado</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 no puede leer el documento</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ha fallado: %2</translation>
    </message>
    <message>
        <source>the settings leave no page of the document</source>
        <translation>con estos ajustes no queda ninguna página del documento</translation>
    </message>
</context>
<context>
    <name>host::PdfSaver</name>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>The PDF file has been written</source>
        <translation>Se ha guardado el archivo PDF</translation>
    </message>
</context>
<context>
    <name>host::PdfWriter</name>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>es un enlace a otro archivo</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 no puede leer el documento</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 no está instalado</translation>
    </message>
    <message>
        <source>The PDF file cannot be created: %1.</source>
        <translation>No se puede crear el archivo PDF: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be converted to PDF: %2.</source>
        <translation>No se puede convertir «%1» en un archivo PDF: %2.</translation>
    </message>
</context>
<context>
    <name>host::PresetDialog</name>
    <message>
        <source>Keep &amp;passwords and codes as well</source>
        <translation>Guardar también las con&amp;traseñas y los códigos</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renombrar preajuste</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Other users of this computer may be able to read them in the preset file.</source>
        <translation>Otros usuarios de este equipo podrían leerlos en el archivo de los preajustes.</translation>
    </message>
    <message>
        <source>The preset of this name will be replaced.</source>
        <translation>Se reemplazará el preajuste que tiene este nombre.</translation>
    </message>
    <message>
        <source>There is already a preset of this name.</source>
        <translation>Ya existe un preajuste con este nombre.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
</context>
<context>
    <name>host::PresetMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Valores predeterminados</translation>
    </message>
    <message>
        <source>Printer’s Defaults</source>
        <translation>Valores predeterminados de la impresora</translation>
    </message>
    <message>
        <source>My Defaults</source>
        <translation>Mis valores predeterminados</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Últimos usados</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <comment>the name of settings</comment>
        <translation>%1 (con cambios)</translation>
    </message>
    <message>
        <source>&amp;Settings: %1</source>
        <translation>A&amp;justes: %1</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Guardar «%1»</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>Rename “%1”…</source>
        <translation>Renombrar «%1»…</translation>
    </message>
    <message>
        <source>Delete “%1”…</source>
        <translation>Eliminar «%1»…</translation>
    </message>
    <message>
        <source>Use as My &amp;Default for This Printer</source>
        <translation>&amp;Usar como mis valores predeterminados para esta impresora</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? Other programs use it as well.</source>
        <translation>¿Eliminar el preajuste «%1»? Otros programas también lo usan.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>host::Preview</name>
    <message>
        <source>the document is read when it is printed</source>
        <translation>el documento se lee al imprimirlo</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 no está instalado</translation>
    </message>
    <message>
        <source>the pages cannot be counted</source>
        <translation>no se pueden contar las páginas</translation>
    </message>
    <message>
        <source>%1 cannot read the document</source>
        <translation>%1 no puede leer el documento</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ha fallado: %2</translation>
    </message>
</context>
<context>
    <name>host::PreviewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>No preview: %1.</source>
        <translation>Sin vista previa: %1.</translation>
    </message>
    <message>
        <source>This page cannot be shown.</source>
        <translation>No se puede mostrar esta página.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>Hoja %1, anverso</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>Hoja %1, reverso</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Shown as in the document</source>
        <translation>Se muestra como en el documento</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>No se imprime</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>The size relative to the whole page</source>
        <translation>Tamaño respecto a la página completa</translation>
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
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>host::PreviewStrip</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Click the check box to leave this page out</source>
        <translation>Haga clic en la casilla para omitir esta página</translation>
    </message>
    <message>
        <source>This page is not printed</source>
        <translation>Esta página no se imprime</translation>
    </message>
</context>
<context>
    <name>host::PrintModePage</name>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Cuenta:</translation>
    </message>
    <message>
        <source>Account user:</source>
        <translation>Usuario de la cuenta:</translation>
    </message>
    <message>
        <source>The printer keeps a job with a password until the password is entered at its control panel. Password and account are sent with the job, and not stored.</source>
        <translation>La impresora conserva un trabajo con contraseña hasta que esta se introduce en su panel de control. La contraseña y la cuenta se envían con el trabajo y no se guardan.</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>No hay ningún documento o ninguna impresora en la que imprimirlo</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>Consultando al servidor de impresión…</translation>
    </message>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>&amp;No esperar</translation>
    </message>
    <message>
        <source>There is no pane called “%1”.</source>
        <translation>No hay ninguna página llamada «%1».</translation>
    </message>
    <message>
        <source>The print server has not responded yet.</source>
        <translation>El servidor de impresión aún no ha respondido.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>The document will be printed when the printer has responded.</source>
        <translation>El documento se imprimirá en cuanto la impresora haya respondido.</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or location</source>
        <translation>Buscar por nombre o ubicación</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Buscar impresoras</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Looking for printers on the network…</source>
        <translation>Buscando impresoras en la red…</translation>
    </message>
    <message>
        <source>&amp;Add Printer…</source>
        <translation>&amp;Añadir impresora…</translation>
    </message>
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Pri&amp;nter:</source>
        <translation>I&amp;mpresora:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Opciones de un archivo PPD; no hay ninguna impresora en la que imprimir</translation>
    </message>
    <message>
        <source>The printer settings of the desktop cannot be opened</source>
        <translation>No se puede abrir la configuración de impresoras del escritorio</translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>El documento más largo, «%1», solo tiene %n cara impresa.</numerusform>
            <numerusform>El documento más largo, «%1», solo tiene %n caras impresas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>El documento más largo, «%1», solo tiene %n página.</numerusform>
            <numerusform>El documento más largo, «%1», solo tiene %n páginas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>Solo hay %n cara impresa.</numerusform>
            <numerusform>Solo hay %n caras impresas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>El documento solo tiene %n página.</numerusform>
            <numerusform>El documento solo tiene %n páginas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ReasonText</name>
    <message>
        <source>The printer is out of paper.</source>
        <translation>La impresora no tiene papel.</translation>
    </message>
    <message>
        <source>The paper is running low.</source>
        <translation>Queda poco papel.</translation>
    </message>
    <message>
        <source>Paper is jammed in the printer.</source>
        <translation>Hay papel atascado en la impresora.</translation>
    </message>
    <message>
        <source>The printer is out of toner.</source>
        <translation>La impresora no tiene tóner.</translation>
    </message>
    <message>
        <source>The toner is running low.</source>
        <translation>Queda poco tóner.</translation>
    </message>
    <message>
        <source>A cover of the printer is open.</source>
        <translation>Hay una tapa de la impresora abierta.</translation>
    </message>
    <message>
        <source>A paper tray is missing.</source>
        <translation>Falta una bandeja de papel.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>La bandeja de salida está llena.</translation>
    </message>
    <message>
        <source>The printer is switched off or not connected.</source>
        <translation>La impresora está apagada o no está conectada.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>La impresora no responde.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Se está estableciendo la conexión con la impresora.</translation>
    </message>
    <message>
        <source>The print server is out of space.</source>
        <translation>El servidor de impresión no tiene espacio.</translation>
    </message>
    <message>
        <source>The print server lacks a program for this printer.</source>
        <translation>Al servidor de impresión le falta un programa para esta impresora.</translation>
    </message>
    <message>
        <source>The print server does not trust a program for this printer.</source>
        <translation>El servidor de impresión no considera de confianza un programa para esta impresora.</translation>
    </message>
</context>
<context>
    <name>host::ResultPage</name>
    <message>
        <source>Sent to “%1”</source>
        <translation>Enviado a «%1»</translation>
    </message>
    <message>
        <source>Perhaps sent to “%1”</source>
        <translation>Quizá enviado a «%1»</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>A private job is printed once you enter its password at the printer “%1”.</source>
        <translation>Un trabajo confidencial se imprime cuando usted introduce su contraseña en la impresora «%1».</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Cancelar el &amp;trabajo</translation>
    </message>
    <message>
        <source>Print &amp;Again</source>
        <translation>Imprimir de n&amp;uevo</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Retener</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Liberar</translation>
    </message>
    <message>
        <source>Pages printed so far: %1</source>
        <translation>Páginas impresas hasta ahora: %1</translation>
    </message>
    <message>
        <source>Sent before:</source>
        <translation>Enviados antes:</translation>
    </message>
    <message>
        <source>Pages printed: %1</source>
        <translation>Páginas impresas: %1</translation>
    </message>
    <message>
        <source>Print: %1</source>
        <comment>a time of day, or words such as: at night</comment>
        <translation>Impresión: %1</translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Type the name of a setting, in your own words or as the printer driver has it. Press Return to go to the setting.</source>
        <translation>Escriba el nombre de un ajuste, con sus propias palabras o como figura en el controlador de la impresora. Pulse Intro para ir al ajuste.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Cerrar la búsqueda</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Ajustes encontrados</translation>
    </message>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n ajuste encontrado</numerusform>
            <numerusform>%n ajustes encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Closes the search. The settings do not change.</source>
        <translation>Cierra la búsqueda. Los ajustes no cambian.</translation>
    </message>
    <message>
        <source>The settings that were found, each with its page. Press Return to go to the setting.</source>
        <translation>Los ajustes encontrados, cada uno con su página. Pulse Intro para ir al ajuste.</translation>
    </message>
</context>
<context>
    <name>host::SessionMessages</name>
    <message>
        <source>Please note</source>
        <translation>Tenga en cuenta</translation>
    </message>
    <message>
        <source>Password missing</source>
        <translation>Falta la contraseña</translation>
    </message>
    <message>
        <source>Code missing</source>
        <translation>Falta el código</translation>
    </message>
    <message>
        <source>Use Without Pass&amp;word</source>
        <translation>Usar sin con&amp;traseña</translation>
    </message>
    <message>
        <source>Use &amp;Without Code</source>
        <translation>Usar sin &amp;código</translation>
    </message>
    <message>
        <source>Print Without Pass&amp;word</source>
        <translation>Imprimir sin con&amp;traseña</translation>
    </message>
    <message>
        <source>Print &amp;Without Code</source>
        <translation>Imprimir sin &amp;código</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Mantener y re&amp;visar</translation>
    </message>
    <message>
        <source>Paper not loaded in the printer</source>
        <translation>Papel no cargado en la impresora</translation>
    </message>
</context>
<context>
    <name>host::SessionPanels</name>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>No se ha podido preparar «%1»: %2</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>No se han podido guardar los ajustes de «%1»: %2</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>S&amp;how changes only</source>
        <translation>&amp;Mostrar solo los cambios</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <comment>what it was, what it is</comment>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
</context>
<context>
    <name>host::UnavailablePage</name>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
</context>
<context>
    <name>host::WaitSign</name>
    <message>
        <source>Do &amp;Not Wait</source>
        <translation>&amp;No esperar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>host::WaitingPage</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>an amount of data, of the whole</comment>
        <translation>%1 de %2</translation>
    </message>
</context>
</TS>
