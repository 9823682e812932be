<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="eo">
<context>
    <name>Sample</name>
    <message>
        <source>IDS_BOTH</source>
        <translation>ambaŭ</translation>
    </message>
    <message>
        <source>IDS_OWN_ONLY</source>
        <translation>nur Esperante</translation>
    </message>
</context>
</TS>
