<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ApplicationText</name>
    <message>
        <source>%1 pages on each side</source>
        <translation>%1 páginas en cada cara</translation>
    </message>
    <message>
        <source>last page first</source>
        <translation>la última página primero</translation>
    </message>
    <message>
        <source>The application asks for: %1.</source>
        <translation>La aplicación pide: %1.</translation>
    </message>
</context>
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
        <source>The same with the value read from a file&apos;s first line; “-” is the standard input.</source>
        <translation>Lo mismo, con el valor leído de la primera línea de un archivo; «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>CLAVE</translation>
    </message>
    <message>
        <source>The same with the value asked for on the terminal, which does not show it.</source>
        <translation>Lo mismo, pidiendo el valor en el terminal, que no lo muestra.</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>NOMBRE=VALOR</translation>
    </message>
    <message>
        <source>The same; names unknown here are handed to the print system.</source>
        <translation>Lo mismo; los nombres desconocidos aquí se pasan al sistema de impresión.</translation>
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
        <source>Open the dialog at this pane: general, more, summary, or a panel&apos;s name or kind.</source>
        <translation>Abrir el diálogo en esta página: general, more, summary, o el nombre o el tipo de un panel.</translation>
    </message>
    <message>
        <source>Write a picture of the dialog and exit.</source>
        <translation>Guardar una imagen del diálogo y salir.</translation>
    </message>
    <message>
        <source>Colors of the dialog: light or dark.</source>
        <translation>Colores del diálogo: light (claros) o dark (oscuros).</translation>
    </message>
    <message>
        <source>Open the dialog, write how long it took and exit.</source>
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
        <source>--%1 takes %2; there is no “=” behind a key.</source>
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
        <source>The standard input cannot be a value and a document at once.</source>
        <translation>La entrada estándar no puede ser un valor y un documento a la vez.</translation>
    </message>
    <message>
        <source>--batch and --screenshot do not go together.</source>
        <translation>--batch y --screenshot no se pueden combinar.</translation>
    </message>
    <message>
        <source>--resolve goes with --batch or --summary.</source>
        <translation>--resolve se usa con --batch o --summary.</translation>
    </message>
    <message>
        <source>--json goes with --batch, --summary or --list-options.</source>
        <translation>--json se usa con --batch, --summary o --list-options.</translation>
    </message>
    <message>
        <source>There is an option on the command line that this program does not have.</source>
        <translation>En la línea de comandos hay una opción que este programa no tiene.</translation>
    </message>
    <message>
        <source>There is no option “%1”.</source>
        <translation>No existe la opción «%1».</translation>
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
4 canceled, 5 not known whether the job was accepted. The manual page kelmar-print(1) tells more.
</source>
        <translation>
Códigos de salida: 0 éxito, 1 error, 2 uso incorrecto, 3 ajustes que no se pueden usar juntos,
4 cancelado, 5 no se sabe si se ha aceptado el trabajo. Más información en la página de manual kelmar-print(1).
</translation>
    </message>
</context>
<context>
    <name>AttributesText</name>
    <message>
        <source>The print server did not take “%1”.</source>
        <translation>El servidor de impresión no ha aceptado «%1».</translation>
    </message>
    <message>
        <source>The print server took another value for “%1” than was sent.</source>
        <translation>El servidor de impresión ha aceptado para «%1» un valor distinto del enviado.</translation>
    </message>
</context>
<context>
    <name>BatchText</name>
    <message>
        <source>No way out was found that keeps “%1”: change one of the settings yourself.</source>
        <translation>No se ha encontrado ninguna solución que conserve «%1»: cambie usted uno de los ajustes.</translation>
    </message>
</context>
<context>
    <name>CarryOverText</name>
    <message>
        <source>This printer does not have “%1”: the job will not be protected.</source>
        <translation>Esta impresora no tiene «%1»: el trabajo no estará protegido.</translation>
    </message>
    <message>
        <source>This printer does not take over: %1.</source>
        <translation>Esta impresora no puede conservar estos ajustes: %1.</translation>
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
        <source>%1 does not take this value.</source>
        <translation>%1 no admite este valor.</translation>
    </message>
    <message>
        <source>%1: this printer has no “%2”.</source>
        <translation>%1: esta impresora no tiene «%2».</translation>
    </message>
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
    <name>DocumentText</name>
    <message>
        <source>What is to be printed cannot be kept in the folder “%1”: %2.</source>
        <translation>No se puede guardar en la carpeta «%1» lo que se va a imprimir: %2.</translation>
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
</context>
<context>
    <name>ExtensionsText</name>
    <message>
        <source>The print extension cannot be used: %1</source>
        <translation>No se puede usar la extensión de impresión: %1</translation>
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
        <source>The print server %1 wants to know who prints.</source>
        <translation>El servidor de impresión %1 necesita saber quién imprime.</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nombre de &amp;usuario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
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
        <source>The document was sent to “%1”, but not quite as asked for.</source>
        <translation>El documento se ha enviado a «%1», pero no exactamente como se pidió.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
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
        <source>There is no memory for the PPD of “%1”: %2.</source>
        <translation>No hay memoria para el PPD de «%1»: %2.</translation>
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
</context>
<context>
    <name>ProtectionText</name>
    <message>
        <source>“%1” has been chosen, but no code has been given for it.</source>
        <translation>Se ha elegido «%1», pero no se ha indicado ningún código para ello.</translation>
    </message>
    <message>
        <source>A code has been given, but not “%1”: the job is not protected.</source>
        <translation>Se ha indicado un código, pero no se ha elegido «%1»: el trabajo no está protegido.</translation>
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
        <source>Changed to end a conflict: %1</source>
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
        <source>The print server %1 wants a user name and a password.</source>
        <translation>El servidor de impresión %1 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The printer “%1” wants a user name and a password.</source>
        <translation>La impresora «%1» pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 cannot be reached.</source>
        <translation>No se puede acceder al servidor de impresión %1.</translation>
    </message>
    <message>
        <source>The print server %1 gave an answer that cannot be understood.</source>
        <translation>El servidor de impresión %1 ha dado una respuesta que no se puede interpretar.</translation>
    </message>
    <message>
        <source>The connection to the print server %1 broke off.</source>
        <translation>Se ha interrumpido la conexión con el servidor de impresión %1.</translation>
    </message>
    <message>
        <source>Printing was canceled.</source>
        <translation>Se ha cancelado la impresión.</translation>
    </message>
    <message>
        <source>The print server %1 does not let you do this (%2).</source>
        <translation>El servidor de impresión %1 no le permite hacer esto (%2).</translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingText</name>
    <message>
        <source>This printer has no option or setting called “%1”.</source>
        <translation>Esta impresora no tiene ninguna opción ni ningún ajuste llamado «%1».</translation>
    </message>
    <message>
        <source>copies takes a number from 1 to %1.</source>
        <translation>copies admite un número del 1 al %1.</translation>
    </message>
    <message>
        <source>page-ranges does not take this value.</source>
        <translation>page-ranges no admite este valor.</translation>
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
        <source>“%1” cannot be printed: the printer “%2” does not take documents of the type %3.</source>
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
        <source>The print server did not tell which settings it kept for the job.</source>
        <translation>El servidor de impresión no ha indicado qué ajustes ha conservado para el trabajo.</translation>
    </message>
    <message>
        <source>The job %1 could not be canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some of it may have been printed.</source>
        <translation type="unfinished"></translation>
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
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
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
        <source>it is no text</source>
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
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>Your defaults for this printer ask for choices that it does not have: %1.</source>
        <translation>Los valores predeterminados que usted ha fijado para esta impresora incluyen algunos que no tiene: %1.</translation>
    </message>
    <message>
        <source>A page of the printer&apos;s settings cannot be shown: %1</source>
        <translation>No se puede mostrar una página de los ajustes de la impresora: %1</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2</source>
        <translation>No se ha podido preparar «%1»: %2</translation>
    </message>
    <message>
        <source>Stored settings of “%1” are not sent with the job (%2): %3</source>
        <translation>Hay ajustes guardados de «%1» que no se envían con el trabajo (%2): %3</translation>
    </message>
    <message>
        <source>The settings of “%1” could not be saved: %2</source>
        <translation>No se han podido guardar los ajustes de «%1»: %2</translation>
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
        <source>Print each copy whole before the next one begins</source>
        <translation>Imprimir cada copia completa antes de empezar la siguiente</translation>
    </message>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>No disponible mientras «%1» esté en «%2».</translation>
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
        <source>Type which pages are to be printed, or choose all.</source>
        <translation>Escriba qué páginas se van a imprimir o elija todas.</translation>
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
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>No disponible mientras «%1» esté en «%2».</translation>
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
</context>
<context>
    <name>host::PageList</name>
    <message>
        <source>Pages of the dialog</source>
        <translation>Páginas del diálogo</translation>
    </message>
</context>
<context>
    <name>host::PrintWindow</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>There is no document or no printer to print it on</source>
        <translation>No hay ningún documento o ninguna impresora en la que imprimirlo</translation>
    </message>
    <message>
        <source>Please note</source>
        <translation>Tenga en cuenta</translation>
    </message>
    <message>
        <source>No way out was found that keeps “%1”: change one of the settings yourself.</source>
        <translation>No se ha encontrado ninguna solución que conserve «%1»: cambie usted uno de los ajustes.</translation>
    </message>
    <message>
        <source>Suggestion: %1</source>
        <translation>Sugerencia: %1</translation>
    </message>
    <message>
        <source>App&amp;ly Suggestion</source>
        <translation>&amp;Aplicar sugerencia</translation>
    </message>
    <message>
        <source>Keep and Re&amp;view</source>
        <translation>Mantener y re&amp;visar</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Estos ajustes no se pueden usar juntos</translation>
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
        <source>Canceling the job…</source>
        <translation>Cancelando el trabajo…</translation>
    </message>
    <message>
        <source>The print server has not answered yet.</source>
        <translation>El servidor de impresión aún no ha respondido.</translation>
    </message>
    <message>
        <source>Sending the document to the print server…</source>
        <translation>Enviando el documento al servidor de impresión…</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Printing</source>
        <translation>&amp;Cancelar la impresión</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>host::PrinterBox</name>
    <message>
        <source>Search by name or place</source>
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
</context>
<context>
    <name>host::PrinterPicker</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Im&amp;presora:</translation>
    </message>
    <message>
        <source>Options of a PPD file; there is no printer to print on</source>
        <translation>Opciones de un archivo PPD; no hay ninguna impresora en la que imprimir</translation>
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
        <source>The printer does not answer.</source>
        <translation>La impresora no responde.</translation>
    </message>
    <message>
        <source>The printer is being connected to.</source>
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
        <source>A private job is printed once you enter its code at the printer “%1”.</source>
        <translation>Un trabajo confidencial se imprime cuando usted introduce su código en la impresora «%1».</translation>
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
