<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheatSheet</name>
    <message>
        <source>%1 Shortcuts</source>
        <translation>Tastenkürzel von %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 Tastenkürzel</numerusform><numerusform>%1 Tastenkürzel</numerusform></translation>
    </message>
    <message>
        <source>%1 Command  %2 Option  %3 Control  %4 Shift</source>
        <translation>%1 Befehlstaste  %2 Wahltaste  %3 Steuerungstaste  %4 Umschalttaste</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>Made with Quillon</source>
        <translation>Erstellt mit Quillon</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The PDF document cannot be written.</source>
        <translation>Das PDF-Dokument lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>There are no shortcuts to print.</source>
        <translation>Es gibt keine Tastenkürzel zu drucken.</translation>
    </message>
    <message>
        <source>The printer does not take the pages. Check that it is set up and on.</source>
        <translation>Der Drucker nimmt die Seiten nicht an. Prüfen Sie, ob er eingerichtet und eingeschaltet ist.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1; see quillon --help</source>
        <translation>%1; siehe quillon --help</translation>
    </message>
    <message>
        <source>unexpected argument '%1'</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>--keys is symbols or names, not '%1'</source>
        <translation>--keys ist symbols oder names, nicht „%1“</translation>
    </message>
    <message>
        <source>--seed needs --practice</source>
        <translation>--seed braucht --practice</translation>
    </message>
    <message>
        <source>--practice is printed as text or json</source>
        <translation>--practice wird als text oder json ausgegeben</translation>
    </message>
    <message>
        <source>--practice takes a positive number, not '%1'</source>
        <translation>--practice nimmt eine positive Zahl, nicht „%1“</translation>
    </message>
    <message>
        <source>--seed takes a number from 0 to 2^64-1, not '%1'</source>
        <translation>--seed nimmt eine Zahl von 0 bis 2^64-1, nicht „%1“</translation>
    </message>
    <message>
        <source>--app, --pid and --front exclude each other</source>
        <translation>--app, --pid und --front schließen einander aus</translation>
    </message>
    <message>
        <source>--pid takes a process number, not '%1'</source>
        <translation>--pid nimmt eine Prozessnummer, nicht „%1“</translation>
    </message>
    <message>
        <source>--format is text, json, markdown or pdf, not '%1'</source>
        <translation>--format ist text, json, markdown oder pdf, nicht „%1“</translation>
    </message>
    <message>
        <source>--output needs --format pdf</source>
        <translation>--output braucht --format pdf</translation>
    </message>
    <message>
        <source>--output takes the name of a file</source>
        <translation>--output erwartet den Namen einer Datei</translation>
    </message>
    <message>
        <source>a PDF document is not for the terminal; name a file with --output</source>
        <translation>ein PDF-Dokument ist nichts für das Terminal; nennen Sie mit --output eine Datei</translation>
    </message>
    <message>
        <source>--format is text or json, not '%1'</source>
        <translation>--format ist text oder json, nicht „%1“</translation>
    </message>
    <message>
        <source>unknown command '%1'</source>
        <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>the output was lost: %1</source>
        <translation>die Ausgabe ging verloren: %1</translation>
    </message>
    <message>
        <source>1 shortcut</source>
        <translation>1 Tastenkürzel</translation>
    </message>
    <message>
        <source>(disabled)</source>
        <translation>(nicht verfügbar)</translation>
    </message>
    <message>
        <source>clicked %1, typed %2, clicks replaced by typing %3</source>
        <translation>%1-mal geklickt, %2-mal getippt, %3 Klicks durch Tippen ersetzt</translation>
    </message>
    <message>
        <source>learned</source>
        <translation>gelernt</translation>
    </message>
    <message>
        <source>clicked %1</source>
        <translation>geklickt %1</translation>
    </message>
    <message>
        <source>typed %1</source>
        <translation>getippt %1</translation>
    </message>
    <message>
        <source>there is no running instance</source>
        <translation>das Programm läuft nicht</translation>
    </message>
    <message>
        <source>the running instance does not answer</source>
        <translation>das laufende Programm antwortet nicht</translation>
    </message>
    <message>
        <source>the session cannot be reached; see quillon doctor</source>
        <translation>die Sitzung ist nicht erreichbar; siehe quillon doctor</translation>
    </message>
    <message>
        <source>process %1 is no application that shares its menus; see quillon apps</source>
        <translation>Prozess %1 ist keine Anwendung, die ihre Menüs freigibt; siehe quillon apps</translation>
    </message>
    <message>
        <source>no running application is called '%1'; see quillon apps</source>
        <translation>keine laufende Anwendung heißt „%1“; siehe quillon apps</translation>
    </message>
    <message>
        <source>no application is in front; name one with --app, see quillon apps</source>
        <translation>keine Anwendung ist im Vordergrund; nennen Sie eine mit --app, siehe quillon apps</translation>
    </message>
    <message>
        <source>%1 does not answer; try again when it does</source>
        <translation>%1 antwortet nicht; versuchen Sie es wieder, wenn es antwortet</translation>
    </message>
    <message>
        <source>%1 shares no menu shortcuts; if it was started before accessibility was on, restart it</source>
        <translation>%1 gibt keine Menü-Tastenkürzel frei; wurde es vor dem Einschalten der Barrierefreiheit gestartet, starten Sie es neu</translation>
    </message>
    <message>
        <source>%1 stopped answering; the sheet is not complete</source>
        <translation>%1 antwortet nicht mehr; die Übersicht ist unvollständig</translation>
    </message>
    <message>
        <source>%1 has more menu items than are read</source>
        <translation>%1 hat mehr Menüeinträge, als gelesen werden</translation>
    </message>
    <message>
        <source>no shortcut of %1 matches '%2'</source>
        <translation>kein Tastenkürzel von %1 passt zu „%2“</translation>
    </message>
    <message>
        <source>there is no home folder that could hold anything; set HOME</source>
        <translation>es gibt keinen persönlichen Ordner, der etwas enthalten könnte; setzen Sie HOME</translation>
    </message>
    <message>
        <source>nothing was counted of an application called '%1'</source>
        <translation>von einer Anwendung namens „%1“ wurde nichts gezählt</translation>
    </message>
    <message>
        <source>nothing was counted yet</source>
        <translation>es wurde noch nichts gezählt</translation>
    </message>
    <message>
        <source>there is no session bus; run this inside of a desktop session</source>
        <translation>es gibt keinen Sitzungsbus; führen Sie dies in einer grafischen Sitzung aus</translation>
    </message>
    <message>
        <source>the session bus does not answer; see quillon doctor</source>
        <translation>der Sitzungsbus antwortet nicht; siehe quillon doctor</translation>
    </message>
    <message>
        <source>the accessibility bus cannot be reached; install at-spi2-core and log in again</source>
        <translation>der Bus der Barrierefreiheit ist nicht erreichbar; installieren Sie at-spi2-core und melden Sie sich neu an</translation>
    </message>
    <message>
        <source>accessibility is off; choose “Allow Accessibility…” in Quillon’s menu</source>
        <translation>die Barrierefreiheit ist ausgeschaltet; wählen Sie „Barrierefreiheit erlauben …“ in Quillons Menü</translation>
    </message>
    <message>
        <source>the session bus cannot be reached; menus cannot be read, see quillon doctor</source>
        <translation>der Sitzungsbus ist nicht erreichbar; Menüs können nicht gelesen werden, siehe quillon doctor</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 Tastenkürzel</numerusform><numerusform>%1 Tastenkürzel</numerusform></translation>
    </message>
    <message>
        <source>Usage: quillon [--verbose] [COMMAND]

Teaches the keyboard shortcuts of the applications you already use. Hold the
trigger key (Super) in any application to see its shortcuts.

Commands:
  (none)      start the program, or bring up the one that runs
  show        open the overlay and keep it open
                --sample          with a made-up drawing application
  practice    open the practice window
                --app NAME        for the application with this id or name
  library     open the library of all shortcuts
  settings    open the settings
  welcome     open the welcome
  sheet       print an application's shortcuts
                --app NAME        the application with this id or name
                --pid N           the application of this process
                --front           the front application (default)
                --query Q         only the shortcuts that match Q
                --format FORMAT   text (default), json, markdown or pdf
                --output FILE     of a PDF document; needed unless standard
                                  output goes to a file or another program
                --keys KEYS       symbols (default), or names as they are printed
                                  on the keyboard; JSON is the same with both
                --practice N      a practice round of N commands instead, in the
                                  order in which they are asked
                --seed S          the same round every time
  apps        list the running applications that share their menus
  stats       print what was counted: clicks and typed uses of each command,
              the most clicked first. "learned" are those typed 5 times more
              than clicked; "clicks replaced" are the typed uses of commands
              that were clicked as well
                --app NAME        of the application with this id or name only
                --format FORMAT   text (default) or json
                --keys KEYS       as for sheet
  doctor      say what works on this desktop and how to mend what does not
  quit        end the running program

Options:
  --help      print this text
  --verbose   before the command: tell on standard error what is read, in
              front and shown; never what is typed
  --version   print the version

Exit codes: 0 success, 1 failure, 2 wrong usage, 3 no such application,
4 accessibility is absent or off, 5 the application shares no menu shortcuts.
</source>
        <translation>Aufruf: quillon [--verbose] [BEFEHL]

Bringt Ihnen die Tastenkürzel der Anwendungen bei, die Sie schon benutzen.
Halten Sie in einer Anwendung die Auslösetaste (Super), um sie zu sehen.

Befehle:
  (keiner)    das Programm starten oder das laufende hervorholen
  show        die Übersicht öffnen und offen halten
                --sample          mit einem erfundenen Zeichenprogramm
  practice    das Fenster zum Üben öffnen
                --app NAME        für diese Anwendung (Name oder Kennung)
  library     die Bibliothek aller Tastenkürzel öffnen
  settings    die Einstellungen öffnen
  welcome     die Begrüßung öffnen
  sheet       die Tastenkürzel einer Anwendung ausgeben
                --app NAME        die Anwendung dieses Namens, auch als Kennung
                --pid N           die Anwendung dieses Prozesses
                --front           die Anwendung im Vordergrund (Vorgabe)
                --query Q         nur die Tastenkürzel, die zu Q passen
                --format FORMAT   text (Vorgabe), json, markdown oder pdf
                --output DATEI    eines PDF-Dokuments; nötig, wenn die Ausgabe
                                  nicht in eine Datei oder ein Programm geht
                --keys TASTEN     symbols (Vorgabe: Zeichen) oder names, wie auf
                                  der Tastatur; JSON ist mit beiden gleich
                --practice N      stattdessen eine Übungsrunde von N Befehlen,
                                  geordnet, wie sie gefragt werden
                --seed S          jedes Mal dieselbe Runde
  apps        die laufenden Anwendungen auflisten, die ihre Menüs freigeben
  stats       ausgeben, was gezählt wurde: Klicks und Tippen je Befehl, die am
              meisten geklickten zuerst. „gelernt“ sind solche, die 5-mal öfter
              getippt als geklickt wurden; „ersetzt“ zählt, wie oft Befehle
              getippt wurden, die auch geklickt wurden
                --app NAME        nur die Anwendung mit diesem Namen (Kennung)
                --format FORMAT   text (Vorgabe) oder json
                --keys TASTEN     wie bei sheet
  doctor      sagen, was auf diesem Desktop geht und wie der Rest zu beheben ist
  quit        das laufende Programm beenden

Optionen:
  --help      diesen Text ausgeben
  --verbose   vor dem Befehl: auf der Fehlerausgabe sagen, was gelesen wird,
              vorn ist und gezeigt wird; nie, was getippt wird
  --version   die Version ausgeben

Rückgabewerte: 0 Erfolg, 1 Fehler, 2 falscher Aufruf, 3 keine solche Anwendung,
4 Barrierefreiheit fehlt oder ist aus, 5 keine Menü-Tastenkürzel freigegeben.
</translation>
    </message>
    <message>
        <source>the shortcuts of an application called '%1' have not been read yet</source>
        <translation>die Tastenkürzel einer Anwendung namens „%1“ wurden noch nicht gelesen</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>limited</source>
        <translation>begrenzt</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Learned data</source>
        <translation>Gelerntes</translation>
    </message>
    <message>
        <source>Quillon keeps it as it was and began a new one. Mend it and put it back while Quillon does not run, or remove it.</source>
        <translation>Quillon bewahrt die Datei auf, wie sie war, und hat eine neue begonnen. Reparieren Sie sie und legen Sie sie zurück, während Quillon nicht läuft, oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>Mend or remove it while Quillon does not run; until then it counts as empty.</source>
        <translation>Reparieren oder entfernen Sie die Datei, während Quillon nicht läuft; bis dahin gilt sie als leer.</translation>
    </message>
    <message>
        <source>there is no home folder to keep it in</source>
        <translation>es gibt keinen persönlichen Ordner dafür</translation>
    </message>
    <message>
        <source>Set HOME.</source>
        <translation>Setzen Sie HOME.</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Sitzungsbus</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>takes connections and does not answer</source>
        <translation>nimmt Verbindungen an und antwortet nicht</translation>
    </message>
    <message>
        <source>Log out and in again; every program of this session waits for it.</source>
        <translation>Melden Sie sich ab und wieder an; jedes Programm dieser Sitzung wartet darauf.</translation>
    </message>
    <message>
        <source>cannot be reached</source>
        <translation>ist nicht erreichbar</translation>
    </message>
    <message>
        <source>Start Quillon from a desktop session, or with dbus-run-session.</source>
        <translation>Starten Sie Quillon in einer grafischen Sitzung oder mit dbus-run-session.</translation>
    </message>
    <message>
        <source>Accessibility bus</source>
        <translation>Bus der Barrierefreiheit</translation>
    </message>
    <message>
        <source>Install the package at-spi2-core and log in again.</source>
        <translation>Installieren Sie das Paket at-spi2-core und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>unknown without its bus</source>
        <translation>ohne ihren Bus unbekannt</translation>
    </message>
    <message>
        <source>has no switch on this desktop</source>
        <translation>hat auf diesem Desktop keinen Schalter</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>ist eingeschaltet</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Choose “Allow Accessibility…” in Quillon’s menu, or turn it on in the desktop’s settings; applications already running may have to be restarted.</source>
        <translation>Wählen Sie „Barrierefreiheit erlauben …“ in Quillons Menü oder schalten Sie sie in den Einstellungen des Desktops ein; schon laufende Anwendungen müssen eventuell neu gestartet werden.</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Wayland, with an X server for older applications</source>
        <translation>Wayland, mit einem X-Server für ältere Anwendungen</translation>
    </message>
    <message>
        <source>Holding a key works over X applications only; `quillon show` works everywhere. Log in to an X11 session for the rest.</source>
        <translation>Das Halten einer Taste wirkt nur über X-Anwendungen; `quillon show` wirkt überall. Melden Sie sich für alles andere in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>X11</source>
        <translation>X11</translation>
    </message>
    <message>
        <source>Wayland without an X server</source>
        <translation>Wayland ohne X-Server</translation>
    </message>
    <message>
        <source>Holding a key cannot be noticed; use `quillon show` and `quillon sheet`.</source>
        <translation>Das Halten einer Taste kann nicht bemerkt werden; verwenden Sie `quillon show` und `quillon sheet`.</translation>
    </message>
    <message>
        <source>Start Quillon in a graphical session, or set DISPLAY.</source>
        <translation>Starten Sie Quillon in einer grafischen Sitzung oder setzen Sie DISPLAY.</translation>
    </message>
    <message>
        <source>XInput</source>
        <translation>XInput</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>is older than version 2.2 or absent</source>
        <translation>ist älter als Version 2.2 oder fehlt</translation>
    </message>
    <message>
        <source>Use an X server that offers XInput 2.2; without it a click or a key does not spoil a hold.</source>
        <translation>Verwenden Sie einen X-Server mit XInput 2.2; ohne es bricht kein Klick und keine Taste ein Halten ab.</translation>
    </message>
    <message>
        <source>XKB</source>
        <translation>XKB</translation>
    </message>
    <message>
        <source>is there</source>
        <translation>ist vorhanden</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Use an X server that offers XKB; without it a held key cannot be noticed.</source>
        <translation>Verwenden Sie einen X-Server mit XKB; ohne es kann eine gehaltene Taste nicht bemerkt werden.</translation>
    </message>
    <message>
        <source>SHAPE</source>
        <translation>SHAPE</translation>
    </message>
    <message>
        <source>Panels have square corners without a compositor.</source>
        <translation>Ohne Compositor haben Fenster der Übersicht eckige Ecken.</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Fensterverwaltung</translation>
    </message>
    <message>
        <source>none that tells the active window</source>
        <translation>keine, die das aktive Fenster nennt</translation>
    </message>
    <message>
        <source>Quillon takes the application that has the keyboard; start a window manager for more.</source>
        <translation>Quillon nimmt die Anwendung, die die Tastatur hat; starten Sie für mehr eine Fensterverwaltung.</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>none runs</source>
        <translation>keiner läuft</translation>
    </message>
    <message>
        <source>Panels are cut out without shadows; nothing is lost.</source>
        <translation>Die Übersicht wird ohne Schatten ausgeschnitten; es geht nichts verloren.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Systemleiste</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>es gibt keine</translation>
    </message>
    <message>
        <source>Start quillon again to reach its menu, or use `quillon show` and `quillon quit`.</source>
        <translation>Starten Sie quillon noch einmal, um sein Menü zu erreichen, oder verwenden Sie `quillon show` und `quillon quit`.</translation>
    </message>
    <message>
        <source>GTK 2</source>
        <translation>GTK 2</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Install the package libatk-adaptor, set GTK_MODULES=gail:atk-bridge for the whole session, and start the programs again.</source>
        <translation>Installieren Sie das Paket libatk-adaptor, setzen Sie GTK_MODULES=gail:atk-bridge für die ganze Sitzung und starten Sie die Programme neu.</translation>
    </message>
    <message>
        <source>Front application</source>
        <translation>Anwendung im Vordergrund</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Bring an application's window to the front.</source>
        <translation>Holen Sie das Fenster einer Anwendung in den Vordergrund.</translation>
    </message>
    <message>
        <source>%1 (%2, process %3)</source>
        <translation>%1 (%2, Prozess %3)</translation>
    </message>
    <message>
        <source>Log in to an X11 session for the rest.</source>
        <translation>Melden Sie sich für alles andere in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>Hold watcher</source>
        <translation>Gehaltene Tasten</translation>
    </message>
    <message>
        <source>notices held keys</source>
        <translation>werden bemerkt</translation>
    </message>
    <message>
        <source>notices held keys in X applications only</source>
        <translation>werden nur in X-Anwendungen bemerkt</translation>
    </message>
    <message>
        <source>can notice held keys</source>
        <translation>können bemerkt werden</translation>
    </message>
    <message>
        <source>can notice held keys in X applications only</source>
        <translation>können nur in X-Anwendungen bemerkt werden</translation>
    </message>
    <message>
        <source>does not notice held keys now</source>
        <translation>werden jetzt nicht bemerkt</translation>
    </message>
    <message>
        <source>Start Quillon again.</source>
        <translation>Starten Sie Quillon neu.</translation>
    </message>
    <message>
        <source>held keys are not noticed: there is no X server that tells them</source>
        <translation>werden nicht bemerkt: kein X-Server meldet sie</translation>
    </message>
    <message>
        <source>Use `quillon show`, or log in to an X11 session.</source>
        <translation>Verwenden Sie `quillon show` oder melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: there is no X server with XInput 2.2</source>
        <translation>werden nicht bemerkt: es gibt keinen X-Server mit XInput 2.2</translation>
    </message>
    <message>
        <source>Log in to an X11 session.</source>
        <translation>Melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: menus cannot be read</source>
        <translation>werden nicht bemerkt: Menüs können nicht gelesen werden</translation>
    </message>
    <message>
        <source>See Accessibility above.</source>
        <translation>Siehe Barrierefreiheit weiter oben.</translation>
    </message>
    <message>
        <source>Click watcher</source>
        <translation>Klicks auf Menübefehle</translation>
    </message>
    <message>
        <source>notices clicks on menu commands</source>
        <translation>werden bemerkt</translation>
    </message>
    <message>
        <source>notices clicks on menu commands in X applications only</source>
        <translation>werden nur in X-Anwendungen bemerkt</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands</source>
        <translation>können bemerkt werden</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands in X applications only</source>
        <translation>können nur in X-Anwendungen bemerkt werden</translation>
    </message>
    <message>
        <source>does not notice clicks on menu commands now</source>
        <translation>werden jetzt nicht bemerkt</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have nudgesOn be true in its settings.</source>
        <translation>Erlauben Sie die Barrierefreiheit in Quillons Menü und lassen Sie nudgesOn in seinen Einstellungen true sein.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: there is no X server with XInput 2.2 and XKB</source>
        <translation>werden nicht bemerkt: es gibt keinen X-Server mit XInput 2.2 und XKB</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: the keyboard’s map cannot be read</source>
        <translation>werden nicht bemerkt: die Belegung der Tastatur kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Choose a keyboard layout, such as with `setxkbmap us`.</source>
        <translation>Wählen Sie eine Tastaturbelegung, etwa mit `setxkbmap de`.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: menus cannot be read</source>
        <translation>werden nicht bemerkt: Menüs können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Typed watcher</source>
        <translation>Getippte Tastenkürzel</translation>
    </message>
    <message>
        <source>notices typed shortcuts</source>
        <translation>werden bemerkt</translation>
    </message>
    <message>
        <source>notices typed shortcuts in X applications only</source>
        <translation>werden nur in X-Anwendungen bemerkt</translation>
    </message>
    <message>
        <source>can notice typed shortcuts</source>
        <translation>können bemerkt werden</translation>
    </message>
    <message>
        <source>can notice typed shortcuts in X applications only</source>
        <translation>können nur in X-Anwendungen bemerkt werden</translation>
    </message>
    <message>
        <source>does not notice typed shortcuts now</source>
        <translation>werden jetzt nicht bemerkt</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have countTyped be true in its settings.</source>
        <translation>Erlauben Sie die Barrierefreiheit in Quillons Menü und lassen Sie countTyped in seinen Einstellungen true sein.</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>does not run</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <source>Start it with `quillon`.</source>
        <translation>Starten Sie es mit `quillon`.</translation>
    </message>
    <message>
        <source>shows Quillon’s icon</source>
        <translation>zeigt das Symbol von Quillon</translation>
    </message>
    <message>
        <source>can show Quillon’s icon</source>
        <translation>kann das Symbol von Quillon zeigen</translation>
    </message>
    <message>
        <source>there is one, which does not show Quillon’s icon</source>
        <translation>vorhanden, zeigt aber das Symbol von Quillon nicht</translation>
    </message>
</context>
<context>
    <name>KeyPlaces</name>
    <message>
        <source>%1 is %2, %3 is %4, %5 is %6.</source>
        <translation>%1 ist %2, %3 ist %4, %5 ist %6.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>Ctrl</source>
        <extracomment>Keys are named as they are printed on a keyboard of the language. Behind the name that is shown, parted by |, stand other names by which people may search for the key, in small or large letters.</extracomment>
        <translation>Strg|Steuerung</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt|Umsch|Hochstell</translation>
    </message>
    <message>
        <source>Super|Windows|Win|Meta</source>
        <translation>Super|Windows|Win|Meta</translation>
    </message>
    <message>
        <source>Enter|Return</source>
        <translation>Eingabe|Enter|Return|Eingabetaste</translation>
    </message>
    <message>
        <source>Num Enter|Enter|Keypad Enter</source>
        <translation>Num Eingabe|Eingabe|Enter|Num Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab|Tabulator</translation>
    </message>
    <message>
        <source>Space|Spacebar</source>
        <translation>Leertaste|Leer|Leerzeichen</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste|Rück|Rückschritt</translation>
    </message>
    <message>
        <source>Delete|Del</source>
        <translation>Entf|Entfernen</translation>
    </message>
    <message>
        <source>Esc|Escape</source>
        <translation>Esc|Escape</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>←|Left|Left Arrow</source>
        <translation>←|Links|Pfeil links|Pfeil nach links</translation>
    </message>
    <message>
        <source>→|Right|Right Arrow</source>
        <translation>→|Rechts|Pfeil rechts|Pfeil nach rechts</translation>
    </message>
    <message>
        <source>↑|Up|Up Arrow</source>
        <translation>↑|Hoch|Auf|Pfeil hoch|Pfeil auf|Pfeil nach oben</translation>
    </message>
    <message>
        <source>↓|Down|Down Arrow</source>
        <translation>↓|Runter|Ab|Pfeil runter|Pfeil ab|Pfeil nach unten</translation>
    </message>
    <message>
        <source>Page Up|PgUp</source>
        <translation>Bild auf|Bild hoch|Bild ↑</translation>
    </message>
    <message>
        <source>Page Down|PgDn|PgDown</source>
        <translation>Bild ab|Bild runter|Bild ↓</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1|Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Schrägstrich</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Strichpunkt</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Hochkomma</translation>
    </message>
    <message>
        <source>Left Bracket</source>
        <translation>Eckige Klammer auf</translation>
    </message>
    <message>
        <source>Right Bracket</source>
        <translation>Eckige Klammer zu</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Umgekehrter Schrägstrich</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Gravis</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Question Mark</source>
        <translation>Fragezeichen</translation>
    </message>
</context>
<context>
    <name>Learned</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>What you learned</source>
        <translation>Was Sie gelernt haben</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Getippt</translation>
    </message>
    <message>
        <source>Clicked</source>
        <translation>Geklickt</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the names of months.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day under a chart, short: d is the day and MMM the month's short name.</extracomment>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>Week of %1: %2 clicked, %3 typed.</source>
        <translation>Woche ab %1: %2 geklickt, %3 getippt.</translation>
    </message>
    <message>
        <source>No shortcut has graduated yet. One does once you’ve typed it %1 times more than you’ve clicked it.</source>
        <translation>Noch sitzt kein Tastenkürzel. Eines sitzt, sobald Sie es %1-mal öfter getippt als angeklickt haben.</translation>
    </message>
    <message>
        <source>Graduated (%1): %2</source>
        <translation>Sitzen (%1): %2</translation>
    </message>
    <message>
        <source>About %1 saved: %2 typed × %3 s, which two pointings and two clicks in a menu take longer than two keys.</source>
        <translation>Etwa %1 gespart: %2 getippt × %3 s, um die zweimal Zeigen und Klicken im Menü länger dauert als zwei Tasten.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>last year</source>
        <translation>letztes Jahr</translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation><numerusform>vor %1 Jahr</numerusform><numerusform>vor %1 Jahren</numerusform></translation>
    </message>
    <message>
        <source>last month</source>
        <translation>letzten Monat</translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation><numerusform>vor %1 Monat</numerusform><numerusform>vor %1 Monaten</numerusform></translation>
    </message>
    <message>
        <source>last week</source>
        <translation>letzte Woche</translation>
    </message>
    <message numerus="yes">
        <source>%1 weeks ago</source>
        <translation><numerusform>vor %1 Woche</numerusform><numerusform>vor %1 Wochen</numerusform></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation><numerusform>vor %1 Tag</numerusform><numerusform>vor %1 Tagen</numerusform></translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>vor 1 Stunde</translation>
    </message>
    <message numerus="yes">
        <source>%1 hours ago</source>
        <translation><numerusform>vor %1 Stunde</numerusform><numerusform>vor %1 Stunden</numerusform></translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>vor 1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes ago</source>
        <translation><numerusform>vor %1 Minute</numerusform><numerusform>vor %1 Minuten</numerusform></translation>
    </message>
    <message>
        <source>1 second ago</source>
        <translation>vor 1 Sekunde</translation>
    </message>
    <message numerus="yes">
        <source>%1 seconds ago</source>
        <translation><numerusform>vor %1 Sekunde</numerusform><numerusform>vor %1 Sekunden</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Tastenkürzel suchen</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Shortcuts of %1</source>
        <translation>Tastenkürzel von %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 Tastenkürzel</numerusform><numerusform>%1 Tastenkürzel</numerusform></translation>
    </message>
    <message>
        <source>now</source>
        <translation>gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts · menus read %2</source>
        <translation><numerusform>%1 Tastenkürzel · Menüs gelesen: %2</numerusform><numerusform>%1 Tastenkürzel · Menüs gelesen: %2</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 menu clicks</source>
        <translation><numerusform>%1 Klick im Menü</numerusform><numerusform>%1 Klicks im Menü</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts typed</source>
        <translation><numerusform>%1 Tastenkürzel getippt</numerusform><numerusform>%1 Tastenkürzel getippt</numerusform></translation>
    </message>
    <message>
        <source>Learn these next</source>
        <translation>Als Nächstes lernen</translation>
    </message>
    <message>
        <source>%1 clicked · %2 typed</source>
        <translation>%1 geklickt · %2 getippt</translation>
    </message>
    <message>
        <source>No apps yet</source>
        <translation>Noch keine Anwendungen</translation>
    </message>
    <message>
        <source>Hold %1 in any app; its shortcuts show up here.</source>
        <translation>Halten Sie %1 in einer Anwendung; ihre Tastenkürzel erscheinen hier.</translation>
    </message>
    <message>
        <source>Pick an app</source>
        <translation>Anwendung auswählen</translation>
    </message>
    <message>
        <source>Pin to the top of the overlay and cheat sheet</source>
        <translation>Oben in Übersicht und Spickzettel anheften</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Nicht mehr anheften</translation>
    </message>
    <message>
        <source>Add a note</source>
        <translation>Notiz hinzufügen</translation>
    </message>
    <message>
        <source>Nudge me when I click this in the menu</source>
        <translation>Hinweisen, wenn ich das im Menü anklicke</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>%1 anheften</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>%1 nicht mehr anheften</translation>
    </message>
    <message>
        <source>Note for %1</source>
        <translation>Notiz zu %1</translation>
    </message>
    <message>
        <source>Turn nudges off for %1</source>
        <translation>Hinweise zu %1 ausschalten</translation>
    </message>
    <message>
        <source>Turn nudges on for %1</source>
        <translation>Hinweise zu %1 einschalten</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>angeheftet</translation>
    </message>
    <message>
        <source>nudges off</source>
        <translation>keine Hinweise</translation>
    </message>
    <message>
        <source>A note to remember it by</source>
        <translation>Eine Notiz als Eselsbrücke</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Üben</translation>
    </message>
    <message>
        <source>Drill this app’s shortcuts, weighted to the ones you click</source>
        <translation>Die Tastenkürzel dieser Anwendung üben, am meisten die, die Sie anklicken</translation>
    </message>
    <message>
        <source>Cheat Sheet</source>
        <translation>Spickzettel</translation>
    </message>
    <message>
        <source>A printable cheat sheet of these shortcuts, pinned first, with your notes</source>
        <translation>Ein Spickzettel dieser Tastenkürzel zum Drucken, Angeheftetes zuerst, mit Ihren Notizen</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF sichern …</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Copy as Markdown</source>
        <translation>Als Markdown kopieren</translation>
    </message>
    <message>
        <source>PDF documents (%1)</source>
        <translation>PDF-Dokumente (%1)</translation>
    </message>
    <message>
        <source>Couldn’t make the cheat sheet</source>
        <translation>Der Spickzettel ließ sich nicht erstellen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>%1.%2</source>
        <extracomment>A number with a decimal: %1 is what stands before the decimal mark, %2 what stands behind it.</extracomment>
        <translation>%1,%2</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>Quillon needs Accessibility to read menus</source>
        <translation>Quillon braucht die Barrierefreiheit, um Menüs zu lesen</translation>
    </message>
    <message>
        <source>Allow it once in %1. Nothing leaves your %2.</source>
        <translation>Erlauben Sie sie einmal in %1. Nichts verlässt Ihren %2.</translation>
    </message>
    <message>
        <source>Show Me How</source>
        <translation>Zeigen, wie</translation>
    </message>
    <message>
        <source>Switch to an app, then hold %1</source>
        <translation>Wechseln Sie zu einer Anwendung und halten Sie %1</translation>
    </message>
    <message>
        <source>Reading %1’s menus…</source>
        <translation>Die Menüs von %1 werden gelesen …</translation>
    </message>
    <message>
        <source>No menu shortcuts in %1</source>
        <translation>Keine Menü-Tastenkürzel in %1</translation>
    </message>
    <message>
        <source>Some apps draw their own menus, which %1 doesn’t share.</source>
        <translation>Manche Anwendungen zeichnen eigene Menüs, die %1 nicht weitergibt.</translation>
    </message>
    <message>
        <source>%1 does not answer now.</source>
        <translation>%1 antwortet jetzt nicht.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”</source>
        <translation>Nichts passt zu „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts from its menus</source>
        <translation><numerusform>%1 Tastenkürzel aus den Menüs</numerusform><numerusform>%1 Tastenkürzel aus den Menüs</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 shortcuts</source>
        <translation><numerusform>%1 von %2 Tastenkürzel</numerusform><numerusform>%1 von %2 Tastenkürzeln</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Tastenkürzel suchen</translation>
    </message>
    <message>
        <source>Esc closes</source>
        <translation>Esc schließt</translation>
    </message>
    <message>
        <source>Let go of %1 to close · click to keep it open</source>
        <translation>%1 loslassen schließt · ein Klick hält offen</translation>
    </message>
    <message>
        <source>You click this one most:</source>
        <translation>Das klicken Sie am häufigsten:</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message numerus="yes">
        <source>clicked %1 times</source>
        <translation><numerusform>%1-mal geklickt</numerusform><numerusform>%1-mal geklickt</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>You clicked this in the menu %1 times</source>
        <translation><numerusform>Sie haben das %1-mal im Menü geklickt</numerusform><numerusform>Sie haben das %1-mal im Menü geklickt</numerusform></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Nicht mehr anheften</translation>
    </message>
    <message>
        <source>Open in Library</source>
        <translation>In der Bibliothek öffnen</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Shortcuts for %1</source>
        <translation>Tastenkürzel von %1</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>Practice</name>
    <message>
        <source>Practice</source>
        <translation>Üben</translation>
    </message>
    <message>
        <source>App to practise</source>
        <translation>Anwendung zum Üben</translation>
    </message>
    <message>
        <source>Press New Round.</source>
        <translation>Drücken Sie „Neue Runde“.</translation>
    </message>
    <message>
        <source>New Round</source>
        <translation>Neue Runde</translation>
    </message>
    <message>
        <source>%1 has no shortcuts to practise.</source>
        <translation>%1 hat keine Tastenkürzel zum Üben.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Press the shortcut</source>
        <translation>Drücken Sie das Tastenkürzel</translation>
    </message>
    <message>
        <source>Show Answer</source>
        <translation>Antwort zeigen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Richtig</translation>
    </message>
    <message>
        <source>You pressed %1</source>
        <translation>Gedrückt: %1</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>See Results</source>
        <translation>Ergebnis ansehen</translation>
    </message>
    <message>
        <source>%1 of %2 right</source>
        <translation>%1 von %2 richtig</translation>
    </message>
    <message>
        <source>These come up more next time:</source>
        <translation>Diese kommen nächstes Mal öfter:</translation>
    </message>
    <message>
        <source>A clean round. The next one leans on whatever you click next.</source>
        <translation>Alles richtig. Die nächste Runde richtet sich nach dem, was Sie als Nächstes anklicken.</translation>
    </message>
    <message>
        <source>Another Round</source>
        <translation>Noch eine Runde</translation>
    </message>
    <message>
        <source>No apps to practise yet</source>
        <translation>Noch keine Anwendungen zum Üben</translation>
    </message>
    <message>
        <source>Hold %1 in an app first, so Quillon can read its shortcuts.</source>
        <translation>Halten Sie erst %1 in einer Anwendung, damit Quillon deren Tastenkürzel lesen kann.</translation>
    </message>
    <message>
        <source>Every key comes here while a question waits. Hold Esc to let go.</source>
        <translation>Jede Taste gehört hierher, solange eine Frage wartet. Mit gehaltener Esc-Taste geben Sie die Tastatur frei.</translation>
    </message>
    <message>
        <source>The keyboard is free: your desktop’s own keys work again.</source>
        <translation>Die Tastatur ist frei: Die Tasten Ihres Desktops wirken wieder.</translation>
    </message>
    <message>
        <source>This desktop does not tell Quillon which keys are pressed.</source>
        <translation>Dieser Desktop teilt Quillon nicht mit, welche Tasten gedrückt werden.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Keyboard, lit: %1</source>
        <translation>Tastatur, beleuchtet: %1</translation>
    </message>
    <message>
        <source>%1, in %2. %3</source>
        <translation>%1, in %2. %3</translation>
    </message>
    <message>
        <source>%1. The shortcut is %2.</source>
        <translation>%1. Das Tastenkürzel ist %2.</translation>
    </message>
</context>
<context>
    <name>SearchBox</name>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Coach</source>
        <translation>Trainer</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Hold this key</source>
        <translation>Diese Taste halten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Using the key in a shortcut (%1-click) never opens the overlay.</source>
        <translation>Wird die Taste in einem Tastenkürzel benutzt (%1-Klick), öffnet sich die Übersicht nie.</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Ihr Desktop öffnet seinen Starter, wenn %1 allein gedrückt wird; Halten bewirkt dann vielleicht beides.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Stattdessen %1 verwenden</translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation>Haltedauer</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show keys as</source>
        <translation>Tasten zeigen als</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Mit der Sitzung starten</translation>
    </message>
    <message>
        <source>The start with the session could not be changed: your configuration folder cannot be written to. Allow that, then try again.</source>
        <translation>Der Start mit der Sitzung konnte nicht geändert werden: In Ihren Konfigurationsordner kann nicht geschrieben werden. Erlauben Sie das und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Nudge me when I click a menu command that has a shortcut</source>
        <translation>Hinweisen, wenn ich einen Menübefehl mit Tastenkürzel anklicke</translation>
    </message>
    <message>
        <source>Count the shortcuts I type (to know which ones I already use)</source>
        <translation>Getippte Tastenkürzel zählen (um zu wissen, welche ich schon benutze)</translation>
    </message>
    <message numerus="yes">
        <source>Counting looks only at key presses with %1 or %2 and compares them with the front app’s menu shortcuts. Quillon never records what you type. A shortcut stops being nudged once you’ve typed it %3 times more than you’ve clicked it; you can also mute any one in the Library.</source>
        <translation><numerusform>Gezählt werden nur Tastendrücke mit %1 oder %2, verglichen mit den Menü-Tastenkürzeln der vorderen Anwendung. Quillon zeichnet nie auf, was Sie tippen. Auf ein Tastenkürzel wird nicht mehr hingewiesen, sobald Sie es %3-mal öfter getippt als geklickt haben; in der Bibliothek lässt sich auch jedes einzelne stummschalten.</numerusform><numerusform>Gezählt werden nur Tastendrücke mit %1 oder %2, verglichen mit den Menü-Tastenkürzeln der vorderen Anwendung. Quillon zeichnet nie auf, was Sie tippen. Auf ein Tastenkürzel wird nicht mehr hingewiesen, sobald Sie es %3-mal öfter getippt als geklickt haben; in der Bibliothek lässt sich auch jedes einzelne stummschalten.</numerusform></translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. There is no folder for it, so it is forgotten when Quillon quits.</source>
        <translation>Alles, was Quillon lernt, bleibt auf diesem %1: die gelesenen Menüs, wie oft Sie jedes Tastenkürzel klicken oder tippen, Ihre Übungsergebnisse, Angeheftetes und Notizen. Es gibt keinen Ordner dafür, darum ist es vergessen, wenn Quillon endet.</translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. They’re plain files in %2.</source>
        <translation>Alles, was Quillon lernt, bleibt auf diesem %1: die gelesenen Menüs, wie oft Sie jedes Tastenkürzel klicken oder tippen, Ihre Übungsergebnisse, Angeheftetes und Notizen. Es sind einfache Dateien in %2.</translation>
    </message>
    <message>
        <source>Quillon goes online only to look for updates.</source>
        <translation>Quillon geht nur online, um nach Aktualisierungen zu suchen.</translation>
    </message>
    <message>
        <source>Erase Stats, Pins and Notes…</source>
        <translation>Zählungen, Angeheftetes und Notizen löschen …</translation>
    </message>
    <message>
        <source>Erase everything Quillon has learned?</source>
        <translation>Alles löschen, was Quillon gelernt hat?</translation>
    </message>
    <message>
        <source>Your counts, practice results, pins, notes and the menus read so far are deleted. Your settings stay.</source>
        <translation>Ihre Zählungen, Übungsergebnisse, Angeheftetes, Notizen und die bisher gelesenen Menüs werden gelöscht. Ihre Einstellungen bleiben.</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Toast</name>
    <message>
        <source>Next time</source>
        <translation>Nächstes Mal</translation>
    </message>
    <message>
        <source>Next time: %1 for %2</source>
        <translation>Nächstes Mal: %1 für %2</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Allow Accessibility…</source>
        <translation>Barrierefreiheit erlauben …</translation>
    </message>
    <message>
        <source>Show Shortcuts</source>
        <translation>Tastenkürzel zeigen</translation>
    </message>
    <message>
        <source>Show Shortcuts for %1</source>
        <translation>Tastenkürzel von %1 zeigen</translation>
    </message>
    <message>
        <source>Or hold %1 in any app</source>
        <translation>Oder %1 in einer Anwendung halten</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Quillon beenden</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Üben</translation>
    </message>
    <message>
        <source>Library…</source>
        <translation>Bibliothek …</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Sie sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version. %1 checks for updates on its own and will let you know when there’s a new one.</source>
        <translation>%1 %2 ist die neueste Version. %1 sucht von selbst nach Aktualisierungen und sagt Bescheid, wenn es eine neue gibt.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Die Suche nach Aktualisierungen ist gescheitert</translation>
    </message>
    <message>
        <source>Check your internet connection and try again. %1 also checks on its own about once a day.</source>
        <translation>Prüfen Sie Ihre Internetverbindung und versuchen Sie es noch einmal. %1 sucht auch von selbst etwa einmal am Tag.</translation>
    </message>
    <message>
        <source>What was received is no list of releases. Try again later, or in another network. %1 also checks on its own about once a day.</source>
        <translation>Was empfangen wurde, ist keine Liste von Versionen. Versuchen Sie es später oder in einem anderen Netz noch einmal. %1 sucht auch von selbst etwa einmal am Tag.</translation>
    </message>
    <message>
        <source>Updates come with your system’s software</source>
        <translation>Aktualisierungen kommen mit der Software Ihres Systems</translation>
    </message>
    <message>
        <source>%1 %2 does not look for updates by itself. A newer version comes the way this one came, as a rule with the updates of your system.</source>
        <translation>%1 %2 sucht nicht selbst nach Aktualisierungen. Eine neuere Version kommt auf demselben Weg wie diese, in der Regel mit den Aktualisierungen Ihres Systems.</translation>
    </message>
    <message>
        <source>%1 %2 is available</source>
        <translation>%1 %2 ist verfügbar</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Sie haben Version %1.</translation>
    </message>
    <message>
        <source>Couldn’t open the page</source>
        <translation>Die Seite konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Open this address in a browser: %1</source>
        <translation>Öffnen Sie diese Adresse in einem Browser: %1</translation>
    </message>
    <message>
        <source>Couldn’t open the software centre</source>
        <translation>Die Softwareverwaltung konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Open it from your desktop’s menu and look for %1 there.</source>
        <translation>Öffnen Sie sie aus dem Menü Ihres Desktops und suchen Sie dort %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Softwareverwaltung öffnen</translation>
    </message>
    <message>
        <source>Read Release Notes</source>
        <translation>Versionshinweise lesen</translation>
    </message>
    <message>
        <source>What is new in %1 %2</source>
        <translation>Neu in %1 %2</translation>
    </message>
</context>
<context>
    <name>Vocabulary</name>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>macOS</source>
        <translation>macOS</translation>
    </message>
    <message>
        <source>System Settings &gt; Privacy &amp; Security &gt; Accessibility</source>
        <translation>Systemeinstellungen &gt; Datenschutz &amp; Sicherheit &gt; Bedienungshilfen</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Library folder</source>
        <translation>Library-Ordner</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>your desktop’s accessibility settings</source>
        <translation>den Einstellungen Ihres Desktops zur Barrierefreiheit</translation>
    </message>
    <message>
        <source>Your desktop</source>
        <translation>Ihr Desktop</translation>
    </message>
    <message>
        <source>its accessibility settings or in this window</source>
        <translation>dessen Einstellungen zur Barrierefreiheit oder in diesem Fenster</translation>
    </message>
    <message>
        <source>accessibility</source>
        <translation>die Barrierefreiheit</translation>
    </message>
    <message>
        <source>data folder</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>the Super or Windows key</source>
        <translation>die Super- oder Windows-Taste</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Willkommen bei Quillon</translation>
    </message>
    <message>
        <source>Learn the shortcuts of the apps you already use.</source>
        <translation>Lernen Sie die Tastenkürzel der Anwendungen, die Sie schon benutzen.</translation>
    </message>
    <message>
        <source>Allow Accessibility</source>
        <translation>Barrierefreiheit erlauben</translation>
    </message>
    <message>
        <source>Quillon reads the front app’s menus to find their shortcuts. %1 asks you to allow this once in %2. Turn on %3 there; this window notices by itself.</source>
        <translation>Quillon liest die Menüs der vorderen Anwendung, um deren Tastenkürzel zu finden. %1 bittet Sie, dies einmal in %2 zu erlauben. Schalten Sie dort %3 ein; dieses Fenster bemerkt es von selbst.</translation>
    </message>
    <message>
        <source>Allow Accessibility…</source>
        <translation>Barrierefreiheit erlauben …</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Hold %1 in any app</source>
        <translation>%1 in einer Anwendung halten</translation>
    </message>
    <message>
        <source>Keep the %1 key (%2) down for a moment and that app’s shortcuts appear, grouped by menu. Let go to close it, or click it to keep it open and search. No other permission is needed for this.</source>
        <translation>Halten Sie die Taste „%1“ (%2) einen Moment gedrückt, und die Tastenkürzel der Anwendung erscheinen, nach Menüs geordnet. Loslassen schließt die Übersicht, ein Klick hält sie zum Suchen offen. Eine weitere Erlaubnis ist dafür nicht nötig.</translation>
    </message>
    <message>
        <source>Nothing leaves your %1</source>
        <translation>Nichts verlässt Ihren %1</translation>
    </message>
    <message>
        <source>Menus, counts, pins and notes stay in your %1. Quillon only notices shortcuts and menu clicks (never what you type) and goes online only to look for updates.</source>
        <translation>Menüs, Zählungen, Angeheftetes und Notizen bleiben in Ihrem %1. Quillon bemerkt nur Tastenkürzel und Klicks in Menüs (nie, was Sie tippen) und geht nur online, um nach Aktualisierungen zu suchen.</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Schritt %1</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Schritt %1, erledigt</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Ihr Desktop öffnet seinen Starter, wenn %1 allein gedrückt wird; Halten bewirkt dann vielleicht beides.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Stattdessen %1 verwenden</translation>
    </message>
    <message>
        <source>To show the shortcuts of what was open before, quit it and start it again: %1</source>
        <translation>Um die Tastenkürzel von schon Geöffnetem zu zeigen, beenden und starten Sie es neu: %1</translation>
    </message>
    <message>
        <source>This desktop shows no tray icons. To reach Quillon, start it again from your list of apps: that opens its menu, and a right click there offers its windows. In a terminal, “quillon show” opens the overlay and “quillon --help” names the rest.</source>
        <translation>Dieser Desktop zeigt keine Symbole in einer Systemleiste. Um Quillon zu erreichen, starten Sie es noch einmal aus der Liste der Anwendungen: Das öffnet sein Menü, und ein Rechtsklick dort bietet seine Fenster an. In einem Terminal öffnet „quillon show“ die Übersicht, und „quillon --help“ nennt das Übrige.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Willkommen bei Quillon</translation>
    </message>
    <message>
        <source>Quillon Library</source>
        <translation>Quillon-Bibliothek</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Üben</translation>
    </message>
    <message>
        <source>Quillon Settings</source>
        <translation>Quillon-Einstellungen</translation>
    </message>
</context>
</TS>
