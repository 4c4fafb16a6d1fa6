<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>&amp;Modo de color:</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>En qué colores se imprime el trabajo</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolución:</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>Finura de los puntos</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Tramado:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>Cómo se forman los tonos a partir de puntos</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>A&amp;horro de tóner</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>Imprime más claro para gastar menos tóner</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>Tipo de ima&amp;gen:</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>Tipo de imagen</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>Lo que muestran sobre todo las páginas</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>Per&amp;files de color…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>Los perfiles de color de la impresora</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>&amp;Sobreimpresión del negro:</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>Sobreimpresión del negro</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>Imprime el texto negro sobre los colores en lugar de omitirlos debajo de él</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>N&amp;egro y gris puros:</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>Negro y gris puros</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>Lo que se imprime solo con tóner negro</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ V&amp;olver</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>Volver a los ajustes de color básicos</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>Perfiles de color</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>Origen &amp;RGB:</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>Perfil de origen RGB</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>Cómo se interpretan los colores RGB del trabajo</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Perfil %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>Origen &amp;CMYK:</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>Perfil de origen CMYK</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>Cómo se interpretan los colores CMYK del trabajo</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>&amp;Destino CMYK:</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>Perfil de destino CMYK</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>El papel y los tóneres para los que se convierten los colores</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Propósito de repre&amp;sentación:</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Propósito de representación</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>Qué ocurre con los colores que la impresora no puede imprimir</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>Propósito %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>Ap&amp;licar solo a los colores del dispositivo</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>No modifica los colores que traen un perfil propio</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>Recar&amp;gar desde la impresora</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>Vuelve a pedir a la impresora sus perfiles y valores predeterminados, también cuando no se haya podido acceder a ella.</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>Balance de color</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>Calidad de imagen</translation>
    </message>
    <message>
        <source>&amp;Cyan:</source>
        <translation>&amp;Cian:</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Cyan back to neutral</source>
        <translation>Cian: volver al valor neutro</translation>
    </message>
    <message>
        <source>&amp;Magenta:</source>
        <translation>&amp;Magenta:</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Magenta back to neutral</source>
        <translation>Magenta: volver al valor neutro</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>Amari&amp;llo:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>Amarillo: volver al valor neutro</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>Ne&amp;gro:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>Negro: volver al valor neutro</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>Niti&amp;dez:</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>Nitidez: volver al valor neutro</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>Brillo: volver al valor neutro</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>C&amp;ontraste:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>Contraste: volver al valor neutro</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>&amp;Saturación:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>Saturación: volver al valor neutro</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>&amp;Fondo:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>Fondo: volver al valor neutro</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>Menos o más tóner cian</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>Menos o más tóner magenta</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>Menos o más tóner amarillo</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>Menos o más tóner negro</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>Contornos más suaves o más nítidos</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>Más oscuro o más claro</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>Menos o más contraste</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>Colores más pálidos o más intensos</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>Fondo de la página más claro o más oscuro</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>Volver al valor neutro</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>&amp;Restablecer todo</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>Devuelve todos los controles deslizantes al valor neutro</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>Modo de impresión</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>Ajustes de color 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>Ajustes de color 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>Pidiendo a la impresora sus perfiles de color…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>No se puede acceder a la impresora, por lo que no se conocen sus perfiles de color. Compruebe que está encendida y conectada y, a continuación, elija «Recargar desde la impresora».</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>El programa que pide a la impresora sus perfiles de color (net-snmp) no se puede usar en este equipo. Pida a su administrador que lo instale.</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>La impresora ha dado una respuesta que no se ha podido interpretar, por lo que no se conocen sus perfiles de color. Elija «Recargar desde la impresora»; si eso no ayuda, consulte a su administrador.</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>Modo de impresión</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>Impresión confidencial</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>Copia de prueba</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>Impresión retenida</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>Distinguir las líneas finas</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>Omitir las páginas en blanco</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>Código de departamento</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>A todo color</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>Dos colores</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>Detallado</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>Ahorro de tóner</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>Tipo de imagen</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>Fotografía</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>Dibujo lineal</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>Sobreimpresión del negro</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>Negro y gris puros</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>Negro y gris</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>Solo negro</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Resolution:600dpi</source>
        <translation>600 ppp</translation>
    </message>
    <message>
        <source>Resolution:1200dpi</source>
        <translation>1200 ppp</translation>
    </message>
    <message>
        <source>ColorBalanceCyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ColorBalanceYellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>Qué hace la impresora con el trabajo cuando llega: imprimirlo enseguida, guardarlo hasta que escriba una contraseña, imprimir una prueba o retenerlo.</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>Cinco cifras que usted elige. La impresora guarda el trabajo hasta que escriba las mismas cifras en su panel.</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>Si las páginas se cargan a un departamento. Actívelo si su impresora pide un código.</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>Las cinco cifras del departamento al que se cargan las páginas. Su administrador las conoce.</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>Mantiene visibles y separadas las líneas muy finas, por ejemplo en dibujos técnicos. El texto y las imágenes no cambian.</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>Omite las páginas en las que no se imprime nada, y así ahorra papel.</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>En qué colores se imprime el trabajo. El modo automático decide página por página; el blanco y negro es lo que menos cuesta.</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>Lo finos que son los puntos. Una resolución mayor muestra más nítidos el texto pequeño y las líneas, y puede tardar más.</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>Cómo se forman los tonos con puntos: finos para el detalle de textos y líneas, suaves para fotos y degradados.</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>Imprime más pálido para gastar menos tóner. Bueno para borradores, no para documentos que se guardan.</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>Lo que más muestran las páginas; los colores se adaptan a ello. Con la opción avanzada elige usted los perfiles de color.</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>Imprime el texto negro sobre el color que hay debajo en lugar de dejar el hueco en blanco, para que no aparezcan bordes claros.</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>Imprime el negro, o el negro y el gris, solo con tóner negro, para que textos y tablas no tengan tinte.</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>Añade o quita cian. Más cian enfría la imagen, menos la vuelve más roja.</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>Añade o quita magenta. Más magenta vuelve la imagen más rosada, menos la vuelve más verde.</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>Añade o quita amarillo. Más amarillo vuelve la imagen más cálida, menos la vuelve más azul.</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>Añade o quita negro. Más negro oscurece las sombras, menos las aclara.</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>Cuánto destacan los bordes. Más muestra el detalle, menos oculta el ruido de las fotos.</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>Aclara u oscurece toda la página.</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>Cuánto se separan lo claro y lo oscuro. Demasiado hace perder detalle en las zonas más claras y más oscuras.</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>Lo intensos que son los colores. Menos los vuelve más grises, más los vuelve más vivos.</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>Con qué fuerza se imprime un fondo teñido. Bájelo si el papel de una página escaneada se ve gris.</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>Qué perfil describe los colores de pantallas y cámaras de su documento. La impresora guarda estos perfiles.</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>Qué perfil describe las tintas de su documento tal como las imprimiría una imprenta.</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>Qué perfil describe el papel y el tóner con los que imprime la impresora.</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>Qué ocurre con los colores que la impresora no puede imprimir: si se adapta toda la imagen o solo esos colores.</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>Usa estos perfiles solo para los colores que no traen un perfil propio.</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>&amp;Modo de impresión:</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modo de impresión</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>Cómo trata la impresora el trabajo</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Five digits that you enter at the printer to release a private job</source>
        <translation>Cinco dígitos que se introducen en la impresora para liberar un trabajo confidencial</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>Introdúzcala en la impresora para liberar el trabajo.</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>Código de &amp;departamento:</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>Código de departamento</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>Si el trabajo se carga al departamento indicado abajo</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>Códi&amp;go:</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>Dígitos del código de departamento</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>Cinco dígitos del departamento al que se carga el trabajo</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>Distinguir las &amp;líneas finas:</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>Distinguir las líneas finas</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>Mantiene separadas y visibles las líneas muy finas</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>&amp;Omitir las páginas en blanco:</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>Omitir las páginas en blanco</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>Omite las páginas en las que no se imprime nada</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>El balance de color no está disponible mientras «%1» esté en «%2».</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>No disponible mientras «%1» esté en «%2».</translation>
    </message>
</context>
</TS>
