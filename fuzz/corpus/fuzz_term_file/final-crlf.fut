one
