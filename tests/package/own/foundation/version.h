#error "The package has taken a header of its user."
