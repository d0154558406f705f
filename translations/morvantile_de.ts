<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>Über Morvantile</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>Symbol von Morvantile</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – Einzelbilder aus Videos aufnehmen</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>Fragen und Vorschläge sind jederzeit willkommen!</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – Stapelmodus</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>Video laden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>Fortschritt beim Lesen der Videos</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>Lesen anhalten</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>Die gelesenen Videos behalten und die übrigen verwerfen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>Ausgewähltes Video</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[Kein Video ausgewählt]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>Bildeinstellungen</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>Bildprofil:</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Bildprofil</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>Bildprofil bearbeiten</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>Das Bildprofil bearbeiten</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>Dateiausgabe</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>Aufnahmeabstand</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Erstelle</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>Eine Anzahl von Bildern erstellen</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Anzahl der Bilder</translation>
    </message>
    <message>
        <source>images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>Einzelnes Bild</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>Ein einzelnes Bild erstellen</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>Stelle des einzelnen Bildes</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>Nimmt genau die Einzelbilder an diesen Positionen, auf allen Prozessorkernen. Sonst wird stattdessen ein Schlüsselbild nahe der Position genommen.</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>Exakte Einzelbilder</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>Für neue Videos verwenden</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>Später hinzugefügte Videos beginnen mit den Einstellungen des ausgewählten</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>Was der Stapel erstellen wird</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Fehlgeschlagene wiederholen</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>Die Videos, bei denen etwas fehlgeschlagen ist, noch einmal verarbeiten</translation>
    </message>
    <message>
        <source>front</source>
        <translation>am Anfang</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>in der Mitte</translation>
    </message>
    <message>
        <source>back</source>
        <translation>am Ende</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>Der Stapel kann starten, sobald alle Videos gelesen sind</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>Video %1 von %2 wird gelesen:</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 Bild</numerusform>
            <numerusform>%1 Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>Etwa %1 aus 1 Video</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>Etwa %1 aus %n Video</numerusform>
            <numerusform>Etwa %1 aus %n Videos</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>Der Ordner für die Bilder ist nicht vorhanden. Soll er erstellt werden?</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>Diese Ordner für die Bilder sind nicht vorhanden. Sollen sie erstellt werden?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>%1 konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>Viele Bilder</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Mehrere</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>Dateinamen bearbeiten</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>Bearbeiten, wie Dateien benannt werden</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Den Ordner für die Bilder wählen</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>Alle so viele Sekunden ein Bild erstellen</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>Sekunden von Bild zu Bild</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>Sekunden überspringen</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>Sekunden, die am Anfang übersprungen werden</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>Sekunden, die am Ende übersprungen werden</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>Noch keine Videos</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>Laden Sie Videos oder legen Sie sie hier ab. Wählen Sie dann, welche Bilder aus jedem entstehen.</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>Dieser Stapel ergibt etwa %1 Bild. Starten?</numerusform>
            <numerusform>Dieser Stapel ergibt etwa %1 Bilder. Starten?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>Ausgabebeispiel</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>Aktuelles Video</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>Fortschritt des aktuellen Videos</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>Dieses Video: %p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>Fortschritt aller Videos</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>Alle Videos: %p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Letztes Bild</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>Stapelverarbeitung abbrechen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>Soll die Stapelverarbeitung wirklich abgebrochen werden?
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>Bilder können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>Schaffen Sie Platz und versuchen Sie es noch einmal, oder brechen Sie ab. Schon gespeicherte Bilder bleiben erhalten.</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>1 Bild</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>Abgebrochen nach %1</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>Fertig: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1, %n fehlgeschlagen</numerusform>
            <numerusform>%1, %n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1 (und %n weiterer dieser Art)</numerusform>
            <numerusform>%1 (und %n weitere dieser Art)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>Fehler beim Entnehmen des Einzelbilds: %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>Speichern: %1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>kein Bild bei %1 s gefunden</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>%1 konnte aus %2 s nicht erstellt werden: %3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>Einzeln am Anfang</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>Einzeln in der Mitte</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>Einzeln am Ende</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>Einzeln </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>Alle %1 s</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>Schnappschuss aufnehmen</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>Beste Bilder</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>Beste Einzelbilder</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>Das ausgewählte Einzelbild aufnehmen</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>Die schärfsten Einzelbilder von %1 bis %2 werden gesucht …</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>Alle Einzelbilder hier sind schwarz, unscharf oder an einem Schnitt.</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>Ein Klick geht zum Einzelbild, ein Doppelklick nimmt es auf.</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>Doppelklick setzt zurück</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>Zum Öffnen ablegen</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>Videos werden gesucht …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>Profil auswählen</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Präfix:</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Präfix</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>Suffix:</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Suffix</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>Beispielvideo:</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>Ausgabe:</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>Für den Stapelmodus, wenn nur ein einzelnes Bild verlangt wird.</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>Einzelnes Bild:</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>Einstellungen der Dateinamenprofile</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>Aufbau des Dateinamens</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>1 Schnappschuss löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>%n Schnappschuss löschen</numerusform>
            <numerusform>%n Schnappschüsse löschen</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>Filmstreifen</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>Alle noch nicht gespeicherten Schnappschüsse speichern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>Schnappschüsse löschen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>Alle gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n nicht gespeichert</numerusform>
            <numerusform>%n nicht gespeichert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>Das Formular verschieben</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>Filter vergleichen</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Vorher und nachher</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Die Linie ziehen, um zu vergleichen</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>Filter für eine andere Größe</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>In das Profil übernehmen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bikubisch</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächster Nachbar</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>Diese Werte in das Bildprofil „%1“ übernehmen</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>Bildprofil</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>Einstellungen der Bildprofile</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Profil auswählen</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>Gleiche Größe wie das Video</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>Bildbreite:</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>Bildbreite</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>Bildhöhe:</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>Bildhöhe</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>Größe in linearem Licht ändern</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>Deinterlacing:</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Deinterlacing</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR:</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>Was aus hohem Dynamikumfang in PNG- und TIFF-Dateien wird; andere Dateien und der Bildschirm zeigen ihn mit Tone-Mapping</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>Was aus hohem Dynamikumfang wird</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>Dateieinstellungen</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>JPEG-Qualität:</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>Metadaten:</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>PNG und TIFF mit 16 Bit</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>Bildkorrekturen</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>Wasserzeichen bearbeiten</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[Kein Wasserzeichen]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bikubisch</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächster Nachbar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>Ohne Ort</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mit Tone-Mapping</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Die Linie ziehen, um zu vergleichen</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Vorher und nachher</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> oder </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip and keys</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>%1 erscheint nach dem nächsten Start in dieser Sprache.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>Ein Stück zurückspringen</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Ein Einzelbild zurück</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Ein Einzelbild weiter</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Ein Stück vorspringen</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Schnappschuss aufnehmen</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Das Bild auf dem Schirm aufnehmen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Den Schnappschuss speichern</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Deinterlacing</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>Ein Video öffnen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Die zuletzt gespeicherte Datei in ihrem Ordner anzeigen</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>Schnappschuss kopieren</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>Den Schnappschuss kopieren, wie er angezeigt wird</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>Ganzes Einzelbild kopieren</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>Das ganze Einzelbild unbearbeitet kopieren</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>Stapelmodus</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>Bildserien aus vielen Videos aufnehmen</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>Filter vergleichen</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>Dokumentation &amp;&amp; Unterstützung</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>Optionen der Befehlszeile</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>Schritt vor</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>Schritt zurück</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>Kämmende Halbbilder zu ganzen Bildern machen</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mit Tone-Mapping</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>Hohen Dynamikumfang so umsetzen, dass ihn jeder Bildschirm zeigt</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>Die Werte des hohen Dynamikumfangs in Dateien behalten, die sie aufnehmen können, für die Farbkorrektur</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>Jedes Bild als kämmendes Zeilensprungbild behandeln</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>Bilder lassen, wie sie gespeichert sind</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>Halbbild vor</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>Weiter zum nächsten Moment eines Zeilensprungvideos</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>Halbbild zurück</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>Zurück zum vorigen Moment eines Zeilensprungvideos</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>Vorspringen</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>Zurückspringen</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Wiedergabe / Pause</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergeben oder anhalten</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>Schnappschuss aufnehmen und speichern</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>Das Bild auf dem Schirm aufnehmen und sofort unter dem nächsten automatischen Namen speichern</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>Das Bild Pixel für Pixel anzeigen</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>Den Player auf dem ganzen Bildschirm zeigen; Escape beendet das</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>10 Sekunden vorspringen</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>Zehn Sekunden vorspringen</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>10 Sekunden zurückspringen</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>Zehn Sekunden zurückspringen</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>Zum ersten Einzelbild</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>Das erste Einzelbild zeigen</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>Zum letzten Einzelbild</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>Das letzte Einzelbild zeigen</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Zu einer Zeit gehen</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>Die Zeit oder das Einzelbild eingeben, zu dem es gehen soll</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>Langsamer wiedergeben, bis zu einem Zehntel der Geschwindigkeit</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>Schneller wiedergeben, bis zu achtmal so schnell</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Normale Geschwindigkeit</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>So schnell wiedergeben, wie aufgenommen wurde</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>Anfang des Abschnitts markieren</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>Der markierte Abschnitt beginnt mit dem Bild auf dem Schirm</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>Ende des Abschnitts markieren</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>Der markierte Abschnitt endet mit dem Bild auf dem Schirm</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>Abschnitt wiederholen</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>Den markierten Abschnitt immer wieder abspielen</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>Abschnitt aufheben</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>Den markierten Abschnitt vergessen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>Den Ton stummschalten</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Alle Tasten zeigen</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>Schnappschuss speichern</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>Fehler in Morvantile</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>Die Videoausgabe konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>Beste Bilder …</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>Die schärfsten Einzelbilder um dieses herum vorschlagen</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>Nicht gespeicherter Schnappschuss</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>Der Schnappschuss ist nicht gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>%n Schnappschuss ist nicht gespeichert.</numerusform>
            <numerusform>%n Schnappschüsse sind nicht gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>Er geht verloren, wenn Sie ihn nicht speichern.</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>Sie gehen verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>Schnappschüsse werden noch geschrieben …</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>Das Bild dieses Schnappschusses lässt sich nicht mehr lesen.</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>%1 von %2 gespeichert</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>Der Filmstreifen ist voll: Speichern oder löschen Sie einige Schnappschüsse.</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>%1 ist nicht mehr da; dies ist der Schnappschuss daraus.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>1 Schnappschuss gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>%n Schnappschuss gespeichert</numerusform>
            <numerusform>%n Schnappschüsse gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1, %n konnte nicht gespeichert werden</numerusform>
            <numerusform>%1, %n konnten nicht gespeichert werden</numerusform>
        </translation>
    </message>
    <message>
        <source>Morvantile - %1</source>
        <translation>Morvantile – %1</translation>
    </message>
    <message>
        <source>Morvantile</source>
        <translation>Morvantile</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Morvantile video capture</source>
        <translation>Morvantile – Aufnahme</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>Das Einzelbild konnte nicht aufgenommen werden</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist schon vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>Schnappschuss aufgenommen: %1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Das ganze Bild zeigen</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>Jedes Pixel des Videos als vier mal vier des Bildschirms zeigen</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>Nächstes Video</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>Das nächste Video dieses Ordners öffnen</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>Voriges Video</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>Das vorige Video dieses Ordners öffnen</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>Es wurde kein Video abgelegt.</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>Mehrere Videos</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>%n Video wurde abgelegt.</numerusform>
            <numerusform>%n Videos wurden abgelegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>Das erste, %1, öffnen oder alle in die Liste des Stapelmodus übernehmen?</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Stapel</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>oder hier ablegen</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>Klicken, um ein Video zu öffnen</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>Ein Video öffnen oder hier ablegen</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Position im Video</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>Position. Klicken, um eine andere einzugeben: 1:02:03.5, +10s, -2s, f1234 oder 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>Ein Stück zurückspringen</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Ein Einzelbild zurück</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Ein Einzelbild weiter</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Ein Stück vorspringen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>Lautstärke regeln</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>Bildnummer, Bildrate, Größe und Codec</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Schnappschuss aufnehmen</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Das Bild auf dem Schirm aufnehmen</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>Bild des Videos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>Spielt ab und hält an</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
lässt sich nicht als Video abspielen.

Klicken, um ein anderes Video zu öffnen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1, Einzelbild %2</translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation>Geschwindigkeit %1</translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation>Der Abschnitt beginnt bei %1</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>Der Abschnitt endet bei %1</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>schreiben Sie 1:02:03.5, +10s, -2s, f1234 oder 75%</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>Die Einzelbilder werden gezählt …</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>die Einzelbilder lassen sich nicht zählen</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>das Video endet vorher</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>Keine Stelle im Video: „%1“; %2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>Unbenannte Einstellungen</translation>
    </message>
</context>
<context>
    <name>ProfileNames</name>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation>Dieses Profil umbenennen, duplizieren oder löschen</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[Namen des Profils eingeben]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>Profil ersetzen</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 – Kopie</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 – Kopie %2</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>Profil löschen</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Das Profil „%1“ löschen?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>Das Profil „%1“ gibt es schon. Sollen seine Einstellungen durch diese ersetzt werden?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>Das Profil „%1“ gibt es schon.</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>Morvantile benötigt leider macOS 10.10 (Yosemite) oder neuer</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>System nicht unterstützt</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>Die Datei ist beschädigt oder kein Video.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>Sie dürfen die Datei nicht lesen.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>Diese Art von Video wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>Die Datei lässt sich nicht lesen (%1).</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>Das Öffnen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>Dies ist eine Liste von Dateien, kein Video.</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>Die Datei ist beschädigt: Sie gibt mehr Bilder an, als sie enthalten kann.</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>Die Datei wurde von einem anderen Programm überschrieben.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Dies ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>Die Datei lässt sich nicht mehr lesen.</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>Das Video lässt sich nicht decodieren.</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>Das Einzelbild lässt sich nicht mehr lesen.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>Der Ton lässt sich nicht decodieren.</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>Die Datei enthält kein Video.</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>Das Bild ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>Die Bilder sind zu groß: Eines von %1 × %2 belegt %3 Arbeitsspeicher, und %4 sind erlaubt.</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>Das Video braucht zu viele große Bilder auf einmal: Sie belegen %1 Arbeitsspeicher, und %2 sind erlaubt.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>Das Video ist HDR10+; seine Bilder entstehen aus dem enthaltenen HDR10.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>Das Video ist Dolby Vision; seine Bilder entstehen aus der Basisschicht.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>Das Video ist Dolby Vision ohne Basisschicht, die andere Programme zeigen könnten; die Farben seiner Bilder stimmen nicht.</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>Full HD</translation>
    </message>
    <message>
        <source>Web 1280</source>
        <translation>Web 1280</translation>
    </message>
    <message>
        <source>Thumbnail 320</source>
        <translation>Vorschaubild 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1, Originalgröße</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>Keines davon ist vorhanden</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Die zuletzt gespeicherte Datei in ihrem Ordner anzeigen</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>Die Einstellungen in %1 lassen sich nicht lesen. Sie werden als %2 aufbewahrt.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>Einstellungen lassen sich in %1 nicht speichern (%2). Was Sie ändern, geht verloren, wenn das Fenster geschlossen wird.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>Klick auf den Schieberegler</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Dorthin gehen</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>Umschalttaste und Ziehen auf dem Schieberegler</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>Bild für Bild gehen</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>Mausrad über dem Schieberegler</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>Klick auf die Zeit</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>Eine andere eingeben: 1:02:03.5, +10s, -2s, f1234 oder 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>Mausrad über dem Bild</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Am Mauszeiger zoomen</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>Das vergrößerte Bild ziehen</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>Einen anderen Teil davon zeigen</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>Doppelklick auf das Bild</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>Tatsächliche Größe oder wieder eingepasst</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Videodateien</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>Bilddateien</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>Was gespeichert wird</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>Den Schnappschuss in der Größe des Videos speichern</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Bildprofil</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>Bildprofil</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>Bildprofile bearbeiten</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>Automatischer Dateiname</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>Ohne Rückfrage unter dem nächsten freien Namen speichern</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>Dateinamenprofil</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>Dateinamenprofile bearbeiten</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>Ordner für die Bilder</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Den Ordner für die Bilder wählen</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>Nächster:</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>Nächster Dateiname</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Den Schnappschuss speichern</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>Noch kein Schnappschuss</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>Kein Bild von %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>Unbekannter Ordner</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>Bitte geben Sie unter „Automatischer Dateiname“ einen gültigen Ausgabeordner ein.</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>Ordner erstellen?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>Schnappschüsse speichern</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>Schnappschüsse bleiben nach dem Schließen dieses Fensters nicht erhalten: Ein anderes Fenster oder der Datenträger lässt es nicht zu.</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>Die Liste nicht gespeicherter Schnappschüsse war beschädigt. Sie liegt jetzt mit ihren Dateien in %1</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>Nicht gespeicherte Schnappschüsse konnten nicht auf den Datenträger geschrieben werden und gehen beim Schließen des Fensters verloren.</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1 bei %2
%3, %4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>Wie das System</translation>
    </message>
</context>
<context>
    <name>TimecodeField</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Zu einer Zeit gehen</translation>
    </message>
</context>
<context>
    <name>VideoFactsText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>speed %1</source>
        <translation>Geschwindigkeit %1</translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>Einstellungen der Wasserzeichen</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Profil auswählen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Text des Wasserzeichens</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>Der Text des Wasserzeichens</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>Zeitstempel hinzufügen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Gewähltes Bild</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>Kein Bild gewählt</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Textformat</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Schrift des Textes</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>Textschatten</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>X-Versatz</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>X-Versatz des Schattens</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Y-Versatz</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>Y-Versatz des Schattens</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>Position + Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>X-Rand</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>Y-Rand</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>Ungültiges Bild</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>Das Bild konnte nicht geöffnet werden. Bitte versuchen Sie ein anderes.</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Scale with Picture</source>
        <translation>Mit dem Bild skalieren</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>Das Wasserzeichen nimmt in jedem Bild denselben Anteil der Breite ein; sonst hat es seine eigene Größe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>imaging</name>
    <message>
        <source>There is no such picture.</source>
        <translation>Es gibt kein solches Bild.</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>Das Bild sagt nicht, aus welchem Einzelbild welches Videos es stammt.</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>Es gibt kein Bild, vielleicht aus Mangel an Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>Zu wenig Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>das Bild lässt sich nicht codieren</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>Ihr Kontingent ist ausgeschöpft: Es fehlen %1 für %2</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>Der Datenträger ist voll: Es fehlen %1 für %2</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>Der Ordner ist nicht mehr da: %1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>In diesem Ordner dürfen Sie nicht schreiben: %1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>Der Datenträger ist schreibgeschützt: %1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>Kann nicht geschrieben werden: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>Das Bild konnte nicht als %1 codiert werden.</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>Alle Einzelbilder sind schwarz, unscharf oder an einem Schnitt.</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>Das Video hat kein Einzelbild %1.</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>Nach %1 Sekunden aufgegeben.</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>An dieser Position ist kein Bild.</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>Dafür wären mehr als %1 Bilder nötig.</translation>
    </message>
</context>
</TS>
