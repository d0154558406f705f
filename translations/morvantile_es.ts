<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName Profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit FileName Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the file name profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the folder for the images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make an image every so many milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milliseconds from image to image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milliseconds to skip at the front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milliseconds to skip at the back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load videos, or drop them here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>This makes about %1 images. Start?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Room for the Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make room and try again, or stop. What was saved stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no picture found at position %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not make %1 from position %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message>
        <source>Every %1ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>FileName Profile Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip and keys</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Click to open video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HDR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Morvantile - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morvantile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morvantile video capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic FileName section.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a profile “%1” already. Replace its settings by these?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a profile “%1” already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>watermark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimecodeField</name>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VideoFactsText</name>
    <message>
        <source>%1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>speed %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opaque</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>imaging</name>
    <message>
        <source>There is no such picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
