<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ColorSettings1</name>
    <message>
        <source>Color &amp;Mode:</source>
        <translation>Color &amp;Mode:</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>In which colors the job is printed</source>
        <translation>In which colors the job is printed</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolution:</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>How fine the dots are</source>
        <translation>How fine the dots are</translation>
    </message>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Halftone:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>How shades are made of dots</source>
        <translation>How shades are made of dots</translation>
    </message>
    <message>
        <source>Toner &amp;Save</source>
        <translation>Toner &amp;Save</translation>
    </message>
    <message>
        <source>Prints paler to use less toner</source>
        <translation>Prints paler to use less toner</translation>
    </message>
    <message>
        <source>&amp;Image Type:</source>
        <translation>&amp;Image Type:</translation>
    </message>
    <message>
        <source>Image Type</source>
        <translation>Image Type</translation>
    </message>
    <message>
        <source>What the pages mostly show</source>
        <translation>What the pages mostly show</translation>
    </message>
    <message>
        <source>Color Pro&amp;files…</source>
        <translation>Color Pro&amp;files…</translation>
    </message>
    <message>
        <source>The printer’s color profiles</source>
        <translation>The printer’s color profiles</translation>
    </message>
    <message>
        <source>Black &amp;Overprint:</source>
        <translation>Black &amp;Overprint:</translation>
    </message>
    <message>
        <source>Black Overprint</source>
        <translation>Black Overprint</translation>
    </message>
    <message>
        <source>Prints black text over colors instead of leaving them out below it</source>
        <translation>Prints black text over colors instead of leaving them out below it</translation>
    </message>
    <message>
        <source>Pure Black and &amp;Gray:</source>
        <translation>Pure Black and &amp;Gray:</translation>
    </message>
    <message>
        <source>Pure Black and Gray</source>
        <translation>Pure Black and Gray</translation>
    </message>
    <message>
        <source>What is printed with black toner alone</source>
        <translation>What is printed with black toner alone</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Back</translation>
    </message>
    <message>
        <source>Back to the basic color settings</source>
        <translation>Back to the basic color settings</translation>
    </message>
    <message>
        <source>Color Profiles</source>
        <translation>Color Profiles</translation>
    </message>
    <message>
        <source>&amp;RGB source:</source>
        <translation>&amp;RGB source:</translation>
    </message>
    <message>
        <source>RGB source profile</source>
        <translation>RGB source profile</translation>
    </message>
    <message>
        <source>How the job’s RGB colors are meant</source>
        <translation>How the job’s RGB colors are meant</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Profile %1</translation>
    </message>
    <message>
        <source>&amp;CMYK source:</source>
        <translation>&amp;CMYK source:</translation>
    </message>
    <message>
        <source>CMYK source profile</source>
        <translation>CMYK source profile</translation>
    </message>
    <message>
        <source>How the job’s CMYK colors are meant</source>
        <translation>How the job’s CMYK colors are meant</translation>
    </message>
    <message>
        <source>CMYK &amp;destination:</source>
        <translation>CMYK &amp;destination:</translation>
    </message>
    <message>
        <source>CMYK destination profile</source>
        <translation>CMYK destination profile</translation>
    </message>
    <message>
        <source>The paper and toners that the colors are converted for</source>
        <translation>The paper and toners that the colors are converted for</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Rendering &amp;intent:</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Rendering intent</translation>
    </message>
    <message>
        <source>What happens to colors that the printer cannot print</source>
        <translation>What happens to colors that the printer cannot print</translation>
    </message>
    <message>
        <source>Intent %1</source>
        <translation>Intent %1</translation>
    </message>
    <message>
        <source>&amp;Apply to device colors only</source>
        <translation>&amp;Apply to device colors only</translation>
    </message>
    <message>
        <source>Leaves colors alone that bring a profile of their own</source>
        <translation>Leaves colors alone that bring a profile of their own</translation>
    </message>
    <message>
        <source>Re&amp;load from Printer</source>
        <translation>Re&amp;load from Printer</translation>
    </message>
    <message>
        <source>Asks the printer again for its profiles and defaults.</source>
        <translation>Asks the printer again for its profiles and defaults.</translation>
    </message>
</context>
<context>
    <name>ColorSettings2</name>
    <message>
        <source>Color Balance</source>
        <translation>Color Balance</translation>
    </message>
    <message>
        <source>Image Quality</source>
        <translation>Image Quality</translation>
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
        <translation>Cyan back to neutral</translation>
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
        <translation>Magenta back to neutral</translation>
    </message>
    <message>
        <source>&amp;Yellow:</source>
        <translation>&amp;Yellow:</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Yellow back to neutral</source>
        <translation>Yellow back to neutral</translation>
    </message>
    <message>
        <source>Blac&amp;k:</source>
        <translation>Blac&amp;k:</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Black back to neutral</source>
        <translation>Black back to neutral</translation>
    </message>
    <message>
        <source>&amp;Sharpness:</source>
        <translation>&amp;Sharpness:</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Sharpness back to neutral</source>
        <translation>Sharpness back to neutral</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brightness:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Brightness back to neutral</source>
        <translation>Brightness back to neutral</translation>
    </message>
    <message>
        <source>C&amp;ontrast:</source>
        <translation>C&amp;ontrast:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Contrast back to neutral</source>
        <translation>Contrast back to neutral</translation>
    </message>
    <message>
        <source>Sat&amp;uration:</source>
        <translation>Sat&amp;uration:</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Saturation back to neutral</source>
        <translation>Saturation back to neutral</translation>
    </message>
    <message>
        <source>Back&amp;ground:</source>
        <translation>Back&amp;ground:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Background back to neutral</source>
        <translation>Background back to neutral</translation>
    </message>
    <message>
        <source>Less or more cyan toner</source>
        <translation>Less or more cyan toner</translation>
    </message>
    <message>
        <source>Less or more magenta toner</source>
        <translation>Less or more magenta toner</translation>
    </message>
    <message>
        <source>Less or more yellow toner</source>
        <translation>Less or more yellow toner</translation>
    </message>
    <message>
        <source>Less or more black toner</source>
        <translation>Less or more black toner</translation>
    </message>
    <message>
        <source>Softer or sharper edges</source>
        <translation>Softer or sharper edges</translation>
    </message>
    <message>
        <source>Darker or brighter</source>
        <translation>Darker or brighter</translation>
    </message>
    <message>
        <source>Flatter or richer in contrast</source>
        <translation>Flatter or richer in contrast</translation>
    </message>
    <message>
        <source>Paler or stronger colors</source>
        <translation>Paler or stronger colors</translation>
    </message>
    <message>
        <source>Lighter or darker page background</source>
        <translation>Lighter or darker page background</translation>
    </message>
    <message>
        <source>Back to neutral</source>
        <translation>Back to neutral</translation>
    </message>
    <message>
        <source>&amp;Reset All</source>
        <translation>&amp;Reset All</translation>
    </message>
    <message>
        <source>Takes every slider back to neutral</source>
        <translation>Takes every slider back to neutral</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Print Mode</source>
        <translation>Print Mode</translation>
    </message>
    <message>
        <source>Color Settings 1</source>
        <translation>Color Settings 1</translation>
    </message>
    <message>
        <source>Color Settings 2</source>
        <translation>Color Settings 2</translation>
    </message>
    <message>
        <source>RenderingIntent:0</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>RenderingIntent:1</source>
        <translation>Relative colorimetric</translation>
    </message>
    <message>
        <source>RenderingIntent:2</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>RenderingIntent:3</source>
        <translation>Absolute colorimetric</translation>
    </message>
    <message>
        <source>AskingPrinter</source>
        <translation>Asking the printer for its color profiles…</translation>
    </message>
    <message>
        <source>SNMPCannotConnect</source>
        <translation>The printer cannot be reached, so its color profiles are not known. Check that it is switched on and connected, then choose “Reload from Printer”.</translation>
    </message>
    <message>
        <source>SNMPArchMismatch</source>
        <translation>The software that asks the printer for its color profiles (net-snmp) cannot be used on this computer. Ask your administrator to install it.</translation>
    </message>
    <message>
        <source>SNMPUnknownError</source>
        <translation>The printer sent a response that cannot be interpreted, so its color profiles are not known. Choose “Reload from Printer”; if that does not help, ask your administrator.</translation>
    </message>
    <message>
        <source>PrintMode</source>
        <translation>Print Mode</translation>
    </message>
    <message>
        <source>PrintMode:Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>PrintMode:Private</source>
        <translation>Private</translation>
    </message>
    <message>
        <source>PrintMode:Proof</source>
        <translation>Proof</translation>
    </message>
    <message>
        <source>PrintMode:Hold</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>DistinguishThinLines</source>
        <translation>Distinguish Thin Lines</translation>
    </message>
    <message>
        <source>DistinguishThinLines:False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>DistinguishThinLines:True</source>
        <translation>On</translation>
    </message>
    <message>
        <source>BlankPage</source>
        <translation>Skip Blank Pages</translation>
    </message>
    <message>
        <source>BlankPage:False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>BlankPage:True</source>
        <translation>On</translation>
    </message>
    <message>
        <source>DeptCode</source>
        <translation>Department Code</translation>
    </message>
    <message>
        <source>DeptCode:False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>DeptCode:True</source>
        <translation>On</translation>
    </message>
    <message>
        <source>ColorType</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>ColorType:Auto</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>ColorType:Color</source>
        <translation>Full Color</translation>
    </message>
    <message>
        <source>ColorType:Mono</source>
        <translation>Black and White</translation>
    </message>
    <message>
        <source>ColorType:Twin</source>
        <translation>Two-Color</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>Halftone:Auto</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Halftone:Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Halftone:Smooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>TonerSave</source>
        <translation>Toner Save</translation>
    </message>
    <message>
        <source>TonerSave:False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>TonerSave:True</source>
        <translation>On</translation>
    </message>
    <message>
        <source>ImageType</source>
        <translation>Image Type</translation>
    </message>
    <message>
        <source>ImageType:General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>ImageType:Photo</source>
        <translation>Photograph</translation>
    </message>
    <message>
        <source>ImageType:Presentation</source>
        <translation>Presentation</translation>
    </message>
    <message>
        <source>ImageType:LineArt</source>
        <translation>Line Art</translation>
    </message>
    <message>
        <source>ImageType:Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>BlackOverPrint</source>
        <translation>Black Overprint</translation>
    </message>
    <message>
        <source>BlackOverPrint:False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>BlackOverPrint:True</source>
        <translation>On</translation>
    </message>
    <message>
        <source>PureBlackGray</source>
        <translation>Pure Black and Gray</translation>
    </message>
    <message>
        <source>PureBlackGray:Auto</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>PureBlackGray:BlackGray</source>
        <translation>Black and Gray</translation>
    </message>
    <message>
        <source>PureBlackGray:Black</source>
        <translation>Black Only</translation>
    </message>
    <message>
        <source>PureBlackGray:Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
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
        <translation>Yellow</translation>
    </message>
    <message>
        <source>ColorBalanceBlack</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>SharpnessVRN</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>BrightnessVRN</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>ContrastVRN</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>SaturationVRN</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>PrintMode?</source>
        <translation>How the printer treats the job when it arrives: prints it at once, keeps it until you enter a password, prints one proof copy, or holds it.</translation>
    </message>
    <message>
        <source>privatePassword?</source>
        <translation>Five digits of your choice. The printer keeps the job until you enter the same digits at its control panel.</translation>
    </message>
    <message>
        <source>DeptCode?</source>
        <translation>Whether the pages are charged to a department. Turn it on if your printer asks for a code.</translation>
    </message>
    <message>
        <source>departmentCode?</source>
        <translation>Five digits of the department that the pages are charged to. Your administrator knows them.</translation>
    </message>
    <message>
        <source>DistinguishThinLines?</source>
        <translation>Keeps very thin lines visible and apart, as in technical drawings. Text and pictures stay as they are.</translation>
    </message>
    <message>
        <source>BlankPage?</source>
        <translation>Leaves out pages on which nothing is printed, which saves paper.</translation>
    </message>
    <message>
        <source>ColorType?</source>
        <translation>In which colors the job is printed. Automatic looks at each page; black and white costs least.</translation>
    </message>
    <message>
        <source>Resolution?</source>
        <translation>How fine the dots are. A higher resolution shows small text and lines more sharply and may take longer.</translation>
    </message>
    <message>
        <source>Halftone?</source>
        <translation>How shades are made of dots: fine for detail in text and lines, smooth for photos and gradients.</translation>
    </message>
    <message>
        <source>TonerSave?</source>
        <translation>Prints paler to use less toner. Good for drafts, not for final documents.</translation>
    </message>
    <message>
        <source>ImageType?</source>
        <translation>What the pages mostly show; the colors are adjusted for it. Advanced lets you choose the color profiles yourself.</translation>
    </message>
    <message>
        <source>BlackOverPrint?</source>
        <translation>Prints black text on top of the color below it instead of leaving the area white, so that no light edges appear.</translation>
    </message>
    <message>
        <source>PureBlackGray?</source>
        <translation>Prints black, or black and gray, with black toner alone, so that text and tables show no tint.</translation>
    </message>
    <message>
        <source>ColorBalanceCyan?</source>
        <translation>Adds cyan or takes it away. More cyan makes the picture cooler, less makes it redder.</translation>
    </message>
    <message>
        <source>ColorBalanceMagenta?</source>
        <translation>Adds magenta or takes it away. More magenta makes the picture pinker, less makes it greener.</translation>
    </message>
    <message>
        <source>ColorBalanceYellow?</source>
        <translation>Adds yellow or takes it away. More yellow makes the picture warmer, less makes it bluer.</translation>
    </message>
    <message>
        <source>ColorBalanceBlack?</source>
        <translation>Adds black or takes it away. More black makes shadows deeper, less makes them lighter.</translation>
    </message>
    <message>
        <source>SharpnessVRN?</source>
        <translation>How clearly edges stand out. More shows detail, less hides noise in photos.</translation>
    </message>
    <message>
        <source>BrightnessVRN?</source>
        <translation>Makes the whole page lighter or darker.</translation>
    </message>
    <message>
        <source>ContrastVRN?</source>
        <translation>The difference between light and dark areas. Too much loses detail in the brightest and darkest areas.</translation>
    </message>
    <message>
        <source>SaturationVRN?</source>
        <translation>How strong the colors are. Less makes them grayer, more makes them more vivid.</translation>
    </message>
    <message>
        <source>BackgroundAdjustmentVRN?</source>
        <translation>How strongly a tinted background is printed. Reduce it if the paper of a scanned page appears gray.</translation>
    </message>
    <message>
        <source>selectedRgbSourceProfile?</source>
        <translation>Which profile describes the colors of screens and cameras in your document. The printer holds these profiles.</translation>
    </message>
    <message>
        <source>selectedCmykSourceProfile?</source>
        <translation>Which profile describes the ink colors in your document, as a press would print them.</translation>
    </message>
    <message>
        <source>selectedCmykDestinationProfile?</source>
        <translation>Which profile describes the paper and toner that the printer prints with.</translation>
    </message>
    <message>
        <source>renderingIntent?</source>
        <translation>What happens to colors that the printer cannot print: whether the whole picture is adjusted or only those colors.</translation>
    </message>
    <message>
        <source>applyToDeviceColorOnly?</source>
        <translation>Uses these profiles only for colors that do not have their own profile.</translation>
    </message>
</context>
<context>
    <name>PrintMode</name>
    <message>
        <source>Print &amp;Mode:</source>
        <translation>Print &amp;Mode:</translation>
    </message>
    <message>
        <source>Print Mode</source>
        <translation>Print Mode</translation>
    </message>
    <message>
        <source>How the printer treats the job</source>
        <translation>How the printer treats the job</translation>
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
        <translation>Five digits that you enter at the printer to release a private job</translation>
    </message>
    <message>
        <source>Enter it at the printer to release the job.</source>
        <translation>Enter it at the printer to release the job.</translation>
    </message>
    <message>
        <source>&amp;Department Code:</source>
        <translation>&amp;Department Code:</translation>
    </message>
    <message>
        <source>Department Code</source>
        <translation>Department Code</translation>
    </message>
    <message>
        <source>Whether the job is charged to the department below</source>
        <translation>Whether the job is charged to the department below</translation>
    </message>
    <message>
        <source>C&amp;ode:</source>
        <translation>C&amp;ode:</translation>
    </message>
    <message>
        <source>Department code digits</source>
        <translation>Department code digits</translation>
    </message>
    <message>
        <source>Five digits of the department that the job is charged to</source>
        <translation>Five digits of the department that the job is charged to</translation>
    </message>
    <message>
        <source>Distinguish &amp;Thin Lines:</source>
        <translation>Distinguish &amp;Thin Lines:</translation>
    </message>
    <message>
        <source>Distinguish Thin Lines</source>
        <translation>Distinguish Thin Lines</translation>
    </message>
    <message>
        <source>Keeps very thin lines apart and visible</source>
        <translation>Keeps very thin lines apart and visible</translation>
    </message>
    <message>
        <source>Skip &amp;Blank Pages:</source>
        <translation>Skip &amp;Blank Pages:</translation>
    </message>
    <message>
        <source>Skip Blank Pages</source>
        <translation>Skip Blank Pages</translation>
    </message>
    <message>
        <source>Leaves out pages that nothing is printed on</source>
        <translation>Leaves out pages that nothing is printed on</translation>
    </message>
</context>
<context>
    <name>QVPDEColorSettings2_M880</name>
    <message>
        <source>Color balance is not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Color balance is not available while “%1” is “%2”.</translation>
    </message>
</context>
<context>
    <name>QVPopUpButton_M880</name>
    <message>
        <source>Not available while &quot;%1&quot; is &quot;%2&quot;.</source>
        <translation>Not available while “%1” is “%2”.</translation>
    </message>
</context>
</TS>
