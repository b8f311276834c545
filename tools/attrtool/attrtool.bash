# Completion of attrtool for bash. The verbs and options are those that --help names.

_attrtool_words() { # what --help of the verb, or of the program, offers: its options, or its verbs
  local kind=$1
  shift
  local help
  help=$(command attrtool "$@" --help 2>/dev/null) || return
  if [ "$kind" = options ]; then
    grep -oE '^  (-[a-z],)?--[a-z-]+' <<<"$help" | grep -oE -- '--[a-z-]+'
  else
    sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p' <<<"$help"
  fi
}

_attrtool() {
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb='' word words=''
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $word in
      decode | encode | explain | check | diff | dict | err) verb=$word; break ;;
    esac
  done
  COMPREPLY=()
  case $before in
    --color) words='auto always never' ;;
    --display) words='full brief summary' ;;
    --to) words='flat network tlv tlv-swapped' ;;
    *)
      if [[ $current == -* ]]; then
        words=$(_attrtool_words options ${verb:+"$verb"})
      elif [ -z "$verb" ]; then
        words=$(_attrtool_words verbs)
      elif [ "$verb" = dict ]; then
        words='number= name= constant= format= flag= class= service= protocol= rfc= value='
        [[ $current == *=* ]] || compopt -o nospace 2>/dev/null || true
      elif [ "$verb" = err ]; then
        words=$(command attrtool err 2>/dev/null | grep -oE '^AAA_ATTR_ERR_[A-Z_]+')
      else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        compopt -o filenames 2>/dev/null || true
        return
      fi
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _attrtool attrtool
