<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Morvantile</source>
        <translation>Morvantile について</translation>
    </message>
    <message>
        <source>Morvantile icon</source>
        <translation>Morvantile のアイコン</translation>
    </message>
    <message>
        <source>Morvantile - Video Frame Capture Software</source>
        <translation>Morvantile – 動画フレームの静止画キャプチャー</translation>
    </message>
    <message>
        <source>Please send me your questions or feature suggestions!</source>
        <translation>ご質問や機能のご要望をお寄せください。</translation>
    </message>
    <message>
        <source>Version: %1</source>
        <translation>バージョン: %1</translation>
    </message>
</context>
<context>
    <name>BatchModeDialog</name>
    <message>
        <source>Morvantile Batch Mode</source>
        <translation>Morvantile – バッチモード</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Load Video</source>
        <translation>動画を読み込む</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Progress of reading the videos</source>
        <translation>動画の読み込みの進行状況</translation>
    </message>
    <message>
        <source>Stop Reading</source>
        <translation>読み込みを停止</translation>
    </message>
    <message>
        <source>Keep the videos that have been read and drop the others</source>
        <translation>読み込んだ動画を残し、残りを取り消します</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Selected Video File</source>
        <translation>選択した動画ファイル</translation>
    </message>
    <message>
        <source>[No Video Selected]</source>
        <translation>[動画が選択されていません]</translation>
    </message>
    <message>
        <source>Image Settings</source>
        <translation>画像の設定</translation>
    </message>
    <message>
        <source>Image Profile:</source>
        <translation>画像プロファイル:</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>画像プロファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit Image Profile</source>
        <translation>画像プロファイルの編集</translation>
    </message>
    <message>
        <source>Edit the image profile</source>
        <translation>画像プロファイルを編集します</translation>
    </message>
    <message>
        <source>File Output</source>
        <translation>ファイル出力</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>撮影間隔</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Make a number of images</source>
        <translation>指定した枚数の画像を作成します</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>画像の枚数</translation>
    </message>
    <message>
        <source>images</source>
        <translation>枚</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Single shot at</source>
        <translation>1 枚だけ</translation>
    </message>
    <message>
        <source>Make a single image</source>
        <translation>1 枚だけ画像を作成します</translation>
    </message>
    <message>
        <source>Place of the single image</source>
        <translation>1 枚の画像の位置</translation>
    </message>
    <message>
        <source>Takes exactly the frames at these positions, on all processor cores. Without it, a key frame near a position is taken instead.</source>
        <translation>すべてのプロセッサーコアを使い、この位置のフレームを正確に取り出します。オフの場合は、位置に近いキーフレームを使います。</translation>
    </message>
    <message>
        <source>Exact frames</source>
        <translation>正確なフレーム</translation>
    </message>
    <message>
        <source>Skip front</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Skip back</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Use for New Videos</source>
        <translation>新しい動画に使う</translation>
    </message>
    <message>
        <source>Videos that are added later begin with the settings of the selected one</source>
        <translation>あとから追加する動画は、選択した動画の設定で始まります</translation>
    </message>
    <message>
        <source>What the batch will make</source>
        <translation>バッチで作成されるもの</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>失敗分を再試行</translation>
    </message>
    <message>
        <source>Run the videos for which something failed once more</source>
        <translation>失敗のあった動画をもう一度処理します</translation>
    </message>
    <message>
        <source>front</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>back</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>The batch can start when all videos have been read</source>
        <translation>すべての動画が読み込まれるとバッチを開始できます</translation>
    </message>
    <message>
        <source>Reading video %1 of %2:</source>
        <translation>動画 %1/%2 を読み込み中:</translation>
    </message>
    <message numerus="yes">
        <source>%1 images</source>
        <comment>in: About %1 of %n videos</comment>
        <translation>
            <numerusform>%1 枚の画像</numerusform>
        </translation>
    </message>
    <message>
        <source>About %1 of 1 video</source>
        <translation>動画 1 本から約 %1</translation>
    </message>
    <message numerus="yes">
        <source>About %1 of %n videos</source>
        <translation>
            <numerusform>動画 %n 本から約 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder for the images does not exist. Create it?</source>
        <translation>画像のフォルダーがありません。作成しますか?</translation>
    </message>
    <message>
        <source>These folders for the images do not exist. Create them?</source>
        <translation>画像の次のフォルダーがありません。作成しますか?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>%1 could not be created.</source>
        <translation>%1 を作成できませんでした。</translation>
    </message>
    <message>
        <source>Many Images</source>
        <translation>多数の画像</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>複数</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Edit File Name</source>
        <translation>ファイル名の編集</translation>
    </message>
    <message>
        <source>Edit how files are named</source>
        <translation>ファイルの命名方法を編集します</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>画像のフォルダーを選びます</translation>
    </message>
    <message>
        <source>Make an image every so many seconds</source>
        <translation>指定した秒数ごとに画像を作成します</translation>
    </message>
    <message>
        <source>Seconds from image to image</source>
        <translation>画像から画像までの秒数</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Skip Seconds</source>
        <translation>スキップする秒数</translation>
    </message>
    <message>
        <source>Seconds to skip at the front</source>
        <translation>先頭でスキップする秒数</translation>
    </message>
    <message>
        <source>Seconds to skip at the back</source>
        <translation>末尾でスキップする秒数</translation>
    </message>
    <message>
        <source>No Videos Yet</source>
        <translation>動画はまだありません</translation>
    </message>
    <message>
        <source>Load videos, or drop them here. Then choose which images to take of each.</source>
        <translation>動画を読み込むか、ここにドロップしてください。そのあと、それぞれから撮る画像を選びます。</translation>
    </message>
    <message numerus="yes">
        <source>This batch will make about %1 images. Start it?</source>
        <translation>
            <numerusform>このバッチでは約 %1 枚の画像が作成されます。開始しますか?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchModeListModel</name>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>出力先</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Output Example</source>
        <translation>出力例</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>BatchProcessingDialog</name>
    <message>
        <source>Batch Processing</source>
        <translation>バッチ処理</translation>
    </message>
    <message>
        <source>Current video</source>
        <translation>現在の動画</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Progress of the current video</source>
        <translation>現在の動画の進行状況</translation>
    </message>
    <message>
        <source>This video: %p%</source>
        <translation>この動画: %p%</translation>
    </message>
    <message>
        <source>Progress of all videos</source>
        <translation>すべての動画の進行状況</translation>
    </message>
    <message>
        <source>All videos: %p%</source>
        <translation>すべての動画: %p%</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>最後の画像</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancel Batch Processing</source>
        <translation>バッチ処理のキャンセル</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel batch processing?
</source>
        <translation>バッチ処理をキャンセルしますか?
</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>停止しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Images Cannot Be Saved</source>
        <translation>画像を保存できません</translation>
    </message>
    <message>
        <source>Free some space and try again, or stop. Images that are saved already are kept.</source>
        <translation>空きを作ってから再試行するか、停止してください。保存済みの画像は残ります。</translation>
    </message>
</context>
<context>
    <name>BatchReport</name>
    <message>
        <source>1 image</source>
        <translation>1 枚の画像</translation>
    </message>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n 枚の画像</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled after %1</source>
        <translation>%1でキャンセルしました</translation>
    </message>
    <message>
        <source>Finished: %1</source>
        <translation>完了: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n failed</source>
        <translation>
            <numerusform>%1、失敗 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more of this kind)</source>
        <translation>
            <numerusform>%1 (ほかに同種のもの %n 件)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>Could not open file</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>Frame extraction error %1</source>
        <translation>フレーム抽出エラー: %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 を保存できませんでした</translation>
    </message>
    <message>
        <source>Saving: %1</source>
        <translation>保存中: %1</translation>
    </message>
    <message>
        <source>no picture found at %1 s</source>
        <translation>%1 秒の位置に画像がありません</translation>
    </message>
    <message>
        <source>Could not make %1 from %2 s: %3</source>
        <translation>%2 秒の位置から %1 を作成できませんでした: %3</translation>
    </message>
</context>
<context>
    <name>BatchWorkerConfig</name>
    <message numerus="yes">
        <source>%n images</source>
        <translation>
            <numerusform>%n 枚の画像</numerusform>
        </translation>
    </message>
    <message>
        <source>Single front</source>
        <translation>1 枚 (先頭)</translation>
    </message>
    <message>
        <source>Single middle</source>
        <translation>1 枚 (中央)</translation>
    </message>
    <message>
        <source>Single back</source>
        <translation>1 枚 (末尾)</translation>
    </message>
    <message>
        <source>Single </source>
        <translation>1 枚 </translation>
    </message>
    <message>
        <source>Every %1 s</source>
        <translation>%1 秒ごと</translation>
    </message>
</context>
<context>
    <name>BestFramesDialog</name>
    <message>
        <source>Take Snapshot</source>
        <translation>スナップショットを撮る</translation>
    </message>
    <message>
        <source>Best of These</source>
        <translation>ベストフレーム</translation>
    </message>
    <message>
        <source>Best frames</source>
        <translation>ベストフレーム</translation>
    </message>
    <message>
        <source>Take a snapshot of the selected frame</source>
        <translation>選択したフレームのスナップショットを撮ります</translation>
    </message>
    <message>
        <source>Looking for the sharpest frames from %1 to %2…</source>
        <translation>%1 から %2 までで最も鮮明なフレームを探しています…</translation>
    </message>
    <message>
        <source>All frames here are black, blurred or at a cut.</source>
        <translation>ここのフレームはすべて、黒いか、ぼけているか、カットの位置にあります。</translation>
    </message>
    <message>
        <source>A click goes to the frame, a double click takes it.</source>
        <translation>クリックでフレームへ移動し、ダブルクリックで撮ります。</translation>
    </message>
</context>
<context>
    <name>CentredSlider</name>
    <message>
        <source>Double-click to reset</source>
        <translation>ダブルクリックで元に戻します</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>Before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>処理後</translation>
    </message>
</context>
<context>
    <name>DropHighlight</name>
    <message>
        <source>Drop to open</source>
        <translation>ドロップして開く</translation>
    </message>
</context>
<context>
    <name>DropZone</name>
    <message>
        <source>Looking for videos…</source>
        <translation>動画を探しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FileNameProfileDialog</name>
    <message>
        <source>Select Profile</source>
        <translation>プロファイルの選択</translation>
    </message>
    <message>
        <source>Prefix:</source>
        <translation>接頭辞:</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>接頭辞</translation>
    </message>
    <message>
        <source>Suffix:</source>
        <translation>接尾辞:</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>接尾辞</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Example Output</source>
        <translation>出力例</translation>
    </message>
    <message>
        <source>Example Video:</source>
        <translation>動画の例:</translation>
    </message>
    <message>
        <source>Example Output:</source>
        <translation>出力例:</translation>
    </message>
    <message>
        <source>For Batch Mode when only a single image is requested.</source>
        <translation>バッチモードで 1 枚だけ画像を作成する場合に使います。</translation>
    </message>
    <message>
        <source>Single Shot:</source>
        <translation>1 枚だけ:</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>File Name Profile Settings</source>
        <translation>ファイル名プロファイルの設定</translation>
    </message>
    <message>
        <source>File Name Format</source>
        <translation>ファイル名の形式</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
</context>
<context>
    <name>Filmstrip</name>
    <message>
        <source>Delete 1 Snapshot</source>
        <translation>スナップショット 1 枚を削除</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Snapshots</source>
        <translation>
            <numerusform>スナップショット %n 枚を削除</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Filmstrip</source>
        <translation>フィルムストリップ</translation>
    </message>
    <message>
        <source>Save all snapshots that are not saved yet</source>
        <translation>まだ保存していないスナップショットをすべて保存します</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Delete Snapshots</source>
        <translation>スナップショットを削除</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>All saved</source>
        <translation>すべて保存済み</translation>
    </message>
    <message numerus="yes">
        <source>%n not saved</source>
        <translation>
            <numerusform>%n 枚が未保存</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormScrollArea</name>
    <message>
        <source>Scroll the form</source>
        <translation>フォームをスクロールします</translation>
    </message>
</context>
<context>
    <name>ImageFiltersDialog</name>
    <message>
        <source>Compare Filters</source>
        <translation>フィルターの比較</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>処理前と処理後</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>線をドラッグして比較します</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Filter for another size</source>
        <translation>サイズ変更のフィルター</translation>
    </message>
    <message>
        <source>Apply to Profile</source>
        <translation>プロファイルに適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積平均</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>バイキュービック</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>ニアレストネイバー</translation>
    </message>
    <message>
        <source>Put these values into the image profile “%1”</source>
        <translation>これらの値を画像プロファイル「%1」に設定します</translation>
    </message>
</context>
<context>
    <name>ImageProfile</name>
    <message>
        <source>Image Profile</source>
        <translation>画像プロファイル</translation>
    </message>
</context>
<context>
    <name>ImageProfileDialog</name>
    <message>
        <source>Image Profile Settings</source>
        <translation>画像プロファイルの設定</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>プロファイルの選択</translation>
    </message>
    <message>
        <source>Image Size</source>
        <translation>画像サイズ</translation>
    </message>
    <message>
        <source>Same Size as Video</source>
        <translation>動画と同じサイズ</translation>
    </message>
    <message>
        <source>Image Width:</source>
        <translation>画像の幅:</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>画像の幅</translation>
    </message>
    <message>
        <source>Image Height:</source>
        <translation>画像の高さ:</translation>
    </message>
    <message>
        <source>Image Height</source>
        <translation>画像の高さ</translation>
    </message>
    <message>
        <source>Maintain Aspect Ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>フィルター:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Resize in Linear Light</source>
        <translation>リニアライトでサイズ変更</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Deinterlace:</source>
        <translation>インターレース解除:</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>インターレース解除</translation>
    </message>
    <message>
        <source>HDR:</source>
        <translation>HDR:</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range in PNG and TIFF files; other files and the screen show it tone-mapped</source>
        <translation>PNG と TIFF ファイルでのハイダイナミックレンジの扱い。ほかのファイルと画面ではトーンマッピングして表示されます</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>What becomes of high dynamic range</source>
        <translation>ハイダイナミックレンジの扱い</translation>
    </message>
    <message>
        <source>File Settings</source>
        <translation>ファイルの設定</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>JPEG の品質:</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG の品質</translation>
    </message>
    <message>
        <source>Metadata:</source>
        <translation>メタデータ:</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>メタデータ</translation>
    </message>
    <message>
        <source>16-Bit PNG and TIFF</source>
        <translation>16 ビットの PNG と TIFF</translation>
    </message>
    <message>
        <source>Image Adjustments</source>
        <translation>画像の調整</translation>
    </message>
    <message>
        <source>Brightness:</source>
        <translation>明るさ:</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>コントラスト:</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit Watermark</source>
        <translation>透かしの編集</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>[No Watermark]</source>
        <translation>[透かしなし]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面積平均</translation>
    </message>
    <message>
        <source>Lanczos</source>
        <translation>Lanczos</translation>
    </message>
    <message>
        <source>Bicubic</source>
        <translation>バイキュービック</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>ニアレストネイバー</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Without Place</source>
        <translation>場所を除く</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>トーンマッピング</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>保存されたまま</translation>
    </message>
    <message>
        <source>Drag the line to compare</source>
        <translation>線をドラッグして比較します</translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>処理前と処理後</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source> or </source>
        <comment>between two keys</comment>
        <translation> または </translation>
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
        <translation>言語</translation>
    </message>
    <message>
        <source>System Language</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <source>%1 shows this language when it is started again.</source>
        <translation>次回の起動から %1 はこの言語で表示されます。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Skip back a bit</source>
        <translation>少し後ろへスキップ</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>1 フレーム戻る</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>1 フレーム進む</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>少し先へスキップ</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>スナップショットを撮る</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>画面の画像を撮ります</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>スナップショットを保存します</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Video Controls</source>
        <translation>動画の操作</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>区間</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>インターレース解除</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open a video</source>
        <translation>動画を開きます</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>最後に保存したファイルをフォルダーで表示します</translation>
    </message>
    <message>
        <source>Copy Snapshot</source>
        <translation>スナップショットをコピー</translation>
    </message>
    <message>
        <source>Copy the snapshot as it is shown</source>
        <translation>スナップショットを表示のとおりにコピーします</translation>
    </message>
    <message>
        <source>Copy Full Frame</source>
        <translation>フレーム全体をコピー</translation>
    </message>
    <message>
        <source>Copy the whole frame, unprocessed</source>
        <translation>フレーム全体を処理せずにコピーします</translation>
    </message>
    <message>
        <source>Batch Mode</source>
        <translation>バッチモード</translation>
    </message>
    <message>
        <source>Take series of images from many videos</source>
        <translation>多数の動画から一連の画像を撮ります</translation>
    </message>
    <message>
        <source>Compare Filters</source>
        <translation>フィルターの比較</translation>
    </message>
    <message>
        <source>Documentation &amp;&amp; Support</source>
        <translation>ドキュメントとサポート</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Command Line Options</source>
        <translation>コマンドラインオプション</translation>
    </message>
    <message>
        <source>Step Forward</source>
        <translation>1 フレーム進む</translation>
    </message>
    <message>
        <source>Step Backward</source>
        <translation>1 フレーム戻る</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Make interlaced pictures that comb whole</source>
        <translation>くし状のずれがあるインターレース画像を補正します</translation>
    </message>
    <message>
        <source>Tone-Mapped</source>
        <translation>トーンマッピング</translation>
    </message>
    <message>
        <source>Bring high dynamic range to what every screen shows</source>
        <translation>ハイダイナミックレンジをどの画面でも表示できる範囲に変換します</translation>
    </message>
    <message>
        <source>As Stored</source>
        <translation>保存されたまま</translation>
    </message>
    <message>
        <source>Keep the values of high dynamic range in files that can hold them, for grading</source>
        <translation>対応するファイルではハイダイナミックレンジの値をグレーディング用に残します</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Take each picture for an interlaced one that combs</source>
        <translation>すべての画像を、くし状のずれがあるインターレース画像として扱います</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Leave pictures as they are stored</source>
        <translation>画像を保存されたままにします</translation>
    </message>
    <message>
        <source>Step Field Forward</source>
        <translation>1 フィールド進む</translation>
    </message>
    <message>
        <source>Step forward to the next moment of an interlaced video</source>
        <translation>インターレース動画の次の瞬間へ進みます</translation>
    </message>
    <message>
        <source>Step Field Backward</source>
        <translation>1 フィールド戻る</translation>
    </message>
    <message>
        <source>Step back to the moment before of an interlaced video</source>
        <translation>インターレース動画の前の瞬間へ戻ります</translation>
    </message>
    <message>
        <source>Skip Forward</source>
        <translation>先へスキップ</translation>
    </message>
    <message>
        <source>Skip Backward</source>
        <translation>後ろへスキップ</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>再生 / 一時停止</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止します</translation>
    </message>
    <message>
        <source>Take Snapshot and Save</source>
        <translation>スナップショットを撮って保存</translation>
    </message>
    <message>
        <source>Take the picture on screen and save it at once, under the next automatic name</source>
        <translation>画面の画像を撮り、次の自動ファイル名ですぐに保存します</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Show the picture pixel by pixel</source>
        <translation>画像をピクセル等倍で表示します</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Show the player on the whole screen; Escape leaves it</source>
        <translation>プレーヤーを画面全体に表示します。Escape で戻ります</translation>
    </message>
    <message>
        <source>Skip Forward 10 Seconds</source>
        <translation>10 秒先へスキップ</translation>
    </message>
    <message>
        <source>Skip forward ten seconds</source>
        <translation>10 秒先へスキップします</translation>
    </message>
    <message>
        <source>Skip Backward 10 Seconds</source>
        <translation>10 秒後ろへスキップ</translation>
    </message>
    <message>
        <source>Skip back ten seconds</source>
        <translation>10 秒後ろへスキップします</translation>
    </message>
    <message>
        <source>Go to First Frame</source>
        <translation>最初のフレームへ移動</translation>
    </message>
    <message>
        <source>Show the first frame</source>
        <translation>最初のフレームを表示します</translation>
    </message>
    <message>
        <source>Go to Last Frame</source>
        <translation>最後のフレームへ移動</translation>
    </message>
    <message>
        <source>Show the last frame</source>
        <translation>最後のフレームを表示します</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>時刻を指定して移動</translation>
    </message>
    <message>
        <source>Type the time or the frame to go to</source>
        <translation>移動先の時刻またはフレームを入力します</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>遅く</translation>
    </message>
    <message>
        <source>Play slower, down to a tenth of the speed</source>
        <translation>再生を遅くします (10 分の 1 の速度まで)</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>速く</translation>
    </message>
    <message>
        <source>Play faster, up to eight times</source>
        <translation>再生を速くします (8 倍まで)</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>標準の速度</translation>
    </message>
    <message>
        <source>Play as fast as it was recorded</source>
        <translation>撮影時の速度で再生します</translation>
    </message>
    <message>
        <source>Mark Start of Stretch</source>
        <translation>区間の始まりをマーク</translation>
    </message>
    <message>
        <source>The marked stretch starts with the picture on screen</source>
        <translation>画面の画像からマークした区間が始まります</translation>
    </message>
    <message>
        <source>Mark End of Stretch</source>
        <translation>区間の終わりをマーク</translation>
    </message>
    <message>
        <source>The marked stretch ends with the picture on screen</source>
        <translation>画面の画像でマークした区間が終わります</translation>
    </message>
    <message>
        <source>Loop Stretch</source>
        <translation>区間をループ再生</translation>
    </message>
    <message>
        <source>Play the marked stretch over and over</source>
        <translation>マークした区間を繰り返し再生します</translation>
    </message>
    <message>
        <source>Clear Stretch</source>
        <translation>区間を解除</translation>
    </message>
    <message>
        <source>Forget the marked stretch</source>
        <translation>マークした区間を取り消します</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Silence the sound</source>
        <translation>音を消します</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>すべてのキーを表示します</translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation>スナップショットを保存</translation>
    </message>
    <message>
        <source>Morvantile error</source>
        <translation>Morvantile のエラー</translation>
    </message>
    <message>
        <source>Can not create video renderer</source>
        <translation>映像の表示先を作成できません</translation>
    </message>
    <message>
        <source>Best of These…</source>
        <translation>ベストフレーム…</translation>
    </message>
    <message>
        <source>Propose the sharpest frames around this one</source>
        <translation>このフレームの前後で最も鮮明なフレームを提案します</translation>
    </message>
    <message>
        <source>Unsaved Snapshot</source>
        <translation>未保存のスナップショット</translation>
    </message>
    <message>
        <source>The snapshot has not been saved.</source>
        <translation>スナップショットが保存されていません。</translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots have not been saved.</source>
        <translation>
            <numerusform>%n 枚のスナップショットが保存されていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>It will be lost unless you save it.</source>
        <translation>保存しないと失われます。</translation>
    </message>
    <message>
        <source>They will be lost unless you save them.</source>
        <translation>保存しないと失われます。</translation>
    </message>
    <message>
        <source>Waiting until snapshots are written…</source>
        <translation>スナップショットの書き込みを待っています…</translation>
    </message>
    <message>
        <source>The picture of this snapshot cannot be read any more.</source>
        <translation>このスナップショットの画像はもう読み込めません。</translation>
    </message>
    <message>
        <source>Saved %1 of %2</source>
        <translation>%1/%2 を保存しました</translation>
    </message>
    <message>
        <source>The filmstrip is full: save or delete some of its snapshots.</source>
        <translation>フィルムストリップがいっぱいです。スナップショットをいくつか保存または削除してください。</translation>
    </message>
    <message>
        <source>%1 is not there any more; this is its snapshot.</source>
        <translation>%1 はもうありません。これはそのスナップショットです。</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Saved 1 snapshot</source>
        <translation>スナップショットを 1 枚保存しました</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n snapshots</source>
        <translation>
            <numerusform>スナップショットを %n 枚保存しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n could not be saved</source>
        <translation>
            <numerusform>%1、%n 枚は保存できませんでした</numerusform>
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
        <translation>Morvantile – キャプチャー</translation>
    </message>
    <message>
        <source>Failed to capture video frame</source>
        <translation>フレームを取り込めませんでした</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 はすでに存在します。
置き換えますか?</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Snapshot taken: %1</source>
        <translation>スナップショットを撮りました: %1</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>ウィンドウに合わせる</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>画像全体を表示します</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show each pixel of the video as four by four of the screen</source>
        <translation>動画の 1 ピクセルを画面の 4 × 4 ピクセルで表示します</translation>
    </message>
    <message>
        <source>Next Video</source>
        <translation>次の動画</translation>
    </message>
    <message>
        <source>Open the next video of this folder</source>
        <translation>このフォルダーの次の動画を開きます</translation>
    </message>
    <message>
        <source>Previous Video</source>
        <translation>前の動画</translation>
    </message>
    <message>
        <source>Open the previous video of this folder</source>
        <translation>このフォルダーの前の動画を開きます</translation>
    </message>
    <message>
        <source>No video was dropped.</source>
        <translation>動画はドロップされませんでした。</translation>
    </message>
    <message>
        <source>Several Videos</source>
        <translation>複数の動画</translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) were dropped.</source>
        <translation>
            <numerusform>%n 本の動画がドロップされました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open the first one, %1, or put all of them into the list of batch mode?</source>
        <translation>最初の動画 %1 を開きますか、それともすべてをバッチモードの一覧に入れますか?</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>バッチ</translation>
    </message>
</context>
<context>
    <name>OpenVideoButton</name>
    <message>
        <source>or drop one here</source>
        <translation>またはここにドロップ</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>最近開いた動画</translation>
    </message>
</context>
<context>
    <name>PlayerPane</name>
    <message>
        <source>Click to open video</source>
        <translation>クリックして動画を開く</translation>
    </message>
    <message>
        <source>Open a video, or drop one here</source>
        <translation>動画を開くか、ここにドロップします</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>動画内の位置</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Position. Click to type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>位置。クリックして別の位置を入力できます: 1:02:03.5, +10s, -2s, f1234, 75%</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Skip back a bit</source>
        <translation>少し後ろへスキップ</translation>
    </message>
    <message>
        <source>Step back one frame</source>
        <translation>1 フレーム戻る</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Step forward one frame</source>
        <translation>1 フレーム進む</translation>
    </message>
    <message>
        <source>Skip forward a bit</source>
        <translation>少し先へスキップ</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Volume Control</source>
        <translation>音量の調整</translation>
    </message>
    <message>
        <source>Frame, rate, size and codec</source>
        <translation>フレーム、レート、サイズ、コーデック</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>スナップショットを撮る</translation>
    </message>
    <message>
        <source>Take the picture on screen</source>
        <translation>画面の画像を撮ります</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>動画の画像</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Plays and pauses</source>
        <translation>再生と一時停止を切り替えます</translation>
    </message>
    <message>
        <source>%1
cannot be played as a video.

Click to open another video</source>
        <translation>%1
は動画として再生できません。

クリックして別の動画を開く</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, frame %2</source>
        <translation>%1、フレーム %2</translation>
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
        <translation>区間は %1 から始まります</translation>
    </message>
    <message>
        <source>The stretch ends at %1</source>
        <translation>区間は %1 で終わります</translation>
    </message>
    <message>
        <source>write 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>1:02:03.5, +10s, -2s, f1234, 75% のように入力してください</translation>
    </message>
    <message>
        <source>Counting the frames…</source>
        <translation>フレームを数えています…</translation>
    </message>
    <message>
        <source>the frames cannot be counted</source>
        <translation>フレームを数えられません</translation>
    </message>
    <message>
        <source>the video ends before it</source>
        <translation>動画はその前に終わります</translation>
    </message>
    <message>
        <source>No place in the video: “%1”; %2</source>
        <translation>動画内の位置ではありません:「%1」; %2</translation>
    </message>
</context>
<context>
    <name>ProfileManager</name>
    <message>
        <source>Unnamed Settings</source>
        <translation>名称未設定</translation>
    </message>
</context>
<context>
    <name>ProfileNames</name>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
</context>
<context>
    <name>ProfileSelector</name>
    <message>
        <source>Profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Rename, duplicate or delete this profile</source>
        <translation>このプロファイルの名前を変更、複製、削除します</translation>
    </message>
    <message>
        <source>[Type to Name Profile]</source>
        <translation>[プロファイル名を入力]</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>削除…</translation>
    </message>
    <message>
        <source>Replace Profile</source>
        <translation>プロファイルの置き換え</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>プロファイル名の変更</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>新しい名前:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>%1 copy %2</source>
        <translation>%1 のコピー %2</translation>
    </message>
    <message>
        <source>Delete Profile</source>
        <translation>プロファイルの削除</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>プロファイル「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already. Replace its settings with these?</source>
        <translation>プロファイル「%1」はすでにあります。設定を置き換えますか?</translation>
    </message>
    <message>
        <source>A profile “%1” exists already.</source>
        <translation>プロファイル「%1」はすでにあります。</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>I&apos;m sorry,

Morvantile requires macOS 10.10 (Yosemite) or higher</source>
        <translation>申し訳ありません。

Morvantile には macOS 10.10 (Yosemite) 以降が必要です</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>対応していない OS</translation>
    </message>
</context>
<context>
    <name>QtAV</name>
    <message>
        <source>The file is damaged, or no video.</source>
        <translation>ファイルが壊れているか、動画ではありません。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>You are not allowed to read the file.</source>
        <translation>ファイルを読む権限がありません。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリーが足りません。</translation>
    </message>
    <message>
        <source>This kind of video is not supported.</source>
        <translation>この種類の動画には対応していません。</translation>
    </message>
    <message>
        <source>The file cannot be read (%1).</source>
        <translation>ファイルを読み込めません (%1)。</translation>
    </message>
</context>
<context>
    <name>QtAV::AVDemuxer</name>
    <message>
        <source>Opening was cancelled.</source>
        <translation>ファイルを開く処理はキャンセルされました。</translation>
    </message>
    <message>
        <source>This is a list of files, not a video.</source>
        <translation>これは動画ではなく、ファイルの一覧です。</translation>
    </message>
    <message>
        <source>The file is damaged: it declares more pictures than it can hold.</source>
        <translation>ファイルが壊れています。含めることができる数より多くの画像が宣言されています。</translation>
    </message>
    <message>
        <source>The file was overwritten by another program.</source>
        <translation>ファイルは別のプログラムに上書きされました。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>これはファイルではありません。</translation>
    </message>
</context>
<context>
    <name>QtAV::AVPlayer</name>
    <message>
        <source>The file cannot be read any more.</source>
        <translation>ファイルをこれ以上読み込めません。</translation>
    </message>
    <message>
        <source>The video cannot be decoded.</source>
        <translation>動画をデコードできません。</translation>
    </message>
    <message>
        <source>The frame cannot be read any more.</source>
        <translation>フレームをこれ以上読み込めません。</translation>
    </message>
    <message>
        <source>The sound cannot be decoded.</source>
        <translation>音声をデコードできません。</translation>
    </message>
    <message>
        <source>There is no video in the file.</source>
        <translation>ファイルに動画がありません。</translation>
    </message>
    <message>
        <source>The picture is damaged.</source>
        <translation>画像が壊れています。</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoDecoder</name>
    <message>
        <source>The pictures are too large: one of %1 x %2 takes %3 of memory, and %4 are allowed.</source>
        <translation>画像が大きすぎます。%1 × %2 の画像には %3 のメモリーが必要ですが、%4 までに制限されています。</translation>
    </message>
    <message>
        <source>The video needs too many large pictures at once: they take %1 of memory, and %2 are allowed.</source>
        <translation>この動画は大きな画像を一度に多く必要とします。%1 のメモリーが必要ですが、%2 までに制限されています。</translation>
    </message>
</context>
<context>
    <name>QtAV::VideoFrame</name>
    <message>
        <source>The video is HDR10+; its pictures are made of the HDR10 in it.</source>
        <translation>この動画は HDR10+ です。画像は含まれている HDR10 から作成されます。</translation>
    </message>
    <message>
        <source>The video is Dolby Vision; its pictures are made of the base layer.</source>
        <translation>この動画は Dolby Vision です。画像はベースレイヤーから作成されます。</translation>
    </message>
    <message>
        <source>The video is Dolby Vision without a base layer that other programs can show; the colours of its pictures are not right.</source>
        <translation>この動画は、ほかのプログラムで表示できるベースレイヤーのない Dolby Vision です。画像の色は正しくありません。</translation>
    </message>
</context>
<context>
    <name>ReadyProfiles</name>
    <message>
        <source>Original size</source>
        <translation>元のサイズ</translation>
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
        <translation>サムネイル 320</translation>
    </message>
    <message>
        <source>%1, original size</source>
        <translation>%1 (元のサイズ)</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open Recent</source>
        <translation>最近使った動画を開く</translation>
    </message>
    <message>
        <source>None of them is there</source>
        <translation>どれも見つかりません</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>一覧を消去</translation>
    </message>
</context>
<context>
    <name>SavedNotice</name>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Show the file that was saved last in its folder</source>
        <translation>最後に保存したファイルをフォルダーで表示します</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings in %1 cannot be read. They are kept as %2.</source>
        <translation>%1 の設定を読み込めません。%2 として残してあります。</translation>
    </message>
    <message>
        <source>Settings cannot be saved in %1 (%2). What you change is lost when the window closes.</source>
        <translation>%1 に設定を保存できません (%2)。変更した内容はウィンドウを閉じると失われます。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Click on the slider</source>
        <translation>スライダーをクリック</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>そこへ移動</translation>
    </message>
    <message>
        <source>Shift and drag on the slider</source>
        <translation>Shift を押しながらスライダーをドラッグ</translation>
    </message>
    <message>
        <source>Go frame by frame</source>
        <translation>フレームごとに移動</translation>
    </message>
    <message>
        <source>Wheel over the slider</source>
        <translation>スライダーの上でホイール</translation>
    </message>
    <message>
        <source>Click on the time</source>
        <translation>時刻をクリック</translation>
    </message>
    <message>
        <source>Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%</source>
        <translation>別の時刻を入力: 1:02:03.5, +10s, -2s, f1234, 75%</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>マウス</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Wheel over the picture</source>
        <translation>画像の上でホイール</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>ポインターの位置で拡大縮小</translation>
    </message>
    <message>
        <source>Drag the zoomed picture</source>
        <translation>拡大した画像をドラッグ</translation>
    </message>
    <message>
        <source>Show another part of it</source>
        <translation>別の部分を表示</translation>
    </message>
    <message>
        <source>Double click on the picture</source>
        <translation>画像をダブルクリック</translation>
    </message>
    <message>
        <source>Actual size, or fitted again</source>
        <translation>実際のサイズ、または元の表示</translation>
    </message>
</context>
<context>
    <name>SmartFileDialog</name>
    <message>
        <source>All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>動画ファイル</translation>
    </message>
    <message>
        <source>Image Files</source>
        <translation>画像ファイル</translation>
    </message>
</context>
<context>
    <name>SnapshotPane</name>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>What will be saved</source>
        <translation>保存されるもの</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>元のサイズ</translation>
    </message>
    <message>
        <source>Save the snapshot in the size of the video</source>
        <translation>スナップショットを動画のサイズで保存します</translation>
    </message>
    <message>
        <source>Image Profile</source>
        <translation>画像プロファイル</translation>
    </message>
    <message>
        <source>Image profile</source>
        <translation>画像プロファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit image profiles</source>
        <translation>画像プロファイルを編集します</translation>
    </message>
    <message>
        <source>Automatic File Name</source>
        <translation>自動ファイル名</translation>
    </message>
    <message>
        <source>Save without asking, under the next free name</source>
        <translation>確認せずに次の空いている名前で保存します</translation>
    </message>
    <message>
        <source>File-name profile</source>
        <translation>ファイル名プロファイル</translation>
    </message>
    <message>
        <source>Edit file-name profiles</source>
        <translation>ファイル名プロファイルを編集します</translation>
    </message>
    <message>
        <source>Folder for the images</source>
        <translation>画像のフォルダー</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Choose the folder for the images</source>
        <translation>画像のフォルダーを選びます</translation>
    </message>
    <message>
        <source>Next:</source>
        <translation>次:</translation>
    </message>
    <message>
        <source>Next file name</source>
        <translation>次のファイル名</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the snapshot</source>
        <translation>スナップショットを保存します</translation>
    </message>
    <message>
        <source>No snapshot yet</source>
        <translation>スナップショットはまだありません</translation>
    </message>
    <message>
        <source>No image of %1: %2</source>
        <translation>%1 の画像がありません: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 を保存できませんでした</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Unknown Folder</source>
        <translation>不明なフォルダー</translation>
    </message>
    <message>
        <source>Please enter a valid output folder in the Automatic File Name section.</source>
        <translation>「自動ファイル名」に有効な出力フォルダーを入力してください。</translation>
    </message>
    <message>
        <source>Create folder?</source>
        <translation>フォルダーを作成しますか?</translation>
    </message>
    <message>
        <source>Folder does not exist</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Save Snapshots</source>
        <translation>スナップショットの保存</translation>
    </message>
</context>
<context>
    <name>SnapshotShelf</name>
    <message>
        <source>Snapshots are not kept after this window is closed: another window, or the disk, does not let it.</source>
        <translation>このウィンドウを閉じるとスナップショットは残りません。別のウィンドウまたはディスクのために残せません。</translation>
    </message>
    <message>
        <source>The list of unsaved snapshots was damaged. It is now, with its files, in %1</source>
        <translation>未保存のスナップショットの一覧が壊れていました。ファイルとともに %1 に移しました</translation>
    </message>
    <message>
        <source>Unsaved snapshots could not be written to the disk, and are lost when the window is closed.</source>
        <translation>未保存のスナップショットをディスクに書き込めませんでした。ウィンドウを閉じると失われます。</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1、%2、%3、%4</translation>
    </message>
    <message>
        <source>%1 at %2
%3, %4</source>
        <translation>%1 (%2)
%3、%4</translation>
    </message>
</context>
<context>
    <name>SnapshotSummary</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (元は %2)</translation>
    </message>
    <message>
        <source>watermark</source>
        <translation>透かし</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>システムに合わせる</translation>
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
        <translation>時刻を指定して移動</translation>
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
        <translation>ミュート</translation>
    </message>
</context>
<context>
    <name>WatermarkProfileDialog</name>
    <message>
        <source>Watermark Settings</source>
        <translation>透かしの設定</translation>
    </message>
    <message>
        <source>Select Profile</source>
        <translation>プロファイルの選択</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Watermark text</source>
        <translation>透かしのテキスト</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>透かしに使うテキスト</translation>
    </message>
    <message>
        <source>Add Timestamp</source>
        <translation>日時を追加</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>選んだ画像</translation>
    </message>
    <message>
        <source>Picture file</source>
        <translation>画像ファイル</translation>
    </message>
    <message>
        <source>No picture chosen</source>
        <translation>画像が選ばれていません</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Text Format</source>
        <translation>テキストの書式</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>テキストのフォント</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>テキストの色</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Text Shadow</source>
        <translation>テキストの影</translation>
    </message>
    <message>
        <source>Shadow color</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>Shadow Color</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>X Offset</source>
        <translation>X オフセット</translation>
    </message>
    <message>
        <source>Shadow X Offset</source>
        <translation>影の X オフセット</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Y Offset</source>
        <translation>Y オフセット</translation>
    </message>
    <message>
        <source>Shadow Y Offset</source>
        <translation>影の Y オフセット</translation>
    </message>
    <message>
        <source>Position + Preview</source>
        <translation>位置とプレビュー</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>X Margin</source>
        <translation>X 余白</translation>
    </message>
    <message>
        <source>Y Margin</source>
        <translation>Y 余白</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Invalid Image</source>
        <translation>無効な画像</translation>
    </message>
    <message>
        <source>Could not open image. Please try another.</source>
        <translation>画像を開けませんでした。別の画像をお試しください。</translation>
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
        <translation>中央</translation>
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
        <translation>画像に合わせて拡大縮小</translation>
    </message>
    <message>
        <source>The watermark takes the same share of the width of every picture; otherwise it has its own size</source>
        <translation>透かしはどの画像でも幅の同じ割合を占めます。オフの場合は固有のサイズになります</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
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
        <translation>その画像はありません。</translation>
    </message>
    <message>
        <source>The picture does not say which frame of which video it is.</source>
        <translation>画像には、どの動画のどのフレームかが記録されていません。</translation>
    </message>
    <message>
        <source>There is no picture, perhaps for a lack of memory</source>
        <translation>画像がありません。メモリーが足りない可能性があります</translation>
    </message>
    <message>
        <source>Not enough memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>画像をエンコードできません</translation>
    </message>
    <message>
        <source>Your quota is used up: %1 are missing for %2</source>
        <translation>割り当て容量を使い切りました: %2 には %1 足りません</translation>
    </message>
    <message>
        <source>The disk is full: %1 are missing for %2</source>
        <translation>ディスクがいっぱいです: %2 には %1 足りません</translation>
    </message>
    <message>
        <source>The folder is gone: %1</source>
        <translation>フォルダーがなくなりました: %1</translation>
    </message>
    <message>
        <source>The folder does not let you write: %1</source>
        <translation>フォルダーに書き込む権限がありません: %1</translation>
    </message>
    <message>
        <source>The disk is read-only: %1</source>
        <translation>ディスクは読み取り専用です: %1</translation>
    </message>
    <message>
        <source>Cannot be written: %1 (%2)</source>
        <translation>書き込めません: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>series</name>
    <message>
        <source>The picture could not be encoded as %1.</source>
        <translation>画像を %1 としてエンコードできませんでした。</translation>
    </message>
    <message>
        <source>All frames are black, blurred or at a cut.</source>
        <translation>フレームはすべて、黒いか、ぼけているか、カットの位置にあります。</translation>
    </message>
    <message>
        <source>The video has no frame %1.</source>
        <translation>動画にフレーム %1 はありません。</translation>
    </message>
    <message>
        <source>Given up after %1 seconds.</source>
        <translation>%1 秒後に中止しました。</translation>
    </message>
    <message>
        <source>There is no picture at this position.</source>
        <translation>この位置に画像はありません。</translation>
    </message>
    <message>
        <source>More than %1 pictures would be needed.</source>
        <translation>%1 枚を超える画像が必要になります。</translation>
    </message>
</context>
</TS>
