#compdef vantle
# Completes the options of vantle in zsh. Its options are those of "vantle --help".

_arguments \
  '(- *)--settings[open the settings]' \
  '(- *)--pause[stop watching until --resume]' \
  '(- *)--resume[watch again]' \
  '(- *)--show[show the screenshots or recordings on the card]:*:file:_files' \
  '(- *)--dismiss[take the card away]' \
  '(- *)--focus-panel[give the card the keyboard]' \
  '(- *)--open-folder[open the folder that is watched]' \
  '(- *)--sample[show two sample captures]' \
  '(- *)--quit[end Vantle]' \
  '(- *)--status[say what Vantle is doing]:*:detail:(--verbose --with-paths)' \
  '(- *)--version[print the version]' \
  '(- *)--help[print the help]'
