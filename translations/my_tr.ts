<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Hakkında:</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>Geliştiren: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>Geri Bildirim Gönder</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>sürüm %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo Tercihleri</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>Ana Pencere Stili</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klasik</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>Koyu ve Yarı Saydam</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>Pencere başlık çubuğunu gösterme</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>Güncelleme aralığı</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 saniye</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 saniye</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>Ana pencereyi diğer pencerelerin üstünde tut</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>Menü çubuğunda pasta grafiği göster</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>Tek renkli pasta grafiği</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>Oturum açtığımda Kelvo’yu otomatik başlat</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo başlarken ana pencereyi gizle</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>Bellek boşaltıldıktan sonra ana pencereyi otomatik gizle</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>Şu durumda bellek boşaltmamı hatırlat: </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>etkin olmayan bellek</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB’ı aşınca</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Wayland’da bir program kendi penceresini diğer pencerelerin üstünde tutamaz.</translation>
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
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>Bir Daha Hatırlatma</translation>
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
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;NOT&lt;/span&gt;: Bu sürümden itibaren Kelvo yalnızca menü çubuğunda bulunur ve Dock’ta simge göstermez. Henüz fark etmediyseniz menü çubuğunda &lt;img src=&quot;:/app16.png&quot; /&gt; veya &lt;img src=&quot;:/piechart.png&quot; /&gt; simgesini arayın.&lt;/p&gt;
&lt;p&gt;Bu ileti bir daha gösterilmeyecek.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;Lucida Grande&apos;; font-size:13pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Not&lt;/span&gt;: Bellek boşaltılırken sisteminiz kısa bir süre yanıt vermiyor gibi görünebilir. Bellek yeniden düzenlenirken bu olağandır. Bu sırada başka uygulama başlatmamanız önerilir. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;İşlem bir dakika kadar sürebilir. Bazı durumlarda etkin olmayan belleği en aza indirmek için “Belleği Boşalt” işlemini birkaç kez çalıştırmanız gerekebilir.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>Bu iletiyi bir daha gösterme.</translation>
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
        <translation>Boş:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>Sabit:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Etkin:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>Etkin olmayan:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Kullanılan:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>Az önce boşaltılan:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>Belleği Boşalt</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bayt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>Bellek boşaltılamadı.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>Bellek pasta grafiği</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>Bellek boşaltılıyor</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>Boş:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>Etkin olmayan belleğiniz %1 boyutuna ulaştı. Belleği şimdi boşaltmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>Belleği Şimdi Boşalt!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo Tercihleri…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Kelvo Hakkında</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>Boş: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>Etkin: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>Etkin olmayan: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>Sabit: </translation>
    </message>
</context>
</TS>
