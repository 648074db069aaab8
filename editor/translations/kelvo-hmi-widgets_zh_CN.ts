<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>WidgetKind</name>
        <message>
            <source>Ellipse</source>
            <translation>椭圆</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>文本</translation>
        </message>
        <message>
            <source>Line</source>
            <translation>直线</translation>
        </message>
        <message>
            <source>Rectangle</source>
            <translation>矩形</translation>
        </message>
        <message>
            <source>Gradient rectangle</source>
            <translation>渐变矩形</translation>
        </message>
        <message>
            <source>Gradient ellipse</source>
            <translation>渐变椭圆</translation>
        </message>
        <message>
            <source>Gradient triangle</source>
            <translation>渐变三角形</translation>
        </message>
        <message>
            <source>Picture</source>
            <translation>图片</translation>
        </message>
        <message>
            <source>Button</source>
            <translation>按钮</translation>
        </message>
        <message>
            <source>Checkbox</source>
            <translation>复选框</translation>
        </message>
        <message>
            <source>Timer</source>
            <translation>定时器</translation>
        </message>
        <message>
            <source>Combobox</source>
            <translation>组合框</translation>
        </message>
        <message>
            <source>Realtime curve</source>
            <translation>实时曲线</translation>
        </message>
        <message>
            <source>History curve</source>
            <translation>历史曲线</translation>
        </message>
        <message>
            <source>Data input</source>
            <translation>数值输入</translation>
        </message>
        <message>
            <source>Text input</source>
            <translation>文本输入</translation>
        </message>
        <message>
            <source>Alarm window</source>
            <translation>报警窗口</translation>
        </message>
        <message>
            <source>Vector Text</source>
            <translation>矢量文本</translation>
        </message>
    </context>
    <context>
        <name>WidgetProperty</name>
        <message>
            <source>Basic properties</source>
            <translation>基本属性</translation>
        </message>
        <message>
            <source>Basic Properties</source>
            <translation>基本属性</translation>
        </message>
        <message>
            <source>Event</source>
            <translation>事件</translation>
        </message>
        <message>
            <source>Set event scripts</source>
            <translation>设置事件脚本</translation>
        </message>
        <message>
            <source>Ellipse</source>
            <translation>椭圆</translation>
        </message>
        <message>
            <source>Ellipse properties</source>
            <translation>椭圆属性</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>左</translation>
        </message>
        <message>
            <source>Left position</source>
            <translation>左边位置</translation>
        </message>
        <message>
            <source>Top</source>
            <translation>上</translation>
        </message>
        <message>
            <source>Top position</source>
            <translation>上边位置</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>右</translation>
        </message>
        <message>
            <source>Right position</source>
            <translation>右边位置</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>下</translation>
        </message>
        <message>
            <source>Bottom position</source>
            <translation>下边位置</translation>
        </message>
        <message>
            <source>Width</source>
            <translation>宽度</translation>
        </message>
        <message>
            <source>Height</source>
            <translation>高度</translation>
        </message>
        <message>
            <source>Visible</source>
            <translation>可见</translation>
        </message>
        <message>
            <source>Is widget visible</source>
            <translation>控件是否可见</translation>
        </message>
        <message>
            <source>Enable</source>
            <translation>启用</translation>
        </message>
        <message>
            <source>when enable=0,can't use event scripts</source>
            <translation>启用为 0 时，事件脚本不起作用</translation>
        </message>
        <message>
            <source>Flash</source>
            <translation>闪烁</translation>
        </message>
        <message>
            <source>Is widget flash</source>
            <translation>控件是否闪烁</translation>
        </message>
        <message>
            <source>Flash speed</source>
            <translation>闪烁速度</translation>
        </message>
        <message>
            <source>Flash speed,faster when smaller</source>
            <translation>闪烁速度，值越小越快</translation>
        </message>
        <message>
            <source>Not redraw</source>
            <translation>不重绘</translation>
        </message>
        <message>
            <source>=0 auto redraw</source>
            <translation>为 0 时自动重绘</translation>
        </message>
        <message>
            <source>Horizontal offset</source>
            <translation>水平偏移</translation>
        </message>
        <message>
            <source>horizontal offset value of widget</source>
            <translation>控件的水平偏移量</translation>
        </message>
        <message>
            <source>Vertical offset</source>
            <translation>垂直偏移</translation>
        </message>
        <message>
            <source>vertical offset value of widget</source>
            <translation>控件的垂直偏移量</translation>
        </message>
        <message>
            <source>edgecolor</source>
            <translation>边框颜色</translation>
        </message>
        <message>
            <source>Set the edge color of ellipse</source>
            <translation>设置椭圆的边框颜色</translation>
        </message>
        <message>
            <source>fillcolor</source>
            <translation>填充颜色</translation>
        </message>
        <message>
            <source>Set the fill color of ellipse</source>
            <translation>设置椭圆的填充颜色</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>文本</translation>
        </message>
        <message>
            <source>Text properties</source>
            <translation>文本属性</translation>
        </message>
        <message>
            <source>color</source>
            <translation>颜色</translation>
        </message>
        <message>
            <source>Set text color</source>
            <translation>设置文本颜色</translation>
        </message>
        <message>
            <source>text</source>
            <translation>文本</translation>
        </message>
        <message>
            <source>Set the content of text</source>
            <translation>设置文本内容</translation>
        </message>
        <message>
            <source>textlength</source>
            <translation>文本长度</translation>
        </message>
        <message>
            <source>Set the length of text</source>
            <translation>设置文本长度</translation>
        </message>
        <message>
            <source>align</source>
            <translation>对齐</translation>
        </message>
        <message>
            <source>Set text alignment</source>
            <translation>设置文本对齐方式</translation>
        </message>
        <message>
            <source>fontsize</source>
            <translation>字号</translation>
        </message>
        <message>
            <source>Set font size of text</source>
            <translation>设置文本字号</translation>
        </message>
        <message>
            <source>Line</source>
            <translation>直线</translation>
        </message>
        <message>
            <source>Line properties</source>
            <translation>直线属性</translation>
        </message>
        <message>
            <source>Set line color</source>
            <translation>设置直线颜色</translation>
        </message>
        <message>
            <source>linewidth</source>
            <translation>线宽</translation>
        </message>
        <message>
            <source>Set line width</source>
            <translation>设置线宽</translation>
        </message>
        <message>
            <source>direction</source>
            <translation>方向</translation>
        </message>
        <message>
            <source>Set line direction</source>
            <translation>设置直线方向</translation>
        </message>
        <message>
            <source>style</source>
            <translation>线型</translation>
        </message>
        <message>
            <source>Set line style</source>
            <translation>设置线型</translation>
        </message>
        <message>
            <source>Rectangle</source>
            <translation>矩形</translation>
        </message>
        <message>
            <source>Rectangle properties</source>
            <translation>矩形属性</translation>
        </message>
        <message>
            <source>Set the edge color of rectangle</source>
            <translation>设置矩形的边框颜色</translation>
        </message>
        <message>
            <source>Set the fill color of rectangle</source>
            <translation>设置矩形的填充颜色</translation>
        </message>
        <message>
            <source>Gradient rectangle</source>
            <translation>渐变矩形</translation>
        </message>
        <message>
            <source>Gradient ellipse properties</source>
            <translation>渐变椭圆属性</translation>
        </message>
        <message>
            <source>startcolor</source>
            <translation>起始颜色</translation>
        </message>
        <message>
            <source>Set gradient start color</source>
            <translation>设置渐变起始颜色</translation>
        </message>
        <message>
            <source>endcolor</source>
            <translation>结束颜色</translation>
        </message>
        <message>
            <source>Set gradient end color</source>
            <translation>设置渐变结束颜色</translation>
        </message>
        <message>
            <source>Set gradient direction</source>
            <translation>设置渐变方向</translation>
        </message>
        <message>
            <source>Gradient ellipse</source>
            <translation>渐变椭圆</translation>
        </message>
        <message>
            <source>Gradient triangle</source>
            <translation>渐变三角形</translation>
        </message>
        <message>
            <source>Gradient triangle properties</source>
            <translation>渐变三角形属性</translation>
        </message>
        <message>
            <source>Set triangle direction</source>
            <translation>设置三角形方向</translation>
        </message>
        <message>
            <source>Picture</source>
            <translation>图片</translation>
        </message>
        <message>
            <source>Picture properties</source>
            <translation>图片属性</translation>
        </message>
        <message>
            <source>filename</source>
            <translation>文件名</translation>
        </message>
        <message>
            <source>Set picture file name</source>
            <translation>设置图片文件名</translation>
        </message>
        <message>
            <source>load mode</source>
            <translation>加载方式</translation>
        </message>
        <message>
            <source>Set load mode of picture</source>
            <translation>设置图片的加载方式</translation>
        </message>
        <message>
            <source>transparent mode</source>
            <translation>透明方式</translation>
        </message>
        <message>
            <source>Set transparent mode</source>
            <translation>设置透明方式</translation>
        </message>
        <message>
            <source>transparent color</source>
            <translation>透明色</translation>
        </message>
        <message>
            <source>When transparent mode is transparent, set transparent color of picture</source>
            <translation>透明方式为透明时，设置图片的透明色</translation>
        </message>
        <message>
            <source>System Button</source>
            <translation>系统按钮</translation>
        </message>
        <message>
            <source>Button properties</source>
            <translation>按钮属性</translation>
        </message>
        <message>
            <source>Caption</source>
            <translation>标题</translation>
        </message>
        <message>
            <source>Set caption</source>
            <translation>设置标题</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>颜色</translation>
        </message>
        <message>
            <source>Set color</source>
            <translation>设置颜色</translation>
        </message>
        <message>
            <source>Length</source>
            <translation>长度</translation>
        </message>
        <message>
            <source>Set caption bytes Length</source>
            <translation>设置标题的字节长度</translation>
        </message>
        <message>
            <source>Font Size</source>
            <translation>字号</translation>
        </message>
        <message>
            <source>Set font size</source>
            <translation>设置字号</translation>
        </message>
        <message>
            <source>Edgecolor</source>
            <translation>边框颜色</translation>
        </message>
        <message>
            <source>Set edge color</source>
            <translation>设置边框颜色</translation>
        </message>
        <message>
            <source>Backcolor</source>
            <translation>背景色</translation>
        </message>
        <message>
            <source>Set background color</source>
            <translation>设置背景色</translation>
        </message>
        <message>
            <source>Up shadow color</source>
            <translation>上阴影颜色</translation>
        </message>
        <message>
            <source>Set up shadow color</source>
            <translation>设置上阴影颜色</translation>
        </message>
        <message>
            <source>Down shadow color</source>
            <translation>下阴影颜色</translation>
        </message>
        <message>
            <source>Set down shadow color</source>
            <translation>设置下阴影颜色</translation>
        </message>
        <message>
            <source>Shadow width</source>
            <translation>阴影宽度</translation>
        </message>
        <message>
            <source>Set shadow width</source>
            <translation>设置阴影宽度</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Set button type</source>
            <translation>设置按钮类型</translation>
        </message>
        <message>
            <source>Var Name</source>
            <translation>变量名</translation>
        </message>
        <message>
            <source>Set var name</source>
            <translation>设置变量名</translation>
        </message>
        <message>
            <source>Window Name</source>
            <translation>画面名</translation>
        </message>
        <message>
            <source>Set window name</source>
            <translation>设置画面名</translation>
        </message>
        <message>
            <source>Security Level</source>
            <translation>安全级别</translation>
        </message>
        <message>
            <source>Set security level</source>
            <translation>设置安全级别</translation>
        </message>
        <message>
            <source>Security mode</source>
            <translation>安全方式</translation>
        </message>
        <message>
            <source>Set security mode</source>
            <translation>设置安全方式</translation>
        </message>
        <message>
            <source>Checkbox</source>
            <translation>复选框</translation>
        </message>
        <message>
            <source>Checkbox properties</source>
            <translation>复选框属性</translation>
        </message>
        <message>
            <source>Variable</source>
            <translation>变量</translation>
        </message>
        <message>
            <source>Set variable</source>
            <translation>设置变量</translation>
        </message>
        <message>
            <source>Timer</source>
            <translation>定时器</translation>
        </message>
        <message>
            <source>Timer properties</source>
            <translation>定时器属性</translation>
        </message>
        <message>
            <source>interval</source>
            <translation>间隔</translation>
        </message>
        <message>
            <source>Set timer interval(miniseconds)</source>
            <translation>设置定时间隔（毫秒）</translation>
        </message>
        <message>
            <source>Combobox</source>
            <translation>组合框</translation>
        </message>
        <message>
            <source>Combobox properties</source>
            <translation>组合框属性</translation>
        </message>
        <message>
            <source>List</source>
            <translation>列表</translation>
        </message>
        <message>
            <source>Set combobox down list data,use comma to separate fields</source>
            <translation>设置组合框下拉列表的数据，各项以逗号分隔</translation>
        </message>
        <message>
            <source>Set combobox related variable</source>
            <translation>设置组合框关联的变量</translation>
        </message>
        <message>
            <source>Item height</source>
            <translation>行高</translation>
        </message>
        <message>
            <source>Set item height</source>
            <translation>设置行高</translation>
        </message>
        <message>
            <source>Realtime curve basic properties</source>
            <translation>实时曲线基本属性</translation>
        </message>
        <message>
            <source>Curve properties</source>
            <translation>曲线属性</translation>
        </message>
        <message>
            <source>Curve indicator properties</source>
            <translation>曲线指示器属性</translation>
        </message>
        <message>
            <source>minimum value</source>
            <translation>最小值</translation>
        </message>
        <message>
            <source>Set minimal value of Y coordinate</source>
            <translation>设置 Y 坐标的最小值</translation>
        </message>
        <message>
            <source>maximal value</source>
            <translation>最大值</translation>
        </message>
        <message>
            <source>Set maximal value of Y coordinate</source>
            <translation>设置 Y 坐标的最大值</translation>
        </message>
        <message>
            <source>xmaxpoints</source>
            <translation>X 最大点数</translation>
        </message>
        <message>
            <source>Set the max points of X coordinate</source>
            <translation>设置 X 坐标的最大点数</translation>
        </message>
        <message>
            <source>xpoints</source>
            <translation>X 点数</translation>
        </message>
        <message>
            <source>Set the points of X coordinate</source>
            <translation>设置 X 坐标的点数</translation>
        </message>
        <message>
            <source>hlines</source>
            <translation>水平线数</translation>
        </message>
        <message>
            <source>Set the number of vertical lines</source>
            <translation>设置垂直线的条数</translation>
        </message>
        <message>
            <source>vlines</source>
            <translation>垂直线数</translation>
        </message>
        <message>
            <source>Set the number of horizontal lines</source>
            <translation>设置水平线的条数</translation>
        </message>
        <message>
            <source>framehspace</source>
            <translation>水平边距</translation>
        </message>
        <message>
            <source>Set the horizontal space of draw area</source>
            <translation>设置绘图区的水平边距</translation>
        </message>
        <message>
            <source>framevspace</source>
            <translation>垂直边距</translation>
        </message>
        <message>
            <source>Set the vertical space of draw area</source>
            <translation>设置绘图区的垂直边距</translation>
        </message>
        <message>
            <source>backcolor</source>
            <translation>背景色</translation>
        </message>
        <message>
            <source>Set the background color</source>
            <translation>设置背景色</translation>
        </message>
        <message>
            <source>curve backcolor</source>
            <translation>曲线背景色</translation>
        </message>
        <message>
            <source>Set the background color of curve</source>
            <translation>设置曲线的背景色</translation>
        </message>
        <message>
            <source>hlinecolor</source>
            <translation>水平线颜色</translation>
        </message>
        <message>
            <source>Set the color of vertical lines</source>
            <translation>设置垂直线的颜色</translation>
        </message>
        <message>
            <source>vlinecolor</source>
            <translation>垂直线颜色</translation>
        </message>
        <message>
            <source>Set the color of horizontal lines</source>
            <translation>设置水平线的颜色</translation>
        </message>
        <message>
            <source>textcolor</source>
            <translation>文本颜色</translation>
        </message>
        <message>
            <source>Set the color of text</source>
            <translation>设置文本颜色</translation>
        </message>
        <message>
            <source>curvenum</source>
            <translation>曲线数</translation>
        </message>
        <message>
            <source>Set the number of curves(&lt;=16)</source>
            <translation>设置曲线条数（不超过 16）</translation>
        </message>
        <message>
            <source>datasource</source>
            <translation>数据源</translation>
        </message>
        <message>
            <source>Set the data source</source>
            <translation>设置数据源</translation>
        </message>
        <message>
            <source>logname</source>
            <translation>记录名</translation>
        </message>
        <message>
            <source>Set the log name of In memory data source</source>
            <translation>设置内存数据源的数据记录名</translation>
        </message>
        <message>
            <source>file path</source>
            <translation>文件路径</translation>
        </message>
        <message>
            <source>Set the file path of file data source</source>
            <translation>设置文件数据源的文件路径</translation>
        </message>
        <message>
            <source>file name</source>
            <translation>文件名</translation>
        </message>
        <message>
            <source>Set file name</source>
            <translation>设置文件名</translation>
        </message>
        <message>
            <source>Start point</source>
            <translation>起始点</translation>
        </message>
        <message>
            <source>Set the start point of file</source>
            <translation>设置文件的起始点</translation>
        </message>
        <message>
            <source>Var1</source>
            <translation>变量1</translation>
        </message>
        <message>
            <source>Set the curve variable name</source>
            <translation>设置曲线的变量名</translation>
        </message>
        <message>
            <source>Color1</source>
            <translation>颜色1</translation>
        </message>
        <message>
            <source>Set the curve color</source>
            <translation>设置曲线颜色</translation>
        </message>
        <message>
            <source>Var2</source>
            <translation>变量2</translation>
        </message>
        <message>
            <source>Color2</source>
            <translation>颜色2</translation>
        </message>
        <message>
            <source>Var3</source>
            <translation>变量3</translation>
        </message>
        <message>
            <source>Color3</source>
            <translation>颜色3</translation>
        </message>
        <message>
            <source>Var4</source>
            <translation>变量4</translation>
        </message>
        <message>
            <source>Color4</source>
            <translation>颜色4</translation>
        </message>
        <message>
            <source>Var5</source>
            <translation>变量5</translation>
        </message>
        <message>
            <source>Color5</source>
            <translation>颜色5</translation>
        </message>
        <message>
            <source>Var6</source>
            <translation>变量6</translation>
        </message>
        <message>
            <source>Color6</source>
            <translation>颜色6</translation>
        </message>
        <message>
            <source>Var7</source>
            <translation>变量7</translation>
        </message>
        <message>
            <source>Color7</source>
            <translation>颜色7</translation>
        </message>
        <message>
            <source>Var8</source>
            <translation>变量8</translation>
        </message>
        <message>
            <source>Color8</source>
            <translation>颜色8</translation>
        </message>
        <message>
            <source>Var9</source>
            <translation>变量9</translation>
        </message>
        <message>
            <source>Color9</source>
            <translation>颜色9</translation>
        </message>
        <message>
            <source>Var10</source>
            <translation>变量10</translation>
        </message>
        <message>
            <source>Color10</source>
            <translation>颜色10</translation>
        </message>
        <message>
            <source>Var11</source>
            <translation>变量11</translation>
        </message>
        <message>
            <source>Color11</source>
            <translation>颜色11</translation>
        </message>
        <message>
            <source>Var12</source>
            <translation>变量12</translation>
        </message>
        <message>
            <source>Color12</source>
            <translation>颜色12</translation>
        </message>
        <message>
            <source>Var13</source>
            <translation>变量13</translation>
        </message>
        <message>
            <source>Color13</source>
            <translation>颜色13</translation>
        </message>
        <message>
            <source>Var14</source>
            <translation>变量14</translation>
        </message>
        <message>
            <source>Color14</source>
            <translation>颜色14</translation>
        </message>
        <message>
            <source>Var15</source>
            <translation>变量15</translation>
        </message>
        <message>
            <source>Color15</source>
            <translation>颜色15</translation>
        </message>
        <message>
            <source>Var16</source>
            <translation>变量16</translation>
        </message>
        <message>
            <source>Color16</source>
            <translation>颜色16</translation>
        </message>
        <message>
            <source>Enable indicator</source>
            <translation>启用指示器</translation>
        </message>
        <message>
            <source>If enable indicator</source>
            <translation>是否启用指示器</translation>
        </message>
        <message>
            <source>Indicator color</source>
            <translation>指示器颜色</translation>
        </message>
        <message>
            <source>Set indicator color</source>
            <translation>设置指示器颜色</translation>
        </message>
        <message>
            <source>Time variable</source>
            <translation>时间变量</translation>
        </message>
        <message>
            <source>Set Variable of indicator time</source>
            <translation>设置指示器的时间变量</translation>
        </message>
        <message>
            <source>Value1</source>
            <translation>数值变量1</translation>
        </message>
        <message>
            <source>Set variable of indicator variable</source>
            <translation>设置指示器的数值变量</translation>
        </message>
        <message>
            <source>Value2</source>
            <translation>数值变量2</translation>
        </message>
        <message>
            <source>Value3</source>
            <translation>数值变量3</translation>
        </message>
        <message>
            <source>Value4</source>
            <translation>数值变量4</translation>
        </message>
        <message>
            <source>Value5</source>
            <translation>数值变量5</translation>
        </message>
        <message>
            <source>Value6</source>
            <translation>数值变量6</translation>
        </message>
        <message>
            <source>Value7</source>
            <translation>数值变量7</translation>
        </message>
        <message>
            <source>Value8</source>
            <translation>数值变量8</translation>
        </message>
        <message>
            <source>Value9</source>
            <translation>数值变量9</translation>
        </message>
        <message>
            <source>Value10</source>
            <translation>数值变量10</translation>
        </message>
        <message>
            <source>Value11</source>
            <translation>数值变量11</translation>
        </message>
        <message>
            <source>Value12</source>
            <translation>数值变量12</translation>
        </message>
        <message>
            <source>Value13</source>
            <translation>数值变量13</translation>
        </message>
        <message>
            <source>Value14</source>
            <translation>数值变量14</translation>
        </message>
        <message>
            <source>Value15</source>
            <translation>数值变量15</translation>
        </message>
        <message>
            <source>Value16</source>
            <translation>数值变量16</translation>
        </message>
        <message>
            <source>History curve basic properties</source>
            <translation>历史曲线基本属性</translation>
        </message>
        <message>
            <source>History curve properties</source>
            <translation>历史曲线属性</translation>
        </message>
        <message>
            <source>History curve propertie</source>
            <translation>历史曲线属性</translation>
        </message>
        <message>
            <source>History curve indicator properties</source>
            <translation>历史曲线指示器属性</translation>
        </message>
        <message>
            <source>minvalue</source>
            <translation>最小值</translation>
        </message>
        <message>
            <source>maxvalue</source>
            <translation>最大值</translation>
        </message>
        <message>
            <source>startyear</source>
            <translation>起始年</translation>
        </message>
        <message>
            <source>Set the start year of curve</source>
            <translation>设置曲线的起始年</translation>
        </message>
        <message>
            <source>startmonth</source>
            <translation>起始月</translation>
        </message>
        <message>
            <source>Set the start month of curve</source>
            <translation>设置曲线的起始月</translation>
        </message>
        <message>
            <source>startday</source>
            <translation>起始日</translation>
        </message>
        <message>
            <source>Set the start day of curve</source>
            <translation>设置曲线的起始日</translation>
        </message>
        <message>
            <source>starthour</source>
            <translation>起始时</translation>
        </message>
        <message>
            <source>Set the start hour of curve</source>
            <translation>设置曲线的起始时</translation>
        </message>
        <message>
            <source>startmin</source>
            <translation>起始分</translation>
        </message>
        <message>
            <source>Set the start minute of curve</source>
            <translation>设置曲线的起始分</translation>
        </message>
        <message>
            <source>startsec</source>
            <translation>起始秒</translation>
        </message>
        <message>
            <source>Set the start second of curve</source>
            <translation>设置曲线的起始秒</translation>
        </message>
        <message>
            <source>endyear</source>
            <translation>结束年</translation>
        </message>
        <message>
            <source>Set the end year of curve</source>
            <translation>设置曲线的结束年</translation>
        </message>
        <message>
            <source>endmonth</source>
            <translation>结束月</translation>
        </message>
        <message>
            <source>Set the end month of curve</source>
            <translation>设置曲线的结束月</translation>
        </message>
        <message>
            <source>endday</source>
            <translation>结束日</translation>
        </message>
        <message>
            <source>Set the end day of curve</source>
            <translation>设置曲线的结束日</translation>
        </message>
        <message>
            <source>endhour</source>
            <translation>结束时</translation>
        </message>
        <message>
            <source>Set the end hour of curve</source>
            <translation>设置曲线的结束时</translation>
        </message>
        <message>
            <source>endmin</source>
            <translation>结束分</translation>
        </message>
        <message>
            <source>Set the end minute of curve</source>
            <translation>设置曲线的结束分</translation>
        </message>
        <message>
            <source>endsec</source>
            <translation>结束秒</translation>
        </message>
        <message>
            <source>Set the end second of curve</source>
            <translation>设置曲线的结束秒</translation>
        </message>
        <message>
            <source>historyname</source>
            <translation>历史数据库</translation>
        </message>
        <message>
            <source>Set history name</source>
            <translation>设置历史数据库名</translation>
        </message>
        <message>
            <source>redrawvar</source>
            <translation>重绘变量</translation>
        </message>
        <message>
            <source>Set redraw variable,redraw curve when variable is 1</source>
            <translation>设置重绘变量，变量为 1 时重绘曲线</translation>
        </message>
        <message>
            <source>Set curve number(&lt;=16)</source>
            <translation>设置曲线条数（不超过 16）</translation>
        </message>
        <message>
            <source>variable1</source>
            <translation>变量1</translation>
        </message>
        <message>
            <source>Set the variable name</source>
            <translation>设置变量名</translation>
        </message>
        <message>
            <source>color1</source>
            <translation>颜色1</translation>
        </message>
        <message>
            <source>variable2</source>
            <translation>变量2</translation>
        </message>
        <message>
            <source>color2</source>
            <translation>颜色2</translation>
        </message>
        <message>
            <source>variable3</source>
            <translation>变量3</translation>
        </message>
        <message>
            <source>color3</source>
            <translation>颜色3</translation>
        </message>
        <message>
            <source>variable4</source>
            <translation>变量4</translation>
        </message>
        <message>
            <source>color4</source>
            <translation>颜色4</translation>
        </message>
        <message>
            <source>variable5</source>
            <translation>变量5</translation>
        </message>
        <message>
            <source>color5</source>
            <translation>颜色5</translation>
        </message>
        <message>
            <source>variable6</source>
            <translation>变量6</translation>
        </message>
        <message>
            <source>color6</source>
            <translation>颜色6</translation>
        </message>
        <message>
            <source>variable7</source>
            <translation>变量7</translation>
        </message>
        <message>
            <source>color7</source>
            <translation>颜色7</translation>
        </message>
        <message>
            <source>variable8</source>
            <translation>变量8</translation>
        </message>
        <message>
            <source>color8</source>
            <translation>颜色8</translation>
        </message>
        <message>
            <source>variable9</source>
            <translation>变量9</translation>
        </message>
        <message>
            <source>color9</source>
            <translation>颜色9</translation>
        </message>
        <message>
            <source>variable10</source>
            <translation>变量10</translation>
        </message>
        <message>
            <source>color10</source>
            <translation>颜色10</translation>
        </message>
        <message>
            <source>variable11</source>
            <translation>变量11</translation>
        </message>
        <message>
            <source>color11</source>
            <translation>颜色11</translation>
        </message>
        <message>
            <source>variable12</source>
            <translation>变量12</translation>
        </message>
        <message>
            <source>color12</source>
            <translation>颜色12</translation>
        </message>
        <message>
            <source>variable13</source>
            <translation>变量13</translation>
        </message>
        <message>
            <source>color13</source>
            <translation>颜色13</translation>
        </message>
        <message>
            <source>variable14</source>
            <translation>变量14</translation>
        </message>
        <message>
            <source>color14</source>
            <translation>颜色14</translation>
        </message>
        <message>
            <source>variable15</source>
            <translation>变量15</translation>
        </message>
        <message>
            <source>color15</source>
            <translation>颜色15</translation>
        </message>
        <message>
            <source>variable16</source>
            <translation>变量16</translation>
        </message>
        <message>
            <source>color16</source>
            <translation>颜色16</translation>
        </message>
        <message>
            <source>Enable Indicator</source>
            <translation>启用指示器</translation>
        </message>
        <message>
            <source>Time Variable</source>
            <translation>时间变量</translation>
        </message>
        <message>
            <source>Set the related time variable of indicator</source>
            <translation>设置指示器关联的时间变量</translation>
        </message>
        <message>
            <source>valuevarname1</source>
            <translation>数值变量1</translation>
        </message>
        <message>
            <source>Set the related value variable of indicator</source>
            <translation>设置指示器关联的数值变量</translation>
        </message>
        <message>
            <source>valuevarname2</source>
            <translation>数值变量2</translation>
        </message>
        <message>
            <source>valuevarname3</source>
            <translation>数值变量3</translation>
        </message>
        <message>
            <source>valuevarname4</source>
            <translation>数值变量4</translation>
        </message>
        <message>
            <source>valuevarname5</source>
            <translation>数值变量5</translation>
        </message>
        <message>
            <source>valuevarname6</source>
            <translation>数值变量6</translation>
        </message>
        <message>
            <source>valuevarname7</source>
            <translation>数值变量7</translation>
        </message>
        <message>
            <source>valuevarname8</source>
            <translation>数值变量8</translation>
        </message>
        <message>
            <source>valuevarname9</source>
            <translation>数值变量9</translation>
        </message>
        <message>
            <source>valuevarname10</source>
            <translation>数值变量10</translation>
        </message>
        <message>
            <source>valuevarname11</source>
            <translation>数值变量11</translation>
        </message>
        <message>
            <source>valuevarname12</source>
            <translation>数值变量12</translation>
        </message>
        <message>
            <source>valuevarname13</source>
            <translation>数值变量13</translation>
        </message>
        <message>
            <source>valuevarname14</source>
            <translation>数值变量14</translation>
        </message>
        <message>
            <source>valuevarname15</source>
            <translation>数值变量15</translation>
        </message>
        <message>
            <source>valuevarname16</source>
            <translation>数值变量16</translation>
        </message>
        <message>
            <source>Window</source>
            <translation>画面</translation>
        </message>
        <message>
            <source>Window properties</source>
            <translation>画面属性</translation>
        </message>
        <message>
            <source>caption</source>
            <translation>标题栏</translation>
        </message>
        <message>
            <source>Set if window has caption</source>
            <translation>设置画面是否有标题栏</translation>
        </message>
        <message>
            <source>centerwnd</source>
            <translation>居中</translation>
        </message>
        <message>
            <source>Set if window align center</source>
            <translation>设置画面是否居中</translation>
        </message>
        <message>
            <source>bkcolor</source>
            <translation>背景色</translation>
        </message>
        <message>
            <source>Set window background color</source>
            <translation>设置画面背景色</translation>
        </message>
        <message>
            <source>security level</source>
            <translation>安全级别</translation>
        </message>
        <message>
            <source>security handle mode</source>
            <translation>无权限处理方式</translation>
        </message>
        <message>
            <source>set security handle mode when no permission</source>
            <translation>设置无权限时的处理方式</translation>
        </message>
        <message>
            <source>Number input</source>
            <translation>数值输入</translation>
        </message>
        <message>
            <source>Number input properties</source>
            <translation>数值输入属性</translation>
        </message>
        <message>
            <source>varname</source>
            <translation>变量名</translation>
        </message>
        <message>
            <source>Set related variable</source>
            <translation>设置关联的变量</translation>
        </message>
        <message>
            <source>intwidth</source>
            <translation>整数位数</translation>
        </message>
        <message>
            <source>Set number integer number </source>
            <translation>设置数值的整数位数</translation>
        </message>
        <message>
            <source>precision</source>
            <translation>小数位数</translation>
        </message>
        <message>
            <source>Set number precision</source>
            <translation>设置数值的小数位数</translation>
        </message>
        <message>
            <source>Set the minimal value of number</source>
            <translation>设置数值的最小值</translation>
        </message>
        <message>
            <source>Set the maximal value of numbe</source>
            <translation>设置数值的最大值</translation>
        </message>
        <message>
            <source>prompt</source>
            <translation>提示</translation>
        </message>
        <message>
            <source>Set input prompt information</source>
            <translation>设置输入提示信息</translation>
        </message>
        <message>
            <source>input password</source>
            <translation>输入密码</translation>
        </message>
        <message>
            <source>Set if need password input</source>
            <translation>设置是否需要输入密码</translation>
        </message>
        <message>
            <source>Set the font size</source>
            <translation>设置字号</translation>
        </message>
        <message>
            <source>int type</source>
            <translation>整数处理</translation>
        </message>
        <message>
            <source>Set handle mode of int data</source>
            <translation>设置整数数据的处理方式</translation>
        </message>
        <message>
            <source>back transparent mode</source>
            <translation>背景透明方式</translation>
        </message>
        <message>
            <source>Set back transparent mode</source>
            <translation>设置背景透明方式</translation>
        </message>
        <message>
            <source>Set edge colors</source>
            <translation>设置边框颜色</translation>
        </message>
        <message>
            <source>back color</source>
            <translation>背景色</translation>
        </message>
        <message>
            <source>set back color</source>
            <translation>设置背景色</translation>
        </message>
        <message>
            <source>Text input</source>
            <translation>文本输入</translation>
        </message>
        <message>
            <source>Text input properties</source>
            <translation>文本输入属性</translation>
        </message>
        <message>
            <source>Set the related variable</source>
            <translation>设置关联的变量</translation>
        </message>
        <message>
            <source>password</source>
            <translation>密码</translation>
        </message>
        <message>
            <source>Set if password input</source>
            <translation>设置是否为密码输入</translation>
        </message>
        <message>
            <source>Alarm window</source>
            <translation>报警窗口</translation>
        </message>
        <message>
            <source>Alarm Window Properties</source>
            <translation>报警窗口属性</translation>
        </message>
        <message>
            <source>Rows</source>
            <translation>行数</translation>
        </message>
        <message>
            <source>Max display rows</source>
            <translation>最多显示行数</translation>
        </message>
        <message>
            <source>Confirm color</source>
            <translation>确认颜色</translation>
        </message>
        <message>
            <source>set confirm color</source>
            <translation>设置确认颜色</translation>
        </message>
        <message>
            <source>Restore color</source>
            <translation>恢复颜色</translation>
        </message>
        <message>
            <source>set restore color</source>
            <translation>设置恢复颜色</translation>
        </message>
        <message>
            <source>Alarm color</source>
            <translation>报警颜色</translation>
        </message>
        <message>
            <source>set alarm color</source>
            <translation>设置报警颜色</translation>
        </message>
        <message>
            <source>High High Color</source>
            <translation>高高限颜色</translation>
        </message>
        <message>
            <source>Set high high color</source>
            <translation>设置高高限颜色</translation>
        </message>
        <message>
            <source>High color</source>
            <translation>高限颜色</translation>
        </message>
        <message>
            <source>Set high color</source>
            <translation>设置高限颜色</translation>
        </message>
        <message>
            <source>Low low color</source>
            <translation>低低限颜色</translation>
        </message>
        <message>
            <source>Set low low color</source>
            <translation>设置低低限颜色</translation>
        </message>
        <message>
            <source>Low color</source>
            <translation>低限颜色</translation>
        </message>
        <message>
            <source>Set low color</source>
            <translation>设置低限颜色</translation>
        </message>
        <message>
            <source>Open color</source>
            <translation>开报警颜色</translation>
        </message>
        <message>
            <source>Set open alarm color</source>
            <translation>设置开报警颜色</translation>
        </message>
        <message>
            <source>Close color</source>
            <translation>关报警颜色</translation>
        </message>
        <message>
            <source>Set close alarm color</source>
            <translation>设置关报警颜色</translation>
        </message>
        <message>
            <source>Display fields</source>
            <translation>显示字段</translation>
        </message>
        <message>
            <source>Set display fields</source>
            <translation>设置显示字段</translation>
        </message>
        <message>
            <source>Set Item height</source>
            <translation>设置行高</translation>
        </message>
        <message>
            <source>Display Type</source>
            <translation>显示类型</translation>
        </message>
        <message>
            <source>Set display type</source>
            <translation>设置显示类型</translation>
        </message>
        <message>
            <source>Text Display</source>
            <translation>文本显示</translation>
        </message>
        <message>
            <source>Text widget properties</source>
            <translation>文本控件属性</translation>
        </message>
        <message>
            <source>Font</source>
            <translation>字体</translation>
        </message>
        <message>
            <source>Set font</source>
            <translation>设置字体</translation>
        </message>
        <message>
            <source>Set text</source>
            <translation>设置文本</translation>
        </message>
        <message>
            <source>Align</source>
            <translation>对齐</translation>
        </message>
        <message>
            <source>Set align mode</source>
            <translation>设置对齐方式</translation>
        </message>
        <message>
            <source>History data listview window</source>
            <translation>历史数据列表</translation>
        </message>
        <message>
            <source>history list properties</source>
            <translation>历史列表属性</translation>
        </message>
        <message>
            <source>rows</source>
            <translation>行数</translation>
        </message>
        <message>
            <source>Set the maximal rows of history data listview</source>
            <translation>设置历史数据列表的最多行数</translation>
        </message>
        <message>
            <source>itemheight</source>
            <translation>行高</translation>
        </message>
        <message>
            <source>Set the item height</source>
            <translation>设置行高</translation>
        </message>
        <message>
            <source>dispfields</source>
            <translation>显示字段</translation>
        </message>
        <message>
            <source>Set the display fields of history data listview</source>
            <translation>设置历史数据列表的显示字段</translation>
        </message>
        <message>
            <source>Set the redraw variable,redraw history data listview when value=1</source>
            <translation>设置重绘变量，值为 1 时重绘历史数据列表</translation>
        </message>
        <message>
            <source>Set the start year of list</source>
            <translation>设置列表的起始年</translation>
        </message>
        <message>
            <source>Set the start month of list</source>
            <translation>设置列表的起始月</translation>
        </message>
        <message>
            <source>Set the start day of list</source>
            <translation>设置列表的起始日</translation>
        </message>
        <message>
            <source>Set the start hour of list</source>
            <translation>设置列表的起始时</translation>
        </message>
        <message>
            <source>Set the start minute of list</source>
            <translation>设置列表的起始分</translation>
        </message>
        <message>
            <source>Set the start second of list</source>
            <translation>设置列表的起始秒</translation>
        </message>
        <message>
            <source>Set the end year of list</source>
            <translation>设置列表的结束年</translation>
        </message>
        <message>
            <source>Set the end month of list</source>
            <translation>设置列表的结束月</translation>
        </message>
        <message>
            <source>Set the end day of list</source>
            <translation>设置列表的结束日</translation>
        </message>
        <message>
            <source>Set the end hour of list</source>
            <translation>设置列表的结束时</translation>
        </message>
        <message>
            <source>Set the end minute of list</source>
            <translation>设置列表的结束分</translation>
        </message>
        <message>
            <source>Set the end second of list</source>
            <translation>设置列表的结束秒</translation>
        </message>
        <message>
            <source>auto update</source>
            <translation>自动更新</translation>
        </message>
        <message>
            <source>When history data change, auto update list widget</source>
            <translation>历史数据改变时，自动更新列表控件</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自定义</translation>
        </message>
        <message>
            <source>Custom widget properties.</source>
            <translation>自定义控件属性。</translation>
        </message>
        <message>
            <source>ClassName</source>
            <translation>类名</translation>
        </message>
        <message>
            <source>Custom widget name.</source>
            <translation>自定义控件的类名。</translation>
        </message>
        <message>
            <source>CustomInfo</source>
            <translation>自定义信息</translation>
        </message>
        <message>
            <source>Custom widget custom information.</source>
            <translation>自定义控件的自定义信息。</translation>
        </message>
    </context>
    <context>
        <name>WidgetEvent</name>
        <message>
            <source>Button Down</source>
            <translation>按下</translation>
        </message>
        <message>
            <source>trigger this event when mouse button down</source>
            <translation>鼠标按键按下时触发此事件</translation>
        </message>
        <message>
            <source>Button Up</source>
            <translation>弹起</translation>
        </message>
        <message>
            <source>trigger this event when mouse button up</source>
            <translation>鼠标按键弹起时触发此事件</translation>
        </message>
        <message>
            <source>timer</source>
            <translation>定时</translation>
        </message>
        <message>
            <source>activate this event when time out</source>
            <translation>定时时间到时触发此事件</translation>
        </message>
        <message>
            <source>Select changed</source>
            <translation>选择改变</translation>
        </message>
        <message>
            <source>Trigger the event when select changed.</source>
            <translation>选中项改变时触发此事件。</translation>
        </message>
        <message>
            <source>open</source>
            <translation>打开</translation>
        </message>
        <message>
            <source>activate this event then open window</source>
            <translation>打开画面时触发此事件</translation>
        </message>
        <message>
            <source>close</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source>activate this event then close window</source>
            <translation>关闭画面时触发此事件</translation>
        </message>
        <message>
            <source>When Insert data</source>
            <translation>插入数据时</translation>
        </message>
        <message>
            <source>When Insert data to list widget, system triggle this event.</source>
            <translation>向列表控件插入数据时，系统触发此事件。</translation>
        </message>
    </context>
    <context>
        <name>WidgetChoice</name>
        <message>
            <source>Align left</source>
            <translation>左对齐</translation>
        </message>
        <message>
            <source>Align right</source>
            <translation>右对齐</translation>
        </message>
        <message>
            <source>Align center</source>
            <translation>居中对齐</translation>
        </message>
        <message>
            <source>Defaule</source>
            <translation>默认</translation>
        </message>
        <message>
            <source>8</source>
            <translation>8</translation>
        </message>
        <message>
            <source>12</source>
            <translation>12</translation>
        </message>
        <message>
            <source>16</source>
            <translation>16</translation>
        </message>
        <message>
            <source>24</source>
            <translation>24</translation>
        </message>
        <message>
            <source>Left top to right bottom</source>
            <translation>左上到右下</translation>
        </message>
        <message>
            <source>Left bottom to right top</source>
            <translation>左下到右上</translation>
        </message>
        <message>
            <source>Solid</source>
            <translation>实线</translation>
        </message>
        <message>
            <source>Dotted</source>
            <translation>点线</translation>
        </message>
        <message>
            <source>Dash</source>
            <translation>虚线</translation>
        </message>
        <message>
            <source>Horizontal center to sides</source>
            <translation>水平中间向两侧</translation>
        </message>
        <message>
            <source>Vertical center to sides</source>
            <translation>垂直中间向两侧</translation>
        </message>
        <message>
            <source>Left to right</source>
            <translation>从左到右</translation>
        </message>
        <message>
            <source>Right to left</source>
            <translation>从右到左</translation>
        </message>
        <message>
            <source>Horizontal sides to center</source>
            <translation>水平两侧向中间</translation>
        </message>
        <message>
            <source>Top to bottom</source>
            <translation>从上到下</translation>
        </message>
        <message>
            <source>Bottom to top</source>
            <translation>从下到上</translation>
        </message>
        <message>
            <source>Right bottom to left top</source>
            <translation>右下到左上</translation>
        </message>
        <message>
            <source>Right top to Left bottom</source>
            <translation>右上到左下</translation>
        </message>
        <message>
            <source>Center to left top &amp; right bottom</source>
            <translation>中心向左上和右下</translation>
        </message>
        <message>
            <source>Left top &amp; right bottom to center</source>
            <translation>左上和右下向中心</translation>
        </message>
        <message>
            <source>Center to left bottom &amp; right top</source>
            <translation>中心向左下和右上</translation>
        </message>
        <message>
            <source>Left bottom &amp; right top to center</source>
            <translation>左下和右上向中心</translation>
        </message>
        <message>
            <source>Center to Edge</source>
            <translation>中心向边缘</translation>
        </message>
        <message>
            <source>Horizontal to top</source>
            <translation>水平边向上</translation>
        </message>
        <message>
            <source>Horizontal to bottom</source>
            <translation>水平边向下</translation>
        </message>
        <message>
            <source>Vertical to right</source>
            <translation>垂直边向右</translation>
        </message>
        <message>
            <source>Vertical to left</source>
            <translation>垂直边向左</translation>
        </message>
        <message>
            <source>starting</source>
            <translation>启动时加载</translation>
        </message>
        <message>
            <source>running</source>
            <translation>运行时加载</translation>
        </message>
        <message>
            <source>opaque</source>
            <translation>不透明</translation>
        </message>
        <message>
            <source>transparent</source>
            <translation>透明</translation>
        </message>
        <message>
            <source>Default</source>
            <translation>默认</translation>
        </message>
        <message>
            <source>Normal</source>
            <translation>普通</translation>
        </message>
        <message>
            <source>Set On</source>
            <translation>置 1</translation>
        </message>
        <message>
            <source>Set Off</source>
            <translation>置 0</translation>
        </message>
        <message>
            <source>Switch</source>
            <translation>取反</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>复位</translation>
        </message>
        <message>
            <source>Change Window</source>
            <translation>切换画面</translation>
        </message>
        <message>
            <source>No prompt</source>
            <translation>不提示</translation>
        </message>
        <message>
            <source>Prompt no rights</source>
            <translation>提示无权限</translation>
        </message>
        <message>
            <source>Prompt password window</source>
            <translation>弹出密码窗口</translation>
        </message>
        <message>
            <source>In Memory</source>
            <translation>内存</translation>
        </message>
        <message>
            <source>File</source>
            <translation>文件</translation>
        </message>
        <message>
            <source>Internal Flash</source>
            <translation>内部闪存</translation>
        </message>
        <message>
            <source>CF card</source>
            <translation>CF 卡</translation>
        </message>
        <message>
            <source>No caption</source>
            <translation>无标题栏</translation>
        </message>
        <message>
            <source>Has caption</source>
            <translation>有标题栏</translation>
        </message>
        <message>
            <source>Not align center</source>
            <translation>不居中</translation>
        </message>
        <message>
            <source>no prompt</source>
            <translation>不提示</translation>
        </message>
        <message>
            <source>prompt no permission</source>
            <translation>提示无权限</translation>
        </message>
        <message>
            <source>prompt password window</source>
            <translation>弹出密码窗口</translation>
        </message>
        <message>
            <source>Normal(no decimal place)</source>
            <translation>普通（无小数位）</translation>
        </message>
        <message>
            <source>auto add decimal place</source>
            <translation>自动添加小数位</translation>
        </message>
        <message>
            <source>Display All alarm history</source>
            <translation>显示全部报警历史</translation>
        </message>
        <message>
            <source>Only alarm data</source>
            <translation>仅报警数据</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>左</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>右</translation>
        </message>
        <message>
            <source>Center</source>
            <translation>居中</translation>
        </message>
    </context>
    <context>
        <name>VariableDatabase</name>
        <message>
            <source>Realtime database</source>
            <translation>实时数据库</translation>
        </message>
        <message>
            <source>HMI database</source>
            <translation>HMI 数据库</translation>
        </message>
        <message>
            <source>Realtime related data</source>
            <translation>关联实时数据</translation>
        </message>
        <message>
            <source>HMI data name</source>
            <translation>HMI 数据名</translation>
        </message>
        <message>
            <source>Database name</source>
            <translation>数据库名</translation>
        </message>
        <message>
            <source>Data name</source>
            <translation>数据名</translation>
        </message>
        <message>
            <source>Custom data</source>
            <translation>自定义数据</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Length</source>
            <translation>长度</translation>
        </message>
        <message>
            <source>Initial value</source>
            <translation>初始值</translation>
        </message>
        <message>
            <source>Description</source>
            <translation>描述</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>别名</translation>
        </message>
    </context>
    <context>
        <name>CheckRule</name>
        <message>
            <source>A variable reference names no variable of rtdb.xml or hmidb.xml</source>
            <translation>变量引用指向 rtdb.xml 和 hmidb.xml 中都没有的变量</translation>
        </message>
        <message>
            <source>A script calls a function that hmifuncs.xml does not list</source>
            <translation>脚本调用了 hmifuncs.xml 中未列出的函数</translation>
        </message>
        <message>
            <source>A picture file does not exist</source>
            <translation>图片文件不存在</translation>
        </message>
        <message>
            <source>A history database is not in history.xml</source>
            <translation>历史数据库不在 history.xml 中</translation>
        </message>
        <message>
            <source>A data log is not in datalog.xml</source>
            <translation>数据记录不在 datalog.xml 中</translation>
        </message>
        <message>
            <source>A widget's class is neither built in nor from a loaded widget library</source>
            <translation>控件的类既不是内置的，也不来自已加载的控件库</translation>
        </message>
        <message>
            <source>A widget has no name</source>
            <translation>控件没有名称</translation>
        </message>
        <message>
            <source>Two widgets of a window have the same name</source>
            <translation>画面中有两个控件同名</translation>
        </message>
        <message>
            <source>A widget reaches outside its window</source>
            <translation>控件超出了所在画面</translation>
        </message>
        <message>
            <source>A text holds characters that GB2312 cannot hold</source>
            <translation>文本含有 GB2312 无法表示的字符</translation>
        </message>
        <message>
            <source>A window of hmiwindow.xml has no window file</source>
            <translation>hmiwindow.xml 中的画面没有画面文件</translation>
        </message>
        <message>
            <source>A window file of the project folder is not in hmiwindow.xml</source>
            <translation>工程文件夹中的画面文件不在 hmiwindow.xml 中</translation>
        </message>
        <message>
            <source>A project or window file cannot be read</source>
            <translation>无法读取工程文件或画面文件</translation>
        </message>
    </context>
</TS>
