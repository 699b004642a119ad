#compdef vantle
# Completes the options of vantle in zsh. Its options are those of "vantle --help".

_arguments \
  '(- *)--settings[open the settings]' \
  '(- *)--pause[stop watching until --resume]' \
  '(- *)--resume[resume watching]' \
  '(- *)--show[show screenshots or recordings on the card]:*:file:_files' \
  '(- *)--dismiss[dismiss the card]' \
  '(- *)--restore[bring back what left the card lately]' \
  '(- *)--focus-panel[move the keyboard focus to the card]' \
  '(- *)--open-folder[open the screenshots folder]' \
  '(- *)--sample[show two sample captures]' \
  '(- *)--quit[quit Vantle]' \
  '(- *)--status[print the status of Vantle]:*:detail:(--verbose --with-paths)' \
  '(- *)--version[print the version]' \
  '(- *)--help[print the help]'
