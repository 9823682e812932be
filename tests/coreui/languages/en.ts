<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Sample</name>
    <message>
        <source>IDS_BOTH</source>
        <translation>both</translation>
    </message>
    <message>
        <source>IDS_ENGLISH_ONLY</source>
        <translation>English only</translation>
    </message>
    <message>
        <source>IDS_TWO_CONTEXTS</source>
        <translation>of the sample</translation>
    </message>
</context>
<context>
    <name>Other</name>
    <message>
        <source>IDS_TWO_CONTEXTS</source>
        <translation>of the other</translation>
    </message>
</context>
</TS>
