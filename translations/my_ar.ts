<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>من تطوير &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>ترك تعليق</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>الإصدار %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>تفضيلات Kelvo</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>نمط النافذة الرئيسية</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>كلاسيكي</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>داكن وشبه شفاف</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>عدم إظهار شريط عنوان النافذة</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>فترة التحديث</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>ثانيتان</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>خمس ثوانٍ</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>إبقاء النافذة الرئيسية فوق النوافذ الأخرى</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>إظهار المخطط الدائري في شريط القوائم</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>مخطط دائري أحادي اللون</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>تشغيل Kelvo تلقائيًا عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>إخفاء النافذة الرئيسية عند بدء تشغيل Kelvo</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>إخفاء النافذة الرئيسية تلقائيًا بعد اكتمال تحرير الذاكرة</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>التذكير بتحرير الذاكرة عندما </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>تتجاوز الذاكرة غير النشطة</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>غ.ب</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>في Wayland، لا يمكن للبرنامج إبقاء نافذته فوق النوافذ الأخرى.</translation>
    </message>
</context>
<context>
    <name>DialogReminder</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>عدم التذكير مجددًا</translation>
    </message>
</context>
<context>
    <name>DialogStartUpInfo</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOTE&lt;/span&gt;: From this version on, Kelvo will be a menubar-only app and will not show icon on the Dock.  Look for icon &lt;img src=&quot;:/app16.png&quot; /&gt; or &lt;img src=&quot;:/piechart.png&quot; /&gt; on the menubar if you have not noticed it.&lt;/p&gt;
&lt;p&gt;This message will not show up again.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body dir=&quot;rtl&quot; style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ملاحظة&lt;/span&gt;: ابتداءً من هذا الإصدار، يوجد Kelvo في شريط القوائم فقط ولا يُظهر رمزًا في Dock. إذا لم تلاحظه بعد، فابحث عن الرمز &lt;img src=&quot;:/app16.png&quot; /&gt; أو &lt;img src=&quot;:/piechart.png&quot; /&gt; في شريط القوائم.&lt;/p&gt;
&lt;p&gt;لن تظهر هذه الرسالة مرة أخرى.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>DialogWarning</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Note&lt;/span&gt;: During memory freeing process, your system may appear to be non-responsive for a short period of time. This is normal behavior during memory re-organization process. It is recommended you do not start any other applications during that time. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;The process may take up to one minute. In some occasion, you may need to run &amp;quot;Free Memory&amp;quot; a few times to shrink inactive memory to minimal size.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body dir=&quot;rtl&quot; style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ملاحظة&lt;/span&gt;: قد يبدو أن النظام لا يستجيب لفترة قصيرة أثناء عملية تحرير الذاكرة. هذا أمر طبيعي أثناء إعادة تنظيم الذاكرة. يُنصح بعدم تشغيل أي تطبيقات أخرى خلال هذا الوقت. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;قد تستغرق العملية دقيقة واحدة كحد أقصى. في بعض الأحيان قد تحتاج إلى تشغيل «تحرير الذاكرة» عدة مرات لتقليص الذاكرة غير النشطة إلى أدنى حد.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>عدم إظهار هذه الرسالة مجددًا.</translation>
    </message>
</context>
<context>
    <name>MainDialog</name>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>حرة:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>محجوزة:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>نشطة:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>غير نشطة:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>مستخدمة:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>تم تحرير:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>تحرير الذاكرة</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ت.ب</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 غ.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 ك.ب</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>فشل تحرير الذاكرة.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>مخطط دائري للذاكرة</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>جارٍ تحرير الذاكرة</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>حرة:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>بلغت الذاكرة غير النشطة لديك %1. هل تريد تحرير الذاكرة الآن؟</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>تحرير الذاكرة الآن!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>تفضيلات Kelvo…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>حول Kelvo</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>حرة: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>نشطة: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>غير نشطة: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>محجوزة: </translation>
    </message>
</context>
</TS>
