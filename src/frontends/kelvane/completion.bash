# Completion of kelvane's command lines for bash.

_kelvane() {
  local current=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]}
  # bash takes --page=frame for three words.
  if [ "$current" = = ]; then
    current=
  elif [ "$option" = = ]; then
    option=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  COMPREPLY=()
  case $option in
    -f | --format)
      mapfile -t COMPREPLY < <(compgen -W 'pdf svg png' -- "$current")
      return ;;
    --page)
      mapfile -t COMPREPLY < <(compgen -W 'frame bounds' -- "$current")
      return ;;
    --emfplus)
      mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$current")
      return ;;
    -d | --directory | --font-dir)
      mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
    -o | --output | --report | --font-map)
      mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    --background)
      mapfile -t COMPREPLY < <(compgen -W 'none white' -- "$current")
      return ;;
    -j | --jobs | --width | --height | --scale | --dpi)
      return ;;
    *)
      case $current in
        -*)
          mapfile -t COMPREPLY < <(compgen -W '--output --directory --jobs --report --format --page
            --width --height --scale --font-dir --font-map --outline-text --no-embed-fonts --emfplus --dpi
            --background --strict --help --version' -- "$current")
          return ;;
      esac
      mapfile -t COMPREPLY < <(
        [ "$COMP_CWORD" -ne 1 ] || compgen -W 'info dump' -- "$current"
        compgen -d -- "$current"
        compgen -f -X '!*.[eEwW][mM][fFzZ]' -- "$current"
      ) ;;
  esac
  compopt -o filenames 2>/dev/null
}

complete -F _kelvane kelvane
