<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CheatSheet</name>
    <message>
        <source>%1 Shortcuts</source>
        <translation>Raccourcis de %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 raccourci</numerusform><numerusform>%1 raccourcis</numerusform></translation>
    </message>
    <message>
        <source>%1 Command  %2 Option  %3 Control  %4 Shift</source>
        <translation>%1 Commande  %2 Option  %3 Contrôle  %4 Majuscule</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Épinglés</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (suite)</translation>
    </message>
    <message>
        <source>Made with Quillon</source>
        <translation>Fait avec Quillon</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The PDF document cannot be written.</source>
        <translation>Impossible d’écrire le document PDF.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossible d’écrire « %1 » : %2.</translation>
    </message>
    <message>
        <source>There are no shortcuts to print.</source>
        <translation>Il n’y a aucun raccourci à imprimer.</translation>
    </message>
    <message>
        <source>The printer does not take the pages. Check that it is set up and on.</source>
        <translation>L’imprimante n’accepte pas les pages. Vérifiez qu’elle est configurée et allumée.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1; see quillon --help</source>
        <translation>%1 ; voir quillon --help</translation>
    </message>
    <message>
        <source>unexpected argument '%1'</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>--keys is symbols or names, not '%1'</source>
        <translation>--keys vaut symbols ou names, pas « %1 »</translation>
    </message>
    <message>
        <source>--seed needs --practice</source>
        <translation>--seed demande --practice</translation>
    </message>
    <message>
        <source>--practice is printed as text or json</source>
        <translation>--practice s’affiche en text ou en json</translation>
    </message>
    <message>
        <source>--practice takes a positive number, not '%1'</source>
        <translation>--practice prend un nombre positif, pas « %1 »</translation>
    </message>
    <message>
        <source>--seed takes a number from 0 to 2^64-1, not '%1'</source>
        <translation>--seed prend un nombre de 0 à 2^64-1, pas « %1 »</translation>
    </message>
    <message>
        <source>--app, --pid and --front exclude each other</source>
        <translation>--app, --pid et --front s’excluent</translation>
    </message>
    <message>
        <source>--pid takes a process number, not '%1'</source>
        <translation>--pid prend un numéro de processus, pas « %1 »</translation>
    </message>
    <message>
        <source>--format is text, json, markdown or pdf, not '%1'</source>
        <translation>--format vaut text, json, markdown ou pdf, pas « %1 »</translation>
    </message>
    <message>
        <source>--output needs --format pdf</source>
        <translation>--output demande --format pdf</translation>
    </message>
    <message>
        <source>--output takes the name of a file</source>
        <translation>--output prend le nom d’un fichier</translation>
    </message>
    <message>
        <source>a PDF document is not for the terminal; name a file with --output</source>
        <translation>un document PDF n’est pas fait pour le terminal ; indiquez un fichier avec --output</translation>
    </message>
    <message>
        <source>--format is text or json, not '%1'</source>
        <translation>--format vaut text ou json, pas « %1 »</translation>
    </message>
    <message>
        <source>unknown command '%1'</source>
        <translation>commande inconnue « %1 »</translation>
    </message>
    <message>
        <source>the output was lost: %1</source>
        <translation>la sortie a été perdue : %1</translation>
    </message>
    <message>
        <source>1 shortcut</source>
        <translation>1 raccourci</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 raccourci</numerusform><numerusform>%1 raccourcis</numerusform></translation>
    </message>
    <message>
        <source>(disabled)</source>
        <translation>(indisponible)</translation>
    </message>
    <message>
        <source>clicked %1, typed %2, clicks replaced by typing %3</source>
        <translation>cliqués : %1, tapés : %2, clics remplacés par la frappe : %3</translation>
    </message>
    <message>
        <source>learned</source>
        <translation>acquis</translation>
    </message>
    <message>
        <source>clicked %1</source>
        <translation>cliqué %1</translation>
    </message>
    <message>
        <source>typed %1</source>
        <translation>tapé %1</translation>
    </message>
    <message>
        <source>there is no running instance</source>
        <translation>le programme n’est pas lancé</translation>
    </message>
    <message>
        <source>the running instance does not answer</source>
        <translation>le programme lancé ne répond pas</translation>
    </message>
    <message>
        <source>the session cannot be reached; see quillon doctor</source>
        <translation>la session est inaccessible ; voir quillon doctor</translation>
    </message>
    <message>
        <source>process %1 is no application that shares its menus; see quillon apps</source>
        <translation>le processus %1 n’est pas une application qui partage ses menus ; voir quillon apps</translation>
    </message>
    <message>
        <source>no running application is called '%1'; see quillon apps</source>
        <translation>aucune application lancée ne s’appelle « %1 » ; voir quillon apps</translation>
    </message>
    <message>
        <source>no application is in front; name one with --app, see quillon apps</source>
        <translation>aucune application n’est au premier plan ; indiquez-en une avec --app, voir quillon apps</translation>
    </message>
    <message>
        <source>%1 does not answer; try again when it does</source>
        <translation>%1 ne répond pas ; réessayez quand ce sera le cas</translation>
    </message>
    <message>
        <source>%1 shares no menu shortcuts; if it was started before accessibility was on, restart it</source>
        <translation>%1 ne partage aucun raccourci de menu ; s’il a été lancé avant l’activation de l’accessibilité, relancez-le</translation>
    </message>
    <message>
        <source>%1 stopped answering; the sheet is not complete</source>
        <translation>%1 a cessé de répondre ; la liste est incomplète</translation>
    </message>
    <message>
        <source>%1 has more menu items than are read</source>
        <translation>%1 a plus d’éléments de menu qu’il n’en est lu</translation>
    </message>
    <message>
        <source>no shortcut of %1 matches '%2'</source>
        <translation>aucun raccourci de %1 ne correspond à « %2 »</translation>
    </message>
    <message>
        <source>there is no home folder that could hold anything; set HOME</source>
        <translation>il n’y a pas de dossier personnel qui puisse contenir quoi que ce soit ; définissez HOME</translation>
    </message>
    <message>
        <source>nothing was counted of an application called '%1'</source>
        <translation>rien n’a été compté d’une application nommée « %1 »</translation>
    </message>
    <message>
        <source>nothing was counted yet</source>
        <translation>rien n’a encore été compté</translation>
    </message>
    <message>
        <source>there is no session bus; run this inside of a desktop session</source>
        <translation>il n’y a pas de bus de session ; lancez ceci dans une session graphique</translation>
    </message>
    <message>
        <source>the session bus does not answer; see quillon doctor</source>
        <translation>le bus de session ne répond pas ; voir quillon doctor</translation>
    </message>
    <message>
        <source>the accessibility bus cannot be reached; install at-spi2-core and log in again</source>
        <translation>le bus d’accessibilité est inaccessible ; installez at-spi2-core et reconnectez-vous</translation>
    </message>
    <message>
        <source>accessibility is off; choose “Allow Accessibility…” in Quillon’s menu</source>
        <translation>l’accessibilité est désactivée ; choisissez « Autoriser l’accessibilité… » dans le menu de Quillon</translation>
    </message>
    <message>
        <source>the session bus cannot be reached; menus cannot be read, see quillon doctor</source>
        <translation>le bus de session est inaccessible ; les menus ne peuvent pas être lus, voir quillon doctor</translation>
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
        <translation>Usage : quillon [--verbose] [COMMANDE]

Vous apprend les raccourcis clavier des applications que vous utilisez déjà.
Maintenez la touche de déclenchement (Super) dans une application pour les voir.

Commandes :
  (aucune)    lancer le programme, ou montrer celui qui est lancé
  show        ouvrir le panneau et le garder ouvert
                --sample          avec une application de dessin inventée
  practice    ouvrir la fenêtre d’exercices
                --app NOM         pour cette application (nom ou identifiant)
  library     ouvrir la bibliothèque de tous les raccourcis
  settings    ouvrir les réglages
  welcome     ouvrir la fenêtre de bienvenue
  sheet       afficher les raccourcis d’une application
                --app NOM         l’application de cet identifiant ou de ce nom
                --pid N           l’application de ce processus
                --front           l’application au premier plan (par défaut)
                --query Q         seulement les raccourcis correspondant à Q
                --format FORMAT   text (par défaut), json, markdown ou pdf
                --output FICHIER  d’un document PDF ; nécessaire sauf si la
                                  sortie va à un fichier ou à un programme
                --keys TOUCHES    symbols (par défaut), ou names, les noms
                                  sur le clavier ; le JSON est le même
                --practice N      plutôt une série d’exercices de N commandes,
                                  dans l’ordre où elles sont demandées
                --seed S          la même série à chaque fois
  apps        lister les applications lancées qui partagent leurs menus
  stats       afficher ce qui a été compté : clics et frappes par commande, les
              plus cliquées d’abord. « acquis » : tapées 5 fois de plus que
              cliquées ; « remplacés » : les frappes de commandes qui ont aussi
              été cliquées
                --app NOM         seulement de l’application ainsi nommée
                --format FORMAT   text (par défaut) ou json
                --keys TOUCHES    comme pour sheet
  doctor      dire ce qui marche sur ce bureau et comment réparer le reste
  quit        arrêter le programme lancé

Options :
  --help      afficher ce texte
  --verbose   avant la commande : dire sur la sortie d’erreur ce qui est lu, au
              premier plan et montré ; jamais ce qui est tapé
  --version   afficher la version

Codes de sortie : 0 succès, 1 échec, 2 usage incorrect, 3 application inconnue,
4 accessibilité absente ou désactivée, 5 aucun raccourci de menu partagé.
</translation>
    </message>
    <message>
        <source>the shortcuts of an application called '%1' have not been read yet</source>
        <translation>les raccourcis d’une application nommée « %1 » n’ont pas encore été lus</translation>
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
        <translation>limité</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>Learned data</source>
        <translation>Données apprises</translation>
    </message>
    <message>
        <source>Quillon keeps it as it was and began a new one. Mend it and put it back while Quillon does not run, or remove it.</source>
        <translation>Quillon la garde telle quelle et en a commencé une nouvelle. Réparez-la et remettez-la en place pendant que Quillon est arrêté, ou supprimez-la.</translation>
    </message>
    <message>
        <source>Mend or remove it while Quillon does not run; until then it counts as empty.</source>
        <translation>Réparez-la ou supprimez-la pendant que Quillon est arrêté ; d’ici là, elle compte comme vide.</translation>
    </message>
    <message>
        <source>there is no home folder to keep it in</source>
        <translation>il n’y a pas de dossier personnel où les garder</translation>
    </message>
    <message>
        <source>Set HOME.</source>
        <translation>Définissez HOME.</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de session</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>répond</translation>
    </message>
    <message>
        <source>takes connections and does not answer</source>
        <translation>accepte les connexions et ne répond pas</translation>
    </message>
    <message>
        <source>Log out and in again; every program of this session waits for it.</source>
        <translation>Déconnectez-vous puis reconnectez-vous ; tous les programmes de cette session l’attendent.</translation>
    </message>
    <message>
        <source>cannot be reached</source>
        <translation>est inaccessible</translation>
    </message>
    <message>
        <source>Start Quillon from a desktop session, or with dbus-run-session.</source>
        <translation>Lancez Quillon depuis une session graphique, ou avec dbus-run-session.</translation>
    </message>
    <message>
        <source>Accessibility bus</source>
        <translation>Bus d’accessibilité</translation>
    </message>
    <message>
        <source>Install the package at-spi2-core and log in again.</source>
        <translation>Installez le paquet at-spi2-core et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>unknown without its bus</source>
        <translation>inconnue sans son bus</translation>
    </message>
    <message>
        <source>has no switch on this desktop</source>
        <translation>n’a pas d’interrupteur sur ce bureau</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>est activée</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>est désactivée</translation>
    </message>
    <message>
        <source>Choose “Allow Accessibility…” in Quillon’s menu, or turn it on in the desktop’s settings; applications already running may have to be restarted.</source>
        <translation>Choisissez « Autoriser l’accessibilité… » dans le menu de Quillon, ou activez-la dans les réglages du bureau ; les applications déjà lancées devront peut-être être relancées.</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Wayland, with an X server for older applications</source>
        <translation>Wayland, avec un serveur X pour les applications anciennes</translation>
    </message>
    <message>
        <source>Holding a key works over X applications only; `quillon show` works everywhere. Log in to an X11 session for the rest.</source>
        <translation>Maintenir une touche ne fonctionne que sur les applications X ; `quillon show` fonctionne partout. Ouvrez une session X11 pour le reste.</translation>
    </message>
    <message>
        <source>X11</source>
        <translation>X11</translation>
    </message>
    <message>
        <source>Wayland without an X server</source>
        <translation>Wayland sans serveur X</translation>
    </message>
    <message>
        <source>Holding a key cannot be noticed; use `quillon show` and `quillon sheet`.</source>
        <translation>Le maintien d’une touche ne peut pas être détecté ; utilisez `quillon show` et `quillon sheet`.</translation>
    </message>
    <message>
        <source>Start Quillon in a graphical session, or set DISPLAY.</source>
        <translation>Lancez Quillon dans une session graphique, ou définissez DISPLAY.</translation>
    </message>
    <message>
        <source>XInput</source>
        <translation>XInput</translation>
    </message>
    <message>
        <source>version %1</source>
        <translation>version %1</translation>
    </message>
    <message>
        <source>is older than version 2.2 or absent</source>
        <translation>est antérieure à la version 2.2 ou absente</translation>
    </message>
    <message>
        <source>Use an X server that offers XInput 2.2; without it a click or a key does not spoil a hold.</source>
        <translation>Utilisez un serveur X qui offre XInput 2.2 ; sans cela, ni clic ni touche n’interrompt un maintien.</translation>
    </message>
    <message>
        <source>XKB</source>
        <translation>XKB</translation>
    </message>
    <message>
        <source>is there</source>
        <translation>est présente</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>est absente</translation>
    </message>
    <message>
        <source>Use an X server that offers XKB; without it a held key cannot be noticed.</source>
        <translation>Utilisez un serveur X qui offre XKB ; sans cela, une touche maintenue ne peut pas être détectée.</translation>
    </message>
    <message>
        <source>SHAPE</source>
        <translation>SHAPE</translation>
    </message>
    <message>
        <source>Panels have square corners without a compositor.</source>
        <translation>Sans compositeur, les panneaux ont des coins carrés.</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>none that tells the active window</source>
        <translation>aucun qui indique la fenêtre active</translation>
    </message>
    <message>
        <source>Quillon takes the application that has the keyboard; start a window manager for more.</source>
        <translation>Quillon prend l’application qui a le clavier ; lancez un gestionnaire de fenêtres pour davantage.</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>est lancé</translation>
    </message>
    <message>
        <source>none runs</source>
        <translation>aucun n’est lancé</translation>
    </message>
    <message>
        <source>Panels are cut out without shadows; nothing is lost.</source>
        <translation>Les panneaux sont découpés sans ombre ; rien n’est perdu.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>il n’y en a pas</translation>
    </message>
    <message>
        <source>Start quillon again to reach its menu, or use `quillon show` and `quillon quit`.</source>
        <translation>Relancez quillon pour accéder à son menu, ou utilisez `quillon show` et `quillon quit`.</translation>
    </message>
    <message>
        <source>GTK 2</source>
        <translation>GTK 2</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>illisible : %1</translation>
    </message>
    <message>
        <source>Install the package libatk-adaptor, set GTK_MODULES=gail:atk-bridge for the whole session, and start the programs again.</source>
        <translation>Installez le paquet libatk-adaptor, définissez GTK_MODULES=gail:atk-bridge pour toute la session et relancez les programmes.</translation>
    </message>
    <message>
        <source>Front application</source>
        <translation>Application au premier plan</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Bring an application's window to the front.</source>
        <translation>Placez la fenêtre d’une application au premier plan.</translation>
    </message>
    <message>
        <source>%1 (%2, process %3)</source>
        <translation>%1 (%2, processus %3)</translation>
    </message>
    <message>
        <source>Log in to an X11 session for the rest.</source>
        <translation>Ouvrez une session X11 pour le reste.</translation>
    </message>
    <message>
        <source>Hold watcher</source>
        <translation>Touches maintenues</translation>
    </message>
    <message>
        <source>notices held keys</source>
        <translation>sont détectées</translation>
    </message>
    <message>
        <source>notices held keys in X applications only</source>
        <translation>ne sont détectées que dans les applications X</translation>
    </message>
    <message>
        <source>can notice held keys</source>
        <translation>peuvent être détectées</translation>
    </message>
    <message>
        <source>can notice held keys in X applications only</source>
        <translation>ne peuvent être détectées que dans les applications X</translation>
    </message>
    <message>
        <source>does not notice held keys now</source>
        <translation>ne sont pas détectées en ce moment</translation>
    </message>
    <message>
        <source>Start Quillon again.</source>
        <translation>Relancez Quillon.</translation>
    </message>
    <message>
        <source>held keys are not noticed: there is no X server that tells them</source>
        <translation>ne sont pas détectées : aucun serveur X ne les indique</translation>
    </message>
    <message>
        <source>Use `quillon show`, or log in to an X11 session.</source>
        <translation>Utilisez `quillon show`, ou ouvrez une session X11.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: there is no X server with XInput 2.2</source>
        <translation>ne sont pas détectés : il n’y a pas de serveur X avec XInput 2.2</translation>
    </message>
    <message>
        <source>Log in to an X11 session.</source>
        <translation>Ouvrez une session X11.</translation>
    </message>
    <message>
        <source>clicks on menu commands are not noticed: menus cannot be read</source>
        <translation>ne sont pas détectés : les menus ne peuvent pas être lus</translation>
    </message>
    <message>
        <source>See Accessibility above.</source>
        <translation>Voir Accessibilité plus haut.</translation>
    </message>
    <message>
        <source>Click watcher</source>
        <translation>Clics dans les menus</translation>
    </message>
    <message>
        <source>notices clicks on menu commands</source>
        <translation>sont détectés</translation>
    </message>
    <message>
        <source>notices clicks on menu commands in X applications only</source>
        <translation>ne sont détectés que dans les applications X</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands</source>
        <translation>peuvent être détectés</translation>
    </message>
    <message>
        <source>can notice clicks on menu commands in X applications only</source>
        <translation>ne peuvent être détectés que dans les applications X</translation>
    </message>
    <message>
        <source>does not notice clicks on menu commands now</source>
        <translation>ne sont pas détectés en ce moment</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have nudgesOn be true in its settings.</source>
        <translation>Autorisez l’accessibilité dans le menu de Quillon, et donnez à nudgesOn la valeur true dans ses réglages.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: there is no X server with XInput 2.2 and XKB</source>
        <translation>ne sont pas détectés : il n’y a pas de serveur X avec XInput 2.2 et XKB</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: the keyboard’s map cannot be read</source>
        <translation>ne sont pas détectés : la disposition du clavier ne peut pas être lue</translation>
    </message>
    <message>
        <source>Choose a keyboard layout, such as with `setxkbmap us`.</source>
        <translation>Choisissez une disposition de clavier, par exemple avec `setxkbmap fr`.</translation>
    </message>
    <message>
        <source>typed shortcuts are not noticed: menus cannot be read</source>
        <translation>ne sont pas détectés : les menus ne peuvent pas être lus</translation>
    </message>
    <message>
        <source>Typed watcher</source>
        <translation>Raccourcis tapés</translation>
    </message>
    <message>
        <source>notices typed shortcuts</source>
        <translation>sont détectés</translation>
    </message>
    <message>
        <source>notices typed shortcuts in X applications only</source>
        <translation>ne sont détectés que dans les applications X</translation>
    </message>
    <message>
        <source>can notice typed shortcuts</source>
        <translation>peuvent être détectés</translation>
    </message>
    <message>
        <source>can notice typed shortcuts in X applications only</source>
        <translation>ne peuvent être détectés que dans les applications X</translation>
    </message>
    <message>
        <source>does not notice typed shortcuts now</source>
        <translation>ne sont pas détectés en ce moment</translation>
    </message>
    <message>
        <source>Allow accessibility in Quillon’s menu, and have countTyped be true in its settings.</source>
        <translation>Autorisez l’accessibilité dans le menu de Quillon, et donnez à countTyped la valeur true dans ses réglages.</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>does not run</source>
        <translation>n’est pas lancé</translation>
    </message>
    <message>
        <source>Start it with `quillon`.</source>
        <translation>Lancez-le avec `quillon`.</translation>
    </message>
    <message>
        <source>shows Quillon’s icon</source>
        <translation>affiche l’icône de Quillon</translation>
    </message>
    <message>
        <source>can show Quillon’s icon</source>
        <translation>peut afficher l’icône de Quillon</translation>
    </message>
    <message>
        <source>there is one, which does not show Quillon’s icon</source>
        <translation>présente, mais n’affiche pas l’icône de Quillon</translation>
    </message>
</context>
<context>
    <name>KeyPlaces</name>
    <message>
        <source>%1 is %2, %3 is %4, %5 is %6.</source>
        <translation>%1 est %2, %3 est %4, %5 est %6.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>Ctrl</source>
        <extracomment>Keys are named as they are printed on a keyboard of the language. Behind the name that is shown, parted by |, stand other names by which people may search for the key, in small or large letters.</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj|Majuscule</translation>
    </message>
    <message>
        <source>Super|Windows|Win|Meta</source>
        <translation>Super|Windows|Win|Meta</translation>
    </message>
    <message>
        <source>Enter|Return</source>
        <translation>Entrée|Entree|Retour</translation>
    </message>
    <message>
        <source>Num Enter|Enter|Keypad Enter</source>
        <translation>Entrée Num|Entrée|Entree|Entree Num</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab|Tabulation</translation>
    </message>
    <message>
        <source>Space|Spacebar</source>
        <translation>Espace|Barre d’espace</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière|Retour arriere|Effacement</translation>
    </message>
    <message>
        <source>Delete|Del</source>
        <translation>Suppr|Supprimer</translation>
    </message>
    <message>
        <source>Esc|Escape</source>
        <translation>Échap|Echap|Échappement</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear|Effacer</translation>
    </message>
    <message>
        <source>←|Left|Left Arrow</source>
        <translation>←|Gauche|Flèche gauche|Fleche gauche</translation>
    </message>
    <message>
        <source>→|Right|Right Arrow</source>
        <translation>→|Droite|Flèche droite|Fleche droite</translation>
    </message>
    <message>
        <source>↑|Up|Up Arrow</source>
        <translation>↑|Haut|Flèche haut|Fleche haut</translation>
    </message>
    <message>
        <source>↓|Down|Down Arrow</source>
        <translation>↓|Bas|Flèche bas|Fleche bas</translation>
    </message>
    <message>
        <source>Page Up|PgUp</source>
        <translation>Page préc|Page prec|Page haut|Page précédente|PgPréc</translation>
    </message>
    <message>
        <source>Page Down|PgDn|PgDown</source>
        <translation>Page suiv|Page bas|Page suivante|PgSuiv</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début|Debut|Origine</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Éjecter|Ejecter</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Barre oblique</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Apostrophe</translation>
    </message>
    <message>
        <source>Left Bracket</source>
        <translation>Crochet ouvrant</translation>
    </message>
    <message>
        <source>Right Bracket</source>
        <translation>Crochet fermant</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Barre oblique inverse</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Égal</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Accent grave</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Question Mark</source>
        <translation>Point d’interrogation</translation>
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
        <translation>Ce que vous avez appris</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Au clavier</translation>
    </message>
    <message>
        <source>Clicked</source>
        <translation>Au menu</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the names of months.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day under a chart, short: d is the day and MMM the month's short name.</extracomment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>Week of %1: %2 clicked, %3 typed.</source>
        <translation>Semaine du %1 : %2 au menu, %3 au clavier.</translation>
    </message>
    <message>
        <source>No shortcut has graduated yet. One does once you’ve typed it %1 times more than you’ve clicked it.</source>
        <translation>Aucun raccourci n’est encore acquis. Il l’est dès que vous l’avez tapé %1 fois de plus que cliqué.</translation>
    </message>
    <message>
        <source>Graduated (%1): %2</source>
        <translation>Acquis (%1) : %2</translation>
    </message>
    <message>
        <source>About %1 saved: %2 typed × %3 s, which two pointings and two clicks in a menu take longer than two keys.</source>
        <translation>Environ %1 gagnées : %2 frappes × %3 s, ce que deux pointages et deux clics dans un menu prennent de plus que deux touches.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>last year</source>
        <translation>l’année dernière</translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation><numerusform>il y a %1 an</numerusform><numerusform>il y a %1 ans</numerusform></translation>
    </message>
    <message>
        <source>last month</source>
        <translation>le mois dernier</translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation><numerusform>il y a %1 mois</numerusform><numerusform>il y a %1 mois</numerusform></translation>
    </message>
    <message>
        <source>last week</source>
        <translation>la semaine dernière</translation>
    </message>
    <message numerus="yes">
        <source>%1 weeks ago</source>
        <translation><numerusform>il y a %1 semaine</numerusform><numerusform>il y a %1 semaines</numerusform></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation><numerusform>il y a %1 jour</numerusform><numerusform>il y a %1 jours</numerusform></translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>il y a 1 heure</translation>
    </message>
    <message numerus="yes">
        <source>%1 hours ago</source>
        <translation><numerusform>il y a %1 heure</numerusform><numerusform>il y a %1 heures</numerusform></translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>il y a 1 minute</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes ago</source>
        <translation><numerusform>il y a %1 minute</numerusform><numerusform>il y a %1 minutes</numerusform></translation>
    </message>
    <message>
        <source>1 second ago</source>
        <translation>il y a 1 seconde</translation>
    </message>
    <message numerus="yes">
        <source>%1 seconds ago</source>
        <translation><numerusform>il y a %1 seconde</numerusform><numerusform>il y a %1 secondes</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Rechercher un raccourci</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Shortcuts of %1</source>
        <translation>Raccourcis de %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts</source>
        <translation><numerusform>%1 raccourci</numerusform><numerusform>%1 raccourcis</numerusform></translation>
    </message>
    <message>
        <source>now</source>
        <translation>à l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts · menus read %2</source>
        <translation><numerusform>%1 raccourci · menus lus %2</numerusform><numerusform>%1 raccourcis · menus lus %2</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 menu clicks</source>
        <translation><numerusform>%1 clic dans les menus</numerusform><numerusform>%1 clics dans les menus</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts typed</source>
        <translation><numerusform>%1 raccourci tapé</numerusform><numerusform>%1 raccourcis tapés</numerusform></translation>
    </message>
    <message>
        <source>Learn these next</source>
        <translation>À apprendre ensuite</translation>
    </message>
    <message>
        <source>%1 clicked · %2 typed</source>
        <translation>%1 cliqué · %2 tapé</translation>
    </message>
    <message>
        <source>No apps yet</source>
        <translation>Aucune application pour l’instant</translation>
    </message>
    <message>
        <source>Hold %1 in any app; its shortcuts show up here.</source>
        <translation>Maintenez %1 dans une application ; ses raccourcis apparaissent ici.</translation>
    </message>
    <message>
        <source>Pick an app</source>
        <translation>Choisissez une application</translation>
    </message>
    <message>
        <source>Pin to the top of the overlay and cheat sheet</source>
        <translation>Épingler en haut du panneau et de l’aide-mémoire</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Ne plus épingler</translation>
    </message>
    <message>
        <source>Add a note</source>
        <translation>Ajouter une note</translation>
    </message>
    <message>
        <source>Nudge me when I click this in the menu</source>
        <translation>Me le rappeler quand je clique dessus dans le menu</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Épingler %1</translation>
    </message>
    <message>
        <source>Unpin %1</source>
        <translation>Ne plus épingler %1</translation>
    </message>
    <message>
        <source>Note for %1</source>
        <translation>Note pour %1</translation>
    </message>
    <message>
        <source>Turn nudges off for %1</source>
        <translation>Désactiver les rappels pour %1</translation>
    </message>
    <message>
        <source>Turn nudges on for %1</source>
        <translation>Activer les rappels pour %1</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>épinglé</translation>
    </message>
    <message>
        <source>nudges off</source>
        <translation>sans rappels</translation>
    </message>
    <message>
        <source>A note to remember it by</source>
        <translation>Une note pour s’en souvenir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>Drill this app’s shortcuts, weighted to the ones you click</source>
        <translation>Exercer les raccourcis de cette application, surtout ceux que vous cliquez</translation>
    </message>
    <message>
        <source>Cheat Sheet</source>
        <translation>Aide-mémoire</translation>
    </message>
    <message>
        <source>A printable cheat sheet of these shortcuts, pinned first, with your notes</source>
        <translation>Un aide-mémoire imprimable de ces raccourcis, les épinglés d’abord, avec vos notes</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Copy as Markdown</source>
        <translation>Copier en Markdown</translation>
    </message>
    <message>
        <source>PDF documents (%1)</source>
        <translation>Documents PDF (%1)</translation>
    </message>
    <message>
        <source>Couldn’t make the cheat sheet</source>
        <translation>Impossible de créer l’aide-mémoire</translation>
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
        <translation>Quillon a besoin de l’accessibilité pour lire les menus</translation>
    </message>
    <message>
        <source>Allow it once in %1. Nothing leaves your %2.</source>
        <translation>Autorisez-la une fois dans %1. Rien ne quitte votre %2.</translation>
    </message>
    <message>
        <source>Show Me How</source>
        <translation>Me montrer comment</translation>
    </message>
    <message>
        <source>Switch to an app, then hold %1</source>
        <translation>Passez à une application, puis maintenez %1</translation>
    </message>
    <message>
        <source>Reading %1’s menus…</source>
        <translation>Lecture des menus de %1…</translation>
    </message>
    <message>
        <source>No menu shortcuts in %1</source>
        <translation>Aucun raccourci de menu dans %1</translation>
    </message>
    <message>
        <source>Some apps draw their own menus, which %1 doesn’t share.</source>
        <translation>Certaines applications dessinent leurs propres menus, que %1 ne partage pas.</translation>
    </message>
    <message>
        <source>%1 does not answer now.</source>
        <translation>%1 ne répond pas en ce moment.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”</source>
        <translation>Rien ne correspond à « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>%1 shortcuts from its menus</source>
        <translation><numerusform>%1 raccourci de ses menus</numerusform><numerusform>%1 raccourcis de ses menus</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 shortcuts</source>
        <translation><numerusform>%1 raccourci sur %2</numerusform><numerusform>%1 raccourcis sur %2</numerusform></translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>Rechercher un raccourci</translation>
    </message>
    <message>
        <source>Esc closes</source>
        <translation>Échap ferme</translation>
    </message>
    <message>
        <source>Let go of %1 to close · click to keep it open</source>
        <translation>Relâchez %1 pour fermer · cliquez pour garder ouvert</translation>
    </message>
    <message>
        <source>You click this one most:</source>
        <translation>Votre clic le plus fréquent :</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Épinglés</translation>
    </message>
    <message numerus="yes">
        <source>clicked %1 times</source>
        <translation><numerusform>%1 clic</numerusform><numerusform>%1 clics</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>You clicked this in the menu %1 times</source>
        <translation><numerusform>Vous avez cliqué %1 fois dans le menu</numerusform><numerusform>Vous avez cliqué %1 fois dans le menu</numerusform></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Épingler</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Ne plus épingler</translation>
    </message>
    <message>
        <source>Open in Library</source>
        <translation>Ouvrir dans la bibliothèque</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Shortcuts for %1</source>
        <translation>Raccourcis de %1</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
</context>
<context>
    <name>Practice</name>
    <message>
        <source>Practice</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>App to practise</source>
        <translation>Application à exercer</translation>
    </message>
    <message>
        <source>Press New Round.</source>
        <translation>Appuyez sur « Nouvelle série ».</translation>
    </message>
    <message>
        <source>New Round</source>
        <translation>Nouvelle série</translation>
    </message>
    <message>
        <source>%1 has no shortcuts to practise.</source>
        <translation>%1 n’a pas de raccourcis à exercer.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Press the shortcut</source>
        <translation>Tapez le raccourci</translation>
    </message>
    <message>
        <source>Show Answer</source>
        <translation>Afficher la réponse</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Juste</translation>
    </message>
    <message>
        <source>You pressed %1</source>
        <translation>Vous avez tapé %1</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>See Results</source>
        <translation>Voir le résultat</translation>
    </message>
    <message>
        <source>%1 of %2 right</source>
        <translation>%1 sur %2 justes</translation>
    </message>
    <message>
        <source>These come up more next time:</source>
        <translation>Ceux-ci reviendront plus souvent la prochaine fois :</translation>
    </message>
    <message>
        <source>A clean round. The next one leans on whatever you click next.</source>
        <translation>Un sans-faute. La prochaine série s’appuiera sur vos prochains clics.</translation>
    </message>
    <message>
        <source>Another Round</source>
        <translation>Encore une série</translation>
    </message>
    <message>
        <source>No apps to practise yet</source>
        <translation>Aucune application à exercer pour l’instant</translation>
    </message>
    <message>
        <source>Hold %1 in an app first, so Quillon can read its shortcuts.</source>
        <translation>Maintenez d’abord %1 dans une application, pour que Quillon puisse lire ses raccourcis.</translation>
    </message>
    <message>
        <source>Every key comes here while a question waits. Hold Esc to let go.</source>
        <translation>Toutes les touches arrivent ici tant qu’une question attend. Maintenez Échap pour les libérer.</translation>
    </message>
    <message>
        <source>The keyboard is free: your desktop’s own keys work again.</source>
        <translation>Clavier libéré : les touches de votre bureau agissent de nouveau.</translation>
    </message>
    <message>
        <source>This desktop does not tell Quillon which keys are pressed.</source>
        <translation>Ce bureau n’indique pas à Quillon quelles touches sont pressées.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Keyboard, lit: %1</source>
        <translation>Clavier, touches allumées : %1</translation>
    </message>
    <message>
        <source>%1, in %2. %3</source>
        <translation>%1, dans %2. %3</translation>
    </message>
    <message>
        <source>%1. The shortcut is %2.</source>
        <translation>%1. Le raccourci est %2.</translation>
    </message>
</context>
<context>
    <name>SearchBox</name>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Coach</source>
        <translation>Coach</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Hold this key</source>
        <translation>Touche à maintenir</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Using the key in a shortcut (%1-click) never opens the overlay.</source>
        <translation>Utiliser la touche dans un raccourci (%1-clic) n’ouvre jamais le panneau.</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Votre bureau ouvre son lanceur quand %1 est pressée seule : la maintenir peut faire les deux.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Utiliser plutôt %1</translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation>Durée du maintien</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show keys as</source>
        <translation>Afficher les touches par</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symboles</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Démarrer avec la session</translation>
    </message>
    <message>
        <source>The start with the session could not be changed: your configuration folder cannot be written to. Allow that, then try again.</source>
        <translation>Le démarrage avec la session n’a pas pu être changé : votre dossier de configuration est protégé en écriture. Autorisez l’écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisée</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Autoriser…</translation>
    </message>
    <message>
        <source>Nudge me when I click a menu command that has a shortcut</source>
        <translation>Me le rappeler quand je clique une commande de menu qui a un raccourci</translation>
    </message>
    <message>
        <source>Count the shortcuts I type (to know which ones I already use)</source>
        <translation>Compter les raccourcis que je tape (pour savoir lesquels j’utilise déjà)</translation>
    </message>
    <message numerus="yes">
        <source>Counting looks only at key presses with %1 or %2 and compares them with the front app’s menu shortcuts. Quillon never records what you type. A shortcut stops being nudged once you’ve typed it %3 times more than you’ve clicked it; you can also mute any one in the Library.</source>
        <translation><numerusform>Le comptage ne regarde que les frappes avec %1 ou %2 et les compare aux raccourcis des menus de l’application au premier plan. Quillon n’enregistre jamais ce que vous tapez. Un raccourci n’est plus rappelé dès que vous l’avez tapé %3 fois de plus que cliqué ; vous pouvez aussi rendre muet n’importe lequel dans la bibliothèque.</numerusform><numerusform>Le comptage ne regarde que les frappes avec %1 ou %2 et les compare aux raccourcis des menus de l’application au premier plan. Quillon n’enregistre jamais ce que vous tapez. Un raccourci n’est plus rappelé dès que vous l’avez tapé %3 fois de plus que cliqué ; vous pouvez aussi rendre muet n’importe lequel dans la bibliothèque.</numerusform></translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. There is no folder for it, so it is forgotten when Quillon quits.</source>
        <translation>Tout ce que Quillon apprend reste sur votre %1 : les menus lus, la fréquence de vos clics et frappes pour chaque raccourci, vos résultats d’exercices, épingles et notes. Il n’y a pas de dossier pour cela : tout est oublié quand Quillon quitte.</translation>
    </message>
    <message>
        <source>Everything Quillon learns stays on this %1: the menus it has read, how often you click or type each shortcut, your practice results, pins and notes. They’re plain files in %2.</source>
        <translation>Tout ce que Quillon apprend reste sur votre %1 : les menus lus, la fréquence de vos clics et frappes pour chaque raccourci, vos résultats d’exercices, épingles et notes. Ce sont de simples fichiers dans %2.</translation>
    </message>
    <message>
        <source>Quillon goes online only to look for updates.</source>
        <translation>Quillon ne va en ligne que pour chercher des mises à jour.</translation>
    </message>
    <message>
        <source>Erase Stats, Pins and Notes…</source>
        <translation>Effacer statistiques, épingles et notes…</translation>
    </message>
    <message>
        <source>Erase everything Quillon has learned?</source>
        <translation>Effacer tout ce que Quillon a appris ?</translation>
    </message>
    <message>
        <source>Your counts, practice results, pins, notes and the menus read so far are deleted. Your settings stay.</source>
        <translation>Vos comptes, résultats d’exercices, épingles, notes et les menus lus jusqu’ici sont supprimés. Vos réglages restent.</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Toast</name>
    <message>
        <source>Next time</source>
        <translation>La prochaine fois</translation>
    </message>
    <message>
        <source>Next time: %1 for %2</source>
        <translation>La prochaine fois : %1 pour %2</translation>
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
        <translation>Autoriser l’accessibilité…</translation>
    </message>
    <message>
        <source>Show Shortcuts</source>
        <translation>Afficher les raccourcis</translation>
    </message>
    <message>
        <source>Show Shortcuts for %1</source>
        <translation>Afficher les raccourcis de %1</translation>
    </message>
    <message>
        <source>Or hold %1 in any app</source>
        <translation>Ou maintenez %1 dans une application</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Quitter Quillon</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>Library…</source>
        <translation>Bibliothèque…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
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
        <translation>Vous êtes à jour</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version. %1 checks for updates on its own and will let you know when there’s a new one.</source>
        <translation>%1 %2 est la version la plus récente. %1 cherche les mises à jour de lui-même et vous préviendra quand il y en aura une.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Impossible de chercher des mises à jour</translation>
    </message>
    <message>
        <source>Check your internet connection and try again. %1 also checks on its own about once a day.</source>
        <translation>Vérifiez votre connexion à internet et réessayez. %1 cherche aussi de lui-même environ une fois par jour.</translation>
    </message>
    <message>
        <source>What was received is no list of releases. Try again later, or in another network. %1 also checks on its own about once a day.</source>
        <translation>Ce qui a été reçu n’est pas une liste de versions. Réessayez plus tard, ou sur un autre réseau. %1 cherche aussi de lui-même environ une fois par jour.</translation>
    </message>
    <message>
        <source>Updates come with your system’s software</source>
        <translation>Les mises à jour viennent avec les logiciels du système</translation>
    </message>
    <message>
        <source>%1 %2 does not look for updates by itself. A newer version comes the way this one came, as a rule with the updates of your system.</source>
        <translation>%1 %2 ne cherche pas de mises à jour de lui-même. Une version plus récente arrive comme celle-ci, en général avec les mises à jour du système.</translation>
    </message>
    <message>
        <source>%1 %2 is available</source>
        <translation>%1 %2 est disponible</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Vous avez la version %1.</translation>
    </message>
    <message>
        <source>Couldn’t open the page</source>
        <translation>Impossible d’ouvrir la page</translation>
    </message>
    <message>
        <source>Open this address in a browser: %1</source>
        <translation>Ouvrez cette adresse dans un navigateur : %1</translation>
    </message>
    <message>
        <source>Couldn’t open the software centre</source>
        <translation>Impossible d’ouvrir la logithèque</translation>
    </message>
    <message>
        <source>Open it from your desktop’s menu and look for %1 there.</source>
        <translation>Ouvrez-la depuis le menu de votre bureau et cherchez-y %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
    <message>
        <source>Open Software Centre</source>
        <translation>Ouvrir la logithèque</translation>
    </message>
    <message>
        <source>Read Release Notes</source>
        <translation>Lire les notes de version</translation>
    </message>
    <message>
        <source>What is new in %1 %2</source>
        <translation>Nouveautés de %1 %2</translation>
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
        <translation>Réglages Système &gt; Confidentialité et sécurité &gt; Accessibilité</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>Library folder</source>
        <translation>dossier Bibliothèque</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>ordinateur</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
    <message>
        <source>your desktop’s accessibility settings</source>
        <translation>les réglages d’accessibilité de votre bureau</translation>
    </message>
    <message>
        <source>Your desktop</source>
        <translation>Votre bureau</translation>
    </message>
    <message>
        <source>its accessibility settings or in this window</source>
        <translation>ses réglages d’accessibilité ou dans cette fenêtre</translation>
    </message>
    <message>
        <source>accessibility</source>
        <translation>l’accessibilité</translation>
    </message>
    <message>
        <source>data folder</source>
        <translation>dossier de données</translation>
    </message>
    <message>
        <source>the Super or Windows key</source>
        <translation>la touche Super ou Windows</translation>
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
        <translation>Commande</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Bienvenue dans Quillon</translation>
    </message>
    <message>
        <source>Learn the shortcuts of the apps you already use.</source>
        <translation>Apprenez les raccourcis des applications que vous utilisez déjà.</translation>
    </message>
    <message>
        <source>Allow Accessibility</source>
        <translation>Autoriser l’accessibilité</translation>
    </message>
    <message>
        <source>Quillon reads the front app’s menus to find their shortcuts. %1 asks you to allow this once in %2. Turn on %3 there; this window notices by itself.</source>
        <translation>Quillon lit les menus de l’application au premier plan pour trouver leurs raccourcis. %1 vous demande de l’autoriser une fois dans %2. Activez-y %3 ; cette fenêtre s’en aperçoit d’elle-même.</translation>
    </message>
    <message>
        <source>Allow Accessibility…</source>
        <translation>Autoriser l’accessibilité…</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Ouvrir les réglages système</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisée</translation>
    </message>
    <message>
        <source>Hold %1 in any app</source>
        <translation>Maintenir %1 dans une application</translation>
    </message>
    <message>
        <source>Keep the %1 key (%2) down for a moment and that app’s shortcuts appear, grouped by menu. Let go to close it, or click it to keep it open and search. No other permission is needed for this.</source>
        <translation>Gardez la touche « %1 » (%2) enfoncée un instant : les raccourcis de l’application apparaissent, groupés par menu. Relâchez pour fermer, ou cliquez pour garder le panneau ouvert et chercher. Aucune autre autorisation n’est nécessaire.</translation>
    </message>
    <message>
        <source>Nothing leaves your %1</source>
        <translation>Rien ne quitte votre %1</translation>
    </message>
    <message>
        <source>Menus, counts, pins and notes stay in your %1. Quillon only notices shortcuts and menu clicks (never what you type) and goes online only to look for updates.</source>
        <translation>Menus, comptes, épingles et notes restent dans votre %1. Quillon ne remarque que les raccourcis et les clics dans les menus (jamais ce que vous tapez) et ne va en ligne que pour chercher des mises à jour.</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Étape %1</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Étape %1, terminée</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Your desktop opens its launcher when %1 is pressed alone, so holding it may do both.</source>
        <translation>Votre bureau ouvre son lanceur quand %1 est pressée seule : la maintenir peut faire les deux.</translation>
    </message>
    <message>
        <source>Use %1 Instead</source>
        <translation>Utiliser plutôt %1</translation>
    </message>
    <message>
        <source>To show the shortcuts of what was open before, quit it and start it again: %1</source>
        <translation>Pour afficher les raccourcis de ce qui était déjà ouvert, quittez et relancez : %1</translation>
    </message>
    <message>
        <source>This desktop shows no tray icons. To reach Quillon, start it again from your list of apps: that opens its menu, and a right click there offers its windows. In a terminal, “quillon show” opens the overlay and “quillon --help” names the rest.</source>
        <translation>Ce bureau n’affiche pas d’icônes de notification. Pour retrouver Quillon, relancez-le depuis la liste des applications : cela ouvre son menu, et un clic droit y propose ses fenêtres. Dans un terminal, « quillon show » ouvre le panneau et « quillon --help » indique le reste.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Welcome to Quillon</source>
        <translation>Bienvenue dans Quillon</translation>
    </message>
    <message>
        <source>Quillon Library</source>
        <translation>Bibliothèque de Quillon</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>Quillon Settings</source>
        <translation>Réglages de Quillon</translation>
    </message>
</context>
</TS>
