<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CameraScreen</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Picture of the camera</source>
        <translation>Bild der Kamera</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
</context>
<context>
    <name>ContactsScreen</name>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Nobody has this name.</source>
        <translation>Niemand heißt so.</translation>
    </message>
    <message>
        <source>Call %1?</source>
        <translation>%1 anrufen?</translation>
    </message>
    <message>
        <source>Telephone %1</source>
        <translation>Telefon %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>Calling %1 ...</source>
        <translation>%1 wird angerufen ...</translation>
    </message>
</context>
<context>
    <name>InfoScreen</name>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Toolkit</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Size of the screen</source>
        <translation>Größe des Bildschirms</translation>
    </message>
    <message>
        <source>Looks right</source>
        <translation>Sieht richtig aus</translation>
    </message>
</context>
<context>
    <name>PinScreen</name>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>An update needs the PIN of the owner.</source>
        <translation>Ein Update braucht die PIN des Besitzers.</translation>
    </message>
</context>
<context>
    <name>Screen</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Night look</source>
        <translation>Nachtansicht</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>When nobody touches the panel</source>
        <translation>Wenn niemand das Panel berührt</translation>
    </message>
    <message>
        <source>Dim by</source>
        <translation>Abdunkeln um</translation>
    </message>
    <message>
        <source>After, seconds</source>
        <translation>Nach Sekunden</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Slide for</source>
        <translation>Gleiten für</translation>
    </message>
    <message>
        <source>Dim now</source>
        <translation>Jetzt abdunkeln</translation>
    </message>
    <message>
        <source>Reset to factory settings</source>
        <translation>Auf Werkseinstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to factory settings?</source>
        <translation>Auf Werkseinstellungen zurücksetzen?</translation>
    </message>
    <message>
        <source>Look and dimming go back to what they were on the first day.</source>
        <translation>Ansicht und Abdunkeln sind dann wieder wie am ersten Tag.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Factory settings restored</source>
        <translation>Werkseinstellungen wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>Call somebody</source>
        <translation>Jemanden anrufen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Front door</source>
        <translation>Haustür</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Display, language</source>
        <translation>Anzeige, Sprache</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Versions, screen</source>
        <translation>Versionen, Schirm</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Needs the PIN</source>
        <translation>Braucht die PIN</translation>
    </message>
    <message>
        <source>Is on</source>
        <translation>Ist an</translation>
    </message>
    <message>
        <source>Is off</source>
        <translation>Ist aus</translation>
    </message>
    <message>
        <source>Night look</source>
        <translation>Nachtansicht</translation>
    </message>
</context>
<context>
    <name>UpdateScreen</name>
    <message>
        <source>Updating ...</source>
        <translation>Update läuft ...</translation>
    </message>
    <message>
        <source>Please leave the panel switched on.</source>
        <translation>Bitte das Panel eingeschaltet lassen.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>The panel is up to date.</source>
        <translation>Das Panel ist auf dem neuesten Stand.</translation>
    </message>
</context>
</TS>
