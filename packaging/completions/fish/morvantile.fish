# fish completion for morvantile
complete -c morvantile -F
