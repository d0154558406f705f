<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>Acerca de Morvantile</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>Icono de Morvantile</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – Captura de fotogramas de vídeo</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>Envíeme sus preguntas o sugerencias cuando quiera.</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – Modo por lotes</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>Cargar vídeo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>Progreso de la lectura de los vídeos</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>Detener la lectura</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>Conservar los vídeos ya leídos y descartar los demás</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>Vídeo seleccionado</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[Ningún vídeo seleccionado]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>Ajustes de imagen</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>Perfil de imagen:</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Perfil de imagen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>Editar perfil de imagen</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>Editar el perfil de imagen</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>Archivos de salida</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>Intervalo de captura</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>Crear un número de imágenes</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Número de imágenes</translation>
    </message>
    <message>
        <source>images</source>
        <translation>imágenes</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Cada</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>Imagen única</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>Crear una sola imagen</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>Lugar de la imagen única</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>Toma exactamente los fotogramas de estas posiciones, con todos los núcleos del procesador. Si no, se toma en su lugar un fotograma clave cercano a la posición.</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>Fotogramas exactos</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>Al principio</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>Al final</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>Usar para vídeos nuevos</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>Los vídeos que se añadan después empiezan con los ajustes del seleccionado</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>Lo que creará el lote</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Reintentar los fallidos</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>Procesar otra vez los vídeos en los que algo falló</translation>
    </message>
    <message>
        <source>front</source>
        <translation>al principio</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>en el medio</translation>
    </message>
    <message>
        <source>back</source>
        <translation>al final</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>El lote puede iniciarse cuando se hayan leído todos los vídeos</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>Leyendo el vídeo %1 de %2:</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 imagen</numerusform>
            <numerusform>%1 imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>Unas %1 de 1 vídeo</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>Unas %1 de %n vídeo</numerusform>
            <numerusform>Unas %1 de %n vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>La carpeta de las imágenes no existe. ¿Crearla?</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>Estas carpetas para las imágenes no existen. ¿Crearlas?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>La carpeta no existe</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>No se pudo crear %1.</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>Muchas imágenes</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>Editar nombre de archivo</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>Editar cómo se nombran los archivos</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Elegir la carpeta de las imágenes</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>Crear una imagen cada tantos segundos</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>Segundos de una imagen a otra</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>Segundos que se omiten</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>Segundos que se omiten al principio</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>Segundos que se omiten al final</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>Aún no hay vídeos</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>Cargue vídeos o suéltelos aquí. Después elija qué imágenes tomar de cada uno.</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>Este lote creará aproximadamente %1 imagen. ¿Iniciarlo?</numerusform>
            <numerusform>Este lote creará aproximadamente %1 imágenes. ¿Iniciarlo?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>Falló</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>Ejemplo de salida</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>Procesamiento por lotes</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>Vídeo actual</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>Progreso del vídeo actual</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>Este vídeo: %p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>Progreso de todos los vídeos</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>Todos los vídeos: %p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Última imagen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>Cancelar el procesamiento por lotes</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>¿Seguro que quiere cancelar el procesamiento por lotes?
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>No se pueden guardar las imágenes</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>Libere espacio e inténtelo de nuevo, o detenga el proceso. Las imágenes ya guardadas se conservan.</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>1 imagen</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>Cancelado tras %1</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>Terminado: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1, %n fallo</numerusform>
            <numerusform>%1, %n fallos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1 (y %n más de este tipo)</numerusform>
            <numerusform>%1 (y %n más de este tipo)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>Error al extraer el fotograma: %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>Guardando: %1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>no se encontró ninguna imagen en %1 s</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>No se pudo crear %1 de %2 s: %3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n imagen</numerusform>
            <numerusform>%n imágenes</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>Única, al principio</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>Única, en el medio</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>Única, al final</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>Única </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>Cada %1 s</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>Tomar captura</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>Los mejores</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>Mejores fotogramas</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>Tomar una captura del fotograma seleccionado</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>Buscando los fotogramas más nítidos de %1 a %2…</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>Aquí todos los fotogramas son negros, borrosos o están en un corte.</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>Un clic va al fotograma; un doble clic lo captura.</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>Doble clic para restablecer</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>Suelte para abrir</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>Buscando vídeos…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>Seleccionar perfil</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>Prefijo:</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Prefijo</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>Sufijo:</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Sufijo</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>Vídeo de ejemplo:</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>Nombre resultante:</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>Para el modo por lotes cuando se pide una sola imagen.</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>Imagen única:</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores predeterminados</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>Ajustes del perfil de nombre de archivo</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>Formato del nombre de archivo</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>Eliminar 1 captura</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>Eliminar %n captura</numerusform>
            <numerusform>Eliminar %n capturas</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>Tira de capturas</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>Guardar todas las capturas que aún no se han guardado</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>Eliminar capturas</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>Todo guardado</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n sin guardar</numerusform>
            <numerusform>%n sin guardar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>Desplazar el formulario</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>Comparar filtros</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Antes y después</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Arrastre la línea para comparar</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>Filtro para otro tamaño</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>Aplicar al perfil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bicúbico</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Vecino más próximo</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>Poner estos valores en el perfil de imagen «%1»</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>Perfil de imagen</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>Ajustes del perfil de imagen</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Seleccionar perfil</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>Tamaño de imagen</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>Mismo tamaño que el vídeo</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>Ancho de imagen:</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>Ancho de imagen</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>Alto de imagen:</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>Alto de imagen</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>Mantener la proporción</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>Redimensionar en luz lineal</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>Desentrelazado:</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Desentrelazado</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR:</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>Qué pasa con el alto rango dinámico en los archivos PNG y TIFF; los demás archivos y la pantalla lo muestran con mapeo tonal</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>Qué pasa con el alto rango dinámico</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>Ajustes de archivo</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>Calidad JPEG:</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>Calidad JPEG</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>Metadatos:</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadatos</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>PNG y TIFF de 16 bits</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>Ajustes de la imagen</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>Brillo:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>Editar marca de agua</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores predeterminados</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[Sin marca de agua]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>Bicúbico</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Vecino más próximo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>Sin el lugar</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mapeo tonal</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Como está guardado</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>Arrastre la línea para comparar</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>Antes y después</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> o </translation>
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
        <translation>Idioma</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>%1 mostrará este idioma cuando se inicie de nuevo.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>Retroceder un poco</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Retroceder un fotograma</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Avanzar un fotograma</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Avanzar un poco</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Tomar captura</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Capturar la imagen de la pantalla</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Guardar la captura</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>Controles de vídeo</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Desentrelazado</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>Abrir un vídeo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Mostrar en su carpeta el último archivo guardado</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>Copiar captura</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>Copiar la captura tal como se muestra</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>Copiar fotograma completo</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>Copiar el fotograma entero, sin procesar</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>Modo por lotes</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>Tomar series de imágenes de muchos vídeos</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>Comparar filtros</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>Documentación y asistencia</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>Opciones de la línea de órdenes</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>Recomponer las imágenes entrelazadas con efecto peine</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>Mapeo tonal</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>Llevar el alto rango dinámico a lo que muestra cualquier pantalla</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>Como está guardado</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>Conservar los valores del alto rango dinámico en los archivos que los admiten, para el etalonaje</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>Tratar cada imagen como entrelazada con efecto peine</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>Dejar las imágenes como están guardadas</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>Campo siguiente</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>Avanzar al siguiente momento de un vídeo entrelazado</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>Campo anterior</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>Retroceder al momento anterior de un vídeo entrelazado</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>Saltar adelante</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>Saltar atrás</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Reproducir / Pausa</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>Tomar captura y guardar</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>Capturar la imagen de la pantalla y guardarla enseguida con el siguiente nombre automático</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>Mostrar la imagen píxel a píxel</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>Mostrar el reproductor en toda la pantalla; Escape sale de ella</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>Avanzar 10 segundos</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>Avanzar diez segundos</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>Retroceder 10 segundos</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>Retroceder diez segundos</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>Ir al primer fotograma</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>Mostrar el primer fotograma</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>Ir al último fotograma</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>Mostrar el último fotograma</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Ir a un momento</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>Escribir el momento o el fotograma al que ir</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más despacio</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>Reproducir más despacio, hasta un décimo de la velocidad</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más deprisa</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>Reproducir más deprisa, hasta ocho veces</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Velocidad normal</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>Reproducir tan deprisa como se grabó</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>Marcar inicio del tramo</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>El tramo marcado empieza en la imagen de la pantalla</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>Marcar final del tramo</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>El tramo marcado termina en la imagen de la pantalla</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>Repetir el tramo</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>Reproducir el tramo marcado una y otra vez</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>Borrar el tramo</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>Olvidar el tramo marcado</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>Quitar el sonido</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Mostrar todas las teclas</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>Guardar captura</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>Error de Morvantile</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>No se puede crear la salida de vídeo</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>Los mejores…</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>Proponer los fotogramas más nítidos en torno a este</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>Captura sin guardar</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>La captura no se ha guardado.</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>%n captura no se ha guardado.</numerusform>
            <numerusform>%n capturas no se han guardado.</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>Se perderá si no la guarda.</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>Se perderán si no las guarda.</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>Esperando a que se escriban las capturas…</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>La imagen de esta captura ya no se puede leer.</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>%1 de %2 guardadas</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>La tira de capturas está llena: guarde o elimine algunas.</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>%1 ya no está; esta es su captura.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>1 captura guardada</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>%n captura guardada</numerusform>
            <numerusform>%n capturas guardadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1, %n no se pudo guardar</numerusform>
            <numerusform>%1, %n no se pudieron guardar</numerusform>
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
        <translation>Morvantile – Captura de vídeo</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>No se pudo capturar el fotograma</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>Captura tomada: %1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Mostrar la imagen completa</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>Mostrar cada píxel del vídeo como cuatro por cuatro de la pantalla</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>Vídeo siguiente</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>Abrir el vídeo siguiente de esta carpeta</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>Vídeo anterior</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>Abrir el vídeo anterior de esta carpeta</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>No se soltó ningún vídeo.</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>Varios vídeos</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>Se soltó %n vídeo.</numerusform>
            <numerusform>Se soltaron %n vídeos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>¿Abrir el primero, %1, o poner todos en la lista del modo por lotes?</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lote</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>o suelte uno aquí</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Abiertos recientemente</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>Haga clic para abrir un vídeo</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>Abra un vídeo o suéltelo aquí</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>Posición en el vídeo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>Posición. Haga clic para escribir otra: 1:02:03.5, +10s, -2s, f1234 o 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>Retroceder un poco</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>Retroceder un fotograma</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproducir/Pausa</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>Avanzar un fotograma</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>Avanzar un poco</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>Control de volumen</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>Fotograma, frecuencia, tamaño y códec</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Tomar captura</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>Capturar la imagen de la pantalla</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>Imagen del vídeo</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>Reproduce y pausa</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
no se puede reproducir como vídeo.

Haga clic para abrir otro vídeo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1, fotograma %2</translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation>Velocidad %1</translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation>El tramo empieza en %1</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>El tramo termina en %1</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>escriba 1:02:03.5, +10s, -2s, f1234 o 75%</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>Contando los fotogramas…</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>no se pueden contar los fotogramas</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>el vídeo termina antes</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>No es un lugar del vídeo: «%1»; %2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>Ajustes sin nombre</translation>
    </message>
</context>
<context>
    <name>ProfileNames</name>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation>Cambiar el nombre, duplicar o eliminar este perfil</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[Escriba el nombre del perfil]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Eliminar…</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>Reemplazar perfil</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>Cambiar nombre del perfil</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>Nuevo nombre:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 (copia %2)</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>Eliminar perfil</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>¿Eliminar el perfil «%1»?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>Ya hay un perfil «%1». ¿Reemplazar sus ajustes por estos?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>Ya hay un perfil «%1».</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>Lo sentimos.

Morvantile necesita macOS 10.10 (Yosemite) o posterior</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>Sistema no compatible</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>El archivo está dañado o no es un vídeo.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>No tiene permiso para leer el archivo.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>Este tipo de vídeo no se admite.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>No se puede leer el archivo (%1).</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>Se canceló la apertura.</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>Esto es una lista de archivos, no un vídeo.</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>El archivo está dañado: declara más imágenes de las que puede contener.</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>Otro programa sobrescribió el archivo.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Esto no es un archivo.</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>El archivo ya no se puede leer.</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>El vídeo no se puede descodificar.</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>El fotograma ya no se puede leer.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>El sonido no se puede descodificar.</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>No hay vídeo en el archivo.</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>La imagen está dañada.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>Las imágenes son demasiado grandes: una de %1 × %2 ocupa %3 de memoria, y se permiten %4.</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>El vídeo necesita demasiadas imágenes grandes a la vez: ocupan %1 de memoria, y se permiten %2.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>El vídeo es HDR10+; sus imágenes se crean con el HDR10 que contiene.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>El vídeo es Dolby Vision; sus imágenes se crean con la capa base.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>El vídeo es Dolby Vision sin una capa base que otros programas puedan mostrar; los colores de sus imágenes no son correctos.</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>Tamaño original</translation>
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
        <translation>Miniatura 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1, tamaño original</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>Ninguno de ellos está disponible</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Borrar la lista</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>Mostrar en su carpeta el último archivo guardado</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>No se pueden leer los ajustes de %1. Se conservan como %2.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>No se pueden guardar los ajustes en %1 (%2). Lo que cambie se perderá al cerrar la ventana.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>Clic en el control deslizante</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Ir allí</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>Mayús y arrastrar en el control deslizante</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>Ir fotograma a fotograma</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>Rueda sobre el control deslizante</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>Clic en el tiempo</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>Escribir otro: 1:02:03.5, +10s, -2s, f1234 o 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Ratón</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>Rueda sobre la imagen</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Acercar en el puntero</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>Arrastrar la imagen ampliada</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>Mostrar otra parte de ella</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>Doble clic en la imagen</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>Tamaño real, o ajustada de nuevo</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Archivos de vídeo</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>Archivos de imagen</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>Lo que se guardará</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Tamaño original</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>Guardar la captura con el tamaño del vídeo</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>Perfil de imagen</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>Perfil de imagen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>Editar perfiles de imagen</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>Nombre de archivo automático</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>Guardar sin preguntar, con el siguiente nombre libre</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>Perfil de nombre de archivo</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>Editar perfiles de nombre de archivo</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>Carpeta de las imágenes</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>Elegir la carpeta de las imágenes</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>Siguiente:</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>Siguiente nombre de archivo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>Guardar la captura</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>Aún no hay captura</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>Sin imagen de %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>Carpeta desconocida</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>Escriba una carpeta de salida válida en «Nombre de archivo automático».</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>¿Crear la carpeta?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>La carpeta no existe</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>Guardar capturas</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>Las capturas no se conservan después de cerrar esta ventana: otra ventana, o el disco, no lo permite.</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>La lista de capturas sin guardar estaba dañada. Ahora está, con sus archivos, en %1</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>Las capturas sin guardar no se pudieron escribir en el disco y se perderán al cerrar la ventana.</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardada</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>sin guardar</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1 en %2
%3, %4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>marca de agua</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>Como el sistema</translation>
    </message>
</context>
<context>
    <name>TimecodeField</name>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Ir a un momento</translation>
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
        <translation>velocidad %1</translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>Ajustes de la marca de agua</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>Seleccionar perfil</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>Texto de la marca de agua</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>El texto de la marca de agua</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>Añadir fecha y hora</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Imagen elegida</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>Ninguna imagen elegida</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>Formato del texto</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>Fuente del texto</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>Sombra del texto</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>Color de la sombra</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>Desplazamiento X</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>Desplazamiento X de la sombra</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Desplazamiento Y</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>Desplazamiento Y de la sombra</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>Posición y vista previa</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>Margen X</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>Margen Y</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>Imagen no válida</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>No se pudo abrir la imagen. Pruebe con otra.</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Scale with Picture</source>
        <translation>Escalar con la imagen</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>La marca de agua ocupa la misma parte del ancho de cada imagen; si no, tiene su propio tamaño</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
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
        <translation>No existe esa imagen.</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>La imagen no dice de qué fotograma de qué vídeo procede.</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>No hay imagen, quizá por falta de memoria</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>no se puede codificar la imagen</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>Su cuota está agotada: faltan %1 para %2</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>El disco está lleno: faltan %1 para %2</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>La carpeta ya no está: %1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>No tiene permiso para escribir en la carpeta: %1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>El disco es de solo lectura: %1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>No se puede escribir: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>No se pudo codificar la imagen como %1.</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>Todos los fotogramas son negros, borrosos o están en un corte.</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>El vídeo no tiene el fotograma %1.</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>Abandonado después de %1 segundos.</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>No hay ninguna imagen en esta posición.</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>Harían falta más de %1 imágenes.</translation>
    </message>
</context>
</TS>
