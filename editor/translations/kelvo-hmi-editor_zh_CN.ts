<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CChildFrame</name>
    <message>
        <source>%1 was changed on disk by another program. Saving this window would overwrite that change.</source>
        <translation>%1 已被其他程序在磁盘上修改。保存此画面将覆盖该修改。</translation>
    </message>
</context>
<context>
    <name>CColorLevelsEditor</name>
    <message>
        <source>Add level</source>
        <translation>添加级别</translation>
    </message>
    <message>
        <source>Remove level</source>
        <translation>删除级别</translation>
    </message>
    <message>
        <source>Limit value</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>CDynColorDialog</name>
    <message>
        <source>Dynamic Color Property Setting</source>
        <translation>动态颜色属性设置</translation>
    </message>
    <message>
        <source>Open color (expression true):</source>
        <translation>开颜色（表达式为真）：</translation>
    </message>
    <message>
        <source>Close color:</source>
        <translation>关颜色：</translation>
    </message>
    <message>
        <source>Default color (below the first limit):</source>
        <translation>默认颜色（低于第一个限值）：</translation>
    </message>
    <message>
        <source>Levels, limits in ascending order:</source>
        <translation>级别（限值按升序排列）：</translation>
    </message>
    <message>
        <source>The limit value of level %1 is empty.</source>
        <translation>级别 %1 的限值为空。</translation>
    </message>
</context>
<context>
    <name>CDynPropertyDialog</name>
    <message>
        <source>Variable...</source>
        <translation>变量...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Dynamic Property</source>
        <translation>动态属性</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>属性：</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Expression:</source>
        <translation>表达式：</translation>
    </message>
    <message>
        <source>Runtime expression:</source>
        <translation>运行时表达式：</translation>
    </message>
    <message>
        <source>Express is empty,are you sure to delete it?</source>
        <translation>表达式为空，确定要删除吗？</translation>
    </message>
</context>
<context>
    <name>CDynTextDialog</name>
    <message>
        <source>Dynamic Text Property Setting</source>
        <translation>动态文本属性设置</translation>
    </message>
    <message>
        <source>Integer width:</source>
        <translation>整数位数：</translation>
    </message>
    <message>
        <source>Decimal width:</source>
        <translation>小数位数：</translation>
    </message>
</context>
<context>
    <name>CEditorPrompts</name>
    <message>
        <source>HMI window files (*.xml);;All files (*)</source>
        <translation>HMI 画面文件 (*.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>保存对 %1 的修改吗？</translation>
    </message>
    <message>
        <source>%1 was changed on disk by another program.

Overwrite it?</source>
        <translation>%1 已被其他程序在磁盘上修改。

要覆盖它吗？</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Metafile Holistic Zoom</source>
        <translation>整体缩放</translation>
    </message>
    <message>
        <source>Find References</source>
        <translation>查找引用</translation>
    </message>
    <message>
        <source>Variable reference:</source>
        <translation>变量引用：</translation>
    </message>
    <message>
        <source>Scale of the selected widgets&apos; sizes and positions (%):</source>
        <translation>选中控件的大小和位置的缩放比例(%)：</translation>
    </message>
</context>
<context>
    <name>CEntryText</name>
    <message numerus="yes">
        <source>%n widgets</source>
        <translation>
            <numerusform>%n 个控件</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>移到顶层</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>移到底层</translation>
    </message>
    <message>
        <source>Change events of %1</source>
        <translation>修改 %1 的事件</translation>
    </message>
    <message>
        <source>Change bindings of %1</source>
        <translation>修改 %1 的动态属性</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>修改 %1</translation>
    </message>
    <message>
        <source>Change %1 of %2</source>
        <translation>修改 %2 的 %1</translation>
    </message>
    <message>
        <source>Resize %1</source>
        <translation>调整 %1 的大小</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>移动 %1</translation>
    </message>
</context>
<context>
    <name>CEventEditDialog</name>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Event Edit</source>
        <translation>事件编辑</translation>
    </message>
    <message>
        <source>Functions:</source>
        <translation>函数：</translation>
    </message>
</context>
<context>
    <name>CFieldChoiceDialog</name>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>CFontPickerDialog</name>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>删除线</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>颜色...</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>CFormatActions</name>
    <message>
        <source>Align Left</source>
        <translation>左对齐</translation>
    </message>
    <message>
        <source>Set Align Left
Align Left</source>
        <translation>使选中控件左对齐
左对齐</translation>
    </message>
    <message>
        <source>Center Horizontal</source>
        <translation>水平居中</translation>
    </message>
    <message>
        <source>Set Align Horizontal
Align Horizontal</source>
        <translation>使选中控件水平居中
水平居中</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>右对齐</translation>
    </message>
    <message>
        <source>Set Align Right
Align Right</source>
        <translation>使选中控件右对齐
右对齐</translation>
    </message>
    <message>
        <source>Align Top</source>
        <translation>顶端对齐</translation>
    </message>
    <message>
        <source>Set Align Top
Align Top</source>
        <translation>使选中控件顶端对齐
顶端对齐</translation>
    </message>
    <message>
        <source>Center Vertical</source>
        <translation>垂直居中</translation>
    </message>
    <message>
        <source>Set Center Vertical
Center Vertical</source>
        <translation>使选中控件垂直居中
垂直居中</translation>
    </message>
    <message>
        <source>Align Bottom</source>
        <translation>底端对齐</translation>
    </message>
    <message>
        <source>Set Align Bottom
Align Bottom</source>
        <translation>使选中控件底端对齐
底端对齐</translation>
    </message>
    <message>
        <source>Make Same Width</source>
        <translation>相同宽度</translation>
    </message>
    <message>
        <source>Make Same Width
Same Width</source>
        <translation>使选中控件宽度相同
相同宽度</translation>
    </message>
    <message>
        <source>Make Same Height</source>
        <translation>相同高度</translation>
    </message>
    <message>
        <source>Make Same Height
Same Height</source>
        <translation>使选中控件高度相同
相同高度</translation>
    </message>
    <message>
        <source>Make Same Size</source>
        <translation>相同大小</translation>
    </message>
    <message>
        <source>Make Same Size
Same Size</source>
        <translation>使选中控件大小相同
相同大小</translation>
    </message>
    <message>
        <source>Space Down</source>
        <translation>纵向等间距</translation>
    </message>
    <message>
        <source>Set Space Down
Space Down</source>
        <translation>使选中控件纵向等间距
纵向等间距</translation>
    </message>
    <message>
        <source>Space Across</source>
        <translation>横向等间距</translation>
    </message>
    <message>
        <source>Set Space Across
Space Across</source>
        <translation>使选中控件横向等间距
横向等间距</translation>
    </message>
    <message>
        <source>Lock Control</source>
        <translation>锁定控件</translation>
    </message>
    <message>
        <source>Lock Controls
Lock Controls</source>
        <translation>锁定控件的布局
锁定控件</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>移到顶层</translation>
    </message>
    <message>
        <source>Move to Top
Move to Top</source>
        <translation>将选中控件移到顶层
移到顶层</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>移到底层</translation>
    </message>
    <message>
        <source>Move to Bottom
Move to Bottom</source>
        <translation>将选中控件移到底层
移到底层</translation>
    </message>
    <message>
        <source>Zoom...</source>
        <translation>缩放...</translation>
    </message>
    <message>
        <source>Zoom Widget of  Selected</source>
        <translation>缩放选中的控件</translation>
    </message>
    <message>
        <source>Align(&amp;A)</source>
        <translation>对齐(&amp;A)</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>层次</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>格式(&amp;O)</translation>
    </message>
    <message>
        <source>Rescale the selected widgets: their sizes and positions change, unlike the view zoom</source>
        <translation>缩放选中的控件：控件的大小和位置会改变，与视图缩放不同</translation>
    </message>
</context>
<context>
    <name>CHandOverQueue</name>
    <message>
        <source>

... and %1 more.</source>
        <translation>

……另有 %1 条。</translation>
    </message>
</context>
<context>
    <name>CHistoryDock</name>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Undo takes back the last edit only. Choose an unlimited undo history in Tools &gt; Preferences to list every edit here.</source>
        <translation>撤销只能撤回上一步编辑。在“工具 &gt; 首选项”中选择不限步数的撤销历史，即可在此列出每一步编辑。</translation>
    </message>
    <message>
        <source>&lt;opened&gt;</source>
        <translation>&lt;打开时&gt;</translation>
    </message>
</context>
<context>
    <name>CInstanceGuard</name>
    <message>
        <source>Cannot create %1: %2</source>
        <translation>无法创建 %1：%2</translation>
    </message>
    <message>
        <source>Cannot use %1: %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>Cannot use %1: it is %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>Cannot listen on %1: %2</source>
        <translation>无法在 %1 上监听：%2</translation>
    </message>
</context>
<context>
    <name>CLayoutAidToggles</name>
    <message>
        <source>Show &amp;Grid</source>
        <translation>显示网格(&amp;G)</translation>
    </message>
    <message>
        <source>Show or hide the grid on the canvas</source>
        <translation>显示或隐藏画布上的网格</translation>
    </message>
    <message>
        <source>Snap to G&amp;rid</source>
        <translation>吸附到网格(&amp;R)</translation>
    </message>
    <message>
        <source>Snap moved, resized and placed widgets to the grid; hold Alt to place freely</source>
        <translation>移动、缩放和放置的控件吸附到网格；按住 Alt 可自由放置</translation>
    </message>
    <message>
        <source>Snap to &amp;Widgets</source>
        <translation>吸附到控件(&amp;W)</translation>
    </message>
    <message>
        <source>Snap to the edges and centres of other widgets and of the window, and to equal gaps; hold Alt to place freely</source>
        <translation>吸附到其他控件和画面的边缘与中心线，以及相等的间距；按住 Alt 可自由放置</translation>
    </message>
</context>
<context>
    <name>CMainFrame</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Toolbox</source>
        <translation>工具箱</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Preview: F5 or Esc returns to editing</source>
        <translation>预览：按 F5 或 Esc 返回编辑</translation>
    </message>
    <message>
        <source>Undo(&amp;U)	Ctrl+Z</source>
        <translation>撤销(&amp;U)	Ctrl+Z</translation>
    </message>
    <message>
        <source>Undo the last action</source>
        <translation>撤销上一步操作</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>Cut the selection and put it on the Clipboard</source>
        <translation>剪切选中的控件并放到剪贴板上</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selection and put it on the Clipboard</source>
        <translation>复制选中的控件并放到剪贴板上</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Insert Clipboard contents</source>
        <translation>插入剪贴板的内容</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the selection</source>
        <translation>删除选中的控件</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select every widget of the window</source>
        <translation>选中画面中的所有控件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop placing widgets</source>
        <translation>停止放置控件</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new document</source>
        <translation>新建一个画面</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open an existing document</source>
        <translation>打开一个已有的画面</translation>
    </message>
    <message>
        <source>Open P&amp;roject...</source>
        <translation>打开工程(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose the project folder</source>
        <translation>选择工程文件夹</translation>
    </message>
    <message>
        <source>Open Project Window...</source>
        <translation>打开工程画面...</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>打开工程</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the active document</source>
        <translation>保存当前画面</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the active document with a new name</source>
        <translation>以新名称保存当前画面</translation>
    </message>
    <message>
        <source>Open this document</source>
        <translation>打开此画面</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Find &amp;References...</source>
        <translation>查找引用(&amp;R)...</translation>
    </message>
    <message>
        <source>List every use of a variable in the project&apos;s windows</source>
        <translation>列出工程各画面中对某个变量的全部引用</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>状态栏(&amp;S)</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <translation>显示或隐藏状态栏</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Widget Libraries...</source>
        <translation>控件库(&amp;W)...</translation>
    </message>
    <message>
        <source>Show which widget libraries were loaded at start-up, and why others were not</source>
        <translation>显示启动时加载了哪些控件库，以及其他控件库未加载的原因</translation>
    </message>
    <message>
        <source>Not all widget libraries were loaded</source>
        <translation>部分控件库未能加载</translation>
    </message>
    <message>
        <source>Show why, in Help &gt; Widget Libraries</source>
        <translation>在“帮助 &gt; 控件库”中查看原因</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>层叠(&amp;C)</translation>
    </message>
    <message>
        <source>Arrange windows so they overlap</source>
        <translation>层叠排列窗口</translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation>平铺(&amp;T)</translation>
    </message>
    <message>
        <source>Arrange windows as non-overlapping tiles</source>
        <translation>平铺排列窗口，互不重叠</translation>
    </message>
    <message>
        <source>Activate this window</source>
        <translation>激活此窗口</translation>
    </message>
    <message>
        <source>%1 was opened. Please note:</source>
        <translation>%1 已打开。请注意：</translation>
    </message>
    <message>
        <source>

... and %1 more notes.</source>
        <translation>

……另有 %1 条提示。</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Search Results</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Check Project</source>
        <translation>检查工程(&amp;C)</translation>
    </message>
    <message>
        <source>List what the panel would not find or not show in the project&apos;s windows</source>
        <translation>列出工程各画面中面板找不到或无法显示的内容</translation>
    </message>
    <message>
        <source>&amp;Rename Variable...</source>
        <translation>重命名变量(&amp;R)...</translation>
    </message>
    <message>
        <source>Rename a variable reference in every window of the project</source>
        <translation>在工程的所有画面中重命名一个变量引用</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>Choose how the editor works: undo history, grid and snapping, language</source>
        <translation>设置编辑器的工作方式：撤销历史、网格与吸附、语言</translation>
    </message>
    <message>
        <source>There is no project folder: open a window of a project first.</source>
        <translation>没有工程文件夹：请先打开一个工程的画面。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a variable reference such as $plc.level or $setpoint.</source>
        <translation>“%1”不是变量引用（例如 $plc.level 或 $setpoint）。</translation>
    </message>
    <message>
        <source>Renamed: %1 files written</source>
        <translation>已重命名：写入了 %1 个文件</translation>
    </message>
    <message>
        <source>The window has no widget named &quot;%1&quot; any more.</source>
        <translation>画面中已没有名为“%1”的控件。</translation>
    </message>
    <message>
        <source>Please select project path!</source>
        <translation>请选择工程路径！</translation>
    </message>
    <message>
        <source>Redo(&amp;R)	Ctrl+Y</source>
        <translation>重做(&amp;R)	Ctrl+Y</translation>
    </message>
    <message>
        <source>Redo the last undone action</source>
        <translation>重做上一步撤销的操作</translation>
    </message>
    <message>
        <source>Cut %1</source>
        <translation>剪切 %1</translation>
    </message>
    <message>
        <source>Paste %1</source>
        <translation>粘贴 %1</translation>
    </message>
</context>
<context>
    <name>CPreferencesDialog</name>
    <message>
        <source>Show the grid</source>
        <translation>显示网格</translation>
    </message>
    <message>
        <source>Snap to the grid</source>
        <translation>吸附到网格</translation>
    </message>
    <message>
        <source>Snap to other widgets and the window</source>
        <translation>吸附到其他控件和画面</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>one step</source>
        <translation>一步</translation>
    </message>
    <message>
        <source>unlimited</source>
        <translation>无限</translation>
    </message>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Undo history:</source>
        <translation>撤销历史：</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>Grid size:</source>
        <translation>网格大小：</translation>
    </message>
    <message>
        <source>Hold Alt while dragging to place a widget freely.</source>
        <translation>拖动时按住 Alt 键可自由放置控件。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language of the editor:</source>
        <translation>编辑器语言：</translation>
    </message>
    <message>
        <source>A new language shows at the next start.</source>
        <translation>新的语言在下次启动时生效。</translation>
    </message>
</context>
<context>
    <name>CPreviewActions</name>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>Show the window with the values of the Variables dock (F5 or Esc returns)</source>
        <translation>用“变量”窗格中的值显示画面（按 F5 或 Esc 返回）</translation>
    </message>
    <message>
        <source>%1 has no click script</source>
        <translation>%1 没有单击脚本</translation>
    </message>
    <message>
        <source>%1 would run on click: %2</source>
        <translation>%1 单击时将运行：%2</translation>
    </message>
</context>
<context>
    <name>CProblemsPane</name>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Tools &gt; Check Project lists what the panel would not find or not show.</source>
        <translation>“工具 &gt; 检查工程”会列出面板找不到或无法显示的内容。</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>未发现问题。</translation>
    </message>
    <message>
        <source>%1 error</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>CProjectExplorer</name>
    <message>
        <source>Windows</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Find References</source>
        <translation>查找引用</translation>
    </message>
    <message>
        <source>List the windows and widgets that use this variable</source>
        <translation>列出使用此变量的画面和控件</translation>
    </message>
    <message>
        <source>No project</source>
        <translation>无工程</translation>
    </message>
    <message>
        <source>History databases</source>
        <translation>历史数据库</translation>
    </message>
    <message>
        <source>Data logs</source>
        <translation>数据记录</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>%1 is not in the window list (hmiwindow.xml)</source>
        <translation>%1 不在画面列表（hmiwindow.xml）中</translation>
    </message>
    <message>
        <source>The window file %1 is missing</source>
        <translation>画面文件 %1 不存在</translation>
    </message>
</context>
<context>
    <name>CProjectWindowDialog</name>
    <message>
        <source>Project Window Information</source>
        <translation>工程画面信息</translation>
    </message>
    <message>
        <source>window name</source>
        <translation>画面名称</translation>
    </message>
    <message>
        <source>window caption</source>
        <translation>画面标题</translation>
    </message>
    <message>
        <source>file name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Please select project path!</source>
        <translation>请选择工程路径！</translation>
    </message>
</context>
<context>
    <name>CPropertyPane</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Works on one widget at a time: select a single widget to use it</source>
        <translation>一次只作用于一个控件：只选中一个控件即可使用</translation>
    </message>
</context>
<context>
    <name>CRecoveryDialog</name>
    <message>
        <source>Restore Unsaved Windows</source>
        <translation>恢复未保存的画面</translation>
    </message>
    <message>
        <source>The editor ended without saving these windows. Restore them?
Restored windows open as modified; saving writes their window files.</source>
        <translation>编辑器上次退出时未保存这些画面。要恢复它们吗？
恢复的画面以“已修改”状态打开；保存时写入其画面文件。</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Window file</source>
        <translation>画面文件</translation>
    </message>
    <message>
        <source>Copied at</source>
        <translation>复制时间</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translation>（从未保存）</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>丢弃(&amp;D)</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>以后再说(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CRecoveryKeeper</name>
    <message>
        <source>Cannot keep a recovery copy: %1</source>
        <translation>无法保存恢复副本：%1</translation>
    </message>
</context>
<context>
    <name>CRenameVariableDialog</name>
    <message>
        <source>Also rename in rtdb.xml / hmidb.xml</source>
        <translation>同时在 rtdb.xml / hmidb.xml 中重命名</translation>
    </message>
    <message>
        <source>Rename Variable</source>
        <translation>重命名变量</translation>
    </message>
    <message>
        <source>$plc.level or $setpoint</source>
        <translation>$plc.level 或 $setpoint</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>修改前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>修改后</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Old reference:</source>
        <translation>原引用(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;New reference:</source>
        <translation>新引用(&amp;N)：</translation>
    </message>
    <message>
        <source>Both must be variable references such as $plc.level or $setpoint.</source>
        <translation>两者都必须是变量引用，例如 $plc.level 或 $setpoint。</translation>
    </message>
    <message>
        <source>The new reference is the old one.</source>
        <translation>新引用与原引用相同。</translation>
    </message>
    <message>
        <source>Nothing can be renamed: %1</source>
        <translation>无法重命名：%1</translation>
    </message>
    <message>
        <source>No window uses %1.</source>
        <translation>没有画面使用 %1。</translation>
    </message>
    <message>
        <source>%1 changes; %2 files to write, open windows change in memory.</source>
        <translation>%1 处修改；将写入 %2 个文件，已打开的画面在内存中修改。</translation>
    </message>
    <message>
        <source>Nothing was renamed: %1</source>
        <translation>未重命名任何内容：%1</translation>
    </message>
</context>
<context>
    <name>CSearchResults</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>引用</translation>
    </message>
    <message>
        <source>Cannot look for %1: %2</source>
        <translation>无法查找 %1：%2</translation>
    </message>
    <message>
        <source>%1 uses of %2 in %3 windows</source>
        <translation>%2 在 %3 个画面中有 %1 处引用</translation>
    </message>
</context>
<context>
    <name>CTamloApp</name>
    <message>
        <source>Later starts of the editor cannot hand their files to this one:
%1</source>
        <translation>以后启动的编辑器无法把文件交给本编辑器打开：
%1</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept for recovery:
%1</source>
        <translation>无法为恢复保存未保存的修改：
%1</translation>
    </message>
</context>
<context>
    <name>CToolbox</name>
    <message>
        <source>Pointer</source>
        <translation>指针</translation>
    </message>
    <message>
        <source>History list</source>
        <translation>历史数据列表</translation>
    </message>
</context>
<context>
    <name>CVariableDialog</name>
    <message>
        <source>HMI Database</source>
        <translation>HMI 数据库</translation>
    </message>
</context>
<context>
    <name>CVariablesDock</name>
    <message>
        <source>%1	%2	%3 at %4 of &apos;%5&apos;</source>
        <translation>%1	%2	%3（位于“%5”的第 %4 个字符）</translation>
    </message>
    <message>
        <source>Filter variables</source>
        <translation>筛选变量</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>绑定</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Keep the values and generators in the project&apos;s %1</source>
        <translation>将各变量的值和发生器保存到工程的 %1 中</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Take the values and generators of the project&apos;s %1</source>
        <translation>从工程的 %1 中读取各变量的值和发生器</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Every variable back at its init value, without generators</source>
        <translation>所有变量恢复为初始值，并取消发生器</translation>
    </message>
    <message>
        <source>There is no project to keep the values in.</source>
        <translation>没有可保存这些值的工程。</translation>
    </message>
    <message>
        <source>Saved in %1.</source>
        <translation>已保存到 %1。</translation>
    </message>
    <message>
        <source>There is no project to take the values from.</source>
        <translation>没有可读取这些值的工程。</translation>
    </message>
    <message>
        <source>Loaded %1.</source>
        <translation>已加载 %1。</translation>
    </message>
</context>
<context>
    <name>CVariablesModel</name>
    <message>
        <source>Also named %1</source>
        <translation>又名 %1</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>发生器</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>High</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Period (ms)</source>
        <translation>周期（毫秒）</translation>
    </message>
    <message>
        <source>%1 holds a number: &quot;%2&quot; is none.</source>
        <translation>%1 存放数值：“%2”不是数值。</translation>
    </message>
</context>
<context>
    <name>CViewZoomActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Show the window larger; the widgets keep their sizes</source>
        <translation>放大显示窗口；控件大小不变</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Show the window smaller; the widgets keep their sizes</source>
        <translation>缩小显示窗口；控件大小不变</translation>
    </message>
    <message>
        <source>Zoom &amp;100%</source>
        <translation>实际大小 100%(&amp;1)</translation>
    </message>
    <message>
        <source>Show the window at its own size</source>
        <translation>按窗口的实际大小显示</translation>
    </message>
    <message>
        <source>&amp;Fit Window</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Show the whole window in the space of its frame</source>
        <translation>在框架内显示整个窗口</translation>
    </message>
    <message>
        <source>View zoom: Ctrl+wheel, Ctrl+plus, Ctrl+minus</source>
        <translation>视图缩放：Ctrl+滚轮、Ctrl+加号、Ctrl+减号</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>CWidgetLibraryDialog</name>
    <message>
        <source>it will be loaded at the next start</source>
        <translation>将在下次启动时加载</translation>
    </message>
    <message>
        <source>Widget Libraries</source>
        <translation>控件库</translation>
    </message>
    <message>
        <source>No widget library was found at start-up in %1.</source>
        <translation>启动时在 %1 中未找到控件库。</translation>
    </message>
    <message>
        <source>What became of the widget libraries at start-up, looked for in this order in %1:</source>
        <translation>启动时各控件库的加载结果（按以下顺序在 %1 中查找）：</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>&amp;Load Again at Next Start</source>
        <translation>下次启动时重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>Load the chosen library at the next start, although it crashed an earlier one</source>
        <translation>下次启动时加载所选的库，尽管它曾使编辑器崩溃</translation>
    </message>
</context>
<context>
    <name>DialogButtons</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ProjectContext</name>
    <message>
        <source>Pictures (*.bmp *.png *.jpg *.jpeg *.gif);;All files (*)</source>
        <translation>图片 (*.bmp *.png *.jpg *.jpeg *.gif);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Choose a variable</source>
        <translation>选择变量</translation>
    </message>
    <message>
        <source>Choose a font</source>
        <translation>选择字体</translation>
    </message>
    <message>
        <source>Edit the event script</source>
        <translation>编辑事件脚本</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Bind to an expression</source>
        <translation>绑定到表达式</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not taken: the panel shows only characters of the GB2312 set.</source>
        <translation>“%1”未被接受：面板只能显示 GB2312 字符集中的字符。</translation>
    </message>
    <message>
        <source>The widgets have different colours</source>
        <translation>这些控件的颜色各不相同</translation>
    </message>
</context>
<context>
    <name>RecoveryOffer</name>
    <message>
        <source>Cannot restore %1:
%2</source>
        <translation>无法恢复 %1：
%2</translation>
    </message>
</context>
<context>
    <name>RecoveryStore</name>
    <message>
        <source>Window %1</source>
        <translation>画面 %1</translation>
    </message>
</context>
<context>
    <name>WidgetItemDialogs</name>
    <message>
        <source>The window has no folder for its pictures yet: save it first.</source>
        <translation>画面还没有存放图片的文件夹：请先保存画面。</translation>
    </message>
    <message>
        <source>Setting Alarm Field</source>
        <translation>报警字段设置</translation>
    </message>
    <message>
        <source>History Data Variable</source>
        <translation>历史数据变量</translation>
    </message>
</context>
</TS>
