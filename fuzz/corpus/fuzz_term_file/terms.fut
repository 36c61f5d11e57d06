Acme, Inc.
"Q3" review

Café