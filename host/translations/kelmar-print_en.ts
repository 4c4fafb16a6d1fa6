<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>host::JobCostLabel</name>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n sheet</numerusform>
            <numerusform>%n sheets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sides</source>
        <translation>
            <numerusform>%n side</numerusform>
            <numerusform>%n sides</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::RangeCheck</name>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n printed sides.</source>
        <translation>
            <numerusform>The longest document, “%1”, has only %n printed side.</numerusform>
            <numerusform>The longest document, “%1”, has only %n printed sides.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The longest document, “%1”, has only %n pages.</source>
        <translation>
            <numerusform>The longest document, “%1”, has only %n page.</numerusform>
            <numerusform>The longest document, “%1”, has only %n pages.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are only %n printed sides.</source>
        <translation>
            <numerusform>There is only %n printed side.</numerusform>
            <numerusform>There are only %n printed sides.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The document has only %n pages.</source>
        <translation>
            <numerusform>The document has only %n page.</numerusform>
            <numerusform>The document has only %n pages.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::SearchBar</name>
    <message numerus="yes">
        <source>%n settings found</source>
        <translation>
            <numerusform>%n setting found</numerusform>
            <numerusform>%n settings found</numerusform>
        </translation>
    </message>
</context>
</TS>
