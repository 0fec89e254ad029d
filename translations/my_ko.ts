<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>정보:</translation>
    </message>
    <message>
        <source>Kelvo</source>
        <translation>Kelvo</translation>
    </message>
    <message>
        <source>Made by &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</source>
        <translation>제작: &lt;a href=&quot;%1&quot;&gt;Orvanta&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Leave Feedback</source>
        <translation>의견 보내기</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>버전 %1</translation>
    </message>
</context>
<context>
    <name>DialogPreferences</name>
    <message>
        <source>Kelvo Preferences</source>
        <translation>Kelvo 기본 설정</translation>
    </message>
    <message>
        <source>Main Window Style</source>
        <translation>메인 창 스타일</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>클래식</translation>
    </message>
    <message>
        <source>Dark &amp;&amp; Translucent</source>
        <translation>어두운 반투명</translation>
    </message>
    <message>
        <source>Do not show window title bar</source>
        <translation>창 제목 표시줄 숨기기</translation>
    </message>
    <message>
        <source>Update frequency</source>
        <translation>업데이트 주기</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2초</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5초</translation>
    </message>
    <message>
        <source>Keep main window on top of other windows</source>
        <translation>메인 창을 다른 창 위에 유지</translation>
    </message>
    <message>
        <source>Show pie chart on menubar</source>
        <translation>메뉴 표시줄에 원형 차트 표시</translation>
    </message>
    <message>
        <source>Monocolor pie chart</source>
        <translation>단색 원형 차트</translation>
    </message>
    <message>
        <source>Automatically launch Kelvo when I log in</source>
        <translation>로그인할 때 Kelvo 자동 실행</translation>
    </message>
    <message>
        <source>Hide main window when Kelvo starts up</source>
        <translation>Kelvo를 시작할 때 메인 창 숨기기</translation>
    </message>
    <message>
        <source>Automatically hide main window after freeing is completed</source>
        <translation>메모리 정리가 끝나면 메인 창 자동으로 숨기기</translation>
    </message>
    <message>
        <source>Remind me to free memory when inactive memory </source>
        <translation>다음 경우에 메모리 정리 알림: </translation>
    </message>
    <message>
        <source>reaches over</source>
        <translation>비활성 메모리가</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB를 넘을 때</translation>
    </message>
    <message>
        <source>On Wayland, a program cannot keep its window on top.</source>
        <translation>Wayland에서는 프로그램이 자신의 창을 다른 창 위에 유지할 수 없습니다.</translation>
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
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Do Not Remind Me</source>
        <translation>다시 알리지 않기</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;참고&lt;/span&gt;: 이 버전부터 Kelvo는 메뉴 표시줄에서만 실행되며 Dock에 아이콘을 표시하지 않습니다. 아직 보지 못했다면 메뉴 표시줄에서 &lt;img src=&quot;:/app16.png&quot; /&gt; 또는 &lt;img src=&quot;:/piechart.png&quot; /&gt; 아이콘을 찾아보십시오.&lt;/p&gt;
&lt;p&gt;이 메시지는 다시 표시되지 않습니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;참고&lt;/span&gt;: 메모리를 정리하는 동안 시스템이 잠시 응답하지 않는 것처럼 보일 수 있습니다. 이는 메모리를 재구성하는 동안 나타나는 정상적인 동작입니다. 이 시간에는 다른 프로그램을 시작하지 않는 것이 좋습니다. &lt;/p&gt;
&lt;p style=&quot; margin-top:12px; margin-bottom:12px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;이 과정은 최대 1분 정도 걸릴 수 있습니다. 비활성 메모리를 최소로 줄이려면 &quot;메모리 정리&quot;를 여러 번 실행해야 할 수도 있습니다.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Do not show this message again.</source>
        <translation>이 메시지를 다시 표시하지 않기</translation>
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
        <translation>여유:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>고정:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>활성:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>비활성:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>사용 중:</translation>
    </message>
    <message>
        <source>Just freed:</source>
        <translation>방금 정리됨:</translation>
    </message>
    <message>
        <source>Free Memory</source>
        <translation>메모리 정리</translation>
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
        <translation>%1바이트</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Failed to free memory.</source>
        <translation>메모리를 정리하지 못했습니다.</translation>
    </message>
    <message>
        <source>Memory pie chart</source>
        <translation>메모리 원형 차트</translation>
    </message>
    <message>
        <source>Freeing memory</source>
        <translation>메모리 정리 중</translation>
    </message>
</context>
<context>
    <name>MyApp</name>
    <message>
        <source>Free:</source>
        <translation>여유:</translation>
    </message>
    <message>
        <source>Your inactive memory has reached %1. Do you want to free memory now?</source>
        <translation>비활성 메모리가 %1에 도달했습니다. 지금 메모리를 정리하시겠습니까?</translation>
    </message>
    <message>
        <source>Free Memory Now!</source>
        <translation>지금 메모리 정리!</translation>
    </message>
    <message>
        <source>Kelvo Preferences...</source>
        <translation>Kelvo 기본 설정…</translation>
    </message>
    <message>
        <source>About Kelvo</source>
        <translation>Kelvo 정보</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Free: </source>
        <translation>여유: </translation>
    </message>
    <message>
        <source>Active: </source>
        <translation>활성: </translation>
    </message>
    <message>
        <source>Inactive: </source>
        <translation>비활성: </translation>
    </message>
    <message>
        <source>Wired: </source>
        <translation>고정: </translation>
    </message>
</context>
</TS>
