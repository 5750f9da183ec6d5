# write_metainfo(FILE): what software centres tell of the program, for PROJECT_VERSION.
#
# QUILLON_PAGE, when it is set, is the program's page, which also has the pictures. Without it there are none:
# pictures have to have an address on the web.
set(METAINFO_SOURCE ${CMAKE_CURRENT_LIST_DIR}/app.quillon.Quillon.metainfo.xml.in)

function(write_metainfo FILE)
  set(PAGE_AND_PICTURES "")
  if(QUILLON_PAGE)
    string(CONFIGURE [[
  <url type="homepage">@QUILLON_PAGE@</url>
  <screenshots>
    <screenshot type="default">
      <caption>The shortcuts of a text editor, over the editor</caption>
      <caption xml:lang="de">Die Tastenkürzel eines Texteditors, über dem Editor</caption>
      <caption xml:lang="es">Los atajos de un editor de texto, sobre el editor</caption>
      <caption xml:lang="fr">Les raccourcis d’un éditeur de texte, par-dessus l’éditeur</caption>
      <image>@QUILLON_PAGE@/pictures/overlay.png</image>
    </screenshot>
    <screenshot>
      <caption>A note tells the keys of the command that was just clicked</caption>
      <caption xml:lang="de">Ein Hinweis nennt die Tasten des Befehls, der gerade angeklickt wurde</caption>
      <caption xml:lang="es">Un aviso dice las teclas de la orden en la que se acaba de hacer clic</caption>
      <caption xml:lang="fr">Une note donne les touches de la commande sur laquelle on vient de cliquer</caption>
      <image>@QUILLON_PAGE@/pictures/toast.png</image>
    </screenshot>
  </screenshots>
]] PAGE_AND_PICTURES @ONLY)
  endif()
  configure_file(${METAINFO_SOURCE} ${FILE} @ONLY)
endfunction()
