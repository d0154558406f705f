<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>À propos de Morvantile</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>Icône de Morvantile</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – Capture d’images de vidéos</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>N’hésitez pas à m’envoyer vos questions et vos suggestions !</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – Traitement par lots</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>Charger une vidéo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>Progression de la lecture des vidéos</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>Garder les vidéos déjà lues et abandonner les autres</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>Vidéo sélectionnée</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[Aucune vidéo sélectionnée]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>Réglages de l’image</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>Profil d’image :</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Profil d’image</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>Modifier le profil d’image</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>Modifier le profil d’image</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>Fichiers produits</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple :</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>Intervalle des captures</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>Créer un certain nombre d’images</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>images</source>
        <translation>images</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Toutes les</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>Image unique</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>Créer une seule image</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>Emplacement de l’image unique</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>Prend exactement les images à ces positions, sur tous les cœurs du processeur. Sinon, une image clé proche de la position est prise à la place.</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>Images exactes</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>Au début</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>À la fin</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>Utiliser pour les nouvelles vidéos</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>Les vidéos ajoutées plus tard commencent avec les réglages de celle qui est sélectionnée</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>Ce que le lot va créer</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Relancer les échecs</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>Traiter encore une fois les vidéos pour lesquelles quelque chose a échoué</translation>
    </message>
    <message>
        <source>front</source>
        <translation>au début</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>au milieu</translation>
    </message>
    <message>
        <source>back</source>
        <translation>à la fin</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>Le lot peut démarrer une fois toutes les vidéos lues</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>Lecture de la vidéo %1 sur %2 :</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 image</numerusform>
            <numerusform>%1 images</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>Environ %1 de 1 vidéo</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>Environ %1 de %n vidéo</numerusform>
            <numerusform>Environ %1 de %n vidéos</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>Le dossier des images n’existe pas. Le créer ?</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>Ces dossiers pour les images n’existent pas. Les créer ?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>Dossier inexistant</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>%1 n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>Beaucoup d’images</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Plusieurs</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nom de fichier :</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>Modifier le nom de fichier</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>Modifier la façon de nommer les fichiers</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Choisir le dossier des images</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>Créer une image à intervalle fixe, en secondes</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>Secondes d’une image à l’autre</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>Secondes à ignorer</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>Secondes à ignorer au début</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>Secondes à ignorer à la fin</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>Aucune vidéo pour l’instant</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>Chargez des vidéos ou déposez-les ici. Choisissez ensuite les images à prendre de chacune.</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>Ce lot produira environ %1 image. Le démarrer ?</numerusform>
            <numerusform>Ce lot produira environ %1 images. Le démarrer ?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>Exemple de nom</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>Traitement par lots</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>Vidéo en cours</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>Progression de la vidéo en cours</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>Cette vidéo : %p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>Progression de toutes les vidéos</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>Toutes les vidéos : %p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Dernière image</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>Annuler le traitement par lots</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>Voulez-vous vraiment annuler le traitement par lots ?
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>Impossible d’enregistrer les images</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>Libérez de la place et réessayez, ou arrêtez. Les images déjà enregistrées sont conservées.</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>1 image</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>Annulé après %1</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>Terminé : %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1, %n échec</numerusform>
            <numerusform>%1, %n échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1 (et %n autre de ce type)</numerusform>
            <numerusform>%1 (et %n autres de ce type)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>Erreur d’extraction d’image : %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>Enregistrement : %1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>aucune image trouvée à %1 s</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>Impossible de créer %1 à %2 s : %3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>Unique, au début</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>Unique, au milieu</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>Unique, à la fin</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>Unique </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>Toutes les %1 s</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>Meilleures images</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>Meilleures images</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>Prendre une capture de l’image sélectionnée</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>Recherche des images les plus nettes de %1 à %2…</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>Toutes les images ici sont noires, floues ou sur une coupe.</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>Un clic va à l’image, un double clic la capture.</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>Double-cliquez pour réinitialiser</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>Déposez pour ouvrir</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>Recherche de vidéos…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>Choisir un profil</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Préfixe :</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Préfixe</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>Suffixe :</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Suffixe</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>Vidéo d’exemple :</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>Nom obtenu :</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>Pour le traitement par lots, quand une seule image est demandée.</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>Image unique :</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>Réglages du profil de nom de fichier</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>Format du nom de fichier</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nom de fichier :</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom de fichier</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>Supprimer 1 capture</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>Supprimer %n capture</numerusform>
            <numerusform>Supprimer %n captures</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>Bande de captures</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>Enregistrer toutes les captures qui ne le sont pas encore</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler l’action</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>Supprimer les captures</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>Tout est enregistré</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n non enregistrée</numerusform>
            <numerusform>%n non enregistrées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>Faire défiler le formulaire</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>Comparer les filtres</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Avant et après</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Faites glisser la ligne pour comparer</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>Filtre pour une autre taille</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>Appliquer au profil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bicubique</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Plus proche voisin</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>Mettre ces valeurs dans le profil d’image « %1 »</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>Profil d’image</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>Réglages du profil d’image</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Choisir un profil</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>Même taille que la vidéo</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>Largeur de l’image :</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>Largeur de l’image</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>Hauteur de l’image :</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>Hauteur de l’image</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre :</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>Redimensionner en lumière linéaire</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>Désentrelacement :</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Désentrelacement</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR :</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>Ce que devient la plage dynamique étendue dans les fichiers PNG et TIFF ; les autres fichiers et l’écran la montrent avec mappage tonal</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>Ce que devient la plage dynamique étendue</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>Réglages du fichier</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>Qualité JPEG :</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>Métadonnées :</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>PNG et TIFF en 16 bits</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>Corrections de l’image</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Luminosité :</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste :</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>Modifier le filigrane</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[Sans filigrane]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bicubique</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Plus proche voisin</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>Sans le lieu</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mappage tonal</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Valeurs d’origine</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Faites glisser la ligne pour comparer</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Avant et après</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> ou </translation>
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
        <translation>Langue</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>%1 s’affichera dans cette langue au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>Reculer un peu</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Reculer d’une image</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Avancer d’une image</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Avancer un peu</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Capturer l’image à l’écran</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>Commandes vidéo</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Désentrelacement</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>Ouvrir une vidéo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Afficher dans son dossier le dernier fichier enregistré</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>Copier la capture</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>Copier la capture telle qu’elle est affichée</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>Copier l’image complète</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>Copier l’image entière, sans traitement</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>Traitement par lots</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>Prendre des séries d’images dans de nombreuses vidéos</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>Comparer les filtres</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>Documentation &amp;&amp; assistance</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>Options de la ligne de commande</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>Reconstituer les images entrelacées qui présentent un effet de peigne</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mappage tonal</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>Ramener la plage dynamique étendue à ce que tout écran peut montrer</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Valeurs d’origine</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>Garder les valeurs de la plage dynamique étendue dans les fichiers qui le permettent, pour l’étalonnage</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>Traiter chaque image comme une image entrelacée à effet de peigne</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>Laisser les images telles qu’elles sont stockées</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>Trame suivante</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>Avancer à l’instant suivant d’une vidéo entrelacée</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>Trame précédente</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>Reculer à l’instant précédent d’une vidéo entrelacée</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>Sauter en avant</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>Sauter en arrière</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Lecture / Pause</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>Prendre une capture et l’enregistrer</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>Capturer l’image à l’écran et l’enregistrer aussitôt sous le prochain nom automatique</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>Afficher l’image pixel par pixel</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>Afficher le lecteur sur tout l’écran ; Échap en sort</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>Avancer de 10 secondes</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>Avancer de dix secondes</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>Reculer de 10 secondes</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>Reculer de dix secondes</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>Aller à la première image</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>Afficher la première image</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>Aller à la dernière image</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>Afficher la dernière image</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Aller à un instant</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>Saisir l’instant ou l’image où aller</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Plus lentement</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>Lire plus lentement, jusqu’à un dixième de la vitesse</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>Lire plus vite, jusqu’à huit fois</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Vitesse normale</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>Lire à la vitesse d’enregistrement</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>Marquer le début du segment</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>Le segment marqué commence à l’image à l’écran</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>Marquer la fin du segment</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>Le segment marqué se termine à l’image à l’écran</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>Lire le segment en boucle</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>Lire le segment marqué encore et encore</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>Effacer le segment</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>Oublier le segment marqué</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Afficher toutes les touches</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>Erreur de Morvantile</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>Impossible de créer l’affichage de la vidéo</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>Meilleures images…</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>Proposer les images les plus nettes autour de celle-ci</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>Capture non enregistrée</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>La capture n’a pas été enregistrée.</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>%n capture n’a pas été enregistrée.</numerusform>
            <numerusform>%n captures n’ont pas été enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>Elle sera perdue si vous ne l’enregistrez pas.</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>Elles seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>En attente de l’écriture des captures…</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>L’image de cette capture ne peut plus être lue.</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>%1 sur %2 enregistrées</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>La bande de captures est pleine : enregistrez ou supprimez-en quelques-unes.</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>%1 n’est plus là ; voici sa capture.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>1 capture enregistrée</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>%n capture enregistrée</numerusform>
            <numerusform>%n captures enregistrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1, %n n’a pas pu être enregistrée</numerusform>
            <numerusform>%1, %n n’ont pas pu être enregistrées</numerusform>
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
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Morvantile video capture</source>
        <translation>Morvantile – Capture</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>Échec de la capture de l’image</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>Capture prise : %1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Afficher l’image entière</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>Afficher chaque pixel de la vidéo sur quatre par quatre de l’écran</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>Vidéo suivante</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>Ouvrir la vidéo suivante de ce dossier</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>Vidéo précédente</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>Ouvrir la vidéo précédente de ce dossier</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>Aucune vidéo n’a été déposée.</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>Plusieurs vidéos</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>%n vidéo a été déposée.</numerusform>
            <numerusform>%n vidéos ont été déposées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>Ouvrir la première, %1, ou les mettre toutes dans la liste du traitement par lots ?</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lot</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>ou déposez-en une ici</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Ouvertes récemment</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>Cliquez pour ouvrir une vidéo</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>Ouvrez une vidéo ou déposez-la ici</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Position dans la vidéo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>Position. Cliquez pour en saisir une autre : 1:02:03.5, +10s, -2s, f1234 ou 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>Reculer un peu</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Reculer d’une image</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Avancer d’une image</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Avancer un peu</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>Réglage du volume</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>Numéro d’image, cadence, taille et codec</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Capturer l’image à l’écran</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>Image de la vidéo</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>Lance la lecture et la met en pause</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
ne peut pas être lu comme une vidéo.

Cliquez pour ouvrir une autre vidéo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1, image %2</translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation>Vitesse %1</translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation>Le segment commence à %1</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>Le segment se termine à %1</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>écrivez 1:02:03.5, +10s, -2s, f1234 ou 75%</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>Comptage des images…</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>les images ne peuvent pas être comptées</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>la vidéo se termine avant</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>Pas un endroit de la vidéo : « %1 » ; %2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>Réglages sans nom</translation>
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
        <translation>Renommer, dupliquer ou supprimer ce profil</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[Saisissez un nom de profil]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>Remplacer le profil</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>Renommer le profil</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>Nouveau nom :</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 – copie</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 – copie %2</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>Supprimer le profil</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Supprimer le profil « %1 » ?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>Il existe déjà un profil « %1 ». Remplacer ses réglages par ceux-ci ?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>Il existe déjà un profil « %1 ».</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>Désolé,

Morvantile nécessite macOS 10.10 (Yosemite) ou une version plus récente</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>Système non pris en charge</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>Le fichier est endommagé ou n’est pas une vidéo.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>Vous n’avez pas le droit de lire le fichier.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>Ce type de vidéo n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>Le fichier ne peut pas être lu (%1).</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>L’ouverture a été annulée.</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>Ceci est une liste de fichiers, pas une vidéo.</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>Le fichier est endommagé : il déclare plus d’images qu’il ne peut en contenir.</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>Le fichier a été écrasé par un autre programme.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Ceci n’est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>Le fichier ne peut plus être lu.</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>La vidéo ne peut pas être décodée.</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>L’image ne peut plus être lue.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>Le son ne peut pas être décodé.</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>Le fichier ne contient pas de vidéo.</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>L’image est endommagée.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>Les images sont trop grandes : une image de %1 × %2 occupe %3 de mémoire, et %4 sont autorisés.</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>La vidéo a besoin de trop de grandes images à la fois : elles occupent %1 de mémoire, et %2 sont autorisés.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>La vidéo est en HDR10+ ; ses images sont faites du HDR10 qu’elle contient.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>La vidéo est en Dolby Vision ; ses images sont faites de la couche de base.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>La vidéo est en Dolby Vision sans couche de base que d’autres programmes puissent montrer ; les couleurs de ses images ne sont pas justes.</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>Taille d’origine</translation>
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
        <translation>Vignette 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1, taille d’origine</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>Ouvrir un fichier récent</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>Aucun d’eux n’est présent</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Effacer la liste</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Afficher dans son dossier le dernier fichier enregistré</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>Les réglages dans %1 ne peuvent pas être lus. Ils sont conservés sous %2.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>Les réglages ne peuvent pas être enregistrés dans %1 (%2). Ce que vous modifiez sera perdu à la fermeture de la fenêtre.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>Clic sur le curseur</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Aller à cet endroit</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>Maj et glisser sur le curseur</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>Avancer image par image</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>Molette au-dessus du curseur</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>Clic sur le temps</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>En saisir un autre : 1:02:03.5, +10s, -2s, f1234 ou 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>Molette au-dessus de l’image</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoomer sous le pointeur</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>Faire glisser l’image agrandie</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>En afficher une autre partie</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>Double clic sur l’image</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>Taille réelle, ou de nouveau ajustée</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Fichiers vidéo</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>Fichiers image</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>Ce qui sera enregistré</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Taille d’origine</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>Enregistrer la capture à la taille de la vidéo</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Profil d’image</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>Profil d’image</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>Modifier les profils d’image</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>Nom de fichier automatique</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>Enregistrer sans demander, sous le prochain nom libre</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>Profil de nom de fichier</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>Modifier les profils de nom de fichier</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>Dossier des images</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Choisir le dossier des images</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>Suivant :</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>Nom de fichier suivant</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>Aucune capture pour l’instant</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>Pas d’image de %1 : %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>Dossier inconnu</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>Veuillez saisir un dossier de sortie valable sous « Nom de fichier automatique ».</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>Créer le dossier ?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>Dossier inexistant</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>Enregistrer les captures</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>Les captures ne seront pas conservées après la fermeture de cette fenêtre : une autre fenêtre, ou le disque, ne le permet pas.</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>La liste des captures non enregistrées était endommagée. Elle se trouve maintenant, avec ses fichiers, dans %1</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>Les captures non enregistrées n’ont pas pu être écrites sur le disque et seront perdues à la fermeture de la fenêtre.</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>enregistrée</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistrée</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1 à %2
%3, %4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>filigrane</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>Comme le système</translation>
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
        <translation>Aller à un instant</translation>
    </message>
</context>
<context>
    <name>VideoFactsText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 i/s</translation>
    </message>
    <message>
        <source>speed %1</source>
        <translation>vitesse %1</translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>Réglages du filigrane</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Choisir un profil</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Texte du filigrane</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>Le texte du filigrane</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>Ajouter l’horodatage</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Image choisie</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>Fichier image</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>Aucune image choisie</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Format du texte</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Police du texte</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>Ombre du texte</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>Couleur de l’ombre</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Couleur de l’ombre</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>Décalage X</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>Décalage X de l’ombre</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Décalage Y</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>Décalage Y de l’ombre</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>Position + aperçu</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>Marge X</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>Marge Y</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>Image non valable</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>Impossible d’ouvrir l’image. Veuillez en essayer une autre.</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Scale with Picture</source>
        <translation>Adapter à l’image</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>Le filigrane occupe la même part de la largeur de chaque image ; sinon il garde sa propre taille</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
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
        <translation>Cette image n’existe pas.</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>L’image ne dit pas de quelle image de quelle vidéo elle provient.</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>Il n’y a pas d’image, peut-être par manque de mémoire</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>l’image ne peut pas être codée</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>Votre quota est épuisé : il manque %1 pour %2</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>Le disque est plein : il manque %1 pour %2</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>Le dossier n’est plus là : %1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>Ce dossier ne vous permet pas d’écrire : %1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>Le disque est en lecture seule : %1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>Écriture impossible : %1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>L’image n’a pas pu être codée en %1.</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>Toutes les images sont noires, floues ou sur une coupe.</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>La vidéo n’a pas d’image %1.</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>Abandonné après %1 secondes.</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>Il n’y a pas d’image à cette position.</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>Il faudrait plus de %1 images.</translation>
    </message>
</context>
</TS>
