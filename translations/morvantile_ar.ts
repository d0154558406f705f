<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>حول Morvantile</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>أيقونة Morvantile</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – برنامج التقاط إطارات الفيديو</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>أرسل إليّ أسئلتك أو اقتراحاتك للميزات!</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>الإصدار: %1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – وضع الدفعات</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>تحميل فيديو</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>تقدم قراءة الفيديوهات</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>إيقاف القراءة</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>الاحتفاظ بالفيديوهات المقروءة وإسقاط الباقي</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>ملف الفيديو المحدد</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[لم يُحدد أي فيديو]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>إعدادات الصورة</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>نمط الصورة:</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>نمط الصورة</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>تحرير نمط الصورة</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>تحرير نمط الصورة</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>إخراج الملفات</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>المجلد:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>فاصل الالتقاط</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>إنشاء عدد من الصور</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>عدد الصور</translation>
    </message>
    <message>
        <source>images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>كل</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>صورة واحدة عند</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>إنشاء صورة واحدة</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>موضع الصورة الواحدة</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>يأخذ الإطارات عند هذه المواضع بالضبط، على جميع أنوية المعالج. وإلا يؤخذ إطار مفتاحي قريب من الموضع بدلاً منها.</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>إطارات دقيقة</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>تخطي البداية</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>تخطي النهاية</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>استخدام للفيديوهات الجديدة</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>الفيديوهات التي تضاف لاحقًا تبدأ بإعدادات الفيديو المحدد</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>ما ستنشئه الدفعة</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>إعادة محاولة ما فشل</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>معالجة الفيديوهات التي فشل فيها شيء مرة أخرى</translation>
    </message>
    <message>
        <source>front</source>
        <translation>البداية</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>back</source>
        <translation>النهاية</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>يمكن بدء الدفعة بعد قراءة جميع الفيديوهات</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>قراءة الفيديو %1 من %2:</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 صورة</numerusform>
            <numerusform>%1 صورة</numerusform>
            <numerusform>%1 صورة</numerusform>
            <numerusform>%1 صور</numerusform>
            <numerusform>%1 صورة</numerusform>
            <numerusform>%1 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>نحو %1 من فيديو واحد</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>نحو %1 من %n فيديو</numerusform>
            <numerusform>نحو %1 من فيديو واحد (%n)</numerusform>
            <numerusform>نحو %1 من فيديوهين (%n)</numerusform>
            <numerusform>نحو %1 من %n فيديوهات</numerusform>
            <numerusform>نحو %1 من %n فيديو</numerusform>
            <numerusform>نحو %1 من %n فيديو</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>مجلد الصور غير موجود. هل تريد إنشاءه؟</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>مجلدات الصور هذه غير موجودة. هل تريد إنشاءها؟</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>المجلد غير موجود</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>تعذر إنشاء %1.</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>صور كثيرة</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>قيم متعددة</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>اسم الملف:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>تحرير اسم الملف</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>تحرير طريقة تسمية الملفات</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>اختيار المجلد</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>اختيار مجلد الصور</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>إنشاء صورة كل عدد من الثواني</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>الثواني بين صورة وأخرى</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>الثواني المتخطاة</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>الثواني المتخطاة في البداية</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>الثواني المتخطاة في النهاية</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>لا فيديوهات بعد</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>حمّل فيديوهات أو أفلتها هنا، ثم اختر الصور التي تؤخذ من كل منها.</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صورة. هل تريد بدءها؟</numerusform>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صورة. هل تريد بدءها؟</numerusform>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صورة. هل تريد بدءها؟</numerusform>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صور. هل تريد بدءها؟</numerusform>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صورة. هل تريد بدءها؟</numerusform>
            <numerusform>ستنشئ هذه الدفعة نحو %1 صورة. هل تريد بدءها؟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>الوجهة</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>الفاصل</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>مثال الإخراج</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>الصور</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>معالجة الدفعات</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>الفيديو الحالي</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>تقدم الفيديو الحالي</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>هذا الفيديو: %p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>تقدم جميع الفيديوهات</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>جميع الفيديوهات: %p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>آخر صورة</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>إلغاء معالجة الدفعات</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>هل أنت متأكد من إلغاء معالجة الدفعات؟
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>المحاولة مجددًا</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>جارٍ الإيقاف…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>لا يمكن حفظ الصور</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>أفرغ مساحة ثم حاول مجددًا، أو أوقف العملية. الصور المحفوظة تبقى.</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>صورة واحدة (1)</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n صورة</numerusform>
            <numerusform>صورة واحدة (%n)</numerusform>
            <numerusform>صورتان (%n)</numerusform>
            <numerusform>%n صور</numerusform>
            <numerusform>%n صورة</numerusform>
            <numerusform>%n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>أُلغي بعد %1</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>انتهى: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1، فشل %n</numerusform>
            <numerusform>%1، فشل %n</numerusform>
            <numerusform>%1، فشل %n</numerusform>
            <numerusform>%1، فشل %n</numerusform>
            <numerusform>%1، فشل %n</numerusform>
            <numerusform>%1، فشل %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
            <numerusform>%1 (و%n غيره من هذا النوع)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>تعذر فتح الملف</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>خطأ في استخراج الإطار: %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>تعذر حفظ %1</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>حفظ: %1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>لم يُعثر على صورة عند %1 ث</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>تعذر إنشاء %1 من %2 ث: %3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n صورة</numerusform>
            <numerusform>صورة واحدة (%n)</numerusform>
            <numerusform>صورتان (%n)</numerusform>
            <numerusform>%n صور</numerusform>
            <numerusform>%n صورة</numerusform>
            <numerusform>%n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>صورة واحدة، البداية</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>صورة واحدة، الوسط</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>صورة واحدة، النهاية</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>صورة واحدة </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>كل %1 ث</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>أخذ لقطة</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>أفضل الإطارات</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>أفضل الإطارات</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>أخذ لقطة للإطار المحدد</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>البحث عن أوضح الإطارات من %1 إلى %2…</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>جميع الإطارات هنا سوداء أو ضبابية أو عند قطع.</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>النقر ينتقل إلى الإطار، والنقر المزدوج يلتقطه.</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>انقر نقرًا مزدوجًا للاستعادة</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>قبل</translation>
    </message>
    <message>
        <source>After</source>
        <translation>بعد</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>أفلت للفتح</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>البحث عن فيديوهات…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>اختيار النمط</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>البادئة:</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>البادئة</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>اللاحقة:</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>اللاحقة</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>مثال الإخراج</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>فيديو المثال:</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>مثال الإخراج:</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>لوضع الدفعات عند طلب صورة واحدة فقط.</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>صورة واحدة:</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>استعادة الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>إعدادات نمط اسم الملف</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>صيغة اسم الملف</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>اسم الملف:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>اسم الملف</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>حذف لقطة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>حذف %n لقطة</numerusform>
            <numerusform>حذف لقطة واحدة (%n)</numerusform>
            <numerusform>حذف لقطتين (%n)</numerusform>
            <numerusform>حذف %n لقطات</numerusform>
            <numerusform>حذف %n لقطة</numerusform>
            <numerusform>حذف %n لقطة</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>حفظ الكل</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>شريط اللقطات</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>حفظ جميع اللقطات التي لم تُحفظ بعد</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>حذف اللقطات</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>حُفظ الكل</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n غير محفوظة</numerusform>
            <numerusform>%n غير محفوظة</numerusform>
            <numerusform>%n غير محفوظتين</numerusform>
            <numerusform>%n غير محفوظة</numerusform>
            <numerusform>%n غير محفوظة</numerusform>
            <numerusform>%n غير محفوظة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>تمرير النموذج</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>مقارنة المرشحات</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>قبل وبعد</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>اسحب الخط للمقارنة</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>التباين</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>مرشح تغيير الحجم</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>تطبيق على النمط</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>المساحة</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>ثنائي التكعيب</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>أقرب جار</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>وضع هذه القيم في نمط الصورة «%1»</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>نمط الصورة</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>إعدادات نمط الصورة</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>اختيار النمط</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>نفس حجم الفيديو</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>عرض الصورة:</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>عرض الصورة</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>ارتفاع الصورة:</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>ارتفاع الصورة</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>الحفاظ على نسبة الأبعاد</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>المرشح:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>المرشح</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>تغيير الحجم في الضوء الخطي</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>إزالة التشابك:</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>إزالة التشابك</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR:</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>ما يحدث للمدى الديناميكي العالي في ملفات PNG وTIFF؛ الملفات الأخرى والشاشة تعرضه بتعيين الدرجات</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>ما يحدث للمدى الديناميكي العالي</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>إعدادات الملف</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>جودة JPEG:</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>جودة JPEG</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>البيانات الوصفية:</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>البيانات الوصفية</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>PNG وTIFF بعمق 16 بت</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>تعديلات الصورة</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>السطوع:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>التباين:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>التباين</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>العلامة المائية</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>تحرير العلامة المائية</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>استعادة الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[بلا علامة مائية]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>المساحة</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>ثنائي التكعيب</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>أقرب جار</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>بلا المكان</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>بتعيين الدرجات</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>كما هو مخزّن</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>اسحب الخط للمقارنة</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>قبل وبعد</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> أو </translation>
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
        <translation>اللغة</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>لغة النظام</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>سيظهر %1 بهذه اللغة عند تشغيله مجددًا.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>الرجوع قليلاً</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>الرجوع إطارًا واحدًا</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>التقدم إطارًا واحدًا</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>التقدم قليلاً</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>أخذ لقطة</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>التقاط الصورة المعروضة على الشاشة</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>حفظ اللقطة</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>عناصر التحكم بالفيديو</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>المقطع</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>إزالة التشابك</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>أدوات</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>فتح فيديو</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>إظهار آخر ملف حُفظ في مجلده</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>نسخ اللقطة</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>نسخ اللقطة كما تظهر</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>نسخ الإطار الكامل</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>نسخ الإطار كاملاً دون معالجة</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>وضع الدفعات</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>أخذ سلاسل من الصور من فيديوهات كثيرة</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>مقارنة المرشحات</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>الوثائق والدعم</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>خيارات سطر الأوامر</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>الإطار التالي</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>الإطار السابق</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>إصلاح الصور المتشابكة التي تظهر فيها خطوط المشط</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>بتعيين الدرجات</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>تحويل المدى الديناميكي العالي إلى ما تعرضه كل شاشة</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>كما هو مخزّن</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>الاحتفاظ بقيم المدى الديناميكي العالي في الملفات التي تتسع لها، لتدريج الألوان</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>معاملة كل صورة كصورة متشابكة تظهر فيها خطوط المشط</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>ترك الصور كما هي مخزّنة</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>الحقل التالي</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>التقدم إلى اللحظة التالية في فيديو متشابك</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>الحقل السابق</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>الرجوع إلى اللحظة السابقة في فيديو متشابك</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>القفز إلى الأمام</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>القفز إلى الخلف</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>تشغيل / إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>أخذ لقطة وحفظها</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>التقاط الصورة المعروضة وحفظها فورًا بالاسم التلقائي التالي</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>عرض الصورة بكسل ببكسل</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>عرض المشغّل على كامل الشاشة؛ مفتاح Escape للخروج</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>التقدم 10 ثوانٍ</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>التقدم عشر ثوانٍ</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>الرجوع 10 ثوانٍ</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>الرجوع عشر ثوانٍ</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>الذهاب إلى أول إطار</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>عرض أول إطار</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>الذهاب إلى آخر إطار</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>عرض آخر إطار</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>الذهاب إلى وقت</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>كتابة الوقت أو الإطار المطلوب</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>أبطأ</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>التشغيل أبطأ، حتى عُشر السرعة</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>أسرع</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>التشغيل أسرع، حتى ثمانية أضعاف</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>السرعة العادية</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>التشغيل بسرعة التسجيل</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>تعليم بداية المقطع</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>يبدأ المقطع المعلّم بالصورة المعروضة</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>تعليم نهاية المقطع</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>ينتهي المقطع المعلّم بالصورة المعروضة</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>تكرار المقطع</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>تشغيل المقطع المعلّم مرارًا</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>مسح المقطع</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>نسيان المقطع المعلّم</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم الصوت</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>إسكات الصوت</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>عرض جميع المفاتيح</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>حفظ اللقطة</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>خطأ في Morvantile</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>تعذر إنشاء عارض الفيديو</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>أفضل الإطارات…</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>اقتراح أوضح الإطارات حول هذا الإطار</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>لقطة غير محفوظة</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>لم تُحفظ اللقطة.</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>لم تُحفظ %n لقطة.</numerusform>
            <numerusform>لم تُحفظ لقطة واحدة (%n).</numerusform>
            <numerusform>لم تُحفظ لقطتان (%n).</numerusform>
            <numerusform>لم تُحفظ %n لقطات.</numerusform>
            <numerusform>لم تُحفظ %n لقطة.</numerusform>
            <numerusform>لم تُحفظ %n لقطة.</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>ستُفقد ما لم تحفظها.</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>ستُفقد ما لم تحفظها.</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>انتظار كتابة اللقطات…</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>لم تعد صورة هذه اللقطة قابلة للقراءة.</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>حُفظ %1 من %2</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>شريط اللقطات ممتلئ: احفظ بعض لقطاته أو احذفها.</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>لم يعد %1 موجودًا؛ هذه لقطته.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 عند %2</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>حُفظت لقطة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>حُفظت %n لقطة</numerusform>
            <numerusform>حُفظت لقطة واحدة (%n)</numerusform>
            <numerusform>حُفظت لقطتان (%n)</numerusform>
            <numerusform>حُفظت %n لقطات</numerusform>
            <numerusform>حُفظت %n لقطة</numerusform>
            <numerusform>حُفظت %n لقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
            <numerusform>%1، وتعذر حفظ %n</numerusform>
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
        <translation>Morvantile – التقاط الفيديو</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>تعذر التقاط إطار الفيديو</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 موجود بالفعل.
هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>أُخذت اللقطة: %1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>ملاءمة للنافذة</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>عرض الصورة كاملة</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>عرض كل بكسل من الفيديو بأربعة في أربعة من الشاشة</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>الفيديو التالي</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>فتح الفيديو التالي في هذا المجلد</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>الفيديو السابق</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>فتح الفيديو السابق في هذا المجلد</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>لم يُفلت أي فيديو.</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>عدة فيديوهات</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>أُفلت %n فيديو.</numerusform>
            <numerusform>أُفلت فيديو واحد (%n).</numerusform>
            <numerusform>أُفلت فيديوهان (%n).</numerusform>
            <numerusform>أُفلتت %n فيديوهات.</numerusform>
            <numerusform>أُفلت %n فيديو.</numerusform>
            <numerusform>أُفلت %n فيديو.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>هل تريد فتح الأول، %1، أم وضعها جميعًا في قائمة وضع الدفعات؟</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>دفعة</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>أو أفلت واحدًا هنا</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>المفتوحة مؤخرًا</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>انقر لفتح فيديو</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>افتح فيديو أو أفلته هنا</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>الموضع في الفيديو</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>الموضع. انقر لكتابة موضع آخر: 1:02:03.5, +10s, -2s, f1234 أو 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>الرجوع قليلاً</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>الرجوع إطارًا واحدًا</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>تشغيل/إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>التقدم إطارًا واحدًا</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>التقدم قليلاً</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>التحكم في مستوى الصوت</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>رقم الإطار والمعدل والحجم والترميز</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>أخذ لقطة</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>التقاط الصورة المعروضة على الشاشة</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>صورة الفيديو</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>يشغّل ويوقف مؤقتًا</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
لا يمكن تشغيله كفيديو.

انقر لفتح فيديو آخر</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1، الإطار %2</translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation>السرعة %1</translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation>يبدأ المقطع عند %1</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>ينتهي المقطع عند %1</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>اكتب 1:02:03.5, +10s, -2s, f1234 أو 75%</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>عدّ الإطارات…</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>لا يمكن عدّ الإطارات</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>ينتهي الفيديو قبله</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>لا موضع كهذا في الفيديو: «%1»؛ %2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>إعدادات بلا اسم</translation>
    </message>
</context>
<context>
    <name>ProfileNames</name>
    <message>
        <source>Standard</source>
        <translation>قياسي</translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation>إعادة تسمية هذا النمط أو تكراره أو حذفه</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[اكتب اسم النمط]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة تسمية…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>حذف…</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>استبدال النمط</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>إعادة تسمية النمط</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>الاسم الجديد:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>نسخة من %1</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>نسخة من %1 (%2)</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>حذف النمط</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>هل تريد حذف النمط «%1»؟</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>يوجد نمط «%1» بالفعل. هل تريد استبدال إعداداته بهذه؟</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>يوجد نمط «%1» بالفعل.</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>عذرًا،

يتطلب Morvantile نظام macOS 10.10 (Yosemite) أو أحدث</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>نظام غير مدعوم</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>الملف تالف أو ليس فيديو.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>لا يُسمح لك بقراءة الملف.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>لا توجد ذاكرة كافية.</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>هذا النوع من الفيديو غير مدعوم.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>لا يمكن قراءة الملف (%1).</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>أُلغي الفتح.</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>هذه قائمة ملفات وليست فيديو.</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>الملف تالف: يعلن عن صور أكثر مما يمكن أن يحتويه.</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>استُبدل محتوى الملف بواسطة برنامج آخر.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>لم يعد الملف قابلاً للقراءة.</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>لا يمكن فك ترميز الفيديو.</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>لم يعد الإطار قابلاً للقراءة.</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>لا يمكن فك ترميز الصوت.</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>لا يوجد فيديو في الملف.</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>الصورة تالفة.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>الصور كبيرة جدًا: صورة بحجم %1 × %2 تحتاج إلى %3 من الذاكرة، والمسموح %4.</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>يحتاج الفيديو إلى عدد كبير جدًا من الصور الكبيرة في آن واحد: تحتاج إلى %1 من الذاكرة، والمسموح %2.</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>الفيديو بصيغة HDR10+؛ تُنشأ صوره من HDR10 الذي يحتويه.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>الفيديو بصيغة Dolby Vision؛ تُنشأ صوره من الطبقة الأساسية.</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>الفيديو بصيغة Dolby Vision بلا طبقة أساسية يمكن لبرامج أخرى عرضها؛ ألوان صوره غير صحيحة.</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>الحجم الأصلي</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>Full HD</translation>
    </message>
    <message>
        <source>Web 1280</source>
        <translation>ويب 1280</translation>
    </message>
    <message>
        <source>Thumbnail 320</source>
        <translation>صورة مصغرة 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1، الحجم الأصلي</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>فتح الأخيرة</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>لا شيء منها موجود</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>مسح القائمة</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>إظهار آخر ملف حُفظ في مجلده</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>لا يمكن قراءة الإعدادات في %1. حُفظت باسم %2.</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>لا يمكن حفظ الإعدادات في %1 (%2). ما تغيّره يضيع عند إغلاق النافذة.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>النقر على شريط التمرير</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>الذهاب إلى هناك</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>Shift والسحب على شريط التمرير</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>الانتقال إطارًا بإطار</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>العجلة فوق شريط التمرير</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>النقر على الوقت</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>كتابة وقت آخر: 1:02:03.5, +10s, -2s, f1234 أو 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>الفأرة</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>العجلة فوق الصورة</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>التكبير عند المؤشر</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>سحب الصورة المكبرة</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>عرض جزء آخر منها</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>النقر المزدوج على الصورة</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>الحجم الفعلي أو الملاءمة مجددًا</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>جميع الملفات</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>ملفات الفيديو</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>ملفات الصور</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>اللقطة</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>ما سيُحفظ</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>الحجم الأصلي</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>حفظ اللقطة بحجم الفيديو</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>نمط الصورة</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>نمط الصورة</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>تحرير أنماط الصورة</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>اسم ملف تلقائي</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>الحفظ دون سؤال، بالاسم التالي المتاح</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>نمط اسم الملف</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>تحرير أنماط اسم الملف</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>مجلد الصور</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>اختيار مجلد الصور</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>التالي:</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>اسم الملف التالي</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>حفظ اللقطة</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>لا لقطة بعد</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>لا صورة من %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>حُفظ %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>تعذر حفظ %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>مجلد غير معروف</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>أدخل مجلد إخراج صالحًا في قسم «اسم ملف تلقائي».</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>هل تريد إنشاء المجلد؟</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>المجلد غير موجود</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>فتح مجلد</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>حفظ اللقطات</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>لن تبقى اللقطات بعد إغلاق هذه النافذة: نافذة أخرى أو القرص لا يسمح بذلك.</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>كانت قائمة اللقطات غير المحفوظة تالفة. وهي الآن مع ملفاتها في %1</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>تعذرت كتابة اللقطات غير المحفوظة على القرص، وستُفقد عند إغلاق النافذة.</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>محفوظة</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>غير محفوظة</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1، %2، %3، %4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1 عند %2
%3، %4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>علامة مائية</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>كما في النظام</translation>
    </message>
</context>
<context>
    <name>TimecodeField</name>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>الذهاب إلى وقت</translation>
    </message>
</context>
<context>
    <name>VideoFactsText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 إطار/ث</translation>
    </message>
    <message>
        <source>speed %1</source>
        <translation>السرعة %1</translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم الصوت</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>إعدادات العلامة المائية</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>اختيار النمط</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>نص العلامة المائية</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>النص الذي تعرضه العلامة المائية</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>إضافة طابع زمني</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>الصورة المختارة</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>ملف الصورة</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>لم تُختر صورة</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>التأثيرات</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>تنسيق النص</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>خط النص</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>لون النص</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>ظل النص</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>لون الظل</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>لون الظل</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>إزاحة X</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>إزاحة الظل X</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>إزاحة Y</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>إزاحة الظل Y</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>الموضع والمعاينة</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>المحاذاة</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>هامش X</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>هامش Y</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>صورة غير صالحة</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>تعذر فتح الصورة. جرّب صورة أخرى.</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>وسط</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>أسفل اليمين</translation>
    </message>
    <message>
        <source>Scale with Picture</source>
        <translation>التحجيم مع الصورة</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>تشغل العلامة المائية النسبة نفسها من عرض كل صورة؛ وإلا فلها حجمها الخاص</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
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
        <translation>لا توجد صورة كهذه.</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>لا تذكر الصورة من أي إطار ومن أي فيديو هي.</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>لا توجد صورة، ربما لنقص الذاكرة</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>الذاكرة غير كافية</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>لا يمكن ترميز الصورة</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>استُنفدت حصتك: ينقص %1 من أجل %2</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>القرص ممتلئ: ينقص %1 من أجل %2</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>لم يعد المجلد موجودًا: %1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>لا يسمح لك المجلد بالكتابة: %1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>القرص للقراءة فقط: %1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>تعذرت الكتابة: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>تعذر ترميز الصورة بصيغة %1.</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>جميع الإطارات سوداء أو ضبابية أو عند قطع.</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>لا يحتوي الفيديو على الإطار %1.</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>توقفت المحاولة بعد %1 ثانية.</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>لا توجد صورة عند هذا الموضع.</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>سيلزم أكثر من %1 صورة.</translation>
    </message>
</context>
</TS>
