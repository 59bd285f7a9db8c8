<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ScreenDoctor</name>
    <message>
        <source>QT_QPA_EGLFS_PHYSICAL_WIDTH=160 and QT_QPA_EGLFS_PHYSICAL_HEIGHT=100 in the environment (pixels: QT_QPA_EGLFS_WIDTH and QT_QPA_EGLFS_HEIGHT), or physicalWidth and physicalHeight in the file that QT_QPA_EGLFS_KMS_CONFIG names</source>
        <translation>QT_QPA_EGLFS_PHYSICAL_WIDTH=160 und QT_QPA_EGLFS_PHYSICAL_HEIGHT=100 in der Umgebung (Pixel: QT_QPA_EGLFS_WIDTH und QT_QPA_EGLFS_HEIGHT), oder physicalWidth und physicalHeight in der Datei, die QT_QPA_EGLFS_KMS_CONFIG nennt</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM=linuxfb:mmsize=160x100 in the environment (pixels: linuxfb:size=1280x800:mmsize=160x100)</source>
        <translation>QT_QPA_PLATFORM=linuxfb:mmsize=160x100 in der Umgebung (Pixel: linuxfb:size=1280x800:mmsize=160x100)</translation>
    </message>
    <message>
        <source>the size of the output in the set-up of the compositor, which no variable of the application changes</source>
        <translation>die Größe des Ausgangs in der Einrichtung des Compositors, die keine Variable der Anwendung ändert</translation>
    </message>
    <message>
        <source>DisplaySize 160 100 in the section Monitor of xorg.conf (a server without one: its option -dpi)</source>
        <translation>DisplaySize 160 100 im Abschnitt Monitor von xorg.conf (ein Server ohne diese Datei: seine Option -dpi)</translation>
    </message>
    <message>
        <source>PanelOptions::mm = QSizeF(160, 100) for Panel::setUp() in the application (pixels: PanelOptions::px)</source>
        <translation>PanelOptions::mm = QSizeF(160, 100) für Panel::setUp() in der Anwendung (Pixel: PanelOptions::px)</translation>
    </message>
    <message>
        <source>%1; or %2</source>
        <translation>%1; oder %2</translation>
    </message>
    <message>
        <source>For a panel of 160 x 100 mm: %1.</source>
        <translation>Für ein Panel von 160 x 100 mm: %1.</translation>
    </message>
    <message>
        <source>There is no screen, or it tells no size in pixels.</source>
        <translation>Es gibt keinen Bildschirm, oder er nennt keine Größe in Pixeln.</translation>
    </message>
    <message>
        <source>The screen tells no size in millimetres.</source>
        <translation>Der Bildschirm nennt keine Größe in Millimetern.</translation>
    </message>
    <message>
        <source>%1 are exactly %2 dpi in both directions: that is made up where the size is not known.</source>
        <translation>%1 sind in beiden Richtungen genau %2 dpi: Das wird angenommen, wo die Größe nicht bekannt ist.</translation>
    </message>
    <message>
        <source>%1: a pixel is %2 times as high as wide.</source>
        <translation>%1: Ein Pixel ist %2-mal so hoch wie breit.</translation>
    </message>
    <message>
        <source>%1: a pixel is %2 times as high as wide; width and height in mm look swapped.</source>
        <translation>%1: Ein Pixel ist %2-mal so hoch wie breit; Breite und Höhe in mm scheinen vertauscht zu sein.</translation>
    </message>
    <message>
        <source>%1 x %2 px on %3 x %4 mm</source>
        <translation>%1 x %2 px auf %3 x %4 mm</translation>
    </message>
    <message>
        <source>%1: the millimetres look like pixels.</source>
        <translation>%1: Die Millimeter sehen nach Pixeln aus.</translation>
    </message>
    <message>
        <source>%1: panels have 2 to 25 px/mm.</source>
        <translation>%1: Panels haben 2 bis 25 px/mm.</translation>
    </message>
</context>
<context>
    <name>UpdateMainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation>Hauptfenster</translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>Updating ...</source>
        <translation>Wird aktualisiert ...</translation>
    </message>
</context>
<context>
    <name>vexo::hox::qt::panel::OnScreenKeyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalttaste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschtaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabetaste</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulatortaste</translation>
    </message>
    <message>
        <source>Next language</source>
        <translation>Nächste Sprache</translation>
    </message>
    <message>
        <source>Hide keyboard</source>
        <translation>Tastatur ausblenden</translation>
    </message>
</context>
<context>
    <name>vexo::hox::qt::ui::VexoLineEdit</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>vexo::hox::qt::ui::VexoNumericButton</name>
    <message>
        <source>Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>Increase</source>
        <translation>Erhöhen</translation>
    </message>
</context>
<context>
    <name>vexo::hox::qt::ui::VexoVerticalButtonScrollArea</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
</TS>
