<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>Farb&amp;modus:</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>In welchen Farben der Auftrag gedruckt wird</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>A&amp;uflösung:</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>Wie fein die Druckpunkte sind</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Rasterung:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Rasterung</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>Wie Farbtöne aus Punkten entstehen</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>Toner &amp;sparen</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>Druckt blasser und verbraucht weniger Toner</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>&amp;Bildtyp:</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>Bildtyp</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>Was auf den Seiten überwiegend zu sehen ist</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>Farb&amp;profile&#xa0;…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>Die Farbprofile des Druckers</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>Schwarz &amp;überdrucken:</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>Schwarz überdrucken</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>Druckt schwarzen Text über Farben, statt diese darunter auszusparen</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>Reines Schwarz und &amp;Grau:</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>Reines Schwarz und Grau</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>Was nur mit schwarzem Toner gedruckt wird</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Zurück</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>Zurück zu den grundlegenden Farbeinstellungen</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>Farbprofile</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>&amp;RGB-Quelle:</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>RGB-Quellprofil</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>Wie die RGB-Farben des Auftrags gemeint sind</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>&amp;CMYK-Quelle:</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>CMYK-Quellprofil</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>Wie die CMYK-Farben des Auftrags gemeint sind</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>CMYK-Z&amp;iel:</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>CMYK-Zielprofil</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>Papier und Toner, für die die Farben umgerechnet werden</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Wiedergabe&amp;absicht:</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Wiedergabeabsicht</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>Was mit Farben geschieht, die der Drucker nicht drucken kann</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>Absicht %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>&amp;Nur auf Gerätefarben anwenden</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>Lässt Farben unverändert, die ein eigenes Profil mitbringen</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>Vom Drucker n&amp;eu laden</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>Fragt Profile und Standardwerte erneut vom Drucker ab.</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>Farbbalance</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>Bildqualität</translation>
    </message>
    <message>
        <source>&amp;Cyan:</source>
        <translation>&amp;Cyan:</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Cyan back to neutral</source>
        <translation>Cyan auf neutral zurücksetzen</translation>
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
        <translation>Magenta auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>&amp;Gelb:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>Gelb auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>Sch&amp;warz:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>Schwarz auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>Sch&amp;ärfe:</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>Schärfe auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>Helligkeit auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>Kontrast auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>&amp;Sättigung:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>Sättigung auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>Hinterg&amp;rund:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>Hintergrund auf neutral zurücksetzen</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>Weniger oder mehr Cyan-Toner</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>Weniger oder mehr Magenta-Toner</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>Weniger oder mehr gelber Toner</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>Weniger oder mehr schwarzer Toner</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>Weichere oder schärfere Kanten</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>Dunkler oder heller</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>Kontrastärmer oder kontrastreicher</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>Blassere oder kräftigere Farben</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>Hellerer oder dunklerer Seitenhintergrund</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>Zurück auf neutral</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>Setzt jeden Regler auf neutral zurück</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>Druckmodus</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>Farbeinstellungen 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>Farbeinstellungen 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>Farbprofile werden vom Drucker abgefragt&#xa0;…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>Der Drucker ist nicht erreichbar, daher sind seine Farbprofile nicht bekannt. Prüfen Sie, ob er eingeschaltet und angeschlossen ist, und wählen Sie dann „Vom Drucker neu laden“.</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>Die Software zum Abfragen der Farbprofile vom Drucker (net-snmp) ist auf diesem Computer nicht verwendbar. Bitten Sie Ihre Systemverwaltung, sie zu installieren.</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>Die Antwort des Druckers war nicht verständlich, daher sind seine Farbprofile nicht bekannt. Wählen Sie „Vom Drucker neu laden“; wenn das nicht hilft, wenden Sie sich an Ihre Systemverwaltung.</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>Druckmodus</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>Vertraulicher Druck</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>Probedruck</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>Angehaltener Druck</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>Dünne Linien hervorheben</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>Leere Seiten überspringen</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>Abteilungscode</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>Vollfarbe</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>Zweifarbig</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Rasterung</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>Detailreich</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>Toner sparen</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>Bildtyp</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>Präsentation</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>Strichzeichnung</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>Schwarz überdrucken</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>Reines Schwarz und Grau</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>Schwarz und Grau</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>Nur Schwarz</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
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
        <translation>Cyan</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ColorBalanceYellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>Was der Drucker mit dem Auftrag tut, wenn er ankommt: gleich drucken, bis zur Eingabe eines Passworts zurückhalten, ein Probeexemplar drucken oder anhalten.</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>Fünf Ziffern Ihrer Wahl. Der Drucker hält den Auftrag zurück, bis Sie dieselben Ziffern an seinem Bedienfeld eingeben.</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>Ob die Seiten einer Abteilung berechnet werden. Schalten Sie es ein, wenn Ihr Drucker einen Code verlangt.</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>Fünf Ziffern der Abteilung, der die Seiten berechnet werden. Ihre Systemverwaltung kennt sie.</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>Hält sehr dünne Linien sichtbar und getrennt, etwa in technischen Zeichnungen. Text und Bilder bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>Lässt Seiten aus, auf denen nichts gedruckt wird, und spart so Papier.</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>In welchen Farben der Auftrag gedruckt wird. „Automatisch“ entscheidet Seite für Seite; Schwarzweiß kostet am wenigsten.</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>Wie fein die Druckpunkte sind. Eine höhere Auflösung zeigt kleine Schrift und Linien schärfer und kann länger dauern.</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>Wie Farbtöne aus Punkten entstehen: fein für Einzelheiten in Text und Linien, weich für Fotos und Verläufe.</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>Druckt blasser und verbraucht weniger Toner. Gut für Entwürfe, nicht für Dokumente zum Aufbewahren.</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>Was die Seiten überwiegend zeigen; die Farben werden darauf abgestimmt. Mit „Erweitert“ wählen Sie die Farbprofile selbst.</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>Druckt schwarzen Text auf die Farbe darunter, statt die Stelle weiß zu lassen. So entstehen keine hellen Ränder.</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>Druckt Schwarz oder Schwarz und Grau nur mit schwarzem Toner, damit Text und Tabellen keinen Farbstich haben.</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>Fügt Cyan hinzu oder nimmt es weg. Mehr Cyan macht das Bild kühler, weniger macht es rötlicher.</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>Fügt Magenta hinzu oder nimmt es weg. Mehr Magenta macht das Bild rosiger, weniger macht es grünlicher.</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>Fügt Gelb hinzu oder nimmt es weg. Mehr Gelb macht das Bild wärmer, weniger macht es bläulicher.</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>Fügt Schwarz hinzu oder nimmt es weg. Mehr Schwarz macht die Schatten tiefer, weniger macht sie heller.</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>Wie deutlich Kanten hervortreten. Mehr zeigt Einzelheiten, weniger verbirgt Rauschen in Fotos.</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>Macht die ganze Seite heller oder dunkler.</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>Wie weit Hell und Dunkel auseinanderliegen. Zu viel verschluckt Einzelheiten in den hellsten und dunkelsten Stellen.</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>Wie kräftig die Farben sind. Weniger macht sie grauer, mehr macht sie lebhafter.</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>Wie stark ein getönter Hintergrund gedruckt wird. Verringern Sie es, wenn das Papier einer gescannten Seite grau erscheint.</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>Welches Profil die Farben von Bildschirmen und Kameras in Ihrem Dokument beschreibt. Die Profile liegen im Drucker.</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>Welches Profil die Druckfarben in Ihrem Dokument so beschreibt, wie eine Druckmaschine sie drucken würde.</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>Welches Profil Papier und Toner beschreibt, mit denen der Drucker druckt.</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>Was mit Farben geschieht, die der Drucker nicht drucken kann: ob das ganze Bild angepasst wird oder nur diese Farben.</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>Verwendet diese Profile nur für Farben, die kein eigenes Profil mitbringen.</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>Druck&amp;modus:</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Druckmodus</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>Wie der Drucker mit dem Auftrag umgeht</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Five digits that you enter at the printer to release a private job</source>
        <translation>Fünf Ziffern, mit denen Sie einen vertraulichen Auftrag am Drucker freigeben</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>Zum Freigeben am Drucker eingeben.</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>&amp;Abteilungscode:</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>Abteilungscode</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>Ob der Auftrag der Abteilung unten berechnet wird</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;ode:</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>Ziffern des Abteilungscodes</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>Fünf Ziffern der Abteilung, der der Auftrag berechnet wird</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>Dü&amp;nne Linien hervorheben:</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>Dünne Linien hervorheben</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>Hält sehr dünne Linien getrennt und sichtbar</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>&amp;Leere Seiten überspringen:</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>Leere Seiten überspringen</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>Lässt Seiten aus, auf denen nichts steht</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Die Farbbalance ist nicht verfügbar, solange „%1“ auf „%2“ steht.</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Nicht verfügbar, solange „%1“ auf „%2“ steht.</translation>
    </message>
</context>
</TS>
