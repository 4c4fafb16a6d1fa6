<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>&amp;Modalità colore:</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>Con quali colori viene stampato il lavoro</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Risoluzione:</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>Finezza dei punti</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>Mezzi&amp;toni:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Mezzitoni</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>Come le sfumature sono formate dai punti</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>Ri&amp;sparmio toner</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>Stampa più chiaro per usare meno toner</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>T&amp;ipo di immagine:</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>Tipo di immagine</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>Che cosa mostrano soprattutto le pagine</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>Pro&amp;fili colore…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>I profili colore della stampante</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>Sovrastampa del n&amp;ero:</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>Sovrastampa del nero</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>Stampa il testo nero sopra i colori invece di ometterli sotto di esso</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>Nero e &amp;grigio puri:</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>Nero e grigio puri</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>Che cosa viene stampato con il solo toner nero</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Indietro</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>Torna alle impostazioni colore di base</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>Profili colore</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>Origine &amp;RGB:</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>Profilo di origine RGB</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>Come vanno interpretati i colori RGB del lavoro</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Profilo %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>Origine &amp;CMYK:</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>Profilo di origine CMYK</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>Come vanno interpretati i colori CMYK del lavoro</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>Des&amp;tinazione CMYK:</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>Profilo di destinazione CMYK</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>La carta e i toner per i quali vengono convertiti i colori</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Intent&amp;o di rendering:</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Intento di rendering</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>Che cosa accade ai colori che la stampante non può stampare</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>Intento %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>Applica solo ai co&amp;lori del dispositivo</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>Non modifica i colori che hanno un proprio profilo</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>Ricarica dalla sta&amp;mpante</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>Chiede di nuovo alla stampante i suoi profili e valori predefiniti, anche quando non era raggiungibile.</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>Bilanciamento del colore</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>Qualità immagine</translation>
    </message>
    <message>
        <source>&amp;Cyan:</source>
        <translation>&amp;Ciano:</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Cyan back to neutral</source>
        <translation>Ciano: torna al valore neutro</translation>
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
        <translation>Magenta: torna al valore neutro</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>&amp;Giallo:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>Giallo: torna al valore neutro</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>Ne&amp;ro:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>Nero: torna al valore neutro</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>Nitid&amp;ezza:</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>Nitidezza: torna al valore neutro</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosità:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>Luminosità: torna al valore neutro</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>C&amp;ontrasto:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>Contrasto: torna al valore neutro</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>Sat&amp;urazione:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>Saturazione: torna al valore neutro</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>S&amp;fondo:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>Sfondo: torna al valore neutro</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>Meno o più toner ciano</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>Meno o più toner magenta</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>Meno o più toner giallo</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>Meno o più toner nero</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>Contorni più morbidi o più nitidi</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>Più scuro o più chiaro</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>Meno o più contrasto</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>Colori più tenui o più intensi</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>Sfondo della pagina più chiaro o più scuro</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>Torna al valore neutro</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>Reimposta &amp;tutto</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>Riporta tutti i cursori al valore neutro</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>Modalità di stampa</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>Impostazioni colore 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>Impostazioni colore 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>Percettivo</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>Colorimetrico relativo</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>Colorimetrico assoluto</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>Richiesta dei profili colore alla stampante…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>La stampante non è raggiungibile, perciò i suoi profili colore non sono noti. Verificare che sia accesa e collegata, quindi scegliere «Ricarica dalla stampante».</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>Il software che chiede alla stampante i suoi profili colore (net-snmp) non può essere usato su questo computer. Chiedere all’amministratore di installarlo.</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>La stampante ha dato una risposta incomprensibile, perciò i suoi profili colore non sono noti. Scegliere «Ricarica dalla stampante»; se non basta, rivolgersi all’amministratore.</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>Modalità di stampa</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>Stampa riservata</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>Copia di prova</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>Stampa trattenuta</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>Distingui linee sottili</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>Ignora pagine bianche</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>Codice reparto</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>Quadricromia</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>Bianco e nero</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>Bicromia</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Mezzitoni</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>Dettagliato</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>Uniforme</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>Risparmio toner</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>Tipo di immagine</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>Fotografia</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>Presentazione</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>Disegno al tratto</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>Avanzato</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>Sovrastampa del nero</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>Nero e grigio puri</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>Nero e grigio</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>Solo nero</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Resolution:600dpi</source>
        <translation>600 dpi</translation>
    </message>
    <message>
        <source>Resolution:1200dpi</source>
        <translation>1200 dpi</translation>
    </message>
    <message>
        <source>ColorBalanceCyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ColorBalanceYellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>Nitidezza</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>Che cosa fa la stampante del lavoro quando arriva: stamparlo subito, tenerlo finché non viene digitata una password, stampare una prova o trattenerlo.</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>Cinque cifre a scelta. La stampante tiene il lavoro finché non si digitano le stesse cifre sul suo pannello.</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>Se le pagine sono addebitate a un reparto. Attivare se la stampante chiede un codice.</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>Le cinque cifre del reparto a cui sono addebitate le pagine. L’amministratore le conosce.</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>Mantiene visibili e distinte le linee molto sottili, per esempio nei disegni tecnici. Testo e immagini restano come sono.</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>Salta le pagine su cui non si stampa nulla, e così risparmia carta.</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>In quali colori viene stampato il lavoro. Il modo automatico decide pagina per pagina; il bianco e nero costa meno.</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>Quanto sono fini i punti. Una risoluzione più alta rende più nitidi il testo piccolo e le linee, e può richiedere più tempo.</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>Come le sfumature nascono da punti: fini per i dettagli di testo e linee, morbide per foto e sfumature continue.</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>Stampa più chiaro per consumare meno toner. Va bene per le bozze, non per i documenti da conservare.</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>Che cosa mostrano soprattutto le pagine; i colori vi si adattano. Con la scelta avanzata si scelgono i profili colore.</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>Stampa il testo nero sopra il colore invece di lasciare bianco il posto, così non appaiono bordi chiari.</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>Stampa il nero, o il nero e il grigio, con il solo toner nero, così testi e tabelle non hanno dominanti.</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>Aggiunge o toglie ciano. Più ciano rende l’immagine più fredda, meno la rende più rossa.</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>Aggiunge o toglie magenta. Più magenta rende l’immagine più rosa, meno la rende più verde.</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>Aggiunge o toglie giallo. Più giallo rende l’immagine più calda, meno la rende più blu.</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>Aggiunge o toglie nero. Più nero rende le ombre più profonde, meno le schiarisce.</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>Quanto risaltano i contorni. Di più mostra i dettagli, di meno nasconde il rumore delle foto.</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>Schiarisce o scurisce tutta la pagina.</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>Quanto sono distanti chiaro e scuro. Troppo fa perdere dettagli nei punti più chiari e più scuri.</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>Quanto sono forti i colori. Di meno li rende più grigi, di più li rende più vivaci.</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>Con quanta forza viene stampato uno sfondo colorato. Ridurre se la carta di una pagina scansionata appare grigia.</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>Quale profilo descrive i colori di schermi e fotocamere nel documento. I profili si trovano nella stampante.</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>Quale profilo descrive gli inchiostri del documento come li stamperebbe una macchina da stampa.</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>Quale profilo descrive la carta e il toner con cui la stampante stampa.</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>Che cosa accade ai colori che la stampante non può stampare: se si adatta tutta l’immagine o solo quei colori.</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>Usa questi profili solo per i colori che non hanno un profilo proprio.</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>&amp;Modalità di stampa:</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Modalità di stampa</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>Come la stampante tratta il lavoro</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Five digits that you enter at the printer to release a private job</source>
        <translation>Cinque cifre da immettere sulla stampante per rilasciare un lavoro riservato</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>Immetterla sulla stampante per rilasciare il lavoro.</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>Codice &amp;reparto:</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>Codice reparto</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>Se il lavoro viene addebitato al reparto indicato sotto</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;odice:</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>Cifre del codice reparto</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>Cinque cifre del reparto a cui viene addebitato il lavoro</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>Distingui linee so&amp;ttili:</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>Distingui linee sottili</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>Mantiene separate e visibili le linee molto sottili</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>Ignora pagine &amp;bianche:</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>Ignora pagine bianche</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>Omette le pagine su cui non viene stampato nulla</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Il bilanciamento del colore non è disponibile quando «%1» è impostato su «%2».</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Non disponibile quando «%1» è impostato su «%2».</translation>
    </message>
</context>
</TS>
