# Completion of priority-dashboard's command line in bash: its options, what they take, and the networks of the list.

# The words before the one that the cursor is at, which is the last: as the shell takes them, but for the last, which is
# as it was typed. bash itself splits names at their colons.
_priority_dashboard_words() {
    local line=${COMP_LINE:0:COMP_POINT} word= quote= character i
    words=()
    typed=
    for ((i = 0; i < ${#line}; ++i)); do
        character=${line:i:1}
        if [[ $character == [[:space:]] && -z $quote ]]; then
            [[ -z $typed ]] || words+=("$word")
            word= typed=
            continue
        fi
        typed+=$character
        if [[ -n $quote && $character == "$quote" ]]; then
            quote=
        elif [[ -z $quote && $character == [\'\"] ]]; then
            quote=$character
        elif [[ $character == \\ && $quote != \' ]]; then
            ((++i))
            typed+=${line:i:1}
            word+=${line:i:1}
        else
            word+=$character
        fi
    done
    current=$word
}

# The networks of the list as they are given to commands: with their type where they could be taken for another one.
_priority_dashboard_networks() {
    local place type name
    while IFS=$'\t' read -r place type name; do
        printf -v name '%b' "$name"
        [[ $type == 1 && $name != *:* ]] || name+=:$type
        # What looks like an option is taken behind "=" only.
        [[ $name != --* || $current == --*=* ]] || continue
        candidates+=("$name")
    done < <("${words[0]}" --list 2>/dev/null)
}

_priority_dashboard() {
    local words typed current option value prefix candidate quoted
    local -a candidates=()
    _priority_dashboard_words
    option=${words[-1]-} value=$current
    if [[ $current == --*=* ]]; then
        option=${current%%=*} value=${current#*=}
    fi
    case $option in
        --remove | --move | --connect) _priority_dashboard_networks ;;
        --wlan) candidates=(networkmanager stored) ;;
        --show) candidates=(connect settings) ;;
        --export | --import)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$value")
            return
            ;;
        --library-path)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$value")
            return
            ;;
        --add | --add-top | --wait | --language) ;;
        *)
            # Behind a network that is moved comes its place.
            [[ ${words[*]: -2:1} != --move && $option != --move=* ]] || return
            mapfile -t candidates < <("${words[0]}" --help 2>/dev/null | grep -oE -- '^  (-h, )?--[a-z-]+' |
                grep -oE -- '--[a-z-]+')
            ;;
    esac
    # What bash puts in place is what stands behind the last character that it splits words at.
    prefix=
    if [[ $typed == *[:=]* && $typed != [\'\"]* ]]; then
        prefix=${typed%"${typed##*[:=]}"}
        [[ $typed != --*=* ]] || prefix=${prefix#*=}
    fi
    for candidate in "${candidates[@]}"; do
        [[ $candidate == "$value"* ]] || continue
        case $typed in
            [\'\"]*) quoted=$candidate ;;
            *) printf -v quoted '%q' "$candidate" ;;
        esac
        COMPREPLY+=("${quoted#"$prefix"}")
    done
}

complete -F _priority_dashboard priority-dashboard
