<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>परिचय:</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>डेवलपर: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>प्रतिक्रिया दें</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>संस्करण %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo की वरीयताएँ</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>मुख्य विंडो की शैली</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>क्लासिक</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>गहरे रंग की और पारभासी</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>विंडो की शीर्षक पट्टी न दिखाएँ</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>अपडेट का अंतराल</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 सेकंड</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 सेकंड</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>मुख्य विंडो को अन्य विंडो के ऊपर रखें</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>मेन्यू पट्टी पर पाई चार्ट दिखाएँ</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>एकरंगा पाई चार्ट</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>मेरे लॉग इन करने पर Kelvo अपने-आप शुरू करें</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo शुरू होने पर मुख्य विंडो छिपाएँ</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>मेमोरी खाली होने के बाद मुख्य विंडो अपने-आप छिपाएँ</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>मुझे मेमोरी खाली करने की याद दिलाएँ: </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>निष्क्रिय मेमोरी</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB से अधिक होने पर</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Wayland पर कोई प्रोग्राम अपनी विंडो को अन्य विंडो के ऊपर नहीं रख सकता।</translation>
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
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>दोबारा याद न दिलाएँ</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ध्यान दें&lt;/span&gt;: इस संस्करण से Kelvo केवल मेन्यू पट्टी पर रहेगा और Dock में आइकन नहीं दिखाएगा। यदि आपने उसे अब तक नहीं देखा है, तो मेन्यू पट्टी पर &lt;img src=&quot;:/app16.png&quot; /&gt; या &lt;img src=&quot;:/piechart.png&quot; /&gt; आइकन खोजें।&lt;/p&gt;
&lt;p&gt;यह संदेश दोबारा नहीं दिखेगा।&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;ध्यान दें&lt;/span&gt;: मेमोरी खाली करते समय ऐसा लग सकता है कि आपका सिस्टम थोड़ी देर के लिए प्रतिक्रिया नहीं दे रहा है। मेमोरी के पुनर्गठन के दौरान यह सामान्य है। सलाह दी जाती है कि उस समय कोई अन्य ऐप्लिकेशन शुरू न करें। &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;इस प्रक्रिया में एक मिनट तक लग सकता है। कभी-कभी निष्क्रिय मेमोरी को न्यूनतम करने के लिए “मेमोरी खाली करें” को कुछ बार चलाना पड़ सकता है।&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>यह संदेश दोबारा न दिखाएँ।</translation>
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
        <translation>खाली:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>आरक्षित:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>सक्रिय:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>निष्क्रिय:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>प्रयुक्त:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>अभी खाली हुई:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>मेमोरी खाली करें</translation>
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
        <translation>%1 बाइट</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>विफल</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>मेमोरी खाली नहीं की जा सकी।</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>मेमोरी पाई चार्ट</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>मेमोरी खाली की जा रही है</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>खाली:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>आपकी निष्क्रिय मेमोरी %1 तक पहुँच गई है। क्या आप अभी मेमोरी खाली करना चाहते हैं?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>अभी मेमोरी खाली करें!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo की वरीयताएँ…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Kelvo का परिचय</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>खाली: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>सक्रिय: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>निष्क्रिय: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>आरक्षित: </translation>
    </message>
</context>
</TS>
