# Completes the options of vantle in bash. Its options are those of "vantle --help".

_vantle() {
  local word=$2
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W '--settings --pause --resume --show --dismiss --restore --focus-panel
      --open-folder --sample --quit --status --version --help' -- "$word")
  elif [[ ${COMP_WORDS[1]} == --status ]]; then
    mapfile -t COMPREPLY < <(compgen -W '--verbose --with-paths' -- "$word")
  elif [[ ${COMP_WORDS[1]} == --show ]]; then
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}

complete -F _vantle vantle
