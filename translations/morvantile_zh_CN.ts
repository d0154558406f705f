<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>关于 Morvantile</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>Morvantile 图标</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – 视频帧截取软件</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>欢迎提出问题或功能建议！</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – 批处理模式</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>加载视频</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>读取视频的进度</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>停止读取</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>保留已读取的视频，放弃其余视频</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>所选视频文件</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[未选择视频]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>图像设置</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>图像配置：</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>图像配置</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>编辑图像配置</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>编辑图像配置</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>文件输出</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例：</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>截取间隔</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>生成</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>生成指定数量的图像</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>图像数量</translation>
    </message>
    <message>
        <source>images</source>
        <translation>张图像</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>每隔</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>单张，位于</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>只生成一张图像</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>单张图像的位置</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>使用所有处理器核心，准确截取这些位置的帧。否则截取位置附近的关键帧。</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>精确帧</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>开头跳过</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>结尾跳过</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>用于新视频</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>之后添加的视频将采用所选视频的设置</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>批处理将生成的内容</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>重试失败项</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>再次处理有失败的视频</translation>
    </message>
    <message>
        <source>front</source>
        <translation>开头</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>back</source>
        <translation>结尾</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>读取完所有视频后即可开始批处理</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>正在读取第 %1 个视频，共 %2 个：</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 张图像</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>1 个视频，约 %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>%n 个视频，约 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>存放图像的文件夹不存在。要创建吗？</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>以下存放图像的文件夹不存在。要创建吗？</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>无法创建 %1。</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>图像很多</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>编辑文件名</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>编辑文件的命名方式</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>选择存放图像的文件夹</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>每隔指定的秒数生成一张图像</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>两张图像之间的秒数</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>跳过的秒数</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>在开头跳过的秒数</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>在结尾跳过的秒数</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>还没有视频</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>加载视频，或将视频拖放到此处。然后选择从每个视频截取哪些图像。</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>此批处理将生成约 %1 张图像。要开始吗？</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>输出示例</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>批处理</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>当前视频</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>当前视频的进度</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>当前视频：%p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>所有视频的进度</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>所有视频：%p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>最后一张图像</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>取消批处理</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>确定要取消批处理吗？
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>无法保存图像</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>请腾出空间后重试，或者停止。已保存的图像会保留。</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>1 张图像</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n 张图像</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>已取消，完成 %1</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>完成：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1，%n 个失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1（另有 %n 个同类问题）</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>提取帧出错：%1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>无法保存 %1</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>正在保存：%1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>在 %1 秒处未找到画面</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>无法从 %2 秒处生成 %1：%3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n 张图像</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>单张，开头</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>单张，中间</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>单张，结尾</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>单张 </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>每隔 %1 秒</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>截取快照</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>最佳帧</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>最佳帧</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>截取所选帧的快照</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>正在查找 %1 到 %2 之间最清晰的帧…</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>这里的所有帧都是黑色、模糊或位于剪辑点。</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>单击转到该帧，双击截取。</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>双击可重置</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>处理前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>处理后</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>松开以打开</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>正在查找视频…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>选择配置</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>前缀：</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>前缀</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>后缀：</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>后缀</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>输出示例</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>示例视频：</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>输出示例：</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>用于批处理模式中只要一张图像的情况。</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>单张：</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>文件名配置设置</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>文件名格式</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>删除 1 张快照</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>删除 %n 张快照</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>胶片条</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>保存所有尚未保存的快照</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>删除快照</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>已全部保存</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n 张未保存</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>滚动表单</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>比较滤镜</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>处理前后</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>拖动分隔线进行比较</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>缩放用的滤镜</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>应用到配置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域平均</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>双三次</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>最近邻</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>将这些值写入图像配置“%1”</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>图像配置</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>图像配置设置</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>选择配置</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>图像尺寸</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>与视频尺寸相同</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>图像宽度：</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>图像宽度</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>图像高度：</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>图像高度</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>滤镜：</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>滤镜</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>在线性光下缩放</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>去隔行：</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>去隔行</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR：</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>PNG 和 TIFF 文件中如何处理高动态范围；其他文件和屏幕以色调映射显示</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>如何处理高动态范围</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>文件设置</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>JPEG 质量：</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG 质量</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>元数据：</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>元数据</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>16 位 PNG 和 TIFF</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>图像调整</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>亮度：</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>对比度：</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>水印</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>编辑水印</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[无水印]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域平均</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>双三次</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>最近邻</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>不含地点</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>色调映射</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>按原样存储</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>拖动分隔线进行比较</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>处理前后</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> 或 </translation>
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
        <translation>语言</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>系统语言</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>%1 下次启动时将使用此语言。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>后退一小段</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>后退一帧</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>前进一帧</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>前进一小段</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>截取快照</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>截取屏幕上的画面</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>保存快照</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>视频控制</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>去隔行</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>打开视频</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>在文件夹中显示最后保存的文件</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>复制快照</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>按显示的样子复制快照</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>复制完整帧</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>复制整帧，不作处理</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>批处理模式</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>从多个视频中截取一系列图像</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>比较滤镜</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>文档与支持</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>命令行选项</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>前进一帧</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>后退一帧</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>修复出现梳状条纹的隔行画面</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>色调映射</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>将高动态范围转换为所有屏幕都能显示的范围</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>按原样存储</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>在支持的文件中保留高动态范围的数值，用于调色</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>将每个画面都当作有梳状条纹的隔行画面处理</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>保持画面存储时的样子</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>前进一场</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>前进到隔行视频的下一时刻</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>后退一场</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>后退到隔行视频的上一时刻</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>向前跳转</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>向后跳转</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>播放 / 暂停</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>截取快照并保存</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>截取屏幕上的画面，并立即以下一个自动名称保存</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>逐像素显示画面</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>全屏显示播放器；按 Escape 退出</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>前进 10 秒</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>前进十秒</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>后退 10 秒</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>后退十秒</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>转到第一帧</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>显示第一帧</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>转到最后一帧</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>显示最后一帧</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>转到时间</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>输入要转到的时间或帧号</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>减速</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>放慢播放，最低为十分之一速度</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加速</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>加快播放，最高为八倍速度</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>正常速度</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>按录制速度播放</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>标记片段起点</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>标记的片段从屏幕上的画面开始</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>标记片段终点</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>标记的片段到屏幕上的画面结束</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>循环播放片段</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>反复播放标记的片段</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>清除片段</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>取消标记的片段</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>关闭声音</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>显示所有按键</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>保存快照</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>Morvantile 错误</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>无法创建视频渲染器</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>最佳帧…</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>推荐此帧附近最清晰的帧</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>未保存的快照</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>快照尚未保存。</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>%n 张快照尚未保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>如不保存，它将丢失。</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>如不保存，它们将丢失。</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>正在等待快照写入…</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>此快照的图像已无法读取。</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>已保存 %1 / %2</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>胶片条已满：请保存或删除一些快照。</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>%1 已不存在；这是它的快照。</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>已保存 1 张快照</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>已保存 %n 张快照</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1，%n 张无法保存</numerusform>
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
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Morvantile video capture</source>
        <translation>Morvantile – 视频截取</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>无法截取视频帧</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>已截取快照：%1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>显示完整画面</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>将视频的每个像素显示为屏幕上的 4×4 像素</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>下一个视频</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>打开此文件夹中的下一个视频</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>上一个视频</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>打开此文件夹中的上一个视频</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>没有拖放视频。</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>多个视频</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>拖放了 %n 个视频。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>打开第一个 %1，还是将全部加入批处理模式的列表？</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>批处理</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>或拖放到此处</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>最近打开</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>单击以打开视频</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>打开视频，或将视频拖放到此处</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>在视频中的位置</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>位置。单击可输入其他位置：1:02:03.5, +10s, -2s, f1234 或 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>后退一小段</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>后退一帧</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>前进一帧</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>前进一小段</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>音量控制</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>帧号、帧率、尺寸和编码</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>截取快照</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>截取屏幕上的画面</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>视频画面</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>播放和暂停</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
无法作为视频播放。

单击以打开其他视频</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1，第 %2 帧</translation>
    </message>
</context>
<context>
    <name>PlayerSteering</name>
    <message>
        <source>Speed %1</source>
        <translation>速度 %1</translation>
    </message>
    <message>
        <source>The stretch starts at %1</source>
        <translation>片段从 %1 开始</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>片段到 %1 结束</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>请输入 1:02:03.5, +10s, -2s, f1234 或 75%</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>正在统计帧数…</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>无法统计帧数</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>视频在此之前已结束</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>视频中没有此位置：“%1”；%2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>未命名设置</translation>
    </message>
</context>
<context>
    <name>ProfileNames</name>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation>重命名、复制或删除此配置</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[输入配置名称]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>删除…</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>替换配置</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>重命名配置</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>新名称：</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 副本 %2</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>删除配置</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>要删除配置“%1”吗？</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>已有名为“%1”的配置。要用当前设置替换它吗？</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>已有名为“%1”的配置。</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>抱歉，

Morvantile 需要 macOS 10.10 (Yosemite) 或更高版本</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>不支持的操作系统</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>文件已损坏，或不是视频。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>您无权读取该文件。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>不支持此类视频。</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>无法读取文件 (%1)。</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>已取消打开。</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>这是文件列表，不是视频。</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>文件已损坏：其声明的画面数超过可容纳的数量。</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>文件已被其他程序覆盖。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>文件已无法读取。</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>无法解码视频。</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>该帧已无法读取。</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>无法解码声音。</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>文件中没有视频。</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>画面已损坏。</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>画面过大：一个 %1 × %2 的画面需要 %3 内存，而上限为 %4。</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>此视频同时需要过多的大画面：它们需要 %1 内存，而上限为 %2。</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>该视频为 HDR10+；图像由其中的 HDR10 生成。</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>该视频为杜比视界；图像由基础层生成。</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>该视频为杜比视界，没有其他程序可以显示的基础层；图像的颜色不正确。</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>原始尺寸</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>全高清</translation>
    </message>
    <message>
        <source>Web 1280</source>
        <translation>网络 1280</translation>
    </message>
    <message>
        <source>Thumbnail 320</source>
        <translation>缩略图 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1，原始尺寸</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>打开最近的视频</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>均已不存在</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>清除列表</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>在文件夹中显示最后保存的文件</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>无法读取 %1 中的设置。它们已保留为 %2。</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>无法在 %1 中保存设置（%2）。您所做的更改会在窗口关闭时丢失。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>单击滑块</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>转到该处</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>按住 Shift 在滑块上拖动</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>逐帧移动</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>在滑块上滚动滚轮</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>单击时间</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>输入其他时间：1:02:03.5, +10s, -2s, f1234 或 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>鼠标</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>在画面上滚动滚轮</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>拖动放大的画面</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>显示其他部分</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>双击画面</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>实际大小，或恢复适合窗口</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>视频文件</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>图像文件</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>将要保存的内容</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>原始尺寸</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>以视频尺寸保存快照</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>图像配置</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>图像配置</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>编辑图像配置</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>自动文件名</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>不询问，直接以下一个可用的名称保存</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>文件名配置</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>编辑文件名配置</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>存放图像的文件夹</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>选择存放图像的文件夹</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>下一个：</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>下一个文件名</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>保存快照</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>还没有快照</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>没有 %1 的图像：%2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>无法保存 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>未知文件夹</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>请在“自动文件名”部分输入有效的输出文件夹。</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>要创建文件夹吗？</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>保存快照</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>关闭此窗口后快照不会保留：另一个窗口或磁盘不允许保留。</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>未保存快照的列表已损坏。现已连同其文件移至 %1</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>未保存的快照无法写入磁盘，关闭窗口后将丢失。</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1，%2，%3，%4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1（%2）
%3，%4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1（原为 %2）</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>水印</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>跟随系统</translation>
    </message>
</context>
<context>
    <name>TimecodeField</name>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>转到时间</translation>
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
        <translation>速度 %1</translation>
    </message>
</context>
<context>
    <name>VolumePopup</name>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>水印设置</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>选择配置</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>水印文字</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>水印的文字</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>添加时间戳</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>所选图片</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>图片文件</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>未选择图片</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>文字格式</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>文字字体</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>文字阴影</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>阴影颜色</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>阴影颜色</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>X 偏移</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>阴影 X 偏移</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Y 偏移</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>阴影 Y 偏移</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>位置和预览</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>X 边距</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>Y 边距</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>图像无效</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>无法打开图像。请尝试其他图像。</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Scale with Picture</source>
        <translation>随图像缩放</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>水印在每张图像中占相同比例的宽度；否则使用其自身尺寸</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
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
        <translation>没有这张图片。</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>该图片未说明来自哪个视频的哪一帧。</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>没有画面，可能是内存不足</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>无法编码该图片</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>您的配额已用完：%2 还缺 %1</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>磁盘已满：%2 还缺 %1</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>文件夹已不存在：%1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>您无权写入该文件夹：%1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>磁盘为只读：%1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>无法写入：%1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>无法将图片编码为 %1。</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>所有帧都是黑色、模糊或位于剪辑点。</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>该视频没有第 %1 帧。</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>%1 秒后已放弃。</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>此位置没有画面。</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>需要的图片会超过 %1 张。</translation>
    </message>
</context>
</TS>
