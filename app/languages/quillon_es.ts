<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CheatSheet</name>
    <message>
        <source>%1 Shortcuts</source>
        <translation>Atajos de %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 atajo</numerusform><numerusform>%1 atajos</numerusform></translation>
    </message>
    <message>
        <source>%1 Command  %2 Option  %3 Control  %4 Shift</source>
        <translation>%1 Comando  %2 Opción  %3 Control  %4 Mayúsculas</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fijados</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuación)</translation>
    </message>
    <message>
        <source>Made with Quillon</source>
        <translation>Hecho con Quillon</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The PDF document cannot be written.</source>
        <translation>No se puede escribir el documento PDF.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>There are no shortcuts to print.</source>
        <translation>No hay atajos que imprimir.</translation>
    </message>
    <message>
        <source>The printer does not take the pages. Check that it is set up and on.</source>
        <translation>La impresora no acepta las páginas. Compruebe que está configurada y encendida.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1; see quillon --help</source>
        <translation>%1; consulte quillon --help</translation>
    </message>
    <message>
        <source>unexpected argument '%1'</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>--keys is symbols or names, not '%1'</source>
        <translation>--keys es symbols o names, no «%1»</translation>
    </message>
    <message>
        <source>--seed needs --practice</source>
        <translation>--seed necesita --practice</translation>
    </message>
    <message>
        <source>--practice is printed as text or json</source>
        <translation>--practice se muestra como text o json</translation>
    </message>
    <message>
        <source>--practice takes a positive number, not '%1'</source>
        <translation>--practice toma un número positivo, no «%1»</translation>
    </message>
    <message>
        <source>--seed takes a number from 0 to 2^64-1, not '%1'</source>
        <translation>--seed toma un número de 0 a 2^64-1, no «%1»</translation>
    </message>
    <message>
        <source>--app, --pid and --front exclude each other</source>
        <translation>--app, --pid y --front se excluyen entre sí</translation>
    </message>
    <message>
        <source>--pid takes a process number, not '%1'</source>
        <translation>--pid toma un número de proceso, no «%1»</translation>
    </message>
    <message>
        <source>--format is text, json, markdown or pdf, not '%1'</source>
        <translation>--format es text, json, markdown o pdf, no «%1»</translation>
    </message>
    <message>
        <source>--output needs --format pdf</source>
        <translation>--output necesita --format pdf</translation>
    </message>
    <message>
        <source>--output takes the name of a file</source>
        <translation>--output toma el nombre de un archivo</translation>
    </message>
    <message>
        <source>a PDF document is not for the terminal; name a file with --output</source>
        <translation>un documento PDF no es para el terminal; indique un archivo con --output</translation>
    </message>
    <message>
        <source>--format is text or json, not '%1'</source>
        <translation>--format es text o json, no «%1»</translation>
    </message>
    <message>
        <source>unknown command '%1'</source>
        <translation>orden desconocida «%1»</translation>
    </message>
    <message>
        <source>the output was lost: %1</source>
        <translation>se perdió la salida: %1</translation>
    </message>
    <message>
        <source>1 shortcut</source>
        <translation>1 atajo</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 atajo</numerusform><numerusform>%1 atajos</numerusform></translation>
    </message>
    <message>
        <source>(disabled)</source>
        <translation>(no disponible)</translation>
    </message>
    <message>
        <source>clicked %1, typed %2, clicks replaced by typing %3</source>
        <translation>clics: %1, tecleos: %2, clics sustituidos por tecleo: %3</translation>
    </message>
    <message>
        <source>learned</source>
        <translation>aprendido</translation>
    </message>
    <message>
        <source>clicked %1</source>
        <translation>clics %1</translation>
    </message>
    <message>
        <source>typed %1</source>
        <translation>tecleos %1</translation>
    </message>
    <message>
        <source>there is no running instance</source>
        <translation>el programa no está en marcha</translation>
    </message>
    <message>
        <source>the running instance does not answer</source>
        <translation>el programa en marcha no responde</translation>
    </message>
    <message>
        <source>the session cannot be reached; see quillon doctor</source>
        <translation>no se puede acceder a la sesión; consulte quillon doctor</translation>
    </message>
    <message>
        <source>process %1 is no application that shares its menus; see quillon apps</source>
        <translation>el proceso %1 no es una aplicación que comparta sus menús; consulte quillon apps</translation>
    </message>
    <message>
        <source>no running application is called '%1'; see quillon apps</source>
        <translation>ninguna aplicación en marcha se llama «%1»; consulte quillon apps</translation>
    </message>
    <message>
        <source>no application is in front; name one with --app, see quillon apps</source>
        <translation>no hay ninguna aplicación en primer plano; indique una con --app, consulte quillon apps</translation>
    </message>
    <message>
        <source>%1 does not answer; try again when it does</source>
        <translation>%1 no responde; vuelva a intentarlo cuando lo haga</translation>
    </message>
    <message>
        <source>%1 shares no menu shortcuts; if it was started before accessibility was on, restart it</source>
        <translation>%1 no comparte atajos de menú; si se inició antes de activar la accesibilidad, reinícielo</translation>
    </message>
    <message>
        <source>%1 stopped answering; the sheet is not complete</source>
        <translation>%1 dejó de responder; la lista está incompleta</translation>
    </message>
    <message>
        <source>%1 has more menu items than are read</source>
        <translation>%1 tiene más elementos de menú de los que se leen</translation>
    </message>
    <message>
        <source>no shortcut of %1 matches '%2'</source>
        <translation>ningún atajo de %1 coincide con «%2»</translation>
    </message>
    <message>
        <source>there is no home folder that could hold anything; set HOME</source>
        <translation>no hay carpeta personal que pueda contener nada; defina HOME</translation>
    </message>
    <message>
        <source>nothing was counted of an application called '%1'</source>
        <translation>no se contó nada de una aplicación llamada «%1»</translation>
    </message>
    <message>
        <source>nothing was counted yet</source>
        <translation>todavía no se ha contado nada</translation>
    </message>
    <message>
        <source>there is no session bus; run this inside of a desktop session</source>
        <translation>no hay bus de sesión; ejecute esto dentro de una sesión gráfica</translation>
    </message>
    <message>
        <source>the session bus does not answer; see quillon doctor</source>
        <translation>el bus de sesión no responde; consulte quillon doctor</translation>
    </message>
    <message>
        <source>the accessibility bus cannot be reached; install at-spi2-core and log in again</source>
        <translation>no se puede acceder al bus de accesibilidad; instale at-spi2-core y vuelva a iniciar sesión</translation>
    </message>
    <message>
        <source>accessibility is off; choose “Allow Accessibility…” in Quillon’s menu</source>
        <translation>la accesibilidad está desactivada; elija «Permitir accesibilidad…» en el menú de Quillon</translation>
    </message>
    <message>
        <source>the session bus cannot be reached; menus cannot be read, see quillon doctor</source>
        <translation>no se puede acceder al bus de sesión; no se pueden leer los menús, consulte quillon doctor</translation>
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
        <translation>Uso: quillon [--verbose] [ORDEN]

Le enseña los atajos de teclado de las aplicaciones que ya usa. Mantenga
pulsada la tecla de activación (Super) en una aplicación para ver sus atajos.

Órdenes:
  (ninguna)   iniciar el programa, o mostrar el que está en marcha
  show        abrir el panel y mantenerlo abierto
                --sample          con una aplicación de dibujo inventada
  practice    abrir la ventana de práctica
                --app NOMBRE      para esta aplicación (nombre o identificador)
  library     abrir la biblioteca de todos los atajos
  settings    abrir la configuración
  welcome     abrir la bienvenida
  sheet       mostrar los atajos de una aplicación
                --app NOMBRE      la aplicación con este identificador o nombre
                --pid N           la aplicación de este proceso
                --front           la aplicación en primer plano (por omisión)
                --query Q         solo los atajos que coincidan con Q
                --format FORMATO  text (por omisión), json, markdown o pdf
                --output ARCHIVO  de un documento PDF; necesario salvo que la
                                  salida vaya a un archivo o a otro programa
                --keys TECLAS     symbols (por omisión), o names, los nombres
                                  impresos en el teclado; el JSON es el mismo
                --practice N      en su lugar, una ronda de práctica de N
                                  órdenes, en el orden en que se preguntan
                --seed S          la misma ronda cada vez
  apps        listar las aplicaciones en marcha que comparten sus menús
  stats       mostrar lo que se ha contado: clics y tecleos de cada orden, las
              de más clics primero. «aprendido»: tecleadas 5 veces más que
              pulsadas con clics; «sustituidos»: los tecleos de órdenes en las
              que también se hizo clic
                --app NOMBRE      solo de la aplicación con ese nombre
                --format FORMATO  text (por omisión) o json
                --keys TECLAS     como en sheet
  doctor      decir qué funciona en este escritorio y cómo arreglar lo demás
  quit        terminar el programa en marcha

Opciones:
  --help      mostrar este texto
  --verbose   antes de la orden: decir por la salida de errores qué se lee, qué
              está en primer plano y qué se muestra; nunca lo que se teclea
  --version   mostrar la versión

Códigos de salida: 0 éxito, 1 fallo, 2 uso incorrecto, 3 no existe tal
aplicación, 4 accesibilidad ausente o desactivada, 5 no comparte atajos de menú.
</translation>
    </message>
    <message>
        <source>the shortcuts of an application called '%1' have not been read yet</source>
        <translation>los atajos de una aplicación llamada «%1» aún no se han leído</translation>
    </message>
</context>
<context>
    <name>Doctor</name>
    <message>
        <source>ok</source>
        <translation>bien</translation>
    </message>
    <message>
        <source>limited</source>
        <translation>limitado</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>Learned data</source>
        <translation>Datos aprendidos</translation>
    </message>
    <message>
        <source>Quillon keeps it as it was and began a new one. Mend it and put it back while Quillon does not run, or remove it.</source>
        <translation>Quillon lo conserva como estaba y ha empezado uno nuevo. Repárelo y vuelva a ponerlo mientras Quillon no esté en marcha, o elimínelo.</translation>
    </message>
    <message>
        <source>Mend or remove it while Quillon does not run; until then it counts as empty.</source>
        <translation>Repárelo o elimínelo mientras Quillon no esté en marcha; hasta entonces cuenta como vacío.</translation>
    </message>
    <message>
        <source>there is no home folder to keep it in</source>
        <translation>no hay carpeta personal donde guardarlos</translation>
    </message>
    <message>
        <source>Set HOME.</source>
        <translation>Defina HOME.</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de sesión</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>responde</translation>
    </message>
    <message>
        <source>takes connections and does not answer</source>
        <translation>acepta conexiones y no responde</translation>
    </message>
    <message>
        <source>Log out and in again; every program of this session waits for it.</source>
        <translation>Cierre la sesión y vuelva a iniciarla; todos los programas de esta sesión lo esperan.</translation>
    </message>
    <message>
        <source>cannot be reached</source>
        <translation>no está accesible</translation>
    </message>
    <message>
        <source>Start Quillon from a desktop session, or with dbus-run-session.</source>
        <translation>Inicie Quillon desde una sesión gráfica, o con dbus-run-session.</translation>
    </message>
    <message>
        <source>Accessibility bus</source>
        <translation>Bus de accesibilidad</translation>
    </message>
    <message>
        <source>Install the package at-spi2-core and log in again.</source>
        <translation>Instale el paquete at-spi2-core y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>unknown without its bus</source>
        <translation>desconocida sin su bus</translation>
    </message>
    <message>
        <source>has no switch on this desktop</source>
        <translation>no tiene interruptor en este escritorio</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>está activada</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>está desactivada</translation>
    </message>
    <message>
        <source>Choose “Allow Accessibility…” in Quillon’s menu, or turn it on in the desktop’s settings; applications already running may have to be restarted.</source>
        <translation>Elija «Permitir accesibilidad…» en el menú de Quillon, o actívela en la configuración del escritorio; puede que haya que reiniciar las aplicaciones ya en marcha.</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Wayland, with an X server for older applications</source>
        <translation>Wayland, con un servidor X para aplicaciones antiguas</translation>
    </message>
    <message>
        <source>Holding a key works over X applications only; `quillon show` works everywhere. Log in to an X11 session for the rest.</source>
        <translation>Mantener una tecla solo funciona sobre aplicaciones X; `quillon show` funciona en todas partes. Inicie una sesión X11 para lo demás.</translation>
    </message>
    <message>
        <source>X11</source>
        <translation>X11</translation>
    </message>
    <message>
        <source>Wayland without an X server</source>
        <translation>Wayland sin servidor X</translation>
    </message>
    <message>
        <source>Holding a key cannot be noticed; use `quillon show` and `quillon sheet`.</source>
        <translation>No se puede detectar que se mantiene una tecla; use `quillon show` y `quillon sheet`.</translation>
    </message>
    <message>
        <source>Start Quillon in a graphical session, or set DISPLAY.</source>
        <translation>Inicie Quillon en una sesión gráfica, o defina DISPLAY.</translation>
    </message>
    <message>
        <source>XInput</source>
        <translation>XInput</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>versión %1</translation>
    </message>
    <message>
        <source>is older than version 2.2 or absent</source>
        <translation>es anterior a la versión 2.2 o no está</translation>
    </message>
    <message>
        <source>Use an X server that offers XInput 2.2; without it a click or a key does not spoil a hold.</source>
        <translation>Use un servidor X que ofrezca XInput 2.2; sin él, ni un clic ni una tecla interrumpen la pulsación mantenida.</translation>
    </message>
    <message>
        <source>XKB</source>
        <translation>XKB</translation>
    </message>
    <message>
        <source>is there</source>
        <translation>está</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>no está</translation>
    </message>
    <message>
        <source>Use an X server that offers XKB; without it a held key cannot be noticed.</source>
        <translation>Use un servidor X que ofrezca XKB; sin él no se puede detectar una tecla mantenida.</translation>
    </message>
    <message>
        <source>SHAPE</source>
        <translation>SHAPE</translation>
    </message>
    <message>
        <source>Panels have square corners without a compositor.</source>
        <translation>Sin compositor, los paneles tienen esquinas rectas.</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestor de ventanas</translation>
    </message>
    <message>
        <source>none that tells the active window</source>
        <translation>ninguno que indique la ventana activa</translation>
    </message>
    <message>
        <source>Quillon takes the application that has the keyboard; start a window manager for more.</source>
        <translation>Quillon toma la aplicación que tiene el teclado; inicie un gestor de ventanas para más.</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>está en marcha</translation>
    </message>
    <message>
        <source>none runs</source>
        <translation>ninguno en marcha</translation>
    </message>
    <message>
        <source>Panels are cut out without shadows; nothing is lost.</source>
        <translation>Los paneles se recortan sin sombra; no se pierde nada.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja del sistema</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>no hay</translation>
    </message>
    <message>
        <source>Start quillon again to reach its menu, or use `quillon show` and `quillon quit`.</source>
        <translation>Inicie quillon de nuevo para llegar a su menú, o use `quillon show` y `quillon quit`.</translation>
    </message>
    <message>
        <source>GTK 2</source>
        <translation>GTK 2</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>Install the package libatk-adaptor, set GTK_MODULES=gail:atk-bridge for the whole session, and start the programs again.</source>
        <translation>Instale el paquete libatk-adaptor, defina GTK_MODULES=gail:atk-bridge para toda la sesión y reinicie los programas.</translation>
    </message>
    <message>
        <source>Front application</source>
        <translation>Aplicación en primer plano</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Bring an application's window to the front.</source>
        <translation>Traiga al frente la ventana de una aplicación.</translation>
    </message>
    <message>
        <source>%1 (%2, process %3)</source>
        <translation>%1 (%2, proceso %3)</translation>
    </message>
    <message>
        <source>Log in to an X11 session for the rest.</source>
        <translation>Inicie una sesión X11 para lo demás.</translation>
    </message>
    <message>
        <source>Hold watcher</source>
        <translation>Teclas mantenidas</translation>
    </message>
    <message>
        <source>notices held keys</source>
        <translation>se detectan</translation>
    </message>
    <message>
        <source>notices held keys in X applications only</source>
        <translation>solo se detectan en aplicaciones X</translation>
    </message>
    <message>
        <source>can notice held keys</source>
        <translation>se pueden detectar</translation>
    </message>
    <message>
        <source>can notice held keys in X applications only</source>
        <translation>solo se pueden detectar en aplicaciones X</translation>
    </message>
    <message>
        <source>does not notice held keys now</source>
        <translation>no se detectan ahora</translation>
    </message>
    <message>
        <source>Start Quillon again.</source>
        <translation>Vuelva a iniciar Quillon.</translation>
    </message>
    <message>
        <source>held keys are not noticed: there is no X server that tells them</source>
        <translation>no se detectan: ningún servidor X las comunica</translation>
    </message>
    <message>
        <source>Use `quillon show`, or log in to an X11 session.</source>
        <translation>Use `quillon show`, o inicie una sesión X11.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: there is no X server with XInput 2.2</source>
        <translation>no se detectan: no hay servidor X con XInput 2.2</translation>
    </message>
    <message>
        <source>Log in to an X11 session.</source>
        <translation>Inicie una sesión X11.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: menus cannot be read</source>
        <translation>no se detectan: no se pueden leer los menús</translation>
    </message>
    <message>
        <source>See Accessibility above.</source>
        <translation>Consulte Accesibilidad más arriba.</translation>
    </message>
    <message>
        <source>Click watcher</source>
        <translation>Clics en los menús</translation>
    </message>
    <message>
        <source>notices clicks on menu commands</source>
        <translation>se detectan</translation>
    </message>
    <message>
        <source>notices clicks on menu commands in X applications only</source>
        <translation>solo se detectan en aplicaciones X</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands</source>
        <translation>se pueden detectar</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands in X applications only</source>
        <translation>solo se pueden detectar en aplicaciones X</translation>
    </message>
    <message>
        <source>does not notice clicks on menu commands now</source>
        <translation>no se detectan ahora</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have nudgesOn be true in its settings.</source>
        <translation>Permita la accesibilidad en el menú de Quillon y ponga nudgesOn a true en su configuración.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: there is no X server with XInput 2.2 and XKB</source>
        <translation>no se detectan: no hay servidor X con XInput 2.2 y XKB</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: the keyboard’s map cannot be read</source>
        <translation>no se detectan: no se puede leer la distribución del teclado</translation>
    </message>
    <message>
        <source>Choose a keyboard layout, such as with `setxkbmap us`.</source>
        <translation>Elija una distribución de teclado, por ejemplo con `setxkbmap es`.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: menus cannot be read</source>
        <translation>no se detectan: no se pueden leer los menús</translation>
    </message>
    <message>
        <source>Typed watcher</source>
        <translation>Atajos tecleados</translation>
    </message>
    <message>
        <source>notices typed shortcuts</source>
        <translation>se detectan</translation>
    </message>
    <message>
        <source>notices typed shortcuts in X applications only</source>
        <translation>solo se detectan en aplicaciones X</translation>
    </message>
    <message>
        <source>can notice typed shortcuts</source>
        <translation>se pueden detectar</translation>
    </message>
    <message>
        <source>can notice typed shortcuts in X applications only</source>
        <translation>solo se pueden detectar en aplicaciones X</translation>
    </message>
    <message>
        <source>does not notice typed shortcuts now</source>
        <translation>no se detectan ahora</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have countTyped be true in its settings.</source>
        <translation>Permita la accesibilidad en el menú de Quillon y ponga countTyped a true en su configuración.</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>does not run</source>
        <translation>no está en marcha</translation>
    </message>
    <message>
        <source>Start it with `quillon`.</source>
        <translation>Inícielo con `quillon`.</translation>
    </message>
    <message>
        <source>shows Quillon’s icon</source>
        <translation>muestra el icono de Quillon</translation>
    </message>
    <message>
        <source>can show Quillon’s icon</source>
        <translation>puede mostrar el icono de Quillon</translation>
    </message>
    <message>
        <source>there is one, which does not show Quillon’s icon</source>
        <translation>la hay, pero no muestra el icono de Quillon</translation>
    </message>
</context>
<context>
    <name>KeyPlaces</name>
    <message>
        <source>%1 is %2, %3 is %4, %5 is %6.</source>
        <translation>%1 es %2, %3 es %4, %5 es %6.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>Ctrl</source>
        <extracomment>Keys are named as they are printed on a keyboard of the language. Behind the name that is shown, parted by |, stand other names by which people may search for the key, in small or large letters.</extracomment>
        <translation>Ctrl|Control</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús|Mayus|Mayúsculas</translation>
    </message>
    <message>
        <source>Super|Windows|Win|Meta</source>
        <translation>Super|Windows|Win|Meta</translation>
    </message>
    <message>
        <source>Enter|Return</source>
        <translation>Intro|Entrar|Retorno</translation>
    </message>
    <message>
        <source>Num Enter|Enter|Keypad Enter</source>
        <translation>Intro Num|Intro</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab|Tabulador</translation>
    </message>
    <message>
        <source>Space|Spacebar</source>
        <translation>Espacio|Barra espaciadora</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Delete|Del</source>
        <translation>Supr|Suprimir</translation>
    </message>
    <message>
        <source>Esc|Escape</source>
        <translation>Esc|Escape</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear|Borrar</translation>
    </message>
    <message>
        <source>←|Left|Left Arrow</source>
        <translation>←|Izquierda|Flecha izquierda</translation>
    </message>
    <message>
        <source>→|Right|Right Arrow</source>
        <translation>→|Derecha|Flecha derecha</translation>
    </message>
    <message>
        <source>↑|Up|Up Arrow</source>
        <translation>↑|Arriba|Flecha arriba</translation>
    </message>
    <message>
        <source>↓|Down|Down Arrow</source>
        <translation>↓|Abajo|Flecha abajo</translation>
    </message>
    <message>
        <source>Page Up|PgUp</source>
        <translation>Re Pág|RePág|Re Pag|RePag|Retroceder página</translation>
    </message>
    <message>
        <source>Page Down|PgDn|PgDown</source>
        <translation>Av Pág|AvPág|Av Pag|AvPag|Avanzar página</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Expulsar</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Barra</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Apóstrofo</translation>
    </message>
    <message>
        <source>Left Bracket</source>
        <translation>Corchete izquierdo</translation>
    </message>
    <message>
        <source>Right Bracket</source>
        <translation>Corchete derecho</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Barra invertida</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Igual</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Acento grave</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Question Mark</source>
        <translation>Signo de interrogación</translation>
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
        <translation>Lo que ha aprendido</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Con el teclado</translation>
    </message>
    <message>
        <source>Clicked</source>
        <translation>Con el menú</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the names of months.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day under a chart, short: d is the day and MMM the month's short name.</extracomment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>Week of %1: %2 clicked, %3 typed.</source>
        <translation>Semana del %1: %2 con el menú, %3 con el teclado.</translation>
    </message>
    <message>
        <source>No shortcut has graduated yet. One does once you’ve typed it %1 times more than you’ve clicked it.</source>
        <translation>Aún no domina ningún atajo. Domina uno cuando lo ha tecleado %1 veces más de las que ha hecho clic en él.</translation>
    </message>
    <message>
        <source>Graduated (%1): %2</source>
        <translation>Dominados (%1): %2</translation>
    </message>
    <message>
        <source>About %1 saved: %2 typed × %3 s, which two pointings and two clicks in a menu take longer than two keys.</source>
        <translation>Unos %1 ahorrados: %2 tecleados × %3 s, lo que señalar y hacer clic dos veces en un menú tarda más que dos teclas.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>last year</source>
        <translation>el año pasado</translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation><numerusform>hace %1 año</numerusform><numerusform>hace %1 años</numerusform></translation>
    </message>
    <message>
        <source>last month</source>
        <translation>el mes pasado</translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation><numerusform>hace %1 mes</numerusform><numerusform>hace %1 meses</numerusform></translation>
    </message>
    <message>
        <source>last week</source>
        <translation>la semana pasada</translation>
    </message>
    <message numerus="yes">
        <source>%1 weeks ago</source>
        <translation><numerusform>hace %1 semana</numerusform><numerusform>hace %1 semanas</numerusform></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation><numerusform>hace %1 día</numerusform><numerusform>hace %1 días</numerusform></translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>hace 1 hora</translation>
    </message>
    <message numerus="yes">
        <source>%1 hours ago</source>
        <translation><numerusform>hace %1 hora</numerusform><numerusform>hace %1 horas</numerusform></translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>hace 1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes ago</source>
        <translation><numerusform>hace %1 minuto</numerusform><numerusform>hace %1 minutos</numerusform></translation>
    </message>
    <message>
        <source>1 second ago</source>
        <translation>hace 1 segundo</translation>
    </message>
    <message numerus="yes">
        <source>%1 seconds ago</source>
        <translation><numerusform>hace %1 segundo</numerusform><numerusform>hace %1 segundos</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Buscar atajos</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Shortcuts of %1</source>
        <translation>Atajos de %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 atajo</numerusform><numerusform>%1 atajos</numerusform></translation>
    </message>
    <message>
        <source>now</source>
        <translation>ahora mismo</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts · menus read %2</source>
        <translation><numerusform>%1 atajo · menús leídos %2</numerusform><numerusform>%1 atajos · menús leídos %2</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 menu clicks</source>
        <translation><numerusform>%1 clic en los menús</numerusform><numerusform>%1 clics en los menús</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts typed</source>
        <translation><numerusform>%1 atajo tecleado</numerusform><numerusform>%1 atajos tecleados</numerusform></translation>
    </message>
    <message>
        <source>Learn these next</source>
        <translation>Aprenda estos ahora</translation>
    </message>
    <message>
        <source>%1 clicked · %2 typed</source>
        <translation>clics: %1 · teclado: %2</translation>
    </message>
    <message>
        <source>No apps yet</source>
        <translation>Aún no hay aplicaciones</translation>
    </message>
    <message>
        <source>Hold %1 in any app; its shortcuts show up here.</source>
        <translation>Mantenga %1 en cualquier aplicación; sus atajos aparecerán aquí.</translation>
    </message>
    <message>
        <source>Pick an app</source>
        <translation>Elija una aplicación</translation>
    </message>
    <message>
        <source>Pin to the top of the overlay and cheat sheet</source>
        <translation>Fijar al principio del panel y de la chuleta</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Dejar de fijar</translation>
    </message>
    <message>
        <source>Add a note</source>
        <translation>Añadir una nota</translation>
    </message>
    <message>
        <source>Nudge me when I click this in the menu</source>
        <translation>Avisarme cuando haga clic en esto en el menú</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Fijar %1</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>Dejar de fijar %1</translation>
    </message>
    <message>
        <source>Note for %1</source>
        <translation>Nota para %1</translation>
    </message>
    <message>
        <source>Turn nudges off for %1</source>
        <translation>Desactivar los avisos para %1</translation>
    </message>
    <message>
        <source>Turn nudges on for %1</source>
        <translation>Activar los avisos para %1</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>fijado</translation>
    </message>
    <message>
        <source>nudges off</source>
        <translation>sin avisos</translation>
    </message>
    <message>
        <source>A note to remember it by</source>
        <translation>Una nota para recordarlo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>Drill this app’s shortcuts, weighted to the ones you click</source>
        <translation>Practicar los atajos de esta aplicación, sobre todo aquellos en los que hace clic</translation>
    </message>
    <message>
        <source>Cheat Sheet</source>
        <translation>Chuleta</translation>
    </message>
    <message>
        <source>A printable cheat sheet of these shortcuts, pinned first, with your notes</source>
        <translation>Una chuleta imprimible de estos atajos, primero los fijados, con sus notas</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Copy as Markdown</source>
        <translation>Copiar como Markdown</translation>
    </message>
    <message>
        <source>PDF documents (%1)</source>
        <translation>Documentos PDF (%1)</translation>
    </message>
    <message>
        <source>Couldn’t make the cheat sheet</source>
        <translation>No se pudo crear la chuleta</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Quillon necesita la accesibilidad para leer los menús</translation>
    </message>
    <message>
        <source>Allow it once in %1. Nothing leaves your %2.</source>
        <translation>Permítala una vez en %1. Nada sale de su %2.</translation>
    </message>
    <message>
        <source>Show Me How</source>
        <translation>Mostrar cómo</translation>
    </message>
    <message>
        <source>Switch to an app, then hold %1</source>
        <translation>Cambie a una aplicación y mantenga %1</translation>
    </message>
    <message>
        <source>Reading %1’s menus…</source>
        <translation>Leyendo los menús de %1…</translation>
    </message>
    <message>
        <source>No menu shortcuts in %1</source>
        <translation>No hay atajos de menú en %1</translation>
    </message>
    <message>
        <source>Some apps draw their own menus, which %1 doesn’t share.</source>
        <translation>Algunas aplicaciones dibujan sus propios menús, que %1 no comparte.</translation>
    </message>
    <message>
        <source>%1 does not answer now.</source>
        <translation>%1 no responde ahora.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”</source>
        <translation>Nada coincide con «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts from its menus</source>
        <translation><numerusform>%1 atajo de sus menús</numerusform><numerusform>%1 atajos de sus menús</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 shortcuts</source>
        <translation><numerusform>%1 de %2 atajo</numerusform><numerusform>%1 de %2 atajos</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Buscar atajos</translation>
    </message>
    <message>
        <source>Esc closes</source>
        <translation>Esc cierra</translation>
    </message>
    <message>
        <source>Let go of %1 to close · click to keep it open</source>
        <translation>Suelte %1 para cerrar · haga clic para mantenerlo abierto</translation>
    </message>
    <message>
        <source>You click this one most:</source>
        <translation>En este hace más clics:</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fijados</translation>
    </message>
    <message numerus="yes">
        <source>clicked %1 times</source>
        <translation><numerusform>%1 clic</numerusform><numerusform>%1 clics</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>You clicked this in the menu %1 times</source>
        <translation><numerusform>Ha hecho clic en el menú %1 vez</numerusform><numerusform>Ha hecho clic en el menú %1 veces</numerusform></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fijar</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Dejar de fijar</translation>
    </message>
    <message>
        <source>Open in Library</source>
        <translation>Abrir en la biblioteca</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Shortcuts for %1</source>
        <translation>Atajos de %1</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
</context>
<context>
    <name>Practice</name>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>App to practise</source>
        <translation>Aplicación que practicar</translation>
    </message>
    <message>
        <source>Press New Round.</source>
        <translation>Pulse «Nueva ronda».</translation>
    </message>
    <message>
        <source>New Round</source>
        <translation>Nueva ronda</translation>
    </message>
    <message>
        <source>%1 has no shortcuts to practise.</source>
        <translation>%1 no tiene atajos que practicar.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Press the shortcut</source>
        <translation>Pulse el atajo</translation>
    </message>
    <message>
        <source>Show Answer</source>
        <translation>Mostrar la respuesta</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>You pressed %1</source>
        <translation>Ha pulsado %1</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>See Results</source>
        <translation>Ver el resultado</translation>
    </message>
    <message>
        <source>%1 of %2 right</source>
        <translation>%1 de %2 correctas</translation>
    </message>
    <message>
        <source>These come up more next time:</source>
        <translation>Estos saldrán más la próxima vez:</translation>
    </message>
    <message>
        <source>A clean round. The next one leans on whatever you click next.</source>
        <translation>Una ronda perfecta. La siguiente se basará en lo próximo en que haga clic.</translation>
    </message>
    <message>
        <source>Another Round</source>
        <translation>Otra ronda</translation>
    </message>
    <message>
        <source>No apps to practise yet</source>
        <translation>Aún no hay aplicaciones que practicar</translation>
    </message>
    <message>
        <source>Hold %1 in an app first, so Quillon can read its shortcuts.</source>
        <translation>Mantenga primero %1 en una aplicación, para que Quillon pueda leer sus atajos.</translation>
    </message>
    <message>
        <source>Every key comes here while a question waits. Hold Esc to let go.</source>
        <translation>Todas las teclas llegan aquí mientras espera una pregunta. Mantenga Esc para soltarlas.</translation>
    </message>
    <message>
        <source>The keyboard is free: your desktop’s own keys work again.</source>
        <translation>Teclado liberado: las teclas de su escritorio vuelven a funcionar.</translation>
    </message>
    <message>
        <source>This desktop does not tell Quillon which keys are pressed.</source>
        <translation>Este escritorio no indica a Quillon qué teclas se pulsan.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Keyboard, lit: %1</source>
        <translation>Teclado, iluminadas: %1</translation>
    </message>
    <message>
        <source>%1, in %2. %3</source>
        <translation>%1, en %2. %3</translation>
    </message>
    <message>
        <source>%1. The shortcut is %2.</source>
        <translation>%1. El atajo es %2.</translation>
    </message>
</context>
<context>
    <name>SearchBox</name>
    <message>
        <source>Clear search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Coach</source>
        <translation>Entrenador</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Hold this key</source>
        <translation>Mantener esta tecla</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Using the key in a shortcut (%1-click) never opens the overlay.</source>
        <translation>Usar la tecla en un atajo (%1-clic) nunca abre el panel.</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Su escritorio abre su lanzador al pulsar solo %1, así que mantenerla puede hacer ambas cosas.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Usar %1 en su lugar</translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation>Tiempo de pulsación</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show keys as</source>
        <translation>Mostrar las teclas con</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>The start with the session could not be changed: your configuration folder cannot be written to. Allow that, then try again.</source>
        <translation>No se pudo cambiar el inicio con la sesión: no se puede escribir en su carpeta de configuración. Permítalo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitida</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Nudge me when I click a menu command that has a shortcut</source>
        <translation>Avisarme cuando haga clic en una orden de menú que tenga atajo</translation>
    </message>
    <message>
        <source>Count the shortcuts I type (to know which ones I already use)</source>
        <translation>Contar los atajos que tecleo (para saber cuáles uso ya)</translation>
    </message>
    <message numerus="yes">
        <source>Counting looks only at key presses with %1 or %2 and compares them with the front app’s menu shortcuts. Quillon never records what you type. A shortcut stops being nudged once you’ve typed it %3 times more than you’ve clicked it; you can also mute any one in the Library.</source>
        <translation><numerusform>El recuento solo mira las pulsaciones con %1 o %2 y las compara con los atajos de menú de la aplicación en primer plano. Quillon nunca registra lo que escribe. Un atajo deja de avisarse cuando lo ha tecleado %3 vez más de las que ha hecho clic; también puede silenciar cualquiera en la biblioteca.</numerusform><numerusform>El recuento solo mira las pulsaciones con %1 o %2 y las compara con los atajos de menú de la aplicación en primer plano. Quillon nunca registra lo que escribe. Un atajo deja de avisarse cuando lo ha tecleado %3 veces más de las que ha hecho clic; también puede silenciar cualquiera en la biblioteca.</numerusform></translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. There is no folder for it, so it is forgotten when Quillon quits.</source>
        <translation>Todo lo que Quillon aprende se queda en este %1: los menús leídos, cuántas veces hace clic o teclea cada atajo, sus resultados de práctica, fijados y notas. No hay carpeta para ello, así que se olvida al salir de Quillon.</translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. They’re plain files in %2.</source>
        <translation>Todo lo que Quillon aprende se queda en este %1: los menús leídos, cuántas veces hace clic o teclea cada atajo, sus resultados de práctica, fijados y notas. Son archivos sencillos en %2.</translation>
    </message>
    <message>
        <source>Quillon goes online only to look for updates.</source>
        <translation>Quillon solo se conecta para buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Erase Stats, Pins and Notes…</source>
        <translation>Borrar estadísticas, fijados y notas…</translation>
    </message>
    <message>
        <source>Erase everything Quillon has learned?</source>
        <translation>¿Borrar todo lo que Quillon ha aprendido?</translation>
    </message>
    <message>
        <source>Your counts, practice results, pins, notes and the menus read so far are deleted. Your settings stay.</source>
        <translation>Se eliminan sus recuentos, resultados de práctica, fijados, notas y los menús leídos hasta ahora. Su configuración se conserva.</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Toast</name>
    <message>
        <source>Next time</source>
        <translation>La próxima vez</translation>
    </message>
    <message>
        <source>Next time: %1 for %2</source>
        <translation>La próxima vez: %1 para %2</translation>
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
        <translation>Permitir accesibilidad…</translation>
    </message>
    <message>
        <source>Show Shortcuts</source>
        <translation>Mostrar atajos</translation>
    </message>
    <message>
        <source>Show Shortcuts for %1</source>
        <translation>Mostrar atajos de %1</translation>
    </message>
    <message>
        <source>Or hold %1 in any app</source>
        <translation>O mantenga %1 en cualquier aplicación</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Salir de Quillon</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>Library…</source>
        <translation>Biblioteca…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
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
        <translation>Está al día</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version. %1 checks for updates on its own and will let you know when there’s a new one.</source>
        <translation>%1 %2 es la versión más reciente. %1 busca actualizaciones por su cuenta y le avisará cuando haya una nueva.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <source>Check your internet connection and try again. %1 also checks on its own about once a day.</source>
        <translation>Compruebe su conexión a internet y vuelva a intentarlo. %1 también busca por su cuenta más o menos una vez al día.</translation>
    </message>
    <message>
        <source>What was received is no list of releases. Try again later, or in another network. %1 also checks on its own about once a day.</source>
        <translation>Lo recibido no es una lista de versiones. Vuelva a intentarlo más tarde o en otra red. %1 también busca por su cuenta más o menos una vez al día.</translation>
    </message>
    <message>
        <source>Updates come with your system’s software</source>
        <translation>Las actualizaciones llegan con el software del sistema</translation>
    </message>
    <message>
        <source>%1 %2 does not look for updates by itself. A newer version comes the way this one came, as a rule with the updates of your system.</source>
        <translation>%1 %2 no busca actualizaciones por sí mismo. Una versión más reciente llega igual que esta, por lo general con las actualizaciones del sistema.</translation>
    </message>
    <message>
        <source>%1 %2 is available</source>
        <translation>%1 %2 está disponible</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Tiene la versión %1.</translation>
    </message>
    <message>
        <source>Couldn’t open the page</source>
        <translation>No se pudo abrir la página</translation>
    </message>
    <message>
        <source>Open this address in a browser: %1</source>
        <translation>Abra esta dirección en un navegador: %1</translation>
    </message>
    <message>
        <source>Couldn’t open the software centre</source>
        <translation>No se pudo abrir el centro de software</translation>
    </message>
    <message>
        <source>Open it from your desktop’s menu and look for %1 there.</source>
        <translation>Ábralo desde el menú de su escritorio y busque allí %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Abrir la página de descarga</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Abrir el centro de software</translation>
    </message>
    <message>
        <source>Read Release Notes</source>
        <translation>Leer las notas de la versión</translation>
    </message>
    <message>
        <source>What is new in %1 %2</source>
        <translation>Novedades de %1 %2</translation>
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
        <translation>Ajustes del Sistema &gt; Privacidad y seguridad &gt; Accesibilidad</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Library folder</source>
        <translation>carpeta Biblioteca</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>equipo</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>your desktop’s accessibility settings</source>
        <translation>la configuración de accesibilidad de su escritorio</translation>
    </message>
    <message>
        <source>Your desktop</source>
        <translation>Su escritorio</translation>
    </message>
    <message>
        <source>its accessibility settings or in this window</source>
        <translation>su configuración de accesibilidad o en esta ventana</translation>
    </message>
    <message>
        <source>accessibility</source>
        <translation>la accesibilidad</translation>
    </message>
    <message>
        <source>data folder</source>
        <translation>carpeta de datos</translation>
    </message>
    <message>
        <source>the Super or Windows key</source>
        <translation>la tecla Super o Windows</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
</context>
<context>
    <name>Welcome</name>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Le damos la bienvenida a Quillon</translation>
    </message>
    <message>
        <source>Learn the shortcuts of the apps you already use.</source>
        <translation>Aprenda los atajos de las aplicaciones que ya usa.</translation>
    </message>
    <message>
        <source>Allow Accessibility</source>
        <translation>Permitir la accesibilidad</translation>
    </message>
    <message>
        <source>Quillon reads the front app’s menus to find their shortcuts. %1 asks you to allow this once in %2. Turn on %3 there; this window notices by itself.</source>
        <translation>Quillon lee los menús de la aplicación en primer plano para encontrar sus atajos. %1 le pide que lo permita una vez en %2. Active allí %3; esta ventana se da cuenta por sí sola.</translation>
    </message>
    <message>
        <source>Allow Accessibility…</source>
        <translation>Permitir accesibilidad…</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Abrir la configuración del sistema</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitida</translation>
    </message>
    <message>
        <source>Hold %1 in any app</source>
        <translation>Mantener %1 en cualquier aplicación</translation>
    </message>
    <message>
        <source>Keep the %1 key (%2) down for a moment and that app’s shortcuts appear, grouped by menu. Let go to close it, or click it to keep it open and search. No other permission is needed for this.</source>
        <translation>Mantenga pulsada un momento la tecla «%1» (%2) y aparecerán los atajos de esa aplicación, agrupados por menú. Suéltela para cerrar, o haga clic para mantener el panel abierto y buscar. No se necesita ningún otro permiso.</translation>
    </message>
    <message>
        <source>Nothing leaves your %1</source>
        <translation>Nada sale de su %1</translation>
    </message>
    <message>
        <source>Menus, counts, pins and notes stay in your %1. Quillon only notices shortcuts and menu clicks (never what you type) and goes online only to look for updates.</source>
        <translation>Los menús, recuentos, fijados y notas se quedan en su %1. Quillon solo nota atajos y clics en menús (nunca lo que escribe) y solo se conecta para buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Paso %1</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Paso %1, hecho</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Su escritorio abre su lanzador al pulsar solo %1, así que mantenerla puede hacer ambas cosas.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Usar %1 en su lugar</translation>
    </message>
    <message>
        <source>To show the shortcuts of what was open before, quit it and start it again: %1</source>
        <translation>Para mostrar los atajos de lo que ya estaba abierto, ciérrelo y vuelva a iniciarlo: %1</translation>
    </message>
    <message>
        <source>This desktop shows no tray icons. To reach Quillon, start it again from your list of apps: that opens its menu, and a right click there offers its windows. In a terminal, “quillon show” opens the overlay and “quillon --help” names the rest.</source>
        <translation>Este escritorio no muestra iconos en una bandeja. Para llegar a Quillon, inícielo de nuevo desde la lista de aplicaciones: eso abre su menú, y un clic derecho allí ofrece sus ventanas. En un terminal, «quillon show» abre el panel y «quillon --help» indica lo demás.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Le damos la bienvenida a Quillon</translation>
    </message>
    <message>
        <source>Quillon Library</source>
        <translation>Biblioteca de Quillon</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>Quillon Settings</source>
        <translation>Configuración de Quillon</translation>
    </message>
</context>
</TS>
