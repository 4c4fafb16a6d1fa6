<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>&amp;Mode couleur&#xa0;:</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>Couleurs dans lesquelles la tâche est imprimée</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>Finesse des points imprimés</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Tramage&#xa0;:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>Façon dont les nuances sont formées de points</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>&amp;Économie de toner</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>Imprime plus clair pour utiliser moins de toner</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>T&amp;ype d’image&#xa0;:</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>Type d’image</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>Ce que les pages montrent surtout</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>&amp;Profils de couleurs…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>Les profils de couleurs de l’imprimante</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>&amp;Surimpression du noir&#xa0;:</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>Surimpression du noir</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>Imprime le texte noir sur les couleurs au lieu de les évider</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>Noir et &amp;gris purs&#xa0;:</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>Noir et gris purs</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>Ce qui est imprimé avec le seul toner noir</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ R&amp;etour</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>Revenir aux réglages de base des couleurs</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>Profils de couleurs</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>Source &amp;RVB&#xa0;:</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>Profil source RVB</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>Signification des couleurs RVB de la tâche</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>&amp;Source CMJN&#xa0;:</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>Profil source CMJN</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>Signification des couleurs CMJN de la tâche</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>&amp;Destination CMJN&#xa0;:</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>Profil de destination CMJN</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>Le papier et les toners pour lesquels les couleurs sont converties</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>&amp;Mode de rendu&#xa0;:</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Mode de rendu</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>Traitement des couleurs que l’imprimante ne peut pas imprimer</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>Mode %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>&amp;Appliquer aux couleurs d’appareil seulement</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>Ne touche pas aux couleurs qui ont leur propre profil</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>Re&amp;charger depuis l’imprimante</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>Redemande à l’imprimante ses profils et valeurs par défaut.</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>Équilibre des couleurs</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>Qualité d’image</translation>
    </message>
    <message>
        <source>&amp;Cyan:</source>
        <translation>&amp;Cyan&#xa0;:</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Cyan back to neutral</source>
        <translation>Cyan&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>&amp;Magenta:</source>
        <translation>&amp;Magenta&#xa0;:</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Magenta back to neutral</source>
        <translation>Magenta&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>&amp;Jaune&#xa0;:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>Jaune&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>&amp;Noir&#xa0;:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>Noir&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>Ne&amp;tteté&#xa0;:</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>Netteté&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosité&#xa0;:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>Luminosité&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>C&amp;ontraste&#xa0;:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>Contraste&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>&amp;Saturation&#xa0;:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>Saturation&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>&amp;Fond&#xa0;:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>Fond&#xa0;: revenir au neutre</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>Moins ou plus de toner cyan</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>Moins ou plus de toner magenta</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>Moins ou plus de toner jaune</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>Moins ou plus de toner noir</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>Contours plus doux ou plus nets</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>Plus sombre ou plus clair</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>Moins ou plus contrasté</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>Couleurs plus pâles ou plus vives</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>Fond de page plus clair ou plus foncé</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>Revenir au neutre</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>&amp;Rétablir tout</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>Ramène tous les curseurs au neutre</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>Mode d’impression</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>Réglages des couleurs 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>Réglages des couleurs 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>Colorimétrie relative</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>Colorimétrie absolue</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>Lecture des profils de couleurs de l’imprimante…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>L’imprimante est injoignable&#xa0;; ses profils de couleurs sont donc inconnus. Vérifiez qu’elle est allumée et connectée, puis choisissez «&#xa0;Recharger depuis l’imprimante&#xa0;».</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>Le logiciel qui lit les profils de couleurs de l’imprimante (net-snmp) n’est pas utilisable sur cet ordinateur. Demandez à votre administrateur de l’installer.</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>La réponse de l’imprimante n’a pas été comprise&#xa0;; ses profils de couleurs sont donc inconnus. Choisissez «&#xa0;Recharger depuis l’imprimante&#xa0;»&#xa0;; si cela ne suffit pas, adressez-vous à votre administrateur.</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>Mode d’impression</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>Impression confidentielle</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>Épreuve</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>Impression en attente</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>Distinguer les traits fins</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>Ignorer les pages vierges</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>Code de service</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>Quadrichromie</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>Bichromie</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Tramage</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>Détaillé</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>Lisse</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>Économie de toner</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>Type d’image</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>Dessin au trait</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>Surimpression du noir</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>Noir et gris purs</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>Noir et gris</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>Noir seulement</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
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
        <translation>Cyan</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>ColorBalanceYellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>Ce que l’imprimante fait de la tâche à son arrivée : l’imprimer aussitôt, la garder jusqu’à la saisie d’un mot de passe, en tirer une épreuve ou la mettre en attente.</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>Cinq chiffres de votre choix. L’imprimante garde la tâche jusqu’à ce que vous saisissiez les mêmes chiffres sur son panneau.</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>Indique si les pages sont imputées à un service. Activez-le si votre imprimante demande un code.</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>Les cinq chiffres du service auquel les pages sont imputées. Votre administrateur les connaît.</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>Garde les traits très fins visibles et distincts, par exemple dans les dessins techniques. Le texte et les images ne changent pas.</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>Omet les pages sur lesquelles rien n’est imprimé, ce qui économise du papier.</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>Les couleurs dans lesquelles la tâche est imprimée. Le mode automatique décide page par page ; le noir et blanc coûte le moins.</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>La finesse des points. Une résolution plus élevée rend les petits textes et les traits plus nets et peut prendre plus de temps.</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>La façon dont les nuances sont faites de points : fine pour le détail des textes et des traits, douce pour les photos et les dégradés.</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>Imprime plus pâle pour consommer moins de toner. Convient aux brouillons, pas aux documents à conserver.</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>Ce que montrent surtout les pages ; les couleurs y sont adaptées. Le mode avancé vous laisse choisir vous-même les profils de couleurs.</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>Imprime le texte noir par-dessus la couleur au lieu de laisser l’emplacement blanc : aucun bord clair n’apparaît.</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>Imprime le noir, ou le noir et le gris, avec le seul toner noir, afin que textes et tableaux n’aient pas de teinte.</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>Ajoute ou retire du cyan. Plus de cyan refroidit l’image, moins la rend plus rouge.</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>Ajoute ou retire du magenta. Plus de magenta rend l’image plus rose, moins la rend plus verte.</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>Ajoute ou retire du jaune. Plus de jaune réchauffe l’image, moins la rend plus bleue.</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>Ajoute ou retire du noir. Plus de noir approfondit les ombres, moins les éclaircit.</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>La netteté des contours. Plus de netteté montre les détails, moins masque le bruit des photos.</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>Éclaircit ou assombrit toute la page.</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>L’écart entre le clair et le sombre. Trop de contraste fait perdre des détails dans les zones les plus claires et les plus sombres.</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>L’intensité des couleurs. Moins les rend plus grises, plus les rend plus vives.</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>L’intensité d’un fond teinté. Diminuez-la si le papier d’une page numérisée apparaît gris.</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>Le profil qui décrit les couleurs d’écrans et d’appareils photo de votre document. L’imprimante contient ces profils.</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>Le profil qui décrit les encres de votre document, telles qu’une presse les imprimerait.</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>Le profil qui décrit le papier et le toner avec lesquels l’imprimante imprime.</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>Ce que deviennent les couleurs que l’imprimante ne peut pas imprimer : adapter toute l’image ou ces seules couleurs.</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>N’utilise ces profils que pour les couleurs qui n’ont pas leur propre profil.</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>&amp;Mode d’impression&#xa0;:</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Mode d’impression</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>Façon dont l’imprimante traite la tâche</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Mot de &amp;passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Five digits that you enter at the printer to release a private job</source>
        <translation>Cinq chiffres à saisir sur l’imprimante pour libérer une tâche confidentielle</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>À saisir sur l’imprimante pour libérer la tâche.</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>&amp;Code de service&#xa0;:</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>Code de service</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>Indique si la tâche est imputée au service ci-dessous</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;ode&#xa0;:</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>Chiffres du code de service</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>Cinq chiffres du service auquel la tâche est imputée</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>Distinguer les &amp;traits fins&#xa0;:</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>Distinguer les traits fins</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>Garde les traits très fins séparés et visibles</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>Ignorer les pages &amp;vierges&#xa0;:</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>Ignorer les pages vierges</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>Omet les pages sur lesquelles rien n’est imprimé</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>L’équilibre des couleurs n’est pas disponible tant que «&#xa0;%1&#xa0;» est réglé sur «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Non disponible tant que «&#xa0;%1&#xa0;» est réglé sur «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
</TS>
