<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- English as it is read on this system: the sentences that differ from their sources, and the singular forms. -->
<TS version="2.1" language="en" sourcelanguage="en_US">
<context>
    <name>ambrelle</name>
    <message numerus="yes">
        <source>%n widgets</source>
        <translation>
            <numerusform>%n widget</numerusform>
            <numerusform>%n widgets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n desktops</source>
        <translation>
            <numerusform>%n desktop</numerusform>
            <numerusform>%n desktops</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n themes</source>
        <translation>
            <numerusform>%n theme</numerusform>
            <numerusform>%n themes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n themes added to My Themes</source>
        <translation>
            <numerusform>%n theme added to My Themes</numerusform>
            <numerusform>%n themes added to My Themes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 clicks</source>
        <translation>
            <numerusform>%1 click</numerusform>
            <numerusform>%1 clicks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n cores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days ago</source>
        <translation>
            <numerusform>day ago</numerusform>
            <numerusform>days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>days</source>
        <translation>
            <numerusform>day</numerusform>
            <numerusform>days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n days</source>
        <translation>
            <numerusform>%1 in %n day</numerusform>
            <numerusform>%1 in %n days</numerusform>
        </translation>
    </message>
    <message>
        <source>Free space on your Mac</source>
        <translation>Free space on your computer</translation>
    </message>
    <message>
        <source>Time at your Mac today</source>
        <translation>Time at your computer today</translation>
    </message>
    <message numerus="yes">
        <source>Nice work. Take %n minutes.</source>
        <translation>
            <numerusform>Nice work. Take %n minute.</numerusform>
            <numerusform>Nice work. Take %n minutes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Location access is off. Pick a city from the menu bar: Weather ▸ Set City…</source>
        <translation>Location access is off. Pick a city from the More menu: Weather ▸ Set City…</translation>
    </message>
    <message>
        <source>Couldn't get your location. Pick a city from the menu bar: Weather ▸ Set City…</source>
        <translation>Couldn't get your location. Pick a city from the More menu: Weather ▸ Set City…</translation>
    </message>
    <message>
        <source>Couldn't find “%1”. Try another name from the menu bar.</source>
        <translation>Couldn't find “%1”. Try another name from the More menu.</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n minute ago</numerusform>
            <numerusform>%n minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n hour ago</numerusform>
            <numerusform>%n hours ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n day ago</numerusform>
            <numerusform>%n days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n second</numerusform>
            <numerusform>%n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n days</source>
        <translation>
            <numerusform>Every day</numerusform>
            <numerusform>Every %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sessions today</source>
        <translation>
            <numerusform>%n session today</numerusform>
            <numerusform>%n sessions today</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n hours</source>
        <translation>
            <numerusform>Every hour</numerusform>
            <numerusform>Every %n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>Every minute</numerusform>
            <numerusform>Every %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n widgets</source>
        <translation>
            <numerusform>%n widget</numerusform>
            <numerusform>%n widgets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n widgets removed</source>
        <translation>
            <numerusform>%n widget removed</numerusform>
            <numerusform>%n widgets removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n widgets?</source>
        <translation>
            <numerusform>Remove the widget?</numerusform>
            <numerusform>Remove all %n widgets?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n widgets on %1?</source>
        <translation>
            <numerusform>Remove the widget on %1?</numerusform>
            <numerusform>Remove all %n widgets on %1?</numerusform>
        </translation>
    </message>
    <message>
        <source>It isn't a Ambrelle theme file, or it was made by a newer version.</source>
        <translation>It isn't an Ambrelle theme file, or it was made by a newer version.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wallpapers, painted for your screens</source>
        <translation>
            <numerusform>%n wallpaper, painted for your screens</numerusform>
            <numerusform>%n wallpapers, painted for your screens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Painting for %n screens…</source>
        <translation>
            <numerusform>Painting…</numerusform>
            <numerusform>Painting for %n screens…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures added</source>
        <translation>
            <numerusform>%n picture added</numerusform>
            <numerusform>%n pictures added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files aren't pictures</source>
        <translation>
            <numerusform>%n file isn't a picture</numerusform>
            <numerusform>%n files aren't pictures</numerusform>
        </translation>
    </message>
</context>
</TS>
