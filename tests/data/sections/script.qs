// header
int n = 3; /* inline
 comment */ double x = n/2;
type "/* kept */"; // done
