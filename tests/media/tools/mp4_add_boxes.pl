# Usage: mp4_add_boxes.pl FILE TYPE:HEX...
# Puts boxes behind those of the first track's sample entry in an MP4 whose `moov` stands at its end,
# so that nothing else moves.
use strict;
use warnings;

my ($file, @boxes) = @ARGV;
open my $in, '<:raw', $file or die "$file: $!\n";
my $data = do { local $/; <$in> };
close $in;

my $added = '';
for my $box (@boxes) {
    my ($type, $content) = split /:/, $box;
    $added .= pack 'N a4 a*', 8 + length($content) / 2, $type, pack 'H*', $content;
}

# Where each box of the path begins. The sample entry is the first box in `stsd`, whatever its name.
my @path = (-1);
my $at = 0;
for my $name (qw(moov trak mdia minf stbl stsd)) {
    $at = index $data, $name, $at;
    die "$file has no $name\n" if $at < 0;
    push @path, $at - 4;
}
shift @path;
my $entry = $path[-1] + 16;
my $end = $entry + unpack 'N', substr $data, $entry, 4;
die "$file does not end with its moov\n"
    if $path[0] + unpack('N', substr $data, $path[0], 4) != length $data;

for my $box (@path, $entry) {
    substr $data, $box, 4, pack 'N', length($added) + unpack 'N', substr $data, $box, 4;
}
substr $data, $end, 0, $added;

open my $out, '>:raw', $file or die "$file: $!\n";
print $out $data;
close $out or die "$file: $!\n";
