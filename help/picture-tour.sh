# Sourced after tests/picture-session.sh by the scripts that take pictures: a tour of the windows, which begins and ends
# in the main window and changes nothing.
take_tour() {
  # Three boxes checked, the fourth entry selected.
  keys Down space space space
  take foablak

  keys ctrl+k
  wait_for '^Kategóriák nevei$'
  take kategoriak
  keys Escape
  wait_for "$main"

  keys ctrl+a
  wait_for '^Új oldal hozzáadása$'
  text 'Debian GNU/Linux'
  keys alt+u End
  text 'www.debian.org/'
  take hozzaadas
  keys Escape
  wait_for "$main"

  keys ctrl+e
  wait_for '^Cím módosítása$'
  take modositas
  keys Escape
  wait_for "$main"

  keys ctrl+m
  wait_for '^A kiválasztott címek áthelyezése$'
  take athelyezes
  keys Escape
  wait_for "$main"

  keys Delete
  wait_for '^Törlés engedélyezése$'
  take torles
  keys Tab Return
  wait_for "$main"

  menu 2 7
  wait_for '^Lindrel$'
  take parancsikon
  keys Escape
  wait_for "$main"

  keys ctrl+f
  wait_for '^Keresés$'
  text 'ma'
  keys Return
  take kereses
  keys Escape
  wait_for "$main"

  menu 4 2
  wait_for '^Exportálás$'
  keys space
  take export-weblap
  keys alt+f End
  take export-kedvencek
  keys alt+e
  wait_for '^Exportálás a kedvencekbe$'
  take mappa
  keys Escape
  wait_for '^Exportálás$'
  keys Escape
  wait_for "$main"

  menu 5 3
  wait_for '^Lindrel névjegye$'
  take nevjegy
  keys Escape
  wait_for "$main"

  menu 4 1
  wait_for '^Importálás$'
  take importalas
  keys Down alt+i
  wait_for '^Importálás a kedvencekből$'
  take import-mappa
  keys Escape
  wait_for '^Importálás$'
  keys Escape
  wait_for "$main"
}
